#include "measuring/Lens.h"

#include "measuring/AlignmentFit.h"
#include "measuring/Count.h"
#include "measuring/Text.h"

#include <algorithm>
#include <cmath>
#include <tuple>

namespace Drevon::Zalento::Measuring {

namespace {

constexpr double radiansPerDegree = 0.017453292519943295;
// The matrix counts from the middle of the first pixel, everything else here from its corner.
constexpr double halfPixel = 0.5;
// Steps of a degree in which the lens is searched for a fold.
constexpr double foldStepDEG = 0.05;
// An outline that a lens bends is followed closely enough with so many places a side.
constexpr int samplesPerSide = 64;
// Each halves the error; the last bits of a double.
constexpr int halvings = 60;
// Each squares the error; what does not get there in so many does not get there.
constexpr int newtonSteps = 30;
// Of a direction: far below a thousandth of a pixel of any camera.
constexpr double directionTolerance = 1e-12;
// Bounds of a focal length in pixels, and of any coefficient.
constexpr double largestFocalPX = 1e6;
constexpr double largestCoefficient = 1e6;

double halfTangent(double fovDEG)
{
    return std::tan(fovDEG * 0.5 * radiansPerDegree);
}

// Places around a rectangle about the origin.
QVector<QPointF> outlineOf(double halfWidth, double halfHeight)
{
    QVector<QPointF> outline;
    for (int i = 0; i <= samplesPerSide; ++i) {
        const double share = 2.0 * i / samplesPerSide - 1.0;
        outline += QPointF(share * halfWidth, -halfHeight);
        outline += QPointF(share * halfWidth, halfHeight);
        outline += QPointF(-halfWidth, share * halfHeight);
        outline += QPointF(halfWidth, share * halfHeight);
    }
    return outline;
}

Problem fieldProblem(const char *field, const QString &expected)
{
    return {QLatin1String("lens.") + QLatin1String(field), expected};
}

Outcome checkMatrix(const std::array<double, 9> &matrix)
{
    const bool isFinite =
        std::all_of(matrix.begin(), matrix.end(), [](double v) { return std::isfinite(v); });
    const bool isUpright = matrix[1] == 0.0 && matrix[3] == 0.0 && matrix[6] == 0.0 &&
                           matrix[7] == 0.0 && matrix[8] == 1.0;
    if (!isFinite || !isUpright) {
        return fieldProblem("cameraMatrix",
                            Text::tr("expected fx, 0, cx, 0, fy, cy, 0, 0, 1, row by row"));
    }
    if (matrix[0] <= 0 || matrix[4] <= 0 || std::max(matrix[0], matrix[4]) > largestFocalPX) {
        return fieldProblem(
            "cameraMatrix",
            Text::tr("expected focal lengths above 0 and up to %1 pixels, found %2 and %3")
                .arg(largestFocalPX)
                .arg(matrix[0])
                .arg(matrix[4]));
    }
    return {};
}

Outcome checkDistortion(const QVector<double> &distortion)
{
    const int count = countOf(distortion);
    if (count != 4 && count != 5 && count != 8) {
        return fieldProblem("distortion",
                            Text::tr("expected 4, 5 or 8 numbers, found %1").arg(count));
    }
    const bool isUsable = std::all_of(distortion.begin(), distortion.end(),
                                      [](double k) { return std::abs(k) <= largestCoefficient; });
    return isUsable ? Outcome()
                    : Outcome(fieldProblem(
                          "distortion",
                          Text::tr("expected finite numbers up to %1").arg(largestCoefficient)));
}

} // namespace

bool operator==(const Lens &a, const Lens &b)
{
    const auto fields = [](const Lens &lens) {
        return std::tie(lens.name, lens.size, lens.cameraMatrix, lens.distortion, lens.view,
                        lens.focalLengthSDPX, lens.unknownFields);
    };
    return fields(a) == fields(b);
}

QString lensViewName(LensView view)
{
    return view == LensView::All ? QStringLiteral("all") : QStringLiteral("square");
}

std::optional<LensView> lensViewNamed(const QString &name)
{
    for (const LensView view : {LensView::Square, LensView::All}) {
        if (name == lensViewName(view)) {
            return view;
        }
    }
    return std::nullopt;
}

LensMapping::LensMapping(const Lens &lens)
    : m_size(lens.size)
    , m_takenFocalPX(lens.fx(), lens.fy())
    , m_takenCentre(lens.cameraMatrix[2] + halfPixel, lens.cameraMatrix[5] + halfPixel)
{
    std::copy(lens.distortion.begin(), lens.distortion.end(), m_coefficients.begin());
    m_foldRadius = foldRadius();
    const double halfSide = lens.view == LensView::Square ? largestFullSquare() : squareOfAll();
    m_shownFocalPX = std::min(m_size.width(), m_size.height()) * 0.5 / halfSide;
}

Result<LensMapping> LensMapping::of(const Lens &lens)
{
    if (lens.size.isEmpty()) {
        return fieldProblem("size", Text::tr("expected a width and a height in pixels"));
    }
    for (const Outcome &problem :
         {checkMatrix(lens.cameraMatrix), checkDistortion(lens.distortion)}) {
        if (problem) {
            return *problem;
        }
    }
    const LensMapping mapping(lens);
    const double fovYDEG = mapping.fovYDEG();
    if (!(fovYDEG >= smallestFovDEG && fovYDEG <= largestFovDEG)) {
        return fieldProblem("cameraMatrix",
                            Text::tr("the picture of this lens would have a field of view of %1 "
                                     "degrees, expected %2 to %3")
                                .arg(fovYDEG)
                                .arg(smallestFovDEG)
                                .arg(largestFovDEG));
    }
    return mapping;
}

double LensMapping::fovYDEG() const
{
    const double halfSide = std::min(m_size.width(), m_size.height()) * 0.5;
    return 2.0 * std::atan(halfSide / m_shownFocalPX) / radiansPerDegree;
}

std::optional<QPointF> LensMapping::toTaken(const QPointF &shown) const
{
    return takenOf(QPointF(shown.x() - m_size.width() * 0.5, shown.y() - m_size.height() * 0.5) /
                   m_shownFocalPX);
}

std::optional<QPointF> LensMapping::toShown(const QPointF &taken) const
{
    const std::optional<QPointF> direction = directionOf(taken);
    if (!direction) {
        return std::nullopt;
    }
    return *direction * m_shownFocalPX + QPointF(m_size.width() * 0.5, m_size.height() * 0.5);
}

std::optional<QPointF> LensMapping::takenOf(const QPointF &direction) const
{
    if (std::hypot(direction.x(), direction.y()) >= m_foldRadius) {
        return std::nullopt;
    }
    const QPointF bent = bend(direction).place;
    return QPointF(bent.x() * m_takenFocalPX.x(), bent.y() * m_takenFocalPX.y()) + m_takenCentre;
}

// Newton's method. The bent radius is concave for a barrel and convex for a cushion, so that the
// search comes from one side and does not leave for another fold.
std::optional<QPointF> LensMapping::directionOf(const QPointF &taken) const
{
    const QPointF offset = taken - m_takenCentre;
    const QPointF wanted(offset.x() / m_takenFocalPX.x(), offset.y() / m_takenFocalPX.y());
    QPointF direction = wanted;
    for (int i = 0; i < newtonSteps; ++i) {
        const Bent bent = bend(direction);
        const QPointF error = wanted - bent.place;
        const double determinant = bent.byX.x() * bent.byY.y() - bent.byX.y() * bent.byY.x();
        const QPointF step((error.x() * bent.byY.y() - error.y() * bent.byY.x()) / determinant,
                           (error.y() * bent.byX.x() - error.x() * bent.byX.y()) / determinant);
        direction += step;
        if (!(std::hypot(direction.x(), direction.y()) < m_foldRadius)) {
            return std::nullopt;
        }
        if (std::hypot(step.x(), step.y()) < directionTolerance) {
            return direction;
        }
    }
    return std::nullopt;
}

// Brown's formulas, with the derivatives of the place.
LensMapping::Bent LensMapping::bend(const QPointF &direction) const
{
    const auto &[k1, k2, p1, p2, k3, k4, k5, k6] = m_coefficients;
    const double x = direction.x();
    const double y = direction.y();
    const double r2 = x * x + y * y;
    const double upper = 1.0 + r2 * (k1 + r2 * (k2 + r2 * k3));
    const double lower = 1.0 + r2 * (k4 + r2 * (k5 + r2 * k6));
    const double radial = upper / lower;
    const double upperSlope = k1 + r2 * (2.0 * k2 + r2 * 3.0 * k3);
    const double lowerSlope = k4 + r2 * (2.0 * k5 + r2 * 3.0 * k6);
    const double slope = (upperSlope - radial * lowerSlope) / lower; // by r2
    const double mixed = 2.0 * (x * y * slope + p1 * x + p2 * y);
    return {{x * radial + 2.0 * p1 * x * y + p2 * (r2 + 2.0 * x * x),
             y * radial + p1 * (r2 + 2.0 * y * y) + 2.0 * p2 * x * y},
            {radial + 2.0 * (x * x * slope + p1 * y + 3.0 * p2 * x), mixed},
            {mixed, radial + 2.0 * (y * y * slope + 3.0 * p1 * y + p2 * x)}};
}

// The tangential part is small against the radial one, and turns no lens back.
double LensMapping::bentRadius(double radius) const
{
    const auto &[k1, k2, p1, p2, k3, k4, k5, k6] = m_coefficients;
    const double r2 = radius * radius;
    const double lower = 1.0 + r2 * (k4 + r2 * (k5 + r2 * k6));
    return lower > 0.0 ? radius * (1.0 + r2 * (k1 + r2 * (k2 + r2 * k3))) / lower : -1.0;
}

// Polynomials that were fitted inside of the picture turn back somewhere outside of it.
double LensMapping::foldRadius() const
{
    double before = 0.0;
    for (double angleDEG = foldStepDEG; angleDEG * 2.0 < largestFovDEG; angleDEG += foldStepDEG) {
        const double radius = std::tan(angleDEG * radiansPerDegree);
        const double bent = bentRadius(radius);
        if (bent <= before) {
            return std::tan((angleDEG - foldStepDEG) * radiansPerDegree);
        }
        before = bent;
    }
    // The corners of a picture lie farther out than its sides.
    return halfTangent(largestFovDEG) * 2.0;
}

bool LensMapping::fitsIntoTaken(const QPointF &direction) const
{
    // What rounding puts out of the picture is in it.
    constexpr double tolerancePX = 1e-9;
    const std::optional<QPointF> taken = takenOf(direction);
    return taken && taken->x() >= -tolerancePX && taken->y() >= -tolerancePX &&
           taken->x() <= m_size.width() + tolerancePX &&
           taken->y() <= m_size.height() + tolerancePX;
}

bool LensMapping::isSquareFull(double halfSide) const
{
    const QVector<QPointF> outline = outlineOf(halfSide, halfSide);
    return std::all_of(outline.begin(), outline.end(),
                       [this](const QPointF &place) { return fitsIntoTaken(place); });
}

double LensMapping::largestFullSquare() const
{
    double full = 0.0;
    double over = halfTangent(largestFovDEG);
    for (int i = 0; i < halvings; ++i) {
        const double middle = 0.5 * (full + over);
        (isSquareFull(middle) ? full : over) = middle;
    }
    return full;
}

// Half the side of the square in a picture of the same shape around all that was taken.
double LensMapping::squareOfAll() const
{
    const double shorter = std::min(m_size.width(), m_size.height());
    const QPointF middle(m_size.width() * 0.5, m_size.height() * 0.5);
    double halfSide = 0.0;
    for (const QPointF &place : outlineOf(middle.x(), middle.y())) {
        if (const std::optional<QPointF> direction = directionOf(middle + place)) {
            halfSide = std::max({halfSide, std::abs(direction->x()) * shorter / m_size.width(),
                                 std::abs(direction->y()) * shorter / m_size.height()});
        }
    }
    return std::min(halfSide, halfTangent(largestFovDEG));
}

Outcome checkLens(const Lens &lens)
{
    if (lens.focalLengthSDPX &&
        !(*lens.focalLengthSDPX >= 0.0 && *lens.focalLengthSDPX <= largestFocalPX)) {
        return fieldProblem("focalLengthSDPX",
                            Text::tr("expected a number from 0 to %1").arg(largestFocalPX));
    }
    const Result<LensMapping> mapping = LensMapping::of(lens);
    return mapping ? Outcome() : Outcome(mapping.problem());
}

} // namespace Drevon::Zalento::Measuring
