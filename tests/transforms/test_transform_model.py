"""Transforms: the documented sums in extended precision, whatever the input, and every order of checks.

The spectra are sums over long doubles with the angles reduced as integers, and the orders of bins are placed one by one
as documented, so that nothing is shared with any library's transform.
"""

import itertools

import mpmath
import numpy as np
import pytest
from exact import SIZES, Guarded, bits, every_size, exports_of, fits, libm, unwritten

EPS = np.finfo(float).eps
PI = np.longdouble("3.14159265358979323846264338327950288")
LENGTHS = [1, 2, 3, 4, 5, 6, 7, 8, 9, 12, 13, 16, 21, 23, 32, 46, 47, 53, 59, 64, 75, 94, 106]
BORDERS = [-(1 << 31) - 1, -(1 << 31), -1, 0, 1, 3, (1 << 31) - 1, (1 << 32) + 5]
BIG = 1 << 31


def rounding(n, norm):
    """A few eps log2 n of the input's norm, plus eps sqrt(n) for twiddles that come from a recurrence."""
    return 8 * EPS * (np.log2(2 * n) + np.sqrt(n)) * norm


def near(got, expected, tolerance):
    got, expected = np.asarray(got), np.asarray(expected)
    assert got.shape == expected.shape
    assert np.max(np.abs(got - expected)) <= tolerance


def reals(rng, *shape):
    return rng.uniform(-1, 1, shape)


def records(rng, *shape):
    return reals(rng, *shape) + 1j * reals(rng, *shape)


def dft(x, sign=-1):
    """sum over j of x[j] exp(sign 2 pi i j k / N) along the first axis."""
    n = len(x)
    k = np.arange(n)
    angle = 2 * PI * (np.outer(k, k) % n) / n
    matrix = np.cos(angle) + sign * 1j * np.sin(angle)
    return matrix @ np.asarray(x).astype(np.clongdouble)


def place(k, n, shift):
    """Where the bin of frequency k, from -n/2 to n/2, stands."""
    if not shift:
        return k % n
    return (n // 2 + k) % n


def ordered(spectrum, shift):
    n = len(spectrum)
    out = np.empty_like(spectrum)
    for k in range(n):
        out[place(k, n, shift)] = spectrum[k]
    return out


def natural(spectrum, shift):
    n = len(spectrum)
    return np.array([spectrum[place(k, n, shift)] for k in range(n)])


def fitted(x, length):
    out = np.zeros((length, *x.shape[1:]), x.dtype)
    used = min(length, len(x))
    out[:used] = x[:used]
    return out


def real_inverse(X, shift):
    """From the bins of frequency 0 to n/2 alone, of 0 and n/2 the real parts."""
    n = len(X)
    j = np.arange(n)
    d = n // 2 if shift else 0
    total = np.full(n, X[d].real, np.longdouble)
    for k in range(1, (n - 1) // 2 + 1):
        angle = 2 * PI * (j * k % n) / n
        total += 2 * (X[d + k].real * np.cos(angle) - X[d + k].imag * np.sin(angle))
    if n % 2 == 0:
        total += X[0 if shift else n // 2].real * (1 - 2 * (j % 2))
    return total / n


@pytest.mark.parametrize("n", LENGTHS)
@pytest.mark.parametrize("shift", [0, 1, -7])
def test_forward_transforms_place_each_bin_as_documented(qv, n, shift):
    rng = np.random.default_rng(n)
    for length in {1, 2, n, n + 1, n + 4, max(1, n - 3)}:
        for x, number in ((reals(rng, n), 262), (records(rng, n), 263)):
            expected = ordered(dft(fitted(x, length)), shift)
            for plan in (None, qv.ZemFunc260(length)):
                for size in {length, 0 if length == n else length, -5 if length == n else length}:
                    out = unwritten(length, complex)
                    assert getattr(qv, f"ZemFunc{number}")(x, n, size, plan, shift, out.array) == 0
                    near(out.array, expected, rounding(length, np.linalg.norm(x)))
                    out.kept()
                if plan:
                    qv.ZemFunc261(plan)


@pytest.mark.parametrize("n", LENGTHS)
@pytest.mark.parametrize("shift", [0, 1])
def test_inverse_transforms_of_any_records_read_what_is_documented(qv, n, shift):
    rng = np.random.default_rng(100 + n)
    X = records(rng, n)
    for plan in (None, qv.ZemFunc260(n)):
        out = unwritten(n)
        assert qv.ZemFunc264(X, n, plan, shift, out.array) == 0
        near(out.array, real_inverse(X, shift), 2 * rounding(n, np.linalg.norm(X)) / n)
        out.kept()
        out = unwritten(n, complex)
        assert qv.ZemFunc265(X, n, plan, shift, out.array) == 0
        near(out.array, dft(natural(X, shift), 1) / n, rounding(n, np.linalg.norm(X)) / n)
        out.kept()
        if plan:
            qv.ZemFunc261(plan)
    re, im = Guarded(X.real.copy()), Guarded(X.imag.copy())
    assert qv.ZemFunc77(re.array, im.array, n) == 0
    near(re.array + 1j * im.array, dft(X), rounding(n, np.linalg.norm(X)))
    re.kept(), im.kept()


SHAPES = [(1, 1), (1, 2), (2, 1), (2, 2), (1, 7), (6, 1), (3, 4), (4, 3), (5, 5), (4, 4), (8, 9), (23, 4), (3, 53)]


@pytest.mark.parametrize("rows, cols", SHAPES)
@pytest.mark.parametrize("shift", [0, 1])
def test_two_dimensions_place_each_bin_as_documented(qv, rows, cols, shift):
    rng = np.random.default_rng(rows * 100 + cols)
    for R, C in {(rows, cols), (rows + 1, cols + 2), (max(1, rows - 1), cols), (rows, max(1, cols - 2)), (2, 2),
                 (1, 3)}:
        for x, number in ((reals(rng, rows, cols), 266), (records(rng, rows, cols), 267)):
            padded = fitted(fitted(x, R).T, C)
            expected = ordered(ordered(dft(dft(padded).T), shift).T, shift).T
            out = unwritten(R * C, complex)
            sizes = (0 if R == rows else R, -1 if C == cols else C)
            assert getattr(qv, f"ZemFunc{number}")(x, rows, cols, *sizes, shift, out.array) == 0
            near(out.array.reshape(R, C), expected, rounding(R * C, np.linalg.norm(x)))
            out.kept()

    X = records(rng, rows, cols)
    by_rows = np.array([dft(natural(row, shift), 1) / cols for row in X])
    tolerance = 2 * rounding(rows * cols, np.linalg.norm(X)) / np.sqrt(rows * cols)
    out = unwritten(rows * cols)
    assert qv.ZemFunc268(X, rows, cols, shift, out.array) == 0
    near(out.array.reshape(rows, cols), np.array([real_inverse(c, shift) for c in by_rows.T]).T, tolerance)
    out.kept()
    out = unwritten(rows * cols, complex)
    assert qv.ZemFunc269(X, rows, cols, shift, out.array) == 0
    near(out.array.reshape(rows, cols), np.array([dft(natural(c, shift), 1) / rows for c in by_rows.T]).T, tolerance)
    out.kept()


def dct(x, L):
    x, k, j = fitted(x, L), np.arange(L), np.arange(L)
    out = np.cos(PI * (np.outer(k, 2 * j + 1) % (4 * L)) / (2 * L)) @ x * np.sqrt(np.longdouble(2) / L)
    out[0] /= np.sqrt(np.longdouble(2))
    return out


def idct(x):
    n = len(x)
    k, j = np.arange(n), np.arange(n)
    scale = np.where(k == 0, np.sqrt(np.longdouble(1) / n), np.sqrt(np.longdouble(2) / n))
    return (np.cos(PI * (np.outer(2 * j + 1, k) % (4 * n)) / (2 * n)) * scale) @ x


def dst(x, L):
    x, k, j = fitted(x, L), np.arange(1, L + 1), np.arange(1, L + 1)
    return np.sin(PI * (np.outer(k, j) % (2 * L + 2)) / (L + 1)) @ x


def idst(x):
    return dst(x, len(x)) * 2 / (len(x) + np.longdouble(1))


@pytest.mark.parametrize("n", LENGTHS)
def test_cosine_and_sine_transforms_are_their_sums_with_their_own_factors(qv, n):
    rng = np.random.default_rng(200 + n)
    x = reals(rng, n)
    for L in {1, 2, n, n + 1, n + 4, max(1, n - 3)}:
        for number, model, points in ((270, dct, L), (272, dst, 2 * L + 2)):
            for size in {L, 0 if L == n else L}:
                out = unwritten(L)
                assert getattr(qv, f"ZemFunc{number}")(x, n, size, out.array) == 0
                near(out.array, model(x, L), 2 * rounding(points, np.linalg.norm(x)))
                out.kept()
    for number, model, points in ((271, idct, n), (273, idst, 2 * n + 2)):
        out = unwritten(n)
        assert getattr(qv, f"ZemFunc{number}")(x, n, out.array) == 0
        near(out.array, model(x), 2 * rounding(points, np.linalg.norm(x)))
        out.kept()


@pytest.mark.parametrize("rows, cols", SHAPES)
def test_cosine_and_sine_transforms_in_two_dimensions_are_those_of_rows_and_columns(qv, rows, cols):
    rng = np.random.default_rng(300 + rows * 100 + cols)
    x = reals(rng, rows, cols)
    for number, model in ((274, lambda v: dct(v, len(v))), (275, idct), (276, lambda v: dst(v, len(v))), (277, idst)):
        expected = model(model(x).T).T
        points = 4 * (rows + 1) * (cols + 1)
        tolerance = 4 * rounding(points, np.linalg.norm(x)) * (np.sqrt(points) if number == 276 else 1)
        for out in (unwritten(rows * cols), Guarded(x.ravel())):
            given = x if out.first[0] != bits(x)[0, 0] else out.array
            assert getattr(qv, f"ZemFunc{number}")(given, rows, cols, out.array) == 0
            near(out.array.reshape(rows, cols), expected, tolerance)
            out.kept()


@pytest.mark.parametrize("n", LENGTHS)
def test_hartley_and_hilbert_are_their_sums(qv, n):
    rng = np.random.default_rng(400 + n)
    x = reals(rng, n)
    X = dft(x)
    norm = np.linalg.norm(x)
    multiplier = np.zeros(n, np.clongdouble)
    for k in range(1, (n - 1) // 2 + 1):
        multiplier[k], multiplier[n - k] = -1j, 1j
    hilbert = (dft(X * multiplier, 1) / n).real
    for number, expected, tolerance in ((78, X.real - X.imag, 2 * rounding(n, norm)),
                                        (103, (X.real - X.imag) / n, 2 * rounding(n, norm) / n),
                                        (75, hilbert, 4 * rounding(n, norm)), (76, -hilbert, 4 * rounding(n, norm))):
        data = Guarded(x)
        assert getattr(qv, f"ZemFunc{number}")(data.array, n) == 0
        near(data.array, expected, tolerance)
        data.kept()


# Chirp-Z

sin, cos, pow_, atan2 = libm("sin"), libm("cos"), libm("pow", 2), libm("atan2", 2)


def power(z, p):
    r, t = pow_(z[1] * z[1] + z[0] * z[0], p * 0.5), atan2(z[1], z[0]) * p
    return r * cos(t), r * sin(t)


def times(z, w):
    return z[0] * w[0] - z[1] * w[1], z[1] * w[0] + z[0] * w[1]


def direct_chirp_z(x, a, w, m):
    """By powers as they come, t[k] = a^-k from the last one down."""
    n = len(x)
    t = [None] * n
    t[n - 1] = power(a, -(n - 1.0))
    for k in range(n - 2, -1, -1):
        t[k] = times(a, t[k + 1])
    out = []
    for j in range(m):
        re = im = 0.0
        for k in range(n):
            term = times(power(w, float(j * k)), t[k])
            term = (term[0] * x[k], term[1] * x[k]) if isinstance(x[k], float) else times(term, (x[k].real, x[k].imag))
            re, im = re + term[0], im + term[1]
        out.append(complex(re, im))
    return np.array(out)


@pytest.mark.parametrize("n, m", [(1, 1), (1, 4), (2, 3), (7, 1), (9, 14), (20, 20)])
def test_direct_chirp_z_adds_its_powers_in_order_to_the_last_bit(qv, n, m):
    rng = np.random.default_rng(n * 10 + m)
    for a, w in ((1, 1), (1, np.exp(-0.2j)), (0.9 * np.exp(2j), 1.03 * np.exp(3j)), (-1.5, -0.5), (2j, 1e-3j)):
        a, w = complex(a), complex(w)
        for x, number in ((reals(rng, n), 341), (records(rng, n), 342)):
            out = unwritten(m, complex)
            assert getattr(qv, f"ZemFunc{number}")(x, n, a, w, 0, m if m != n else -3, out.array) == 0
            expected = direct_chirp_z(x.tolist(), (a.real, a.imag), (w.real, w.imag), m)
            assert np.array_equal(bits(out.array.view(float)), bits(expected.view(float)))
            out.kept()


def window(a, w, n, m):
    """The first of the m points that the inverse uses."""
    if n == m:
        return 0
    r, v = 1 / abs(a), abs(w)
    distance, k = abs(r - 1), 1
    while k < n and abs(r * v ** k - 1) < distance:
        distance = abs(r * v ** k - 1)
        k += 1
    return min(max(0, k - 1 - m // 2), n - m)


@pytest.mark.parametrize("seed", range(30))
def test_the_inverse_chirp_z_solves_for_the_points_of_its_window_alone(qv, seed):
    """Points that no transform has, so that every choice of m of them has another solution."""
    rng = np.random.default_rng(seed)
    n = int(rng.integers(1, 14))
    m = int(rng.integers(1, min(n, 7) + 1))
    a = complex(rng.uniform(0.7, 1.4) * np.exp(1j * rng.uniform(-3, 3)))
    w = complex(rng.uniform(0.85, 1.15) * np.exp(2j * np.pi / max(m, 2) * rng.uniform(0.8, 1.1)))
    X = records(rng, n)

    def solution(start):
        with mpmath.workdps(40):
            nodes = [mpmath.mpc(w) ** (start + j) / mpmath.mpc(a) for j in range(m)]
            # X[start + j] = sum of x[k] (w^(start + j) / a)^k ... with a^-k w^(j k) = (w^j / a)^k
            V = mpmath.matrix(m, m)
            for j, k in itertools.product(range(m), range(m)):
                V[j, k] = nodes[j] ** k
            x = mpmath.lu_solve(V, mpmath.matrix([mpmath.mpc(v) for v in X[start:start + m]]))
            return np.array([complex(v) for v in x]), np.linalg.cond(np.array(V.tolist(), complex))

    start = window(a, w, n, m)
    expected, condition = solution(start)
    tolerance = 200 * m * EPS * condition * (np.linalg.norm(expected) + np.linalg.norm(X))
    given, out = Guarded(X, complex), unwritten(m, complex)
    assert qv.ZemFunc351(given.array, n, a, w, out.array, m) == 0
    near(out.array, expected, tolerance)
    given.untouched(), out.kept()
    for other in {max(0, start - 1), min(n - m, start + 1)} - {start}:
        assert np.max(np.abs(solution(other)[0] - expected)) > 4 * tolerance
    assert qv.ZemFunc351(given.array, n, a, w, None, m if m < n else 0) == 0
    near(given.array[:m], expected, tolerance)
    assert np.array_equal(given.words[2 * m:], given.first[2 * m:])
    given.kept()


@pytest.mark.parametrize("n", LENGTHS)
def test_power_and_cross_power_are_products_of_the_sums(qv, n):
    rng = np.random.default_rng(500 + n)
    x, y = records(rng, n), records(rng, n)
    X, Y = dft(x) / n, dft(y) / n
    d = rounding(n, np.linalg.norm(x) + np.linalg.norm(y)) / n
    tolerance = 2 * (np.max(np.abs(X)) + np.max(np.abs(Y))) * d + d * d
    power, cross = unwritten(n), unwritten(n, complex)
    assert qv.ZemFunc467(x, n, power.array) == 0
    near(power.array, np.abs(X) ** 2, tolerance)
    assert qv.ZemFunc468(x, y, n, cross.array) == 0
    near(cross.array, np.conj(X) * Y, tolerance)
    power.kept(), cross.kept()


# The statuses, in the order in which they are found; 0 where the transform runs.

def plain(n):
    return -20046 if not fits(n) else -20003 if n < 1 else 0


def forward(n, size, plan=None):
    if not fits(n, size):
        return -20046
    if n < 1:
        return -20003
    return -20070 if plan and plan != (n if size < 1 else size) else 0


def inverse(n, plan=None):
    if not fits(n):
        return -20046
    if n < 0:
        return -20003
    if plan:
        return -20070 if plan != n else 0
    return -20001 if n == 0 else 0


def plane(rows, cols):
    if not fits(rows, cols):
        return -20046
    if rows < 1 or cols < 1:
        return -20003
    return 0 if rows * cols < BIG else -20046


def fitted_plane(rows, cols, R, C):
    if not fits(rows, cols, R, C):
        return -20046
    if rows < 1 or cols < 1:
        return -20003
    return 0 if (rows if R < 1 else R) * (cols if C < 1 else C) < BIG else -20046


def derived(more):
    """Of a transform on 2 L + more points: these must fit before anything else is looked at."""
    def rule(n, size=0):
        if not fits(n, size) or not fits(2 * (n if size < 1 else size) + more):
            return -20046
        return -20003 if n < 1 else 0
    return rule


def derived_plane(more):
    def rule(rows, cols):
        if not fits(rows, cols) or not fits(2 * rows + more, 2 * cols + more):
            return -20046
        return plane(rows, cols)
    return rule


A, W = 1 + 0j, complex(np.exp(-0.1j))
# Words: x and y are inputs of any type, "in" an array that is changed, n a size, the others constants.
ARGUMENTS = {
    262: ("r n n plan 1 out", forward), 263: ("c n n plan 1 out", forward), 264: ("c n plan 1 real", inverse),
    265: ("c n plan 0 out", inverse), 266: ("r n n n n 1 out", fitted_plane), 267: ("c n n n n 1 out", fitted_plane),
    268: ("c n n 1 real", plane), 269: ("c n n 1 out", plane), 77: ("in in n", plain), 270: ("r n n real", derived(0)),
    271: ("r n real", derived(0)), 272: ("r n n real", derived(2)), 273: ("r n real", derived(2)),
    274: ("r n n real", derived_plane(0)), 275: ("r n n real", derived_plane(0)),
    276: ("r n n real", derived_plane(2)), 277: ("r n n real", derived_plane(2)), 78: ("in n", plain),
    103: ("in n", plain), 75: ("in n", plain), 76: ("in n", plain),
    341: ("r n a w 0 n out", lambda n, m: plain(n) if fits(m) else -20046),
    342: ("c n a w 1 n out", lambda n, m: plain(n) if fits(m) else -20046),
    351: ("c n a w out n", lambda n, m: (plain(n) if fits(m) else -20046) or (-20008 if m > n else 0)),
    467: ("c n real", plain), 468: ("c c n out", plain),
}
ROOM = 4096


@pytest.mark.parametrize("number", ARGUMENTS)
def test_every_combination_of_sizes_has_its_status_and_an_error_touches_nothing(qv, number):
    words, rule = ARGUMENTS[number]
    names = words.split()
    rng = np.random.default_rng(number)
    buffers = {"r": Guarded(reals(rng, ROOM)), "c": Guarded(records(rng, ROOM), complex),
               "in": Guarded(reals(rng, ROOM)), "out": unwritten(ROOM, complex), "real": unwritten(ROOM)}
    five = qv.ZemFunc260(5)
    sets = {"plan": [(None, {}), (five, {"plan": 5})] if "plan" in names else [(None, {})]}
    sizes_of = names.count("n")
    for sizes in every_size(sizes_of) if sizes_of < 3 else itertools.product(BORDERS, repeat=sizes_of):
        for plan, keywords in sets["plan"]:
            expected = rule(*sizes, **keywords)
            # What runs must be small; a transform of few rows and columns may stand before a large input.
            if expected == 0 and any(size > 16 for size in sizes):
                continue
            left = list(sizes)
            constants = {"plan": plan, "a": A, "w": W}
            arguments = [left.pop(0) if name == "n" else buffers[name].array if name in buffers else
                         constants[name] if name in constants else int(name) for name in names]
            assert getattr(qv, f"ZemFunc{number}")(*arguments) == expected, sizes
            for guarded in buffers.values():
                guarded.untouched() if expected else guarded.kept()
                guarded.words[:] = guarded.first
    qv.ZemFunc261(five)


NONFINITE = [complex(np.nan, 1), complex(1, np.inf), complex(-np.inf, 0), complex(1.7976931348623157e308, 0),
             complex(0, -1.7976931348623157e308), complex(-1.7976931348623e308, 0)]
ZERO = [0j, complex(-0.0, 0.0), complex(1e-170, -1e-170)]


def test_chirp_z_finds_its_faults_in_order(qv):
    """Each fault beside all later ones, of sizes first; method, then a, then w in the forward transforms."""
    x, X, out = Guarded([1.0, 2.0]), Guarded(np.array([1j, 2.0]), complex), unwritten(2, complex)
    parameters = [A] + NONFINITE + ZERO

    def fault(z):
        return -20068 if z in NONFINITE or z != z else -20141 if z in ZERO else 0

    for n, method, a, w in itertools.product((0, -1, 2), (0, 1, 2, 0xFFFFFFFF), parameters, parameters):
        expected = -20003 if n < 1 else -20061 if method > 1 else fault(a) or fault(w)
        for number, given in ((341, x), (342, X)):
            assert getattr(qv, f"ZemFunc{number}")(given.array, n, a, w, method, 1, out.array) == expected
            given.untouched()
            if expected:
                out.untouched()
            out.words[:] = out.first
    for n, m, a, w in itertools.product((0, -1, 2), (0, 1, 3), parameters, parameters):
        kinds = {fault(a), fault(w)}
        expected = (-20003 if n < 1 else -20068 if -20068 in kinds else -20141 if -20141 in kinds else
                    -20008 if m > n else 0)
        if expected == 0 and m == 0:
            continue  # w = 1: the two points coincide, which is another fault
        assert qv.ZemFunc351(X.array, n, a, w, out.array, m) == expected
        X.untouched()
        if expected:
            out.untouched()
        out.words[:] = out.first


def test_every_export_of_the_family_stands_here():
    assert exports_of("transforms") == set(ARGUMENTS)
