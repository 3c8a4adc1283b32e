"""Names, shapes and texts of the table as Python has them; a part of tools/python_binding.py."""

import ast
import re

import python_choices as choices

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

    def name(match):
        known = match[0] in names and match[0] != own
        return f"`{names[match[0]]}`" if known else match[0]
    return re.sub(r"\b[A-Z][A-Za-z0-9]+\b", name, words)
