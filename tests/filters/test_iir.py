"""Recursive filters beside SciPy and beside their defining responses at 50 digits.

A stage is judged through its response on the unit circle. Coefficients that are right to a few eps move the response
by that much of sum |a| / |A(z)| and sum |b| / |B(z)|, added over the stages: `Cascade.conditioning`.
"""

import ctypes

import mpmath as mp
import numpy as np
import pytest
import scipy.signal
import scipy.special

EPS = np.finfo(float).eps
LOW, HIGH, BAND, STOP = range(4)
SCIPY_KINDS = ("lowpass", "highpass", "bandpass", "bandstop")
FS, FL, FH = 2.0, 0.21, 0.43
RIPPLE, ATTENUATION = 0.7, 53.0
# Export of the design, of the polynomials, levels.
FAMILIES = {"even_pole": (12, 13, ()), "butterworth": (18, 19, ()), "bessel": (471, None, ()),
            "chebyshev": (24, 25, (RIPPLE,)), "inverse_chebyshev": (98, 99, (ATTENUATION,)),
            "elliptic": (61, 62, (RIPPLE, ATTENUATION))}
ORDERS = range(1, 21)


class Record(ctypes.Structure):
    _fields_ = [("type", ctypes.c_int32), ("order", ctypes.c_int32), ("reset", ctypes.c_int32),
                ("a_count", ctypes.c_int32), ("a", ctypes.POINTER(ctypes.c_double)),
                ("b_count", ctypes.c_int32), ("b", ctypes.POINTER(ctypes.c_double)),
                ("state_count", ctypes.c_int32), ("state", ctypes.POINTER(ctypes.c_double))]


class Cascade:
    """The stages of a designed filter, as arrays of polynomials in ascending powers of z^-1."""

    def __init__(self, qv, family, kind, order, fs=FS, fl=FL, fh=FH, levels=None):
        number, _, usual = FAMILIES[family]
        handle = qv.ZemFunc233(kind, order)
        levels = usual if levels is None else levels
        assert getattr(qv, f"ZemFunc{number}")(fs, fl, fh, *levels, handle) == 0
        record = ctypes.cast(handle, ctypes.POINTER(Record)).contents
        width, stages = (2 if kind < BAND else 4), (order + 1) // 2
        a = np.array(record.a[:record.a_count]).reshape(stages, width)
        self.a = np.hstack([np.ones((stages, 1)), a])
        self.b = np.array(record.b[:record.b_count]).reshape(stages, width + 1)
        qv.ZemFunc234(handle)

    def response(self, f, fs=FS):
        """The response at frequencies, stage by stage, and its conditioning."""
        z = np.exp(-2j * np.pi * np.asarray(f) / fs)[:, None, None] ** np.arange(self.b.shape[1])
        a, b = (self.a * z).sum(2), (self.b * z).sum(2)
        with np.errstate(divide="ignore"):
            self.conditioning = (np.abs(self.a).sum(1) / np.abs(a) + np.abs(self.b).sum(1) / np.abs(b)).sum(1)
        return np.prod(b / a, axis=1)

    def pole_radius(self):
        return max(np.abs(np.roots(a)).max() for a in self.a)


def edge(f, fs=FS):
    return mp.tan(mp.pi * mp.mpf(f) / mp.mpf(fs))


def analog(kind, f, fs=FS, fl=FL, fh=FH):
    """The frequency of the prototype that the frequency f of the filter comes from."""
    omega = edge(f, fs)
    if kind in (LOW, HIGH):
        ratio = omega / edge(fl, fs)
        return ratio if kind == LOW else 1 / ratio
    low, high = edge(fl, fs), edge(fh, fs)
    ratio = (omega ** 2 - low * high) / (omega * (high - low))
    return ratio if kind == BAND else 1 / ratio


def bessel_polynomial(n):
    """The reverse Bessel polynomial, highest power first."""
    return [mp.factorial(n + k) / (mp.mpf(2) ** k * mp.factorial(k) * mp.factorial(n - k)) for k in range(n + 1)]


def bessel_poles(n):
    """Its zeros, scaled to -3 dB at 1; and the scale."""
    c = bessel_polynomial(n)
    cutoff = mp.findroot(lambda x: mp.log(abs(mp.polyval(c, 1j * x)) ** 2 / (2 * c[-1] ** 2)),
                         mp.sqrt((2 * n - 1) * mp.log(2)))
    return [p / cutoff for p in mp.polyroots(c, maxsteps=500, extraprec=400)], cutoff


class Truth:
    """Squared magnitudes by the definition of each family, of one order."""

    def __init__(self, family, n, ripple=RIPPLE, attenuation=ATTENUATION):
        self.n = n
        self.epsilon = mp.sqrt(mp.mpf(10) ** (mp.mpf(ripple) / 10) - 1)
        self.delta = mp.sqrt(mp.mpf(10) ** (mp.mpf(attenuation) / 10) - 1)
        self.squared = getattr(self, family)
        if family == "bessel":
            self.poles, self.scale = bessel_poles(n)
        if family == "even_pole":
            x = [1 - mp.mpf(2 * k + 1) / n for k in range(n // 2)]
            pairs = [mp.mpc(-mp.sqrt(1 - w * w), w) for w in x]
            self.poles = pairs + [mp.conj(p) for p in pairs] + ([mp.mpf(-1)] if n % 2 else [])
        if family == "elliptic":
            self.k1 = self.epsilon / self.delta
            nome = mp.qfrom(k=self.k1) ** (mp.mpf(1) / n)
            self.k = mp.kfrom(q=nome)
            self.K, self.K1 = mp.ellipk(self.k ** 2), mp.ellipk(self.k1 ** 2)

    def all_pole(self, w):
        return 1 / mp.fprod(abs(1 - 1j * w / p) ** 2 for p in self.poles)

    bessel = even_pole = all_pole

    def butterworth(self, w):
        return 1 / (1 + w ** (2 * self.n))

    def chebyshev(self, w):
        return 1 / (1 + (self.epsilon * mp.chebyt(self.n, w)) ** 2)

    def inverse_chebyshev(self, w):
        ratio = self.delta / mp.chebyt(self.n, 1 / w) if w else mp.mpf(0)
        return 1 / (1 + ratio ** 2)

    def elliptic(self, w):
        """The rational function is cd(n u K1 / K, k1) where w = cd(u, k)."""
        u = self.K - mp.ellipf(mp.asin(w), self.k ** 2)
        value = mp.ellipfun("cd", self.n * u * self.K1 / self.K, k=self.k1)
        return 1 / (1 + mp.re(self.epsilon * value) ** 2)



def bessel_tolerance(truth, w):
    """What rounding of the eigenvalue problem does to the response at the frequency w.

    The response is 1 / det(I - s M), s in the unit of the polynomial; M, once balanced, is skew-symmetric but for one
    element. A perturbation E of M changes the logarithm by trace(s (I - s M)^-1 E), at most n |s| |(I - s M)^-1| |E|
    in 2-norms, with |E| of a few eps |M|. The cutoff is a zero of a real polynomial in x; its relative condition is
    sum |c x^k| / |x p'(x)|, and the slope of the response over ln w is at most n.
    """
    n = truth.n
    i = np.arange(n - 1)
    off = np.sqrt(np.where(i == 0, 1.0, 1 / (2 * i + 1)) / (2 * i + 3))
    M = np.diag(off, 1) - np.diag(off, -1)
    M[0, 0] = -1
    s = 1j * float(w * truth.scale)
    resolvent = np.linalg.norm(np.linalg.inv(np.eye(n) - s * M), 2)
    c = bessel_polynomial(n)[::-1]
    squares = [mp.mpf(0)] * (2 * n + 1)
    size = [mp.mpf(0)] * (2 * n + 1)
    for j in range(n + 1):
        for k in range(j % 2, n + 1, 2):
            sign = -1 if (j - k) // 2 % 2 else 1
            squares[j + k] += sign * c[j] * c[k]
            size[j + k] += c[j] * c[k]
    x = truth.scale
    slope = sum(k * squares[k] * x ** k for k in range(2 * n + 1))
    condition = float(sum(size[k] * x ** k for k in range(2 * n + 1)) / abs(slope))
    return EPS * n * (abs(s) * resolvent * np.linalg.norm(M, 2) + condition)


def elliptic_tolerance(truth, w, relative=1.2e-7):
    """What one argument that is right to single precision only, u0, does to the response at the frequency w.

    The poles, p = -(c d s0 c0 - j s d0) / (1 - d² s0²), follow u0; each is normalised to 1 at frequency 0.
    """
    def poles(u0):
        kc = mp.sqrt(1 - truth.k ** 2)
        s0, c0, d0 = (mp.ellipfun(name, u0, k=kc) for name in ("sn", "cn", "dn"))
        for j in range(1 - truth.n, truth.n, 2):
            s, c, d = (mp.ellipfun(name, j * truth.K / truth.n, k=truth.k) for name in ("sn", "cn", "dn"))
            yield complex(mp.mpc(-c * d * s0 * c0, s * d0) / (1 - d * d * s0 * s0))

    if not hasattr(truth, "moved"):
        u0 = mp.re(mp.ellipf(mp.atan(1 / truth.epsilon), 1 - truth.k1 ** 2)) * truth.K / truth.n / truth.K1
        truth.moved = [np.array(list(poles(u))) for u in (u0, u0 * (1 + relative))]
    gain, moved = (np.prod(p / (1j * float(w) - p)) for p in truth.moved)
    return abs(moved / gain - 1)


# Inside, at and outside of the edges; away from 0 and fs/2, where an infinite w would stand.
POINTS = (0.013, 0.1, 0.17, 0.2, 0.21, 0.24, 0.3, 0.35, 0.43, 0.5, 0.66, 0.91)


@pytest.mark.parametrize("family", FAMILIES)
@pytest.mark.parametrize("kind", range(4))
def test_response_is_the_defining_one(qv, family, kind):
    with mp.workdps(50):
        for order in (1, 2, 3, 4, 5, 8, 11, 20):
            if family == "chebyshev" and order == 1 and kind >= BAND:
                continue  # has a test of its own
            truth, cascade = Truth(family, order), Cascade(qv, family, kind, order)
            got = np.abs(cascade.response(POINTS))
            for f, value, conditioning in zip(POINTS, got, cascade.conditioning):
                w = analog(kind, f)
                expected = mp.sqrt(truth.squared(w))
                tolerance = 4 * EPS * conditioning
                if family == "bessel":
                    tolerance += bessel_tolerance(truth, w)
                if family == "elliptic":
                    tolerance += elliptic_tolerance(truth, w)
                assert abs(value - expected) <= tolerance * expected, (order, f)


SCIPY = {"butterworth": lambda n, W, kind: scipy.signal.butter(n, W, kind, output="zpk"),
         "bessel": lambda n, W, kind: scipy.signal.bessel(n, W, kind, output="zpk", norm="mag"),
         "chebyshev": lambda n, W, kind: scipy.signal.cheby1(n, RIPPLE, W, kind, output="zpk"),
         "inverse_chebyshev": lambda n, W, kind: scipy.signal.cheby2(n, ATTENUATION, W, kind, output="zpk"),
         "elliptic": lambda n, W, kind: scipy.signal.ellip(n, RIPPLE, ATTENUATION, W, kind, output="zpk")}


@pytest.mark.parametrize("family", SCIPY)
@pytest.mark.parametrize("kind", range(4))
def test_response_is_scipys_phase_and_all(qv, family, kind):
    """SciPy's Bessel cutoff comes from an iteration, its elliptic designs from equations solved to about 1e-9."""
    z = np.exp(1j * np.pi * np.array(POINTS))
    limit = {"elliptic": 1e-9, "bessel": 1e-10}.get(family, 1e-12)
    for order in (*ORDERS, 25):
        if family == "chebyshev" and order == 1 and kind >= BAND:
            continue
        zeros, poles, gain = SCIPY[family](order, FL if kind < BAND else [FL, FH], SCIPY_KINDS[kind])
        expected = np.full(len(z), complex(gain))
        for k in range(len(poles)):  # factors of one size in turn, or the product overflows
            expected *= (z - zeros[k] if k < len(zeros) else 1) / (z - poles[k])
        cascade = Cascade(qv, family, kind, order)
        tolerance = np.full(len(z), limit)
        if family == "elliptic":
            with mp.workdps(30):
                truth = Truth(family, order)
                tolerance += [elliptic_tolerance(truth, analog(kind, f)) for f in POINTS]
        assert np.all(np.abs(cascade.response(POINTS) - expected) <= tolerance), order


def test_first_order_chebyshev_band_does_not_depend_on_the_ripple(qv):
    for kind in (BAND, STOP):
        cascades = [Cascade(qv, "chebyshev", kind, 1, levels=(ripple,)) for ripple in (0.01, 1.0, 40.0)]
        butterworth = Cascade(qv, "butterworth", kind, 1)
        for cascade in cascades:
            assert np.array_equal(cascade.a, butterworth.a) and np.array_equal(cascade.b, butterworth.b)
    for kind in (LOW, HIGH):
        one, other = (Cascade(qv, "chebyshev", kind, 1, levels=(ripple,)) for ripple in (0.01, 1.0))
        assert not np.array_equal(one.a, other.a)


def passband(kind, points):
    """Frequencies whose prototype frequency runs through points (all at least 0)."""
    w, low, high = np.tan(np.pi * np.array((FL, FL, FH)) / FS)
    points = np.asarray(points)
    if kind in (LOW, HIGH):
        with np.errstate(divide="ignore"):
            omega = w * (points if kind == LOW else 1 / points)
    else:
        with np.errstate(divide="ignore"):
            x = (points if kind == BAND else 1 / points) * (high - low) / 2
        omega = x + np.sqrt(x * x + low * high)
    return np.arctan(omega) * FS / np.pi


@pytest.mark.parametrize("kind", range(4))
@pytest.mark.parametrize("order", ORDERS)
def test_edges_and_ripple_are_those_asked_for(qv, kind, order):
    """On a grid of Chebyshev's points an extreme of ripple is missed by at most (pi order / points)² / 2 of its size."""
    points = 400 * order
    grid = np.cos(np.linspace(0, np.pi / 2, points))[:-1]
    missed = (np.pi * order / points) ** 2
    trough, floor = 10 ** (-RIPPLE / 20), 10 ** (-ATTENUATION / 20)

    def levels(family, at):
        cascade = Cascade(qv, family, kind, order)
        return np.abs(cascade.response(passband(kind, at))), cascade

    for family in ("butterworth", "bessel"):
        values, _ = levels(family, [1.0, *grid])
        assert values[0] == pytest.approx(np.sqrt(0.5), rel=1e-9)
        assert np.all(np.diff(values[1:]) >= -1e-9), family  # from the edge up to the middle of the passband
    if not (order == 1 and kind >= BAND):
        values, _ = levels("chebyshev", [1.0, *grid])
        assert values[0] == pytest.approx(trough, rel=1e-9)
        assert trough * (1 - 1e-9) <= values.min() <= trough * (1 + missed)
        assert 1 - missed <= values.max() <= 1 + 1e-9
        steps = np.diff(values[1:])
        turns = np.diff(np.sign(steps[np.abs(steps) > 1e-12])) != 0  # above rounding
        assert turns.sum() == order - 1  # every extreme between the edge and the middle

    values, _ = levels("inverse_chebyshev", [1.0, *(1 / grid)])
    assert values[0] == pytest.approx(floor, rel=1e-9)
    assert floor * (1 - missed) <= values.max() <= floor * (1 + 1e-9)
    assert np.all(levels("inverse_chebyshev", grid)[0] > floor * (1 - 1e-9))

    # Elliptic: single precision in one argument shows in the ripple. The grid follows the elliptic sine.
    truth = Truth("elliptic", order)
    k, K = float(truth.k), float(truth.K)
    if 1 - k > 1e-9:
        sine = scipy.special.ellipj(np.linspace(0, K, points), k * k)[0]
        values, _ = levels("elliptic", [1.0, *sine])
        assert values[0] == pytest.approx(trough, rel=1e-6)
        assert trough * (1 - 1e-6) <= values.min() <= trough * (1 + missed)
        assert 1 - missed <= values.max() <= 1 + 1e-6
        values, _ = levels("elliptic", 1 / (k * sine[1:]))
        assert floor * (1 - missed) <= values.max() <= floor * (1 + 1e-5)


@pytest.mark.parametrize("kind", range(4))
def test_high_orders_are_stable(qv, kind):
    for family, order in (("elliptic", 20), ("bessel", 25), ("inverse_chebyshev", 40), ("butterworth", 40)):
        assert Cascade(qv, family, kind, order).pole_radius() < 1
        handle = qv.ZemFunc233(kind, order)
        number, _, levels = FAMILIES[family]
        assert getattr(qv, f"ZemFunc{number}")(FS, FL, FH, *levels, handle) == 0
        x = np.zeros(1 << 17)
        x[0] = 1
        assert qv.ZemFunc91(x, len(x), handle, x) == 0
        qv.ZemFunc234(handle)
        assert np.all(np.isfinite(x)) and np.abs(x).max() < 2 and np.abs(x).max() > 0
        assert not np.any((x != 0) & (np.abs(x) <= np.finfo(float).tiny))
        if family in ("bessel", "butterworth"):  # the poles of the others are too near to the circle to end so soon
            assert np.all(x[-1000:] == 0), family


@pytest.mark.parametrize("kind", range(4))
def test_bessel_of_very_high_order_keeps_its_cutoff(qv, kind):
    """From cutoffs that are found to about 1e-9, times the order, which the slope there stays below."""
    for order in (30, 60, 100):
        edges = np.abs(Cascade(qv, "bessel", kind, order).response([FL] if kind < BAND else [FL, FH]))
        assert edges == pytest.approx(np.sqrt(0.5), rel=1e-9 * order), order


@pytest.mark.parametrize("kind", range(4))
@pytest.mark.parametrize("family", ["butterworth", "chebyshev", "inverse_chebyshev", "elliptic"])
def test_transfer_function_is_scipys(qv, family, kind):
    """Multiplied up, coefficients cancel: errors are relative to the largest of each polynomial."""
    _, number, levels = FAMILIES[family]
    for order in (1, 2, 3, 4, 7):
        if family == "chebyshev" and order == 1 and kind >= BAND:
            continue
        L = (order if kind < BAND else 2 * order) + 1
        a, b = np.empty(L), np.empty(L)
        assert getattr(qv, f"ZemFunc{number}")(kind, order, FS, FL, FH, *levels, a, L, b, L) == 0
        zeros, poles, gain = SCIPY[family](order, FL if kind < BAND else [FL, FH], SCIPY_KINDS[kind])
        numerator, denominator = scipy.signal.zpk2tf(zeros, poles, gain)
        limit = 1e-7 if family == "elliptic" else 1e-12
        np.testing.assert_allclose(a, denominator, rtol=0, atol=limit * np.abs(denominator).max())
        np.testing.assert_allclose(b, numerator, rtol=0, atol=limit * np.abs(numerator).max())


ONE_SHOTS = {"butterworth": ((21, 20, 16, 17), (450, 451, 452, 453)),
             "chebyshev": ((27, 26, 22, 23), (454, 455, 456, 457)),
             "inverse_chebyshev": ((101, 100, 96, 97), (458, 459, 460, 461)),
             "elliptic": ((64, 63, 59, 60), (462, 463, 464, 465)),
             "bessel": ((399, 400, 401, 402), (403, 404, 405, 406))}


@pytest.mark.parametrize("kind", range(4))
@pytest.mark.parametrize("family", ONE_SHOTS)
def test_one_shots_are_sosfilt_of_scipys_design(qv, family, kind):
    rng = np.random.default_rng(5)
    x = rng.uniform(-1, 1, 300)
    z = x + 1j * rng.uniform(-1, 1, 300)
    edges = (FL,) if kind < BAND else (FL, FH)
    for order in (1, 2, 3, 4, 6, 9):
        if family == "chebyshev" and order == 1 and kind >= BAND:
            continue
        sections = scipy.signal.zpk2sos(*SCIPY[family](order, FL if kind < BAND else [FL, FH], SCIPY_KINDS[kind]))
        limit = 1e-6 if family == "elliptic" else 1e-10
        for data, number in ((x, ONE_SHOTS[family][0][kind]), (z, ONE_SHOTS[family][1][kind])):
            y = np.empty_like(data)
            assert getattr(qv, f"ZemFunc{number}")(data, len(data), FS, *edges, *FAMILIES[family][2], order, y) == 0
            np.testing.assert_allclose(y, scipy.signal.sosfilt(sections, data), rtol=0, atol=limit)


@pytest.mark.parametrize("order", [2, 5, 8, 20])
def test_cascade_is_sosfilt(qv, order):
    sections = scipy.signal.butter(order, 0.3, output="sos")
    handle = qv.ZemFunc233(LOW, order)
    record = ctypes.cast(handle, ctypes.POINTER(Record)).contents
    for s, section in enumerate(sections):
        for k in range(3):
            record.b[3 * s + k] = section[k]
        for k in range(2):
            record.a[2 * s + k] = section[4 + k]
    rng = np.random.default_rng(order)
    x = rng.uniform(-1, 1, 1000)
    y = np.empty_like(x)
    assert qv.ZemFunc91(x, 1000, handle, y) == 0
    np.testing.assert_allclose(y, scipy.signal.sosfilt(sections, x), rtol=0, atol=1e-13)
    qv.ZemFunc234(handle)
