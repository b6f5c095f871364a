import QtQuick
import QtQuick.Controls.Basic
import QtQuick.Layouts

/*! A line of a form with a text field. */
FormLine {
    id: root

    property alias text: input.text
    property alias readOnly: input.readOnly
    property alias validator: input.validator

    /*! The user has entered a text that is valid. */
    signal edited(string text)

    TextField {
        id: input
        Layout.preferredWidth: 168
        Accessible.name: root.title
        onEditingFinished: root.edited(input.text)
    }
}
