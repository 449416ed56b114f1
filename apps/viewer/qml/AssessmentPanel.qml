import QtQuick 2.15
import Drevon.Zalento.Viewer 1.0

// What is said of the value: its limit, its sources of uncertainty, its repeats.
Column {
    id: panel

    required property var commands

    spacing: 6

    Row {
        width: parent.width
        spacing: 6
        ToolKey {
            objectName: "againKey"
            width: (parent.width - 6) / 2
            action: panel.commands.measureAgain
        }
        Rectangle {
            width: (parent.width - 6) / 2
            height: Theme.touch
            radius: Theme.radius
            color: Theme.control
            border { width: limit.activeFocus ? 2 : 1; color: limit.activeFocus ? Theme.accent : Theme.line }
            Text {
                anchors { left: parent.left; leftMargin: 10; verticalCenter: parent.verticalCenter }
                visible: !limit.text && !limit.activeFocus
                readonly property var examples: ({
                    "CrackWidth": "< 2 mm", "PipeDimension": "> 290 mm", "WaterLevel": "< 30 %",
                    "BranchAngle": "> 45°", "BendAngle": "< 15°", "CrossSection": "> 600 cm²"
                })
                text: qsTr("Limit: %1").arg(examples[Viewer.editor.kind])
                width: parent.width - 20
                elide: Text.ElideRight
                color: Theme.quiet
                font { family: Theme.family; pixelSize: Theme.small }
            }
            TextInput {
                id: limit
                objectName: "limitField"
                anchors { fill: parent; leftMargin: 10; rightMargin: 10 }
                verticalAlignment: TextInput.AlignVCenter
                text: Viewer.assessment.limit
                color: Theme.text
                selectByMouse: true
                activeFocusOnTab: true
                font { family: Theme.family; pixelSize: Theme.normal }
                Accessible.role: Accessible.EditableText
                Accessible.name: qsTr("Limit")
                onEditingFinished: {
                    problem.text = Viewer.assessment.setLimit(text)
                    if (!problem.text)
                        text = Qt.binding(() => Viewer.assessment.limit)
                }
                Keys.onEscapePressed: {
                    problem.text = ""
                    text = Qt.binding(() => Viewer.assessment.limit)
                    Viewer.focusStage()
                }
                onAccepted: if (!problem.text) Viewer.focusStage()
            }
        }
    }
    Note {
        id: problem
        color: Theme.error
    }
    Note {
        objectName: "decisionText"
        text: Viewer.assessment.decision
        color: Theme.text
    }
    Note {
        objectName: "budgetText"
        text: Viewer.assessment.budgetText
    }
    Note {
        objectName: "repeatsText"
        text: Viewer.assessment.repeats
    }
    Note {
        objectName: "pointText"
        text: Viewer.assessment.pointText
    }
}
