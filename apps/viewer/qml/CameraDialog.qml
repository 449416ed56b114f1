import QtQuick 2.15
import QtQuick.Controls 2.15
import Drevon.Zalento.Viewer 1.0

// The lens of the picture on view, and the cameras that are kept for pictures of its size.
ViewerDialog {
    id: dialog

    readonly property bool hasLens: Viewer.cameras.lensName !== ""
    signal fileRequested()

    title: qsTr("Camera and lens")
    width: Math.min(parent.width - 40, 460)
    onOpened: nameField.forceActiveFocus()

    contentItem: Item {
        implicitHeight: lens.height + list.contentHeight + bottom.height + 36
        Column {
            id: lens
            width: parent.width
            spacing: 6
            Note {
                objectName: "lensNote"
                text: dialog.hasLens
                      ? qsTr("Lens: %1. The picture is shown without its distortion.").arg(Viewer.cameras.lensName)
                      : qsTr("No lens: the picture is shown as it was taken.")
            }
            Row {
                width: parent.width
                spacing: 6
                readonly property real keyWidth: (width - 2 * spacing) / 3
                ToolKey {
                    objectName: "loadLensKey"
                    width: parent.keyWidth
                    font.pixelSize: Theme.small
                    text: qsTr("Load lens…")
                    hint: qsTr("Load a file of OpenCV's form, as calibration programs write it")
                    onClicked: {
                        dialog.close()
                        dialog.fileRequested()
                    }
                }
                ToolKey {
                    objectName: "estimateLensKey"
                    width: parent.keyWidth
                    font.pixelSize: Theme.small
                    text: qsTr("From joints")
                    hint: qsTr("Estimate the lens from three clicked joints")
                    enabled: !dialog.hasLens && Viewer.editor.hasModel
                    onClicked: {
                        dialog.close()
                        Viewer.cameras.estimateLens()
                    }
                }
                ToolKey {
                    objectName: "removeLensKey"
                    width: parent.keyWidth
                    font.pixelSize: Theme.small
                    text: qsTr("Remove lens")
                    hint: qsTr("Show the picture as it was taken")
                    enabled: dialog.hasLens
                    onClicked: Viewer.cameras.removeLens()
                }
            }
            Choice {
                objectName: "lensView"
                width: parent.width
                visible: dialog.hasLens
                label: qsTr("Shown")
                choices: [qsTr("full square"), qsTr("all")]
                current: Viewer.cameras.showsAll ? 1 : 0
                onChosen: index => Viewer.cameras.showsAll = index === 1
            }
            Text {
                text: qsTr("Kept for pictures of this size")
                visible: list.count > 0
                topPadding: 6
                color: Theme.text
                font { family: Theme.family; pixelSize: Theme.normal }
            }
        }
        ListView {
            id: list
            anchors { left: parent.left; right: parent.right; top: lens.bottom; bottom: bottom.top }
            anchors { topMargin: 6; bottomMargin: 12 }
            clip: true
            spacing: 12
            boundsBehavior: Flickable.StopAtBounds
            ScrollBar.vertical: ViewerScrollBar {}
            model: Viewer.cameras.names
            delegate: Row {
                id: camera
                required property string modelData
                width: list.width - 14
                spacing: 6
                ToolKey {
                    width: parent.width - removeKey.width - 6
                    text: camera.modelData
                    hint: Viewer.cameras.hasLens(camera.modelData)
                          ? qsTr("Take the lens of %1").arg(camera.modelData)
                          : qsTr("Take the field of view of %1").arg(camera.modelData)
                    onClicked: {
                        Viewer.cameras.apply(camera.modelData)
                        dialog.close()
                    }
                }
                ToolKey {
                    id: removeKey
                    text: "✕"
                    hint: qsTr("Forget %1").arg(camera.modelData)
                    onClicked: Viewer.cameras.remove(camera.modelData)
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
                hint: qsTr("Keep lens or field of view under this name")
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
