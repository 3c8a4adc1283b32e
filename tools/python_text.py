"""A Python function as text: signature, documentation, body, stub; a part of tools/python_binding.py."""

import re
import textwrap

import python_choices as choices
from python_names import parameter_name, translated

LETTERS = {"double": "d", "complex": "z", "int32": "i", "uint32": "u", "int64": "l", "model": "m"}
WIDTH = 110
COMPLEX_ARRAY = "_Complex"  # of the stub: an array whose type tells that it is complex


class Text:
    """What Function writes of itself; it brings `export`, `name`, `parameters`, `results` and the lines of the body."""

    @property
    def arrays(self):
        return [r for r in self.results if r.array]

    @property
    def result_class(self):
        return "".join(word.capitalize() for word in self.name.split("_")) + "Result"

    def signature(self):
        parts = [p.name + ("" if p.default is None else f"={p.default}") for p in self.parameters]
        return ", ".join(parts + (["*", "out=None"] if self.arrays else []))

    def typed_signature(self, complex_one=None, twin=None, by_name=False):
        """The signature of the stub. With a complex array for one parameter, by its place or by its name, the results
        are those of the twin."""
        parts, required = [], complex_one is not None and not by_name
        for p in self.parameters:
            parts += ["*"] if by_name and p is complex_one else []
            default = "" if p.default is None or required or p is complex_one else f" = {p.default}"
            parts.append(f"{p.name}: {COMPLEX_ARRAY if p is complex_one else p.type}{default}")
            required = required and p is not complex_one
        results = (twin or self).arrays
        if results:
            kinds = [r.type if r.type.endswith("None") else r.type + " | None" for r in results]
            kind = kinds[0] if len(kinds) == 1 else f"tuple[{', '.join(kinds)}] | None"
            parts += [] if by_name else ["*"]
            parts.append(f"out: {kind} = None")
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
        if self.name in choices.MANY:
            array, many = choices.MANY[self.name]
            given = ", ".join(f"{p.name}={p.name}" for p in self.parameters)
            lines += [f"if rt.dimensions({array}) == 2:", f"    return {many}({given}, out=out)"]
        if self.twin:
            arrays = [p.name for p in self.parameters if p.type.startswith("ArrayLike")]
            out = ", out=out" if self.arrays else ""
            # by name: the two may order their parameters differently
            given = ", ".join(f"{p.name}={p.name}" for p in self.parameters)
            lines += [f"if rt.is_complex({', '.join(arrays)}):", f"    return {self.twin}({given}{out})"]
        many = len(self.arrays) > 1
        slots = {r.slot: f"_out[{i}]" if many else "out" for i, r in enumerate(self.arrays)}
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
        values = [r.value.replace("{out}", slots.get(r.slot, "out")) for r in self.results]
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
        sentences = re.sub(r"\bNull (\w+):", r"Without \1:", sentences)
        if self.export.name != "MemoryRelease":  # what is to be given back is given back here
            sentences = re.sub(r"[A-Z][^.]* QvMemoryRelease[^.]*\.", "", sentences).strip()
        head, _, rest = (re.split(r"(?<![. ])(?<![ (][A-Z])\.( )(?=[A-Z])", sentences, 1) + ["", ""])[:3]
        if export.sentences[0].endswith("..."):  # a formula that goes on and on
            head, rest = export.sentences[0], sentences.removeprefix(export.sentences[0]).strip()
        text = [head if head.endswith("...") else head.rstrip(".") + ".", ""]
        if rest:
            text += [rest, ""]
        if self.parameters:
            text += ["Parameters", "----------"]
            for p in self.parameters:
                if p.type == "bool":
                    p.meaning = re.sub(r"^(?:other than|not) 0(:|) ", r"true\1 ", p.meaning)
                    p.meaning = re.sub(r"^0(:|) (.*)(?:; otherwise|, anything else) ", r"false\1 \2; true\1 ", p.meaning)
                default = "" if p.default is None else f", default {p.default}"
                text += [f"{p.name} : {p.words}{default}"]
                text += ["    " + p.meaning] if p.meaning else []
            if self.arrays:
                which = f"the array for `{self.arrays[0].name}`" if len(self.arrays) == 1 else (
                    "arrays for " + ", ".join(f"`{r.name}`" for r in self.arrays) + ", or None for one to be made")
                may = "it" if len(self.arrays) == 1 else "each"
                text += ["out : array or None" if len(self.arrays) == 1 else "out : tuple or None",
                         f"    {which}; {may} may be an input, to work in place"]
            text += [""]
        text += ["Returns", "-------"]
        if export.result == "status":
            text += [line for r in self.results
                     for line in [f"{r.name} : {r.words}"] + (["    " + r.meaning] if r.meaning else [])] or ["None"]
        else:
            text += [self.returns] if not self.results else [f"{r.name} : {r.words}" for r in self.results]
        text += [""]
        for title, kind, sign in (("Raises", "QuorvanError", -1), ("Warns", "QuorvanWarning", 1)):
            statuses = [(code, why) for code, why in export.statuses if code * sign > 0]
            if statuses:
                text += [title, "-" * len(title), kind]
                text += [f"    {code}: {why}" for code, why in statuses] + [""]
        notes = []
        if self.elementwise:
            notes.append("Arrays are taken element by element, with broadcasting.")
        if self.twin:
            notes.append(f"Complex arrays go to `{self.twin}`.")
        if self.name in choices.MANY:
            notes.append("A `{}` of two dimensions goes to `{}`.".format(*choices.MANY[self.name]))
        notes += [remark for pattern, remark in choices.REMARKS.items() if re.fullmatch(pattern, export.name)]
        notes.append(f"The function {export.symbol} ({export.name}) of the C library.")
        text += ["Notes", "-----", " ".join(notes), ""]
        text += ["Example", "-------", f">>> {self.example()}"]
        words = "\n".join(self.without_c(line) if line.startswith("    ") else line for line in text)
        words = translated(words, names, export.name)
        for a in export.arguments:
            if a.name != parameter_name(a.name):
                words = re.sub(rf"\b{a.name}\b", parameter_name(a.name), words)
        return [piece for line in words.split("\n") for piece in self.wrapped(line)]

    @staticmethod
    def without_c(line):
        """A meaning without what only a caller in C can do: pass null, or one array twice."""
        line = re.sub(r"[;,] null(:| writes| ).*", "", line)
        line = re.sub(r"; (?:written )?(?:only together|give the \w+) with .*|; give the \w+ with it", "", line)
        line = re.sub(r"[;.] (?:it |It )?may be x( where that has room)?$", "", line)
        return re.sub(r"\bnull\b", "None", line)

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
        export, lines = self.export, []
        if self.has_class:
            lines += [f"class {self.result_class}(NamedTuple):", f'    """What `{self.name}` gives."""', ""]
            lines += [f"    {r.name}: {r.type.replace('NDArray', 'np.ndarray').split('[')[0]}" if "NDArray" in r.type
                      else f"    {r.name}: {r.type.replace('WindowProperties', 'rt.WindowProperties')}"
                      for r in self.results] + ["", ""]
        body = self.body()
        if self.elementwise:  # the work on scalars stands by itself, for a quick pass over the elements of arrays
            assert not any(code > 0 for code, _ in export.statuses), "a warning would point a frame too low"
            arguments = ", ".join(p.name for p in self.parameters)
            made = f", result={self.result_class}" if self.has_class else ""
            lines += [f"def _{self.name}({arguments}):"]
            lines += [piece for line in body for piece in self.folded("    " + line)] + ["", ""]
            body = [f"if rt.many({arguments}):", f"    return rt.each(_{self.name}, {arguments}{made})",
                    f"return _{self.name}({arguments})"]
        lines.append(f"def {self.name}({self.signature()}):")
        doc = self.documentation(names)
        lines.append(f'    r"""{doc[0]}')
        lines += ["    " + line if line else "" for line in doc[1:]] + ['    """']
        lines += [piece for line in body for piece in self.folded("    " + line)]
        letters = "".join("p" if a.direction in ("in", "out", "inout", "alloc", "handle") else
                          "l" if a.direction == "size" else LETTERS[a.type] for a in self.export.arguments)
        result = "handle" if self.export.result.startswith("handle") else self.export.result
        bind = f'_{self.export.symbol} = rt.bind("{self.export.symbol}", "{result}", "{letters}")'
        return bind + "\n\n\n" + "\n".join(lines) + "\n"

    def stub(self, twin=None):
        """The lines of the stub. Overloads are told from the most special one to the most general; those that it
        overlaps have other results, which a checker would have us confirm."""
        bases = "NamedTuple, Generic[_Element]" if self.elementwise else "NamedTuple"
        lines = [f"class {self.result_class}({bases}):", *(self.field(r) for r in self.results), ""]
        lines = lines if self.has_class else []
        plain = f"def {self.name}({self.typed_signature()}) -> {self.returns}: ..."
        if self.elementwise:
            returns, arrays = self.element_returns()
            parameters = ", ".join(f"{p.name}: ArrayLike" + (" | None = None" if p.default == "None" else "")
                                   for p in self.parameters)
            return lines + ["@overload",
                            f"def {self.name}({self.typed_signature()}) -> {returns}: ...  # type: ignore[misc]",
                            "@overload", f"def {self.name}({parameters}) -> {arrays}: ..."]
        if twin is None or twin.returns == self.returns:
            return lines + [plain]
        for i, p in enumerate(self.parameters):
            if p.type.startswith("ArrayLike"):
                leaves_out = any(other.default is not None for other in self.parameters[:i])
                for by_name in (False, True) if leaves_out else (False,):
                    signature = self.typed_signature(p, twin, by_name)
                    lines += ["@overload", f"def {self.name}({signature}) -> {twin.returns}: ...  # type: ignore[misc]"]
        return lines + ["@overload", plain]

    def field(self, result):
        """A field of a result; the names of a tuple's own methods are taken knowingly."""
        kind = "_Element" if self.elementwise else result.type
        return f"    {result.name}: {kind}" + ("  # type: ignore[assignment]" if hasattr(tuple, result.name) else "")

    def element_returns(self):
        """What comes of numbers, and what of arrays."""
        if self.has_class:
            return f"{self.result_class}[float]", f"{self.result_class}[NDArray[np.float64]]"
        return self.returns, {"float": "NDArray[np.float64]", "complex": "NDArray[np.complex128]"}[self.returns]
