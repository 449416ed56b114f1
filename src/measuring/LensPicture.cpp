#include "measuring/Lens.h"

#include "measuring/Text.h"

#include <opencv2/imgproc.hpp>

#include <algorithm>
#include <limits>

namespace Drevon::Zalento::Measuring {

namespace {

// The places of so many rows are held at a time: few against the picture, many against a call.
constexpr int rowsPerBand = 64;
// Places in a picture are found with 16 bits a coordinate.
constexpr int largestSide = std::numeric_limits<short>::max() - 1;

cv::Mat matrixOver(QImage &image)
{
    return {image.height(), image.width(), CV_8UC4, image.bits(),
            static_cast<std::size_t>(image.bytesPerLine())};
}

// Where each pixel of the band lies in the picture that was taken, counted from the middle of its
// first pixel; far outside of it for what the camera did not see.
cv::Mat placesOf(const LensMapping &mapping, const cv::Range &rows, const QSize &size)
{
    constexpr float outside = -1000.0F;
    constexpr double halfPixel = 0.5;
    cv::Mat places(rows.size(), size.width(), CV_32FC2);
    for (int y = rows.start; y < rows.end; ++y) {
        auto *place = places.ptr<cv::Vec2f>(y - rows.start);
        for (int x = 0; x < size.width(); ++x, ++place) {
            const std::optional<QPointF> taken = mapping.toTaken({x + halfPixel, y + halfPixel});
            const bool isSeen = taken && taken->x() >= 0.0 && taken->y() >= 0.0 &&
                                taken->x() <= size.width() && taken->y() <= size.height();
            if (!isSeen) {
                *place = {outside, outside};
                continue;
            }
            // The outer half of a pixel at the border has its colour.
            *place = {
                static_cast<float>(std::clamp(taken->x() - halfPixel, 0.0, size.width() - 1.0)),
                static_cast<float>(std::clamp(taken->y() - halfPixel, 0.0, size.height() - 1.0))};
        }
    }
    return places;
}

} // namespace

Result<QImage> undistorted(const QImage &picture, const Lens &lens)
{
    const Result<LensMapping> mapping = LensMapping::of(lens);
    if (!mapping) {
        return mapping.problem();
    }
    if (picture.size() != lens.size) {
        return Problem{QStringLiteral("lens"),
                       Text::tr("the lens is for pictures of %1 x %2 pixels, this one has %3 x %4")
                           .arg(lens.size.width())
                           .arg(lens.size.height())
                           .arg(picture.width())
                           .arg(picture.height())};
    }
    if (std::max(picture.width(), picture.height()) > largestSide) {
        return Problem{QStringLiteral("lens"),
                       Text::tr("the picture is too long: up to %1 pixels a side are undistorted")
                           .arg(largestSide)};
    }
    QImage taken = picture.convertToFormat(QImage::Format_RGB32);
    QImage shown(picture.size(), QImage::Format_RGB32);
    shown.setDotsPerMeterX(picture.dotsPerMeterX());
    shown.setDotsPerMeterY(picture.dotsPerMeterY());
    shown.fill(Qt::black);
    const cv::Mat from = matrixOver(taken);
    cv::Mat to = matrixOver(shown);
    for (int row = 0; row < to.rows; row += rowsPerBand) {
        const cv::Range rows(row, std::min(row + rowsPerBand, to.rows));
        cv::Mat band = to.rowRange(rows);
        cv::remap(from, band, placesOf(*mapping, rows, picture.size()), cv::noArray(),
                  cv::INTER_CUBIC, cv::BORDER_TRANSPARENT);
    }
    return shown;
}

} // namespace Drevon::Zalento::Measuring
