import TambleClient.Control 1.0

/*! One side of the crossover as the plot's filter. */
RBodeplotXOverFilter {
    id: root

    required property var band

    bypass: root.band.bypass
    type: root.band.type
    freq: root.band.freq
    category: root.band.category
    label: root.band.label
}
