"""Designs by exchange beside the documented steps in scalar arithmetic, to the last bit."""

import numpy as np
import pytest

import exchange
from exact import equal_numbers

EPS = 2.0**-52


def check(qv, desired, weights, fs, edges, kind, taps):
    h, delta = np.full(max(taps, 1), 7.5), np.full(1, 7.5)
    status = qv.ZemFunc65(len(desired), np.array(desired, float), np.array(weights, float), fs, np.array(edges, float),
                          kind, taps, h, delta)
    try:
        expected, error = exchange.design(desired, weights, fs, edges, kind, taps)
    except exchange.Failure as failure:
        assert status == failure.status, (status, failure.status)
        assert (h == 7.5).all()
        assert delta[0] == (7.5 if failure.delta is None else failure.delta)
        return status
    assert status == 0
    assert delta[0] == error
    equal_numbers(h, expected)  # with NaN of kinds without checks, where their factor is zero
    return 0


def random_bands(rng, count, fs, kind, taps):
    """Ascending edges that the kind accepts."""
    # Bands with room of a few grid points between them.
    edges = 0.01 + 0.47 * np.cumsum(rng.uniform(1, 3, 2 * count)) / (4 * count)
    if kind in (1, 2):
        edges[0] = 0
    at_end = kind == 1 or (kind in (2, 3) and taps % 2 == 0)
    edges[-1] = 0.5 if at_end else min(max(edges[-1], edges[-2] + 0.02), 0.47)
    return (edges * fs).tolist()


@pytest.mark.parametrize("kind", [1, 2, 3, 4, -7])
@pytest.mark.parametrize("parity", [0, 1])
def test_designs_take_the_documented_steps_to_the_last_bit(qv, kind, parity):
    rng, outcomes = np.random.default_rng((kind + 10, parity)), []
    for _ in range(40):
        taps = 2 * int(rng.integers(2, 28)) + parity
        count = int(rng.integers(1, 5)) if kind == 1 else int(rng.integers(1, 3))
        fs = float(rng.choice([1.0, 2.0, 1000.0, 44100.0]))
        edges = random_bands(rng, count, fs, kind, taps)
        desired = rng.choice([0.0, 1.0, 0.5, 2.0], count).tolist()
        if kind == 1 and parity == 0:
            desired[-1] = 0.0
        weights = rng.choice([1.0, 2.0, 0.1, 30.0], count).tolist()
        outcomes.append(check(qv, desired, weights, fs, edges, kind, taps))
    assert outcomes.count(0) > 10


@pytest.mark.parametrize("taps", range(3, 13))
@pytest.mark.parametrize("kind", [1, 2, 3, 0])
def test_the_shortest_designs(qv, taps, kind):
    for edges in ([0, 0.1, 0.3, 0.5], [0, 0.1, 0.3, 0.4], [0.05, 0.1, 0.3, 0.5], [0.05, 0.1, 0.3, 0.4], [0, 0.5],
                  [0.1, 0.4], [0, 0.45], [0.001, 0.01]):
        count = len(edges) // 2
        for desired in ([1.0] * count, [0.0] * count, [1.0, 0.0][:count]):
            check(qv, desired, [1.0, 3.0][:count], 1.0, edges, kind, taps)


def test_faults_in_random_combination(qv):
    """The first in order decides."""
    rng, statuses = np.random.default_rng(9), set()
    for _ in range(3000):
        kind, taps, count = int(rng.choice([1, 2, 3, 4])), int(rng.choice([2, 3, 8, 9])), int(rng.choice([0, 1, 2, 2]))
        fs = float(rng.choice([1.0] * 12 + [0.0, -1.0, np.inf, np.nan, 0.9]))
        edges = random_bands(rng, max(count, 1), 1.0, kind, taps)[:2 * count]
        desired, weights = rng.choice([0.0, 1.0], count).tolist(), [1.0] * count
        for values, bad in ((edges, [np.inf, np.nan, -0.1, 0.6, 0.0, 0.499]), (desired, [np.nan, np.inf, -1.0]),
                            (weights, [np.nan, np.inf, 0.0, -1.0])):
            if count and rng.random() < 0.25:
                values[rng.integers(len(values))] = float(rng.choice(bad))
        statuses.add(check(qv, desired, weights, fs, edges, kind, taps))
    assert statuses >= {0, -20003, -20020, -20023, -20031, -20033}


@pytest.mark.parametrize("kind,edges", [(1, [0, 0.1, 0.13, 0.5]), (2, [0, 0.45]), (3, [0.03, 0.47])])
def test_phases_that_are_not_reduced_change_the_taps_by_their_rounding(qv, kind, edges):
    desired, weights = [1.0, 0.0][:len(edges) // 2], [1.0, 1.0][:len(edges) // 2]
    for taps in (11, 41, 101):
        h, delta = np.zeros(taps), np.zeros(1)
        status = qv.ZemFunc65(len(desired), np.array(desired), np.array(weights), 1.0, np.array(edges, float), kind, taps, h,
                              delta)
        assert status == 0
        expected, _ = exchange.design(desired, weights, 1.0, edges, kind, taps, reduced=False)
        # A phase of k j d reaches pi r with two roundings; r responses of at most 2 are summed, over 2 r - 1. Undoing
        # the stretching of the Hilbert band doubles the terms at most r times over a band of 0.44, by about 1.1 each.
        assert np.abs(h - expected).max() < 64 * np.pi * taps * EPS
