#include "Noise.h"

#include <array>

namespace PipePicture {

namespace {

constexpr int tableSize = 256;

/** Shuffled numbers 0 … 255, written twice so that sums of two need no wrapping. */
std::array<quint8, 2 * tableSize> shuffledTable()
{
    constexpr quint32 tableSeed = 5;
    std::array<quint8, 2 * tableSize> table{};
    for (int i = 0; i < tableSize; ++i)
        table[std::size_t(i)] = quint8(i);
    for (int i = tableSize - 1; i > 0; --i)
        std::swap(table[std::size_t(i)], table[hash(i, 0, 0, tableSeed) % quint32(i + 1)]);
    for (std::size_t i = 0; i < tableSize; ++i)
        table[i + tableSize] = table[i];
    return table;
}

const std::array<quint8, 2 *tableSize> table = shuffledTable();

// Directions from the middle of a cube to its edges, four of them twice.
constexpr Vec slopes[16] = {
    {1, 1, 0}, {-1, 1, 0}, {1, -1, 0}, {-1, -1, 0}, {1, 0, 1}, {-1, 0, 1}, {1, 0, -1}, {-1, 0, -1},
    {0, 1, 1}, {0, -1, 1}, {0, 1, -1}, {0, -1, -1}, {1, 1, 0}, {-1, 1, 0}, {0, -1, 1}, {0, -1, -1}};

/** Lattice cell of a place: slopes at its corners (x fastest), place within it, fades. */
struct Cell
{
    const Vec *slope[8];
    Vec f;
    Vec fade;

    double rise(int corner) const
    {
        return dot(*slope[corner],
                   f - Vec{double(corner & 1), double(corner >> 1 & 1), double(corner >> 2)});
    }
};

// Quintic 6t⁵ − 15t⁴ + 10t³: first and second derivative vanish at both ends, so lattice cells do
// not show in shaded bumps.
double fade(double t)
{
    return t * t * t * (t * (t * 6.0 - 15.0) + 10.0);
}
double fadeSlope(double t)
{
    return 30.0 * t * t * (t * (t - 2.0) + 1.0);
}

// Without the instruction for it std::floor is a call, and this is where all the time goes.
qint32 wholeBelow(double value)
{
    const auto cut = qint32(value);
    return cut - qint32(value < cut);
}

Cell cellAt(const Vec &p, quint32 seed)
{
    const qint32 wx = wholeBelow(p.x);
    const qint32 wy = wholeBelow(p.y);
    const qint32 wz = wholeBelow(p.z);
    Cell cell;
    cell.f = p - Vec{double(wx), double(wy), double(wz)};
    cell.fade = {fade(cell.f.x), fade(cell.f.y), fade(cell.f.z)};
    const auto x = std::size_t((wx + qint32(seed * 71U)) & 255);
    const auto y = std::size_t((wy + qint32(seed * 13U)) & 255);
    const auto z = std::size_t(wz & 255);
    for (std::size_t i = 0; i < 8; ++i) {
        const std::size_t column = table[table[x + (i & 1)] + y + (i >> 1 & 1)];
        cell.slope[i] = &slopes[table[column + z + (i >> 2)] & 15];
    }
    return cell;
}

double bilinear(double a, double b, double c, double d, double u, double v)
{
    return mix(mix(a, b, u), mix(c, d, u), v);
}

double valueIn(const Cell &cell)
{
    const Vec &t = cell.fade;
    const double near = bilinear(cell.rise(0), cell.rise(1), cell.rise(2), cell.rise(3), t.x, t.y);
    const double far = bilinear(cell.rise(4), cell.rise(5), cell.rise(6), cell.rise(7), t.x, t.y);
    return mix(near, far, t.z);
}

} // namespace

quint32 hash(qint32 x, qint32 y, qint32 z, quint32 seed)
{
    quint32 h = quint32(x) * 0x8da6b343U ^ quint32(y) * 0xd8163841U ^ quint32(z) * 0xcb1ab31fU;
    h ^= seed * 0x9e3779b9U;
    h = (h ^ (h >> 16)) * 0x7feb352dU;
    h = (h ^ (h >> 15)) * 0x846ca68bU;
    return h ^ (h >> 16);
}

double hashUnit(qint32 x, qint32 y, qint32 z, quint32 seed)
{
    return double(hash(x, y, z, seed)) / 4294967296.0;
}

double noise(const Vec &p, quint32 seed)
{
    return valueIn(cellAt(p, seed));
}

NoiseSample noiseWithSlope(const Vec &p, quint32 seed)
{
    const Cell cell = cellAt(p, seed);
    double rise[8];
    for (int i = 0; i < 8; ++i)
        rise[i] = cell.rise(i);
    const Vec &t = cell.fade;
    NoiseSample sample;
    sample.value = valueIn(cell);
    for (int i = 0; i < 8; ++i) {
        const double wx = (i & 1) != 0 ? t.x : 1.0 - t.x;
        const double wy = (i >> 1 & 1) != 0 ? t.y : 1.0 - t.y;
        const double wz = i >> 2 != 0 ? t.z : 1.0 - t.z;
        sample.gradient += *cell.slope[i] * (wx * wy * wz);
    }
    sample.gradient.x +=
        fadeSlope(cell.f.x) * bilinear(rise[1] - rise[0], rise[3] - rise[2], rise[5] - rise[4],
                                       rise[7] - rise[6], t.y, t.z);
    sample.gradient.y +=
        fadeSlope(cell.f.y) * bilinear(rise[2] - rise[0], rise[3] - rise[1], rise[6] - rise[4],
                                       rise[7] - rise[5], t.x, t.z);
    sample.gradient.z +=
        fadeSlope(cell.f.z) * bilinear(rise[4] - rise[0], rise[5] - rise[1], rise[6] - rise[2],
                                       rise[7] - rise[3], t.x, t.y);
    return sample;
}

double fractal(const Vec &p, int octaves, quint32 seed)
{
    double sum = 0.0;
    double strength = 1.0;
    double frequency = 1.0;
    for (int octave = 0; octave < octaves; ++octave) {
        sum += noise(p * frequency, seed + quint32(octave)) * strength;
        strength *= 0.5;
        frequency *= 2.0;
    }
    return sum;
}

NoiseSample fractalWithSlope(const Vec &p, int octaves, quint32 seed)
{
    NoiseSample sum;
    double strength = 1.0;
    double frequency = 1.0;
    for (int octave = 0; octave < octaves; ++octave) {
        const NoiseSample n = noiseWithSlope(p * frequency, seed + quint32(octave));
        sum.value += n.value * strength;
        sum.gradient += n.gradient * (strength * frequency);
        strength *= 0.5;
        frequency *= 2.0;
    }
    return sum;
}

} // namespace PipePicture
