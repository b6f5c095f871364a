import QtQuick
import QtQuick.Templates as T
import Gallery
import TambleClient.Control 1.0

/*! All amplifiers, searched and sorted while they change. */
Column {
    id: root

    readonly property var columns: Array.from([0.28, 0.28, 0.26, 0.18], part => Math.floor(part * root.width))

    width: parent?.width ?? 0
    spacing: theme.dp(8)

    RSortFilterProxyModel {
        id: rows
        sourceModel: GalleryInstallation.amplifiers
        filterRoleNames: ["name", "location", "ipAddress"]
        filterPattern: search.text
        filterSyntax: syntax.current
        sortRoleName: "name"
    }
    Flow {
        width: parent.width
        spacing: theme.dp(16)

        Row {
            spacing: theme.dp(8)

            RLabel {
                height: theme.dp(32)
                text: qsTr("&Search")
                buddy: search
            }
            RTextField {
                id: search
                width: theme.dp(176)
                errorText: rows.filterValid ? "" : qsTr("This is no pattern")
            }
        }
        RButtonRow {
            id: syntax

            property int current: RSortFilterProxyModel.FixedString

            // qmllint disable unqualified
            Repeater {
                model: [qsTr("Text"), qsTr("Wildcards"), qsTr("Expression")]

                RButton {
                    required property int index
                    required property string modelData

                    width: theme.dp(80)
                    text: modelData
                    selected: syntax.current === index
                    onClicked: syntax.current = index
                }
            }
            // qmllint enable unqualified
        }
        RButton {
            readonly property real rate: GalleryInstallation.behaviour.readingsPerMinute

            width: theme.dp(144)
            text: qsTr("Temperatures change")
            selected: rate > 0
            onClicked: GalleryInstallation.behaviour.readingsPerMinute = rate > 0 ? 0 : 600
        }
    }
    Row {
        SortHeader {
            width: root.columns[0]
            text: qsTr("Name")
            model: rows
            role: "name"
        }
        SortHeader {
            width: root.columns[1]
            text: qsTr("Location")
            model: rows
            role: "location"
        }
        SortHeader {
            width: root.columns[2]
            text: qsTr("Address")
            model: rows
            role: "ipAddress"
        }
        SortHeader {
            width: root.columns[3]
            text: qsTr("°C")
            model: rows
            role: "temperature"
            numbers: true
        }
    }
    ListView {
        id: list
        width: parent.width
        height: theme.dp(240)
        clip: true
        boundsBehavior: Flickable.StopAtBounds
        activeFocusOnTab: true
        model: rows
        Accessible.role: Accessible.List
        Accessible.name: qsTr("Amplifiers")
        T.ScrollBar.vertical: ScrollHandle {}
        // qmllint disable unqualified
        delegate: AmplifierRow {
            columns: root.columns
        }
        // qmllint enable unqualified

        RFocusRectangle {
            visible: list.activeFocus
        }
    }
    RText {
        text: qsTr("%1 of %2 amplifiers").arg(rows.count).arg(GalleryInstallation.amplifiers.rowCount())
        Accessible.role: Accessible.StaticText
        Accessible.name: text
    }
}
