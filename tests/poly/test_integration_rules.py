"""Integration of samples in scalar arithmetic, in the documented order, to the last bit."""

import numpy as np
import pytest

from exact import KINDS, TOO_LARGE, equal_numbers, numbers, unwritten


def trapezoid(x, h):
    return (x[-2] + x[-1]) * h / 2


def integral(x, dt, rule):
    """None where there are too few samples."""
    n, h = len(x), abs(dt)
    if n < rule + 2:
        return None
    x = [np.float64(v) for v in x]
    m, total = n - 1, np.float64(0.0)
    if rule == 0:
        for v in x[1:-1]:
            total += v
        return h * ((x[0] + x[-1]) / 2 + total)
    if rule == 1:
        for p in range(m // 2):
            total += x[2 * p] + 4 * x[2 * p + 1] + x[2 * p + 2]
        result = h / 3 * total
        return result + (x[n - 2] + x[n - 1]) * h / 2 if n % 2 == 0 else result
    simpson = (x[n - 3] + 4 * x[n - 2] + x[n - 1]) * h / 3
    if rule == 2:
        for p in range(m // 3):
            total += 3 * x[3 * p] + 9 * x[3 * p + 1] + 9 * x[3 * p + 2] + 3 * x[3 * p + 3]
        rest = {0: None, 1: trapezoid(x, h), 2: simpson}[m % 3]
        result = h / 8 * total
    else:
        for p in range(m // 4):
            y = x[4 * p:4 * p + 5]
            total += 14 * y[0] + 64 * y[1] + 24 * y[2] + 64 * y[3] + 14 * y[4]
        eighths = (3 * (x[n - 4] + x[n - 1]) + 9 * (x[n - 3] + x[n - 2])) * h / 8
        rest = {0: eighths, 1: None, 2: trapezoid(x, h), 3: simpson}[n % 4]
        result = h / 45 * total
    return result if rest is None else result + rest


@pytest.mark.parametrize("kind", KINDS)
def test_every_rule(qv, kind):
    rng = np.random.default_rng(1)
    for n in list(range(1, 30)) + [100, 101, 102, 103, 1000]:
        x = numbers(rng, n, kind)
        for rule in range(4):
            for dt in (1.0, -0.1, 0.0, -0.0, 1e-320, np.inf, np.nan):
                out = unwritten(1)
                status = qv.ZemFunc230(x, n, dt, rule, out.array)
                with np.errstate(all="ignore"):
                    expected = integral(x, dt, rule)
                if expected is None:
                    assert status == -20008
                    out.untouched()
                else:
                    assert status == 0
                    out.kept()
                    equal_numbers(out.array, [expected])


def test_narrowing_comes_before_the_rule_and_the_rule_before_the_count(qv):
    x = np.ones(8)
    for rule in (0, 1, 2, 3, 4, 5, 2**31, 2**32 - 1):
        for n in [-2**31, -1, 0, 1, 2, 3, 4, 5] + TOO_LARGE:
            out = unwritten(1)
            expected = -20046 if n in TOO_LARGE else -20061 if rule > 3 else -20008 if n < rule + 2 else 0
            assert qv.ZemFunc230(x, n, 1.0, rule, out.array) == expected, (n, rule)
            if expected:
                out.untouched()
