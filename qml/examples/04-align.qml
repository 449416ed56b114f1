// Fits the model to the picture: drags shift it, the wheel turns it, a tap switches to its far end.
import QtQuick 2.15
import Drevon.Zalento 1.0

ZaItem {
    id: overlay
    width: 600; height: 600

    DragHandler {
        property real start: 0
        property real shift: 0
        target: null
        onActiveChanged: start = shift
        onTranslationChanged: {
            shift = start + translation.x
            overlay.move(-shift, 0) // positive values move to the left
        }
    }
    WheelHandler {
        target: null
        onRotationChanged: overlay.rotate(rotation)
    }
    TapHandler { onTapped: overlay.rearCircleActive = !overlay.rearCircleActive }
    Text {
        color: "white"
        style: Text.Outline
        text: overlay.rearCircleActive ? qsTr("Drags move the far end") : qsTr("Drags move the pipe")
    }
}
