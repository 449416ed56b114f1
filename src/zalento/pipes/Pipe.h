#pragma once

#include "zalento/geometry/Cylinder.h"
#include "zalento/pipes/PipeBase.h"

#include <string>
#include <vector>

namespace Drevon::Zalento {

/**
 * The straight pipe: the object on which the operator sets measurement points.
 *
 * A click becomes a point on the pipe's wall, on a cross-section plane, or in the picture itself,
 * depending on #measureMode. Every change of the list is reported by hitPointListSizeChanged(),
 * also a click that added nothing.
 */
class ZALENTO_EXPORT Pipe : public PipeBase
{
    Q_OBJECT

public:
    /** A row of the camera calibration: the scale at a nominal diameter. */
    struct CalibrationPoint
    {
        double diameterMM = 0.0; ///< nominal
        double scale = 0.0;      ///< mm per picture pixel
    };

    Cylinder cylinder{0.1};          ///< the wall
    std::vector<HitPoint> hitPoints; ///< in the order set; first == last is a closed polygon
    int selectedIndex = -1;          ///< point found by findNearestHitPoint(), -1 for none
    Vec3 highlightPoint;             ///< wall point under the cursor; Vec3::Zero for none
    std::string cameraCrackIni;      ///< camera calibration text
    bool laserPresent = false;       ///< the calibration text speaks of laser spots
    bool laserCalibrated = false;    ///< a scale has been set
    double laserScale = 0.0;         ///< mm per picture pixel; 0 before a scale is known
    double laserDistance = 0.0;      ///< between the two laser spots, in mm
    MeasureMode measureMode = MeasureMode::NoMeasure; ///< what clicks measure

    /** A pipe of 0.1 m whose camera has two laser spots 50 mm apart. */
    Pipe();

    /** Has the grid rebuilt on the next paint. */
    void init();

    /** The diameter in metres. */
    double getDiameterM() const override { return cylinder.diameterM; }
    /** Sets it and derives #laserScale from the calibration text for #diameterMM. */
    void setDiameterM(double d) override;

    void render(QPainter &painter, ViewStyle viewStyle, const ZASettings &settings, Vec3 rotation,
                QPoint offset) override;

    /** @name Measurement points */
    /** @{ */

    /**
     * Adds the point that a click means.
     * @param pos clicked pixel, from the viewport's top-left corner
     * @param scale of the picture; not used
     * @param rotation view rotation with which the pipe is drawn
     */
    void addMeasurePoint(const QPoint &pos, double scale, Vec3 rotation);

    /**
     * Adds a point that was picked on the cross-section plane, as a click there does: near the
     * first point it closes the polygon; after a closed polygon it starts a new one.
     */
    void addPlanePoint(const Vec3 &picked);

    /** Near the first point: a click that lies less than this off in x and in y closes the outline.
     */
    double closingReachM() const;

    /**
     * The first position of @p list when there are more than two points and @p p lies within
     * 12 % of the diameter of it in every coordinate; else @p p.
     */
    Vec3 snapToFirst(const std::vector<HitPoint> &list, const Vec3 &p) const;

    /** Removes the last point; an empty list stays silent. */
    void undoHitPointList();

    /** Sets the water depth as a fraction of the diameter; any but 0 clears the points. */
    void setWaterLevelPercent(const double &p);

    /**
     * Moves the cross-section plane, and all points, to the fraction @p p (kept in [0, 1]) of the
     * length; NaN changes nothing.
     */
    void setCrossSectDistancePercent(const double &p);

    /** @} */
    /** @name Scale of the picture plane */
    /** @{ */

    /** Stores the calibration text; setDiameterM() reads it. */
    void setCameraCrackIni(const std::string &text);

    /**
     * Reads the calibration text for the diameter #diameterMM: one record a line, fields split by
     * ';', '.' or ',' as decimal mark.
     *
     * - "LASER;;;mm": distance of the laser spots; ends the reading, gives no scale.
     * - "diameter;divisor;dividend": the scale dividend / divisor in mm per pixel at a diameter in
     *   mm. That of the rounded diameter ends the reading, others are interpolated.
     *
     * Other lines, and lines with a field that is no number of double's range, are skipped; such
     * a laser record keeps the old distance.
     */
    void parseIniFile();

    /**
     * Sets #laserScale by linear interpolation for the diameter @p d mm; nothing changes outside
     * the table or with fewer than two rows.
     * @param rows sorted by diameter on return; rows without a diameter (NaN) are dropped
     */
    void interpolatePipeDiameter(std::vector<CalibrationPoint> &rows, double d);

    /**
     * Sets the scale to @p mmPerPixel. With 0 it is derived from exactly two picture points on the
     * laser spots, which are cleared then; points that coincide leave the scale.
     */
    void calibrateLaser(double mmPerPixel);

    /** @} */
    /**
     * @name Contour editing
     * A contour is a closed polygon on the cross-section plane with anchors that stay put.
     */
    /** @{ */

    /**
     * Makes the contour of the mouth: as many points as a ring has, an anchor every 90 and a
     * visible point every 15 degrees.
     */
    void deformHitPointList();

    /**
     * The visible point near @p pos (10 pixels²), or -1; also finds #highlightPoint, the wall
     * point near @p pos (15 pixels²).
     */
    int findNearestHitPoint(const QPoint &pos, Vec3 rotation);

    /**
     * Moves a point to @p pos; the stretches to the anchors on both sides follow. The point where
     * the contour starts and ends moves as one. Nothing changes for an index outside the list,
     * without an anchor on either side, on a miss, or nearer than 2 pixels to an anchor.
     */
    void moveHitPoint(int index, const QPoint &pos, Vec3 rotation);

    /** True when @p position keeps at least @p tolerance from point @p anchor in x and in y. */
    bool isModifyAllowed(int anchor, const Vec3 &position, const Vec3 &tolerance) const;

    /**
     * Scales the points strictly between @p from and @p to about the latter, as if @p from had
     * moved to @p position. Nothing changes unless both are in the list and @p step (1 or -1)
     * leads from one to the other.
     */
    void modifyHitPointCurve(int from, int to, int step, const Vec3 &position);

    /** @} */

Q_SIGNALS:
    /** Points were added, removed or moved; @p size of them are left. */
    void hitPointListSizeChanged(int size);
    /** The first, or second, measure was computed anew by painting. */
    ///@{
    void measure1Changed(double m_measure);
    void measure2Changed(double m_measure);
    ///@}

private:
    void addCrossSectionPoint(const QPoint &pos, Vec3 rotation);
    void addPicturePoint(const QPoint &pos);
    void addWallPoint(const QPoint &pos, Vec3 rotation);
    bool pickOnPlane(const QPoint &pos, Vec3 rotation, Vec3 &hitPoint) const;
    bool pickOnWall(const QPoint &pos, Vec3 rotation, Vec3 &hitPoint) const;
    void renderCylinder(QPainter &painter, ViewStyle viewStyle, const ZASettings &settings);
    void renderMeasurement(QPainter &painter, const ZASettings &settings);
    void clearHitPoints();
    void reportSize();
    bool isClosed() const;
    bool isIndex(int index) const;
    HitPoint &pointAt(int index);
    const HitPoint &pointAt(int index) const;
    int nextAnchor(int index) const;
    int previousAnchor(int index) const;
};

} // namespace Drevon::Zalento
