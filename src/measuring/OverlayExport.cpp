#include "measuring/OverlayExport.h"

#include <QBuffer>
#include <QDir>
#include <QFileInfo>
#include <QPainter>
#include <QSvgGenerator>

namespace Drevon::Zalento::Measuring {

namespace {

// CSS pixels are 1/96 inch: with it the document's size in millimetres means its size in pixels.
constexpr int svgDotsPerInch = 96;

} // namespace

QString overlayPathOf(const QString &picturePath, const QString &folder, const QString &suffix)
{
    const QFileInfo info(picturePath);
    const QDir target = folder.isEmpty() ? info.dir() : QDir(folder);
    return target.filePath(QStringLiteral("%1.overlay.%2").arg(info.completeBaseName(), suffix));
}

QImage pictureWithOverlay(ZaItem &item, const QImage &picture)
{
    QImage image = picture.convertToFormat(QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(1.0);
    QPainter painter(&image);
    painter.translate(item.position());
    item.paint(&painter);
    return image;
}

QByteArray overlayPng(ZaItem &item, const QImage &picture)
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    QImage image = pictureWithOverlay(item, picture);
    if (!picture.hasAlphaChannel()) {
        image = image.convertToFormat(QImage::Format_RGB32);
    }
    image.save(&buffer, "PNG");
    return buffer.data();
}

QByteArray overlaySvg(ZaItem &item, const QSize &pictureSize)
{
    QBuffer buffer;
    QSvgGenerator generator;
    generator.setOutputDevice(&buffer);
    generator.setTitle(QStringLiteral("Zalento overlay"));
    generator.setResolution(svgDotsPerInch);
    generator.setSize(pictureSize);
    generator.setViewBox(QRect(QPoint(), pictureSize));
    QPainter painter(&generator);
    painter.translate(item.position());
    item.paint(&painter);
    painter.end();
    return buffer.data();
}

} // namespace Drevon::Zalento::Measuring
