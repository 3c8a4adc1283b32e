"""Calls every export with arguments that the table allows and nobody would choose, between pages that may not be touched.

    tests/exports/fuzz.py libquorvan.so [--rounds 40] [--seed 1] [--only 3,91]

Each array lies against an unreadable page, by turns at its end and at its beginning, and has exactly the elements that its
shape states: one element further, read or written, ends the process. Sizes, selections and values are small, odd, vast
or random bits. Beside the survival of the call itself, three things hold: an input is as it was, a size that needs more
than 32 bits gives -20046 and leaves all outputs as they were, and a status is one that the table tells.

The calls run in a process of their own, which tells each case before it calls; a case that ends it, or that takes longer
than twenty seconds, is named and the run goes on behind it.
"""

import argparse
import ctypes
import mmap
import pathlib
import resource
import select
import struct
import subprocess
import sys

import numpy as np

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[2] / "tools"))
import boundary  # noqa: E402
import library  # noqa: E402

PATIENCE = 20  # seconds for one call

ROOM = 1 << 20  # bytes of the largest array
MOST_PER_CALL = 1 << 22  # elements of all arrays together
OVERFLOW, TOO_FEW = -20046, -20003
LOOKS_FIRST = {58}  # refuses sizes below 1 before it asks whether they fit 32 bits
# Every export with a size may give these two without the table's saying so each time.
ALWAYS = {0, OVERFLOW}
ELEMENTS = {"double": 1, "complex": 1, "int32": 1, "uint32": 1, "int64": 1, "window": 2, "band": 4}
# Null only where it is not used: argument, when that is so.
UNUSED = {
    "vectors": lambda known: known.get("wantVectors", 0) == 0,
    "fixedOrders": lambda known: known["fixedCount"] <= 0,
    "fixedValues": lambda known: known["fixedCount"] <= 0,
}
# What the table says is undefined: operation, when it is so.
UNDEFINED = {"PeakThresholdRuns": lambda known: known["width"] == 0}
# Counts that ask for work of their own size.
TIMES = {"order", "limit"}
ODD_DOUBLES = [0.0, -0.0, 1.0, -1.0, 0.5, 2.0, 1e-300, -1e-300, 5e-324, 1e300, -1e300, np.inf, -np.inf, np.nan, 1e-8,
               1e8, 3.5, 100.0, 2.0**31, -2.0**31, 2.0**53, np.pi, 0.25, 1 - 2.0**-53, 1 + 2.0**-52]
ODD_SIZES = [0, -1, 1, 2, 3, -2**31, -2**63]
TOO_LARGE = [2**31, 2**32 + 5, -2**31 - 1, 2**63 - 1]


ENTRIES = {e.number: e for e in boundary.implemented(boundary.read_table())}


class Slots:
    """Rooms for arrays, each between two pages that may not be touched."""

    def __init__(self):
        self.libc = ctypes.CDLL(None, use_errno=True)
        self.page = mmap.PAGESIZE
        self.rooms = []
        self.used = 0

    def room(self):
        if self.used == len(self.rooms):
            memory = mmap.mmap(-1, ROOM + 2 * self.page)
            start = ctypes.addressof(ctypes.c_char.from_buffer(memory))
            for edge in (start, start + self.page + ROOM):
                if self.libc.mprotect(ctypes.c_void_p(edge), ctypes.c_size_t(self.page), 0):
                    raise OSError(ctypes.get_errno(), "mprotect")
            self.rooms.append(memory)
        self.used += 1
        return self.rooms[self.used - 1]

    def array(self, count, dtype, at_end):
        size = count * np.dtype(dtype).itemsize
        offset = self.page + (ROOM - size if at_end else 0)
        return np.frombuffer(self.room(), dtype, count, offset) if count else Nothing(self.room(), offset, dtype)


class Nothing(np.ndarray):
    """An array without elements whose address is that of a page's edge."""

    def __new__(cls, memory, offset, dtype):
        inside = min(offset, len(memory) - mmap.PAGESIZE - 16)
        return np.frombuffer(memory, dtype, 1, inside)[:0].view(cls)


class Case:
    """The arguments of one call, all drawn from the case's own number."""

    def __init__(self, export, number, slots, handles):
        self.export, self.slots, self.handles = export, slots, handles
        self.told = {code for code, _ in (ENTRIES[export.same] if export.same else export).statuses}
        self.random = np.random.default_rng([export.number, number])
        self.wild = self.random.random() < 0.35  # how far the values stray from what a user would give
        self.known, self.values = {}, {}

    def of(self, *choices):
        return choices[self.random.integers(len(choices))]

    def double(self):
        draw = self.random.random()
        if self.wild and draw < 0.15:
            return struct.unpack("d", self.random.bytes(8))[0]
        if draw < (0.5 if self.wild else 0.1):
            return float(self.of(*ODD_DOUBLES))
        return float(self.of(1, 1, 10, 100, 0.1) * self.random.standard_normal())

    def size(self):
        draw = self.random.random()
        if draw < 0.06:
            return int(self.of(*ODD_SIZES))
        if draw < 0.08:
            return int(self.of(*TOO_LARGE))
        return int(self.of(self.random.integers(1, 5), self.random.integers(1, 24), self.random.integers(1, 200)))

    def whole(self, argument):
        low, high = (-2**31, 2**31) if argument.type != "uint32" else (0, 2**32)
        if argument.name in TIMES:
            high = 2**9
        draw = self.random.random()
        if draw < 0.05:
            return int(self.random.integers(low, high))
        if draw < 0.1:
            return int(self.of(low, high - 1, 0, max(low, -1)))
        if draw < 0.3:
            return int(self.random.integers(0, 70))
        return int(self.random.integers(0, 6))

    def elements(self, argument, count):
        """The values of an array that is read."""
        dtype = library.DTYPES[argument.type]
        if dtype == np.float64 or dtype == np.complex128:
            doubles = count * (2 if dtype == np.complex128 else ELEMENTS[argument.type])
            values = self.of(1, 1, 1e-3, 1e3) * self.random.standard_normal(doubles)
            shape = self.random.random()
            if shape < 0.2:
                values = np.sort(values)
            elif shape < 0.3:
                values = np.rint(values)
            elif shape < 0.35:
                values[:] = values[:1]
            elif shape < 0.4:
                values[:] = 0
            if doubles and self.random.random() < (0.5 if self.wild else 0.05):
                for place in self.random.integers(0, doubles, 1 + doubles // 8):
                    values[place] = self.double()
            return values.view(dtype)
        if self.wild and self.random.random() < 0.3:
            return np.frombuffer(self.random.bytes(count * np.dtype(dtype).itemsize), dtype)
        return self.random.integers(0, self.of(2, 4, 24), count).astype(dtype)

    def scalars(self):
        for a in self.export.arguments:
            if a.shape is not None:
                continue
            if a.direction == "size":
                self.known[a.name] = self.values[a.name] = self.size()
            elif a.type in boundary.INTEGERS and a.direction in ("value", "in", "inout"):
                self.known[a.name] = self.whole(a)
            elif a.type in boundary.INTEGERS:
                self.known[a.name] = 0
            if a.direction == "value" and a.type in boundary.INTEGERS:
                self.values[a.name] = self.known[a.name]
            elif a.direction == "value" and a.type == "double":
                self.values[a.name] = self.double()
            elif a.direction == "value" and a.type == "complex":
                self.values[a.name] = complex(self.double(), self.double())

    def count(self, argument):
        """How many elements the table states; none where the sizes make no sense."""
        names = {"max": max, "min": min, **self.known}
        for name in argument.shape_names & set(self.known):
            if not -2**31 <= self.known[name] < 2**32:
                return 0
        try:
            return max(0, int(eval(argument.shape, names)))
        except ZeroDivisionError:
            return 0

    def arrays(self):
        """False if the case would need more room than there is."""
        total = 0
        for a in self.export.arguments:
            if a.type not in library.DTYPES or a.direction not in ("in", "out", "inout"):
                continue
            if a.shape == "":
                count = self.unstated(a)
            else:
                count = 1 if a.shape is None else self.count(a)
            count *= ELEMENTS[a.type]
            total += count
            if count * 16 > ROOM or total > MOST_PER_CALL:
                return False
            if a.nullable and UNUSED.get(a.name, lambda known: True)(self.known) and self.random.random() < 0.3:
                self.values[a.name] = None
                continue
            array = self.slots.array(count, library.DTYPES[a.type], self.random.random() < 0.7)
            if a.shape is None and a.type in boundary.INTEGERS:
                array[:] = self.known[a.name]
            else:
                array[:] = self.elements(a, count // ELEMENTS[a.type])
            self.values[a.name] = array
        return True

    def unstated(self, argument):
        """Rooms that the meaning tells: the output of a narrowband filter."""
        return ROOM // 16

    def objects(self):
        for a in self.export.arguments:
            if a.direction == "handle":
                self.values[a.name] = self.handles.fitting(a, self)
            elif a.type == "model":
                self.values[a.name] = MODELS[self.random.integers(len(MODELS))]
            elif a.type == "text":
                self.values[a.name] = library.text_buffer(self.of("V", "", "Pa", "m/s^2"), 10)
            elif a.direction == "alloc":
                self.values[a.name] = ctypes.pointer(ctypes.c_void_p())

    def drawn(self):
        self.scalars()
        if self.export.name in UNDEFINED and UNDEFINED[self.export.name](self.known):
            return False
        if not self.arrays():
            return False
        self.objects()
        return True


@library.SCALARS["model"]
def _decay(x, c, count):
    return c[0] * np.exp(-abs(c[count - 1]) * x) if count > 0 else x


@library.SCALARS["model"]
def _not_a_number(x, c, count):
    return np.nan


MODELS = [_decay, _decay, _decay, _not_a_number]


class Handles:
    """Objects of the library for the calls that want one."""

    def __init__(self, qv):
        self.qv = qv
        self.made = []

    def fitting(self, argument, case):
        qv = self.qv
        if argument.type == "block" or argument.nullable and case.random.random() < 0.3:
            return None
        if argument.type == "FftPlan":
            length = next((case.known[n] for n in ("fftSize", "n", "size") if n in case.known), 8)
            released = case.export.symbol == "ZemFunc261"
            plan = qv.ZemFunc260(length) if 0 < length < 2**20 else None
            return plan if released else self.kept(qv.ZemFunc261, plan)
        if argument.type == "FirNarrowband":
            filter = qv.ZemFunc491()
            if case.export.name != "FirNarrowbandDesign" and case.random.random() < 0.8:
                qv.ZemFunc409(*self.narrowband(case, filter))
            return filter if case.export.symbol == "ZemFunc492" else self.kept(qv.ZemFunc492, filter)
        kind, order = case.filter = getattr(case, "filter", (int(case.random.integers(4)), int(case.random.integers(1, 8))))
        if argument.type == "IirStateComplex":
            return self.kept(qv.ZemFunc470, qv.ZemFunc469(kind, order))
        filter = qv.ZemFunc233(kind, order)
        if case.random.random() < 0.8:
            edges = np.sort(case.random.uniform(1, 499, 2))
            qv.ZemFunc18(1000.0, *edges, filter)
        return self.kept(qv.ZemFunc238, filter)

    def narrowband(self, case, filter):
        return 1000.0, 100.0, 120.0, 0.0, 0.01, 60.0, 0, filter

    def kept(self, release, handle):
        if handle:
            self.made.append((release, handle))
        return handle

    def let_go(self):
        for release, handle in self.made:
            release(handle)
        self.made.clear()


def written(export):
    return [a for a in export.arguments if a.direction in ("out", "inout")]


def wrong(case, status, before):
    """What of the three laws the call broke, in words, or None."""
    export, values = case.export, case.values
    for a in export.arguments:
        if a.direction == "in" and isinstance(values.get(a.name), np.ndarray) and values[a.name].tobytes() != before[a.name]:
            return f"{a.name} is an input and has changed"
    if export.result != "status":
        return None
    too_large = any(not -2**31 <= values[a.name] < 2**31 for a in export.arguments if a.direction == "size")
    if export.number in LOOKS_FIRST and status == TOO_FEW:
        return None
    if too_large and status != OVERFLOW:
        return f"a size beyond 32 bits gave {status}"
    if too_large:
        for a in written(export):
            if isinstance(values[a.name], np.ndarray) and values[a.name].tobytes() != before[a.name]:
                return f"{a.name} has changed although a size is beyond 32 bits"
    if status not in ALWAYS | case.told:
        return f"gave {status}, which the table does not tell"
    return None


def run_case(qv, export, number, slots, handles):
    slots.used = 0
    case = Case(export, number, slots, handles)
    if not case.drawn():
        return None
    before = {name: v.tobytes() for name, v in case.values.items() if isinstance(v, np.ndarray)}
    result = getattr(qv, export.symbol)(*(case.values[a.name] for a in export.arguments))
    finding = wrong(case, result, before)
    for a in export.arguments:
        if a.direction == "alloc":
            qv.ZemFunc234(case.values[a.name].contents.value)
    release = {"handle FftPlan": qv.ZemFunc261, "handle FirNarrowband": qv.ZemFunc492}.get(export.result)
    if export.result.startswith("handle"):
        (release or qv.ZemFunc238)(result)
    handles.let_go()
    if finding is None:
        return None
    shown = {n: v if not isinstance(v, np.ndarray) else f"[{len(v)}]" for n, v in case.values.items()}
    return f"{finding}; {shown}"


def chosen(only):
    wanted = {int(n) for n in only.split(",")} if only else None
    return [e for e in ENTRIES.values() if wanted is None or e.number in wanted]


def work(options):
    """The calls; each is told before it is made."""
    np.seterr(all="ignore")
    if options.memory:
        resource.setrlimit(resource.RLIMIT_AS, (options.memory << 20, options.memory << 20))
    qv, slots = library.load(options.library), Slots()
    handles = Handles(qv)
    first = tuple(int(n) for n in options.after.split(".")) if options.after else (0, -1)
    for export in chosen(options.only):
        for number in range(options.seed * 1_000_000, options.seed * 1_000_000 + options.rounds):
            if (export.number, number) <= first:
                continue
            print(f"{export.number}.{number}", flush=True)
            finding = run_case(qv, export, number, slots, handles)
            if finding:
                print(f"! {finding}", flush=True)
    print("done", flush=True)


def watch(options):
    findings, given_up, calls, after = [], [], 0, ""
    while True:
        command = [sys.executable, __file__, options.library, "--work", "--rounds", str(options.rounds),
                   "--seed", str(options.seed), "--only", options.only, "--after", after, "--memory", str(options.memory)]
        worker = subprocess.Popen(command, stdout=subprocess.PIPE, bufsize=0)
        rest, last = b"", ""
        while True:
            if not select.select([worker.stdout], [], [], PATIENCE)[0]:
                worker.kill()
                given_up.append(last)
                break
            read = worker.stdout.read(65536)
            *lines, rest = (rest + read).split(b"\n")
            for line in lines:
                if line.startswith(b"!"):
                    findings.append(f"{last}: {line[2:].decode()}")
                else:
                    last = line.decode()
                    calls += 1
            if not read:
                break
        worker.stdout.close()
        if worker.wait() == 0 and last == "done":
            break
        if last in ("", "done"):
            findings.append(f"the worker ended with {worker.returncode} outside a call")
            break
        if last not in given_up[-1:]:
            findings.append(f"{last}: ended the process ({worker.returncode})")
        after = last
    for finding in findings[:200]:
        print("ZemFunc" + finding)
    if given_up:
        print("given up, of vast selections that ask for time:", *given_up)
    print(f"{calls - 1} calls of {len(chosen(options.only))} exports, {len(findings)} findings")
    return 1 if findings or calls < 2 else 0


def main():
    parser = argparse.ArgumentParser(description=__doc__.split("\n")[0])
    parser.add_argument("library")
    parser.add_argument("--rounds", type=int, default=40, help="calls of each export")
    parser.add_argument("--seed", type=int, default=1)
    parser.add_argument("--memory", type=int, default=3072,
                        help="MiB that the calls may take, 0 for any; a selection can ask for more than any machine has")
    parser.add_argument("--only", default="", help="numbers of exports, with commas between them")
    parser.add_argument("--work", action="store_true", help=argparse.SUPPRESS)
    parser.add_argument("--after", default="", help=argparse.SUPPRESS)
    options = parser.parse_args()
    return work(options) if options.work else watch(options)


if __name__ == "__main__":
    sys.exit(main())
