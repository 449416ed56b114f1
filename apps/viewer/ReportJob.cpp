#include "ReportJob.h"

#include "measuring/Count.h"

namespace Drevon::Zalento {

ReportJob::ReportJob(Guidance &guidance)
    : m_guidance(guidance)
{
    // Fires when there is nothing else to do.
    connect(&m_timer, &QTimer::timeout, this, &ReportJob::writeNext);
}

Measuring::Outcome ReportJob::start(Measuring::Report report, const QString &path)
{
    m_report = std::move(report);
    m_path = path;
    m_written = 0;
    m_writer.emplace();
    if (const Measuring::Outcome problem = m_writer->open(path, Measuring::Overwrite::Allow)) {
        m_writer.reset();
        return problem;
    }
    m_writer->addOverview(m_report);
    m_timer.start();
    return {};
}

void ReportJob::writeNext()
{
    const int count = Measuring::countOf(m_report.pictures);
    if (m_written == count) {
        end();
        return;
    }
    m_writer->addPage(m_report, m_written);
    ++m_written;
    m_guidance.notice(Guidance::Information, tr("Report: page %1 of %2").arg(m_written).arg(count));
}

void ReportJob::end()
{
    m_timer.stop();
    const Measuring::Outcome problem = m_writer->finish();
    m_writer.reset();
    m_guidance.notice(problem ? Guidance::Error : Guidance::Information,
                      problem ? problem->text() : tr("Written: %1").arg(m_path));
}

} // namespace Drevon::Zalento
