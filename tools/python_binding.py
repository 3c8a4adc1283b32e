#!/usr/bin/env python3
"""Derives the Python package from exports/table: its functions, selections and stubs.

    tools/python_binding.py            writes the generated files of bindings/python/quorvan
    tools/python_binding.py --check    fails if one of them would change

What the table leaves open is decided in tools/python_choices.py. Planned exports are left out.

From a C signature to a Python one:
  - An argument that tells the size of an input array goes; the array's shape tells it. A shape that is a product has that
    many dimensions.
  - Outputs go; they are the results, in their order: one by itself, several as a named tuple. Scalars that are read and
    written come last, states and guesses where they stand.
  - An array that is read and written becomes an input that stays as it is. One that the library replaces only where its
    output is null is an input from the start.
  - The array results can be given with out=: one array, or a tuple of as many as there are. out may be an input.
  - What may be null is None by default. Parameters with a default stand behind those without, both in the table's order.
  - Functions of scalars alone take arrays too, element by element.
  - A function with a complex twin that takes the same parameters calls it where an array is complex.
"""

import ast
import pathlib
import re
import sys
import textwrap
from dataclasses import dataclass

import boundary
import python_choices as choices

PACKAGE = boundary.ROOT / "bindings" / "python" / "quorvan"
DTYPES = {"double": "F8", "complex": "C16", "int32": "I4", "int64": "I8", "band": "F8"}
NUMPY = {"F8": "np.float64", "C16": "np.complex128", "I4": "np.int32", "I8": "np.int64"}
WORDS = {"F8": "float64", "C16": "complex128", "I4": "int32", "I8": "int64"}
LETTERS = {"double": "d", "complex": "z", "int32": "i", "uint32": "u", "int64": "l", "model": "m"}
CTYPES = {"double": "ctypes.c_double", "int32": "ctypes.c_int32", "uint32": "ctypes.c_uint32",
          "int64": "ctypes.c_int64", "complex": "rt.Complex", "window": "rt.Properties"}
INTEGERS = {"int32": "rt.i32", "uint32": "rt.u32", "int64": "rt.i64"}
GENERATED = "Generated from exports/table by tools/python_binding.py; do not edit."
WIDTH = 110


# --- Names -----------------------------------------------------------------------------------------------------------


def snake(name):
    words = re.findall(r"\d[A-Z]\d?(?![a-z])|[A-Z][a-z]*(?:\d+(?![A-Z]\d|D(?![a-z])))?|\d+", name)
    assert "".join(words) == name, name
    return "_".join(words).lower()


def function_name(name):
    """The name in Python, by the rule of tools/python_choices.py."""
    if name in choices.NAMES:
        return choices.NAMES[name]
    for prefix, replacement in choices.PREFIXES.items():
        if name.startswith(prefix) and name[len(prefix):len(prefix) + 1].isupper():
            return replacement + snake(name[len(prefix):])
    return snake(name)


def parameter_name(name):
    return re.sub(r"(?<=[a-z0-9])([A-Z])", r"_\1", name).lower()


def chosen(table, export, argument):
    """What a table of choices says of an argument, or None."""
    for (pattern, names), value in table.items():
        if re.fullmatch(pattern, export.name) and re.fullmatch(names, argument.name):
            return value
    return None


def selection_of(export, argument):
    for name, (_, _, places, default) in choices.SELECTIONS.items():
        for pattern, wanted in places:
            if re.fullmatch(pattern, export.name) and wanted == argument.name:
                return name, default
    return None, None


# --- Shapes ----------------------------------------------------------------------------------------------------------


def factors(node):
    if isinstance(node, ast.BinOp) and isinstance(node.op, ast.Mult):
        return factors(node.left) + factors(node.right)
    return [node]


class Python(ast.NodeTransformer):
    """A table expression with Python's names, C's division and the builtins out of the way of arguments."""

    def visit_Name(self, node):
        if node.id in ("min", "max"):
            return ast.Name("_" + node.id, node.ctx)
        return ast.Name(parameter_name(node.id), node.ctx)

    def visit_Attribute(self, node):
        return ast.Attribute(self.visit(node.value), node.attr, node.ctx)

    def visit_BinOp(self, node):
        self.generic_visit(node)
        name = {ast.Div: "quotient", ast.Mod: "remainder"}.get(type(node.op))
        if name:
            return ast.Call(ast.Attribute(ast.Name("rt", ast.Load()), name, ast.Load()), [node.left, node.right], [])
        return node


def python(node):
    return ast.unparse(ast.fix_missing_locations(Python().visit(node)))


def expression(text):
    return python(ast.parse(text, mode="eval").body)


def extents(shape):
    """The dimensions of a shape: the factors of a product, unless one is a plain number."""
    parts = factors(ast.parse(shape, mode="eval").body)
    if len(parts) == 1 or any(isinstance(part, ast.Constant) for part in parts):
        return [ast.parse(shape, mode="eval").body]
    return parts


def shape_tuple(shape):
    node = ast.parse(shape, mode="eval").body
    if isinstance(node, ast.IfExp):
        return (f"{shape_tuple(ast.unparse(node.body))} if {python(node.test)} "
                f"else {shape_tuple(ast.unparse(node.orelse))}")
    return tuple_text([python(part) for part in extents(shape)])


def tuple_text(parts):
    return "(" + ", ".join(parts) + ("," if len(parts) == 1 else "") + ")"


def shown(shape):
    """A shape for the documentation."""
    text = re.sub(r"\b_(max|min)\b", r"\1", shape)
    text = re.sub(r"rt\.quotient\((.+?), ([^,()]+)\)", r"\1 // \2", text)
    return re.sub(r"rt\.remainder\(([^,()]+), ([^,()]+)\)", r"\1 % \2", text)


def translated(words, names, own=None):
    """A text of the table in Python's names; an export's own name stays."""
    words = re.sub(r"\bQv([A-Z]\w+)", r"\1", words)
    words = words.replace("the QV_WINDOW_... constants of quorvan/types.h", "those of `Window`")
    words = words.replace("a QV_WINDOW_ code", "a `Window`").replace("QV_WINDOW_...", "a `Window`")
    return re.sub(r"\b[A-Z][A-Za-z0-9]+\b", lambda m: f"`{names[m[0]]}`" if m[0] in names and m[0] != own else m[0], words)


# --- The model of a function -----------------------------------------------------------------------------------------


@dataclass
class Parameter:
    name: str
    type: str  # for the stub
    words: str  # for the documentation
    meaning: str
    default: str | None = None
    argument: object = None  # the table's first argument behind it


@dataclass
class Result:
    name: str
    type: str
    words: str
    meaning: str
    value: str  # Python text behind the call
    array: bool = False  # can be given with out=
    last: bool = False


def code_text(export):
    return f"{export.symbol} ({export.name})"


class Function:
    """One export as a Python function: its parameters, results and body."""

    def __init__(self, export):
        self.export = export
        self.name = function_name(export.name)
        self.parameters, self.results = [], []
        self.before, self.call, self.behind = [], {}, []
        self.twin = None
        self.elementwise = (
            not any(a.shape is not None or a.direction in ("handle", "size", "alloc") or a.type in ("model", "window")
                    for a in export.arguments)
            and export.result in ("double", "none", "status") and bool(export.arguments))
        self.pairs = self.find_pairs()
        self.derive_sizes()
        self.marshal()
        self.parameters.sort(key=lambda p: p.default is not None)
        self.results.sort(key=lambda r: r.last)
        names = [p.name for p in self.parameters]
        assert len(set(names)) == len(names), (export.name, names)

    # What stands for what

    def find_pairs(self):
        pairs, arguments = {}, self.export.arguments
        for first, second in zip(arguments, arguments[1:]):
            name = None
            for (pattern, re_name, im_name), wanted in choices.PAIRS.items():
                if re.fullmatch(pattern, self.export.name) and (first.name, second.name) == (re_name, im_name):
                    name = wanted
            if (first.name, second.name) == ("re", "im"):
                name = "out" if first.direction == "out" else "z"
            elif first.name.endswith("Re") and second.name == first.name[:-2] + "Im":
                name = parameter_name(first.name[:-2])
            if name and first.type == second.type == "double" and first.direction == second.direction:
                pairs[first.name] = (name, second)
        return pairs

    @property
    def inputs(self):
        return [a for a in self.export.arguments
                if a.shape and a.direction in ("in", "inout") and not self.is_output(a) and a.name not in choices.STATES]

    def is_output(self, a):
        return a.direction == "out" or (a.direction == "inout" and a.shape is not None and a.name == "out")

    def is_source(self, a):
        """An array that is replaced only where its output is null, which it never is here."""
        return (a.direction == "inout" and a.shape is not None and not a.nullable and a.name not in choices.GUESSES
                and any(o.nullable and o.direction == "out" and o.shape is not None and o.type == a.type
                        for o in self.export.arguments))

    def required(self, a):
        return any(re.fullmatch(pattern, self.export.name) and a.name == name for pattern, name in choices.REQUIRED)

    def is_optional(self, a):
        return a.nullable and not self.required(a)

    def derive_sizes(self):
        """Which integers the shapes of the inputs tell: name -> [(array, dimension, array may be None)]."""
        integers = {a.name for a in self.export.arguments
                    if a.type in boundary.INTEGERS and a.shape is None and a.direction in ("size", "value", "inout")}
        self.sizes = {}
        for a in self.inputs:
            for dimension, part in enumerate(extents(a.shape)):
                if isinstance(part, ast.Name) and part.id in integers:
                    self.sizes.setdefault(part.id, []).append((parameter_name(a.name), dimension, self.is_optional(a)))
        self.formulas = {a.name: text for a in self.export.arguments
                         if a.name not in self.sizes and (text := chosen(choices.SIZES, self.export, a)) is not None}

    # The body

    def add(self, a, name, type, words, default=None, meaning=None):
        told = chosen(choices.DEFAULTS, self.export, a)
        meaning = (a.meaning if meaning is None else meaning) or choices.MEANINGS.get(a.name, "")
        self.parameters.append(Parameter(name, type, words, meaning,
                                         default if told is None else told, a))

    def take_array(self, a, name):
        """The line that makes an input array of a parameter."""
        dtype = DTYPES[a.type]
        ndim = 2 if a.type == "band" else len(extents(a.shape))
        line = f'{name} = rt.array({name}, rt.{dtype}, {ndim}, "{name}")'
        if self.is_optional(a):
            return f"{name} = None if {name} is None else " + line.partition(" = ")[2]
        return line

    def marshal(self):
        export = self.export
        skip, late, arrays_out = set(), [], []
        self.size_lines = []
        shapes = []  # lines that compare the inputs with each other
        spectrum = choices.SPECTRUM_IN_PLACE.get(export.name)
        for a in export.arguments:
            name = parameter_name(a.name)
            if a.name in skip:
                continue
            if a.name in self.sizes or a.name in self.formulas:
                self.size(a, name)
            elif a.name in self.pairs:
                pair, second = self.pairs[a.name]
                skip.add(second.name)
                self.pair(a, second, pair, shapes, late)
            elif spectrum and a.name == spectrum[0]:
                self.add(a, name, "ArrayLike", "array_like of float64", meaning="the record")
                self.before += [self.take_array(a, name), f"{name}_re = {name}.copy()"]
                self.call[a.name] = f"rt.pointer({name}_re)"
            elif spectrum and a.name == spectrum[1]:
                late.append(f"im_ = rt.fresh({shape_tuple(a.shape)}, rt.F8)")
                self.call[a.name] = "rt.pointer(im_)"
                self.results.append(Result("out", "NDArray[np.complex128]", f"complex128 array of shape {shape_tuple(a.shape)}",
                                           "the spectrum", f"rt.joined({spectrum[0]}_re, im_, {{out}})", True))
            elif a.direction == "handle":
                optional = a.nullable and a.type == "FftPlan" and not export.name.endswith("Release")
                kind = "Handle" if a.type == "block" else a.type
                self.add(a, name, f"{kind} | None" if optional else kind, kind, "None" if optional else None)
                self.call[a.name] = f'rt.handle({name}, "{a.type}")'
            elif a.direction == "alloc":
                late.append(f"{name}_ = ctypes.c_void_p()")
                self.call[a.name] = f"ctypes.byref({name}_)"
                self.behind.append(f"{name}_ = rt.taken({name}_, {expression(a.shape)}_.value)")
                self.results.append(Result(name, "NDArray[np.float64]", f"float64 array of shape ({expression(a.shape)})",
                                           a.meaning, f"{name}_"))
            elif a.type == "text":
                self.add(a, name, "str", "str", meaning="the base unit")
                self.before.append(f"{name}_ = rt.text_buffer({name})")
                self.call[a.name] = f"{name}_"
                self.results.append(Result(name, "str", "str", "the full unit", f"{name}_.value.decode()"))
            elif self.is_output(a) and a.shape is not None:
                arrays_out.append(a)
            elif self.is_output(a):
                self.scalar_out(a, name, late)
            elif a.shape is not None:
                self.array_in(a, name, shapes, late)
            elif a.type == "window":
                self.add(a, name, "WindowProperties | tuple[float, float]", "(enbw, coherent_gain)")
                self.call[a.name] = f"ctypes.byref(rt.properties({name}))"
            elif a.direction == "inout":
                self.scalar_inout(a, name)
            elif a.direction == "in":
                self.add(a, name, "float | None" if a.nullable else "float", "float", "None" if a.nullable else None)
                self.call[a.name] = f"rt.optional({name})"
            else:
                self.value(a, name)
        for a in export.arguments:
            if a.name in self.sizes and a.direction == "inout":
                n = parameter_name(a.name)
                late.append(f"{n}_ = {CTYPES[a.type]}({n})")
        self.before += shapes
        for a in arrays_out:
            self.array_out(a, late)
        if export.name in choices.DISTINCT:
            self.before.append("y = rt.apart(y, x)")
        self.order_results()
        self.before += late

    def size(self, a, name):
        if a.name in self.formulas:
            self.before.append(f"{name} = {expression(self.formulas[a.name])}")
        else:
            places = sorted(self.sizes[a.name], key=lambda place: place[2])
            array, dimension, optional = places[0]
            line = f"{name} = {array}.shape[{dimension}]"
            if optional:
                line = f"{name} = 0 if {array} is None else {array}.shape[{dimension}]"
            self.size_lines.append(line)
        if a.direction == "inout":
            self.call[a.name] = f"ctypes.byref({name}_)"
            if a.name in self.formulas:
                self.before.append(f"{name}_ = {CTYPES[a.type]}({name})")
        else:
            self.call[a.name] = f'{INTEGERS[a.type]}({name}, "{name}")' if a.type != "int64" else name

    def pair(self, a, second, name, shapes, late):
        re_, im_ = f"{name}_re", f"{name}_im"
        if a.direction == "out":
            if a.shape is None:
                late += [f"{re_} = ctypes.c_double()", f"{im_} = ctypes.c_double()"]
                self.call[a.name], self.call[second.name] = f"ctypes.byref({re_})", f"ctypes.byref({im_})"
                self.results.append(Result("out", "complex", "complex", "", f"complex({re_}.value, {im_}.value)"))
                return
            shape = shape_tuple(a.shape)
            late += [f"{re_} = rt.fresh({shape}, rt.F8)", f"{im_} = rt.fresh({shape}, rt.F8)"]
            self.call[a.name], self.call[second.name] = f"rt.pointer({re_})", f"rt.pointer({im_})"
            meaning = a.meaning.replace("real parts of the ", "the ").replace("real parts", "the complex values")
            self.results.append(Result(name, "NDArray[np.complex128]", f"complex128 array of shape {shown(shape)}", meaning,
                                       f"rt.joined({re_}, {im_}, {{out}})", True))
            return
        meaning = re.sub(r"(the )?real part(s)? of ", "", a.meaning).partition(", replaced")[0].partition(", then")[0]
        meaning = "the complex number" + ("s" if a.shape else "") if meaning.startswith(("real part", "the real part")) else meaning
        if a.shape is None:
            self.add(a, name, "complex", f"complex, with the parts ({a.name}, {second.name})", meaning=meaning)
            self.before += [f"{name} = complex({name})"]
            self.call[a.name], self.call[second.name] = f"{name}.real", f"{name}.imag"
            return
        self.add(a, name, "ArrayLike", f"array_like of complex128, shape {shown(shape_tuple(a.shape))}", meaning=meaning)
        self.before += [f'{name} = rt.array({name}, rt.C16, {len(extents(a.shape))}, "{name}")']
        late.append(f"{re_}, {im_} = rt.parts({name})" if self.is_source(a) or a.direction == "in"
                    else f"{re_}, {im_} = {name}.real.copy(), {name}.imag.copy()")
        shapes.append(f'rt.fits({name}, {shape_tuple(a.shape)}, "{name}")')
        self.call[a.name], self.call[second.name] = f"rt.pointer({re_})", f"rt.pointer({im_})"
        for places in self.sizes.values():
            places[:] = [(name if array in (parameter_name(a.name), parameter_name(second.name)) else array, d, o)
                         for array, d, o in places]
        if a.direction == "inout" and not self.is_source(a):
            shape = shown(shape_tuple(a.shape))
            if self.export.name in choices.REAL_RESULT:
                self.results.append(Result("out", "NDArray[np.float64]", f"float64 array of shape {shape}",
                                           "the record", f"rt.deliver({re_}, {{out}})", True))
            else:
                self.results.append(Result("out", "NDArray[np.complex128]", f"complex128 array of shape {shape}",
                                           "the result", f"rt.joined({re_}, {im_}, {{out}})", True))

    def array_in(self, a, name, shapes, late):
        dtype, shape = DTYPES[a.type], "(count, 4)" if a.type == "band" else shape_tuple(a.shape)
        words = f"array_like of {WORDS[dtype]}, shape {shown(shape)}"
        if a.name in choices.STATES:
            self.add(a, name, "ArrayLike | None", words, "None", a.meaning.partition("; null")[0])
            line = f'{name}_ = rt.state({name}, {shape}, rt.{dtype}, "{name}")'
            if a.nullable:  # no feedback, no memory of it
                partner = {"output_state": "a", "input_state": "b"}[name]
                line = f"{name}_ = None if {partner} is None else " + line.partition(" = ")[2]
            late.append(line)
            self.call[a.name] = f"rt.pointer({name}_)"
            kind = f"NDArray[{NUMPY[dtype]}]" + (" | None" if a.nullable else "")
            self.results.append(Result(name, kind, f"{WORDS[dtype]} array of shape {shown(shape)}",
                                       "the same behind the last sample", f"{name}_", last=True))
            return
        optional = self.is_optional(a)
        meaning = re.split(r"[,;] (?:replaced by|the .* when|null|the first m are|becomes its)", a.meaning)[0]
        self.add(a, name, "ArrayLike | None" if optional else "ArrayLike", words, "None" if optional else None, meaning)
        self.before.append(self.take_array(a, name))
        if a.type == "band":
            shapes.append(f'rt.fits({name}, {shape}, "{name}")')
        else:
            told = [places[0][:2] for places in
                    (sorted(p, key=lambda place: place[2]) for p in self.sizes.values())]
            binds_all = all((name, d) in told for d in range(len(extents(a.shape))))
            if not binds_all:
                shapes.append(f'rt.fits({name}, {shape}, "{name}")')
        if a.direction == "in" or self.is_source(a):
            self.call[a.name] = f"rt.pointer({name})"
            return
        # read and written
        first = chosen(choices.FIRST, self.export, a)
        value = f"rt.deliver({name}_, {{out}})"
        if first:
            value = f"rt.first({value}, {parameter_name(first)}_.value)"
        others = [parameter_name(i.name) for i in self.inputs if i is not a]
        maker = f"rt.worked({name}, {{out}}{', ' + tuple_text(others) if others else ''})"
        if optional:
            maker = f"None if {name} is None else {maker}"
            value = f"None if {name} is None else {value}"
        late.append(f"{name}_ = {maker}#{name}")
        self.call[a.name] = f"rt.pointer({name}_)"
        kind = f"NDArray[{NUMPY[dtype]}]" + (" | None" if optional else "")
        said = re.split(r", then |; becomes |in: .*; out: ", a.meaning)
        self.results.append(Result(name, kind, f"{WORDS[dtype]} array of {'at most ' if first else ''}shape {shown(shape)}",
                                   said[1] if len(said) > 1 else "the result", value, True))

    def array_out(self, a, late):
        export, name = self.export, parameter_name(a.name)
        dtype = DTYPES[a.type]
        told = chosen(choices.SHAPES, export, a)
        shape = expression(told) if told else shape_tuple(a.shape)
        inputs = [parameter_name(i.name) for i in self.inputs if i.name not in self.pairs
                  and i.name not in {second.name for _, second in self.pairs.values()}]
        inputs = tuple_text(inputs) if inputs else "()"
        overlapping = ", overlapping=True" if export.family in choices.OVERLAPPING else ""
        line = f"rt.result({{out}}, {shape}, rt.{dtype}, {inputs}{overlapping})"
        value = f"rt.deliver({name}_, {{out}})"
        first = chosen(choices.FIRST, export, a)
        if first:
            value = f"rt.first({value}, {parameter_name(first)}_.value)"
        words = f"{WORDS[dtype]} array of {'at most ' if first else ''}shape {shown(shape)}"
        kind, flag = f"NDArray[{NUMPY[dtype]}]", choices.WITH.get(a.name)
        flag = flag if a.nullable and flag in {b.name for b in export.arguments} else None
        if flag:
            line = f"{line} if {parameter_name(flag)} else None"
            value = f"{value} if {parameter_name(flag)} else None"
            kind += " | None"
        late.append(f"{name}_ = {line}#{name}")
        self.call[a.name] = f"rt.pointer({name}_)"
        self.results.append(Result(name, kind, words, a.meaning, value, True))

    def scalar_out(self, a, name, late):
        late.append(f"{name}_ = {CTYPES[a.type]}()")
        self.call[a.name] = f"ctypes.byref({name}_)"
        counted = {target for (pattern, _), target in choices.FIRST.items() if re.fullmatch(pattern, self.export.name)}
        if a.name in counted or any(b.direction == "alloc" and b.shape == a.name for b in self.export.arguments):
            return
        if a.type == "window":
            self.results.append(Result(name, "WindowProperties", "WindowProperties", a.meaning,
                                       f"rt.WindowProperties({name}_.enbw, {name}_.coherent_gain)"))
        elif a.type == "complex":
            self.results.append(Result(name, "complex", "complex", a.meaning, f"complex({name}_.re, {name}_.im)"))
        elif a.name in ("found", "flag"):
            self.results.append(Result(name, "bool", "bool", a.meaning, f"bool({name}_.value)"))
        else:
            kind = "float" if a.type == "double" else "int"
            self.results.append(Result(name, kind, kind, a.meaning, f"{name}_.value"))

    def scalar_inout(self, a, name):
        kind = "float" if a.type == "double" else "int"
        said = a.meaning.partition("; then ")
        self.add(a, name, kind, kind, meaning=said[0])
        self.before.append(f"{name}_ = {CTYPES[a.type]}({name})")
        self.call[a.name] = f"ctypes.byref({name}_)"
        if not any(b.name == a.name + "Out" for b in self.export.arguments):
            self.results.append(Result(name, kind, kind, said[2], f"{name}_.value", last=True))

    def value(self, a, name):
        selection, default = selection_of(self.export, a)
        if selection:
            self.add(a, name, f"{selection} | int | str", f"{selection}, its name, or int",
                     f"{selection}.{default}" if default else None)
            self.before.append(f'{name} = rt.choice({name}, {selection}, "{name}")')
            self.call[a.name] = name
        elif a.name in choices.FLAGS and a.type in INTEGERS:
            self.add(a, name, "bool", "bool")
            self.before.append(f"{name} = int(bool({name}))")
            self.call[a.name] = name
        elif a.type == "model":
            self.add(a, name, "Callable[[float, NDArray[np.float64]], float]", "callable (x, coefficients) -> float",
                     meaning=a.meaning or "the model's value at x")
            self.before.append(f"{name}_ = rt.Model({name})")
            self.call[a.name] = f"{name}_.pointer"
            self.behind.append(f"{name}_.reraise()")
        elif a.type == "complex":
            self.add(a, name, "complex", "complex")
            self.call[a.name] = f"rt.complex_value({name})"
        elif a.type in INTEGERS:
            self.add(a, name, "int", "int")
            self.before.append(f'{name} = {INTEGERS[a.type]}({name}, "{name}")')
            self.call[a.name] = name
        else:
            self.add(a, name, "float", "float")
            self.call[a.name] = name

    def order_results(self):
        """The results in the order of the table's arguments."""
        order = {}
        for i, a in enumerate(self.export.arguments):
            order.setdefault(parameter_name(a.name), i)
        for first, (name, _) in self.pairs.items():
            order.setdefault(name, order[parameter_name(first)])
        self.results.sort(key=lambda r: order.get(r.name, len(order)))

    # The text

    @property
    def arrays(self):
        return [r for r in self.results if r.array]

    @property
    def result_class(self):
        return "".join(word.capitalize() for word in self.name.split("_")) + "Result"

    def signature(self, stub=False):
        parts = []
        for p in self.parameters:
            text = p.name + (f": {p.type}" if stub else "")
            if p.default is not None:
                text += f" = {p.default}" if stub else f"={p.default}"
            parts.append(text)
        if self.arrays:
            if stub:
                kinds = [r.type if r.type.endswith("None") else r.type + " | None" for r in self.arrays]
                kind = kinds[0] if len(kinds) == 1 else f"tuple[{', '.join(kinds)}] | None"
                parts += ["*", f"out: {kind} = ..."]
            else:
                parts += ["*", "out=None"]
        return ", ".join(parts)

    @property
    def has_class(self):
        return len(self.results) > 1 and self.export.result != "double"

    @property
    def returns(self):
        if self.export.result == "double":
            return "float"
        if self.export.result == "text":
            return "str"
        if self.export.result.startswith("handle"):
            return self.export.result.split()[1]
        if not self.results:
            return "None"
        return self.results[0].type if len(self.results) == 1 else self.result_class

    def body(self):
        export, lines = self.export, []
        arguments = ", ".join(p.name for p in self.parameters)
        if self.twin:
            arrays = [p.name for p in self.parameters if p.type.startswith("ArrayLike")]
            out = ", out=out" if self.arrays else ""
            # by name: the two may order their parameters differently
            given = ", ".join(f"{p.name}={p.name}" for p in self.parameters)
            lines += [f"if rt.is_complex({', '.join(arrays)}):", f"    return {self.twin}({given}{out})"]
        if self.elementwise:
            lines += [f"if rt.many({arguments}):", f"    return rt.each({self.name}, {arguments})"]
        many = len(self.arrays) > 1
        slots = {r.name: f"_out[{i}]" if many else "out" for i, r in enumerate(self.arrays)}
        if many:
            lines.append(f'_out = rt.outs(out, {len(self.arrays)}, "{self.name}")')
        takes = [line for line in self.before if " = rt.array(" in line or "is None else rt.array(" in line]
        others = [line for line in self.before if line not in takes]
        lines += takes + self.size_lines + others
        lines = [self.with_slot(line, slots) for line in lines]
        call = f"_{export.symbol}({', '.join(self.call[a.name] for a in export.arguments)})"
        if export.name.endswith("Release"):
            p = self.parameters[0]
            return lines + [f'rt.release({p.name}, "{p.argument.type}", _{export.symbol})']
        if export.result.startswith("handle"):
            return lines + [f'return rt.adopt("{export.result.split()[1]}", {call}, "{self.name}")']
        if export.result == "double":
            return lines + [f"return {call}"]
        if export.result == "text":
            return lines + [f"return {call}.decode()"]
        lines.append(f"status = {call}" if export.result == "status" else call)
        lines += [line for line in self.behind if "reraise" in line]
        if export.result == "status":
            lines.append(f'rt.check(status, "{self.name}")')
        lines += [line for line in self.behind if "reraise" not in line]
        values = [r.value.replace("{out}", slots.get(r.name, "out")) for r in self.results]
        if len(values) == 1:
            lines.append(f"return {values[0]}")
        elif values:
            lines.append(f"return {self.result_class}({', '.join(values)})")
        return lines

    @staticmethod
    def with_slot(line, slots):
        line, _, name = line.partition("#")
        return line.replace("{out}", slots.get(name, "out"))

    def documentation(self, names):
        export = self.export
        sentences = re.sub(r"A null [^.]*\. ?", "", " ".join(export.sentences)).strip()
        head, _, rest = (re.split(r"(?<![. ])(?<![ (][A-Z])\.( )(?=[A-Z])", sentences, 1) + ["", ""])[:3]
        text = [head.rstrip(".") + ".", ""]
        if rest:
            text += [rest, ""]
        if self.parameters:
            text += ["Parameters", "----------"]
            for p in self.parameters:
                default = "" if p.default is None else f", default {p.default}"
                text += [f"{p.name} : {p.words}{default}"]
                text += ["    " + p.meaning] if p.meaning else []
            if self.arrays:
                which = f"the array for `{self.arrays[0].name}`" if len(self.arrays) == 1 else (
                    "arrays for " + ", ".join(f"`{r.name}`" for r in self.arrays) + ", each may be None")
                text += ["out : array or None" if len(self.arrays) == 1 else "out : tuple or None",
                         f"    {which}; an input, to work in place"]
            text += [""]
        text += ["Returns", "-------"]
        if export.result == "status":
            text += [line for r in self.results
                     for line in [f"{r.name} : {r.words}"] + (["    " + r.meaning] if r.meaning else [])] or ["None"]
        else:
            text += [self.returns] if not self.results else [f"{r.name} : {r.words}" for r in self.results]
        text += [""]
        for title, kind, wanted in (("Raises", "QuorvanError", lambda c: c < 0), ("Warns", "QuorvanWarning", lambda c: c > 0)):
            statuses = [(code, why) for code, why in export.statuses if wanted(code)]
            if statuses:
                text += [title, "-" * len(title), kind]
                text += [f"    {code}: {why}" for code, why in statuses] + [""]
        notes = []
        if self.elementwise:
            notes.append("Arrays are taken element by element, with broadcasting.")
        if self.twin:
            notes.append(f"Complex arrays go to `{self.twin}`.")
        text += ["Notes", "-----", " ".join(notes + [f"The function {code_text(export)} of the C library."]), ""]
        text += ["Example", "-------", f">>> {self.example()}"]
        words = "\n".join(re.sub(r"[;,] null(:| writes| ).*", "", line) if line.startswith("    ") else line
                          for line in text)
        words = translated(words, names, export.name)
        for a in export.arguments:
            if a.name != parameter_name(a.name):
                words = re.sub(rf"\b{a.name}\b", parameter_name(a.name), words)
        return [piece for line in words.split("\n") for piece in self.wrapped(line)]

    @staticmethod
    def wrapped(line):
        indent = " " * (len(line) - len(line.lstrip()))
        if line.startswith(">>>"):
            return [line]
        return textwrap.wrap(line.strip(), WIDTH, initial_indent=indent, subsequent_indent=indent,
                             break_long_words=False, break_on_hyphens=False) or [""]

    @staticmethod
    def folded(line):
        """A line of code, cut behind commas where it is too long."""
        if len(line) <= 118:
            return [line]
        indent = " " * (len(line) - len(line.lstrip()) + 4)
        pieces = textwrap.wrap(line.strip(), 118, initial_indent=indent[4:], subsequent_indent=indent + "    ",
                               break_long_words=False, break_on_hyphens=False)
        return pieces

    def example(self):
        call = f"qv.{self.name}({', '.join(p.name for p in self.parameters if p.default is None)})"
        names = [r.name for r in self.results]
        if self.export.result in ("double",):
            names = ["value"]
        elif self.export.result.startswith("handle"):
            names = [re.sub(r"(?<!^)([A-Z])", r"_\1", self.returns).lower()]
        names = names if len(names) < 4 else ["result"]
        return f"{', '.join(names)} = {call}" if names else call

    def text(self, names):
        lines = []
        if self.has_class:
            lines += [f"class {self.result_class}(NamedTuple):", f'    """What `{self.name}` gives."""', ""]
            lines += [f"    {r.name}: {r.type.replace('NDArray', 'np.ndarray').split('[')[0]}" if "NDArray" in r.type
                      else f"    {r.name}: {r.type.replace('WindowProperties', 'rt.WindowProperties')}"
                      for r in self.results] + ["", ""]
        lines.append(f"def {self.name}({self.signature()}):")
        doc = self.documentation(names)
        lines.append(f'    r"""{doc[0]}')
        lines += ["    " + line if line else "" for line in doc[1:]] + ['    """']
        lines += [piece for line in self.body() for piece in self.folded("    " + line)]
        letters = "".join("p" if a.direction in ("in", "out", "inout", "alloc", "handle") else
                          "l" if a.direction == "size" else LETTERS[a.type] for a in self.export.arguments)
        result = "handle" if self.export.result.startswith("handle") else self.export.result
        bind = f'_{self.export.symbol} = rt.bind("{self.export.symbol}", "{result}", "{letters}")'
        return bind + "\n\n\n" + "\n".join(lines) + "\n"

    def stub(self):
        lines = []
        if self.has_class:
            lines += [f"class {self.result_class}(NamedTuple):"] + [f"    {r.name}: {r.type}" for r in self.results] + [""]
        return lines + [f"def {self.name}({self.signature(stub=True)}) -> {self.returns}: ..."]


# --- The files -------------------------------------------------------------------------------------------------------


def functions(families):
    """All functions of what is implemented, by Python name, with their twins told."""
    made = {}
    for family in families:
        for export in family.exports:
            if not export.planned:
                function = Function(export)
                if function.name in made:
                    raise SystemExit(f"{export.name}: {function.name} is taken by {made[function.name].export.name}")
                made[function.name] = function
    for function in made.values():
        twin = made.get(complex_name(function.name, made))
        if twin and twin is not function and same_parameters(function, twin):
            function.twin = twin.name
    return made


def complex_name(name, made):
    if name in choices.TWINS:
        return choices.TWINS[name]
    for other in made:
        words = "_" + other
        if "_complex" in words and "_" + name in (words.replace("_complex", ""), words.replace("_complex", "_real")):
            return other
    return None


def same_parameters(real, twin):
    """Whether the twin takes all parameters of the real form, its own by default, some arrays complex that are double."""
    ours, theirs = ({p.name: p.default for p in f.parameters} for f in (real, twin))
    if any(name not in theirs or theirs[name] != default for name, default in ours.items()) or any(
            default is None for name, default in theirs.items() if name not in ours):
        return False
    kinds = [{p.name: p.argument.type for p in f.parameters if p.argument.shape is not None} for f in (real, twin)]
    return len(real.arrays) == len(twin.arrays) and any(
        kind == "double" and kinds[1].get(name) == "complex" for name, kind in kinds[0].items())


def aliases(made):
    found = {}
    for name, function in made.items():
        short = ("_" + name).replace("_real", "")[1:]
        if function.twin and short != name and name not in choices.TWINS and short not in made and short not in choices.ALIASES:
            found[short] = name
    found.update({short: name for short, name in choices.ALIASES.items() if name in made})
    return dict(sorted(found.items()))


def family_module(family, own, names, made):
    text = [f'"""{family.title}.', ""]
    text += textwrap.wrap(translated(" ".join(family.intro), names), WIDTH)
    text += ["", GENERATED, '"""', "", "import ctypes", "from typing import NamedTuple", "", "import numpy as np", "",
             "from .. import _runtime as rt", "from .._selections import *", ""]
    text += ["_max, _min = max, min", "", ""]
    twins = {f.twin for f in own if f.twin} - {f.name for f in own}
    body = "\n\n".join(function.text(names) for function in own)
    if twins:
        away = sorted((made[name].export.family, name) for name in twins)
        text[-3:-3] = [f"from .{module} import {name}" for module, name in away]
    return "\n".join(text) + body


def selections_module():
    text = [f'"""The selections: what an integer argument chooses. {GENERATED}"""', "", "import enum", ""]
    text += ["__all__ = [" + ", ".join(f'"{name}"' for name in choices.SELECTIONS) + "]", ""]
    for name, (meaning, members, _, _) in choices.SELECTIONS.items():
        kind = "IntFlag" if name.endswith("Flags") else "IntEnum"
        text += ["", f"class {name}(enum.{kind}):", f'    """{meaning}"""', ""]
        text += [f"    {member} = {value}" for member, value in members.items()] + [""]
    text[4] = "\n".join(textwrap.wrap(text[4], WIDTH, subsequent_indent="           "))
    return "\n".join(text)


def functions_module(families, made):
    text = [f'"""All functions under one roof. {GENERATED}"""', ""]
    for family in families:
        own = [f for f in made.values() if f.export.family == family.name]
        if own:
            text.append(f"from .{family.name} import *")
    text += [""] + [f"{short} = {name}" for short, name in aliases(made).items()]
    listed = sorted([f.name for f in made.values()] + [f.result_class for f in made.values() if f.has_class]
                    + list(aliases(made)))
    text += ["", "__all__ = [", *(f'    "{name}",' for name in listed), "]"]
    return "\n".join(text) + "\n"


def stub_module(made):
    text = [f"# The signatures of the package. {GENERATED}", "import enum", "from collections.abc import Callable",
            "from typing import NamedTuple", "", "import numpy as np", "from numpy.typing import ArrayLike, NDArray", "",
            "from ._objects import *", "from ._objects import Handle as Handle",
            "from ._runtime import QuorvanError as QuorvanError",
            "from ._runtime import QuorvanWarning as QuorvanWarning",
            "from ._runtime import WindowProperties as WindowProperties", "", "__version__: str", ""]
    for name, (_, members, _, _) in choices.SELECTIONS.items():
        kind = "IntFlag" if name.endswith("Flags") else "IntEnum"
        text += [f"class {name}(enum.{kind}):"] + [f"    {member} = {value}" for member, value in members.items()] + [""]
    for function in made.values():
        text += function.stub()
    text += [""] + [f"{short} = {name}" for short, name in aliases(made).items()]
    return "\n".join(text) + "\n"


def outputs():
    families = boundary.read_table()
    made = functions(families)
    names = {f.export.name: f.name for f in made.values()}
    files = {}
    for family in families:
        own = [f for f in made.values() if f.export.family == family.name]
        if own:
            listed = [f.name for f in own] + [f.result_class for f in own if f.has_class]
            module = family_module(family, own, names, made)
            exported = "__all__ = [\n" + "".join(f'    "{name}",\n' for name in listed) + "]\n"
            files[f"_functions/{family.name}.py"] = module.replace("_max, _min = max, min\n",
                                                                   exported + "_max, _min = max, min\n", 1)
    files["_functions/__init__.py"] = functions_module(families, made)
    files["_selections.py"] = selections_module()
    files["__init__.pyi"] = stub_module(made)
    return {PACKAGE / name: text for name, text in files.items()}


def main():
    check = sys.argv[1:] == ["--check"]
    if sys.argv[1:] and not check:
        raise SystemExit(__doc__)
    files = outputs()
    stale = [path for path, text in files.items() if not path.exists() or path.read_text() != text]
    left = [path for path in (PACKAGE / "_functions").glob("*.py") if path not in files]
    if check and (stale or left):
        raise SystemExit("out of date, run tools/python_binding.py: "
                         + ", ".join(path.relative_to(boundary.ROOT).as_posix() for path in stale + left))
    for path in [] if check else stale:
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_text(files[path])
    for path in [] if check else left:
        path.unlink()


if __name__ == "__main__":
    main()
