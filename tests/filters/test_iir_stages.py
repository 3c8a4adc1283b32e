"""The closed forms of the stages, operation by operation, to the last bit.

Responses do not tell a stage that is written the other way round from one that is right, nor a sum that is added in
another order. Python does the same operations on the same doubles with the same C library, so that nothing is left to
a tolerance. The doubles are NumPy's, for which a division by zero is no error.
"""

import math

import numpy as np
import pytest
from exact import libm
from test_iir import BAND, HIGH, LOW, STOP, Cascade


def ieee(name):
    function = libm(name)
    return lambda x: np.float64(function(x))


atan, cos, exp, sin, sqrt, tan = map(ieee, ("atan", "cos", "exp", "sin", "sqrt", "tan"))
pi = np.float64(math.pi)


def elliptic_k(kc):
    a, b = kc, 1.0
    for _ in range(25):
        mean, geometric = (a + b) / 2, sqrt(a * b)
        if (mean - geometric) / mean < 1e-15:
            break
        a, b = mean, geometric
    return pi / (2 * mean)


def jacobi(u, kc):
    a, e, levels = 1.0, kc, []
    for _ in range(25):
        levels.append((a, e))
        mean, e = (a + e) / 2, sqrt(a * e)
        if (mean - e) / mean < 1e-15:
            break
        a = mean
    c, d, a = mean / tan(mean * u), 1.0, mean
    for arithmetic, geometric in reversed(levels):
        t = c * c / a
        c, a = c * d, arithmetic
        d = (t + geometric) / (t + a)
    sn = 1 / sqrt(c * c + 1)
    return sn, c * sn, d


def arc_sc(x, kc):
    a, c, y, turns = 1.0, kc, 1 / x, 0
    for _ in range(25):
        p = c * a
        a = a + c
        root = sqrt(p)
        p, c = p / y, 2 * root
        y = y - p
        if y == 0:
            y = root * 1e-15
        near = abs(a - c) < a * 1.2e-7
        turns = (turns if near else 2 * turns) + (y < 0)
        if near:
            break
    return (atan(a / y) + turns * pi) / a


def nome_modulus(v):
    nome = exp(-pi * v)
    theta2, theta3, term, power = 1.0, 1.0, 1.0, nome
    for _ in range(25):
        theta3 = theta3 + 2 * term * power
        term = term * (power * power)
        power = power * nome
        theta2 = theta2 + term
        if term < 1e-15:
            break
    modulus = 4 * sqrt(nome) * (theta2 * theta2) / (theta3 * theta3)
    return 0.99999999999999 if modulus >= 1 else modulus


def angles(n):
    theta = (pi / n + pi) / 2
    for _ in range(n >> 1):
        yield theta
        theta += pi / n


def axes(x, n):
    A = x ** (1 / n)
    return (A - 1 / A) / 2, (A + 1 / A) / 2


# A real pole is (rho,) or (rho, h), a pair (sigma, q, square of zeta or None, h).

def even_pole(n, kind):
    pairs = [1 - (2 * k + 1) / n for k in range(n >> 1)]
    return [(1.0,)] * (n % 2) + [(sqrt(1 - x * x), 1.0, None, 1.0) for x in pairs]


def butterworth(n, kind):
    return [(1.0,)] * (n % 2) + [(-cos(theta), 1.0, None, 1.0) for theta in angles(n)]


def chebyshev(n, kind, ripple):
    G = 10.0 ** (ripple / 10)
    g, epsilon = sqrt(G), sqrt(G - 1)
    sh, ch = axes((g + 1) / epsilon, n)
    sections = [(1.0 if n == 1 and kind >= BAND else sh,)] * (n % 2)
    lowered = -1 if n % 2 else 0 if kind < BAND else n // 2 - 1
    for k, theta in enumerate(angles(n)):
        u, v = sh * cos(theta), ch * sin(theta)
        sections.append((-u, u * u + v * v, None, 1 / g if k == lowered else 1.0))
    return sections


def inverse_chebyshev(n, kind, attenuation):
    epsilon = 1 / sqrt(10.0 ** (attenuation / 10) - 1)
    sh, ch = axes((sqrt(epsilon * epsilon + 1) + 1) / epsilon, n)
    sections = [(1 / sh,)] * (n % 2)
    for i, theta in zip(range(2 if n % 2 else 1, n, 2), angles(n)):
        u, v = sh * cos(theta), ch * sin(theta)
        m, zeta = u * u + v * v, 1 / sin(i * pi / (2 * n))
        sections.append((-u / m, 1 / m, zeta * zeta, 1.0))
    return sections


def elliptic(n, kind, ripple, attenuation):
    epsilon = sqrt(10.0 ** (ripple / 10) - 1)
    k1 = epsilon / sqrt(10.0 ** (attenuation / 10) - 1)
    K1, K1c = elliptic_k(sqrt(1 - k1 * k1)), elliptic_k(k1)
    k = nome_modulus(K1c / K1 / n)
    kc = sqrt(1 - k * k)
    K = elliptic_k(kc)
    s0, c0, d0 = jacobi(arc_sc(1 / epsilon, k1) * (K / n) / K1, k)
    sections = [(s0 * c0 / (1 - s0 * s0),)] * (n % 2)
    h = 1.0 if n % 2 else 1 / sqrt(epsilon * epsilon + 1)
    for j in range(2 if n % 2 else 1, n, 2):
        s, c, d = jacobi(j * K / n, kc)
        E = 1 - d * d * (s0 * s0)
        sigma, omega, zeta = c * d * s0 * c0 / E, s * d0 / E, 1 / (k * s)
        sections.append((sigma, omega * omega + sigma * sigma, zeta * zeta, h))
        h = 1.0
    return sections


def low_or_high(kind, section, w):
    if len(section) <= 2:
        rho, h = (*section, 1.0)[:2]
        x = rho * w if kind == LOW else 1 / rho * w
        a1 = -(1 - x) / (1 + x)
        b0 = (h * x if kind == LOW else h) / (1 + x)
        return [a1, 0], [b0, b0 if kind == LOW else -b0, 0]
    sigma, q, square, h = section
    if kind == HIGH:
        sigma, q, square = sigma / q, 1 / q, square and 1 / square
    c, Q = 2 * sigma * w, q * (w * w)
    D = 1 + c + Q
    a = [-2 * (1 - Q) / D, (1 - c + Q) / D]
    if square is None:
        b0 = h * Q / D if kind == LOW else h / D
        return a, [b0, 2 * b0 if kind == LOW else -2 * b0, b0]
    Z = square * (w * w)
    g = h * Q / Z if kind == LOW else h
    b0 = g * (1 + Z) / D
    return a, [b0, -2 * g * (1 - Z) / D, b0]


def band(kind, section, B, P):
    if len(section) <= 2:
        rho, h = (*section, 1.0)[:2]
        x = rho * B if kind == BAND else B / rho
        D = 1 + x + P
        a = [-2 * (1 - P) / D, (1 - x + P) / D, 0, 0]
        b0 = h * (x if kind == BAND else 1 + P) / D
        return a, [b0, 0, -b0, 0, 0] if kind == BAND else [b0, h * a[0], b0, 0, 0]
    sigma, q, square, h = section
    g = h * q / square if kind == BAND and square else h
    if kind == STOP:
        sigma, q, square = sigma / q, 1 / q, square and 1 / square
    c, R, PP = 2 * sigma * B, q * (B * B) + 2 * P, P * P
    D, e = 1 + c + R + c * P + PP, 2 * c * (1 - P)
    a = [(4 * PP - 4 - e) / D, (6 - 2 * R + 6 * PP) / D, (4 * PP - 4 + e) / D, (1 - c + R - c * P + PP) / D]
    if kind == BAND and square is None:
        b0 = h * q * (B * B) / D
        return a, [b0, 0, -2 * b0, 0, b0]
    Z = 2 * P if square is None else square * (B * B) + 2 * P
    b0, b1 = g * (1 + Z + PP) / D, -4 * g * (1 - PP) / D
    return a, [b0, b1, g * (6 - 2 * Z + 6 * PP) / D, b1, b0]


RIPPLES, ATTENUATIONS = (0.01, 4), (5, 90)


@pytest.mark.parametrize("family,levels", [(even_pole, []), (butterworth, []), (chebyshev, [RIPPLES]),
                                           (inverse_chebyshev, [ATTENUATIONS]), (elliptic, [RIPPLES, ATTENUATIONS])])
@pytest.mark.parametrize("kind", range(4))
def test_stages_are_their_closed_forms_to_the_last_bit(qv, family, levels, kind):
    rng = np.random.default_rng(kind)
    for order in (*range(1, 14), 20, 31):
        fs = float(rng.choice([1.0, 1000.0, 44100.0]))
        fl = fs * float(rng.uniform(0.01, 0.3))
        fh = fl + fs * float(rng.uniform(0.01, 0.19))
        level = [float(rng.uniform(*limits)) for limits in levels]
        designed = Cascade(qv, family.__name__, kind, order, fs, fl, fh, level)
        low, high = tan(pi * fl / fs), tan(pi * fh / fs)
        sections = family(order, kind, *level)
        assert len(sections) == len(designed.a) == (order + 1) // 2
        for section, a, b in zip(sections, designed.a, designed.b):
            wanted = band(kind, section, high - low, high * low) if kind >= BAND else low_or_high(kind, section, low)
            assert [*a[1:], *b] == wanted[0] + wanted[1], (order, fs, fl, fh, level)


def bessel_poles(qv, n):
    """The poles and the factor of the cutoff, with the eigenvalues and the zeros of the library."""
    c = [1.0]
    for j in range(n):
        c[0] *= n - j / 2
    for k in range(1, n):
        c.append(c[k - 1] * 2 * (n - k + 1) / (2 * n - k + 1) / k)
    v = c[0] ** (1 / n)
    c = [1.0] + [c[k] / v ** (n - k) for k in range(1, n)] + [1.0]

    squares = np.zeros(2 * n + 1)
    for parity in (0, 1):
        part = [(-1.0) ** (k // 2) * c[k] if k % 2 == parity else 0.0 for k in range(n + 1)]
        square = np.zeros(2 * n + 1)
        for i in range(n + 1):
            for j in range(n + 1):
                square[i + j] += part[i] * part[j]
        squares += square
    squares[0] -= 2.0
    zeros = np.zeros(2 * n, complex)
    assert qv.ZemFunc231(squares, 2 * n + 1, zeros) == 0
    f = float(max(z.real if abs(z.imag) < 1e-8 else 0.0 for z in zeros))

    M = np.zeros((n, n))
    M[0, 0] = -1
    for i in range(n - 1):
        M[i, i + 1] = 1 / (2 * i + 1)
        M[i + 1, i] = -1 / (2 * i + 3)
    values, poles = np.zeros(n, complex), []
    assert qv.ZemFunc201(M, n, 0, values, None) == 0
    for z in values:
        re, im = v * float(z.real), v * float(z.imag)
        m = re * re + im * im
        poles.append((re / m * f, -(im / m) * f))
    return poles, f


def multiplied(u, v):
    product = [0.0] * (2 * len(u) - 1)
    for i, left in enumerate(u):
        for j, right in enumerate(v):
            product[i + j] += left * right
    return product[:len(u)]


def bessel(qv, n, made):
    """The stages; `made` makes one of a section. A section of two real poles has its gain in the first of them."""
    poles, f = bessel_poles(qv, n)
    real = [-re for re, im in poles if abs(im) < 1e-8]
    pairs = [pole for pole in poles if abs(pole[1]) >= 1e-8]
    result = []
    if len(real) % 2:
        first = real.pop(0)
        result.append(made((first, f / first)))
    for one, other in zip(real[::2], real[1::2]):
        (a, b), (c, d) = made((one, (f / one) * (f / other))), made((other, 1.0))
        result.append((multiplied([1.0, *a], [1.0, *c])[1:], multiplied(b, d)))
    for re, im in pairs[::2]:
        q = re * re + im * im
        result.append(made((-re, q, None, f * f / q)))
    return result


@pytest.mark.parametrize("kind", range(4))
def test_stages_of_bessel_are_made_of_its_eigenvalues_to_the_last_bit(qv, kind):
    rng = np.random.default_rng(kind)
    for order in (*range(1, 24), 32, 38, 59):  # from 32 on rounding makes some pairs real
        fs = float(rng.choice([1.0, 1000.0, 44100.0]))
        fl = fs * float(rng.uniform(0.01, 0.3))
        fh = fl + fs * float(rng.uniform(0.01, 0.19))
        designed = Cascade(qv, "bessel", kind, order, fs, fl, fh, [])
        low, high = tan(pi * fl / fs), tan(pi * fh / fs)
        wanted = bessel(qv, order, lambda section: band(kind, section, high - low, high * low) if kind >= BAND
                        else low_or_high(kind, section, low))
        assert len(wanted) == len(designed.a) == (order + 1) // 2
        for stage, a, b in zip(wanted, designed.a, designed.b):
            assert [*a[1:], *b] == stage[0] + stage[1], (order, fs, fl, fh)
