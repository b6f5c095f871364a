.pragma library

/*! A number with one decimal, a true minus sign and its unit. */
function withUnit(value, unit) {
    return value.toFixed(1).replace("-", "\u2212") + " " + unit
}
