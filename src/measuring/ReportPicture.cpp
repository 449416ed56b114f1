#include "measuring/ReportPicture.h"

#include "measuring/Editing.h"
#include "measuring/OtherOverlays.h"
#include "measuring/Replay.h"

#include "zalento/item/ZaItem.h"

#include <algorithm>
#include <cmath>

namespace Drevon::Zalento::Measuring {

namespace {

constexpr double mmPerInch = 25.4;
// Fine enough for a page in the hand, and a page takes some hundred kilobytes.
constexpr double picturePixelsPerMM = 200 / mmPerInch;
// The overlay's pixels, in which its lines are 1 or 2 wide: 0.2 to 0.3 mm.
constexpr double overlayPixelsPerMM = 150 / mmPerInch;
// Of the overlay's labels, in its pixels: 2.7 mm.
constexpr int labelPX = 16;

/** The diameter that all items share, which a host's own items go by, stays as it was. */
class SharedDiameterScope
{
public:
    SharedDiameterScope()
        : m_diameterMM(ZaItem::sharedMainPipeDiameter())
    {}
    ~SharedDiameterScope() { ZaItem::sharedMainPipeDiameter() = m_diameterMM; }
    SharedDiameterScope(const SharedDiameterScope &) = delete;
    SharedDiameterScope &operator=(const SharedDiameterScope &) = delete;

private:
    const double m_diameterMM;
};

double shorterSide(const QSize &size)
{
    return std::min(size.width(), size.height());
}

// The same measurement on a picture of another size. Points lie on the model, or are fractions of
// the picture's square: the values stay.
Session resized(const Session &session, const QSize &size)
{
    Session result = session;
    result.picture.size = size;
    if (const std::optional<double> scale = scaleOf(session)) {
        result.mmPerPixel = *scale * shorterSide(session.picture.size) / shorterSide(size);
    }
    return result;
}

// JPEG, as which it is embedded, knows no transparency.
QImage opaque(const QImage &picture)
{
    QImage image(picture.size(), QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter(&image).drawImage(0, 0, picture);
    return image;
}

} // namespace

QSizeF sizeOnPaper(const QSize &picture, const QSizeF &room)
{
    return QSizeF(picture).scaled(room, Qt::KeepAspectRatio);
}

void paintPicture(QPainter &painter, const QRectF &box, double unitsPerMM, const QImage &picture)
{
    const QSize fine = (box.size() / unitsPerMM * picturePixelsPerMM).toSize();
    const bool isFiner = picture.width() > fine.width();
    const QImage shown = isFiner ? picture.scaled(fine.expandedTo({1, 1}), Qt::IgnoreAspectRatio,
                                                  Qt::SmoothTransformation)
                                 : picture;
    painter.drawImage(box, shown.hasAlphaChannel() ? opaque(shown) : shown);
}

void paintOverlay(QPainter &painter, const QRectF &box, double unitsPerMM, const Session &session,
                  Overlays overlays)
{
    const SharedDiameterScope diameter;
    const QSize size = (box.size() / unitsPerMM * overlayPixelsPerMM).toSize().expandedTo({1, 1});
    const Session shown = resized(session, size);
    painter.save();
    painter.setClipRect(box);
    painter.translate(box.topLeft());
    painter.scale(box.width() / size.width(), box.height() / size.height());
    QFont font = painter.font();
    font.setPixelSize(labelPX);
    painter.setFont(font);
    if (overlays == Overlays::All) {
        OtherOverlays(shown, 1.0).paint(painter);
    }
    ZaItem item;
    showSession(shown, item);
    painter.translate(item.position());
    item.paint(&painter);
    painter.restore();
}

} // namespace Drevon::Zalento::Measuring
