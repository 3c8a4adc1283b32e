"""Array primitives: an independent model of every operation, over numbers of every kind, and every order of checks.

The model adds, multiplies and compares one double at a time in the documented order; NumPy's elementwise arithmetic is
that of IEEE 754 and fuses nothing.
"""

import math

import numpy as np
import pytest
from exact import (KINDS, NANS, SIZES, Guarded, equal_bits, equal_numbers, every_size, exports_of, fits,
                   numbers, unwritten, wrapped)

LENGTHS = [1, 2, 3, 4, 7, 8, 9, 15, 16, 17, 31, 33, 64, 65, 127, 130, 513, 1100]
CANONICAL = np.uint64(0x7FF8000000000000)


@pytest.fixture(autouse=True)
def quiet():
    with np.errstate(all="ignore"):
        yield


def isnan(v):
    return v != v


def extremes(x):
    """(max, its index, min, its index): the search one element at a time."""
    high = low = math.nan
    at_high = at_low = -1
    for i, v in enumerate(x.tolist()):
        if isnan(v):
            continue
        if at_high < 0:
            high = low = v
            at_high = at_low = i
        elif v > high:
            high, at_high = v, i
        elif v < low:
            low, at_low = v, i
    return high, at_high, low, at_low


def scaled(x, before):
    high, at, low, _ = extremes(x)
    if at < 0:
        return before, math.nan, math.nan
    scale = (np.float64(high) - low) * 0.5
    offset = scale + low
    r = np.float64(1) / scale
    if not np.isfinite(r):
        return x - high, high, 1.0
    return (x - offset) * r, offset, scale


def quick_scaled(x):
    peak = 0.0
    for v in x.tolist():
        if abs(v) > peak:
            peak = abs(v)
    return (x.copy() if peak == 0 else x * (np.float64(1) / peak)), peak


def normalized(x):
    total = 0.0
    for v in x.tolist():
        total += v
    mean = np.float64(total) / len(x)
    total = 0.0
    for v in x - mean:
        total += float(v * v)
    deviation = np.sqrt(np.float64(total) / len(x))
    return (x - mean) * (np.float64(1) / deviation), mean, deviation


def polynomial(x, coef):
    out, power = np.full(len(x), coef[0]), np.ones(len(x))
    for c in coef[1:]:
        power = power * x
        out = out + c * power
    return out


def clipped(x, upper, lower):
    return np.array([upper if v > upper else lower if lower > v else v for v in x.tolist()])


def summed(x):
    total = 0.0
    for v in x.tolist():
        total += v
    return total


def multiplied(x):
    total = 1.0
    for v in x.tolist():
        total *= v
    return total


def sorted_model(x, descending):
    """NaN gathered step by step, and the numbers behind them."""
    words = x.view(np.uint64).copy()
    nan = np.isnan(x)
    n = len(x)
    p = next((i for i in range(n) if not nan[i]), n)
    for i in range(p + 1, n):
        if np.isnan(words[i:i + 1].view(float)[0]):
            words[i] = words[p]
            words[p] = CANONICAL
            p += 1
    tail = np.sort(words[p:].view(float))
    words[p:] = (tail[::-1] if descending else tail).copy().view(np.uint64)
    return words.view(float)


def run(function, n, x, *rest, out="apart", more=(), y=None):
    """Calls an export with x and a result of n elements that stands apart, in x, or in x by a null; returns the
    elements of the result and the scalars behind it."""
    given = Guarded(x, before=1 + n % 5)
    result = unwritten(n, before=n % 4) if out == "apart" else given
    scalars = [unwritten(1, dtype) for dtype in more]
    place = {"apart": result.array, "same": given.array, "null": None}[out]
    assert function(given.array, *rest, place, *(s.array for s in scalars)) == 0
    for guarded in (given, result, *scalars):
        guarded.kept()
    if out == "apart":
        given.untouched()
    return result.array, [s.array[0] for s in scalars]


# Operations of one array with the result in another, in place, or in place by a null: (1-D, 2-D, model, its scalars).
def one_array(rng):
    a, b = numbers(rng, 2, "special")
    coef = numbers(rng, int(rng.integers(1, 6)), rng.choice(["plain", "special"]))
    lower, upper = sorted(rng.standard_normal(2))
    return {
        149: (149, None, (), lambda x: (x[::-1], []), equal_bits),
        128: (128, None, (), lambda x: ((x.view(np.uint64) ^ np.uint64(1 << 63)).view(float), []), equal_bits),
        1: (1, None, (), lambda x: ((x.view(np.uint64) & np.uint64((1 << 63) - 1)).view(float), []), equal_bits),
        115: (115, 116, (a, b), lambda x: (a * x + b, []), equal_numbers),
        135: (135, 136, (coef, len(coef)), lambda x: (polynomial(x, coef), []), equal_numbers),
        30: (30, None, (upper, lower), lambda x: (clipped(x, upper, lower), []), equal_numbers),
        143: (143, 144, (), lambda x: (quick_scaled(x)[0], [quick_scaled(x)[1]]), equal_numbers),
        132: (132, 133, (), lambda x: (normalized(x)[0], [*normalized(x)[1:]]), equal_numbers),
    }


@pytest.mark.parametrize("number", [149, 128, 1, 115, 135, 30, 143, 132])
@pytest.mark.parametrize("kind", KINDS)
def test_operations_on_one_array_are_the_model_apart_and_in_place(qv, number, kind):
    rng = np.random.default_rng(number)
    for n in LENGTHS:
        one, two, extra, model, equal = one_array(rng)[number]
        x = numbers(rng, n, kind)
        expected, scalars = model(x)
        for out in ("apart", "same", "null"):
            rows = next(r for r in (7, 5, 3, 2, 1) if n % r == 0)
            for function, sizes in [(one, (n,))] + ([(two, (rows, n // rows))] if two else []):
                got, behind = run(getattr(qv, f"ZemFunc{function}"), n, x, *sizes, *extra, out=out,
                                  more=[float] * len(scalars))
                equal(got, expected)
                equal_numbers(behind, scalars)


@pytest.mark.parametrize("kind", KINDS)
def test_scale_is_the_model_and_leaves_an_array_of_nan_alone(qv, kind):
    rng = np.random.default_rng(7)
    cases = [numbers(rng, n, kind) for n in LENGTHS for _ in range(3)]
    cases += [rng.choice(NANS, n) for n in (1, 2, 40)]
    cases += [np.full(n, v) for n in (1, 5, 9) for v in (5.0, -0.0, np.inf, -np.inf, 5e-324, 1.7976931348623157e308)]
    cases += [np.array(v) for v in ([5e-324, 0.0], [1e-308, -1e-308], [1.5e-309, -1.5e-309, np.nan], [-1e308, 1.7e308],
                                    [np.inf, -np.inf], [np.inf, 1.0, np.nan], [0.0, -0.0], [-0.0, 0.0])]
    for x in cases:
        n = len(x)
        for out in ("apart", "same", "null"):
            before = unwritten(n).array if out == "apart" else x
            expected, offset, scale = scaled(x, before)
            for number, sizes in ((153, (n,)), (154, (1, n)), (154, (n, 1))):
                got, scalars = run(getattr(qv, f"ZemFunc{number}"), n, x, *sizes, out=out, more=[float, float])
                if np.isnan(x).all():
                    equal_bits(got, expected)
                equal_numbers(got, expected)
                equal_numbers(scalars, [offset, scale])


@pytest.mark.parametrize("kind", KINDS)
def test_sorting_gathers_nan_step_by_step(qv, kind):
    rng = np.random.default_rng(8)
    for n in LENGTHS:
        for direction in (0, 1, 2, 0xFFFFFFFF):
            x = numbers(rng, n, kind)
            expected = sorted_model(x, direction != 0)
            for out in ("apart", "same", "null"):
                got, _ = run(qv.ZemFunc160, n, x, n, direction, out=out)
                # Zeros of either sign may stand in any order among themselves, but none of them is lost.
                assert np.array_equal(np.sort(got.view(np.uint64)), np.sort(expected.view(np.uint64)))
                zeros = expected == 0
                equal_bits(got[~zeros], expected[~zeros])
                assert np.all(got[zeros] == 0)


@pytest.mark.parametrize("number, ufunc", [(3, np.add), (167, np.subtract), (126, np.multiply)])
@pytest.mark.parametrize("kind", KINDS)
def test_arithmetic_of_two_arrays_is_the_model_over_either_operand_too(qv, number, ufunc, kind):
    rng = np.random.default_rng(number)
    for n in LENGTHS:
        x, y = numbers(rng, n, kind), numbers(rng, n, kind)
        for function, sizes in ((number, (n,)), (number + 1, (n, 1)), (number + 1, (1, n))):
            for out in ("apart", "x", "y", "both"):
                a, b = Guarded(x, before=n % 7), Guarded(y, before=n % 3)
                place = {"apart": unwritten(n), "x": a, "y": b, "both": a}[out]
                second = a if out == "both" else b
                assert getattr(qv, f"ZemFunc{function}")(a.array, second.array, *sizes, place.array) == 0
                equal_numbers(place.array, ufunc(x, x if out == "both" else y))
                for guarded in (a, b, place):
                    guarded.kept()


@pytest.mark.parametrize("kind", KINDS)
def test_division_stops_at_the_first_zero(qv, kind):
    rng = np.random.default_rng(57)
    for n in LENGTHS * 3:
        x, y = numbers(rng, n, kind), numbers(rng, n, kind)
        if rng.random() < 0.5:
            y[y == 0] = 3.0
            if rng.random() < 0.7:
                y[rng.integers(n)] = rng.choice([0.0, -0.0])
        zero = np.flatnonzero(y == 0)
        stop = zero[0] if zero.size else n
        for function, sizes in ((57, (n,)), (58, (n, 1)), (58, (1, n))):
            for out in ("apart", "x", "y"):
                a, b = Guarded(x, before=n % 7), Guarded(y, before=n % 3)
                place = {"apart": unwritten(n), "x": a, "y": b}[out]
                status = getattr(qv, f"ZemFunc{function}")(a.array, b.array, *sizes, place.array)
                assert status == (-20060 if zero.size else 0)
                equal_numbers(place.array[:stop], x[:stop] / y[:stop])
                equal_bits(place.array[stop:], place.first.view(float)[stop:])
                for guarded in (a, b, place):
                    guarded.kept()


@pytest.mark.parametrize("kind", KINDS)
def test_sums_products_and_extremes_are_the_model(qv, kind):
    rng = np.random.default_rng(9)
    cases = [numbers(rng, n, kind) for n in LENGTHS for _ in range(3)]
    cases += [rng.choice(NANS, 20), np.array([-0.0]), np.array([-0.0, -0.0]), np.array([np.inf, -np.inf])]
    for x in cases:
        given, n = Guarded(x, before=len(x) % 5), len(x)
        cols = next(c for c in (7, 5, 3, 2, 1) if n % c == 0)
        for number, model in ((170, summed), (140, multiplied)):
            total = unwritten(1)
            assert getattr(qv, f"ZemFunc{number}")(given.array, n, total.array) == 0
            equal_numbers(total.array, [model(x)])
            total.kept()
        total = unwritten(1)
        assert qv.ZemFunc171(given.array, n // cols, cols, total.array) == 0
        equal_numbers(total.array, [summed(x)])

        high, at_high, low, at_low = extremes(x)
        values, places = [unwritten(1) for _ in range(2)], [unwritten(1, np.int64) for _ in range(4)]
        assert qv.ZemFunc120(given.array, n, values[0].array, places[0].array, values[1].array, places[1].array) == 0
        equal_numbers([v.array[0] for v in values], [high, low])
        assert [p.array[0] for p in places[:2]] == [at_high, at_low]
        assert qv.ZemFunc121(given.array, n // cols, cols, values[0].array, places[0].array, places[1].array,
                             values[1].array, places[2].array, places[3].array) == 0
        equal_numbers([v.array[0] for v in values], [high, low])
        expected = [-1] * 4 if at_high < 0 else [at_high // cols, at_high % cols, at_low // cols, at_low % cols]
        assert [p.array[0] for p in places] == expected
        for guarded in (given, *values, *places):
            guarded.kept()
        given.untouched()


@pytest.mark.parametrize("kind", KINDS)
def test_filling_and_moving_keep_every_bit(qv, kind):
    rng = np.random.default_rng(10)
    for n in LENGTHS:
        x = numbers(rng, n, kind)
        given = Guarded(x, before=n % 6)
        assert qv.ZemFunc29(given.array, n) == 0
        assert not given.words.any()
        given.kept()
        value = rng.choice(np.concatenate([x, NANS, [-0.0]]))
        assert qv.ZemFunc155(given.array, n, value) == 0
        equal_bits(given.array, np.full(n, value))
        given.kept()
        equal_bits(run(qv.ZemFunc34, n, x, n)[0], x)
        for shift in {0, 1, -1, n // 2, -(n // 2), n - 1, 1 - n, n, -n}:
            expected = np.zeros(n)
            if shift >= 0:
                expected[shift:] = x[:n - shift]
            else:
                expected[:n + shift] = x[-shift:]
            for out in ("apart", "same", "null"):
                equal_bits(run(qv.ZemFunc156, n, x, n, shift, out=out)[0], expected)
        for index in {0, n // 3, n - 1}:
            for length in {1, (n - index + 1) // 2, n - index}:
                result = unwritten(length)
                assert qv.ZemFunc169(x, n, index, length, result.array) == 0
                equal_bits(result.array, x[index:index + length])
                result.kept()


# The statuses, in the order in which they are found. `count` is what the operation runs on, None where it must not run.
ROOM = 65536
UPPER, LOWER = 2.0, -2.0


def of_count(count):
    return -20003 if count < 1 else count


def plain(n):
    return of_count(n) if fits(n) else -20046


def product(rows, cols):
    return of_count(wrapped(rows * cols)) if fits(rows, cols) else -20046


def division(rows, cols):
    return -20003 if rows < 1 or cols < 1 else product(rows, cols)


def each(rows, cols):
    if not fits(rows, cols):
        return -20046
    return -20003 if rows < 1 or cols < 1 else product(rows, cols)


def subset(n, index, length):
    if not fits(n, index, length):
        return -20046
    if n < 1:
        return -20003
    if index < 0 or index >= n:
        return -20017
    if length < 1:
        return -20003
    return -20018 if index + length > n else n


def shifted(n, shift):
    if not fits(n, shift):
        return -20046
    return -20003 if n < 1 else -20102 if abs(shift) > n else n


COEF = np.array([1.0, 2.0])
ARGUMENTS = {
    29: ("x n", plain), 155: ("x n 3.0", plain), 34: ("x n out", plain), 169: ("x n n n out", subset),
    149: ("x n out", plain), 156: ("x n n out", shifted), 160: ("x n 1 out", plain), 3: ("x y n out", plain),
    4: ("x y n n out", product), 167: ("x y n out", plain), 168: ("x y n n out", product), 126: ("x y n out", plain),
    127: ("x y n n out", product), 57: ("x y n out", plain), 58: ("x y n n out", division), 128: ("x n out", plain),
    1: ("x n out", plain), 170: ("x n scalar", plain), 171: ("x n n scalar", product), 140: ("x n scalar", plain),
    120: ("x n scalar index scalar index", plain), 121: ("x n n scalar index index scalar index index", each),
    153: ("x n out scalar scalar", plain), 154: ("x n n out scalar scalar", product), 143: ("x n out scalar", plain),
    144: ("x n n out scalar", product), 132: ("x n out scalar scalar", plain),
    133: ("x n n out scalar scalar", each), 115: ("x n 2.0 1.0 out", plain), 116: ("x n n 2.0 1.0 out", product),
    135: ("x n coef 2 out", plain), 136: ("x n n coef 2 out", product), 30: ("x n 2.0 -2.0 out", plain),
}


@pytest.mark.parametrize("number", ARGUMENTS)
def test_every_combination_of_sizes_has_its_status_and_an_error_touches_nothing(qv, number):
    words, rule = ARGUMENTS[number]
    names = words.split()
    x = np.random.default_rng(1).standard_normal(ROOM)
    x[x == 0] = 1.0
    buffers = {"x": Guarded(x), "y": Guarded(x[::-1]), "out": unwritten(ROOM)}
    for sizes in every_size(names.count("n")):
        outcome = rule(*sizes)
        if outcome > ROOM:
            continue
        left, scalars, arguments = list(sizes), [], []
        for name in names:
            if name == "n":
                arguments.append(left.pop(0))
            elif name in buffers:
                arguments.append(buffers[name].array)
            elif name == "coef":
                arguments.append(COEF)
            elif name in ("scalar", "index"):
                scalars.append(unwritten(1, float if name == "scalar" else np.int64))
                arguments.append(scalars[-1].array)
            else:
                arguments.append(float(name) if "." in name else int(name))
        assert getattr(qv, f"ZemFunc{number}")(*arguments) == min(outcome, 0), sizes
        if outcome < 0:
            for guarded in (*buffers.values(), *scalars):
                guarded.untouched()
        else:
            for key, guarded in buffers.items():
                guarded.kept()
                if key == "out" and "out" in names and number != 169:
                    assert np.all(guarded.words[:outcome] != guarded.first[:outcome]), sizes
                    assert np.array_equal(guarded.words[outcome:], guarded.first[outcome:]), sizes
                guarded.words[:] = guarded.first


def test_statuses_beside_the_sizes_come_in_their_order(qv):
    x, out = Guarded([1.0, 2.0]), unwritten(2)
    for n in SIZES:
        for count in (-(1 << 31), -1, 0):
            assert qv.ZemFunc135(x.array, n, COEF, count, out.array) == (-20003 if fits(n) else -20046)
            assert qv.ZemFunc136(x.array, 1, n, COEF, count, out.array) == (-20003 if fits(n) else -20046)
        expected = -20046 if not fits(n) else -20003 if n < 1 else -20019
        assert qv.ZemFunc30(x.array, n, -1.0, 1.0, out.array) == expected
    assert qv.ZemFunc30(x.array, 2, 0.0, 5e-324, out.array) == -20019
    x.untouched(), out.untouched()
    assert qv.ZemFunc30(x.array, 2, -0.0, 0.0, out.array) == 0


def test_the_length_of_a_part_that_passes_the_end_is_refused_without_wrapping(qv):
    x, out = Guarded([1.0, 2.0, 3.0]), unwritten(1)
    for index in (0, 1, 2):
        assert qv.ZemFunc169(x.array, 3, index, (1 << 31) - 1, out.array) == -20018
    out.untouched()


def test_every_export_of_the_family_stands_here(qv):
    assert exports_of("arrays") == set(ARGUMENTS)
