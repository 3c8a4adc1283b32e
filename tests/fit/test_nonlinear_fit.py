"""The nonlinear fit on NIST's certified sets (tests/fit/nist), beside SciPy, and beside a model of the loop.

The fit ends at the second small change of chi-square, small being 1e-5 of it or 0.001: it is no polisher. Weights of 1e12
put chi-square out of reach of the 0.001 here. TABLE tells for each set, from NIST's far and near start, the certified
digits of the worst coefficient that it must reach; None where the loop ends elsewhere (MGH09 and BoxBOD from afar are known for
that: a flat region draws the damped steps away).
"""

import ctypes
import pathlib
import re

import numpy as np
import pytest
from conftest import SCALARS
from scipy.optimize import curve_fit

NIST = pathlib.Path(__file__).parent / "nist"


def gaussians(b, x):
    return (b[0] * np.exp(-b[1] * x) + b[2] * np.exp(-(x - b[3]) ** 2 / b[4] ** 2)
            + b[5] * np.exp(-(x - b[6]) ** 2 / b[7] ** 2))


def enso(b, x):
    total = b[0]
    for period, c, s in ((12, b[1], b[2]), (b[3], b[4], b[5]), (b[6], b[7], b[8])):
        total = total + c * np.cos(2 * np.pi * x / period) + s * np.sin(2 * np.pi * x / period)
    return total


def cubic_ratio(b, x):
    return (b[0] + x * (b[1] + x * (b[2] + x * b[3]))) / (1 + x * (b[4] + x * (b[5] + x * b[6])))


MODELS = {
    "BoxBOD": lambda b, x: b[0] * (1 - np.exp(-b[1] * x)),
    "Chwirut2": lambda b, x: np.exp(-b[0] * x) / (b[1] + b[2] * x),
    "DanWood": lambda b, x: b[0] * x ** b[1],
    "ENSO": enso,
    "Eckerle4": lambda b, x: b[0] / b[1] * np.exp(-0.5 * ((x - b[2]) / b[1]) ** 2),
    "Gauss1": gaussians,
    "Gauss2": gaussians,
    "Hahn1": cubic_ratio,
    "Kirby2": lambda b, x: (b[0] + x * (b[1] + x * b[2])) / (1 + x * (b[3] + x * b[4])),
    "Lanczos3": lambda b, x: sum(b[2 * k] * np.exp(-b[2 * k + 1] * x) for k in range(3)),
    "MGH09": lambda b, x: b[0] * (x ** 2 + x * b[1]) / (x ** 2 + x * b[2] + b[3]),
    "Misra1a": lambda b, x: b[0] * (1 - np.exp(-b[1] * x)),
    "Rat42": lambda b, x: b[0] / (1 + np.exp(b[1] - b[2] * x)),
    "Thurber": cubic_ratio,
}


def read(name):
    text = (NIST / f"{name}.dat").read_text()
    rows = re.findall(r"^\s*b\d+\s*=\s*(\S+)\s+(\S+)\s+(\S+)\s+\S+\s*$", text, re.M)
    table = np.array([[float(v) for v in row] for row in rows])
    first, last = map(int, re.search(r"Data\s+\(lines\s+(\d+) to\s+(\d+)\)", text).groups())
    data = np.array([line.split() for line in text.splitlines()[first - 1:last]], dtype=float)
    return (np.ascontiguousarray(data[:, 1]), np.ascontiguousarray(data[:, 0]), (table[:, 0].copy(), table[:, 1].copy()),
            table[:, 2])


def callback(model, m):
    return SCALARS["model"](lambda x, a, count: float(model([a[j] for j in range(m)], x)))


def fit(qv, name, start):
    x, y, starts, truth = read(name)
    a, m = starts[start].copy(), len(truth)
    with np.errstate(all="ignore"):
        status = qv.ZemFunc374(x, y, np.full(len(x), 1e12), None, len(x), 2000, callback(MODELS[name], m), a, m, None,
                               None)
        digits = -np.log10(np.max(np.abs(a - truth) / np.abs(truth)) + 1e-16)
    return status, digits, a
