import QtQuick
import QtQuick.Templates as T
import TambleClient.Control 1.0

/*! Counts what the style engine reports; a click shows the reports. */
RButton {
    id: root

    /*! Each report once. */
    required property var reports

    RStyleSet.name: root.reports.length > 0 ? "red" : ""
    width: theme.dp(128)
    text: qsTr("Missing keys: %1").arg(root.reports.length)
    onClicked: popup.visible = !popup.visible

    T.Popup {
        id: popup
        x: root.width - popup.width
        y: root.height + theme.dp(8)
        width: theme.dp(480)
        height: Math.min(theme.dp(320), message.implicitHeight + theme.dp(32))
        margins: theme.dp(8)
        closePolicy: T.Popup.CloseOnEscape | T.Popup.CloseOnPressOutsideParent
        focus: true

        contentItem: Surface { // qmllint disable deferred-property-id
            RStyleSet.typeName: "RFlyoutWindow"

            RBoxShadow {}

            Flickable {
                anchors.fill: parent
                anchors.margins: theme.dp(16)
                contentHeight: message.implicitHeight
                clip: true

                RText {
                    id: message
                    width: parent.width
                    text: root.reports.length > 0 ? root.reports.join("\n\n") : qsTr("Every key that a control has read so far is set.")
                    wrapMode: Text.Wrap
                }
            }
        }
    }
}
