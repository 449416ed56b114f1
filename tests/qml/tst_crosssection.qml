// A cross section from the taps to the value.
import QtQuick 2.15
import QtTest 1.2
import Drevon.Zalento 1.0

Item {
    width: 800; height: 600

    ZaItem {
        id: overlay
        anchors.fill: parent
        diameter: 300
    }

    TestCase {
        name: "CrossSection"
        when: windowShown

        // Distance in mm from the eye to the plane. The mouth fills the field of view but for 2 %;
        // the modelled pipe is 10 diameters long.
        function planeDistance(tangent, fraction) {
            return overlay.diameter / 2 / tangent * 1.02 + 10 * overlay.diameter * fraction
        }

        // Area in mm² of the polygon on the plane that is seen through the centres of the pixels.
        function expectedArea(pixels, fraction) {
            const tangent = Math.tan(overlay.vertFov / 2 * Math.PI / 180)
            const mmPerPixel = 2 * tangent * planeDistance(tangent, fraction) / overlay.height
            let twice = 0
            pixels.forEach((p, i) => {
                const q = pixels[(i + 1) % pixels.length]
                twice += p.x * q.y - q.x * p.y
            })
            return Math.abs(twice) / 2 * mmPerPixel * mmPerPixel
        }

        function test_polygon_data() {
            return [
                { tag: "triangle", percent: 30, fov: 37.5,
                  pixels: [Qt.point(380, 250), Qt.point(440, 300), Qt.point(390, 340)] },
                { tag: "five corners against the clock", percent: 30, fov: 37.5,
                  pixels: [Qt.point(370, 260), Qt.point(350, 310), Qt.point(400, 350), Qt.point(455, 315),
                           Qt.point(430, 255)] },
                { tag: "at the mouth, wide angle", percent: 0, fov: 60,
                  pixels: [Qt.point(250, 200), Qt.point(520, 220), Qt.point(400, 480)] },
            ]
        }

        function test_polygon(row) {
            overlay.iWantToMeasure = ""
            overlay.vertFov = row.fov
            overlay.iWantToMeasure = "CrossSection"
            overlay.percentage = row.percent
            tryCompare(overlay, "measureType", 2)
            waitForRendering(overlay)
            const first = row.pixels[0]
            row.pixels.forEach(p => overlay.mouseClick(p.x, p.y))
            overlay.mouseClick(first.x + 2, first.y - 3)
            const area = expectedArea(row.pixels, row.percent / 100)
            // The plane is met in single precision: 2e-6 m at a tenth of a metre.
            tryVerify(() => Math.abs(overlay.measure1 / area - 1) < 1e-4, 5000,
                      overlay.measure1 + " instead of " + area)
            fuzzyCompare(overlay.measure2, area / (Math.PI * 150 * 150), 1e-4)
        }
    }
}
