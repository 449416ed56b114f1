import QtQuick 2.15
import QtQuick.Controls 2.15

// With its limits under the names by which the accessibility bridge looks for them.
Slider {
    readonly property real minimumValue: from
    readonly property real maximumValue: to

    focusPolicy: Qt.TabFocus
}
