import QtQuick
import QtQuick.Layouts
import Gallery
import TambleClient.Control 1.0
import "../palette/ThemeGroups.js" as ThemeGroups

GalleryPage {
    id: root

    readonly property int columnCount: Math.max(1, Math.floor((root.width - theme.dp(32)) / theme.dp(304)))

    /*! The groups dealt out to the columns in order, each to the column that is shortest by then. */
    function columns(count: int): var {
        const lists = Array.from({
            length: count
        }, () => [])
        const heights = new Array(count).fill(0)
        for (const group of ThemeGroups.groups) {
            const shortest = heights.indexOf(Math.min(...heights))
            lists[shortest].push(group)
            heights[shortest] += 4 + group.keys.length
        }
        return lists
    }

    description: qsTr("What the sheet of the theme \"%1\" gives to each type of control without a state or a class.").arg(theme.stylesheet)

    RowLayout {
        spacing: theme.dp(16)

        Repeater {
            model: root.columns(root.columnCount)

            ColumnLayout {
                id: column

                required property var modelData

                Layout.fillWidth: true
                Layout.fillHeight: false
                Layout.preferredWidth: 1
                Layout.alignment: Qt.AlignTop
                spacing: theme.dp(16)

                Repeater {
                    model: column.modelData

                    ThemeGroup {
                        required property var modelData

                        title: modelData.name
                        keys: modelData.keys
                    }
                }
            }
        }
    }
}
