import QtQuick
import TambleClient.Control 1.0

Item {
    id: root

    property int type: RBodeplotEqTypeEnum.EQ_NOTCH
    property point pointer: RMouseEventSpy.position
    property string decibels: converter.displayText

    RStyleSet.name: "red"
    RStyleSet.stateHelper.hovered: true
    Component.onCompleted: Qt.quit()

    RThemeSelector {
        themeComponent: Component {
            RTheme {}
        }
    }
    RDoubleValueConverter {
        id: converter
        value: -6.02
        unit: "dB"
    }
    RLimiterCalculator {
        id: limiter
        thresholdMin: -40
        threshold: -10
        limiterBypassed: false
    }
    RGraphPlotter {
        values: limiter.values
    }
    RTextFieldDoubleValidator {
        bottom: 0
    }
}
