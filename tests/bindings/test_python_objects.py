"""Handles, streams, models, errors and warnings: what the package adds to the functions."""

import gc
import threading
import time
import warnings

import numpy as np
import pytest

import quorvan as qv
from quorvan import _runtime as rt

X = np.random.default_rng(8).standard_normal(1000)


def blocks(x, *lengths):
    return np.split(x, np.cumsum(lengths))


# --- Errors and warnings ---------------------------------------------------------------------------------------------


def test_error_has_code_text_and_function():
    with pytest.raises(qv.QuorvanError, match=r"array_divide: Divide by zero") as caught:
        qv.array_divide([1.0, 2.0], [1.0, 0.0])
    assert caught.value.code == -20060 and caught.value.function == "array_divide"
    assert caught.value.text == qv.status_message(-20060)


def test_empty_array_is_refused_by_the_library():
    with pytest.raises(qv.QuorvanError) as caught:
        qv.mean([])
    assert caught.value.code == -20003


def test_warning_comes_beside_the_results():
    x = np.concatenate([np.linspace(0, 1, 60), np.linspace(1, 0, 60)])  # no state holds a twentieth of the samples
    with pytest.warns(qv.QuorvanWarning, match="pulse_state_levels") as caught:
        levels = qv.pulse_state_levels(x, "histogram", bins=100)
    assert caught[0].message.code == 20021
    assert caught[0].filename == __file__  # it points to the caller's line
    assert levels.high > levels.low


def test_warnings_can_be_made_errors():
    x = np.concatenate([np.linspace(0, 1, 60), np.linspace(1, 0, 60)])
    with warnings.catch_warnings():
        warnings.simplefilter("error", qv.QuorvanWarning)
        with pytest.raises(qv.QuorvanWarning):
            qv.pulse_state_levels(x, "histogram", bins=100)


@pytest.mark.parametrize("call, error", [
    (lambda: qv.array_add([1.0, 2.0], [1.0]), ValueError),
    (lambda: qv.array_add([[1.0, 2.0]], [[1.0, 2.0]]), ValueError),
    (lambda: qv.array_add(["a"], [1.0]), TypeError),
    (lambda: qv.window_cosine_taper20([1j]), TypeError),
    (lambda: qv.anova_one_way([1.0, 2.0], [0.5, 1.0], 2), TypeError),
    (lambda: qv.shuffle_int([2**31]), OverflowError),
    (lambda: qv.decimate(X, 2**63), OverflowError),
    (lambda: qv.savitzky_golay_filter(X, 2**31, 3), OverflowError),
    (lambda: qv.array_sort(X, "sideways"), ValueError),
    (lambda: qv.array_sort(X, qv.Window.HANNING), TypeError),
    (lambda: qv.array_add(X, X, out=np.empty(10)), ValueError),
    (lambda: qv.array_add(X, X, out=np.empty(1000, np.float32)), TypeError),
    (lambda: qv.array_add(X, X, out=[0.0] * 1000), TypeError),
    (lambda: qv.histogram(X, -1, 1, 10, out=np.empty(10)), TypeError),
    (lambda: qv.amplitude_phase(X, out=(np.empty(1000)[:500],) * 2), ValueError),
    (lambda: qv.peak_threshold_runs(X, 0.5, 0), ZeroDivisionError),
    (lambda: qv.matrix_multiply(np.ones((2, 3)), np.ones((2, 3))), ValueError),
    (lambda: qv.solve(np.ones((2, 3)), [1.0, 2.0]), ValueError),
])
def test_arguments_that_no_call_can_take_are_refused_before_it(call, error):
    with pytest.raises(error):
        call()


@pytest.mark.parametrize("call, told", [
    (lambda: qv.power_spectrum(None), "x must be an array of float64, not NoneType"),
    (lambda: qv.power_spectrum("text"), "x must be an array of float64, not str"),
    (lambda: qv.power_spectrum(X + 1j), "x must be an array of float64, not an array of complex128"),
    (lambda: qv.power_spectrum(X.reshape(10, 100)), "x must have 1 dimension, not 2"),
    (lambda: qv.power_spectrum([[1.0, 2.0], [3.0]]), "x must be an array; its rows differ in length"),
    (lambda: qv.solve([[1.0]], [[1.0], [2.0, 3.0]]), "b must be an array; its rows differ in length"),
    (lambda: qv.power_spectrum(X, "0.1"), "dt must be a real number, not str"),
    (lambda: qv.power_spectrum(X, None), "dt must be a real number, not NoneType"),
    (lambda: qv.power_spectrum(X, 1j), "dt must be a real number, not complex"),
    (lambda: qv.power_spectrum(X, X[:2]), r"dt must be a real number, not ndarray of shape \(2,\)"),
    (lambda: qv.sine_wave(8.0, 1, 0.1), "n must be an integer, not float"),
    (lambda: qv.sine_wave(8, 1, 0.1, "0"), "phase must be a real number, not str"),
    (lambda: qv.complex_exp("1"), "x must be a number, not str"),
    (lambda: qv.chirp_z(X, "a", 1j), "a must be a number, not str"),
    (lambda: qv.beta(1.0, 2.0, "x"), "x must be a real number, not str"),
    (lambda: qv.peak_power_frequency(X, window=3.0), "window must be WindowProperties or a pair"),
    (lambda: qv.spectrum_unit_convert(X, 5), "unit must be a text, not int"),
    (lambda: qv.window_apply_symmetric(X, 1.0), "window must be a Window, its name or its code, not float"),
    (lambda: qv.window_apply_symmetric(X, "hann"), r"window must be one of .*\(did you mean 'hanning'\?\)"),
    (lambda: qv.fit_nonlinear(X, X, None, [1.0]), "model must be a function of x and the coefficients"),
    (lambda: qv.fit_polynomial_constrained(X, X, 2, fixed_orders=[0]), "fixed_orders and fixed_values go together"),
    (lambda: qv.IirFilter("lopass", 4), "kind must be one of .* 'lowpass'"),
])
def test_message_names_the_argument_and_what_it_must_be(call, told):
    with pytest.raises((TypeError, ValueError), match=told):
        call()


def test_sizes_beyond_32_bits_are_refused_before_their_memory_is_taken():
    for call in (lambda: qv.sine_wave(2**31, 1.0, 0.1), lambda: qv.fft(X, 2**40), lambda: qv.gaussian_noise(2**62, 1.0)):
        with pytest.raises(OverflowError, match="sizes must fit 32 bits"):
            call()


def test_numbers_of_all_kinds_are_real_numbers():
    import decimal
    import fractions
    wanted = qv.power_spectrum(X, 0.5)
    for half in (np.float32(0.5), np.array(0.5), fractions.Fraction(1, 2), decimal.Decimal("0.5")):
        assert qv.power_spectrum(X, half).df == wanted.df


def test_solve_takes_several_right_hand_sides():
    a, b = np.array([[2.0, 1.0], [1.0, 3.0]]), np.array([[3.0, 1.0, 0.0], [5.0, 0.0, 1.0]])
    np.testing.assert_allclose(a @ qv.solve(a, b), b, atol=1e-15)
    np.testing.assert_allclose(a @ qv.solve(a, 1j * b), 1j * b, atol=1e-15)
    out = np.empty((2, 3))
    assert qv.solve_kind(a, b, "positive_definite", out=out) is out
    np.testing.assert_allclose(a @ out, b, atol=1e-15)


def test_read_only_out_is_refused():
    out = np.zeros(1000)
    out.flags.writeable = False
    with pytest.raises(ValueError, match="read-only"):
        qv.array_add(X, X, out=out)


def test_selection_takes_members_names_and_codes():
    wanted = qv.window_apply_symmetric(np.ones(16), qv.Window.FLAT_TOP)
    for told in ("flat_top", "Flat Top", "flat-top", 6):
        np.testing.assert_array_equal(qv.window_apply_symmetric(np.ones(16), told), wanted)
    with pytest.raises(qv.QuorvanError) as caught:  # plain integers are judged by the library
        qv.window_apply_symmetric(np.ones(16), 10)
    assert caught.value.code == -20061


def test_unit_flags_can_be_joined():
    flags = qv.UnitFlags.PEAK | qv.UnitFlags.POWER
    out, unit = qv.spectrum_unit_convert([0.0, 2.0], "V", flags=flags)
    assert unit == "Vpk^2"
    np.testing.assert_array_equal(out, [0, 4])


@pytest.mark.parametrize("told", ["/nowhere/libquorvan.so", "libnowhere.so.0"])
def test_missing_shared_object_is_told_with_what_to_do(monkeypatch, told):
    monkeypatch.setenv("QUORVAN_LIBRARY", told)
    with pytest.raises(ImportError, match=f"{told} cannot be loaded .*QUORVAN_LIBRARY.*wheel"):
        rt.load_library()


# --- Arrays ----------------------------------------------------------------------------------------------------------


def test_lists_integers_and_strided_arrays_are_arrays():
    np.testing.assert_array_equal(qv.array_add([1, 2], (3, 4)), [4, 6])
    np.testing.assert_array_equal(qv.array_negate(np.arange(10)[::2]), [0, -2, -4, -6, -8])
    np.testing.assert_array_equal(qv.transpose(np.arange(6.0).reshape(2, 3).T), np.arange(6).reshape(2, 3))
    np.testing.assert_array_equal(qv.array_negate(np.arange(3, dtype=">f8")), [0, -1, -2])


def test_functions_of_scalars_take_arrays_of_any_shape():
    x = np.linspace(-2, 2, 6).reshape(2, 3)
    found = qv.airy(x)
    assert type(found) is qv.AiryResult and found.ai.shape == found.bi.shape == (2, 3)
    assert found.bi[1, 2] == qv.airy(2.0).bi
    assert qv.beta([[1.0], [2.0]], [1, 2, 3]).shape == (2, 3)
    assert type(qv.airy([])) is qv.AiryResult and qv.airy(np.empty((0, 3))).ai.shape == (0, 3)
    assert qv.gamma([]).shape == (0,) and qv.gamma([], None).dtype == float
    np.testing.assert_array_equal(qv.gamma([3, 4], None), [2, 6])
    with pytest.raises(TypeError, match="a must be a real number, not str"):
        qv.gamma(["3"])
    with pytest.raises(ValueError):
        qv.beta([1.0, 2.0], [1.0, 2.0, 3.0])


def test_no_copy_of_what_fits():
    x = np.arange(8.0)
    assert rt.array(x, rt.F8, 1, "x") is x


def test_in_place_works_on_the_array_itself():
    x = np.ones(8)
    assert qv.window_hanning(x, out=x) is x
    np.testing.assert_allclose(x, qv.window_hanning(np.ones(8)))


def test_result_over_a_part_of_the_input_does_not_spoil_it():
    x = np.arange(8.0)
    wanted = qv.convolve(x[:5], [1.0, 1.0])
    qv.convolve(x[:5], [1.0, 1.0], out=x[:6])
    np.testing.assert_array_equal(x[:6], wanted)


def test_unwritten_elements_are_nan():
    roots = qv.poly_roots_real([2.0, -3.0, 1.0, 0.0])  # of degree 2, in spite of its four coefficients
    np.testing.assert_allclose(np.sort(roots[:2].real), [1, 2])
    assert np.isnan(roots[2])


def test_results_are_named_tuples_that_can_be_pickled():
    import pickle
    result = qv.power_spectrum(X)
    assert result._fields == ("power", "df")
    again = pickle.loads(pickle.dumps(result))
    assert type(again) is qv.PowerSpectrumResult and again.df == result.df


# --- Models ----------------------------------------------------------------------------------------------------------


def test_exception_of_a_model_comes_out():
    def model(x, c):
        raise KeyError("mine")
    with pytest.raises(KeyError, match="mine"):
        qv.fit_nonlinear([1.0, 2, 3], [1.0, 2, 3], model, [1.0])


def test_model_cannot_change_the_coefficients():
    def model(x, c):
        value = c[0] * x
        c[0] = 1e9
        return value
    fit = qv.fit_nonlinear([1.0, 2, 3], [2.0, 4, 6], model, [1.0])
    np.testing.assert_allclose(fit.coefficients, [2.0], rtol=1e-6)


def test_guess_stays():
    guess = np.array([1.0])
    qv.fit_nonlinear([1.0, 2, 3], [2.0, 4, 6], lambda x, c: c[0] * x, guess)
    assert guess[0] == 1.0


# --- Handles ---------------------------------------------------------------------------------------------------------


def test_plan_is_used_and_given_back():
    with qv.FftPlan(1000) as plan:
        np.testing.assert_array_equal(plan.fft(X), qv.fft(X))
        np.testing.assert_allclose(plan.irfft(plan.fft(X)), X, atol=1e-14)
        np.testing.assert_allclose(plan.ifft(plan.fft(X + 1j)), X + 1j, atol=1e-14)
    assert plan.closed
    plan.close()
    with pytest.raises(ValueError, match="closed"):
        plan.fft(X)


def test_filter_without_a_design_is_refused():
    lowpass = qv.IirFilter("lowpass", 4)
    assert not lowpass.designed and np.isnan(lowpass.a).all() and np.isnan(lowpass.b).all()
    for x in (X, X + 0j):
        with pytest.raises(ValueError, match="no design yet"):
            lowpass.apply(x)
    with pytest.raises(qv.QuorvanError):
        lowpass.butterworth(1000, 600)
    assert not lowpass.designed
    assert lowpass.butterworth(1000, 100).designed and np.isfinite(lowpass.apply(X)).all()
    assert np.isnan(qv.iir_cascade_apply(X, qv.iir_filter_create("lowpass", 4))).all()  # not what was in memory


def test_objects_tell_what_they_are():
    with qv.FftPlan(8) as plan, qv.IirFilter("bandpass", 3) as bandpass:
        assert repr(plan) == "FftPlan(8)"
        assert repr(bandpass) == "IirFilter(bandpass, order 3, not designed)"
        assert repr(bandpass.elliptic(1000, 100, 200, ripple=1, attenuation=40)) == "IirFilter(bandpass, order 3)"
    assert repr(plan) == "FftPlan(closed)" and repr(bandpass) == "IirFilter(closed)"


def test_object_that_cannot_be_made_raises():
    with pytest.raises(qv.QuorvanError) as caught:
        qv.FftPlan(0)
    assert caught.value.code is None


def test_plan_of_another_length_is_refused():
    with qv.FftPlan(8) as plan, pytest.raises(qv.QuorvanError) as caught:
        qv.real_fft(X, plan=plan)
    assert caught.value.code == -20070


def test_object_of_another_kind_is_refused():
    with qv.FftPlan(8) as plan:
        with pytest.raises(TypeError, match="wanted"):
            qv.memory_release(plan)  # a plan is more than one block
        assert not plan.closed
    with pytest.raises(TypeError, match="FftPlan"):
        qv.real_fft(X, plan=object())


def test_last_reference_gives_back(monkeypatch):
    given = []
    monkeypatch.setattr(qv.FftPlan, "_give_back", staticmethod(given.append))
    plan = qv.FftPlan(16)
    pointer = plan._pointer
    del plan
    gc.collect()
    assert given == [pointer]
    qv._functions.plans._ZemFunc261(pointer)


def test_release_functions_close():
    plan = qv.fft_plan_create(32)
    assert isinstance(plan, qv.FftPlan)
    qv.fft_plan_release(plan)
    assert plan.closed
    qv.fft_plan_release(plan)  # null by now, which is ignored


@pytest.mark.skipif(not hasattr(qv, "IirFilter"), reason="filter objects are planned")
class TestIirFilter:
    def test_blocks_equal_the_whole(self):
        with qv.IirFilter("highpass", 3).chebyshev(1000, 50, ripple=1.0) as blockwise, \
                qv.IirFilter("highpass", 3).chebyshev(1000, 50, ripple=1.0) as whole:
            parts = [blockwise.apply(part) for part in blocks(X, 1, 99, 400)]
            np.testing.assert_array_equal(np.concatenate(parts), whole.apply(X))

    def test_complex_data_has_delay_lines_of_its_own(self):
        with qv.IirFilter("lowpass", 2).butterworth(1000, 100) as lowpass:
            real = lowpass.apply(X)
            lowpass.reset()
            z = lowpass.apply(X + 2j * X)
            np.testing.assert_array_equal(z.real, real)

    def test_record_tells_kind_order_and_coefficients(self):
        with qv.IirFilter("bandpass", 3).elliptic(1000, 100, 200, ripple=1.0, attenuation=60.0) as bandpass:
            assert bandpass.kind is qv.FilterKind.BANDPASS and bandpass.order == 3
            a, b = bandpass.direct_form()
            assert len(a) == len(b) == bandpass.coefficient_count == 7 and a[0] == 1
            assert len(bandpass.a) == 8 and len(bandpass.b) == 10 and not bandpass.state.any()
            bandpass.apply(X)
            assert bandpass.state.any()

    def test_every_design(self):
        for design, more in (("even_pole", {}), ("butterworth", {}), ("bessel", {}), ("chebyshev", {"ripple": 1.0}),
                             ("inverse_chebyshev", {"attenuation": 60.0}),
                             ("elliptic", {"ripple": 1.0, "attenuation": 60.0})):
            with qv.IirFilter("lowpass", 4) as lowpass:
                assert getattr(lowpass, design)(1000, 100, **more) is lowpass
                assert np.isfinite(lowpass.a).all() and lowpass.b.any()

    def test_memory_release_closes_it(self):
        for release in (qv.memory_release, qv.iir_filter_release):
            lowpass = qv.IirFilter("lowpass", 2)
            release(lowpass)
            assert lowpass.closed

    def test_bad_arguments_raise(self):
        with pytest.raises(qv.QuorvanError):
            qv.IirFilter("lowpass", 0)
        with qv.IirFilter("lowpass", 2) as lowpass, pytest.raises(qv.QuorvanError) as caught:
            lowpass.butterworth(1000, 600)
        assert caught.value.code == -20023


@pytest.mark.skipif(not hasattr(qv, "FirNarrowband"), reason="narrowband filters are planned")
def test_narrowband_filter_designs_again_and_again():
    impulse = np.zeros(5)
    impulse[0] = 1
    with qv.FirNarrowband() as narrow:
        for edge in (20.0, 30.0):
            narrow.design(1000.0, edge, edge + 10, 0.01, 60.0, "lowpass")
            response = narrow.apply(impulse)
            assert len(response) == narrow.output_count(5)
            assert abs(response.sum() - 1) < 0.02  # the ripple allowed at frequency 0, of both stages
            np.testing.assert_array_equal(narrow.apply(impulse + 0j).real, response)


# --- Streams ---------------------------------------------------------------------------------------------------------


def test_decimator_blocks_equal_the_whole():
    for x in (X, X + 1j * X[::-1]):
        with qv.Decimator(7, average=True) as decimator:
            parts = [decimator.feed(part) for part in blocks(x, 3, 100, 400)]
        np.testing.assert_allclose(np.concatenate(parts), x[:994].reshape(142, 7).mean(1), atol=1e-14)


def test_runs_go_on_from_block_to_block():
    x = np.zeros(100)
    x[45:60] = 1
    with qv.ThresholdRuns(0.5, 10) as runs:
        found = [runs.feed(part) for part in blocks(x, 50)]
    assert [list(f) for f in found] == [[], [45]]


def test_peak_detector_blocks():
    t = np.arange(800)
    x = np.sin(2 * np.pi * t / 80)
    with qv.PeakDetector(0.5, 9) as detector:
        found = [detector.feed(part, last=k == 3).locations for k, part in enumerate(np.split(x, 4))]
    np.testing.assert_allclose(np.concatenate(found), qv.peak_detect(x, 0.5, 9).locations, atol=1e-9)


def test_level_crossing_goes_on():
    with qv.LevelCrossing(0.5, hysteresis=0.1) as crossing:
        assert crossing.feed([0.0, 0.2]) == (-1, False)
        assert crossing.feed([0.45, 0.6]) == (1, True)


@pytest.mark.parametrize("make", [lambda: qv.GammaNoise(3, seed=7), lambda: qv.PoissonNoise(4.0, seed=7),
                                  lambda: qv.BinomialNoise(10, 0.4, seed=7), lambda: qv.BernoulliNoise(0.4, seed=7),
                                  lambda: qv.HaltonSequence(3), lambda: qv.WeylSequence(0.3)])
def test_noise_goes_on(make):
    with make() as whole:
        wanted = whole.draw(100)
    with make() as parts:
        np.testing.assert_array_equal(np.concatenate([parts.draw(30), parts.draw(70)]), wanted)


def test_stream_does_not_mix_with_another_of_its_kind():
    first, second = qv.HaltonSequence(2), qv.HaltonSequence(3)
    first.draw(5)
    second.draw(5)
    with pytest.raises(RuntimeError, match="another HaltonSequence"):
        first.draw(5)
    second.draw(5)
    second.close()
    with pytest.raises(ValueError, match="ended"):
        second.draw(5)


def test_stream_stays_on_its_thread():
    stream = qv.HaltonSequence(2)
    stream.draw(5)
    seen = []

    def elsewhere():
        with pytest.raises(RuntimeError, match="thread"):
            stream.draw(5)
        seen.append(qv.HaltonSequence(2).draw(3))  # one of its own
    thread = threading.Thread(target=elsewhere)
    thread.start()
    thread.join()
    np.testing.assert_array_equal(seen[0], [0, 0.5, 0.25])
    stream.draw(5)


# --- Threads ---------------------------------------------------------------------------------------------------------


def test_calls_release_the_interpreter_lock():
    """While a long call runs, this thread goes on: it counts."""
    x = np.random.default_rng(1).standard_normal(20000)
    done = threading.Event()

    def work():
        for _ in range(3):
            qv.convolve(x, x, "direct")
        done.set()
    ticks = 0
    thread = threading.Thread(target=work)
    thread.start()
    while not done.is_set():
        time.sleep(0)
        ticks += 1
    thread.join()
    # with the lock held through a call, each call allows a handful of turns around it at most
    assert ticks > 100


def test_threads_get_the_same_results():
    wanted = qv.fft(X)
    wrong = []

    def work():
        for _ in range(50):
            if not np.array_equal(qv.fft(X), wanted):
                wrong.append(1)
    threads = [threading.Thread(target=work) for _ in range(4)]
    for thread in threads:
        thread.start()
    for thread in threads:
        thread.join()
    assert not wrong
