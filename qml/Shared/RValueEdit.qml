import QtQuick

/*! Shows an edited value on a control for a while, whether or not the page binds the control's property: the binding
    steps back while the edit is active and is read again when it ends; a property without one keeps the edited value. */
Item {
    id: root

    required property QtObject target
    /*! The property of `target` that is edited. */
    property string name: "value"
    property var editValue
    property bool active: false
    /*! How long, in ms, an edit is shown before the bound value counts again: devices answer late. */
    property int settleTime: 300

    property var valueAtBegin

    function begin(value: var) {
        settle.stop()
        root.valueAtBegin = root.target[root.name]
        root.editValue = value
        root.active = true
    }

    function update(value: var) {
        root.editValue = value
    }

    function commit() {
        settle.restart()
    }

    function cancel() {
        settle.stop()
        root.editValue = root.valueAtBegin
        root.active = false
    }

    visible: false

    Binding {
        target: root.target
        property: root.name
        value: root.editValue
        when: root.active
        restoreMode: Binding.RestoreBinding
    }
    Timer {
        id: settle
        interval: root.settleTime
        onTriggered: root.active = false
    }
}
