import QtQuick
import TambleClient.Control 1.0

/*! Bar at the top of the window: theme, zoom and the count of missing keys. What does not fit scrolls sideways. */
Item {
    id: root

    property bool menuVisible: false
    property alias themes: themeSwitch
    property alias missingKeys: missing

    signal menuRequested()

    implicitHeight: theme.dp(48)

    Surface {
        anchors.fill: parent
        RStyleSet.typeName: "RAppBar"
    }
    RButtonIcon {
        id: menu
        x: theme.dp(8)
        y: theme.dp(8)
        width: theme.dp(32)
        visible: root.menuVisible
        label: qsTr("Pages")
        iconItem.key: "menu"
        onClicked: root.menuRequested()
    }
    RText {
        id: caption
        x: root.menuVisible ? theme.dp(56) : theme.dp(24)
        height: root.height
        visible: caption.x + caption.implicitWidth + tools.implicitWidth + theme.dp(40) < root.width
        text: "TambleClient.Control"
        font.pixelSize: theme.fontSizeL
        font.bold: true
        verticalAlignment: Text.AlignVCenter
    }
    Flickable {
        x: Math.max(root.menuVisible ? theme.dp(48) : theme.dp(8), root.width - tools.width)
        width: root.width - x
        height: root.height
        contentWidth: tools.width
        flickableDirection: Flickable.HorizontalFlick
        boundsBehavior: Flickable.StopAtBounds
        clip: true

        Row {
            id: tools
            y: theme.dp(8)
            rightPadding: theme.dp(24)
            spacing: theme.dp(16)

            ThemeSwitch {
                id: themeSwitch
            }
            ZoomControl {}
            MissingKeys {
                id: missing
            }
        }
    }
    Divider {
        anchors.bottom: parent.bottom
        width: parent.width
    }
}
