import QtQuick 2.15
import Drevon.Zalento.Viewer 1.0

// The measurements of the picture; of a single one no more than how to get another.
Column {
    id: panel

    required property var commands

    readonly property bool areSeveral: Viewer.measurements.count > 1

    spacing: 6

    Repeater {
        model: Viewer.measurements
        ToolKey {
            id: row
            required property int index
            required property string name
            required property string value
            required property bool isChosen
            objectName: "measurement." + index
            visible: panel.areSeveral
            width: panel.width
            text: value ? name + ": " + value : name
            hint: text
            chosen: isChosen
            font.pixelSize: Theme.small
            onClicked: Viewer.measurements.choose(index)
        }
    }
    Grid {
        id: keys
        width: parent.width
        columns: 2
        spacing: 6
        readonly property real keyWidth: (width - spacing) / 2
        ToolKey {
            objectName: "anotherKey"
            width: keys.keyWidth
            action: panel.commands.another
        }
        ToolKey {
            objectName: "nameKey"
            width: keys.keyWidth
            action: panel.commands.rename
        }
        ToolKey {
            objectName: "removeKey"
            visible: panel.areSeveral
            width: keys.keyWidth
            action: panel.commands.remove
        }
        ToolKey {
            objectName: "showAllKey"
            visible: panel.areSeveral
            width: keys.keyWidth
            action: panel.commands.showAll
            chosen: Viewer.measurements.isAllShown
        }
    }
}
