#include "Exporter.h"

#include "measuring/OutputFile.h"
#include "measuring/OverlayExport.h"
#include "measuring/Picture.h"
#include "measuring/Report.h"
#include "measuring/SessionFile.h"
#include "measuring/SessionFit.h"
#include "measuring/UnrollExport.h"
#include "measuring/ValueTable.h"

#include <QClipboard>
#include <QDir>
#include <QFileInfo>
#include <QGuiApplication>

namespace Drevon::Zalento {

namespace {

const QLatin1String session("session");
const QLatin1String png("png");
const QLatin1String svg("svg");
const QLatin1String csv("csv");
const QLatin1String wall("wall");
const QLatin1String pdf("pdf");

// As it is when its picture is shown, which is read only where the session does not know its size.
Measuring::Result<Measuring::Session> savedSession(const Document &document)
{
    Measuring::Result<Measuring::Session> saved = Measuring::loadSession(document.sessionPath);
    if (saved && saved->picture.size.isEmpty()) {
        const auto picture = Measuring::loadPicture(document.picturePath);
        if (!picture) {
            return picture.problem();
        }
        saved->picture = picture->identity;
    }
    if (saved && Measuring::hasAlignmentClicks(*saved)) {
        const auto fit = Measuring::fitSession(*saved);
        if (!fit) {
            return fit.problem();
        }
    }
    return saved;
}

// A picture that was only looked at, or not yet, has what is saved beside it, if anything is.
QVector<Measuring::ReportMeasurement> measurementsOf(const Document &document)
{
    const auto measured = [&document](const Measuring::Session &begun) {
        return Measuring::reportMeasurements(
            Measuring::allPictureValues(document.picturePath, begun, Measuring::fitOf(begun)),
            begun);
    };
    const bool isBegun = document.isModified() || document.sessionStamp.isValid();
    if (document.session && isBegun) {
        return measured(*document.session);
    }
    Measuring::PictureValues values;
    values.picture = document.picturePath;
    if (QFileInfo::exists(document.sessionPath)) {
        const auto saved = savedSession(document);
        if (saved) {
            return measured(*saved);
        }
        values.message = saved.problem().text();
    } else if (document.problem.isEmpty()) {
        values.status = Measuring::Status::NotMeasured;
    } else {
        values.message = document.problem;
    }
    return {{values, {}}};
}

QVector<Measuring::PictureValues> valuesOfAll(DocumentList &documents)
{
    QVector<Measuring::PictureValues> values;
    for (int i = 0; i < documents.count(); ++i) {
        for (const Measuring::ReportMeasurement &measurement : measurementsOf(documents.at(i))) {
            values += measurement.values;
        }
    }
    return values;
}

Measuring::Report reportOn(DocumentList &documents, const Measuring::ReportRecord &record)
{
    Measuring::Report report;
    report.record = record;
    for (int i = 0; i < documents.count(); ++i) {
        const Document &document = documents.at(i);
        report.pictures.append({document.picturePath, measurementsOf(document)});
    }
    return report;
}

QByteArray valuesAsCsv(const QVector<Measuring::PictureValues> &measurements)
{
    QByteArray table = Measuring::csvHeader();
    for (const Measuring::PictureValues &measurement : measurements) {
        table += Measuring::csvRecords(measurement);
    }
    return table;
}

} // namespace

Exporter::Exporter(DocumentList &documents, MeasurementEditor &editor,
                   const MeasurementModel &measurements, const PipeRecords &records,
                   Guidance &guidance)
    : m_documents(documents)
    , m_editor(editor)
    , m_measurements(measurements)
    , m_records(records)
    , m_guidance(guidance)
    , m_reportJob(guidance)
{}

// Saving

QString Exporter::saveQuestion(const Document &document) const
{
    if (!document.overwriteWarning.isEmpty()) {
        return document.overwriteWarning;
    }
    if (!QFileInfo::exists(document.picturePath)) {
        return tr("%1 is no longer there. The measurement is saved all the same.")
            .arg(shortName(document.picturePath));
    }
    if (stampOf(document.picturePath) != document.pictureStamp) {
        return tr("%1 has changed since it was opened; the measurement was made before.")
            .arg(shortName(document.picturePath));
    }
    const QDateTime stamp = stampOf(document.sessionPath);
    if (stamp.isValid() && stamp != document.sessionStamp) {
        return document.sessionStamp.isValid()
                   ? tr("%1 was changed by somebody else. Saving replaces it.")
                         .arg(shortName(document.sessionPath))
                   : tr("%1 is there already. Saving replaces it.")
                         .arg(shortName(document.sessionPath));
    }
    return {};
}

bool Exporter::save()
{
    Document *document = m_documents.current();
    if (!document || !document->session) {
        return false;
    }
    const QString question = saveQuestion(*document);
    if (!question.isEmpty()) {
        Q_EMIT confirmationNeeded(question);
        return false;
    }
    return write(*document);
}

bool Exporter::saveAnyway()
{
    Document *document = m_documents.current();
    return document && document->session && write(*document);
}

bool Exporter::saveAs(const QString &path)
{
    Document *document = m_documents.current();
    if (!document || !document->session) {
        return false;
    }
    const QString before = document->sessionPath;
    document->sessionPath = path;
    const bool isWritten = write(*document);
    if (!isWritten) {
        document->sessionPath = before;
    }
    return isWritten;
}

bool Exporter::write(Document &document)
{
    const Measuring::Outcome problem = Measuring::saveSession(
        *document.session, document.sessionPath, Measuring::Overwrite::Allow);
    if (!problem) {
        document.overwriteWarning.clear();
        document.sessionStamp = stampOf(document.sessionPath);
        document.pictureStamp = stampOf(document.picturePath);
        document.history().setClean();
        m_editor.noteSaved();
    }
    return report(problem, tr("Saved as %1.").arg(shortName(document.sessionPath)));
}

bool Exporter::saveAll()
{
    for (int i = 0; i < m_documents.count(); ++i) {
        Document &document = m_documents.at(i);
        if (!document.isModified()) {
            continue;
        }
        const QString question = saveQuestion(document);
        if (!question.isEmpty()) {
            m_documents.show(i);
            Q_EMIT confirmationNeeded(question);
            return false;
        }
        if (!write(document)) {
            return false;
        }
    }
    return true;
}

// Exporting

QString Exporter::suggestedPath(const QString &what) const
{
    const Document *document = m_documents.current();
    if (!document) {
        return {};
    }
    if (what == session) {
        return QFileInfo(document->sessionPath).absoluteFilePath();
    }
    if (what == wall) {
        return QFileInfo(Measuring::unrolledPathOf(document->picturePath, QString()))
            .absoluteFilePath();
    }
    if (what == png || what == svg) {
        return QFileInfo(Measuring::overlayPathOf(document->picturePath, QString(), what))
            .absoluteFilePath();
    }
    const QString name = what == pdf ? QStringLiteral("report.") : QStringLiteral("measurements.");
    return QFileInfo(document->picturePath).absoluteDir().filePath(name + what);
}

bool Exporter::exportTo(const QString &what, const QString &path)
{
    if (what == session) {
        return saveAs(path);
    }
    if (!m_editor.isReady()) {
        return false;
    }
    if (what == wall) {
        return exportWall(path);
    }
    if (what == pdf) {
        return exportReport(path);
    }
    const bool isUnset = (what == png || what == svg) && !m_editor.isSet();
    return report(Measuring::writeFile(path, exported(what), Measuring::Overwrite::Allow),
                  isUnset
                      ? tr("Written: %1. What it shows was neither set nor confirmed.").arg(path)
                      : tr("Written: %1").arg(path));
}

bool Exporter::exportWall(const QString &path)
{
    const Measuring::Session &measured = *m_editor.session();
    const auto unrolling =
        Measuring::Unrolling::of(measured, Measuring::Unrolling::defaultRange(measured));
    if (!unrolling) {
        return report(unrolling.problem(), {});
    }
    const QImage flat = unrolling->flattened(m_documents.picture());
    return report(Measuring::writeFile(path,
                                       Measuring::pngBytes(Measuring::withAxes(*unrolling, flat)),
                                       Measuring::Overwrite::Allow),
                  tr("Written: %1").arg(path));
}

bool Exporter::exportReport(const QString &path)
{
    if (m_reportJob.isRunning()) {
        m_guidance.notice(Guidance::Warning, tr("A report is being written already."));
        return false;
    }
    const Measuring::Outcome problem =
        m_reportJob.start(reportOn(m_documents, m_records.told()), path);
    if (problem) {
        m_guidance.notice(Guidance::Error, problem->text());
    }
    return !problem;
}

QByteArray Exporter::exported(const QString &what) const
{
    const Measuring::PaintedOverlay overlay{*m_editor.item(), m_documents.overlayScale(),
                                            m_measurements.others()};
    if (what == png) {
        return Measuring::overlayPng(overlay, m_documents.picture());
    }
    if (what == svg) {
        return Measuring::overlaySvg(overlay, m_documents.pictureSize());
    }
    const auto values = valuesOfAll(m_documents);
    return what == csv ? valuesAsCsv(values) : Measuring::jsonDocument(values);
}

bool Exporter::exists(const QString &path) const
{
    return QFileInfo::exists(path);
}

bool Exporter::report(const Measuring::Outcome &problem, const QString &done)
{
    m_guidance.notice(problem ? Guidance::Error : Guidance::Information,
                      problem ? problem->text() : done);
    return !problem;
}

void Exporter::copyValue()
{
    const QString value = m_editor.value();
    if (value.isEmpty()) {
        m_guidance.notice(Guidance::Warning, tr("There is no value to copy yet."));
        return;
    }
    QGuiApplication::clipboard()->setText(value);
    m_guidance.notice(Guidance::Information, tr("Copied: %1").arg(value));
}

} // namespace Drevon::Zalento
