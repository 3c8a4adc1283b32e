"""Filter objects, designs and one-shot filters: the order of their checks under several faults at once, and every
sample by the documented steps in scalar arithmetic, over numbers of every kind."""

import ctypes
import math

import numpy as np
import pytest

import test_iir_stages as stages
from exact import KINDS, SIZES, Guarded, equal_bits, equal_numbers, exports_of, fits, numbers, unwritten
from test_iir import BAND, FAMILIES, HIGH, LOW, ONE_SHOTS, STOP, Record
from test_iir_stages import pi, tan

LEAST = 2.2250738585072014e-308
LEVELS = {"chebyshev": ("ripple",), "inverse_chebyshev": ("attenuation",), "elliptic": ("ripple", "attenuation")}
COEFFICIENTS = {number for _, number, _ in FAMILIES.values() if number}


@pytest.fixture(autouse=True)
def quiet():
    with np.errstate(all="ignore"):
        yield


def pointer(array):
    return array.ctypes.data_as(ctypes.POINTER(ctypes.c_double))


class Object:
    """A record over guarded arrays, which need not be what its kind and order ask for."""

    def __init__(self, kind, order, a, b, state, reset=0):
        self.a, self.b, self.state = Guarded(a), Guarded(b), Guarded(state)
        self.record = Record(kind, order, reset, len(a), pointer(self.a.array), len(b), pointer(self.b.array),
                             len(state), pointer(self.state.array))
        self.first = bytes(self.record)

    address = property(lambda self: ctypes.addressof(self.record))

    def same_record(self, reset=None):
        """Every field is as it was, but for `reset` where another value is given."""
        first = Record.from_buffer_copy(self.first)
        first.reset = first.reset if reset is None else reset
        assert bytes(self.record) == bytes(first)


class ComplexState(ctypes.Structure):
    _fields_ = [("count", ctypes.c_int32), ("values", ctypes.c_void_p)]


def width(kind):
    return 2 if kind < BAND else 4


def test_an_object_is_one_block_with_its_delay_lines_at_zero(qv):
    for order in (-2**31, -1, 0, *range(1, 12), 100, 999, 1000, 2**31 - 1):
        for kind in (0, 1, 2, 3, 4, 5, 2**31, 2**32 - 1):
            handle, other = qv.ZemFunc233(kind, order), qv.ZemFunc469(kind, order)
            # 2^31 - 1 asks for 2^30 stages, of which no count of elements is an int32.
            if order < 1 or kind > 3 or order == 2**31 - 1:
                assert handle is None and other is None, (kind, order)
                continue
            S, w = (order + 1) >> 1, width(kind)
            record = ctypes.cast(handle, ctypes.POINTER(Record)).contents
            counts = [S * w, S * (w + 1), S * w]
            assert [record.type, record.order, record.reset] == [kind, order, 0]
            assert [record.a_count, record.b_count, record.state_count] == counts
            a, b, state = (ctypes.addressof(p.contents) for p in (record.a, record.b, record.state))
            assert a >= handle + ctypes.sizeof(Record) and b >= a + 8 * counts[0] and state >= b + 8 * counts[1]
            equal_bits(np.array(record.state[:counts[2]]), np.zeros(counts[2]))
            lines = ctypes.cast(other, ctypes.POINTER(ComplexState)).contents
            assert lines.count == counts[2] and lines.values >= other + ctypes.sizeof(ComplexState)
            values = (ctypes.c_double * (2 * counts[2])).from_address(lines.values)
            equal_bits(np.array(values), np.zeros(2 * counts[2]))
            qv.ZemFunc235(handle)
            assert record.reset == 1
            qv.ZemFunc470(handle)
            qv.ZemFunc238(other)


# Applying.

def cascade(x, a, b, state, w):
    """One real stream; returns the output and the new state."""
    d, y = [list(state[s:s + w]) for s in range(0, len(state), w)], []
    a, b = [float(v) for v in a], [float(v) for v in b]
    for v in x.tolist():
        for s, line in enumerate(d):
            back, forward = a[s * w:s * w + w], b[s * (w + 1):(s + 1) * (w + 1)]
            t = v
            for k in range(w):
                t = t - back[k] * line[k]
            v = t * forward[0]
            for k in range(w):
                v = v + forward[1 + k] * line[k]
            line[:] = [0.0 if abs(t) <= LEAST else t] + line[:-1]
        y.append(0.0 if abs(v) <= LEAST else v)
    return np.array(y), np.array([v for line in d for v in line])


@pytest.mark.parametrize("kind", KINDS)
@pytest.mark.parametrize("w", [2, 4])
def test_the_cascade_takes_its_steps_to_the_last_bit(qv, kind, w):
    rng = np.random.default_rng((KINDS.index(kind), w))
    for _ in range(70):
        S, n = int(rng.integers(1, 9)), int(rng.integers(1, 40))
        order = 2 * S - int(rng.integers(2))
        coefficients = rng.choice(["plain", kind])
        size = float(rng.choice([1.0, 1e-160, LEAST, 2 * LEAST]))
        a, b = (numbers(rng, S * c, coefficients) * (0.2 if coefficients == "plain" else 1) for c in (w, w + 1))
        state = numbers(rng, S * w, kind) * size
        real = Object(int(rng.integers(-1, 6)), order, a, b, state)
        x = numbers(rng, n, kind) * size
        wanted, after = cascade(x, a, b, state, w)
        given, y = Guarded(x), unwritten(n)
        place = given if rng.random() < 0.5 else y
        assert qv.ZemFunc91(given.array, n, real.address, place.array) == 0
        equal_numbers(place.array, wanted)
        equal_numbers(real.state.array, after)
        real.same_record()
        for guarded in (real.a, real.b):
            guarded.untouched()
        for guarded in (given, y, real.state):
            guarded.kept()

        z, zstate = numbers(rng, 2 * n, kind) * size, numbers(rng, 2 * S * w, kind) * size
        parts = [cascade(z[p::2], a, b, zstate[p::2], w) for p in (0, 1)]
        given, y, lines = Guarded(z), unwritten(n, complex), Guarded(zstate)
        other = ComplexState(S * w, lines.array.ctypes.data)
        out = given.array.view(complex) if rng.random() < 0.5 else y.array
        assert qv.ZemFunc466(given.array.view(complex), n, real.address, ctypes.addressof(other), out) == 0
        for p in (0, 1):
            equal_numbers(np.ascontiguousarray(out.view(float)[p::2]), parts[p][0])
            equal_numbers(np.ascontiguousarray(lines.array[p::2]), parts[p][1])
        equal_numbers(real.state.array, after)
        for guarded in (given, y, lines):
            guarded.kept()


def test_applying_checks_the_size_the_counts_and_the_samples_in_this_order(qv):
    rng = np.random.default_rng(1)
    seen = set()
    for _ in range(2000):
        order = int(rng.integers(1, 8))
        S, w = (order + 1) >> 1, int(rng.choice([2, 4]))
        counts = [S * w, S * (w + 1), S * w]
        if rng.random() < 0.5:
            counts[rng.integers(3)] += int(rng.choice([-S * w, -S, -1, 1, S, S * w, 5 * S]))
        if rng.random() < 0.1:
            counts = [int(c) for c in rng.choice([-2, -1, 0, S, 3 * S, 5 * S], 3)]
        reset, n = int(rng.choice([0, 1, 1, 2, -1])), int(rng.choice([*SIZES, 4, 4, 4, 4]))
        if n > 5 and fits(n):
            n = 3
        a, b, state = (rng.standard_normal(60) * 0.1 for _ in range(3))
        real = Object(int(rng.integers(-1, 6)), order, a, b, state, reset)
        real.record.a_count, real.record.b_count, real.record.state_count = counts
        real.first = bytes(real.record)
        given = int(counts[0] / S)  # towards zero
        right = given in (2, 4) and counts == [given * S, given * S + S, given * S]
        wanted = -20046 if not fits(n) else -20066 if not right else -20003 if n < 1 else 0
        x, y = Guarded(rng.standard_normal(5)), unwritten(5)
        assert qv.ZemFunc91(x.array, n, real.address, y.array) == wanted
        done = wanted in (0, -20003)
        real.same_record(0 if done else reset)
        before = np.where(np.arange(60) < counts[0], 0.0, state) if done and reset else state
        if wanted == 0:
            out, before[:counts[0]] = cascade(x.array[:n], a, b, before[:counts[0]].copy(), given)
            equal_bits(y.array[:n], out)
            assert np.array_equal(y.words[n:], y.first[n:])
        else:
            y.untouched()
        equal_bits(real.state.array, before)

        # The complex lines, whose own count is what is compared; the object's is not looked at.
        real = Object(0, order, a, b, state, reset)
        real.record.a_count, real.record.b_count = counts[:2]
        real.record.state_count = int(rng.integers(-1, 50))
        real.first = bytes(real.record)
        lines, z, y = Guarded(rng.standard_normal(120)), Guarded(rng.standard_normal(10)), unwritten(5, complex)
        other = ComplexState(counts[2], lines.array.ctypes.data)
        assert qv.ZemFunc466(z.array.view(complex), n, real.address, ctypes.addressof(other), y.array) == wanted
        real.same_record(0 if done else reset)
        real.state.untouched()
        kept = lines.first.view(float).copy()
        if done and reset:
            kept[:2 * counts[0]] = 0
        if wanted == 0:
            for p in (0, 1):
                out, kept[p:2 * counts[0]:2] = cascade(z.array[p:2 * n:2], a, b, kept[p:2 * counts[0]:2].copy(), given)
                equal_bits(np.ascontiguousarray(y.array.view(float)[p:2 * n:2]), out)
        else:
            y.untouched()
        equal_bits(lines.array, kept)
        seen.add((wanted, reset))
    assert len(seen) == 16


# Designing.

def not_above(*values):
    return any(v <= 0 for v in values)


def level_status(family, levels):
    named = dict(zip(LEVELS.get(family, ()), levels))
    if "ripple" in named and named["ripple"] <= 0:
        return -20024
    if "attenuation" in named and named["attenuation"] <= 0:
        return -20025
    return -20028 if len(named) == 2 and named["ripple"] >= named["attenuation"] else 0


def design_status(family, kind, order, fs, fl, fh, levels, counts=None):
    if order < 1:
        return -20021
    if kind in (LOW, HIGH):
        fh = (fs / 2 + fl) / 2
    if not_above(fl, fh, fs) or fl >= fh:
        return -20023
    if family == "inverse_chebyshev" and levels[0] <= 0:
        return -20025
    if fh > fs / 2 or fl > fs / 2:
        return -20020
    if status := level_status(family, levels):
        return status
    if kind not in range(4):
        return -20061
    S = (order + 1) >> 1
    if counts and (counts[0] < S * width(kind) or counts[1] < S * (width(kind) + 1)):
        return -20066
    return 0


def one_shot_status(family, kind, n, order, fs, fl, fh, levels):
    if not fits(n):
        return -20046
    if n < 1:
        return -20003
    if order < 1:
        return -20021
    if not_above(fs, fl) or kind >= BAND and (fh <= 0 or fl >= fh):
        return -20023
    if status := level_status(family, levels):
        return status
    return -20020 if (fh if kind >= BAND else fl) > fs / 2 else 0


def stage_coefficients(family, kind, order, fs, fl, fh, levels):
    """a and b as the stages stand in the object, NaN and infinities among them where the arguments are odd."""
    fs, fl, fh, *levels = (np.float64(v) for v in (fs, fl, fh, *levels))
    low, high = tan(pi * fl / fs), tan(pi * fh / fs) if kind >= BAND else 0.0
    made = [stages.band(kind, s, high - low, high * low) if kind >= BAND else stages.low_or_high(kind, s, low)
            for s in getattr(stages, family)(order, kind, *levels)]
    return [float(v) for a, _ in made for v in a], [float(v) for _, b in made for v in b]


def frequencies(rng):
    """Ordinary ones, and with one or two faults."""
    fs = float(rng.choice([1.0, 1000.0, 44100.0]))
    values = [fs, *sorted(fs * rng.uniform(0.01, 0.49, 2))]
    for _ in range(int(rng.choice([0, 0, 0, 1, 2]))):
        values[rng.integers(3)] = rng.choice([0.0, -0.0, -fs, fs / 2, np.nextafter(fs / 2, fs), fs / 4, fs, np.nan,
                                              np.inf, -np.inf, 5e-324, values[1], values[2]])
    return [float(v) for v in values]


def level_values(rng, family):
    values = {"ripple": rng.uniform(0.01, 4), "attenuation": rng.uniform(5, 90)}
    for name in values:
        if rng.random() < 0.2:
            values[name] = rng.choice([0.0, -0.0, -3.0, 40.0, 40.0, np.nan, np.inf, -np.inf])
    return [float(values[name]) for name in LEVELS.get(family, ())]


@pytest.mark.parametrize("family", FAMILIES)
def test_designs_check_in_their_order_and_write_the_coefficients_or_nothing(qv, family):
    rng, seen = np.random.default_rng(len(family)), set()
    function = getattr(qv, f"ZemFunc{FAMILIES[family][0]}")
    for _ in range(600):
        kind = int(rng.choice([0, 1, 2, 3, 0, 1, 2, 3, 4, -1, 2**31 - 1, -2**31]))
        order = int(rng.choice([1, 2, 3, 4, 5, 8, 1, 2, 3, 0, -1, -2**31, 2**31 - 1, 2**31 - 2, 2**30]))
        S = (max(min(order, 9), 1) + 1) >> 1
        sizes = [S * width(kind % 4), S * (width(kind % 4) + 1)]
        sizes = [max(size + int(rng.choice([0, 0, 0, 0, 0, 7, -1])), 0) for size in sizes]
        design, levels = frequencies(rng), level_values(rng, family)
        record = Object(kind, order, numbers(rng, sizes[0], "bits"), numbers(rng, sizes[1], "bits"),
                        numbers(rng, 3, "bits"), int(rng.choice([0, 1, 7])))
        wanted = design_status(family, kind, order, *design, levels, sizes)
        status = function(*design, *levels, record.address)
        seen.add(status)
        record.same_record()
        record.state.untouched()
        assert status == wanted, (kind, order, design, levels, sizes)
        if status:
            record.a.untouched()
            record.b.untouched()
            continue
        record.a.kept()
        record.b.kept()
        S = (order + 1) >> 1
        used = S * width(kind), S * (width(kind) + 1)
        assert np.array_equal(record.a.words[used[0]:], record.a.first[used[0]:])
        assert np.array_equal(record.b.words[used[1]:], record.b.first[used[1]:])
        if family != "bessel":
            for got, expected in zip((record.a, record.b), stage_coefficients(family, kind, order, *design, levels)):
                equal_numbers(got.array[:len(expected)] + 0.0, np.array(expected) + 0.0)  # zeros of either sign
    assert {0, -20020, -20021, -20023, -20061, -20066} <= seen


# The direct form.

def direct_form(a, b, w, L):
    """Product of the stages in their order; each output adds in ascending index of the product so far."""
    results = []
    for coefficients, size in ((a, w), (b, w + 1)):
        product = [1.0]
        for s in range(0, len(coefficients), size):
            stage = ([1.0] if size == w else []) + coefficients[s:s + size]
            if s == 0:
                product = stage
                continue
            longer = [0.0] * (len(product) + w)
            for i, u in enumerate(product):
                for j, v in enumerate(stage):
                    longer[i + j] += u * v
            product = longer
        results.append(np.array(product[:L]))
    return results


def test_the_direct_form_checks_in_its_order_and_multiplies_in_the_order_of_the_stages(qv):
    rng, seen = np.random.default_rng(2), set()
    for _ in range(1500):
        kind = int(rng.choice([0, 1, 2, 3, 0, 1, 2, 3, 0, 1, 2, 3, 4, -1]))
        order = int(rng.choice([*range(1, 12), *range(1, 12), 0, -1, 2**31 - 1, -2**31]))
        S, w = (min(max(order, 1), 12) + 1) >> 1, width(kind % 4)
        content = rng.choice(["plain", "ties"])
        a, b = numbers(rng, S * w, content), numbers(rng, S * (w + 1), content)
        if order % 2:
            a[w // 2:w] = 0
            b[w // 2 + 1:w + 1] = 0
        record = Object(kind, order, a, b, [])
        if rng.random() < 0.2:
            record.record.a_count += int(rng.choice([-1, 1, w]))
        if rng.random() < 0.2:
            record.record.b_count += int(rng.choice([-1, 1, w + 1]))
        record.first = bytes(record.record)
        L = (order if w == 2 else 2 * order) + 1
        rooms = [max(min(L, 60), 0) + int(rng.choice([0, 0, 0, 0, 1, 5, -1])) for _ in range(2)]
        counts = (record.record.a_count, record.record.b_count)
        full = (order + 1) >> 1
        wanted = (-20021 if order < 1 else -20061 if kind not in range(4) else
                  -20066 if counts != (full * w, full * (w + 1)) or min(rooms) < L else 0)
        outputs = [unwritten(max(room, 0)) for room in rooms]
        status = qv.ZemFunc236(record.address, outputs[0].array, rooms[0], outputs[1].array, rooms[1])
        assert status == wanted, (kind, order, counts, rooms)
        record.same_record()
        record.a.untouched()
        record.b.untouched()
        seen.add(status)
        if status:
            for output in outputs:
                output.untouched()
            continue
        for output, product in zip(outputs, direct_form(a.tolist(), b.tolist(), w, L)):
            equal_numbers(output.array[:L] + 0.0, product + 0.0)  # zeros of either sign
            assert np.array_equal(output.words[L:], output.first[L:])
    assert seen == {0, -20021, -20061, -20066}
    assert qv.ZemFunc236(None, np.zeros(3), 3, np.zeros(3), 3) == -20066


@pytest.mark.parametrize("family", [family for family in FAMILIES if FAMILIES[family][1]])
def test_designs_into_arrays_are_the_design_and_then_its_direct_form(qv, family):
    rng, seen = np.random.default_rng(3 + len(family)), set()
    function = getattr(qv, f"ZemFunc{FAMILIES[family][1]}")
    for _ in range(300):
        kind = int(rng.choice([0, 1, 2, 3, 0, 1, 2, 3, 4, -1, -2**31]))
        order = int(rng.choice([*range(1, 10), *range(1, 10), 0, -1, -2**31]))
        design, levels = frequencies(rng), level_values(rng, family)
        L = (order if kind < BAND else 2 * order) + 1
        rooms = [max(L, 2) + int(rng.choice([0, 0, 0, 0, 3, -1])) for _ in range(2)]
        wanted = (-20001 if order < 1 or kind not in range(4) else
                  design_status(family, kind, order, *design, levels) or (-20066 if min(rooms) < L else 0))
        outputs = [unwritten(room) for room in rooms]
        status = function(kind, order, *design, *levels, outputs[0].array, rooms[0], outputs[1].array, rooms[1])
        assert status == wanted, (kind, order, design, levels, rooms)
        seen.add(status)
        if status:
            for output in outputs:
                output.untouched()
            continue
        for output in outputs:
            output.kept()
            assert np.array_equal(output.words[L:], output.first[L:])
        wanted = direct_form(*stage_coefficients(family, kind, order, *design, levels), width(kind), L)
        for output, product in zip(outputs, wanted):
            equal_numbers(output.array[:L] + 0.0, product + 0.0)
    assert {0, -20001, -20020, -20023, -20066} <= seen


# One-shot filters.

def direct_form_one(x, a, b, w):
    """One section after the other over the whole array, from rest."""
    v = x.tolist()
    for s in range(len(a) // w):
        back, forward = a[s * w:s * w + w], b[s * (w + 1):(s + 1) * (w + 1)]
        inputs, outputs, y = [0.0] * w, [0.0] * w, []
        for value in v:
            total = forward[0] * value
            for k in range(w):
                total = total + forward[1 + k] * inputs[k]
            for k in range(w):
                total = total - back[k] * outputs[k]
            inputs, outputs = [value] + inputs[:-1], [total] + outputs[:-1]
            y.append(total)
        v = y
    return np.array(v)


def one_shot(family, kind, order, design, levels, x):
    a, b = stage_coefficients(family, kind, order, *design, levels)
    if family == "chebyshev" and order % 2 == 0 and kind >= BAND:
        # The gain of an even order is a last pass of its own, not a part of the last section.
        g = math.sqrt(10.0 ** (levels[0] / 10))
        plain = stages.chebyshev
        try:
            stages.chebyshev = lambda n, kind, ripple: [(*s[:3], 1.0) if len(s) > 1 else s
                                                        for s in plain(n, kind, ripple)]
            a, b = stage_coefficients(family, kind, order, *design, levels)
        finally:
            stages.chebyshev = plain
        return direct_form_one(x, a, b, width(kind)) * (1 / g)
    return direct_form_one(x, a, b, width(kind))


@pytest.mark.parametrize("family", [family for family in ONE_SHOTS if family != "bessel"])
@pytest.mark.parametrize("kind", [LOW, HIGH, BAND, STOP])
def test_real_one_shots_check_in_their_order_and_take_the_documented_steps(qv, family, kind):
    rng, seen = np.random.default_rng(kind), set()
    function = getattr(qv, f"ZemFunc{ONE_SHOTS[family][0][kind]}")
    for _ in range(120):
        order = int(rng.choice([*range(1, 9), *range(1, 9), 0, -1, -2**31]))
        n = int(rng.choice([*SIZES, *range(1, 40)]))
        if n > 40 and fits(n):
            n = 40
        design, levels = frequencies(rng), level_values(rng, family)
        x = numbers(rng, min(max(n, 1), 40), rng.choice(["plain", "ties"])) * 10.0 ** float(rng.choice([0, 290, -310]))
        given, y = Guarded(x), unwritten(len(x))
        out = [None, given.array, y.array][rng.integers(3)]
        edges = design[1:] if kind >= BAND else design[1:2]
        status = function(given.array, n, design[0], *edges, *levels, order, out)
        wanted = one_shot_status(family, kind, n, order, *design, levels)
        assert status == wanted, (n, order, design, levels)
        seen.add(status)
        if status:
            given.untouched()
            y.untouched()
            continue
        given.kept()
        y.kept()
        if out is y.array:
            given.untouched()
        equal_numbers((y if out is y.array else given).array + 0.0,
                      one_shot(family, kind, order, design, levels, x) + 0.0)
    assert {0, -20003, -20020, -20021, -20023, -20046} <= seen


@pytest.mark.parametrize("family", ONE_SHOTS)
@pytest.mark.parametrize("kind", [LOW, HIGH, BAND, STOP])
def test_one_shots_that_build_an_object_check_as_the_design_and_run_the_cascade(qv, family, kind):
    rng, seen = np.random.default_rng(kind + 9), set()
    for number, parts in ((ONE_SHOTS[family][1][kind], 2), *([(ONE_SHOTS[family][0][kind], 1)] * (family == "bessel"))):
        function, dtype = getattr(qv, f"ZemFunc{number}"), complex if parts == 2 else float
        for _ in range(120):
            order = int(rng.choice([*range(1, 9), *range(1, 9), 0, -1, -2**31]))
            n = int(rng.choice([*SIZES, *range(1, 40)]))
            if n > 40 and fits(n):
                n = 40
            design, levels = frequencies(rng), level_values(rng, family)
            x = numbers(rng, parts * min(max(n, 1), 40), "plain") * 10.0 ** float(rng.choice([0, 290, -310]))
            given, y = Guarded(x), unwritten(len(x))
            out = [None, given.array.view(dtype), y.array.view(dtype)][rng.integers(3)]
            edges = design[1:] if kind >= BAND else design[1:2]
            status = function(given.array.view(dtype), n, design[0], *edges, *levels, order, out)
            wanted = (-20046 if not fits(n) else design_status(family, kind, order, *design, levels) or
                      (-20003 if n < 1 else 0))
            assert status == wanted, (number, n, order, design, levels)
            seen.add(status)
            if status:
                given.untouched()
                y.untouched()
                continue
            given.kept()
            y.kept()
            if out is not None and np.shares_memory(out, y.array):
                given.untouched()
                result = y.array
            else:
                result = given.array
            if family == "bessel":
                handle = qv.ZemFunc233(kind, order)
                assert qv.ZemFunc471(*design, handle) == 0
                record = ctypes.cast(handle, ctypes.POINTER(Record)).contents
                a, b = record.a[:record.a_count], record.b[:record.b_count]
                qv.ZemFunc234(handle)
            else:
                a, b = stage_coefficients(family, kind, order, *design, levels)
            for p in range(parts):
                wanted, _ = cascade(x[p::parts], a, b, [0.0] * len(a), width(kind))
                equal_numbers(np.ascontiguousarray(result[p::parts]), wanted)
    assert {0, -20003, -20021, -20023, -20046} <= seen


def test_no_export_of_the_designs_is_left_out():
    used = {number for number, _, _ in FAMILIES.values()} | COEFFICIENTS | {236}
    used |= {number for real, split in ONE_SHOTS.values() for number in (*real, *split)}
    assert exports_of("iir_design") <= used
