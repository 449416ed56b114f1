import QtQuick 2.15
import QtQuick.Controls 2.15
import Drevon.Zalento.Viewer 1.0

Rectangle {
    id: bar

    required property var commands
    signal exportRequested(string what)
    signal recordRequested()

    height: 54
    color: Theme.panel

    Row {
        id: left
        anchors { left: parent.left; leftMargin: 6; verticalCenter: parent.verticalCenter }
        spacing: 6
        ToolKey {
            objectName: "openKey"
            action: bar.commands.open
            emphasized: !Viewer.documents.hasPicture
        }
        ToolKey {
            text: qsTr("Recent")
            hint: qsTr("Pictures opened lately")
            enabled: Viewer.preferences.recentFiles.length > 0
            menu: recentMenu
            ViewerMenu {
                id: recentMenu
                y: parent.height + 4
                width: 460
                Repeater {
                    model: Viewer.preferences.recentFiles
                    ViewerMenuItem {
                        text: modelData
                        onTriggered: Viewer.documents.openPaths([modelData])
                    }
                }
            }
        }
        ToolKey {
            objectName: "saveKey"
            action: bar.commands.save
        }
        ToolKey {
            objectName: "exportKey"
            text: qsTr("Export")
            hint: qsTr("Save the picture with its overlay, or the values")
            enabled: Viewer.documents.hasPicture
            menu: exportMenu
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
                    text: qsTr("Wall as a flat picture (PNG)")
                    onTriggered: bar.exportRequested("wall")
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
            text: qsTr("Pipe record")
            hint: qsTr("Type the pipe's nominal size, or load it from a record file")
            enabled: Viewer.documents.hasPicture
            onClicked: bar.recordRequested()
        }
        ToolKey {
            objectName: "mapKey"
            action: bar.commands.map
            chosen: Viewer.assessment.map > 0
        }
        ToolKey {
            objectName: "wallKey"
            action: bar.commands.wall
            chosen: Viewer.wall.isShown
        }
    }

    Row {
        anchors { right: parent.right; rightMargin: 6; verticalCenter: parent.verticalCenter }
        spacing: 6
        ToolKey {
            objectName: "previousKey"
            action: bar.commands.previous
            font.pixelSize: 26
        }
        Column {
            width: Math.min(240, bar.width - left.width - 3 * Theme.touch - 60)
            anchors.verticalCenter: parent.verticalCenter
            visible: Viewer.documents.count > 0
            Text {
                width: parent.width
                horizontalAlignment: Text.AlignHCenter
                elide: Text.ElideMiddle
                text: Viewer.documents.pictureName
                color: Theme.text
                font { family: Theme.family; pixelSize: Theme.normal }
            }
            Text {
                width: parent.width
                horizontalAlignment: Text.AlignHCenter
                text: qsTr("%1 of %2").arg(Viewer.documents.currentIndex + 1).arg(Viewer.documents.count)
                      + (Viewer.documents.hasPicture ? qsTr(" · %1 × %2").arg(Viewer.documents.pictureSize.width)
                                             .arg(Viewer.documents.pictureSize.height) : "")
                color: Theme.quiet
                font { family: Theme.family; pixelSize: 12 }
            }
        }
        ToolKey {
            objectName: "nextKey"
            action: bar.commands.next
            font.pixelSize: 26
        }
        ToolKey {
            objectName: "keysKey"
            action: bar.commands.keys
        }
    }
}
