import QtQuick 2.15
import Drevon.Zalento.Viewer 1.0

// The value, large, in the chosen unit.
Item {
    id: panel

    property bool isLow: false

    height: isLow ? 80 : 92

    Text {
        id: label
        objectName: "valueText"
        anchors { left: parent.left; leftMargin: 14; right: keys.left; rightMargin: 6 }
        y: panel.isLow ? 4 : 8
        height: 50
        verticalAlignment: Text.AlignVCenter
        text: Viewer.value || (Viewer.hasPicture && Viewer.kind === "CrackWidth"
                               && !Viewer.hasScale ? qsTr("no scale yet") : "–")
        color: Viewer.value ? Theme.accent : Theme.quiet
        font {
            family: Theme.family
            pixelSize: Viewer.value || text === "–" ? Theme.large : 24
            bold: Viewer.value
        }
        fontSizeMode: Text.HorizontalFit
        minimumPixelSize: 20
        Accessible.role: Accessible.StaticText
        Accessible.name: qsTr("Value: %1").arg(text)
    }
    Text {
        objectName: "secondValueText"
        anchors { left: label.left; right: label.right; top: label.bottom }
        text: Viewer.secondValue ? Viewer.secondValue + shareOf : note
        color: Theme.text
        elide: Text.ElideRight
        font { family: Theme.family; pixelSize: Theme.normal }

        readonly property string shareOf: Viewer.points.length > 2 ? qsTr(" of the section")
                                                                   : qsTr(" of the diameter")
        readonly property string note: Viewer.kind === "CrackWidth" && Viewer.hasScale
                                       ? Viewer.scaleText : ""
    }
    Row {
        id: keys
        anchors { right: parent.right; rightMargin: Theme.gap }
        y: label.y + 2
        spacing: 6
        ToolKey {
            objectName: "copyKey"
            text: qsTr("Copy")
            hint: qsTr("Copy the value")
            shortcut: "Ctrl+C"
            enabled: Viewer.value
            onClicked: Viewer.copyValue()
        }
        ToolKey {
            objectName: "unitKey"
            width: 56
            text: Viewer.isImperial ? qsTr("in") : qsTr("mm")
            hint: Viewer.isImperial ? qsTr("Imperial units; switch to metric")
                                    : qsTr("Metric units; switch to imperial")
            shortcut: "U"
            enabled: Viewer.hasPicture
            onClicked: Viewer.toggleUnit()
        }
    }
}
