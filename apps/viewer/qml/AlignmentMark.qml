import QtQuick 2.15

// Where a joint or a line was clicked, with a whisker to the curve that was fitted: how far the click
// lies off, enlarged.
Item {
    id: place

    property point residual
    property bool isSuspicious: false
    property bool isSelected: false
    property real viewScale: 1

    readonly property real enlargement: 10
    readonly property color mark: isSuspicious ? Theme.error
                                               : isSelected ? Theme.accent : Theme.warning

    Rectangle {
        readonly property real off: Math.hypot(parent.residual.x, parent.residual.y)
        width: off * parent.enlargement * parent.viewScale
        height: 2
        y: -1
        transformOrigin: Item.Left
        rotation: Math.atan2(-parent.residual.y, -parent.residual.x) * 180 / Math.PI
        color: parent.mark
        visible: off > 0
    }
    Repeater {
        model: [45, 135]
        Rectangle {
            required property int modelData
            x: -width / 2
            y: -height / 2
            width: place.isSuspicious || place.isSelected ? 22 : 16
            height: 3
            rotation: modelData
            color: place.mark
            border { width: 1; color: "#a0000000" }
        }
    }
}
