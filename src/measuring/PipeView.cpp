#include "measuring/PipeView.h"

#include "zalento/math/angles.h"
#include "zalento/math/truncateToInt.h"
#include "zalento/pipes/Pipe.h"
#include "zalento/pipes/gestureUnits.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <stdexcept>

namespace Drevon::Zalento::Measuring {

namespace {

constexpr double mPerMM = 0.001;
constexpr double fractionPerPercent = 0.01;
constexpr double percentPerOne = 100.0;
constexpr double halfPixel = 0.5;

const Vec3 nowhere(std::numeric_limits<double>::quiet_NaN(), 0, 0);

// The largest centred square, as the item lays out its drawing area.
QRectF largestCentredSquare(const QSizeF &size)
{
    const double width = size.width();
    const double height = size.height();
    return width > height ? QRectF((width - height) * 0.5, 0, height, height)
                          : QRectF(0, (height - width) * 0.5, width, width);
}

// The sign of zero is not kept in files.
Vec3 withoutNegativeZero(const Vec3 &v)
{
    return {v.x + 0.0, v.y + 0.0, v.z + 0.0};
}

Mat4 fractionsToPixels(const QRectF &area)
{
    Mat4 toPixels;
    toPixels.translate(area.x(), area.y(), 0);
    toPixels.scale(area.width(), area.height(), 1);
    return toPixels;
}

} // namespace

// A mouth of its own size takes the square and the field of view that go with it in the same
// camera: tan(F'/2) = k tan(F/2). The points of a crack are fractions of the largest square.
ItemLayout itemLayout(const Session &session)
{
    const QSizeF picture = session.picture.size;
    const double k =
        infoOf(session.kind).has(Uses::Model) ? session.mouthPercent * fractionPerPercent : 1.0;
    if (k == 1.0) {
        return {QRectF(QPointF(), picture), session.fovYDEG};
    }
    const double side = k * std::min(picture.width(), picture.height());
    const double halfFovRAD = std::atan(k * std::tan(session.fovYDEG * radiansPerDegree * 0.5));
    return {QRectF((picture.width() - side) * 0.5, (picture.height() - side) * 0.5, side, side),
            2.0 * halfFovRAD * degreesPerRadian};
}

PipeView::PipeView(const Session &session)
    : m_pipe(std::make_unique<Pipe>())
    , m_origin(itemLayout(session).geometry.topLeft())
    , m_drawingArea(largestCentredSquare(itemLayout(session).geometry.size()))
{
    m_pipe->measureMode = infoOf(session.kind).mode;
    m_pipe->diameterMM = session.diameterMM;
    m_pipe->cylinder.setDiameterM(session.diameterMM * mPerMM);
    m_pipe->setCrossSectDistancePercent(session.percentage * fractionPerPercent);
    for (const SessionPoint &point : session.points) {
        if (point.position) {
            m_pipe->hitPoints.emplace_back(*point.position);
        }
    }
    placeCamera(session);
}

PipeView::~PipeView() = default;
PipeView::PipeView(PipeView &&) noexcept = default;
PipeView &PipeView::operator=(PipeView &&) noexcept = default;

// The same steps as ZaItem::paint(), with the numbers that replaying the session gives the item.
void PipeView::placeCamera(const Session &session)
{
    MiniGL &camera = m_pipe->camera;
    camera.setFovYDEG(itemLayout(session).fovYDEG);
    camera.onResize(m_drawingArea);
    m_pipe->cameraHeight = std::clamp(session.cameraHeightPercent * fractionPerPercent, 0.0, 1.0);
    const double rearCircleHeight = session.rearCircleY + centredPercent;
    const Vec3 requested(session.rearCircleX, rearCircleHeight - centredPercent, session.rollDEG);
    const QPoint offset(truncateToInt(session.offset), 0);
    try {
        m_rotation =
            m_pipe->getNewImageRotationToKeepRearCircleInsideFrontCircle(offset, requested);
        m_pipe->setupMiniGL(m_pipe->getDiameterM(), offset);
    } catch (const std::range_error &) {
        return; // a camera that stands where it looks sees nothing
    }
    m_isPlaced = true;
    m_drawn = {static_cast<double>(offset.x()),
               m_pipe->cameraHeight * percentPerOne,
               m_rotation.x * rearCircleRangeX,
               m_rotation.y * rearCircleRangeY,
               session.mouthPercent,
               session.fovYDEG};
    if (m_pipe->measureMode == MeasureMode::CrackWidth) {
        m_toPixels = fractionsToPixels(m_drawingArea);
        return;
    }
    camera.pushModelViewMatrix();
    camera.rotateByTouchRotationVector(Vec2(m_rotation.x, m_rotation.y));
    m_pipe->applyZRotation(m_rotation);
    camera.combinedMatrix(m_toPixels);
    camera.popModelViewMatrix();
}

std::optional<Vec3> PipeView::pick(const QPointF &pixel) const
{
    switch (m_pipe->measureMode) {
    case MeasureMode::CrackWidth:
        return pickPicture(pixel);
    case MeasureMode::CrossSection:
    case MeasureMode::FreeCrossSection:
        return pickPlane(pixel);
    default:
        return pickWall(pixel);
    }
}

std::optional<Vec3> PipeView::pickWall(const QPointF &pixel) const
{
    // A ray along the axis counts as a hit, meets no place of the wall, and leaves the point.
    Vec3 picked = nowhere;
    if (!m_isPlaced ||
        !m_pipe->cylinder.intersectRayAt(placeInArea(pixel), m_pipe->camera, picked, m_rotation) ||
        !isFinite(picked)) {
        return std::nullopt;
    }
    return withoutNegativeZero(picked);
}

std::optional<Vec3> PipeView::pickPlane(const QPointF &pixel) const
{
    Vec3 picked;
    if (!m_isPlaced || !m_pipe->cylinder.intersectPlaneRayAt(placeInArea(pixel), m_pipe->camera,
                                                             picked, m_rotation)) {
        return std::nullopt;
    }
    return withoutNegativeZero(picked);
}

std::optional<Vec3> PipeView::pickPicture(const QPointF &pixel) const
{
    const QPointF place = pixel - m_origin - m_drawingArea.topLeft();
    const Vec3 fraction(place.x() / m_drawingArea.width(), place.y() / m_drawingArea.height(), 0);
    if (!std::isfinite(fraction.x) || !std::isfinite(fraction.y)) {
        return std::nullopt;
    }
    return withoutNegativeZero(fraction);
}

QPointF PipeView::project(const Vec3 &position) const
{
    Vec2 pixel;
    m_toPixels.multiply(position, pixel);
    return QPointF(pixel.x, pixel.y) + m_origin;
}

// Rays are counted from the middle of the first pixel.
Vec2 PipeView::placeInArea(const QPointF &pixel) const
{
    const QPointF place = pixel - m_origin - m_drawingArea.topLeft();
    return {place.x() - halfPixel, place.y() - halfPixel};
}

} // namespace Drevon::Zalento::Measuring
