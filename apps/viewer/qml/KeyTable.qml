import QtQuick 2.15
import Drevon.Zalento.Viewer 1.0

// Every key of the viewer, with what the list of keys says about it.
Item {
    id: table

    required property var stage
    signal openRequested()
    signal keysRequested()

    readonly property var rows: [
        { keys: ["Ctrl+O"], label: qsTr("open pictures"), run: () => openRequested() },
        { keys: ["Ctrl+S"], label: qsTr("save the session"), run: () => Viewer.save() },
        { keys: ["Ctrl+C"], label: qsTr("copy the value"), run: () => Viewer.copyValue() },
        { keys: ["PgUp"], label: qsTr("previous picture"), run: () => Viewer.previousPicture() },
        { keys: ["PgDown"], label: qsTr("next picture"), run: () => Viewer.nextPicture() },
        { keys: ["Ctrl+Z"], label: qsTr("undo"), run: () => Viewer.undo() },
        { keys: ["Ctrl+Shift+Z", "Ctrl+Y"], label: qsTr("redo"), run: () => Viewer.redo() },
        { keys: ["Esc"], label: qsTr("give up what is under way"), run: () => stage.cancel() },
        { keys: ["Backspace"], label: qsTr("drop the last point"), run: () => Viewer.dropLastPoint() },
        { keys: ["1"], label: title(0), run: () => Viewer.chooseKindNumber(1) },
        { keys: ["2"], label: title(1), run: () => Viewer.chooseKindNumber(2) },
        { keys: ["3"], label: title(2), run: () => Viewer.chooseKindNumber(3) },
        { keys: ["4"], label: title(3), run: () => Viewer.chooseKindNumber(4) },
        { keys: ["5"], label: title(4), run: () => Viewer.chooseKindNumber(5) },
        { keys: ["6"], label: title(5), run: () => Viewer.chooseKindNumber(6) },
        { keys: ["U"], label: qsTr("metric or imperial"), run: () => Viewer.toggleUnit() },
        { keys: ["+", "="], label: qsTr("zoom in"), run: () => stage.zoom(1) },
        { keys: ["-"], label: qsTr("zoom out"), run: () => stage.zoom(-1) },
        { keys: ["Ctrl+0"], label: qsTr("whole picture"), run: () => stage.fit() },
        { keys: ["Ctrl+1"], label: qsTr("picture pixels"), run: () => stage.actualSize() },
        { keys: ["F1"], label: qsTr("this list"), run: () => keysRequested() },
        // The stage itself listens to these.
        { keys: ["H"], label: qsTr("hide the overlay while held"), run: null },
        { keys: ["Arrows"], label: qsTr("move the selected point by a pixel, or pan"), run: null },
        { keys: ["Shift+Arrows"], label: qsTr("the same by ten"), run: null }
    ]

    function title(index) {
        return Viewer.kinds[index].title
    }

    Instantiator {
        model: table.rows.length
        delegate: Shortcut {
            enabled: table.rows[index].run !== null
            sequences: enabled ? table.rows[index].keys : []
            onActivated: table.rows[index].run()
        }
    }
}
