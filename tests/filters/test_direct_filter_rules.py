"""Direct-form, smoothing and median filters: every sample by the documented steps in scalar arithmetic, over numbers of
every kind, with the order of the checks and what stays unwritten."""

import math

import numpy as np
import pytest

from exact import KINDS, SIZES, Guarded, equal_bits, equal_numbers, exports_of, fits, numbers, unwritten

LEAST = 2.2250738585072014e-308


@pytest.fixture(autouse=True)
def quiet():
    with np.errstate(all="ignore"):
        yield


def divided(a, b):
    return float(np.float64(a) / b)


def flushed(v):
    return 0.0 if abs(v) <= LEAST else v


def direct(x, a, outputs, b, inputs):
    """One real stream; the states are lists with the oldest value first. Without a: no feedback, and no flush."""
    y, inputs, outputs = [], list(inputs), list(outputs)
    for v in x:
        s = b[0] * v
        for k in range(1, len(b)):
            s = s + b[k] * inputs[-k]
        inputs = (inputs + [v])[1:]
        if a:
            for k in range(1, len(a)):
                s = s - a[k] * outputs[-k]
            s = flushed(divided(s, a[0]))
            outputs = (outputs + [s])[1:]
        y.append(s)
    return y, outputs, inputs


def listed(values, part, parts):
    return values[part::parts].tolist()


def coefficients(rng, count, kind):
    return numbers(rng, count, kind) * (0.2 if kind == "plain" else 1)


@pytest.mark.parametrize("kind", KINDS)
@pytest.mark.parametrize("parts", [1, 2])
def test_direct_forms_take_their_steps_to_the_last_bit(qv, kind, parts):
    rng = np.random.default_rng((KINDS.index(kind), parts))
    dtype = complex if parts == 2 else float
    fir, recursive = (qv.ZemFunc353, qv.ZemFunc354) if parts == 2 else (qv.ZemFunc352, qv.ZemFunc92)
    for _ in range(250):
        n = int(rng.integers(1, 40))
        na, nb = int(rng.choice([1, 1, 2, 3, 4, 5, 9, 17])), int(rng.choice([1, 2, 3, 4, 5, 8, 33]))
        scale = float(rng.choice([1.0, 1e-160, LEAST, 2 * LEAST]))
        choice = rng.choice(["plain", kind])
        a, b = Guarded(coefficients(rng, na, choice)), Guarded(coefficients(rng, nb, choice))
        if choice == "plain":
            a.array[0] += 2  # stable
            a.first = a.words.copy()
        inputs = Guarded(numbers(rng, parts * (nb - 1), kind) * scale)
        outputs = Guarded(numbers(rng, parts * (na - 1), kind) * scale)
        x, y = Guarded(numbers(rng, parts * n, kind) * scale), unwritten(parts * n)
        place = x if rng.random() < 0.5 else y
        as_given = [g.array.view(dtype) for g in (x, outputs, inputs, place)]
        form = rng.integers(5)
        feedback = form < 2
        wanted = [direct(listed(x.array, p, parts), a.array.tolist() if feedback else [],
                         listed(outputs.array, p, parts), b.array.tolist(), listed(inputs.array, p, parts))
                  for p in range(parts)]
        if form == 4:
            status = fir(as_given[0], n, b.array, as_given[2], nb, as_given[3])
        else:
            status = recursive(as_given[0], n, None if form == 2 else a.array, None if form == 3 else as_given[1],
                               int(rng.choice([na, 0, -1])) if form == 2 else na, b.array, as_given[2], nb, as_given[3])
        assert status == 0
        for p in range(parts):
            equal_numbers(np.array(listed(place.array, p, parts)), wanted[p][0])
            equal_numbers(np.array(listed(outputs.array, p, parts)), wanted[p][1])
            equal_numbers(np.array(listed(inputs.array, p, parts)), wanted[p][2])
        if not feedback:
            outputs.untouched()
        if place is y:
            x.untouched()
        for guarded in (x, y, inputs, outputs):
            guarded.kept()
        a.untouched()
        b.untouched()


def test_direct_forms_check_the_size_first_and_touch_nothing(qv):
    rng, seen = np.random.default_rng(1), set()
    for parts, fir, recursive in ((1, qv.ZemFunc352, qv.ZemFunc92), (2, qv.ZemFunc353, qv.ZemFunc354)):
        dtype = complex if parts == 2 else float
        for _ in range(600):
            n, (na, nb) = int(rng.choice([*SIZES, 4])), (int(v) for v in rng.choice([-2**31, -1, 0, 1, 3], 2))
            if nb >= 1 and n >= 1 and fits(n):
                continue
            arrays = [Guarded(rng.standard_normal(parts * 4)) for _ in range(4)]
            x, outputs, inputs, y = (g.array.view(dtype) for g in arrays)
            a, b = rng.standard_normal(4), rng.standard_normal(4)
            wanted = -20003 if fits(n) else -20046
            assert fir(x, n, b, inputs, nb, y) == wanted
            assert recursive(x, n, None if rng.random() < 0.2 else a, outputs, na, b, inputs, nb, y) == wanted
            for guarded in arrays:
                guarded.untouched()
            seen.add(wanted)
    assert seen == {-20003, -20046}


@pytest.mark.parametrize("kind", KINDS)
def test_zero_phase_is_two_passes_over_the_padded_array(qv, kind):
    rng = np.random.default_rng(KINDS.index(kind))
    for _ in range(60):
        n, na, nb = (int(v) for v in rng.integers(1, [30, 6, 6]))
        M = max(na, nb)
        scale = float(rng.choice([1.0, 1e-160, LEAST]))
        a, b = coefficients(rng, na, "plain"), coefficients(rng, nb, rng.choice(["plain", kind]))
        a[0] = rng.choice([1.0, 1.7, -2.0])
        x, y = Guarded(numbers(rng, n, kind) * scale), unwritten(n)
        work = [0.0] * M + x.array.tolist() + [0.0] * M
        for _ in range(2):
            work = direct(work, a.tolist(), [0.0] * (na - 1), b.tolist(), [0.0] * (nb - 1))[0][::-1]
        place = x if rng.random() < 0.5 else y
        assert qv.ZemFunc385(x.array, n, a, na, b, nb, place.array) == 0
        equal_numbers(place.array, work[M:M + n])
        x.kept()
        y.kept()


def test_zero_phase_checks_its_sizes_in_64_bits(qv):
    a = np.ones(4)
    for n in SIZES:
        for na in (-2**31, 0, 1, 2, 2**30, 2**31 - 1):
            for nb in (-1, 0, 1, 2, 2**30, 2**31 - 1):
                total = n + 2 * max(na, nb)
                if fits(n) and min(n, na, nb) >= 1 and total < 2**31:
                    continue  # would run
                x, y = Guarded(np.ones(5)), unwritten(5)
                wanted = -20046 if not fits(n) else -20003 if min(n, na, nb) < 1 else -20046
                assert qv.ZemFunc385(x.array, n, a, na, a, nb, y.array) == wanted, (n, na, nb)
                x.untouched()
                y.untouched()


# The median: NaN stands below all numbers, in the place that sorting gives it.

def median(x, left, right):
    window = left + right + 1
    s = sorted([0.0] * left + x[:right + 1], key=lambda v: (v == v, v if v == v else 0.0))
    leaving, y = [0.0] * left + x, []
    for t in range(len(x)):
        if t:
            old = leaving[t - 1]
            s.pop(next(i for i, v in enumerate(s) if v == old or v != v and old != old))
            new = x[t + right] if t + right < len(x) else 0.0
            nans = sum(v != v for v in s)
            if new != new:
                s.insert(nans, new)
            elif nans == len(s) or new < s[nans]:
                s.insert(nans, new)
            else:  # behind the first element with s[i] <= v <= s[i + 1]
                s.insert(next((i + 1 for i in range(nans, len(s) - 1) if s[i] <= new <= s[i + 1]), len(s)), new)
        middle = window // 2
        y.append(s[middle] if window % 2 else (s[middle - 1] + s[middle]) * 0.5)
    return np.array(y)


@pytest.mark.parametrize("kind", KINDS)
def test_the_median_takes_its_steps(qv, kind):
    rng = np.random.default_rng(KINDS.index(kind))
    for _ in range(250):
        left, right = int(rng.choice([0, 1, 2, 3, 7, 20, 50])), int(rng.choice([-5, -1, 0, 1, 2, 3, 7, 20]))
        ahead = left if right < 0 else right
        n = ahead + int(rng.integers(1, 60))
        x, y = Guarded(numbers(rng, n, kind)), unwritten(n)
        wanted = x.array.copy() if left == ahead == 0 else median(x.array.tolist(), left, ahead)
        place = x if rng.random() < 0.5 else y
        assert qv.ZemFunc407(x.array, n, left, right, place.array) == 0
        # Where zeros of both signs meet, their order in the first window is that of an unstable sort.
        equal_numbers(place.array + 0.0, wanted + 0.0)
        if place is y:
            x.untouched()
        x.kept()
        y.kept()
        if left == ahead == 0:
            equal_bits(place.array, x.array)


def test_the_median_checks_the_ranks_and_then_the_samples(qv):
    ranks = [-2**31, -3, -1, 0, 1, 4, 5, 6, 2**31 - 1]
    seen = set()
    for n in (*SIZES, 4):
        for left in ranks:
            for right in ranks:
                ahead = left if right < 0 else right
                x, y = Guarded(np.arange(5.0)), unwritten(5)
                if not fits(n):
                    wanted = -20046
                elif n < 0:
                    wanted = -20003
                elif left < 0:
                    wanted = -20032
                elif n > 0 and n <= ahead:
                    wanted = -20008
                elif n == 0:
                    wanted = 0
                elif left + ahead + 1 >= 2**31:
                    wanted = -20046
                elif n > 5 or left > 6:
                    continue  # would run
                else:
                    wanted = 0
                assert qv.ZemFunc407(x.array, n, left, right, y.array) == wanted, (n, left, right)
                seen.add(wanted)
                x.untouched()
                y.kept()
                if wanted or n == 0:
                    y.untouched()
                else:
                    assert np.array_equal(y.words[n:], y.first[n:])
    assert seen == {0, -20003, -20008, -20032, -20046}


# Smoothing.

def weights_of(rng, frame):
    """(weights, the status that they give)."""
    which = rng.integers(6)
    if which == 0 or frame < 1 or frame > 40:
        return None, 0
    w = rng.uniform(0.1, 3, frame) * rng.choice([-1.0, 1.0], frame)
    if which == 1:
        return w * 0.0, -20041
    if which == 2:
        w[rng.integers(frame)] = rng.choice([np.nan, np.inf, -np.inf])
        return w, -20068
    return w, 0


def smoothing_status(order, frame):
    return -20063 if order < 1 else -20037 if frame <= order else 0


def test_smoothing_checks_the_order_the_frame_the_samples_and_the_weights(qv):
    rng, seen = np.random.default_rng(4), set()
    for _ in range(3000):
        order = int(rng.choice([-2**31, -1, 0, 1, 2, 3, 4, 5, 6, 7, 2**31 - 1]))
        side = int(rng.choice([-2**31, -2**30, -1, 0, 1, 2, 3, 4, 2**30, 2**31 - 1]))
        frame = 2 * side + 1
        n = int(rng.choice([*SIZES, frame - 1, frame, frame + 1, 20]))
        if n > 40 and fits(n):
            n = 40
        if side < 2**30 and n < 2**31 - 1 and frame < 40:
            weights, faulty = weights_of(rng, frame)
        else:
            weights, faulty = None, 0
        given = None if weights is None else Guarded(weights)
        x, y = Guarded(rng.standard_normal(40)), unwritten(40)
        wanted = (-20046 if not fits(n) else smoothing_status(order, frame) or (-20008 if n < frame else faulty))
        weights = None if given is None else given.array
        status = qv.ZemFunc356(x.array, n, order, side, weights, y.array)
        assert status == wanted, (order, side, n, weights)
        seen.add(status)
        z, u = Guarded(rng.standard_normal(80)), unwritten(40, complex)
        assert qv.ZemFunc357(z.array.view(complex), n, order, side, weights, u.array) == wanted
        x.untouched()
        z.untouched()
        if wanted:
            y.untouched()
            u.untouched()
        else:
            assert np.array_equal(y.words[n:], y.first[n:]) and np.array_equal(u.words[2 * n:], u.first[2 * n:])

        count, terms = (frame, order + 1) if 0 < frame < 40 and 0 < order < 40 else (3, 3)
        smoother, rows = unwritten(count * count), unwritten(count * terms)
        wanted = smoothing_status(order, frame) or (-20046 if frame >= 2**31 else faulty)
        derivatives = int(rng.choice([0, 1, -1, 256]))
        assert qv.ZemFunc355(order, side, weights, derivatives, smoother.array, rows.array) == wanted, (order, side)
        smoother.kept()
        rows.kept()
        if wanted:
            smoother.untouched()
        if wanted or not derivatives:
            rows.untouched()
        if given is not None:
            given.untouched()
        if wanted == 0:
            # The projection and its coefficients, through a solver of its own; the condition is that of the powers.
            V = np.vander(np.arange(-side, side + 1.0), order + 1, increasing=True)
            root = np.sqrt(np.abs(np.ones(frame) if weights is None else weights))
            D = np.linalg.lstsq(V * root[:, None], np.diag(root), rcond=None)[0]
            close = 1e-14 * np.linalg.cond(V * root[:, None]) ** 2
            assert np.allclose(smoother.array.reshape(frame, frame), V @ D, rtol=0, atol=close)
            if derivatives:
                assert np.allclose(rows.array.reshape(order + 1, frame), D, rtol=0, atol=close)
    assert seen == {0, -20008, -20037, -20041, -20046, -20063, -20068}


@pytest.mark.parametrize("kind", ["plain", "ties", "special"])
def test_smoothing_is_the_rows_of_the_design_also_in_place(qv, kind):
    rng = np.random.default_rng(7)
    for _ in range(150):
        side = int(rng.integers(1, 7))
        order, frame = int(rng.integers(1, min(2 * side, 5) + 1)), 2 * side + 1
        n = frame + int(rng.choice([0, 0, 1, 2, 5, 30]))
        weights = None if rng.random() < 0.5 else rng.uniform(0.1, 3, frame)
        B = np.zeros((frame, frame))
        assert qv.ZemFunc355(order, side, weights, 0, B, None) == 0
        for parts, function in ((1, qv.ZemFunc356), (2, qv.ZemFunc357)):
            values = numbers(rng, parts * n, kind)
            x, y = Guarded(values), unwritten(parts * n)
            place = x if rng.random() < 0.5 else y
            dtype = complex if parts == 2 else float
            assert function(x.array.view(dtype), n, order, side, weights, place.array.view(dtype)) == 0
            x.kept()
            y.kept()
            for p in range(parts):
                v, got = values[p::parts], place.array[p::parts]
                for t in range(n):
                    row = min(t, side) if t < n - side else frame - n + t
                    first = min(max(t - side, 0), n - frame)
                    terms = B[row] * v[first:first + frame]
                    size = np.abs(terms).sum()
                    if math.isfinite(size):  # added in any order
                        assert abs(got[t] - terms.sum()) <= frame * 2.0**-52 * size + 5e-323
                    elif not np.isfinite(terms).all():
                        assert not math.isfinite(got[t])


def test_no_export_of_the_direct_filters_is_left_out():
    assert exports_of("direct_filters") == {92, 352, 353, 354, 355, 356, 357, 385, 407}
