#pragma once

#include <measuring/OverlayMeasurement.h>

#include <QtQml/qqml.h>

// What the type registrar is told of the types of registerMeasuringTypes().

struct MeasurementType
{
    Q_GADGET
    QML_FOREIGN(Drevon::Zalento::Measuring::OverlayMeasurement)
    QML_NAMED_ELEMENT(Measurement)
};
