// Steps through the kinds of measurement. A new kind brings its object on view with it.
import QtQuick 2.15
import Drevon.Zalento 1.0

ZaItem {
    id: overlay
    property var kinds: ["CrackWidth", "PipeDimension", "WaterLevel", "BranchAngle", "BendAngle",
                         "CrossSection"]
    property int current: 0
    width: 600; height: 600
    iWantToMeasure: kinds[current]
    // A kind sets viewObject without viewModeChanged: read it when the kind changes.
    property string object
    onIWantToMeasureChanged: object = ["pipe", "lateral", "bend", "joint"][viewObject]

    TapHandler { onTapped: overlay.current = (overlay.current + 1) % overlay.kinds.length }
    Text { color: "white"; style: Text.Outline; text: overlay.iWantToMeasure + ": " + overlay.object }
}
