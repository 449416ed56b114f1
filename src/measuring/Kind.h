#pragma once

#include "measuring/Export.h"

#include <QString>
#include <QVector>

namespace Drevon::Zalento::Measuring {

/** Something that can be measured, and what the operator sets for it. */
struct MeasurementKind
{
    QString name;        ///< as the item knows it, for example "CrackWidth"
    QString title;       ///< for people: "Crack width"
    QString description; ///< one sentence: what is measured, and how
    bool usesPoints = false;
    bool usesScale = false; ///< millimetres per picture pixel
    bool usesPercentage = false;
    bool usesAngle = false;
    bool usesClock = false;
    bool usesDirection = false;
    double initialPercentage = 0.0;
    double initialAngleDEG = 90.0;
    double smallestAngleDEG = 0.0;
    double largestAngleDEG = 180.0;
    QString percentageMeaning; ///< what the percentage sets; empty when it is not used
};

/** The six kinds, in the order in which they are offered. */
ZALENTO_MEASURING_EXPORT const QVector<MeasurementKind> &measurementKinds();

/** The kind of this exact name; null for any other. */
ZALENTO_MEASURING_EXPORT const MeasurementKind *findMeasurementKind(const QString &name);

} // namespace Drevon::Zalento::Measuring
