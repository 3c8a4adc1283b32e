"""Arguments with which every function of the package succeeds: by shapes, and by hand where values count."""

import numpy as np

import boundary
import python_binding
import python_names

SIZES = dict(n=24, m=7, rows=6, cols=4, rows1=5, cols1=6, rows2=3, cols2=2, nb=4, na=3, frames=3, channels=3, size=9,
             count=3, nInitial=2, nFinal=2, nx=4, ny=3, rowsA=3, colsA=4, rowsB=2, colsB=3, rhsCount=2, firstLength=4,
             secondLength=3, fixedCount=1, limitCount=2, bands=2)
# Where n and m are the rows and columns of a matrix.
MATRIX_SIZES = dict(SIZES, n=5, m=7)
MATRICES = {"matrices", "decompositions", "eigenproblems", "linear_fits"}
VALUES = dict(index=3, length=5, shift=2, value=2.5, upper=0.5, lower=-0.5, a=1.5, b=0.5, x=0.75, p=0.3, order=2, dof=5,
              dof1=3, dof2=4, t=0.5, amp=2.0, freq=0.05, cycles=3.0, duty=50.0, f1=0.1, f2=0.2, f3=0.3, f4=0.4, delay=4,
              width=5, first=1.0, last=3.0, centre=0.1, bandwidth=0.5, attenuation=60.0, skew=0.25, point=0.4,
              balance=0.5, threshold=0.2, level=0.1, factor=3, dt=0.01, harmonics=4, fs=1000.0, fundamental=60.0,
              max_tones=4, intervals=6, base=2, top=2.0, seed=7, deviation=1.0, amplitude=1.0, mean=4.0, trials=12,
              probability=0.4, step=0.3, side=3, left_rank=1, right_rank=2, ratio=0.3, beta=5.0, sigma=0.2, final=0.1,
              final_=0.1, a_=1.0, w=np.exp(0.1j), magnitude=2.0, phase=0.5, u=0.5, m=0.5, v=0.5, c=2.0, phi=0.7,
              fc=100.0, fl=100.0, fh=200.0, ripple=1.0, taps=21, fpass=100.0, fstop=150.0, center=150.0, slope=1.0,
              intercept=0.5, count=12, code=-20003, size=16, order_=4, kind="lowpass", window="hanning", mode=0, type=1,
              levels=3, per_cell=2, levels_a=2, levels_b=3, levels_c=2, spectrum=1.0, unit="V", rhs_count=2, low=0,
              high=4)
_rng = np.random.default_rng(20)


def _ramp(n=24):
    return np.linspace(0.1, 2.4, n)


def _train():
    """A pulse train with flat states, from the low one on."""
    period = np.concatenate([np.zeros(6), [0.3, 0.7], np.ones(6), [0.7, 0.3]])
    return np.concatenate([np.tile(period, 4), np.zeros(4)])


def _tone(n=1000, complex_data=False):
    angle = 2 * np.pi * 0.0612 * np.arange(n)
    return np.exp(1j * angle) if complex_data else np.sin(angle) + 0.1 * np.sin(2 * angle)


def _model(x, c):
    return c[0] * np.exp(-c[1] * x)


_DECAY = dict(x=_ramp(), y=3 * np.exp(-0.5 * _ramp()) + 0.01 * np.cos(7 * _ramp()))
_GUESS = dict(_DECAY, model=_model, coefficients=[2.0, 1.0])
_LINE = dict(x=_ramp(), y=2 * _ramp() + 1 + 0.01 * np.cos(7 * _ramp()))
_BELL = dict(x=np.linspace(-2, 2, 24), y=3 * np.exp(-np.linspace(-2, 2, 24) ** 2 / 2) + 0.001 * np.cos(np.arange(24)))
_TWO = np.repeat([0, 1], 12)
_THREE = np.tile(np.repeat([0, 1, 2], 4), 2)
_CELLS = np.tile(np.repeat([0, 1], 2), 6)
_NEARLY_ONE = 1 + 0.05 * _rng.standard_normal(24)
_BANDS = dict(bands=[(1, 0, 100, 1), (0, 150, 500, 1)])

# What the shapes alone cannot know, by the Python name.
BY_HAND = {
    "array_divide": dict(y=_ramp()), "array_divide_2d": dict(y=_ramp().reshape(6, 4)),
    "complex_array_divide": dict(b=_ramp() + 1j), "complex_pow": dict(p=2.5),
    "deconvolve": dict(y=np.convolve(_ramp(), [1, 2, 3]), x=[1.0, 2, 3]),
    "gamma": dict(a=2.5), "factorial": dict(n=5), "ln_factorial": dict(n=5),
    "chirp": dict(f1=0.1, f2=0.2), "arbitrary_wave": dict(table=np.arange(9.0)),
    "gaussian_modulated_sine": dict(delay=0.1, centre=10.0), "gaussian_monopulse": dict(delay=0.1, centre=10.0),
    "sinc_pattern": dict(delay=0.1), "periodic_sinc_pattern": dict(delay=0.1, order=5),
    "skewed_triangle_pulse": dict(delay=0.1, width=0.1),
    "halton_sequence": dict(base=3), "integrate_samples": dict(x=_ramp(25)),
    "interp_spline_evaluate": dict(x=_ramp(), second=np.zeros(24)),
    "interp_polynomial": dict(x=_ramp(6), y=_ramp(6) ** 2), "interp_rational": dict(x=_ramp(6), y=1 / _ramp(6)),
    "interp_spline_second_derivatives": dict(x=_ramp()),
    "interp_smoothing_spline": dict(x=_ramp()),
    "fit_nonlinear": _GUESS, "fit_nonlinear_alias": _GUESS, "fit_nonlinear_limited": dict(_GUESS, limit=100),
    "fit_nonlinear_limited_alias": dict(_GUESS, limit=100), "fit_nonlinear_weighted": _GUESS,
    "fit_nonlinear_weighted_alias": _GUESS,
    "peak_threshold_runs": dict(x=_train(), threshold=0.5, width=3),
    "peak_threshold_runs_stream": dict(x=_train(), threshold=0.5, width=3),
    "peak_detect": dict(x=_tone(200), threshold=0.5, width=5),
    "peak_power_frequency": dict(power=_ramp(), window=(1.5, 0.5)),
    "poly_roots_real": dict(c=[-6.0, 11, -6, 1]), "poly_roots_multiple": dict(c=[-1.0, 3, -3, 1]),
    "poly_zeros": dict(c=[1.0, -6, 11, -6]), "pulse_parameters": dict(x=np.concatenate([_train()[:22], np.zeros(6)])),
    "pulse_state_levels": dict(x=_train()), "pulse_cycle_timing": dict(x=_train()),
    "pulse_cycle_average": dict(x=_train()), "pulse_transition": dict(x=_train()),
    "shuffle_int": dict(data=np.arange(24)),
    "network_analysis": dict(stimulus=_rng.standard_normal((3, 24)), response=_rng.standard_normal((3, 24))),
    "histogram": dict(base=-2.0), "mode_of_histogram": dict(base=-2.0), "modes": dict(x=[1.0, 2, 2, 3]),
    "detect_level_crossings": dict(slopes=[1, 0, 1], levels=[0.1, 0.2, 0.3], hysteresis=[0.0, 0.1, 0.1]),
    "harmonic_analyzer": dict(power=_ramp(512), window="hanning", fundamental=60.0),
    "tone_harmonics": dict(x=_tone(), fundamental=61.0),
    "differentiate_method": dict(final=[1.0, 2.0]),
    "special_matrix": dict(type="toeplitz", first=[1.0, 2, 3], second=[1.0, 4]),
    "special_matrix_complex": dict(type="vandermonde", first=[1.0, 2j, 3]),
    "anova_one_way": dict(level=_THREE, levels=3),
    "anova_two_way": dict(level_a=_TWO, level_b=_THREE, per_cell=4, levels_a=2, levels_b=3),
    "anova_three_way": dict(level_a=_TWO, level_b=_THREE, level_c=_CELLS, per_cell=2, levels_a=2, levels_b=3,
                            levels_c=2),
    "contingency_chi_square": dict(counts=[[10, 20, 30], [20, 15, 10]]),
    "window_properties_measure": dict(w=_NEARLY_ONE), "complex_from_polar": dict(phase=0.5),
    "inverse_chirp_z": dict(x=np.fft.fft(_ramp())), "lag_product": dict(p=3), "lag_product_complex": dict(p=3),
    "savitzky_golay_filter": dict(order=2), "savitzky_golay_design": dict(order=2),
    "transfer_function": dict(stimulus=_NEARLY_ONE),
    "factorials": {},
    "solve_unit_lower": dict(pivots=[1, 1, 2, 4, 4]),
    "fit_line": _LINE, "fit_line_robust": _LINE, "fit_exponential": _DECAY, "fit_exponential_robust": _DECAY,
    "fit_power": dict(x=_ramp(), y=2 * _ramp() ** 1.5), "fit_logarithm": dict(x=_ramp(), y=1 + 2 * np.log(_ramp())),
    "fit_gaussian": _BELL,
    "fit_polynomial": _LINE, "fit_polynomial_constrained": dict(_LINE, fixed_orders=[0], fixed_values=[1.0]),
    "fit_polynomial_weighted": dict(_LINE, fixed_orders=[0], fixed_values=[1.0]),
    "fit_bounds_line": dict(_LINE, type=0, slope=2.0, intercept=1.0),
    "fit_bounds_exponential": dict(_DECAY, type=0, a=3.0, b=-0.5),
    "fit_bounds_power": dict(x=_ramp(), y=2 * _ramp() ** 1.5 + 0.01 * np.cos(7 * _ramp()), type=0, a=2.0, b=1.5),
    "fit_bounds_logarithm": dict(
        x=_ramp(), y=1 + 2 * np.log(_ramp()) + 0.01 * np.cos(7 * _ramp()), type=0, a=1.0, b=2.0),
    "fit_bounds_gaussian": dict(_BELL, type=0, amplitude=3.0, centre=0.0, width=1.0),
    "fit_goodness": dict(dof=20), "fit_remove_by_index": dict(indices=[1, 3, 5]),
    "fit_remove_out_of_range": dict(mode=0, limits=[-0.5, 0.5]),
    "fir_remez_design": dict(bands=2, desired=[1.0, 0], weights=[1.0, 1], edges=[0.0, 100, 150, 500], kind=0),
    "fir_remez_bands": dict(_BANDS, kind=0),
    "fir_remez_highpass": dict(fstop=100.0, fpass=150.0), "fir_remez_filter_highpass": dict(fstop=100.0, fpass=150.0),
    "fir_remez_filter_complex_highpass": dict(fstop=100.0, fpass=150.0),
    "fir_narrowband_design": dict(f1=100.0, f2=120.0, center=0.0, ripple=0.01, attenuation=60.0, kind="lowpass"),
    "jacobi_elliptic": dict(u=0.5, m=0.3), "exp_integral_n": dict(n=2),
    "spherical_bessel_j": dict(n=2), "spherical_bessel_y": dict(n=2), "bessel_k": dict(n=2),
    "kelvin_be": dict(n=1), "kelvin_ke": dict(n=1), "hyperg_2f1": dict(x=0.3), "hyperg_2f1_transformed": dict(x=0.3),
    "mat_balance_back": {},
}
del BY_HAND["factorials"], BY_HAND["mat_balance_back"]
for _band in ("bandpass", "bandstop"):
    for _name in (f"fir_remez_{_band}", f"fir_remez_filter_{_band}", f"fir_remez_filter_complex_{_band}"):
        BY_HAND[_name] = dict(f1=100.0, f2=150.0, f3=250.0, f4=300.0)
for _name in ("tone_single", "tone_multi"):
    for _kind in ("real", "complex"):
        for _ex in ("", "_ex"):
            BY_HAND[f"{_name}_{_kind}{_ex}"] = dict(x=_tone(complex_data=_kind == "complex"))


def models():
    """All functions of the package, as the generator sees them."""
    return python_binding.functions(boundary.read_table())


def values(kind, shape):
    if kind == "int32" or kind == "int64":
        return np.zeros(shape, np.int64) + np.arange(int(np.prod(shape))).reshape(shape) % 3
    real = np.random.default_rng(int(np.prod(shape))).standard_normal(shape)
    if len(shape) == 2 and shape[0] == shape[1]:  # well conditioned, symmetric and positive definite
        real = (real + real.T) / 4 + 5 * np.eye(shape[0])
    if kind != "complex":
        return real
    return real + 1j * np.random.default_rng(int(np.prod(shape)) + 1).standard_normal(shape) * (
        0 if len(shape) == 2 and shape[0] == shape[1] else 1)


def of(function, qv):
    """The arguments by name; optional ones only where this module tells them."""
    sizes = MATRIX_SIZES if function.export.family in MATRICES else SIZES
    told = BY_HAND.get(function.name, {})
    given = {}
    for p in function.parameters:
        if p.name in told:
            given[p.name] = told[p.name]
        elif p.default is not None and p.name not in ("seed", "reset"):
            continue
        elif p.name == "reset":
            given[p.name] = True
        elif p.argument.direction == "handle":
            given[p.name] = made(p.argument.type, function, qv)
        elif p.argument.shape:
            shape = [int(eval(python_names.ast.unparse(part), {"max": max, "min": min}, dict(sizes)))
                     for part in python_names.extents(p.argument.shape)]
            kind = "complex" if p.words.startswith("array_like of complex") else p.argument.type
            given[p.name] = values(kind, shape)
        elif p.name == "n":
            given[p.name] = sizes["n"]
        elif p.argument.type == "complex" or p.type == "complex":
            given[p.name] = VALUES.get(p.name) if isinstance(VALUES.get(p.name), complex) else np.exp(0.3j).item()
        else:
            value = VALUES[p.name]
            whole = p.argument.type in boundary.INTEGERS
            given[p.name] = value if isinstance(value, str) else int(value) if whole else float(value)
    return given


def made(kind, function, qv):
    """A handle of the kind, ready for use."""
    if kind == "block" and not hasattr(qv, "IirFilter"):
        return None  # nothing hands out blocks yet; null is allowed
    if kind == "FftPlan":
        return qv.FftPlan(16)
    if kind == "IirStateComplex":
        return qv.IirStateComplex("lowpass", 2)
    if kind == "FirNarrowband":
        filter = qv.FirNarrowband()
        if function.name != "fir_narrowband_design":
            filter.design(fs=1000.0, **BY_HAND["fir_narrowband_design"])
        return filter
    return qv.IirFilter("lowpass", 2).butterworth(1000.0, 100.0)
