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
    width: Math.min(Viewer.preferences.windowSize.width, Screen.desktopAvailableWidth)
    height: Math.min(Viewer.preferences.windowSize.height, Screen.desktopAvailableHeight)
    minimumWidth: 800
    minimumHeight: 480
    title: (Viewer.documents.pictureName ? Viewer.documents.pictureName + (Viewer.editor.isModified ? " *" : "") + " – " : "")
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
        Viewer.preferences.windowSize = Qt.size(width, height)
        if (Viewer.documents.unsavedCount > 0) {
            close.accepted = false
            unsavedDialog.open()
        }
    }

    function leave() {
        Viewer.preferences.windowSize = Qt.size(width, height)
        Qt.quit()
    }

    TopBar {
        id: topBar
        width: parent.width
        commands: commands
        onExportRequested: fileChooser.exportTo(what)
        onRecordRequested: recordDialog.open()
    }
    PictureStage {
        id: stage
        anchors { left: parent.left; right: wallPanel.left; top: topBar.bottom; bottom: statusLine.top }
        commands: commands
        isBehindDialog: fileChooser.isOpen || [recordDialog, keyList, saveDialog, unsavedDialog]
                                              .some(dialog => dialog.visible)
    }
    WallPanel {
        id: wallPanel
        objectName: "wallPanel"
        anchors { right: side.left; top: topBar.bottom; bottom: statusLine.top }
        width: visible ? Math.round((window.width - side.width) / 2) : 0
        visible: Viewer.wall.isShown
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
        commands: commands
        onCalibrationRequested: fileChooser.openCalibration()
        onRecordRequested: recordDialog.open()
    }

    DropArea {
        anchors.fill: parent
        onEntered: drag.accepted = drag.hasUrls
        onDropped: Viewer.documents.openUrls(drop.urls)
        Rectangle {
            anchors.fill: parent
            visible: parent.containsDrag
            color: "#6037c6f4"
            border { width: 4; color: Theme.accent }
        }
    }

    FileChooser {
        id: fileChooser
    }
    RecordDialog {
        id: recordDialog
        objectName: "recordDialog"
        onFileRequested: fileChooser.openRecord()
    }
    KeyList {
        id: keyList
        objectName: "keyList"
        rows: commands.keyRows
    }
    ConfirmDialog {
        id: saveDialog
        objectName: "saveDialog"
        title: qsTr("Save all the same?")
        acceptText: qsTr("Save")
        onAccepted: if (Viewer.exporter.saveAnyway() && window.closesAfterSaving)
            unsavedDialog.saveAndLeave()
        onRejected: window.closesAfterSaving = false
    }
    ConfirmDialog {
        id: unsavedDialog
        objectName: "unsavedDialog"
        title: qsTr("Save before closing?")
        text: qsTr("%n measurement(s) are not saved.", "", Viewer.documents.unsavedCount)
        acceptText: qsTr("Save")
        discardText: qsTr("Discard")
        onAccepted: saveAndLeave()
        onDiscarded: window.leave()

        function saveAndLeave() {
            if (Viewer.exporter.saveAll())
                window.leave()
            window.closesAfterSaving = saveDialog.visible
        }
    }
    Connections {
        target: Viewer.exporter
        function onConfirmationNeeded(question) {
            saveDialog.text = question
            saveDialog.open()
        }
    }
    Commands {
        id: commands
        stage: stage
        onOpenRequested: fileChooser.openPictures()
        onKeysRequested: keyList.open()
    }
}
