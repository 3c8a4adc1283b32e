"""The design by exchange in scalar arithmetic, in the documented order.

Sums over the extremal points run in their order, for all grid points at once. Cosines and sines are the C library's.
"""

import math

import numpy as np

TWO_PI = 6.283185307179586


class Failure(Exception):
    """A status, with the error of the last levelled pass or None."""

    def __init__(self, status, delta=None):
        self.status, self.delta = status, delta


def check(desired, weights, fs, edges, kind, taps):
    bands = len(desired)

    def finite_and(value, in_range):
        if not math.isfinite(value):
            raise Failure(-20031)
        if not in_range:
            raise Failure(-20023)
    if taps < 3:
        raise Failure(-20031)
    if bands < 1:
        raise Failure(-20003)
    finite_and(fs, fs > 0)
    for edge in edges:
        finite_and(edge, edge >= 0)
    for weight, gain in zip(weights, desired):
        finite_and(weight, weight > 0)
        finite_and(gain, gain >= 0)
    if edges[-1] / fs > 0.5:
        raise Failure(-20020)
    if any(not b > a for a, b in zip(edges, edges[1:])):
        raise Failure(-20023)
    L, odd = abs(edges[-1] - fs / 2), taps % 2 == 1
    if kind == 1:
        if edges[0] != 0 or L > 0.001:
            raise Failure(-20031)
        if not odd and desired[-1] != 0:
            raise Failure(-20033)
    elif kind in (2, 3):
        if (edges[0] != 0) != (kind == 3):
            raise Failure(-20031)
        if L < (0.01 if kind == 2 else 0.001) if odd else L > 0.001:
            raise Failure(-20031)
    r = functions(kind, taps)
    # The library's own limits: the coefficients of sines reach back two functions, the stretching three.
    if r < (3 if kind == 3 else 1 if kind == 1 else 2):
        raise Failure(-20031)
    if r + 2 >= 2048:
        raise Failure(-20001)


def functions(kind, taps):
    return (taps >> 1) + (kind == 1 and taps % 2 == 1)


def factor(kind, taps, f):
    if kind == 1:
        return math.cos(math.pi * f) if taps % 2 == 0 else 1.0
    return math.sin(TWO_PI * f) if taps % 2 else math.sin(math.pi * f)


def make_grid(desired, weights, fs, edges, kind, taps):
    r, grid, des, wt = functions(kind, taps), [], [], []
    most, delf = max(16 * (r + 2), len(desired)), 0.5 / (16 * r)

    def point(f, j):
        relative = kind == 2 and desired[j] >= 0.0001
        return f, desired[j] * f if kind == 2 else desired[j], weights[j] / f if relative else weights[j]
    points = []
    for j in range(len(desired)):
        f, fup = edges[2 * j] / fs, edges[2 * j + 1] / fs
        if j == 0 and kind != 1 and f < delf:
            f = delf
        before = len(points)
        while len(points) < most and (f <= fup or len(points) == before):
            points.append(point(f, j))
            f += delf
        points[-1] = point(fup, j)
    zero_at_nyquist = (taps % 2 == 0) if kind == 1 else (taps % 2 == 1)
    if zero_at_nyquist and points[-1][0] > 0.5 - delf:
        points.pop()
    for f, d, w in points:
        grid.append(f)
        if kind == 1 and taps % 2:
            des.append(d)
            wt.append(w)
        else:
            c = factor(kind, taps, f)
            des.append(d / c)
            wt.append(w * c)
    return grid, np.array(des), np.array(wt)


class Interpolant:
    def __init__(self, x):
        self.x = np.array(x)
        p = np.ones(len(x))
        for j in range(len(x)):
            with np.errstate(all="ignore"):
                p *= np.where(np.arange(len(x)) == j, 1.0, self.x - self.x[j])
        if (p == 0).any():
            raise Failure(-20031)
        self.ad = 1 / p

    def response(self, t):
        t = np.array(t)
        above, below = np.zeros(len(t)), np.zeros(len(t))
        with np.errstate(all="ignore"):
            for x, y, ad in zip(self.x, self.y, self.ad):
                above += ad * y / (t - x)
                below += ad / (t - x)
            A = above / below
        for k in range(len(self.x) - 1, -1, -1):
            A[t == self.x[k]] = self.y[k]
        return A


def exchange(grid, des, wt, r, limit=100):
    """The interpolant and the error of its last pass."""
    G = len(grid)
    if G <= r:
        raise Failure(-20031)  # extremal points coincide
    cosine = [math.cos(TWO_PI * f) for f in grid]
    ext = [int(j * (G - 1) / r) for j in range(r)] + [G - 1, 0]
    dev, dev_old, changes, y1, comp, form = None, -1.0, 1, 0.0, 0.0, None
    for _ in range(limit - 1):
        if changes == 0:
            return form, dev
        ext[r + 1] = G
        try:
            form = Interpolant([cosine[e] for e in ext[:r + 1]])
        except Failure:
            raise Failure(-20031, dev) from None
        above = even = odd = 0.0
        for i in range(r + 1):
            above += form.ad[i] * des[ext[i]]
            if i % 2:
                odd += form.ad[i] / wt[ext[i]]
            else:
                even += form.ad[i] / wt[ext[i]]
        with np.errstate(all="ignore"):
            new = float(np.float64(above) / np.float64(even - odd))
        if not math.isfinite(new):
            raise Failure(-20031, dev)
        dev = new
        form.y = [des[e] + dev / wt[e] if i % 2 else des[e] - dev / wt[e] for i, e in enumerate(ext[:r + 1])]
        sign = 1 if dev > 0 else -1
        dev = abs(dev)
        if dev_old > dev:
            raise Failure(-20031, dev)
        k1, knz, dev_old, changes, klow, nut = ext[0], ext[r], dev, 0, -1, sign
        plain = (form.response(cosine) - des).tolist()

        def err(l):
            return plain[l] * nut * wt[l]

        def climb_up(l, kup, comp):
            while l < kup and not comp > err(l):
                comp, l = err(l), l + 1
            return l, comp

        def search_up(l, kup, comp):
            l += 1
            while l < kup:
                if err(l) > comp:
                    return (1, *climb_up(l + 1, kup, err(l)))
                l += 1
            return 2, l, comp

        def search_down(l, bottom, comp, changes):
            l -= 1
            while l > bottom:
                if err(l) > comp:
                    comp, l = err(l), l - 1
                    while l > bottom and not comp > err(l):
                        comp, l = err(l), l - 1
                    return 1, l, comp
                l -= 1
            return (0 if changes == 0 else 2), l, comp
        for j in range(r + 1):
            kup, old, nut = ext[j + 1], ext[j], -nut
            if j == 1:
                y1 = comp
            comp, l = dev, old + 1
            if l < kup and not comp > err(l):
                l, comp = climb_up(l + 1, kup, err(l))
                klow = ext[j] = l - 1
                changes += 1
                continue
            result, l, comp = search_down(old, klow, comp, changes)
            klow = old
            if result == 1:
                changes += 1
                ext[j] = l + 1
            elif result == 0:
                result, l, comp = search_up(old + 1, kup, comp)
                if result == 1:
                    changes = 1
                    klow = ext[j] = l - 1
        k1, knz = min(k1, ext[0]), max(knz, ext[r])
        last, nut = nut, sign
        comp *= 1.00001
        low, l_low, comp = search_up(-1, k1, comp)
        nut = -last
        comp = max(comp, y1) * 1.00001
        high, l_high, comp = search_down(G, knz, comp, 1)
        if low == 1:
            ext = [l_low - 1] + ext[:r] + [G]
            changes += 1
        elif high == 1:
            ext = ext[1:r + 1] + [l_high + 1, G]
            changes += 1
    raise Failure(-20031, dev)


def coefficients(grid, form, kind, r, reduced=True):
    """The phases of the cosine transform are reduced exactly, as the library does; or taken as the products stand."""
    N2, a, aa, bb = 2 * r - 1, [0.0] * r, 1.0, 0.0
    if kind == 3:
        t0, t1 = math.cos(TWO_PI * grid[0]), math.cos(TWO_PI * grid[-1])
        aa, bb = 2 / (t0 - t1), -(t0 + t1) / (t0 - t1)
    delf2, l, x = 1.0 / N2, 0, form.x
    for j in range(r):
        ft = j * delf2
        xt = math.cos(TWO_PI * ft)
        if kind == 3:
            xt = (xt - bb) / aa
            ft = math.acos(xt) / TWO_PI
        while True:
            if abs(x[l] - xt) < 1e-6:
                a[j] = form.y[l]
                break
            if xt > x[l] or l == r:
                a[j] = form.response([math.cos(TWO_PI * ft)])[0]
                break
            l += 1
        l = max(l - 1, 0)
    d, alpha = TWO_PI / N2, [0.0] * (r + 2)
    for j in range(r):
        s = 0.0
        for k in range(1, r):
            s += a[k] * (math.cos(k * j % N2 * d) if reduced else math.cos(k * j * d))
        total = a[0] + 2 * s
        alpha[j] = total / N2 if j == 0 else 2 * total / N2
    if kind == 3:
        alpha[:r] = unstretched(alpha, aa, bb, r)
    return alpha


def unstretched(alpha, aa, bb, r):
    p, q, a = [0.0] * (r + 2), [0.0] * (r + 2), [0.0] * (r + 2)
    p[0] = 2 * alpha[r - 1] * bb + alpha[r - 2]
    p[1] = 2 * aa * alpha[r - 1]
    q[0] = alpha[r - 3] - alpha[r - 1]
    for j in range(2, r):
        if j == r - 1:
            aa, bb = aa / 2, bb / 2
        p[j] = 0.0
        for k in range(j):
            a[k] = p[k]
            p[k] = 2 * bb * a[k]
        p[1] = p[1] + 2 * aa * a[0]
        for k in range(j - 1):
            p[k] = p[k] + q[k] + aa * a[k + 1]
        for k in range(2, j + 1):
            p[k] = p[k] + aa * a[k - 1]
        if j < r - 1:
            for k in range(j):
                q[k] = -a[k]
            q[0] = q[0] + alpha[r - 2 - j]
    return p[:r]


def taps_of(alpha, kind, N, r):
    h = [0.0] * N
    if kind == 1 and N % 2:
        for j in range(r - 1):
            h[j] = h[N - 1 - j] = alpha[r - 1 - j] / 2
        h[r - 1] = alpha[0]
    elif kind == 1:
        h[0] = h[N - 1] = alpha[r - 1] / 4
        for j in range(1, r - 1):
            h[j] = h[N - 1 - j] = (alpha[r - 1 - j] + alpha[r - j]) / 4
        h[r - 1] = h[r] = alpha[0] / 2 + alpha[1] / 4
    elif N % 2:
        h[0], h[1] = alpha[r - 1] / 4, alpha[r - 2] / 4
        for j in range(2, r - 1):
            h[j] = (alpha[r - 1 - j] - alpha[r + 1 - j]) / 4
        h[r - 1] = alpha[0] / 2 - alpha[2] / 4
        h[r] = 0.0
        for j in range(r):
            h[N - 1 - j] = -h[j]
    else:
        h[0] = alpha[r - 1] / 4
        for j in range(1, r - 1):
            h[j] = (alpha[r - 1 - j] - alpha[r - j]) / 4
        h[r - 1] = (alpha[0] - alpha[1] / 2) / 2
        for j in range(r):
            h[N - 1 - j] = -h[j]
    return h


def design(desired, weights, fs, edges, kind, taps, reduced=True):
    """Taps and error."""
    check(desired, weights, fs, edges, kind, taps)
    r = functions(kind, taps)
    grid, des, wt = make_grid(desired, weights, fs, edges, kind, taps)
    form, delta = exchange(grid, des, wt, r)
    with np.errstate(all="ignore"):
        return taps_of(coefficients(grid, form, kind, r, reduced), kind, taps, r), delta
