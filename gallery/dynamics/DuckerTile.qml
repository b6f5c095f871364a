import QtQuick
import TambleClient.Control 1.0
import "ParameterText.js" as ParameterText

/*! A signal lowered while it is loud. */
DynamicsTile {
    id: root

    property real threshold: 0
    property real duckingLevel: 15

    title: "RDucker"
    channel: 8
    points: panel.values
    floorGain: -panel.duckingLevel
    gainRange: panel.duckingLevelMax
    parameters: [
        [qsTr("Threshold"), ParameterText.withUnit(panel.threshold, qsTr("dBu"))],
        [qsTr("Ducking"), ParameterText.withUnit(panel.duckingLevel, qsTr("dB"))],
    ]

    RDucker {
        id: panel
        anchors.fill: parent
        settleTime: root.settleTime
        calculatorActive: root.active
        duckerBypassed: root.bypassed
        levelVisible: true
        inputLevel: root.inputLevel
        threshold: root.threshold
        duckingLevel: root.duckingLevel
        onThresholdEdited: value => root.edit("threshold", value)
        onDuckingLevelEdited: value => root.edit("duckingLevel", value)
    }
}
