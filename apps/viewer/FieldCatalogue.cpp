#include "FieldCatalogue.h"

#include "measuring/Editing.h"
#include "measuring/Kind.h"
#include "measuring/Measurement.h"

#include <zalento/settings/UnitConv.h>

#include <QCoreApplication>
#include <QHash>
#include <QLocale>

#include <algorithm>
#include <cmath>

namespace Drevon::Zalento {

using Measuring::Session;
using Measuring::Uses;

namespace {

constexpr double degreesPerHour = 30.0;
constexpr double hoursPerTurn = 12.0;
constexpr double largestLaserMM = 10000.0;

const QString laserRecordStart = QStringLiteral("LASER;;;");

QString tr(const char *text)
{
    return QCoreApplication::translate("Field", text);
}

// A field that is a plain number of the session, with the session's own limits.
Field numberField(const QString &name, double Session::*member)
{
    Field field;
    field.name = name;
    field.get = [member](const Session &s) { return s.*member; };
    field.set = [member](Session &s, std::optional<double> v) { s.*member = v.value_or(0.0); };
    for (const Measuring::SessionNumber &number : Measuring::sessionNumbers()) {
        if (number.member == member) {
            field.smallest = number.smallest;
            field.largest = number.largest;
        }
    }
    return field;
}

Field with(Field field, const char *label, const QString &unit, double step, int decimals)
{
    field.label = tr(label);
    field.unit = unit;
    field.step = step;
    field.decimals = decimals;
    return field;
}

// The value of a kind that is set by eye.
Field setting(Field field)
{
    field.isSetting = true;
    field.set = [setNumber = field.set](Session &s, std::optional<double> v) {
        setNumber(s, v);
        s.isSet = true;
    };
    return field;
}

// In inches while the unit is imperial.
Field diameterField(const Session &session)
{
    Field field = with(numberField(QStringLiteral("diameterMM"), &Session::diameterMM),
                       QT_TRANSLATE_NOOP("Field", "Nominal diameter"), QStringLiteral("mm"), 5, 2);
    if (session.unit != MeasureUnit::Metric) {
        field.unit = QStringLiteral("in");
        field.step = 1;
        field.decimals = 3;
        field.smallest = UnitConv::mmToInch(field.smallest);
        field.largest = UnitConv::mmToInch(field.largest);
        field.get = [](const Session &s) { return UnitConv::mmToInch(s.diameterMM); };
        field.set = [](Session &s, std::optional<double> inch) {
            s.diameterMM = UnitConv::inchTomm(inch.value_or(0.0));
        };
    }
    return field;
}

Field percentageField(const Session &session)
{
    Field field = with(numberField(QStringLiteral("percentage"), &Session::percentage), "",
                       QStringLiteral("%"), 1, 1);
    field.label = Measuring::translated(infoOf(session.kind).percentage.label);
    field.hasSlider = true;
    // An angle is not set by the size of the branch or the joint.
    return session.kind == Measuring::Kind::WaterLevel ? setting(field) : field;
}

// Shows the angle that is drawn.
Field angleField(const Session &session)
{
    Field field = with(numberField(QStringLiteral("angleDEG"), &Session::angleDEG),
                       QT_TRANSLATE_NOOP("Field", "Angle"), QStringLiteral("°"), 1, 1);
    field.hasSlider = true;
    const Measuring::AngleRow &angles = infoOf(session.kind).angle;
    field.smallest = angles.smallestDEG;
    field.largest = angles.largestDEG;
    if (angles.stepDEG > 1.0) {
        field.step = angles.stepDEG;
        field.decimals = 0;
    }
    field.get = Measuring::drawnAngleDEG;
    field.set = [](Session &s, std::optional<double> v) {
        s.angleDEG = v.value_or(0.0);
        s.angleDEG = Measuring::drawnAngleDEG(s);
    };
    return setting(field);
}

// The hour at which the branch or the bend leaves the pipe: 12 is up, 3 is right.
Field clockField()
{
    Field field;
    field.name = QStringLiteral("clock");
    field = with(field, QT_TRANSLATE_NOOP("Field", "Direction, o'clock"), {}, 0.5, 2);
    field.largest = hoursPerTurn;
    field.get = [](const Session &s) {
        const double hours = std::fmod(s.clockDEG / degreesPerHour, hoursPerTurn);
        return hours > 0.0 ? hours : hours + hoursPerTurn;
    };
    field.set = [](Session &s, std::optional<double> hours) {
        s.clockDEG = static_cast<int>(std::lround(hours.value_or(0.0) * degreesPerHour));
    };
    return field;
}

Field laserField()
{
    Field field;
    field.name = QStringLiteral("laserMM");
    field = with(field, QT_TRANSLATE_NOOP("Field", "Laser distance"), QStringLiteral("mm"), 1, 3);
    field.smallest = 0.001;
    field.largest = largestLaserMM;
    field.movesModel = false;
    field.get = [](const Session &s) {
        return s.calibrationText.mid(laserRecordStart.size()).toDouble();
    };
    field.set = [](Session &s, std::optional<double> mm) {
        s.calibrationText = laserRecordStart + QString::number(mm.value_or(0.0), 'g', 17);
    };
    return field;
}

Field scaleField()
{
    Field field;
    field.name = QStringLiteral("mmPerPixel");
    field = with(field, QT_TRANSLATE_NOOP("Field", "Scale, mm per pixel"), {}, 0.01, 6);
    field.smallest = Measuring::smallestMMPerPixel;
    field.largest = Measuring::largestMMPerPixel;
    field.mayBeEmpty = true;
    field.movesModel = false;
    field.get = [](const Session &s) { return s.mmPerPixel; };
    field.set = Measuring::setScale;
    return field;
}

Field counterField()
{
    Field field;
    field.name = QStringLiteral("counterM");
    field = with(field, QT_TRANSLATE_NOOP("Field", "Counter"), QStringLiteral("m"), 0.1, 3);
    field.smallest = -Measuring::largestCounterM;
    field.largest = Measuring::largestCounterM;
    field.mayBeEmpty = true;
    field.movesModel = false;
    field.get = [](const Session &s) { return s.counterM; };
    field.set = [](Session &s, std::optional<double> metres) { s.counterM = metres; };
    return field;
}

Field alignmentField(const QString &name)
{
    const auto plain = [&name](double Session::*member, const char *label, const QString &unit,
                               double step, int decimals) {
        return with(numberField(name, member), label, unit, step, decimals);
    };
    if (name == QLatin1String("offset")) {
        return plain(&Session::offset, QT_TRANSLATE_NOOP("Field", "Shift left"), {}, 2, 1);
    }
    if (name == QLatin1String("cameraHeightPercent")) {
        return plain(&Session::cameraHeightPercent, QT_TRANSLATE_NOOP("Field", "Camera height"),
                     QStringLiteral("%"), 1, 1);
    }
    if (name == QLatin1String("rollDEG")) {
        return plain(&Session::rollDEG, QT_TRANSLATE_NOOP("Field", "Roll"), QStringLiteral("°"), 1,
                     1);
    }
    if (name == QLatin1String("fovYDEG")) {
        return plain(&Session::fovYDEG, QT_TRANSLATE_NOOP("Field", "Field of view"),
                     QStringLiteral("°"), 0.5, 2);
    }
    if (name == QLatin1String("mouthPercent")) {
        return plain(&Session::mouthPercent, QT_TRANSLATE_NOOP("Field", "Mouth size"),
                     QStringLiteral("%"), 1, 1);
    }
    if (name == QLatin1String("rearCircleX")) {
        return plain(&Session::rearCircleX, QT_TRANSLATE_NOOP("Field", "Far end left"), {}, 1, 1);
    }
    return plain(&Session::rearCircleY, QT_TRANSLATE_NOOP("Field", "Far end down"), {}, 1, 1);
}

QString number(double value, int decimals)
{
    QString text = QString::number(value, 'f', decimals);
    if (text.contains(QLatin1Char('.'))) {
        while (text.endsWith(QLatin1Char('0'))) {
            text.chop(1);
        }
        if (text.endsWith(QLatin1Char('.'))) {
            text.chop(1);
        }
    }
    return text == QLatin1String("-0") ? QStringLiteral("0") : text;
}

} // namespace

Field fieldNamed(const QString &name, const Session &session)
{
    static const QHash<QString, std::function<Field(const Session &)>> special{
        {QStringLiteral("diameterMM"), diameterField},
        {QStringLiteral("percentage"), percentageField},
        {QStringLiteral("angleDEG"), angleField},
        {QStringLiteral("clock"), [](const Session &) { return clockField(); }},
        {QStringLiteral("laserMM"), [](const Session &) { return laserField(); }},
        {QStringLiteral("mmPerPixel"), [](const Session &) { return scaleField(); }},
        {QStringLiteral("counterM"), [](const Session &) { return counterField(); }},
    };
    const auto found = special.find(name);
    return found == special.end() ? alignmentField(name) : (*found)(session);
}

QStringList kindFields(const Session &session)
{
    const Measuring::KindInfo &info = infoOf(session.kind);
    QStringList names;
    if (info.has(Uses::Scale)) {
        // A table of scales goes by the diameter; a laser record by the distance of the spots.
        const bool isLaser = session.calibrationText.startsWith(laserRecordStart) &&
                             !session.calibrationText.contains(QLatin1Char('\n'));
        names += {QStringLiteral("mmPerPixel"),
                  isLaser ? QStringLiteral("laserMM") : QStringLiteral("diameterMM")};
    }
    if (info.has(Uses::Diameter)) {
        names += QStringLiteral("diameterMM");
    }
    if (info.has(Uses::Angle)) {
        names += QStringLiteral("angleDEG");
    }
    // Of a bend's two shapes the joint alone has a length.
    if (info.has(Uses::Percentage) && (!info.has(Uses::Direction) || session.jointShown)) {
        names += QStringLiteral("percentage");
    }
    if (info.has(Uses::Clock)) {
        names += QStringLiteral("clock");
    }
    if (session.film || session.counterM) {
        names += QStringLiteral("counterM");
    }
    return names;
}

QStringList alignmentFields(const Session &session)
{
    if (!infoOf(session.kind).has(Uses::Model)) {
        return {};
    }
    if (session.rearCircleActive) {
        return {QStringLiteral("rearCircleX"), QStringLiteral("rearCircleY")};
    }
    return {QStringLiteral("mouthPercent"), QStringLiteral("offset"),
            QStringLiteral("cameraHeightPercent"), QStringLiteral("rollDEG"),
            QStringLiteral("fovYDEG")};
}

QString fieldText(const Field &field, const Session &session)
{
    const std::optional<double> value = field.get(session);
    return value ? number(*value, field.decimals) : QString();
}

Measuring::Result<std::optional<double>> readField(const Field &field, const QString &text)
{
    const QString trimmed = text.trimmed();
    if (trimmed.isEmpty() && field.mayBeEmpty) {
        return std::optional<double>();
    }
    bool isNumber = false;
    const double value =
        QLocale::c().toDouble(UnitConv::cultureIndependentDecimalSeparator(trimmed), &isNumber);
    if (!isNumber || !std::isfinite(value)) {
        return Measuring::Problem{{},
                                  QCoreApplication::translate("Field", "This is not a number.")};
    }
    if (value < field.smallest || value > field.largest) {
        return Measuring::Problem{{},
                                  QCoreApplication::translate("Field", "From %1 to %2 %3, please.")
                                      .arg(number(field.smallest, field.decimals),
                                           number(field.largest, field.decimals), field.unit)
                                      .trimmed()};
    }
    return std::optional<double>(value);
}

} // namespace Drevon::Zalento
