import QtQuick 2.15
import QtQuick.Controls 2.15

ViewerDialog {
    id: dialog

    // [keys, what they do]
    property var rows: []

    title: qsTr("Keys")
    width: Math.min(parent.width - 40, 980)

    readonly property int columnCount: width < 800 ? 1 : 2

    contentItem: Item {
        implicitHeight: list.contentHeight + closeKey.height + 16

        Flickable {
            id: list
            anchors { left: parent.left; right: parent.right; top: parent.top; bottom: closeKey.top }
            anchors.bottomMargin: 16
            clip: true
            contentHeight: column.height
            boundsBehavior: Flickable.StopAtBounds
            focus: true
            Keys.onUpPressed: list.contentY = Math.max(0, list.contentY - Theme.touch)
            Keys.onDownPressed: list.contentY = Math.max(0, Math.min(list.contentHeight - list.height,
                                                                     list.contentY + Theme.touch))
            ScrollBar.vertical: ViewerScrollBar {
                policy: list.contentHeight > list.height ? ScrollBar.AlwaysOn : ScrollBar.AlwaysOff
            }
            Column {
                id: column
                width: parent.width - 14
                spacing: 16

                Grid {
                    id: grid
                    columns: dialog.columnCount
                    columnSpacing: 16
                    rowSpacing: 4
                    flow: Grid.TopToBottom
                    rows: Math.ceil(dialog.rows.length / columns)
                    Repeater {
                        model: dialog.rows
                        Row {
                            id: row
                            required property var modelData
                            height: Math.max(26, what.height)
                            spacing: 10
                            Accessible.role: Accessible.StaticText
                            Accessible.name: modelData[0] + ": " + modelData[1]
                            Text {
                                id: keys
                                width: 164
                                anchors.verticalCenter: parent.verticalCenter
                                text: row.modelData[0]
                                color: Theme.accent
                                font { family: Theme.family; pixelSize: Theme.small; bold: true }
                            }
                            Text {
                                id: what
                                width: (column.width - grid.columnSpacing) / grid.columns
                                       - keys.width - 10
                                anchors.verticalCenter: parent.verticalCenter
                                wrapMode: Text.WordWrap
                                text: row.modelData[1]
                                color: Theme.text
                                font { family: Theme.family; pixelSize: Theme.small }
                            }
                        }
                    }
                }
                Text {
                    width: parent.width
                    wrapMode: Text.WordWrap
                    text: qsTr("Mouse: click sets a point, drag moves the model or a point, wheel "
                               + "zooms, middle drag pans. Touch: tap sets a point, hold aims with "
                               + "the loupe, drag moves, two fingers zoom, pan and roll.")
                    color: Theme.quiet
                    font { family: Theme.family; pixelSize: Theme.small }
                }
            }
        }
        ToolKey {
            id: closeKey
            anchors { right: parent.right; bottom: parent.bottom }
            text: qsTr("Close")
            emphasized: true
            onClicked: dialog.close()
        }
    }
}
