import QtQuick 2.15
import Drevon.Zalento.Viewer 1.0

// The controls of the kind that is measured.
Column {
    id: panel

    signal calibrationRequested()
    signal recordRequested()

    spacing: 6

    Row {
        visible: Viewer.editor.usesScale
        width: parent.width
        spacing: 6
        ToolKey {
            objectName: "laserKey"
            width: (parent.width - 6) / 2
            text: qsTr("Laser spots")
            hint: qsTr("Set the scale with two clicks on the laser spots")
            chosen: Viewer.editor.isCalibrating
            emphasized: !Viewer.editor.hasScale
            onClicked: Viewer.editor.isCalibrating ? Viewer.editor.cancel() : Viewer.editor.startCalibration()
        }
        ToolKey {
            objectName: "calibrationKey"
            width: (parent.width - 6) / 2
            text: qsTr("Scale file…")
            hint: qsTr("Load a camera calibration file")
            onClicked: panel.calibrationRequested()
        }
    }
    // @return false without a field
    function focusFields() {
        if (fields.count > 0)
            fields.itemAt(0).forceActiveFocus(Qt.TabFocusReason)
        return fields.count > 0
    }
    Repeater {
        id: fields
        model: Viewer.kindFields
        NumberField {
            width: panel.width
            fields: Viewer.kindFields
        }
    }
    Choice {
        visible: Viewer.editor.usesDirection
        width: parent.width
        label: qsTr("Seen")
        choices: [qsTr("downstream"), qsTr("upstream")]
        current: Viewer.editor.viewDownstream ? 0 : 1
        onChosen: index => Viewer.editor.viewDownstream = index === 0
    }
    Choice {
        visible: Viewer.editor.usesDirection
        width: parent.width
        label: qsTr("Shows")
        choices: [qsTr("bend"), qsTr("joint")]
        current: Viewer.editor.jointShown ? 1 : 0
        onChosen: index => Viewer.editor.jointShown = index === 1
    }
}
