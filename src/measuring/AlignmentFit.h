#pragma once

#include "measuring/Export.h"
#include "measuring/Result.h"

#include <QPointF>
#include <QSize>
#include <QVector>

#include <array>
#include <optional>

namespace Drevon::Zalento::Measuring {

/** The fields of a session that place the pipe's model before the picture, the roll aside. */
enum class AlignmentField {
    Offset,
    CameraHeightPercent,
    RearCircleX,
    RearCircleY,
    MouthPercent,
    FovYDEG
};
constexpr std::size_t alignmentFieldCount = 6;

/** The field's name in session files. */
ZALENTO_MEASURING_EXPORT QString alignmentFieldName(AlignmentField field);

/** A number for each AlignmentField, in the units of a session. */
using AlignmentNumbers = std::array<double, alignmentFieldCount>;

/** Where the pipe's model stands before the picture; the fields are those of a session. */
struct Alignment
{
    double offset = 0.0;               ///< Session::offset
    double cameraHeightPercent = 50.0; ///< Session::cameraHeightPercent
    double rearCircleX = 0.0;          ///< Session::rearCircleX
    double rearCircleY = 0.0;          ///< Session::rearCircleY
    double mouthPercent = 100.0; ///< side of the drawing area over the shorter side of the picture
    double fovYDEG = 37.5;       ///< of the picture's largest centred square

    /** The fields in the order of AlignmentField, and back. */
    ZALENTO_MEASURING_EXPORT AlignmentNumbers numbers() const;
    /** The inverse of numbers(). */
    ZALENTO_MEASURING_EXPORT static Alignment of(const AlignmentNumbers &numbers);
};

/** Fewest clicks that a ring and a line count with. */
constexpr int smallestRingClicks = 3;
constexpr int smallestLineClicks = 2;

/** Limits of Alignment::mouthPercent: a far joint in the middle, or one around the camera. */
constexpr double smallestMouthPercent = 5.0;
constexpr double largestMouthPercent = 400.0;
/** Limits of Alignment::fovYDEG: beyond, the picture of a pinhole camera is all distortion. */
constexpr double smallestFovDEG = 1.0;
constexpr double largestFovDEG = 170.0;

/**
 * Clicks on the edge of a joint or of any other cross-section of the pipe.
 *
 * Clicks are positions in the upright picture, from its top left corner, in pixels and their
 * fractions: (0.5, 0.5) is the middle of the first pixel.
 */
struct RingClicks
{
    std::optional<double> distanceMM; ///< along the pipe from the first ring, positive inwards
    QVector<QPointF> points;          ///< a ring with fewer than smallestRingClicks is left out
};

/** Clicks on a feature of the wall that runs along the pipe: a seam, a crack, the water's edge. */
struct LineClicks
{
    QVector<QPointF> points; ///< a line with fewer than smallestLineClicks is left out
};

/** Everything that was clicked to align the model. */
struct AlignmentClicks
{
    QVector<RingClicks> rings; ///< the first one with three clicks becomes the mouth
    QVector<LineClicks> lines; ///< lines along the pipe
    bool fitsFov = false;      ///< the field of view is asked for; two rings with distances give it
};

/** Names one click: of a ring, or of a line. */
struct ClickIndex
{
    bool isLine = false; ///< of a line, else of a ring
    int feature = 0;     ///< index in AlignmentClicks::rings or lines
    int point = 0;       ///< index in the clicks of the ring or the line
};

/** What the clicks say of the alignment, and how well. */
struct AlignmentFit
{
    Alignment alignment;            ///< fields that were not fitted stand as they were
    QVector<AlignmentField> fitted; ///< in the order of AlignmentField
    /** Fields that were asked for, but that the clicks do not determine. */
    QVector<AlignmentField> undetermined;
    /** Of the fitted fields, in the order of AlignmentField and squared units of the session;
        rows and columns of the other fields are 0: it holds for those as they stand. */
    std::array<AlignmentNumbers, alignmentFieldCount> covariance{};

    /** How far each fitted field (row) follows when a field that is not fitted (column) moves by 1,
        the clicks as they are; 0 elsewhere. */
    std::array<AlignmentNumbers, alignmentFieldCount> response{};
    /** The same for a diameter that is 1 mm larger: rings with distances come nearer. */
    AlignmentNumbers diameterResponse{};

    /** Distances of the clicks that count from the curves that are drawn, in pixels. A click that
        is suspicious, or on a line that could not be used, does not count. */
    double rmsPX = 0.0;
    double largestPX = 0.0;         ///< the largest of these distances
    QVector<ClickIndex> suspicious; ///< left out: the others contradict them

    /** From the drawn curve's nearest point to each click, in pixels, as the clicks stand in
        AlignmentClicks. Empty for a ring or a line that was left out. */
    QVector<QVector<QPointF>> ringResiduals;
    QVector<QVector<QPointF>> lineResiduals; ///< the same for the lines
    /** Of each ring behind the mouth, in mm; empty for a ring that was left out. */
    QVector<std::optional<double>> ringDepthsMM;
    /** Where each line runs along the wall, in degrees clockwise from the top of the mouth as it
        stands in the picture, [0, 360); empty for a line that was left out. The model's roll adds
        nothing to it: a pipe turned by the roll shows its clock angle less the roll there. */
    QVector<std::optional<double>> lineClocksDEG;

    /** Square root of the field's variance; 0 for a field that was not fitted. */
    ZALENTO_MEASURING_EXPORT double standardUncertainty(AlignmentField field) const;
};

/** Standard deviation of a click from what it is meant for, across the curve: a steady hand on a
    touch screen or a mouse, at the picture's own size. */
constexpr double clickSpreadPX = 1.0;

/**
 * Fits the alignment to the clicks: the sum of the squared distances, in pixels, of the clicks from
 * the drawn rings and lines becomes smallest. One click in eight may be wrong: those that do not
 * fit the others are left out and named (data snooping: W. Baarda, A testing procedure for use in
 * geodetic networks, 1968, in the order of B. Rosner, Technometrics 25, 1983).
 *
 * One ring gives the place (offset, camera height, size of the mouth); the direction (rear circle)
 * takes a second ring, or lines on at least two sides of the pipe. Lines alone give the direction
 * alone. The field of view takes two rings with known distances. The offset comes out as a whole
 * number of gesture units, as it is drawn, and its rounding counts in the covariance.
 *
 * The search begins at what the clicks tell, so that the same clicks give the same bits whatever
 * the fitted fields were before.
 *
 * @param start gives the fields that are not fitted
 * @param diameterMM of the pipe
 * @param picture size of the upright picture in pixels
 * @param spreadPX standard deviation of a click across the curve; the covariance follows it, or the
 *        clicks' own spread where that is clearly larger
 * @return a problem when there is nothing to fit, no alignment fits, or the fitted one cannot be
 *         drawn: the camera outside the pipe, or a far end that drawing corrects
 */
ZALENTO_MEASURING_EXPORT Result<AlignmentFit> fitAlignment(const AlignmentClicks &clicks,
                                                           const Alignment &start,
                                                           double diameterMM, const QSize &picture,
                                                           double spreadPX = clickSpreadPX);

} // namespace Drevon::Zalento::Measuring
