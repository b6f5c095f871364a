import QtQuick
import QtQuick.Templates as T
import TambleClient.Control 1.0

/*! Push button with a text. `selected` and `consistent` are the page's to set; a click only emits `clicked`. */
T.AbstractButton {
    id: root

    RStyleSet.typeName: "RButton"

    property bool selectable: false
    property bool selected: false
    /*! False while several devices differ in what the button stands for. */
    property bool consistent: true
    property bool active: false
    property bool useCustomEvent: false

    /*! Turns a device's value into the text of the button. */
    property RValueConverter converter: null
    property string value: root.converter ? root.converter.displayText : ""

    property alias label: root.text
    property alias textControl: textItem
    property alias textColor: textItem.color
    property alias horizontalAlignment: textItem.horizontalAlignment
    property alias elide: textItem.elide
    property alias fontSize: textItem.font.pixelSize
    property alias line: bar
    readonly property real implicitTextWidth: textItem.implicitWidth

    property color ssBackground: root.RStyleSet.props.color("background")
    property color ssColor: root.RStyleSet.props.color("foreground")
    property color ssLineColor: root.RStyleSet.props.color("line")
    property bool ssLineVisible: root.RStyleSet.props.boolean("line-visible")

    signal customEventActivated()

    RStyleSet.stateHelper.hovered: root.hovered
    RStyleSet.stateHelper.pressed: root.down
    RStyleSet.stateHelper.disabled: !root.enabled
    RStyleSet.stateHelper.selected: root.consistent && root.selected
    RStyleSet.stateHelper.inconsistent: !root.consistent
    RStyleSet.stateHelper.focus: root.activeFocus
    RStyleSet.stateHelper.active: root.active

    implicitWidth: theme.dp(144)
    implicitHeight: theme.dp(32)
    hoverEnabled: theme.hoverEnabled
    focusPolicy: Qt.StrongFocus
    Accessible.name: root.text
    onValueChanged: root.text = root.value

    contentItem: RText { // qmllint disable deferred-property-id
        id: textItem
        leftPadding: theme.dp(4)
        rightPadding: theme.dp(4)
        text: root.text
        color: root.ssColor
        elide: Text.ElideRight
        horizontalAlignment: Text.AlignHCenter
        verticalAlignment: Text.AlignVCenter
    }
    background: Rectangle { // qmllint disable deferred-property-id
        color: root.ssBackground

        Rectangle {
            id: bar

            readonly property bool sideways: Math.abs(root.rotation) === 90

            anchors.bottom: parent.bottom
            width: bar.sideways ? theme.dp(4) : parent.width
            height: bar.sideways ? parent.height : theme.dp(4)
            visible: root.ssLineVisible && (bar.sideways || root.rotation === 0)
            color: root.ssLineColor
        }
        Loader {
            anchors.fill: parent
            active: root.activeFocus
            sourceComponent: RFocusRectangle {}
        }
    }
}
