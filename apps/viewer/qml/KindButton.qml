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
    onPressed: Viewer.focusStage()
    Accessible.role: Accessible.RadioButton
    Accessible.checked: chosen
    ToolTip.text: text + "  (" + number + ")"
    ToolTip.visible: hovered && !down
    ToolTip.delay: 600

    contentItem: Item {
        KindIcon {
            id: icon
            x: button.isCompact ? 4 : 8
            width: button.isCompact ? 22 : 28
            height: width
            anchors.verticalCenter: parent.verticalCenter
            kind: button.kind
            stroke: button.chosen ? Theme.accentText : Theme.text
            measure: button.chosen ? Theme.accentText : Theme.accent
        }
        Text {
            anchors { left: icon.right; leftMargin: button.isCompact ? 4 : 8; right: parent.right; rightMargin: 2 }
            height: parent.height
            verticalAlignment: Text.AlignVCenter
            text: button.text
            wrapMode: Text.WordWrap
            font { family: Theme.family; pixelSize: button.isCompact ? 13 : Theme.normal }
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
