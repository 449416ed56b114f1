#pragma once

#include "zalento/Export.h"
#include "zalento/settings/MeasureUnit.h"

#include <QChar>
#include <QString>

namespace Drevon::Zalento {

/**
 * Conversions between metric and imperial units and between clock positions and angles, and the
 * texts of lengths and areas.
 *
 * One inch is 25.4 mm, one foot 12 inches. Conversions to int drop the fraction (towards zero),
 * give the nearest int beyond its range and 0 for NaN. Texts do not depend on the locale.
 */
class ZALENTO_EXPORT UnitConv
{
public:
    UnitConv() = delete;

    /** Decimal mark of all texts; the host sets it before texts are made. */
    static QChar decimalSeparator;

    /** Millimetres and inches of 25.4 mm. */
    ///@{
    static double mmToInch(double mm);
    static double inchTomm(double inch);
    ///@}
    /** Hundredths of an inch. */
    static int mmToInch100(int mm);
    /** Whole millimetres of hundredths of an inch. */
    static int inch100Tomm(int inch100);
    /** In feet of 12 inches. */
    static double mmToft(double mm);
    /** In square feet. */
    static double mm2Toft2(double mm2);
    /** Whole millimetres. */
    static int ftTomm(double ft);
    /** In metres. */
    static double ftTom(double ft);

    /**
     * Text of a length in mm. Metric: mm below 100 mm, cm with one decimal below 1 m, else m with
     * three. Imperial: inches with two decimals below a foot, else feet with three.
     *
     * @param forceLarge metres or feet, whatever the size
     * @param withUnit appends the unit: " mm", " cm", " m", '' (inches) or ' (feet)
     * @param forceSmall whole millimetres or inches, whatever the size; wins over forceLarge
     */
    static QString lenStr(double mm, MeasureUnit unit, bool forceLarge, bool withUnit,
                          bool forceSmall);
    /** The same with the unit, in the one that fits the length. */
    static QString lenStr(double mm, MeasureUnit unit);
    /** Always in millimetres or inches. */
    static QString mmOrInchStr(double mm, MeasureUnit unit);

    /**
     * Text of an area in mm² with its unit. Metric: cm² with one decimal below 0.1 m², else m²
     * with two. Imperial: square inches with one decimal below a square foot, else square feet
     * with two. A negative area is small, whatever its size.
     */
    static QString areaStr(double mm2, MeasureUnit unit);

    /** Every '.' replaced by #decimalSeparator. */
    static QString replaceDecimalSeparator(const QString &s);
    /** Every ',' replaced by '.'. */
    static QString cultureIndependentDecimalSeparator(const QString &s);

    /**
     * Angle of a clock position in whole degrees, counter-clockwise from 3 o'clock: 12 and 0 give
     * 90, 9 gives 180, 6 gives 270. In (-360, 360) for every number of hours.
     */
    static double clockH2AngleDEG(double hours);
    /** The same in radians. */
    static double clockH2AngleRAD(double hours);
    /** Inverse of clockH2AngleDEG(), not rounded: 90 gives 0 (not 12), 0 gives 3. */
    static double angleDEG2ClockH(double angleDEG);
    /** The same from radians. */
    static double angleRAD2ClockH(double angleRAD);
};

} // namespace Drevon::Zalento
