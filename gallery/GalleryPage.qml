import QtQuick

/*! Base of every page: a scrolling column of content below the title. */
Flickable {
    id: root

    property string description
    default property alias content: column.data

    contentWidth: width
    contentHeight: column.height + 2 * column.y
    boundsBehavior: Flickable.StopAtBounds
    clip: true
    activeFocusOnTab: contentHeight > height
    Accessible.role: Accessible.Pane
    Accessible.name: root.description

    Keys.onUpPressed: root.contentY = Math.max(0, root.contentY - 40)
    Keys.onDownPressed: root.contentY = Math.max(0, Math.min(root.contentHeight - root.height, root.contentY + 40))

    Column {
        id: column
        x: 24
        y: 20
        width: root.width - 48
        spacing: 20

        GalleryText {
            width: parent.width
            visible: root.description.length > 0
            text: root.description
            color: GalleryPalette.subtleText
            wrapMode: Text.WordWrap
            lineHeight: 1.2
        }
    }
}
