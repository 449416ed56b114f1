#pragma once

#include "zalento/Export.h"
#include "zalento/math/Mat4.h"
#include "zalento/math/Vec2.h"
#include "zalento/math/Vec3.h"
#include "zalento/measure/MeasureMode.h"
#include "zalento/render/MiniGL.h"

#include <QPoint>

#include <vector>

namespace Drevon::Zalento {

/**
 * The model of a pipe's inner wall: a finite circular cylinder, sampled as a grid of rings.
 *
 * Pipe frame (metres): the axis starts at the origin and runs along -z; ring 0 is the mouth in the
 * plane z = 0, ring i lies at z = -i * ringSpacingM. A vertex at angle a lies at
 * (r sin a, r cos a, z); the straight pipe's rings start at a = -pi, so with no view rotation
 * vertex 0 is drawn at the bottom of the picture, 90 at the right, 180 at the top, 270 at the
 * left. Water lies around vertex 0.
 *
 * Any diameter is accepted. One of 0 leaves a single ring; one that is not finite makes every
 * vertex so. On both, and on a negative one, every pick misses.
 */
class ZALENTO_EXPORT Cylinder
{
public:
    static constexpr double lengthInDiameters = 10; ///< the section of a pipe that is modelled

    double diameterM = 0.0;     ///< inside
    double lengthM = 0.0;       ///< of the section that is modelled
    double lengthSquared = 0.0; ///< m²
    double radiusM = 0.0;       ///< half the diameter
    double radiusSquared = 0.0; ///< m²
    Vec3 axisStart;             ///< scene, in metres; set with the grid
    Vec3 axisEnd;               ///< #lengthM away from #axisStart
    double ringSpacingM = 0.0;  ///< between two rings of the grid
    int segmentCount = 360;     ///< a ring has one point more, the last equal to the first
    int ringCount = 0;          ///< intervals; the grid has one ring more
    std::vector<std::vector<Vec3>> vertices;       ///< [ring][point], scene, in metres
    std::vector<std::vector<Vec2>> screenVertices; ///< same shape, item pixels, filled by the host
    std::vector<int> waterLevelStart;              ///< per ring: first vertex that is drawn
    std::vector<int> waterLevelEnd;                ///< per ring: last vertex that is drawn
    std::vector<Vec3> intersectionLine; ///< where a lateral meets this pipe, scene, in metres
    double angleDeg = 0.0; ///< of this cylinder as a lateral, to the direction -z of its pipe
    double waterLevelPercent = 0.0;        ///< water depth as a fraction of the diameter, [0, 1]
    std::vector<Vec3> frontCircle;         ///< circle of the wall's radius in the plane z = 0
    double crossSectDistancePercent = 0.0; ///< cross-section plane as a fraction of the length
    bool verticesUpToDate = false;         ///< the grid needs no rebuilding

    /** @param diameter in metres */
    explicit Cylinder(double diameter);

    /** Sets the diameter in metres, the length to ten times as much, and all that follows. */
    void setDiameterM(double d);

    /** Sets the length in metres alone; the grid stays. */
    void setLengthM(double l);

    /** @name Grid and water level */
    /** @{ */

    /**
     * Builds the straight pipe's grid and front circle, unless they are up to date. In any mode
     * but WaterLevel the water level becomes 0.
     */
    void createVerticesInWorldCoord(MeasureMode mode);

    /**
     * Builds the grid of one of two joined pipes, unless it is up to date. The thinner one is
     * placed as a lateral of @p other at the angle #angleDeg.
     */
    void createVerticesInWorldCoord(const Cylinder &other);

    /** Builds the grid with vertex 0 of every ring at @p startAngleRAD. */
    void createVerticesInWorldCoord(const Cylinder &other, double startAngleRAD);

    /**
     * Central angle in radians, [0, 2 pi], of the wet arc in a pipe of the given @p diameter that
     * is filled to @p fillFraction of it: 2 acos(1 - 2 fillFraction).
     */
    double circleSegmentAngleRAD(double fillFraction, double diameter) const;

    /** Derives every ring's dry arc from the water level; does nothing without a current grid. */
    void setWaterLevelStartAndEnd();

    /** True inside the finite cylinder, on its wall and on its end discs. */
    bool pointIsInside(const Vec3 &p) const;

    /** @} */
    /**
     * @name Picking
     * @c pixel is in item pixels from the viewport's top-left corner. @c rotation is the view
     * rotation with which the pipe is drawn: x and y in touch units, z the roll in degrees.
     *
     * The operations named ...At take a place between pixels, counted like them: (0, 0) is the
     * centre of the first pixel.
     */
    /** @{ */

    /** The vertex whose screen vertex is nearest; (0, 0, 0) for an empty grid. */
    Vec3 nearestVertices(QPoint pixel) const;

    /** The nearer of two screen vertices to @p p; the second one when both are as near. */
    void closestIndex(int ring1, int index1, int ring2, int index2, const Vec2 &p, int &ring,
                      int &index, double &distSq) const;

    /**
     * The ray from the camera through the centre of @p pixel, in scene coordinates. The direction
     * has length 1 and points away from the pipe: what the pixel shows lies at negative
     * parameters.
     * @throws std::range_error for a camera without a viewing direction.
     */
    void rayVectors(QPoint pixel, const MiniGL &camera, Vec3 &origin, Vec3 &direction) const;
    /** The same for a place between pixels. */
    void rayVectorsAt(const Vec2 &place, const MiniGL &camera, Vec3 &origin, Vec3 &direction) const;

    /**
     * Unit direction of the axis after the view rotation.
     * @throws std::range_error for a length of 0.
     */
    Vec3 getNormalVectorOfPlaneInTheCilinder(double fovYDEG, Vec3 rotation) const;

    /** Takes a scene point back to the pipe frame: the inverse of the view rotation. */
    Vec3 getHitPointPositionBeforeRotation(double fovYDEG, Vec3 rotation, Vec3 point) const;

    /**
     * Picks on the wall, continued without end, after the ray-cylinder test of Cychosz and
     * Waggenspack (Graphics Gems IV).
     *
     * @param[out] hitPoint in the pipe frame; unchanged on a miss and for a ray parallel to the
     *        axis.
     * @return false on a miss: beside the pipe, a pipe without extent, a point that is not
     *         finite. True for a parallel ray within the radius.
     */
    bool intersectRay(QPoint pixel, const MiniGL &camera, Vec3 &hitPoint, Vec3 rotation) const;
    /** The same for a place between pixels. */
    bool intersectRayAt(const Vec2 &place, const MiniGL &camera, Vec3 &hitPoint,
                        Vec3 rotation) const;

    /**
     * Picks on the cross-section plane, in single precision.
     *
     * @param[out] hitPoint in the pipe frame; unchanged on a miss.
     * @return false on a miss: a ray parallel to the plane, a pipe without extent, a point that is
     *         not finite.
     */
    bool intersectPlaneRay(QPoint pixel, const MiniGL &camera, Vec3 &hitPoint, Vec3 rotation) const;
    /** The same for a place between pixels. */
    bool intersectPlaneRayAt(const Vec2 &place, const MiniGL &camera, Vec3 &hitPoint,
                             Vec3 rotation) const;

    /** @} */
    /** @name Intersection with a lateral */
    /** @{ */

    /**
     * On the main pipe: cuts the hole of the lateral @p other out of every ring but the mouth and
     * fills #intersectionLine. Does nothing while the grid is up to date; makes it so. A lateral
     * that is not finite cuts nothing and leaves no line.
     */
    void buildIntersectionLine(const Cylinder &other);

    /**
     * Moves @p outside along its ring circle onto the wall of @p other, to within 1 % of the
     * distance to @p inside.
     * @param inside,neighbour the two ring neighbours of @p outside; @p inside lies in @p other
     */
    void findExactIntersection(const Vec3 &inside, Vec3 &outside, const Vec3 &neighbour,
                               const Cylinder &other) const;

    /** Moves @p outside straight towards @p inside onto the wall of @p other, to within 1e-6 m. */
    void findExactIntersection(const Vec3 &inside, Vec3 &outside, const Cylinder &other) const;

    /** @} */

private:
    Mat4 placementBeside(const Cylinder &other);
    double lateralOffset(const Cylinder &other);
    void buildRings(const Mat4 &placement, double startAngleRAD);
    void buildFrontCircle();
    double segmentAngleRAD() const;
    bool hasExtent() const;
    void cutHole(std::size_t ring, const Cylinder &other);
    Cylinder guideAlongAxis() const;
};

} // namespace Drevon::Zalento
