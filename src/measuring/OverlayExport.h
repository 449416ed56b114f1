#pragma once

#include "measuring/Export.h"
#include "measuring/OtherOverlays.h"
#include "measuring/OutputFile.h"
#include "measuring/PlaceUncertainty.h"

#include "zalento/item/ZaItem.h"

#include <QByteArray>
#include <QImage>
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

/**
 * The picture with the item's overlay over it, pixel for pixel.
 * @param others below it; may be null
 */
ZALENTO_MEASURING_EXPORT QImage pictureWithOverlay(ZaItem &item, const QImage &picture,
                                                   const OtherOverlays *others = nullptr);

/** The same as a PNG file's bytes. */
ZALENTO_MEASURING_EXPORT QByteArray overlayPng(ZaItem &item, const QImage &picture,
                                               const OtherOverlays *others = nullptr);

/** The overlay alone, as vectors, in an SVG document of the picture's size. */
ZALENTO_MEASURING_EXPORT QByteArray overlaySvg(ZaItem &item, const QSize &pictureSize,
                                               const OtherOverlays *others = nullptr);

} // namespace Drevon::Zalento::Measuring
