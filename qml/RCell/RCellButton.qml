import QtQuick
import TambleClient.Control 1.0

/*! Cell with a button. A crosspoint of a matrix is one of the `styleName` "crossPoint": selected where it is routed, active
    where there is signal. Copied, a selectable one is 1 or 0. */
RCell {
    id: root

    /*! Of the button: `text`, `selectable`, `selected`, `settleTime`, `consistent`, `active`, `converter`. */
    property alias text: button.text
    property alias selectable: button.selectable
    property alias selected: button.selected
    property alias settleTime: button.settleTime
    property alias consistent: button.consistent
    property alias active: button.active
    property alias converter: button.converter
    /*! Class words of the button, such as "crossPoint". */
    property string styleName: ""
    /*! Name of an icon that is shown in place of the text. */
    property string iconKey: ""

    /*! The button was clicked. */
    signal clicked
    /*! A click has edited the selection; sent before clicked(). */
    signal selectionEdited(bool selected)

    /*! 1 or 0 of a button that can be selected, else its text. */
    function cellText(): string {
        return !button.selectable ? button.plainText : !button.consistent ? "" : button.selected ? "1" : "0"
    }
    /*! Selects for 1 and does the opposite for 0. */
    function takeText(text: string): string {
        if (!button.selectable)
            return qsTr("A button takes no text")
        if (text !== "0" && text !== "1")
            return qsTr("Only 0 and 1 are taken here")
        button.editSelection(text === "1")
        return ""
    }

    control: button

    RButton {
        id: button
        RStyleSet.name: root.styleName
        onSelectionEdited: selected => root.selectionEdited(selected)
        onClicked: {
            root.clicked()
            root.activated(-1)
        }
    }
    Loader {
        anchors.centerIn: parent
        active: root.iconKey.length > 0
        // qmllint disable unqualified
        sourceComponent: RIcon {
            key: root.iconKey
            ssIconForeground: button.ssColor
        }
        // qmllint enable unqualified
    }
}
