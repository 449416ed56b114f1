#include "measuring/StandardUncertainties.h"

#include "measuring/Editing.h"

#include <algorithm>
#include <cmath>

namespace Drevon::Zalento::Measuring {

namespace {

constexpr double fractionPerPercent = 0.01;
constexpr double radiansPerDegree = 0.017453292519943295;

double laserPartOf(const Session &session)
{
    const std::optional<double> distanceMM = laserDistanceOf(session);
    const std::optional<double> &givenMM = session.standardUncertainties.laserMM;
    return givenMM && distanceMM ? *givenMM / *distanceMM : defaultLaserPart;
}

// fov = 2 atan(a / f): dfov = 2 (a / f) / (1 + (a / f)^2) df / f.
double lensFovDEG(const Lens &lens, double fovYDEG)
{
    const double tangent = std::tan(fovYDEG * 0.5 * radiansPerDegree);
    const double focalPart =
        lens.focalLengthSDPX ? *lens.focalLengthSDPX / lens.fy() : defaultLensFocalPart;
    return 2.0 * tangent / (1.0 + tangent * tangent) * focalPart / radiansPerDegree;
}

} // namespace

bool operator==(const StandardUncertainties &a, const StandardUncertainties &b)
{
    const auto &rows = standardUncertaintyRows();
    return std::all_of(rows.begin(), rows.end(), [&](const StandardUncertaintyRow &row) {
        return a.*row.member == b.*row.member;
    });
}

const std::array<StandardUncertaintyRow, 6> &standardUncertaintyRows()
{
    using S = StandardUncertainties;
    static const std::array<StandardUncertaintyRow, 6> rows{{
        {"clickPX", "click-sd", "of a click, in pixels a coordinate", &S::clickPX},
        {"diameterMM", "diameter-sd", "of the diameter, in mm", &S::diameterMM},
        {"fovDEG", "fov-sd", "of the field of view unless it is fitted, in degrees", &S::fovDEG},
        {"alignmentPX", "alignment-sd", "of what is aligned by eye, in pixels", &S::alignmentPX},
        {"laserMM", "laser-sd", "of the laser spots' distance, in mm", &S::laserMM},
        {"scalePercent", "scale-sd", "of a scale that was typed, in percent", &S::scalePercent},
    }};
    return rows;
}

InputUncertainties inputUncertainties(const Session &session)
{
    const StandardUncertainties &given = session.standardUncertainties;
    InputUncertainties known;
    known.clickPX = given.clickPX.value_or(defaultClickPX);
    known.diameterMM = given.diameterMM.value_or(session.diameterMM * defaultDiameterPart);
    known.fovDEG = given.fovDEG.value_or(session.lens ? lensFovDEG(*session.lens, session.fovYDEG)
                                                      : defaultFovDEG);
    known.alignmentPX = given.alignmentPX.value_or(defaultAlignmentPX);
    known.laserPart = laserPartOf(session);
    known.scalePart =
        given.scalePercent ? *given.scalePercent * fractionPerPercent : defaultScalePart;
    return known;
}

} // namespace Drevon::Zalento::Measuring
