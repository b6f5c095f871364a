import QtQuick
import QtQuick.Controls.Basic

/*! A heading, and the content that it opens and closes. */
Column {
    id: root

    property alias title: heading.text
    property string iconName
    property bool expanded: false
    default property alias content: place.data

    ItemDelegate {
        id: heading
        width: root.width
        height: 40
        onClicked: root.expanded = !root.expanded

        contentItem: Row {
            spacing: 8

            Image {
                anchors.verticalCenter: parent.verticalCenter
                source: root.expanded ? "qrc:/icons/chevron-down_16x16.png" : "qrc:/icons/chevron-right_16x16.png"
            }
            Image {
                anchors.verticalCenter: parent.verticalCenter
                source: root.iconName.length > 0 ? "qrc:/icons/%1_24x24.png".arg(root.iconName) : ""
            }
            Label {
                anchors.verticalCenter: parent.verticalCenter
                text: root.title
            }
        }
        background: Rectangle {
            color: heading.down ? heading.palette.mid : heading.palette.midlight
        }
    }
    Column {
        id: place
        width: root.width
        visible: root.expanded
        topPadding: 8
        bottomPadding: 8
    }
}
