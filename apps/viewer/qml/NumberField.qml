import QtQuick 2.15
import QtQuick.Controls 2.15
import Drevon.Zalento.Viewer 1.0

// One number of the measurement: typed, stepped, or dragged on the slider where there is one.
// A bad text stays as it was typed, marked, until it is put right or given up with Esc.
FocusScope {
    id: root

    // The model, and its row.
    required property var fields
    required property int index
    required property string name
    required property string label
    required property string unit
    required property string text
    required property double value
    required property double smallest
    required property double largest
    required property double step
    required property bool hasSlider
    required property bool isSetting

    property string problem: ""
    // The label stands above the number.
    readonly property bool isNarrow: width < 300

    implicitHeight: column.implicitHeight
    onTextChanged: if (!problem) field.text = text
    Component.onCompleted: field.text = text

    function commit() {
        if (field.text === text) {
            problem = ""
            return
        }
        problem = fields.commit(index, field.text)
        if (!problem)
            field.text = text
    }
    function giveUp() {
        problem = ""
        field.text = text
        Viewer.focusStage()
    }
    function stepBy(count) {
        problem = ""
        fields.stepBy(index, count)
        field.text = text
    }

    Column {
        id: column
        width: parent.width
        spacing: 2

        Text {
            visible: root.isNarrow
            text: root.label
            color: Theme.text
            font { family: Theme.family; pixelSize: Theme.small }
        }
        Row {
            width: parent.width
            spacing: 4

            Text {
                width: parent.width - 3 * 4 - 2 * Theme.touch - input.width
                height: Theme.touch
                visible: !root.isNarrow
                verticalAlignment: Text.AlignVCenter
                wrapMode: Text.WordWrap
                text: root.label
                color: Theme.text
                font { family: Theme.family; pixelSize: Theme.normal }
            }
            ToolKey {
                text: "−"
                font.pixelSize: 22
                hint: qsTr("%1 down").arg(root.label)
                autoRepeat: true
                onClicked: root.stepBy(-1)
            }
            Rectangle {
                id: input
                width: root.isNarrow ? parent.width - 2 * 4 - 2 * Theme.touch : 104
                height: Theme.touch
                radius: Theme.radius
                color: Theme.window
                border.width: root.problem || field.activeFocus ? 2 : 1
                border.color: root.problem ? Theme.error
                                           : field.activeFocus ? Theme.accent : Theme.line

                TextField {
                    id: field
                    objectName: "field." + root.name
                    anchors { fill: parent; rightMargin: unitText.width ? unitText.width + 8 : 0 }
                    focus: true
                    selectByMouse: true
                    leftPadding: 3
                    rightPadding: 5
                    background: null
                    color: root.problem ? Theme.error : Theme.text
                    horizontalAlignment: TextInput.AlignRight
                    inputMethodHints: Qt.ImhFormattedNumbersOnly
                    font { family: Theme.family; pixelSize: Theme.normal }
                    Accessible.name: root.label
                    Accessible.description: root.problem
                    onActiveFocusChanged: activeFocus ? selectAll() : root.commit()
                    Keys.onEscapePressed: root.giveUp()
                    Keys.onReturnPressed: accept()
                    Keys.onEnterPressed: accept()

                    function accept() {
                        root.commit()
                        if (root.problem)
                            return
                        // Enter on what the field shows already is an answer, too.
                        if (root.isSetting && !Viewer.editor.isSet)
                            Viewer.editor.confirm()
                        Viewer.focusStage()
                    }
                }
                Text {
                    id: unitText
                    objectName: "unit." + root.name
                    anchors { right: parent.right; rightMargin: 6; verticalCenter: parent.verticalCenter }
                    text: root.unit
                    color: Theme.quiet
                    font { family: Theme.family; pixelSize: Theme.small }
                }
            }
            ToolKey {
                text: "+"
                font.pixelSize: 22
                hint: qsTr("%1 up").arg(root.label)
                autoRepeat: true
                onClicked: root.stepBy(1)
            }
        }
        Text {
            objectName: "problem." + root.name
            visible: root.problem
            width: parent.width
            wrapMode: Text.WordWrap
            text: root.problem
            color: Theme.error
            font { family: Theme.family; pixelSize: Theme.small }
        }
        ViewerSlider {
            id: slider
            objectName: "slider." + root.name
            visible: root.hasSlider
            width: parent.width
            height: Theme.touch
            from: root.smallest
            to: root.largest
            stepSize: root.step
            snapMode: Slider.SnapAlways
            value: root.value
            Accessible.name: root.label
            onMoved: root.fields.drag(root.index, value)
            onPressedChanged: {
                if (pressed) {
                    Viewer.focusStage()
                    return
                }
                root.fields.endDrag()
                value = Qt.binding(() => root.value)
            }
        }
    }
}
