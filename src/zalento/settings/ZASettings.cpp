#include "zalento/settings/ZASettings.h"

#include "zalento/math/CLocale.h"

#include <QByteArray>
#include <QColor>
#include <QDataStream>
#include <QIODevice>
#include <QVariant>

#include <array>
#include <cstdio>
#include <new>

namespace Drevon::Zalento {

namespace {

// Content of the unit key; any other text means imperial.
const QLatin1String metricText("m");
const QLatin1String imperialText("ft");

struct ColorKey
{
    QLatin1String key;
    QColor ZASettings::*field;
    QColor fallback;
};

// In the order of the fields.
std::array<ColorKey, 6> colorKeys()
{
    return {{{QLatin1String("colBackground"), &ZASettings::colBackground, Qt::black},
             {QLatin1String("colMeasures"), &ZASettings::colMeasures, Qt::cyan},
             {QLatin1String("colCylinder1"), &ZASettings::colCylinder1, Qt::green},
             {QLatin1String("colCylinder2"), &ZASettings::colCylinder2, Qt::yellow},
             {QLatin1String("colHour"), &ZASettings::colHour, ZASettings::sOrange},
             {QLatin1String("colCamHeight"), &ZASettings::colCamHeight, ZASettings::sOrange}}};
}

// A damaged store can hold a value that claims more elements than memory has: Qt 5 throws on those,
// Qt 6 makes an empty list of them.
QVariant storedValue(const QSettings &settings, const QString &key, const QVariant &fallback)
{
    try {
        const QVariant value = settings.value(key, fallback);
        const bool isCutOff = QT_VERSION >= QT_VERSION_CHECK(6, 0, 0) &&
                              value.userType() == QMetaType::QVariantList &&
                              value.toList().isEmpty();
        return isCutOff ? fallback : value;
    } catch (const std::bad_alloc &) {
        return fallback;
    }
}

void loadFont(const QSettings &settings, const QString &key, QFont &font)
{
    font.fromString(storedValue(settings, key, font).toString());
}

// A damaged store can hold a colour of no known kind; even copying such a QColor is undefined. Its
// kind is the first byte of the form in which Qt stores it.
bool isColorOfKnownKind(const QVariant &value)
{
    QByteArray stored;
    QDataStream stream(&stored, QIODevice::WriteOnly);
    stream << *static_cast<const QColor *>(value.constData());
    return stored.at(0) >= QColor::Invalid && stored.at(0) <= QColor::ExtendedRgb;
}

QColor loadColor(const QSettings &settings, const QString &key, const QColor &fallback)
{
    const QVariant value = storedValue(settings, key, fallback);
    if (value.userType() == QMetaType::QColor && !isColorOfKnownKind(value)) {
        return QColor();
    }
    return value.value<QColor>();
}

// Six decimals and '.', rounded as the C library does (ties to even); Qt's own rounding differs.
QString lengthText(double mm)
{
    constexpr int longestText = 320; // sign, 309 digits of the largest double, '.', decimals, end
    const CLocaleScope scope;
    char text[longestText];
    std::snprintf(text, sizeof text, "%f", mm);
    return QString::fromLatin1(text);
}

} // namespace

const QString ZASettings::sConfigGroup = QStringLiteral("Preferences");
const QColor ZASettings::sOrange(255, 165, 0, 255);

void ZASettings::Load(QSettings &settings)
{
    settings.beginGroup(sConfigGroup);
    pipeDiameterMM = storedValue(settings, QStringLiteral("pipeDiameterMM"), 300).toInt();
    loadFont(settings, QStringLiteral("fontSmall"), fontSmall);
    loadFont(settings, QStringLiteral("fontLarge"), fontLarge);
    for (const ColorKey &color : colorKeys()) {
        this->*color.field = loadColor(settings, color.key, color.fallback);
    }
    const QString unit =
        storedValue(settings, QStringLiteral("MeasureUnit"), metricText).toString();
    MeasureUnit = unit == metricText ? Drevon::Zalento::MeasureUnit::Metric
                                     : Drevon::Zalento::MeasureUnit::Imperial;
    fovYDEG = storedValue(settings, QStringLiteral("fovYDEG"), 37.5).toDouble();
    fovYDistanceMM = storedValue(settings, QStringLiteral("fovYDistanceMM"), 322).toDouble();
    fovYHeightMM = storedValue(settings, QStringLiteral("fovYHeightMM"), 300).toDouble();
    settings.endGroup();
}

void ZASettings::Save(QSettings &settings) const
{
    settings.beginGroup(sConfigGroup);
    settings.setValue(QStringLiteral("pipeDiameterMM"), pipeDiameterMM);
    settings.setValue(QStringLiteral("fontSmall"), fontSmall.toString());
    settings.setValue(QStringLiteral("fontLarge"), fontLarge.toString());
    for (const ColorKey &color : colorKeys()) {
        settings.setValue(color.key, this->*color.field);
    }
    const bool isMetric = MeasureUnit == Drevon::Zalento::MeasureUnit::Metric;
    settings.setValue(QStringLiteral("MeasureUnit"), isMetric ? metricText : imperialText);
    settings.setValue(QStringLiteral("fovYDistanceMM"), lengthText(fovYDistanceMM));
    settings.setValue(QStringLiteral("fovYHeightMM"), lengthText(fovYHeightMM));
    settings.endGroup();
}

} // namespace Drevon::Zalento
