import QtQuick
import TambleClient.Control 1.0

/*! The dynamics panels, each with the level that the processor gets. */
Flow {
    id: root

    Sample {
        name: "RLimiter"
        RLimiter { width: theme.dp(240); height: theme.dp(240); threshold: -12; levelVisible: true; inputLevel: -3 }
    }
    Sample {
        name: "RCompressor"
        RCompressor { width: theme.dp(280); height: theme.dp(240); threshold: -20; softKneeActive: true; makeUpGain: 6; gainReductionVisible: true; gainReduction: 7 }
    }
    Sample {
        name: "RGate"
        RGate { width: theme.dp(240); height: theme.dp(240); threshold: -30; depth: 20; levelVisible: true; inputLevel: -40 }
    }
    Sample {
        name: "RDucker"
        RDucker { width: theme.dp(240); height: theme.dp(240); threshold: -20; levelVisible: true; inputLevel: -8 }
    }
    Sample {
        name: "RAGC"
        RAGC { width: theme.dp(280); height: theme.dp(240); gainMeterVisible: true; gain: 6 }
    }
    Sample {
        name: "RANC"
        RANC { width: theme.dp(240); height: theme.dp(260); freezeGain: false; ambientMeterVisible: true; ambientLevel: -14 }
    }
}
