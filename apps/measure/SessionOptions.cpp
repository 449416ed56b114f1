#include "measure/SessionOptions.h"

#include "measuring/Editing.h"
#include "measuring/Limit.h"
#include "measuring/SessionLens.h"
#include "measuring/Unrolling.h"

#include <QStringList>

#include <algorithm>
#include <cmath>

namespace Drevon::Zalento::Apps {

namespace {

struct NumberOption
{
    const char *name;
    double Session::*member;
    const char *valueName;
    const char *description;
};

constexpr NumberOption numberOptions[] = {
    {"diameter", &Session::diameterMM, "MM", "Nominal diameter in millimetres."},
    {"fov", &Session::fovYDEG, "DEG",
     "Vertical field of view in degrees of the largest centred square of the picture."},
    {"camera-height", &Session::cameraHeightPercent, "PERCENT",
     "Height of the camera in percent of the diameter; 50 is the axis."},
    {"mouth", &Session::mouthPercent, "PERCENT",
     "Size of the mouth's circle in percent of the largest centred square; 100 fills it."},
    {"offset", &Session::offset, "UNITS",
     "Shifts the model to the left; 576 units are one diameter."},
    {"roll", &Session::rollDEG, "DEG", "Rotation about the view axis in degrees."},
    {"percentage", &Session::percentage, "PERCENT",
     "Water level, place of the cross-section, diameter of the branch, or length of the joint's "
     "continuation, as the kind has it."},
    {"angle", &Session::angleDEG, "DEG", "Angle of the branch, the bend or the joint in degrees."},
};

/** Collects values out of a parser; keeps the first problem. */
class OptionReader
{
public:
    explicit OptionReader(const QCommandLineParser &parser)
        : m_parser(parser)
    {}

    /** The first problem so far. */
    const Outcome &problem() const { return m_problem; }

    std::optional<double> number(const char *name, double smallest, double largest)
    {
        const std::optional<QString> text = value(name);
        if (!text) {
            return std::nullopt;
        }
        bool isNumber = false;
        const double number = text->toDouble(&isNumber);
        if (!isNumber) {
            fail(name, QStringLiteral("a number such as 12.5"), *text);
            return std::nullopt;
        }
        note(checkNumber(dashed(name), number, smallest, largest));
        return number;
    }

    std::optional<int> wholeNumber(const char *name, int limit)
    {
        const std::optional<double> found = number(name, -limit, limit);
        if (!found || m_problem) {
            return std::nullopt;
        }
        if (*found != std::floor(*found)) {
            fail(name, QStringLiteral("a whole number"), m_parser.value(QLatin1String(name)));
        }
        return static_cast<int>(*found);
    }

    template <typename Lookup>
    auto choice(const char *name, const char *expected, Lookup lookup)
        -> decltype(lookup(QString()))
    {
        const std::optional<QString> text = value(name);
        if (!text) {
            return std::nullopt;
        }
        const auto found = lookup(*text);
        if (!found) {
            fail(name, QLatin1String(expected), *text);
        }
        return found;
    }

    std::optional<QPointF> point(const char *name)
    {
        return choice(name, "X,Y such as 120,45.5", parsePoint);
    }

    std::optional<QString> value(const char *name)
    {
        const QStringList values = m_parser.values(QLatin1String(name));
        if (values.size() > 1) {
            note(Problem{
                {}, QStringLiteral("%1 is given %2 times").arg(dashed(name)).arg(values.size())});
        }
        return values.isEmpty() ? std::nullopt : std::optional<QString>(values.first());
    }

    bool isSet(const char *name) const { return m_parser.isSet(QLatin1String(name)); }

    void fail(const char *name, const QString &expected, const QString &found)
    {
        note(Problem{dashed(name),
                     QStringLiteral("expected %1, found \"%2\"").arg(expected, found)});
    }

    void note(const Outcome &problem)
    {
        if (!m_problem) {
            m_problem = problem;
        }
    }

private:
    static QString dashed(const char *name) { return QStringLiteral("--") + QLatin1String(name); }

    const QCommandLineParser &m_parser;
    Outcome m_problem;
};

QString knownKinds()
{
    return kindNames().join(QStringLiteral(", "));
}

const SessionNumber &limitsOf(double Session::*member)
{
    const auto &numbers = sessionNumbers();
    return *std::find_if(numbers.begin(), numbers.end(),
                         [member](const SessionNumber &number) { return number.member == member; });
}

void readNumbers(OptionReader &reader, SessionOptions &options)
{
    for (const NumberOption &option : numberOptions) {
        const SessionNumber &limits = limitsOf(option.member);
        const auto value = reader.number(option.name, limits.smallest, limits.largest);
        if (value) {
            options.numbers.append({QLatin1String(option.name), option.member, *value});
        }
    }
}

void readRearCircle(OptionReader &reader, SessionOptions &options)
{
    options.rearCircle = reader.point("rear-circle");
    const QPointF position = options.rearCircle.value_or(QPointF());
    const SessionNumber &limits = limitsOf(&Session::rearCircleX);
    for (const double coordinate : {position.x(), position.y()}) {
        reader.note(checkNumber(QStringLiteral("--rear-circle"), coordinate, limits.smallest,
                                limits.largest));
    }
    if (reader.isSet("rear-circle-active")) {
        options.rearCircleActive = true;
    }
}

void readLens(OptionReader &reader, SessionOptions &options)
{
    options.lensView = reader.choice("lens-view", "square or all", lensViewNamed);
    options.fitsLens = reader.isSet("fit-lens");
    const bool isGiven = reader.value("lens").has_value();
    if (isGiven && options.fitsLens) {
        reader.note(Problem{{}, QStringLiteral("--lens and --fit-lens both give the lens")});
    }
    if (isGiven && options.hasNumber(&Session::fovYDEG)) {
        reader.note(Problem{{}, QStringLiteral("--lens and --fov both give the field of view")});
    }
}

void readChoices(OptionReader &reader, SessionOptions &options)
{
    options.unit = reader.choice("unit", "metric or imperial", unitNamed);
    options.viewDownstream = reader.choice("direction", "downstream or upstream", directionNamed);
    options.viewStyle = reader.choice("view-style", "measure, ends or full", viewStyleNamed);
    const QByteArray expectedKind = "one of " + knownKinds().toLatin1();
    options.kind = reader.choice("kind", expectedKind.constData(), kindNamed);
    options.clockDEG = reader.wholeNumber("clock", largestClockDEG);
    if (reader.isSet("joint")) {
        options.jointShown = true;
    }
}

void readLaserSpots(OptionReader &reader, SessionOptions &options)
{
    const std::optional<QString> text = reader.value("laser");
    if (!text) {
        return;
    }
    for (const QString &spot : text->split(QLatin1Char(' '), Qt::SkipEmptyParts)) {
        options.laserSpots += parsePoint(spot).value_or(QPointF(qQNaN(), qQNaN()));
    }
    const bool areNumbers = std::all_of(options.laserSpots.begin(), options.laserSpots.end(),
                                        [](const QPointF &spot) { return !std::isnan(spot.x()); });
    if (options.laserSpots.size() != 2 || !areNumbers) {
        reader.fail("laser", QStringLiteral("two points X,Y X,Y"), *text);
    }
    if (options.mmPerPixel) {
        reader.note(Problem{{}, QStringLiteral("--laser and --mm-per-pixel both give the scale")});
    }
}

const QChar distanceMark('@');

// "X,Y X,Y ...": the points, or nothing when one is none.
std::optional<QVector<QPointF>> parsePoints(const QStringList &texts)
{
    QVector<QPointF> points;
    for (const QString &text : texts) {
        const std::optional<QPointF> point = parsePoint(text);
        if (!point) {
            return std::nullopt;
        }
        points += *point;
    }
    return points;
}

// "X,Y X,Y X,Y @MM": the distance is optional.
std::optional<RingClicks> parseRing(const QString &text)
{
    RingClicks ring;
    QStringList words = text.split(QLatin1Char(' '), Qt::SkipEmptyParts);
    if (!words.isEmpty() && words.last().startsWith(distanceMark)) {
        bool isNumber = false;
        ring.distanceMM = words.takeLast().mid(1).toDouble(&isNumber);
        if (!isNumber || !std::isfinite(*ring.distanceMM)) {
            return std::nullopt;
        }
    }
    const auto points = parsePoints(words);
    ring.points = points.value_or(QVector<QPointF>());
    return ring.points.size() >= smallestRingClicks ? std::optional<RingClicks>(ring)
                                                    : std::nullopt;
}

std::optional<LineClicks> parseLine(const QString &text)
{
    const auto points = parsePoints(text.split(QLatin1Char(' '), Qt::SkipEmptyParts));
    return points && points->size() >= smallestLineClicks ? std::optional<LineClicks>({*points})
                                                          : std::nullopt;
}

template <typename Clicks, typename Parse>
std::optional<QVector<Clicks>> readFeatures(const QCommandLineParser &parser, OptionReader &reader,
                                            const char *name, const char *expected, Parse parse)
{
    QVector<Clicks> features;
    for (const QString &text : parser.values(QLatin1String(name))) {
        const std::optional<Clicks> feature = parse(text);
        if (!feature) {
            reader.fail(name, QLatin1String(expected), text);
            return std::nullopt;
        }
        features += *feature;
    }
    return features.isEmpty() ? std::nullopt : std::optional<QVector<Clicks>>(features);
}

void readAlignmentClicks(const QCommandLineParser &parser, OptionReader &reader,
                         SessionOptions &options)
{
    options.rings = readFeatures<RingClicks>(
        parser, reader, "ring", "three points or more \"X,Y X,Y X,Y\", at its end @MM", parseRing);
    for (const RingClicks &ring : options.rings.value_or(QVector<RingClicks>())) {
        reader.note(checkNumber(QStringLiteral("--ring"), ring.distanceMM.value_or(0.0),
                                -largestRingDistanceMM, largestRingDistanceMM));
    }
    options.lines = readFeatures<LineClicks>(parser, reader, "line",
                                             "two points or more \"X,Y X,Y\"", parseLine);
    options.fitsFov = reader.isSet("fit-fov");
}

void readClicks(const QCommandLineParser &parser, OptionReader &reader, SessionOptions &options)
{
    QVector<QPointF> clicks;
    for (const QString &text : parser.values(QStringLiteral("click"))) {
        const std::optional<QPointF> point = parsePoint(text);
        if (!point) {
            reader.fail("click", QStringLiteral("X,Y such as 120,45.5"), text);
            return;
        }
        clicks += *point;
    }
    if (!clicks.isEmpty()) {
        options.clicks = clicks;
    }
}

void readUncertainties(OptionReader &reader, SessionOptions &options)
{
    for (const StandardUncertaintyRow &row : standardUncertaintyRows()) {
        options.standardUncertainties.*row.member =
            reader.number(row.option, 0.0, largestStandardUncertainty);
    }
    options.limit = reader.value("limit");
    if (options.limit) {
        const Result<Limit> limit = limitFromText(*options.limit);
        reader.note(limit ? Outcome()
                          : Outcome(Problem{QStringLiteral("--limit"), limit.problem().what}));
    }
}

void addOption(QCommandLineParser &parser, const char *name, const char *description,
               const char *valueName)
{
    parser.addOption(QCommandLineOption(QLatin1String(name), QLatin1String(description),
                                        QLatin1String(valueName)));
}

// The option that gives what is set by eye for the kind.
double Session::*settingOf(const KindInfo &info)
{
    return info.has(Uses::Angle) ? &Session::angleDEG : &Session::percentage;
}

Outcome waterMisfit(const SessionOptions &options, const KindInfo &info)
{
    if (info.kind != Kind::WaterLevel || !options.clicks) {
        return {};
    }
    if (options.clicks->size() > 1) {
        return Problem{{}, QStringLiteral("the kind WaterLevel takes one --click")};
    }
    if (options.hasNumber(&Session::percentage)) {
        return Problem{{}, QStringLiteral("--click and --percentage both give the water level")};
    }
    return {};
}

Outcome angleMisfit(const SessionOptions &options, const KindInfo &info)
{
    for (const SessionOptions::Number &number : options.numbers) {
        if (number.member == &Session::angleDEG) {
            return checkNumber(QStringLiteral("--angle of ") + info.nameText(), number.value,
                               info.angle.smallestDEG, info.angle.largestDEG);
        }
    }
    return {};
}

} // namespace

std::optional<QPointF> parsePoint(const QString &text)
{
    const QStringList parts = text.split(QLatin1Char(','));
    if (parts.size() != 2) {
        return std::nullopt;
    }
    bool isX = false;
    bool isY = false;
    const QPointF point(parts[0].toDouble(&isX), parts[1].toDouble(&isY));
    if (!isX || !isY || !std::isfinite(point.x()) || !std::isfinite(point.y())) {
        return std::nullopt;
    }
    return point;
}

bool SessionOptions::hasNumber(double Session::*member) const
{
    return std::any_of(numbers.begin(), numbers.end(),
                       [member](const Number &number) { return number.member == member; });
}

bool SessionOptions::givesAlignment(const QString &fieldName) const
{
    if (rearCircle && fieldName.startsWith(QLatin1String("rearCircle"))) {
        return true;
    }
    return std::any_of(numbers.begin(), numbers.end(), [&fieldName](const Number &number) {
        return fieldName == QLatin1String(limitsOf(number.member).name);
    });
}

void SessionOptions::applyTo(Session &session) const
{
    if (kind && *kind != session.kind) {
        session.kind = *kind;
        session.points.clear();
        session.repeats.clear();
        session.jointShown = false;
        session.isSet = !infoOf(*kind).has(Uses::SetByEye);
    }
    session.isSet = session.isSet || hasNumber(settingOf(infoOf(session.kind)));
    for (const Number &number : numbers) {
        session.*number.member = number.value;
    }
    if (rearCircle) {
        session.rearCircleX = rearCircle->x();
        session.rearCircleY = rearCircle->y();
    }
    if (calibrationText) {
        session.calibrationText = *calibrationText;
        setScale(session, std::nullopt);
    }
    if (mmPerPixel) {
        setScale(session, mmPerPixel);
    }
    if (clicks && infoOf(session.kind).has(Uses::Points)) {
        session.points.clear();
        for (const QPointF &pixel : *clicks) {
            session.points.append({pixel, {}, {}});
        }
    }
    session.rings = rings.value_or(session.rings);
    session.lines = lines.value_or(session.lines);
    session.fitsFov = session.fitsFov || fitsFov;
    session.unit = unit.value_or(session.unit);
    session.rearCircleActive = rearCircleActive.value_or(session.rearCircleActive);
    session.clockDEG = clockDEG.value_or(session.clockDEG);
    session.viewDownstream = viewDownstream.value_or(session.viewDownstream);
    session.jointShown = jointShown.value_or(session.jointShown);
    session.viewStyle = viewStyle.value_or(session.viewStyle);
    session.limit = limit.value_or(session.limit);
    for (const StandardUncertaintyRow &row : standardUncertaintyRows()) {
        if (const std::optional<double> &given = standardUncertainties.*row.member) {
            session.standardUncertainties.*row.member = given;
        }
    }
}

Outcome SessionOptions::takeLensFor(Session &session) const
{
    std::optional<Lens> taken = lens ? lens : session.lens;
    if (fitsLens) {
        taken.reset();
    }
    if (taken && lensView) {
        taken->view = *lensView;
    }
    return takeLens(session, taken);
}

Outcome SessionOptions::misfit(const KindInfo &info) const
{
    const struct
    {
        bool isGiven;
        Uses use;
        const char *option;
    } checks[] = {
        {clicks.has_value(), Uses::Clicks, "--click"},
        {!laserSpots.isEmpty(), Uses::Scale, "--laser"},
        {mmPerPixel.has_value(), Uses::Scale, "--mm-per-pixel"},
        {hasNumber(&Session::percentage), Uses::Percentage, "--percentage"},
        {hasNumber(&Session::angleDEG), Uses::Angle, "--angle"},
        {clockDEG.has_value(), Uses::Clock, "--clock"},
        {viewDownstream.has_value(), Uses::Direction, "--direction"},
        {jointShown.has_value(), Uses::Direction, "--joint"},
        {rings.has_value(), Uses::Model, "--ring"},
        {lines.has_value(), Uses::Model, "--line"},
        {fitsFov, Uses::Model, "--fit-fov"},
        {fitsLens, Uses::Model, "--fit-lens"},
    };
    for (const auto &check : checks) {
        if (check.isGiven && !info.has(check.use)) {
            return Problem{{},
                           QStringLiteral("the kind %1 takes no %2")
                               .arg(info.nameText(), QLatin1String(check.option))};
        }
    }
    const Outcome problem = waterMisfit(*this, info);
    return problem ? problem : angleMisfit(*this, info);
}

QStringList optionsOf(const KindInfo &info)
{
    constexpr struct
    {
        Uses use;
        const char *option;
    } rows[] = {
        {Uses::Clicks, "--click"},          {Uses::Scale, "--mm-per-pixel"},
        {Uses::Scale, "--laser"},           {Uses::Scale, "--calibration"},
        {Uses::Percentage, "--percentage"}, {Uses::Angle, "--angle"},
        {Uses::Clock, "--clock"},           {Uses::Direction, "--direction"},
        {Uses::Direction, "--joint"},
    };
    QStringList options;
    for (const auto &row : rows) {
        if (info.has(row.use)) {
            options += QLatin1String(row.option);
        }
    }
    return options;
}

void addSessionOptions(QCommandLineParser &parser)
{
    parser.addOption(QCommandLineOption(QStringLiteral("kind"),
                                        QStringLiteral("What is measured: %1.").arg(knownKinds()),
                                        QStringLiteral("NAME")));
    for (const NumberOption &option : numberOptions) {
        addOption(parser, option.name, option.description, option.valueName);
    }
    addOption(parser, "rear-circle",
              "Moves the pipe's far end to the left and down; in units as --offset.", "X,Y");
    parser.addOption(
        QCommandLineOption(QStringLiteral("rear-circle-active"),
                           QStringLiteral("Stored in the session: gestures move the far end.")));
    addOption(
        parser, "clock",
        "Direction of the branch, the bend or the joint in whole degrees clockwise from the top.",
        "DEG");
    addOption(parser, "direction", "A bend is seen downstream or upstream.", "NAME");
    parser.addOption(QCommandLineOption(QStringLiteral("joint"),
                                        QStringLiteral("Measures a joint instead of a bend.")));
    addOption(parser, "view-style", "How much is drawn: measure, ends or full.", "NAME");
    addOption(parser, "unit", "Unit of the texts: metric or imperial. Numbers stay metric.",
              "NAME");
    addOption(
        parser, "click",
        "A measurement point in picture pixels from the top left, repeated for more points; or "
        "where the water meets the wall.",
        "X,Y");
    addOption(
        parser, "ring",
        "Three points or more on the edge of a joint, which the alignment is fitted to; @MM at "
        "the end is its distance along the pipe from the first one. Repeat it for more joints.",
        "\"X,Y X,Y X,Y @MM\"");
    addOption(parser, "line",
              "Two points or more on a feature that runs along the pipe; repeat it for more lines.",
              "\"X,Y X,Y\"");
    parser.addOption(QCommandLineOption(
        QStringLiteral("fit-fov"),
        QStringLiteral("Fits the field of view, too, where two joints with a known "
                       "distance give it.")));
    addOption(parser, "lens",
              "File of the camera and its lens in OpenCV's YAML or JSON: the picture is shown and "
              "measured without its distortion, clicks are pixels of that picture, and the field "
              "of view is the camera's.",
              "FILE");
    addOption(parser, "lens-view",
              "Of the undistorted picture: square (default), in which the largest centred square "
              "has no black corners, or all that the camera saw.",
              "NAME");
    parser.addOption(QCommandLineOption(
        QStringLiteral("fit-lens"),
        QStringLiteral("Estimates the lens's radial distortion from three joints or more, clicked "
                       "like all else in the picture as it was taken.")));
    addOption(parser, "mm-per-pixel", "Scale for crack widths.", "MM");
    addOption(parser, "laser",
              "The two laser spots in picture pixels; gives the scale for crack widths.",
              "X,Y X,Y");
    addOption(parser, "calibration", "Camera calibration file.", "FILE");
    for (const StandardUncertaintyRow &row : standardUncertaintyRows()) {
        parser.addOption(QCommandLineOption(
            QLatin1String(row.option),
            QStringLiteral("Standard uncertainty %1.").arg(QLatin1String(row.meaning)),
            QStringLiteral("NUMBER")));
    }
    addOption(parser, "limit",
              "What values are held against: \"< 0.5 mm\", \"> 20 %\"; told is whether they lie "
              "below or above.",
              "TEXT");
}

Result<SessionOptions> readSessionOptions(const QCommandLineParser &parser)
{
    SessionOptions options;
    OptionReader reader(parser);
    readNumbers(reader, options);
    readChoices(reader, options);
    readLens(reader, options);
    readRearCircle(reader, options);
    options.mmPerPixel = reader.number("mm-per-pixel", smallestMMPerPixel, largestMMPerPixel);
    readLaserSpots(reader, options);
    readClicks(parser, reader, options);
    readAlignmentClicks(parser, reader, options);
    readUncertainties(reader, options);
    reader.value("calibration");
    return reader.problem() ? Result<SessionOptions>(*reader.problem())
                            : Result<SessionOptions>(options);
}

Result<std::optional<double>> readDistance(const QCommandLineParser &parser, const char *option)
{
    OptionReader reader(parser);
    const std::optional<double> distance =
        reader.number(option, -largestUnrollDistanceMM, largestUnrollDistanceMM);
    return reader.problem() ? Result<std::optional<double>>(*reader.problem())
                            : Result<std::optional<double>>(distance);
}

} // namespace Drevon::Zalento::Apps
