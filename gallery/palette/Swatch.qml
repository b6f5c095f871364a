import QtQuick
import TambleClient.Control 1.0

/*! One key of a rule group with the value that the sheet in force gives it. */
Item {
    id: root

    required property string key
    /*! Item whose style set has the values. */
    required property Item reader

    /*! Text, and whether it is a flag's or a colour's; in one, since both change at once with the theme. */
    readonly property var value: {
        const props = root.reader.RStyleSet.props
        const text = props.isSet(root.key) ? props.string(root.key) : ""
        const isFlag = text === "true" || text === "false"
        return {
            text: text,
            isFlag: isFlag,
            isColor: text.length > 0 && !isFlag
        }
    }

    implicitHeight: theme.dp(24)

    // Shows through colours that are not opaque.
    // qmllint disable unqualified
    Repeater {
        model: ground.color.a < 1 && root.value.isColor ? 4 : 0

        Rectangle {
            required property int index

            x: index * theme.dp(10)
            y: theme.dp(index % 2 === 0 ? 2 : 12)
            width: theme.dp(10)
            height: theme.dp(10)
            color: ground.border.color
            Accessible.ignored: true
        }
    }
    // qmllint enable unqualified
    Rectangle {
        id: ground
        y: theme.dp(2)
        width: theme.dp(40)
        height: theme.dp(20)
        color: root.value.isColor ? root.value.text : "transparent"
        border.width: theme.dp(1)
        border.color: frame.RStyleSet.props.popupBorderColor
        Accessible.ignored: true

        Item {
            id: frame
            RStyleSet.typeName: "RPopupMenu"
        }
        RText {
            anchors.fill: parent
            visible: !root.value.isColor
            text: root.value.isFlag ? root.value.text : "\u2013"
            font.pixelSize: theme.fontSizeS
            horizontalAlignment: Text.AlignHCenter
            verticalAlignment: Text.AlignVCenter
        }
    }
    RText {
        x: theme.dp(48)
        width: root.width - x - number.width - theme.dp(8)
        height: root.height
        text: root.key
        elide: Text.ElideRight
        verticalAlignment: Text.AlignVCenter
    }
    RText {
        id: number
        anchors.right: parent.right
        height: root.height
        text: !root.value.isColor ? (root.value.isFlag ? qsTr("flag") : qsTr("not set")) : String(ground.color).toUpperCase()
        font.pixelSize: theme.fontSizeS
        verticalAlignment: Text.AlignVCenter
    }
}
