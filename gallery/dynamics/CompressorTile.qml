import QtQuick
import TambleClient.Control 1.0
import "ParameterText.js" as ParameterText

/*! A voice kept even. The meter in the panel shows the reduction without the make-up gain. */
DynamicsTile {
    id: root

    property real threshold: -4
    property real ratio: 3
    property real makeUpGain: 4

    title: "RCompressor"
    channel: 5
    points: panel.values
    parameters: [
        [qsTr("Threshold"), ParameterText.withUnit(panel.threshold, qsTr("dBu"))],
        [qsTr("Ratio"), qsTr("%1 : 1").arg(panel.ratio.toFixed(1))],
        [qsTr("Gain"), ParameterText.withUnit(panel.makeUpGain, qsTr("dB"))],
    ]

    RCompressor {
        id: panel
        anchors.fill: parent
        settleTime: root.settleTime
        calculatorActive: root.active
        compressorBypassed: root.bypassed
        levelVisible: true
        inputLevel: root.inputLevel
        softKneeActive: true
        gainReductionVisible: true
        gainReduction: panel.calculatorActive && !panel.compressorBypassed ? Math.max(0, root.makeUpGain - root.gain) : 0
        threshold: root.threshold
        ratio: root.ratio
        makeUpGain: root.makeUpGain
        onThresholdEdited: value => root.edit("threshold", value)
        onRatioEdited: value => root.edit("ratio", value)
        onMakeUpGainEdited: value => root.edit("makeUpGain", value)
    }
}
