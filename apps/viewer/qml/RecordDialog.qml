import QtQuick 2.15
import QtQuick.Controls 2.15
import Drevon.Zalento.Viewer 1.0

// The pipe's record: its nominal size gives the model's diameter.
ViewerDialog {
    id: dialog

    property string problem: ""
    property int unit: 0
    readonly property var units: ["mm", "inch", "ft"]
    signal fileRequested()

    title: qsTr("Pipe record")
    width: Math.min(parent.width - 40, 460)
    onOpened: {
        problem = ""
        size.forceActiveFocus()
    }

    function take() {
        problem = Viewer.records.take(size.text, units[unit])
        if (!problem)
            close()
    }

    contentItem: Column {
        spacing: 16
        Note {
            text: qsTr("The nominal size is the model's diameter: lengths grow with it.")
        }
        Row {
            width: parent.width
            Text {
                height: Theme.touch
                width: parent.width - size.width
                verticalAlignment: Text.AlignVCenter
                text: qsTr("Nominal size")
                color: Theme.text
                font { family: Theme.family; pixelSize: Theme.normal }
            }
            TextField {
                id: size
                objectName: "recordSize"
                width: 130
                height: Theme.touch
                selectByMouse: true
                color: dialog.problem ? Theme.error : Theme.text
                horizontalAlignment: TextInput.AlignRight
                inputMethodHints: Qt.ImhDigitsOnly
                font { family: Theme.family; pixelSize: Theme.normal }
                Accessible.name: qsTr("Nominal size")
                onAccepted: dialog.take()
                background: Rectangle {
                    radius: Theme.radius
                    color: Theme.window
                    border { width: 1; color: dialog.problem ? Theme.error : Theme.line }
                }
            }
        }
        Choice {
            width: parent.width
            label: qsTr("Unit")
            choices: dialog.units
            current: dialog.unit
            onChosen: index => dialog.unit = index
        }
        Text {
            width: parent.width
            visible: dialog.problem
            wrapMode: Text.WordWrap
            text: dialog.problem
            color: Theme.error
            font { family: Theme.family; pixelSize: Theme.small }
        }
        Row {
            anchors.right: parent.right
            spacing: Theme.gap
            ToolKey {
                text: qsTr("From file…")
                hint: qsTr("Load the size from a record file")
                onClicked: {
                    dialog.close()
                    dialog.fileRequested()
                }
            }
            ToolKey {
                text: qsTr("Cancel")
                onClicked: dialog.close()
            }
            ToolKey {
                objectName: "recordAccept"
                text: qsTr("Use size")
                hint: qsTr("Use this size for the model")
                emphasized: true
                onClicked: dialog.take()
            }
        }
    }
}
