import QtQuick 2.15
import QtQuick.Controls 2.15
import QtQuick.Window 2.15
import Drevon.Zalento.Viewer 1.0

// Value, kinds and controls; undo lies at the bottom, where the thumb is. Upright, the controls stand
// beside the rest.
Rectangle {
    id: panel

    property bool isLow: false
    property bool isUpright: false
    required property var commands
    signal calibrationRequested()
    signal recordRequested()
    signal cameraRequested()

    readonly property real columnWidth: isUpright ? width / 2 : width
    // What an upright panel needs.
    readonly property real uprightHeight: kinds.y + kinds.height + bottomRow.height + 2 * Theme.gap

    color: Theme.panel

    function focusValue() { valuePanel.focusValue() }
    function focusFields() { kindPanel.focusFields() || alignPanel.focusFields() }

    // What has the keys stands in sight.
    readonly property Item focused: Window.activeFocusItem
    onFocusedChanged: {
        let inside = focused
        while (inside && inside !== column)
            inside = inside.parent
        if (!inside)
            return
        const y = focused.mapToItem(column, 0, 0).y
        controls.contentY = Math.max(Math.min(controls.contentY, y),
                                     y + focused.height + 2 * column.y - controls.height)
    }

    ValuePanel {
        id: valuePanel
        width: panel.columnWidth
        isLow: panel.isLow
        commands: panel.commands
    }
    Grid {
        id: kinds
        x: (panel.columnWidth - width) / 2
        y: valuePanel.height + Theme.gap
        columns: panel.isLow ? 3 : 2
        spacing: 6
        Repeater {
            model: Viewer.kinds
            KindButton {
                required property string name
                required property string title
                required property int index
                objectName: "kind." + name
                width: (panel.columnWidth - 2 * Theme.gap - 6 * (kinds.columns - 1)) / kinds.columns
                isCompact: panel.isLow
                height: panel.isLow ? 48 : 54
                kind: name
                number: index + 1
                text: title
                enabled: Viewer.documents.hasPicture
                opacity: enabled ? 1 : 0.5
                chosen: Viewer.documents.hasPicture && Viewer.editor.kind === name
                onClicked: Viewer.editor.chooseKind(name)
            }
        }
    }
    Rectangle {
        id: rule
        x: panel.isUpright ? panel.columnWidth : 0
        y: panel.isUpright ? 0 : kinds.y + kinds.height + Theme.gap
        width: panel.isUpright ? 1 : parent.width
        height: panel.isUpright ? parent.height : 1
        color: Theme.line
    }
    Flickable {
        id: controls
        objectName: "controls"
        x: panel.isUpright ? panel.columnWidth + 1 : 0
        y: panel.isUpright ? 0 : rule.y + 1
        width: panel.width - x
        height: (panel.isUpright ? panel.height : bottomRow.y - 6) - y
        clip: true
        contentHeight: column.height + 2 * column.y
        boundsBehavior: Flickable.StopAtBounds
        visible: Viewer.documents.hasPicture
        ScrollBar.vertical: ViewerScrollBar {
            policy: controls.contentHeight > controls.height ? ScrollBar.AlwaysOn
                                                             : ScrollBar.AlwaysOff
        }
        Column {
            id: column
            x: Theme.gap
            y: 6
            width: parent.width - 2 * Theme.gap - 6
            spacing: 6
            MeasurementPanel {
                width: parent.width
                commands: panel.commands
            }
            AssessmentPanel {
                width: parent.width
                commands: panel.commands
            }
            KindPanel {
                id: kindPanel
                width: parent.width
                onCalibrationRequested: panel.calibrationRequested()
                onRecordRequested: panel.recordRequested()
            }
            AlignPanel {
                id: alignPanel
                width: parent.width
                commands: panel.commands
                visible: Viewer.editor.hasModel
                onCameraRequested: panel.cameraRequested()
            }
        }
    }
    Row {
        id: bottomRow
        x: (panel.columnWidth - width) / 2
        y: panel.height - height - Theme.gap
        spacing: 6
        readonly property real keyWidth: (panel.columnWidth - 2 * Theme.gap - 2 * spacing) / 3
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
