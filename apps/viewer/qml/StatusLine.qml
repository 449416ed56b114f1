import QtQuick 2.15
import Drevon.Zalento.Viewer 1.0

// One height, whatever it says: the picture above stays where it is.
Rectangle {
    id: line

    property bool isLow: false
    property real spaceOnTheRight: 0
    readonly property color mark: [Theme.accent, Theme.warning, Theme.error][Viewer.guidance.level]

    height: isLow ? 44 : 56
    color: Theme.panel
    Accessible.role: Accessible.StaticText
    Accessible.name: Viewer.guidance.text

    Rectangle {
        width: 5
        height: parent.height
        color: line.mark
    }
    Text {
        objectName: "statusText"
        anchors {
            fill: parent
            leftMargin: line.isLow ? 12 : 18
            rightMargin: 12 + line.spaceOnTheRight
        }
        verticalAlignment: Text.AlignVCenter
        wrapMode: Text.WordWrap
        elide: Text.ElideRight
        fontSizeMode: Text.Fit
        minimumPixelSize: 11
        text: Viewer.guidance.text
        color: Viewer.guidance.level ? line.mark : Theme.text
        font { family: Theme.family; pixelSize: line.isLow ? 14 : 17 }
    }
}
