import QtQuick 2.15
import Drevon.Zalento.Viewer 1.0

Rectangle {
    required property var stage
    required property var commands

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
            action: commands.zoomIn
            width: 56
            font.pixelSize: 22
            autoRepeat: true
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
            action: commands.zoomOut
            width: 56
            font.pixelSize: 22
            autoRepeat: true
        }
        ToolKey {
            objectName: "fitKey"
            action: commands.fit
            width: 56
        }
        ToolKey {
            action: commands.actualSize
            width: 56
        }
        ToolKey {
            objectName: "panKey"
            width: 56
            text: qsTr("Pan")
            font.pixelSize: Theme.small
            hint: qsTr("Drag pans the picture")
            chosen: Viewer.editor.isPanning
            onClicked: Viewer.editor.isPanning = !Viewer.editor.isPanning
        }
    }
}
