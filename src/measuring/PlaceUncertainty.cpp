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

// The session as one that measures on the wall, without points.
Session onWallAlone(Session session)
{
    session.kind = Kind::PipeDimension;
    session.points.clear();
    return session;
}

struct Model
{
    FitCamera<double> camera;
    double diameterMM;
};

Model modelOf(const Eigen::VectorXd &inputs, const QSize &picture)
{
    AlignmentNumbers fields;
    std::copy_n(inputs.data(), fields.size(), fields.begin());
    return {FitCamera<double>(fields, picture), inputs[ModelInput::diameterMM]};
}

Vec3 placeMM(const Model &model, const QPointF &pixel)
{
    return placeOnWall(model.camera, pixel) * model.diameterMM;
}

// A step on the wall: around the pipe and along it.
Vector2 onWall(const Vec3 &way, const Vec3 &around)
{
    return {way.dot(around), way.z};
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
        : Implementation(onWallAlone(given), fit, MeasuringModel(onWallAlone(given)))
    {}

    std::optional<WallPlace> at(const QPointF &pixel) const
    {
        const Vec3 place = placeMM(m_model, pixel);
        const Vec3 around = aroundAt(place);
        const Matrix2 slopes = slopesAt(pixel, around);
        const Matrix2 covariance = covarianceAt(pixel, around, slopes);
        if (!covariance.allFinite()) {
            return std::nullopt;
        }
        WallPlace result;
        result.mmPerPixel = largestRoot(slopes * slopes.transpose());
        result.aroundMM = coverageFactor * std::sqrt(covariance(0, 0));
        result.alongMM = coverageFactor * std::sqrt(covariance(1, 1));
        result.largestMM = coverageFactor * largestRoot(covariance);
        return result;
    }

    QPolygonF ellipse(const QPointF &pixel) const
    {
        const Vec3 place = placeMM(m_model, pixel);
        const Vec3 around = aroundAt(place);
        const Matrix2 covariance = covarianceAt(pixel, around, slopesAt(pixel, around));
        return covariance.allFinite() ? ellipseOf(place, covariance) : QPolygonF();
    }

    double depthInDiameters(const QPointF &pixel) const
    {
        return -placeOnWall(m_model.camera, pixel).z;
    }

private:
    Implementation(const Session &session, const std::optional<AlignmentFit> &fit,
                   const MeasuringModel &model)
        : m_model(modelOf(model.inputs(), session.picture.size))
        , m_clickVariance(clickVariance(session))
    {
        for (const UncertaintyFactor &factor : uncertaintyFactors(session, fit, model)) {
            const Eigen::VectorXd shift = factor.shift * step;
            m_above.push_back(modelOf(model.inputs() + shift, session.picture.size));
            m_below.push_back(modelOf(model.inputs() - shift, session.picture.size));
        }
    }

    static double clickVariance(const Session &session)
    {
        const double clickPX = inputUncertainties(session).clickPX;
        return clickPX * clickPX + 1.0 / 12.0;
    }

    static Vec3 aroundAt(const Vec3 &place)
    {
        const double radius = std::hypot(place.x, place.y);
        return {-place.y / radius, place.x / radius, 0};
    }

    Matrix2 slopesAt(const QPointF &pixel, const Vec3 &around) const
    {
        Matrix2 slopes;
        const std::array<QPointF, 2> steps{QPointF(step, 0), QPointF(0, step)};
        for (int i = 0; i < 2; ++i) {
            const QPointF &by = steps[static_cast<std::size_t>(i)];
            const Vec3 way = placeMM(m_model, pixel + by) - placeMM(m_model, pixel - by);
            slopes.col(i) = onWall(way, around) / (2 * step);
        }
        return slopes;
    }

    Matrix2 covarianceAt(const QPointF &pixel, const Vec3 &around, const Matrix2 &slopes) const
    {
        Matrix2 covariance = slopes * slopes.transpose() * m_clickVariance;
        for (std::size_t i = 0; i < m_above.size(); ++i) {
            const Vec3 way = placeMM(m_above[i], pixel) - placeMM(m_below[i], pixel);
            const Vector2 effect = onWall(way, around) / (2 * step);
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
        const double radius = std::hypot(place.x, place.y);
        const double angle = std::atan2(place.y, place.x);
        QPolygonF polygon;
        for (int i = 0; i <= ellipseCorners; ++i) {
            const double at = i * twoPi / ellipseCorners;
            const Vector2 way = root * Vector2(std::cos(at), std::sin(at)) * ellipseReach;
            const double turned = angle + way.x() / radius;
            const double d = m_model.diameterMM;
            polygon +=
                m_model.camera.pixelOf({radius * std::cos(turned) / d,
                                        radius * std::sin(turned) / d, (place.z + way.y()) / d});
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

std::optional<WallPlace> PlaceUncertainty::at(const QPointF &pixel) const
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
    const PlaceUncertainty places(session, fit);
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
