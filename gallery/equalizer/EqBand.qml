import TambleClient.Control 1.0

/*! A band of the equaliser as the plot's filter. */
RBodeplotEqFilter {
    id: root

    required property var band

    bypass: root.band.bypass
    type: root.band.type
    freq: root.band.freq
    gain: root.band.gain
    quality: root.band.quality
    slope: root.band.slope
    label: root.band.label
}
