import QtQuick 2.15

// Turns mouse and touch over the stage into gestures. Points are in its own coordinates.
//
// | Input                               | Gesture                         |
// |-------------------------------------|---------------------------------|
// | left click, tap; with Shift         | tapped; shiftTapped             |
// | left drag, drag of one finger       | dragBegan, dragged, dragEnded   |
// | middle drag; any while `panOnly`    | panned                          |
// | finger held, then moved             | aimed, aimEnded                 |
// | two fingers                         | pinchBegan, pinched, pinchEnded |
// | wheel                               | wheelTurned                     |
//
// A drag, an aim and a pinch may end with cancelled instead.
Item {
    id: gestures

    // A drag of one finger or the left button pans.
    property bool panOnly: false

    signal tapped(point position, bool isTouch)
    signal shiftTapped(point position)
    signal dragBegan(point position, bool isTouch)
    signal dragged(point position)
    signal dragEnded()
    signal panned(real dx, real dy)
    signal aimed(point position)
    signal aimEnded(point position)
    signal pinchBegan()
    // What has changed since the last time, about the middle; the turn to the left since the begin.
    signal pinched(point middle, point moved, real factor, real turnDeg)
    signal pinchEnded()
    signal cancelled()
    // One notch of a wheel is 1, away from the user.
    signal wheelTurned(point position, real notches)

    // What becomes of a grab, and a point that is up, as Qt numbers them: Qt 5 and 6 name them by
    // other types.
    readonly property int cancelGrabPassive: 0x03
    readonly property int ungrabExclusive: 0x20
    readonly property int cancelGrabExclusive: 0x30
    readonly property int released: 0x08
    readonly property real holdSeconds: 0.45
    // A mouse button, and a finger that pans, may rest as long as they like.
    readonly property real neverSeconds: 1e6
    // A resting finger wanders further than a mouse.
    readonly property int fingerSlack: 14
    // Two fingers mean nothing else than a pinch, which is followed nearly from its begin.
    readonly property int pinchSlack: 4
    readonly property int mouseSlack: Qt.styleHints.startDragDistance / 2
    // Eighths of a degree that one notch of a common wheel reports.
    readonly property int angleDeltaPerNotch: 120

    property bool isAiming: false
    // A finger that lifts from a pinch was never pressed alone: Qt 6 would wait for it as for a tap.
    property bool isPinched: false
    // Nothing comes of what is still pressed.
    property bool isGivenUp: false

    // Ends the gesture under way without effect; nothing more comes until all is released.
    function cancel() {
        const isUnderWay = mouseDrag.active || fingerDrag.active || pinch.active || isAiming
        isAiming = false
        if (isUnderWay && !isGivenUp)
            cancelled()
        isGivenUp = true
    }

    component Press: TapHandler {
        property bool isTouch: false
        longPressThreshold: gestures.neverSeconds
        onPressedChanged: if (pressed) gestures.isGivenUp = false
        onTapped: eventPoint => {
            if (gestures.isGivenUp)
                return
            if (point.modifiers & Qt.ShiftModifier)
                gestures.shiftTapped(eventPoint.position)
            else
                gestures.tapped(eventPoint.position, isTouch)
        }
    }
    component Drag: DragHandler {
        property bool isTouch: false
        property bool pans: gestures.panOnly
        property point last
        target: null
        onActiveChanged: if (active) gestures.begin(this)
        onCentroidChanged: if (active) gestures.move(this)
        onGrabChanged: (transition, point) => {
            if (transition === gestures.ungrabExclusive
                    || transition === gestures.cancelGrabExclusive)
                gestures.end(this, point)
        }
    }
    function begin(drag) {
        drag.last = drag.centroid.pressPosition
        if (!isGivenUp && !isAiming && !drag.pans)
            dragBegan(drag.last, drag.isTouch)
        move(drag)
    }
    function move(drag) {
        const position = drag.centroid.position
        if (isGivenUp)
            return
        if (isAiming)
            aimed(position)
        else if (drag.pans)
            panned(position.x - drag.last.x, position.y - drag.last.y)
        else
            dragged(position)
        drag.last = position
    }
    // Where another finger took part, the grab ends while the point is still down.
    function end(drag, point) {
        if (isGivenUp)
            return
        // Qt 6.4 hands over the byte of the state with what lies beside it.
        if ((point.state & 0xff) !== gestures.released)
            cancelOne()
        else if (isAiming)
            endAim(point.position)
        else if (!drag.pans)
            dragEnded()
    }
    function endAim(position) {
        isAiming = false
        aimEnded(position)
    }
    function cancelOne() {
        isAiming = false
        cancelled()
    }

    Press {
        acceptedDevices: PointerDevice.Mouse
        acceptedButtons: Qt.LeftButton
        dragThreshold: gestures.mouseSlack
    }
    Press {
        enabled: !gestures.isPinched
        isTouch: true
        acceptedDevices: PointerDevice.TouchScreen
        dragThreshold: gestures.fingerSlack
        longPressThreshold: gestures.panOnly ? gestures.neverSeconds : gestures.holdSeconds
        onLongPressed: if (!gestures.isGivenUp) {
            gestures.isAiming = true
            gestures.aimed(point.position)
        }
        // Released where it rested; a finger that has moved ends with its drag.
        onPressedChanged: if (!pressed && gestures.isAiming && !fingerDrag.active)
            gestures.endAim(point.position)
        onGrabChanged: transition => {
            if (transition === gestures.cancelGrabPassive && gestures.isAiming)
                gestures.cancelOne()
        }
    }
    Drag {
        id: mouseDrag
        acceptedDevices: PointerDevice.Mouse
        acceptedButtons: Qt.LeftButton
        dragThreshold: gestures.mouseSlack
    }
    Drag {
        acceptedDevices: PointerDevice.Mouse
        acceptedButtons: Qt.MiddleButton
        dragThreshold: gestures.mouseSlack
        pans: true
    }
    Drag {
        id: fingerDrag
        isTouch: true
        acceptedDevices: PointerDevice.TouchScreen
        dragThreshold: gestures.isAiming ? 0 : gestures.fingerSlack
    }
    PinchHandler {
        id: pinch
        property point lastMiddle
        property real lastScale
        target: null
        dragThreshold: gestures.pinchSlack
        onActiveChanged: active ? gestures.beginPinch() : gestures.endPinch()
        onUpdated: gestures.movePinch()
    }
    function beginPinch() {
        pinch.lastMiddle = pinch.centroid.position
        pinch.lastScale = 1
        isPinched = true
        if (!isGivenUp)
            pinchBegan()
    }
    function movePinch() {
        const middle = pinch.centroid.position
        if (!isGivenUp && pinch.active)
            pinched(middle, Qt.point(middle.x - pinch.lastMiddle.x, middle.y - pinch.lastMiddle.y),
                    pinch.activeScale / pinch.lastScale, -pinch.rotation)
        pinch.lastMiddle = middle
        pinch.lastScale = pinch.activeScale
    }
    // Fingers never lift at once: the one that stays is not a drag.
    function endPinch() {
        if (!isGivenUp)
            pinchEnded()
        isGivenUp = true
        Qt.callLater(() => isPinched = false)
    }
    WheelHandler {
        acceptedDevices: PointerDevice.Mouse | PointerDevice.TouchPad
        target: null
        onWheel: event => gestures.wheelTurned(point.position, event.angleDelta.y
                                               / gestures.angleDeltaPerNotch)
    }
}
