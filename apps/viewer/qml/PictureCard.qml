import QtQuick 2.15
import QtQuick.Controls 2.15

// One picture of many: a small image with its number, name and marks.
ItemDelegate {
    id: card

    required property int number
    required property string name
    required property string problem
    required property bool isModified
    required property bool isMeasured
    required property string thumbnail
    property bool isOnView: false
    // The keys would choose it.
    property bool isAimedAt: false

    // [character, colour, words]
    readonly property var marks: [
        problem ? ["!", Theme.error, qsTr("trouble")] : null,
        isModified ? ["•", Theme.warning, qsTr("not saved")] : null,
        isMeasured ? ["✔", Theme.accent, qsTr("measured")] : null
    ].filter(mark => mark)

    padding: 0
    focusPolicy: Qt.NoFocus
    Accessible.role: Accessible.ListItem
    Accessible.name: [number + ": " + name].concat(marks.map(mark => mark[2])).join(", ")
    Accessible.description: problem
    Accessible.selected: isOnView
    Accessible.onPressAction: clicked()
    ToolTip.text: problem ? name + "\n" + problem : name
    ToolTip.visible: hovered && !down
    ToolTip.delay: 600

    background: Rectangle {
        radius: Theme.radius
        color: card.hovered || card.isOnView ? Theme.controlDown : Theme.window
        border.width: card.isAimedAt || card.isOnView ? 2 : 0
        border.color: card.isAimedAt ? Theme.text : Theme.accent
    }
    contentItem: Item {
        Image {
            id: image
            anchors { fill: parent; margins: 3; bottomMargin: caption.height + 2 }
            fillMode: Image.PreserveAspectFit
            source: card.thumbnail
            asynchronous: true
            cache: false // they are kept where they are made
        }
        Text {
            id: caption
            anchors { left: parent.left; right: parent.right; bottom: parent.bottom; margins: 4 }
            horizontalAlignment: Text.AlignHCenter
            elide: Text.ElideMiddle
            text: card.name
            color: Theme.text
            font { family: Theme.family; pixelSize: 12 }
        }
        Rectangle {
            width: numberText.width + 8
            height: numberText.height + 2
            radius: 3
            color: Theme.window
            Text {
                id: numberText
                anchors.centerIn: parent
                text: card.number
                color: Theme.quiet
                font { family: Theme.family; pixelSize: 12 }
            }
        }
        Row {
            anchors.right: parent.right
            spacing: 2
            Repeater {
                model: card.marks
                Rectangle {
                    id: mark
                    required property var modelData
                    width: 18
                    height: 18
                    radius: 9
                    color: Theme.window
                    border { width: 1; color: modelData[1] }
                    Text {
                        anchors.centerIn: parent
                        text: mark.modelData[0]
                        color: mark.modelData[1]
                        font { family: Theme.family; pixelSize: 12; bold: true }
                    }
                }
            }
        }
    }
}
