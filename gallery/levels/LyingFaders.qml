import QtQuick
import TambleClient.Control 1.0

/*! Lying faders: with their scales below and above, and without. */
Column {
    id: root

    spacing: theme.dp(24)

    RFader {
        width: root.width
        orientation: Qt.Horizontal
        label: qsTr("Lying")
        value: -20
    }
    RFader {
        width: root.width
        orientation: Qt.Horizontal
        label: qsTr("Lying, exponential")
        value: -6
        exponential: true
        scaleOnRight: true
    }
    RFader {
        RStyleSet.name: "red"
        width: root.width
        orientation: Qt.Horizontal
        label: qsTr("Lying, without a scale")
        value: -40
        showTicks: false
        showLabels: false
        trackIndicatorVisible: true
        trackIndicatorValue: -60
    }
}
