import QtQuick
import QtQuick.Layouts
import QtQuick.Templates as T
import Gallery
import TambleClient.Control 1.0

/*! Base of every page: a scrolling column of sections below the description. */
Flickable {
    id: root

    property string description
    /*! Whether the page shows the signal, which plays while such a page is seen. */
    property bool listening: false
    default property alias content: column.data

    contentWidth: width
    contentHeight: column.height + theme.dp(40)
    boundsBehavior: Flickable.StopAtBounds
    clip: true
    // Not taken away while it has the focus, which Qt refuses.
    activeFocusOnTab: root.contentHeight > root.height || root.activeFocus
    Accessible.role: Accessible.Pane
    Accessible.name: root.description

    T.ScrollBar.vertical: ScrollHandle {}

    FocusScroller {
        view: root
        margin: theme.dp(8)
    }
    RFocusRectangle {
        parent: root
        visible: root.activeFocus
    }

    Keys.onUpPressed: root.contentY = Math.max(0, root.contentY - theme.dp(40))
    Keys.onDownPressed: root.contentY = Math.max(0, Math.min(root.contentHeight - root.height, root.contentY + theme.dp(40)))

    ColumnLayout {
        id: column
        x: theme.dp(24)
        y: theme.dp(8)
        width: root.width - theme.dp(48)
        spacing: theme.dp(16)

        RText {
            Layout.fillWidth: true
            bottomPadding: theme.dp(8)
            visible: root.description.length > 0
            text: root.description
            font.pixelSize: theme.fontSizeL
            wrapMode: Text.Wrap
        }
    }
}
