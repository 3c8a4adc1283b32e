"""Every function of the package is called: with the results that the table states, and with out= in all its forms."""

import copy
import inspect
import math

import numpy as np
import pytest

import arguments
import boundary
import python_choices as choices
import python_names
import quorvan as qv
from quorvan import _runtime as rt

MODELS = arguments.models()
ARRAYS = {name: f for name, f in MODELS.items() if f.arrays and not any(
    python_names.chosen(choices.FIRST, f.export, a) for a in f.export.arguments)}
# Functions with one array result and an input of its type and shape.
ALIKE = [name for name, f in ARRAYS.items() if len(f.arrays) == 1 and any(
    p.words == "array_like of {0}, {3} {4}".format(*f.arrays[0].words.split(" ", 4)) for p in f.parameters)]
# Each call goes on where the one before stopped, on this thread.
ENDLESS = {name for name in MODELS if name.endswith("_noise") and name != "periodic_random_noise"} | {
    "halton_sequence", "weyl_sequence"}


def called(function, **more):
    return getattr(qv, function.name)(**{**arguments.of(function, qv), **more})


def as_tuple(function, result):
    """The results in a row; a single one that is a named tuple itself (window properties) counts as one."""
    return (result,) if len(function.results) <= 1 else tuple(result)


def stated_size(function, argument, given):
    """The element count that the table states, from the arguments of the call and the shapes of its inputs."""
    known = {"max": max, "min": min}
    for a in function.export.arguments:
        name = next((p.name for p in function.parameters if p.argument is a), None)
        if name in given and a.shape is None and isinstance(given[name], (int, np.integer)):
            known[a.name] = int(given[name])
    for places_name, places in function.sizes.items():
        for array, dimension, _ in places:
            if given.get(array) is not None:
                known[places_name] = np.shape(given[array])[dimension]
    for p in function.parameters:  # defaults and selections by name
        if p.argument.name not in known and p.argument.type in boundary.INTEGERS and p.argument.shape is None:
            value = given.get(p.name, inspect.signature(getattr(qv, function.name)).parameters[p.name].default)
            if isinstance(value, str):
                value = {m.name.lower(): m.value for c in choices.SELECTIONS for m in getattr(qv, c)}[value]
            known[p.argument.name] = int(value)
    try:
        return int(eval(argument.shape.replace("/", "//"), known))
    except NameError:
        return None  # sizes that the package finds itself


@pytest.fixture
def guards(monkeypatch):
    """Zones on both sides of every array that the package makes for a result; nothing may be written there."""
    zones, plain = [], rt.fresh

    def fresh(shape, dtype):
        inner = plain(shape, dtype)
        whole = np.full(inner.nbytes + 2 * 64, 0xA5, np.uint8)
        zones.extend([whole[:64], whole[64 + inner.nbytes:]])
        guarded = whole[64:64 + inner.nbytes].view(dtype).reshape(inner.shape)
        guarded[...] = inner
        return guarded
    monkeypatch.setattr(rt, "fresh", fresh)
    yield
    assert all((zone == 0xA5).all() for zone in zones)


@pytest.mark.parametrize("name", MODELS)
def test_call_gives_what_the_table_states(name, guards):
    function = MODELS[name]
    given = arguments.of(function, qv)
    before = copy.deepcopy({k: v for k, v in given.items() if isinstance(v, np.ndarray)})
    result = getattr(qv, name)(**given)
    for key, value in before.items():
        np.testing.assert_array_equal(given[key], value, err_msg="an input changed")
    if function.export.result != "status":
        kinds = {"double": float, "text": str, "none": (type(None), tuple, float, complex)}
        wanted = kinds.get(function.export.result, qv.Handle)
        assert isinstance(result, wanted)
        return
    if not function.results:
        assert result is None
        return
    parts = as_tuple(function, result)
    assert len(parts) == len(function.results)
    stated = function.export.arguments
    for told, part in zip(function.results, parts):
        if "array" not in told.words:
            assert isinstance(part, {"float": float, "int": int, "bool": bool, "str": str, "complex": complex,
                                     "WindowProperties": qv.WindowProperties}[told.type])
            continue
        if part is None:
            assert told.type.endswith("None")
            continue
        assert part.dtype == np.dtype(told.words.split()[0])
        argument = next((a for a in stated if python_names.parameter_name(a.name) == told.name), None)
        table = (choices.SHAPES, choices.FIRST)
        if argument is None or any(python_names.chosen(t, function.export, argument) for t in table):
            continue
        size = stated_size(function, argument, given)
        assert size is None or part.size == size


@pytest.mark.parametrize("name", ARRAYS)
def test_out_takes_the_results(name):
    function = ARRAYS[name]
    first = as_tuple(function, called(function))
    if name in ENDLESS:
        first = as_tuple(function, called(function))
    places = [i for i, r in enumerate(function.results) if r.array]
    # what an operation leaves unwritten stays as it is: NaN, as in an array of the package's own
    outs = tuple(None if first[i] is None else np.full_like(first[i], np.nan if first[i].dtype.kind in "fc" else 0)
                 for i in places)
    second = as_tuple(function, called(function, out=outs if len(outs) > 1 else outs[0]))
    for i, out in zip(places, outs):
        if out is not None:
            assert second[i] is out
    for a, b in zip(first, second):
        np.testing.assert_array_equal(a, b)
    # strided arrays take the results too
    wide = tuple(None if out is None else np.zeros(out.shape + (2,), out.dtype)[..., 0] for out in outs)
    third = as_tuple(function, called(function, out=wide if len(wide) > 1 else wide[0]))
    for a, b in zip(first, third):
        np.testing.assert_array_equal(a, b)


@pytest.mark.parametrize("name", ALIKE)
def test_result_may_stand_over_any_input(name):
    function = ARRAYS[name]
    given = arguments.of(function, qv)
    plain = as_tuple(function, getattr(qv, name)(**given))
    place = next(i for i, r in enumerate(function.results) if r.array)
    tried = 0
    for key, value in given.items():
        if not isinstance(value, np.ndarray) or value.shape != plain[place].shape or value.dtype != plain[place].dtype:
            continue
        again = dict(given, **{key: value.copy()})
        # objects remember: each call has its own
        again.update({k: v for k, v in arguments.of(function, qv).items() if isinstance(v, qv.Handle)})
        over = as_tuple(function, getattr(qv, name)(**again, out=again[key]))
        assert over[place] is again[key]
        for a, b in zip(plain, over):
            np.testing.assert_array_equal(a, b)
        tried += 1
    assert tried


def test_every_number_of_the_table_that_is_implemented_has_a_name():
    implemented = boundary.implemented(boundary.read_table())
    assert sorted(f.export.number for f in MODELS.values()) == [e.number for e in implemented]
    assert all(callable(getattr(qv, name)) for name in MODELS)


def test_out_with_room_to_spare():
    x = np.sin(2 * np.pi * 0.0612 * np.arange(1000))
    room = tuple(np.full(5, 7.0) for _ in range(3))
    freq, amp, phase = qv.tone_multi(x, 5, threshold=0.5, out=room)
    assert len(freq) == len(amp) == len(phase) == 1
    assert freq.base is room[0] and math.isclose(freq[0], 0.0612, rel_tol=1e-6)
