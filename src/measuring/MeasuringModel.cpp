#include "measuring/MeasuringModel.h"

#include "measuring/Editing.h"
#include "measuring/Measurement.h"
#include "measuring/ModelPlace.h"
#include "measuring/PipeView.h"
#include "measuring/SessionFit.h"

#include "zalento/measure/measureLine.h"

#include <algorithm>
#include <limits>

namespace Drevon::Zalento::Measuring {

namespace {

constexpr double percentPerOne = 100.0;
constexpr double mPerMM = 0.001;
constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();

AlignmentNumbers alignmentIn(const Eigen::VectorXd &inputs)
{
    AlignmentNumbers fields;
    std::copy_n(inputs.data(), fields.size(), fields.begin());
    return fields;
}

double settingOf(const Session &session)
{
    return infoOf(session.kind).has(Uses::Angle) ? drawnAngleDEG(session) : session.percentage;
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
            places.push_back(placeOnPlane(camera, pixel, inputs[ModelInput::planePercent]) *
                             diameterM);
            break;
        default:
            places.push_back(placeOnWall(camera, pixel) * diameterM);
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
