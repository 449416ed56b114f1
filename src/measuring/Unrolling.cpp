#include "measuring/Unrolling.h"

#include "measuring/ModelPlace.h"
#include "measuring/PipeView.h"
#include "measuring/Text.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>

namespace Drevon::Zalento::Measuring {

namespace {

constexpr double radius = 0.5; // of the pipe, in diameters
constexpr double defaultDepth = 2.0;
constexpr double mmPerM = 1000.0;

// Where one pixel of the flat picture covers several of the picture, as many are averaged; up to
// this many a side.
constexpr int mostSamples = 4;

const QPointF nowhere(std::numeric_limits<double>::quiet_NaN(), 0.0);

Problem problemWith(const QString &what)
{
    return {QStringLiteral("unroll"), what};
}

Outcome rangeProblem(const UnrollRange &range, bool isPlane)
{
    if (const Outcome problem = checkNumber(QStringLiteral("mm per pixel"), range.mmPerPixel,
                                            smallestUnrollMMPerPixel, largestUnrollMMPerPixel)) {
        return problem;
    }
    for (const double distance : {range.fromMM, range.toMM}) {
        if (const Outcome problem =
                checkNumber(QStringLiteral("distance in mm"), distance, -largestUnrollDistanceMM,
                            largestUnrollDistanceMM)) {
            return problem;
        }
    }
    if (!isPlane && !(range.toMM > range.fromMM)) {
        return problemWith(
            Text::tr("the range from %1 to %2 mm is empty").arg(range.fromMM).arg(range.toMM));
    }
    return {};
}

// Four channels, 8 bits each, blended by 256ths: even ones and odd ones at once.
QRgb blended(QRgb a, QRgb b, unsigned part)
{
    constexpr QRgb even = 0x00ff00ff;
    const QRgb low = ((a & even) * (256 - part) + (b & even) * part) >> 8;
    const QRgb high = ((a >> 8) & even) * (256 - part) + ((b >> 8) & even) * part;
    return (low & even) | (high & ~even);
}

/** A picture between its pixels. */
class Sampler
{
public:
    explicit Sampler(const QImage &picture)
        : m_picture(picture.convertToFormat(QImage::Format_RGB32))
        , m_bits(reinterpret_cast<const QRgb *>(m_picture.constBits()))
        , m_stride(static_cast<int>(m_picture.bytesPerLine()) / static_cast<int>(sizeof(QRgb)))
    {}

    // Clear beside the picture. Pixels have their colour in their middle.
    QRgb at(const QPointF &place) const
    {
        const bool isInside = place.x() >= 0 && place.y() >= 0 && place.x() < m_picture.width() &&
                              place.y() < m_picture.height();
        if (!isInside) {
            return 0;
        }
        const double x = std::clamp(place.x() - 0.5, 0.0, m_picture.width() - 1.0);
        const double y = std::clamp(place.y() - 0.5, 0.0, m_picture.height() - 1.0);
        const int left = static_cast<int>(x);
        const int top = static_cast<int>(y);
        const int right = std::min(left + 1, m_picture.width() - 1);
        const int bottom = std::min(top + 1, m_picture.height() - 1);
        const auto across = static_cast<unsigned>((x - left) * 256);
        const auto down = static_cast<unsigned>((y - top) * 256);
        return blended(blended(pixel(left, top), pixel(right, top), across),
                       blended(pixel(left, bottom), pixel(right, bottom), across), down) |
               0xff000000;
    }

private:
    QRgb pixel(int x, int y) const { return m_bits[y * m_stride + x]; }

    QImage m_picture;
    const QRgb *m_bits;
    int m_stride;
};

} // namespace

class Unrolling::Implementation
{
public:
    Implementation(const Session &session, const UnrollRange &given)
        : range(given)
        , diameterMM(session.diameterMM)
        , isPlane(session.kind == Kind::CrossSection)
        , planePercent(session.percentage)
        , camera(PipeView(session).drawnAlignment().numbers(), session.picture.size)
    {
        const double width = isPlane ? diameterMM : pi * diameterMM;
        const double height = isPlane ? diameterMM : range.toMM - range.fromMM;
        columns = std::max(1.0, std::round(width / range.mmPerPixel));
        rows = std::max(1.0, std::round(height / range.mmPerPixel));
    }

    // In diameters, before the roll. The top is at +y, the right at -x.
    FitVector<double> placeOf(const QPointF &flat) const
    {
        const double unit = range.mmPerPixel / diameterMM;
        if (isPlane) {
            return {radius - flat.x() * unit, radius - flat.y() * unit,
                    -planePercent * 0.01 * Cylinder::lengthInDiameters};
        }
        const double angle = flat.x() * twoPi / columns;
        return {-radius * std::sin(angle), radius * std::cos(angle),
                -(range.fromMM / diameterMM + flat.y() * unit)};
    }

    QPointF seen(const FitVector<double> &place) const
    {
        return place.z < camera.eye().z ? camera.pixelOf(place) : nowhere;
    }

    QPointF flatOf(const QPointF &pixel) const
    {
        const double perUnit = diameterMM / range.mmPerPixel;
        if (isPlane) {
            const Vec3 place = placeOnPlane(camera, pixel, planePercent);
            return {(radius - place.x) * perUnit, (radius - place.y) * perUnit};
        }
        const Vec3 place = placeOnWall(camera, pixel);
        const double angle = std::atan2(-place.x, place.y);
        return {(angle < 0 ? angle + twoPi : angle) * columns / twoPi,
                (-place.z - range.fromMM / diameterMM) * perUnit};
    }

    // Samples a side with which a row's pixels are averaged.
    int samplesAt(int row) const
    {
        const QPointF near = seen(placeOf({columns / 4, row + 0.0}));
        const QPointF far = seen(placeOf({columns / 4, row + 1.0}));
        const double pixels = std::hypot(far.x() - near.x(), far.y() - near.y());
        return std::isfinite(pixels) ? std::clamp(qRound(pixels), 1, mostSamples) : 1;
    }

    QRgb colourOf(const Sampler &sampler, int column, int row, int samples) const
    {
        if (samples == 1) {
            return sampler.at(seen(placeOf({column + 0.5, row + 0.5})));
        }
        std::array<unsigned, 4> sums{};
        for (int i = 0; i < samples * samples; ++i) {
            const QPointF part((i % samples + 0.5) / samples, (i / samples + 0.5) / samples);
            const QRgb colour = sampler.at(seen(placeOf(QPointF(column, row) + part)));
            sums[0] += static_cast<unsigned>(qRed(colour));
            sums[1] += static_cast<unsigned>(qGreen(colour));
            sums[2] += static_cast<unsigned>(qBlue(colour));
            sums[3] += static_cast<unsigned>(qAlpha(colour));
        }
        const auto count = static_cast<unsigned>(samples * samples);
        const auto mean = [&](std::size_t channel) {
            return static_cast<int>(sums[channel] / count);
        };
        return mean(3) == 255 ? qRgb(mean(0), mean(1), mean(2)) : 0;
    }

    UnrollRange range;
    double diameterMM;
    bool isPlane;
    double planePercent;
    FitCamera<double> camera;
    double columns = 0.0;
    double rows = 0.0;
};

Unrolling::Unrolling(std::unique_ptr<Implementation> implementation)
    : m_implementation(std::move(implementation))
{}

Unrolling::Unrolling(Unrolling &&) noexcept = default;
Unrolling &Unrolling::operator=(Unrolling &&) noexcept = default;
Unrolling::~Unrolling() = default;

UnrollRange Unrolling::defaultRange(const Session &session)
{
    return {1.0, 0.0, defaultDepth * session.diameterMM};
}

Result<Unrolling> Unrolling::of(const Session &session, const UnrollRange &range)
{
    if (!infoOf(session.kind).has(Uses::Model)) {
        return problemWith(Text::tr("the kind %1 lays no pipe over the picture")
                               .arg(infoOf(session.kind).nameText()));
    }
    if (const Outcome problem = rangeProblem(range, session.kind == Kind::CrossSection)) {
        return *problem;
    }
    auto implementation = std::make_unique<Implementation>(session, range);
    if (implementation->columns * implementation->rows >
        static_cast<double>(largestUnrolledPixels)) {
        return problemWith(Text::tr("%1 x %2 pixels are too many: give more millimetres per pixel")
                               .arg(implementation->columns, 0, 'f', 0)
                               .arg(implementation->rows, 0, 'f', 0));
    }
    return Unrolling(std::move(implementation));
}

QSize Unrolling::size() const
{
    return {static_cast<int>(m_implementation->columns), static_cast<int>(m_implementation->rows)};
}

const UnrollRange &Unrolling::range() const
{
    return m_implementation->range;
}

bool Unrolling::isPlane() const
{
    return m_implementation->isPlane;
}

QPointF Unrolling::toPicture(const QPointF &flat) const
{
    return m_implementation->seen(m_implementation->placeOf(flat));
}

QPointF Unrolling::toFlat(const QPointF &pixel) const
{
    return m_implementation->flatOf(pixel);
}

// On the axis a pixel at the distance d is worth d^2 / (f R); off it the middle of the row's sides.
double Unrolling::worthMM(double row) const
{
    const QPointF near = toPicture({m_implementation->columns / 4, row});
    const QPointF far = toPicture({m_implementation->columns / 4, row + 1});
    return range().mmPerPixel / std::hypot(far.x() - near.x(), far.y() - near.y());
}

QImage Unrolling::flattened(const QImage &picture) const
{
    const Implementation &model = *m_implementation;
    const Sampler sampler(picture);
    QImage flat(size(), QImage::Format_ARGB32);
    for (int y = 0; y < flat.height(); ++y) {
        auto *line = reinterpret_cast<QRgb *>(flat.scanLine(y));
        const int samples = model.samplesAt(y);
        for (int x = 0; x < flat.width(); ++x) {
            line[x] = model.colourOf(sampler, x, y, samples);
        }
    }
    const int dotsPerMetre = qRound(mmPerM / range().mmPerPixel);
    flat.setDotsPerMeterX(dotsPerMetre);
    flat.setDotsPerMeterY(dotsPerMetre);
    return flat;
}

} // namespace Drevon::Zalento::Measuring
