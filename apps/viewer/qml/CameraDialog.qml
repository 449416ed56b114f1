import QtQuick 2.15
import QtQuick.Controls 2.15
import Drevon.Zalento.Viewer 1.0

// The cameras whose field of view is kept, for pictures of the size on view.
ViewerDialog {
    id: dialog

    title: qsTr("Cameras of pictures of this size")
    width: Math.min(parent.width - 40, 460)
    onOpened: nameField.forceActiveFocus()

    contentItem: Item {
        implicitHeight: list.contentHeight + bottom.height + 12
        ListView {
            id: list
            anchors { left: parent.left; right: parent.right; top: parent.top; bottom: bottom.top }
            anchors.bottomMargin: 12
            clip: true
            spacing: 12
            boundsBehavior: Flickable.StopAtBounds
            ScrollBar.vertical: ScrollBar { width: 10 }
            model: Viewer.cameras.names
            delegate: Row {
                width: list.width - 14
                spacing: 6
                ToolKey {
                    width: parent.width - removeKey.width - 6
                    text: modelData
                    hint: qsTr("Take the field of view of %1").arg(modelData)
                    onClicked: {
                        Viewer.cameras.apply(modelData)
                        dialog.close()
                    }
                }
                ToolKey {
                    id: removeKey
                    text: "✕"
                    hint: qsTr("Forget %1").arg(modelData)
                    onClicked: Viewer.cameras.remove(modelData)
                }
            }
        }
        Row {
            id: bottom
            anchors.bottom: parent.bottom
            width: dialog.availableWidth
            spacing: 6
            TextField {
                id: nameField
                objectName: "cameraName"
                width: parent.width - keepKey.width - closeKey.width - 12
                height: Theme.touch
                selectByMouse: true
                placeholderText: qsTr("Name")
                placeholderTextColor: Theme.quiet
                color: Theme.text
                font { family: Theme.family; pixelSize: Theme.normal }
                Accessible.name: qsTr("Name of the camera")
                onAccepted: keepKey.keep()
                background: Rectangle {
                    radius: Theme.radius
                    color: Theme.window
                    border { width: 1; color: Theme.line }
                }
            }
            ToolKey {
                id: keepKey
                objectName: "keepCameraKey"
                text: qsTr("Keep")
                hint: qsTr("Keep the field of view under this name")
                emphasized: true
                onClicked: keep()

                function keep() {
                    Viewer.cameras.keep(nameField.text)
                    dialog.close()
                }
            }
            ToolKey {
                id: closeKey
                text: qsTr("Cancel")
                onClicked: dialog.close()
            }
        }
    }
}
