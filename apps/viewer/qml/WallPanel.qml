import QtQuick 2.15
import Drevon.Zalento.Viewer 1.0

// The wall as a flat picture: clock hours across, distance down. Taps set the same points as in the
// picture.
Rectangle {
    id: panel

    readonly property var wall: Viewer.wall
    readonly property int margin: 34
    // Of the flat picture on the screen; it fills the width, or the height if that is less.
    readonly property real viewScale: wall.size.width > 0
        ? Math.min((width - margin - 8) / wall.size.width, (height - margin - 8) / wall.size.height) : 1

    color: Theme.window
    border { width: 1; color: Theme.line }
    clip: true

    Text {
        anchors { fill: parent; margins: 20 }
        visible: !flat.visible
        verticalAlignment: Text.AlignVCenter
        horizontalAlignment: Text.AlignHCenter
        wrapMode: Text.WordWrap
        text: panel.wall.problem || qsTr("Open a picture to see its wall made flat.")
        color: Theme.quiet
        font { family: Theme.family; pixelSize: Theme.normal }
    }
    Image {
        id: flat
        objectName: "flatWall"
        x: panel.margin
        y: panel.margin
        width: panel.wall.size.width * panel.viewScale
        height: panel.wall.size.height * panel.viewScale
        visible: panel.wall.source !== ""
        source: panel.wall.source
        cache: false
        asynchronous: false
        Accessible.role: Accessible.Graphic
        Accessible.name: panel.wall.isPlane ? qsTr("Plane, straightened") : qsTr("Wall, unrolled")

        TapHandler {
            gesturePolicy: TapHandler.ReleaseWithinBounds
            onTapped: eventPoint => panel.wall.click(Qt.point(eventPoint.position.x / panel.viewScale,
                                                eventPoint.position.y / panel.viewScale))
        }
        Repeater {
            model: panel.wall.points
            PointHandle {
                required property point modelData
                required property int index
                x: modelData.x * panel.viewScale
                y: modelData.y * panel.viewScale
                number: index + 1
            }
        }
    }
    Repeater {
        model: flat.visible && !panel.wall.isPlane ? [12, 3, 6, 9, 12] : []
        Text {
            required property int modelData
            required property int index
            x: flat.x + flat.width * index / 4 - width / 2
            y: panel.margin - height - 6
            text: modelData
            color: Theme.text
            font { family: Theme.family; pixelSize: Theme.small }
        }
    }
    Text {
        visible: flat.visible && !panel.wall.isPlane
        anchors { right: flat.left; rightMargin: 4; top: flat.top }
        text: "0"
        color: Theme.text
        font { family: Theme.family; pixelSize: Theme.small }
    }
    Text {
        visible: flat.visible && !panel.wall.isPlane
        x: 4
        y: Math.min(flat.y + flat.height + 2, panel.height - height - 2)
        text: qsTr("%1 mm").arg(Math.round(panel.wall.lengthMM))
        color: Theme.text
        font { family: Theme.family; pixelSize: Theme.small }
    }
}
