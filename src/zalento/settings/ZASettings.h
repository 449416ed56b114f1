#pragma once

#include "zalento/Export.h"
#include "zalento/settings/MeasureUnit.h"

#include <QColor>
#include <QFont>
#include <QSettings>
#include <QString>

namespace Drevon::Zalento {

/**
 * How the overlay is displayed, and its store.
 *
 * The overlay uses #colMeasures, #colCylinder1, #colCylinder2 and #MeasureUnit; the rest is kept
 * for the host.
 */
struct ZALENTO_EXPORT ZASettings
{
    /** Group of the store under which every key stands: "Preferences". */
    static const QString sConfigGroup;
    /** (255, 165, 0), opaque. */
    static const QColor sOrange;

    int pipeDiameterMM = 300;                                  ///< nominal
    QFont fontSmall{QStringLiteral("Arial"), 8};               ///< of small texts
    QFont fontLarge{QStringLiteral("Arial"), 12, QFont::Bold}; ///< of large texts
    QColor colBackground{Qt::black};                           ///< behind the picture
    QColor colMeasures{Qt::cyan};    ///< points, measuring lines, water, labels
    QColor colCylinder1{Qt::green};  ///< the pipe
    QColor colCylinder2{Qt::yellow}; ///< what joins it: the lateral's curve, a bend's continuation
    QColor colHour{sOrange};         ///< of the clock
    QColor colCamHeight{sOrange};    ///< of the camera height
    Drevon::Zalento::MeasureUnit MeasureUnit =
        Drevon::Zalento::MeasureUnit::Metric; ///< of the labels
    double fovYDEG = 37.5;         ///< vertical field of view in degrees; loaded, never saved
    double fovYHeightMM = 300.0;   ///< seen at #fovYDistanceMM
    double fovYDistanceMM = 322.0; ///< from the camera

    ZASettings() = default;
    /** Copies every field. */
    ///@{
    ZASettings(const ZASettings &other) = default;
    ZASettings &operator=(const ZASettings &other) = default;
    ///@}

    /**
     * Reads every key. An absent key gives the field its default, an absent font stays as it is.
     * Content that does not convert gives 0, an invalid colour, imperial units, or a font as
     * QFont::fromString() leaves it.
     */
    void Load(QSettings &settings);

    /** Writes every key but that of #fovYDEG, with the same bytes in every locale. */
    void Save(QSettings &settings) const;
};

} // namespace Drevon::Zalento
