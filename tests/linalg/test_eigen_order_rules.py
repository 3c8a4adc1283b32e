"""The order of eigenvalues: blocks exchanged with their neighbours, on the numbers that the unordered form has.

Eigenvalues move with their blocks and keep their bits, so that each ordered result is a permutation of the unordered
one, and a model of the exchanges alone tells which.
"""

import math

import numpy as np
import pytest

from exact import equal_bits

EPS = 2.220446049250313e-16
ORDERS = [1, 2, 3, 4]


class Block:
    def __init__(self, values, key, betas=(1.0,)):
        self.values, self.key, self.betas = values, key, betas


def modulus(value):
    """As LAPACK's dlapy2 rounds it: of equal moduli it may find one the larger."""
    z, w = sorted((abs(value.real), abs(value.imag)))
    return w * math.sqrt(1.0 + (z / w) * (z / w)) if z else w


def key(value, order):
    return value.real if order < 3 else modulus(value)


def schur_blocks(values, order, is_complex):
    if is_complex:
        return [Block([v], key(v, order)) for v in values]
    total = 0.0
    for v in values:
        total += abs(v.real) + abs(v.imag)
    blocks, i = [], 0
    while i < len(values):
        v = values[i]
        if v.imag == 0:
            blocks.append(Block([v], key(v, order)))
            i += 1
            continue
        with np.errstate(all="ignore"):
            ratio = abs(np.float64(v.imag) / np.float64(v.real))
        if ratio <= len(values) * EPS and abs(v.imag) <= total * EPS:
            blocks += [Block([complex(v.real, 0)], key(complex(v.real, 0), order)) for _ in range(2)]
        else:
            blocks.append(Block([v, values[i + 1]], key(v, order)))
        i += 2
    return blocks


def exchanged(blocks, wrong):
    blocks = list(blocks)
    for last in range(len(blocks) - 1, 0, -1):
        for i in range(last):
            if wrong(blocks[i], blocks[i + 1]):
                blocks[i], blocks[i + 1] = blocks[i + 1], blocks[i]
    return blocks


def schur_wrong(order):
    if order in (1, 3):
        return lambda a, b: a.key > b.key
    return lambda a, b: a.key < b.key


def schur(qv, a, order):
    n = len(a)
    is_complex = a.dtype == complex
    q, t, values = np.zeros_like(a), np.zeros_like(a), np.zeros(n, complex)
    status = (qv.ZemFunc259 if is_complex else qv.ZemFunc258)(a, n, order, q, t, values)
    bound = 100 * n * EPS * max(np.abs(a).sum(), 1e-300)
    assert np.abs(q @ t @ q.conj().T - a).max() <= bound
    return status, values, t


def matrices(dtype):
    rng = np.random.default_rng(1)
    for n in (1, 2, 3, 4, 5, 8, 12):
        for _ in range(8):
            a = rng.standard_normal((n, n))
            yield a.astype(dtype) if dtype is float else a + 1j * rng.standard_normal((n, n))
    for n in (2, 3, 5, 9):  # diagonal ones with equal keys, in all of which the order can be told from the signs
        for _ in range(30):
            d = rng.choice([-2.0, -1.0, 0.0, 1.0, 2.0], n)
            if dtype is complex:
                d = d + 1j * rng.choice([-2.0, -1.0, 0.0, 1.0, 2.0], n)
            yield np.diag(d)
    if dtype is float:  # rotations beside numbers of the same modulus and of the same real part
        for _ in range(60):
            parts, n = [], 0
            while n < 7:
                turn, size = rng.choice([0.5, 1.0, 2.0]), rng.choice([1.0, 2.0])
                if rng.random() < 0.5:
                    parts.append(np.array([[rng.choice([-1.0, 1.0]) * size]]))
                else:
                    parts.append(size * np.array([[np.cos(turn), np.sin(turn)], [-np.sin(turn), np.cos(turn)]]))
                n += len(parts[-1])
            a, at = np.zeros((n, n)), 0
            for part in parts:
                a[at:at + len(part), at:at + len(part)] = part
                at += len(part)
            yield a
        for n in (2, 3, 4):  # pairs on both sides of the limit of rounding
            for ratio in (0.25, 0.9, 1.1, 4.0, 1e3):
                for other in (0.0, 1.0, 1e6):
                    a = np.diag(np.full(n, other))
                    wi = ratio * EPS
                    a[n - 2:, n - 2:] = [[1.0, wi], [-wi, 1.0]]
                    yield a


@pytest.mark.parametrize("dtype", [float, complex])
def test_schur_forms_are_ordered_by_exchanges_of_neighbours(qv, dtype):
    compared = flattened = 0
    for a in matrices(dtype):
        status, plain, _ = schur(qv, a, 0)
        assert status == 0
        for order in ORDERS:
            status, values, t = schur(qv, a, order)
            assert status in (0, 20005)
            if status:
                continue
            blocks = exchanged(schur_blocks(plain.tolist(), order, dtype is complex), schur_wrong(order))
            expected = np.array([v for block in blocks for v in block.values])
            if np.count_nonzero(values.imag) < np.count_nonzero(expected.imag) and dtype is float:
                continue  # a pair that came apart as it moved
            equal_bits(values.view(float) + 0.0, expected.view(float) + 0.0)
            compared += 1
            if dtype is float:
                below = np.diagonal(t, -1)
                assert np.count_nonzero(below) == np.count_nonzero(values.imag) // 2
                flattened += np.count_nonzero(values.imag) < np.count_nonzero(plain.imag)
    assert compared > 500 and (dtype is complex or flattened > 10)


def qz(qv, a, b, order):
    n = len(a)
    is_complex = a.dtype == complex
    s, t, q, z = (np.zeros_like(a) for _ in range(4))
    alpha, beta = np.zeros(n, complex), np.zeros(n, a.dtype)
    status = (qv.ZemFunc257 if is_complex else qv.ZemFunc256)(a, b, n, order, s, t, q, z, alpha, beta, None, None)
    if status >= 0:
        for got, given in ((q @ s @ z.conj().T, a), (q @ t @ z.conj().T, b)):
            assert np.abs(got - given).max() <= 100 * n * EPS * np.abs(given).sum()
    return status, alpha, beta


def pencil_wrong(order):
    def above(a, b):
        a1, a2, b1, b2 = a.key, b.key, a.betas[0], b.betas[0]
        if order > 2:
            b1, b2 = abs(b1), abs(b2)
        return ((a1 * b2 > a2 * b1 and b1 * b2 > 0) or (a2 * b1 > a1 * b2 and b1 * b2 < 0) or
                (b1 == 0 and a1 * b2 != 0))
    return above if order in (1, 3) else lambda a, b: above(b, a)


def pencil_blocks(alpha, beta, order):
    blocks, i = [], 0
    while i < len(alpha):
        width = 1 if beta.dtype == complex or alpha[i].imag == 0 else 2
        blocks.append(Block(alpha[i:i + width], key(alpha[i].item(), order), beta.real[i:i + width]))
        i += width
    return blocks


def pencils(dtype):
    rng = np.random.default_rng(2)

    def random(n):
        a = rng.standard_normal((n, n))
        return a if dtype is float else a + 1j * rng.standard_normal((n, n))

    for n in (1, 2, 3, 4, 6, 9):
        for _ in range(8):
            yield random(n), random(n)
    for n in (2, 3, 5):  # infinite and undetermined ones among equal quotients
        for _ in range(40):
            d, e = rng.choice([-2.0, -1.0, 0.0, 1.0, 2.0], n), rng.choice([0.0, 1.0, 2.0, -1.0], n)
            yield np.diag(d).astype(dtype), np.diag(e).astype(dtype)


@pytest.mark.parametrize("dtype", [float, complex])
def test_pencils_are_ordered_by_exchanges_of_neighbours(qv, dtype):
    compared = infinite = 0
    for a, b in pencils(dtype):
        status, alpha, beta = qz(qv, a, b, 0)
        assert status == 0
        for order in ORDERS:
            status, got_alpha, got_beta = qz(qv, a, b, order)
            if status:
                assert status in (20005, -20073)
                continue
            blocks = exchanged(pencil_blocks(alpha, beta, order), pencil_wrong(order))
            equal_bits(got_alpha.view(float) + 0.0, np.concatenate([k.values for k in blocks]).view(float) + 0.0)
            equal_bits(got_beta.real + 0.0, np.concatenate([k.betas for k in blocks]) + 0.0)
            compared += 1
            infinite += np.any(got_beta == 0)
    assert compared > 500 and infinite > 100
