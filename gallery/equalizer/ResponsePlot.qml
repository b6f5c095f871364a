import QtQuick
import Gallery
import TambleClient.Control 1.0

/*! The response of both channels, and what the filters are measured to do with the signal. */
RBodeplot {
    id: root

    required property EqualizerStore store
    /*! Points in Hz and dB; one without a level is a gap. */
    property var measured: []
    property bool showsPhase: false
    property bool showsOther: true
    property bool showsFilters: false

    property real levelBound: 20

    /*! The whole range of frequencies and the usual one of levels. */
    function fit() {
        root.xMinimum = 20
        root.xMaximum = 20000
        root.yMaximum = root.showsPhase ? 180 : 20
        root.yMinimum = -root.yMaximum
    }

    function zoomBoth(direction: int) {
        root.zoomXAxis(direction)
        if (!root.showsPhase)
            root.zoomYAxis(direction)
    }

    label: root.showsPhase ? qsTr("Phase response") : qsTr("Frequency response")
    yMaximum: 20
    yMinimum: -20
    yIncrement: root.showsPhase ? 45 : root.yMaximum > 25 ? 10 : 5
    xAxisTickValues: [20, 50, 100, 200, 500, 1000, 2000, 5000, 10000]
    wheelZooms: true
    onShowsPhaseChanged: {
        const bound = root.yMaximum
        root.setMinYAxis(root.showsPhase ? 180 : 12.5)
        root.setMaxYAxis(root.showsPhase ? 180 : 40)
        root.yMaximum = root.showsPhase ? 180 : root.levelBound
        root.yMinimum = -root.yMaximum
        if (root.showsPhase)
            root.levelBound = bound
    }
    // Its first step inwards only measures.
    Component.onCompleted: root.zoomXAxis(RBodeplotZoomEnum.ZOOM_OUT)

    RSimpleCurve {
        z: 2
        points: root.measured
        hidden: root.showsPhase
        lineWidth: theme.dp(2)
    }
    // qmllint disable unqualified
    Repeater {
        model: root.store.channels.length

        ChannelCurve {
            required property int index

            store: root.store
            channel: index
            visible: edited || root.showsOther
            hideIndividualCurves: !edited || !root.showsFilters
            spectrum: root.showsPhase ? RBodeplotSpectrumEnum.PHASE : RBodeplotSpectrumEnum.MAGNITUDE
            samplerate: FilterSections.sampleRate
        }
    }
    // qmllint enable unqualified
}
