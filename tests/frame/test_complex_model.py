"""Complex arithmetic: the written formulas to the last bit, over all combinations of special parts.

Sines, logarithms and powers are those of the C library that the library itself calls, so that a difference of one bit
is a difference of the formula.
"""

import numpy as np
import pytest
from exact import KINDS, SIZES, SPECIAL, Guarded, equal_numbers, exports_of, fits, libm, numbers, unwritten


def from_libm(name, arguments):
    elementwise = np.frompyfunc(libm(name, arguments), arguments, 1)
    return lambda *values: np.asarray(elementwise(*values), float)


sin, cos, exp, log, log10 = (from_libm(name, 1) for name in ("sin", "cos", "exp", "log", "log10"))
atan2, power = from_libm("atan2", 2), from_libm("pow", 2)

SCALARS = [38, 51, 46, 40, 49, 50, 42, 44, 45, 48, 172, 174]
ARRAYS = [39, 52, 47, 41, 173, 232, 43]


@pytest.fixture(autouse=True)
def quiet():
    with np.errstate(all="ignore"):
        yield


# Each model takes arrays of operands and gives real parts, imaginary parts and where the operation is refused.
def add(a, b, c, d):
    return a + c, b + d


def subtract(a, b, c, d):
    return a - c, b - d


def multiply(a, b, c, d):
    return a * c - b * d, b * c + a * d


def divide(a, b, c, d):
    r = d / c
    den = r * d + c
    first = (r * b + a) / den, (b - r * a) / den
    r = c / d
    den = r * c + d
    second = (r * a + b) / den, (r * b - a) / den
    large = np.abs(c) >= np.abs(d)
    return np.where(large, first[0], second[0]), np.where(large, first[1], second[1])


def reciprocal(a, b):
    m = a * a + b * b
    return a / m, -(b / m), (a == 0) & (b == 0)


def root(a, b):
    m = a * a + b * b
    s, t = np.sqrt(np.sqrt(m)), 0.5 * atan2(b, a)
    return np.where(m == 0, 0.0, s * cos(t)), np.where(m == 0, 0.0, s * sin(t))


def exponential(a, b):
    e = exp(a)
    return np.where(b == 0, e, cos(b) * e), np.where(b == 0, 0.0, sin(b) * e)


def logarithm(a, b):
    m = a * a + b * b
    return 0.5 * log(m), atan2(b, a), m == 0


def decimal_logarithm(a, b):
    m = a * a + b * b
    return 0.5 * log10(m), atan2(b, a) * 0.434294481903252, m == 0


def raised(a, b, p):
    m = b * b + a * a
    r, t = power(m, p * 0.5), atan2(b, a) * p
    return np.where(m == 0, 0.0, r * cos(t)), np.where(m == 0, 0.0, r * sin(t)), (m == 0) & (p == 0)


def polar(re, im):
    zero = (re == 0) & (im == 0)
    return np.where(zero, 0.0, np.sqrt(re * re + im * im)), np.where(zero, 0.0, atan2(im, re))


def from_polar(magnitude, phase):
    return magnitude * cos(phase), magnitude * sin(phase)


MODELS = {38: add, 51: subtract, 46: multiply, 40: divide, 49: reciprocal, 50: root, 42: exponential, 44: logarithm,
          45: decimal_logarithm, 48: raised, 172: polar, 174: from_polar}


def arguments_of(number):
    return 4 if number in (38, 51, 46, 40) else 3 if number == 48 else 2


def check_scalar(qv, number, operands):
    model = MODELS[number](*operands)
    refused = model[2] if len(model) > 2 else np.zeros(len(operands[0]), bool)
    function = getattr(qv, f"ZemFunc{number}")
    untouched = unwritten(1).array[0]
    got = np.empty((2, len(operands[0])))
    statuses = np.empty(len(operands[0]), int)
    re, im = unwritten(1), unwritten(1)
    for i, z in enumerate(zip(*(o.tolist() for o in operands))):
        re.words[:], im.words[:] = re.first, im.first
        statuses[i] = function(*z, re.array, im.array)
        got[:, i] = re.array[0], im.array[0]
    re.kept(), im.kept()
    assert np.array_equal(statuses, np.where(refused, -20060, 0))
    for part, expected in zip(got, model):
        equal_numbers(part[~refused], expected[~refused])
        assert np.all(part[refused].view(np.uint64) == np.float64(untouched).view(np.uint64))


@pytest.mark.parametrize("number", SCALARS)
def test_scalars_are_their_formulas_for_all_combinations_of_special_parts(qv, number):
    parts = SPECIAL if arguments_of(number) < 4 else SPECIAL[[0, 1, 2, 3, 5, 8, 9, 11, 13, 15, 18, 19, 20]]
    grid = np.meshgrid(*[parts] * arguments_of(number))
    check_scalar(qv, number, [g.ravel() for g in grid])


@pytest.mark.parametrize("number", SCALARS)
@pytest.mark.parametrize("kind", ["plain", "bits", "ties", "holes"])
def test_scalars_are_their_formulas_for_numbers_of_every_kind(qv, number, kind):
    rng = np.random.default_rng(number)
    check_scalar(qv, number, [numbers(rng, 1500, kind) for _ in range(arguments_of(number))])


@pytest.mark.parametrize("number", [39, 52, 47, 41])
@pytest.mark.parametrize("kind", KINDS)
def test_arrays_are_the_formulas_over_any_of_their_operands(qv, number, kind):
    model = {39: add, 52: subtract, 47: multiply, 41: divide}[number]
    rng = np.random.default_rng(number)
    for n in (1, 2, 3, 5, 8, 9, 16, 31, 64, 100):
        operands = [numbers(rng, n, kind) for _ in range(4)]
        expected = model(*operands)
        # Both outputs apart, or each in any operand, straight and crosswise.
        places = [(None, None), (0, 1), (1, 0), (2, 3), (3, 2), (0, 3), (2, 1), (None, 0), (3, None)]
        for re, im in places:
            given = [Guarded(v, before=(n + k) % 7) for k, v in enumerate(operands)]
            results = [unwritten(n) if p is None else given[p] for p in (re, im)]
            assert getattr(qv, f"ZemFunc{number}")(*(g.array for g in given), n, *(r.array for r in results)) == 0
            for result, part in zip(results, expected):
                equal_numbers(result.array, part)
            for k, guarded in enumerate(given):
                guarded.kept()
                if k not in (re, im):
                    guarded.untouched()


def linear(re, im, factor, offset):
    x, y = factor
    return (x * re - y * im) + offset[0], (y * re + x * im) + offset[1]


@pytest.mark.parametrize("number", [173, 232, 43])
@pytest.mark.parametrize("kind", KINDS)
def test_each_null_output_stands_for_the_input_in_its_place(qv, number, kind):
    rng = np.random.default_rng(number)
    for n in (1, 2, 3, 5, 8, 9, 16, 31, 64, 100):
        operands = [numbers(rng, n, kind) for _ in range(2)]
        scalars = numbers(rng, 4, "special").tolist() if number == 43 else []
        expected = (linear(*operands, scalars[:2], scalars[2:]) if number == 43 else
                    {173: polar, 232: from_polar}[number](*operands))
        for re in ("apart", "null", "same", "crossed"):
            for im in ("apart", "null", "same", "crossed"):
                if {re, im} in ({"crossed", "null"}, {"crossed", "same"}):
                    continue  # both in one array
                given = [Guarded(v, before=(n + k) % 7) for k, v in enumerate(operands)]
                results, addresses = [], []
                for part, how in enumerate((re, im)):
                    results.append(unwritten(n) if how == "apart" else given[1 - part if how == "crossed" else part])
                    addresses.append(None if how == "null" else results[-1].array)
                assert getattr(qv, f"ZemFunc{number}")(*(g.array for g in given), n, *scalars, *addresses) == 0
                for result, part in zip(results, expected):
                    equal_numbers(result.array, part)
                for guarded in (*given, *results):
                    guarded.kept()


@pytest.mark.parametrize("number", ARRAYS)
def test_every_size_has_its_status_and_an_error_touches_nothing(qv, number):
    given = [Guarded(np.full(65537, 1.0)) for _ in range(2 if number in (173, 232, 43) else 4)]
    results = [unwritten(65537) for _ in range(2)]
    scalars = [1.0, 2.0, 3.0, 4.0] if number == 43 else []
    for n in SIZES:
        if fits(n) and n > 65537:
            continue
        expected = -20046 if not fits(n) else -20003 if n < 1 else 0
        for place in ([r.array for r in results], [None, None]) if expected and number in (173, 232, 43) else (
                [r.array for r in results],):
            assert getattr(qv, f"ZemFunc{number}")(*(g.array for g in given), n, *scalars, *place) == expected
        for guarded in (*given, *results) if expected else given:
            guarded.untouched()
        for result in results:
            result.kept()
            written = 0 if expected else n
            assert np.all(result.words[:written] != result.first[:written])
            assert np.array_equal(result.words[written:], result.first[written:])
            result.words[:] = result.first


def test_every_export_of_the_family_stands_here():
    assert exports_of("complex") == set(SCALARS + ARRAYS)
