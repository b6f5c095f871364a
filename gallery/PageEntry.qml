import QtQuick
import QtQuick.Templates as T

/*! A page's entry in the list of pages. */
T.ItemDelegate {
    id: root

    required property int index
    required property var modelData
    readonly property bool current: root.ListView.isCurrentItem

    width: ListView.view.width
    height: 36
    focusPolicy: Qt.NoFocus
    text: root.modelData.title
    Accessible.name: root.text
    Accessible.selected: root.current
    onClicked: {
        root.ListView.view.currentIndex = root.index
        root.ListView.view.forceActiveFocus(Qt.MouseFocusReason)
    }

    contentItem: GalleryText {
        leftPadding: 20
        verticalAlignment: Text.AlignVCenter
        text: root.text
        elide: Text.ElideRight
        color: root.current ? GalleryPalette.accent : GalleryPalette.text
        font.bold: root.current
    }
    background: Rectangle {
        color: root.current ? GalleryPalette.background : "transparent"
        border.width: root.current && root.ListView.view.activeFocus ? 1 : 0
        border.color: GalleryPalette.accent

        Rectangle {
            width: 4
            height: parent.height
            color: GalleryPalette.accent
            visible: root.current
        }
    }
}
