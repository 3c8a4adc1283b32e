"""The time constant of a discharge: a model function of one's own, fitted to samples with noise."""

import math

import numpy as np
import quorvan as qv


def discharge(t, a):
    return a[0] * math.exp(-t / a[1]) + a[2]


truth = [3300, 0.47, 120]  # millivolt, second, millivolt
t = 0.01 * np.arange(200)
y = np.array([discharge(v, truth) for v in t]) + qv.gaussian_noise(200, 5.0, seed=42)
fit = qv.fit_nonlinear(t, y, discharge, [1000, 1, 0])  # from a guess
amplitude, tau, offset = fit.coefficients
print(f"amplitude {amplitude:.2f} mV (truth {truth[0]})")
print(f"time constant {tau:.4f} s (truth {truth[1]})")
print(f"offset {offset:.2f} mV (truth {truth[2]})")
print(f"residue {math.sqrt(fit.mean_squared_error):.2f} mV rms (noise 5)")
