import QtQuick
import TambleClient.Control 1.0
import "ParameterText.js" as ParameterText

/*! Gain that follows the noise in a lobby. */
DynamicsTile {
    id: root

    property real ambientThreshold: -20
    property real minimumGain: -10
    property real maximumGain: 10
    property real ratio: 1

    title: "RANC"
    channel: 9
    points: panel.values
    gainCurve: true
    inputTitle: qsTr("Noise")
    release: 1000
    parameters: [
        [qsTr("Threshold"), ParameterText.withUnit(panel.ambientThreshold, qsTr("dBu"))],
        [qsTr("Minimum"), ParameterText.withUnit(panel.minimumGain, qsTr("dB"))],
        [qsTr("Maximum"), ParameterText.withUnit(panel.maximumGain, qsTr("dB"))],
        [qsTr("Ratio"), ParameterText.withUnit(panel.ratio, qsTr("dB/dB"))],
    ]

    RANC {
        id: panel
        anchors.fill: parent
        settleTime: root.settleTime
        calculatorActive: root.active
        ancBypassed: root.bypassed
        levelVisible: true
        inputLevel: root.inputLevel
        freezeGain: false
        ambientMeterVisible: true
        ambientLevel: root.inputLevel
        ambientThreshold: root.ambientThreshold
        minimumGain: root.minimumGain
        maximumGain: root.maximumGain
        ratio: root.ratio
        onAmbientThresholdEdited: value => root.edit("ambientThreshold", value)
        onMinimumGainEdited: value => root.edit("minimumGain", value)
        onMaximumGainEdited: value => root.edit("maximumGain", value)
        onRatioEdited: value => root.edit("ratio", value)
    }
}
