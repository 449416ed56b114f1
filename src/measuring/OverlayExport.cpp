#include "measuring/OverlayExport.h"

#include "measuring/Text.h"

#include "measuring/Count.h"

#include <QBuffer>
#include <QFontMetrics>
#include <QSvgGenerator>

#include <algorithm>
#include <cmath>

namespace Drevon::Zalento::Measuring {

namespace {

// CSS pixels are 1/96 inch: with it the document's size in millimetres means its size in pixels.
constexpr int svgDotsPerInch = 96;

// A legend's line in pixels of a picture of this height, and in them its smallest text.
constexpr int legendLinesPerPicture = 32;
constexpr int smallestLinePX = 14;
constexpr double textPart = 0.7; // of a line
const QColor legendColour(16, 19, 21, 210);

QStringList legendTexts(MapQuantity quantity)
{
    QStringList texts{quantity == MapQuantity::Scale ? Text::tr("mm a pixel")
                                                     : Text::tr("U of a point, mm")};
    double from = 0.0;
    for (const MapStep &step : mapSteps()) {
        texts += std::isinf(step.upToMM) ? QStringLiteral("> %1").arg(from)
                                         : QStringLiteral("≤ %1").arg(step.upToMM);
        from = step.upToMM;
    }
    return texts;
}

// In the lower left corner: the title, and a line a colour.
void paintLegend(QPainter &painter, const QSize &picture, MapQuantity quantity)
{
    const QStringList texts = legendTexts(quantity);
    const int line = std::max(smallestLinePX, picture.height() / legendLinesPerPicture);
    QFont font;
    font.setPixelSize(static_cast<int>(line * textPart));
    painter.setFont(font);
    const int width = QFontMetrics(font).horizontalAdvance(texts.first()) + 2 * line;
    const QRect box(line, picture.height() - (countOf(texts) + 2) * line, width,
                    (countOf(texts) + 1) * line);
    painter.fillRect(box, legendColour);
    painter.setPen(Qt::white);
    QRect row(box.left() + line / 2, box.top() + line / 2, width - line, line);
    for (int i = 0; i < texts.size(); ++i) {
        QRect text = row;
        if (i > 0) {
            painter.fillRect(QRect(row.topLeft(), QSize(line, line * 3 / 4)),
                             QColor(mapSteps()[i - 1].colour));
            text.setLeft(row.left() + 2 * line);
        }
        painter.drawText(text, Qt::AlignVCenter, texts[i]);
        row.translate(0, line);
    }
}

} // namespace

QString overlayPathOf(const QString &picturePath, const QString &folder, const QString &suffix)
{
    return pathBeside(picturePath, folder, QStringLiteral(".overlay.") + suffix);
}

QString mapPathOf(const QString &picturePath, const QString &folder)
{
    return pathBeside(picturePath, folder, QStringLiteral(".map.png"));
}

QByteArray mapPng(const QImage &map, MapQuantity quantity, const QImage &picture)
{
    QImage image = picture.convertToFormat(QImage::Format_RGB32);
    image.setDevicePixelRatio(1.0);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawImage(image.rect(), map);
    paintLegend(painter, image.size(), quantity);
    painter.end();
    return pngBytes(image);
}

void PaintedOverlay::paint(QPainter &painter) const
{
    if (others) {
        others->paint(painter);
    }
    painter.scale(scale, scale);
    painter.translate(item.position());
    item.paint(&painter);
}

QImage pictureWithOverlay(const PaintedOverlay &overlay, const QImage &picture)
{
    QImage image = picture.convertToFormat(QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(1.0);
    QPainter painter(&image);
    overlay.paint(painter);
    return image;
}

QByteArray overlayPng(const PaintedOverlay &overlay, const QImage &picture)
{
    const QImage image = pictureWithOverlay(overlay, picture);
    return pngBytes(picture.hasAlphaChannel() ? image
                                              : image.convertToFormat(QImage::Format_RGB32));
}

QByteArray overlaySvg(const PaintedOverlay &overlay, const QSize &pictureSize)
{
    QBuffer buffer;
    QSvgGenerator generator;
    generator.setOutputDevice(&buffer);
    generator.setTitle(QStringLiteral("Zalento overlay"));
    generator.setResolution(svgDotsPerInch);
    generator.setSize(pictureSize);
    generator.setViewBox(QRect(QPoint(), pictureSize));
    QPainter painter(&generator);
    overlay.paint(painter);
    painter.end();
    return buffer.data();
}

} // namespace Drevon::Zalento::Measuring
