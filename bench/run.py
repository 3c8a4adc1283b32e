#!/usr/bin/python3
"""Times Quorvan beside FFTW, NumPy, SciPy and the standard library, prints ratios, and writes docs/benchmarks.md.

    cmake --preset bench && cmake --build --preset bench && bench/run.py

The C++ programs measure plain calls of the shared object; this script measures the same work through ctypes beside
NumPy and SciPy, and joins both by the names group/contender/size. Ratios are time of the rival over time of Quorvan:
above 1, Quorvan is faster.
"""

import argparse
import json
import math
import pathlib
import platform
import subprocess
import sys
from collections.abc import Callable
from dataclasses import dataclass, field

import rivals

ROOT = pathlib.Path(__file__).resolve().parent.parent
PROGRAMS = {"fft": "fft_bench", "arrays": "array_bench", "signals": "signal_bench", "random": "random_bench",
            "pulses": "pulse_bench", "tones": "tone_bench", "filters": "filter_bench", "fir": "fir_bench",
            "linalg": "linalg_bench", "eigen": "linalg_eigen_bench", "fits": "fit_bench", "special": "special_bench"}
COMMAND = "cmake --preset bench && cmake --build --preset bench && bench/run.py"
DIFFERENCE = 0.05  # a C++ time further than this from the time through ctypes does not stand for it


def progress(text):
    print(text, file=sys.stderr, flush=True)


class Plain:
    """Best seconds of the C++ programs, by (group, contender, size)."""

    def __init__(self):
        self.times, self.context, self.program_of = {}, {}, {}

    def run(self, program, effort):
        progress(f"== {program.name}")
        done = subprocess.run([program, "--benchmark_format=json", f"--benchmark_repetitions={effort.repetitions}",
                               f"--benchmark_min_time={effort.seconds}"], stdout=subprocess.PIPE, check=True)
        result = json.loads(done.stdout)
        self.context.update(result["context"])
        for entry in result["benchmarks"]:
            if entry["run_type"] != "iteration":
                continue
            assert entry["time_unit"] == "ns", entry
            key = tuple(entry["run_name"].split("/"))
            self.program_of[key[0]] = program.name
            self.times[key] = min(self.times.get(key, math.inf), entry["cpu_time"] * 1e-9)

    def get(self, group, contender, size):
        return self.times[group, contender, str(size)]

    def sizes(self, group):
        found = dict.fromkeys(size for g, _, size in self.times if g == group)
        return sorted(found, key=lambda size: [int(part) for part in size.split("x")])

    def groups(self, prefix):
        return list(dict.fromkeys(g for g, _, _ in self.times if g.startswith(prefix)))


def mean(ratios):
    ratios = list(ratios)
    return math.exp(sum(map(math.log, ratios)) / len(ratios)) if ratios else math.nan


def micro(seconds):
    value = seconds * 1e6
    return f"{value:.3f}" if value < 1000 else f"{value:.0f}"


class Report:
    """Tables and goals, as Markdown that is also legible as plain text."""

    def __init__(self):
        self.sections, self.goals = [], []

    def section(self, title, notes, header, rows, closing=()):
        widths = [max(len(str(row[i])) for row in [header, *rows]) for i in range(len(header))]
        def line(cells):
            return "| " + " | ".join(str(c).rjust(w) if i else str(c).ljust(w)
                                     for i, (c, w) in enumerate(zip(cells, widths))) + " |"
        rule = "|" + "|".join("-" * (w + 1) + (":" if i else "-") for i, w in enumerate(widths)) + "|"
        text = "\n".join([f"## {title}", "", notes, "", line(header), rule, *map(line, rows), ""])
        text += "".join(f"\n{sentence}\n" for sentence in closing)
        self.sections.append(text)
        progress("\n" + text)

    def goal(self, what, value, sign, bound):
        met = value >= bound if sign == ">=" else value <= bound
        self.goals.append((what, f"{value:.3f}", f"{sign} {bound:g}", "met" if met else "missed"))

    def goals_table(self):
        if not self.goals:
            return ""
        rows = ["## Goals", "", "| goal | reached | wanted | |", "|---|---:|---:|---|"]
        return "\n".join(rows + ["| " + " | ".join(goal) + " |" for goal in self.goals])


def fft_sections(plain, report):
    def row(group, n):
        t = {c: plain.get(group, c, n) for c in ("held", "estimate", "measure", "fresh", "planned")}
        return t, [n, micro(t["held"]), f"{t['estimate'] / t['held']:.2f}", f"{t['measure'] / t['held']:.2f}",
                   micro(t["fresh"]), f"{t['planned'] / t['fresh']:.2f}"]

    header = ["size", "held, us", "FFTW ESTIMATE", "FFTW MEASURE", "no plan, us", "FFTW plan per call"]
    notes = ("One thread, out of place, interleaved complex numbers. *Held*: a plan kept over all calls, as FFTW keeps "
             "its own. *No plan*: tables are built and freed in each call, beside FFTW planning by ESTIMATE, executing "
             "and destroying in each call.")
    sizes = plain.sizes("complex_fft")
    complex_times, rows = zip(*(row("complex_fft", n) for n in sizes))
    over = {rival: [t[rival] / t["held"] for t in complex_times] for rival in ("estimate", "measure")}
    report.section("Complex FFT beside FFTW", notes, header, rows,
                   [f"Geometric means: {mean(over['estimate']):.2f} of ESTIMATE, {mean(over['measure']):.2f} of "
                    "MEASURE."])
    report.goal("complex FFT, held plan, over FFTW ESTIMATE: geometric mean", mean(over["estimate"]), ">=", 1.0)
    report.goal("complex FFT, held plan, over FFTW ESTIMATE: least", min(over["estimate"]), ">=", 0.6)

    real_times, rows = zip(*(row("real_fft", n) for n in sizes))
    shares = [plain.get("real_beside_complex", "real", n) / plain.get("real_beside_complex", "complex", n)
              for n in sizes]
    even = [share for share, n in zip(shares, sizes) if int(n) % 2 == 0]
    over = {rival: [t[rival] / t["held"] for t in real_times] for rival in ("estimate", "measure")}
    report.section("Real FFT beside FFTW",
                   "Quorvan gives all bins, FFTW's r2c the first half. The last column is time of the real over time "
                   "of the complex transform of Quorvan, both by one plan into one array, repetitions interleaved.",
                   header + ["real / complex"], [r + [f"{s:.2f}"] for r, s in zip(rows, shares)],
                   [f"Geometric means: {mean(over['estimate']):.2f} of ESTIMATE, {mean(over['measure']):.2f} of "
                    f"MEASURE; real / complex at even sizes {mean(even):.2f}."])
    report.goal("real over complex FFT time, even sizes: geometric mean", mean(even), "<=", 0.65)
    report.goal("real over complex FFT time, even sizes: most", max(even), "<=", 0.65)

    rows, over = [], []
    for n in plain.sizes("prime_fft"):
        held, estimate, measure = (plain.get("prime_fft", c, n) for c in ("held", "estimate", "measure"))
        over.append(measure / held)
        rows.append([n, micro(held), f"{estimate / held:.2f}", f"{measure / held:.2f}"])
    report.section("Complex FFT of primes", "As above.", header[:4], rows,
                   [f"Geometric mean over MEASURE: {mean(over):.2f}."])
    report.goal("primes from 53 up, held plan, over FFTW MEASURE: geometric mean", mean(over), ">=", 2.0)
    report.goal("primes from 53 up, held plan, over FFTW MEASURE: least", min(over), ">=", 2.0)


class Comparison:
    """One case of rivals.py joined with its C++ time."""

    def __init__(self, case, plain, effort):
        self.group, self.size = case.group, case.size
        self.through, self.rival = rivals.measure(case, effort)
        self.plain = plain.get(case.group, case.contender, case.size)
        difference = abs(self.through - self.plain) / self.through
        self.basis = "C++" if difference < DIFFERENCE else "ctypes"
        self.ratio = self.rival / (self.plain if self.basis == "C++" else self.through)
        progress(f"  {case.group:20} {case.size:>14}  {self.ratio:6.2f} ({self.basis})")

    def cells(self):
        return [micro(self.plain), micro(self.through), micro(self.rival), f"{self.ratio:.2f}", self.basis,
                f"{self.rival / self.plain:.2f}"]


RATIO_HEADER = ["ratio", "from", "ratio of C++"]


def compare(cases, plain, effort):
    return [Comparison(case, plain, effort) for case in cases]


def closing(comparisons):
    return [f"Geometric mean of the ratios {mean(c.ratio for c in comparisons):.2f}, of the C++ times alone "
            f"{mean(c.rival / c.plain for c in comparisons):.2f}."]


def scipy_fft_section(library, plain, report, effort):
    found = compare(rivals.fft_cases(library), plain, effort)
    report.section("Complex FFT beside SciPy", "`scipy.fft.fft` (pocketfft); Quorvan with a held plan.",
                   ["size", "C++, us", "ctypes, us", "SciPy, us", *RATIO_HEADER],
                   [[c.size, *c.cells()] for c in found], closing(found))
    for what, bound, part in (("up to 4096", 3.0, [c for c in found if int(c.size) <= 4096]),
                              ("above 4096", 1.5, [c for c in found if int(c.size) > 4096])):
        report.goal(f"complex FFT over SciPy, {what}: geometric mean", mean(c.ratio for c in part), ">=", bound)
        report.goal(f"complex FFT over SciPy, {what}: least", min(c.ratio for c in part), ">=", bound)


def array_sections(library, plain, report, effort):
    found = compare(rivals.array_cases(library), plain, effort)
    # The least of several rounds: a disturbed one would leave nothing of a short loop.
    rounds = [rivals.measure(case, effort) for _ in range(3) for case in rivals.array_cases(library, (2,))]
    names = [case.group for case in rivals.array_cases(library, (2,))]
    empty = {group: min(times[1] for times in rounds[i::len(names)]) for i, group in enumerate(names)}
    net = {(c.group, c.size): max(c.rival - empty[c.group], 0.0) / c.plain for c in found}
    report.section(
        "Element-wise array operations beside NumPy",
        "The last column compares the loops alone: NumPy's time less its time for two elements, over the C++ time; the "
        "bare call of either language is in neither. NumPy needs two passes and more for `linear_eval` and `scale`; "
        "its `sum` adds in pairs, Quorvan's in index order, which is stated and bounds it by the latency of an "
        "addition. `maxmin` skips NaN and keeps the first index of both extremes; NumPy's `argmax` and `argmin` stop "
        "at a NaN.",
        ["operation", "elements", "C++, us", "ctypes, us", "NumPy, us", *RATIO_HEADER, "loop alone"],
        [[c.group.removeprefix("array_"), c.size, *c.cells(), f"{net[c.group, c.size]:.2f}"] for c in found],
        closing(found))
    first = [(c.group, net[c.group, c.size]) for c in found if c.size == str(rivals.ARRAY_SIZES[0])]
    ordered = ("array_sum",)  # bound by the stated order of additions
    report.goal("element-wise in the first-level cache over NumPy, loops alone, without sum: geometric mean",
                mean(ratio for group, ratio in first if group not in ordered), ">=", 1.0)
    report.goal("element-wise in the first-level cache over NumPy, loops alone, without sum: least",
                min(ratio for group, ratio in first if group not in ordered), ">=", 1.0)

    operation_bytes = {"add": 24, "multiply": 24, "scale": 24, "linear_eval": 16, "abs": 16, "sum": 8, "maxmin": 8}
    rows, shares = [], []
    for size in plain.sizes("array_copy"):
        copy = 16 * int(size) / min(plain.get("array_copy", c, size) for c in ("memcpy", "loop")) * 1e-9
        rows.append(["copy", size, f"{copy:.1f}", ""])
        for name, moved in operation_bytes.items():
            reached = moved * int(size) / plain.get(f"array_{name}", "quorvan", size) * 1e-9
            rows.append([name, size, f"{reached:.1f}", f"{reached / copy:.2f}"])
            if size == str(rivals.ARRAY_SIZES[-1]) and name != "sum":
                shares.append(reached / copy)
    report.section(
        "Array operations and the bandwidth of memory",
        "Counted are the bytes that an operation must read and write: 16 an element for a copy, 24 for an addition, 8 "
        "for a sum; `scale` reads its input twice. The copy is the faster of `memcpy` and a plain loop.",
        ["operation", "elements", "GB/s", "of a copy"], rows)
    report.goal("large arrays, share of the copy bandwidth, without sum: geometric mean", mean(shares), ">=", 0.9)
    report.goal("large arrays, share of the copy bandwidth, without sum: least", min(shares), ">=", 0.9)


def sort_section(library, plain, report, effort):
    found = compare(rivals.sort_cases(library), plain, effort)
    standard = [plain.get("sort", "std_sort", c.size) / c.plain for c in found]
    report.section("Sorting", "Uniform random values, ascending, with a copy of the data; short arrays take "
                   "turns from a pool, so that no order is learnt. `std::sort` is compared with "
                   "the C++ time.", ["elements", "C++, us", "ctypes, us", "NumPy, us", *RATIO_HEADER, "std::sort"],
                   [[c.size, *c.cells(), f"{s:.2f}"] for c, s in zip(found, standard)],
                   closing(found) + [f"Geometric mean over `std::sort`: {mean(standard):.2f}."])


def convolution_section(library, plain, report, effort):
    found = compare(rivals.convolution_cases(library), plain, effort)
    report.section("Convolution beside SciPy", "`ConvolveReal` by FFT, which builds and frees its plan in each call, "
                   "beside `scipy.signal.fftconvolve`. A long sequence and a short one meet in blocks.",
                   ["lengths", "C++, us", "ctypes, us", "SciPy, us", *RATIO_HEADER],
                   [[c.size, *c.cells()] for c in found], closing(found))


def window_section(library, plain, report, effort):
    found = compare(rivals.window_cases(library), plain, effort)
    report.section("Windows beside SciPy", "A copy of the data and the window on it; SciPy makes the window and NumPy "
                   "multiplies. Quorvan's cosine sums turn phasors from sample to sample, and each rotation waits for "
                   "the one before. The results of `parzen` are not compared: SciPy centres that window elsewhere.",
                   ["window", "elements", "C++, us", "ctypes, us", "SciPy, us", *RATIO_HEADER],
                   [[c.group.removeprefix("window_"), c.size, *c.cells()] for c in found], closing(found))


@dataclass
class RivalSection:
    """A table of cases of rivals.py that needs nothing of its own; wanted bounds of the ratios, where there are some."""
    program: str
    title: str
    notes: str
    cases: Callable
    rival: str
    prefix: str = ""
    least: float = None
    mean: float = None
    # Other contenders of the C++ program, by name, with the title of their column: time over time of Quorvan.
    others: dict = field(default_factory=dict)

    def add(self, library, plain, report, effort):
        found = compare(self.cases(library), plain, effort)
        rows = []
        for c in found:
            times = [plain.times.get((c.group, other, c.size)) for other in self.others]
            rows.append([c.group.removeprefix(self.prefix), c.size, *c.cells(),
                         *(f"{t / c.plain:.2f}" if t else "" for t in times)])
        report.section(self.title, self.notes,
                       ["case", "size", "C++, us", "ctypes, us", f"{self.rival}, us", *RATIO_HEADER,
                        *self.others.values()], rows, closing(found))
        ratios = [c.ratio for c in found]
        if self.mean:
            report.goal(f"{self.title}: geometric mean", mean(ratios), ">=", self.mean)
        if self.least:
            report.goal(f"{self.title}: least", min(ratios), ">=", self.least)


RIVAL_SECTIONS = (
    RivalSection("random", "Random numbers beside NumPy's legacy generator",
                 "Other numbers of the same distributions: their means are compared. *Plain C*: the stated recurrence "
                 "as anybody would write it.", lambda library: rivals.random_cases(library, "legacy"), "NumPy",
                 "random_", others={"plain": "plain C"}),
    RivalSection("random", "Random numbers beside NumPy's new generator", "As above.",
                 lambda library: rivals.random_cases(library, "new"), "NumPy", "random_"),
    RivalSection("pulses", "Peak detection beside SciPy",
                 "`PeakDetect` with windows of three on noise, where a third of the samples is a peak, beside "
                 "`scipy.signal.find_peaks`, which finds the samples and interpolates nothing.", rivals.peak_cases,
                 "SciPy"),
    RivalSection("filters", "Cascades of stages beside SciPy",
                 "A lowpass of the order before the sign, over so many samples, beside `scipy.signal.sosfilt`.",
                 rivals.cascade_cases, "SciPy", "cascade_", least=1.0, mean=2.0),
    RivalSection("linalg", "Matrices beside NumPy and the bare provider",
                 "The same LAPACK and BLAS, on one thread, behind all three. *Bare LAPACK*: the routine on copies made "
                 "by `memcpy`.", rivals.matrix_cases, "NumPy", "linalg_", least=1.0, others={"bare": "bare LAPACK"}),
    RivalSection("eigen", "Decompositions and eigenvalues beside NumPy and the bare provider", "As above.",
                 rivals.decomposition_cases, "NumPy", least=1.0, others={"lapack": "bare LAPACK"}),
    RivalSection("fir", "FIR and median filters, equiripple designs beside SciPy",
                 "`fir_direct` beside `lfilter`; `fir_window`, with its design in the call, beside `fftconvolve` with taps "
                 "made beforehand; `median` beside `medfilt`; `exchange` beside `remez`.", rivals.fir_cases, "SciPy",
                 least=2.0),
    RivalSection("fits", "Fits and splines beside NumPy and SciPy",
                 "Polynomials beside `numpy.polyfit`, designs beside `numpy.linalg.lstsq`, models beside "
                 "`scipy.optimize.curve_fit`, splines beside SciPy's `CubicSpline`.", rivals.fit_cases, "rival", "fit_",
                 least=1.0, mean=3.0),
)


def throughput_section(plain, report, program, title):
    rows = [[group, size, micro(seconds), f"{int(size) / seconds * 1e-6:.1f}"]
            for (group, contender, size), seconds in plain.times.items()
            if contender == "quorvan" and plain.program_of[group] == program]
    report.section(title, "Samples through a whole measurement.",
                   ["measurement", "samples", "C++, us", "million samples a second"], rows)


def special_section(library, plain, report, effort):
    rows, ratios, gsl_ratios = [], [], []
    for name, scipy_time in rivals.special_times(library, effort):
        group, size = f"special_{name}", str(rivals.SPECIAL_POINTS)
        own, gsl = plain.get(group, "quorvan", size), plain.times.get((group, "gsl", size))
        progress(f"  {group:20} {scipy_time / own:6.2f}")
        ratios.append(scipy_time / own)
        gsl_ratios += [gsl / own] if gsl else []
        rows.append([name, f"{own / int(size) * 1e9:.1f}", f"{scipy_time / own:.2f}",
                     f"{gsl / own:.2f}" if gsl else "not found"])
    report.goal("Special functions over SciPy: geometric mean", mean(ratios), ">=", 1.5)
    report.goal("Special functions over SciPy: least", min(ratios), ">=", 1.0)
    means = f"Geometric means: {mean(ratios):.2f} of SciPy"
    report.section("Special functions", f"{rivals.SPECIAL_POINTS} values spread over an interval; SciPy by one call on "
                   "the array, Quorvan and GSL by one call a value from C++.",
                   ["function", "C++, ns a value", "SciPy", "GSL"], rows,
                   [means + (f", {mean(gsl_ratios):.2f} of GSL." if gsl_ratios else ".")])


def processor():
    for line in pathlib.Path("/proc/cpuinfo").read_text().splitlines():
        if line.startswith("model name"):
            return line.split(":", 1)[1].strip()
    return platform.processor()


def document(plain, report, effort):
    context = plain.context
    caches = ", ".join(f"L{c['level']} {c['type'].lower()} {c['size'] // 1024} KiB" for c in context["caches"])
    versions = [f"GCC {context['compiler']}"]
    versions += [f"FFTW {context['fftw'].removeprefix('fftw-')}"] if "fftw" in context else []
    versions += [f"GSL {context['gsl']}"] if "gsl" in context else []
    versions += [f"NumPy {rivals.np.__version__}", f"SciPy {rivals.scipy.__version__}",
                 f"Python {platform.python_version()}"]
    head = f"""# Benchmarks

Made by

    {COMMAND}

on {processor()} at {context['mhz_per_cpu']} MHz with {context['num_cpus']} processors
({caches});
{', '.join(versions)}.

Each number is the best of {effort.repetitions} repetitions of at least {effort.seconds * 1e3:g} ms of processor time,
on one thread. **Ratios are time of the rival over time of Quorvan: above 1, Quorvan is faster.** Before a case is
timed, its result is checked against the rival's. Beside Python libraries two times of Quorvan are given: a call from
C++ (*C++*), and a call by ctypes on NumPy arrays made beforehand (*ctypes*). *Ratio* takes the C++ time where the
two differ by less than {DIFFERENCE:.0%}, and the time through ctypes otherwise; *from* says which. *Ratio of C++*
takes the C++ time always, and so sets a plain call beside one that went through Python.

{report.goals_table()}
"""
    return "\n".join([head, *report.sections]).rstrip() + "\n"


def main():
    sections = tuple(PROGRAMS)
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("--build", type=pathlib.Path, default=ROOT / "build" / "bench", help="where the build is")
    parser.add_argument("--only", choices=sections, action="append", help="this part only; writes nothing")
    parser.add_argument("--quick", action="store_true", help="few short repetitions; writes nothing")
    parser.add_argument("--output", type=pathlib.Path, default=ROOT / "docs" / "benchmarks.md")
    options = parser.parse_args()
    effort = rivals.Effort(3, 0.002) if options.quick else rivals.Effort()
    chosen = options.only or sections

    plain, report = Plain(), Report()
    for section in chosen:
        program = options.build / "bench" / PROGRAMS[section]
        if not program.exists():
            sys.exit(f"{program} is missing; build with: cmake --preset bench && cmake --build --preset bench")
        plain.run(program, effort)
    library = rivals.Library(options.build / "libquorvan.so")
    if "fft" in chosen:
        fft_sections(plain, report)
        scipy_fft_section(library, plain, report, effort)
    if "arrays" in chosen:
        array_sections(library, plain, report, effort)
        sort_section(library, plain, report, effort)
    if "signals" in chosen:
        convolution_section(library, plain, report, effort)
        window_section(library, plain, report, effort)
    for section in RIVAL_SECTIONS:
        if section.program in chosen:
            section.add(library, plain, report, effort)
    if "pulses" in chosen:
        throughput_section(plain, report, PROGRAMS["pulses"], "Pulse and peak measurements")
    if "tones" in chosen:
        throughput_section(plain, report, PROGRAMS["tones"], "Tone measurements")
    if "special" in chosen:
        special_section(library, plain, report, effort)

    text = document(plain, report, effort)
    print(text)
    if not options.only and not options.quick:
        options.output.parent.mkdir(parents=True, exist_ok=True)
        options.output.write_text(text)
        progress(f"written: {options.output}")


if __name__ == "__main__":
    main()
