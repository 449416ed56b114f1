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

    /** \a footprintM: across the wall, metres covered by one pixel; finer texture is left out. */
    Surface surface(const Hit &hit, double footprintM) const;

private:
    /** A place of the wall in texture coordinates. */
    struct Place
    {
        const Hit &hit;
        Vec q;            ///< point over the diameter
        double footprint; ///< of a pixel, over the diameter

        int octaves(double frequency, int most) const;
    };

    Surface concrete(const Place &place) const;
    Surface clay(const Place &place) const;
    Surface sediment(const Place &place) const;
    void soil(Surface &surface, const Place &place) const;
    void wet(Surface &surface, const Place &place) const;
    void joints(Surface &surface, const Place &place) const;
    void ring(Surface &surface, const Place &place, double beyond) const;
    void crack(Surface &surface, const Place &place) const;
    void spall(Surface &surface, const Place &place) const;
    void branchRim(Surface &surface, const Place &place) const;
    void bump(Surface &surface, const Vec &gradient, double strength) const;

    SceneSettings m_scene;
    const Shape &m_shape;
    double m_diameter = 0.0;
    std::vector<double> m_joints;
};

} // namespace PipePicture
