.pragma library

/*! A level in whole decibels, "−∞" from the floor of the measurement down. */
function text(level) {
    if (!(level > -119.5))
        return "\u2212\u221e"
    return Math.round(level).toString()
}
