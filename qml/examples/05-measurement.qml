// A measurement to bind to: its value with the uncertainty, else what to do next, or what is wrong.
import QtQuick 2.15
import Drevon.Zalento 1.0
import Drevon.Zalento.Measuring 1.0

ZaItem {
    id: item
    width: 600; height: 600
    iWantToMeasure: "PipeDimension"

    TapHandler { onTapped: eventPoint => item.mouseClick(eventPoint.position.x, eventPoint.position.y) }
    Measurement {
        id: measurement
        overlay: item
    }
    Text {
        color: measurement.state === Measurement.Measured ? "white" : "orange"
        style: Text.Outline
        text: measurement.fullText || measurement.note || measurement.error
    }
}
