import QtQuick 2.15
import QtQuick.Controls 2.15
import Drevon.Zalento.Viewer 1.0

AbstractButton {
    id: button

    property string kind
    property int number
    property bool isCompact: false
    property bool chosen: false

    implicitHeight: 58
    focusPolicy: Qt.TabFocus
    Accessible.name: text
    Keys.onReturnPressed: clicked()
    Keys.onEnterPressed: clicked()
    onPressed: if (!activeFocus) Viewer.focusStage()
    Accessible.description: chosen ? qsTr("chosen") : ""
    ToolTip.text: text + "  (" + number + ")"
    ToolTip.visible: hovered && !down
    ToolTip.delay: 600

    contentItem: Item {
        KindIcon {
            id: icon
            x: button.isCompact ? (parent.width - width) / 2 : 8
            y: button.isCompact ? 4 : (parent.height - height) / 2
            width: button.isCompact ? 22 : 28
            height: width
            kind: button.kind
            stroke: button.chosen ? Theme.accentText : Theme.text
            measure: button.chosen ? Theme.accentText : Theme.accent
        }
        Text {
            readonly property real besideIcon: icon.x + icon.width + 8
            x: button.isCompact ? 2 : besideIcon
            y: button.isCompact ? icon.y + icon.height : 0
            width: parent.width - x - 2
            height: parent.height - y
            horizontalAlignment: button.isCompact ? Text.AlignHCenter : Text.AlignLeft
            verticalAlignment: Text.AlignVCenter
            text: button.text
            wrapMode: button.isCompact ? Text.NoWrap : Text.WordWrap
            fontSizeMode: Text.HorizontalFit
            minimumPixelSize: 9
            font { family: Theme.family; pixelSize: button.isCompact ? 12 : Theme.normal }
            color: button.chosen ? Theme.accentText : Theme.text
        }
    }
    background: Rectangle {
        radius: Theme.radius
        color: button.chosen ? Theme.accent
                              : button.down || button.hovered ? Theme.controlDown : Theme.control
        border.width: button.visualFocus ? 2 : 0
        border.color: Theme.text
    }
}
