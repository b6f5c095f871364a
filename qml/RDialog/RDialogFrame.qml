import QtQuick
import QtQuick.Templates as T
import TambleClient.Control 1.0
import "../Shared" as Shared

/*! What a dialog shows: header, scrolled body, buttons, border and shadow. */
Rectangle {
    id: root

    RStyleSet.typeName: "RDialog"

    /*! The dialog that is shown. */
    required property RDialogBase dialog

    /*! Where the body is seen, which may scroll there. */
    readonly property alias view: view

    readonly property real pad: 16 * RThemeValues.unit
    readonly property real wantedWidth: Math.max(400 * RThemeValues.unit, header.implicitWidth, footer.implicitWidth, root.dialog.body.implicitWidth + 2 * root.pad)
    readonly property real wantedHeight: header.height + footer.height + root.dialog.body.implicitHeight + root.pad + root.lowerPad
    /*! Below the body; the buttons bring their own. */
    readonly property real lowerPad: footer.height > 0 ? 0 : root.pad

    implicitWidth: Math.ceil(Math.min(root.wantedWidth, root.dialog.maximumWidth))
    implicitHeight: Math.ceil(Math.min(root.wantedHeight, root.dialog.maximumHeight))
    color: root.dialog.ssBackground

    Component.onCompleted: root.dialog.takeParts(root, header, place, footer.standardBox, footer.furtherRow)

    RBoxShadow {}
    Flickable {
        id: view
        y: header.height
        width: root.width
        height: root.height - header.height - footer.height
        // What cannot be narrower than the window lets it be is reached all the same.
        contentWidth: Math.max(view.width, root.dialog.body.reach + 2 * root.pad)
        contentHeight: place.height + root.pad + root.lowerPad
        interactive: view.contentHeight > view.height || view.contentWidth > view.width
        boundsBehavior: Flickable.StopAtBounds
        clip: view.interactive
        enabled: !root.dialog.busy

        T.ScrollBar.vertical: bars.vertical
        T.ScrollBar.horizontal: bars.horizontal

        Item {
            id: place
            x: root.pad
            y: root.pad
            width: view.width - 2 * root.pad
            height: Math.max(root.dialog.body.implicitHeight, view.height - root.pad - root.lowerPad)
        }
        Connections {
            target: root.dialog
            function onAreaFocused(area: rect) {
                const lowest = area.y + area.height + 2 * root.pad - view.height
                const rightmost = area.x + area.width + 2 * root.pad - view.width
                view.contentY = Math.max(0, Math.min(area.y, Math.max(view.contentY, lowest), view.contentHeight - view.height))
                view.contentX = Math.max(0, Math.min(area.x, Math.max(view.contentX, rightmost), view.contentWidth - view.width))
            }
            function onScrolled(lines: real) {
                view.contentY = Math.max(0, Math.min(view.contentHeight - view.height, view.contentY + 32 * RThemeValues.unit * lines))
            }
        }
    }
    // Nearly all dialogs show what is in them at once.
    Loader {
        id: bars

        readonly property T.ScrollBar vertical: (bars.item as RDialogScrollBars)?.vertical ?? null
        readonly property T.ScrollBar horizontal: (bars.item as RDialogScrollBars)?.horizontal ?? null

        anchors.fill: view
        active: view.interactive
        // qmllint disable unqualified
        sourceComponent: RDialogScrollBars {
            hasRoomBelow: footer.height > 0
        }
        // qmllint enable unqualified
    }
    RDialogFooter {
        id: footer
        y: root.height - height
        width: root.width
        dialog: root.dialog
        enabled: !root.dialog.busy
    }
    RDialogHeader {
        id: header
        width: root.width
        dialog: root.dialog
    }
    Rectangle {
        anchors.fill: parent
        color: "transparent"
        border.width: RThemeValues.unit
        border.color: root.dialog.ssBorderColor
    }
}
