import QtQuick 2.15

// A sketch of what the kind measures: the pipe seen from the front, and the measure on it.
Canvas {
    id: icon

    property string kind
    property color stroke: Theme.text
    property color measure: Theme.accent

    implicitWidth: 28
    implicitHeight: 28
    onKindChanged: requestPaint()
    onStrokeChanged: requestPaint()
    onMeasureChanged: requestPaint()
    onPaint: {
        const c = getContext("2d")
        c.reset()
        c.scale(width / 28, height / 28)
        c.lineWidth = 2
        sketches[kind](c)
    }

    readonly property var sketches: ({
        CrackWidth: c => {
            line(c, stroke, [[12, 2], [8, 9], [13, 14], [7, 20], [10, 26]])
            line(c, stroke, [[19, 2], [16, 9], [21, 14], [15, 20], [19, 26]])
            line(c, measure, [[9, 14], [25, 14]])
        },
        PipeDimension: c => {
            circle(c, stroke)
            line(c, measure, [[3, 14], [25, 14]])
            line(c, measure, [[7, 10], [3, 14], [7, 18]])
            line(c, measure, [[21, 10], [25, 14], [21, 18]])
        },
        WaterLevel: c => {
            circle(c, stroke)
            line(c, measure, [[5, 18], [9, 16], [14, 18], [19, 16], [23, 18]])
            line(c, measure, [[8, 22], [14, 24], [20, 22]])
        },
        BranchAngle: c => {
            line(c, stroke, [[3, 9], [3, 9], [25, 9]])
            line(c, stroke, [[3, 19], [10, 19]])
            line(c, stroke, [[19, 19], [25, 19]])
            line(c, measure, [[10, 19], [16, 27]])
            line(c, measure, [[19, 19], [25, 27]])
        },
        BendAngle: c => {
            bow(c, stroke, 3, 25, 8)
            bow(c, stroke, 3, 25, 18)
            line(c, measure, [[3, 17], [11, 17], [11, 25]])
        },
        CrossSection: c => {
            circle(c, stroke)
            line(c, measure, [[8, 9], [19, 7], [22, 16], [13, 21], [7, 16], [8, 9]])
        },
        "": c => {}
    })

    function line(c, color, points) {
        c.strokeStyle = color
        c.beginPath()
        points.forEach((p, i) => i ? c.lineTo(p[0], p[1]) : c.moveTo(p[0], p[1]))
        c.stroke()
    }
    function circle(c, color) {
        bow(c, color, 14, 14, 11, 2 * Math.PI)
    }
    function bow(c, color, x, y, radius, span) {
        c.strokeStyle = color
        c.beginPath()
        if (span)
            c.arc(x, y, radius, 0, span)
        else
            c.arc(x, y, radius, -Math.PI / 2, 0)
        c.stroke()
    }
}
