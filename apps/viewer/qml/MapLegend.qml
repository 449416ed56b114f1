import QtQuick 2.15
import Drevon.Zalento.Viewer 1.0

// What the colours of the map over the picture mean.
Rectangle {
    visible: Viewer.assessment.map > 0
    width: column.width + 20
    height: column.height + 16
    radius: Theme.radius
    color: "#d0101315"

    Column {
        id: column
        x: 10
        y: 8
        spacing: 3
        Text {
            text: Viewer.assessment.mapTitle
            color: Theme.text
            font { family: Theme.family; pixelSize: Theme.small }
        }
        Repeater {
            model: Viewer.assessment.mapLegend
            Row {
                id: step
                required property var modelData
                spacing: 8
                Rectangle {
                    width: 26
                    height: 16
                    color: step.modelData.colour
                    border { width: 1; color: Theme.line }
                }
                Text {
                    text: step.modelData.text
                    color: Theme.text
                    font { family: Theme.family; pixelSize: Theme.small }
                }
            }
        }
    }
}
