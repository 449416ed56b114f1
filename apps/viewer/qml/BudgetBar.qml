import QtQuick 2.15
import Drevon.Zalento.Viewer 1.0

// What makes the value uncertain, as a bar, and what to improve first.
Item {
    id: bar

    property bool isLow: false
    readonly property var rows: Viewer.assessment.budget

    visible: rows.length > 0
    Accessible.role: Accessible.StaticText
    Accessible.name: Viewer.assessment.budgetText + ". " + Viewer.assessment.advice

    Row {
        objectName: "budgetBar"
        width: parent.width
        height: 10
        Repeater {
            model: bar.rows
            Rectangle {
                required property var modelData
                width: bar.width * modelData.share
                height: 10
                color: Theme.sources[modelData.source]
            }
        }
    }
    Text {
        objectName: "adviceText"
        y: 14
        width: parent.width
        elide: Text.ElideRight
        maximumLineCount: bar.isLow ? 1 : 2
        wrapMode: Text.WordWrap
        text: Viewer.assessment.advice
        color: Theme.quiet
        font { family: Theme.family; pixelSize: Theme.small }
    }
}
