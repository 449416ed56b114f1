#pragma once

#include "Wall.h"

namespace PipePicture {

/** Light that a ray brings to the camera. */
class Shader
{
public:
    Shader(const SceneSettings &scene, const Shape &shape, const Camera &camera);

    /** Linear light along a ray of the pipe frame; 1 is white before the exposure curve. */
    Vec light(const Ray &ray) const;

private:
    struct WaterSurface
    {
        Vec normal;
        double foam;   ///< 1 where foam covers the water
        double toWall; ///< share of the diameter
    };

    Vec lightAt(const Ray &ray, const Hit &hit) const;
    Vec solid(const Ray &ray, const Hit &hit) const;
    Vec water(const Ray &ray, const Hit &hit) const;
    WaterSurface waterSurface(const Hit &hit) const;
    Vec underWater(const Ray &ray, const Hit &hit, const WaterSurface &surface) const;
    double distanceToWall(const Vec &onWater) const;
    Vec lasers(const Hit &hit) const;
    double lampBeam(const Vec &fromLamp) const;

    SceneSettings m_scene;
    const Shape &m_shape;
    Wall m_wall;
    Vec m_lamp;
    Vec m_forward;
    double m_diameter = 0.0;
    double m_pixelAngle = 0.0;
    PointPair m_laserSpots;
};

} // namespace PipePicture
