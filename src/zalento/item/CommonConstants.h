#pragma once

#include "zalento/Export.h"

#include <QObject>

namespace Drevon {

/** Constants for the QML user interface; the library itself uses none of them. */
class ZALENTO_EXPORT CommonConstants : public QObject
{
    Q_OBJECT

public:
    /** Size of a video frame in pixels. */
    enum VideoOutputSize {
        VideoWidth = 768,
        VideoHeight = 576,
    };
    Q_ENUM(VideoOutputSize)

    /** Limits of a control that is dragged over the picture, in pixels. */
    enum MeasurementDragConstants {
        DragMinimumX = -185,
        DragMaximumX = -15,
        DragMaximumY = 0,
        DragMinimumY = -100,
        DragExtendedWidth = 100,
        DragExtendedHight = 50,
    };
    Q_ENUM(MeasurementDragConstants)

    using QObject::QObject;
};

} // namespace Drevon
