import QtQuick 2.15
import QtQuick.Controls 2.15
import Drevon.Zalento.Viewer 1.0

// Colours of the overlay, to be chosen against the picture behind, and units.
ViewerDialog {
    id: dialog

    // Bright ones, which stand out from a pipe's wall.
    readonly property var colours: [["#00ffff", qsTr("cyan")], ["#00ff00", qsTr("green")],
                                    ["#ffff00", qsTr("yellow")], ["#ffa500", qsTr("orange")],
                                    ["#ff00ff", qsTr("magenta")], ["#ff6060", qsTr("red")],
                                    ["#80a0ff", qsTr("blue")], ["#ffffff", qsTr("white")]]

    title: qsTr("Colours and units")
    width: Math.min(parent.width - 40, 8 * Theme.touch + 7 * 6 + 2 * padding)
    Overlay.modal: Item { }

    contentItem: Flickable {
        implicitHeight: contentHeight
        contentHeight: column.height
        clip: true
        boundsBehavior: Flickable.StopAtBounds
        Column {
            id: column
            width: parent.width
            spacing: 10
            Repeater {
                model: [["measureColour", qsTr("Points, lines and water")], ["pipeColour", qsTr("Pipe")],
                        ["joinedColour", qsTr("Branch and bend")]]
                Column {
                    id: part
                    required property var modelData
                    readonly property string field: modelData[0]
                    readonly property string label: modelData[1]
                    width: parent.width
                    spacing: 4
                    Text {
                        text: part.label
                        color: Theme.text
                        font { family: Theme.family; pixelSize: Theme.small }
                    }
                    Row {
                        spacing: 6
                        Repeater {
                            model: dialog.colours
                            ToolKey {
                                id: key
                                required property var modelData
                                objectName: part.field + "." + modelData[0]
                                width: Theme.touch
                                text: chosen ? "✔" : ""
                                hint: part.label + ": " + modelData[1]
                                chosen: Qt.colorEqual(Viewer.preferences[part.field], modelData[0])
                                onClicked: Viewer.preferences[part.field] = modelData[0]
                                background: Rectangle {
                                    radius: Theme.radius
                                    color: key.down ? Qt.darker(key.modelData[0], 1.2) : key.modelData[0]
                                    border.width: key.visualFocus ? 3 : 0
                                    border.color: Theme.text
                                }
                            }
                        }
                    }
                }
            }
            Choice {
                objectName: "units"
                width: parent.width
                label: qsTr("Units")
                choices: [qsTr("metric"), qsTr("imperial")]
                readonly property bool isImperial: Viewer.documents.hasPicture ? Viewer.editor.isImperial
                                                                               : Viewer.preferences.isImperial
                current: isImperial ? 1 : 0
                onChosen: index => Viewer.editor.useUnits(index === 1)
            }
            Row {
                anchors.right: parent.right
                spacing: Theme.gap
                ToolKey {
                    objectName: "usualColoursKey"
                    text: qsTr("Usual colours")
                    hint: qsTr("The colours that the viewer comes with")
                    onClicked: Viewer.preferences.resetColours()
                }
                ToolKey {
                    text: qsTr("Close")
                    onClicked: dialog.close()
                }
            }
        }
    }
}
