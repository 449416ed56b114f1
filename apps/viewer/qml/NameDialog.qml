import QtQuick 2.15
import QtQuick.Controls 2.15
import Drevon.Zalento.Viewer 1.0

// The name of the measurement that is edited: it stands beside its values wherever they are told.
ViewerDialog {
    id: dialog

    title: qsTr("Name of the measurement")
    width: Math.min(parent.width - 40, 460)
    onOpened: {
        problem.text = ""
        name.text = Viewer.measurements.chosenName()
        name.selectAll()
        name.forceActiveFocus()
    }

    function take() {
        problem.text = Viewer.measurements.rename(name.text)
        if (!problem.text)
            close()
    }

    contentItem: Column {
        spacing: 16
        TextField {
            id: name
            objectName: "nameField"
            width: parent.width
            height: Theme.touch
            selectByMouse: true
            placeholderText: qsTr("such as: crack A")
            placeholderTextColor: Theme.quiet
            color: problem.text ? Theme.error : Theme.text
            font { family: Theme.family; pixelSize: Theme.normal }
            Accessible.name: dialog.title
            onAccepted: dialog.take()
            background: Rectangle {
                radius: Theme.radius
                color: Theme.window
                border { width: 1; color: problem.text ? Theme.error : Theme.line }
            }
        }
        Note {
            id: problem
            color: Theme.error
        }
        Row {
            anchors.right: parent.right
            spacing: Theme.gap
            ToolKey {
                text: qsTr("Cancel")
                onClicked: dialog.close()
            }
            ToolKey {
                objectName: "nameAccept"
                text: qsTr("Use name")
                emphasized: true
                onClicked: dialog.take()
            }
        }
    }
}
