#include "StageGestures.h"

#include <QGuiApplication>
#include <QLineF>
#include <QStyleHints>

#include <algorithm>
#include <cmath>

namespace Drevon::Zalento {

namespace {

constexpr int holdMs = 450;

// A resting finger wanders further than a mouse.
constexpr double fingerSlackPx = 14.0;

// Eighths of a degree that one notch of a common wheel reports.
constexpr double angleDeltaPerNotch = 120.0;

double slackPx(bool isTouch)
{
    return isTouch ? fingerSlackPx : QGuiApplication::styleHints()->startDragDistance() * 0.5;
}

// The same turn, in (-180, 180].
double shortestTurn(double degrees)
{
    return std::remainder(degrees, 360.0);
}

} // namespace

StageGestures::StageGestures(QQuickItem *parent)
    : QQuickItem(parent)
{
    setAcceptedMouseButtons(Qt::LeftButton | Qt::MiddleButton);
    setAcceptTouchEvents(true);
    m_hold.setSingleShot(true);
    m_hold.setInterval(holdMs);
    connect(&m_hold, &QTimer::timeout, this, &StageGestures::startAiming);
}

void StageGestures::cancel()
{
    const bool wasIdle = m_phase == Phase::Idle || m_phase == Phase::Ignored;
    m_hold.stop();
    m_phase = Phase::Ignored;
    if (!wasIdle) {
        Q_EMIT cancelled();
    }
}

void StageGestures::mousePressEvent(QMouseEvent *event)
{
    press(event->localPos(), false, event->button() == Qt::MiddleButton);
}

void StageGestures::mouseMoveEvent(QMouseEvent *event)
{
    moveTo(event->localPos());
}

void StageGestures::mouseReleaseEvent(QMouseEvent *event)
{
    release(event->localPos());
}

void StageGestures::mouseUngrabEvent()
{
    cancel();
    m_phase = Phase::Idle;
}

void StageGestures::touchUngrabEvent()
{
    cancel();
    m_phase = Phase::Idle;
}

void StageGestures::touchEvent(QTouchEvent *event)
{
    event->accept();
    const auto isDown = [](const QTouchEvent::TouchPoint &point) {
        return point.state() != Qt::TouchPointReleased;
    };
    const auto &points = event->touchPoints();
    const auto down = std::count_if(points.begin(), points.end(), isDown);
    if (down >= 2) {
        if (m_phase == Phase::Pinching) {
            pinchTo(*event);
        } else if (m_phase != Phase::Ignored) {
            startPinching(*event);
        }
    } else if (m_phase == Phase::Pinching) {
        m_phase = Phase::Ignored;
        Q_EMIT pinchEnded();
    } else {
        handleOneFinger(*event);
    }
    if (down == 0) {
        m_phase = Phase::Idle;
    }
}

void StageGestures::handleOneFinger(const QTouchEvent &event)
{
    const QTouchEvent::TouchPoint &point = event.touchPoints().constFirst();
    switch (point.state()) {
    case Qt::TouchPointPressed:
        press(point.pos(), true, false);
        break;
    case Qt::TouchPointReleased:
        release(point.pos());
        break;
    default:
        moveTo(point.pos());
    }
}

void StageGestures::press(const QPointF &point, bool isTouch, bool pans)
{
    m_phase = Phase::Pressed;
    m_isTouch = isTouch;
    m_pans = pans || m_panOnly;
    m_start = point;
    m_last = point;
    if (isTouch && !m_pans) {
        m_hold.start();
    }
}

void StageGestures::moveTo(const QPointF &point)
{
    if (m_phase == Phase::Pressed && QLineF(m_start, point).length() > slackPx(m_isTouch)) {
        startMoving();
    }
    switch (m_phase) {
    case Phase::Dragging:
        Q_EMIT dragged(point);
        break;
    case Phase::Aiming:
        Q_EMIT aimed(point);
        break;
    case Phase::Panning:
        Q_EMIT panned(point.x() - m_last.x(), point.y() - m_last.y());
        break;
    default:
        break;
    }
    m_last = point;
}

void StageGestures::startMoving()
{
    m_hold.stop();
    m_phase = m_pans ? Phase::Panning : Phase::Dragging;
    if (m_phase == Phase::Dragging) {
        Q_EMIT dragBegan(m_start, m_isTouch);
    } else {
        m_last = m_start;
    }
}

void StageGestures::release(const QPointF &point)
{
    m_hold.stop();
    const Phase ended = m_phase;
    m_phase = Phase::Idle;
    if (ended == Phase::Pressed && (!m_pans || m_panOnly)) {
        Q_EMIT tapped(point, m_isTouch);
    } else if (ended == Phase::Dragging) {
        Q_EMIT dragEnded();
    } else if (ended == Phase::Aiming) {
        Q_EMIT aimEnded(point);
    }
}

void StageGestures::startAiming()
{
    if (m_phase == Phase::Pressed) {
        m_phase = Phase::Aiming;
        Q_EMIT aimed(m_last);
    }
}

void StageGestures::startPinching(const QTouchEvent &event)
{
    cancel();
    m_phase = Phase::Pinching;
    m_startFingers = fingersOf(event);
    Q_EMIT pinchBegan();
}

void StageGestures::pinchTo(const QTouchEvent &event)
{
    const Fingers now = fingersOf(event);
    if (m_startFingers.distance <= 0.0 || now.distance <= 0.0) {
        return;
    }
    Q_EMIT pinched(now.centre - m_startFingers.centre, now.distance / m_startFingers.distance,
                   shortestTurn(now.angleDeg - m_startFingers.angleDeg), m_startFingers.centre);
}

StageGestures::Fingers StageGestures::fingersOf(const QTouchEvent &event)
{
    QVector<QPointF> down;
    for (const QTouchEvent::TouchPoint &point : event.touchPoints()) {
        if (point.state() != Qt::TouchPointReleased) {
            down.append(point.pos());
        }
    }
    const QLineF line(down.at(0), down.at(1));
    return {line.center(), line.length(), line.angle()};
}

void StageGestures::wheelEvent(QWheelEvent *event)
{
    event->accept();
    Q_EMIT wheelTurned(event->position(), event->angleDelta().y() / angleDeltaPerNotch);
}

} // namespace Drevon::Zalento
