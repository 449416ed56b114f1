import QtQuick 2.15
import QtQuick.Controls 2.15
import Inspector 1.0

ApplicationWindow {
    id: window

    required property var inspection

    visible: true
    width: 1024
    height: 700
    title: "Inspector"

    // The picture at its own size, so that the overlay's pixels are the picture's; it is fitted into
    // the window by its scale alone.
    Item {
        id: sheet
        anchors.centerIn: parent
        width: window.inspection.pictureSize.width
        height: window.inspection.pictureSize.height
        scale: Math.min(parent.width / width, parent.height / height)

        Image {
            anchors.fill: parent
            autoTransform: true
            source: window.inspection.picture
        }
        ZaItem {
            id: item
            anchors.fill: parent
            textureSize: Qt.size(width * sheet.scale, height * sheet.scale) // crisp lines
            iWantToMeasure: kindBox.model[kindBox.currentIndex].name
            Component.onCompleted: window.inspection.decorate(item)
        }
        Measurement {
            id: measurement
            overlay: item
        }
        TapHandler {
            onTapped: eventPoint => item.mouseClick(eventPoint.position.x, eventPoint.position.y)
        }
        DragHandler {
            id: drag
            // The mouth fills the picture's shorter side but for 2 %, and is 576 units wide.
            readonly property real unitsPerPixel: 1.02 * 576 / Math.min(sheet.width, sheet.height)
            property real offset: 0
            property real start: 0
            target: null
            onActiveChanged: start = offset
            onTranslationChanged: {
                offset = start - translation.x / sheet.scale * unitsPerPixel
                item.move(offset, 0) // positive values move to the left
            }
        }
    }

    header: ToolBar {
        Row {
            spacing: 10
            ComboBox {
                id: kindBox
                width: 180
                textRole: "text"
                model: [{ name: "PipeDimension", text: qsTr("Pipe dimension") },
                        { name: "CrossSection", text: qsTr("Cross section") },
                        { name: "WaterLevel", text: qsTr("Water level") },
                        { name: "BendAngle", text: qsTr("Bend angle") }]
            }
            Slider {
                visible: measurement.kind === Measurement.WaterLevel
                to: 100
                onMoved: item.percentage = value
            }
            Slider {
                visible: measurement.kind === Measurement.BendAngle
                to: 90
                onMoved: item.angle = value
            }
            Button {
                text: qsTr("Undo")
                onClicked: item.undo()
            }
            Button {
                text: qsTr("Save")
                enabled: measurement.state === Measurement.Measured
                onClicked: window.inspection.save(item)
            }
        }
    }
    footer: Label {
        padding: 10
        text: [measurement.error || measurement.fullText || measurement.note, window.inspection.message]
              .filter(line => line).join(" – ")
    }
}
