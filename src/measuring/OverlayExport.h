#pragma once

#include "measuring/Export.h"
#include "measuring/OtherOverlays.h"
#include "measuring/OutputFile.h"
#include "measuring/PlaceUncertainty.h"

#include "zalento/item/ZaItem.h"

#include <QByteArray>
#include <QImage>
#include <QPainter>
#include <QSize>
#include <QString>

namespace Drevon::Zalento::Measuring {

/** "<stem>.overlay.png" or "<stem>.overlay.svg" in @p folder; beside the picture when empty. */
ZALENTO_MEASURING_EXPORT QString overlayPathOf(const QString &picturePath, const QString &folder,
                                               const QString &suffix);

/** "<stem>.map.png", likewise. */
ZALENTO_MEASURING_EXPORT QString mapPathOf(const QString &picturePath, const QString &folder);

/** The picture under a map with its legend, as a PNG file's bytes. @param map of wallMap() */
ZALENTO_MEASURING_EXPORT QByteArray mapPng(const QImage &map, MapQuantity quantity,
                                           const QImage &picture);

/** What is painted over a picture. */
struct PaintedOverlay
{
    ZaItem &item;                          ///< as it is shown
    double scale = 1.0;                    ///< that the session was shown with
    const OtherOverlays *others = nullptr; ///< below the item's; may be null

    /** In picture pixels. */
    ZALENTO_MEASURING_EXPORT void paint(QPainter &painter) const;
};

/** The picture with its overlay. */
ZALENTO_MEASURING_EXPORT QImage pictureWithOverlay(const PaintedOverlay &overlay,
                                                   const QImage &picture);

/** The same as a PNG file's bytes. */
ZALENTO_MEASURING_EXPORT QByteArray overlayPng(const PaintedOverlay &overlay,
                                               const QImage &picture);

/** The overlay alone, as vectors, in an SVG document of the picture's size. */
ZALENTO_MEASURING_EXPORT QByteArray overlaySvg(const PaintedOverlay &overlay,
                                               const QSize &pictureSize);

} // namespace Drevon::Zalento::Measuring
