#pragma once

#include "Scene.h"

#include <QPolygonF>

namespace PipePicture {

/** What a ray meets. */
enum class Part { Pipe, Branch, Elbow, NextPipe, Water, DepositFront, DepositTop, Nothing };

/** The place where a ray meets the scene; everything in the pipe frame, metres. */
struct Hit
{
    Part part = Part::Nothing;
    double distance = 0.0;
    Vec point;
    Vec normal;          ///< unit length, into the open pipe
    double along = 0.0;  ///< way along the axis of the pipe (or branch) that was met
    double height = 0.0; ///< above the invert of that pipe as a share of its diameter
};

/** Area within a polygon (shoelace formula). */
double polygonArea(const QPolygonF &polygon);

/**
 * The open space inside the pipe: a straight pipe that also reaches behind the mouth, with at most
 * one branch, or with one bend and the pipe after it, filled with water and deposit.
 */
class Shape
{
public:
    explicit Shape(const SceneSettings &scene);

    /** First wall, water or deposit along a ray that starts inside the pipe. */
    Hit trace(const Ray &ray) const;
    /** The same as if there were no water: what lies under it. */
    Hit traceDry(const Ray &ray) const;

    /** Point of the wall at a clock position in the ring `depthM` behind the mouth. */
    Vec wallPoint(double clockDeg, double depthM) const;
    /** Point where a wall line of the branch meets the pipe; `turnDeg` about the branch's axis. */
    Vec branchRimPoint(double turnDeg) const;
    /** Point of the ring of the bend or of the pipe after it; `alongM` from the bend's begin. */
    Vec bendRingPoint(double turnDeg, double alongM) const;
    /** Way along the axis through the bend, metres. */
    double bendLengthM() const { return radians(m_scene.bend.angleDeg) * m_bendRadius; }
    /** How far a wall point lies outside the branch's wall, metres; negative in its opening. */
    double distanceToBranch(const Vec &point) const;
    /** y of the water surface in the pipe frame, metres. */
    double waterY() const { return m_waterY; }
    /** Outline of the deposit's front in the pipe frame, metres: along the top, then the wall. */
    QPolygonF depositOutline() const;
    /** Area of the deposit's front, square metres; a little more than its outline's. */
    double depositAreaM2() const;

private:
    struct BranchPlace
    {
        Vec start;
        Vec axis;
        double radius = 0.0;
    };

    Hit pipeHit(const Ray &ray) const;
    Hit branchHit(const Ray &ray, const Hit &onPipe) const;
    Hit bendHit(const Ray &ray) const;
    Hit elbowHit(const Ray &ray, double &distance) const;
    Hit nextPipeHit(const Ray &ray, double from) const;
    Hit depositHit(const Ray &ray) const;
    double depositTop(double x) const;

    SceneSettings m_scene;
    double m_radius = 0.0;
    double m_waterY = 0.0;
    double m_bendRadius = 0.0;
    double m_depositZ = 0.0;
    Rotation m_turn; ///< from the frame in which branch and bend lie towards +x to the pipe frame
    BranchPlace m_branch;
    std::vector<QPointF> m_depositProfile;
};

} // namespace PipePicture
