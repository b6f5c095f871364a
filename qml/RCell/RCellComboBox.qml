import QtQuick
import TambleClient.Control 1.0

/*! Cell with one entry of a list. Enter and F2 open the list. */
RCell {
    id: root

    /*! Of the combo box: `model`, `textRole`, `valueRole`, `value`, `currentIndex`, `confirmed`, `consistent`. */
    property alias model: box.model
    property alias textRole: box.textRole
    property alias valueRole: box.valueRole
    property alias value: box.value
    property alias currentIndex: box.currentIndex
    property alias confirmed: box.confirmed
    property alias consistent: box.consistent

    /*! The user has chosen the entry of this value. */
    signal valueEdited(var value)

    /*! The text of the entry that is shown. */
    function cellText(): string {
        return box.shownText
    }
    /*! Chooses the entry of this text. */
    function takeText(text: string): string {
        const index = box.find(text)
        if (index < 0)
            return qsTr("There is no such entry")
        box.choose(index)
        return ""
    }

    control: box
    onActivated: {
        if (root.editing)
            box.open()
    }

    RComboBox {
        id: box
        readOnly: root.locked
        onValueEdited: value => root.valueEdited(value)
        onEditingChanged: {
            if (!box.editing)
                root.endEditing()
        }
    }
}
