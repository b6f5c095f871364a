import QtQuick
import TambleClient.Control 1.0

/*! The list of pages along the left edge of the window. */
FocusScope {
    id: root

    required property var pages
    property int currentIndex: 0

    /*! A page was chosen, or the chosen one clicked again. */
    signal chosen(int index)

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
        highlightMoveDuration: 0
        // A list makes its first row the current one as it gets its rows.
        currentIndex: list.count > 0 ? root.currentIndex : -1
        model: root.pages
        // qmllint disable unqualified
        delegate: PageEntry {
            onClicked: root.chosen(index)
        }
        // qmllint enable unqualified
        Accessible.role: Accessible.List
        Accessible.name: qsTr("Pages")
        Keys.onUpPressed: root.chosen((list.currentIndex + list.count - 1) % list.count)
        Keys.onDownPressed: root.chosen((list.currentIndex + 1) % list.count)
        Keys.onPressed: event => {
            event.accepted = event.key === Qt.Key_Home || event.key === Qt.Key_End
            if (event.accepted)
                root.chosen(event.key === Qt.Key_Home ? 0 : list.count - 1)
        }
    }
    Divider {
        anchors.right: parent.right
        height: parent.height
    }
}
