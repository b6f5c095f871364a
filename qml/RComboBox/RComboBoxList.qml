import QtQuick
import "../Shared"
import TambleClient.Control 1.0

/*! What the popup of a combo box shows. */
Rectangle {
    id: root

    /*! The box whose entries are shown. */
    required property RComboBoxBase comboBox

    color: root.comboBox.ssPopupColor
    border.width: RThemeValues.unit
    border.color: root.comboBox.ssPopupBorderColor

    RBoxShadow {}
    ListView {
        id: list
        x: RThemeValues.unit
        y: list.x
        width: root.width - 2 * list.x
        height: root.height - 2 * list.y
        model: root.comboBox.entries
        currentIndex: -1
        clip: true
        reuseItems: true
        boundsBehavior: Flickable.StopAtBounds
        RScrollBarTemplate.vertical: RScrollBar {}

        Connections {
            target: root.comboBox
            function onHighlightMoved(index: int) {
                list.positionViewAtIndex(index, ListView.Contain)
            }
        }
    }
}
