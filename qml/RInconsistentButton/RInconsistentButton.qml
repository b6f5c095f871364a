import QtQuick
import TambleClient.Control 1.0

/*! Button that, while several devices differ, asks whether to set all on or off. It sets nothing
    itself, unless it is selectable: the page answers clickedOn and clickedOff. */
RButton {
    id: root

    /*! Tells tests of pages what kind of item this is. */
    readonly property string test_key: "control"
    /*! The choices: `textOn` and `textOff`. */
    property string textOn: qsTr("ON")
    property string textOff: qsTr("OFF")
    /*! Where the question opens: `openAbove` above the button, `openLeft` at its left; else below. */
    property bool openAbove: false
    property bool openLeft: false
    /*! Puts the choices side by side. */
    property bool horizontalText: false

    /*! Made when the question is first asked. */
    property RPopupTemplate popup: null

    /*! The user wants the devices on (`clickedOn`) or off (`clickedOff`). */
    signal clickedOn()
    signal clickedOff()

    asksWhenMixed: true
    enterClicks: true
    onClicked: {
        if (!root.consistent) {
            if (!root.popup)
                root.popup = popupComponent.createObject(root) as RPopupTemplate
            root.popup.visible = !root.popup.visible
        } else if (root.selected === root.selectable) { // a selectable button has been turned over by the click
            root.clickedOn()
        } else {
            root.clickedOff()
        }
    }

    // qmllint disable unqualified
    Component {
        id: popupComponent
        RInconsistentPopup {
            textOn: root.textOn
            textOff: root.textOff
            openAbove: root.openAbove
            openLeft: root.openLeft
            horizontalText: root.horizontalText
            onClickedOn: root.clickedOn()
            onClickedOff: root.clickedOff()
        }
    }
    // qmllint enable unqualified
}
