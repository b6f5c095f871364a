import QtQuick
import TambleClient.Control 1.0

/*! Buttons whose parts have an order, as written from left to right or, with `mirrored`, from right to left. */
RButtonRow {
    id: root

    property bool mirrored: false

    LayoutMirroring.enabled: root.mirrored
    LayoutMirroring.childrenInherit: true

    RButtonIconLabelH {
        width: theme.dp(112)
        text: qsTr("First")
        iconItem.key: "home"
        selected: true
    }
    RButtonIconLabelH {
        width: theme.dp(112)
        text: qsTr("Second")
        iconItem.key: "settings"
    }
    RButtonSwitch {
        label: root.mirrored ? qsTr("Mirrored, off") : qsTr("Off")
        width: theme.dp(64)
    }
    RButtonSwitch {
        label: root.mirrored ? qsTr("Mirrored, on") : qsTr("On")
        width: theme.dp(64)
        selected: true
    }
}
