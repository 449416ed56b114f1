import QtQuick 2.15
import QtQuick.Controls 2.15
import Drevon.Zalento.Viewer 1.0

// All pictures side by side, to find and to show one of them.
Rectangle {
    id: strip

    // In the order of PictureFilter's states.
    readonly property var stateNames: [qsTr("All"), qsTr("Measured"), qsTr("Not measured"),
                                       qsTr("Not saved"), qsTr("Trouble")]

    signal pictureChosen()

    implicitHeight: 2 * Theme.touch + 3 * margin
    color: Theme.panel

    readonly property int margin: 5

    function focusList() { list.forceActiveFocus(Qt.TabFocusReason) }
    function focusSearch() {
        search.selectAll()
        search.forceActiveFocus(Qt.TabFocusReason)
    }
    function show(picture) {
        if (picture < 0)
            return
        Viewer.documents.show(picture)
        pictureChosen()
        Viewer.focusStage()
    }
    // What is on view stands in sight.
    function followCurrent() {
        const row = filter.rowOf(Viewer.documents.currentIndex)
        if (row >= 0) {
            list.currentIndex = row
            list.positionViewAtIndex(row, ListView.Contain)
        }
    }
    onVisibleChanged: if (visible) followCurrent()

    PictureFilter {
        id: filter
        sourceModel: Viewer.documents
        text: search.text
        onChanged: strip.followCurrent()
    }
    Connections {
        target: Viewer.documents
        function onCurrentChanged() { strip.followCurrent() }
    }

    TextField {
        id: search
        objectName: "stripSearch"
        x: strip.margin
        y: strip.margin
        width: 156
        height: Theme.touch
        selectByMouse: true
        placeholderText: qsTr("Number or name")
        placeholderTextColor: Theme.quiet
        color: list.count > 0 ? Theme.text : Theme.warning
        font { family: Theme.family; pixelSize: Theme.small }
        Accessible.name: qsTr("Go to a picture: its number, or a part of its name")
        function press() {
            if (list.currentItem)
                (list.currentItem as PictureCard).clicked()
        }
        Keys.onShortcutOverride: event => event.accepted = event.key === Qt.Key_Escape
        Keys.onEscapePressed: {
            text = ""
            Viewer.focusStage()
        }
        onAccepted: {
            strip.show(filter.firstPicture())
            if (list.count > 0)
                text = ""
        }
        background: Rectangle {
            radius: Theme.radius
            color: Theme.window
            border { width: search.activeFocus ? 2 : 1; color: search.activeFocus ? Theme.text : Theme.line }
        }
    }
    ToolKey {
        objectName: "stripState"
        x: strip.margin
        y: search.y + search.height + strip.margin
        width: search.width
        text: strip.stateNames[filter.state] + " ▾"
        hint: qsTr("Which pictures are listed: %1").arg(strip.stateNames[filter.state])
        chosen: filter.state !== PictureFilter.All
        font.pixelSize: Theme.small
        menu: stateMenu
        ViewerMenu {
            id: stateMenu
            objectName: "stripStateMenu"
            title: qsTr("Pictures")
            y: -height - 4
            Repeater {
                model: strip.stateNames
                ViewerMenuItem {
                    required property string modelData
                    required property int index
                    objectName: "stripState." + index
                    text: modelData
                    checkable: true
                    checked: filter.state === index
                    onTriggered: filter.state = index
                }
            }
        }
    }
    ListView {
        id: list
        objectName: "strip"
        anchors { left: search.right; right: parent.right; top: parent.top; bottom: parent.bottom }
        anchors { margins: strip.margin; leftMargin: Theme.gap }
        orientation: ListView.Horizontal
        spacing: strip.margin
        clip: true
        model: filter
        boundsBehavior: Flickable.StopAtBounds
        activeFocusOnTab: true
        keyNavigationEnabled: true
        highlightMoveDuration: 0
        Accessible.role: Accessible.List
        Accessible.name: qsTr("Pictures")
        Keys.onSpacePressed: list.press()
        Keys.onReturnPressed: list.press()
        Keys.onEnterPressed: list.press()
        Keys.onPressed: event => {
            const ends = {}
            ends[Qt.Key_Home] = 0
            ends[Qt.Key_End] = count - 1
            event.accepted = event.key in ends
            if (event.accepted)
                currentIndex = ends[event.key]
        }
        function press() {
            if (list.currentItem)
                (list.currentItem as PictureCard).clicked()
        }
        Keys.onShortcutOverride: event => event.accepted = event.key === Qt.Key_Escape
        Keys.onEscapePressed: Viewer.focusStage()
        ScrollBar.horizontal: ViewerScrollBar {}
        delegate: PictureCard {
            objectName: "picture." + number
            width: 124
            height: list.height
            isOnView: number === Viewer.documents.currentIndex + 1
            isAimedAt: list.activeFocus && ListView.isCurrentItem
            onClicked: strip.show(number - 1)
        }
        Text {
            anchors.centerIn: parent
            visible: list.count === 0
            text: qsTr("None of the pictures is like that")
            color: Theme.quiet
            font { family: Theme.family; pixelSize: Theme.normal }
        }
    }
}
