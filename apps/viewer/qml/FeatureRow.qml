import QtQuick 2.15
import QtQuick.Controls 2.15
import Drevon.Zalento.Viewer 1.0

// A joint or a line that was clicked: how well it fits, a joint's distance, and a way to be rid of it.
Column {
    id: row

    required property int index
    required property string title
    required property bool isLine
    required property string distance
    required property string note

    property string problem: ""

    spacing: 2

    Row {
        width: parent.width
        spacing: 4
        Column {
            width: parent.width - removeKey.width - 4 - (row.isLine ? 0 : field.width + 4)
            anchors.verticalCenter: parent.verticalCenter
            Text {
                text: row.title
                color: Theme.text
                font { family: Theme.family; pixelSize: Theme.normal }
            }
            Text {
                text: row.note
                color: Theme.quiet
                font { family: Theme.family; pixelSize: Theme.small }
            }
        }
        TextField {
            id: field
            objectName: "distance." + row.index
            visible: !row.isLine
            width: 104
            height: Theme.touch
            text: row.distance
            placeholderText: qsTr("mm")
            placeholderTextColor: Theme.quiet
            selectByMouse: true
            horizontalAlignment: TextInput.AlignRight
            inputMethodHints: Qt.ImhFormattedNumbersOnly
            color: row.problem ? Theme.error : Theme.text
            font { family: Theme.family; pixelSize: Theme.normal }
            Accessible.name: qsTr("Distance of %1 from the first joint, in mm").arg(row.title)
            onEditingFinished: row.problem = Viewer.editor.setFeatureDistance(row.index, text)
            background: Rectangle {
                radius: Theme.radius
                color: Theme.window
                border { width: 1; color: row.problem ? Theme.error : Theme.line }
            }
        }
        ToolKey {
            id: removeKey
            text: "✕"
            hint: qsTr("Remove %1").arg(row.title)
            onClicked: Viewer.editor.removeFeature(row.index)
        }
    }
    Text {
        visible: row.problem
        text: row.problem
        color: Theme.error
        font { family: Theme.family; pixelSize: Theme.small }
    }
}
