import QtQuick 2.15
import QtQuick.Controls 2.15
import Drevon.Zalento.Viewer 1.0

// What is not needed at every picture, and what a narrow bar has no room for.
ViewerMenu {
    id: menu

    required property var commands
    signal recordRequested()
    signal cameraRequested()
    signal displayRequested()

    title: qsTr("Menu")
    width: 300

    ViewerMenu {
        title: qsTr("Recent pictures")
        width: 460
        enabled: Viewer.preferences.recentFiles.length > 0
        Repeater {
            model: Viewer.preferences.recentFiles
            ViewerMenuItem {
                required property string modelData
                text: modelData
                onTriggered: Viewer.documents.openPaths([modelData])
            }
        }
    }
    ViewerMenuItem {
        text: qsTr("Pipe record")
        enabled: Viewer.documents.hasPicture
        onTriggered: menu.recordRequested()
    }
    ViewerMenuItem {
        text: qsTr("Camera and lens")
        enabled: Viewer.documents.hasPicture
        onTriggered: menu.cameraRequested()
    }
    ViewerMenuItem { action: menu.commands.film }
    ViewerMenuItem {
        text: menu.commands.strip.hint
        enabled: menu.commands.strip.enabled
        onTriggered: menu.commands.strip.trigger()
    }
    ViewerMenuItem { action: menu.commands.map }
    ViewerMenuItem { action: menu.commands.wall }
    ViewerMenuItem {
        text: qsTr("Colours and units")
        onTriggered: menu.displayRequested()
    }
    ViewerMenu {
        title: qsTr("Language")
        width: 260
        Repeater {
            // Each in its own words.
            model: [["", qsTr("As the system's")], ["en", "English"], ["de", "Deutsch"],
                    ["fr", "Français"]]
            ViewerMenuItem {
                required property var modelData
                objectName: "language." + modelData[0]
                text: modelData[1]
                checkable: true
                checked: Viewer.preferences.language === modelData[0]
                onTriggered: Viewer.preferences.language = modelData[0]
            }
        }
    }
    ViewerMenuItem {
        text: menu.commands.keys.hint
        onTriggered: menu.commands.keys.trigger()
    }
}
