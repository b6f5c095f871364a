import QtQuick
import TambleClient.Control 1.0

/*! Button of the second row, which chooses a page within the main page. A click emits `clicked`; the page sets
    `selected`. */
RAppBarNavButton {
    id: root

    RStyleSet.typeName: "RAppBarSubNavButton"

    forSubPage: true

    background: RControlBackground { // qmllint disable deferred-property-id
        color: root.ssBackground
        // Twice as wide with the focus, whose frame covers half of it.
        border.width: !root.ssBorderVisible ? 0 : root.RStyleSet.stateHelper.focus ? 2 * RThemeValues.unit : RThemeValues.unit
        border.color: root.ssBorderColor
        lineVisible: root.ssLineVisible
        focusVisible: root.RStyleSet.stateHelper.focus
    }
}
