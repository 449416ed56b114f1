import QtQuick 2.15
import QtQuick.Controls 2.15
import QtQuick.Window 2.15
import Drevon.Zalento.Viewer 1.0

ApplicationWindow {
    id: window

    property bool closesAfterSaving: false
    // Height is scarce on a small screen that lies, width on one that stands.
    readonly property bool isLow: height < 700
    readonly property bool isUpright: height > width
    // On a small screen it takes too much of the picture to stay.
    property bool showsStrip: !isLow

    visible: true
    width: Math.min(Viewer.preferences.windowSize.width, Screen.desktopAvailableWidth)
    height: Math.min(Viewer.preferences.windowSize.height, Screen.desktopAvailableHeight)
    minimumWidth: 720
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
    onClosing: close => {
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
        isLow: window.isLow
        commands: commands
        onExportRequested: what => fileChooser.exportTo(what)
        onRecordRequested: recordDialog.open()
        onCameraRequested: cameraDialog.open()
        onDisplayRequested: displayDialog.open()
    }
    // What the bars and the side panel leave.
    Item {
        id: work
        anchors { left: parent.left; top: topBar.bottom; bottom: statusLine.top }
        width: statusLine.width
    }
    PictureStage {
        id: stage
        anchors { left: work.left; right: wallPanel.left; top: work.top; bottom: strip.top }
        commands: commands
        isBehindDialog: fileChooser.isOpen || [filmPanel, recordDialog, nameDialog, cameraDialog, displayDialog, keyList,
                                               saveDialog, unsavedDialog]
                                              .some(dialog => dialog.visible)
    }
    WallPanel {
        id: wallPanel
        objectName: "wallPanel"
        anchors { right: work.right; top: work.top; bottom: strip.top }
        width: visible ? Math.round(work.width / 2) : 0
        visible: Viewer.wall.isShown
    }
    PictureStrip {
        id: strip
        anchors { left: work.left; right: work.right; bottom: work.bottom }
        height: visible ? implicitHeight : 0
        visible: window.showsStrip && Viewer.documents.count > 1
        onPictureChosen: window.showsStrip = !window.isLow
    }
    StatusLine {
        id: statusLine
        y: (window.isUpright ? side.y : window.height) - height
        width: window.width - (window.isUpright ? 0 : side.width)
        isLow: window.isLow
        spaceOnTheRight: window.isLow ? 0 : zoomKeys.width
    }
    ZoomKeys {
        id: zoomKeys
        x: window.isLow ? topBar.zoomKeysX : statusLine.width - width - 6
        y: window.isLow ? (topBar.height - height) / 2
                        : statusLine.y + (statusLine.height - height) / 2
        isCompact: window.isLow
        enabled: Viewer.documents.hasPicture
        stage: stage
        commands: commands
    }
    SidePanel {
        id: side
        x: window.width - width
        y: window.height - height
        width: window.isUpright ? window.width : window.isLow ? 296 : 344
        height: window.isUpright ? uprightHeight : window.height - topBar.height
        isLow: window.isLow
        isUpright: window.isUpright
        commands: commands
        onCalibrationRequested: fileChooser.openCalibration()
        onRecordRequested: recordDialog.open()
        onCameraRequested: cameraDialog.open()
    }

    DropArea {
        anchors.fill: parent
        onEntered: drag => drag.accepted = drag.hasUrls
        onDropped: drop => Viewer.documents.openUrls(drop.urls)
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
    CameraDialog {
        id: cameraDialog
        objectName: "cameraDialog"
        onFileRequested: fileChooser.openLens()
    }
    DisplayDialog {
        id: displayDialog
        objectName: "displayDialog"
    }
    FilmPanel {
        id: filmPanel
        objectName: "filmPanel"
    }
    NameDialog {
        id: nameDialog
        objectName: "nameDialog"
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
        side: side
        onOpenRequested: fileChooser.openPictures()
        onStripRequested: {
            window.showsStrip = !window.showsStrip
            window.showsStrip ? strip.focusList() : stage.forceActiveFocus()
        }
        onGoToRequested: {
            window.showsStrip = true
            strip.focusSearch()
        }
        onNameRequested: nameDialog.open()
        onKeysRequested: keyList.open()
    }
}
