import QtQuick 2.15
import QtQuick.Controls 2.15
import Drevon.Zalento 1.0
import Drevon.Zalento.Viewer 1.0

// The picture with the overlay, and everything that a hand does on it.
FocusScope {
    id: stage

    property bool isOverlayHidden: false
    property bool isBehindDialog: false
    readonly property alias view: stageView
    required property var commands

    // How near to a point a press takes hold of it, in stage pixels.
    readonly property int mouseReach: 12
    readonly property int fingerReach: 26
    readonly property real zoomStep: 1.25

    objectName: "stage"
    clip: true
    focus: true

    function zoom(steps) { stageView.zoom(Math.pow(zoomStep, steps)) }
    function fit() { stageView.fit() }
    function actualSize() { stageView.actualSize() }
    function cancel() {
        gestures.cancel()
        loupe.aim = null
        cursor = null
        Viewer.editor.cancel()
    }

    Connections {
        target: Viewer
        function onStageFocusRequested() { if (!stage.isBehindDialog) stage.forceActiveFocus() }
    }
    Connections {
        target: Viewer.editor
        function onSessionChanged() { overlay.update() }
    }
    // Places clicks from the keyboard, in picture pixels; null while it is not shown.
    property var cursor: null

    function moveCursor(dx, dy) {
        const size = Viewer.documents.pictureSize
        cursor = Qt.point(Math.max(0, Math.min(size.width - 1, cursor.x + dx)),
                          Math.max(0, Math.min(size.height - 1, cursor.y + dy)))
    }
    // A click that joints and lines have there already is taken, for the arrows and Backspace.
    function clickAt(pixel) {
        const reach = selectReach / stageView.scale
        if (!Viewer.editor.selectAlignmentClick(pixel, reach))
            Viewer.editor.click(pixel)
    }
    function clickCursor(keepsOpen) {
        if (cursor)
            keepsOpen ? Viewer.editor.clickKeepingOpen(cursor) : clickAt(cursor)
        else
            cursor = stageView.toPicture(Qt.point(width / 2, height / 2))
    }
    Keys.onPressed: event => {
        const length = event.modifiers & Qt.ShiftModifier ? 10 : 1
        const arrows = {}
        arrows[Qt.Key_Left] = [-1, 0]
        arrows[Qt.Key_Right] = [1, 0]
        arrows[Qt.Key_Up] = [0, -1]
        arrows[Qt.Key_Down] = [0, 1]
        const arrow = arrows[event.key]
        if (arrow) {
            event.accepted = true
            if (cursor)
                moveCursor(arrow[0] * length, arrow[1] * length)
            else if (!Viewer.editor.nudge(arrow[0] * length, arrow[1] * length, event.isAutoRepeat))
                stageView.panBy(-40 * arrow[0], -40 * arrow[1])
        } else if (event.key === Qt.Key_Return || event.key === Qt.Key_Enter) {
            event.accepted = Viewer.documents.hasPicture
            if (event.accepted)
                clickCursor(event.modifiers & Qt.ShiftModifier)
        } else if (event.key === Qt.Key_H) {
            event.accepted = true
            isOverlayHidden = true
        }
    }
    Keys.onReleased: event => {
        if (event.key === Qt.Key_H && !event.isAutoRepeat)
            isOverlayHidden = false
    }
    onActiveFocusChanged: if (!activeFocus) isOverlayHidden = false

    StageView {
        id: stageView
        viewSize: Qt.size(stage.width, stage.height)
        pictureSize: Viewer.documents.pictureSize
    }

    Rectangle {
        anchors.fill: parent
        color: "black"
    }
    Image {
        x: stageView.offset.x
        y: stageView.offset.y
        width: Viewer.documents.pictureSize.width
        height: Viewer.documents.pictureSize.height
        scale: stageView.scale
        transformOrigin: Item.TopLeft
        source: Viewer.documents.pictureSource
        cache: false
        asynchronous: false
        // From here on the picture's own pixels are what the operator wants to see.
        smooth: stageView.scale < 3
        mipmap: true
    }
    Image {
        objectName: "map"
        x: stageView.offset.x
        y: stageView.offset.y
        width: Viewer.documents.pictureSize.width * stageView.scale
        height: Viewer.documents.pictureSize.height * stageView.scale
        visible: Viewer.assessment.map > 0 && !stage.isOverlayHidden
        source: Viewer.assessment.mapSource
        cache: false
        asynchronous: false
    }
    // As large as the picture, or a fraction of it; OverlayView shows it.
    ZaItem {
        id: item
        objectName: "item"
        visible: false
        Component.onCompleted: Viewer.editor.item = item
    }
    OverlayView {
        id: overlay
        objectName: "overlay"
        anchors.fill: parent
        visible: Viewer.documents.hasPicture && !stage.isOverlayHidden
        // Its lines grow with the picture: zoomed in, what lies below them shines through.
        opacity: Math.max(0.3, Math.min(1, 2 / (stageView.scale * itemScale)))
        item: item
        itemScale: Viewer.documents.overlayScale
        measurements: Viewer.measurements
        contentsScale: stageView.scale
        origin: stageView.origin
    }
    Repeater {
        model: Viewer.editor.points
        PointHandle {
            required property point pixel
            required property int index
            x: pixel.x * stageView.scale + stageView.offset.x
            y: pixel.y * stageView.scale + stageView.offset.y
            visible: !stage.isOverlayHidden
            isSelected: index === Viewer.editor.selectedPoint
            number: index + 1
        }
    }
    // Where the selected point may lie: dots on an ellipse.
    Repeater {
        model: Viewer.assessment.ellipse
        Rectangle {
            required property point modelData
            x: modelData.x * stageView.scale + stageView.offset.x - 1
            y: modelData.y * stageView.scale + stageView.offset.y - 1
            width: 3
            height: 3
            radius: 1.5
            color: Theme.warning
            visible: !stage.isOverlayHidden
        }
    }
    // Inside of these dots a click closes the outline.
    Repeater {
        model: Viewer.editor.tool > 0 ? [] : Viewer.editor.closingEdge
        Rectangle {
            objectName: "closingDot"
            required property point modelData
            readonly property int size: stage.closesNow ? 5 : 3
            x: modelData.x * stageView.scale + stageView.offset.x - size / 2
            y: modelData.y * stageView.scale + stageView.offset.y - size / 2
            width: size
            height: size
            radius: size / 2
            color: stage.closesNow ? Theme.accent : Theme.text
            visible: !stage.isOverlayHidden
        }
    }
    HoverHandler {
        id: hover
        acceptedDevices: PointerDevice.Mouse
    }
    // The click under the mouse or the cursor closes the outline.
    readonly property bool closesNow: Viewer.editor.closingEdge.length > 0
        && (cursor ? Viewer.editor.closesAt(cursor)
                   : hover.hovered && Viewer.editor.closesAt(stageView.toPicture(hover.point.position)))
    Repeater {
        model: Viewer.editor.alignmentMarks
        AlignmentMark {
            required property var modelData
            x: modelData.pixel.x * stageView.scale + stageView.offset.x
            y: modelData.pixel.y * stageView.scale + stageView.offset.y
            visible: !stage.isOverlayHidden
            residual: modelData.residual
            isSuspicious: modelData.isSuspicious
            isSelected: modelData.isSelected
            viewScale: stageView.scale
        }
    }
    Repeater {
        model: Viewer.editor.laserSpots
        PointHandle {
            required property point modelData
            x: modelData.x * stageView.scale + stageView.offset.x
            y: modelData.y * stageView.scale + stageView.offset.y
            isSelected: true
            mark: Theme.error
        }
    }

    StageGestures {
        id: gestures
        objectName: "gestures"
        anchors.fill: parent
        panOnly: Viewer.editor.isPanning
        Accessible.role: Accessible.Graphic
        Accessible.name: qsTr("Picture %1").arg(Viewer.documents.pictureName)

        property bool pans: false
        property point lastPosition

        // A finger that zooms also turns a little; the roll starts beyond this.
        readonly property real twistSlack: 6

        onTapped: (position, isTouch) => {
            stage.forceActiveFocus()
            const near = stage.pointAt(position, isTouch)
            near >= 0 ? Viewer.editor.selectedPoint = near
                      : stage.clickAt(stageView.toPicture(position))
        }
        onShiftTapped: position => {
            stage.forceActiveFocus()
            Viewer.editor.clickKeepingOpen(stageView.toPicture(position))
        }
        onDragBegan: (position, isTouch) => {
            stage.forceActiveFocus()
            const reach = (isTouch ? stage.fingerReach : stage.mouseReach) / stageView.scale
            pans = !Viewer.editor.beginDrag(stageView.toPicture(position), reach)
            lastPosition = position
            loupe.isWanted = isTouch && Viewer.editor.isDraggingPoint()
        }
        onDragged: position => {
            if (pans)
                stageView.panBy(position.x - lastPosition.x, position.y - lastPosition.y)
            else
                Viewer.editor.dragTo(stageView.toPicture(position))
            lastPosition = position
            if (loupe.isWanted)
                loupe.aim = position
        }
        onDragEnded: {
            loupe.aim = null
            if (!pans)
                Viewer.editor.endDrag()
        }
        onPanned: (dx, dy) => stageView.panBy(dx, dy)
        onAimed: position => loupe.aim = position
        onAimEnded: position => {
            loupe.aim = null
            // Who aims means the place, not the closing.
            Viewer.editor.clickKeepingOpen(stageView.toPicture(position))
        }
        onPinchBegan: Viewer.editor.beginPinch()
        onPinched: (middle, moved, factor, turnDeg) => {
            stageView.panBy(moved.x, moved.y)
            stageView.zoomAt(middle, factor)
            const turn = Math.abs(turnDeg) - twistSlack
            Viewer.editor.pinch(turn > 0 ? Math.sign(turnDeg) * turn : 0)
        }
        onPinchEnded: Viewer.editor.endPinch()
        onCancelled: {
            loupe.aim = null
            Viewer.editor.cancel()
        }
        onWheelTurned: (position, notches) => stageView.zoomAt(position,
                                                               Math.pow(stage.zoomStep, notches))
    }

    // The handle under a tap, or -1.
    function pointAt(viewPoint, isTouch) {
        if (Viewer.editor.isCalibrating || Viewer.editor.tool > 0)
            return -1
        const points = Viewer.editor.points.pixels
        for (let i = points.length - 1; i >= 0; --i) {
            const p = stageView.toView(points[i])
            if (Math.hypot(p.x - viewPoint.x, p.y - viewPoint.y) <= selectReach)
                return isClosing(i) ? -1 : i
        }
        return -1
    }
    // A tap this near to a point selects it.
    readonly property int selectReach: 7

    // In an open outline a tap on the first point closes it.
    function isClosing(index) {
        return index === 0 && Viewer.editor.closesOutline && Viewer.editor.points.count > 2
    }

    Item {
        objectName: "cursor"
        visible: stage.cursor !== null
        x: visible ? stage.cursor.x * stageView.scale + stageView.offset.x : 0
        y: visible ? stage.cursor.y * stageView.scale + stageView.offset.y : 0
        Repeater {
            model: [[25, 2], [2, 25]]
            Rectangle {
                required property var modelData
                x: -width / 2
                y: -height / 2
                width: modelData[0] + 4
                height: modelData[1] + 2
                color: Theme.accent
                border { width: 1; color: "black" }
            }
        }
    }
    MapLegend {
        anchors { left: parent.left; bottom: parent.bottom; margins: 10 }
    }
    Loupe {
        id: loupe
        objectName: "loupe"
        item: item
        stageView: stageView
    }

    Column {
        anchors.centerIn: parent
        width: parent.width * 0.7
        spacing: 20
        visible: !Viewer.documents.hasPicture
        Text {
            width: parent.width
            horizontalAlignment: Text.AlignHCenter
            wrapMode: Text.WordWrap
            text: Viewer.documents.pictureProblem || qsTr("Drop pictures from inside a pipe here")
            color: Viewer.documents.pictureProblem ? Theme.error : Theme.quiet
            font { family: Theme.family; pixelSize: 22 }
        }
        ToolKey {
            anchors.horizontalCenter: parent.horizontalCenter
            width: 200
            height: 56
            action: stage.commands.open
            text: qsTr("Open pictures")
            emphasized: true
        }
    }
}
