"""The gallery's page belongs to its programs, and its pictures to the page."""

import ast
import re

import boundary
import gallery
import python_names
import quorvan as qv

DOCS = boundary.ROOT / "docs"
ENTRIES = list(gallery.entries())


def test_page_shows_the_programs_that_draw():
    assert (DOCS / "gallery.md").read_text() == gallery.page(), "out of date, run make gallery"


def test_pictures_are_those_of_the_page():
    names = [name for _, name, *_ in ENTRIES]
    assert len(set(names)) == len(names)
    assert sorted(path.stem for path in (DOCS / "gallery").iterdir()) == sorted(names)


def test_programs_call_what_the_package_has():
    for _, name, _, program, _ in ENTRIES:
        for node in ast.walk(ast.parse(program)):
            if isinstance(node, ast.Attribute) and isinstance(node.value, ast.Name) and node.value.id == "qv":
                assert hasattr(qv, node.attr), (name, node.attr)


def test_every_window_generator_design_and_fit_has_its_picture():
    shown = set(re.findall(r"\bqv\.(\w+)", "\n".join(program for *_, program, _ in ENTRIES)))
    table = {f.name: [e.name for e in f.exports] for f in boundary.read_table()}
    wanted = set(table["generators"])
    wanted |= {name for name in table["random"] if "Noise" in name}
    wanted |= {name for name in table["windows"] if not re.search("Complex|Apply|Properties|Taper20", name)}
    wanted |= {name for name in table["fir_windows"] + table["fir_equiripple"] if re.search("(low|high|band)(pass|stop)$",
                                                                                           name, re.I)
               and "Filter" not in name}
    wanted |= {"FitLine", "FitExponential", "FitPower", "FitLogarithm", "FitGaussian", "FitPolynomial", "FitNonlinear",
               "FitGeneralLinear"}
    assert not {python_names.function_name(name) for name in wanted} - shown
