import QtQuick
import QtQuick.Controls.Basic
import QtQuick.Layouts

/*! A line of a form: a caption, and what stands beside it. */
RowLayout {
    id: root

    property string title

    spacing: 12

    Label {
        Layout.preferredWidth: 84
        text: root.title
    }
}
