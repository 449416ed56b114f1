#include "Wall.h"

#include "Noise.h"

namespace PipePicture {

// Texture coordinates q are scene coordinates over the diameter, so that a picture looks alike for
// every size of pipe. Frequencies below count features per diameter; colours are linear.

namespace {

enum Seed : quint32 {
    stainSeed = 11,
    grainSeed = 23,
    poreSeed = 31,
    castSeed = 37,
    flakeSeed = 41,
    tideSeed = 47,
    streakSeed = 53,
    wetSeed = 59,
    jointSeed = 61,
    crackEdgeSeed = 67,
    spallSeed = 71,
    rimSeed = 73,
    sedimentSeed = 79
};

constexpr Vec plainGrey{0.40, 0.40, 0.40};
constexpr Vec concreteGrey{0.37, 0.35, 0.31};
constexpr Vec limeWhite{0.62, 0.60, 0.54};
constexpr Vec clayBrown{0.34, 0.15, 0.075};
constexpr Vec glazeDark{0.12, 0.075, 0.06};
constexpr Vec greyFilm{0.25, 0.26, 0.27};
constexpr Vec slimeBrown{0.085, 0.066, 0.042};
constexpr Vec rust{0.30, 0.13, 0.045};
constexpr Vec gapBlack{0.012, 0.011, 0.010};
constexpr Vec aggregate{0.50, 0.46, 0.40};
constexpr Vec siltBrown{0.115, 0.09, 0.062};

// Half of the gap of a joint and the face of the next pipe behind it, shares of the diameter.
constexpr double gapShare = 0.028;
constexpr double faceShare = 0.022;
constexpr double smearShare = 0.22;
// Broken edge beside a crack, and mortar around a branch, shares of the diameter.
constexpr double crackChipShare = 0.008;
constexpr double rimShare = 0.035;

constexpr double limited(double a)
{
    return a < 0.0 ? 0.0 : (a > 1.0 ? 1.0 : a);
}

} // namespace

Wall::Wall(const SceneSettings &scene, const Shape &shape)
    : m_scene(scene)
    , m_shape(shape)
    , m_diameter(scene.diameterM())
    , m_joints(jointDepths(scene))
{
    if (scene.bend.angleDeg > 0.0) {
        const double bend = shape.bendLengthM();
        const double pipe = bend + scene.bend.straightShare * m_diameter;
        m_joints = {0.0, bend, pipe, pipe + scene.pipeLengthMm * 0.001};
    }
}

int Wall::Place::octaves(double frequency, int most) const
{
    // An octave is worth drawing while its features are wider than the pixel.
    int count = 1;
    for (double fine = frequency * 2.0; count < most && fine * footprint < 1.0; fine *= 2.0)
        ++count;
    return count;
}

Surface Wall::surface(const Hit &hit, double footprintM) const
{
    const Place place{hit, hit.point * (1.0 / m_diameter), footprintM / m_diameter};
    if (hit.part == Part::DepositFront || hit.part == Part::DepositTop)
        return sediment(place);
    Surface surface{plainGrey, hit.normal, 0.0};
    if (!m_scene.clean) {
        surface = m_scene.material == Material::Clay ? clay(place) : concrete(place);
        soil(surface, place);
        wet(surface, place);
    }
    joints(surface, place);
    if (hit.part == Part::Pipe) {
        branchRim(surface, place);
        spall(surface, place);
        crack(surface, place);
    }
    return surface;
}

void Wall::bump(Surface &surface, const Vec &gradient, double strength) const
{
    const Vec &n = surface.normal;
    const Vec across = gradient - n * dot(gradient, n);
    surface.normal = normalized(n - across * strength);
}

Surface Wall::concrete(const Place &place) const
{
    const quint32 seed = m_scene.seed;
    const NoiseSample stain =
        fractalWithSlope(place.q * 2.3, place.octaves(2.3, 6), seed + stainSeed);
    const NoiseSample grain =
        fractalWithSlope(place.q * 55.0, place.octaves(55.0, 3), seed + grainSeed);
    const double grime =
        fractal(place.q * Vec{7.0, 7.0, 4.0}, place.octaves(7.0, 5), seed + poreSeed);
    // The mould leaves faint rings around the pipe.
    const double cast =
        noise({place.q.x, place.q.y, place.hit.along / m_diameter * 31.0}, seed + castSeed);
    Surface surface{concreteGrey, place.hit.normal, 0.06};
    surface.albedo = surface.albedo * (1.0 + 0.55 * stain.value + 0.34 * grain.value + 0.10 * cast);
    surface.albedo = mix(surface.albedo, surface.albedo * Vec{1.08, 0.92, 0.70},
                         smoothStep(-0.1, 0.7, stain.value));
    surface.albedo = mix(surface.albedo, surface.albedo * Vec{0.40, 0.38, 0.34},
                         0.85 * smoothStep(0.15, 0.60, grime));
    const double pore = noise(place.q * 34.0, seed + poreSeed + 9);
    surface.albedo = surface.albedo * (1.0 - 0.75 * smoothStep(0.55, 0.68, pore));
    const double flake =
        fractal(place.q * 3.7 + Vec{9.0, 3.0, 1.0}, place.octaves(3.7, 6), seed + flakeSeed);
    surface.albedo = mix(surface.albedo, limeWhite * (1.0 + 0.3 * grain.value),
                         0.8 * smoothStep(0.55, 0.60, flake));
    bump(surface, grain.gradient, 0.0060);
    bump(surface, stain.gradient, 0.020);
    return surface;
}

Surface Wall::clay(const Place &place) const
{
    const quint32 seed = m_scene.seed;
    const NoiseSample stain =
        fractalWithSlope(place.q * 2.1, place.octaves(2.1, 6), seed + stainSeed);
    const NoiseSample grain =
        fractalWithSlope(place.q * 44.0, place.octaves(44.0, 3), seed + grainSeed);
    const double film =
        fractal(place.q * 1.7 + Vec{4.0, 1.0, 7.0}, place.octaves(1.7, 6), seed + castSeed);
    const double flake =
        fractal(place.q * 3.1 + Vec{2.0, 8.0, 5.0}, place.octaves(3.1, 7), seed + flakeSeed);
    const double pore = fractal(place.q * 19.0, place.octaves(19.0, 3), seed + poreSeed);
    Surface surface{mix(clayBrown, glazeDark, smoothStep(-0.35, 0.45, stain.value)),
                    place.hit.normal, 0.5};
    surface.albedo = surface.albedo * (1.0 + 0.30 * grain.value);
    const double filmed = smoothStep(-0.05, 0.50, film);
    surface.albedo = mix(surface.albedo, greyFilm * (1.0 + 0.45 * grain.value), 0.8 * filmed);
    surface.gloss = mix(surface.gloss, 0.12, filmed);
    const double flaked = smoothStep(0.50, 0.53, flake);
    surface.albedo = mix(surface.albedo, limeWhite * (0.8 + 0.4 * grain.value), 0.85 * flaked);
    surface.gloss *= 1.0 - flaked;
    surface.albedo = surface.albedo * (1.0 - 0.75 * smoothStep(0.50, 0.68, pore));
    bump(surface, grain.gradient, 0.0045);
    bump(surface, stain.gradient, 0.024);
    return surface;
}

Surface Wall::sediment(const Place &place) const
{
    Surface surface{siltBrown, place.hit.normal, 0.1};
    if (m_scene.clean)
        return surface;
    const quint32 seed = m_scene.seed + sedimentSeed;
    const NoiseSample lumps = fractalWithSlope(place.q * 6.0, place.octaves(6.0, 6), seed);
    const NoiseSample stones = noiseWithSlope(place.q * 21.0, seed + 7);
    surface.albedo = surface.albedo * (1.0 + 0.8 * lumps.value);
    surface.albedo = mix(surface.albedo, aggregate, 0.8 * smoothStep(0.42, 0.52, stones.value));
    surface.albedo = surface.albedo * (1.0 - 0.7 * smoothStep(0.35, 0.60, -stones.value));
    bump(surface, lumps.gradient, 0.055);
    bump(surface, stones.gradient, 0.016);
    return surface;
}

void Wall::soil(Surface &surface, const Place &place) const
{
    const quint32 seed = m_scene.seed;
    const double ragged =
        fractal(place.q * Vec{3.0, 3.0, 2.2}, place.octaves(3.0, 6), seed + tideSeed);
    // Usual water mark: below it slime, at its upper edge a paler rim.
    const double usual = std::fmax(m_scene.waterShare + 0.06, 0.26);
    const double edge = place.hit.height + 0.10 * ragged;
    const double slimy = smoothStep(usual + 0.02, usual - 0.06, edge);
    const double paleRim =
        smoothStep(usual - 0.02, usual + 0.02, edge) * smoothStep(usual + 0.09, usual + 0.02, edge);
    surface.albedo = mix(surface.albedo, surface.albedo * Vec{1.35, 1.30, 1.22}, 0.6 * paleRim);
    surface.albedo = mix(surface.albedo, mix(slimeBrown, surface.albedo * 0.55, 0.4), 0.85 * slimy);
    // What seeps in runs down around the wall in narrow streaks, here and there.
    const double wide = place.hit.along / m_diameter;
    const double streak =
        fractal({place.q.x * 1.3, place.q.y * 1.3, wide * 12.0}, 3, seed + streakSeed);
    const double here = smoothStep(
        -0.1, 0.35, fractal(place.q * 1.9, place.octaves(1.9, 3), seed + streakSeed + 9));
    const double above = smoothStep(usual, usual + 0.15, place.hit.height);
    const double dark = smoothStep(0.18, 0.60, streak) * here * above;
    const double rusty = smoothStep(0.35, 0.75, -streak) * here * above;
    surface.albedo = mix(surface.albedo, surface.albedo * Vec{0.42, 0.40, 0.37}, 0.85 * dark);
    surface.albedo = mix(surface.albedo, rust * (0.8 + 0.5 * ragged), 0.45 * rusty);
}

void Wall::wet(Surface &surface, const Place &place) const
{
    const NoiseSample ripple = fractalWithSlope(place.q * Vec{9.0, 9.0, 4.0}, place.octaves(9.0, 3),
                                                m_scene.seed + wetSeed);
    const double film = smoothStep(0.12, 0.07, place.hit.height + 0.02 * ripple.value);
    surface.albedo = mix(surface.albedo, surface.albedo * Vec{0.50, 0.47, 0.42}, film);
    surface.gloss = mix(surface.gloss, 1.6, film);
    if (film > 0.0)
        surface.normal = normalized(mix(surface.normal, place.hit.normal, 0.7 * film));
    bump(surface, ripple.gradient, 0.03 * film);
}

void Wall::joints(Surface &surface, const Place &place) const
{
    if (place.hit.part == Part::Branch || place.hit.part == Part::Nothing)
        return;
    const bool bent = m_scene.bend.angleDeg > 0.0;
    for (const double joint : m_joints) {
        const double beyond = (place.hit.along - joint) / m_diameter;
        if (std::fabs(beyond) < smearShare)
            ring(surface, place, beyond);
    }
    // Where a joint is turned the outer side of the ring stands open.
    if (bent && m_scene.kind == SceneKind::Joint && place.hit.part == Part::Elbow)
        surface.albedo = surface.albedo * 0.14;
}

void Wall::ring(Surface &surface, const Place &place, double beyond) const
{
    const double ragged =
        m_scene.clean ? 0.0
                      : fractal(place.q * 9.0, place.octaves(9.0, 4), m_scene.seed + jointSeed);
    // The spigot's end is soiled, the begin of the next pipe worn bright.
    surface.albedo = surface.albedo * (beyond < 0.0 ? mix(0.45, 1.0, smoothStep(0.0, 0.09, -beyond))
                                                    : mix(1.5, 1.0, smoothStep(0.0, 0.12, beyond)));
    if (!m_scene.clean) {
        const double smear =
            fractal(place.q * 4.0, place.octaves(4.0, 5), m_scene.seed + jointSeed + 5);
        const double nearJoint = smoothStep(smearShare, 0.1 * smearShare, std::fabs(beyond));
        surface.albedo = mix(surface.albedo, surface.albedo * Vec{0.36, 0.34, 0.30},
                             0.9 * nearJoint * smoothStep(-0.25, 0.35, smear));
        surface.albedo = mix(surface.albedo, limeWhite * (0.8 + ragged),
                             0.6 * nearJoint * smoothStep(0.22, 0.40, -smear));
    }
    // Out of the gap's dark the face of the next pipe looks at the lamp; the border between both
    // is the joint's depth.
    if (beyond < 0.0 && beyond > -gapShare * (1.0 + 0.8 * ragged)) {
        surface.albedo = gapBlack;
        surface.gloss = 0.0;
    } else if (beyond >= 0.0 && beyond < faceShare * (1.0 + 1.3 * ragged)) {
        const Vec face{0.0, 0.0, 1.0};
        surface.normal = normalized(mix(surface.normal, face, 0.35));
        const Vec edge = mix(surface.albedo, aggregate, 0.5);
        surface.albedo = edge * (0.9 + 0.9 * ragged);
    }
}

void Wall::crack(Surface &surface, const Place &place) const
{
    if (m_scene.crack.widthMm <= 0.0)
        return;
    const CrackProfile profile = crackProfile(m_scene, place.hit.along);
    if (profile.halfWidth <= 0.0)
        return;
    const double arc =
        arcFromClock(m_scene, place.hit.point, m_scene.crack.clockDeg) - profile.wander;
    const double outside = (std::fabs(arc) - profile.halfWidth) / m_diameter;
    if (outside > 0.2)
        return;
    if (outside < 0.0) {
        surface.albedo = gapBlack;
        surface.gloss = 0.0;
        return;
    }
    if (m_scene.clean)
        return;
    // Damp soil around the crack, lime where the damp dries, and a chipped, paler edge.
    const double patch =
        fractal(place.q * 9.0, place.octaves(9.0, 4), m_scene.seed + crackEdgeSeed);
    const double damp = smoothStep(0.10, 0.02, outside + 0.03 * patch);
    surface.albedo = mix(surface.albedo, surface.albedo * Vec{0.66, 0.60, 0.52}, 0.8 * damp);
    const double lime = smoothStep(0.3, 0.7, -patch) * smoothStep(0.07, 0.02, outside);
    surface.albedo = mix(surface.albedo, limeWhite, 0.6 * lime);
    const double chip = noise(place.q * 47.0, m_scene.seed + crackEdgeSeed + 1);
    if (outside < crackChipShare * (0.8 + chip))
        surface.albedo = mix(surface.albedo, aggregate, 0.75);
}

void Wall::spall(Surface &surface, const Place &place) const
{
    const SpallSettings &settings = m_scene.spall;
    if (settings.lengthMm <= 0.0)
        return;
    const double half = settings.lengthMm * 0.0005;
    const double u = std::fabs((place.hit.along - settings.depthMm * 0.001 - half) / half);
    if (u > 1.3)
        return;
    const double v = std::fabs(arcFromClock(m_scene, place.hit.point, settings.clockDeg)) /
                     halfArcM(m_scene, settings.widthMm);
    // Ragged everywhere but at both tips and in the middle, where it is measured.
    const double free = m_scene.clean ? 0.0 : 4.0 * limited(u) * (1.0 - limited(u));
    const double ragged = fractal(place.q * 11.0, place.octaves(11.0, 4), m_scene.seed + spallSeed);
    const double inside = (1.0 - std::pow(u, 1.8)) * (1.0 + 0.45 * free * ragged) - v;
    if (u > 1.0 || inside < 0.0)
        return;
    const NoiseSample stones =
        fractalWithSlope(place.q * 17.0, place.octaves(17.0, 4), m_scene.seed + spallSeed + 9);
    surface.albedo = mix(siltBrown * 0.6, aggregate, smoothStep(-0.55, 0.75, stones.value));
    if (m_scene.clean)
        surface.albedo = limeWhite;
    surface.albedo = surface.albedo * mix(0.10, 0.75, smoothStep(0.02, 0.22, inside));
    surface.normal = place.hit.normal;
    surface.gloss = 0.0;
    bump(surface, stones.gradient, m_scene.clean ? 0.0 : 0.030);
}

void Wall::branchRim(Surface &surface, const Place &place) const
{
    if (m_scene.branch.share <= 0.0)
        return;
    const double outside = m_shape.distanceToBranch(place.hit.point) / m_diameter;
    if (outside > rimShare * 1.6)
        return;
    const double ragged =
        m_scene.clean ? 0.0
                      : fractal(place.q * 15.0, place.octaves(15.0, 3), m_scene.seed + rimSeed);
    if (outside < rimShare * (1.0 + 0.5 * ragged)) {
        const Vec mortar = aggregate * (0.95 + 0.25 * ragged);
        surface.albedo = mix(surface.albedo, mortar, 0.7);
        surface.gloss = 0.0;
    }
    if (outside < rimShare * 0.12)
        surface.albedo = surface.albedo * 0.3;
}

} // namespace PipePicture
