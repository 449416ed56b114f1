import QtQuick 2.15

// A line of small text that takes no room while it is empty.
Text {
    width: parent.width
    visible: text
    wrapMode: Text.WordWrap
    color: Theme.quiet
    Accessible.role: Accessible.StaticText
    Accessible.name: text
    font { family: Theme.family; pixelSize: Theme.small }
}
