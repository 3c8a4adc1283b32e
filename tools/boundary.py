#!/usr/bin/env python3
"""Derives everything that repeats the library's boundary from exports/table.

    tools/boundary.py            writes the generated files
    tools/boundary.py --check    fails if one of them would change

The table is one text file for each family. Its grammar, line by line:

    family NAME                      once, first; the file's name
    title  TEXT                      once
    intro  TEXT                      any number: what the family is for, its conventions; without a text: a new paragraph
    formula TEXT                     any number, between intros: a line that is shown as it stands, as formulas are

    NUMBER NAME [= OPERATION] [-> RESULT] [planned]
                                     an export; NAME is unique, OPERATION is told where several exports share one;
                                     RESULT is status (default), double, text, none or handle TYPE;
                                     planned: not implemented yet
    NUMBER NAME same NUMBER          a second name for the entry of another number
      in    TYPE NAME[SHAPE] [null]  an array that is read; null: the pointer may be null
      out   TYPE NAME[SHAPE] [null]  an array that is written
      inout TYPE NAME[SHAPE] [null]  an array that is read and written, or written when the output is null
      alloc TYPE NAME[SHAPE]         the address of a pointer that is set to an array that the library allocates
      in|out|inout TYPE NAME [null]  a scalar by address
      value TYPE NAME                a scalar by value, or a model function
      size  NAME                     an int64 by value that must fit 32 bits: an element count, an index, a factor
      handle TYPE NAME [null]        an object that the library made and takes back
      ... -- TEXT                    behind any argument: its meaning and unit
      > SENTENCE                     documentation
      ! CODE SENTENCE                a status and when it is given
      ? CODE LINE                    an example

TYPE is one of double, complex, int32, uint32, int64, text, window (properties), band (of a filter), model (function),
or a handle's name: TYPE Name is the record QvName of quorvan/types.h, `block` is any block that the library allocated.
SHAPE is an integer expression over the integer arguments of the same export, by value or by address, in Python's
notation: + - * / % == > min max and "a if condition else b"; the quotient truncates. Empty: the meaning tells the room.
"""

import ast
import pathlib
import re
import sys
from dataclasses import dataclass, field

ROOT = pathlib.Path(__file__).resolve().parent.parent
TABLE = ROOT / "exports" / "table"
ALL_NUMBERS = [n for n in range(1, 494) if n not in (199, 244)]
# Once each of these has its file, all of the numbers must be listed.
FAMILIES = set("""
    status arrays complex memory plans transforms convolution time_domain random generators windows
    spectrum peaks pulses tones pulse_parameters statistics distributions variance_analysis bessel gamma elliptic
    filter_objects iir_design fir_windows fir_equiripple fir_narrowband direct_filters
    polynomial_roots polynomial_zeros integration linear_fits nonlinear_fit model_fits interpolation fit_bounds
    matrices decompositions eigenproblems multiple_roots
""".split())

C_TYPES = {
    "double": "double",
    "complex": "QvComplex",
    "int32": "int32_t",
    "uint32": "uint32_t",
    "int64": "int64_t",
    "text": "char",
    "window": "QvWindowProperties",
    "model": "QvModel",
    "band": "QvBand",
}
INTEGERS = ("int32", "uint32", "int64")
DIRECTIONS = ("in", "out", "inout", "alloc", "value", "size", "handle")
# What a shape may be made of.
SHAPE_NODES = (ast.Expression, ast.BinOp, ast.Add, ast.Sub, ast.Mult, ast.Div, ast.Mod, ast.IfExp, ast.Compare, ast.Eq,
               ast.Gt, ast.Call, ast.Name, ast.Load, ast.Constant)


@dataclass
class Argument:
    direction: str
    type: str
    name: str
    shape: str | None
    nullable: bool
    meaning: str = ""

    @property
    def c(self):
        if self.direction == "size":
            return f"int64_t {self.name}"
        if self.direction == "handle":
            return f"{handle_type(self.type)}* {self.name}"
        base = C_TYPES.get(self.type) or handle_type(self.type)
        if self.direction == "value":
            return f"{base} {self.name}"
        if self.direction == "in":
            return f"const {base}* {self.name}"
        if self.direction == "alloc":
            return f"{base}** {self.name}"
        return f"{base}* {self.name}"

    @property
    def shape_names(self):
        """The arguments that the shape is an expression of."""
        tree = ast.parse(self.shape, mode="eval")
        for node in ast.walk(tree):
            if not isinstance(node, SHAPE_NODES):
                raise TableError(f"not a shape: {self.shape}")
        return {node.id for node in ast.walk(tree) if isinstance(node, ast.Name)} - {"min", "max"}

    @property
    def doc(self):
        """Direction and shape, in the words of the reference."""
        if self.direction in ("value", "size"):
            return self.meaning
        words = {"in": "read", "out": "written", "inout": "read and written", "handle": "handle",
                 "alloc": "set to an array of the library, null when it is empty"}[self.direction]
        if self.shape is not None:
            words += f", [{self.shape}]"
        words += ", may be null" if self.nullable else ""
        return f"{words}: {self.meaning}" if self.meaning else words


@dataclass
class Export:
    number: int
    name: str
    operation: str
    result: str
    planned: bool
    family: str
    same: int | None = None
    arguments: list = field(default_factory=list)
    sentences: list = field(default_factory=list)
    statuses: list = field(default_factory=list)
    examples: list = field(default_factory=list)

    @property
    def symbol(self):
        return f"ZemFunc{self.number}"

    @property
    def c_result(self):
        if self.result.startswith("handle "):
            return handle_type(self.result.split()[1]) + "*"
        return {"status": "QvStatus", "double": "double", "text": "const char*", "none": "void"}[self.result]

    @property
    def prototype(self):
        return f"{self.c_result} {self.symbol}({', '.join(a.c for a in self.arguments) or 'void'})"


@dataclass
class Family:
    name: str
    title: str = ""
    intro: list = field(default_factory=list)  # pairs of the table's word and its text
    exports: list = field(default_factory=list)

    @property
    def blocks(self):
        """The introduction as paragraphs and formulas: pairs of the word and its lines."""
        found, last = [], None
        for word, text in self.intro:
            if not text:
                last = None
                continue
            if word != last:
                found.append((word, []))
            found[-1][1].append(text)
            last = word
        return found


def handle_type(name):
    return "void" if name == "block" else f"Qv{name}"


class TableError(Exception):
    pass


def parse_argument(line):
    line, _, meaning = (part.strip() for part in line.partition(" -- "))
    match = re.fullmatch(r"(\w+)\s+(?:(\w+)\s+)?(\w+)(?:\[(.*?)\])?(\s+null)?", line)
    if not match or match[1] not in DIRECTIONS:
        raise TableError(f"not an argument: {line}")
    direction, kind, name, shape, null = match.groups()
    if (kind is None) != (direction == "size"):
        raise TableError(f"type missing or not wanted: {line}")
    return Argument(direction, kind or "int64", name, shape, bool(null), meaning)


def parse_family(path):
    family, export = Family(path.name), None
    for number, raw in enumerate(path.read_text().splitlines(), 1):
        line = raw.strip()
        try:
            if not line or line.startswith("#"):
                continue
            word, _, rest = line.partition(" ")
            rest = rest.strip()
            if word == "family":
                if rest != path.name:
                    raise TableError("the family is not the file's name")
            elif word == "title":
                family.title = rest
            elif word in ("intro", "formula"):
                family.intro.append((word, rest))
            elif word.isdigit():
                match = re.fullmatch(r"(\w+)(?: same (\d+))?(?: = (\w+))?(?: -> ([\w ]+?))?( planned)?", rest)
                if not match:
                    raise TableError(f"not an export: {line}")
                name, same, operation, result, planned = match.groups()
                export = Export(int(word), name, operation or name, result or "status", bool(planned), path.name,
                                int(same) if same else None)
                family.exports.append(export)
            elif word == ">":
                export.sentences.append(rest)
            elif word == "!":
                code, _, text = rest.partition(" ")
                export.statuses.append((int(code), text.strip()))
            elif word == "?":
                export.examples.append(rest)
            else:
                export.arguments.append(parse_argument(line))
        except (TableError, AttributeError, ValueError) as error:
            raise SystemExit(f"exports/table/{path.name}:{number}: {error}")
    return family


def check_shapes(export):
    """Every shape is made of integer arguments of its own export."""
    integers = {a.name for a in export.arguments if a.type in INTEGERS and a.shape is None}
    for argument in export.arguments:
        if not argument.shape:
            continue
        try:
            unknown = argument.shape_names - integers
        except SyntaxError:
            raise SystemExit(f"{export.symbol}: {argument.name}[{argument.shape}] is not an expression") from None
        except TableError as error:
            raise SystemExit(f"{export.symbol}: {error}") from None
        if unknown:
            raise SystemExit(f"{export.symbol}: {argument.name}[{argument.shape}] speaks of {', '.join(sorted(unknown))}")


def unlisted(families):
    """The numbers that no family lists yet."""
    listed = {e.number for f in families for e in f.exports}
    return [n for n in ALL_NUMBERS if n not in listed]


def read_table():
    """All families in the order of their files, checked as a whole."""
    families = [parse_family(path) for path in sorted(TABLE.iterdir())]
    exports = {}
    names = set()
    for family in families:
        for export in family.exports:
            if export.number in exports or export.number not in ALL_NUMBERS:
                raise SystemExit(f"{export.symbol}: listed twice or not one of the numbers")
            if export.name in names:
                raise SystemExit(f"{export.name}: the name is taken")
            exports[export.number] = export
            names.add(export.name)
    missing = unlisted(families)
    if missing and {f.name for f in families} >= FAMILIES:
        raise SystemExit(f"all families are there, but not these numbers: {missing}")
    for export in exports.values():
        check_shapes(export)
        if export.same is not None:
            entry = exports[export.same]
            export.arguments, export.result, export.planned = entry.arguments, entry.result, entry.planned
            if not export.sentences:
                export.sentences = [f"The same entry as {entry.symbol}."]
        if not export.planned and not export.sentences:
            raise SystemExit(f"{export.symbol}: implemented, but not documented")
    return families


def implemented(families):
    return sorted((e for f in families for e in f.exports if not e.planned), key=lambda e: e.number)


def comment(export):
    lines = [f"{export.name}" + (f" ({export.operation})" if export.operation != export.name else "") + "."]
    lines += export.sentences
    for argument in export.arguments:
        if argument.doc:
            lines.append(f"@param {argument.name} {argument.doc}")
    for code, text in export.statuses:
        lines.append(f"@retval {code} {text}")
    if export.examples:
        lines += ["@code", *export.examples, "@endcode"]
    return "/**\n" + "".join(f" * {line}\n" for line in lines) + " */\n"


def header(families):
    out = ["""/* Quorvan: all exported functions. Generated from exports/table by tools/boundary.py; do not edit.
 *
 * Each function has its number, which programs bind, and a readable name: Qv followed by the operation.
 * Sizes are signed 64-bit and must fit 32 bits (else -20046, and nothing is touched); one below the minimum gives
 * -20003 unless the function says otherwise. Null pointers are not detected where a parameter does not allow them.
 */
#ifndef QUORVAN_H
#define QUORVAN_H

#include "quorvan/types.h"

#ifdef __cplusplus
extern "C" {
#endif
"""]
    for family in families:
        ready = [e for e in family.exports if not e.planned]
        if not ready:
            continue
        out.append(f"/** @defgroup {family.name} {family.title}")
        for i, (word, lines) in enumerate(family.blocks):
            out += [" *"] * (i > 0) + [f" * {'    ' * (word == 'formula')}{line}" for line in lines]
        out.append(" * @{\n */\n")
        for export in ready:
            out.append(comment(export) + f"QV_API {export.prototype};")
            out.append(f"#define Qv{export.name} {export.symbol}\n")
        out.append("/** @} */\n")
    out.append("""#ifdef __cplusplus
}
#endif

#endif /* QUORVAN_H */
""")
    return "\n".join(out)


def version_script(families):
    names = "".join(f"        {e.symbol};\n" for e in implemented(families))
    return f"/* Generated from exports/table by tools/boundary.py; do not edit. */\n{{\n    global:\n{names}    local:\n        *;\n}};\n"


def module_definition(families):
    names = "".join(f"    {e.symbol}\n" for e in implemented(families))
    return f"; Generated from exports/table by tools/boundary.py; do not edit.\nLIBRARY quorvan.dll\nEXPORTS\n{names}"


def outputs(families):
    return {
        ROOT / "include" / "quorvan" / "quorvan.h": header(families),
        ROOT / "exports" / "quorvan.map": version_script(families),
        ROOT / "exports" / "quorvan.def": module_definition(families),
    }


def main():
    check = sys.argv[1:] == ["--check"]
    if sys.argv[1:] and not check:
        raise SystemExit(__doc__)
    families = read_table()
    if unlisted(families):
        print(f"not listed yet: {unlisted(families)}")
    stale = []
    for path, text in outputs(families).items():
        if path.exists() and path.read_text() == text:
            continue
        stale.append(path.relative_to(ROOT))
        if not check:
            path.write_text(text)
    if check and stale:
        raise SystemExit("out of date, run tools/boundary.py: " + ", ".join(map(str, stale)))


if __name__ == "__main__":
    main()
