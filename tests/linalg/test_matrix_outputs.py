"""Outputs over inputs and outputs that are not wanted: each gives the bits of separate outputs, and no other word."""

import itertools

import numpy as np
import pytest

from exact import GUARD, equal_bits

ROOM = 64
OVER, SKIPPED = "null puts it over the matrix", "null leaves it out"


class Form:
    """An export with one matrix: what stands between the sizes and the outputs, the outputs with type and null."""

    def __init__(self, number, square, selections, *outputs):
        self.number, self.square, self.selections, self.outputs = number, square, selections, outputs


def forms(dtype):
    d, i = dtype, np.int64
    real = d is float

    def of(a, b):
        return a if real else b

    # Sizes of outputs in terms of m, n and k = min(m, n).
    def s(m, n):
        return min(m, n)

    def mk(m, n):
        return m * min(m, n)

    def nk(m, n):
        return n * min(m, n)

    def mn(m, n):
        return m * n

    def mm(m, n):
        return m * m

    def nn(m, n):
        return n * n

    def order(m, n):
        return n

    yield Form(of(195, 216), False, [], (d, s, None))
    yield Form(of(193, 219), False, [], (d, mk, None), (d, s, None), (d, nk, None))
    yield Form(of(246, 247), False, [1], (d, mk, None), (d, s, None), (d, nk, None))
    yield Form(of(246, 247), False, [0], (d, mm, None), (d, s, None), (d, nn, None))
    yield Form(of(200, 229), False, [-1.0], (d, mn, OVER))
    yield Form(of(177, 217), False, [], (d, mn, OVER))
    for mode in (0, 1, 2):
        p = (i, nn if mode == 2 else order, SKIPPED)
        yield Form(of(243, 245), False, [mode, 0], p, (d, mm, SKIPPED), (d, mn, OVER))
        yield Form(of(243, 245), False, [mode, 1], p, (d, mk, SKIPPED), (d, nk, OVER))
    if real:
        for method in (0, 1, 2):
            yield Form(192, False, [method], (d, mm, SKIPPED), (d, mn, OVER))
    else:
        yield Form(228, False, [], (d, mm, SKIPPED), (d, mn, OVER))
    yield Form(of(196, 210), True, [], (d, nn, OVER))
    yield Form(of(254, 255), True, [], (d, nn, OVER), (d, nn, None))
    for job in range(4):
        yield Form(of(248, 249), True, [job], (i, lambda m, n: 1, None), (i, lambda m, n: 1, None),
                   (float, order, None), (d, nn, OVER))
    for kind in range(4):
        yield Form(of(198, 212), True, [kind], (d, nn, OVER))
    if real:
        yield Form(105, True, [], (d, nn, OVER))
        yield Form(201, True, [1], (complex, order, None), (complex, nn, None))
        yield Form(201, True, [0], (complex, order, None), (complex, lambda m, n: 0, SKIPPED))
        yield Form(202, True, [1], (d, order, None), (d, nn, None))
        yield Form(202, True, [0], (d, order, None), (d, lambda m, n: 0, SKIPPED))
    else:
        for kind in (0, 1):
            yield Form(211, True, [kind, 1], (d, order, None), (d, nn, None))
            yield Form(211, True, [kind, 0], (d, order, None), (d, lambda m, n: 0, SKIPPED))
    for sort in range(5):
        yield Form(of(258, 259), True, [sort], (d, nn, SKIPPED), (d, nn, None), (complex, order, None))


def room(dtype, values=()):
    words = np.full(ROOM * np.dtype(dtype).itemsize // 8, GUARD, np.uint64)
    words.view(dtype)[:len(values)] = values
    return words.view(dtype)


def definite(m, n, dtype):
    rng = np.random.default_rng((m, n))
    a = rng.standard_normal((m, n))
    if dtype is complex:
        a = a + 1j * rng.standard_normal((m, n))
    if m == n:
        a = a @ a.conj().T + 0.5 * np.eye(n)  # kind 1 and Cholesky need it
        a = (a + a.conj().T) / 2
    return a.astype(dtype).ravel()


@pytest.mark.parametrize("dtype", [float, complex])
def test_outputs_over_inputs_and_without_a_place(qv, dtype):
    compared = 0
    for form, (m, n) in itertools.product(forms(dtype), [(1, 1), (3, 3), (2, 4), (4, 2), (5, 5)]):
        if form.square and m != n:
            continue
        function = getattr(qv, f"ZemFunc{form.number}")
        sizes = [n] if form.square else [m, n]
        content = definite(m, n, dtype)

        def run(replaced=None):
            """Outputs by place, with some replaced; and the array that was the matrix."""
            a = room(dtype, content)
            outputs = [room(kind) for kind, _, _ in form.outputs]
            for place, what in (replaced or {}).items():
                outputs[place] = a if what == "a" else None
            assert function(a, *sizes, *form.selections, *outputs) == 0, (form.number, m, n, form.selections)
            return a, outputs

        a, expected = run()
        equal_bits(a.view(float), room(dtype, content).view(float))
        for got, (kind, count, _) in zip(expected, form.outputs):
            words = count(m, n) * np.dtype(kind).itemsize // 8
            assert np.all(got.view(np.uint64)[words:] == GUARD), (form.number, "written behind")
            assert not np.any(got.view(np.uint64)[:words] == GUARD), (form.number, "left unwritten")

        def same(got, place):
            kind, count, _ = form.outputs[place]
            words = count(m, n) * np.dtype(kind).itemsize // 8
            assert np.array_equal(got.view(np.uint64)[:words], expected[place].view(np.uint64)[:words]), (
                form.number, form.selections, place, m, n)
            return words

        for place, (kind, count, null) in enumerate(form.outputs):
            cases = ["a"] if kind is dtype and count(m, n) else []
            cases += [None] if null else []
            for case in cases:
                a, outputs = run({place: case})
                over_matrix = case == "a" or null == OVER
                words = same(a, place) if over_matrix else 0
                first = room(dtype, content).view(np.uint64)
                assert np.array_equal(a.view(np.uint64)[words:], first[words:]), (form.number, "matrix", place, case)
                for other, got in enumerate(outputs):
                    if other != place:
                        same(got, other)
                compared += 1
    assert compared > 150


@pytest.mark.parametrize("dtype", [float, complex])
def test_solutions_over_the_matrix_or_the_right_hand_sides(qv, dtype):
    many, single = (qv.ZemFunc241, qv.ZemFunc197) if dtype is float else (qv.ZemFunc242, qv.ZemFunc218)
    for kind, (m, n), count in itertools.product(range(4), [(1, 1), (3, 3), (2, 4), (4, 2), (5, 5)], [1, 2, 3]):
        if kind and m != n:
            continue
        a, b = definite(m, n, dtype), definite(m, count, dtype)
        x = room(dtype)
        assert many(a, m, n, kind, b, count, x) == 0
        assert np.all(x[n * count:].view(np.uint64) == GUARD)
        over = room(dtype, a)
        assert many(over, m, n, kind, b, count, over) == 0
        equal_bits(over[:n * count].view(float), x[:n * count].view(float))
        over = room(dtype, b)
        assert many(a, m, n, kind, over, count, over) == 0
        equal_bits(over[:n * count].view(float), x[:n * count].view(float))
        if count == 1:
            for target in (room(dtype), room(dtype, a), room(dtype, b)):
                left = target if np.array_equal(target[:m * n], a) else a
                right = target if np.array_equal(target[:m], b) else b
                assert single(left, m, n, right, kind, target) == 0
                equal_bits(target[:n].view(float), x[:n].view(float))


def test_the_tolerance_of_least_squares_is_relative_to_the_largest_singular_value(qv):
    eps = 2.220446049250313e-16
    for dtype, many in ((float, qv.ZemFunc241), (complex, qv.ZemFunc242)):
        # 740 columns in one row and 803 in two take the route over the singular values.
        for m, n in [(2, 2), (3, 2), (2, 4), (5, 3), (2, 802), (2, 803)]:
            limit = max(m, n) * eps
            for small, status in [(limit / 2, 20001), (0.0, 20001), (2 * limit, 0)]:
                a = np.zeros((m, n), dtype)
                a[0, 0], a[1, 1] = 1.0, small
                for i in range(2, min(m, n)):
                    a[i, i] = 1.0
                b, x = np.ones(m, dtype), np.full(n, np.nan, dtype)
                assert many(a, m, n, 0, b, 1, x) == status, (dtype, m, n, small)
                expected = np.zeros(n)
                expected[:min(m, n)] = 1.0
                expected[1] = 0 if status else 1 / small
                assert np.allclose(x, expected, rtol=1e-14, atol=1e-14)
        for n in (1, 5, 739, 740, 2000):
            x = np.full(n, np.nan, dtype)
            assert many(np.zeros(n, dtype), 1, n, 0, np.ones(1, dtype), 1, x) == 20001
            assert np.array_equal(x, np.zeros(n))
            assert many(np.ones(n, dtype), 1, n, 0, np.ones(1, dtype), 1, x) == 0
            assert np.allclose(x, 1 / n, rtol=1e-13, atol=0)
