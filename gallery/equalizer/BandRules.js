.pragma library
.import Gallery 1.0 as Gallery

// What the kinds of filters are called, which values they have, and how these are written and stepped.

const eqTypes = [
    { value: 0, name: qsTr("Peak") },
    { value: 6, name: qsTr("Proportional Q") },
    { value: 7, name: qsTr("Constant Q") },
    { value: 1, name: qsTr("Low shelf") },
    { value: 2, name: qsTr("High shelf") },
    { value: 10, name: qsTr("Low shelf with Q") },
    { value: 11, name: qsTr("High shelf with Q") },
    { value: 3, name: qsTr("High pass") },
    { value: 4, name: qsTr("Low pass") },
    { value: 5, name: qsTr("All pass") },
    { value: 8, name: qsTr("Band pass") },
    { value: 9, name: qsTr("Notch") }
]
const crossoverTypes = [
    qsTr("Through"), qsTr("6 dB"), qsTr("12 dB, Q 0.5"), qsTr("12 dB, Q 0.6"), qsTr("12 dB, Q 0.7"),
    qsTr("12 dB, Q 0.8"), qsTr("12 dB, Q 1.0"), qsTr("12 dB, Q 1.2"), qsTr("12 dB, Q 1.5"), qsTr("12 dB, Q 2.0"),
    qsTr("Bessel 12 dB"), qsTr("Butterworth 12 dB"), qsTr("Linkwitz-Riley 12 dB"), qsTr("Bessel 18 dB"),
    qsTr("Butterworth 18 dB"), qsTr("Bessel 24 dB"), qsTr("Butterworth 24 dB"), qsTr("Linkwitz-Riley 24 dB")
].map((name, value) => ({ value: value, name: name }))
const firTypes = [
    qsTr("Low pass"), qsTr("High pass"), qsTr("Band pass"), qsTr("Low pass, min. phase"),
    qsTr("High pass, min. phase"), qsTr("Band pass, min. phase")
].map((name, value) => ({ value: value, name: name }))
const eqSlopes = [{ value: 1, name: qsTr("6 dB/oct") }, { value: 2, name: qsTr("12 dB/oct") }]
const firSlopes = [qsTr("60 dB"), qsTr("80 dB"), qsTr("100 dB")].map((name, value) => ({ value: value, name: name }))

/*! The words to choose from for `key`; empty when it is a number. */
function choices(band, key) {
    if (key === "type")
        return band.kind === "eq" ? eqTypes : band.kind === "xover" ? crossoverTypes : band.kind === "fir" ? firTypes : []
    return key !== "slope" ? [] : band.kind === "fir" ? firSlopes : eqSlopes
}

/*! What a filter has to edit, in the order in which it is shown. */
function parameters(band) {
    const frequency = { key: "freq", name: qsTr("Frequency") }
    switch (band.kind) {
    case "asym":
        return [{ key: "freq", name: qsTr("First corner") }, { key: "quality", name: qsTr("First Q") },
                { key: "gain", name: qsTr("Gain") }, { key: "freq2", name: qsTr("Second corner") },
                { key: "quality2", name: qsTr("Second Q") }]
    case "xover":
        return [{ key: "type", name: qsTr("Alignment") }, frequency]
    case "fir":
        return [{ key: "type", name: qsTr("Type") }, { key: "freqHP", name: qsTr("High pass") },
                { key: "freqLP", name: qsTr("Low pass") }, { key: "slope", name: qsTr("Stop band") }]
               .filter(entry => has(band, entry.key))
    }
    return [{ key: "type", name: qsTr("Type") }, frequency, { key: "gain", name: qsTr("Gain") },
            { key: "quality", name: qsTr("Q") }, { key: "slope", name: qsTr("Slope") }].filter(entry => has(band, entry.key))
}

function has(band, key) {
    if (band.kind === "asym")
        return ["freq", "freq2", "gain", "quality", "quality2"].includes(key)
    if (band.kind === "fir")
        return key === "freqHP" ? band.type % 3 !== 0 : key === "freqLP" ? band.type % 3 !== 1 : ["type", "slope"].includes(key)
    if (band.kind === "xover")
        return ["type", "freq"].includes(key)
    switch (key) {
    case "gain":
        return [0, 1, 2, 6, 7, 10, 11].includes(band.type)
    case "quality":
        return Gallery.FilterSections.qualityCounts(band.type, band.slope)
    case "slope":
        return [1, 2, 3, 4].includes(band.type)
    }
    return ["type", "freq"].includes(key)
}

function typeName(band) {
    return band.kind === "asym" ? qsTr("Asymmetric") : text(band, "type")
}

/*! Three digits, as far as they are needed. */
function frequencyText(frequency) {
    const inKilo = frequency >= 999.5
    const number = Number((inKilo ? frequency / 1000 : frequency).toPrecision(3))
    return inKilo ? qsTr("%1 kHz").arg(number) : qsTr("%1 Hz").arg(number)
}

/*! The one frequency of a filter, or both. */
function frequenciesText(band) {
    const texts = ["freq", "freq2", "freqHP", "freqLP"].filter(key => has(band, key)).map(key => frequencyText(band[key]))
    return texts.join(" - ")
}

function text(band, key) {
    const chosen = choices(band, key).find(choice => choice.value === band[key])
    if (chosen)
        return chosen.name
    if (key.startsWith("freq"))
        return frequencyText(band[key])
    if (key === "gain")
        return qsTr("%1 dB").arg((band.gain > 0 ? "+" : "") + band.gain.toFixed(1))
    return key.startsWith("quality") ? Number(band[key]).toFixed(2) : ""
}

/*! Range, unit and decimals of a number. */
function limits(key) {
    if (key.startsWith("freq"))
        return { from: 20, to: 20000, decimals: 1, shownDecimals: 0, unit: qsTr("Hz"), signed: false, kilo: true }
    if (key === "gain")
        return { from: -18, to: 12, decimals: 1, shownDecimals: 1, unit: qsTr("dB"), signed: true, kilo: false }
    return { from: 0.4, to: 40, decimals: 2, shownDecimals: 2, unit: "", signed: false, kilo: false }
}

/*! One step from a number: half a dB, and a round number near a twelfth of an octave of a frequency or a sixth of the
    width. */
function stepSize(key, number) {
    if (key === "gain" || !(number > 0))
        return 0.5
    return Number((number / (key.startsWith("freq") ? 17 : 8)).toPrecision(1))
}
