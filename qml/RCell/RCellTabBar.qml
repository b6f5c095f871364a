import QtQuick
import QtQuick.Templates as T
import TambleClient.Control 1.0

/*! Cell with a row of tabs of equal widths, which scrolls when they get narrow. A chosen tab is told by `activated`. */
RCell {
    id: root

    /*! The tabs: texts, or objects of `text`, `iconKey` and `enabled`. */
    property var model: []
    /*! The chosen tab. */
    property alias currentIndex: bar.currentIndex

    control: bar

    T.TabBar {
        id: bar

        readonly property real tabWidth: Math.max(64 * RThemeValues.unit, (bar.width - (bar.count - 1) * bar.spacing) / Math.max(1, bar.count))

        spacing: RThemeValues.unit
        contentItem: ListView { // qmllint disable deferred-property-id
            model: bar.contentModel
            currentIndex: bar.currentIndex
            orientation: ListView.Horizontal
            boundsBehavior: Flickable.StopAtBounds
            spacing: bar.spacing
            clip: true
        }

        // qmllint disable unqualified
        Repeater {
            model: root.model

            RCellTabButton {
                id: tab

                required property int index
                required property var modelData

                width: bar.tabWidth
                height: bar.height
                text: tab.modelData.text ?? tab.modelData
                iconKey: tab.modelData.iconKey ?? ""
                enabled: (tab.modelData.enabled ?? true) && !root.locked
                selected: bar.currentIndex === tab.index
                activeFocusOnTab: false
                onClicked: {
                    choice.show(tab.index)
                    choice.commit()
                    root.activated(tab.index)
                }
            }
        }
        // qmllint enable unqualified
    }
    RPendingValue {
        id: choice
        target: bar
        name: "currentIndex"
    }
}
