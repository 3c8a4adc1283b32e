"""Harmonic analysis and tone extraction beside synthesised truth, NumPy's transforms and the Cramér-Rao bound."""

import numpy as np
import pytest

EPS = 2.0**-53


def scalar():
    return np.full(1, np.nan)


def single(qv, x, dt=1.0, search=None):
    out = scalar(), scalar(), scalar()
    call = qv.ZemFunc381 if np.iscomplexobj(x) else qv.ZemFunc377
    assert call(x, len(x), dt, None if search is None else np.array(search, float), *out) == 0
    return [v[0] for v in out]


def multi(qv, x, threshold, most, sort=0, dt=1.0):
    count, out = np.full(1, -7, np.int32), [np.full(most, np.nan) for _ in range(3)]
    call = qv.ZemFunc383 if np.iscomplexobj(x) else qv.ZemFunc379
    assert call(x, len(x), dt, sort, threshold, most, count, *out) == 0
    return [v[: count[0]] for v in out]


def sine(n, f, a=1.0, phase=0.0):
    return a * np.sin(2 * np.pi * f * np.arange(n) + np.radians(phase))


def exponential(n, f, a=1.0, phase=0.0):
    return a * np.exp(1j * (2 * np.pi * f * np.arange(n) + np.radians(phase)))


def turns_apart(a, b):
    return abs((a - b + 180) % 360 - 180)


# Without noise. Newton's last step is at most 1e-8 cycles per sample and squares the error in bins: (1e-8 n)^2 bins at
# most, times a curvature of about 1. For n = 65536 that is 7e-12 cycles per sample; below n = 1000 rounding of the
# spectrum rules, some EPS over the 1/n that a bin is wide.
@pytest.mark.parametrize("make, scale", [(sine, 1), (exponential, 2)])
@pytest.mark.parametrize("n", [8, 16, 33, 100, 1000, 4096, 65536])
def test_clean_single_tones(qv, n, make, scale):
    bound = 10 * ((1e-8 * n) ** 2 / n + 16 * EPS)
    assert bound < 1e-9
    rng = np.random.default_rng(n)
    for _ in range(60):
        # Half a bin from the ends a complex record shows the other end, an odd real one half of a line.
        k, a, phase = rng.uniform(0.6, n / 2 - 0.6), 10 ** rng.uniform(-3, 3), rng.uniform(-180, 180)
        k *= rng.choice([-1, 1]) if scale == 2 else 1
        freq, amp, at = single(qv, make(n, k / n, a, phase))
        assert abs(freq - k / n) <= bound, k
        assert abs(amp / a - scale) <= 100 * n * bound
        assert turns_apart(at, phase) <= 400 * n * bound


@pytest.mark.parametrize("n, nearest", [(64, 0.1), (1000, 0.1), (65, 0.8), (1001, 0.8)])
def test_single_real_tones_next_to_half_the_rate(qv, n, nearest):
    """Where tone and image share their bins. A record of odd length has no bin at half the rate to tell them apart."""
    for below in np.linspace(nearest, 3, 30):
        f = 0.5 - below / n
        for phase in range(-180, 180, 15):
            freq, amp, found = single(qv, sine(n, f, 1.5, phase))
            # Tone and image cancel but for a part of a tenth, and that of its square tells the frequency: a hundred
            # times the 1e-10 bins of a tone that stands alone.
            assert abs(freq - f) * n < 1e-8
            if below >= 1:
                assert amp == pytest.approx(1.5, rel=1e-7)
                assert turns_apart(found, phase) < 1e-5


@pytest.mark.parametrize("dt", [1e-6, 0.5, 300.0])
def test_frequency_is_in_the_unit_of_the_rate(qv, dt):
    freq, amp, _ = single(qv, sine(500, 0.123), dt)
    assert freq * dt == pytest.approx(0.123, abs=1e-12)
    assert amp == pytest.approx(1, abs=1e-9)


def test_weak_tone_is_found_in_its_band(qv):
    n = 2000
    x = sine(n, 0.2, 1) + sine(n, 0.31, 1e-3, 50)
    # The strong tone leaks 1e-8 of itself over 220 bins, 1e-5 of the weak one.
    freq, amp, phase = single(qv, x, 1.0, [0.3, 5])
    assert abs(freq - 0.31) < 1e-5 / n
    assert amp == pytest.approx(1e-3, rel=1e-4)
    assert turns_apart(phase, 50) < 1e-2


def kernel(x, n):
    """The spectrum of a Hanning window of n samples and mean 1/2, doubled, by its sum."""
    i = np.arange(n)
    return ((1 - np.cos(2 * np.pi * i / n)) * np.exp(-2j * np.pi * i * x)).sum() / n


@pytest.mark.parametrize("make", [sine, exponential])
@pytest.mark.parametrize("seed", range(8))
def test_both_estimates_agree_at_the_frequency_found(qv, make, seed):
    """In any data the frequency is where two and three bins tell one amplitude, and the amplitude is theirs."""
    n, rng = 60, np.random.default_rng(seed)
    x = make(n, rng.uniform(0.1, 0.4)) + 0.2 * rng.standard_normal(n)
    real = make is sine
    freq, amp, phase = single(qv, x)
    bins = np.fft.fft(x * (1 - np.cos(2 * np.pi * np.arange(n) / n)) / 2) * 8**0.5 / n
    first = int(np.abs(bins[: n // 2]).argmax()) - 1
    g, S = (first + np.arange(3)) / n, bins[first:first + 3]

    def estimates(f):
        M = np.array([kernel(v - f, n) for v in g])
        P = np.array([kernel(v + f, n) for v in g]) * real
        return [((M[:c].conj() * S[:c]).sum() - (S[:c].conj() * P[:c]).sum())
                / ((np.abs(M[:c]) ** 2).sum() - (np.abs(P[:c]) ** 2).sum()) for c in (3, 2)]

    def difference(f):
        return np.subtract(*np.abs(estimates(f)))

    assert difference(freq - 1e-9) * difference(freq + 1e-9) < 0
    three = estimates(freq)[0]
    assert amp == pytest.approx(abs(three) * 2**0.5, rel=1e-12)
    assert turns_apart(phase, np.degrees(np.angle(three)) + 90 * real) < 1e-9


# With noise. The Cramér-Rao bound of the frequency is sqrt(24 s^2 / (A^2 n (n^2 - 1))) radians per sample for a sine in
# white noise of deviation s, sqrt(6 s^2 / ...) for an exponential with s^2 in both parts together (D. C. Rife and
# R. R. Boorstyn, 1974). Three bins under a Hanning window do not use the ends of the record, where most of the knowledge
# of a frequency lies: the deviation is 1.7 times the bound at best and 3 times half-way between bins. The amplitude
# has the window's noise bandwidth against it, at least sqrt(1.5) less what the third bin gives back.
@pytest.mark.parametrize("make, factor", [(sine, 24), (exponential, 6)])
@pytest.mark.parametrize("n, snr", [(64, 10), (512, 100)])
@pytest.mark.parametrize("fraction", [0, 0.25, 0.5])
def test_noise_near_the_cramer_rao_bound(qv, n, snr, fraction, make, factor):
    rng, s, runs = np.random.default_rng((n, int(4 * fraction))), 1 / snr, 600
    k = n * 7 // 32 + fraction
    errors, amps = [], []
    for _ in range(runs):
        noise = rng.standard_normal(n) if make is sine else rng.standard_normal(2 * n).view(complex) / 2**0.5
        freq, amp, _ = single(qv, make(n, k / n, 1, rng.uniform(-180, 180)) + s * noise)
        errors.append(freq - k / n)
        amps.append(amp / (1 if make is sine else 2) - 1)
    bound = np.sqrt(factor * s**2 / (n * (n**2 - 1.0))) / (2 * np.pi)
    # A deviation over 600 runs is itself known to 3 percent.
    assert 1.5 < np.std(errors) / bound < 3.3
    assert abs(np.mean(errors)) < bound
    amplitude_bound = np.sqrt(s**2 * factor / 12 / n)
    assert 1.1 < np.std(amps) / amplitude_bound < 1.6


@pytest.mark.parametrize("make, scale", [(sine, 1), (exponential, 2)])
@pytest.mark.parametrize("apart", [3.5, 4.2, 6.3, 20.7])
def test_close_tones(qv, apart, make, scale):
    n = 1000
    tones = [(0.1003, 1.0, 30.0), (0.1003 + apart / n, 0.3, -75.0)]
    freq, amp, phase = multi(qv, sum(make(n, *t) for t in tones), 0.05, 6)
    assert len(freq) == 2
    for k, (f, a, p) in enumerate(tones):
        # Refinement ends when frequency, amplitude and phase move by less than a thousandth; each pass gains a factor
        # of the leakage between the tones, 2e-2 at 3.5 bins, so what is left is 1e-3 times that, in parts of a bin.
        assert abs(freq[k] - f) * n < 2e-5
        assert amp[k] / scale == pytest.approx(a, rel=1e-4)
        assert turns_apart(phase[k], p) < 1e-2


def test_many_tones_of_falling_amplitude(qv):
    n, rng = 8192, np.random.default_rng(5)
    k = np.arange(12)
    f, a, p = (100.5 + 300 * k + rng.uniform(-0.5, 0.5, 12)) / n, 10.0 ** -(k / 4), rng.uniform(-180, 180, 12)
    freq, amp, phase = multi(qv, sum(sine(n, *t) for t in zip(f, a, p)), 1e-3, 20, sort=1)
    assert len(freq) == 12
    assert np.abs(freq - f).max() * n < 1e-6
    assert np.abs(amp / a - 1).max() < 1e-6
    assert max(turns_apart(x, y) for x, y in zip(phase, p)) < 1e-3


@pytest.mark.parametrize("n", [50, 51])
def test_spectrum_is_that_of_numpy(qv, n):
    rng = np.random.default_rng(n)
    window = (0.5 - 0.5 * np.cos(2 * np.pi * np.arange(n) / n)) * 8**0.5 / n
    for x in (rng.standard_normal(n), rng.standard_normal(2 * n).view(complex)):
        real = not np.iscomplexobj(x)
        bins = np.fft.fft(x * window)
        bins = bins[: (n + 1) // 2] if real else np.fft.fftshift(bins)
        out, spectrum = np.zeros_like(x), np.empty(len(bins))
        scalars = [scalar() for _ in range(6)]
        call = qv.ZemFunc378 if real else qv.ZemFunc382
        assert call(x, n, 1.0, None, 1, *scalars[:3], out, scalars[3], spectrum, *scalars[4:]) == 0
        # Rounding of a bin stands beside the largest ones: 1e-14 of them, in decibels 10 / ln 10 * 2 of that.
        assert np.abs(spectrum - 20 * np.log10(np.abs(bins))).max() <= 1e-13 * np.abs(bins).max() / np.abs(bins).min()
        assert np.array_equal(out, x)


# A time record's distortion

def test_harmonics_of_an_amplifier(qv):
    fs, f, n = 48000.0, 997.0, 48000
    t = np.arange(n) / fs
    amps = [1.0, 0.01, 0.003, 0.001, 0.0003]
    x = sum(a * np.sin(2 * np.pi * (k + 1) * f * t + k) for k, a in enumerate(amps))
    amp, freq, thd, thdn = np.empty(5), np.empty(5), scalar(), scalar()
    assert qv.ZemFunc362(x, n, 5, fs, 1000.0, amp, freq, thd, thdn) == 0
    assert amp == pytest.approx(amps, rel=1e-6)
    assert freq == pytest.approx(f * np.arange(1, 6), rel=1e-8)
    ratio = np.sqrt((np.array(amps[1:]) ** 2).sum())
    assert thd[0] == pytest.approx(ratio * 100, rel=1e-6)
    assert thdn[0] == pytest.approx(ratio / np.hypot(1, ratio) * 100, rel=1e-6)


def test_distortion_with_noise_counts_the_noise(qv):
    n, rng = 20000, np.random.default_rng(2)
    x = sine(n, 0.0123) + 0.02 * sine(n, 0.0246) + 0.03 * rng.standard_normal(n)
    amp, freq, thd, thdn = np.empty(2), np.empty(2), scalar(), scalar()
    assert qv.ZemFunc362(x, n, 2, 1.0, 0.0123, amp, freq, thd, thdn) == 0
    # The noise in one bin is 0.03 sqrt(3 / n), a fiftieth of the harmonic; its power is known to sqrt(2 / n).
    assert thd[0] == pytest.approx(2, rel=0.06)
    rest = 0.02**2 / 2 + 0.03**2
    assert thdn[0] == pytest.approx(100 * np.sqrt(rest / (0.5 + rest)), rel=0.03)


# A power spectrum's harmonics

COEFFICIENTS = [[1.0], [0.5, 0.5], [0.54, 0.46], [0.42323, 0.49755, 0.07922],
                [0.4265907136715391, 0.4965606190885641, 0.07684866723989682], [0.42, 0.5, 0.08],
                [0.215578948, 0.41663158, 0.277263158, 0.083578947, 0.006947368],
                [0.35875, 0.48829, 0.14128, 0.01168],
                [0.27105140069342415, 0.43329793923448606, 0.21812299954311062, 0.0659254463880309,
                 0.010811742098372268, 0.0007765848252250934, 1.3887217350903198e-05]]


def line_power(n, code, k, a):
    """The power spectrum of an exponential, which has no image, through a window, 0 to n/2 - 1."""
    i = np.arange(n)
    window = sum((-1) ** j * c * np.cos(2 * np.pi * j * i / n) for j, c in enumerate(COEFFICIENTS[code]))
    return np.abs(np.fft.fft(exponential(n, k / n, a) * window / window.mean()))[: n // 2] ** 2 / n**2


def analyze(qv, power, harmonics, code, fs, fundamental):
    amp, freq, thd, thdn = np.empty(harmonics), np.empty(harmonics), scalar(), scalar()
    assert qv.ZemFunc87(power, len(power), 0, harmonics, code, fs, fundamental, amp, freq, thd, thdn) == 0
    return amp, freq, thd[0], thdn[0]


def test_amplitude_comes_from_the_response_before_the_last_step(qv):
    """The bisection of a Hanning window by hand; the last two responses differ by 3e-8 of themselves."""
    n, k, N = 512, 25.3, 512.0
    power = line_power(n, 1, k, 1.5)
    amp, freq, _, _ = analyze(qv, power, 1, 1, float(n), k)

    def response(d):
        def D(x):
            s = np.sin(np.pi * x)
            return N if abs(s) <= 2.220446049250313e-16 else np.sin(N * np.pi * x) / s
        return (0.5 * D(d) + (D(d + 1 / N) + D(d - 1 / N)) * 0.25) / 0.5

    peak, neighbour = np.sqrt(power[25]), np.sqrt(power[26])
    offset, step = 1 / (2 * N), 1 / (4 * N)
    while step > 1e-8 / N:
        evaluated = response(offset)
        error = abs(evaluated / response(1 / N - offset)) - peak / neighbour
        offset += np.sign(error) * step
        step *= 0.5
    assert freq[0] == pytest.approx(25 + N * offset, rel=4 * EPS)
    assert amp[0] == pytest.approx(N * peak / evaluated, rel=16 * EPS)
    assert abs(response(offset) / evaluated - 1) > 64 * EPS, "or the test would not tell one from the other"


@pytest.mark.parametrize("code", range(9))
def test_line_through_every_window(qv, code):
    n, rng = 4096, np.random.default_rng(code)
    for _ in range(30):
        k, a = rng.uniform(20, 30), rng.uniform(0.5, 2)
        amp, freq, _, _ = analyze(qv, line_power(n, code, k, a), 1, code, float(n), k)
        # Bisection ends at steps of 1e-8 bins; the formula leaves out turns by pi / n of the window's terms, (pi / n)^2
        # = 6e-7 of their differences. A rectangle off by d bins has neighbours that differ by 4 a^2 d^3 only; below
        # 1e-7 times an index of up to 5 the bin is taken as it is.
        off = (5e-7 / (4 * a**2)) ** (1 / 3) if code == 0 else 1e-7
        assert abs(freq[0] - k) <= off
        assert amp[0] == pytest.approx(a, rel=max(1e-7, 2 * off**2))


def test_distortion_of_a_power_spectrum(qv):
    n, k, code = 8192, 300.4, 8
    power = sum(line_power(n, code, k * (j + 1), a) for j, a in enumerate([1, 0.1, 0.05, 0.01]))
    amp, freq, thd, thdn = analyze(qv, power, 6, code, 1.0, k / n)
    # The lines are 300 bins apart; the sidelobes of this window are below 1e-8.
    assert amp[:4] == pytest.approx([1, 0.1, 0.05, 0.01], rel=1e-6)
    assert freq[:4] * n == pytest.approx(k * np.arange(1, 5), abs=1e-4)
    ratio = np.sqrt(0.1**2 + 0.05**2 + 0.01**2)
    assert thd == pytest.approx(ratio * 100, rel=1e-6)
    # Up to 3 bins either side count as the fundamental; what its lobe has beyond them counts as the rest.
    line = line_power(n, code, k, 1)
    beyond = 1 - line[297:304].sum() / line.sum()
    assert thdn == pytest.approx(np.sqrt((ratio**2 + beyond) / (1 + ratio**2)) * 100, rel=1e-5)
