"""Which of several faults at once a matrix operation reports, and what it has written by then."""

import numpy as np
import pytest

from exact import TOO_LARGE, Guarded, unwritten

NAN, INF, LARGEST = np.nan, np.inf, 1.7976931348623157e308
REFUSED = [NAN, INF, -INF, LARGEST, -LARGEST, -1.7976931348623e308]
ACCEPTED = [np.nextafter(LARGEST, 0), np.nextafter(-1.7976931348623e308, 0)]
BELOW = [-2**31, -65536, -1, 0]
PLACE = np.zeros(64)  # behind inputs that are not read


class Call:
    """An export, its inputs by name, and its outputs as guarded arrays that say whether they were written."""

    def __init__(self, qv, number, *arguments):
        self.outputs = {}
        self.status = getattr(qv, f"ZemFunc{number}")(*[self.made(a) for a in arguments])

    def made(self, argument):
        if not isinstance(argument, Out):
            return argument
        assert argument.name not in self.outputs
        self.outputs[argument.name] = unwritten(argument.count, argument.dtype)
        return self.outputs[argument.name].array

    def wrote(self, *names):
        for name, output in self.outputs.items():
            if name not in names:
                output.untouched()
            output.kept()


class Out:
    def __init__(self, name, count=64, dtype=float):
        self.name, self.count, self.dtype = name, count, dtype


def matrix(n, dtype, bad=None, m=None):
    a = np.eye(n if m is None else m, n, dtype=dtype) * 2
    if bad is not None:
        a.flat[-1] = bad
    return a


def shapes(products=True):
    """Sizes (m, n) that are not valid, alone or as a product, with the status that is due."""
    for n in BELOW:
        yield (n, 3), -20003
        yield (3, n), -20003
        yield (n, n), -20003
    for n in TOO_LARGE:
        yield (n, 0), -20046
        yield (0, n), -20046
        yield (n, 2), -20046
    if products:
        yield (65536, 32768), -20046
        yield (2**31 - 1, 2), -20046
        yield (2**31 - 1, 2**31 - 1), -20046


def orders(products=True):
    for n in BELOW:
        yield n, -20003
    for n in TOO_LARGE + [46341, 65536, 2**31 - 1] * products:
        yield n, -20046


def refusals(dtype):
    for value in REFUSED:
        yield value
        if dtype is complex:
            yield complex(0, value)


TWINS = pytest.mark.parametrize("dtype", [float, complex])


def of(dtype, real, cplx):
    return real if dtype is float else cplx


# Rectangular ones: number, arguments between the sizes and the outputs, what is written before the checks.
def rectangular(dtype):
    d = dtype
    yield of(d, 195, 216), [], [Out("s", 64, d)], []
    yield of(d, 193, 219), [], [Out("u", 64, d), Out("s", 64, d), Out("v", 64, d)], []
    for mode in (0, 1):
        yield of(d, 246, 247), [mode], [Out("u", 64, d), Out("s", 64, d), Out("v", 64, d)], []
    for selector in range(4):
        yield of(d, 206, 223), [selector], [Out("norm")], ["norm"]
        yield of(d, 205, 222), [selector], [Out("condition")], ["condition"]
    for tolerance in (-1.0, 0.0, NAN):
        yield of(d, 207, 215), [tolerance], [Out("rank", 64, np.int64)], ["rank"]
        yield of(d, 200, 229), [tolerance], [Out("pseudo", 64, d)], []
    for mode in (0, 1, 2):
        for economy in (0, 1):
            yield (of(d, 243, 245), [mode, economy], [Out("p", 64, np.int64), Out("q", 64, d), Out("r", 64, d)], [])
    if d is float:
        for method in (0, 1, 2):
            yield 192, [method], [Out("q"), Out("r")], []
    else:
        yield 228, [], [Out("q", 64, d), Out("r", 64, d)], []


def check_first_write(call, number):
    """What the documentation sets before the checks."""
    if number in (206, 223, 205, 222):
        name = "norm" if number in (206, 223) else "condition"
        assert np.isnan(call.outputs[name].array[0])
        assert np.array_equal(call.outputs[name].words[1:], call.outputs[name].first[1:])
    if number in (207, 215):
        assert call.outputs["rank"].array[0] == -1


@TWINS
def test_sizes_of_rectangular_matrices(qv, dtype):
    a = PLACE.astype(dtype)
    for number, selections, outputs, first in rectangular(dtype):
        for (m, n), status in shapes():
            call = Call(qv, number, a, m, n, *selections, *outputs)
            assert call.status == status, (number, m, n, selections)
            call.wrote(*(first if status == -20003 else []))
            if status == -20003:
                check_first_write(call, number)


@TWINS
def test_the_screen_of_rectangular_matrices(qv, dtype):
    for number, selections, outputs, first in rectangular(dtype):
        for m, n in [(1, 1), (2, 3), (3, 2), (3, 3)]:
            for bad in refusals(dtype):
                call = Call(qv, number, matrix(n, dtype, bad, m), m, n, *selections, *outputs)
                # A condition number that needs a square matrix: the screen comes first.
                assert call.status == -20068, (number, m, n, selections, bad)
                call.wrote(*first)
                check_first_write(call, number)


SELECTED = [(246, 247, -1, 2), (206, 223, 4, 0xFFFFFFFF), (205, 222, 4, 0xFFFFFFFF), (243, 245, 3, 0xFFFFFFFF)]


@TWINS
def test_a_selection_comes_after_sizes_and_before_content(qv, dtype):
    for number, selections, outputs, first in rectangular(dtype):
        bounds = {of(dtype, r, c): (low, high) for r, c, low, high in SELECTED} | {192: (3, 0xFFFFFFFF)}
        for bad in bounds.get(number, ()):
            selections = [bad] + selections[1:]
            call = Call(qv, number, matrix(2, dtype, NAN, 3), 3, 2, *selections, *outputs)
            assert call.status == -20061, (number, bad)
            call.wrote(*first)
            check_first_write(call, number)
            for (m, n), status in shapes(products=False):
                call = Call(qv, number, PLACE.astype(dtype), m, n, *selections, *outputs)
                assert call.status == status, (number, m, n, bad)
                call.wrote(*(first if status == -20003 else []))


@TWINS
def test_condition_numbers_of_rectangular_matrices(qv, dtype):
    number = of(dtype, 205, 222)
    for selector in range(4):
        call = Call(qv, number, matrix(2, dtype, m=3), 3, 2, selector, Out("condition"))
        assert call.status == (-20040 if selector else 0)
        assert np.isnan(call.outputs["condition"].array[0]) == (selector > 0)


# Square ones.
def square(dtype):
    d = dtype
    i = np.int64
    yield of(d, 196, 210), [], [Out("out", 64, d)], [], True
    yield of(d, 254, 255), [], [Out("h", 64, d), Out("q", 64, d)], [], True
    for job in range(4):
        outputs = [Out("low", 4, i), Out("high", 4, i), Out("scale"), Out("balanced", 64, d)]
        yield of(d, 248, 249), [job], outputs, [], True
    for kind in range(4):
        yield of(d, 198, 212), [kind], [Out("out", 64, d)], [], kind < 2
        yield of(d, 204, 220), [kind], [Out("determinant", 4, d)], ["determinant"], True
    yield of(d, 175, 225), [], [Out("trace", 4, d)], [], False
    for sort in range(5):
        yield of(d, 258, 259), [sort], [Out("vectors", 64, d), Out("t", 64, d), Out("values", 64, complex)], [], True
    for want in (0, 1):
        vectors = Out("vectors", 64, complex)
        if d is float:
            yield 201, [want], [Out("values", 64, complex), vectors], [], True
            yield 202, [want], [Out("values"), Out("vectors")], [], True
        else:
            for kind in (0, 1):
                yield 211, [kind, want], [Out("values", 64, complex), vectors], [], True
    if d is float:
        yield 105, [], [Out("out")], [], False
        yield 55, [], [Out("determinant", 4)], ["determinant"], True


def check_nan_determinant(call, number):
    if number in (204, 55):
        assert np.isnan(call.outputs["determinant"].array[0])
        assert np.array_equal(call.outputs["determinant"].words[1:], call.outputs["determinant"].first[1:])
    if number == 220:
        assert np.isnan(call.outputs["determinant"].array[0])
        assert np.array_equal(call.outputs["determinant"].words[2:], call.outputs["determinant"].first[2:])


@TWINS
def test_sizes_of_square_matrices(qv, dtype):
    for number, selections, outputs, first, _ in square(dtype):
        for n, status in orders():
            call = Call(qv, number, PLACE.astype(dtype), n, *selections, *outputs)
            assert call.status == status, (number, n, selections)
            call.wrote(*(first if status == -20003 else []))
            if status == -20003:
                check_nan_determinant(call, number)


@TWINS
def test_the_screen_of_square_matrices(qv, dtype):
    for number, selections, outputs, first, screened in square(dtype):
        for n in (1, 2, 3):
            for bad in refusals(dtype):
                if screened:
                    call = Call(qv, number, matrix(n, dtype, bad), n, *selections, *outputs)
                    assert call.status == -20068, (number, n, selections, bad)
                    call.wrote(*first)
                    check_nan_determinant(call, number)


SQUARE_SELECTED = {198: (-1, 4, 2**31 - 1, -2**31), 212: (-1, 4), 204: (4, 5, 2**32 - 1), 220: (4, 5),
                   248: (4, 2**32 - 1), 249: (4, 5), 201: (2, 2**32 - 1), 202: (2, 3), 211: (-1, 2)}


@TWINS
def test_a_selection_of_square_matrices_comes_after_the_size_and_before_content(qv, dtype):
    for number, selections, outputs, first, _ in square(dtype):
        for bad in SQUARE_SELECTED.get(number, ()):
            for n in (1, 2, 3):
                call = Call(qv, number, matrix(n, dtype, NAN), n, bad, *selections[1:], *outputs)
                assert call.status == -20061, (number, bad)
                call.wrote(*first)
                check_nan_determinant(call, number)
            for n, status in orders(products=False):
                call = Call(qv, number, PLACE.astype(dtype), n, bad, *selections[1:], *outputs)
                assert call.status == status, (number, n, bad)
                call.wrote(*(first if status == -20003 else []))


@TWINS
def test_an_order_of_eigenvalues_comes_before_the_size(qv, dtype):
    a = PLACE.astype(dtype)
    betas = Out("beta", 64, dtype)
    c = [Out(name, 64, complex) for name in ("alpha", "right", "left")]
    f = [Out(name, 64, dtype) for name in ("s", "t", "q", "z")]
    for sort in (5, 6, 2**31, 2**32 - 1):
        for n, status in [(k, -20061) for k in BELOW + [1, 2, 3]] + [(k, -20046) for k in TOO_LARGE]:
            content = a if n < 1 or n > 3 else matrix(n, dtype, NAN)
            call = Call(qv, of(dtype, 258, 259), content, n, sort, Out("v", 64, dtype), Out("t", 64, dtype), c[0])
            assert call.status == status, (n, sort)
            call.wrote()
            call = Call(qv, of(dtype, 256, 257), content, content, n, sort, *f, c[0], betas, c[1], c[2])
            assert call.status == status, (n, sort)
            call.wrote()


@TWINS
def test_pencils_screen_both_matrices_after_the_size(qv, dtype):
    f = [Out(name, 64, dtype) for name in ("s", "t", "q", "z")]
    c = [Out(name, 64, complex) for name in ("alpha", "right", "left")]
    for n, status in orders():
        a = PLACE.astype(dtype)
        call = Call(qv, of(dtype, 252, 253), a, a, n, *c)
        assert call.status == status
        call.wrote()
        for sort in range(5):
            call = Call(qv, of(dtype, 256, 257), a, a, n, sort, *f, c[0], Out("beta", 64, dtype), c[1], c[2])
            assert call.status == status
            call.wrote()
    for n in (1, 2, 3):
        for bad in refusals(dtype):
            for pair in [(matrix(n, dtype, bad), matrix(n, dtype)), (matrix(n, dtype), matrix(n, dtype, bad))]:
                call = Call(qv, of(dtype, 252, 253), *pair, n, *c)
                assert call.status == -20068
                call.wrote()
                call = Call(qv, of(dtype, 256, 257), *pair, n, 1, *f, c[0], Out("beta", 64, dtype), c[1], c[2])
                assert call.status == -20068
                call.wrote()


def expected_solve(m, n, kind, nrhs, bad_a, bad_b):
    """None: a solution."""
    if 1 <= kind <= 3 and m != n:
        return -20040
    if min(m, n, nrhs) < 1:
        return -20003
    if kind > 3:
        return -20061
    if (kind == 0 and (bad_a or bad_b)) or (kind == 1 and bad_a):
        return -20068
    return None


@TWINS
def test_solving_refuses_shape_size_kind_and_content_in_this_order(qv, dtype):
    sizes = [-1, 0, 1, 2, 3]
    for kind in (0, 1, 2, 3, 4, 5, 2**32 - 1):
        for m in sizes:
            for n in sizes:
                for bad_a, bad_b in [(0, 0), (1, 0), (0, 1), (1, 1)]:
                    a = matrix(max(n, 1), dtype, NAN if bad_a else None, max(m, 1))
                    for nrhs in (-1, 0, 1, 2):
                        b = np.ones(8, dtype)
                        if bad_b:
                            b[:] = NAN
                        call = Call(qv, of(dtype, 241, 242), a, m, n, kind, b, nrhs, Out("x", 64, dtype))
                        expected = expected_solve(m, n, kind, nrhs, bad_a, bad_b)
                        if expected is not None:
                            assert call.status == expected, (m, n, kind, nrhs, bad_a, bad_b)
                            call.wrote()
                        elif kind < 2 and not bad_b:
                            assert call.status == 0
                        if nrhs == 1:
                            one = Call(qv, of(dtype, 197, 218), a, m, n, b, kind, Out("x", 64, dtype))
                            assert one.status == call.status, (m, n, kind, bad_a, bad_b)
                            one.wrote(*(["x"] if expected is None else []))
    a, x = PLACE.astype(dtype), Out("x", 64, dtype)
    for (m, n, count), status in [((65536, 32768, 0), -20003), ((-1, 65536, 32768), -20003),
                                  ((65536, 0, 32768), -20003), ((65536, 32768, 1), -20046),
                                  ((1, 65536, 32768), -20046), ((65536, 1, 32768), -20046)]:
        call = Call(qv, of(dtype, 241, 242), a, m, n, 0, a, count, x)
        assert call.status == status, (m, n, count)
        call.wrote()
    for n in TOO_LARGE:
        for kind in (0, 1, 2, 3, 4):
            a, x = PLACE.astype(dtype), Out("x", 64, dtype)
            for sizes in [(n, 0, 0), (0, n, 0), (0, 0, n), (2, 3, n), (n, 3, -1)]:
                call = Call(qv, of(dtype, 241, 242), a, sizes[0], sizes[1], kind, a, sizes[2], x)
                assert call.status == -20046, (sizes, kind)
                call.wrote()
            for sizes in [(n, 0), (0, n), (2, n)]:
                call = Call(qv, of(dtype, 197, 218), a, *sizes, a, kind, x)
                assert call.status == -20046, (sizes, kind)
                call.wrote()


def expected_lag(n, p, method):
    if n < 1:
        return -20003
    if p < 0:
        return -20059
    if method in (3, 4) and p >= n:
        return -20037
    return -20061 if method > 4 else 0


@TWINS
def test_lag_products_refuse_in_this_order(qv, dtype):
    x = np.arange(1.0, 9.0).astype(dtype)
    for n in [-2**31, -1, 0, 1, 2, 5, 8]:
        for p in [-2**31, -1, 0, 1, 2, 4, 5, 6]:
            for method in (0, 1, 2, 3, 4, 5, 6, 2**32 - 1):
                call = Call(qv, of(dtype, 415, 416), x, n, p, method, Out("out", 64, dtype))
                assert call.status == expected_lag(n, p, method), (n, p, method)
                call.wrote(*(["out"] if call.status == 0 else []))
    for n in TOO_LARGE:
        for method in (0, 3, 5):
            for sizes in [(n, 1), (1, n), (n, -1), (0, n), (-1, n)]:
                call = Call(qv, of(dtype, 415, 416), x, *sizes, method, Out("out", 64, dtype))
                assert call.status == -20046, sizes
                call.wrote()


@TWINS
def test_vector_norms_refuse_in_this_order(qv, dtype):
    x = np.array([3.0, -4.0, 0.5], dtype)
    for selector in (0, 1, 2, 3, 4, 5, 6, 2**32 - 1):
        for n in [-2**31, -1, 0, 1, 3]:
            for p in [NAN, -NAN, 0.0, -0.0, 5e-324, INF, -INF, 2.0]:
                call = Call(qv, of(dtype, 394, 395), x, n, selector, p, Out("norm", 4))
                expected = (-20061 if selector > 4 else -20003 if n < 1 else 0 if selector < 4 else
                            -20068 if np.isnan(p) else -20141 if p == 0 else 0)
                assert call.status == expected, (selector, n, p)
                call.wrote(*(["norm"] if expected == 0 else []))
        for n in TOO_LARGE:
            call = Call(qv, of(dtype, 394, 395), x, n, selector, 0.0, Out("norm", 4))
            assert call.status == -20046
            call.wrote()


@TWINS
def test_products_refuse_in_this_order(qv, dtype):
    a = np.ones(16, dtype)
    for sizes in [(r, k, c) for r in (-1, 0, 2) for k in (-1, 0, 2) for c in (-1, 0, 3)]:
        call = Call(qv, of(dtype, 119, 214), a, a, *sizes, Out("out", 64, dtype))
        assert call.status == (-20004 if min(sizes) < 0 else 0), sizes
        out, count = call.outputs["out"], max(sizes[0] * sizes[2], 0)
        if call.status:
            count = 0
        call.wrote("out")
        assert np.array_equal(out.array[:count], np.full(count, sizes[1], dtype)), sizes
        written = count * np.dtype(dtype).itemsize // 8
        assert np.array_equal(out.words[written:], out.first[written:])
    for sizes in [(-1, 65536, 32768), (65536, -1, 32768), (65536, 32768, -1)]:
        call = Call(qv, of(dtype, 119, 214), a, a, *sizes, Out("out", 64, dtype))
        assert call.status == -20004, sizes
        call.wrote()
    for sizes in [(2, 65536, 32768), (65536, 2, 32768), (65536, 32768, 2), (0, 65536, 32768), (65536, 0, 32768)]:
        call = Call(qv, of(dtype, 119, 214), a, a, *sizes, Out("out", 64, dtype))
        assert call.status == -20046, sizes
        call.wrote()
    for n in TOO_LARGE:
        for sizes in [(n, -1, 2), (-1, n, 2), (-1, 0, n), (0, 0, n), (n, 0, 0), (0, n, 0)]:
            call = Call(qv, of(dtype, 119, 214), a, a, *sizes, Out("out", 64, dtype))
            assert call.status == -20046
            call.wrote()
        for sizes in [(n, 0), (0, n), (-1, n)]:
            call = Call(qv, of(dtype, 370, 371), a, a, *sizes, Out("out", 64, dtype))
            assert call.status == -20046
            call.wrote()
    for sizes in [(r, k) for r in (-1, 0, 2) for k in (-1, 0, 2)]:
        call = Call(qv, of(dtype, 370, 371), a, a, *sizes, Out("out", 64, dtype))
        assert call.status == (-20003 if min(sizes) < 1 else 0), sizes
        call.wrote(*([] if call.status else ["out"]))


def expected_special(kind, size, first, second):
    if kind > 4:
        return -20061
    if kind == 4:
        return -20006 if first < 2 else 0
    used = {0: [size], 1: [first], 2: [first, second], 3: [first]}[kind]
    return -20003 if min(used) < 1 else 0


@TWINS
def test_special_matrices_refuse_the_sizes_that_they_use(qv, dtype):
    v = np.arange(1.0, 5.0).astype(dtype)
    sizes = [-2**31, -1, 0, 1, 2, 4]
    for kind in (0, 1, 2, 3, 4, 5, 6, 2**32 - 1):
        for size in sizes:
            for first in sizes:
                for second in sizes:
                    call = Call(qv, of(dtype, 208, 227), kind, size, v, first, v, second, Out("out", 64, dtype))
                    assert call.status == expected_special(kind, size, first, second), (kind, size, first, second)
                    call.wrote(*([] if call.status else ["out"]))
        for n in TOO_LARGE:
            for sizes_ in [(n, 2, 2), (2, n, 2), (2, 2, n), (n, -1, 0), (0, n, -1), (0, 0, n)]:
                call = Call(qv, of(dtype, 208, 227), kind, sizes_[0], v, sizes_[1], v, sizes_[2], Out("out", 64, dtype))
                assert call.status == -20046, (kind, sizes_)
                call.wrote()


@TWINS
def test_balancing_back_refuses_in_this_order(qv, dtype):
    scale = np.ones(8)
    number = of(dtype, 250, 251)
    for n in [-1, 0, 1, 2, 3]:
        v = matrix(max(n, 1), dtype)
        for job in (0, 1, 2, 3, 4, 2**32 - 1):
            for side in (0, 1, 2, 2**32 - 1):
                for low in (-1, 0, 1, 2, 3):
                    for high in (-1, 0, 1, 2, 3):
                        call = Call(qv, number, v, n, job, side, low, high, scale, Out("out", 64, dtype))
                        expected = (-20003 if n < 1 else -20061 if job > 3 or side > 1 else
                                    0 if 0 <= low <= high < n else -20017)
                        assert call.status == expected, (n, job, side, low, high)
                        call.wrote(*([] if expected else ["out"]))


@TWINS
def test_factors_of_refused_matrices_and_their_parity_stay_unwritten(qv, dtype):
    number = of(dtype, 118, 213)
    for n, status in list(orders()) + [(3, -20068)]:
        for bad in refusals(dtype) if n == 3 else [0.0]:
            a = Guarded(matrix(3, dtype, bad).ravel(), dtype)
            call = Call(qv, number, a.array, n, Out("pivots", 4, np.int64), Out("parity", 8, np.uint32))
            assert call.status == status, (n, bad)
            call.wrote()
            a.untouched()


@TWINS
def test_definiteness_compares_before_it_screens(qv, dtype):
    number = of(dtype, 209, 226)
    for n, status in orders():
        call = Call(qv, number, PLACE.astype(dtype), n, Out("flag", 2, np.uint32))
        assert call.status == status
        call.wrote()
    for bad in [INF, -INF, LARGEST, -LARGEST, -1.7976931348623e308]:
        symmetric, not_symmetric = matrix(3, dtype), matrix(3, dtype)
        symmetric[0, 2] = symmetric[2, 0] = not_symmetric[2, 0] = bad
        for a, status in [(symmetric, -20068), (not_symmetric, 0), (matrix(3, dtype, bad), -20068)]:
            call = Call(qv, number, a, 3, Out("flag", 2, np.uint32))
            assert call.status == status, (bad, a)
            assert list(call.outputs["flag"].array[:1]) == [0]
            assert call.outputs["flag"].array[1] == call.outputs["flag"].first.view(np.uint32)[1]
    for place in range(9):
        a = matrix(3, dtype)
        a.flat[place] = NAN
        call = Call(qv, number, a, 3, Out("flag", 2, np.uint32))
        assert call.status == 0 and call.outputs["flag"].array[0] == 0


@TWINS
def test_elements_next_to_the_limits_of_the_screen_are_accepted(qv, dtype):
    for value in ACCEPTED:
        for part in [value] + ([complex(0, value)] if dtype is complex else []):
            a = np.array([part], dtype)
            for kind in (0, 2, 3):
                call = Call(qv, of(dtype, 204, 220), a, 1, kind, Out("determinant", 4, dtype))
                assert call.status == 0 and call.outputs["determinant"].array[0] == part
            for selector in (1, 3):
                call = Call(qv, of(dtype, 206, 223), a, 1, 1, selector, Out("norm"))
                assert call.status == 0
                assert call.outputs["norm"].array[0] == (abs(value) if dtype is float else INF)  # |z| squares its parts
            call = Call(qv, of(dtype, 118, 213), a.copy(), 1, None, Out("parity", 8, np.uint32))
            assert call.status == 0


@TWINS
def test_singular_values_alone_take_any_mode(qv, dtype):
    number, rng = of(dtype, 246, 247), np.random.default_rng(1)
    for m, n in [(1, 1), (2, 3), (4, 2)]:
        a = rng.standard_normal((m, n)).astype(dtype)
        alone = Call(qv, of(dtype, 195, 216), a, m, n, Out("s", 64, dtype))
        assert alone.status == 0
        for mode in (-2**31, -1, 0, 1, 2, 2**31 - 1):
            for u, v in [(None, None), (Out("u", 64, dtype), None), (None, Out("v", 64, dtype))]:
                call = Call(qv, number, a, m, n, mode, u, Out("s", 64, dtype), v)
                assert call.status == 0
                call.wrote("s")
                assert np.array_equal(call.outputs["s"].words, alone.outputs["s"].words)
                call = Call(qv, number, a, 0, n, mode, u, Out("s", 64, dtype), v)
                assert call.status == -20003
                call.wrote()
                call = Call(qv, number, matrix(n, dtype, NAN, m), m, n, mode, u, Out("s", 64, dtype), v)
                assert call.status == -20068
                call.wrote()


@TWINS
def test_factors_that_would_be_too_large_are_refused_where_they_are_wanted(qv, dtype):
    m = 46341  # the least with more than 2^31 - 1 elements in its square
    a, r = np.ones(m, dtype), np.zeros(m, dtype)
    s, one = np.zeros(1, dtype), np.zeros(1, dtype)
    u, q = Out("u", 64, dtype), Out("q", 64, dtype)
    svd, pivot = of(dtype, 246, 247), of(dtype, 243, 245)
    call = Call(qv, svd, a, m, 1, 0, u, Out("s", 64, dtype), Out("v", 64, dtype))
    assert call.status == -20046
    call.wrote()
    call = Call(qv, svd, a, 1, m, 0, u, Out("s", 64, dtype), Out("v", 64, dtype))
    assert call.status == -20046
    call.wrote()
    wide = np.zeros(m, dtype)
    assert Call(qv, svd, a, m, 1, 1, wide, s, one).status == 0
    assert Call(qv, svd, a, m, 1, 0, None, s, None).status == 0
    for mode in (0, 1, 2):
        call = Call(qv, pivot, a, m, 1, mode, 0, Out("p", 4, np.int64), q, Out("r", 64, dtype))
        assert call.status == -20046
        call.wrote()
        assert Call(qv, pivot, a, m, 1, mode, 0, None, None, r).status == 0
        assert Call(qv, pivot, a, m, 1, mode, 1, None, wide, r).status == 0
    numbers = [(192, [k]) for k in range(3)] if dtype is float else [(228, [])]
    for number, selection in numbers:
        call = Call(qv, number, a, m, 1, *selection, q, Out("r", 64, dtype))
        assert call.status == -20046
        call.wrote()
        assert Call(qv, number, a, m, 1, *selection, None, r).status == 0
    call = Call(qv, pivot, a, 1, m, 2, 0, Out("p", 4, np.int64), q, Out("r", 64, dtype))
    assert call.status == -20046
    call.wrote()


@TWINS
def test_sizes_of_vector_products(qv, dtype):
    a = np.ones(16, dtype)
    outer, kronecker = of(dtype, 203, 224), of(dtype, 358, 359)
    cases = [((x, y), -20003) for x in BELOW + [2] for y in BELOW + [2] if min(x, y) < 1]
    cases += [(s, -20046) for n in TOO_LARGE for s in [(n, 0), (0, n), (2, n), (n, 2)]]
    cases += [((65536, 32768), -20046), ((2**31 - 1, 2**31 - 1), -20046)]
    for (x, y), status in cases:
        call = Call(qv, outer, a, x, a, y, Out("out", 64, dtype))
        assert call.status == status, (x, y)
        call.wrote()
        for sizes in [(x, 1, y, 1), (1, x, y, 1), (1, x, 1, y), (x, y, 1, 1), (1, 1, x, y), (x, y, 1, 2)]:
            call = Call(qv, kronecker, a, a, *sizes, Out("out", 64, dtype))
            assert call.status == status, sizes
            call.wrote()
    for sizes in [(256,) * 4, (2**15, 1, 2**15, 2), (1, 2**16, 1, 2**16), (2**31 - 1,) * 4]:
        call = Call(qv, kronecker, a, a, *sizes, Out("out", 64, dtype))
        assert call.status == -20046, sizes
        call.wrote()
    for sizes in [(0, 2**31 - 1, 2**31 - 1, 2**31 - 1), (2**16, 2**16, -1, 1)]:
        call = Call(qv, kronecker, a, a, *sizes, Out("out", 64, dtype))
        assert call.status == -20003, sizes
        call.wrote()
    for n, status in [(k, -20003) for k in BELOW] + [(k, -20046) for k in TOO_LARGE]:
        call = Call(qv, of(dtype, 191, 221), a, a, n, Out("dot", 4, dtype))
        assert call.status == status
        call.wrote()
    for n, status in [((x, y), s) for (x, y), s in cases]:
        for out in (Out("out", 64, dtype), None):
            b = Guarded(np.ones(16, dtype), dtype)
            call = Call(qv, of(dtype, 177, 217), b.array, *n, out)
            assert call.status == status, n
            call.wrote()
            b.untouched()
