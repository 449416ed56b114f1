import QtQuick 2.15
import Drevon.Zalento.Viewer 1.0

Rectangle {
    required property var stage

    width: column.width + 8
    height: column.height + 8
    radius: 8
    color: "#c0101315"

    Column {
        id: column
        x: 4
        y: 4
        spacing: 4
        ToolKey {
            objectName: "zoomInKey"
            width: 56
            text: "+"
            font.pixelSize: 22
            hint: qsTr("Zoom in")
            shortcut: "+"
            autoRepeat: true
            onClicked: stage.zoom(1)
        }
        Text {
            objectName: "zoomText"
            width: 56
            horizontalAlignment: Text.AlignHCenter
            text: Math.round(stage.view.scale * 100) + " %"
            color: Theme.text
            font { family: Theme.family; pixelSize: 13 }
        }
        ToolKey {
            objectName: "zoomOutKey"
            width: 56
            text: "−"
            font.pixelSize: 22
            hint: qsTr("Zoom out")
            shortcut: "-"
            autoRepeat: true
            onClicked: stage.zoom(-1)
        }
        ToolKey {
            objectName: "fitKey"
            width: 56
            text: qsTr("Fit")
            hint: qsTr("Whole picture")
            shortcut: "Ctrl+0"
            onClicked: stage.fit()
        }
        ToolKey {
            width: 56
            text: "1:1"
            hint: qsTr("Picture pixels")
            shortcut: "Ctrl+1"
            onClicked: stage.actualSize()
        }
        ToolKey {
            objectName: "panKey"
            width: 56
            text: qsTr("Pan")
            font.pixelSize: Theme.small
            hint: qsTr("Drag pans the picture")
            checked: Viewer.isPanning
            onClicked: Viewer.isPanning = !Viewer.isPanning
        }
    }
}
