import QtQuick 2.15
import Drevon.Zalento.Viewer 1.0

Rectangle {
    readonly property color mark: [Theme.accent, Theme.warning, Theme.error][Viewer.guidance.level]

    height: Math.max(52, label.implicitHeight + 14)
    color: Theme.panel
    Accessible.role: Accessible.StaticText
    Accessible.name: Viewer.guidance.text

    Rectangle {
        width: 5
        height: parent.height
        color: parent.mark
    }
    Text {
        id: label
        objectName: "statusText"
        anchors {
            left: parent.left; leftMargin: 18
            right: parent.right; rightMargin: 12
            verticalCenter: parent.verticalCenter
        }
        wrapMode: Text.WordWrap
        text: Viewer.guidance.text
        color: Viewer.guidance.level ? parent.mark : Theme.text
        font { family: Theme.family; pixelSize: 17 }
    }
}
