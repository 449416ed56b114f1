#pragma once

#include "Geometry.h"

#include <QtGlobal>

namespace PipePicture {

/** Value of a smooth random field in [−1, 1] and its slope. */
struct NoiseSample
{
    double value = 0.0;
    Vec gradient;
};

/** Well mixed 32 bits from four whole numbers; the same on every machine. */
quint32 hash(qint32 x, qint32 y, qint32 z, quint32 seed);
/** The hash as a number in [0, 1). */
double hashUnit(qint32 x, qint32 y, qint32 z, quint32 seed);

/**
 * Smooth random field in [−1, 1] with features of size 1, repeated every 256: gradient noise on a
 * lattice with quintic fade (Perlin, "Improving Noise", 2002).
 */
double noise(const Vec &p, quint32 seed);
/** The same with its exact slope. */
NoiseSample noiseWithSlope(const Vec &p, quint32 seed);
/** Octaves of noise, each half as strong and twice as fine as the one before; within [−2, 2]. */
double fractal(const Vec &p, int octaves, quint32 seed);
/** The same with its exact slope. */
NoiseSample fractalWithSlope(const Vec &p, int octaves, quint32 seed);

} // namespace PipePicture
