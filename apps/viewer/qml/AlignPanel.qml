import QtQuick 2.15
import Drevon.Zalento.Viewer 1.0

// Puts the model onto the picture's pipe, in numbers; a drag does the same.
Column {
    id: panel

    required property var commands
    signal cameraRequested()

    spacing: 6

    Rectangle {
        width: parent.width
        height: 1
        color: Theme.line
    }
    Row {
        width: parent.width
        spacing: 6
        readonly property real keyWidth: (width - 2 * spacing) / 3
        ToolKey {
            objectName: "pipeKey"
            width: parent.keyWidth
            text: qsTr("Pipe")
            hint: qsTr("A drag moves the pipe")
            chosen: !Viewer.editor.rearCircleActive
            onClicked: Viewer.editor.rearCircleActive = false
        }
        ToolKey {
            objectName: "farEndKey"
            width: parent.keyWidth
            text: qsTr("Far end")
            hint: qsTr("A drag moves the pipe's far end")
            chosen: Viewer.editor.rearCircleActive
            onClicked: Viewer.editor.rearCircleActive = !Viewer.editor.rearCircleActive
        }
        ToolKey {
            objectName: "resetKey"
            width: parent.keyWidth
            text: qsTr("Reset")
            hint: qsTr("Reset the alignment")
            onClicked: Viewer.editor.resetAlignment()
        }
    }
    Choice {
        objectName: "tools"
        width: parent.width
        label: qsTr("Click")
        choices: [qsTr("points"), qsTr("joint"), qsTr("line")]
        current: Viewer.editor.tool
        onChosen: index => Viewer.editor.tool = index
    }
    Repeater {
        model: Viewer.editor.features
        FeatureRow { width: panel.width }
    }
    Row {
        visible: Viewer.editor.tool > 0
        width: parent.width
        spacing: 6
        ToolKey {
            objectName: "newFeatureKey"
            width: (parent.width - 6) / 2
            text: Viewer.editor.tool === 1 ? qsTr("New joint") : qsTr("New line")
            hint: qsTr("The next click begins another one")
            onClicked: Viewer.editor.beginFeature()
        }
        ToolKey {
            objectName: "fitFovKey"
            width: (parent.width - 6) / 2
            text: qsTr("Fit view")
            hint: qsTr("Fit the field of view, too: two joints with a known distance give it")
            chosen: Viewer.editor.fitsFov
            onClicked: Viewer.editor.fitsFov = !Viewer.editor.fitsFov
        }
    }
    Text {
        objectName: "fitText"
        visible: text
        width: parent.width
        wrapMode: Text.WordWrap
        text: Viewer.editor.fitText
        color: Theme.quiet
        font { family: Theme.family; pixelSize: Theme.small }
    }
    Grid {
        id: helpRow
        width: parent.width
        columns: 2
        spacing: 6
        readonly property real keyWidth: (width - spacing) / 2
        ToolKey {
            objectName: "snapKey"
            width: helpRow.keyWidth
            action: panel.commands.snap
        }
        ToolKey {
            objectName: "asBeforeKey"
            width: helpRow.keyWidth
            font.pixelSize: Theme.small
            text: qsTr("As before")
            hint: qsTr("Take the alignment of the picture before this one")
            enabled: Viewer.documents.currentIndex > 0
            onClicked: Viewer.editor.alignAsBefore()
        }
        ToolKey {
            objectName: "cameraKey"
            width: helpRow.keyWidth
            font.pixelSize: Theme.small
            text: qsTr("Camera")
            hint: qsTr("Lens and field of view: load, keep under a name, or take one that was kept")
            onClicked: panel.cameraRequested()
        }
        ToolKey {
            objectName: "lockKey"
            width: helpRow.keyWidth
            text: qsTr("Lock")
            hint: qsTr("The model stays where it is: a drag pans")
            chosen: Viewer.editor.isLocked
            onClicked: Viewer.editor.isLocked = !Viewer.editor.isLocked
        }
    }
    function focusFields() {
        if (fields.count > 0)
            fields.itemAt(0).forceActiveFocus(Qt.TabFocusReason)
    }
    Repeater {
        id: fields
        model: Viewer.alignmentFields
        NumberField {
            width: panel.width
            fields: Viewer.alignmentFields
        }
    }
    Choice {
        width: parent.width
        label: qsTr("Rings")
        choices: [qsTr("all"), qsTr("ends"), qsTr("none")]
        current: 2 - Viewer.editor.viewStyle
        onChosen: index => Viewer.editor.viewStyle = 2 - index
    }
}
