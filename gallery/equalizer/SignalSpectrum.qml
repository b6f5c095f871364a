import QtQuick
import Gallery
import TambleClient.Control 1.0

/*! The spectrum of the signal before and behind the filters, over the frequencies that the response shows. */
RBodeplot {
    id: root

    required property EqualizerStore store

    /*! Channels 6 and 7 of the built-in signal are its mixes. */
    readonly property int signalChannel: 6 + root.store.channel

    /*! How much louder each band is behind the filters, as points in Hz and dB. */
    readonly property var measured: root.gains(before.levels, after.levels)

    function bandFrequency(index: int): real {
        return 20 * Math.pow(1000, index / (before.levels.length - 1))
    }

    function curve(levels: var): var {
        return levels.map((level, i) => Qt.point(root.bandFrequency(i), level))
    }

    /*! A dash for each band, half as long as the band is wide; none where the signal is too quiet, or where the bands
        are narrower than what the analysis can tell apart. */
    function gains(before: var, after: var): var {
        const points = []
        for (let i = 0; i < before.length; ++i) {
            const frequency = root.bandFrequency(i)
            const gain = before[i] > -75 && frequency > 50 ? after[i] - before[i] : NaN
            points.push(Qt.point(frequency / 1.03, gain), Qt.point(frequency * 1.03, gain), Qt.point(frequency, NaN))
        }
        return points
    }

    label: qsTr("Spectrum of the signal")
    allowZoom: false
    dedicatedXAxisLine: false
    yMinimum: -90
    yMaximum: 0
    yIncrement: 30
    xAxisTickValues: [20, 50, 100, 200, 500, 1000, 2000, 5000, 10000]

    SpectrumTap {
        id: before
        channel: root.signalChannel
    }
    SpectrumTap {
        id: after
        channel: root.signalChannel
        sections: FilterSections.of(root.store.bands, FilterSections.sampleRate)
    }
    RSimpleCurve {
        points: root.curve(before.levels)
    }
    RSimpleCurve {
        points: root.curve(after.levels)
        selected: true
        lineWidth: theme.dp(1.5)
    }
}
