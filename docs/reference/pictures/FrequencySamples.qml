import QtQuick
import TambleClient.Control 1.0

/*! Frequency plots and their parts. */
Flow {
    id: root

    Sample {
        name: "RBodeplot"
        RBodeplot {
            width: theme.dp(320)
            height: theme.dp(180)
            RBodeplotCurve {
                calculationItems: [
                    RBodeplotEqFilter { label: "1"; freq: 120; gain: 6; type: RBodeplotEqTypeEnum.EQ_LOSHELVQ },
                    RBodeplotEqFilter { label: "2"; freq: 2500; gain: -8; quality: 2; selected: true }
                ]
            }
        }
    }
    Sample {
        name: "RBodeplotGrid"
        Rectangle {
            width: theme.dp(200)
            height: theme.dp(120)
            color: grid.ssBackground
            RBodeplotGrid {
                id: grid
                anchors.fill: parent
            }
        }
    }
    Sample {
        name: "RBodeplotAxis"
        RBodeplotAxis { width: theme.dp(240) }
    }
    Sample {
        name: "RBodeplotCurve"
        Rectangle {
            width: theme.dp(240)
            height: theme.dp(140)
            color: grid.ssBackground
            RBodeplotCurve {
                calculationItems: [
                    RBodeplotXOverFilter { label: "HP"; freq: 80; type: RBodeplotXOverTypeEnum.XOVER_LINKWITZ_TWENTYFOUR_DB; category: RBodeplotXOverCategoryEnum.XOVERCATEGORY_HIPASS },
                    RBodeplotEqFilter { label: "1"; freq: 1000; gain: 9; quality: 2 },
                    RBodeplotEqFilter { label: "2"; freq: 6000; gain: -8; bypass: true }
                ]
            }
        }
    }
    Sample {
        name: "RBodeplotFilterPoint"
        Item {
            width: theme.dp(128)
            height: theme.dp(36)
            RBodeplotFilterPoint { place: Qt.point(theme.dp(16), theme.dp(27)); label: "1" }
            RBodeplotFilterPoint { place: Qt.point(theme.dp(48), theme.dp(27)); label: "2"; selected: true }
            RBodeplotFilterPoint { place: Qt.point(theme.dp(80), theme.dp(27)); label: "3"; errorFlag: true }
            RBodeplotFilterPoint { place: Qt.point(theme.dp(112), theme.dp(27)); label: "4"; visiblePoint: false }
        }
    }
    Sample {
        name: "RLimiterCurve"
        RBodeplot {
            width: theme.dp(200)
            height: theme.dp(180)
            xAxisScale: RBodeplotAxisScaleEnum.LINEAR
            xMinimum: -40
            xMaximum: 20
            xIncrement: 20
            yMinimum: -40
            yMaximum: 20
            yIncrement: 20
            RLimiterCurve { threshold: -10; label: "L" }
        }
    }
    Sample {
        name: "RLimiterFilterPoint"
        Item {
            width: theme.dp(96)
            height: theme.dp(32)
            RLimiterFilterPoint { place: Qt.point(theme.dp(16), theme.dp(16)); label: "L" }
            RLimiterFilterPoint { place: Qt.point(theme.dp(48), theme.dp(16)); label: "L"; selected: true }
            RLimiterFilterPoint { place: Qt.point(theme.dp(80), theme.dp(16)); label: "L"; visiblePoint: false }
        }
    }
    Sample {
        name: "RSimpleCurve"
        RBodeplot {
            width: theme.dp(240)
            height: theme.dp(140)
            RSimpleCurve { xValues: [20, 60, 200, 2000, 8000, 20000]; yValues: [-18, -2, 3, 0, 4, -12] }
            RSimpleCurve { xValues: [20, 20000]; yValues: [6, -6]; selected: true }
        }
    }
}
