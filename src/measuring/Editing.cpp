#include "measuring/Editing.h"

#include "measuring/Count.h"
#include "measuring/Measurands.h"
#include "measuring/PipeView.h"
#include "measuring/Text.h"

#include "zalento/geometry/Cylinder.h"
#include "zalento/measure/measureLine.h"
#include "zalento/pipes/Pipe.h"

#include <algorithm>
#include <cmath>

namespace Drevon::Zalento::Measuring {

namespace {

constexpr double fractionPerPercent = 0.01;
constexpr double percentPerOne = 100.0;
constexpr double mmPerM = 1000.0;
// From this many points on a click near the first one closes the outline; before, only one on the
// very same place.
constexpr int smallestClosable = 3;
// Of a side of the closing area: dots that the eye joins to a line.
constexpr int closingEdgeSteps = 10;

bool allHavePositions(const Session &session)
{
    return std::all_of(session.points.begin(), session.points.end(),
                       [](const SessionPoint &point) { return point.position.has_value(); });
}

// As the item adds what was picked: on the plane near the first point the outline closes.
void addPicked(Pipe &pipe, const Vec3 &picked)
{
    if (pipe.measureMode == MeasureMode::CrossSection) {
        pipe.addPlanePoint(picked);
    } else {
        pipe.hitPoints.emplace_back(picked);
    }
}

// Adds to the points of the view's pipe, which are the session's.
ClickResult clickOn(PipeView &view, Session &session, const QPointF &pixel)
{
    const std::optional<Vec3> picked = view.pick(pixel);
    if (!picked) {
        return ClickResult::Missed;
    }
    Pipe &pipe = view.pipe();
    const std::size_t before = pipe.hitPoints.size();
    addPicked(pipe, *picked);
    const bool isRestarted = pipe.hitPoints.size() < before;
    if (isRestarted) {
        session.points.clear();
    }
    session.points.append({pixel, pipe.hitPoints.back().position, {}});
    return isRestarted ? ClickResult::Restarted : ClickResult::Added;
}

void pickPointsAtHand(Session &session)
{
    const bool isClosed = isClosedOutline(session);
    const PipeView view(session);
    for (SessionPoint &point : session.points) {
        // A point of a file that tells its position alone was clicked nowhere.
        const std::optional<Vec3> position =
            point.pixel.isNull() ? std::nullopt : view.pick(point.pixel);
        if (position) {
            point.position = position;
        }
    }
    if (isClosed) {
        session.points.last().pixel = session.points.first().pixel;
        session.points.last().position = session.points.first().position;
    }
}

// The pipe with the scale that the session's calibration text has for its diameter.
void readCalibration(const Session &session, Pipe &pipe)
{
    pipe.laserDistance = 0.0;
    pipe.diameterMM = session.diameterMM;
    pipe.setCameraCrackIni(session.calibrationText.toStdString());
    pipe.parseIniFile();
}

} // namespace

void startKind(Session &session, Kind kind)
{
    const KindInfo &info = infoOf(kind);
    session.kind = kind;
    session.points.clear();
    session.repeats.clear();
    session.percentage = info.percentage.initial;
    session.angleDEG = info.angle.initialDEG;
    session.jointShown = false;
    session.isSet = !info.has(Uses::SetByEye);
}

ClickResult clickPoint(Session &session, const QPointF &pixel)
{
    if (!infoOf(session.kind).has(Uses::Points)) {
        return ClickResult::Missed;
    }
    PipeView view(session);
    return clickOn(view, session, pixel);
}

ClickResult addPoint(Session &session, const QPointF &pixel)
{
    if (!closesOutline(session, pixel)) {
        return clickPoint(session, pixel);
    }
    session.points.append({pixel, PipeView(session).pick(pixel), {}});
    return ClickResult::Added;
}

bool closesOutline(const Session &session, const QPointF &pixel)
{
    if (infoOf(session.kind).mode != MeasureMode::CrossSection || isClosedOutline(session)) {
        return false;
    }
    Session clicked = session;
    return clickPoint(clicked, pixel) == ClickResult::Added && isClosedOutline(clicked);
}

QVector<QPointF> closingEdge(const Session &session)
{
    QVector<QPointF> edge;
    if (session.points.size() < smallestClosable || !session.points.first().position ||
        !closesOutline(session, session.points.first().pixel)) {
        return edge;
    }
    PipeView view(session);
    const Vec3 first = *session.points.first().position;
    const double reachM = view.pipe().closingReachM();
    const auto walk = [&](const Vec3 &from, const Vec3 &to) {
        for (int i = 0; i < closingEdgeSteps; ++i) {
            edge +=
                view.project(first + (from + (to - from) * (1.0 * i / closingEdgeSteps)) * reachM);
        }
    };
    walk({-1, -1, 0}, {1, -1, 0});
    walk({1, -1, 0}, {1, 1, 0});
    walk({1, 1, 0}, {-1, 1, 0});
    walk({-1, 1, 0}, {-1, -1, 0});
    return edge;
}

QVector<QPointF> placePoints(Session &session)
{
    QVector<QPointF> missed;
    if (!infoOf(session.kind).has(Uses::Points) || allHavePositions(session)) {
        return missed;
    }
    const QVector<SessionPoint> points = session.points;
    session.points.clear();
    PipeView view(session);
    for (const SessionPoint &point : points) {
        if (point.position) {
            view.pipe().hitPoints.emplace_back(*point.position);
            session.points += point;
        } else if (clickOn(view, session, point.pixel) == ClickResult::Missed) {
            missed += point.pixel;
        } else {
            session.points.last().unknownFields = point.unknownFields;
        }
    }
    return missed;
}

double depthInDiameters(const Session &session, const Vec3 &position)
{
    return -position.z * mmPerM / session.diameterMM;
}

QVector<int> pointsBeyondModel(const Session &session)
{
    QVector<int> beyond;
    if (infoOf(session.kind).mode != MeasureMode::PipeDimension) {
        return beyond;
    }
    for (int i = 0; i < session.points.size(); ++i) {
        const std::optional<Vec3> &position = session.points[i].position;
        if (position && depthInDiameters(session, *position) > Cylinder::lengthInDiameters) {
            beyond += i;
        }
    }
    return beyond;
}

bool movePoint(Session &session, int index, const QPointF &pixel)
{
    if (index < 0 || index >= session.points.size()) {
        return false;
    }
    const std::optional<Vec3> position = PipeView(session).pick(pixel);
    if (!position) {
        return false;
    }
    const int last = countOf(session.points) - 1;
    const bool isSeam = isClosedOutline(session) && (index == 0 || index == last);
    for (const int moved : {index, isSeam ? last - index : index}) {
        session.points[moved].pixel = pixel;
        session.points[moved].position = position;
    }
    return true;
}

void pickPointsAnew(Session &session)
{
    forEachMeasurand(session, pickPointsAtHand);
}

void changePercentage(Session &session, double percent)
{
    session.percentage = percent;
    if (session.kind != Kind::CrossSection || !allHavePositions(session)) {
        return;
    }
    PipeView view(session);
    view.pipe().setCrossSectDistancePercent(percent * fractionPerPercent);
    for (int i = 0; i < session.points.size(); ++i) {
        // The sign of zero is not kept in files.
        session.points[i].position->z =
            view.pipe().hitPoints[static_cast<std::size_t>(i)].position.z + 0.0;
    }
}

std::optional<double> waterLevelAt(const Session &session, const QPointF &pixel)
{
    const std::optional<Vec3> surface = PipeView(session).pickWall(pixel);
    if (!surface) {
        return std::nullopt;
    }
    const double heightMM = surface->y * mmPerM;
    return std::clamp((heightMM / session.diameterMM + 0.5) * percentPerOne, 0.0, percentPerOne);
}

bool setWaterLevelAt(Session &session, const QPointF &pixel)
{
    const std::optional<double> level = waterLevelAt(session, pixel);
    session.percentage = level.value_or(session.percentage);
    session.isSet = session.isSet || level;
    return level.has_value();
}

Outcome takeLaserScale(Session &session, const QPointF &first, const QPointF &second)
{
    Session calibration = session;
    calibration.kind = Kind::CrackWidth;
    calibration.points.clear();
    PipeView view(calibration);
    Pipe &pipe = view.pipe();
    readCalibration(session, pipe);
    pipe.laserScale = 0.0;
    for (const QPointF &spot : {first, second}) {
        if (const std::optional<Vec3> place = view.pick(spot)) {
            pipe.hitPoints.emplace_back(*place);
        }
    }
    const double distanceMM = pipe.laserDistance;
    pipe.calibrateLaser(0.0);
    if (!(distanceMM > 0.0)) {
        return Problem{{}, Text::tr("the calibration names no distance of the laser spots")};
    }
    if (!(pipe.laserScale > 0.0)) {
        return Problem{{}, Text::tr("the two laser spots are the same pixel")};
    }
    if (const Outcome problem = checkNumber(QStringLiteral("mmPerPixel"), pipe.laserScale,
                                            smallestMMPerPixel, largestMMPerPixel)) {
        return *problem;
    }
    session.mmPerPixel = pipe.laserScale;
    session.laserSpots = {first, second};
    return {};
}

void setScale(Session &session, std::optional<double> mmPerPixel)
{
    session.mmPerPixel = mmPerPixel;
    session.laserSpots.clear();
}

std::optional<double> laserDistanceOf(const Session &session)
{
    Pipe pipe;
    readCalibration(session, pipe);
    return std::isfinite(pipe.laserDistance) && pipe.laserDistance > 0.0
               ? std::optional<double>(pipe.laserDistance)
               : std::nullopt;
}

std::optional<double> scaleOf(const Session &session)
{
    if (session.mmPerPixel) {
        return session.mmPerPixel;
    }
    Pipe pipe;
    readCalibration(session, pipe);
    return std::isfinite(pipe.laserScale) && pipe.laserScale > 0.0
               ? std::optional<double>(pipe.laserScale)
               : std::nullopt;
}

bool isClosedOutline(const Session &session)
{
    if (session.points.isEmpty() || !allHavePositions(session)) {
        return false;
    }
    return isClosedPolygon(*session.points.first().position, *session.points.last().position,
                           static_cast<std::size_t>(session.points.size()),
                           infoOf(session.kind).mode);
}

} // namespace Drevon::Zalento::Measuring
