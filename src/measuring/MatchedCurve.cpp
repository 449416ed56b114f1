#include "measuring/MatchedCurve.h"

#include "measuring/FitCamera.h"

#include "zalento/geometry/Cylinder.h"
#include "zalento/pipes/PipeBend.h"
#include "zalento/pipes/PipeJoint.h"
#include "zalento/pipes/PipeLateral.h"

#include <algorithm>
#include <limits>

namespace Drevon::Zalento::Measuring {

namespace {

constexpr double fractionPerPercent = 0.01;
constexpr double radius = 0.5; // all lengths are diameters
// Of a closed curve, and of a line along the pipe.
constexpr int samples = 48;
// A clock angle of 0 points to the top.
constexpr double clockZeroDEG = 90.0;
// The step of a difference quotient, in standard deviations or units of a setting.
constexpr double step = 1e-3;
// Parts of the way to a setting's limit, and halvings of the part in which the setting lies: to a
// ten-thousandth of a degree or a percent.
constexpr int parts = 20;
constexpr int halvings = 16;

// A break between two curves.
const Vec3 gap(std::numeric_limits<double>::quiet_NaN(), 0, 0);

double angleOf(int sample)
{
    return sample * twoPi / samples;
}

// What is drawn of the water: its width in the mouth and its edges on both sides. A line along the
// pipe is sampled so that the picture shows the samples evenly.
std::vector<Vec3> waterEdge(double percent)
{
    const double y = percent * fractionPerPercent - radius;
    const double x = std::sqrt(std::max(radius * radius - y * y, 0.0));
    std::vector<Vec3> places{{-x, y, 0}, {x, y, 0}};
    for (const double side : {-x, x}) {
        places.push_back(gap);
        for (int i = 0; i <= samples; ++i) {
            const double nearness = 1.0 - static_cast<double>(i) / (samples + 1);
            places.emplace_back(side, y,
                                -std::min(1.0 / nearness - 1.0, Cylinder::lengthInDiameters));
        }
    }
    return places;
}

std::vector<Vec3> planeRing(double percent)
{
    const double depth = percent * fractionPerPercent * Cylinder::lengthInDiameters;
    std::vector<Vec3> places;
    for (int i = 0; i <= samples; ++i) {
        places.emplace_back(radius * std::cos(angleOf(i)), radius * std::sin(angleOf(i)), -depth);
    }
    return places;
}

// Where a branch of the radius r meets the wall. Its axis runs along (sin A, 0, -cos A) through the
// point of the pipe's axis from which the branch's nearest place on the wall is in the mouth.
std::vector<Vec3> branchMouth(double angleDEG, double r)
{
    const double sine = std::sin(angleDEG * radiansPerDegree);
    const double cosine = std::cos(angleDEG * radiansPerDegree);
    const double start = (radius * cosine - r) / sine;
    std::vector<Vec3> places;
    for (int i = 0; i <= samples; ++i) {
        const double across = r * std::cos(angleOf(i));
        const double y = r * std::sin(angleOf(i));
        const double x = std::sqrt(std::max(radius * radius - y * y, 0.0));
        const double along = (x - across * cosine) / sine;
        places.emplace_back(x, y, start - along * cosine + across * sine);
    }
    return places;
}

// A circle @p before the turn about the wall at x = radius and @p behind it, in diameters.
void addTurnedCircle(double angleDEG, double before, double behind, std::vector<Vec3> &places)
{
    const double sine = std::sin(angleDEG * radiansPerDegree);
    const double cosine = std::cos(angleDEG * radiansPerDegree);
    places.push_back(gap);
    for (int i = 0; i <= samples; ++i) {
        const double x = radius * std::cos(angleOf(i)) - radius;
        places.emplace_back(cosine * x + sine * behind + radius, radius * std::sin(angleOf(i)),
                            sine * x - cosine * behind - before);
    }
}

// The circles that follow the angle: the one at the end of the turn, where it is drawn, and the
// last one.
std::vector<Vec3> bendEnds(const Session &session, double angleDEG)
{
    std::vector<Vec3> places;
    if (session.jointShown) {
        addTurnedCircle(angleDEG, 0.0, session.percentage * fractionPerPercent, places);
        return places;
    }
    // In front of the turn stand two circles, each a fifth of the nominal diameter from the next.
    PipeBend bend;
    const double straight = bend.straightLengthM / bend.getDiameterM();
    const double front = 2 * 0.2 * bend.diameterM / bend.getDiameterM();
    const double before = session.viewDownstream ? 0.0 : straight;
    const double behind = session.viewDownstream ? straight : front;
    if (session.viewStyle == ViewStyle::Full) {
        addTurnedCircle(angleDEG, before, 0.0, places);
    }
    addTurnedCircle(angleDEG, before, behind, places);
    return places;
}

Vec3 turnedAboutAxis(const Vec3 &place, double angleDEG)
{
    const double sine = std::sin(angleDEG * radiansPerDegree);
    const double cosine = std::cos(angleDEG * radiansPerDegree);
    return {cosine * place.x - sine * place.y, sine * place.x + cosine * place.y, place.z};
}

bool isSeen(const QPointF &p)
{
    return std::isfinite(p.x()) && std::isfinite(p.y());
}

} // namespace

MatchedCurve::MatchedCurve(const Session &session)
    : m_session(session)
    , m_setting(session.kind == Kind::CrossSection ? ModelInput::planePercent : ModelInput::setting)
{
    const KindInfo &info = infoOf(session.kind);
    const bool isAngle = info.has(Uses::Angle);
    m_smallest = isAngle ? info.angle.smallestDEG : 0.0;
    m_largest = isAngle ? info.angle.largestDEG : 100.0;
    m_isSet = session.kind != Kind::CrossSection || session.percentage != 0.0;
}

double MatchedCurve::settingFor(const Eigen::VectorXd &inputs, double px) const
{
    const double up = m_largest - inputs[m_setting];
    const double down = m_smallest - inputs[m_setting];
    const std::optional<double> above = wayToMove(inputs, px, up);
    const std::optional<double> below = wayToMove(inputs, px, down);
    if (above && below) {
        return (*above - *below) / 2;
    }
    return above ? *above : (below ? -*below : std::max(up, -down));
}

double MatchedCurve::response(const Eigen::VectorXd &inputs, const Eigen::VectorXd &shift) const
{
    // Water that fills the pipe has its edges inside the limits alone.
    const double inside = inputs[m_setting] + step > m_largest ? -step : step;
    const Eigen::VectorXd slope =
        movesBy(inputs, Eigen::VectorXd::Unit(inputs.size(), m_setting) * inside) / inside;
    const Eigen::VectorXd moved = movesBy(inputs, shift * step) / step;
    const double squares = slope.squaredNorm();
    return squares > 0.0 ? -slope.dot(moved) / squares : 0.0;
}

// Places before the roll, in diameters.
std::vector<Vec3> MatchedCurve::places(double setting) const
{
    switch (m_session.kind) {
    case Kind::WaterLevel:
        return waterEdge(setting);
    case Kind::CrossSection:
        return planeRing(setting);
    case Kind::BranchAngle: {
        PipeLateral branch;
        branch.setLateralDiameterPercent(m_session.percentage * fractionPerPercent);
        return branchMouth(setting, branch.lateralDiameterPercent * radius);
    }
    default:
        return bendEnds(m_session, setting);
    }
}

std::vector<QPointF> MatchedCurve::pixels(const Eigen::VectorXd &inputs) const
{
    AlignmentNumbers fields;
    std::copy_n(inputs.data(), fields.size(), fields.begin());
    const FitCamera<double> camera(fields, m_session.picture.size);
    const bool hasClock = infoOf(m_session.kind).has(Uses::Clock);
    const double turnDEG = m_session.rollDEG + (hasClock ? m_session.clockDEG + clockZeroDEG : 0.0);
    std::vector<QPointF> pixels;
    for (const Vec3 &place : places(inputs[m_setting])) {
        const Vec3 turned = turnedAboutAxis(place, turnDEG);
        const bool isBehind = turned.z > camera.eye().z;
        const double x = isBehind ? std::numeric_limits<double>::quiet_NaN() : turned.x;
        pixels.push_back(camera.pixelOf({x, turned.y, turned.z}));
    }
    return pixels;
}

// Of each piece of a curve, across it, times the root of its share of the length.
Eigen::VectorXd MatchedCurve::moves(const std::vector<QPointF> &from,
                                    const std::vector<QPointF> &to) const
{
    const std::size_t count = std::min(from.size(), to.size());
    Eigen::VectorXd result = Eigen::VectorXd::Zero(static_cast<Eigen::Index>(count));
    double length = 0.0;
    for (std::size_t i = 1; i < count; ++i) {
        const QPointF along = from[i] - from[i - 1];
        const QPointF way = (to[i] + to[i - 1] - from[i] - from[i - 1]) / 2;
        const double piece = std::hypot(along.x(), along.y());
        if (isSeen(along) && isSeen(way) && piece > 0.0) {
            const double across = (along.x() * way.y() - along.y() * way.x()) / piece;
            result[static_cast<Eigen::Index>(i)] = across * std::sqrt(piece);
            length += piece;
        }
    }
    return length > 0.0 ? Eigen::VectorXd(result / std::sqrt(length)) : result;
}

Eigen::VectorXd MatchedCurve::movesBy(const Eigen::VectorXd &inputs,
                                      const Eigen::VectorXd &shift) const
{
    return moves(pixels(inputs), pixels(inputs + shift));
}

// The smallest way up to @p largest, which may be negative, by which the curve moves by px. It is
// looked for from near to far: the water of a full pipe and that of an empty one have their edges
// on one line across which nothing moves.
std::optional<double> MatchedCurve::wayToMove(const Eigen::VectorXd &inputs, double px,
                                              double largest) const
{
    const Eigen::VectorXd unit = Eigen::VectorXd::Unit(inputs.size(), m_setting);
    const std::vector<QPointF> before = pixels(inputs);
    const auto movesFar = [&](double way) {
        return moves(before, pixels(inputs + unit * way)).norm() > px;
    };
    int part = 1;
    while (part <= parts && !movesFar(largest * part / parts)) {
        ++part;
    }
    if (part > parts) {
        return std::nullopt;
    }
    double tooShort = largest * (part - 1) / parts;
    double enough = largest * part / parts;
    for (int i = 0; i < halvings; ++i) {
        const double middle = (tooShort + enough) / 2;
        (movesFar(middle) ? enough : tooShort) = middle;
    }
    return enough;
}

} // namespace Drevon::Zalento::Measuring
