.pragma library

/*! A number with one decimal and its unit. */
function withUnit(value, unit) {
    return value.toFixed(1) + " " + unit
}
