import QtQuick 2.15
import QtQuick.Controls 2.15

MenuItem {
    id: item

    implicitHeight: Theme.touch
    font { family: Theme.family; pixelSize: Theme.normal }
    Accessible.name: text
    indicator: null
    arrow: Text {
        x: item.width - width - 12
        height: item.height
        visible: item.subMenu
        verticalAlignment: Text.AlignVCenter
        text: "▸"
        color: Theme.text
    }
    contentItem: Text {
        text: (item.checkable ? (item.checked ? "✔ " : "    ") : "") + item.text
        font: item.font
        color: Theme.text
        opacity: item.enabled ? 1 : 0.35
        leftPadding: 8
        elide: Text.ElideLeft
        verticalAlignment: Text.AlignVCenter
    }
    background: Rectangle {
        color: item.highlighted ? Theme.controlDown : "transparent"
    }
}
