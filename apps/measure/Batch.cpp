#include "measure/Batch.h"

#include "measure/LibraryMessages.h"

#include "measuring/Count.h"
#include "measuring/Editing.h"
#include "measuring/LensEstimate.h"
#include "measuring/Limit.h"
#include "measuring/Measurands.h"
#include "measuring/Measurement.h"
#include "measuring/OtherOverlays.h"
#include "measuring/OverlayExport.h"
#include "measuring/Picture.h"
#include "measuring/PipeView.h"
#include "measuring/PlaceUncertainty.h"
#include "measuring/Replay.h"
#include "measuring/SessionFile.h"
#include "measuring/SessionFit.h"
#include "measuring/SessionLens.h"
#include "measuring/Snap.h"
#include "measuring/UnrollExport.h"

#include "zalento/geometry/Cylinder.h"

#include <QDir>
#include <QFileInfo>

#include <algorithm>
#include <cmath>

namespace Drevon::Zalento::Apps {

namespace {

// What a map tells changes slowly: more pixels would tell no more.
constexpr int largestMapWidth = 800;

QString pointText(const QPointF &point)
{
    return QStringLiteral("%1,%2").arg(point.x()).arg(point.y());
}

// Points without a position are to be clicked.
Outcome clickOutside(const QVector<QPointF> &clicks, const QSize &size)
{
    for (const QPointF &click : clicks) {
        const bool isInside = click.x() >= 0 && click.y() >= 0 && click.x() < size.width() &&
                              click.y() < size.height();
        if (!isInside) {
            return Problem{{},
                           QStringLiteral("the point %1 lies outside the picture of %2 x %3 pixels")
                               .arg(pointText(click))
                               .arg(size.width())
                               .arg(size.height())};
        }
    }
    return {};
}

QVector<QPointF> clicksOf(const Session &session, const SessionOptions &options)
{
    QVector<QPointF> clicks = options.laserSpots;
    if (session.kind == Kind::WaterLevel) {
        clicks += options.clicks.value_or(QVector<QPointF>());
    }
    for (const Measurand &measurand : measurandsOf(session)) {
        for (const SessionPoint &point : measurand.points) {
            if (!point.position) {
                clicks += point.pixel;
            }
        }
    }
    return clicks;
}

// What is said of one of several measurements begins with its name.
QString namedText(const Session &session, const QString &text)
{
    return Problem{session.name, text}.text();
}

// What gives the value of a kind that is set by eye.
QString neededOption(const KindInfo &info)
{
    return info.has(Uses::Angle) ? QStringLiteral("needs --angle")
                                 : QStringLiteral("needs --percentage or --click");
}

Problem missedWall(const QPointF &click)
{
    return {{}, QStringLiteral("the point %1 meets no wall of the pipe").arg(pointText(click))};
}

Problem unknownMeasurement(const Session &session, const QString &name)
{
    QStringList names;
    for (const Measurand &measurand : measurandsOf(session)) {
        names += QLatin1Char('"') + measurand.name + QLatin1Char('"');
    }
    const QString found = session.name.isEmpty() ? QStringLiteral("one without a name")
                                                 : names.join(QStringLiteral(", "));
    return {QStringLiteral("--measurement"),
            QStringLiteral("there is no \"%1\" but %2; --kind adds one").arg(name, found)};
}

QStringList farPoint(const Session &session, const QString &name, const Vec3 &position)
{
    const double depth = depthInDiameters(session, position);
    if (depth <= Cylinder::lengthInDiameters) {
        return {};
    }
    return {namedText(session,
                      QStringLiteral("%1 lies %2 diameters down the pipe, beyond the modelled %3: "
                                     "its ray hardly meets the wall")
                          .arg(name)
                          .arg(depth, 0, 'f', 1)
                          .arg(Cylinder::lengthInDiameters))};
}

// What is measured and written is what is drawn.
QStringList takeDrawnAngle(Session &session)
{
    const double asked = session.angleDEG;
    if (!infoOf(session.kind).has(Uses::Angle) || asked == drawnAngleDEG(session)) {
        return {};
    }
    session.angleDEG = drawnAngleDEG(session);
    return {namedText(
        session,
        QStringLiteral("an angle of %1 degrees is drawn as %2").arg(asked).arg(session.angleDEG))};
}

// A session's points move with the plane on which they lie.
void movePlane(const Measurand &start, const SessionOptions &options, Session &session)
{
    if (options.clicks || session.percentage == start.percentage) {
        return;
    }
    const double percentage = session.percentage;
    session.percentage = start.percentage;
    changePercentage(session, percentage);
}

bool hasMoved(const Session &start, const Session &session)
{
    return alignmentOf(start).numbers() != alignmentOf(session).numbers() ||
           start.rollDEG != session.rollDEG || start.diameterMM != session.diameterMM;
}

// What was given for a field that the clicks determine.
QStringList overriddenOptions(const AlignmentFit &fit, const SessionOptions &options,
                              const Alignment &asked)
{
    QStringList warnings;
    for (const AlignmentField field : fit.fitted) {
        const auto index = static_cast<std::size_t>(field);
        const QString name = alignmentFieldName(field);
        const bool isGiven = options.givesAlignment(name) &&
                             asked.numbers()[index] != fit.alignment.numbers()[index];
        if (isGiven) {
            warnings +=
                QStringLiteral("the joints and lines determine %1: the option for it has no "
                               "effect")
                    .arg(name);
        }
    }
    return warnings;
}

// Of points that were just placed. @param asked how many they were
QStringList pointWarnings(const Session &session, int asked)
{
    QStringList warnings;
    if (session.points.size() != asked) {
        warnings += namedText(
            session,
            QStringLiteral("a point closed the outline, and a later one started a new outline"));
    }
    for (const int index : pointsBeyondModel(session)) {
        warnings += farPoint(session, QStringLiteral("point %1").arg(index + 1),
                             *session.points[index].position);
    }
    return warnings;
}

QStringList suspiciousClicks(const AlignmentFit &fit, const Session &session)
{
    QStringList warnings;
    for (const ClickIndex &click : fit.suspicious) {
        const QPointF &place = click.isLine ? session.lines[click.feature].points[click.point]
                                            : session.rings[click.feature].points[click.point];
        const QPointF &residual = click.isLine ? fit.lineResiduals[click.feature][click.point]
                                               : fit.ringResiduals[click.feature][click.point];
        warnings +=
            QStringLiteral("click %1 of %2 %3, at %4, does not fit the others: it lies %5 px "
                           "off and was left out")
                .arg(click.point + 1)
                .arg(click.isLine ? QStringLiteral("line") : QStringLiteral("joint"))
                .arg(click.feature + 1)
                .arg(pointText(place))
                .arg(std::hypot(residual.x(), residual.y()), 0, 'f', 1);
    }
    return warnings;
}

// What is not told of values: how far to trust them, and where they lie to the limit.
QStringList lackingTrust(const QVector<Value> &values, const Session &session)
{
    QStringList warnings;
    for (const Value &value : values) {
        if (!value.uncertainty) {
            warnings += namedText(
                session, QStringLiteral("%1 is so near to what cannot be measured that its "
                                        "uncertainty has no number")
                             .arg(value.name));
        }
    }
    const Result<Limit> limit = limitFromText(session.limit);
    const bool isHeld = !limit || std::any_of(values.begin(), values.end(), [&](const Value &v) {
        return v.unit == limit->unit;
    });
    if (!isHeld && !values.isEmpty()) {
        warnings += namedText(
            session, QStringLiteral("the limit \"%1\" is of another unit than what is measured")
                         .arg(session.limit));
    }
    return warnings;
}

// The file that a path leads to, which need not be there.
QString placeOf(const QString &path)
{
    const QFileInfo info(path);
    return info.dir().canonicalPath() + QLatin1Char('/') + info.fileName();
}

// A file to be written.
struct DrawnFile
{
    QString path;
    QByteArray content;
};

} // namespace

struct Batch::Work
{
    explicit Work(PictureRequest asked)
        : request(std::move(asked))
    {}

    // A click of the options: with an estimated lens it was made in the picture as it was taken.
    QPointF shownPlace(const QPointF &click) const
    {
        const Result<LensMapping> mapping =
            estimate ? LensMapping::of(*session.lens) : Result<LensMapping>(Problem());
        return mapping ? mapping->toShown(click).value_or(click) : click;
    }

    PictureRequest request;
    PictureResult result;
    QStringList readPaths; // also of a file that is not there
    Picture picture;
    Session session;
    std::optional<AlignmentFit> fit;
    std::optional<SnapSummary> snap;
    std::optional<RadialEstimate> estimate;
    bool isOtherPicture = false; // than the one of the session
    bool isMeasured = false;
    QVector<DrawnFile> drawn;
    // Made and destroyed on the thread that runs the jobs.
    std::shared_ptr<ZaItem> item;
    std::shared_ptr<OtherOverlays> others;
};

Batch::Batch(const CommandLine &command, const std::optional<Session> &session, OrderedJobs &jobs)
    : m_command(command)
    , m_session(session)
    , m_jobs(jobs)
{}

std::shared_ptr<Batch::Work> Batch::measure(const PictureRequest &request) const
{
    const LibraryMessages said;
    auto work = std::make_shared<Work>(request);
    work->result.values.picture = request.path;
    work->result.values.message = request.problem;
    if (request.problem.isEmpty()) {
        measureRequest(*work);
    }
    work->picture.image = QImage(); // the largest part, and nobody needs it any more
    work->result.warnings = said.messages() + work->result.warnings;
    return work;
}

PictureResult Batch::finish(std::shared_ptr<Work> work)
{
    if (readWhatIsWritten(*work)) {
        work = measure(work->request);
    }
    if (work->isMeasured) {
        work->result.session = work->session;
        writeFiles(*work);
    }
    return work->result;
}

void Batch::measureRequest(Work &work) const
{
    PictureResult &result = work.result;
    const Result<std::optional<Session>> start = startingSession(work);
    if (!start) {
        result.values.message = start.problem().textAfter(result.values.picture);
        result.fileProblems += start.problem();
        return;
    }
    if (const Outcome problem = measurePicture(*start ? &**start : nullptr, work)) {
        result.values.message = problem->textAfter(result.values.picture);
        return;
    }
    work.isMeasured = true;
    if (m_command.verb == Verb::Unroll) {
        unroll(work);
    } else {
        drawFiles(work);
    }
}

Result<std::optional<Session>> Batch::startingSession(Work &work) const
{
    const PictureRequest &request = work.request;
    const QString path = request.isSession ? request.path : sessionPathOf(request.path);
    work.readPaths += path;
    const bool readsBeside = !m_command.ignoresSessions && QFileInfo::exists(path);
    if (!request.isSession && (m_session || !readsBeside)) {
        return m_session;
    }
    const Result<Session> session = loadSession(path);
    if (!session) {
        return session.problem();
    }
    if (request.isSession) {
        work.result.values.picture = session->picture.path;
    }
    return std::optional<Session>(*session);
}

Outcome Batch::measurePicture(const Session *start, Work &work) const
{
    PictureValues &values = work.result.values;
    if (values.picture.isEmpty()) {
        return Problem{{}, QStringLiteral("the session names no picture")};
    }
    work.readPaths += values.picture;
    const Result<Picture> picture = loadPicture(values.picture);
    if (!picture) {
        return picture.problem();
    }
    work.picture = *picture;
    values.identity = picture->identity;
    if (picture->frames > 1) {
        work.result.warnings +=
            QStringLiteral("the first of %1 frames is measured").arg(picture->frames);
    }
    if (start) {
        const auto difference = pictureDifference(start->picture, picture->identity);
        work.isOtherPicture = difference.has_value();
        if (difference) {
            work.result.warnings += *difference;
        }
    }
    return measureSession(start, work);
}

Outcome Batch::measureSession(const Session *start, Work &work) const
{
    if (!start && !m_command.session.kind) {
        work.result.values.status = Status::NotMeasured;
        return Problem{{}, QStringLiteral("there is no session, and --kind is missing")};
    }
    if (const Outcome problem = mergeSession(start, work)) {
        return problem;
    }
    if (const Outcome problem = takeEstimatedLens(work)) {
        return problem;
    }
    if (const Outcome problem = undistortPicture(work)) {
        return problem;
    }
    if (const Outcome problem = fitAlignment(start, work)) {
        return problem;
    }
    if (const Outcome problem = takeLaserScale(work)) {
        return problem;
    }
    if (const Outcome problem = placeClicks(work)) {
        return problem;
    }
    if (const Outcome problem = takeWaterLevel(work)) {
        return problem;
    }
    tellValues(work);
    return {};
}

void Batch::tellValues(Work &work) const
{
    PictureResult &result = work.result;
    const bool isOne = !m_command.measurement.isEmpty();
    const int atHand = measurandAtHand(work.session);
    const int count = countOf(measurandsOf(work.session));
    for (int number = isOne ? atHand : 0; number < (isOne ? atHand + 1 : count); ++number) {
        const PictureValues values = valuesOf(withMeasurand(work.session, number), work);
        if (number == atHand) {
            result.values = values;
        } else {
            (number < atHand ? result.valuesBefore : result.valuesBehind) += values;
        }
    }
}

PictureValues Batch::valuesOf(const Session &session, Work &work) const
{
    PictureValues values = pictureValues(work.result.values.picture, session, work.fit,
                                         m_command.drawsValues ? UncertaintyEffort::MonteCarlo
                                                               : UncertaintyEffort::Checked);
    values.snap = work.snap;
    if (work.estimate) {
        values.lens->k1 = work.estimate->k1;
        values.lens->standardUncertainty = work.estimate->standardUncertainty;
    }
    work.result.warnings += lackingTrust(values.values, session);
    if (values.status == Status::NotSet) {
        values.message = neededOption(infoOf(session.kind));
    }
    return values;
}

// One that is not there yet begins with its kind.
Outcome Batch::takeMeasurement(Session &session, bool isFresh) const
{
    const QString &name = m_command.measurement;
    if (name.isEmpty()) {
        return {};
    }
    if (const std::optional<int> number = measurandNamed(session, name)) {
        takeMeasurand(session, *number);
        return {};
    }
    const std::optional<Kind> kind = m_command.session.kind;
    if (!kind) {
        return unknownMeasurement(session, name);
    }
    if (!isFresh) {
        addMeasurand(session, *kind);
    }
    return renameMeasurand(session, measurandAtHand(session), name);
}

Outcome Batch::mergeSession(const Session *start, Work &work) const
{
    const SessionOptions &options = m_command.session;
    Session &session = work.session;
    session = start ? *start : Session();
    session.picture = work.picture.identity;
    if (const Outcome problem = options.takeLensFor(session)) {
        return problem;
    }
    if (const Outcome problem = takeMeasurement(session, !start)) {
        return problem;
    }
    const Measurand before = session;
    options.applyTo(session);
    if (work.isOtherPicture) {
        forEachMeasurand(session, [](Session &measured) { measured.repeats.clear(); });
        session.film.reset();
        session.counterM.reset();
    }
    if (start) {
        session.picture.unknownFields = start->picture.unknownFields;
    }
    const KindInfo &info = infoOf(session.kind);
    work.result.values.kind = session.kind;
    if (!start && info.has(Uses::Diameter) && !options.hasNumber(&Session::diameterMM)) {
        work.result.warnings += QStringLiteral("--diameter is missing: a pipe of %1 mm is assumed")
                                    .arg(session.diameterMM);
    }
    for (const Outcome &problem :
         {options.misfit(info), checkSession(session),
          clickOutside(clicksOf(session, options), work.picture.image.size())}) {
        if (problem) {
            return problem;
        }
    }
    forEachMeasurand(
        session, [&work](Session &measured) { work.result.warnings += takeDrawnAngle(measured); });
    movePlane(before, options, session);
    return {};
}

Outcome Batch::takeEstimatedLens(Work &work) const
{
    if (!m_command.session.fitsLens) {
        return {};
    }
    const Result<RadialEstimate> estimate = estimateRadial(work.session);
    if (!estimate) {
        return estimate.problem();
    }
    work.estimate = *estimate;
    Lens lens = estimate->lens;
    lens.view = m_command.session.lensView.value_or(lens.view);
    return takeLens(work.session, lens);
}

// Values alone take no picture.
Outcome Batch::undistortPicture(Work &work) const
{
    const bool isShown =
        m_command.snaps || m_command.writesPng || m_command.map || m_command.verb == Verb::Unroll;
    if (!work.session.lens || !isShown) {
        return {};
    }
    const Result<QImage> shown = shownPicture(work.session, work.picture.image);
    if (!shown) {
        return shown.problem();
    }
    work.picture.image = *shown;
    return {};
}

// Clicks that were saved and do not fit leave the alignment that was saved with them.
Outcome Batch::fitToClicks(Work &work) const
{
    const SessionOptions &options = m_command.session;
    const Alignment asked = alignmentOf(work.session);
    const Result<AlignmentFit> fit = fitSession(work.session);
    if (fit) {
        work.fit = *fit;
        // With --snap the options say where the search for edges begins.
        if (!work.snap) {
            work.result.warnings += overriddenOptions(*fit, options, asked);
        }
        work.result.warnings += suspiciousClicks(*fit, work.session);
    } else if (options.rings || options.lines) {
        return fit.problem();
    } else {
        work.result.warnings +=
            fit.problem().text() + QStringLiteral("; the alignment stays as it was saved");
    }
    return {};
}

// What lies on a model that has moved is measured where it was clicked.
Outcome Batch::fitAlignment(const Session *start, Work &work) const
{
    Session &session = work.session;
    if (m_command.session.fitsFov && session.rings.isEmpty()) {
        return Problem{{}, QStringLiteral("--fit-fov needs --ring: two joints with a distance")};
    }
    if (m_command.snaps) {
        snap(work);
    }
    if (hasAlignmentClicks(session)) {
        if (const Outcome problem = fitToClicks(work)) {
            return problem;
        }
    }
    if (start && hasMoved(*start, session)) {
        pickPointsAnew(session);
    }
    work.result.values.alignment = alignmentSummary(session, work.fit);
    return {};
}

void Batch::snap(Work &work) const
{
    const Result<Snap> found = snapToEdges(work.session, work.picture.image);
    work.snap = SnapSummary();
    if (found) {
        work.snap->edgePoints = countOf(found->edgePoints);
        work.snap->rmsPX = found->rmsPX;
    } else {
        work.snap->reason = found.problem().what;
        work.result.warnings +=
            QStringLiteral("no edge was found: %1; the alignment stays").arg(found.problem().what);
    }
}

Outcome Batch::takeLaserScale(Work &work) const
{
    const QVector<QPointF> &spots = m_command.session.laserSpots;
    if (spots.isEmpty()) {
        return {};
    }
    return Measuring::takeLaserScale(work.session, spots[0], spots[1]);
}

Outcome Batch::placeClicks(Work &work) const
{
    Outcome problem;
    forEachMeasurand(work.session, [&](Session &session) {
        const int pointCount = countOf(session.points);
        const QVector<QPointF> missed = placePoints(session);
        if (missed.isEmpty()) {
            work.result.warnings += pointWarnings(session, pointCount);
        } else if (!problem) {
            problem = missedWall(missed.first()).in(session.name);
        }
    });
    return problem;
}

Outcome Batch::takeWaterLevel(Work &work) const
{
    const std::optional<QVector<QPointF>> &clicks = m_command.session.clicks;
    Session &session = work.session;
    if (session.kind != Kind::WaterLevel || !clicks) {
        return {};
    }
    const QPointF edge = work.shownPlace(clicks->first());
    if (!setWaterLevelAt(session, edge)) {
        return missedWall(edge);
    }
    work.result.warnings +=
        farPoint(session, QStringLiteral("the water's edge"), *PipeView(session).pickWall(edge));
    return {};
}

// Files

void Batch::drawFiles(Work &work) const
{
    if (m_command.writesPng || m_command.writesSvg) {
        drawOverlay(work);
    }
    if (m_command.map) {
        drawMap(work);
    }
}

// All items share the diameter, and so they are set up one after the other. Then they paint each
// for itself, away from the GUI thread, as they do for the scene graph.
void Batch::drawOverlay(Work &work) const
{
    const double scale = overlayScale(work.picture.image.size());
    m_jobs.onCallersThread([&work, scale, this] {
        if (m_command.overlaysAll) {
            work.others = std::make_shared<OtherOverlays>(work.session, scale);
        }
        work.item = std::make_shared<ZaItem>();
        showSession(work.session, *work.item, scale);
    });
    if (work.result.values.status == Status::NotSet) {
        work.result.warnings += QStringLiteral("nobody has set what the overlay shows: %1")
                                    .arg(neededOption(infoOf(work.session.kind)));
    }
    const QString &picture = work.result.values.picture;
    const PaintedOverlay overlay{*work.item, scale, work.others.get()};
    if (m_command.writesPng) {
        work.drawn.append({overlayPathOf(picture, m_command.outputFolder, QStringLiteral("png")),
                           overlayPng(overlay, work.picture.image)});
    }
    if (m_command.writesSvg) {
        work.drawn.append({overlayPathOf(picture, m_command.outputFolder, QStringLiteral("svg")),
                           overlaySvg(overlay, work.picture.image.size())});
    }
}

void Batch::unroll(Work &work) const
{
    PictureValues &values = work.result.values;
    UnrollRange range = Unrolling::defaultRange(work.session);
    range.mmPerPixel = m_command.unrollMMPerPixel.value_or(range.mmPerPixel);
    range.fromMM = m_command.unrollFromMM.value_or(range.fromMM);
    range.toMM = m_command.unrollToMM.value_or(range.toMM);
    const Result<Unrolling> unrolling = Unrolling::of(work.session, range);
    if (!unrolling) {
        values.status = Status::Failed;
        values.message = unrolling.problem().textAfter(values.picture);
        return;
    }
    const QImage flat = unrolling->flattened(work.picture.image);
    work.drawn.append({unrolledPathOf(values.picture, m_command.outputFolder),
                       pngBytes(m_command.unrollsPlain ? flat : withAxes(*unrolling, flat))});
}

void Batch::drawMap(Work &work) const
{
    const KindInfo &info = infoOf(work.session.kind);
    if (!info.has(Uses::Model)) {
        work.result.warnings += QStringLiteral("the kind %1 lays no pipe over the picture: no map")
                                    .arg(info.nameText());
        return;
    }
    const int width = std::min(work.picture.image.width(), largestMapWidth);
    const QImage map = wallMap(work.session, work.fit, *m_command.map, width);
    work.drawn.append({mapPathOf(work.result.values.picture, m_command.outputFolder),
                       mapPng(map, *m_command.map, work.picture.image)});
}

// A picture or a session can be a file that an earlier picture wrote in the meantime.
bool Batch::readWhatIsWritten(const Work &work) const
{
    return !m_written.isEmpty() &&
           std::any_of(work.readPaths.begin(), work.readPaths.end(),
                       [this](const QString &path) { return m_written.contains(placeOf(path)); });
}

void Batch::writeFiles(Work &work)
{
    for (const DrawnFile &file : work.drawn) {
        if (isFreeToWrite(file.path, work.result)) {
            note(writeFile(file.path, file.content, overwrite()), file.path, work.result);
        }
    }
    if (m_command.savesSession) {
        saveSessionOf(work);
    }
}

bool Batch::isFreeToWrite(const QString &path, PictureResult &result)
{
    const QString place = placeOf(path);
    if (m_written.contains(place)) {
        result.fileProblems +=
            Problem{path, QStringLiteral("was written for another picture of this run, not for %1")
                              .arg(result.values.picture)};
        return false;
    }
    m_written.insert(place);
    return true;
}

Overwrite Batch::overwrite() const
{
    return m_command.overwrites ? Overwrite::Allow : Overwrite::Refuse;
}

void Batch::note(const Outcome &problem, const QString &path, PictureResult &result) const
{
    if (problem) {
        result.fileProblems += *problem;
    } else {
        result.values.written += path;
    }
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
    const QString path = pathInOutput(sessionPathOf(result.values.picture));
    if (!isFreeToWrite(path, result)) {
        return;
    }
    if (work.isOtherPicture && !m_command.overwrites) {
        result.fileProblems +=
            Problem{path, QStringLiteral("is not written for a different picture without --force")};
        return;
    }
    note(saveSession(work.session, path, overwrite()), path, result);
}

} // namespace Drevon::Zalento::Apps
