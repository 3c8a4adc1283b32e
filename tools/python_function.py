"""One export as a Python function: parameters, results, lines of the body; a part of tools/python_binding.py."""

import ast
import re
from dataclasses import dataclass

import boundary
import python_choices as choices
from python_names import (chosen, expression, extents, function_name, parameter_name, selection_of, shape_tuple, shown,
                          tuple_text)
from python_text import Text

DTYPES = {"double": "F8", "complex": "C16", "int32": "I4", "int64": "I8", "band": "F8"}
NUMPY = {"F8": "np.float64", "C16": "np.complex128", "I4": "np.int32", "I8": "np.int64"}
WORDS = {"F8": "float64", "C16": "complex128", "I4": "int32", "I8": "int64"}
CTYPES = {"double": "ctypes.c_double", "int32": "ctypes.c_int32", "uint32": "ctypes.c_uint32",
          "int64": "ctypes.c_int64", "complex": "rt.Complex", "window": "rt.Properties"}
INTEGERS = {"int32": "rt.i32", "uint32": "rt.u32", "int64": "rt.i64"}


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
    slot: str = ""  # the name before it was shortened


class Function(Text):
    """One export as a Python function."""

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
        self.shorten_results()
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
                if a.shape and a.direction in ("in", "inout") and a.name not in choices.STATES
                and not self.is_output(a)]

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
                words = f"complex128 array of shape {shape_tuple(a.shape)}"
                self.results.append(Result("out", "NDArray[np.complex128]", words, "the spectrum",
                                           f"rt.joined({spectrum[0]}_re, im_, {{out}})", True))
            elif a.direction == "handle":
                optional = a.nullable and a.type == "FftPlan" and not export.name.endswith("Release")
                kind = "Handle" if a.type == "block" else a.type
                self.add(a, name, f"{kind} | None" if optional else kind, kind, "None" if optional else None)
                self.call[a.name] = f'rt.handle({name}, "{a.type}")'
            elif a.direction == "alloc":
                late.append(f"{name}_ = ctypes.c_void_p()")
                self.call[a.name] = f"ctypes.byref({name}_)"
                self.behind.append(f"{name}_ = rt.taken({name}_, {expression(a.shape)}_.value)")
                words = f"float64 array of shape ({expression(a.shape)},)"
                self.results.append(Result(name, "NDArray[np.float64]", words, a.meaning, f"{name}_"))
            elif a.type == "text":
                self.add(a, name, "str", "str", meaning="the base unit")
                self.before.append(f'{name}_ = rt.text_buffer({name}, "{name}")')
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
                self.call[a.name] = f'ctypes.byref(rt.properties({name}, "{name}"))'
            elif a.direction == "inout":
                self.scalar_inout(a, name)
            elif a.direction == "in":
                self.add(a, name, "float | None" if a.nullable else "float", "float", "None" if a.nullable else None)
                self.call[a.name] = f'rt.optional({name}, "{name}")'
            else:
                self.value(a, name)
        for a in export.arguments:
            if a.name in self.sizes and a.direction == "inout":
                n = parameter_name(a.name)
                late.append(f"{n}_ = {CTYPES[a.type]}({n})")
        for places in self.sizes.values():
            names = [array for array, _, _ in places]
            if len(names) > 1 and all(optional for _, _, optional in places):
                shapes.append(f"rt.together({', '.join(f'{n}={n}' for n in names)})")
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
            words = f"complex128 array of shape {shown(shape)}"
            self.results.append(Result(name, "NDArray[np.complex128]", words, meaning,
                                       f"rt.joined({re_}, {im_}, {{out}})", True))
            return
        meaning = re.sub(r"(the )?real part(s)? of ", "", a.meaning).partition(", replaced")[0].partition(", then")[0]
        if meaning.startswith(("real part", "the real part")):
            meaning = "the complex number" + ("s" if a.shape else "")
        if a.shape is None:
            self.add(a, name, "complex", f"complex, with the parts ({a.name}, {second.name})", meaning=meaning)
            self.before += [f'{name} = rt.complex_number({name}, "{name}")']
            self.call[a.name], self.call[second.name] = f"{name}.real", f"{name}.imag"
            return
        words = f"array_like of complex128, shape {shown(shape_tuple(a.shape))}"
        self.add(a, name, "ArrayLike", words, meaning=meaning)
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
        meaning = re.split(r"[,;] (?:replaced by|the .* when|null|the first m are|becomes its|out: )", a.meaning)[0]
        meaning = meaning.removeprefix("in: ")
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
        words = f"{WORDS[dtype]} array of {'at most ' if first else ''}shape {shown(shape)}"
        self.results.append(Result(name, kind, words,
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
        take = {"double": "rt.real", **INTEGERS}[a.type]
        self.before.append(f'{name}_ = {CTYPES[a.type]}({take}({name}, "{name}"))')
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
            self.before.append(f'{name}_ = rt.Model({name}, "{name}")')
            self.call[a.name] = f"{name}_.pointer"
            self.behind.append(f"{name}_.reraise()")
        elif a.type == "complex":
            self.add(a, name, "complex", "complex")
            self.call[a.name] = f'rt.complex_value({name}, "{name}")'
        elif a.type in INTEGERS:
            self.add(a, name, "int", "int")
            self.before.append(f'{name} = {INTEGERS[a.type]}({name}, "{name}")')
            self.call[a.name] = name
        else:
            self.add(a, name, "float", "float")
            self.before.append(f'{name} = rt.real({name}, "{name}")')
            self.call[a.name] = name

    def shorten_results(self):
        """Results are not called outputs: low_out is low, out_phase is phase."""
        for r in self.results:
            r.slot = r.name
            short = re.sub(r"_out$|^out_(?=magnitude$|phase$)", "", r.name)
            if short not in {other.name for other in self.results}:
                r.name = short

    def order_results(self):
        """The results in the order of the table's arguments."""
        order = {}
        for i, a in enumerate(self.export.arguments):
            order.setdefault(parameter_name(a.name), i)
        for first, (name, _) in self.pairs.items():
            order.setdefault(name, order[parameter_name(first)])
        self.results.sort(key=lambda r: order.get(r.name, len(order)))
