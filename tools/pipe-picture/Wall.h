#pragma once

#include "Marks.h"
#include "Shape.h"

namespace PipePicture {

/** How a place of the wall takes light. */
struct Surface
{
    Vec albedo;         ///< linear share of light sent back
    Vec normal;         ///< with the small bumps of the surface
    double gloss = 0.0; ///< strength of highlights, 0 for a dull surface
};

/** Look of everything solid: the wall with its joints and damages, and deposits. */
class Wall
{
public:
    Wall(const SceneSettings &scene, const Shape &shape);

    Surface surface(const Hit &hit) const;

private:
    Surface concrete(const Vec &q, const Hit &hit) const;
    Surface clay(const Vec &q, const Hit &hit) const;
    Surface sediment(const Vec &q, const Hit &hit) const;
    void soil(Surface &surface, const Vec &q, const Hit &hit) const;
    void wet(Surface &surface, const Vec &q, const Hit &hit) const;
    void joints(Surface &surface, const Vec &q, const Hit &hit) const;
    void ring(Surface &surface, const Vec &q, double beyond) const;
    void crack(Surface &surface, const Vec &q, const Hit &hit) const;
    void spall(Surface &surface, const Vec &q, const Hit &hit) const;
    void branchRim(Surface &surface, const Vec &q, const Hit &hit) const;
    void bump(Surface &surface, const Vec &gradient, double strength) const;

    SceneSettings m_scene;
    const Shape &m_shape;
    double m_diameter = 0.0;
    std::vector<double> m_joints;
};

} // namespace PipePicture
