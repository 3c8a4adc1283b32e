"""Convolution, correlation and deconvolution: the documented loops to the last bit, and every order of checks.

The direct forms of reals have a documented order of additions; those of records have none in one dimension and are held
against sums in extended precision, like everything that goes through transforms.
"""

import itertools

import numpy as np
import pytest
from exact import KINDS, Guarded, equal_numbers, every_size, exports_of, fits, numbers, unwritten

EPS = np.finfo(float).eps
PAIRS = [(1, 1), (1, 5), (6, 1), (2, 2), (3, 4), (4, 3), (5, 5), (7, 16), (17, 8), (33, 32), (9, 70), (64, 65)]
BIG = 1 << 31


@pytest.fixture(autouse=True)
def quiet():
    with np.errstate(all="ignore"):
        yield


def samples(rng, shape, dtype):
    x = rng.uniform(-1, 1, shape)
    return x if dtype is float else x + 1j * rng.uniform(-1, 1, shape)


def exact_convolution(x, y):
    """In long doubles."""
    wide = np.longdouble if x.dtype == float else np.clongdouble
    out = np.zeros(len(x) + len(y) - 1, wide)
    for i, v in enumerate(x):
        out[i:i + len(y)] += wide(v) * y.astype(wide)
    return out


def bound(x, y):
    """Three transforms, each a few eps log2 S of the norms plus eps sqrt(S) for twiddles by recurrence."""
    S = 2 * (x.size + y.size)
    return 24 * EPS * (np.log2(S) + np.sqrt(S)) * np.linalg.norm(x) * np.linalg.norm(y)


def near(got, expected, tolerance):
    assert np.shape(got) == np.shape(expected)
    assert np.max(np.abs(got - expected)) <= tolerance


def convolved(x, y):
    """x outermost."""
    out = np.zeros(len(x) + len(y) - 1)
    for i in range(len(x)):
        for j in range(len(y)):
            out[i + j] += x[i] * y[j]
    return out


def correlated(x, y):
    """y outermost."""
    n = len(x)
    out = np.zeros(n + len(y) - 1)
    for j in range(len(y)):
        for i in range(n):
            out[i + j] += x[n - 1 - i] * y[j]
    return out


def normalised(raw, n, m, normalisation):
    if raw.dtype == complex:  # each part by itself
        return normalised(raw.real, n, m, normalisation) + 1j * normalised(raw.imag, n, m, normalisation)
    out = np.array(raw)
    shorter, longer = min(n, m), max(n, m)
    if normalisation == 1:
        for i in range(shorter - 1):
            out[i] /= i + 1
            out[longer + i] /= shorter - 1 - i
        for i in range(shorter - 1, longer):
            out[i] /= shorter
    elif normalisation == 2:
        out = out / longer
    return out


def parts(values):
    return np.ascontiguousarray(values).view(float)


@pytest.mark.parametrize("kind", KINDS)
@pytest.mark.parametrize("n, m", PAIRS)
def test_direct_sums_of_reals_are_the_loops_to_the_last_bit(qv, kind, n, m):
    rng = np.random.default_rng(n * 100 + m)
    x, y = numbers(rng, n, kind), numbers(rng, m, kind)
    for number, model, more in ((372, convolved, ()), (373, correlated, ()), (376, correlated, (0,)),
                                (376, correlated, (1,)), (376, correlated, (2,)), (376, correlated, (3,))):
        a, b, out = Guarded(x, before=n % 5), Guarded(y, before=m % 7), unwritten(n + m - 1)
        status = getattr(qv, f"ZemFunc{number}")(a.array, n, b.array, m, 0, *more, out.array)
        assert status == (-20061 if more == (3,) else 0)
        equal_numbers(out.array, normalised(model(x, y), n, m, *more or (0,)))
        a.untouched(), b.untouched(), out.kept()


@pytest.mark.parametrize("dtype", [float, complex])
@pytest.mark.parametrize("n, m", PAIRS)
def test_both_methods_are_the_exact_sums(qv, dtype, n, m):
    rng = np.random.default_rng(n * 100 + m)
    x, y = samples(rng, n, dtype), samples(rng, m, dtype)
    real = dtype is float
    product, correlation = exact_convolution(x, y), exact_convolution(np.conj(x[::-1]), y)
    calls = [(372 if real else 391, product, (0,)), (372 if real else 391, product, (1,)),
             (373 if real else 421, correlation, (0,)), (373 if real else 421, correlation, (1,))]
    calls += [(32, product, ()), (33, correlation, ())] if real else []
    for number, expected, method in calls:
        a, b, out = Guarded(x, dtype), Guarded(y, dtype), unwritten(n + m - 1, dtype)
        assert getattr(qv, f"ZemFunc{number}")(a.array, n, b.array, m, *method, out.array) == 0
        near(out.array, expected, bound(x, y))
        a.untouched(), b.untouched(), out.kept()


@pytest.mark.parametrize("dtype", [float, complex])
@pytest.mark.parametrize("n, m", PAIRS)
def test_normalisation_divides_the_raw_result_to_the_last_bit(qv, dtype, n, m):
    rng = np.random.default_rng(n * 100 + m)
    x, y = samples(rng, n, dtype), samples(rng, m, dtype)
    cross, auto = (qv.ZemFunc376, qv.ZemFunc424) if dtype is float else (qv.ZemFunc490, qv.ZemFunc425)
    for method in (0, 1):
        raw = unwritten(n + m - 1, dtype)
        assert cross(x, n, y, m, method, 0, raw.array) == 0
        for normalisation in (1, 2, 3, 0xFFFFFFFF):
            out = unwritten(n + m - 1, dtype)
            assert cross(x, n, y, m, method, normalisation, out.array) == (0 if normalisation < 3 else -20061)
            equal_numbers(parts(out.array), parts(normalised(raw.array, n, m, normalisation)))
            out.kept()
    raw = unwritten(2 * n - 1, dtype)
    assert auto(x, n, 0, raw.array) == 0
    near(raw.array, exact_convolution(np.conj(x[::-1]), x), bound(x, x))
    for normalisation in (1, 2, 3, -1):
        out = unwritten(2 * n - 1, dtype)
        assert auto(x, n, normalisation, out.array) == (0 if normalisation in (1, 2) else -20061)
        equal_numbers(parts(out.array), parts(normalised(raw.array, n, n, normalisation)))
        out.kept()


@pytest.mark.parametrize("method", [2, -1, 3, 1 << 30, -(1 << 31)])
def test_an_unknown_method_of_reals_leaves_the_output_to_the_normalisation(qv, method):
    rng = np.random.default_rng(5)
    for n, m in PAIRS:
        x, y, before = rng.standard_normal(n), rng.standard_normal(m), rng.standard_normal(n + m - 1)
        for number, more in ((372, ()), (373, ()), (376, (0,)), (376, (1,)), (376, (2,)), (376, (7,))):
            out = Guarded(before)
            status = getattr(qv, f"ZemFunc{number}")(x, n, y, m, method, *more, out.array)
            assert status == (-20061 if more == (7,) else 0)
            equal_numbers(out.array, normalised(before, n, m, *more or (0,)))
            out.kept()
    # Nothing is read or written, so even sizes that no array here has succeed.
    out = unwritten(1)
    assert qv.ZemFunc372(x, BIG - 1, y, 1, method, out.array) == 0
    out.untouched()


@pytest.mark.parametrize("n, m", PAIRS)
def test_one_pointer_given_twice_is_an_autocorrelation_by_transforms_only(qv, n, m):
    rng = np.random.default_rng(n * 100 + m)
    longer = max(n, m)
    x = rng.uniform(-1, 1, longer)
    auto = exact_convolution(x[n - 1::-1] if n < longer else x[::-1], x[:n])
    room = n + m - 1
    for normalisation in (0, 1, 2):
        out = Guarded(np.full(max(room, 2 * n - 1), 3.0))
        assert qv.ZemFunc376(x, n, x, m, 1, normalisation, out.array) == 0
        expected = np.full(len(out.array), 3.0)
        expected[:2 * n - 1] = auto
        expected[:room] = normalised(expected[:room], n, m, normalisation)
        near(out.array, expected, bound(x[:n], x[:n]))
        out.kept()
        out = unwritten(room)
        assert qv.ZemFunc376(x, n, x, m, 0, normalisation, out.array) == 0
        equal_numbers(out.array, normalised(correlated(x[:n], x[:m]), n, m, normalisation))
    for number, more in ((32, ()), (372, (1,))):
        out = unwritten(room)
        assert getattr(qv, f"ZemFunc{number}")(x, n, x, m, *more, out.array) == 0
        near(out.array, exact_convolution(x[:n], x[:m]), bound(x, x))


def near_zero_bin(x, n):
    """Whether a bin of the divisor counts as zero, on the exact packed spectrum of a power of two of points."""
    P = 1
    while P < n:
        P *= 2
    k, j = np.arange(P // 2 + 1), np.arange(len(x))
    angle = 2 * np.longdouble("3.14159265358979323846264338327950288") * (np.outer(k, j) % P) / P
    re, im = np.cos(angle) @ x, -np.sin(angle) @ x
    h = np.zeros(P, np.longdouble)
    h[:P // 2 + 1] = re
    for q in range(1, (P + 1) // 2):
        h[P - q] = im[q]
    tolerance = P * 2.220446049250313e-16
    if not tolerance < 1e-9:
        tolerance = 1e-9
    for q in range(P // 2 + 1):
        beside = 0 if q in (0, P // 2) else h[P // 2 + q]
        # A clear decision, so that rounding has no part in it.
        for value in (h[q], beside):
            assert not tolerance / 8 < abs(value) < tolerance * 8
        if abs(h[q]) < tolerance and abs(beside) < tolerance:
            return True
    return False


def long_division(y, x, n, m):
    z = int(np.flatnonzero(x)[0])
    d, q = x[z:], []
    for i in range(z + n - m + 1):
        q.append((y[i] - sum(d[k] * q[i - k] for k in range(1, min(len(d) - 1, i) + 1))) / d[0])
    return np.array(q[z:])


def test_deconvolution_divides_spectra_or_goes_to_long_division_where_the_scan_says_so(qv):
    """An inconsistent dividend has another quotient either way, which tells the path taken."""
    rng = np.random.default_rng(54)
    divisors = [[1, -1], [1, 1], [1, 0, -1], [1, 0, 1], [0, 1], [0, 0, 2], [0, 1, -1], [2, 1], [1, 2], [0, 1, 1, 0],
                [3, 1, -1, 2, 0.5], [1, 0, 0, 0, -1], [0, 0, 1, 0, 1], [1, 1, 1, 1], [2], [1, -2, 1]]
    # At 8 points Re H[1] and Im H[3] are zero, which counts, though neither bin is; a bin without a real part, which
    # does not; and bins that are small, not zero.
    divisors += [[1, 0, 1, np.sqrt(2)], [1, 3, 1], [1, -1 + 1e-11], [1, -1 + 1e-6], [1, 0, 0, 1e-3 - 1]]
    paths = set()
    for x in divisors:
        x = np.array(x, float)
        m = len(x)
        for n in (m, m + 1, m + 2, m + 5, 16, 17):
            y = rng.integers(-9, 10, n).astype(float)
            P = 1
            while P < n:
                P *= 2
            divided = near_zero_bin(x, n)
            paths.add(divided)
            if divided:
                expected = long_division(y, x, n, m)
            else:
                H, G = np.fft.fft(x, P), np.fft.fft(y, P)
                # Of half the bins: the product with the conjugate and the reciprocal of the squared magnitude.
                expected = np.fft.ifft(G * np.conj(H) / np.abs(H) ** 2).real[:n - m + 1]
            out = unwritten(n - m + 1)
            assert qv.ZemFunc54(y, n, x, m, out.array) == 0
            scale = np.max(np.abs(expected)) + np.linalg.norm(y)
            smallest = 1 if divided else np.min(np.abs(np.fft.fft(x, P)))
            near(out.array, expected, 100 * P * EPS * scale * np.linalg.norm(x) / smallest)
            out.kept()
    assert paths == {True, False}


@pytest.mark.parametrize("gap, divided", [(1.5e-9, False), (0.5e-9, True)])
def test_a_bin_of_a_billionth_is_no_zero_at_any_length(qv, gap, divided):
    """1 / (1 - r z) from an impulse: by division r^i, by spectra the same folded over the length, r^i / (1 - r^n)."""
    n, r = 1 << 23, 1 - gap
    assert n * EPS > 1.5e-9
    y, out = np.zeros(n), np.empty(n - 1)
    y[0] = 1
    assert qv.ZemFunc54(y, n, np.array([1, -r]), 2, out) == 0
    expected = np.exp(np.arange(n - 1) * np.log1p(-gap)) / (1 if divided else -np.expm1(n * np.log1p(-gap)))
    # The divisor's smallest bin is the gap, with a rounding of EPS; the products of the division add up theirs.
    near(out, expected, 10 * np.max(expected) * (n * EPS if divided else EPS / gap))


# Two dimensions

SHAPES = [((1, 1), (1, 1)), ((1, 6), (1, 3)), ((4, 1), (2, 1)), ((3, 4), (2, 5)), ((2, 5), (3, 4)), ((4, 4), (4, 4)),
          ((2, 6), (3, 4)), ((7, 9), (3, 2)), ((3, 2), (7, 9)), ((8, 8), (5, 5))]


def product(z, w):
    return z * w if not isinstance(z, complex) else complex(z.real * w.real - z.imag * w.imag,
                                                            z.imag * w.real + z.real * w.imag)


def direct_2d(x, y):
    """Each output over the array with fewer elements, the second one if they have the same number."""
    few, many = (x, y) if x.size < y.size else (y, x)
    R, C = x.shape[0] + y.shape[0] - 1, x.shape[1] + y.shape[1] - 1
    out = np.zeros((R, C), x.dtype)
    for r, c in itertools.product(range(R), range(C)):
        total = out[r, c].item()
        for i, j in itertools.product(*map(range, few.shape)):
            if 0 <= r - i < many.shape[0] and 0 <= c - j < many.shape[1]:
                total += product(few[i, j].item(), many[r - i, c - j].item())
        out[r, c] = total
    return out


@pytest.mark.parametrize("dtype", [float, complex])
@pytest.mark.parametrize("first, second", SHAPES)
def test_two_dimensional_sums_run_over_the_smaller_array_and_are_cropped_as_documented(qv, dtype, first, second):
    rng = np.random.default_rng(first[0] * 1000 + second[1])
    x, y = samples(rng, first, dtype), samples(rng, second, dtype)
    real = dtype is float
    full, flipped = direct_2d(x, y), direct_2d(np.ascontiguousarray(np.conj(x[::-1, ::-1])), y)
    same = (second[0] // 2, second[1] // 2, *first)
    inside = (second[0] - 1, second[1] - 1, first[0] - second[0] + 1, first[1] - second[1] + 1)
    for method, equal in ((0, lambda got, e: equal_numbers(parts(got), parts(e))),
                          (1, lambda got, e: near(got, e, bound(x, y)))):
        for shape, (top, left, rows, cols) in enumerate([(0, 0, *full.shape), same, inside]):
            a, b = Guarded(x.ravel(), dtype), Guarded(y.ravel(), dtype)
            refused = shape == 2 and (first[0] < second[0] or first[1] < second[1])
            out = unwritten(1 if refused else rows * cols, dtype)
            status = (qv.ZemFunc392 if real else qv.ZemFunc393)(a.array, *first, b.array, *second, shape, method,
                                                                out.array)
            assert status == (-20008 if refused else 0)
            if refused:
                out.untouched()
            else:
                equal(out.array, full[top:top + rows, left:left + cols].ravel())
            a.untouched(), b.untouched(), out.kept()
        out = unwritten(full.size, dtype)
        assert (qv.ZemFunc422 if real else qv.ZemFunc423)(x, *first, y, *second, method, out.array) == 0
        equal(out.array, flipped.ravel())
        out.kept()
    out = unwritten((2 * first[0] - 1) * (2 * first[1] - 1), dtype)
    assert (qv.ZemFunc426 if real else qv.ZemFunc427)(x, *first, out.array) == 0
    near(out.array, direct_2d(np.ascontiguousarray(np.conj(x[::-1, ::-1])), x).ravel(), bound(x, x))
    out.kept()


# The statuses, in the order in which they are found.

def lengths(n, m):
    if not fits(n, m):
        return -20046
    if n < 1 or m < 1:
        return -20003
    return -20046 if n + m - 1 >= BIG else 0


def deconvolution(n, m):
    if not fits(n, m):
        return -20046
    if n < 1 or m < 1:
        return -20003
    return -20008 if m > n else -20046 if n > 1 << 30 else 0


def planes(rows1, cols1, rows2, cols2, shape, method):
    if not fits(rows1, cols1, rows2, cols2):
        return -20046
    if min(rows1, cols1, rows2, cols2) < 1:
        return -20003
    if shape > 2 or method > 1:
        return -20061
    if shape == 2 and (rows1 < rows2 or cols1 < cols2):
        return -20008
    return -20046 if (rows1 + rows2 - 1) * (cols1 + cols2 - 1) >= BIG else 0


ROOM = 64
ONE_DIMENSION = {32: "x n y n o", 372: "x n y n 0 o", 391: "X n Y n 1 O", 33: "x n y n o", 373: "x n y n 1 o",
                 376: "x n y n 0 1 o", 424: "x n 1 o", 421: "X n Y n 0 O", 490: "X n Y n 1 2 O", 425: "X n 1 O",
                 54: "y n x n o"}
TWO_DIMENSIONS = {392: "x n n y n n 0 0 o", 393: "X n n Y n n 0 0 O", 422: "x n n y n n 0 o", 423: "X n n Y n n 1 O",
                  426: "x n n o", 427: "X n n O"}
BORDERS = [-(1 << 31) - 1, -(1 << 31), -1, 0, 1, 2, 40000, BIG - 1, (1 << 32) + 5]


def check_sizes(qv, number, words, combinations, rule):
    rng = np.random.default_rng(1)
    buffers = {"x": Guarded(rng.uniform(1, 2, ROOM)), "y": Guarded(rng.uniform(1, 2, ROOM)), "o": unwritten(ROOM),
               "X": Guarded(rng.uniform(1, 2, ROOM) + 1j, complex), "Y": Guarded(rng.uniform(1, 2, ROOM) - 1j, complex),
               "O": unwritten(ROOM, complex)}
    for sizes in combinations:
        expected = rule(*sizes)
        if expected == 0 and any(size > 5 for size in sizes):
            continue
        left = list(sizes)
        arguments = [left.pop(0) if w == "n" else buffers[w].array if w in buffers else int(w) for w in words]
        assert getattr(qv, f"ZemFunc{number}")(*arguments) == expected, sizes
        for name, guarded in buffers.items():
            if expected or name not in "oO":
                guarded.untouched()
            guarded.kept()
            guarded.words[:] = guarded.first


@pytest.mark.parametrize("number", ONE_DIMENSION)
def test_every_pair_of_sizes_has_its_status_and_an_error_touches_nothing(qv, number):
    words = ONE_DIMENSION[number].split()
    rule = deconvolution if number == 54 else lengths if words.count("n") == 2 else lambda n: lengths(n, n)
    check_sizes(qv, number, words, every_size(words.count("n")), rule)


@pytest.mark.parametrize("number", TWO_DIMENSIONS)
def test_every_combination_of_rows_and_columns_has_its_status_and_an_error_touches_nothing(qv, number):
    words = TWO_DIMENSIONS[number].split()
    rule = (lambda *s: planes(*s, 0, 0)) if words.count("n") == 4 else lambda r, c: planes(r, c, r, c, 0, 0)
    check_sizes(qv, number, words, itertools.product(BORDERS, repeat=words.count("n")), rule)


@pytest.mark.parametrize("dtype", [float, complex])
def test_selections_of_two_dimensions_are_tested_behind_the_sizes_and_before_the_shapes(qv, dtype):
    x = Guarded(np.ones(4), dtype)
    out = unwritten(9, dtype)
    convolve, correlate = (qv.ZemFunc392, qv.ZemFunc422) if dtype is float else (qv.ZemFunc393, qv.ZemFunc423)
    sizes = [(2, 2, 2, 2), (1, 2, 2, 1), (2, 1, 1, 2), (0, 2, 2, 2), (2, 2, 2, -1), (BIG, 2, 2, 2)]
    for s, shape, method in itertools.product(sizes, (0, 1, 2, 3, 0xFFFFFFFF), (0, 1, 2, 0xFFFFFFFF)):
        expected = planes(*s, shape, method)
        assert convolve(x.array, *s[:2], x.array, *s[2:], shape, method, out.array) == expected
        x.untouched(), out.untouched() if expected else out.kept()
        out.words[:] = out.first
        expected = planes(*s, 0, method)
        assert correlate(x.array, *s[:2], x.array, *s[2:], method, out.array) == expected
        x.untouched(), out.untouched() if expected else out.kept()
        out.words[:] = out.first


def test_selections_of_records_are_tested_behind_the_sizes(qv):
    z, out = Guarded(np.ones(3) * 1j, complex), unwritten(5, complex)
    for n, m, method in itertools.product((-1, 0, 2), (0, 3), (2, 0xFFFFFFFF)):
        expected = -20003 if n < 1 or m < 1 else -20061
        assert qv.ZemFunc391(z.array, n, z.array, m, method, out.array) == expected
        assert qv.ZemFunc421(z.array, n, z.array, m, method, out.array) == expected
        for normalisation in (0, 1, 9):
            assert qv.ZemFunc490(z.array, n, z.array, m, method, normalisation, out.array) == expected
    z.untouched(), out.untouched()


def test_a_divisor_of_zeros_is_refused_with_nothing_written(qv):
    y, out = Guarded([1.0, 2.0, 3.0]), unwritten(3)
    for x in ([0.0], [0.0, -0.0], [-0.0, 0.0, 0.0]):
        assert qv.ZemFunc54(y.array, 3, np.array(x), len(x), out.array) == -20060
    y.untouched(), out.untouched()


def test_every_export_of_the_family_stands_here():
    assert exports_of("convolution") == set(ONE_DIMENSION) | set(TWO_DIMENSIONS)
