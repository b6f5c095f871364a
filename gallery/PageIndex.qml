import QtQuick
import TambleClient.Control 1.0

/*! The list of pages along the left edge of the window. */
Item {
    id: root

    required property var pages
    property alias currentIndex: list.currentIndex

    /*! A page was chosen, or the chosen one clicked again. */
    signal chosen()

    function show(index: int) {
        list.currentIndex = (index + list.count) % list.count
    }

    width: theme.dp(208)

    Surface {
        anchors.fill: parent
        RStyleSet.typeName: "RAppBar"
    }
    ListView {
        id: list
        anchors.fill: parent
        anchors.topMargin: theme.dp(8)
        clip: true
        focus: true
        activeFocusOnTab: true
        keyNavigationWraps: true
        highlightMoveDuration: 0
        model: root.pages
        // qmllint disable unqualified
        delegate: PageEntry {
            onClicked: root.chosen()
        }
        // qmllint enable unqualified
        Accessible.role: Accessible.List
        Accessible.name: qsTr("Pages")
        Keys.onPressed: event => {
            if (event.key !== Qt.Key_Home && event.key !== Qt.Key_End)
                return
            root.show(event.key === Qt.Key_Home ? 0 : -1)
            event.accepted = true
        }
    }
    Divider {
        anchors.right: parent.right
        height: parent.height
    }
}
