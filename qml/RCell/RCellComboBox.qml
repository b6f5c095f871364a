import QtQuick
import TambleClient.Control 1.0

/*! Cell with one entry of a list. Enter, F2, Space and the first letter of an entry open the list. */
RCell {
    id: root

    /*! Of the combo box: `model`, `textRole`, `valueRole`, `enabledRole`, `iconRole`, `value`, `currentIndex`,
        `placeholderText`, `unknownText`, `confirmed`, `consistent`, `settleTime`. */
    property alias model: box.model
    property alias textRole: box.textRole
    property alias valueRole: box.valueRole
    property alias enabledRole: box.enabledRole
    property alias iconRole: box.iconRole
    property alias value: box.value
    property alias currentIndex: box.currentIndex
    property alias placeholderText: box.placeholderText
    property alias unknownText: box.unknownText
    property alias confirmed: box.confirmed
    property alias consistent: box.consistent
    property alias settleTime: box.settleTime

    /*! The user has chosen the entry with this value. */
    signal valueEdited(var value)

    /*! The text of the chosen entry. */
    function cellText(): string {
        return box.mixed ? "" : box.displayText || box.otherText
    }
    /*! Chooses the entry with this text. */
    function takeText(text: string): string {
        return box.chooseText(text)
    }

    control: box
    onActivated: box.open()

    RComboBox {
        id: box
        opensByTyping: true
        readOnly: root.locked
        onValueEdited: value => root.valueEdited(value)
        onEditingChanged: {
            if (!box.editing)
                root.endEditing()
        }
    }
}
