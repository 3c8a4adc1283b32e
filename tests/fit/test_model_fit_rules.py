"""The fixed models in scalar arithmetic, in the documented order, and everything that a call may return.

The linear solves, pseudo-inverses and medians are those of the library's own exports, which have tests beside NumPy;
what lies around them is modelled: the checks, the weights, each sum, each loop, what is kept and what is written.
"""

import math

import numpy as np
import pytest

from exact import divided, fits, equal_numbers, libm, numbers

LINE, EXPONENTIAL, POWER, LOGARITHM, GAUSSIAN = range(5)
MODELS = range(5)
TOKEN = 2.71828
exp, log, log10, power = libm("exp"), libm("log"), libm("log10"), libm("pow", 2)
NAN, INF = math.nan, math.inf
LARGEST = 1.7976931348623157e308


class Failed(Exception):
    pass


def root(v):
    return math.sqrt(v) if v >= 0 else NAN


def finite(v):
    return -1.7976931348623e308 < v < LARGEST


def log_base(base, v):
    if base == TOKEN:
        return log(v)
    return log10(v) if base == 10.0 else divided(log(v), log(base))


class Fit:
    """One call: the samples, the weights, and the library for its solves."""

    def __init__(self, qv, model, x, y, w, base=TOKEN):
        self.qv, self.model, self.base = qv, model, base
        self.x, self.y = x.tolist(), y.tolist()
        self.n = len(self.x)
        self.w = None if w is None else w.tolist()

    # What the engines call

    def general(self, rows, target, w):
        if len(rows) < 2:
            raise Failed(-20037)
        design, y = np.array(rows), np.array(target)
        if w is not None:
            scale = np.sqrt(np.abs(np.array(w)))
            with np.errstate(all="ignore"):
                design, y = design * scale[:, None], y * scale
        c = np.full(2, NAN)
        status = self.qv.ZemFunc239(np.ascontiguousarray(design).ravel(), len(rows), 2, y, c, 0)
        if status < 0:
            raise Failed(status)
        return c.tolist()

    def median(self, v):
        result = np.zeros(1)
        status = self.qv.ZemFunc123(np.array(v), len(v), result)
        if status < 0:
            raise Failed(status)
        return float(result[0])

    def mean(self, v):
        result = np.zeros(1)
        assert self.qv.ZemFunc122(np.array(v), len(v), result) == 0
        return float(result[0])

    def inverse(self, G, p):
        G = np.array(G).ravel()
        status = self.qv.ZemFunc200(G, p, p, -1.0, None)
        if status < 0:
            raise Failed(status)
        return G.reshape(p, p).tolist()

    # Models

    def value(self, c, x):
        if self.model == LINE:
            return c[0] * x + c[1]
        if self.model == EXPONENTIAL:
            return c[0] * exp(c[1] * x)
        if self.model == POWER:
            return c[0] * power(x, c[1])
        if self.model == LOGARITHM:
            return c[0] * log_base(self.base, c[1] * x)
        z = divided(x - c[1], c[2])
        return c[0] * exp(-0.5 * (z * z))

    def row(self, c, x):
        if self.model == LINE:
            return [1.0, x]
        if self.model == EXPONENTIAL:
            e = exp(c[1] * x)
            return [e, c[0] * x * e]
        if self.model == POWER:
            e = power(x, c[1])
            return [e, c[0] * e * log(x)]
        if self.model == LOGARITHM:
            q = divided(c[0], c[1])
            return [log_base(self.base, c[1] * x), q if self.base == TOKEN else divided(q, log(self.base))]
        z = divided(x - c[1], c[2])
        e = exp(-0.5 * (z * z))
        return [e, divided(c[0] * z * e, c[2]), divided(c[0] * (z * z) * e, c[2])]

    def shape(self, c):
        """The bell of height 1, by the library's own exponential: an infinite tolerance keeps the guess."""
        if not (finite(c[1]) and finite(c[2]) and c[2] != 0):
            z = [divided(x - c[1], c[2]) for x in self.x]
            return [exp(-0.5 * (v * v)) for v in z]
        x = np.array(self.x)
        status, _, curve, _, _ = call(self.qv, GAUSSIAN, x, 0.0 * x, None, self.n, 0, INF, np.array([1.0, c[1], c[2]]))
        assert status == 0
        with np.errstate(all="ignore"):
            z = (x - c[1]) / c[2]
            e = np.exp(-0.5 * (z * z))
        assert np.all(np.abs(curve - e) <= 1e-15 * e + 5e-324) and not np.isnan(e).any()
        return curve.tolist()

    def curve(self, c):
        if self.model == GAUSSIAN:
            return [c[0] * e for e in self.shape(c)]
        return [self.value(c, x) for x in self.x]

    def last_curve(self, c, method):
        """The robust methods evaluate their result with the exponential of the C library."""
        return [self.value(c, x) for x in self.x] if method else self.curve(c)

    def squared(self, c, w, curve=None):
        total = 0.0
        for i, f in enumerate(curve or self.curve(c)):
            y = self.y[i]
            term = (f - 2.0 * y) * f + y * y
            total += term if w is None else abs(w[i]) * term
        return divided(total, self.n)

    def absolute(self, c, w):
        total = 0.0
        for i, f in enumerate(self.curve(c)):
            total += abs(self.y[i] - f) if w is None else abs((self.y[i] - f) * w[i])
        return divided(total, self.n)

    # Engines: coefficients

    def checked(self, w):
        """The weights, or None when all are zero."""
        if w is None:
            return None
        if any(math.isnan(v) for v in w):
            raise Failed(-20068)
        zeros = sum(v == 0 for v in w)
        if zeros == self.n:
            return None
        if zeros == self.n - 1 or (self.model == GAUSSIAN and zeros == self.n - 2):
            raise Failed(-20141)
        return w

    def line(self, x, w):
        Sw = Sx = Sy = Sxy = Sxx = 0.0
        y = self.y
        if w is not None:
            largest = max(abs(v) for v in w)
            for i in range(self.n):
                u = divided(abs(w[i]), largest)
                Sw += u
                Sx += u * x[i]
                Sy += u * y[i]
                Sxy += u * x[i] * y[i]
                Sxx += u * x[i] * x[i]
            a = divided(Sy * Sx - Sxy * Sw, Sx * Sx - Sxx * Sw)
            return [a, divided(Sy - a * Sx, Sw)]
        for i in range(self.n):
            Sx += x[i]
            Sy += y[i]
            Sxy += x[i] * y[i]
            Sxx += x[i] * x[i]
        below = Sx * Sx - self.n * Sxx
        return [divided(Sy * Sx - self.n * Sxy, below), divided(Sxy * Sx - Sy * Sxx, below)]

    def growth(self, w, tolerance, limit, guess, iterate=True):
        s = 1.0 if sum(v > 0 for v in self.y) >= sum(v < 0 for v in self.y) else -1.0
        if self.model == POWER and any(v <= 0 for v in self.x):
            raise Failed(-20140)
        if guess is not None and all(finite(v) for v in guess):
            c = list(guess)
        else:
            rows, target, weights = [], [], []
            for i, (x, y) in enumerate(zip(self.x, self.y)):
                if s * y > 0:
                    rows.append([1.0, log(x) if self.model == POWER else x])
                    target.append(log(s * y))
                    weights.append(y * y if w is None else abs(y * w[i] * y))
            c = self.general(rows, target, weights)
            c = [s * exp(c[0]), c[1]]
        if not iterate:
            return c
        tolerance = 1e-4 if tolerance <= 0 else tolerance
        E = self.squared(c, w)
        best, best_E, previous, count = list(c), E, 2.0 * E, 0
        while abs(previous - E) > previous * tolerance and E > 1e-12:
            previous = E
            target = [y - self.value(c, x) for x, y in zip(self.x, self.y)]
            step = self.general([self.row(c, x) for x in self.x], target, w)
            c = [c[0] + step[0], c[1] + step[1]]
            E = self.squared(c, w)
            count += 1
            if not math.isfinite(E) or (count > limit // 10 and E > previous and E > best_E):
                break
            if best_E > E:
                best, best_E = list(c), E
            if count > limit:
                break
        return best

    def logarithm(self, w):
        if all(v > 0 for v in self.x):
            s = 1.0
        elif all(v < 0 for v in self.x):
            s = -1.0
        else:
            raise Failed(-20036)
        a, c = self.line([log_base(self.base, s * x) for x in self.x], w)
        if a == 0:
            return [a, s]
        q = divided(c, a)
        return [a, s * (exp(q) if self.base == TOKEN else power(self.base, q))]

    def spike(self, peak):
        """The closed form through the peak and the nearest sample of its sign on each side."""
        left = right = None
        xp, yp = self.x[peak], self.y[peak]
        for x, y in zip(self.x, self.y):
            if y * yp > 0 and x < xp and (left is None or x > left[0]):
                left = x, y
            if y * yp > 0 and x > xp and (right is None or x < right[0]):
                right = x, y
        if left is None or right is None:
            raise Failed(-20026)
        (xl, yl), (xr, yr) = left, right
        k = divided(log(yl / yp), log(yr / yp)) * (xp - xr) / (xp - xl)
        m = divided((xr + xp) * k - xl - xp, k - 1.0) * 0.5
        s = root(divided((xl + xp - 2.0 * m) * (xp - xl), log(yl / yp)) * 0.5)
        return [divided(yl, exp(divided(divided(-0.5 * ((xl - m) * (xl - m)), s), s))), m, s]

    def gaussian(self, w, tolerance, limit, guess):
        """And the residue."""
        if not all(finite(v) for v in self.x):
            raise Failed(-20068)
        x, y, n = self.x, self.y, self.n
        if guess is not None and all(finite(v) for v in guess):
            c = list(guess)
        else:
            peak, largest = 0, -1.0  # NaN is not the largest
            for i in range(n):
                if abs(y[i]) > largest:
                    peak, largest = i, abs(y[i])
            a, m = y[peak], x[peak]
            A = B = 0.0
            count = 0
            for i in range(n):
                if y[i] != 0 and abs(y[i]) > 0.1 * abs(a):
                    A += (x[i] - m) * (x[i] - m)
                    q = divided(a, y[i])
                    B += log(q * q)
                    count += 1
            if count == 1:
                c = self.spike(peak)
                return c, self.squared(c, w)
            if B == 0:
                at = [x[i] for i in range(n) if y[i] == a] or [m]
                c = [a * 1.2, (min(at) + max(at)) * 0.5, root(max(at) - min(at))]
            else:
                c = [a, m, root(divided(A, B))]
        if c[2] == 0:
            raise Failed(-20026)
        tolerance = 1e-4 if tolerance <= 0 else tolerance
        E = self.squared(c, w)
        start, first, previous, step, wanted, count = list(c), E, E + 1.0, 1.0, True, 0
        while count <= limit and abs(previous - E) > previous * tolerance and E > 1e-12:
            if wanted:
                previous = E
                a, m, s = c
                Ga = Gm = Gs = 0.0
                for i, e in enumerate(self.shape(c)):
                    r = y[i] - a * e
                    if w is not None:
                        r *= abs(w[i])
                    Ga += r * e
                    t = divided(r * (x[i] - m) * a * e, s * s)
                    Gm += t
                    Gs += divided(t * (x[i] - m), s)
            trial = [c[0] + step * Ga, c[1] + step * Gm, c[2] + step * Gs]
            E = self.squared(trial, w)
            wanted = previous >= E
            if wanted:
                c = trial
            else:
                step *= 0.5
            count += 1
        if E >= first and previous >= first:
            c, E = start, first
        return [c[0], c[1], abs(c[2])], E

    def engine(self, w, tolerance, limit, guess):
        w = self.checked(w)
        if self.model == LINE:
            return self.line(self.x, w)
        if self.model == LOGARITHM:
            return self.logarithm(w)
        if self.model == GAUSSIAN:
            return self.gaussian(w, tolerance, limit, guess)[0]
        return self.growth(w, tolerance, limit, guess)

    # Methods: coefficients and residue

    def least_squares(self, tolerance, guess):
        if self.model == GAUSSIAN:
            return self.gaussian(self.w, tolerance, 500, guess)
        c = self.engine(self.w, tolerance, 100, None)
        return c, self.squared(c, self.w)

    @staticmethod
    def walk(keys, weights):
        """The weighted median, from below."""
        half = sum_of(weights) / 2
        total = 0.0
        for k in sorted(range(len(keys)), key=keys.__getitem__):
            total += weights[k]
            if not total < half:
                return keys[k]
        raise AssertionError("no median")

    def two_points(self):
        (x0, x1), (y0, y1) = self.x, self.y
        return [divided(y0 - y1, x0 - x1), divided(x0 * y1 - x1 * y0, x0 - x1)]

    def least_absolute(self, tolerance, guess):
        if self.model == LINE and self.n == 2:
            return self.two_points(), 0.0
        relative = 1e-4 if tolerance <= 0 else tolerance
        x, y, w, n = self.x, self.y, self.w, self.n
        c = self.engine(w, tolerance, 500 if self.model == GAUSSIAN else 50, guess)
        E0 = self.absolute(c, w)
        if self.model == LINE and sum(v == 0 for v in x) >= 2:
            raise Failed(-20055)
        first = before = list(c)
        previous, current, count = 2.0 * E0, E0, 0
        while abs(previous - current) > previous * relative and current > 1e-12 and previous > current and count < 50:
            previous, before = current, list(c)
            if self.model == LINE:
                at = [i for i in range(n) if x[i] != 0]
                a = self.walk([divided(y[i] - c[1], x[i]) for i in at],
                              [abs(x[i]) if w is None else abs(w[i] * x[i]) for i in at])
                c = [a, self.walk([y[i] - a * x[i] for i in range(n)], [1.0 if w is None else abs(v) for v in w or y])]
            else:
                r = [abs(v - f) for v, f in zip(y, self.curve(c))]
                t = 0.01 * self.median(r)
                if t == 0:
                    t = 1e-7
                u = [abs(divided(1.0 if w is None else abs(w[i]), t if t > r[i] else r[i])) for i in range(n)]
                c = self.engine(u, tolerance, 250 if self.model == GAUSSIAN else 50, before)
            current = self.absolute(c, w)
            count += 1
        chosen = c, current
        if previous >= current and E0 >= current:
            chosen = c, current
        if current >= previous and E0 >= previous:
            chosen = before, previous
        if previous >= E0 and current >= E0:
            chosen = first, E0
        return chosen

    def bisquare(self, tolerance, guess):
        if self.model == LINE and self.n == 2:
            return self.two_points(), 0.0
        x, y, w, n = self.x, self.y, self.w, self.n
        tolerance = 1e-4 if tolerance <= 0 else tolerance
        limits = {EXPONENTIAL: (100, 50), POWER: (100, 50), GAUSSIAN: (500, 300)}.get(self.model, (0, 0))
        c = self.engine(w, -1.0, limits[0], guess)
        p = len(c)
        previous, count = [v + 100000.0 for v in c], 0
        while count == 0 or (count < 50 and all(abs(o - v) > abs(o) * tolerance for o, v in zip(previous, c))):
            previous = list(c)
            J = [self.row(c, v) for v in x]
            G = [[0.0] * p for _ in range(p)]
            for i in range(n):
                for j in range(p):
                    for k in range(p):
                        G[j][k] += J[i][j] * J[i][k] if w is None else abs(w[i]) * J[i][j] * J[i][k]
            G = self.inverse(G, p)
            r = []
            for i, f in enumerate(self.curve(c)):
                h = 0.0
                for j in range(p):
                    for k in range(p):
                        h += J[i][j] * G[j][k] * J[i][k]
                u = 1.0
                if w is not None:
                    u = abs(w[i])
                    h = u * h
                if h > 0.9999:
                    factor = root(10000.0000000011) if w is None else root(u / 9.999999999998899e-5)
                else:
                    factor = root(divided(u, 1.0 - h))
                r.append((y[i] - f) * factor)
            M = self.median(r)
            d = [abs(v - M) for v in r]
            if abs(M) >= max(d):
                d = [abs(v) for v in r]
            s = self.median(d)
            if s == 0:
                s = self.mean(d)
            if s == 0:
                break
            weights, dropped = [], 0
            for v in r:
                u = divided(v * 0.6745, s * 4.685)
                q = 1.0 - u * u
                dropped += abs(u) >= 1
                weights.append(0.0 if abs(u) >= 1 else q * q)
            if dropped >= n - (2 if self.model == GAUSSIAN else 1):
                break
            if w is not None:
                weights = [v * abs(u) for v, u in zip(weights, w)]
            c = self.engine(weights, 1e-8 if self.model == GAUSSIAN else -1.0, limits[1], None)
            count += 1
        return c, self.squared(c, w, self.last_curve(c, 2))

    def result(self, method, tolerance, guess):
        if method > 2:
            raise Failed(-20061)
        if self.n < (3 if self.model == GAUSSIAN else 2):
            raise Failed(-20007 if self.model == GAUSSIAN else -20006)
        if not (self.model == LINE and self.n == 2 and method > 0):
            self.w = self.checked(self.w)
        with np.errstate(all="ignore"):
            c, residue = (self.least_squares, self.least_absolute, self.bisquare)[method](tolerance, guess)
        return c, self.last_curve(c, method), residue


def sum_of(values):
    total = 0.0
    for v in values:
        total += v
    return total


def call(qv, model, x, y, w, n, method, tolerance, guess=None, base=TOKEN, curve=True, residue=True):
    """Status, y, curve, coefficients, residue: NaN where nothing was written."""
    y, f, r = y.copy(), np.full(len(y), NAN) if curve else None, np.full(1, NAN) if residue else None
    c = [np.full(1, NAN) for _ in range(3 if model == GAUSSIAN else 2)]
    head, tail = (x, y, w, n), (f, *c, r)
    status = {LINE: lambda: qv.ZemFunc288(*head, method, tolerance, *tail),
              EXPONENTIAL: lambda: qv.ZemFunc286(*head, method, tolerance, *tail),
              POWER: lambda: qv.ZemFunc290(*head, method, tolerance, *tail),
              LOGARITHM: lambda: qv.ZemFunc289(*head, base, method, tolerance, *tail),
              GAUSSIAN: lambda: qv.ZemFunc287(*head, method, tolerance, guess, *tail)}[model]()
    return status, y, f, np.array([v[0] for v in c]), r


def expected(qv, model, x, y, w, method, tolerance, guess=None, base=TOKEN):
    try:
        return 0, *Fit(qv, model, x, y, w, base).result(method, tolerance, guess)
    except Failed as failure:
        return failure.args[0], None, None, None


TRUTH = [(2.5, -1.0), (1.5, 0.6), (2.0, 1.3), (1.7, 2.2), (3.0, 2.0, 0.7)]


def samples(qv, model, rng, odd):
    """Samples and weights of every kind: noise, outliers, ties, minorities, zeros; odd: anything at all among them."""
    n = int(rng.integers(2, 12)) if rng.random() < 0.7 else int(rng.integers(12, 40))
    x = rng.uniform(0.2, 4, n) if rng.random() < 0.5 else np.linspace(0.2, 4, n)
    y = np.array([Fit(qv, model, x, x, None).value(TRUTH[model], v) for v in x])
    y += rng.normal(size=n) * rng.choice([0, 0.05, 0.5])
    if rng.random() < 0.1:
        x = rng.integers(-2, 4, n).astype(float)
    if rng.random() < 0.1:
        x = -x
    if rng.random() < 0.3:
        y[rng.integers(0, n, max(1, n // 4))] += rng.normal() * 6
    if rng.random() < 0.15:
        y = -y
    if rng.random() < 0.15:
        y = rng.integers(-1, 3, n).astype(float)
    w = None
    if rng.random() < 0.5:
        w = rng.uniform(0.5, 2, n) * rng.choice([-1, 1], n)
        if rng.random() < 0.4:
            w[rng.random(n) < rng.random()] = 0
    if odd:
        values, where = numbers(rng, n, rng.choice(["special", "bits", "holes", "ties"])), rng.random(n) < 0.4
        which = rng.integers(0, 3)
        x = np.where(where, values, x) if which == 0 else x
        y = np.where(where, values, y) if which == 1 else y
        w = np.where(where, values, w) if which == 2 and w is not None else w
    return x, y, w


@pytest.mark.parametrize("odd", [False, True])
@pytest.mark.parametrize("method", [0, 1, 2])
@pytest.mark.parametrize("model", MODELS)
def test_to_the_last_bit(qv, model, method, odd):
    fitted = 0
    for seed in range((8, 6, 3)[method] if model == GAUSSIAN else 12):
        rng = np.random.default_rng((seed, model, odd))
        x, y, w = samples(qv, model, rng, odd)
        tolerance = float(rng.choice([-1, 0, 1e-3, 1e-9, 0.5, NAN, INF]))
        guess = np.array([2.5, 2.2, 0.9]) if model == GAUSSIAN and rng.random() < 0.4 else None
        if guess is not None and odd:
            guess[rng.integers(0, 3)] = rng.choice([NAN, LARGEST, -1.7976931348623e308])
        base = float(rng.choice([TOKEN, 10.0, 2.0, 0.5, math.e, -1.0, 0.0])) if model == LOGARITHM else TOKEN
        status, c, curve, residue = expected(qv, model, x, y, w, method, tolerance, guess, TOKEN if base <= 0 else base)
        got = call(qv, model, x, y, w, len(x), method, tolerance, guess, base)
        assert got[0] == status, seed
        equal_numbers(got[1], y)
        if status < 0:
            assert np.isnan(np.concatenate(got[2:])).all(), seed
            continue
        fitted += 1
        equal_numbers(got[3], c)
        equal_numbers(got[2], curve)
        equal_numbers(got[4], [residue])
        # Without a curve y takes it, without both nothing but the coefficients is written.
        over = call(qv, model, x, y, w, len(x), method, tolerance, guess, base, curve=False)
        assert over[0] == 0
        equal_numbers(over[1], curve)
        equal_numbers(np.append(over[3], over[4]), np.append(c, residue))
        none = call(qv, model, x, y, w, len(x), method, tolerance, guess, base, curve=False, residue=False)
        assert none[0] == 0
        equal_numbers(none[1], y)
        equal_numbers(none[3], c)
    assert fitted > 0


@pytest.mark.parametrize("model", [LINE, EXPONENTIAL])
def test_the_plain_entries_to_the_last_bit(qv, model):
    for seed in range(30):
        x, y, _ = samples(qv, model, np.random.default_rng((seed, model)), seed % 3 == 2)
        fit, (a, b, residue), curve = Fit(qv, model, x, y, None), np.full((3, 1), NAN), np.full(len(x), NAN)
        function = qv.ZemFunc117 if model == LINE else qv.ZemFunc73
        status = function(x, y, len(x), curve, a, b, residue)
        try:
            c = fit.line(fit.x, None) if model == LINE else fit.growth(None, -1.0, 0, None, iterate=False)
        except Failed as failure:
            assert status == failure.args[0]
            assert np.isnan([a[0], b[0], residue[0], *curve]).all()
            continue
        assert status == 0
        equal_numbers([a[0], b[0]], c)
        equal_numbers(curve, fit.curve(c))
        equal_numbers(residue, [fit.squared(c, None)])


@pytest.mark.parametrize("model", MODELS)
def test_of_several_faults_the_first_check_tells(qv, model):
    """The size in 32 bits, the method, the count, NaN among the weights, too few weights, the abscissas."""
    least = 3 if model == GAUSSIAN else 2
    for method in (0, 1, 2, 3, 2**32 - 1):
        for n in (2**31, 2**32 + 5, -2**63, -2**31, 0, 1, 2, 3, 6):
            for weights in (None, [1, NAN, 0, 0, 0, 0], [0, 0, 2, 0, 0, 0], [0, 1, 2, 0, 0, 0], [0.0] * 6):
                for x in ([1, 2, 3, 4, 5, 6.5], [-1, 2, 0, 4, INF, 6], [0, 0, 3, NAN, 1, 1]):
                    x, y = np.array(x, float), np.array([1, 2, 4, 3, 2, 1.0])
                    w = None if weights is None else np.array(weights, float)
                    got = call(qv, model, x, y, w, n, method, INF)
                    if not fits(n):
                        status = -20046
                    elif method > 2:
                        status = -20061
                    elif n < least:
                        status = -20007 if model == GAUSSIAN else -20006
                    else:
                        status = expected(qv, model, x[:n], y[:n], w if w is None else w[:n], method, INF)[0]
                    assert got[0] == status, (method, n, weights, x)
                    equal_numbers(got[1], y)
                    if status < 0:
                        assert np.isnan(np.concatenate(got[2:])).all()
