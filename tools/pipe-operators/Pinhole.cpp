#include "Pinhole.h"

#include <algorithm>
#include <array>

namespace Drevon::Zalento::Tools {

using namespace Measuring;

namespace {

constexpr double largestEccentricity = 0.1; // of the diameter
constexpr double largestTurn = 0.25;        // of the field of view

// Radius of the first joint over the picture's shorter side.
constexpr double smallestJoint = 0.25;
constexpr double largestJoint = 0.48;

} // namespace

// The fields of a session as the guide describes them: the mouth's centre in gesture units (576 a
// diameter, to the left) and in percent of the height; the mouth's size; the turn of the axis, of
// which half the field of view of the drawing area is 85 units to the left and 50 down.
Alignment alignmentOf(const View &view, double fovDEG)
{
    const double k = 0.5 * 1.02 / view.mouth.z / std::tan(fovDEG * 0.5 * radians);
    const double half = std::atan(0.5 * 1.02 / view.mouth.z);
    return {-576.0 * view.mouth.x,
            50.0 + 100.0 * view.mouth.y,
            -85.0 * std::atan2(view.axis.x, view.axis.z) / half,
            50.0 * std::asin(view.axis.y) / half,
            100.0 * k,
            fovDEG};
}

View viewOf(const Alignment &a, const QSize &picture)
{
    const double tangent = a.mouthPercent * 0.01 * std::tan(a.fovYDEG * 0.5 * radians);
    const double half = std::atan(tangent);
    View view = View::towards(-a.rearCircleX / 85.0 * half, a.rearCircleY / 50.0 * half, picture,
                              a.fovYDEG);
    view.mouth = {-a.offset / 576.0, (a.cameraHeightPercent - 50.0) * 0.01, 0.5 * 1.02 / tangent};
    return view;
}

View drawView(Random &random, double fovDEG)
{
    constexpr std::array<std::array<int, 2>, 4> sizes{
        {{768, 576}, {1024, 768}, {1280, 720}, {1600, 1200}}};
    const auto &size = sizes[static_cast<std::size_t>(random.between(0, sizes.size()))];
    const double turn = random.between(0, largestTurn) * fovDEG * radians;
    const double side = random.between(-pi, pi);
    View view = View::towards(turn * std::cos(side), turn * std::sin(side), QSize(size[0], size[1]),
                              fovDEG);
    const double radiusPX =
        random.between(smallestJoint, largestJoint) * std::min(size[0], size[1]);
    const double eccentricity = largestEccentricity * std::sqrt(random.between(0, 1));
    const double angle = random.between(-pi, pi);
    view.mouth = (view.focalPX * 0.5 / radiusPX) * view.axis +
                 eccentricity * std::cos(angle) * view.right +
                 eccentricity * std::sin(angle) * view.down;
    return view;
}

} // namespace Drevon::Zalento::Tools
