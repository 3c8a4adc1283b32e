"""Pulse measurements beside their documented rules, written down plainly, to the last bit.

The signals are short and take few values, so that samples lie on references and mode bins are equally full all the time.
"""

import collections
import itertools

import numpy as np
import pytest

from exact import KINDS, numbers

THIN = 20021


class Refused(Exception):
    def __init__(self, status, outputs):
        super().__init__(status)
        self.status, self.outputs = status, list(outputs)


def trunc_bin(x, low, width, bins):
    return min(max(int((x - low) / width), 0), bins - 1)


def modes(x, bins):
    low, span = min(x), max(x) - min(x)
    width = span / bins
    counts = [0] * bins
    for v in x:
        counts[trunc_bin(v, low, width, bins)] += 1
    at_low, at_high = int(bins * 0.4), int(bins * 0.6)
    for k in range(at_low, -1, -1):
        if counts[k] >= counts[at_low]:
            at_low = k
    for k in range(at_high, bins):
        if counts[k] >= counts[at_high]:
            at_high = k
    return low + width / 2 + at_low * width, low + width / 2 + at_high * width, counts[at_low], counts[at_high]


def state_levels(x, method, bins):
    """high, low, status, method used."""
    if not x:
        raise Refused(-20312, [0.0] * 3)
    if method > 2:
        raise Refused(-20316, [0.0] * 3)
    if method == 1:
        return max(x), min(x), 0, 1
    if max(x) - min(x) <= 0:
        raise Refused(-20309, [0.0] * 3)
    low, high, low_count, high_count = modes(x, bins)
    least = 0.05 * len(x)
    if method == 0:
        return high, low, THIN if low_count < least or high_count < least else 0, 0
    if low_count > least and high_count > least:
        return high, low, 0, 0
    return max(x), min(x), 0, 2


def absolute(references, high, low):
    return [(high - low) * v / 100 + low for v in references]


def crossing_time(x, i, level):
    d = x[i] - x[i + 1]
    return (x[i] - level) / (d if d != 0 else 1.0) + i


def crosses(x, i, level):
    return (x[i + 1] - level) * (x[i] - level) <= 0


Crossing = collections.namedtuple("Crossing", "time slope")


def crossings(x, mid, h, limit):
    found, state, armed = [], None, False
    for i in range(len(x) - 1):
        if len(found) == limit:
            break
        if x[i] >= mid + h and state != "high":
            armed, state = True, "high"
        elif x[i] <= mid - h and state != "low":
            armed, state = True, "low"
        elif not armed:
            continue
        if crosses(x, i, mid):
            found.append(Crossing(crossing_time(x, i, mid), int(state == "low")))
            armed = False
    return found


def cycle_timing(x, polarity, c, references, percent, method, bins):
    """period, duration, duty, centre, status; the references become absolute."""
    nothing = [0.0] * 4
    if c < 1:
        raise Refused(-20323, nothing)
    if not x:
        raise Refused(-20312, nothing)
    status = 0
    if percent:
        try:
            high, low, status, _ = state_levels(x, method, bins)
        except Refused as refused:
            raise Refused(refused.status, nothing) from None
        references[:] = absolute(references, high, low)
    high, mid, low = references
    h = min(high - mid, mid - low)
    if h < 0:
        raise Refused(-20313, nothing)
    records = crossings(x, mid, h, 2 * c + 1)
    if len(records) < 2 * c + 1:
        raise Refused(-20308, nothing)
    at = 2 * c - 2
    if polarity != -1:
        same = [k for k, r in enumerate(records) if r.slope == polarity]
        if len(same) < c or same[c - 1] + 1 >= len(records):
            raise Refused(-20308, nothing)
        at = same[c - 1]
    a, b = records[at].time, records[at + 1].time
    period = records[2 * c].time - records[2 * c - 2].time
    with np.errstate(all="ignore"):
        duty = float(np.divide(b - a, period))
    return period, b - a, duty, (a + b) / 2, status


def cycle_average(x, c, references, percent, method, bins):
    period, duration, _, centre, status = cycle_timing(x, -1, c, references, percent, method, bins)
    start = centre - duration / 2
    end = start + period
    # Products that vanish, and samples that are no numbers, put crossings outside the record and in any order.
    p, s = np.trunc(period + 0.5), np.trunc(start + 0.5)
    if not p >= 1:
        raise Refused(-20319, [0.0, 0.0, start, end])
    p = int(min(p, len(x)))
    s = int(max(s, 0)) if s <= len(x) - p else len(x) - p
    total = squares = 0.0
    for v in x[s:s + p]:
        total += v
        squares += v * v
    return total / p, float(np.sqrt(squares / p)), start, end, status


Edge = collections.namedtuple("Edge", "first second first_time second_time slope")


def transitions(x, low, high, limit):
    found, state, mask = [], None, 0
    low_index = high_index = low_time = high_time = None
    for i in range(len(x) - 1):
        if len(found) == limit:
            break
        if x[i] >= high and state != "high":
            mask, state = mask | 1, "high"
        elif x[i] <= low and state != "low":
            mask, state = mask | 1, "low"
        if mask & 1:
            if crosses(x, i, low):
                low_index, low_time, mask = i + 1, crossing_time(x, i, low), mask | 2
            if crosses(x, i, high):
                high_index, high_time, mask = i + 1, crossing_time(x, i, high), mask | 4
        if mask == 7:
            if state == "low":
                found.append(Edge(low_index, high_index, low_time, high_time, 1))
            else:
                found.append(Edge(high_index, low_index, high_time, low_time, 0))
            mask = 0
    return found


def transition(x, polarity, c, references, percent, method, bins):
    """slew, duration, first, second, pre under and over, post under and over, status."""
    out = [0.0] * 8
    if c < 1:
        raise Refused(-20323, out)
    try:
        high_level, low_level, status, used = state_levels(x, method, bins)
    except Refused as refused:
        raise Refused(refused.status, out) from None
    if percent:
        references[:] = absolute(references, high_level, low_level)
    high, mid, low = references
    if low > mid or mid > high:
        raise Refused(-20313, out)
    if used == 1 and max(x) - min(x) <= 0:
        raise Refused(-20309, out)
    L, H, low_count, high_count = modes(x, bins)
    if low_count < 0.05 * len(x) or high_count < 0.05 * len(x):
        status = THIN
    w, A = (max(x) - min(x)) / bins, H - L
    band = {v: (v, v - w / 2, v - w / 2 + w) for v in (L, H)}
    if low >= high:
        raise Refused(-20313, out)
    edges = transitions(x, low, high, 2 * c + 1)
    same = [k for k, e in enumerate(edges) if e.slope == polarity]
    if len(same) < c:
        raise Refused(-20310, out)
    out[2], out[3] = edges[same[c - 1]].first_time, edges[same[c - 1]].second_time

    at = 2 * c - 2
    if not (len(edges) > at and edges[at].slope == polarity):
        at = 2 * c - 1
    if len(edges) <= at:
        raise Refused(-20310, out)
    edge = edges[at]
    d = edge.second - edge.first or 1
    rising = edge.slope == 1

    def excursions(start, end, level):
        level, bottom, top = band[level]
        if end <= start:
            raise Refused(-20312, out)
        M, m = max(x[start:end]), min(x[start:end])
        with np.errstate(all="ignore"):
            over = 0.0 if M <= top else float(np.divide((M - level) * 100, A))
            under = 0.0 if m >= bottom else float(np.divide((level - m) * 100, A))
        return under, over

    start = 0 if at < 1 else (edges[at - 1].second + edge.first) // 2
    start = max(start, edge.first - 3 * d, 0)
    end = edge.first
    while end > start + 1 and (x[end] > L if rising else x[end] < H):
        end -= 1
    out[4], out[5] = excursions(start, end, L if rising else H)

    start = edge.second
    end = (edge.second + edges[at + 1].first) // 2 if at + 1 < len(edges) else len(x) - 1
    end = min(end, edge.second + 3 * d)
    while start < end and (x[start] < H if rising else x[start] > L):
        start += 1
    out[6], out[7] = excursions(start, end, H if rising else L)

    out[1] = out[3] - out[2]
    if out[1] <= 0:
        raise Refused(-20326, out)
    out[0] = (high - low) / out[1]
    return *out, status


def pulse_parameters(x):
    """Eight levels, four times, slew, status, in the order of the arguments."""
    n, largest, least = len(x), max(x), min(x)
    if largest == least:
        return [0.0, x[0], x[0], x[0], x[0], x[0], 0.0, 0.0], [0] * 4, None, -20116
    centres, counts, width = [(largest - least) / 101 * 0.5 + least], [0] * 101, (largest - least) / 101
    for _ in range(100):
        centres.append(centres[-1] + width)
    factor = 101 / (largest - least)
    for v in x:
        k = np.floor((v - least) * factor)
        if 0 <= k < 101:
            counts[int(k)] += 1
        elif v == largest:
            counts[100] += 1
    base, top = max(range(50), key=lambda k: (counts[k], -k)), max(range(50, 101), key=lambda k: (counts[k], k))
    base, top = centres[base], centres[top]
    amplitude, overshoot, undershoot = top - base, largest - top, base - least
    level10, level50, level90 = (base + share * amplitude for share in (0.1, 0.5, 0.9))
    levels = [amplitude, level90, level50, level10, top, base, overshoot, undershoot]
    y, low, mid, high = x, level10, level50, level90
    if x[0] > level50:
        levels[0], levels[4], levels[5] = -amplitude, base, top
        y, low, mid, high = [-v for v in x], -level90, -level50, -level10

    def cross(i, v):
        return i - float(np.divide(y[i] - v, y[i] - y[i - 1])) if i else 0.0

    last, a, b, i = n - 1, 0, 0, 0
    with np.errstate(all="ignore"):
        while i < last and y[i] < mid:
            a = i if y[i] < low else a
            i += 1
        delay = cross(i, mid) if i < last else last
        while i < last and y[i] < high:
            i += 1
        rise = cross(i, high) - cross(a + 1, low) if i < last else last - a + 1
        while i < last and y[i] > mid:
            b = i if y[i] > high else b
            i += 1
        width = (cross(i, mid) if i < last else last) - delay
        while i < last and y[i] > low:
            i += 1
        fall = cross(i, low) - cross(b + 1, high) if i < last else last - b + 1
        slew = float(np.divide(0.8 * levels[0], rise)) if rise != 0 else 1e30
    times = [float(delay), float(width), float(rise), float(fall)]
    if np.all(np.isfinite(times)) and 0 <= int(delay) < n and all(0 <= int(v) <= n for v in times[1:]):
        return levels, [int(v) for v in times], slew, 0
    return levels, [0] * 4, slew, -20116


def same(found, expected):
    found, expected = np.array(found, float), np.array(expected, float)
    return np.all((found == expected) | (np.isnan(found) & np.isnan(expected)))


def signals(seed, count):
    """Trains and steps with ringing, noise and spikes on a grid of eighths, and plain noise on few values."""
    generator = np.random.default_rng(seed)
    for k in range(count):
        n = int(generator.integers(1, 60))
        if k % 3 == 0:
            x = generator.integers(-2, 3, n) / 2
        else:
            period, slope = generator.integers(4, 25), generator.integers(1, 4)
            phase = (np.arange(n) + generator.integers(0, 25)) % period
            x = np.clip(np.minimum(phase, period - phase) - period // 4, -slope, slope) / slope
            x = x + generator.integers(-1, 2, n) * (generator.random(n) < 0.3) / 8
            if k % 3 == 1:
                x = np.round(np.convolve(x, (0.5, 0.5, 0.25, -0.25))[:n] * 8) / 8
        if k % 7 == 0:
            x[generator.integers(0, n)] = generator.choice((-3, 3))
        yield generator, [float(v) + 0.0 for v in x]


def arguments(generator):
    percent = int(generator.integers(0, 2))
    if percent:
        references = sorted(generator.choice((0.0, 10.0, 20.0, 45.0, 50.0, 55.0, 80.0, 90.0, 100.0), 3))
    else:
        references = sorted(generator.choice((-1.0, -0.5, -0.25, 0.0, 0.25, 0.5, 0.75), 3))
    if generator.random() < 0.1:
        generator.shuffle(references)
    return [float(v) for v in references[::-1]], percent, int(generator.integers(0, 4)), int(generator.integers(1, 12))


def call(function, outputs, x, *leading, references, percent, method, bins):
    levels, out = [np.array([v]) for v in references], [np.full(1, -7.0) for _ in range(outputs)]
    array = np.array(x)
    status = function(array, len(x), *leading, *levels, percent, method, bins, *out)
    return status, [v[0] for v in out], [v[0] for v in levels]


def expected(function, *leading, references, **rest):
    try:
        *outputs, status = function(*leading, references, *rest.values())
        return status, outputs
    except Refused as refused:
        return refused.status, refused.outputs


@pytest.mark.parametrize("seed", range(4))
def test_levels_timing_averages_and_edges_follow_their_rules(qv, seed):
    statuses = collections.defaultdict(collections.Counter)
    for generator, x in signals(seed, 1500):
        references, percent, method, bins = arguments(generator)
        rest = {"percent": percent, "method": method, "bins": bins}
        number, polarity = int(generator.integers(0, 4)), int(generator.integers(-1, 2))

        out = [np.full(1, -7.0) for _ in range(3)]
        status = qv.ZemFunc363(np.array(x), len(x), method, bins, *out)
        try:
            high, low, wanted, _ = state_levels(x, method, bins)
            outputs = [high, low, high - low]
        except Refused as refused:
            wanted, outputs = refused.status, refused.outputs
        assert status == wanted and same([v[0] for v in out], outputs), (x, method, bins)
        statuses[363][status] += 1

        # Where the levels told stand among the outputs.
        for export, outputs, told, rule, leading in (
                (364, 7, slice(4, 7), cycle_timing, (polarity, number)),
                (365, 7, slice(4, 7), cycle_average, (number,)),
                (366, 11, slice(4, 7), transition, (max(polarity, 0), number))):
            absolutes = list(references)
            wanted, results = expected(rule, x, *leading, references=absolutes, **rest)
            function = getattr(qv, f"ZemFunc{export}")
            status, found, levels = call(function, outputs, x, *leading, references=references, **rest)
            case = export, x, leading, references, rest
            assert status == wanted, case
            assert same(levels, absolutes) and same(found[told], absolutes[::-1]), case
            assert same(found[:4] + found[7:], results), (case, found, results)
            statuses[export][status] += 1
    # The cases reach what there is to reach.
    for export, wanted in ((363, (0, -20309, -20316, THIN)), (364, (0, -20323, -20308, -20313, -20316)),
                           (365, (0, -20323, -20308, -20313, -20316)),
                           (366, (0, -20323, -20309, -20310, -20312, -20313, -20316, THIN))):
        assert all(statuses[export][status] > 0 for status in wanted), statuses[export]
        assert statuses[export][0] > 50, statuses[export]


def shape(qv, x):
    reals, slew = [np.full(1, np.nan) for _ in range(8)], np.full(1, np.nan)
    times = [np.full(1, -7, np.int64) for _ in range(4)]
    status = qv.ZemFunc142(np.array(x), len(x), *reals, *times, slew)
    return [v[0] for v in reals], [v[0] for v in times], slew[0], status


def check_shape(qv, x):
    levels, times, slew, status = shape(qv, x)
    wanted_levels, wanted_times, wanted_slew, wanted = pulse_parameters(x)
    assert (status, times) == (wanted, wanted_times), x
    assert same(levels, wanted_levels), (x, levels, wanted_levels)
    assert wanted_slew is None or same([slew], [wanted_slew]), x
    return status


def test_every_short_pulse_of_four_values_follows_the_rules(qv):
    statuses = collections.Counter()
    for n in range(1, 7):
        for x in itertools.product((-1.0, 0.0, 0.5, 1.0), repeat=n):
            statuses[check_shape(qv, list(x))] += 1
    assert statuses[0] > 500 and statuses[-20116] > 50, statuses


@pytest.mark.parametrize("seed", range(4))
def test_pulses_with_ringing_and_noise_follow_the_rules(qv, seed):
    statuses = collections.Counter(check_shape(qv, x) for _, x in signals(100 + seed, 1000))
    assert statuses[0] > 500, statuses


@pytest.mark.parametrize("seed", range(2))
def test_noisy_trains_of_any_size_follow_the_rules(qv, seed):
    """Where no sum and no product is exact, and the order of each tells."""
    rng, statuses = np.random.default_rng(seed), collections.Counter()
    for _ in range(300):
        n = int(rng.integers(1, 150))
        x = np.sin(2 * np.pi * np.arange(n) / rng.uniform(4, 60) + rng.uniform(0, 6)) * rng.uniform(0.5, 8)
        x = np.tanh(x) + rng.standard_normal(n) * rng.choice([0, 0.01, 0.1, 0.5]) + rng.choice([0, 0, 5.5, -100])
        x = x * rng.choice([1.0, 3.3, 1e-150, 1e150, 1e300, 1e-305])
        percent, method = int(rng.choice([0, 1, -5])), int(rng.choice([0, 1, 2, 2**32 - 1]))
        references = np.sort(rng.uniform(-10, 110, 3) if percent else rng.uniform(x.min(), x.max(), 3))[::-1]
        bins = int(rng.choice([1, 2, 3, 5, 7, 10, 33, 100, 256, 1000]))
        rest = {"percent": percent, "method": method, "bins": bins}
        number, polarity, x = int(rng.integers(1, 5)), int(rng.integers(-1, 3)), x.tolist()
        for export, outputs, rule, leading in ((364, 7, cycle_timing, (polarity, number)),
                                               (365, 7, cycle_average, (number,)),
                                               (366, 11, transition, (polarity, number))):
            absolutes = references.tolist()
            with np.errstate(all="ignore"):
                wanted, results = expected(rule, x, *leading, references=absolutes, **rest)
            status, found, levels = call(getattr(qv, f"ZemFunc{export}"), outputs, x, *leading,
                                         references=references.tolist(), **rest)
            case = export, x, leading, references, rest
            assert status == wanted, case
            assert same(levels, absolutes) and same(found[4:7], absolutes[::-1]), case
            assert same(found[:4] + found[7:], results), (case, found, results)
            statuses[export, status] += 1
    assert all(statuses[export, 0] > 10 for export in (364, 365, 366)), statuses


@pytest.mark.parametrize("kind", KINDS + ["rare"])
def test_samples_that_are_no_numbers_follow_the_rules(qv, kind):
    rng = np.random.default_rng(len(kind))
    for _ in range(300):
        n = int(rng.choice([1, 2, 3, 4, 6, 10, 30]))
        if kind == "rare":
            x = np.where(rng.random(n) < 0.1, rng.choice([np.nan, np.inf]), np.sin(np.arange(n) / rng.uniform(1, 5)))
        else:
            x = numbers(rng, n, kind)
        x = x.tolist()
        with np.errstate(all="ignore"):
            check_shape(qv, x)
        references = np.sort(rng.choice([-1.0, -0.5, 0.0, 0.25, 0.5, 1.0, 1.5, np.inf, 1e308, 5e-324], 3))[::-1]
        if rng.random() < 0.1:
            references[rng.integers(3)] = np.nan
        number, rest = int(rng.choice([1, 1, 2, 3])), {"percent": 0, "method": 7, "bins": 1}
        for export, rule, leading in ((364, cycle_timing, (int(rng.integers(-2, 3)), number)),
                                      (365, cycle_average, (number,))):
            with np.errstate(all="ignore"):
                wanted, results = expected(rule, x, *leading, references=references.tolist(), **rest)
            status, found, _ = call(getattr(qv, f"ZemFunc{export}"), 7, x, *leading,
                                    references=references.tolist(), **rest)
            assert status == wanted and same(found[:4], results), (export, x, leading, references, found, results)
            assert same(found[4:], references[::-1])
