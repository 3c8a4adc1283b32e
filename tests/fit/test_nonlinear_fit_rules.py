"""The damped loop in scalar arithmetic, to the last bit: every call of the model, every step, every status and output.

The least-squares solution of a step is that of the library's own export; all else is modelled here. The models to fit
may jump, overflow or return NaN.
"""

import math

import numpy as np
import pytest
from conftest import SCALARS

from exact import divided, equal_numbers, fits, numbers

NAN, INF = math.nan, math.inf
EPSILON = 2.220446049250313e-16


class Deficient(Exception):
    """A rank below m, where the export cuts off elsewhere than the loop; or a circle, which another test is for."""


def least_squares(qv, a, b):
    m = len(b)
    x = np.zeros(m)
    status = qv.ZemFunc197(np.ascontiguousarray(a).ravel(), m, m, np.array(b), 0, x)
    if status > 0:
        raise Deficient
    return status, x.tolist()


class Loop:
    def __init__(self, qv, f, x, y, sigma, limit, a):
        self.qv, self.f, self.x, self.y, self.limit, self.a = qv, f, x, y, limit, list(a)
        self.variance = None if sigma is None else [1.0 if s == 0 else s * s for s in sigma]
        self.calls = []

    def value(self, x, a):
        self.calls.append((x, *a))
        return self.f(x, a)

    def over(self, v, i):
        return v if self.variance is None else divided(v, self.variance[i])

    def chi(self, a):
        total = 0.0
        for i, x in enumerate(self.x):
            d = self.y[i] - self.value(x, a)
            total += self.over(d * d, i)
        return total

    def gradient(self, x, a):
        g = []
        for j, p in enumerate(a):
            least = math.sqrt(EPSILON)
            h = 3e-06 * (abs(p) if abs(p) > least else least)
            moved = list(a)
            moved[j] = p + h
            above = self.value(x, moved)
            moved[j] = (p + h) - 2.0 * h
            g.append(divided(above - self.value(x, moved), 2.0 * h))
        return g

    def curvature(self, a):
        m = len(a)
        alpha, beta, chi = [[0.0] * m for _ in range(m)], [0.0] * m, 0.0
        for i, x in enumerate(self.x):
            d = self.y[i] - self.value(x, a)
            chi += self.over(d * d, i)
            g = self.gradient(x, a)
            for j in range(m):
                for k in range(j + 1):
                    alpha[j][k] += self.over(g[j] * g[k], i)
                beta[j] += self.over(d * g[j], i)
        for j in range(m):
            for k in range(j):
                alpha[k][j] = alpha[j][k]
        return alpha, beta, chi

    def step(self, alpha, beta, damping, a):
        """Status and the trial."""
        m = len(a)
        damped = np.array(alpha)
        for j in range(m):
            damped[j, j] = alpha[j][j] * (damping + 1.0)
            if not math.isfinite(damped[j, j]):
                return -20068, None
        status, x = least_squares(self.qv, damped, beta)
        return status, [v + w for v, w in zip(a, x)]

    def run(self):
        """Status and iterations."""
        alpha, beta, chi = self.curvature(self.a)
        old = new = chi
        damping, iteration, small, kept, early, limit = 0.001, 0, 0, 0, False, self.limit
        while limit < 0 or iteration < limit:
            if iteration > 200:
                raise Deficient
            status, trial = self.step(alpha, beta, damping, self.a)
            if status < 0:
                kept, early = 0 if status == -20068 else status, True
                break
            new = self.chi(trial)
            if new > old:
                damping, small, iteration = damping * 10.0, 0, iteration + 1
                continue
            alpha, beta, _ = self.curvature(trial)
            damping *= 0.1
            self.a = trial
            d = old - new
            if d < 0.001 or d < old * 1e-5:
                if small == 1:
                    early = True
                    break
                small += 1
            if limit < 0 or iteration < limit - 1:
                old = new
            iteration += 1
        count = iteration + 1 if limit < 0 or iteration < limit else iteration
        if limit < 0 or early:
            return kept, count
        if abs(old - new) < 1e-6 * (old if new > old else new):
            return 0, count
        return -20062, count


def decay(x, a):
    return a[0] * np.exp(-a[1] * x)


def line(x, a):
    return a[0] * x + a[1]


def jump(x, a):
    return (a[0] if a[0] < 2.5 else 7 * a[0]) * x + a[1] * a[1]


def cliff(x, a):
    return a[0] * x + a[1] if a[1] > -0.5 else NAN


def steep(x, a):
    return np.exp(a[0] * x * 300.0) * a[1]


def level(x, a):
    return a[0]


def wave(x, a):
    return a[0] * np.sin(a[1] * x) + a[2]


MODELS = {decay: 2, line: 2, jump: 2, cliff: 2, steep: 2, level: 1, wave: 3}


def quiet(f):
    def g(x, a):
        with np.errstate(all="ignore"):
            return float(f(np.float64(x), np.array(a)))
    return g


def expected(qv, entry, f, x, y, w, limit, a):
    """Status, coefficients, curve, error, iterations, calls: None where nothing is written."""
    n, m = len(x), len(a)
    sigma, keep = None, range(n)
    if w is not None:
        if not np.all(np.isfinite(w)):
            return -20068, a, None, None, 0, []
        left = [i for i in range(n) if w[i] != 0]
        if left:
            keep, sigma = left, [divided(1.0, math.sqrt(abs(w[i]))) for i in left]
    if len(keep) < 1:
        return -20003, a, None, None, 0, []
    if len(keep) < m:
        return -20037, a, None, None, 0, []
    loop = Loop(qv, f, [float(x[i]) for i in keep], [float(y[i]) for i in keep], sigma, limit, a)
    status, count = loop.run()
    if status < 0 and (entry == 374 or status != -20062):
        return status, loop.a, None, None, count, loop.calls
    curve = [loop.value(float(v), loop.a) for v in x]
    total = 0.0
    for i in range(n):
        square = (curve[i] - y[i]) * (curve[i] - y[i])
        total += square if w is None else square * abs(w[i])
    return status, loop.a, curve, divided(total, n), count, loop.calls


def same_or_unwritten(got, wanted):
    equal_numbers(got, np.full(len(got), NAN) if wanted is None else wanted)


@pytest.mark.parametrize("f", MODELS)
def test_every_call_and_every_bit(qv, f):
    followed = 0
    for seed in range(100):
        rng = np.random.default_rng((seed, list(MODELS).index(f)))
        m, n, g = MODELS[f], int(rng.integers(1, 9)), quiet(f)
        a = rng.uniform(-1, 3, m) * rng.choice([0, 1, 1, 1, 100], m)
        x, limit, w = np.sort(rng.uniform(0, 3, n)), int(rng.choice([-1, 0, 1, 2, 3, 5, 40])), None
        y = np.array([g(v, np.array([2.0, 0.5, 0.1])[:m]) for v in x]) + rng.normal(size=n) * rng.choice([0, 0.1, 30])
        entry = int(rng.choice([130, 131, 374]))
        if entry == 130:
            limit = -1
        if entry == 374 and rng.random() < 0.7:
            w = rng.uniform(-2, 2, n) * rng.choice([0, 1, 1, 1], n)
            if rng.random() < 0.2:
                w = numbers(rng, n, "special")
        if rng.random() < 0.1:
            y = numbers(rng, n, "special")
        with np.errstate(all="ignore"):
            try:
                status, c, curve, error, iterations, calls = expected(qv, entry, g, x, y, w, limit, a.tolist())
            except Deficient:
                continue
        followed += 1
        made = []

        def model(v, p, count):
            assert count == m
            made.append((v, *p[:m]))
            return g(v, p[:m])

        callback, got, done = SCALARS["model"](model), a.copy(), np.full(1, -7, np.int32)
        fitted, mse = np.full(n, NAN), np.full(1, NAN)
        if entry == 130:
            result = qv.ZemFunc130(x, y, fitted, n, callback, got, m, mse)
        elif entry == 131:
            result = qv.ZemFunc131(x, y, fitted, n, limit, callback, got, m, mse)
        else:
            result = qv.ZemFunc374(x, y, w, fitted, n, limit, callback, got, m, mse, done)
            assert done[0] == iterations, seed
        assert result == status, seed
        assert len(made) == len(calls), seed
        equal_numbers(np.array(made).ravel(), np.array(calls).ravel())
        equal_numbers(got, c)
        same_or_unwritten(fitted, curve)
        same_or_unwritten(mse, None if error is None else [error])
    assert followed > 50


def test_of_several_faults_the_first_check_tells(qv):
    """The size in 32 bits before all, then the weights, the count of samples, and fewer of them than coefficients."""
    sizes = (2**31, 2**32 + 5, -2**31 - 1, -2**63, -2**31, -1, 0, 1, 2, 3)
    for n in sizes:
        for m in (-2**31, -1, 0, 1, 2, 3, 4, 2**31 - 1):
            for w in (None, [1.0, NAN, 0.0], [INF, 1.0, 1.0], [0.0, 1.0, 0.0], [0.0, 0.0, 0.0]):
                if fits(n) and 0 < m <= n and not (w and w[1] == 1 and n > 1 and m > 1):
                    if w is None or all(math.isfinite(v) for v in w[:n]):
                        continue
                counted = n if w is None or n < 1 else sum(v != 0 for v in w[:n]) or n
                status = -20003 if n < 1 or m < 1 else -20037 if counted < m else None
                if w is not None and n > 0 and not all(math.isfinite(v) for v in w[:n] if fits(n)):
                    status = -20068
                if not fits(n):
                    status = -20046
                if status is None:
                    continue
                x, a, fitted, mse = np.zeros(3), np.ones(4), np.full(3, NAN), np.full(1, NAN)
                done = np.full(1, 9, np.int32)

                def never(v, p, count):
                    raise AssertionError

                callback, weights = SCALARS["model"](never), None if w is None else np.array(w)
                assert qv.ZemFunc374(x, x, weights, fitted, n, -1, callback, a, m, mse, done) == status, (n, m, w)
                assert done[0] == (0 if fits(n) else 9)
                if w is None:
                    assert qv.ZemFunc130(x, x, fitted, n, callback, a, m, mse) == status
                    assert qv.ZemFunc131(x, x, fitted, n, 0, callback, a, m, mse) == status
                assert np.isnan([*fitted, *mse]).all() and np.all(a == 1)
