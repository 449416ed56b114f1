#include "measure/Batch.h"

#include "measuring/OverlayExport.h"
#include "measuring/Picture.h"
#include "measuring/Replay.h"
#include "measuring/SessionFile.h"

#include <QDir>
#include <QFileInfo>

namespace Drevon::Zalento::Apps {

namespace {

QString pointText(const QPointF &point)
{
    return QStringLiteral("%1,%2").arg(point.x()).arg(point.y());
}

// Points without a position are to be clicked.
QString clickOutside(const QVector<QPointF> &clicks, const QSize &size)
{
    for (const QPointF &click : clicks) {
        const bool isInside = click.x() >= 0 && click.y() >= 0 && click.x() < size.width() &&
                              click.y() < size.height();
        if (!isInside) {
            return QStringLiteral("the point %1 lies outside the picture of %2 x %3 pixels")
                .arg(pointText(click))
                .arg(size.width())
                .arg(size.height());
        }
    }
    return {};
}

QVector<QPointF> clicksOf(const Session &session, const SessionOptions &options)
{
    QVector<QPointF> clicks = options.laserSpots;
    for (const SessionPoint &point : session.points) {
        if (!point.position) {
            clicks += point.pixel;
        }
    }
    return clicks;
}

// A value that nobody gave is no measurement.
QString missingOption(const MeasurementKind &kind, const Session *start,
                      const SessionOptions &options)
{
    if (start && start->kind == kind.name) {
        return {};
    }
    if (kind.usesAngle) {
        return options.hasNumber(&Session::angleDEG) ? QString() : QStringLiteral("needs --angle");
    }
    const bool isWater = kind.usesPercentage && !kind.usesPoints;
    return isWater && !options.hasNumber(&Session::percentage)
               ? QStringLiteral("needs --percentage")
               : QString();
}

bool dependsOnDiameter(const MeasurementKind &kind)
{
    return kind.usesPoints && !kind.usesScale;
}

// The item moves the points with the plane; a session that is applied has them where they were.
QVector<QPointF> applyMoved(const Session *start, const SessionOptions &options, Session &session,
                            ZaItem &item)
{
    const bool isMoved = start && !options.clicks && session.percentage != start->percentage;
    const double percentage = session.percentage;
    if (isMoved) {
        session.percentage = start->percentage;
    }
    const QVector<QPointF> missed = applySession(session, item);
    if (isMoved) {
        changePercentage(session, item, percentage);
    }
    return missed;
}

} // namespace

struct Batch::Work
{
    PictureResult result;
    Picture picture;
    Session session;
    ZaItem item;
    bool isOtherPicture = false; // than the one of the session
};

Batch::Batch(const CommandLine &command, const std::optional<Session> &session)
    : m_command(command)
    , m_session(session)
{}

PictureResult Batch::run(const PictureRequest &request)
{
    Work work;
    work.result.picture = request.path;
    work.result.message = request.problem;
    if (!request.problem.isEmpty()) {
        return work.result;
    }
    const std::optional<Session> start = startingSession(request, work);
    if (work.result.message.isEmpty()) {
        measurePicture(start ? &*start : nullptr, work);
    }
    return work.result;
}

std::optional<Session> Batch::startingSession(const PictureRequest &request, Work &work) const
{
    const QString beside = sessionPathOf(request.path);
    const bool readsBeside = !m_command.ignoresSessions && QFileInfo::exists(beside);
    if (!request.isSession && (m_session || !readsBeside)) {
        return m_session;
    }
    QString problem;
    const auto session = loadSession(request.isSession ? request.path : beside, problem);
    if (!session) {
        work.result.message = problem;
        work.result.fileProblems += problem;
        return std::nullopt;
    }
    if (request.isSession) {
        work.result.picture = session->picture.path;
    }
    return session;
}

void Batch::measurePicture(const Session *start, Work &work)
{
    PictureResult &result = work.result;
    if (result.picture.isEmpty()) {
        result.message = QStringLiteral("the session names no picture");
        return;
    }
    const std::optional<Picture> picture = loadPicture(result.picture, result.message);
    if (!picture) {
        return;
    }
    work.picture = *picture;
    result.identity = picture->identity;
    if (start) {
        const QString difference = pictureDifference(start->picture, picture->identity);
        work.isOtherPicture = !difference.isEmpty();
        if (work.isOtherPicture) {
            result.warnings += difference;
        }
    }
    measureSession(start, work);
}

void Batch::measureSession(const Session *start, Work &work)
{
    PictureResult &result = work.result;
    if (!start && !m_command.session.kind) {
        result.message = QStringLiteral("there is no session, and --kind is missing");
        return;
    }
    if (!putOnItem(start, work)) {
        return;
    }
    const Measurement measurement = measure(work.item);
    const MeasurementKind &kind = *findMeasurementKind(work.session.kind);
    const QString missing = missingOption(kind, start, m_command.session);
    const bool isMeasured = measurement.state == MeasureState::Measured && missing.isEmpty();
    result.status = isMeasured ? Status::Measured : Status::NoValue;
    result.values = isMeasured ? measurement.values : QVector<MeasuredValue>();
    result.message = missing.isEmpty() ? measurement.note : missing;
    writeFiles(work);
}

bool Batch::putOnItem(const Session *start, Work &work) const
{
    work.result.message = mergeSession(start, work);
    if (work.result.message.isEmpty()) {
        layOutItem(work.item, work.picture.image.size());
        work.result.message = takeLaserScale(work);
    }
    if (work.result.message.isEmpty()) {
        work.result.message = placePoints(start, work);
    }
    return work.result.message.isEmpty();
}

QString Batch::mergeSession(const Session *start, Work &work) const
{
    const SessionOptions &options = m_command.session;
    Session &session = work.session;
    session = start ? *start : Session();
    options.applyTo(session);
    session.picture = work.picture.identity;
    if (start) {
        session.picture.unknownFields = start->picture.unknownFields;
    }
    work.result.kind = session.kind;
    const MeasurementKind &kind = *findMeasurementKind(session.kind);
    if (!start && dependsOnDiameter(kind) && !options.hasNumber(&Session::diameterMM)) {
        work.result.warnings += QStringLiteral("--diameter is missing: a pipe of %1 mm is assumed")
                                    .arg(session.diameterMM);
    }
    for (const QString &problem :
         {options.misfit(kind), sessionProblem(session),
          clickOutside(clicksOf(session, options), work.picture.image.size())}) {
        if (!problem.isEmpty()) {
            return problem;
        }
    }
    return {};
}

QString Batch::takeLaserScale(Work &work) const
{
    QString problem;
    const QVector<QPointF> &spots = m_command.session.laserSpots;
    if (!spots.isEmpty()) {
        work.session.mmPerPixel = laserScale(work.session, work.item, spots[0], spots[1], problem);
    }
    return problem;
}

QString Batch::placePoints(const Session *start, Work &work) const
{
    const int pointCount = work.session.points.size();
    const auto missed = applyMoved(start, m_command.session, work.session, work.item);
    if (!missed.isEmpty()) {
        return QStringLiteral("the point %1 meets no wall of the pipe")
            .arg(pointText(missed.first()));
    }
    if (work.session.points.size() != pointCount) {
        work.result.warnings +=
            QStringLiteral("a point closed the outline, and a later one started a new outline");
    }
    return {};
}

// Files

void Batch::writeFiles(Work &work)
{
    PictureResult &result = work.result;
    if (m_command.writesPng) {
        write(overlayPathOf(result.picture, m_command.outputFolder, QStringLiteral("png")),
              overlayPng(work.item, work.picture.image), result);
    }
    if (m_command.writesSvg) {
        write(overlayPathOf(result.picture, m_command.outputFolder, QStringLiteral("svg")),
              overlaySvg(work.item, work.picture.image.size()), result);
    }
    if (m_command.savesSession) {
        saveSessionOf(work);
    }
}

bool Batch::isFreeToWrite(const QString &path, PictureResult &result)
{
    const QString absolute = QFileInfo(path).absoluteFilePath();
    if (m_written.contains(absolute)) {
        result.fileProblems +=
            QStringLiteral("%1 was written for another picture of this run").arg(path);
        return false;
    }
    m_written.insert(absolute);
    return true;
}

void Batch::write(const QString &path, const QByteArray &content, PictureResult &result)
{
    if (!isFreeToWrite(path, result)) {
        return;
    }
    const QString problem =
        writeFile(path, content, m_command.overwrites ? Overwrite::Allow : Overwrite::Refuse);
    (problem.isEmpty() ? result.written : result.fileProblems) +=
        problem.isEmpty() ? path : problem;
}

QString Batch::pathInOutput(const QString &path) const
{
    return m_command.outputFolder.isEmpty()
               ? path
               : QDir(m_command.outputFolder).filePath(QFileInfo(path).fileName());
}

void Batch::saveSessionOf(Work &work)
{
    PictureResult &result = work.result;
    const QString path = pathInOutput(sessionPathOf(result.picture));
    if (!isFreeToWrite(path, result)) {
        return;
    }
    if (work.isOtherPicture && !m_command.overwrites) {
        result.fileProblems +=
            QStringLiteral("%1 is not written for a different picture without --force").arg(path);
        return;
    }
    const QString problem = saveSession(
        work.session, path, m_command.overwrites ? Overwrite::Allow : Overwrite::Refuse);
    (problem.isEmpty() ? result.written : result.fileProblems) +=
        problem.isEmpty() ? path : problem;
}

} // namespace Drevon::Zalento::Apps
