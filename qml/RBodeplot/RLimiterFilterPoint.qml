import QtQuick
import "../Shared"
import TambleClient.Control 1.0

/*! Handle of a limiter's threshold: a disc centred on its point. The curve that owns it moves it. */
RPlotHandle {
    id: root

    /*! For pages that treat all handles alike; `index`, `quality` and `frequency` are not shown. */
    property int index: 0
    property real quality: 0
    property real frequency: 0
    /*! The threshold, in dB. */
    property real gain: 0
    /*! Shows the threshold in the bubble, while it is being moved. */
    property bool showQuality: false

    discText: root.label
    valueText: isNaN(root.gain) ? "–" : qsTr("%1 dB").arg(root.gain.toFixed(1))
    bubbleText: root.valueText
    bubbleVisible: root.showQuality || root.dragging || root.activeFocus && root.keyFocus
    activeFocusOnTab: true
    Accessible.name: root.label !== "" ? qsTr("Threshold %1").arg(root.label) : qsTr("Threshold")
}
