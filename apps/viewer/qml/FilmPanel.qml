import QtQuick 2.15
import QtQuick.Controls 2.15
import Drevon.Zalento.Viewer 1.0

// A film, frame by frame: find one, type what its counter shows, and measure on it. Nothing else is
// done meanwhile.
Popup {
    id: panel

    readonly property var film: Viewer.film
    // Frames of a step with Shift, and of the outer keys.
    readonly property int longStep: 25
    property string problem: ""

    parent: Overlay.overlay
    width: parent.width
    height: parent.height
    modal: true
    focus: true
    padding: 0
    closePolicy: Popup.CloseOnEscape
    // The item that holds it is what screen readers are told of, and has no name.
    onAboutToShow: contentItem.parent.Accessible.name = qsTr("Film")
    onOpened: picture.forceActiveFocus()
    onClosed: {
        film.isShown = false
        Viewer.focusStage()
    }

    function step(frames) { film.frame = line.value + frames }
    function take() {
        problem = film.take(counter.text)
        if (!problem)
            counter.text = ""
    }

    Connections {
        target: panel.film
        // What was typed belongs to the frame that it was read from.
        function onFrameChanged() {
            panel.problem = ""
            counter.text = ""
        }
        function onIsShownChanged() { panel.film.isShown ? panel.open() : panel.close() }
    }
    background: Rectangle { color: "black" }
    contentItem: Item {
        Image {
            id: picture
            objectName: "filmFrame"
            anchors { left: parent.left; right: parent.right; top: parent.top; bottom: controls.top }
            fillMode: Image.PreserveAspectFit
            source: panel.film.source
            cache: false
            asynchronous: false
            mipmap: true
            activeFocusOnTab: true
            Keys.onLeftPressed: event => panel.step(event.modifiers & Qt.ShiftModifier ? -panel.longStep : -1)
            Keys.onRightPressed: event => panel.step(event.modifiers & Qt.ShiftModifier ? panel.longStep : 1)
            Keys.onReturnPressed: panel.take()
            Keys.onEnterPressed: panel.take()
            Accessible.role: Accessible.Graphic
            Accessible.name: qsTr("Frame %1 of %2").arg(panel.film.frame + 1).arg(panel.film.name)
        }
        Text {
            anchors.centerIn: parent
            text: panel.film.problem
            color: Theme.error
            font { family: Theme.family; pixelSize: Theme.normal }
        }
        Rectangle {
            id: controls
            anchors { left: parent.left; right: parent.right; bottom: parent.bottom }
            height: column.height + 2 * Theme.gap
            color: Theme.panel

            Column {
                id: column
                x: Theme.gap
                y: Theme.gap
                width: parent.width - 2 * Theme.gap
                spacing: 4

                ViewerSlider {
                    id: line
                    objectName: "filmLine"
                    width: parent.width
                    height: Theme.touch
                    from: 0
                    to: Math.max(1, panel.film.frameCount - 1)
                    stepSize: 1
                    snapMode: Slider.SnapAlways
                    focusPolicy: Qt.TabFocus
                    Accessible.name: qsTr("Place in the film")
                    onMoved: panel.film.frame = value
                    // While it is dragged the frames follow it.
                    Binding on value {
                        value: panel.film.frame
                        when: !line.pressed
                    }
                }
                Flow {
                    width: parent.width
                    spacing: 6
                    Repeater {
                        model: [[-panel.longStep, "«", qsTr("Back by %1 frames").arg(panel.longStep)],
                                [-1, "‹", qsTr("The frame before")],
                                [1, "›", qsTr("The next frame")],
                                [panel.longStep, "»", qsTr("Forward by %1 frames").arg(panel.longStep)]]
                        ToolKey {
                            required property var modelData
                            objectName: "filmStep." + modelData[0]
                            width: Theme.touch
                            font.pixelSize: 26
                            text: modelData[1]
                            hint: modelData[2]
                            autoRepeat: true
                            onClicked: panel.step(modelData[0])
                        }
                    }
                    Text {
                        objectName: "filmTime"
                        height: Theme.touch
                        verticalAlignment: Text.AlignVCenter
                        text: qsTr("%1 · frame %2 of %3").arg(panel.film.timeText)
                                  .arg(panel.film.frame + 1).arg(panel.film.frameCount)
                        color: Theme.text
                        font { family: Theme.family; pixelSize: Theme.normal }
                        Accessible.role: Accessible.StaticText
                        Accessible.name: text
                    }
                    TextField {
                        id: counter
                        objectName: "filmCounter"
                        width: 130
                        height: Theme.touch
                        placeholderText: qsTr("Counter, m")
                        placeholderTextColor: Theme.quiet
                        selectByMouse: true
                        inputMethodHints: Qt.ImhFormattedNumbersOnly
                        color: panel.problem ? Theme.error : Theme.text
                        font { family: Theme.family; pixelSize: Theme.normal }
                        Accessible.name: qsTr("Metres that the counter in the picture shows")
                        onAccepted: panel.take()
                        background: Rectangle {
                            radius: Theme.radius
                            color: Theme.window
                            border { width: 1; color: panel.problem ? Theme.error : Theme.line }
                        }
                    }
                    ToolKey {
                        objectName: "filmTake"
                        text: qsTr("Measure")
                        hint: qsTr("Make this frame a picture, and measure on it")
                        emphasized: true
                        enabled: panel.film.source !== ""
                        onClicked: panel.take()
                    }
                    ToolKey {
                        objectName: "filmClose"
                        text: qsTr("Close")
                        hint: qsTr("Back to the pictures")
                        onClicked: panel.film.isShown = false
                    }
                }
                Note {
                    text: panel.problem
                    color: Theme.error
                }
            }
        }
    }
}
