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
// What is left of the bed's colours after the way through the water.
constexpr Vec waterTint{0.5, 0.42, 0.3};
constexpr Vec foamWhite{0.45, 0.43, 0.38};
constexpr Vec laserRed{1.0, 0.10, 0.06};
constexpr double laserPeak = 16.0;
constexpr double laserGlow = 0.10;

// Reflectance of water seen from straight above, (1.33 − 1)² / (1.33 + 1)².
constexpr double waterReflectance = 0.02;
// Depth at which waste water hides what lies below, share of the diameter.
constexpr double waterClearShare = 0.035;
// Width of the dark line where water meets wall: the scum at its edge, share of the diameter.
constexpr double scumShare = 0.012;
// Height of the ripples over their length.
constexpr double rippleHeight = 0.012;
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

Shader::WaterSurface Shader::waterSurface(const Hit &hit) const
{
    WaterSurface surface{hit.normal, 0.0, distanceToWall(hit.point) / m_diameter};
    if (m_scene.clean)
        return surface;
    // Ripples are drawn out along the flow and die away at the wall.
    const Vec q = hit.point * (1.0 / m_diameter);
    const Vec slope =
        fractalWithSlope(q * Vec{9.0, 1.0, 3.2}, 3, m_scene.seed + rippleSeed).gradient;
    const double height = -rippleHeight * smoothStep(0.0, 0.08, surface.toWall);
    surface.normal = normalized({height * slope.x, 1.0, height * slope.z});
    surface.foam =
        smoothStep(0.72, 0.80, fractal(q * Vec{24.0, 1.0, 15.0}, 3, m_scene.seed + foamSeed));
    return surface;
}

/** Light that comes out of the water: from the murk, and where it is shallow from the bed. */
Vec Shader::underWater(const Ray &ray, const Hit &hit, const WaterSurface &surface) const
{
    const Vec toLamp = m_lamp - hit.point;
    const double distance = length(toLamp);
    const double arriving = lampGain * lampBeam(toLamp * (-1.0 / distance)) * toLamp.y / distance /
                            std::pow(distance / m_diameter, m_scene.lens.falloff);
    const Vec murk = mix(waterBrown, foamWhite, 0.7 * surface.foam) *
                     (std::fmax(arriving, 0.0) + wallLight * 0.5);
    const Hit bed = m_shape.traceDry({hit.point, ray.direction});
    if (bed.part == Part::Nothing)
        return murk;
    const double depth = bed.distance * std::fabs(ray.direction.y) / m_diameter;
    const double veil = 1.0 - std::exp(-depth / waterClearShare);
    return mix(solid(ray, bed) * waterTint, murk, std::fmax(veil, surface.foam));
}

Vec Shader::water(const Ray &ray, const Hit &hit) const
{
    const WaterSurface surface = waterSurface(hit);
    const double grazing = 1.0 - std::fmax(-dot(ray.direction, surface.normal), 0.0);
    // Schlick's form of the reflectance of a clear surface.
    const double mirrored = waterReflectance + (1.0 - waterReflectance) * std::pow(grazing, 5.0);
    Vec up = reflected(ray.direction, surface.normal);
    up.y = std::fmax(up.y, 1e-3);
    const Ray mirrorRay{hit.point + Vec{0.0, 1e-6 * m_diameter, 0.0}, normalized(up)};
    const Vec mirror = lightAt(mirrorRay, m_shape.traceDry(mirrorRay));
    const Vec colour = mix(underWater(ray, hit, surface), mirror, mirrored * (1.0 - surface.foam));
    const bool atEdge = surface.toWall >= 0.0 && surface.toWall < scumShare;
    return atEdge ? colour * mix(0.3, 1.0, surface.toWall / scumShare) : colour;
}

} // namespace PipePicture
