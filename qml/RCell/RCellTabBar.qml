import QtQuick
import TambleClient.Control 1.0

/*! Cell with a row of tabs of equal widths, which scrolls when they get narrow. A chosen tab is told by `activated`. */
RCell {
    id: root

    /*! The tabs: texts, or objects of `text`, `iconKey` and `enabled`. */
    property var model: []
    /*! How many tabs there are. */
    readonly property int tabCount: root.model?.length ?? root.model?.count ?? root.model ?? 0
    /*! The chosen tab; 0 by default. */
    property int currentIndex: 0

    control: bar

    RTabBarTemplate {
        id: bar

        // qmllint disable unqualified
        contentItem: ListView { // qmllint disable deferred-property-id
            id: list

            readonly property real tabWidth: Math.max(64 * RThemeValues.unit, (list.width - (root.tabCount - 1) * list.spacing) / Math.max(1, root.tabCount))

            focus: true
            model: root.model
            orientation: ListView.Horizontal
            spacing: RThemeValues.gap
            boundsBehavior: Flickable.StopAtBounds
            keyNavigationEnabled: false
            // A key finds all of them.
            cacheBuffer: 64 * list.tabWidth
            clip: true

            delegate: RCellTabButton {
                id: tab

                required property int index
                required property var modelData

                width: list.tabWidth
                height: list.height
                text: tab.modelData.text ?? tab.modelData
                iconKey: tab.modelData.iconKey ?? ""
                enabled: (tab.modelData.enabled ?? true) && !root.locked
                selected: root.currentIndex === tab.index
                focus: tab.selected
                onActiveFocusChanged: {
                    if (tab.activeFocus)
                        list.positionViewAtIndex(tab.index, ListView.Contain)
                }
                onClicked: {
                    if (tab.selected)
                        return
                    choice.show(tab.index)
                    root.activated(tab.index)
                    choice.commit()
                }
            }
        }
        // qmllint enable unqualified
    }
    RPendingValue {
        id: choice
        target: root
        name: "currentIndex"
    }
}
