import QtQuick
import "../Shared"
import TambleClient.Control 1.0

/*! Asks "on or off?" when several devices differ. It opens at its parent and is as wide.

    Keys: arrows and Tab go to the other choice, Space and Enter take it, Esc closes. */
RPopupBase {
    id: root

    /*! The choices: `textOn` and `textOff`. */
    property string textOn: qsTr("ON")
    property string textOff: qsTr("OFF")
    /*! Puts the choices side by side. */
    property bool horizontalText: false
    /*! Where it opens: `openAbove` above its parent, `openLeft` at its left; else below. */
    property bool openAbove: false
    property bool openLeft: false

    /*! The parent, if it is a button: the choice edits its selection. */
    readonly property RButtonBase button: root.parent as RButtonBase
    /*! Whether there is still something to ask: the devices may come to agree while the question stands. */
    readonly property bool asking: root.button === null || !root.button.consistent
    /*! Whether the parent's layout is mirrored, which swaps the sides. */
    readonly property bool parentMirrored: root.parent !== null && root.parent.LayoutMirroring.enabled
    /*! Whether the window has room below the parent; without it the popup opens above. */
    property bool roomBelow: true

    /*! The user has chosen on (`clickedOn`) or off (`clickedOff`). */
    signal clickedOn()
    signal clickedOff()

    x: !root.openLeft ? 0 : root.parentMirrored ? 128 * RThemeValues.unit : -128 * RThemeValues.unit
    y: root.openAbove || !root.roomBelow ? -root.height : root.openLeft || !root.parent ? 0 : root.parent.height
    width: root.parent ? root.parent.width : implicitWidth
    implicitWidth: 144 * RThemeValues.unit
    implicitHeight: (root.horizontalText ? 1 : 2) * (32 * RThemeValues.unit + RThemeValues.gap) + RThemeValues.gap
    padding: 0
    margins: 8 * RThemeValues.unit
    focus: true
    // A press on the parent is the parent's to answer.
    closePolicy: RPopupTemplate.CloseOnEscape | RPopupTemplate.CloseOnPressOutsideParent

    onAskingChanged: {
        if (!root.asking)
            root.close()
    }
    onAboutToShow: {
        const top = root.parent.mapToItem(null, 0, root.openLeft ? 0 : root.parent.height).y
        root.roomBelow = top + root.height + root.margins <= root.parent.Window.height
        on.forceActiveFocus(Qt.PopupFocusReason)
    }

    /*! Closes the popup with this choice. */
    function choose(selected: bool) {
        root.close()
        if (root.button)
            root.button.editSelection(selected)
        if (selected)
            root.clickedOn()
        else
            root.clickedOff()
    }

    contentItem: RPopupFrame { // qmllint disable deferred-property-id
        Accessible.role: Accessible.PopupMenu
        Accessible.name: qsTr("Set all to")

        Grid {
            id: choices

            readonly property real buttonWidth: (root.width - (choices.columns + 1) * choices.spacing) / choices.columns

            x: choices.spacing
            y: choices.spacing
            columns: root.horizontalText ? 2 : 1
            spacing: RThemeValues.gap
            layoutDirection: root.parentMirrored ? Qt.RightToLeft : Qt.LeftToRight

            RButton {
                id: on
                width: choices.buttonWidth
                text: root.textOn
                enterClicks: true
                focus: true
                KeyNavigation.up: off
                KeyNavigation.down: off
                KeyNavigation.left: off
                KeyNavigation.right: off
                KeyNavigation.tab: off
                KeyNavigation.backtab: off
                onClicked: root.choose(true)
            }
            RButton {
                id: off
                width: choices.buttonWidth
                text: root.textOff
                enterClicks: true
                KeyNavigation.up: on
                KeyNavigation.down: on
                KeyNavigation.left: on
                KeyNavigation.right: on
                KeyNavigation.tab: on
                KeyNavigation.backtab: on
                onClicked: root.choose(false)
            }
        }
    }
}
