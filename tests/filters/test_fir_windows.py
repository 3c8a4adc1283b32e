"""FIR designs by windows beside SciPy's firwin, and what their responses reach."""

import numpy as np
import pytest
from scipy import signal

KINDS = {"lowpass": 0, "highpass": 1, "bandpass": 2, "bandstop": 3}
# Choice, Quorvan's code, SciPy's window.
WINDOWS = [(1, 0, "boxcar"), (2, 30, "bartlett"), (3, 1, "hann"), (4, 2, "hamming"), (5, 5, "blackman")]
NAMED = {"lowpass": 189, "highpass": 188, "bandpass": 186, "bandstop": 187}
KAISER = {"lowpass": 112, "highpass": 111, "bandpass": 109, "bandstop": 110}


def edges_of(kind, fl, fh):
    return [fl] if KINDS[kind] < 2 else [fl, fh]


def rounding(taps):
    """Angles accumulate over taps/2 steps of at most pi, beside a denominator of at least pi/2."""
    return 2.3e-16 * (taps**2 + 4)


@pytest.mark.parametrize("kind", KINDS)
@pytest.mark.parametrize("taps", [3, 8, 31, 200, 201])
def test_named_designs_are_firwin_without_scaling(qv, kind, taps):
    edges = edges_of(kind, 0.11, 0.34)
    if KINDS[kind] % 2 and taps % 2 == 0:
        assert getattr(qv, f"ZemFunc{NAMED[kind]}")(1.0, *edges, taps, np.zeros(taps), 1) == -20033
        return
    for choice, code, name in WINDOWS:
        theirs = signal.firwin(taps, edges, window=name, pass_zero=kind, scale=False, fs=1.0)
        ours, general = np.zeros(taps), np.zeros(taps)
        assert getattr(qv, f"ZemFunc{NAMED[kind]}")(1.0, *edges, taps, ours, choice) == 0
        assert np.allclose(ours, theirs, rtol=0, atol=rounding(taps)), name
        assert qv.ZemFunc335(KINDS[kind], 1.0, 0.11, 0.34, taps, code, 0.0, general) == 0
        assert np.array_equal(ours, general)


@pytest.mark.parametrize("kind", KINDS)
@pytest.mark.parametrize("beta", [0.0, 2.5, 4.5, 9.0])
def test_kaiser_designs_are_firwin(qv, kind, beta):
    edges, ours = edges_of(kind, 130.0, 350.0), np.zeros(101)
    theirs = signal.firwin(101, edges, window=("kaiser", beta), pass_zero=kind, scale=False, fs=1000.0)
    assert getattr(qv, f"ZemFunc{KAISER[kind]}")(1000.0, *edges, 101, ours, beta) == 0
    # The window's Bessel series ends at a term of 1e-8.
    assert np.allclose(ours, theirs, rtol=0, atol=1e-8)


@pytest.mark.parametrize("ripple", [30.0, 50.0, 70.0, 90.0])
@pytest.mark.parametrize("kind", KINDS)
def test_kaiserord_predicts_ripple_and_edges_of_the_response(qv, kind, ripple):
    width = 0.05
    taps, beta = signal.kaiserord(ripple, width / 0.5)
    taps |= 1
    edges, h = edges_of(kind, 0.12, 0.33), np.zeros(taps)
    assert getattr(qv, f"ZemFunc{KAISER[kind]}")(1.0, *edges, taps, h, beta) == 0
    inside = (lambda f: f < 0.12) if KINDS[kind] < 2 else (lambda f: (f > 0.12) & (f < 0.33))

    def error(taps):
        f, response = signal.freqz(taps, worN=8192, fs=1.0)
        ideal = inside(f) if KINDS[kind] in (0, 2) else ~inside(f)
        clear = np.all([np.abs(f - e) > width / 2 for e in edges], axis=0)
        return np.abs(np.abs(response) - ideal)[clear].max()

    reached = error(h)
    # Two edges add their ripples. The fit of beta is empirical: what it misses, SciPy's design misses too, up to the
    # end of the window's Bessel series at a term of 1e-8, in every tap.
    assert reached < len(edges) * 10 ** (-(ripple - 2.0) / 20)
    theirs = signal.firwin(taps, edges, window=("kaiser", beta), pass_zero=kind, scale=False, fs=1.0)
    assert reached < error(theirs) + 1e-8 * np.abs(theirs).sum()
    for edge in edges:
        gain = np.abs(np.exp(-2j * np.pi * edge * np.arange(taps)) @ h)
        assert abs(gain - 0.5) < len(edges) * reached


@pytest.mark.parametrize("numbers", [(481, 486), (482, 487), (483, 488), (484, 489)])
def test_filters_are_scipys_convolution_with_firwin(qv, numbers):
    kind = list(KINDS)[numbers[0] - 481]
    rng = np.random.default_rng(3)
    x, taps, edges = rng.standard_normal(500) + 1j * rng.standard_normal(500), 45, edges_of(kind, 1.1, 2.9)
    h = signal.firwin(taps, edges, window="blackman", pass_zero=kind, scale=False, fs=8.0)
    for number, samples in zip(numbers, (np.ascontiguousarray(x.real), x)):
        y = np.zeros(544, samples.dtype)
        assert getattr(qv, f"ZemFunc{number}")(samples, 500, taps, 8.0, *edges, 5, 0.0, y) == 0
        assert np.allclose(y, np.convolve(samples, h), rtol=0, atol=1e-12)
