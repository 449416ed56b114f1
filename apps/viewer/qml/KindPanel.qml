import QtQuick 2.15
import Drevon.Zalento.Viewer 1.0

// The controls of the kind that is measured.
Column {
    id: panel

    readonly property bool isCrack: Viewer.kind === "CrackWidth"
    readonly property bool isBend: Viewer.kind === "BendAngle"
    signal calibrationRequested()
    signal recordRequested()

    spacing: 6

    Row {
        visible: panel.isCrack
        width: parent.width
        spacing: 6
        ToolKey {
            objectName: "laserKey"
            width: (parent.width - 6) / 2
            text: qsTr("Laser spots")
            hint: qsTr("Set the scale with two clicks on the laser spots")
            checkable: false
            checked: Viewer.isCalibrating
            emphasized: !Viewer.hasScale
            onClicked: Viewer.isCalibrating ? Viewer.cancel() : Viewer.startCalibration()
        }
        ToolKey {
            objectName: "calibrationKey"
            width: (parent.width - 6) / 2
            text: qsTr("Scale file…")
            hint: qsTr("Load a camera calibration file")
            onClicked: panel.calibrationRequested()
        }
    }
    Repeater {
        model: Viewer.kindFields
        NumberField {
            width: panel.width
            name: modelData
        }
    }
    Choice {
        visible: panel.isBend
        width: parent.width
        label: qsTr("Seen")
        choices: [qsTr("downstream"), qsTr("upstream")]
        current: Viewer.viewDownstream ? 0 : 1
        onChosen: Viewer.viewDownstream = index === 0
    }
    Choice {
        visible: panel.isBend
        width: parent.width
        label: qsTr("Shows")
        choices: [qsTr("bend"), qsTr("joint")]
        current: Viewer.jointShown ? 1 : 0
        onChosen: Viewer.jointShown = index === 1
    }
}
