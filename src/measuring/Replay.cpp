#include "measuring/Replay.h"

#include "measuring/Kind.h"

#include <QImage>
#include <QPainter>

namespace Drevon::Zalento::Measuring {

namespace {

constexpr int jointView = 3;
// ZaItem::setCameraHeight() moves the rear circle by its value minus this.
constexpr double centredRearCirclePercent = 50.0;

// Null while another object than the straight pipe is on view.
Pipe *pipeOf(ZaItem &item)
{
    return dynamic_cast<Pipe *>(&item.getCurrentViewObject());
}

bool isInStep(const Session &session, const Pipe &pipe)
{
    return session.points.size() == static_cast<int>(pipe.hitPoints.size());
}

bool takesPoints(const Session &session)
{
    const MeasurementKind *kind = findMeasurementKind(session.kind);
    return kind && kind->usesPoints;
}

void reportSize(Pipe &pipe)
{
    Q_EMIT pipe.hitPointListSizeChanged(static_cast<int>(pipe.hitPoints.size()));
}

// The sign of zero is not kept in files.
Vec3 withoutNegativeZero(const Vec3 &v)
{
    return {v.x + 0.0, v.y + 0.0, v.z + 0.0};
}

// Without these an earlier session would show through.
void forgetPrevious(ZaItem &item)
{
    item.clearMeasurementPoints();
    item.setMeasureSettings(measureMentSettingsOf(QStringLiteral("CrackWidth")));
    Pipe &pipe = *pipeOf(item);
    pipe.selectedIndex = -1;
    pipe.highlightPoint = Vec3::Zero;
    pipe.laserScale = 0.0;
    pipe.laserDistance = 0.0;
    item.setPercentage(0.0);
}

// The diameter comes after the calibration text: setting it reads the text.
void applyScale(const Session &session, ZaItem &item)
{
    pipeOf(item)->setCameraCrackIni(session.calibrationText.toStdString());
    item.setDiameter(session.diameterMM);
    if (session.mmPerPixel) {
        item.requestCameraCalibration(*session.mmPerPixel);
    }
}

void applyKind(const Session &session, ZaItem &item)
{
    item.setiWantToMeasure(session.kind);
    // Selecting the kind that is selected does nothing, whatever is on view.
    item.setMeasureSettings(measureMentSettingsOf(session.kind));
    const MeasurementKind *kind = findMeasurementKind(session.kind);
    if (session.jointShown && kind && kind->usesDirection) {
        item.setViewMode(jointView);
    }
    item.setPercentage(kind && kind->usesPercentage ? session.percentage : 0.0);
    item.setAngle(session.angleDEG);
    item.setClock(session.clockDEG);
    item.setViewDownstream(session.viewDownstream);
}

// The same two controls move the model and the rear circle.
void applyAlignment(const Session &session, ZaItem &item)
{
    item.setFovDeg(session.fovYDEG);
    item.rotate(session.rollDEG);
    item.setRearCircleActive(false);
    item.move(session.offset, 0.0);
    item.setCameraHeight(session.cameraHeightPercent);
    item.setRearCircleActive(true);
    item.move(session.rearCircleX, 0.0);
    item.setCameraHeight(session.rearCircleY + centredRearCirclePercent);
    item.setRearCircleActive(session.rearCircleActive);
}

// A click on an item that was painted since its alignment changed.
ClickResult clickSettled(Session &session, ZaItem &item, const QPointF &pixel)
{
    Pipe &pipe = *pipeOf(item);
    const std::size_t before = pipe.hitPoints.size();
    item.mouseClick(pixel.x(), pixel.y());
    const std::size_t after = pipe.hitPoints.size();
    if (after == before) {
        return ClickResult::Missed;
    }
    if (after < before) {
        session.points.clear();
    }
    Vec3 &position = pipe.hitPoints.back().position;
    position = withoutNegativeZero(position);
    session.points.append({pixel, position, {}});
    return after < before ? ClickResult::Restarted : ClickResult::Added;
}

QVector<QPointF> applyPoints(Session &session, ZaItem &item)
{
    QVector<QPointF> missed;
    Pipe *pipe = pipeOf(item);
    if (!pipe || !takesPoints(session) || session.points.isEmpty()) {
        return missed;
    }
    const QVector<SessionPoint> points = session.points;
    session.points.clear();
    settle(item); // once: points do not turn the view
    for (const SessionPoint &point : points) {
        if (point.position) {
            pipe->hitPoints.emplace_back(*point.position);
            session.points += point;
            continue;
        }
        if (clickSettled(session, item, point.pixel) == ClickResult::Missed) {
            missed += point.pixel;
        } else {
            session.points.last().unknownFields = point.unknownFields;
        }
    }
    reportSize(*pipe);
    return missed;
}

// Where a click lies; the item's points are as before.
std::optional<Vec3> pick(ZaItem &item, const QPointF &pixel)
{
    Pipe *pipe = pipeOf(item);
    if (!pipe) {
        return std::nullopt;
    }
    settle(item);
    // On an empty list a click neither snaps nor closes.
    std::vector<HitPoint> kept;
    kept.swap(pipe->hitPoints);
    item.mouseClick(pixel.x(), pixel.y());
    kept.swap(pipe->hitPoints);
    reportSize(*pipe);
    if (kept.empty()) {
        return std::nullopt;
    }
    return withoutNegativeZero(kept.front().position);
}

bool isClosedPolygon(const Pipe &pipe)
{
    return pipe.measureMode == MeasureMode::CrossSection && pipe.hitPoints.size() > 2 &&
           pipe.hitPoints.front().position == pipe.hitPoints.back().position;
}

} // namespace

void layOutItem(ZaItem &item, const QSize &pictureSize)
{
    item.setSize(pictureSize);
}

void settle(ZaItem &item)
{
    QImage target(1, 1, QImage::Format_ARGB32_Premultiplied);
    QPainter painter(&target);
    item.paint(&painter);
}

QVector<QPointF> applySession(Session &session, ZaItem &item)
{
    forgetPrevious(item);
    applyScale(session, item);
    applyKind(session, item);
    item.setMeasureUnit(static_cast<int>(session.unit));
    item.setViewStyle(static_cast<int>(session.viewStyle));
    applyAlignment(session, item);
    return applyPoints(session, item);
}

ClickResult clickPoint(Session &session, ZaItem &item, const QPointF &pixel)
{
    if (!pipeOf(item) || !takesPoints(session)) {
        return ClickResult::Missed;
    }
    settle(item);
    return clickSettled(session, item, pixel);
}

bool movePoint(Session &session, ZaItem &item, int index, const QPointF &pixel)
{
    Pipe *pipe = pipeOf(item);
    if (!pipe || index < 0 || index >= session.points.size() || !isInStep(session, *pipe)) {
        return false;
    }
    const std::optional<Vec3> position = pick(item, pixel);
    if (!position) {
        return false;
    }
    const int last = session.points.size() - 1;
    const auto moveOne = [&](int i) {
        session.points[i].pixel = pixel;
        session.points[i].position = position;
        pipe->hitPoints[static_cast<std::size_t>(i)].position = *position;
    };
    const bool isSeam = isClosedPolygon(*pipe) && (index == 0 || index == last);
    moveOne(index);
    if (isSeam) {
        moveOne(index == 0 ? last : 0);
    }
    item.update();
    return true;
}

void changePercentage(Session &session, ZaItem &item, double percent)
{
    session.percentage = percent;
    const MeasurementKind *kind = findMeasurementKind(session.kind);
    if (kind && kind->usesPercentage) {
        item.setPercentage(percent);
    }
    const Pipe *pipe = pipeOf(item);
    if (!pipe || !isInStep(session, *pipe)) {
        return;
    }
    for (int i = 0; i < session.points.size(); ++i) {
        session.points[i].position =
            withoutNegativeZero(pipe->hitPoints[static_cast<std::size_t>(i)].position);
    }
}

std::optional<double> laserScale(const Session &session, ZaItem &item, const QPointF &first,
                                 const QPointF &second, QString &problem)
{
    Session calibration = session;
    calibration.kind = QStringLiteral("CrackWidth");
    calibration.jointShown = false;
    calibration.mmPerPixel.reset();
    calibration.points = {{first, {}, {}}, {second, {}, {}}};
    applySession(calibration, item);
    Pipe &pipe = *pipeOf(item);
    const double distanceMM = pipe.laserDistance;
    pipe.laserScale = 0.0;
    item.requestCameraCalibration();
    const double mmPerPixel = pipe.laserScale;
    Session restored = session;
    applySession(restored, item);

    if (!(distanceMM > 0.0)) {
        problem = QStringLiteral("the calibration names no distance of the laser spots");
        return std::nullopt;
    }
    if (!(mmPerPixel > 0.0)) {
        problem = QStringLiteral("the two laser spots are the same pixel");
        return std::nullopt;
    }
    problem = numberProblem(QStringLiteral("mmPerPixel"), mmPerPixel, smallestMMPerPixel,
                            largestMMPerPixel);
    return problem.isEmpty() ? std::optional<double>(mmPerPixel) : std::nullopt;
}

} // namespace Drevon::Zalento::Measuring
