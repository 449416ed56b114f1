pragma Singleton
import QtQuick 2.15

// Dark and calm, so that the eye stays adapted to dark pictures.
QtObject {
    readonly property color window: "#101315"
    readonly property color panel: "#1a1f23"
    readonly property color control: "#2a3137"
    readonly property color controlDown: "#39434b"
    readonly property color line: "#3a434a"
    readonly property color text: "#f2f5f6"
    readonly property color quiet: "#a9b4bb"
    readonly property color accent: "#37c6f4"
    readonly property color accentText: "#06222c"
    readonly property color warning: "#ffc061"
    readonly property color error: "#ff9188"

    // Of the sources of uncertainty, in their order; told apart by all kinds of sight (M. Okabe and
    // K. Ito, 2008).
    readonly property var sources: ["#56b4e9", "#0072b2", "#e69f00", "#009e73", "#f0e442",
                                    "#d55e00", "#cc79a7", "#a0a0a0"]

    // The smallest side of anything that a finger is to hit.
    readonly property int touch: 46
    readonly property int gap: 8
    readonly property int radius: 6
    readonly property int small: 14
    readonly property int normal: 16
    readonly property int large: 38
    readonly property string family: "DejaVu Sans"
}
