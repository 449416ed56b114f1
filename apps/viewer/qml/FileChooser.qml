import QtQuick 2.15
import Qt.labs.platform 1.1 as Platform
import Drevon.Zalento.Viewer 1.0

// Asks for files: with the platform's own dialog, or with ours where the platform has none.
Item {
    id: chooser

    readonly property bool isOpen: picker.visible || platformDialog.visible
    property var run: null

    function openPictures() {
        ask(qsTr("Open pictures"), Viewer.documents.namePatterns(), "",
            paths => Viewer.documents.openPaths(paths), Platform.FileDialog.OpenFiles)
    }
    function openCalibration() {
        ask(qsTr("Load a camera calibration"), ["*.ini", "*.txt", "*.csv", "*.cal"], "",
            paths => Viewer.editor.loadCalibration(paths[0]), Platform.FileDialog.OpenFile)
    }
    function openLens() {
        ask(qsTr("Load a lens"), ["*.yaml", "*.yml", "*.json", "*.xml"], "",
            paths => Viewer.cameras.loadLens(paths[0]), Platform.FileDialog.OpenFile)
    }
    function openRecord() {
        ask(qsTr("Load a pipe record"), ["*.json"], "",
            paths => Viewer.records.load(paths[0]), Platform.FileDialog.OpenFile)
    }
    function exportTo(what) {
        ask(qsTr("Save as"), ["*." + ({ session: "json", wall: "png" }[what] || what)],
            Viewer.exporter.suggestedPath(what),
            paths => Viewer.exporter.exportTo(what, paths[0]), Platform.FileDialog.SaveFile)
    }

    function ask(title, patterns, suggested, action, mode) {
        if (!Viewer.hasPlatformDialogs) {
            picker.ask(title, patterns, suggested, action,
                       mode === Platform.FileDialog.OpenFiles)
            return
        }
        run = action
        platformDialog.title = title
        platformDialog.fileMode = mode
        platformDialog.nameFilters = [title + " (" + patterns.join(" ") + ")"]
        platformDialog.folder = Viewer.urlOf(Viewer.preferences.folder)
        if (suggested)
            platformDialog.currentFile = Viewer.urlOf(suggested)
        platformDialog.open()
    }

    FilePicker {
        id: picker
        objectName: "filePicker"
    }
    Platform.FileDialog {
        id: platformDialog
        onAccepted: chooser.run(files.map(file => Viewer.pathOf(file)))
    }
}
