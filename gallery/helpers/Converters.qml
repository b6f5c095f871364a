import QtQuick
import TambleClient.Control 1.0

/*! Converters of values to texts and back. */
Flow {
    id: root

    readonly property real sampleWidth: Math.floor((root.width - 2 * root.spacing) / 3)

    width: parent?.width ?? 0
    spacing: theme.dp(16)

    ConverterSample {
        width: root.sampleWidth
        title: qsTr("Gain, \"-inf\" at the bottom")
        value: -6.04
        converter: RDoubleValueConverter {
            unit: qsTr("dB")
            plusSign: true
            minimum: -80
            minimumText: "-inf"
        }
    }
    ConverterSample {
        width: root.sampleWidth
        title: qsTr("Frequency with kilo")
        value: 1250
        converter: RDoubleValueConverter {
            decimals: 0
            kilo: true
            unit: qsTr("Hz")
        }
    }
    ConverterSample {
        width: root.sampleWidth
        title: qsTr("Samples shown as ms")
        value: 480
        converter: RDoubleValueConverter {
            decimals: 3
            factor: 1 / 48
            unit: qsTr("ms")
        }
    }
    ConverterSample {
        width: root.sampleWidth
        title: qsTr("Temperature in Fahrenheit")
        value: 31.5
        converter: RDoubleValueConverter {
            factor: 1.8
            offset: 32
            unit: qsTr("°F")
        }
    }
    ConverterSample {
        width: root.sampleWidth
        title: qsTr("Words: Off, Slow, Fast")
        value: 1
        converter: RValueConverter {
            texts: ({ "0": qsTr("Off"), "1": qsTr("Slow"), "2": qsTr("Fast") })
        }
    }
    ConverterSample {
        width: root.sampleWidth
        title: qsTr("Not a number")
        value: NaN
        converter: RDoubleValueConverter {
            unit: qsTr("dB")
        }
    }
}
