import QtQuick 2.15
import QtQuick.Controls 2.15

// With its limits under the names by which the accessibility bridge looks for them.
Slider {
    id: slider

    readonly property real minimumValue: from
    readonly property real maximumValue: to

    focusPolicy: Qt.TabFocus

    background: Rectangle {
        y: (slider.height - height) / 2
        width: slider.width
        height: 6
        radius: 3
        color: Theme.control
        Rectangle {
            width: slider.visualPosition * parent.width
            height: parent.height
            radius: 3
            color: Theme.accent
        }
    }
    handle: Rectangle {
        x: slider.visualPosition * (slider.width - width)
        y: (slider.height - height) / 2
        width: 26
        height: 26
        radius: 13
        color: slider.pressed ? Theme.accent : Theme.text
        border { width: slider.visualFocus ? 3 : 0; color: Theme.accent }
    }
}
