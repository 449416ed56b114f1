#pragma once

#include "measuring/Kind.h"
#include "measuring/Result.h"
#include "measuring/Session.h"

#include <QCommandLineParser>
#include <QPointF>
#include <QString>
#include <QVector>

#include <optional>

namespace Drevon::Zalento::Apps {

using namespace Measuring;

/** What the command line says about a session; what it leaves out stays as it is. */
struct SessionOptions
{
    /** A number that was given. */
    struct Number
    {
        QString option; ///< without dashes
        double Session::*member;
        double value;
    };

    QVector<Number> numbers;
    std::optional<Kind> kind;
    std::optional<MeasureUnit> unit;
    std::optional<QPointF> rearCircle; ///< in gesture units
    std::optional<bool> rearCircleActive;
    std::optional<int> clockDEG;
    std::optional<bool> viewDownstream;
    std::optional<bool> jointShown;
    std::optional<ViewStyle> viewStyle;
    std::optional<QString> calibrationText;
    std::optional<double> mmPerPixel;
    std::optional<QVector<QPointF>> clicks;   ///< replace the session's points, or set the level
    QVector<QPointF> laserSpots;              ///< two, or none
    std::optional<QVector<RingClicks>> rings; ///< replace the session's
    std::optional<QVector<LineClicks>> lines;
    bool fitsFov = false;
    std::optional<Lens> lens; ///< replaces the session's
    std::optional<LensView> lensView;
    bool fitsLens = false; ///< clicks are those of the picture as it was taken
    StandardUncertainties standardUncertainties; ///< replace the session's, one by one
    std::optional<QString> limit;

    bool hasNumber(double Session::*member) const;

    /** True when an option gives the session's field of this name, one of the alignment's. */
    bool givesAlignment(const QString &fieldName) const;

    /**
     * Changes the session. A change of the kind drops points that were made for another; a value
     * that is set by eye is set by its own option alone.
     */
    void applyTo(Session &session) const;

    /** Takes the lens for a session that knows its picture's size. */
    Outcome takeLensFor(Session &session) const;

    /** Names the first option that means nothing to the kind. */
    Outcome misfit(const KindInfo &info) const;
};

/** Declares the options that applyTo() knows. */
void addSessionOptions(QCommandLineParser &parser);

/** Reads them; the files of calibration and lens are not read. A problem names the option. */
Result<SessionOptions> readSessionOptions(const QCommandLineParser &parser);

/** The distance along the pipe that an option gives in mm; nothing without it. */
Result<std::optional<double>> readDistance(const QCommandLineParser &parser, const char *option);

/** Options that the kind takes beside those of the alignment, each with its leading dashes. */
QStringList optionsOf(const KindInfo &info);

/** A point "X,Y" with '.' as decimal mark. */
std::optional<QPointF> parsePoint(const QString &text);

} // namespace Drevon::Zalento::Apps
