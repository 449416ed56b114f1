import QtQuick 2.15
import Drevon.Zalento.Viewer 1.0

// The value, large, in the chosen unit.
Item {
    id: panel

    property bool isLow: false
    required property var commands

    height: isLow ? 120 : 148

    function focusValue() { label.forceActiveFocus(Qt.TabFocusReason) }

    Rectangle {
        anchors { fill: label; leftMargin: -6; rightMargin: -6 }
        visible: label.activeFocus
        color: "transparent"
        radius: Theme.radius
        border { width: 2; color: Theme.text }
    }

    Text {
        id: label
        objectName: "valueText"
        anchors { left: parent.left; leftMargin: 14; right: parent.right; rightMargin: 14 }
        y: panel.isLow ? 2 : 6
        height: panel.isLow ? 42 : 48
        verticalAlignment: Text.AlignVCenter
        text: Viewer.editor.value || lack
        readonly property string lack: {
            if (!Viewer.documents.hasPicture)
                return "–"
            if (!Viewer.editor.isSet)
                return qsTr("not set")
            return Viewer.editor.usesScale && !Viewer.editor.hasScale ? qsTr("no scale yet") : "–"
        }
        color: Viewer.editor.value ? Theme.accent : Theme.quiet
        font {
            family: Theme.family
            pixelSize: Viewer.editor.value || text === "–" ? Theme.large : 24
            bold: Viewer.editor.value
        }
        fontSizeMode: Text.HorizontalFit
        minimumPixelSize: 20
        activeFocusOnTab: true
        Accessible.focusable: true
        Accessible.role: Accessible.StaticText
        Accessible.name: qsTr("Value: %1").arg(text)
    }
    Text {
        objectName: "secondValueText"
        anchors { left: label.left; right: keys.left; rightMargin: 6; verticalCenter: keys.verticalCenter }
        wrapMode: Text.WordWrap
        maximumLineCount: 2
        text: Viewer.editor.secondValue
              ? Viewer.editor.secondValue + shareOf
              : [Viewer.editor.valueNote, scale].filter(part => part).join(", ")
        color: Theme.text
        elide: Text.ElideRight
        font { family: Theme.family; pixelSize: Theme.normal }
        Accessible.role: Accessible.StaticText
        Accessible.name: text
        Accessible.ignored: !text

        readonly property string shareOf: Viewer.editor.points.count > 2 ? qsTr(" of the section")
                                                                   : qsTr(" of the diameter")
        readonly property string scale: Viewer.editor.usesScale && Viewer.editor.hasScale
                                        ? Viewer.editor.scaleText : ""
    }
    BudgetBar {
        anchors { left: label.left; right: label.right; top: keys.bottom; topMargin: 4 }
        height: panel.height - y
        isLow: panel.isLow
    }
    Row {
        id: keys
        anchors { right: parent.right; rightMargin: Theme.gap; top: label.bottom }
        spacing: 6
        ToolKey {
            objectName: "confirmKey"
            visible: !Viewer.editor.isSet
            action: panel.commands.confirm
            emphasized: true
        }
        ToolKey {
            objectName: "copyKey"
            visible: Viewer.editor.isSet
            action: panel.commands.copy
        }
        ToolKey {
            objectName: "unitKey"
            action: panel.commands.unit
            width: 56
        }
    }
}
