import QtQuick 2.15
import QtQuick.Controls 2.15

ViewerDialog {
    id: dialog

    property string text
    property string acceptText
    property string discardText: ""

    width: Math.min(parent.width - 40, 560)

    onOpened: cancelKey.forceActiveFocus(Qt.TabFocusReason)

    contentItem: Column {
        spacing: 24
        Text {
            width: dialog.availableWidth
            wrapMode: Text.WordWrap
            text: dialog.text
            color: Theme.text
            font { family: Theme.family; pixelSize: Theme.normal }
        }
        Row {
            anchors.right: parent.right
            spacing: Theme.gap
            ToolKey {
                id: cancelKey
                objectName: "cancelKey"
                text: qsTr("Cancel")
                onClicked: dialog.reject()
            }
            ToolKey {
                objectName: "discardKey"
                visible: dialog.discardText
                text: dialog.discardText
                onClicked: {
                    dialog.discarded()
                    dialog.close()
                }
            }
            ToolKey {
                objectName: "acceptKey"
                text: dialog.acceptText
                emphasized: true
                onClicked: dialog.accept()
            }
        }
    }
}
