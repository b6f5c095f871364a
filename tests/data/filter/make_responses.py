#!/usr/bin/env python3
"""Prints responses.txt: frequency responses to 50 digits, found in other ways than the library finds them.

Equaliser bands come from the digital coefficients of the audio EQ cookbook, crossovers from poles (Bessel poles as roots
of the reverse Bessel polynomial), moved to the z plane by the bilinear transform; taps are summed term by term.

    make_responses.py > responses.txt        needs python3-mpmath, takes a few seconds

A line is: kind, sample rate, fields of the record, lowest and highest frequency | levels in dB | phases in degrees
"""
from itertools import cycle

from mpmath import (mp, mpf, mpc, arg, besseli, binomial, cos, degrees, exp, expjpi, factorial, findroot,
                    log, log10, pi, polyroots, polyval, sin, sqrt, tan)

mp.dps = 50
RATES = [44100, 48000, 96000, 192000]


def biquad(b, a):
    return lambda z: (b[0] + b[1] / z + b[2] / z**2) / (a[0] + a[1] / z + a[2] / z**2)


def eq_band(type, fs, freq, gain, quality, slope):
    amp = mpf(10) ** (mpf(gain) / 40)
    w0 = 2 * pi * mpf(freq) / fs
    c, k, r = cos(w0), tan(w0 / 2), sqrt(amp)
    q = mpf(quality)
    if type == 6:
        q *= max(amp, 1 / amp)
    if type == 7:
        q /= amp
    if type in (1, 2) and slope == 2:
        q = 1 / sqrt(mpf(2))
    alpha = sin(w0) / (2 * q)

    if type in (0, 6, 7):
        return biquad([1 + alpha * amp, -2 * c, 1 - alpha * amp], [1 + alpha / amp, -2 * c, 1 - alpha / amp])
    if type == 10 or (type == 1 and slope == 2):
        return biquad([amp * (amp + 1 - (amp - 1) * c + 2 * r * alpha), 2 * amp * (amp - 1 - (amp + 1) * c),
                       amp * (amp + 1 - (amp - 1) * c - 2 * r * alpha)],
                      [amp + 1 + (amp - 1) * c + 2 * r * alpha, -2 * (amp - 1 + (amp + 1) * c),
                       amp + 1 + (amp - 1) * c - 2 * r * alpha])
    if type == 11 or (type == 2 and slope == 2):
        return biquad([amp * (amp + 1 + (amp - 1) * c + 2 * r * alpha), -2 * amp * (amp - 1 + (amp + 1) * c),
                       amp * (amp + 1 + (amp - 1) * c - 2 * r * alpha)],
                      [amp + 1 - (amp - 1) * c + 2 * r * alpha, 2 * (amp - 1 - (amp + 1) * c),
                       amp + 1 - (amp - 1) * c - 2 * r * alpha])
    if type == 1:  # one real pole at -k / amp and one real zero at -k amp
        return biquad([1 + k * amp, k * amp - 1, 0], [1 + k / amp, k / amp - 1, 0])
    if type == 2:
        return biquad([k + amp, k - amp, 0], [k + 1 / amp, k - 1 / amp, 0])
    if type == 3 and slope != 2:
        return biquad([1, -1, 0], [1 + k, k - 1, 0])
    if type == 4 and slope != 2:
        return biquad([k, k, 0], [1 + k, k - 1, 0])
    if type == 5 and slope == 1:
        return biquad([k - 1, k + 1, 0], [k + 1, k - 1, 0])
    numerators = {3: [(1 + c) / 2, -(1 + c), (1 + c) / 2], 4: [(1 - c) / 2, 1 - c, (1 - c) / 2],
                  5: [1 - alpha, -2 * c, 1 + alpha], 8: [alpha, 0, -alpha], 9: [1, -2 * c, 1]}
    return biquad(numerators[type], [1 + alpha, -2 * c, 1 - alpha])


def asymmetric_band(fs, freq, gain, quality, freq2, quality2):
    (low, low_q), (high, high_q) = sorted([(freq, quality), (freq2, quality2)])
    rise, fall = eq_band(11, fs, low, gain, low_q, 0), eq_band(11, fs, high, -gain, high_q, 0)
    return lambda z: rise(z) * fall(z)


def butterworth_poles(order):
    return [expjpi(mpf(2 * i + order + 1) / (2 * order)) for i in range(order)]


def bessel_poles(order):
    polynomial = [factorial(2 * order - i) / (mpf(2) ** (order - i) * factorial(i) * factorial(order - i))
                  for i in range(order, -1, -1)]
    corner = findroot(lambda w: abs(polyval(polynomial, mpc(0, w)))**2 - 2 * polynomial[-1]**2, mpf("1.6"))
    return [p / corner for p in polyroots(polynomial, maxsteps=200, extraprec=200)]


def pole_pair(q):
    q = mpf(q)
    real = -1 / (2 * q)
    root = sqrt(mpc(real**2 - 1))
    return [real + root, real - root]


CROSSOVERS = {1: [mpf(-1)], 10: bessel_poles(2), 13: bessel_poles(3), 15: bessel_poles(4), 11: butterworth_poles(2),
              14: butterworth_poles(3), 16: butterworth_poles(4), 12: [mpf(-1)] * 2, 17: butterworth_poles(2) * 2}
CROSSOVERS.update(zip(range(2, 10), map(pole_pair, ("0.5", "0.6", "0.7", "0.8", "1.0", "1.2", "1.5", "2.0"))))


def crossover(type, fs, freq, category):
    k = tan(pi * mpf(freq) / fs)
    poles = CROSSOVERS[type]
    if category == 1:
        poles = [1 / p for p in poles]
    zero, pass_end = (1, -1) if category == 1 else (-1, 1)
    digital = [(1 + k * p) / (1 - k * p) for p in poles]

    def shape(z):
        h = mpf(1)
        for p in digital:
            h *= (z - zero) / (z - p)
        return h

    unity = shape(mpf(pass_end))
    return lambda z: shape(z) / unity


def kaiser_taps(type, fs, order, freq_hp, freq_lp, slope):
    """The symmetric taps, centred, as a list from -middle to middle."""
    beta = {0: mpf("5.65326"), 1: mpf("7.85726"), 2: mpf("10.06126")}[slope]
    length = order if order % 2 else order - 1
    middle = (length - 1) // 2
    hp, lp = 2 * mpf(freq_hp) / fs, 2 * mpf(freq_lp) / fs
    lo, hi, at = [(mpf(0), lp, mpf(0)), (hp, mpf(1), mpf(1)), (min(hp, lp), max(hp, lp), (hp + lp) / 2)][type % 3]
    taps = []
    for m in range(-middle, middle + 1):
        ideal = hi - lo if m == 0 else (sin(pi * hi * m) - sin(pi * lo * m)) / (pi * m)
        taps.append(ideal * besseli(0, beta * sqrt(1 - (mpf(m) / middle) ** 2)) / besseli(0, beta))
    gain = sum(t * cos(pi * at * m) for m, t in zip(range(-middle, middle + 1), taps))
    return [t / gain for t in taps]


def transform(values, sign):
    if len(values) == 1:
        return values
    even, odd = transform(values[::2], sign), transform(values[1::2], sign)
    n = len(values)
    turned = [expjpi(sign * mpf(2 * k) / n) * o for k, o in enumerate(odd)]
    return [e + t for e, t in zip(even, turned)] + [e - t for e, t in zip(even, turned)]


def minimum_phase(taps, order):
    mp.dps = 32
    size = 4096
    while size < 64 * order:
        size *= 2
    spectrum = transform([mpc(t) for t in taps] + [mpc(0)] * (size - len(taps)), -1)
    cepstrum = [c.real / size for c in transform([mpc(log(max(abs(h), mpf("1e-6")))) for h in spectrum], 1)]
    folded = [cepstrum[0]] + [2 * c for c in cepstrum[1:size // 2]] + [cepstrum[size // 2]]
    folded += [mpf(0)] * (size - len(folded))
    causal = transform([exp(h) for h in transform([mpc(c) for c in folded], -1)], 1)
    mp.dps = 50
    return [c.real / size for c in causal[:order]]


def tap_sum(taps, first=0):
    return lambda z: sum(t * z ** -(first + m) for m, t in enumerate(taps))


def list_taps(name):
    """Lists of which every entry is a double."""
    if name == "scattered":
        return [mpf((m * 7919 + 13) % 2003 - 1001) / 65536 for m in range(300)]
    return [binomial(31, m) / mpf(2) ** 31 for m in range(32)]  # "binomial"


def designed(type, fs, order, freq_hp, freq_lp, slope):
    taps = kaiser_taps(type, fs, order, freq_hp, freq_lp, slope)
    if type >= 3:
        return tap_sum(minimum_phase(taps, order))
    return tap_sum(taps, -(len(taps) // 2))


def show(kind, fs, fields, response, centre, points):
    for lowest, highest, count in ((1, mpf("0.4999") * fs, points), (centre * 0.75, min(centre * 1.3, 0.4999 * fs), 5)):
        lowest, highest = mpf(float(lowest)), mpf(float(highest))
        levels, phases = [], []
        for i in range(count):
            f = lowest * (highest / lowest) ** (mpf(i) / (count - 1))
            h = response(expjpi(2 * f / fs))
            levels.append(20 * log10(abs(h)) if h != 0 else mpf(-999))
            phases.append(degrees(arg(h)))
        head = " ".join(str(x) for x in (kind, fs, *fields, repr(float(lowest)), repr(float(highest))))
        print(head, "|", " ".join(f"{float(v):.9f}" for v in levels), "|", " ".join(f"{float(v):.9f}" for v in phases))


def main():
    print("# Made by make_responses.py.")
    corners = cycle([20.5, 997.0, 80.0, 6300.0, 15800.0, 250.0, 20000.0])
    gains = cycle([12.0, -9.5, 3.0, -18.0, 24.0])
    qualities = cycle([0.7, 1.0, 4.0, 40.0, 0.4, 2.0])
    for type, slopes in {0: [0], 1: [0, 2], 2: [1, 2], 3: [1, 2], 4: [0, 2], 5: [1, 2], 6: [0], 7: [0], 8: [0], 9: [0],
                         10: [0], 11: [0]}.items():
        for slope in slopes:
            for fs in RATES:
                freq, gain, quality = next(corners), next(gains), next(qualities)
                show("eq", fs, (type, freq, gain, quality, slope), eq_band(type, fs, freq, gain, quality, slope), freq, 6)

    seconds = cycle([400.0, 17000.0, 30.0])
    for fs in RATES * 2:
        freq, gain, quality, freq2, quality2 = next(corners), next(gains), next(qualities), next(seconds), next(qualities)
        show("asymmetric", fs, (freq, gain, quality, freq2, quality2),
             asymmetric_band(fs, freq, gain, quality, freq2, quality2), freq, 6)

    categories = cycle([0, 1, 1, 0, 1])
    for type in range(1, 18):
        for fs in RATES:
            freq, category = next(corners), next(categories)
            show("crossover", fs, (type, freq, category), crossover(type, fs, freq, category), freq, 4)

    for name in ("scattered", "binomial"):
        for fs in (44100, 192000):
            show("list", fs, (name,), tap_sum(list_taps(name)), fs / 3, 8)
    slopes, orders = cycle([0, 1, 2]), cycle([127, 64, 201, 512])
    for type in range(3):
        for fs in RATES:
            fields = (type, next(orders), 0.05 * fs, 0.3 * fs, next(slopes))
            show("design", fs, fields, designed(type, fs, *fields[1:]), fields[2 if type else 3], 8)
    for type in range(3, 6):
        fields = (type, 64, 3000.0, 12000.0, type - 3)
        show("design", 48000, fields, designed(type, 48000, *fields[1:]), fields[2 if type > 3 else 3], 8)


main()
