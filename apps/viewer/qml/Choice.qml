import QtQuick 2.15

// One of a few words.
Row {
    id: choice

    property string label
    property var choices: []
    property int current: 0
    signal chosen(int index)

    readonly property real keyWidth: (width - title.width - spacing * choices.length)
                                     / choices.length
    spacing: 6

    Text {
        id: title
        width: 76
        height: Theme.touch
        verticalAlignment: Text.AlignVCenter
        text: choice.label
        color: Theme.text
        font { family: Theme.family; pixelSize: Theme.normal }
    }
    Repeater {
        model: choice.choices
        ToolKey {
            width: choice.keyWidth
            text: modelData
            hint: choice.label + " " + modelData
            font.pixelSize: Theme.small
            chosen: choice.current === index
            onClicked: choice.chosen(index)
        }
    }
}
