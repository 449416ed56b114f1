import QtQuick 2.15
import QtQuick.Controls 2.15
import Drevon.Zalento.Viewer 1.0

// Value, kinds and controls; undo lies at the bottom, where the thumb is.
Rectangle {
    id: panel

    property bool isLow: false
    required property var commands
    signal calibrationRequested()
    signal recordRequested()

    color: Theme.panel

    ValuePanel {
        id: valuePanel
        width: parent.width
        isLow: panel.isLow
        commands: panel.commands
    }
    Grid {
        id: kinds
        anchors { top: valuePanel.bottom; topMargin: Theme.gap; horizontalCenter: parent.horizontalCenter }
        columns: panel.isLow ? 3 : 2
        spacing: 6
        Repeater {
            model: Viewer.kinds
            KindButton {
                objectName: "kind." + model.name
                width: (panel.width - 2 * Theme.gap - 6 * (kinds.columns - 1)) / kinds.columns
                isCompact: panel.isLow
                height: panel.isLow ? 46 : 54
                kind: model.name
                number: index + 1
                text: model.title
                enabled: Viewer.documents.hasPicture
                opacity: enabled ? 1 : 0.5
                chosen: Viewer.documents.hasPicture && Viewer.editor.kind === model.name
                onClicked: Viewer.editor.chooseKind(model.name)
            }
        }
    }
    Rectangle {
        id: rule
        anchors { top: kinds.bottom; topMargin: Theme.gap }
        width: parent.width
        height: 1
        color: Theme.line
    }
    Flickable {
        id: controls
        objectName: "controls"
        anchors { top: rule.bottom; bottom: bottomRow.top; bottomMargin: 6; left: parent.left; right: parent.right }
        clip: true
        contentHeight: column.height + 2 * column.y
        boundsBehavior: Flickable.StopAtBounds
        visible: Viewer.documents.hasPicture
        ScrollBar.vertical: ScrollBar {
            policy: controls.contentHeight > controls.height ? ScrollBar.AlwaysOn
                                                             : ScrollBar.AlwaysOff
            width: 10
        }
        Column {
            id: column
            x: Theme.gap
            y: 6
            width: parent.width - 2 * Theme.gap - 6
            spacing: 6
            AssessmentPanel {
                width: parent.width
                commands: panel.commands
            }
            KindPanel {
                width: parent.width
                onCalibrationRequested: panel.calibrationRequested()
                onRecordRequested: panel.recordRequested()
            }
            AlignPanel {
                width: parent.width
                commands: panel.commands
                visible: Viewer.editor.hasModel
            }
        }
    }
    Row {
        id: bottomRow
        anchors { bottom: parent.bottom; bottomMargin: Theme.gap; horizontalCenter: parent.horizontalCenter }
        spacing: 6
        readonly property real keyWidth: (panel.width - 2 * Theme.gap - 2 * spacing) / 3
        ToolKey {
            objectName: "undoKey"
            action: panel.commands.undo
            width: bottomRow.keyWidth
            height: 50
        }
        ToolKey {
            objectName: "redoKey"
            action: panel.commands.redo
            width: bottomRow.keyWidth
            height: 50
        }
        ToolKey {
            objectName: "clearKey"
            action: panel.commands.clearPoints
            width: bottomRow.keyWidth
            height: 50
        }
    }
}
