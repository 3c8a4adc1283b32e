"""The polynomial fits beside a model of what stands around the solve: checks, the powers kept, what is written.

The reduced design is solved by the library's own general fit, so that all outputs agree to the last bit.
"""

import itertools
import math

import numpy as np
import pytest

from exact import divided, equal_numbers

NAN = math.nan
SELECTORS = (0, 3, 4, 5)
WARNING = 20031


def general(qv, design, y, w, selector):
    if w is not None:
        root = np.sqrt(np.abs(w))
        design, y = design * root[:, None], y * root
    c = np.full(design.shape[1], NAN)
    return qv.ZemFunc239(np.ascontiguousarray(design).ravel(), *design.shape, y.copy(), c, selector), c.tolist()


def error(y, f, w):
    total = 0.0
    for i in range(len(y)):
        term = (f[i] - 2.0 * y[i]) * f[i] + y[i] * y[i]
        total += term if w is None else abs(w[i]) * term
    return divided(total, len(y))


def horner(c, x):
    f = 0.0
    for v in reversed(c):
        f = f * x + v
    return f


def expected(qv, x, y, w, n, order, fixed, algorithm):
    """Status and coefficients."""
    if algorithm > 3:
        return -20061, None
    if order < 0:
        return -20103, None
    if n <= order - len(fixed):
        return -20037, None
    selector, xs, ys = SELECTORS[algorithm], x[:n].tolist(), y[:n].tolist()
    if not fixed:
        top = min(order, 25)
        design = np.ones((n, top + 1))
        for i, k in itertools.product(range(n), range(1, top + 1)):
            design[i, k] = design[i, k - 1] * xs[i]
        status, c = general(qv, design, y[:n], w, selector)
        if status < 0:
            return status, None
        return WARNING if order > 25 else 0, c + [0.0] * (order - top)
    table = [-1] * (order + 1)
    for k, (at, _) in enumerate(fixed):
        if 0 <= at <= order:
            table[at] = k
    top, warning = order, 0
    if order > 25:
        warning = WARNING
        free = [k for k in range(order + 1) if table[k] < 0]
        top = max(25, free[1]) if len(free) > 1 else order
    free = [k for k in range(top + 1) if table[k] < 0]
    solved = []
    if free:
        design, target = np.zeros((n, len(free))), list(ys)
        for i in range(n):
            power, column = 1.0, 0
            for k in range(order + 1):
                if table[k] >= 0:
                    target[i] -= power * fixed[table[k]][1]
                elif k <= top:
                    design[i, column] = power
                    column += 1
                power *= xs[i]
        status, solved = general(qv, design, np.array(target), w, selector)
        if status < 0:
            return status, None
    rest = iter(solved)
    c = [fixed[table[k]][1] if table[k] >= 0 else next(rest) if k <= top else 0.0 for k in range(order + 1)]
    return warning, c


@pytest.mark.parametrize("algorithm", range(5))
def test_constrained_and_weighted(qv, algorithm):
    done = 0
    for seed in range(300):
        rng = np.random.default_rng((seed, algorithm))
        n = int(rng.integers(0, 9)) if seed % 5 else int(rng.integers(28, 40))
        order = int(rng.integers(-1, 5)) if seed % 5 else int(rng.integers(24, 30))
        count = int(rng.integers(0, 4)) if seed % 5 else int(rng.choice([1, 24, 27, 29]))
        fixed = [(int(k), float(v)) for k, v in zip(rng.integers(-1, order + 2, count), rng.normal(size=count))]
        if seed % 10 == 0:
            fixed = [(k, v) for k, (_, v) in zip(rng.permutation(order + 1).tolist(), fixed)]
        size = max(n, 1)
        x, y = rng.uniform(-1.2, 1.2, size), rng.normal(size=size)
        weighted = rng.random() < 0.5
        # The reduced normal equations of weights are another order of sums, which tolerances would have to judge.
        w = rng.uniform(-2, 2, size) if weighted and algorithm < 2 and rng.random() < 0.8 else None
        if n == 0 and fixed and order < len(fixed):
            continue  # nothing to fit: the engine's own checks, which have their tests
        orders, values = np.array([k for k, _ in fixed] or [0], np.int32), np.array([v for _, v in fixed] or [0.0])
        with np.errstate(all="ignore"):
            status, c = expected(qv, x, y, None if w is None else w[:n], n, order, fixed, algorithm)
        for curve, mean in ((True, True), (False, True), (False, False)):
            over, f = x.copy(), np.full(size, NAN) if curve else None
            found, e = np.full(max(order, 0) + 1, NAN), np.full(1, NAN) if mean else None
            if weighted:
                got = qv.ZemFunc361(over, y, w, n, order, orders, values, len(fixed), algorithm, f, found, e)
            else:
                got = qv.ZemFunc298(over, y, n, order, orders, values, len(fixed), algorithm, f, found, e)
            assert got == status, (seed, n, order, fixed)
            if status < 0:
                equal_numbers(over, x)
                assert f is None or np.isnan(f).all()
                assert e is None or np.isnan(e).all()
                continue
            done += 1
            equal_numbers(found, c)
            if not mean:
                equal_numbers(over, x)
                continue
            written = f if curve else over
            if fixed:
                equal_numbers(written, [horner(c, v) for v in x.tolist()])
            else:
                assert np.allclose(written, np.polynomial.polynomial.polyval(x, c), rtol=1e-11, atol=1e-11)
            if curve:
                equal_numbers(over, x)
            equal_numbers(e, [error(y.tolist(), written.tolist(), w)])
    assert done > 50 or algorithm == 4
