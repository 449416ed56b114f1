#pragma once

#include "zalento/Export.h"
#include "zalento/item/MeasureMentSettings.h"
#include "zalento/math/Vec2.h"
#include "zalento/math/Vec3.h"
#include "zalento/pipes/Pipe.h"
#include "zalento/pipes/PipeBend.h"
#include "zalento/pipes/PipeJoint.h"
#include "zalento/pipes/PipeLateral.h"
#include "zalento/settings/ZASettings.h"

#include <drevon/CDomainObject.h>

#include <QPoint>
#include <QQuickPaintedItem>
#include <QRectF>
#include <QSharedPointer>
#include <QString>

#include <memory>

namespace Drevon::Zalento {

/**
 * The measuring overlay: lies over a picture from inside a pipe, draws the wire model of a pipe
 * object and measures on it.
 *
 * The host turns gestures into calls; the item handles no events of its own. Everything happens on
 * the GUI thread but paint(), which the scene graph calls on its render thread while the GUI
 * thread waits. No operation reports an error: a value that is not a number changes nothing and
 * sends nothing, a click that means no point is a miss.
 *
 * Writing a property sends its signal also when the value is the old one, unless its description
 * says otherwise.
 */
class ZALENTO_EXPORT ZaItem : public QQuickPaintedItem
{
    Q_OBJECT

    /** True while the straight pipe holds exactly two measurement points. */
    Q_PROPERTY(bool isTwoHitpointList READ isTwoHitpointList NOTIFY isTwoHitpointListChanged)
    /** Stored for the host; default false. */
    Q_PROPERTY(bool useDistanceLasers READ useDistanceLasers WRITE setUseDistanceLasers)
    /** Pipe diameter in mm. A new item starts with the diameter last set on any item (300). */
    Q_PROPERTY(double diameter READ diameter WRITE setDiameter NOTIFY diameterChanged)
    /**
     * Written in percent, read as the water level's fraction: meant for [0, 1], and not limited to
     * it. It sets the cross-section plane's place along the pipe in the kind "CrossSection", else
     * the water level, which clears the points unless it is 0; and always the branch's share of the
     * diameter and the length of the joint's continuation.
     */
    Q_PROPERTY(double percentage READ percentage WRITE setPercentage NOTIFY percentageChanged)
    /**
     * Written in percent (default 50), read as a fraction [0, 1]. While #rearCircleActive it moves
     * the rear circle up and down instead: the value minus 50.
     */
    Q_PROPERTY(
        double cameraHeight READ cameraHeight WRITE setCameraHeight NOTIFY cameraHeightChanged)
    /** move() and #cameraHeight move the rear circle instead of the model; default false. */
    Q_PROPERTY(bool rearCircleActive READ rearCircleActive WRITE setRearCircleActive NOTIFY
                   rearCircleActiveChanged)
    /**
     * Angle in degrees of the lateral (kept in [30, 150]) or the bend (kept in [0, 90], to 5
     * degrees) on view, else 0. Writing sets lateral, bend and joint; the signal carries the
     * lateral's.
     */
    Q_PROPERTY(double angle READ angle WRITE setAngle NOTIFY angleChanged)
    /** Written: rotation of lateral, bend and joint in degrees, 0 is 90 further. Reads 0. */
    Q_PROPERTY(int clock READ clock WRITE setClock NOTIFY clockChanged)
    /**
     * The object on view: 0 straight pipe (default), 1 lateral, 2 bend, 3 joint. Any other value
     * shows the straight pipe, which then takes no clicks.
     */
    Q_PROPERTY(int viewObject READ viewObject WRITE setViewMode NOTIFY viewModeChanged)
    /** How much is drawn: 0 the measurement alone, 1 the ends, 2 everything (default). */
    Q_PROPERTY(int viewStyle READ viewStyle WRITE setViewStyle NOTIFY viewStyleChanged)
    /** ObservableType of the selected kind; stored for the host. */
    Q_PROPERTY(int measureType READ measureType WRITE setMeasureType NOTIFY measureTypeChanged)
    /** Units of the labels: 0 metric (default), else imperial. */
    Q_PROPERTY(int measureUnit READ measureUnit WRITE setMeasureUnit NOTIFY measureUnitChanged)
    /**
     * Measurement kind: "CrackWidth", "PipeDimension", "WaterLevel", "BranchAngle", "BendAngle",
     * "CrossSection"; default empty. A new kind clears the points and sets #viewObject and
     * #measureType, without their signals. Writing the old kind does nothing.
     */
    Q_PROPERTY(QString iWantToMeasure READ iWantToMeasure WRITE setiWantToMeasure NOTIFY
                   iWantToMeasureChanged)
    /** The straight pipe's first measure, as of the last paint; 0 while it is not on view. */
    Q_PROPERTY(double measure1 READ measure1 NOTIFY measure1Changed)
    /** The straight pipe's second measure, as of the last paint; 0 while it is not on view. */
    Q_PROPERTY(double measure2 READ measure2 NOTIFY measure2Changed)
    /** The bend is seen from the straight pipe (default); writing the old value does nothing. */
    Q_PROPERTY(bool viewDownstream READ viewDownstream WRITE setViewDownstream NOTIFY
                   bendDownstreamChanged)
    /** Vertical field of view in degrees; 0, NaN and the old value do nothing. Default 37.5. */
    Q_PROPERTY(double vertFov READ getFovDeg WRITE setFovDeg NOTIFY vertFovChanged)

public:
    /** Takes the shared diameter, and that of the host's active record where there is one. */
    explicit ZaItem(QQuickItem *parent = nullptr);
    ~ZaItem() override;

    /** Diameter in mm of the main pipe, shared by all items of the process. GUI thread only. */
    static double &sharedMainPipeDiameter();

    /** Paints the object on view and, with it, computes its measures. */
    void paint(QPainter *painter) override;

    /**
     * Takes the colours, and the units of the labels, that the host has stored. A colour that is
     * invalid stays as it was. Sends measureUnitChanged() when the units are others.
     */
    void setSettings(const ZASettings &settings);
    /** As they are in use. */
    const ZASettings &settings() const;

    /** How far the model lies to the left, in gesture units. */
    double modelOffset() const;
    /** The model's roll in degrees. */
    double rollDEG() const;
    /** How far the pipe's far end lies to the left and down, in gesture units. */
    Vec2 rearCircleOffset() const;

    /** Puts a kind's object on view and has clicks measure its quantity. Sends no signal. */
    void setMeasureSettings(MeasureMentSettings measureSettings);
    /** The pipe object on view. */
    PipeBase &getCurrentViewObject();
    /** Item coordinates to whole pixels of the square drawing area. */
    QPoint calculatePos(double x, double y) const;
    /** Keeps #isTwoHitpointList for a list of @p size points. */
    void onHitPointListSizeChanged(int size);

    /** Reads or writes the property of this name, see there. */
    ///@{
    bool isTwoHitpointList() const;
    bool useDistanceLasers() const;
    void setUseDistanceLasers(bool use);
    double diameter() const;
    void setDiameter(double diameterMM);
    double percentage() const;
    void setPercentage(double percent);
    double cameraHeight() const;
    void setCameraHeight(double percent);
    bool rearCircleActive() const;
    void setRearCircleActive(bool active);
    double angle() const;
    void setAngle(double angleDeg);
    int clock() const { return 0; }
    void setClock(int clockDeg);
    int viewObject() const;
    void setViewMode(int viewObject);
    int viewStyle() const;
    void setViewStyle(int viewStyle);
    int measureType() const;
    void setMeasureType(int measureType);
    int measureUnit() const;
    void setMeasureUnit(int measureUnit);
    QString iWantToMeasure() const;
    void setiWantToMeasure(QString kind);
    double measure1() const;
    double measure2() const;
    bool viewDownstream() const;
    ///@}

Q_SIGNALS:
    /** The property of this name was written or has changed, see there. */
    ///@{
    void cameraHeightChanged(double cameraHeight);
    void rearCircleActiveChanged(bool rearCircleActive);
    void angleChanged(double angle);
    void clockChanged(double clock);
    void percentageChanged(double percentage);
    void viewModeChanged(int viewObject);
    void viewStyleChanged(int viewStyle);
    void diameterChanged();
    void measureTypeChanged();
    void measureUnitChanged();
    void iWantToMeasureChanged(QString iWantToMeasure);
    bool isTwoHitpointListChanged(bool);
    void measure1Changed(double measure);
    void measure2Changed(double measure);
    void bendDownstreamChanged(bool viewDownstream);
    void vertFovChanged(double vertFov);
    ///@}

public Q_SLOTS:
    /** Writes #viewDownstream. */
    void setViewDownstream(bool viewDownstream);

private Q_SLOTS:
    void onInspectionChanged(QSharedPointer<Drevon::Database::CDomainObject> obj);

public:
    /** Adds a measurement point of the straight pipe at item coordinates. */
    Q_INVOKABLE void mouseClick(double x, double y);
    /** Removes all measurement points. */
    Q_INVOKABLE void clearMeasurementPoints();
    /**
     * Shifts the model to @p x, of which 576 are one diameter, or while #rearCircleActive the rear
     * circle, of which 85 are half the field of view. Positive is to the left; @p y is not used.
     */
    Q_INVOKABLE void move(double x, double y);
    /** Sets the roll in degrees. */
    Q_INVOKABLE void rotate(double r);
    /** Writes or reads #vertFov. */
    ///@{
    Q_INVOKABLE void setFovDeg(double s);
    Q_INVOKABLE double getFovDeg();
    ///@}
    /** A step of a pinch: @p x and @p y add to the offset, scale @p s and roll @p r are absolute.
     */
    Q_INVOKABLE void moveScaleRotate(double x, double y, double s, double r);
    /** Sets the picture's scale; 0 derives it from two points on the laser spots. */
    Q_INVOKABLE void requestCameraCalibration(double mmPerPixel = 0);
    /** Removes the last measurement point. */
    Q_INVOKABLE void undo();
    /** File URL of the picture "Connection.jpg" in the working directory. */
    Q_INVOKABLE QString xxx();
    /** Takes the diameter that all items share. */
    Q_INVOKABLE void refreshMainPipeDiameter();

    /** Lays out the drawing area: the largest centred square. Qt 6 calls geometryChange(). */
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
    void geometryChanged(const QRectF &newGeometry, const QRectF &oldGeometry) override;
#else
    void geometryChanged(const QRectF &newGeometry, const QRectF &oldGeometry);
    /** Calls geometryChanged(). */
    void geometryChange(const QRectF &newGeometry, const QRectF &oldGeometry) override;
#endif

private:
    // Behind a pointer: it can change and hosts that were built before still fit.
    struct State;
    std::unique_ptr<State> m_state;
};

} // namespace Drevon::Zalento
