import QtQuick 2.15
import QtQuick.Controls 2.15

ViewerDialog {
    id: dialog

    // [keys, what they do]
    property var rows: []

    title: qsTr("Keys")
    width: Math.min(parent.width - 40, 940)

    contentItem: Column {
        spacing: 16

        Grid {
            columns: 2
            columnSpacing: 24
            rowSpacing: 2
            flow: Grid.TopToBottom
            rows: Math.ceil(dialog.rows.length / 2)
            Repeater {
                model: dialog.rows
                Row {
                    height: 30
                    spacing: 12
                    Text {
                        width: 176
                        anchors.verticalCenter: parent.verticalCenter
                        text: modelData[0]
                        color: Theme.accent
                        font { family: Theme.family; pixelSize: Theme.small; bold: true }
                    }
                    Text {
                        anchors.verticalCenter: parent.verticalCenter
                        text: modelData[1]
                        color: Theme.text
                        font { family: Theme.family; pixelSize: Theme.small }
                    }
                }
            }
        }
        Text {
            width: parent.width
            wrapMode: Text.WordWrap
            text: qsTr("Mouse: click sets a point, drag moves the model or a point, wheel zooms, "
                       + "middle drag pans. Touch: tap sets a point, hold aims with the loupe, "
                       + "drag moves, two fingers zoom, pan and roll.")
            color: Theme.quiet
            font { family: Theme.family; pixelSize: Theme.small }
        }
        ToolKey {
            anchors.right: parent.right
            text: qsTr("Close")
            emphasized: true
            onClicked: dialog.close()
        }
    }
}
