"""Bands, goodness and removal in scalar arithmetic: faults in their order, what stays unwritten, values."""

import itertools
import math

import numpy as np
import pytest

from exact import KINDS, SIZES, SPECIAL, TOO_LARGE, Guarded, divided, equal_numbers, fits, libm, numbers, unwritten

exp, log, log10, power = libm("exp"), libm("log"), libm("log10"), libm("pow", 2)
TOKEN = 2.71828
LARGEST = np.finfo(float).max
ODD = [math.inf, -math.inf, math.nan, LARGEST, -LARGEST]
NUMBERS = {"line": 293, "exponential": 291, "power": 295, "logarithm": 294, "gaussian": 292}
COEFFICIENTS = {"line": (2.5, -1.0), "exponential": (1.5, 0.6), "power": (2.0, 1.3), "logarithm": (1.7, 2.2),
                "gaussian": (3.0, 2.0, 0.7)}


def value_and_row(model, x, c, base):
    """The model and its derivatives, the line's intercept first."""
    if model == "line":
        return c[0] * x + c[1], [1.0, x]
    if model == "exponential":
        e = exp(c[1] * x)
        return c[0] * e, [e, c[0] * x * e]
    if model == "power":
        e = power(x, c[1])
        return c[0] * e, [e, c[0] * log(x) * e]
    if model == "logarithm":
        natural = base == TOKEN or base <= 0
        scale = 1.0 if natural else log(base)
        big = log10(c[1] * x) if base == 10 else divided(log(c[1] * x), scale)
        return c[0] * big, [big, divided(divided(c[0], c[1]), scale)]
    z = (x - c[1]) / c[2]
    e = exp(-0.5 * z * z)
    return c[0] * e, [e, c[0] * z * e / c[2], c[0] * z * z * e / c[2]]


def refused(model, x, w, n, kind, level, c):
    """The status of faulty arguments, 0 for none; NaN in x or weights counts as the last."""
    least, status = (4, -20069) if model == "gaussian" else (3, -20007)
    if not fits(n):
        return -20046
    if kind > 1:
        return -20061
    if n < least:
        return status
    if model == "gaussian" and c[2] == 0:
        return -20026
    if any(not math.isfinite(v) or abs(v) == LARGEST for v in c):
        return -20068
    if not 0 < level < 1:
        return -20053
    if model == "power" and np.any(x <= 0):
        return -20140
    if np.isnan(x).any() or w is not None and np.isnan(w).any():
        return -20068
    return 0


def bands(qv, model, x, y, w, kind, level, c, base):
    n, p = len(x), len(c)
    f, rows = zip(*(value_and_row(model, v, c, base) for v in x.tolist()))
    f, rows = np.array(f), np.array(rows)
    u = np.ones(n) if w is None else np.abs(w)
    signed = model == "line" and kind == 0 and w is not None
    information, inverse = rows.T @ (rows * (w if signed else u)[:, None]), np.zeros((p, p))
    assert qv.ZemFunc200(np.ascontiguousarray(information), p, p, -1.0, inverse) == 0
    variance = np.sum(u * (f - y) ** 2) / (n - p)
    t = np.zeros(1)
    assert qv.ZemFunc107(1 - (1 - level) / 2, n - p, t) == 0
    v = np.einsum("ij,jk,ik->i", rows, inverse, rows)
    with np.errstate(all="ignore"):
        h = t * np.sqrt((v + (1 / u if kind else 0)) * variance)
        half = t * np.sqrt(np.diag(inverse)) * math.sqrt(variance)
    return f + h, f - h, half[::-1] if model == "line" else half, f


def call(qv, model, x, y, w, n, base, kind, level, c, upper, lower, half):
    head = (x, y, w, n) + ((base,) if model == "logarithm" else ())
    return getattr(qv, f"ZemFunc{NUMBERS[model]}")(*head, kind, level, *c, upper.array, lower.array,
                                                   *(h.array for h in half))


@pytest.mark.parametrize("model", NUMBERS)
def test_faults_of_bounds_in_their_order(qv, model):
    rng, seen = np.random.default_rng(1), set()
    for round in range(1500):
        n = int(rng.choice([3, 4, 6]))
        x, y, c = rng.uniform(0.3, 4, n), rng.standard_normal(n), list(COEFFICIENTS[model])
        w = rng.uniform(0.3, 3, n) if rng.random() < 0.5 else None
        size, kind, level, often = n, int(rng.integers(2)), 0.9, rng.choice([0.1, 0.4])
        if rng.random() < often / 2:
            size = int(rng.choice([s for s in SIZES + TOO_LARGE if s < 5 or not fits(s)]))
        if rng.random() < often / 2:
            kind = int(rng.choice([2, 3, 2**31, 2**32 - 1]))
        if rng.random() < often:
            level = float(rng.choice([0.0, 1.0, -0.1, 1.1, math.nan, math.inf, math.nextafter(0, -1)]))
        for k in range(len(c)):
            if rng.random() < often / 2:
                c[k] = float(rng.choice(ODD + ([0.0, -0.0] if model == "gaussian" and k == 2 else [])))
        if rng.random() < often:
            x[rng.integers(n)] = rng.choice([math.nan] + [0.0, -0.0, -1.0] * (model == "power"))
        if w is not None and rng.random() < often:
            w[rng.integers(n)] = math.nan
        if size > n and fits(size):
            size = n
        status = refused(model, x[:max(size, 0)], None if w is None else w[:max(size, 0)], size, kind, level, c)
        upper, lower, half = unwritten(n), unwritten(n), [unwritten(1) for _ in c]
        base = float(rng.choice([TOKEN, 10.0, 2.0, 0.0, -3.0]))
        assert call(qv, model, x, y, w, size, base, kind, level, c, upper, lower, half) == status
        seen.add(status)
        if status < 0:
            upper.untouched()
            lower.untouched()
        for h in half:
            if kind == 1 or status in (-20046, -20061):
                h.untouched()
            elif status < 0:
                assert h.array[0] == 0
    assert len(seen) == 6 + (model in ("power", "gaussian")), seen


@pytest.mark.parametrize("model", NUMBERS)
@pytest.mark.parametrize("kind", [0, 1])
@pytest.mark.parametrize("n", [3, 4, 5, 9, 40])
def test_bands(qv, model, kind, n):
    c = COEFFICIENTS[model]
    if n <= len(c):
        return
    rng = np.random.default_rng(n)
    for round, level in itertools.product(range(8), (1e-6, 0.5, 0.95, 1 - 1e-9)):
        x = np.linspace(0.5, 3.5, n) + rng.uniform(-0.05, 0.05, n)
        w = [None, rng.uniform(0.3, 3, n), rng.uniform(0.3, 3, n) * rng.choice([1, -1], n),
             rng.uniform(0.3, 3, n) * -1.0][round % 4]
        if w is not None and round >= 4:
            w[rng.integers(n)] = rng.choice([0.0, -0.0])
        base = float(rng.choice([TOKEN, 10.0, 2.0, 0.5, 0.0, -1.0]))
        f = np.array([value_and_row(model, v, c, base)[0] for v in x])
        y = f + 0.1 * rng.standard_normal(n)
        upper, lower, half = unwritten(n), unwritten(n), [unwritten(1) for _ in c]
        assert call(qv, model, x, y, w, n, base, kind, level, c, upper, lower, half) == 0
        up, low, wide, f = bands(qv, model, x, y, w, kind, level, c, base)
        # Sums in another order, inverted: condition below 1e4 save for signs that cancel, where an entry is compared
        # beside the largest one.
        sound = np.isfinite(up)
        scale = 1 + max(np.abs(up[sound]).max(initial=0), np.abs(low[sound]).max(initial=0))
        assert np.array_equal(np.isnan(upper.array), np.isnan(up))
        assert np.array_equal(np.isinf(upper.array), np.isinf(up))
        assert np.abs(upper.array[sound] - up[sound]).max(initial=0) <= 1e-8 * scale
        assert np.abs(lower.array[sound] - low[sound]).max(initial=0) <= 1e-8 * scale
        assert np.all(lower.array[np.isinf(up)] == -math.inf)
        for h, expected in zip(half, wide):
            if kind:
                h.untouched()
            elif math.isnan(expected):
                assert np.isnan(h.array[0])
            else:
                assert abs(h.array[0] - expected) <= 1e-8 * max(1, np.nanmax(wide))


@pytest.mark.parametrize("model", NUMBERS)
@pytest.mark.parametrize("kind", [0, 1])
def test_of_a_perfect_fit_both_bands_are_the_curve_to_the_last_bit(qv, model, kind):
    rng = np.random.default_rng(3)
    for round in range(60):
        n, c = 30, [float(v * rng.uniform(0.7, 1.4)) for v in COEFFICIENTS[model]]
        base = float(rng.choice([TOKEN, 2.718281828459045, 10.0, 2.0, 0.5, 0.0, -1.0]))
        x = rng.uniform(0.3, 4, n)
        y = np.array([value_and_row(model, v, c, base)[0] for v in x.tolist()])
        w = rng.uniform(0.3, 3, n) if round % 2 else None
        upper, lower, half = unwritten(n), unwritten(n), [unwritten(1) for _ in c]
        assert call(qv, model, x, y, w, n, base, kind, 0.9, c, upper, lower, half) == 0
        equal_numbers(upper.array, y)
        equal_numbers(lower.array, y)


@pytest.mark.parametrize("model", NUMBERS)
@pytest.mark.parametrize("kind", [0, 1])
def test_an_information_matrix_that_is_not_finite_is_refused(qv, model, kind):
    rng, seen = np.random.default_rng(4), set()
    for round in range(400):
        n, c = 6, COEFFICIENTS[model]
        x = rng.uniform(0.3, 4, n)
        x[rng.integers(n)] = rng.choice(SPECIAL)
        w = rng.uniform(0.3, 3, n) if round % 2 else None
        if w is not None and round % 4 == 1:
            w[rng.integers(n)] = rng.choice(SPECIAL)
        y = numbers(rng, n, "special" if round % 3 else "plain")
        rows = np.array([value_and_row(model, v, c, TOKEN)[1] for v in x.tolist()])
        with np.errstate(all="ignore"):
            u = np.ones(n) if w is None else w if model == "line" and kind == 0 else np.abs(w)
            if kind:
                scaled = rows * np.sqrt(u)[:, None]
                matrix = scaled.T @ scaled
            else:
                matrix = np.einsum("i,ij,ik->jk", u, rows, rows)
        # What a decomposition refuses: the largest number too, and on the negative side what comes near it.
        sound = np.isfinite(matrix) & (matrix < LARGEST) & (matrix > -1.7976931348623e308)
        status = 0 if sound.all() else -20068
        if model == "power" and np.any(x <= 0):
            status = -20140
        upper, lower, half = unwritten(n), unwritten(n), [unwritten(1) for _ in c]
        assert call(qv, model, x, y, w, n, TOKEN, kind, 0.9, c, upper, lower, half) == status, (x, w)
        seen.add(status)
        if status:
            upper.untouched()
            lower.untouched()
            assert all(h.words[0] == h.first[0] if kind else h.array[0] == 0 for h in half)
    assert {0, -20068} <= seen


def total(values):
    s = 0.0
    for v in values:
        s += v
    return s


@pytest.mark.parametrize("n", [2, 3, 4, 7, 40])
@pytest.mark.parametrize("kind", KINDS + ["constant"])
def test_goodness(qv, n, kind):
    rng = np.random.default_rng(n)
    for round in range(25):
        if kind == "constant":
            y = np.full(n, rng.choice([0.0, 1.5, -3.0]))
            f = y.copy() if round % 2 else y + rng.integers(0, 2, n)
            w = None if round % 3 else rng.integers(-1, 3, n) * 1.0
        else:
            y, f, w = (numbers(rng, n, kind) for _ in range(3))
            w = w if round % 2 else None
        dof = int(rng.choice([-2**31, -1, 0, 1, n - 2, n - 1, n, n + 1, 2**31 - 1]))
        out = [unwritten(1) for _ in range(3)]
        status = qv.ZemFunc284(y, f, w, n, dof, *(o.array for o in out))
        if dof >= n:
            assert status == -20052
            [o.untouched() for o in out]
            continue
        assert status == 0
        u = [1.0] * n if w is None else w.tolist()
        m = total(y.tolist()) / n
        sse = total(k * (a * a - (2 * a - b) * b) for k, a, b in zip(u, y.tolist(), f.tolist()))
        sst = total(k * (m * m - (2 * m - a) * a) for k, a in zip(u, y.tolist()))
        r = (1.0 if sse == 0 else math.inf) if sst == 0 else 1 - divided(sse, sst)
        with np.errstate(all="ignore"):
            rmse = np.sqrt(divided(sse, dof if dof >= 1 else n - 2))
        equal_numbers([o.array[0] for o in out], [sse, r, rmse])


def test_sizes_of_goodness(qv):
    y = np.ones(2)
    for n, dof in itertools.product(SIZES + TOO_LARGE, repeat=2):
        status = -20046 if not fits(n, dof) else -20006 if n < 2 else -20052
        if fits(n, dof) and n >= 2 and dof < n:
            continue
        out = [unwritten(1) for _ in range(3)]
        assert qv.ZemFunc284(y, y, None, n, dof, *(o.array for o in out)) == status
        [o.untouched() for o in out]


def out_of_range(x, y, n, mode, limits, count, capacity):
    """Status, the words of n, capacity and count, and the samples removed."""
    early = (0, n, n, [])
    if n < 1 or count < 1:
        return -20003, *early
    if mode > 2:
        return -20061, *early
    if count < (4 if mode == 2 else 2):
        return (-20069 if mode == 2 else -20006), *early
    if np.isnan(limits[:4 if mode == 2 else 2]).any():
        return -20068, *early

    def outside(v, a, b):
        return v >= max(a, b) or v <= min(a, b)

    gone = [i for i in range(n) if (outside(y[i], *limits[:2]) if mode == 0 else outside(x[i], *limits[:2]))
            or mode == 2 and outside(y[i], *limits[2:4])]
    words = (n - len(gone), len(gone), len(gone), gone)
    if len(gone) > capacity:
        return -20010, *words
    if not gone:
        return -20003, *words
    return 0, *words


@pytest.mark.parametrize("seed", range(6))
def test_removal_out_of_range(qv, seed):
    rng, seen = np.random.default_rng(seed), set()
    for round in range(400):
        n = int(rng.choice([1, 2, 5, 20]))
        x, y, w = (Guarded(numbers(rng, n, rng.choice(KINDS))) for _ in range(3))
        limits = rng.choice([-3.0, 3.0, -1.0, 1.0, 0.0, -0.0, -math.inf, math.inf, -4.0, 4.0], 5)
        if rng.random() < 0.2:
            limits[rng.integers(5)] = math.nan
        mode = int(rng.choice([0, 0, 1, 1, 2, 2, 3, 2**32 - 1]))
        count = int(rng.choice([-1, 0, 1, 2, 3, 4, 4, 5, 5, 5]))
        size = n if rng.random() < 0.9 else int(rng.choice([0, -1, -5, -2**31]))
        capacity = int(rng.choice([n, n, n, n // 2, 0, -1, -2**31]))
        weighted = rng.random() < 0.7
        words = [Guarded(np.array([v]), np.int64) for v in (size, capacity, -77)]
        gone = unwritten(max(n, 1), np.int64)
        status, kept, room, removed, indices = out_of_range(
            x.array, y.array, size, mode, limits, count, capacity)
        rest = (mode, limits, count, gone.array)
        if rng.random() < 0.1:
            k = int(rng.integers(2))
            words[k] = Guarded(np.array([rng.choice(TOO_LARGE)]), np.int64)
            status, indices = -20046, []
        seen.add(status)
        assert qv.ZemFunc297(x.array, y.array, w.array if weighted else None, words[0].array, *rest, words[1].array,
                             words[2].array) == status, (size, mode, limits, count, capacity)
        if status == -20046:
            [word.untouched() for word in words]
        else:
            assert [int(word.array[0]) for word in words] == [kept, room, removed]
        if status:
            [a.untouched() for a in (x, y, w, gone)]
            continue
        gone.kept()
        assert gone.array[:removed].tolist() == indices
        assert np.array_equal(gone.words[removed:], gone.first[removed:])
        for a in (x, y, w) if weighted else (x, y):
            a.kept()
            assert np.array_equal(a.words[:kept], np.delete(a.first, indices))
        if not weighted:
            w.untouched()
    assert seen == {0, -20003, -20006, -20010, -20046, -20061, -20068, -20069}


@pytest.mark.parametrize("seed", range(4))
def test_removal_by_index(qv, seed):
    rng, seen = np.random.default_rng(seed), set()
    for round in range(500):
        n = int(rng.choice([1, 2, 5, 20]))
        x, y, w = (Guarded(numbers(rng, n, "bits")) for _ in range(3))
        k = int(rng.choice([1, 2, 7, 30]))
        indices = rng.integers(0, n, k)
        if rng.random() < 0.2:
            indices[rng.integers(k)] = rng.choice([-1, n, n + 1, 2**31 - 1, -2**31])
        size, count = n, k
        if rng.random() < 0.1:
            size = int(rng.choice([0, -1, -2**31]))
        if rng.random() < 0.1:
            count = int(rng.choice([0, -1, -2**31]))
        weighted = rng.random() < 0.7
        status = (-20003 if size < 1 or count < 1 else -20017 if np.any((indices < 0) | (indices >= n)) else 0)
        if rng.random() < 0.15:
            which = rng.integers(3)
            bad = int(rng.choice(TOO_LARGE))
            if which == 0:
                size = bad
            elif which == 1:
                count = bad
            elif status == 0:
                indices[rng.integers(k)] = bad
            if which < 2 or status == 0:
                status = -20046
        seen.add(status)
        word, places = Guarded(np.array([size]), np.int64), Guarded(indices, np.int64)
        weights = w.array if weighted else None
        assert qv.ZemFunc296(x.array, y.array, weights, word.array, places.array, count) == status
        places.untouched()
        if status:
            [a.untouched() for a in (x, y, w, word)]
            continue
        word.kept()
        kept = np.delete(np.arange(n), indices)
        assert word.array[0] == len(kept)
        for a in (x, y, w) if weighted else (x, y):
            a.kept()
            assert np.array_equal(a.words[:len(kept)], a.first[kept])
        if not weighted:
            w.untouched()
    assert seen == {0, -20003, -20017, -20046}
