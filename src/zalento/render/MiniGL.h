#pragma once

#include "zalento/Export.h"
#include "zalento/math/Mat4.h"
#include "zalento/math/Vec2.h"
#include "zalento/math/Vec3.h"
#include "zalento/measure/MeasureMode.h"
#include "zalento/render/HitPoint.h"
#include "zalento/settings/MeasureUnit.h"

#include <QBrush>
#include <QColor>
#include <QPainter>
#include <QPointF>
#include <QRectF>
#include <QString>

#include <stack>
#include <vector>

namespace Drevon::Zalento {

class Cylinder;

/**
 * The software camera: projects the pipe scene onto a QPainter in the manner of the fixed-function
 * OpenGL pipeline.
 *
 * Frames:
 * - pipe: a cylinder's own frame in metres. The axis is z, the mouth lies at z = 0, the pipe runs
 *   towards -z.
 * - scene: the pipe frame turned by the view rotation, in metres, right-handed.
 * - camera: the scene seen from the eye: +x right, +y up, looking along -z.
 * - device: x, y and z in [-1, 1], +y up.
 * - item pixels: the painter's coordinates, +x right, +y down; the drawing rectangle is #viewport.
 *
 * Mirrored: the eye stands at positive z and looks towards #center, far along +z, while the pipe
 * lies on the other side of it. Its points get a negative w, so the division draws them mirrored
 * through the projection centre. #up points down and turns y upright again, x stays mirrored:
 * scene (0, -r) appears at the bottom and scene (-r, 0) at the right. There is no clipping and no
 * near-plane test.
 *
 * The camera is used on one thread at a time: the GUI thread, or the render thread while the GUI
 * thread is blocked.
 */
class ZALENTO_EXPORT MiniGL
{
public:
    Vec3 eye{0, 0, 1};               ///< camera position in the scene, in metres
    Vec3 center{0, 0, 1000000};      ///< point looked at, in metres
    Vec3 up{0, -1, 0};               ///< camera's up direction in the scene
    Mat4 modelViewMatrix;            ///< pipe or scene to camera
    Mat4 projectionMatrix;           ///< camera to clip coordinates
    Mat4 viewportMatrix;             ///< device to item pixels
    double fovYDEG = 37.5;           ///< vertical field of view in degrees
    QRectF viewport{0, 0, 0, 0};     ///< drawing rectangle in item pixels
    std::stack<Mat4> modelViewStack; ///< saved model-view matrices
    QBrush textBackgroundBrush{QColor(0, 0, 0, 180), Qt::SolidPattern}; ///< behind labels

    /** @name Camera */
    /** @{ */

    /**
     * Takes @p rect (item pixels) as the drawing rectangle and computes the projection and
     * viewport matrices from it. A height of 0 becomes 1.
     */
    void onResize(const QRectF &rect);

    /** Sets the vertical field of view in degrees and computes the projection from it. */
    void setFovYDEG(double fovY);

    /** Saves a copy of the model-view matrix. */
    void pushModelViewMatrix();

    /** Takes back the copy saved last; there must be one. */
    void popModelViewMatrix();

    /** Writes viewport * projection * model-view into @p out: scene to item pixels. */
    void combinedMatrix(Mat4 &out) const;

    /** Squared distance in pixels² between the projections of two scene points. */
    double getScreenDistance(const Vec3 &a, const Vec3 &b) const;

    /**
     * Direction of length 1 on the screen from the projection of @p a to that of @p b; about
     * (0, 0) when both fall on the same pixel position.
     */
    Vec2 calculate2DDirectionVectorOnScreenFromTwo3DPoints(Vec3 a, Vec3 b) const;

    /**
     * Turns the model-view matrix by a gesture in touch units: 1 in @p v.x turns by half the
     * vertical field of view about the scene's y axis, 1 in @p v.y about its x axis.
     */
    void rotateByTouchRotationVector(Vec2 v);

    /** @} */
    /**
     * @name Drawing primitives
     * Scene points are in metres, lengths on the screen in pixels. Pixel positions that become
     * integers lose their fraction; those beyond an int saturate, NaN becomes 0. Unless said
     * otherwise the operation leaves its last pen on the painter; brush, font, transform and
     * render hints stay as they are.
     */
    /** @{ */

    /** Circle of @p radius pixels around a projected point. */
    void renderPoint(QPainter &p, const QColor &color, double lineWidth, const Vec3 &point,
                     double radius) const;

    /** Open line through the projected points, one segment a painter call. */
    void renderLines(QPainter &p, const QColor &color, double lineWidth,
                     const std::vector<Vec3> &points, bool markPoints) const;

    /** Closed line through the projected points; an empty list leaves the painter untouched. */
    void renderCurve(QPainter &p, const QColor &color, double lineWidth,
                     const std::vector<Vec3> &points, bool markPoints) const;

    /**
     * Outline through the projected points, in integer segments; it is not closed.
     *
     * @param storeScreenPoints true records the projected points in @p screenPoints; false clips
     *        against the convex outline that stands there: segments outside are drawn
     *        translucent, of segments that cross it the inner part is drawn.
     * @param screenPoints the recorded outline in item pixels; null draws plainly.
     */
    void renderEllipse(QPainter &p, const QColor &color, double lineWidth,
                       const std::vector<Vec3> &points, bool markPoints, bool storeScreenPoints,
                       std::vector<Vec2> *screenPoints) const;

    /** Axes of 0.1 m at the scene's origin: x blue, y red, -z black. The pen is restored. */
    void render3DCoordinateAxis(QPainter &p) const;

    /** One line in item pixels with the painter's pen. */
    void drawLine(QPainter &p, const Vec2 &a, const Vec2 &b) const;

    /** One line through points in item pixels, with the painter's pen; needs two points. */
    void drawPolyLine(QPainter &p, const std::vector<Vec2> &points) const;

    /** The same through the screen positions of measurement points, visible or not. */
    void drawPolyLine(QPainter &p, const std::vector<HitPoint> &points) const;

    /**
     * Text centred horizontally on @p pos on a filled box, in the painter's font.
     * @param lineOffset how many text heights the baseline sits below @p pos.
     * The pen is restored.
     */
    void drawString(QPainter &p, const QString &text, const QPointF &pos, double lineOffset,
                    const QColor &color, const QBrush &background) const;

    /**
     * True when @p point lies inside or on a convex outline whose points run clockwise on the
     * screen and whose last point repeats the first. False for fewer than 4 points.
     */
    bool pointIsInsideConvex(const Vec2 &point, const std::vector<Vec2> &polygon) const;

    /**
     * The last inside point, less than a pixel from the outline, of a bisection between a point
     * inside and one outside. Ends for points at infinity and NaN too.
     */
    Vec2 pointOnPolygon(Vec2 inside, Vec2 outside, const std::vector<Vec2> &polygon) const;

    /** @} */
    /** @name Pipe and measurements */
    /** @{ */

    /**
     * Draws the rings of a cylinder whose grid has been built, and what @p mode adds: the water
     * with its level as a label, or the disc of the cross section.
     *
     * @param ringStep draws rings 0, ringStep, 2 ringStep, ...; a negative step draws no rings
     *        and the water of the first and the last ring.
     * @param[out] observable becomes NothingObserved in both cross-section modes, else unchanged.
     */
    void renderCylinder(QPainter &painter, const QColor &cylinderColor, const QColor &measureColor,
                        const Cylinder &cylinder, int ringStep, MeasureMode mode,
                        ObservableType &observable, MeasureUnit unit);

    /** The same without a measurement. */
    void renderCylinder(QPainter &painter, const QColor &cylinderColor, const QColor &measureColor,
                        const Cylinder &cylinder, int ringStep);

    /**
     * Projects the points (and stores where they fall), draws the measuring line with its labels
     * and computes the measures.
     *
     * @param points at least one; positions in metres, in CrackWidth mode fractions of the
     *        viewport.
     * @param pipeRadiusMM radius of the pipe in mm, for shares of its section and diameter
     * @param laserScale mm per picture pixel; 0 when unknown, which leaves a crack unmeasured
     * @param[out] observable what was measured; NothingObserved for a single point and for a crack
     *        without a scale
     * @param[out] measure1 length in mm, area in mm², or free fraction of the section
     * @param[out] measure2 the area's fraction of the section; otherwise unchanged
     */
    void renderMeasureLine(QPainter &painter, const QColor &color, double lineWidth,
                           std::vector<HitPoint> &points, MeasureUnit unit, double pipeRadiusMM,
                           double laserScale, MeasureMode mode, ObservableType &observable,
                           double &measure1, double &measure2) const;

    /** @} */

private:
    void renderRings(QPainter &painter, const QColor &color, const Cylinder &cylinder,
                     int ringStep) const;
    void renderWater(QPainter &painter, const QColor &color, const Cylinder &cylinder,
                     int ringStep) const;
    void renderWaterLevelLabel(QPainter &painter, const QColor &color,
                               const Cylinder &cylinder) const;
    void renderCrossSectionDisc(QPainter &painter, const QColor &color, const Cylinder &cylinder);
    void drawLinePoints(QPainter &painter, const QColor &color, const std::vector<HitPoint> &points,
                        ObservableType observed) const;
    Mat4 measurementProjection(MeasureMode mode) const;
};

} // namespace Drevon::Zalento
