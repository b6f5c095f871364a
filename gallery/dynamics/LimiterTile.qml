import QtQuick
import TambleClient.Control 1.0
import "ParameterText.js" as ParameterText

/*! A mix under a ceiling. */
DynamicsTile {
    id: root

    property real threshold: 8

    title: "RLimiter"
    channel: 6
    points: panel.values
    parameters: [
        [qsTr("Threshold"), ParameterText.withUnit(panel.threshold, qsTr("dBu"))],
    ]

    RLimiter {
        id: panel
        anchors.fill: parent
        settleTime: root.settleTime
        calculatorActive: root.active
        limiterBypassed: root.bypassed
        levelVisible: true
        inputLevel: root.inputLevel
        threshold: root.threshold
        onThresholdEdited: value => root.edit("threshold", value)
    }
}
