import QtQuick 2.15
import Drevon.Zalento.Viewer 1.0

// Puts the model onto the picture's pipe, in numbers; a drag does the same.
Column {
    id: panel

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
            checked: !Viewer.editor.rearCircleActive
            onClicked: Viewer.editor.rearCircleActive = false
        }
        ToolKey {
            objectName: "farEndKey"
            width: parent.keyWidth
            text: qsTr("Far end")
            hint: qsTr("A drag moves the pipe's far end")
            checked: Viewer.editor.rearCircleActive
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
    Repeater {
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
        onChosen: Viewer.editor.viewStyle = 2 - index
    }
}
