#include "measuring/PictureEdges.h"

#include <opencv2/imgproc.hpp>

#include <cmath>

namespace Drevon::Zalento::Measuring {

namespace {

// Standard deviation in pixels: wide enough for a sensor's noise, narrow against a joint's edges.
constexpr double smoothingPX = 1.4;

// What Scharr's kernel gives for a step of 1 a pixel.
constexpr double scharrScale = 1.0 / 32.0;

// Cameras store light by a curve close to this power.
constexpr double storedPower = 2.2;

cv::Mat tableOf(PictureEdges::Of what)
{
    const double power = what == PictureEdges::Of::Light ? storedPower : 1.0;
    constexpr int levels = 256;
    constexpr double brightest = 255.0;
    cv::Mat table(1, levels, CV_32F);
    for (int i = 0; i < levels; ++i) {
        table.at<float>(0, i) = static_cast<float>(brightest * std::pow(i / brightest, power));
    }
    return table;
}

class Gradients : public PictureEdges
{
public:
    Gradients(const QImage &picture, Of what)
    {
        const QImage grey = picture.convertToFormat(QImage::Format_Grayscale8);
        // The matrix only reads the picture's bytes.
        const cv::Mat bytes(grey.height(), grey.width(), CV_8UC1, const_cast<uchar *>(grey.bits()),
                            static_cast<std::size_t>(grey.bytesPerLine()));
        cv::Mat smooth;
        cv::LUT(bytes, tableOf(what), smooth);
        cv::GaussianBlur(smooth, smooth, cv::Size(), smoothingPX);
        cv::Scharr(smooth, m_right, CV_32F, 1, 0, scharrScale);
        cv::Scharr(smooth, m_down, CV_32F, 0, 1, scharrScale);
    }

    bool contains(const QPointF &pixel) const override
    {
        return pixel.x() >= 1.0 && pixel.y() >= 1.0 && pixel.x() < m_right.cols - 2.0 &&
               pixel.y() < m_right.rows - 2.0;
    }

    QPointF gradient(const QPointF &pixel) const override
    {
        return {between(m_right, pixel), between(m_down, pixel)};
    }

private:
    // Bilinear; pixels have their value in their middle.
    static double between(const cv::Mat &values, const QPointF &pixel)
    {
        const double x = pixel.x() - 0.5;
        const double y = pixel.y() - 0.5;
        const int left = static_cast<int>(x);
        const int top = static_cast<int>(y);
        const double across = x - left;
        const double down = y - top;
        const auto at = [&](int row, int column) {
            return static_cast<double>(values.at<float>(row, column));
        };
        return (at(top, left) * (1 - across) + at(top, left + 1) * across) * (1 - down) +
               (at(top + 1, left) * (1 - across) + at(top + 1, left + 1) * across) * down;
    }

    cv::Mat m_right;
    cv::Mat m_down;
};

} // namespace

Result<std::shared_ptr<const PictureEdges>> PictureEdges::of(const QImage &picture, Of what)
{
    return std::shared_ptr<const PictureEdges>(std::make_shared<Gradients>(picture, what));
}

} // namespace Drevon::Zalento::Measuring
