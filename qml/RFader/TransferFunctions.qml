import QtQml
import TambleClient.Control 1.0

/*! Piecewise linear laws between levels in dB and places on a fader's travel, 0 (bottom) to 1 (top). */
QtObject {
    id: root

    /*! The law of a range as a list of [level, place], lowest first. */
    function getTransferTable(unitValueMin: real, unitValueMax: real): list<var> {
        return RTransferTable.points(unitValueMin, unitValueMax)
    }

    /*! Maps `value` linearly from the range `sourceRange` to the range `targetRange`; both are [first, last]. */
    function scale(value: real, sourceRange: list<real>, targetRange: list<real>): real {
        return (value - sourceRange[0]) * (targetRange[1] - targetRange[0]) / (sourceRange[1] - sourceRange[0]) + targetRange[0]
    }

    /*! Place of the level `x`; levels outside of the range stand at its ends. */
    function fromUnitToNormalized(x: real, min: real, max: real): real {
        return RTransferTable.position(x, min, max)
    }

    /*! Level at the place `x`; places outside of 0…1 give the ends of the range. */
    function fromNormalizedToUnit(x: real, min: real, max: real): real {
        return RTransferTable.level(x, min, max)
    }
}
