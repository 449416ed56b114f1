import QtQuick 2.15
import QtQuick.Controls 2.15

Menu {
    id: menu

    // The item that holds the entries is what screen readers are told of, and has no name.
    onAboutToShow: contentItem.parent.Accessible.name = title
    delegate: ViewerMenuItem {}
    contentItem: ListView {
        implicitHeight: contentHeight
        model: menu.contentModel
        interactive: contentHeight + menu.topPadding + menu.bottomPadding > menu.height
        clip: true
        currentIndex: menu.currentIndex
    }
    background: Rectangle {
        implicitWidth: 240
        radius: Theme.radius
        color: Theme.panel
        border { width: 1; color: Theme.line }
    }
}
