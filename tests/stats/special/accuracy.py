"""Measuring special functions against exact values, region by region.

A region is a grid of points of one function. The error is relative, or, where the function has zeros inside the region,
relative to max(1, |value|) ("mixed"). Bounds are in units of u = 2^-53; the comment beside a bound says what it counts.
"""

import math
import pathlib
import sys
from dataclasses import dataclass
from typing import Callable

import mpmath
import numpy as np

U = 2.0**-53
mpmath.mp.dps = 50
_density = 1


def many(count):
    """A number of points that grows where the table is printed and time does not count."""
    return count * _density


def rng(seed):
    return np.random.default_rng(seed)


def grid(low, high, count=1500, seed=1):
    """Even and random points of an interval, its ends and their neighbours."""
    even = np.linspace(low, high, count // 2)
    random = rng(seed).uniform(low, high, count // 2)
    ends = [low, np.nextafter(low, high), high, np.nextafter(high, low)]
    return np.unique(np.concatenate([even, random, ends]))


def beside(points, reach=1e-1, least=1e-15):
    """Points on both sides of each of the given ones, at distances from `least` to `reach`; not the points."""
    offsets = np.geomspace(least, reach, 25)
    all_points = np.concatenate([[p - offsets, p + offsets] for p in points]).ravel()
    return np.setdiff1d(all_points, points)


def logarithmic(low, high, count=800, seed=2):
    return np.exp(rng(seed).uniform(math.log(low), math.log(high), count))


def pairs(a, x):
    return list(zip(a, x))


def address(x):
    return np.array([x], dtype=np.float64)


@dataclass
class Region:
    function: str
    label: str
    points: Callable          # an array of arguments, or of tuples of them
    bound: float              # peak error, in units of u
    mixed: bool = False
    scipy: float = 0.0        # peak difference from SciPy in the same measure; 0: SciPy is no witness here


@dataclass
class Measured:
    points: int
    peak: float
    rms: float
    worst: tuple
    scipy: float


def measure(qv, functions, which):
    """Errors against the exact values, and the peak difference from SciPy. Values below 1e-290 or beyond the largest double
    count for nothing.

    `functions` gives, by name, the call, the exact value and SciPy's value (or None) of the same arguments."""
    call, exact, witness = functions[which.function]
    errors, worst, apart = [], None, 0.0
    for point in which.points():
        args = tuple(float(v) for v in (point if isinstance(point, tuple) else (point,)))
        truth = exact(*args)
        if truth != 0 and not 1e-290 < abs(truth) < sys.float_info.max:
            continue
        scale = max(1, abs(truth)) if which.mixed else abs(truth)
        value = call(qv, *args)
        assert math.isfinite(value), (which.label, args, value)
        error = float(abs(mpmath.mpf(value) - truth) / (scale or 1))
        if not errors or error > max(errors):
            worst = args
        errors.append(error)
        if which.scipy:
            apart = max(apart, float(abs(mpmath.mpf(value) - mpmath.mpf(float(witness(*args)))) / (scale or 1)))
    assert len(errors) >= 5, which.label
    return Measured(len(errors), max(errors), math.sqrt(np.mean(np.square(errors))), worst, apart)


def check(qv, functions, which):
    found = measure(qv, functions, which)
    assert found.peak <= which.bound * U, f"{found.peak:.3g} at {found.worst}"
    assert found.scipy <= which.scipy, f"{found.scipy:.3g} from SciPy"


def print_table(library, functions, regions, density=1):
    """The measured errors as the table of docs/accuracy.md."""
    global _density
    _density = density
    sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[2]))
    import conftest

    qv = conftest.load(library)
    print("| function | region | points | peak | rms |")
    print("|---|---|---|---|---|")
    for which in regions:
        found = measure(qv, functions, which)
        label = which.label + (" *" if which.mixed else "")
        print(f"| `{which.function}` | {label} | {found.points} | {found.peak:.1e} | {found.rms:.1e} |", flush=True)
