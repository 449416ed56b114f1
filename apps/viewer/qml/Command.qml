import QtQuick.Controls 2.15

// Something that the operator can have done: by a key, and by every button that shows it.
Action {
    property string hint: text
    // Keys beside the shortcut.
    property var otherKeys: []

    readonly property string keyText: [shortcut].concat(otherKeys).filter(key => key).join(", ")
}
