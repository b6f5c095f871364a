import QtQuick
import TambleClient.Control 1.0
import "EqualizerEdits.js" as Edits

/*! The filters of a channel in a plot: with handles while it is the channel that is edited, as a line otherwise. */
RBodeplotCurve {
    id: root

    required property EqualizerStore store
    required property int channel
    readonly property bool edited: root.store.channel === root.channel
    readonly property var bands: root.store.channels[root.channel]

    function showSelection() {
        root.selectFilterPointBySystem(root.edited ? root.store.selected : -1)
    }

    z: root.edited ? 1 : 0
    // No device confirms a drag late here, but an undone one is to be seen soon.
    settleTime: 50
    hidePoints: !root.edited || root.spectrum === RBodeplotSpectrumEnum.PHASE
    Accessible.name: qsTr("Filters of channel %1").arg(root.channel + 1)
    style: QtObject {
        readonly property color aggregatedCurveColor: root.edited ? root.ssAggregatedCurve : root.ssIndividualCurve
        readonly property color aggregatedAreaColor: root.ssAggregatedArea
        readonly property color individualCurveColor: root.ssIndividualCurve
        readonly property color bypassCurveColor: root.ssBypassCurve
        readonly property color selectedCurveColor: root.ssSelectedCurve
        readonly property real aggregatedCurveLineWidth: theme.dp(root.edited ? 2 : 1)
        readonly property real individualCurveLineWidth: theme.dp(1)
        readonly property real bypassCurveLineWidth: theme.dp(1)
        readonly property real selectedCurveLineWidth: theme.dp(1)
        readonly property real areaSaturationNearAggregatedCurve: root.edited ? 0.35 : 0
        readonly property real areaSaturationNearxAchsis: root.edited ? 0.05 : 0
    }
    onPressedChanged: root.store.history.held = root.pressed
    onUserSelectedFilterPoint: (index, selectedIndex) => root.store.selected = selectedIndex
    onUserChangedFilterPoint: (index, type, frequency, gain, quality) => {
        root.store.selected = index
        root.store.edit(index, "drag", Edits.dragged(root.bands[index], type, frequency, gain, quality))
    }
    onEditedChanged: root.showSelection()
    Component.onCompleted: root.showSelection()

    Connections {
        target: root.store
        function onSelectedChanged() {
            if (!root.pressed)
                root.showSelection()
        }
    }

    calculationItems: [
        EqBand {
            band: root.bands[0]
        },
        EqBand {
            band: root.bands[1]
        },
        EqBand {
            band: root.bands[2]
        },
        EqBand {
            band: root.bands[3]
        },
        RBodeplotAsymmetricEqFilter {
            readonly property var band: root.bands[4]

            bypass: band.bypass
            type: RBodeplotEqTypeEnum.ASYMMETRIC
            freq: band.freq
            freq2: band.freq2
            gain: band.gain
            quality: band.quality
            quality2: band.quality2
            label: band.label
        },
        EqBand {
            band: root.bands[5]
        },
        EqBand {
            band: root.bands[6]
        },
        EqBand {
            band: root.bands[7]
        },
        CrossoverSide {
            band: root.bands[8]
        },
        CrossoverSide {
            band: root.bands[9]
        },
        RBodeplotFIRFilter {
            readonly property var band: root.bands[10]

            bypass: band.bypass
            type: band.type
            freqHP: band.freqHP
            freqLP: band.freqLP
            slope: band.slope
            labelHP: qsTr("FH")
            labelLP: qsTr("FL")
        }
    ]
}
