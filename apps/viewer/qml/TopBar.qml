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
    signal displayRequested()

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
            id: exportKey
            objectName: "exportKey"
            text: qsTr("Export")
            hint: qsTr("Save the picture with its overlay, the values, or a report")
            enabled: Viewer.documents.hasPicture
            menu: exportMenu
            ViewerMenu {
                id: exportMenu
                objectName: "exportMenu"
                title: exportKey.text
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
                onDisplayRequested: bar.displayRequested()
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
        ToolKey {
            id: stripKey
            objectName: "stripKey"
            action: bar.commands.strip
            readonly property real taken: bar.isLow ? bar.zoomKeysX + 5 * (Theme.touch + 4)
                                                    : left.x + left.width
            width: Math.max(44, Math.min(240, bar.width - taken
                                              - (bar.isLow ? 2 : 3) * (Theme.touch + 4) - 20))
            visible: Viewer.documents.count > 0
            // No room for a name.
            readonly property bool isTight: width < 100
            readonly property string place: isTight
                ? (Viewer.documents.currentIndex + 1) + "/" + Viewer.documents.count
                : qsTr("%1 of %2").arg(Viewer.documents.currentIndex + 1).arg(Viewer.documents.count)
            readonly property string size: Viewer.documents.hasPicture
                ? qsTr(" · %1 × %2").arg(Viewer.documents.pictureSize.width)
                                    .arg(Viewer.documents.pictureSize.height) : ""
            Accessible.name: [Viewer.documents.pictureName, place, hint].join(", ")
            contentItem: Column {
                topPadding: stripKey.isTight ? 14 : 4
                Text {
                    id: pictureName
                    visible: !stripKey.isTight
                    width: parent.width
                    horizontalAlignment: Text.AlignHCenter
                    elide: Text.ElideMiddle
                    fontSizeMode: Text.HorizontalFit
                    minimumPixelSize: 11
                    text: stripKey.isTight ? "" : Viewer.documents.pictureName
                    color: Theme.text
                    font { family: Theme.family; pixelSize: Theme.normal }
                }
                Text {
                    width: parent.width
                    horizontalAlignment: Text.AlignHCenter
                    fontSizeMode: Text.HorizontalFit
                    minimumPixelSize: 9
                    text: stripKey.isTight || bar.isLow ? stripKey.place : stripKey.place + stripKey.size
                    color: Theme.quiet
                    font { family: Theme.family; pixelSize: 12 }
                }
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
