.pragma library

/*! A level in whole decibels with a true minus sign, "-∞" from the floor of the measurement down. */
function text(level) {
    if (!(level > -119.5))
        return "\u2212\u221e"
    return Math.round(level).toString().replace("-", "\u2212").replace(/^\u22120$/, "0")
}
