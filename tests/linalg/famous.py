"""Matrices that decompositions are tried on, each with a property that hurts."""

import numpy as np
import scipy.linalg

EPS = np.finfo(float).eps


def random(m, n, kind, seed=1):
    rng = np.random.default_rng(seed)
    a = rng.uniform(-1, 1, (m, n))
    return a if kind is float else a + 1j * rng.uniform(-1, 1, (m, n))


def frank(n):
    i, j = np.indices((n, n))
    return np.where(j < i - 1, 0, n - np.maximum(i, j)).astype(float)


def kahan(n, angle=0.6):
    s, c = np.sin(angle), np.cos(angle)
    return np.diag(s ** np.arange(n)) @ (np.eye(n) - c * np.triu(np.ones((n, n)), 1))


def grcar(n):
    return np.eye(n) - np.eye(n, k=-1) + sum(np.eye(n, k=k) for k in (1, 2, 3))


def graded(m, n):
    return random(m, n, float, 5) * 10.0 ** -np.add.outer(np.arange(m), np.arange(n))


def low_rank(m, n, rank=2):
    return random(m, rank, float, 6) @ random(rank, n, float, 7)


def almost_symmetric(n):
    a = random(n, n, float, 8)
    a += a.T
    a[n - 1, 0] = np.nextafter(a[n - 1, 0], 9)
    return a


SQUARE = {
    "scalar": np.array([[-3.0]]),
    "hilbert": scipy.linalg.hilbert(12),
    "frank": frank(12),
    "kahan": kahan(20),
    "grcar": grcar(20),
    "companion": scipy.linalg.companion(np.poly(np.arange(1, 9))),
    "jordan": np.eye(9, k=1) + 2 * np.eye(9),
    "nilpotent": np.eye(6, k=1),
    "zero": np.zeros((4, 4)),
    "identity": np.eye(7),
    "graded": graded(8, 8),
    "low rank": low_rank(9, 9),
    "almost symmetric": almost_symmetric(8),
    "huge": 1e300 * random(5, 5, float, 9),
    "tiny": 1e-300 * random(5, 5, float, 10),
    "random": random(33, 33, float, 11),
    "random 64": random(64, 64, float, 12),
    "complex": random(17, 17, complex, 13),
    "complex 50": random(50, 50, complex, 14),
    "complex jordan": np.eye(6, k=1) + (1 + 1j) * np.eye(6),
}
RECTANGLES = {f"{kind.__name__} {m} by {n}": random(m, n, kind, 15) for kind in (float, complex)
              for m, n in ((1, 6), (6, 1), (5, 3), (3, 5), (40, 7), (7, 40), (30, 17), (17, 30), (65, 64))}
RECTANGLES |= {"tall low rank": low_rank(12, 5), "wide low rank": low_rank(5, 12), "graded": graded(10, 6),
               "zero": np.zeros((3, 5))}
ANY = {**SQUARE, **RECTANGLES}


def norm(a):
    """Frobenius, safe for elements whose squares overflow."""
    largest = np.max(np.abs(a))
    return largest * np.linalg.norm(a / largest) if largest > 0 else 0.0


def bound(a):
    """A backward error of the provider's: its constants grow with the size and stay far below ten times it."""
    return 10 * max(a.shape) * EPS * norm(a)


def near(got, expected, tolerance):
    assert got.shape == expected.shape
    assert np.max(np.abs(got - expected)) <= tolerance, np.max(np.abs(got - expected)) / max(tolerance, 1e-320)


def orthonormal(q):
    near(q.conj().T @ q, np.eye(q.shape[1]), 10 * max(q.shape) * EPS)
