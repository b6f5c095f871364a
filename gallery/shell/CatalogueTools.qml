import QtQuick
import Gallery
import TambleClient.Control 1.0

/*! Theme, zoom and the count of missing keys, at the right. What does not fit scrolls sideways. */
Flickable {
    id: root

    /*! What the style engine has reported. */
    property alias reports: missing.reports

    implicitHeight: theme.dp(48)
    contentWidth: Math.max(root.width, tools.width)
    flickableDirection: Flickable.HorizontalFlick
    boundsBehavior: Flickable.StopAtBounds
    clip: true

    Row {
        id: tools
        x: root.contentWidth - tools.width
        y: theme.dp(8)
        leftPadding: theme.dp(16)
        rightPadding: theme.dp(24)
        spacing: theme.dp(16)

        ThemeSwitch {}
        ZoomControl {}
        MissingKeys {
            id: missing
        }
    }
    FocusScroller {
        view: root
    }
}
