import QtQuick
import QtQuick.Templates as T
import TambleClient.Control 1.0

/*! A page's entry in the list of pages. */
T.ItemDelegate {
    id: root

    required property int index
    required property var modelData
    readonly property bool current: root.ListView.isCurrentItem

    property color ssBackground: root.RStyleSet.props.background
    property color ssColor: root.RStyleSet.props.foreground
    property color ssLineColor: root.RStyleSet.props.line
    property bool ssLineVisible: root.RStyleSet.props.lineVisible

    RStyleSet.typeName: "RAppBarNavButton"
    RStyleSet.stateHelper.hovered: root.hovered
    RStyleSet.stateHelper.selected: root.current

    width: ListView.view.width
    height: theme.dp(40)
    focusPolicy: Qt.NoFocus
    hoverEnabled: theme.hoverEnabled
    text: root.modelData.title
    Accessible.name: root.text
    Accessible.selected: root.current
    onClicked: root.ListView.view.forceActiveFocus(Qt.MouseFocusReason)

    contentItem: RText {
        leftPadding: theme.dp(24)
        rightPadding: theme.dp(8)
        verticalAlignment: Text.AlignVCenter
        text: root.text
        elide: Text.ElideRight
        color: root.ssColor
        font.pixelSize: theme.fontSizeL
        font.bold: root.current
    }
    background: Rectangle {
        color: root.ssBackground

        Rectangle {
            width: theme.dp(4)
            height: parent.height
            color: root.ssLineColor
            visible: root.ssLineVisible
        }
        RFocusRectangle {
            visible: root.current && root.ListView.view.activeFocus
        }
    }
}
