// The controller's pictures and files.
#include "PipeRecord.h"
#include "ValueTable.h"
#include "ViewerController.h"

#include "measuring/CalibrationFile.h"
#include "measuring/Kind.h"
#include "measuring/OverlayExport.h"
#include "measuring/Replay.h"
#include "measuring/SessionFile.h"

#include <QClipboard>
#include <QDir>
#include <QFileInfo>
#include <QGuiApplication>
#include <QImageReader>

namespace Drevon::Zalento {

using Measuring::Session;

namespace {

QStringList picturesIn(const QString &folder)
{
    QStringList patterns;
    for (const QByteArray &format : QImageReader::supportedImageFormats()) {
        patterns.append(QStringLiteral("*.") + QString::fromLatin1(format));
    }
    const QDir dir(folder);
    QStringList paths;
    for (const QString &name : dir.entryList(patterns, QDir::Files, QDir::Name)) {
        if (!name.contains(QLatin1String(".overlay."))) {
            paths.append(dir.filePath(name));
        }
    }
    return paths;
}

// Invalid for a file that is not there.
QDateTime stampOf(const QString &path)
{
    return QFileInfo(path).lastModified();
}

QString shortName(const QString &path)
{
    return QFileInfo(path).fileName();
}

} // namespace

// Opening

void ViewerController::openUrls(const QList<QUrl> &urls)
{
    QStringList paths;
    for (const QUrl &url : urls) {
        if (url.isLocalFile()) {
            paths.append(url.toLocalFile());
        }
    }
    openPaths(paths);
}

void ViewerController::openPaths(const QStringList &paths)
{
    int firstShown = -1;
    for (const QString &path : paths) {
        if (QFileInfo(path).isDir()) {
            for (const QString &picture : picturesIn(path)) {
                appendPath(picture, firstShown);
            }
        } else {
            appendPath(path, firstShown);
        }
    }
    if (firstShown >= 0) {
        showPicture(firstShown);
    } else if (!paths.isEmpty()) {
        notice(Level::Warning, tr("There are no pictures in %1.").arg(shortName(paths.first())));
    }
}

// A session stands for its picture.
void ViewerController::appendPath(const QString &path, int &firstShown)
{
    QString picturePath = path;
    QString sessionPath;
    if (path.endsWith(QLatin1String(".json"), Qt::CaseInsensitive)) {
        QString problem;
        const std::optional<Session> session = Measuring::loadSession(path, problem);
        if (!session || session->picture.path.isEmpty()) {
            notice(Level::Error, session ? tr("%1 names no picture.").arg(path) : problem);
            return;
        }
        picturePath = session->picture.path;
        sessionPath = path;
    }
    int index = indexOf(picturePath);
    if (index < 0) {
        index = pictureCount();
        m_documents.push_back(std::make_unique<Document>(picturePath));
        if (!sessionPath.isEmpty()) {
            m_documents.back()->sessionPath = sessionPath;
        }
    }
    if (firstShown < 0) {
        firstShown = index;
    }
}

int ViewerController::indexOf(const QString &picturePath) const
{
    const QString wanted = QFileInfo(picturePath).absoluteFilePath();
    for (std::size_t i = 0; i < m_documents.size(); ++i) {
        if (QFileInfo(m_documents[i]->picturePath).absoluteFilePath() == wanted) {
            return static_cast<int>(i);
        }
    }
    return -1;
}

void ViewerController::showPicture(int index)
{
    if (index < 0 || index >= pictureCount()) {
        return;
    }
    leavePicture();
    // A new session goes on with what the last one knew of the camera.
    const Session fresh = newSession();
    m_index = index;
    Document &document = *current();
    loadPictureOf(document);
    if (m_picture && !document.session) {
        document.session = fresh;
        document.session->picture = m_picture->identity;
        loadSidecar(document);
    } else if (m_picture) {
        warnOfOtherPicture(document, *document.session);
    }
    if (m_item && m_picture) {
        Measuring::layOutItem(*m_item, m_picture->image.size());
    }
    const QString warning = m_notice;
    const Level level = m_noticeLevel;
    Q_EMIT pictureChanged();
    if (document.session) {
        show(*document.session);
    }
    if (!warning.isEmpty()) {
        notice(level, warning);
    }
    notifyChanged();
}

void ViewerController::leavePicture()
{
    if (m_gestureStart) {
        cancel();
    }
    m_selectedPoint = -1;
    m_laserSpotsExpected = 0;
    m_laserSpots.clear();
    m_notice.clear();
}

void ViewerController::loadPictureOf(Document &document)
{
    document.problem.clear();
    m_picture = Measuring::loadPicture(document.picturePath, document.problem);
    ++m_pictureNumber;
    if (m_provider) {
        m_provider->setPicture(picture());
    }
    if (!m_picture) {
        notice(Level::Error, document.problem);
        return;
    }
    document.pictureStamp = stampOf(document.picturePath);
    m_store.addRecentFile(document.picturePath);
    m_store.setFolder(QFileInfo(document.picturePath).absolutePath());
    Q_EMIT recentFilesChanged();
}

// Saved measurements are taken up; what cannot be read, or belongs to another picture, is not
// overwritten without a question.
void ViewerController::loadSidecar(Document &document)
{
    if (!QFileInfo::exists(document.sessionPath)) {
        return;
    }
    QString problem;
    std::optional<Session> saved = Measuring::loadSession(document.sessionPath, problem);
    if (!saved) {
        document.overwriteWarning =
            tr("The session that is there cannot be read (%1). Saving replaces it.").arg(problem);
        notice(Level::Error, tr("The saved session cannot be read: %1").arg(problem));
        return;
    }
    warnOfOtherPicture(document, *saved);
    document.sessionStamp = stampOf(document.sessionPath);
    document.session = saved;
}

// What was measured on another picture is taken over to the one on view.
void ViewerController::warnOfOtherPicture(Document &document, Session &session)
{
    const QString difference = Measuring::pictureDifference(session.picture, m_picture->identity);
    if (!difference.isEmpty()) {
        document.overwriteWarning = tr("The measurement in %1 was made on another picture: %2. "
                                       "Saving takes it over to this one.")
                                        .arg(shortName(document.sessionPath), difference);
        notice(Level::Warning,
               tr("Careful, %1. Nothing is overwritten until you confirm it.").arg(difference));
    }
    session.picture = m_picture->identity;
}

Session ViewerController::newSession() const
{
    Session fresh;
    if (const Session *last = session()) {
        fresh.kind = last->kind;
        fresh.unit = last->unit;
        fresh.diameterMM = last->diameterMM;
        fresh.fovYDEG = last->fovYDEG;
        fresh.calibrationText = last->calibrationText;
        const auto *kind = Measuring::findMeasurementKind(fresh.kind);
        fresh.percentage = kind ? kind->initialPercentage : fresh.percentage;
        fresh.angleDEG = kind ? kind->initialAngleDEG : fresh.angleDEG;
        return fresh;
    }
    const ZASettings display = ViewerStore().displaySettings();
    fresh.unit = display.MeasureUnit;
    fresh.fovYDEG = display.fovYDEG;
    fresh.diameterMM = display.pipeDiameterMM;
    return Measuring::sessionProblem(fresh).isEmpty() ? fresh : Session();
}

// Saving

QString ViewerController::saveQuestion(const Document &document) const
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

bool ViewerController::save()
{
    Document *document = current();
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

bool ViewerController::saveAnyway()
{
    return current() && current()->session && write(*current());
}

bool ViewerController::saveAs(const QString &path)
{
    Document *document = current();
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

bool ViewerController::write(Document &document)
{
    const QString problem = Measuring::saveSession(*document.session, document.sessionPath,
                                                   Measuring::Overwrite::Allow);
    if (problem.isEmpty()) {
        document.overwriteWarning.clear();
        document.sessionStamp = stampOf(document.sessionPath);
        document.pictureStamp = stampOf(document.picturePath);
        document.history().setClean();
    }
    return report(problem, tr("Saved as %1.").arg(shortName(document.sessionPath)));
}

bool ViewerController::saveAll()
{
    for (int i = 0; i < pictureCount(); ++i) {
        Document &document = *m_documents[static_cast<std::size_t>(i)];
        if (!document.isModified()) {
            continue;
        }
        const QString question = saveQuestion(document);
        if (!question.isEmpty()) {
            showPicture(i);
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

QString ViewerController::suggestedPath(const QString &what) const
{
    const Document *document = current();
    if (!document) {
        return {};
    }
    if (what == QLatin1String("session")) {
        return QFileInfo(document->sessionPath).absoluteFilePath();
    }
    const QFileInfo info(document->picturePath);
    if (what == QLatin1String("png") || what == QLatin1String("svg")) {
        return QFileInfo(Measuring::overlayPathOf(document->picturePath, QString(), what))
            .absoluteFilePath();
    }
    return info.absoluteDir().filePath(QStringLiteral("measurements.") + what);
}

bool ViewerController::exportTo(const QString &what, const QString &path)
{
    if (what == QLatin1String("session")) {
        return saveAs(path);
    }
    if (!isReady()) {
        return false;
    }
    return report(Measuring::writeFile(path, exported(what), Measuring::Overwrite::Allow),
                  tr("Written: %1").arg(path));
}

QByteArray ViewerController::exported(const QString &what)
{
    if (what == QLatin1String("png")) {
        return Measuring::overlayPng(*m_item, m_picture->image);
    }
    if (what == QLatin1String("svg")) {
        return Measuring::overlaySvg(*m_item, m_picture->image.size());
    }
    QVector<ValueRow> rows;
    for (const auto &document : m_documents) {
        if (document->session && !document->measurement.values.isEmpty()) {
            rows.append({document->picturePath, document->session->kind, document->measurement});
        }
    }
    return what == QLatin1String("csv") ? valuesAsCsv(rows) : valuesAsJson(rows);
}

bool ViewerController::exists(const QString &path) const
{
    return QFileInfo::exists(path);
}

bool ViewerController::report(const QString &problem, const QString &done)
{
    notice(problem.isEmpty() ? Level::Information : Level::Error,
           problem.isEmpty() ? done : problem);
    return problem.isEmpty();
}

void ViewerController::copyValue()
{
    if (value().isEmpty()) {
        notice(Level::Warning, tr("There is no value to copy yet."));
        return;
    }
    QGuiApplication::clipboard()->setText(value());
    notice(Level::Information, tr("Copied: %1").arg(value()));
}

// Records and calibration

QString ViewerController::takeRecord(const QString &nominalSize, const QString &unit)
{
    bool isWhole = false;
    const PipeRecord record{nominalSize.trimmed().toInt(&isWhole), unit};
    const QString problem = recordProblem(record);
    if (problem.isEmpty()) {
        activate(record);
    }
    return problem;
}

QString ViewerController::loadRecord(const QString &path)
{
    QString problem;
    const std::optional<PipeRecord> record = loadPipeRecord(path, problem);
    if (!record) {
        notice(Level::Error, problem);
        return problem;
    }
    activate(*record);
    notice(Level::Information,
           tr("Pipe record: %1 %2.").arg(record->nominalSize).arg(record->unit));
    return {};
}

void ViewerController::loadCalibration(const QString &path)
{
    QString problem;
    const std::optional<QString> text = Measuring::loadCalibration(path, problem);
    if (!text) {
        notice(Level::Error, problem);
    }
    if (!text || !isReady()) {
        return;
    }
    chooseKind(QStringLiteral("CrackWidth"));
    Session session = sessionCopy();
    session.calibrationText = *text;
    session.mmPerPixel.reset();
    change(tr("Calibration file"), session, false);
    if (!hasScale()) {
        notice(Level::Warning, tr("%1 gives no scale for a diameter of %2 mm.")
                                   .arg(shortName(path))
                                   .arg(session.diameterMM));
    }
}

} // namespace Drevon::Zalento
