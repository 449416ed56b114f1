import QtQuick 2.15
import Drevon.Zalento.Viewer 1.0

// They stand beside the picture, never on it.
Row {
    id: row

    property bool isCompact: false
    required property var stage
    required property var commands

    spacing: 4

    ToolKey {
        objectName: "zoomOutKey"
        action: row.commands.zoomOut
        font.pixelSize: 22
        autoRepeat: true
    }
    Text {
        objectName: "zoomText"
        width: 52
        height: parent.height
        visible: !row.isCompact
        horizontalAlignment: Text.AlignHCenter
        verticalAlignment: Text.AlignVCenter
        text: Math.round(row.stage.view.scale * 100) + " %"
        color: Theme.text
        font { family: Theme.family; pixelSize: 13 }
        Accessible.role: Accessible.StaticText
        Accessible.name: qsTr("Size of the picture: %1").arg(text)
    }
    ToolKey {
        objectName: "zoomInKey"
        action: row.commands.zoomIn
        font.pixelSize: 22
        autoRepeat: true
    }
    ToolKey {
        objectName: "fitKey"
        action: row.commands.fit
        width: Theme.touch
        font.pixelSize: Theme.small
    }
    ToolKey {
        action: row.commands.actualSize
        width: Theme.touch
        font.pixelSize: Theme.small
    }
    ToolKey {
        objectName: "panKey"
        width: Theme.touch
        text: qsTr("Pan")
        font.pixelSize: Theme.small
        hint: qsTr("Drag pans the picture")
        chosen: Viewer.editor.isPanning
        onClicked: Viewer.editor.isPanning = !Viewer.editor.isPanning
    }
}
