import QtQuick 2.15
import Drevon.Zalento.Viewer 1.0

// Every command of the viewer: text, keys, and when it can be used stand here only.
Item {
    id: commands

    required property var stage
    required property var side
    signal openRequested()
    signal stripRequested()
    signal goToRequested()
    signal nameRequested()
    signal keysRequested()

    readonly property Command open: Command {
        text: qsTr("Open")
        hint: qsTr("Open pictures")
        shortcut: "Ctrl+O"
        onTriggered: commands.openRequested()
    }
    readonly property Command save: Command {
        text: Viewer.editor.isModified ? qsTr("Save •") : qsTr("Save")
        hint: qsTr("Save the session beside the picture")
        shortcut: "Ctrl+S"
        enabled: Viewer.documents.hasPicture
        onTriggered: Viewer.exporter.save()
    }
    readonly property Command copy: Command {
        text: qsTr("Copy")
        hint: qsTr("Copy the value")
        shortcut: "Ctrl+C"
        enabled: Viewer.documents.hasPicture
        onTriggered: Viewer.exporter.copyValue()
    }
    readonly property Command previous: Command {
        text: "‹"
        hint: qsTr("Previous picture")
        shortcut: "PgUp"
        enabled: Viewer.documents.currentIndex > 0
        onTriggered: Viewer.documents.showPrevious()
    }
    readonly property Command next: Command {
        text: "›"
        hint: qsTr("Next picture")
        shortcut: "PgDown"
        enabled: Viewer.documents.currentIndex + 1 < Viewer.documents.count
        onTriggered: Viewer.documents.showNext()
    }
    readonly property Command strip: Command {
        text: qsTr("Pictures")
        hint: qsTr("Strip of all pictures")
        shortcut: "F9"
        enabled: Viewer.documents.count > 1
        onTriggered: commands.stripRequested()
    }
    readonly property Command goTo: Command {
        text: qsTr("Go to…")
        hint: qsTr("Go to a picture: its number, or a part of its name")
        shortcut: "G"
        enabled: Viewer.documents.count > 1
        onTriggered: commands.goToRequested()
    }
    readonly property Command undo: Command {
        text: qsTr("↶ Undo")
        hint: Viewer.editor.undoText ? qsTr("Undo: %1").arg(Viewer.editor.undoText) : qsTr("Undo")
        shortcut: "Ctrl+Z"
        enabled: Viewer.editor.canUndo
        onTriggered: Viewer.editor.undo()
    }
    readonly property Command redo: Command {
        text: qsTr("↷ Redo")
        hint: Viewer.editor.redoText ? qsTr("Redo: %1").arg(Viewer.editor.redoText) : qsTr("Redo")
        shortcut: "Ctrl+Shift+Z"
        otherKeys: ["Ctrl+Y"]
        enabled: Viewer.editor.canRedo
        onTriggered: Viewer.editor.redo()
    }
    readonly property Command giveUp: Command {
        text: qsTr("Cancel")
        hint: qsTr("Give up what is under way")
        shortcut: "Esc"
        onTriggered: commands.stage.cancel()
    }
    readonly property Command dropLastPoint: Command {
        text: qsTr("Drop the last point, or the click that was taken")
        shortcut: "Backspace"
        onTriggered: Viewer.editor.dropLastPoint()
    }
    readonly property Command clearPoints: Command {
        text: qsTr("✕ Points")
        hint: qsTr("Clear all points")
        enabled: Viewer.editor.points.count > 0
        onTriggered: Viewer.editor.clearPoints()
    }
    readonly property Command confirm: Command {
        text: qsTr("Confirm")
        hint: qsTr("Confirm the value as it is shown")
        shortcut: "C"
        enabled: Viewer.documents.hasPicture && !Viewer.editor.isSet
        onTriggered: Viewer.editor.confirm()
    }
    readonly property Command measureAgain: Command {
        text: qsTr("Measure again")
        hint: qsTr("Keep the value, and measure once more")
        shortcut: "R"
        enabled: Viewer.assessment.canMeasureAgain
        onTriggered: Viewer.editor.measureAgain()
    }
    readonly property Command another: Command {
        text: qsTr("Another")
        hint: qsTr("Another measurement on this picture")
        shortcut: "N"
        enabled: Viewer.documents.hasPicture
        onTriggered: Viewer.measurements.add()
    }
    readonly property Command nextMeasurement: Command {
        text: qsTr("Next")
        hint: qsTr("Next measurement of this picture")
        shortcut: "V"
        enabled: Viewer.measurements.count > 1
        onTriggered: Viewer.measurements.chooseNext()
    }
    readonly property Command rename: Command {
        text: qsTr("Name…")
        hint: qsTr("Name the measurement")
        shortcut: "F2"
        enabled: Viewer.documents.hasPicture
        onTriggered: commands.nameRequested()
    }
    readonly property Command remove: Command {
        text: qsTr("Remove")
        hint: qsTr("Remove the measurement")
        shortcut: "Ctrl+Del"
        enabled: Viewer.measurements.count > 1
        onTriggered: Viewer.measurements.remove()
    }
    readonly property Command showAll: Command {
        text: qsTr("Show all")
        hint: qsTr("Show all measurements with their names, in exports, too")
        shortcut: "A"
        enabled: Viewer.measurements.count > 1
        onTriggered: Viewer.measurements.isAllShown = !Viewer.measurements.isAllShown
    }
    readonly property Command map: Command {
        text: qsTr("Map")
        hint: qsTr("Map of what a pixel is worth; again: of the uncertainty")
        shortcut: "M"
        enabled: Viewer.editor.hasModel
        onTriggered: Viewer.assessment.showNextMap()
    }
    readonly property Command snap: Command {
        text: qsTr("Snap")
        hint: qsTr("Find the joint's edge near the green ring")
        shortcut: "S"
        enabled: Viewer.editor.hasModel
        onTriggered: Viewer.editor.snap()
    }
    readonly property Command wall: Command {
        text: qsTr("Wall")
        hint: qsTr("The wall as a flat picture beside this one")
        shortcut: "W"
        enabled: Viewer.documents.hasPicture
        onTriggered: Viewer.wall.isShown = !Viewer.wall.isShown
    }
    readonly property Command film: Command {
        text: qsTr("Film")
        hint: qsTr("The film, to measure another of its frames")
        shortcut: "T"
        enabled: Viewer.film.isAvailable
        onTriggered: Viewer.film.goBack()
    }
    readonly property Command unit: Command {
        text: Viewer.editor.isImperial ? qsTr("in") : qsTr("mm")
        hint: Viewer.editor.isImperial ? qsTr("Imperial units; switch to metric")
                                       : qsTr("Metric units; switch to imperial")
        shortcut: "U"
        enabled: Viewer.documents.hasPicture
        onTriggered: Viewer.editor.toggleUnit()
    }
    readonly property Command clickPoints: Command {
        text: qsTr("Points")
        hint: qsTr("Click points of the measurement")
        shortcut: "P"
        enabled: Viewer.editor.hasModel
        onTriggered: Viewer.editor.tool = 0
    }
    readonly property Command clickJoint: Command {
        text: qsTr("Joint")
        hint: qsTr("Click a joint; again: the next joint")
        shortcut: "J"
        enabled: Viewer.editor.hasModel
        onTriggered: commands.clickFeature(1)
    }
    readonly property Command clickLine: Command {
        text: qsTr("Line")
        hint: qsTr("Click a line along the pipe; again: the next line")
        shortcut: "L"
        enabled: Viewer.editor.hasModel
        onTriggered: commands.clickFeature(2)
    }
    function clickFeature(tool) {
        if (Viewer.editor.tool === tool)
            Viewer.editor.beginFeature()
        else
            Viewer.editor.tool = tool
    }
    readonly property Command zoomIn: Command {
        text: "+"
        hint: qsTr("Zoom in")
        shortcut: "+"
        otherKeys: ["="]
        onTriggered: commands.stage.zoom(1)
    }
    readonly property Command zoomOut: Command {
        text: "−"
        hint: qsTr("Zoom out")
        shortcut: "-"
        onTriggered: commands.stage.zoom(-1)
    }
    readonly property Command fit: Command {
        text: qsTr("Fit")
        hint: qsTr("Whole picture")
        shortcut: "Ctrl+0"
        onTriggered: commands.stage.fit()
    }
    readonly property Command actualSize: Command {
        text: "1:1"
        hint: qsTr("Picture pixels")
        shortcut: "Ctrl+1"
        onTriggered: commands.stage.actualSize()
    }
    readonly property Command showValue: Command {
        text: qsTr("Value")
        hint: qsTr("Lead the keys to the value")
        shortcut: "F6"
        onTriggered: commands.side.focusValue()
    }
    readonly property Command showFields: Command {
        text: qsTr("Fields")
        hint: qsTr("Lead the keys to the fields")
        shortcut: "F7"
        enabled: Viewer.documents.hasPicture
        onTriggered: commands.side.focusFields()
    }
    readonly property Command showStage: Command {
        text: qsTr("Picture")
        hint: qsTr("Lead the keys to the picture")
        shortcut: "F8"
        onTriggered: commands.stage.forceActiveFocus()
    }
    readonly property Command keys: Command {
        text: "?"
        hint: qsTr("List of keys")
        shortcut: "F1"
        onTriggered: commands.keysRequested()
    }

    // In the order of the list of keys; the kinds follow, under their numbers.
    readonly property var all: [open, save, copy, previous, next, strip, goTo, undo, redo, giveUp, dropLastPoint,
                                confirm, measureAgain, another, nextMeasurement, rename, remove,
                                showAll, clickPoints, clickJoint, clickLine, snap, unit,
                                map, wall, film, zoomIn, zoomOut, fit, actualSize, showValue, showFields,
                                showStage, keys]
    // What the list of keys says: [keys, text].
    readonly property var keyRows: {
        const rows = all.map(command => [command.keyText, command.hint])
        for (let i = 0; i < kindCommands.count; ++i) {
            const command = kindCommands.objectAt(i)
            if (command)
                rows.push([command.keyText, command.text])
        }
        return rows.concat([
            // The stage itself listens to these.
            [qsTr("H"), qsTr("Hide the overlay while held")],
            [qsTr("Enter"), qsTr("Show a cursor; again: click with it")],
            [qsTr("Shift+Click"), qsTr("Set a point where a click would close the outline; "
                                       + "Shift+Enter with the cursor")],
            [qsTr("Arrows"), qsTr("Move the cursor or the selected point by a pixel, or pan")],
            [qsTr("Shift+Arrows"), qsTr("The same by ten")]
        ])
    }

    Instantiator {
        id: kindCommands
        model: Viewer.kinds
        Command {
            required property string title
            required property int index
            text: title
            shortcut: String(index + 1)
            onTriggered: Viewer.editor.chooseKindAt(index)
        }
    }
    Instantiator {
        model: commands.all.filter(command => command.otherKeys.length > 0)
        Shortcut {
            required property var modelData
            sequences: modelData.otherKeys
            enabled: modelData.enabled
            onActivated: modelData.trigger()
        }
    }
}
