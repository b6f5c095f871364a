import QtQuick
import TambleClient.Control 1.0

/*! Bar at the top of a window: buttons that lead, the main pages, what stands at the end, and a second row for the
    sub-pages of the chosen page, which shows while it has a visible child. */
RAppBarBase {
    id: root

    RStyleSet.typeName: "RAppBar"

    /*! The buttons of the main pages. */
    default property alias navigation: navigationItems.data
    /*! What stands before them (`leading`), at the end of the bar (`trailing`), and in the second row
        (`subNavigation`). */
    property alias leading: leadingItems.data
    property alias trailing: trailingItems.data
    property alias subNavigation: subItems.data
    /*! Shown where the buttons leave room, elided; the name of the bar for assistive tools. */
    property string title: ""

    property color ssBackground: root.RStyleSet.props.background

    /*! Pixels: the height of the first row (`rowHeight`), what is left beside the title (`gap`), and what stands still
        at the end of the row (`stillWidth`). */
    readonly property real rowHeight: 48 * RThemeValues.unit
    readonly property real gap: 16 * RThemeValues.unit
    readonly property real stillWidth: root.trailingStays ? trailingItems.width : 0

    leadingRow: leadingItems
    navigationRow: navigationItems
    trailingRow: trailingItems
    subRow: subItems
    unit: RThemeValues.unit

    implicitHeight: (root.subNavVisible ? 80 : 48) * RThemeValues.unit
    Accessible.name: root.title || qsTr("Main bar")

    background: Rectangle { // qmllint disable deferred-property-id
        color: root.ssBackground
    }
    contentItem: Item { // qmllint disable deferred-property-id
        id: rows
        LayoutMirroring.enabled: root.mirrored
        LayoutMirroring.childrenInherit: true

        RAppBarView {
            anchors.left: parent.left
            width: parent.width - root.stillWidth
            height: root.rowHeight
            contentWidth: root.wholeWidth - root.stillWidth
            ground: root.ssBackground

            Item {
                id: flicked
                width: root.wholeWidth - root.stillWidth
                height: root.rowHeight

                Row {
                    id: leadingItems
                    anchors.left: parent.left
                    height: parent.height
                    spacing: RThemeValues.gap
                }
                RAppBarView {
                    id: navigationView
                    anchors.left: leadingItems.right
                    width: root.navigationRoom
                    height: parent.height
                    contentWidth: navigationItems.implicitWidth
                    ground: root.ssBackground

                    Row {
                        id: navigationItems
                        height: root.rowHeight
                        spacing: RThemeValues.gap
                    }
                }
                RLabel {
                    RStyleSet.typeName: "RText"

                    anchors.left: navigationView.right
                    anchors.leftMargin: root.gap
                    anchors.right: parent.right
                    anchors.rightMargin: root.gap + (root.trailingStays ? 0 : trailingItems.width)
                    height: parent.height
                    visible: width > 2 * root.gap
                    text: root.title
                    font.pixelSize: RThemeValues.fontSizeL
                    horizontalAlignment: Text.AlignHCenter
                    Accessible.ignored: true
                }
            }
        }
        Row {
            id: trailingItems
            parent: root.trailingStays ? rows : flicked
            anchors.right: parent.right
            height: root.rowHeight
            spacing: RThemeValues.gap
        }
        Rectangle {
            id: subGround

            RStyleSet.typeName: "RAppBarSubNavRow"

            property color ssBackground: subGround.RStyleSet.props.background

            y: root.rowHeight
            width: parent.width
            height: root.subNavVisible ? 32 * RThemeValues.unit : 0
            color: subGround.ssBackground

            RAppBarView {
                anchors.fill: parent
                contentWidth: Math.max(parent.width, subItems.implicitWidth)
                ground: subGround.ssBackground

                Row {
                    id: subItems
                    anchors.left: parent.left
                    height: parent.height
                    spacing: RThemeValues.gap
                }
            }
        }
    }
}
