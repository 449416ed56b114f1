import QtQuick 2.15
import QtQuick.Controls 2.15
import Drevon.Zalento.Viewer 1.0

Dialog {
    id: dialog

    parent: Overlay.overlay
    anchors.centerIn: parent
    // On a small screen a dialog scrolls rather than hang out of it.
    height: Math.min(parent.height - 20, implicitHeight)
    modal: true
    focus: true
    padding: 20
    closePolicy: Popup.CloseOnEscape
    onClosed: Viewer.focusStage()

    header: Text {
        text: dialog.title
        padding: 20
        bottomPadding: 0
        elide: Text.ElideRight
        Accessible.role: Accessible.Heading
        Accessible.name: text
        color: Theme.text
        font { family: Theme.family; pixelSize: 20; bold: true }
    }
    background: Rectangle {
        radius: 10
        color: Theme.panel
        border { width: 1; color: Theme.line }
    }
    Overlay.modal: Rectangle { color: "#b0000000" }
}
