#include "measuring/PlaceUncertainty.h"

#include "measuring/MeasuringModel.h"
#include "measuring/ModelPlace.h"
#include "measuring/StandardUncertainties.h"
#include "measuring/Uncertainty.h"
#include "measuring/UncertaintyFactors.h"

#include <Eigen/Eigenvalues>

#include <algorithm>
#include <limits>
#include <vector>

namespace Drevon::Zalento::Measuring {

namespace {

// The step of a difference quotient: in standard deviations of a factor, and in pixels.
constexpr double step = 0.01;

// The square of this holds 95 percent of a chi-square distribution with two degrees of freedom.
constexpr double ellipseReach = 2.4477;
constexpr int ellipseCorners = 48;

constexpr int mapAlpha = 150;

using Matrix2 = Eigen::Matrix2d;
using Vector2 = Eigen::Vector2d;

// The session as one that measures where its points lie, without points.
Session withoutPoints(Session session)
{
    session.kind = session.kind == Kind::CrossSection ? Kind::CrossSection : Kind::PipeDimension;
    session.points.clear();
    return session;
}

struct Model
{
    FitCamera<double> camera;
    double diameterMM;
    std::optional<double> planePercent; // nothing for the wall
};

Model modelOf(const Eigen::VectorXd &inputs, const Session &session)
{
    AlignmentNumbers fields;
    std::copy_n(inputs.data(), fields.size(), fields.begin());
    const bool isPlane = session.kind == Kind::CrossSection;
    return {FitCamera<double>(fields, session.picture.size), inputs[ModelInput::diameterMM],
            isPlane ? std::optional<double>(inputs[ModelInput::planePercent]) : std::nullopt};
}

Vec3 placeMM(const Model &model, const QPointF &pixel)
{
    const Vec3 place = model.planePercent ? placeOnPlane(model.camera, pixel, *model.planePercent)
                                          : placeOnWall(model.camera, pixel);
    return place * model.diameterMM;
}

// The directions that a place's uncertainty is told in.
struct Directions
{
    Vec3 first;
    Vec3 second;
};

Directions directionsAt(const Model &model, const Vec3 &place)
{
    if (model.planePercent) {
        return {{1, 0, 0}, {0, 1, 0}};
    }
    const double radius = std::hypot(place.x, place.y);
    return {{-place.y / radius, place.x / radius, 0}, {0, 0, 1}};
}

Vector2 partsOf(const Vec3 &way, const Directions &directions)
{
    return {way.dot(directions.first), way.dot(directions.second)};
}

// The place that lies @p way from another one, on the wall around the pipe.
Vec3 placeBeside(const Model &model, const Vec3 &place, const Vector2 &way)
{
    if (model.planePercent) {
        return {place.x + way.x(), place.y + way.y(), place.z};
    }
    const double radius = std::hypot(place.x, place.y);
    const double angle = std::atan2(place.y, place.x) + way.x() / radius;
    return {radius * std::cos(angle), radius * std::sin(angle), place.z + way.y()};
}

double largestRoot(const Matrix2 &squares)
{
    const Eigen::SelfAdjointEigenSolver<Matrix2> solver(squares, Eigen::EigenvaluesOnly);
    return std::sqrt(std::max(solver.eigenvalues()[1], 0.0));
}

} // namespace

class PlaceUncertainty::Implementation
{
public:
    Implementation(const Session &given, const std::optional<AlignmentFit> &fit)
        : Implementation(withoutPoints(given), fit, MeasuringModel(withoutPoints(given)))
    {}

    std::optional<PipePlace> at(const QPointF &pixel) const
    {
        const Vec3 place = placeMM(m_model, pixel);
        const Directions directions = directionsAt(m_model, place);
        const Matrix2 slopes = slopesAt(pixel, directions);
        const Matrix2 covariance = covarianceAt(pixel, directions, slopes);
        if (!covariance.allFinite()) {
            return std::nullopt;
        }
        PipePlace result;
        result.mmPerPixel = largestRoot(slopes * slopes.transpose());
        result.aroundMM = coverageFactor * std::sqrt(covariance(0, 0));
        result.alongMM = coverageFactor * std::sqrt(covariance(1, 1));
        result.largestMM = coverageFactor * largestRoot(covariance);
        return result;
    }

    QPolygonF ellipse(const QPointF &pixel) const
    {
        const Vec3 place = placeMM(m_model, pixel);
        const Directions directions = directionsAt(m_model, place);
        const Matrix2 covariance = covarianceAt(pixel, directions, slopesAt(pixel, directions));
        return covariance.allFinite() ? ellipseOf(place, covariance) : QPolygonF();
    }

    double depthInDiameters(const QPointF &pixel) const
    {
        return -placeMM(m_model, pixel).z / m_model.diameterMM;
    }

private:
    Implementation(const Session &session, const std::optional<AlignmentFit> &fit,
                   const MeasuringModel &model)
        : m_model(modelOf(model.inputs(), session))
        , m_clickVariance(clickVariance(session))
    {
        for (const UncertaintyFactor &factor : uncertaintyFactors(session, fit, model)) {
            const Eigen::VectorXd shift = factor.shift * step;
            m_above.push_back(modelOf(model.inputs() + shift, session));
            m_below.push_back(modelOf(model.inputs() - shift, session));
        }
    }

    static double clickVariance(const Session &session)
    {
        const double clickPX = inputUncertainties(session).clickPX;
        return clickPX * clickPX + 1.0 / 12.0;
    }

    Matrix2 slopesAt(const QPointF &pixel, const Directions &directions) const
    {
        Matrix2 slopes;
        const std::array<QPointF, 2> steps{QPointF(step, 0), QPointF(0, step)};
        for (int i = 0; i < 2; ++i) {
            const QPointF &by = steps[static_cast<std::size_t>(i)];
            const Vec3 way = placeMM(m_model, pixel + by) - placeMM(m_model, pixel - by);
            slopes.col(i) = partsOf(way, directions) / (2 * step);
        }
        return slopes;
    }

    Matrix2 covarianceAt(const QPointF &pixel, const Directions &directions,
                         const Matrix2 &slopes) const
    {
        Matrix2 covariance = slopes * slopes.transpose() * m_clickVariance;
        for (std::size_t i = 0; i < m_above.size(); ++i) {
            const Vec3 way = placeMM(m_above[i], pixel) - placeMM(m_below[i], pixel);
            const Vector2 effect = partsOf(way, directions) / (2 * step);
            covariance += effect * effect.transpose();
        }
        return covariance;
    }

    QPolygonF ellipseOf(const Vec3 &place, const Matrix2 &covariance) const
    {
        const Eigen::SelfAdjointEigenSolver<Matrix2> solver(covariance);
        const Matrix2 root =
            solver.eigenvectors() *
            solver.eigenvalues().cwiseMax(0.0).cwiseSqrt().asDiagonal().toDenseMatrix();
        QPolygonF polygon;
        for (int i = 0; i <= ellipseCorners; ++i) {
            const double at = i * twoPi / ellipseCorners;
            const Vector2 way = root * Vector2(std::cos(at), std::sin(at)) * ellipseReach;
            const Vec3 corner = placeBeside(m_model, place, way) / m_model.diameterMM;
            polygon += m_model.camera.pixelOf({corner.x, corner.y, corner.z});
        }
        return polygon;
    }

    Model m_model;
    double m_clickVariance;
    std::vector<Model> m_above; // moved by each factor
    std::vector<Model> m_below;
};

PlaceUncertainty::PlaceUncertainty(const Session &session, const std::optional<AlignmentFit> &fit)
    : m_implementation(std::make_unique<Implementation>(session, fit))
{}

PlaceUncertainty::~PlaceUncertainty() = default;

std::optional<PipePlace> PlaceUncertainty::at(const QPointF &pixel) const
{
    const double depth = m_implementation->depthInDiameters(pixel);
    return depth <= Cylinder::lengthInDiameters ? m_implementation->at(pixel) : std::nullopt;
}

QPolygonF PlaceUncertainty::ellipse(const QPointF &pixel) const
{
    const double depth = m_implementation->depthInDiameters(pixel);
    return depth <= Cylinder::lengthInDiameters ? m_implementation->ellipse(pixel) : QPolygonF();
}

// Viridis (S. van der Walt and N. Smith, 2015), light for what is known well.
const QVector<MapStep> &mapSteps()
{
    static const QVector<MapStep> steps{
        {0.5, 0xfde725},  {1.0, 0xa0da39},
        {2.0, 0x4ac16d},  {5.0, 0x1fa187},
        {10.0, 0x277f8e}, {20.0, 0x365c8d},
        {50.0, 0x46327e}, {std::numeric_limits<double>::infinity(), 0x440154}};
    return steps;
}

QImage wallMap(const Session &session, const std::optional<AlignmentFit> &fit, MapQuantity quantity,
               int width)
{
    Session onWall = session;
    onWall.kind = Kind::PipeDimension;
    const PlaceUncertainty places(onWall, fit);
    const double pixels = static_cast<double>(session.picture.size.width()) / width;
    const int height = std::max(1, qRound(session.picture.size.height() / pixels));
    QImage map(width, height, QImage::Format_ARGB32);
    map.fill(Qt::transparent);
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            const auto place = places.at(QPointF(x + 0.5, y + 0.5) * pixels);
            if (!place) {
                continue;
            }
            const double mm = quantity == MapQuantity::Scale ? place->mmPerPixel : place->largestMM;
            const auto &steps = mapSteps();
            const auto found = std::find_if(steps.begin(), steps.end(),
                                            [mm](const MapStep &s) { return mm <= s.upToMM; });
            const QRgb colour = found == steps.end() ? steps.last().colour : found->colour;
            map.setPixel(x, y, qRgba(qRed(colour), qGreen(colour), qBlue(colour), mapAlpha));
        }
    }
    return map;
}

} // namespace Drevon::Zalento::Measuring
