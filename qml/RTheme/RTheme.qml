import QtQml

/*! Sizes and fonts of the interface, and the theme word that names its style sheets. The theme selector installs one
    object of this type as the context property `theme`. */
QtObject {
    id: root

    /*! False on machines that are touched, where a hover look would stick to the last touched control. */
    property bool hoverEnabled: maximumTouchPoints === 0
    /*! Whether texts are rendered by the platform rather than by Qt Quick. */
    property bool nativeRendering: false
    /*! Family of all texts. */
    property string fontFamily: "Brack Office Sans"

    /*! Sizes of texts in pixels: `fontSizeXXS`, `fontSizeXS` for scales, `fontSizeS` for captions, `fontSizeM` for
        texts, `fontSizeL` for titles, `fontSizeXL`, `fontSizeXXL`. */
    property real fontSizeXXS: root.dp(4)
    property real fontSizeXS: root.dp(8)
    property real fontSizeS: root.dp(10)
    property real fontSizeM: root.dp(12)
    property real fontSizeL: root.dp(14)
    property real fontSizeXL: root.dp(18)
    property real fontSizeXXL: root.dp(24)

    /*! The theme word: "light", "dark", "contrast-light", "contrast-dark", or that of sheets of your own. */
    property string stylesheet: "dark"

    /*! Goes false and true again around every change of a zoom factor. */
    property bool dpLoadFlag: true
    /*! Pixels per density-independent unit: `dpZoomFactor`, or `dpAutoZoomFactor` while that is 0. */
    property real dpZoomFactor: 0.0
    property real dpAutoZoomFactor: 1.0

    /*! Pixels of `x` density-independent units. */
    function dp(x: real): real {
        return x * (root.dpZoomFactor !== 0.0 ? root.dpZoomFactor : root.dpAutoZoomFactor)
    }

    /*! Sets `dpZoomFactor`, with `dpLoadFlag` false meanwhile. */
    function setDpZoomFactor(factor: real) {
        if (factor === root.dpZoomFactor)
            return
        root.dpLoadFlag = false
        root.dpZoomFactor = factor
        root.dpLoadFlag = true
    }

    /*! Sets `dpAutoZoomFactor`, with `dpLoadFlag` false meanwhile. */
    function setDpAutoZoomFactor(factor: real) {
        if (factor === root.dpAutoZoomFactor)
            return
        root.dpLoadFlag = false
        root.dpAutoZoomFactor = factor
        root.dpLoadFlag = true
    }

    /*! Maps `value` linearly from the range `source` to the range `target`; both are [first, last]. */
    function convertRange(value: real, source: list<real>, target: list<real>): real {
        return (value - source[0]) * (target[1] - target[0]) / (source[1] - source[0]) + target[0]
    }

    /*! As `convertRange`, limited to the range `target`, which must rise. */
    function convertRangeClipped(value: real, source: list<real>, target: list<real>): real {
        return Math.max(target[0], Math.min(target[1], root.convertRange(value, source, target)))
    }
}
