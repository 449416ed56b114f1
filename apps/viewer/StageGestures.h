#pragma once

#include <QPointF>
#include <QQuickItem>
#include <QTimer>

namespace Drevon::Zalento {

/**
 * Turns mouse and touch events over the stage into gestures. Points are in its own coordinates.
 *
 * | Input                               | Gesture                         |
 * |-------------------------------------|---------------------------------|
 * | left click, tap                     | tapped                          |
 * | left drag, drag of one finger       | dragBegan, dragged, dragEnded   |
 * | middle drag; any while #panOnly     | panned                          |
 * | finger held, then moved             | aimed, aimEnded                 |
 * | two fingers                         | pinchBegan, pinched, pinchEnded |
 * | wheel                               | wheelTurned                     |
 *
 * A drag, an aim and a pinch may end with cancelled instead.
 */
class StageGestures : public QQuickItem
{
    Q_OBJECT

    /** A drag of one finger or the left button pans. */
    Q_PROPERTY(bool panOnly MEMBER m_panOnly NOTIFY panOnlyChanged)

public:
    explicit StageGestures(QQuickItem *parent = nullptr);

    /** Ends the gesture under way without effect; nothing more comes until all is released. */
    Q_INVOKABLE void cancel();

Q_SIGNALS:
    void panOnlyChanged();
    void tapped(const QPointF &point, bool isTouch);
    void dragBegan(const QPointF &point, bool isTouch);
    void dragged(const QPointF &point);
    void dragEnded();
    void panned(double dx, double dy);
    void aimed(const QPointF &point);
    void aimEnded(const QPointF &point);
    void pinchBegan();
    /** Since its begin: how the middle moved, the distance grew, and the line turned left. */
    void pinched(const QPointF &moved, double factor, double turnDeg, const QPointF &startCentre);
    void pinchEnded();
    void cancelled();
    /** One notch of a wheel is 1, away from the user. */
    void wheelTurned(const QPointF &point, double notches);

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseUngrabEvent() override;
    void touchEvent(QTouchEvent *event) override;
    void touchUngrabEvent() override;
    void wheelEvent(QWheelEvent *event) override;

private:
    enum class Phase { Idle, Pressed, Dragging, Panning, Aiming, Pinching, Ignored };

    struct Fingers
    {
        QPointF centre;
        double distance = 0.0;
        double angleDeg = 0.0;
    };

    static Fingers fingersOf(const QTouchEvent &event);
    void press(const QPointF &point, bool isTouch, bool pans);
    void moveTo(const QPointF &point);
    void startMoving();
    void release(const QPointF &point);
    void startAiming();
    void startPinching(const QTouchEvent &event);
    void pinchTo(const QTouchEvent &event);
    void handleOneFinger(const QTouchEvent &event);

    bool m_panOnly = false;
    Phase m_phase = Phase::Idle;
    bool m_isTouch = false;
    bool m_pans = false;
    QPointF m_start;
    QPointF m_last;
    Fingers m_startFingers;
    QTimer m_hold;
};

} // namespace Drevon::Zalento
