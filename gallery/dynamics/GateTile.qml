import QtQuick
import TambleClient.Control 1.0
import "ParameterText.js" as ParameterText

/*! A bass drum without what sounds between the beats. */
DynamicsTile {
    id: root

    property real threshold: -10
    property real depth: 30

    title: "RGate"
    channel: 0
    points: panel.points
    floorGain: -panel.depth
    gainRange: panel.depthMax
    parameters: [
        [qsTr("Threshold"), ParameterText.withUnit(panel.threshold, qsTr("dBu"))],
        [qsTr("Depth"), ParameterText.withUnit(panel.depth, qsTr("dB"))],
    ]

    RGate {
        id: panel
        anchors.fill: parent
        settleTime: root.settleTime
        calculatorActive: root.active
        gateBypassed: root.bypassed
        levelVisible: true
        inputLevel: root.inputLevel
        threshold: root.threshold
        depth: root.depth
        onThresholdEdited: value => root.edit("threshold", value)
        onDepthEdited: value => root.edit("depth", value)
    }
}
