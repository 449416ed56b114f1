import QtQuick 2.15
import QtQuick.Controls 2.15
import Drevon.Zalento.Viewer 1.0

// What has no room on a narrow bar stands in the menu alone.
Rectangle {
    id: bar

    property bool isLow: false
    required property var commands
    signal exportRequested(string what)
    signal recordRequested()
    signal cameraRequested()

    readonly property bool isNarrow: width < 1000
    // On a low screen the keys of the zoom stand behind ours.
    readonly property real zoomKeysX: left.x + left.width + 10

    height: isLow ? 48 : 54
    color: Theme.panel

    Row {
        id: left
        anchors { left: parent.left; leftMargin: 6; verticalCenter: parent.verticalCenter }
        spacing: bar.isNarrow ? 4 : 6
        ToolKey {
            objectName: "openKey"
            action: bar.commands.open
            emphasized: !Viewer.documents.hasPicture
        }
        ToolKey {
            objectName: "saveKey"
            action: bar.commands.save
        }
        ToolKey {
            objectName: "exportKey"
            text: qsTr("Export")
            hint: qsTr("Save the picture with its overlay, the values, or a report")
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
                    text: qsTr("Report on all pictures (PDF)")
                    onTriggered: bar.exportRequested("pdf")
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
            visible: !bar.isNarrow
            text: qsTr("Pipe record")
            hint: qsTr("Type the pipe's nominal size, or load it from a record file")
            enabled: Viewer.documents.hasPicture
            onClicked: bar.recordRequested()
        }
        ToolKey {
            objectName: "mapKey"
            visible: !bar.isNarrow
            action: bar.commands.map
            chosen: Viewer.assessment.map > 0
        }
        ToolKey {
            objectName: "wallKey"
            visible: !bar.isNarrow
            action: bar.commands.wall
            chosen: Viewer.wall.isShown
        }
        ToolKey {
            objectName: "menuKey"
            text: "☰"
            hint: qsTr("Menu: pictures opened lately, language, keys")
            menu: mainMenu
            MainMenu {
                id: mainMenu
                objectName: "mainMenu"
                y: parent.height + 4
                commands: bar.commands
                onRecordRequested: bar.recordRequested()
                onCameraRequested: bar.cameraRequested()
            }
        }
    }

    Row {
        id: right
        anchors { right: parent.right; rightMargin: 6; verticalCenter: parent.verticalCenter }
        spacing: left.spacing
        ToolKey {
            objectName: "previousKey"
            action: bar.commands.previous
            width: Theme.touch
            font.pixelSize: 26
        }
        Column {
            readonly property real taken: bar.isLow ? bar.zoomKeysX + 5 * (Theme.touch + 4)
                                                    : left.x + left.width
            width: Math.max(40, Math.min(240, bar.width - taken
                                              - (bar.isLow ? 2 : 3) * (Theme.touch + 4) - 20))
            anchors.verticalCenter: parent.verticalCenter
            visible: Viewer.documents.count > 0
            Text {
                width: parent.width
                horizontalAlignment: Text.AlignHCenter
                elide: Text.ElideMiddle
                text: Viewer.documents.pictureName
                color: Theme.text
                font { family: Theme.family; pixelSize: Theme.normal }
                Accessible.role: Accessible.StaticText
                Accessible.name: text
            }
            Text {
                width: parent.width
                horizontalAlignment: Text.AlignHCenter
                elide: Text.ElideRight
                text: qsTr("%1 of %2").arg(Viewer.documents.currentIndex + 1).arg(Viewer.documents.count)
                      + (Viewer.documents.hasPicture && !bar.isLow ? qsTr(" · %1 × %2").arg(Viewer.documents.pictureSize.width)
                                             .arg(Viewer.documents.pictureSize.height) : "")
                color: Theme.quiet
                font { family: Theme.family; pixelSize: 12 }
                Accessible.role: Accessible.StaticText
                Accessible.name: text
            }
        }
        ToolKey {
            objectName: "nextKey"
            action: bar.commands.next
            width: Theme.touch
            font.pixelSize: 26
        }
        ToolKey {
            objectName: "keysKey"
            visible: !bar.isLow
            action: bar.commands.keys
        }
    }
}
