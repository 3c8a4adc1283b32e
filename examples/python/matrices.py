"""Eigenvalues and least squares: the modes of a chain of masses and springs beside their closed form, and a parabola
through measurements."""

import numpy as np
import quorvan as qv

# Five equal masses between walls: 2 on the diagonal, -1 beside it, eigenvalues 4 sin²(k pi / 12).
stiffness = 2 * np.eye(5) - np.eye(5, k=1) - np.eye(5, k=-1)
squares, shapes = qv.eigen_symmetric(stiffness)
for k, square in enumerate(squares, 1):
    print(f"mode {k}: {np.sqrt(square):.12f}, truth {2 * np.sin(k * np.pi / 12):.12f}")

# A stone's height over time, least squares of h = h0 + v·t - g/2·t².
t = np.arange(7) / 10
height = [1.998, 2.454, 2.803, 3.062, 3.213, 3.276, 3.234]
start, speed, gravity = qv.solve_kind(np.column_stack([np.ones(7), t, -0.5 * t**2]), height)
print(f"height {start:.3f} m, speed {speed:.2f} m/s, gravity {gravity:.2f} m/s^2")
