#include "measuring/MeasuringModel.h"

#include "measuring/Editing.h"
#include "measuring/FitCamera.h"
#include "measuring/PipeView.h"
#include "measuring/SessionFit.h"

#include "zalento/geometry/Cylinder.h"
#include "zalento/measure/measureLine.h"

#include <algorithm>
#include <limits>

namespace Drevon::Zalento::Measuring {

namespace {

constexpr double percentPerOne = 100.0;
constexpr double fractionPerPercent = 0.01;
constexpr double mPerMM = 0.001;
constexpr double radiusInDiameters = 0.5;
constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();

AlignmentNumbers alignmentIn(const Eigen::VectorXd &inputs)
{
    AlignmentNumbers fields;
    std::copy_n(inputs.data(), fields.size(), fields.begin());
    return fields;
}

Vec3 along(const FitCamera<double> &camera, const FitVector<double> &ray, double reach)
{
    return {camera.eye().x + reach * ray.x, camera.eye().y + reach * ray.y,
            camera.eye().z + reach * ray.z};
}

// The farther of the places where a ray meets the wall, in diameters: the one that is seen from
// inside.
Vec3 onWall(const FitCamera<double> &camera, const QPointF &pixel)
{
    const FitVector<double> ray = camera.rayThrough(pixel);
    const FitVector<double> &eye = camera.eye();
    const double a = ray.x * ray.x + ray.y * ray.y;
    const double b = eye.x * ray.x + eye.y * ray.y;
    const double c = eye.x * eye.x + eye.y * eye.y - radiusInDiameters * radiusInDiameters;
    const double reach = (std::sqrt(b * b - a * c) - b) / a;
    return reach > 0.0 ? along(camera, ray, reach) : Vec3(notANumber, 0, 0);
}

Vec3 onPlane(const FitCamera<double> &camera, const QPointF &pixel, double planePercent)
{
    const double depth = planePercent * fractionPerPercent * Cylinder::lengthInDiameters;
    const FitVector<double> ray = camera.rayThrough(pixel);
    Vec3 place = along(camera, ray, (-depth - camera.eye().z) / ray.z);
    place.z = -depth;
    return place;
}

double settingOf(const Session &session)
{
    const KindInfo &info = infoOf(session.kind);
    return info.has(Uses::Angle)
               ? std::clamp(session.angleDEG, info.angle.smallestDEG, info.angle.largestDEG)
               : session.percentage;
}

} // namespace

MeasuringModel::MeasuringModel(const Session &session)
    : m_kind(session.kind)
    , m_picture(session.picture.size)
{
    const PipeView view(session);
    m_drawingWidthPX = view.drawingWidthPX();
    std::vector<QPointF> clicks;
    std::vector<Vec3> places;
    for (const SessionPoint &point : session.points) {
        const Vec3 place = point.position.value_or(Vec3());
        const auto known = std::find(places.begin(), places.end(), place);
        m_clickOfPoint.push_back(known - places.begin());
        if (known == places.end()) {
            places.push_back(place);
            clicks.push_back(view.project(place));
        }
    }
    m_inputs.setZero(ModelInput::firstClick + 2 * static_cast<Eigen::Index>(clicks.size()));
    const AlignmentNumbers alignment = view.drawnAlignment().numbers();
    std::copy(alignment.begin(), alignment.end(), m_inputs.data());
    m_inputs[ModelInput::diameterMM] = session.diameterMM;
    m_inputs[ModelInput::planePercent] = session.percentage;
    m_inputs[ModelInput::setting] = settingOf(session);
    m_inputs[ModelInput::mmPerPixel] = scaleOf(session).value_or(0.0);
    Eigen::Index next = ModelInput::firstClick;
    for (const QPointF &click : clicks) {
        m_inputs[next++] = click.x();
        m_inputs[next++] = click.y();
    }
}

Eigen::VectorXd MeasuringModel::values(const Eigen::VectorXd &inputs) const
{
    return infoOf(m_kind).has(Uses::Points)
               ? lineValues(inputs)
               : Eigen::VectorXd::Constant(1, inputs[ModelInput::setting]);
}

Eigen::VectorXd MeasuringModel::lineValues(const Eigen::VectorXd &inputs) const
{
    const double diameterMM = inputs[ModelInput::diameterMM];
    const LineMeasure line =
        measureLine(pickedPoints(inputs), infoOf(m_kind).mode,
                    {diameterMM * 0.5, m_drawingWidthPX, inputs[ModelInput::mmPerPixel]});
    const auto numberOf = [](const MeasuredValue &value) {
        const double number =
            value.quantity == Quantity::Fraction ? value.number * percentPerOne : value.number;
        return value.isMeasured() ? number : notANumber;
    };
    const bool hasShare = line.observable == ObservableType::Area ||
                          (m_kind == Kind::CrossSection && m_clickOfPoint.size() == 2);
    Eigen::VectorXd result(hasShare ? 2 : 1);
    result[0] = numberOf(line.value);
    if (hasShare) {
        result[1] = numberOf(line.share);
    }
    return result;
}

// In the units of measureLine(): metres on the model, fractions of the drawing area in the picture.
std::vector<Vec3> MeasuringModel::pickedPoints(const Eigen::VectorXd &inputs) const
{
    const FitCamera<double> camera(alignmentIn(inputs), m_picture);
    const double diameterM = inputs[ModelInput::diameterMM] * mPerMM;
    std::vector<Vec3> places;
    for (Eigen::Index i = ModelInput::firstClick; i < inputs.size(); i += 2) {
        const QPointF pixel(inputs[i], inputs[i + 1]);
        switch (m_kind) {
        case Kind::CrackWidth:
            places.emplace_back(pixel.x() / m_drawingWidthPX, pixel.y() / m_drawingWidthPX, 0);
            break;
        case Kind::CrossSection:
            places.push_back(onPlane(camera, pixel, inputs[ModelInput::planePercent]) * diameterM);
            break;
        default:
            places.push_back(onWall(camera, pixel) * diameterM);
            break;
        }
    }
    std::vector<Vec3> points;
    for (const Eigen::Index click : m_clickOfPoint) {
        points.push_back(places[static_cast<std::size_t>(click)]);
    }
    return points;
}

} // namespace Drevon::Zalento::Measuring
