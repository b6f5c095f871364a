import QtQuick
import Gallery
import TambleClient.Control 1.0

/*! The plan of the installation. */
RWorksheet {
    id: root

    property string name: qsTr("Festival ground")
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

    /*! Takes a name that was edited, undone or redone. */
    function reveal(name: var) {
        root.name = name
    }

    title: root.name
    onTitleEdited: title => GalleryInstallation.history.keep(root, root.name, title, qsTr("Plan renamed"), "name")
    // The installation keeps everything at once.
    onModifiedChanged: root.markSaved()

    RWorkspace {
        id: canvas
        focus: true
        planeRect: root.stage.area
        minimumZoom: 0.1
        zoom: 0.75
        viewX: 136
        viewY: 296
        onItemActivated: id => Festival.openDevice(root.stage.deviceOf(id))
        onItemsMoved: (before, after, cause) => root.stage.move(before, after, cause)

        Repeater {
            model: root.stage

            StageBlock {}
        }
    }
}
