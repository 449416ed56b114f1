#pragma once

#include "measuring/Export.h"

#include <array>
#include <optional>

namespace Drevon::Zalento::Measuring {

struct Session;

/** Standard uncertainties of a session's inputs that it names itself; the others have defaults. */
struct StandardUncertainties
{
    std::optional<double> clickPX;      ///< of a click, a coordinate
    std::optional<double> diameterMM;   ///< of the nominal diameter
    std::optional<double> fovDEG;       ///< of a field of view that was not fitted
    std::optional<double> alignmentPX;  ///< of a curve that is matched by eye
    std::optional<double> laserMM;      ///< of the distance of the laser spots
    std::optional<double> scalePercent; ///< of a scale that was typed
};

ZALENTO_MEASURING_EXPORT bool operator==(const StandardUncertainties &a,
                                         const StandardUncertainties &b);

/** One of the numbers, with its name in files and on the command line. */
struct StandardUncertaintyRow
{
    const char *name;                                     ///< in a session file
    const char *option;                                   ///< of zalento-measure
    const char *meaning;                                  ///< for people, with its unit
    std::optional<double> StandardUncertainties::*member; ///< where it stands
};

ZALENTO_MEASURING_EXPORT const std::array<StandardUncertaintyRow, 6> &standardUncertaintyRows();

/** Largest standard uncertainty of any input, in its unit: far more than anything known. */
constexpr double largestStandardUncertainty = 1e5;

/** A steady hand on a touch screen or a mouse, at the picture's own size. */
constexpr double defaultClickPX = 1.0;
/** What the eye lets pass between a drawn curve and the edge that it is laid on. */
constexpr double defaultAlignmentPX = 2.0;
/** Of the nominal diameter: common pipes keep it within 1 percent; the standard deviation of a
    rectangle of that half-width. */
constexpr double defaultDiameterPart = 0.006;
/** Data sheets of cameras name whole degrees, and lenses differ by as much. */
constexpr double defaultFovDEG = 1.0;
/** Of the focal length of a lens whose file does not tell it: calibrations with a board that are
    repeated differ by less. */
constexpr double defaultLensFocalPart = 0.005;
/** Of the spots' distance: half a millimetre in the usual 50. */
constexpr double defaultLaserPart = 0.01;
/** Of a scale that was typed, taken from something of known size in the picture. */
constexpr double defaultScalePart = 0.02;

/** A session's standard uncertainties, the defaults put in; parts are parts of the whole. */
struct InputUncertainties
{
    double clickPX = defaultClickPX;         ///< of a click, along each axis
    double diameterMM = 0.0;                 ///< of the inner diameter
    double fovDEG = defaultFovDEG;           ///< of the vertical field of view
    double alignmentPX = defaultAlignmentPX; ///< of the model in the picture
    double laserPart = defaultLaserPart;     ///< of the distance of the laser spots
    double scalePart = defaultScalePart;     ///< of millimetres per pixel
};

ZALENTO_MEASURING_EXPORT InputUncertainties inputUncertainties(const Session &session);

} // namespace Drevon::Zalento::Measuring
