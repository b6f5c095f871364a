import QtQuick
import TambleClient.Control 1.0

/*! Shows and sets the zoom of a workspace: smaller, a slider, larger, the percentage with a menu, and all of it. One
    stop of the Tab key, where the arrows zoom, and Space or Enter opens the menu, which has all that the buttons do. */
RToolBarTemplate {
    id: root

    RStyleSet.typeName: "RFlyoutToolbar"

    /*! The workspace; without one all is disabled. */
    property RWorkspaceBase workspace: null

    property color ssBackground: root.RStyleSet.props.background
    property color ssBorderColor: root.RStyleSet.props.border
    property color ssShadow: root.RStyleSet.props.shadow

    /*! Factors in the menu, in percent. */
    readonly property var percentages: [25, 50, 75, 100, 150, 200]
    /*! Edge length of a button, in pixels. */
    readonly property real buttonSize: 32 * RThemeValues.unit

    RStyleSet.stateHelper.disabled: !root.enabled

    implicitWidth: 200 * RThemeValues.unit
    implicitHeight: root.buttonSize
    Accessible.name: qsTr("zoom")

    background: Rectangle { // qmllint disable deferred-property-id
        color: root.ssBackground

        RBoxShadow {
            ssShadow: root.ssShadow
        }
        Rectangle {
            anchors.fill: parent
            anchors.margins: -border.width
            z: 1
            color: "transparent"
            border.width: RThemeValues.unit
            border.color: root.ssBorderColor
        }
    }
    contentItem: Row { // qmllint disable deferred-property-id
        enabled: root.workspace !== null

        RFlyoutToolbarItem {
            width: root.buttonSize
            height: root.height
            label: qsTr("zoom out")
            iconKey: "minus"
            // The slider's keys do the same.
            focusPolicy: Qt.NoFocus
            onClicked: slider.step(-1)
        }
        RWorkspaceZoomSlider {
            id: slider
            width: root.width - 3 * root.buttonSize - percentage.width
            height: root.height
            workspace: root.workspace
            Keys.onSpacePressed: percentage.toggleFlyout()
            Keys.onReturnPressed: percentage.toggleFlyout()
            Keys.onEnterPressed: percentage.toggleFlyout()
        }
        RFlyoutToolbarItem {
            width: root.buttonSize
            height: root.height
            label: qsTr("zoom in")
            iconKey: "plus"
            focusPolicy: Qt.NoFocus
            onClicked: slider.step(1)
        }
        RFlyoutToolbarItem {
            id: percentage
            width: 48 * RThemeValues.unit
            height: root.height
            label: qsTr("zoom factor")
            focusPolicy: Qt.NoFocus
            text: qsTr("%1 %").arg(slider.percent)
            flyout: RMenu {
                model: root.percentages.map(percent => ({ text: qsTr("%1 %").arg(percent), percent: percent })).concat([{ separator: true }, { text: qsTr("Fit all"), fit: "all" }, { text: qsTr("Fit selection"), fit: "selection", enabled: root.workspace !== null && !root.workspace.selection.empty }])
                onItemTriggered: (index, entry) => {
                    if (entry.fit === "all")
                        root.workspace.zoomToFit()
                    else if (entry.fit === "selection")
                        root.workspace.zoomToSelection()
                    else
                        slider.zoomTo(entry.percent / 100)
                }
            }
        }
        RFlyoutToolbarItem {
            width: root.buttonSize
            height: root.height
            label: qsTr("fit all")
            focusPolicy: Qt.NoFocus
            iconKey: "zoom-fit"
            onClicked: root.workspace.zoomToFit()
        }
    }
}
