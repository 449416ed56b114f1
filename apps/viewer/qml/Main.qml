import QtQuick 2.15
import QtQuick.Controls 2.15
import QtQuick.Window 2.15
import Drevon.Zalento.Viewer 1.0

ApplicationWindow {
    id: window

    property bool closesAfterSaving: false
    // Height is scarce on small screens, width on none.
    readonly property bool isLow: height < 700

    visible: true
    width: Math.min(Viewer.windowSize.width, Screen.desktopAvailableWidth)
    height: Math.min(Viewer.windowSize.height, Screen.desktopAvailableHeight)
    minimumWidth: 800
    minimumHeight: 480
    title: (Viewer.pictureName ? Viewer.pictureName + (Viewer.isModified ? " *" : "") + " – " : "")
           + "Zalento"
    color: Theme.window
    palette {
        window: Theme.panel
        windowText: Theme.text
        base: Theme.window
        text: Theme.text
        button: Theme.control
        buttonText: Theme.text
        highlight: Theme.accent
        highlightedText: Theme.accentText
        toolTipBase: Theme.control
        toolTipText: Theme.text
        mid: Theme.line
        dark: Theme.quiet
        light: Theme.control
    }
    onClosing: {
        Viewer.windowSize = Qt.size(width, height)
        if (Viewer.unsavedCount > 0) {
            close.accepted = false
            unsavedDialog.open()
        }
    }

    function leave() {
        Viewer.windowSize = Qt.size(width, height)
        Qt.quit()
    }

    TopBar {
        id: topBar
        width: parent.width
        onOpenRequested: filePicker.openPictures()
        onExportRequested: filePicker.exportTo(what)
        onRecordRequested: recordDialog.open()
        onKeysRequested: keyList.open()
    }
    PictureStage {
        id: stage
        anchors { left: parent.left; right: side.left; top: topBar.bottom; bottom: statusLine.top }
        isBehindDialog: [filePicker, recordDialog, keyList, saveDialog, unsavedDialog]
                        .some(dialog => dialog.visible)
        onOpenRequested: filePicker.openPictures()
    }
    StatusLine {
        id: statusLine
        anchors { left: parent.left; right: side.left; bottom: parent.bottom }
    }
    SidePanel {
        id: side
        anchors { right: parent.right; top: topBar.bottom; bottom: parent.bottom }
        width: 344
        isLow: window.isLow
        onCalibrationRequested: filePicker.openCalibration()
        onRecordRequested: recordDialog.open()
    }

    DropArea {
        anchors.fill: parent
        onEntered: drag.accepted = drag.hasUrls
        onDropped: Viewer.openUrls(drop.urls)
        Rectangle {
            anchors.fill: parent
            visible: parent.containsDrag
            color: "#6037c6f4"
            border { width: 4; color: Theme.accent }
        }
    }

    FilePicker {
        id: filePicker
        objectName: "filePicker"
    }
    RecordDialog {
        id: recordDialog
        objectName: "recordDialog"
        onFileRequested: filePicker.openRecord()
    }
    KeyList {
        id: keyList
        objectName: "keyList"
        keys: keyTable.rows
    }
    ConfirmDialog {
        id: saveDialog
        objectName: "saveDialog"
        title: qsTr("Save all the same?")
        acceptText: qsTr("Save")
        onAccepted: if (Viewer.saveAnyway() && window.closesAfterSaving)
            unsavedDialog.saveAndLeave()
        onRejected: window.closesAfterSaving = false
    }
    ConfirmDialog {
        id: unsavedDialog
        objectName: "unsavedDialog"
        title: qsTr("Save before closing?")
        text: qsTr("%n measurement(s) are not saved.", "", Viewer.unsavedCount)
        acceptText: qsTr("Save")
        discardText: qsTr("Discard")
        onAccepted: saveAndLeave()
        onDiscarded: window.leave()

        function saveAndLeave() {
            if (Viewer.saveAll())
                window.leave()
            window.closesAfterSaving = saveDialog.visible
        }
    }
    Connections {
        target: Viewer
        function onConfirmationNeeded(question) {
            saveDialog.text = question
            saveDialog.open()
        }
    }
    KeyTable {
        id: keyTable
        stage: stage
        onOpenRequested: filePicker.openPictures()
        onKeysRequested: keyList.open()
    }
}
