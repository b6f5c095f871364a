.pragma library
.import "BandRules.js" as Rules

// What gestures make of the values of a filter, and the words for the list of edits.

function rounded(frequency) {
    return Number(frequency.toPrecision(4))
}

/*! The values that a drag of a handle gave to `band`. A filter keeps a gain and a Q that its present type does not have. */
function dragged(band, relation, frequency, gain, quality) {
    switch (relation) {
    case "FIRHP":
        return { freqHP: rounded(frequency) }
    case "FIRLP":
        return { freqLP: rounded(frequency) }
    case "ASYMEQ2":
        return { freq2: rounded(frequency), gain: Number(gain.toFixed(1)), quality2: Number(quality.toFixed(2)) }
    }
    const values = { freq: rounded(frequency) }
    if (Rules.has(band, "gain"))
        values.gain = Number(gain.toFixed(1))
    if (Rules.has(band, "quality"))
        values.quality = Number(quality.toFixed(2))
    return values
}

function same(a, b) {
    return JSON.stringify(a) === JSON.stringify(b)
}

function replaced(list, index, value) {
    return list.map((entry, i) => i === index ? value : entry)
}
