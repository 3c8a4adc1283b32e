"""Two and three ways of variance analysis in scalar arithmetic, in the documented order, to the last bit."""

import itertools

import numpy as np
import pytest

from exact import TOO_LARGE, divided, equal_numbers


def significance(qv, f, dof1, dof2):
    p = np.full(1, np.nan)
    assert qv.ZemFunc83(f, dof1, dof2, p) == (0 if f == f else -20104)
    return 1 - p[0]


def discover(levels, most):
    """The slot of each observation; None when there are more identifiers than slots."""
    slots, out = {}, []
    for level in levels:
        if level not in slots and len(slots) == most:
            return None
        out.append(slots.setdefault(level, len(slots)))
    return out


def sums_of(y, keys):
    sums = {}
    for key, v in zip(keys, y):
        sums[key] = sums.get(key, 0.0) + v
    return sums


def squared(sums):
    """In the order of the slots."""
    s = 0.0
    for key in sorted(sums):
        s += sums[key] * sums[key]
    return s


def plain_sums(y):
    s = q = 0.0
    for v in y:
        s += v
        q += v * v
    return s, q


def row(ss, dof):
    return [ss, float(dof), divided(ss, dof), None]


def two_way(qv, y, A, B, m, a, b):
    randoms, a, b, N = (a < 0, b < 0), abs(a), abs(b), len(y)
    if N != a * b * m:
        return -20045, None
    if a < 2 or b < 2:
        return -20042, None
    if m == 1 and any(randoms):
        return -20048, None
    A, B = discover(A, a), discover(B, b)
    if A is None or B is None:
        return -20043, None
    cells = list(zip(A, B))
    if any(cells.count(cell) != m for cell in itertools.product(range(a), range(b))):
        return -20047, None
    s, q = plain_sums(y)
    C = s * s / N
    total, within = q - C, squared(sums_of(y, cells)) / m - C
    ssA, ssB = squared(sums_of(y, A)) / (b * m) - C, squared(sums_of(y, B)) / (a * m) - C
    dofAB = (a - 1) * (b - 1)
    table = [row(ssA, a - 1), row(ssB, b - 1)]
    if m == 1:
        table += [[0.0, 0.0, 0.0, 0.0], row(within - ssA - ssB, dofAB)]
        dof = dofAB
    else:
        table += [row(within - ssA - ssB, dofAB), row(total - within, N - a * b)]
        dof = N - a * b
    ms = [r[2] for r in table]
    table[0][3] = divided(ms[0], ms[2] if randoms[1] else ms[3])
    table[1][3] = divided(ms[1], ms[2] if randoms[0] else ms[3])
    sig = [significance(qv, table[0][3], a - 1, dof), significance(qv, table[1][3], b - 1, dof), 0.0]
    if m > 1:
        table[2][3] = divided(ms[2], ms[3])
        sig[2] = significance(qv, table[2][3], dofAB, dof)
    return 0, (table, sig)


NAMES = ["A", "B", "C", "AB", "AC", "BC", "ABC", "E"]
DENOMINATORS = {  # by the random factors
    "": "E E E E E E", "C": "AC BC E ABC E E", "B": "AB E BC E ABC E", "BC": "- BC BC ABC ABC E", "A": "E AB AC E E ABC",
    "AC": "AC - AC ABC E ABC", "AB": "AB AB - E ABC ABC", "ABC": "- - - ABC ABC ABC"}


def three_way(qv, y, A, B, C, m, a, b, c):
    randoms = "".join(name for name, count in zip("ABC", (a, b, c)) if count < 0)
    a, b, c, N = abs(a), abs(b), abs(c), len(y)
    if N != a * b * c * m:
        return -20045, None
    if m < 2:
        return -20044, None
    if min(a, b, c) < 2:
        return -20042, None
    A, B, C = discover(A, a), discover(B, b), discover(C, c)
    if A is None or B is None or C is None:
        return -20043, None
    cells = list(zip(A, B, C))
    if any(cells.count(cell) != m for cell in itertools.product(range(a), range(b), range(c))):
        return -20047, None
    s, q = plain_sums(y)
    C0 = s * s / N
    SA, SB, SC = (squared(sums_of(y, k)) / d for k, d in ((A, b * c * m), (B, a * c * m), (C, a * b * m)))
    SAB, SAC, SBC = (squared(sums_of(y, list(zip(*k)))) / d
                     for k, d in (((A, B), c * m), ((A, C), b * m), ((B, C), a * m)))
    SABC = squared(sums_of(y, cells)) / m
    table = [row(SA - C0, a - 1), row(SB - C0, b - 1), row(SC - C0, c - 1),
             row(SAB - SA - SB + C0, (a - 1) * (b - 1)), row(SAC - SA - SC + C0, (a - 1) * (c - 1)),
             row(SBC - SB - SC + C0, (b - 1) * (c - 1)),
             row(SABC - SAB - SAC - SBC + SA + SB + SC - C0, (a - 1) * (b - 1) * (c - 1)),
             row(q - SABC, (m - 1) * a * b * c)]
    sig = []
    for k, against in enumerate(DENOMINATORS[randoms].split() + ["E"]):
        if against == "-":
            table[k][3] = -1.0
            sig.append(-1.0)
        else:
            other = table[NAMES.index(against)]
            table[k][3] = divided(table[k][2], other[2])
            sig.append(significance(qv, table[k][3], int(table[k][1]), int(other[1])))
    return 0, (table, sig)


def factors(rng, counts, m):
    """Every cell m times, in random order, under random identifiers."""
    slots = [f.ravel() for f in np.indices(tuple(abs(k) for k in counts) + (m,))[:-1]]
    order = rng.permutation(slots[0].size)
    identifiers = [rng.choice([-2**31, -5, -1, 0, 1, 2, 3, 77, 2**31 - 1], abs(k), replace=False) for k in counts]
    return [np.ascontiguousarray(names[f[order]]).astype(np.int64) for names, f in zip(identifiers, slots)]


def check(qv, y, levels, m, counts):
    rows = 4 if len(counts) == 2 else 8
    table, sig = np.full((rows, 4), 7.5), [np.full(1, 7.5) for _ in range(rows - 1)]
    export, model = (qv.ZemFunc7, two_way) if rows == 4 else (qv.ZemFunc8, three_way)
    status, expected = model(qv, y.tolist(), *(f.tolist() for f in levels), m, *counts)
    assert export(y, *levels, len(y), m, *counts, table, *sig) == status
    if status:
        assert (table == 7.5).all() and all(v[0] == 7.5 for v in sig)
        return status
    for found, row_ in zip(table, expected[0]):
        equal_numbers(found[:3], row_[:3])
        if row_[3] is not None:  # the error's F is unused
            equal_numbers(found[3:], row_[3:])
    equal_numbers([v[0] for v in sig], expected[1])
    return status


SIGNS = [1, -1]


def observations(rng, n):
    return [rng.standard_normal(n), rng.integers(-2, 3, n).astype(float), np.full(n, 3.0), np.zeros(n),
            rng.standard_normal(n) * 1e-3 + 1e3][rng.integers(5)]


@pytest.mark.parametrize("signs", list(itertools.product(SIGNS, SIGNS)))
def test_two_ways(qv, signs):
    rng = np.random.default_rng([s + 1 for s in signs])
    for a, b, m in [(2, 2, 1), (2, 2, 2), (3, 2, 1), (3, 4, 3), (5, 2, 2), (2, 7, 5)] * 4:
        counts = (a * signs[0], b * signs[1])
        levels = factors(rng, counts, m)
        status = check(qv, observations(rng, a * b * m), levels, m, counts)
        assert status == (-20048 if m == 1 and min(signs) < 0 else 0)


@pytest.mark.parametrize("signs", list(itertools.product(SIGNS, SIGNS, SIGNS)))
def test_three_ways(qv, signs):
    rng = np.random.default_rng([s + 1 for s in signs])
    for a, b, c, m in [(2, 2, 2, 2), (3, 2, 2, 2), (2, 3, 4, 3), (4, 3, 2, 2)] * 4:
        counts = (a * signs[0], b * signs[1], c * signs[2])
        assert check(qv, observations(rng, a * b * c * m), factors(rng, counts, m), m, counts) == 0


@pytest.mark.parametrize("ways", [2, 3])
def test_faults_in_random_combination(qv, ways):
    """The first in order decides, and nothing is written."""
    rng, statuses = np.random.default_rng(ways), set()
    for _ in range(400):
        counts = tuple(int(v) for v in rng.choice([2, 3, -2, -3, 1, 0, -1], ways, p=[.3, .2, .2, .1, .1, .05, .05]))
        m = int(rng.choice([1, 2, 3, 0, -1], p=[.3, .35, .25, .05, .05]))
        size = int(np.prod([abs(k) for k in counts])) * m
        if size < 1 or rng.random() < 0.1:
            n = int(rng.integers(1, 13))
            levels = [rng.integers(0, 3, n).astype(np.int64) for _ in range(ways)]
        else:
            n, levels = size, factors(rng, counts, m)
            if rng.random() < 0.4:  # an identifier too many, or a cell that takes from another
                f = rng.integers(ways)
                levels[f][rng.integers(n)] = rng.choice([12345, *levels[f]])
        statuses.add(check(qv, rng.standard_normal(n), levels, m, counts))
    assert statuses >= {0, -20045, -20042, -20043, -20047, -20048 if ways == 2 else -20044}


@pytest.mark.parametrize("ways", [2, 3])
@pytest.mark.parametrize("bad", TOO_LARGE)
def test_what_does_not_fit_32_bits_comes_first(qv, ways, bad):
    export, rows = (qv.ZemFunc7, 4) if ways == 2 else (qv.ZemFunc8, 8)
    table, sig = np.full((rows, 4), 7.5), [np.full(1, 7.5) for _ in range(rows - 1)]
    y, levels = np.zeros(4), [np.array([0, 0, 1, 1], np.int64) for _ in range(ways)]
    sizes = [4, 0] + [1] * ways  # other faults
    for place in range(len(sizes)):
        given = sizes.copy()
        given[place] = bad
        assert export(y, *levels, *given, table, *sig) == -20046
    for f in range(ways):
        levels[f][3] = bad
        assert export(y, *levels, *sizes, table, *sig) == -20046
        levels[f][3] = 1
    assert (table == 7.5).all() and all(v[0] == 7.5 for v in sig)
    for n in (0, -1, -2**31):
        assert export(y, *levels, n, *sizes[1:], table, *sig) == -20003
