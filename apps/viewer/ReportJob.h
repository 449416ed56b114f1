#pragma once

#include "Guidance.h"

#include "measuring/Report.h"

#include <QObject>
#include <QString>
#include <QTimer>

#include <optional>

namespace Drevon::Zalento {

/** Writes a report, a page at a time, while the viewer can be used; the guidance tells how far. */
class ReportJob : public QObject
{
    Q_OBJECT

public:
    explicit ReportJob(Guidance &guidance);

    bool isRunning() const { return m_writer.has_value(); }

    /** Begins, over what is there; the file is in its place when the last page is. Not while one is
        running. */
    Measuring::Outcome start(Measuring::Report report, const QString &path);

private:
    void writeNext();
    void end();

    Guidance &m_guidance;
    Measuring::Report m_report;
    QString m_path;
    std::optional<Measuring::ReportWriter> m_writer; ///< while it is running
    int m_written = 0;                               ///< pages
    QTimer m_timer;
};

} // namespace Drevon::Zalento
