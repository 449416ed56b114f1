#include "Render.h"

#include "Noise.h"
#include "Shader.h"

#include <algorithm>

namespace PipePicture {

namespace {

constexpr quint32 rayJitterSeed = 307;
constexpr quint32 sensorSeed = 311;
// Share of the sensor's noise that differs between the colours.
constexpr double colourNoise = 0.5;
// The colour sensor of a small camera leaves the dark parts a little blue.
constexpr Vec sensorBlack{0.0011, 0.0013, 0.0019};

// Steps of 255 between neighbours from which on an edge is looked for between them.
constexpr double edgeSteps = 12.0;
constexpr Vec greyShares{0.2126, 0.7152, 0.0722};

/** Linear picture while lens and sensor work on it. */
struct Exposure
{
    int width;
    int height;
    std::vector<Vec> pixels;

    Vec &at(int x, int y) { return pixels[std::size_t(y) * std::size_t(width) + std::size_t(x)]; }
    const Vec &at(int x, int y) const { return const_cast<Exposure *>(this)->at(x, y); }
};

/** Mean light of a pixel by samples × samples rays. */
Vec pixelLight(const Shader &shader, const Camera &camera, int x, int y, int samples)
{
    Vec sum;
    for (int sy = 0; sy < samples; ++sy) {
        for (int sx = 0; sx < samples; ++sx) {
            // A ray somewhere in each cell of the pixel breaks up the steps along edges.
            const int cell = sy * samples + sx;
            const double jx = hashUnit(x, y, cell, rayJitterSeed);
            const double jy = hashUnit(x, y, cell, rayJitterSeed + 1);
            sum +=
                shader.light(camera.rayThrough(x + (sx + jx) / samples, y + (sy + jy) / samples));
        }
    }
    return sum * (1.0 / (samples * samples));
}

/** Linear light to the display's 0 … 255: a shoulder that keeps highlights, then sRGB. */
double developed(double light)
{
    const double shoulder = light * (1.0 + light / 9.0) / (1.0 + light);
    const double value = std::clamp(shoulder * 1.25, 0.0, 1.0);
    const double srgb =
        value <= 0.0031308 ? 12.92 * value : 1.055 * std::pow(value, 1.0 / 2.4) - 0.055;
    return srgb * 255.0;
}

/** Whether a pixel differs from a neighbour so much that an edge may run through it. */
bool nearEdge(const std::vector<double> &grey, const QSize &size, int x, int y)
{
    const auto at = [&](int column, int row) {
        return grey[std::size_t(row) * std::size_t(size.width()) + std::size_t(column)];
    };
    const double here = at(x, y);
    const auto differs = [&](int column, int row) {
        return column >= 0 && row >= 0 && column < size.width() && row < size.height() &&
               std::fabs(at(column, row) - here) > edgeSteps;
    };
    return differs(x - 1, y) || differs(x + 1, y) || differs(x, y - 1) || differs(x, y + 1);
}

// One ray a pixel first; only where the picture changes quickly the pixel gets all its rays.
Exposure expose(const SceneSettings &scene)
{
    const Camera camera(scene.camera, scene.diameterM());
    const Shape shape(scene);
    const Shader shader(scene, shape, camera);
    const QSize size = scene.camera.picture;
    Exposure exposure{size.width(), size.height(),
                      std::vector<Vec>(std::size_t(size.width()) * std::size_t(size.height()))};
    std::vector<double> grey;
    grey.reserve(exposure.pixels.size());
    for (int y = 0; y < exposure.height; ++y) {
        for (int x = 0; x < exposure.width; ++x) {
            exposure.at(x, y) = shader.light(camera.rayThrough(x + 0.5, y + 0.5));
            grey.push_back(developed(dot(exposure.at(x, y), greyShares)));
        }
    }
    if (scene.lens.samples < 2)
        return exposure;
    for (int y = 0; y < exposure.height; ++y) {
        for (int x = 0; x < exposure.width; ++x) {
            if (nearEdge(grey, size, x, y))
                exposure.at(x, y) = pixelLight(shader, camera, x, y, scene.lens.samples);
        }
    }
    return exposure;
}

std::vector<double> gaussKernel(double sigma)
{
    const int reach = int(std::ceil(3.0 * sigma));
    std::vector<double> kernel;
    double sum = 0.0;
    for (int i = -reach; i <= reach; ++i) {
        kernel.push_back(std::exp(-0.5 * squared(i / sigma)));
        sum += kernel.back();
    }
    for (double &weight : kernel)
        weight /= sum;
    return kernel;
}

Exposure blurredAlong(const Exposure &source, const std::vector<double> &kernel, int dx, int dy)
{
    Exposure target{source.width, source.height, std::vector<Vec>(source.pixels.size())};
    const int reach = int(kernel.size()) / 2;
    for (int y = 0; y < source.height; ++y) {
        for (int x = 0; x < source.width; ++x) {
            Vec sum;
            for (int i = -reach; i <= reach; ++i) {
                const int sx = std::clamp(x + i * dx, 0, source.width - 1);
                const int sy = std::clamp(y + i * dy, 0, source.height - 1);
                sum += source.at(sx, sy) * kernel[std::size_t(i + reach)];
            }
            target.at(x, y) = sum;
        }
    }
    return target;
}

void blur(Exposure &exposure, double sigma)
{
    if (sigma <= 0.0)
        return;
    const std::vector<double> kernel = gaussKernel(sigma);
    exposure = blurredAlong(blurredAlong(exposure, kernel, 1, 0), kernel, 0, 1);
}

/** Bell-shaped random number of variance 1 from four even ones; enough for a sensor. */
double bell(int x, int y, int channel)
{
    double sum = -2.0;
    for (int i = 0; i < 4; ++i)
        sum += hashUnit(x, y, channel * 4 + i, sensorSeed);
    return sum * std::sqrt(3.0);
}

double vignetteShare(const Exposure &exposure, int x, int y, double strength)
{
    const double dx = (x + 0.5) * 2.0 / exposure.width - 1.0;
    const double dy = (y + 0.5) * 2.0 / exposure.height - 1.0;
    return 1.0 - strength * squared((dx * dx + dy * dy) * 0.5);
}

QRgb sensed(const Vec &light, const LensSettings &lens, int x, int y)
{
    const double grey = bell(x, y, 0);
    const auto channel = [&](double value, int index) {
        const double grain = mix(grey, bell(x, y, index), colourNoise);
        return std::clamp(int(std::lround(developed(value) + lens.noise * grain)), 0, 255);
    };
    return qRgb(channel(light.x, 1), channel(light.y, 2), channel(light.z, 3));
}

} // namespace

QImage renderPicture(const SceneSettings &scene)
{
    Exposure exposure = expose(scene);
    blur(exposure, scene.lens.blurPx);
    const double gain = std::exp2(scene.lens.exposureStops);
    QImage picture(exposure.width, exposure.height, QImage::Format_RGB32);
    for (int y = 0; y < exposure.height; ++y) {
        auto *line = reinterpret_cast<QRgb *>(picture.scanLine(y));
        for (int x = 0; x < exposure.width; ++x) {
            const double share = vignetteShare(exposure, x, y, scene.lens.vignette);
            const Vec black = scene.clean ? Vec{} : sensorBlack;
            line[x] = sensed(exposure.at(x, y) * (gain * share) + black, scene.lens, x, y);
        }
    }
    return picture;
}

} // namespace PipePicture
