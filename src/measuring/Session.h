#pragma once

#include "measuring/AlignmentFit.h"
#include "measuring/Export.h"
#include "measuring/Kind.h"
#include "measuring/Lens.h"
#include "measuring/PictureIdentity.h"
#include "measuring/Result.h"
#include "measuring/StandardUncertainties.h"

#include "zalento/math/Vec3.h"
#include "zalento/pipes/ViewStyle.h"
#include "zalento/settings/MeasureUnit.h"

#include <QByteArray>
#include <QJsonObject>
#include <QMap>
#include <QPointF>
#include <QSize>
#include <QString>
#include <QVector>

#include <optional>

namespace Drevon::Zalento::Measuring {

/** Version of session files: "zalento-session 1.1". */
constexpr int sessionSchemaMajor = 1;
constexpr int sessionSchemaMinor = 1;

/** Which frame of a film a picture is. */
struct FilmFrame
{
    QString path;              ///< of the film, as PictureIdentity::path
    int number = 0;            ///< from 0, in the order in which they are shown
    double seconds = 0.0;      ///< after the first one
    QJsonObject unknownFields; ///< of a file written by a later version; kept
};

ZALENTO_MEASURING_EXPORT bool operator==(const FilmFrame &a, const FilmFrame &b);

/** A measurement point of the straight pipe. */
struct SessionPoint
{
    /** Where it was clicked, in pixels of the upright picture, from its top left corner. */
    QPointF pixel;
    /**
     * Where it lies in the scene, as in HitPoint::position. It holds even when the alignment has
     * changed since the click; without it the point is clicked anew.
     */
    std::optional<Vec3> position;
    QJsonObject unknownFields; ///< of a file written by a later version; kept
};

ZALENTO_MEASURING_EXPORT bool operator==(const SessionPoint &a, const SessionPoint &b);

/** What is to be measured: everything of a session that belongs to one measurement alone. */
struct Measurand
{
    QString name; ///< for people, such as "crack A"; only that of a single one may be empty
    Kind kind = Kind::PipeDimension; ///< what is measured
    double percentage = 0.0;         ///< KindInfo::percentage says of what
    double angleDEG = 90.0;          ///< of a branch, a bend or a joint
    int clockDEG = 0; ///< where a branch, a bend or a joint points, clockwise from the top
    bool viewDownstream = true; ///< a bend is seen from the straight pipe
    bool jointShown = false;    ///< in the kind BendAngle: a joint instead of a bend
    /** Of a kind that is set by eye: the operator has set or confirmed its value. */
    bool isSet = true;
    /** Results of the same measurement that were kept before it was done again: numbers by the
       names of the values. */
    QVector<QMap<QString, double>> repeats;
    QString limit; ///< that values are held against, such as "< 0.5 mm"; may be empty
    QVector<SessionPoint> points; ///< in the order of the clicks
    QJsonObject unknownMembers;   ///< of its object in a file's list of measurements; kept
};

ZALENTO_MEASURING_EXPORT bool operator==(const Measurand &a, const Measurand &b);

/**
 * Everything that measuring on a picture needs: the picture, how the pipe lies in it, and what is
 * measured. The session is the measurand at hand, to which all that measures, draws or edits keeps;
 * the others stand before and behind it, see Measurands.h. A value: cheap to copy, so that a copy
 * serves as an undo step.
 *
 * Percentages are in percent (0 to 100), as ZaItem's setters take them; gesture units are those of
 * ZaItem::move(): 576 are one diameter.
 */
struct Session : Measurand
{
    PictureIdentity picture; ///< that is measured on
    /** Was taken out of the picture that is shown: all pixels here are of the undistorted one. */
    std::optional<Lens> lens;
    std::optional<FilmFrame> film;  ///< that the picture was taken from
    std::optional<double> counterM; ///< metres along the pipe that the picture's counter shows
    MeasureUnit unit = MeasureUnit::Metric; ///< of the texts; numbers stay metric
    double diameterMM = 300.0;              ///< nominal
    double offset = 0.0;                    ///< of the model to the left, in gesture units
    double rollDEG = 0.0;                   ///< about the view axis
    double cameraHeightPercent = 50.0;      ///< across the diameter; 50 is the axis
    double fovYDEG = 37.5;                  ///< vertical field of view of the item's square area
    bool rearCircleActive = false;          ///< gestures move the rear circle instead of the model
    double rearCircleX = 0.0;               ///< of the pipe's far end to the left, in gesture units
    double rearCircleY = 0.0;               ///< the same, down
    double mouthPercent = 100.0; ///< drawing area over the picture's largest centred square
    QVector<RingClicks> rings;   ///< clicks that the alignment is fitted to
    QVector<LineClicks> lines;   ///< the same, of lines along the pipe
    bool fitsFov = false;        ///< the field of view is fitted, too, where the clicks give it
    ViewStyle viewStyle = ViewStyle::Full;                  ///< how much of the model is drawn
    QString calibrationText = QStringLiteral("LASER;;;50"); ///< see Pipe::parseIniFile()
    /** Millimetres per picture pixel; wins over what the calibration text gives. */
    std::optional<double> mmPerPixel;
    /** Where the two laser spots were clicked that gave #mmPerPixel; empty for one that was typed.
     */
    QVector<QPointF> laserSpots;
    StandardUncertainties standardUncertainties; ///< that were stated
    QVector<Measurand> measurandsBefore;         ///< the one at hand, in their order
    QVector<Measurand> measurandsBehind;         ///< those after it
    QJsonObject unknownFields;                   ///< of a file written by a later version; kept
    /** Minor version of the file that it goes into: ours, or the later one of the file it is from.
     */
    int schemaMinor = sessionSchemaMinor;
};

ZALENTO_MEASURING_EXPORT bool operator==(const Session &a, const Session &b);
inline bool operator!=(const Session &a, const Session &b)
{
    return !(a == b);
}

/** A number of a session with its limits, both included. */
struct SessionNumber
{
    const char *name;        ///< of the field in a file
    double Session::*member; ///< where it stands
    double smallest;         ///< inclusive
    double largest;          ///< inclusive
};

/** Every number that a session always has, the measurand's last. */
ZALENTO_MEASURING_EXPORT const QVector<SessionNumber> &sessionNumbers();

/** Limits of Session::mmPerPixel. */
constexpr double smallestMMPerPixel = 1e-6;
constexpr double largestMMPerPixel = 1e4;
/** Limit of Session::counterM in both directions. */
constexpr double largestCounterM = 1e6;
/** Limit of RingClicks::distanceMM in both directions. */
constexpr double largestRingDistanceMM = 1e7;
/** The camera's laser throws this many spots. */
constexpr int laserSpotCount = 2;
/** Limit of Session::clockDEG in both directions. */
constexpr int largestClockDEG = 3600;

/** Names of choices in files and on the command line. */
ZALENTO_MEASURING_EXPORT QString unitName(MeasureUnit unit);
ZALENTO_MEASURING_EXPORT std::optional<MeasureUnit>
unitNamed(const QString &name); ///< "metric", "imperial"
ZALENTO_MEASURING_EXPORT QString directionName(bool downstream);
ZALENTO_MEASURING_EXPORT std::optional<bool>
directionNamed(const QString &name); ///< "downstream" (true), "upstream"
ZALENTO_MEASURING_EXPORT QString viewStyleName(ViewStyle style);
ZALENTO_MEASURING_EXPORT std::optional<ViewStyle>
viewStyleNamed(const QString &name); ///< "measure", "ends", "full"

/** What is wrong with the session: names the field and what was expected. */
ZALENTO_MEASURING_EXPORT Outcome checkSession(const Session &session);

/** The same for one number: "<name>: expected a number from .. to .., found ..". */
ZALENTO_MEASURING_EXPORT Outcome checkNumber(const QString &name, double value, double smallest,
                                             double largest);

} // namespace Drevon::Zalento::Measuring
