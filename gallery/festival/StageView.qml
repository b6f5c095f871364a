import QtQuick
import Gallery
import TambleClient.Control 1.0

/*! The plan of the installation. */
RWorksheet {
    id: root

    readonly property StageModel stage: GalleryInstallation.stage
    readonly property RWorkspaceSelection selection: canvas.selection

    /*! Selects a block by its row and goes there; nothing for −1. */
    function show(row: int) {
        if (row < 0)
            return
        root.selection.selectIds([root.stage.idOf(row)])
        canvas.zoomToSelection()
    }
    function align(edge: int) {
        canvas.align(edge)
    }
    function distribute(orientation: int) {
        canvas.distribute(orientation)
    }

    title: qsTr("Festival ground")

    RWorkspace {
        id: canvas
        focus: true
        planeRect: root.stage.area
        minimumZoom: 0.1
        zoom: 0.5
        viewX: 120
        viewY: 280
        onItemsMoved: (before, after, cause) => root.stage.move(before, after, cause)

        Repeater {
            model: root.stage

            StageBlock {}
        }
    }
}
