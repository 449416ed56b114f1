// The item as a QML user interface drives it.
import QtQuick 2.15
import QtTest 1.2
import Drevon.Zalento 1.0

Item {
    id: scene
    width: 800; height: 600

    property real heightPercent: 35

    ZaItem {
        id: overlay
        anchors.fill: parent
        diameter: 300
        cameraHeight: scene.heightPercent
    }
    Text {
        id: label
        visible: false
        text: overlay.viewObject + " " + overlay.isTwoHitpointList
    }
    SignalSpy { id: twoSpy; target: overlay; signalName: "isTwoHitpointListChanged" }
    SignalSpy { id: measureSpy; target: overlay; signalName: "measure1Changed" }
    SignalSpy { id: angleSpy; target: overlay; signalName: "angleChanged" }
    SignalSpy { id: fovSpy; target: overlay; signalName: "vertFovChanged" }

    TestCase {
        name: "Item"
        when: windowShown

        function init() {
            overlay.viewObject = 0
            overlay.iWantToMeasure = "CrackWidth"
            overlay.clearMeasurementPoints();
            [twoSpy, measureSpy, angleSpy, fovSpy].forEach(spy => spy.clear())
        }

        function test_constants() {
            compare(CommonConstants.VideoWidth, 768)
            compare(CommonConstants.VideoHeight, 576)
            compare(CommonConstants.DragMinimumX, -185)
            compare(CommonConstants.DragExtendedHight, 50)
        }

        function test_constantsCannotBeCreated() {
            var error = ""
            try {
                Qt.createQmlObject("import Drevon.Zalento 1.0; CommonConstants {}", scene)
            } catch (e) {
                error = e.qmlErrors[0].message
            }
            verify(error.indexOf("holds enumerations") >= 0, error)
        }

        function test_controlsTakePercentAndGiveFractions() {
            overlay.iWantToMeasure = "WaterLevel"
            overlay.percentage = 40
            fuzzyCompare(overlay.percentage, 0.4, 1e-12)
            fuzzyCompare(overlay.cameraHeight, 0.35, 1e-12)
            scene.heightPercent = 20 // the binding still stands
            fuzzyCompare(overlay.cameraHeight, 0.2, 1e-12)
            scene.heightPercent = 35
            overlay.clock = 30
            compare(overlay.clock, 0)
            overlay.angle = 10
            compare(angleSpy.signalArguments[0][0], 30)
        }

        function test_odd() {
            const diameter = overlay.diameter
            overlay.diameter = NaN
            compare(overlay.diameter, diameter)
            overlay.vertFov = 0
            overlay.vertFov = 37.5
            compare(fovSpy.count, 0)
            overlay.mouseClick(NaN, undefined)
            overlay.moveScaleRotate(Infinity, 0, 1, 0)
            overlay.viewObject = 7
            compare(overlay.viewObject, 7)
            compare(label.text, "7 false")
            overlay.iWantToMeasure = null
            compare(overlay.measureType, 0)
        }

        function test_clicks() {
            overlay.requestCameraCalibration(0.5)
            overlay.mouseClick(200, 300)
            compare(label.text, "0 false")
            overlay.mouseClick(500, 300)
            compare(label.text, "0 true")
            compare(twoSpy.count, 1)
            tryVerify(() => overlay.measure1 > 0)
            // Half the drawing area, whose 600 pixels count 0.5 mm each.
            fuzzyCompare(overlay.measure1, 150, 1e-9)
            compare(measureSpy.signalArguments[measureSpy.count - 1][0], overlay.measure1)
            overlay.viewObject = 1
            compare(overlay.measure1, 0)
            overlay.viewObject = 0
            overlay.undo()
            compare(label.text, "0 false")
        }
    }
}
