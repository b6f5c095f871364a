.pragma library

// The filters of two loudspeaker channels as they come from their presets.

function eq(label, type, freq, gain, quality, slope) {
    return { kind: "eq", label: label, bypass: false, type: type, freq: freq, gain: gain, quality: quality, slope: slope }
}

function crossover(label, category, type, freq) {
    return { kind: "xover", label: label, bypass: false, type: type, freq: freq, category: category }
}

function fir(freqHP, freqLP) {
    return { kind: "fir", label: qsTr("FIR"), bypass: true, type: 2, freqHP: freqHP, freqLP: freqLP, slope: 0 }
}

function asymmetric(label, freq, freq2, gain) {
    return { kind: "asym", label: label, bypass: false, type: 12, freq: freq, freq2: freq2, gain: gain,
             quality: 0.7, quality2: 0.7, slope: 0 }
}

function channels() {
    return [
        [
            eq("1", 10, 110, 4.5, 0.9, 1), eq("2", 0, 210, -4, 2.5, 1), eq("3", 6, 420, 2.5, 1.4, 1),
            eq("4", 7, 850, -3, 2, 1), asymmetric("5", 1400, 3200, 4), eq("6", 0, 4800, -5, 4, 1),
            Object.assign(eq("7", 9, 8500, 0, 8, 1), { bypass: true }), eq("8", 2, 11000, 4, 1, 2),
            crossover(qsTr("HP"), 1, 17, 42), crossover(qsTr("LP"), 0, 16, 17500), fir(75, 6300)
        ],
        [
            eq("1", 1, 140, 3, 0.7, 2), eq("2", 0, 260, -2.5, 1.8, 1), eq("3", 6, 500, 0, 1.4, 1),
            eq("4", 7, 1000, 1.5, 1.2, 1), asymmetric("5", 1800, 4200, -2), eq("6", 0, 6000, 3, 3, 1),
            Object.assign(eq("7", 9, 8500, 0, 8, 1), { bypass: true }), eq("8", 11, 12000, -3, 0.7, 1),
            crossover(qsTr("HP"), 1, 14, 80), crossover(qsTr("LP"), 0, 17, 15000), fir(40, 3000)
        ]
    ]
}
