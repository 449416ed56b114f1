#include "Shader.h"

#include "Noise.h"

namespace PipePicture {

namespace {

// Brightness of the lamp: a dry concrete wall at the mouth comes out as a middle grey.
constexpr double lampGain = 7.5;
// The lamp sends most of its light forward; the rest is what the reflector scatters.
constexpr double beamScatter = 0.45;
constexpr double beamSharpness = 10.0;
// The lamp sits above the lens, share of the diameter.
constexpr double lampAbove = 0.06;
// Light that the walls throw at each other; fades with the depth (diameters).
constexpr double wallLight = 0.05;
constexpr double wallLightReach = 1.6;
constexpr double highlightSharpness = 42.0;
constexpr double highlightStrength = 0.55;

constexpr Vec lampColour{1.0, 0.985, 0.94};
constexpr Vec waterBrown{0.050, 0.042, 0.026};
constexpr Vec foam{0.45, 0.43, 0.38};
constexpr Vec laserRed{1.0, 0.10, 0.06};
constexpr double laserPeak = 16.0;
constexpr double laserGlow = 0.10;

// Reflectance of water seen from straight above, (1.33 − 1)² / (1.33 + 1)².
constexpr double waterReflectance = 0.02;
// Depth at which waste water hides what lies below, share of the diameter.
constexpr double waterClearShare = 0.035;
// Width of the dark line where water meets wall: the scum at its edge, share of the diameter.
constexpr double scumShare = 0.012;
constexpr quint32 rippleSeed = 211;
constexpr quint32 foamSeed = 223;

} // namespace

Shader::Shader(const SceneSettings &scene, const Shape &shape, const Camera &camera)
    : m_scene(scene)
    , m_shape(shape)
    , m_wall(scene, shape)
    , m_lamp(camera.eyeInPipe() + Vec{0.0, lampAbove * scene.diameterM(), 0.0})
    , m_forward(
          camera.rayThrough(scene.camera.picture.width() * 0.5, scene.camera.picture.height() * 0.5)
              .direction)
    , m_diameter(scene.diameterM())
    , m_pixelAngle(camera.pixelAngle())
    , m_laserSpots(laserSpots(scene))
{}

double Shader::lampBeam(const Vec &fromLamp) const
{
    const double ahead = std::fmax(dot(fromLamp, m_forward), 0.0);
    return mix(beamScatter, 1.0, std::pow(ahead, beamSharpness));
}

Vec Shader::light(const Ray &ray) const
{
    return lightAt(ray, m_shape.trace(ray));
}

Vec Shader::lightAt(const Ray &ray, const Hit &hit) const
{
    if (hit.part == Part::Nothing)
        return {};
    return hit.part == Part::Water ? water(ray, hit) : solid(ray, hit);
}

Vec Shader::solid(const Ray &ray, const Hit &hit) const
{
    // A slanting wall is covered further along than across; texture takes the mean of both.
    const double slant = std::sqrt(std::fmax(std::fabs(dot(ray.direction, hit.normal)), 1e-3));
    const Surface surface = m_wall.surface(hit, hit.distance * m_pixelAngle / slant);
    const Vec toLamp = m_lamp - hit.point;
    const double distance = length(toLamp);
    const Vec l = toLamp * (1.0 / distance);
    const double arriving =
        lampGain * lampBeam(l * -1.0) / std::pow(distance / m_diameter, m_scene.lens.falloff);
    const double facing = std::fmax(dot(surface.normal, l), 0.0);
    const double depth = std::fmax(-hit.point.z / m_diameter, 0.0);
    const double scattered = wallLight * std::exp(-depth / wallLightReach);
    const Vec half = normalized(l - ray.direction);
    const double highlight =
        surface.gloss * highlightStrength *
        std::pow(std::fmax(dot(surface.normal, half), 0.0), highlightSharpness);
    const Vec white{1.0, 1.0, 1.0};
    return (surface.albedo * (arriving * facing + scattered) + white * (highlight * arriving)) *
               lampColour +
           lasers(hit);
}

Vec Shader::lasers(const Hit &hit) const
{
    if (m_scene.laser.distanceMm <= 0.0)
        return {};
    const double sigma = m_scene.laser.spotMm * 0.001 * 0.5;
    double strength = 0.0;
    for (const Vec &spot : m_laserSpots) {
        const double away = dot(hit.point - spot, hit.point - spot) / squared(sigma);
        strength += std::exp(-0.5 * away) + laserGlow * std::exp(-0.5 * away / squared(3.0));
    }
    return laserRed * (laserPeak * strength);
}

double Shader::distanceToWall(const Vec &onWater) const
{
    // In a bend the water's edge is not worked out; the water is drawn as far from it.
    if (m_scene.bend.angleDeg > 0.0)
        return m_diameter;
    return std::sqrt(squared(m_scene.radiusM()) - squared(m_shape.waterY())) - std::fabs(onWater.x);
}

Vec Shader::water(const Ray &ray, const Hit &hit) const
{
    const Vec q = hit.point * (1.0 / m_diameter);
    const double toWall = distanceToWall(hit.point) / m_diameter;

    Vec normal = hit.normal;
    double floating = 0.0;
    if (!m_scene.clean) {
        // Ripples are drawn out along the flow and die away at the wall.
        const NoiseSample ripple =
            fractalWithSlope(q * Vec{9.0, 1.0, 3.2}, 3, m_scene.seed + rippleSeed);
        const double calm = smoothStep(0.0, 0.08, toWall);
        normal =
            normalized({-0.012 * calm * ripple.gradient.x, 1.0, -0.012 * calm * ripple.gradient.z});
        floating =
            smoothStep(0.72, 0.80, fractal(q * Vec{24.0, 1.0, 15.0}, 3, m_scene.seed + foamSeed));
    }

    const double grazing = 1.0 - std::fmax(-dot(ray.direction, normal), 0.0);
    const double mirrored = waterReflectance + (1.0 - waterReflectance) * std::pow(grazing, 5.0);
    Vec up = reflected(ray.direction, normal);
    up.y = std::fmax(up.y, 1e-3);
    const Ray mirrorRay{hit.point + Vec{0.0, 1e-6 * m_diameter, 0.0}, normalized(up)};
    const Vec mirror = lightAt(mirrorRay, m_shape.traceDry(mirrorRay));

    const Vec toLamp = m_lamp - hit.point;
    const double distance = length(toLamp);
    const double arriving = lampGain * lampBeam(toLamp * (-1.0 / distance)) * toLamp.y / distance /
                            std::pow(distance / m_diameter, m_scene.lens.falloff);
    const Ray below{hit.point, ray.direction};
    const Hit bed = m_shape.traceDry(below);
    const double veil =
        1.0 - std::exp(-bed.distance * std::fabs(ray.direction.y) / (waterClearShare * m_diameter));
    const Vec murk =
        mix(waterBrown, foam, 0.7 * floating) * (std::fmax(arriving, 0.0) + wallLight * 0.5);
    const Vec bedLight = bed.part == Part::Nothing ? Vec{} : solid(ray, bed) * Vec{0.5, 0.42, 0.3};
    Vec colour = mix(bedLight, murk, std::fmax(veil, floating));
    colour = mix(colour, mirror, mirrored * (1.0 - floating));
    if (toWall >= 0.0 && toWall < scumShare)
        colour = colour * mix(0.3, 1.0, toWall / scumShare);
    return colour;
}

} // namespace PipePicture
