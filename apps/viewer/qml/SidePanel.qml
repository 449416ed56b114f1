import QtQuick 2.15
import QtQuick.Controls 2.15
import Drevon.Zalento.Viewer 1.0

// Value, kinds and controls; undo lies at the bottom, where the thumb is.
Rectangle {
    id: panel

    property bool isLow: false
    signal calibrationRequested()
    signal recordRequested()

    color: Theme.panel

    ValuePanel {
        id: valuePanel
        width: parent.width
        isLow: panel.isLow
    }
    Grid {
        id: kinds
        anchors { top: valuePanel.bottom; topMargin: Theme.gap; horizontalCenter: parent.horizontalCenter }
        columns: panel.isLow ? 3 : 2
        spacing: 6
        Repeater {
            model: Viewer.kinds
            KindButton {
                objectName: "kind." + modelData.name
                width: (panel.width - 2 * Theme.gap - 6 * (kinds.columns - 1)) / kinds.columns
                isCompact: panel.isLow
                height: panel.isLow ? 46 : 54
                kind: modelData.name
                number: index + 1
                text: modelData.title
                enabled: Viewer.hasPicture
                opacity: enabled ? 1 : 0.5
                checked: Viewer.hasPicture && Viewer.kind === modelData.name
                onClicked: Viewer.chooseKind(modelData.name)
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
        visible: Viewer.hasPicture
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
            KindPanel {
                width: parent.width
                onCalibrationRequested: panel.calibrationRequested()
                onRecordRequested: panel.recordRequested()
            }
            AlignPanel {
                width: parent.width
                visible: Viewer.hasModel
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
            width: bottomRow.keyWidth
            height: 50
            text: qsTr("↶ Undo")
            hint: Viewer.undoText ? qsTr("Undo: %1").arg(Viewer.undoText) : qsTr("Undo")
            shortcut: "Ctrl+Z"
            enabled: Viewer.canUndo
            onClicked: Viewer.undo()
        }
        ToolKey {
            objectName: "redoKey"
            width: bottomRow.keyWidth
            height: 50
            text: qsTr("↷ Redo")
            hint: Viewer.redoText ? qsTr("Redo: %1").arg(Viewer.redoText) : qsTr("Redo")
            shortcut: "Ctrl+Shift+Z"
            enabled: Viewer.canRedo
            onClicked: Viewer.redo()
        }
        ToolKey {
            objectName: "clearKey"
            width: bottomRow.keyWidth
            height: 50
            text: qsTr("✕ Points")
            hint: qsTr("Clear all points")
            enabled: Viewer.points.length > 0
            onClicked: Viewer.clearPoints()
        }
    }
}
