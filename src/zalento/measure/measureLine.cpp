#include "zalento/measure/measureLine.h"

#include "zalento/math/angles.h"

#include <cmath>

namespace Drevon::Zalento {

namespace {

constexpr double mmPerM = 1000;
constexpr double mm2PerM2 = 1000000;
constexpr double mPerMM = 0.001;

// A polygon needs two corners and the first one again.
constexpr std::size_t smallestPolygon = 3;

// Sum of the distances between neighbours, in 1/1000 of the positions' unit.
double lengthInMM(const std::vector<Vec3> &points)
{
    double length = 0.0;
    for (std::size_t k = 1; k < points.size(); ++k) {
        length += (points[k] - points[k - 1]).length() * mmPerM;
    }
    return length;
}

// Area enclosed in the x/y plane by the shoelace formula, in mm² for positions in metres.
double areaInMM2(const std::vector<Vec3> &points)
{
    double shoelace = 0.0;
    for (std::size_t k = 0; k + 1 < points.size(); ++k) {
        shoelace += points[k].x * points[k + 1].y - points[k].y * points[k + 1].x;
    }
    return std::abs(shoelace * 0.5) * mm2PerM2;
}

MeasuredValue valueOf(Quantity quantity, double number)
{
    return {quantity, number, std::isfinite(number) ? NoValue::None : NoValue::NotFinite};
}

LineMeasure measurePolygon(const std::vector<Vec3> &points, MeasureMode mode, double pipeRadiusMM)
{
    const double inside = areaInMM2(points);
    const double section = pi * (pipeRadiusMM * pipeRadiusMM);
    const bool isFree = mode == MeasureMode::FreeCrossSection;
    const double area = isFree ? section - inside : inside;
    return {isFree ? ObservableType::FreeAreaPercent : ObservableType::Area,
            valueOf(Quantity::Area, area), valueOf(Quantity::Fraction, area / section)};
}

// A crack's points are fractions of the viewport.
LineMeasure measureCrack(const std::vector<Vec3> &points, const LineScale &scale)
{
    LineMeasure measure;
    const double length = lengthInMM(points) * (scale.viewportWidthPx * mPerMM * scale.mmPerPixel);
    if (length == 0.0) {
        measure.value.why = scale.mmPerPixel == 0.0 ? NoValue::NoScale : NoValue::SamePlace;
        return measure;
    }
    measure.observable = ObservableType::Length;
    measure.value = valueOf(Quantity::Length, length);
    return measure;
}

} // namespace

LineMeasure measureLine(const std::vector<Vec3> &points, MeasureMode mode, const LineScale &scale)
{
    if (points.size() < 2) {
        return {};
    }
    if (isClosedPolygon(points, mode)) {
        return measurePolygon(points, mode, scale.pipeRadiusMM);
    }
    if (mode == MeasureMode::CrackWidth) {
        return measureCrack(points, scale);
    }
    const double length = lengthInMM(points);
    LineMeasure measure{ObservableType::Length, valueOf(Quantity::Length, length), {}};
    const bool isDiameter = mode == MeasureMode::CrossSection && points.size() == 2;
    if (isDiameter) {
        measure.share = valueOf(Quantity::Percent, length * 100 / (2 * scale.pipeRadiusMM));
    }
    return measure;
}

bool isClosedPolygon(const std::vector<Vec3> &points, MeasureMode mode)
{
    return !points.empty() && isClosedPolygon(points.front(), points.back(), points.size(), mode);
}

bool isClosedPolygon(const Vec3 &first, const Vec3 &last, std::size_t count, MeasureMode mode)
{
    return (mode == MeasureMode::CrossSection || mode == MeasureMode::FreeCrossSection) &&
           first == last && count >= smallestPolygon;
}

} // namespace Drevon::Zalento
