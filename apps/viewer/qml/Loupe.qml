import QtQuick 2.15
import Drevon.Zalento.Viewer 1.0

// Shows what the finger covers: picture pixels four times as large, with overlay and points. It
// stands above the finger, and below it near the stage's upper edge.
Rectangle {
    id: loupe

    property var aim: null
    property bool isWanted: false
    property alias item: lens.item
    required property var stageView

    readonly property int magnification: 4
    readonly property int distance: 40
    readonly property point aimed: aim ? aim : Qt.point(0, 0)
    readonly property bool isBelow: aimed.y < height + distance
    readonly property point pixel: stageView.toPicture(aimed)
    readonly property real lensWidth: lens.width / magnification
    readonly property real lensHeight: lens.height / magnification

    visible: aim !== null && Viewer.documents.hasPicture
    width: 220
    height: 220
    radius: 8
    color: "black"
    border { width: 2; color: Theme.accent }
    x: Math.max(4, Math.min(parent.width - width - 4, aimed.x - width / 2))
    y: isBelow ? Math.min(aimed.y + distance, parent.height - height) : aimed.y - distance - height

    OverlayView {
        id: lens
        objectName: "lens"
        anchors { fill: parent; margins: 4 }
        itemScale: Viewer.documents.overlayScale
        measurements: Viewer.measurements
        picture: Viewer.documents.picture
        contentsScale: loupe.magnification
        origin: Qt.point(loupe.pixel.x - loupe.lensWidth / 2, loupe.pixel.y - loupe.lensHeight / 2)
        marks: Viewer.editor.points.pixels
    }
    Repeater {
        model: [[0.5, 0.36, 2, 0.2], [0.5, 0.64, 2, 0.2], [0.36, 0.5, 0.2, 2], [0.64, 0.5, 0.2, 2]]
        Rectangle {
            required property var modelData
            width: modelData[2] < 1 ? loupe.width * modelData[2] : 2
            height: modelData[3] < 1 ? loupe.height * modelData[3] : 2
            x: loupe.width * modelData[0] - width / 2
            y: loupe.height * modelData[1] - height / 2
            color: Theme.warning
        }
    }
    Connections {
        target: Viewer.editor
        function onSessionChanged() { lens.update() }
    }
}
