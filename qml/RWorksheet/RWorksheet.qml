import QtQuick
import TambleClient.Control 1.0

/*! Document page: a header with a title that can be edited, above a workspace, which fills the rest. Keys: F2 edits the
    title, Enter takes the edit, Esc leaves it. */
RWorksheetBase {
    id: root

    RStyleSet.typeName: "RWorksheet"

    /*! What stands below the header; a workspace fills it. */
    default property alias content: body.data
    /*! The row at the top. */
    readonly property Item header: row
    /*! Whether there is a zoom bar at the bottom right. */
    property bool zoomBarVisible: true
    /*! Whether the title is being edited. */
    readonly property bool titleEditing: editor.visible

    property color ssBackground: root.RStyleSet.props.background

    /*! Begins an edit of the title; nothing while the page is `readOnly`. */
    function editTitle() {
        if (root.readOnly)
            return
        editor.visible = true
        editor.forceActiveFocus(Qt.OtherFocusReason)
        editor.selectAll()
    }

    /*! Ends it and gives the focus back. */
    function endEdit() {
        const hadFocus = editor.activeFocus
        editor.visible = false
        if (hadFocus)
            row.forceActiveFocus(Qt.OtherFocusReason)
    }

    RStyleSet.stateHelper.disabled: !root.enabled
    RStyleSet.stateHelper.readOnly: root.readOnly
    RStyleSet.stateHelper.active: root.active

    implicitWidth: 640 * RThemeValues.unit
    implicitHeight: 432 * RThemeValues.unit
    Accessible.role: Accessible.Document
    Accessible.name: root.title
    Accessible.description: root.modified ? qsTr("modified") : ""
    Keys.onPressed: event => {
        event.accepted = event.key === Qt.Key_F2 && !root.readOnly
        if (event.accepted)
            root.editTitle()
    }

    RPendingValue {
        id: pendingTitle
        target: root
        name: "title"
    }
    // Mirrored with the page, which the canvas is not.
    Rectangle {
        width: root.width
        height: root.height
        color: root.ssBackground
    }
    Item {
        id: row
        width: root.width
        height: 32 * RThemeValues.unit
        activeFocusOnTab: true
        Accessible.role: Accessible.Heading
        Accessible.name: root.title
        Keys.onReturnPressed: root.editTitle()
        Keys.onEnterPressed: root.editTitle()

        RText {
            id: words
            anchors.left: parent.left
            anchors.leftMargin: 8 * RThemeValues.unit
            width: Math.min(words.implicitWidth, row.width - 32 * RThemeValues.unit)
            height: row.height
            visible: !editor.visible
            text: root.title
            font.pixelSize: RThemeValues.fontSizeL
            elide: Text.ElideRight
            verticalAlignment: Text.AlignVCenter
        }
        RText {
            anchors.left: words.right
            anchors.leftMargin: 4 * RThemeValues.unit
            height: row.height
            visible: root.modified && !editor.visible
            text: "•"
            font.pixelSize: RThemeValues.fontSizeL
            verticalAlignment: Text.AlignVCenter
        }
        MouseArea {
            anchors.fill: parent
            onPressed: row.forceActiveFocus(Qt.MouseFocusReason)
            onDoubleClicked: root.editTitle()
        }
        RFocusRectangle {
            visible: row.activeFocus
        }
        RTextField {
            id: editor
            width: Math.min(row.width, Math.max(288 * RThemeValues.unit, words.implicitWidth + 16 * RThemeValues.unit))
            height: row.height
            visible: false
            label: qsTr("title")
            value: root.title
            onValueCommitted: value => {
                pendingTitle.show(value)
                root.titleEdited(value)
                pendingTitle.commit()
                root.endEdit()
            }
            onEditCanceled: root.endEdit()
            onActiveFocusChanged: {
                if (!editor.activeFocus)
                    root.endEdit()
            }
            Keys.onReturnPressed: root.endEdit()
            Keys.onEnterPressed: root.endEdit()
            Keys.onEscapePressed: root.endEdit()
        }
    }
    Item {
        id: body
        y: row.height
        width: root.width
        height: root.height - row.height
        clip: true
    }
    Binding {
        target: root.workspace
        property: "width"
        value: body.width
        when: root.workspace !== null && root.workspace.parent === body
    }
    Binding {
        target: root.workspace
        property: "height"
        value: body.height
        when: root.workspace !== null && root.workspace.parent === body
    }
    RWorkspaceZoomBar {
        anchors.right: parent.right
        anchors.bottom: parent.bottom
        anchors.margins: 16 * RThemeValues.unit
        visible: root.zoomBarVisible
        workspace: root.workspace
    }
}
