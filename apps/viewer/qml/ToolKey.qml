import QtQuick 2.15
import QtQuick.Controls 2.15
import Drevon.Zalento.Viewer 1.0

// A button that a finger hits; `hint` names it for the tool tip and for those who cannot see it. One
// with a command as its action takes text, hint and key from there.
Button {
    id: key

    readonly property Command command: action as Command
    property string hint: command ? command.hint : text
    readonly property string keyText: command ? command.keyText : ""
    // What to press next: outlined.
    property bool emphasized: false
    // Chosen of a few, or on: filled. A press does not change it: what is shown does.
    property bool chosen: false
    // What it opens.
    property var menu: null

    implicitHeight: Theme.touch
    implicitWidth: Math.max(Theme.touch, label.implicitWidth + 2 * 12)
    padding: 0
    focusPolicy: Qt.TabFocus
    font.family: Theme.family
    font.pixelSize: Theme.normal
    Accessible.name: hint
    // A control's own state, of which it knows nothing, goes before one that is attached to it.
    Accessible.description: chosen ? qsTr("chosen") : ""
    // Whatever was typed into a field is committed before the button acts. One that loses the keys
    // while it is pressed does not act.
    onPressed: if (!activeFocus) Viewer.focusStage()
    // Qt tells the second of two quick presses apart; here it is a press like any other.
    onDoubleClicked: press()
    onClicked: if (menu) menu.open()
    Keys.onReturnPressed: press()
    Keys.onEnterPressed: press()

    function press() { action ? action.trigger(key) : clicked() }
    ToolTip.text: keyText ? hint + "  (" + keyText + ")" : hint
    ToolTip.visible: hovered && !down && ToolTip.text !== text && !(menu && menu.visible)
    ToolTip.delay: 600

    contentItem: Text {
        id: label
        text: key.text
        font: key.font
        color: key.chosen ? Theme.accentText : key.emphasized ? Theme.accent : Theme.text
        opacity: key.enabled ? 1 : 0.35
        horizontalAlignment: Text.AlignHCenter
        verticalAlignment: Text.AlignVCenter
        elide: Text.ElideRight
        fontSizeMode: Text.HorizontalFit
        minimumPixelSize: 11
    }
    background: Rectangle {
        radius: Theme.radius
        color: key.chosen ? (key.down ? Qt.darker(Theme.accent, 1.2) : Theme.accent)
                          : key.down || key.hovered ? Theme.controlDown : Theme.control
        opacity: key.enabled ? 1 : 0.5
        border.width: key.visualFocus || key.emphasized ? 2 : 0
        border.color: key.visualFocus ? Theme.text : Theme.accent
    }
}
