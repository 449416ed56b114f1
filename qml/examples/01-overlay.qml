// The model of a pipe of 300 mm over a picture.
import QtQuick 2.15
import Drevon.Zalento 1.0

Rectangle {
    width: CommonConstants.VideoWidth
    height: CommonConstants.VideoHeight
    color: "dimgray" // in place of the picture
    ZaItem { anchors.fill: parent; diameter: 300 }
}
