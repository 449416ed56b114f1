import QtQuick 2.15

// Marks a measurement point on the stage; the stage itself hears the pointer.
Item {
    id: handle

    property bool isSelected: false
    property int number: 0
    property color mark: Theme.accent

    Rectangle {
        readonly property int size: handle.isSelected ? 26 : 18
        x: -size / 2
        y: -size / 2
        width: size
        height: size
        radius: size / 2
        color: "transparent"
        border { width: 4; color: "#a0000000" }
        Rectangle {
            anchors { fill: parent; margins: 1 }
            radius: width / 2
            color: "transparent"
            border {
                width: 2
                color: handle.isSelected ? handle.mark : Theme.text
            }
        }
    }
}
