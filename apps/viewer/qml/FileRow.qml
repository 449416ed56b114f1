import QtQuick 2.15
import QtQuick.Controls 2.15

// A file or a folder of a list.
ItemDelegate {
    id: row

    required property string fileName
    required property string filePath
    required property bool fileIsDir
    property bool isChosen: false
    // The keys would choose it.
    property bool isAimedAt: false

    height: Theme.touch
    focusPolicy: Qt.NoFocus
    Accessible.name: fileName
    Accessible.role: Accessible.ListItem
    Accessible.description: fileIsDir ? qsTr("folder") : isChosen ? qsTr("chosen") : ""

    contentItem: Text {
        text: (row.fileIsDir ? "▸  " : row.isChosen ? "✔  " : "    ") + row.fileName
        verticalAlignment: Text.AlignVCenter
        elide: Text.ElideMiddle
        color: row.isChosen ? Theme.accent : Theme.text
        font { family: Theme.family; pixelSize: Theme.normal; bold: row.fileIsDir }
    }
    background: Rectangle {
        radius: Theme.radius
        color: row.isChosen || row.hovered ? Theme.control : "transparent"
        border.width: row.isAimedAt ? 2 : 0
        border.color: Theme.text
    }
}
