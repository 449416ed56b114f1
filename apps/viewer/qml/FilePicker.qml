import QtQuick 2.15
import QtQuick.Controls 2.15
import Qt.labs.folderlistmodel 2.15
import Drevon.Zalento.Viewer 1.0

// Chooses files with rows that a finger hits.
ViewerDialog {
    id: picker

    property bool isSaving: false
    property bool takesSeveral: false
    property var chosen: []
    property var run: null
    property bool asksToReplace: false
    property double askedAt: 0

    // The list learns of its folder only when it has been read: what is written goes by this one.
    property string folder: "/"

    width: Math.min(parent.width - 40, 820)
    height: Math.min(parent.height - 40, 620)

    // Files to open or, with a suggested path, one to save; `action` gets their paths.
    function ask(text, patterns, suggested, action, several) {
        title = text
        files.nameFilters = patterns
        run = action
        isSaving = suggested !== ""
        takesSeveral = several
        asksToReplace = false
        chosen = []
        folder = isSaving ? above(suggested) : Viewer.preferences.folder
        nameField.text = suggested.substring(suggested.lastIndexOf("/") + 1)
        open()
        const first = isSaving ? nameField : rows
        first.forceActiveFocus(Qt.TabFocusReason)
    }
    function above(path) {
        return path.substring(0, path.lastIndexOf("/")) || "/"
    }
    function toggle(path) {
        if (isSaving) {
            nameField.text = path.substring(path.lastIndexOf("/") + 1)
            return
        }
        if (chosen.includes(path))
            chosen = chosen.filter(p => p !== path)
        else
            chosen = takesSeveral ? chosen.concat([path]) : [path]
    }
    // The second half of a double click is no answer to a question that only just appeared.
    function mayReplace() {
        if (!asksToReplace) {
            askedAt = Date.now()
            asksToReplace = true
        }
        return Date.now() - askedAt > Qt.styleHints.mouseDoubleClickInterval
    }
    function finish() {
        const target = folder + "/" + nameField.text
        if (isSaving && Viewer.exporter.exists(target) && !mayReplace())
            return
        close()
        run(isSaving ? [target] : chosen)
    }
    function takeRow(item) {
        const row = item as FileRow
        if (row.fileIsDir || isSaving) {
            row.clicked()
            return
        }
        if (!row.isChosen)
            chosen = [row.filePath]
        finish()
    }

    FileOrder {
        id: list
        sourceModel: FolderListModel {
            id: files
            folder: Viewer.urlOf(picker.folder)
            showDotAndDotDot: false
            caseSensitive: false
        }
    }

    contentItem: Item {
        Row {
            id: top
            width: parent.width
            spacing: Theme.gap
            ToolKey {
                text: "↑"
                font.pixelSize: 20
                hint: qsTr("Folder above")
                enabled: picker.folder !== "/"
                onClicked: picker.folder = picker.above(picker.folder)
            }
            Text {
                width: parent.width - Theme.touch - Theme.gap
                height: Theme.touch
                verticalAlignment: Text.AlignVCenter
                elide: Text.ElideLeft
                text: picker.folder
                color: Theme.quiet
                font { family: Theme.family; pixelSize: Theme.small }
            }
        }
        ListView {
            id: rows
            objectName: "fileRows"
            anchors { top: top.bottom; topMargin: 8; bottom: bottom.top; bottomMargin: 8 }
            width: parent.width
            clip: true
            model: list
            boundsBehavior: Flickable.StopAtBounds
            activeFocusOnTab: true
            keyNavigationEnabled: true
            Accessible.role: Accessible.List
            Accessible.name: qsTr("Files")
            onActiveFocusChanged: if (activeFocus && currentIndex < 0) currentIndex = 0
            Keys.onSpacePressed: if (currentItem) (currentItem as FileRow).clicked()
            Keys.onReturnPressed: if (currentItem) picker.takeRow(currentItem)
            Keys.onEnterPressed: if (currentItem) picker.takeRow(currentItem)
            ScrollBar.vertical: ViewerScrollBar {}
            delegate: FileRow {
                objectName: "file." + fileName
                width: rows.width - 14
                isChosen: picker.chosen.includes(filePath)
                isAimedAt: rows.activeFocus && ListView.isCurrentItem
                onClicked: fileIsDir ? picker.folder = filePath
                                     : picker.toggle(filePath)
                onDoubleClicked: if (!fileIsDir) picker.takeRow(this)
            }
            Text {
                anchors.centerIn: parent
                visible: rows.count === 0
                text: qsTr("Nothing here to choose")
                color: Theme.quiet
                font { family: Theme.family; pixelSize: Theme.normal }
            }
        }
        Row {
            id: bottom
            anchors { right: parent.right; bottom: parent.bottom }
            spacing: Theme.gap
            layoutDirection: Qt.RightToLeft
            width: parent.width
            ToolKey {
                id: acceptKey
                objectName: "pickerAccept"
                text: picker.isSaving ? (picker.asksToReplace ? qsTr("Replace") : qsTr("Save"))
                                      : qsTr("Open")
                emphasized: true
                enabled: picker.isSaving ? nameField.text : picker.chosen.length > 0
                onClicked: picker.finish()
            }
            ToolKey {
                id: folderKey
                visible: picker.takesSeveral
                text: qsTr("Open whole folder")
                onClicked: {
                    picker.close()
                    picker.run([picker.folder])
                }
            }
            ToolKey {
                id: cancelKey
                text: qsTr("Cancel")
                onClicked: picker.close()
            }
            TextField {
                id: nameField
                objectName: "pickerName"
                visible: picker.isSaving
                width: parent.width - acceptKey.width - cancelKey.width - 2 * Theme.gap
                height: Theme.touch
                selectByMouse: true
                color: picker.asksToReplace ? Theme.warning : Theme.text
                font { family: Theme.family; pixelSize: Theme.normal }
                Accessible.name: qsTr("File name")
                onTextChanged: picker.asksToReplace = false
                onAccepted: picker.finish()
                background: Rectangle {
                    radius: Theme.radius
                    color: Theme.window
                    border { width: 1; color: Theme.line }
                }
            }
        }
    }
}
