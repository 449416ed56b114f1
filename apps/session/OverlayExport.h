#pragma once

#include "session/OutputFile.h"

#include "zalento/item/ZaItem.h"

#include <QByteArray>
#include <QImage>
#include <QSize>
#include <QString>

namespace Drevon::Zalento::Apps {

/** "<stem>.overlay.png" or "<stem>.overlay.svg" in @p folder; beside the picture when empty. */
QString overlayPathOf(const QString &picturePath, const QString &folder, const QString &suffix);

/** The picture with the item's overlay over it, pixel for pixel. */
QImage pictureWithOverlay(ZaItem &item, const QImage &picture);

/** The same as a PNG file's bytes. */
QByteArray overlayPng(ZaItem &item, const QImage &picture);

/** The overlay alone, as vectors, in an SVG document of the picture's size. */
QByteArray overlaySvg(ZaItem &item, const QSize &pictureSize);

} // namespace Drevon::Zalento::Apps
