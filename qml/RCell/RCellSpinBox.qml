import QtQuick
import TambleClient.Control 1.0

/*! Cell with a number. Its step buttons show while the cell is the current one. */
RCell {
    id: root

    /*! Of the spin box: `value`, `from`, `to`, `stepSize`, `decimals`, `suffix`, `converter`, `errorText`, `confirmed`,
        `consistent`, `settleTime`. */
    property alias value: box.value
    property alias from: box.from
    property alias to: box.to
    property alias stepSize: box.stepSize
    property alias decimals: box.decimals
    property alias suffix: box.suffix
    property alias converter: box.converter
    property alias errorText: box.errorText
    property alias confirmed: box.confirmed
    property alias consistent: box.consistent
    property alias settleTime: box.settleTime

    /*! The user has entered this, or made a step to it. */
    signal valueEdited(real value)
    /*! What the user entered, or the last step of a gesture. */
    signal valueCommitted(real value)
    /*! A step of a mixed box, in units of `stepSize`: the page moves each device from its own value. */
    signal stepped(real steps)

    /*! The number as it is shown, without what stands around it. */
    function cellText(): string {
        return box.text
    }
    /*! Enters a number as if it had been typed. */
    function takeText(text: string): string {
        return box.edit.enterText(text)
    }

    control: box

    RSpinBox {
        id: box
        buttonsVisible: root.current
        readOnly: root.locked
        onValueEdited: value => root.valueEdited(value)
        onValueCommitted: value => root.valueCommitted(value)
        onStepped: steps => root.stepped(steps)
    }
}
