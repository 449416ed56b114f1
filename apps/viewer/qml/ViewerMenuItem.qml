import QtQuick 2.15
import QtQuick.Controls 2.15

MenuItem {
    id: item

    implicitHeight: Theme.touch
    font { family: Theme.family; pixelSize: Theme.normal }
    Accessible.name: text
    contentItem: Text {
        text: item.text
        font: item.font
        color: Theme.text
        leftPadding: 8
        elide: Text.ElideLeft
        verticalAlignment: Text.AlignVCenter
    }
    background: Rectangle {
        color: item.highlighted ? Theme.controlDown : "transparent"
    }
}
