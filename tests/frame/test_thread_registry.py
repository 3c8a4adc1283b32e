"""Ends of threads and of the library: each case is a program of its own, since it unloads what it loaded."""

import subprocess
import sys
import textwrap

PRELUDE = """
    import _ctypes, ctypes, sys, threading
    path = sys.argv[1]
    library = ctypes.CDLL(path)
    def draw():
        out = (ctypes.c_double * 4)()
        function = library.ZemFunc182
        function.argtypes = [ctypes.c_int64, ctypes.c_int32, ctypes.c_void_p]
        assert function(4, 0, out) == 0
        return list(out)
    def loaded():
        return any(path in line for line in open("/proc/self/maps"))
"""


def run(qv, program):
    done = subprocess.run([sys.executable, "-c", textwrap.dedent(PRELUDE) + textwrap.dedent(program), qv._name],
                          capture_output=True, text=True, timeout=60)
    assert done.returncode == 0, (done.returncode, done.stderr)
    return done.stdout


def test_threads_may_outlive_the_library(qv):
    # A thread that the registry knows ends behind the unloading: its end must not call into what is gone.
    run(qv, """
        drawn, unloaded = threading.Barrier(5), threading.Event()
        def body():
            draw()
            drawn.wait()
            unloaded.wait()
        threads = [threading.Thread(target=body) for _ in range(4)]
        for thread in threads: thread.start()
        drawn.wait()
        draw()
        assert loaded()
        _ctypes.dlclose(library._handle)
        assert not loaded(), "the library is still there"
        unloaded.set()
        for thread in threads: thread.join()
    """)


def test_a_library_loaded_again_starts_anew(qv):
    run(qv, """
        first, second = draw(), draw()
        assert first != second
        _ctypes.dlclose(library._handle)
        assert not loaded()
        library = ctypes.CDLL(path)
        assert draw() == first
    """)


def test_a_process_may_end_with_its_threads_alive(qv):
    assert run(qv, """
        ready = threading.Event()
        def body():
            draw()
            ready.set()
            threading.Event().wait()
        threading.Thread(target=body, daemon=True).start()
        ready.wait()
        print("ended")
    """) == "ended\n"
