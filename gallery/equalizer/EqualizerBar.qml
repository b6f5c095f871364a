import QtQuick
import TambleClient.Control 1.0

/*! Which channel is edited, what the plot shows, and undoing. */
Flow {
    id: root

    required property EqualizerStore store
    required property ResponsePlot plot

    spacing: theme.dp(16)

    RButtonRow {
        // qmllint disable unqualified
        Repeater {
            model: root.store.channels.length

            RButton {
                required property int index

                width: theme.dp(64)
                text: root.store.names[index]
                selected: root.store.channel === index
                onClicked: root.store.channel = index
            }
        }
        // qmllint enable unqualified
        RButton {
            width: theme.dp(64)
            text: qsTr("Overlay")
            selected: root.plot.showsOther
            onClicked: root.plot.showsOther = !root.plot.showsOther
        }
    }
    RButtonRow {
        RButton {
            width: theme.dp(80)
            text: qsTr("Magnitude")
            selected: !root.plot.showsPhase
            onClicked: root.plot.showsPhase = false
        }
        RButton {
            width: theme.dp(64)
            text: qsTr("Phase")
            selected: root.plot.showsPhase
            onClicked: root.plot.showsPhase = true
        }
        RButton {
            width: theme.dp(64)
            text: qsTr("Filters")
            selected: root.plot.showsFilters
            onClicked: root.plot.showsFilters = !root.plot.showsFilters
        }
    }
    RButtonRow {
        RButtonIcon {
            width: theme.dp(36)
            label: qsTr("Zoom out")
            iconItem.key: "zoom-out"
            onClicked: root.plot.zoomBoth(RBodeplotZoomEnum.ZOOM_OUT)
        }
        RButtonIcon {
            width: theme.dp(36)
            label: qsTr("Zoom in")
            iconItem.key: "zoom-in"
            onClicked: root.plot.zoomBoth(RBodeplotZoomEnum.ZOOM_IN)
        }
        RButtonIcon {
            width: theme.dp(36)
            label: qsTr("Whole range")
            iconItem.key: "zoom-fit"
            onClicked: root.plot.fit()
        }
    }
    RButtonRow {
        RButtonIcon {
            width: theme.dp(36)
            enabled: root.store.history.canUndo
            label: qsTr("Undo")
            iconItem.key: "undo"
            onClicked: root.store.history.undo()
        }
        RButtonIcon {
            width: theme.dp(36)
            enabled: root.store.history.canRedo
            label: qsTr("Redo")
            iconItem.key: "redo"
            onClicked: root.store.history.redo()
        }
        RButton {
            width: theme.dp(64)
            text: qsTr("Reset")
            onClicked: root.store.reset()
        }
    }
}
