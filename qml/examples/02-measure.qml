// Taps set the corners of a cross section; a tap near the first one closes it.
import QtQuick 2.15
import Drevon.Zalento 1.0

ZaItem {
    id: overlay
    width: 600; height: 600
    iWantToMeasure: "CrossSection"
    percentage: 30 // of the modelled length; read back it is the water level's fraction

    TapHandler { onTapped: eventPoint => overlay.mouseClick(eventPoint.position.x, eventPoint.position.y) }
    Text {
        color: "white"
        style: Text.Outline
        text: qsTr("%1 mm², %2 % of the pipe").arg(overlay.measure1.toFixed(0))
                                              .arg((100 * overlay.measure2).toFixed(0))
    }
}
