#!/usr/bin/env python3
"""Derives the Python package from exports/table: its functions, selections and stubs.

    tools/python_binding.py            writes the generated files of bindings/python/quorvan
    tools/python_binding.py --check    fails if one of them would change

What the table leaves open is decided in tools/python_choices.py. Planned exports are left out.

From a C signature to a Python one:
  - An argument that tells the size of an input array goes; the array's shape tells it. A shape that is a product has
    that many dimensions.
  - Outputs go; they are the results, in their order: one by itself, several as a named tuple. Scalars that are read and
    written come last, states and guesses where they stand.
  - An array that is read and written becomes an input that stays as it is. One that the library replaces only where its
    output is null is an input from the start.
  - The array results can be given with out=: one array, or a tuple of as many as there are. out may be an input.
  - What may be null is None by default. Parameters with a default stand behind those without, both in the table's
    order.
  - Functions of scalars alone take arrays too, element by element.
  - A function with a complex twin that takes the same parameters calls it where an array is complex.
"""
import ast
import re
import sys
import textwrap

import boundary
import python_choices as choices
from python_function import Function
from python_names import translated
from python_text import COMPLEX_ARRAY, WIDTH

PACKAGE = boundary.ROOT / "bindings" / "python" / "quorvan"
SOURCES = PACKAGE  # what is written by hand
GENERATED = "Generated from exports/table by tools/python_binding.py; do not edit."


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
    """Whether the twin takes all parameters of the real form, its own by default, and complex arrays where those are
    double."""
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
        taken = short in made or short in choices.ALIASES
        if function.twin and short != name and name not in choices.TWINS and not taken:
            found[short] = name
    found.update({short: name for short, name in choices.ALIASES.items() if name in made})
    return dict(sorted(found.items()))


def family_module(family, own, names, made):
    text = [f'r"""{family.title}.', ""]
    for word, lines in family.blocks:
        told = [translated(line, names) for line in lines]
        text += [f"    {line}" for line in told] if word == "formula" else textwrap.wrap(" ".join(told), WIDTH)
        text += [""]
    text += [GENERATED, '"""', "", "import ctypes", "from typing import NamedTuple", "", "import numpy as np", "",
             "from .. import _runtime as rt", "from .._selections import *", ""]
    text += ["_max, _min = max, min", "", ""]
    twins = {f.twin for f in own if f.twin} - {f.name for f in own}
    body = "\n\n".join(function.text(names) for function in own)
    if twins:
        away = sorted((made[name].export.family, name) for name in twins)
        text[-3:-3] = [f"from .{module} import {name}" for module, name in away]
    return "\n".join(text) + body


def selections_module():
    text = [f'"""What integer arguments choose. {GENERATED}"""', "", "import enum", ""]
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


def objects(made):
    """The classes of _objects.py whose functions are there: those that it offers."""
    found = []
    for node in ast.parse((SOURCES / "_objects.py").read_text()).body:
        if isinstance(node, ast.ClassDef) and not node.name.startswith("_") and node.name != "Stream":
            needed = [text.value for decorator in node.decorator_list for text in decorator.args]
            if all(name in made for name in needed):
                found.append(node.name)
    return found


def stub_module(made):
    text = [f"# The signatures of the package. {GENERATED}", "import enum", "from collections.abc import Callable",
            "from typing import Any, Generic, NamedTuple, TypeVar, overload", "", "import numpy as np",
            "from numpy.typing import ArrayLike, NDArray", "from typing_extensions import TypeAlias", "",
            *(f"from ._objects import {name} as {name}" for name in objects(made)),
            "from ._runtime import Handle as Handle",
            "from ._runtime import QuorvanError as QuorvanError",
            "from ._runtime import QuorvanWarning as QuorvanWarning",
            "from ._runtime import WindowProperties as WindowProperties", "",
            f"{COMPLEX_ARRAY}: TypeAlias = NDArray[np.complexfloating[Any, Any]]",
            '_Element = TypeVar("_Element", float, NDArray[np.float64])', "", "__version__: str", ""]
    for name, (_, members, _, _) in choices.SELECTIONS.items():
        kind = "IntFlag" if name.endswith("Flags") else "IntEnum"
        text += [f"class {name}(enum.{kind}):"]
        text += [f"    {member} = {value}" for member, value in members.items()] + [""]
    for function in made.values():
        text += function.stub(made.get(function.twin))
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
