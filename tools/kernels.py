#!/usr/bin/env python3
"""Writes the straight-line DFT kernels, one unit a size, into transforms/kernels.

    tools/kernels.py            writes dft_N.target.cpp for every kernel size, rows_N.target.cpp for every row length
    tools/kernels.py --check    fails if one of them would change

A kernel is built as a graph of real sums, differences and products with constants. Building it folds zeros, units and
signs and shares equal nodes; only what the wanted outputs need is written. Real input is the same algorithm with
imaginary parts of zero, and with the upper half of every spectrum taken as the conjugate of the lower one.

Algorithms: primes by the symmetric form (sums and differences of mirrored inputs, fused multiply-adds); coprime products by
the prime-factor map (Good, 1958); the rest by decimation in time (Cooley and Tukey, 1965).
"""

import pathlib
import sys
from decimal import Decimal, localcontext

ROOT = pathlib.Path(__file__).resolve().parent.parent
FOLDER = ROOT / "transforms" / "kernels"
SIZES = [2, 3, 4, 5, 7, 8, 9, 10, 11, 13, 14, 16, 17, 18, 19, 29, 31, 32, 37, 41, 43]
PI = Decimal("3.14159265358979323846264338327950288419716939937510")
ROW_LENGTHS = [12, 15, 20, 21, 24, 25, 27, 28, 30, 33, 35, 36, 39, 40, 45, 50]  # only the first pass over reals takes these
PRIME_FACTOR_MAPS = {
    10: (2, 5), 12: (3, 4), 14: (2, 7), 15: (3, 5), 18: (2, 9), 20: (4, 5), 21: (3, 7), 24: (3, 8), 28: (4, 7),
    30: (3, 10), 33: (3, 11), 35: (5, 7), 36: (4, 9), 39: (3, 13), 40: (5, 8), 45: (5, 9), 50: (2, 25),
}
TIME_DECIMATIONS = {4: (2, 2), 8: (2, 4), 9: (3, 3), 16: (4, 4), 25: (5, 5), 27: (3, 9), 32: (4, 8)}


class Graph:
    """Real-valued nodes, each made once: (operation, operands...)."""

    def __init__(self):
        self.nodes = {}
        self.order = []

    def node(self, *key):
        if key not in self.nodes:
            self.nodes[key] = len(self.order)
            self.order.append(key)
        return self.nodes[key]

    def zero(self):
        return self.node("zero")

    def input(self, part, k):
        return self.node("input", part, k)

    def kind(self, a):
        return self.order[a][0]

    def negate(self, a):
        if self.kind(a) == "zero":
            return a
        if self.kind(a) == "negate":
            return self.order[a][1]
        if self.kind(a) == "subtract":
            _, left, right = self.order[a]
            return self.node("subtract", right, left)
        return self.node("negate", a)

    def add(self, a, b):
        if self.kind(a) == "zero":
            return b
        if self.kind(b) == "zero":
            return a
        if self.kind(b) == "negate":
            return self.subtract(a, self.order[b][1])
        if self.kind(a) == "negate":
            return self.subtract(b, self.order[a][1])
        return self.node("add", a, b)

    def subtract(self, a, b):
        if self.kind(b) == "zero":
            return a
        if self.kind(a) == "zero":
            return self.negate(b)
        if self.kind(b) == "negate":
            return self.add(a, self.order[b][1])
        if a == b:
            return self.zero()
        if self.kind(a) == "negate":
            return self.negate(self.add(self.order[a][1], b))
        return self.node("subtract", a, b)

    def scale(self, factor, a):
        if factor == 0 or self.kind(a) == "zero":
            return self.zero()
        if factor < 0:
            return self.negate(self.scale(-factor, a))
        if factor == 1:
            return a
        if self.kind(a) == "negate":
            return self.negate(self.scale(factor, self.order[a][1]))
        return self.node("scale", factor, a)


def cosine_and_sine(angle):
    """Of an angle in [0, pi/4], rounded correctly: the Taylor series in decimals."""
    with localcontext() as context:
        context.prec = 45
        sums, term = [Decimal(1), angle], angle
        for k in range(2, 40):
            term *= angle / k
            sums[k % 2] += -term if k % 4 > 1 else term
        return float(sums[0]), float(sums[1])


def root_of_unity(k, n):
    """exp(-2 pi i k / n), with exact values on the axes and equal values where the octants mirror."""
    k %= n
    octant, swap = 8 * k, False
    re_sign, im_sign = 1, -1
    if octant > 4 * n:
        k, im_sign = n - k, 1
    if 4 * k > n:
        k2, re_sign = n - 2 * k, -1
    else:
        k2 = 2 * k
    # now the angle is pi * k2 / n in [0, pi/2]
    if 4 * k2 > n:
        k2, swap = Decimal(n) / 2 - k2, True
    c, s = cosine_and_sine(PI * k2 / n)
    if swap:
        c, s = s, c
    return re_sign * c, im_sign * s


class Builder:
    def __init__(self):
        self.g = Graph()

    def add(self, x, y):
        return self.g.add(x[0], y[0]), self.g.add(x[1], y[1])

    def subtract(self, x, y):
        return self.g.subtract(x[0], y[0]), self.g.subtract(x[1], y[1])

    def conjugate(self, x):
        return x[0], self.g.negate(x[1])

    def times(self, x, c, s):
        """x (c + i s)."""
        g = self.g
        if c != 0 and abs(abs(c) - abs(s)) < 1e-15:  # an odd multiple of an eighth of a turn: one sum, one product
            re = g.subtract(x[0], x[1]) if c * s > 0 else g.add(x[0], x[1])
            im = g.add(x[0], x[1]) if c * s > 0 else g.subtract(x[1], x[0])
            return g.scale(c, re), g.scale(c, im)
        return (
            g.subtract(g.scale(c, x[0]), g.scale(s, x[1])),
            g.add(g.scale(c, x[1]), g.scale(s, x[0])),
        )

    def is_real(self, x):
        return all(self.g.kind(v[1]) == "zero" for v in x)

    def dft(self, x):
        n = len(x)
        if n == 1:
            return list(x)
        if n == 2:
            return [self.add(x[0], x[1]), self.subtract(x[0], x[1])]
        if n in PRIME_FACTOR_MAPS:
            out = self.prime_factor(x, *PRIME_FACTOR_MAPS[n])
        elif n in TIME_DECIMATIONS:
            out = self.decimate(x, *TIME_DECIMATIONS[n])
        else:
            out = self.symmetric(x)
        if self.is_real(x):
            for k in range(1, (n + 1) // 2):
                out[n - k] = self.conjugate(out[k])
        return out

    def symmetric(self, x):
        n, g = len(x), self.g
        half = range(1, n // 2 + 1)
        sums = {j: self.add(x[j], x[n - j]) for j in half}
        differences = {j: self.subtract(x[j], x[n - j]) for j in half}
        out = [None] * n
        total = x[0]
        for j in half:
            total = self.add(total, sums[j])
        out[0] = total
        for k in half:
            even, odd = x[0], None
            for j in half:
                c, s = root_of_unity(j * k, n)
                even = self.add(even, (g.scale(c, sums[j][0]), g.scale(c, sums[j][1])))
                term = (g.scale(-s, differences[j][0]), g.scale(-s, differences[j][1]))
                odd = term if odd is None else self.add(odd, term)
            out[k] = g.add(even[0], odd[1]), g.subtract(even[1], odd[0])
            out[n - k] = g.subtract(even[0], odd[1]), g.add(even[1], odd[0])
        return out

    def prime_factor(self, x, a, b):
        n = a * b
        rows = [self.dft([x[(b * i + a * j) % n] for j in range(b)]) for i in range(a)]
        out = [None] * n
        for l in range(b):
            column = self.dft([rows[i][l] for i in range(a)])
            for k in range(a):
                # index that is k modulo a and l modulo b
                out[(k * b * pow(b, -1, a) + l * a * pow(a, -1, b)) % n] = column[k]
        return out

    def decimate(self, x, a, b):
        n = a * b
        blocks = [self.dft(x[t::a]) for t in range(a)]
        out = [None] * n
        columns = range(b // 2 + 1) if self.is_real(x) else range(b)
        for k in columns:
            column = self.dft([self.times(blocks[t][k], *root_of_unity(t * k, n)) for t in range(a)])
            for q in range(a):
                out[k + b * q] = column[q]
                if len(columns) < b:
                    out[(n - k - b * q) % n] = self.conjugate(column[q])
        return out

    def middle(self, x):
        """Z[k] = sum of x[t] exp(-i pi t (2k + 1) / n) of real x, for k below (n + 1) / 2."""
        n = len(x)
        if n % 2:
            signed = [(self.g.scale(-1 if t % 2 else 1, v[0]), v[1]) for t, v in enumerate(x)]
            spectrum = self.dft(signed)
            return [self.conjugate(spectrum[(n - 1) // 2 - k]) for k in range((n + 1) // 2)]
        h = n // 2
        folded = [self.times((x[t][0], self.g.negate(x[t + h][0])), *root_of_unity(t, 2 * n)) for t in range(h)]
        even = self.dft(folded)
        return [even[k // 2] if k % 2 == 0 else self.conjugate(even[(n - 1 - k) // 2]) for k in range(h)]


class Writer:
    """Turns the nodes that the outputs need into statements, in the order in which they were made."""

    def __init__(self, graph, outputs, real):
        self.g, self.outputs, self.real = graph, outputs, real
        self.uses = {}
        for parts in outputs.values():
            for a in parts:
                if a is not None:
                    self.count(a)
        self.lines, self.names, self.loaded = [], {}, set()

    def operands(self, a):
        key = self.g.order[a]
        return {"add": key[1:], "subtract": key[1:], "negate": key[1:], "scale": key[2:]}.get(key[0], ())

    def count(self, a):
        self.uses[a] = self.uses.get(a, 0) + 1
        if self.uses[a] == 1:
            for b in self.operands(a):
                self.count(b)

    def load(self, k):
        if k in self.loaded:
            return
        self.loaded.add(k)
        self.lines.append(f"const V x{k} = in({k});" if self.real else f"V r{k}, i{k};\nin({k}, r{k}, i{k});")

    def text(self, a, level=0):
        """The expression of a node: its name, or what it stands for where it is used once."""
        if a in self.names:
            return self.names[a]
        key = self.g.order[a]
        if key[0] == "zero":
            return "V{}"
        if key[0] == "input":
            return f"x{key[2]}" if self.real else f"{'ri'[key[1]]}{key[2]}"
        if key[0] == "negate":
            return f"-{self.text(key[1], 3)}"
        if key[0] == "scale":
            return self.wrap(f"{key[1]!r} * {self.text(key[2], 3)}", 2, level)
        sign = "+" if key[0] == "add" else "-"
        return self.wrap(f"{self.text(key[1], 1)} {sign} {self.text(key[2], 2)}", 1, level)

    @staticmethod
    def wrap(text, precedence, level):
        return f"({text})" if precedence < level else text

    def write(self):
        pending = dict(self.outputs)
        reached = set()
        for a, key in enumerate(self.g.order):
            if a not in self.uses:
                continue
            if key[0] == "input":
                self.load(key[2])
            elif key[0] != "zero" and (self.uses[a] > 1 or any(a in parts for parts in pending.values())):
                self.lines.append(f"const V t{a} = {self.text(a)};")
                self.names[a] = f"t{a}"
            reached.add(a)
            for k in [k for k, parts in pending.items() if all(p is None or p in reached for p in parts)]:
                parts = [self.text(p) for p in pending.pop(k) if p is not None]
                self.lines.append(f"out({k}, {', '.join(parts)});" if not self.real or len(parts) > 1
                                  else f"out({k}, {parts[0]}, V{{}});")
        assert not pending
        return "\n".join(self.lines)


def complex_core(n):
    b = Builder()
    out = b.dft([(b.g.input(0, k), b.g.input(1, k)) for k in range(n)])
    return Writer(b.g, dict(enumerate(out)), real=False).write()


def real_core(n):
    b = Builder()
    out = b.dft([(b.g.input(0, k), b.g.zero()) for k in range(n)])
    return Writer(b.g, {k: out[k] for k in range(n // 2 + 1)}, real=True).write()


def middle_core(n):
    b = Builder()
    out = b.middle([(b.g.input(0, k), b.g.zero()) for k in range(n)])
    return Writer(b.g, dict(enumerate(out)), real=True).write()


def indent(text):
    return "".join(f"        {line}\n" for line in text.splitlines())


def real_function(n):
    return f"""    // Real input, outputs 0 to {n // 2}.
    template <class V, class In, class Out>
    QV_INLINE static void Real(const FftStage&, const In& in, const Out& out) {{
{indent(real_core(n))}    }}
"""


def unit(n):
    return f"""// The DFT of {n} points. Generated by tools/kernels.py; do not edit.
// clang-format off
#include "transforms/kernels/entries.h"

namespace quorvan::QV_TARGET {{
namespace {{

struct Dft{n} {{
    static constexpr int kSize = {n};

    // Each in(k, re, im) loads an input and each out(k, re, im) takes an output, once.
    template <class V, class In, class Out>
    QV_INLINE static void Complex(const FftStage&, const In& in, const Out& out) {{
{indent(complex_core(n))}    }}

{real_function(n)}
    // Real input, outputs half a bin further up, 0 to {(n + 1) // 2 - 1}.
    template <class V, class In, class Out>
    QV_INLINE static void Middle(const FftStage&, const In& in, const Out& out) {{
{indent(middle_core(n))}    }}
}};

}}  // namespace

extern const FftKernel kDft{n};
const FftKernel kDft{n} = kEntries<Dft{n}>;

}}  // namespace quorvan::QV_TARGET
"""


def row_unit(n):
    return f"""// The DFT of {n} reals. Generated by tools/kernels.py; do not edit.
// clang-format off
#include "transforms/kernels/rows.h"

namespace quorvan::QV_TARGET {{
namespace {{

struct Dft{n} {{
    static constexpr int kSize = {n};

{real_function(n)}}};

}}  // namespace

extern const SpectrumRowsKernel kRows{n};
const SpectrumRowsKernel kRows{n} = SpectrumRows<Dft{n}>;

}}  // namespace quorvan::QV_TARGET
"""


def main():
    check = sys.argv[1:] == ["--check"]
    if sys.argv[1:] and not check:
        raise SystemExit(__doc__)
    units = {f"dft_{n}": unit(n) for n in SIZES} | {f"rows_{n}": row_unit(n) for n in ROW_LENGTHS}
    stale = []
    for name, text in units.items():
        path = FOLDER / f"{name}.target.cpp"
        if not path.exists() or path.read_text() != text:
            stale.append(path.name)
            if not check:
                path.write_text(text)
    if check and stale:
        raise SystemExit("out of date, run tools/kernels.py: " + ", ".join(stale))


if __name__ == "__main__":
    main()
