import QtQuick 2.15
import QtQuick.Controls 2.15

// One picture of many: a small image with its number, name and marks. The list's model has the roles
// that are used here.
ItemDelegate {
    id: card

    property bool isOnView: false
    // The keys would choose it.
    property bool isAimedAt: false

    // [character, colour, words]
    readonly property var marks: [
        model.problem ? ["!", Theme.error, qsTr("trouble")] : null,
        model.isModified ? ["•", Theme.warning, qsTr("not saved")] : null,
        model.isMeasured ? ["✔", Theme.accent, qsTr("measured")] : null
    ].filter(mark => mark)

    padding: 0
    focusPolicy: Qt.NoFocus
    Accessible.role: Accessible.ListItem
    Accessible.name: [model.number + ": " + model.name].concat(marks.map(mark => mark[2])).join(", ")
    Accessible.description: model.problem
    Accessible.selected: isOnView
    Accessible.onPressAction: clicked()
    ToolTip.text: model.problem ? model.name + "\n" + model.problem : model.name
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
            anchors { fill: parent; margins: 3; bottomMargin: name.height + 2 }
            fillMode: Image.PreserveAspectFit
            source: model.thumbnail
            asynchronous: true
            cache: false // they are kept where they are made
        }
        Text {
            id: name
            anchors { left: parent.left; right: parent.right; bottom: parent.bottom; margins: 4 }
            horizontalAlignment: Text.AlignHCenter
            elide: Text.ElideMiddle
            text: model.name
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
                text: model.number
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
                    width: 18
                    height: 18
                    radius: 9
                    color: Theme.window
                    border { width: 1; color: modelData[1] }
                    Text {
                        anchors.centerIn: parent
                        text: modelData[0]
                        color: modelData[1]
                        font { family: Theme.family; pixelSize: 12; bold: true }
                    }
                }
            }
        }
    }
}
