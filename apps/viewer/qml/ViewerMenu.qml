import QtQuick 2.15
import QtQuick.Controls 2.15

Menu {
    delegate: ViewerMenuItem {}
    background: Rectangle {
        radius: Theme.radius
        color: Theme.panel
        border { width: 1; color: Theme.line }
    }
}
