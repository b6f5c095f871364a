import QtQuick
import TambleClient.Control 1.0

/*! Faders, meters and their scale. */
Flow {
    id: root

    Sample {
        name: "RFader"
        RFader { height: theme.dp(200); value: -12; label: "Input 1"; handleText: "IN 1" }
        RFader { height: theme.dp(200); jtSpread: true; value: -30; label: "Input 2"; trackIndicatorVisible: true; trackIndicatorValue: -15 }
        RFader { height: theme.dp(200); consistent: false; value: -20; label: "Input 3" }
    }
    Sample {
        name: "RMeter"
        RMeter { height: theme.dp(200); value: -24 }
        RMeter { height: theme.dp(200); value: 1; clipIndicatorSupported: true; clipIndicatorActive: true }
        RMeter { height: theme.dp(200); value: 4; split: true; valueMin: -12; valueMax: 12; valueMinYellow: -6; valueMinRed: -9; valueMaxYellow: 2; valueMaxRed: 9 }
        RMeter { height: theme.dp(200); value: -6; faderIndicatorActive: true; faderIndicatorValue: -20 }
    }
    Sample {
        name: "RAxis"
        RAxis { height: theme.dp(160); minValue: -60; maxValue: 20; tickCount: 9 }
        RAxis { height: theme.dp(160); minValue: 0; maxValue: 40; tickCount: 5; reverse: true }
    }
}
