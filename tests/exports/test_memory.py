"""The memory release of the shared object."""

import ctypes


def test_release_has_one_address_under_three_numbers(qv):
    addresses = {ctypes.cast(f, ctypes.c_void_p).value for f in (qv.ZemFunc234, qv.ZemFunc238, qv.ZemFunc470)}
    assert len(addresses) == 1


def test_release_ignores_a_null_pointer(qv):
    assert qv.ZemFunc234(None) is None
