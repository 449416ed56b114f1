import QtQuick 2.15
import QtQuick.Controls 2.15
import Drevon.Zalento.Viewer 1.0

Rectangle {
    id: bar

    signal openRequested()
    signal exportRequested(string what)
    signal recordRequested()
    signal keysRequested()

    height: 54
    color: Theme.panel

    Row {
        id: left
        anchors { left: parent.left; leftMargin: 6; verticalCenter: parent.verticalCenter }
        spacing: 6
        ToolKey {
            objectName: "openKey"
            text: qsTr("Open")
            shortcut: "Ctrl+O"
            emphasized: !Viewer.hasPicture
            onClicked: bar.openRequested()
        }
        ToolKey {
            text: qsTr("Recent")
            hint: qsTr("Pictures opened lately")
            enabled: Viewer.recentFiles.length > 0
            onClicked: recentMenu.open()
            ViewerMenu {
                id: recentMenu
                y: parent.height + 4
                width: 460
                Repeater {
                    model: Viewer.recentFiles
                    ViewerMenuItem {
                        text: modelData
                        onTriggered: Viewer.openPaths([modelData])
                    }
                }
            }
        }
        ToolKey {
            objectName: "saveKey"
            text: Viewer.isModified ? qsTr("Save •") : qsTr("Save")
            hint: qsTr("Save the session beside the picture")
            shortcut: "Ctrl+S"
            enabled: Viewer.hasPicture
            onClicked: Viewer.save()
        }
        ToolKey {
            objectName: "exportKey"
            text: qsTr("Export")
            hint: qsTr("Save the picture with its overlay, or the values")
            enabled: Viewer.hasPicture
            onClicked: exportMenu.open()
            ViewerMenu {
                id: exportMenu
                objectName: "exportMenu"
                y: parent.height + 4
                width: 320
                ViewerMenuItem {
                    text: qsTr("Picture with overlay (PNG)")
                    onTriggered: bar.exportRequested("png")
                }
                ViewerMenuItem {
                    text: qsTr("Overlay as vectors (SVG)")
                    onTriggered: bar.exportRequested("svg")
                }
                ViewerMenuItem {
                    text: qsTr("Values of all pictures (CSV)")
                    onTriggered: bar.exportRequested("csv")
                }
                ViewerMenuItem {
                    text: qsTr("Values of all pictures (JSON)")
                    onTriggered: bar.exportRequested("json")
                }
                ViewerMenuItem {
                    text: qsTr("Session to another place…")
                    onTriggered: bar.exportRequested("session")
                }
            }
        }
        ToolKey {
            objectName: "recordKey"
            text: qsTr("Pipe size")
            hint: qsTr("Pipe record: type or load the nominal size")
            enabled: Viewer.hasPicture
            onClicked: bar.recordRequested()
        }
    }

    Row {
        anchors { right: parent.right; rightMargin: 6; verticalCenter: parent.verticalCenter }
        spacing: 6
        ToolKey {
            objectName: "previousKey"
            text: "‹"
            font.pixelSize: 26
            hint: qsTr("Previous picture")
            shortcut: "PgUp"
            enabled: Viewer.pictureIndex > 0
            onClicked: Viewer.previousPicture()
        }
        Column {
            width: Math.min(240, bar.width - left.width - 3 * Theme.touch - 60)
            anchors.verticalCenter: parent.verticalCenter
            visible: Viewer.pictureCount > 0
            Text {
                width: parent.width
                horizontalAlignment: Text.AlignHCenter
                elide: Text.ElideMiddle
                text: Viewer.pictureName
                color: Theme.text
                font { family: Theme.family; pixelSize: Theme.normal }
            }
            Text {
                width: parent.width
                horizontalAlignment: Text.AlignHCenter
                text: qsTr("%1 of %2").arg(Viewer.pictureIndex + 1).arg(Viewer.pictureCount)
                      + (Viewer.hasPicture ? qsTr(" · %1 × %2").arg(Viewer.pictureSize.width)
                                             .arg(Viewer.pictureSize.height) : "")
                color: Theme.quiet
                font { family: Theme.family; pixelSize: 12 }
            }
        }
        ToolKey {
            objectName: "nextKey"
            text: "›"
            font.pixelSize: 26
            hint: qsTr("Next picture")
            shortcut: "PgDown"
            enabled: Viewer.pictureIndex + 1 < Viewer.pictureCount
            onClicked: Viewer.nextPicture()
        }
        ToolKey {
            objectName: "keysKey"
            text: "?"
            hint: qsTr("List of keys")
            shortcut: "F1"
            onClicked: bar.keysRequested()
        }
    }
}
