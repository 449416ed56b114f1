import QtQuick 2.15

// One of a few words; on a narrow panel below their label.
Grid {
    id: choice

    property string label
    property var choices: []
    property int current: 0
    signal chosen(int index)

    readonly property bool isNarrow: width < 300
    readonly property real keyWidth: (width - (isNarrow ? 0 : title.width + spacing)
                                      - spacing * (choices.length - 1)) / choices.length
    columns: isNarrow ? 1 : 2
    spacing: 6
    rowSpacing: 2

    Text {
        id: title
        width: 76
        height: choice.isNarrow ? implicitHeight : Theme.touch
        verticalAlignment: Text.AlignVCenter
        text: choice.label
        color: Theme.text
        fontSizeMode: Text.HorizontalFit
        minimumPixelSize: 11
        font { family: Theme.family; pixelSize: choice.isNarrow ? Theme.small : Theme.normal }
    }
    Row {
        spacing: choice.spacing
        Repeater {
            model: choice.choices
            ToolKey {
                required property string modelData
                required property int index
                width: choice.keyWidth
                text: modelData
                hint: choice.label + " " + modelData
                font.pixelSize: Theme.small
                chosen: choice.current === index
                onClicked: choice.chosen(index)
            }
        }
    }
}
