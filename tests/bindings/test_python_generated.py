"""The generated files belong to the table, and the stubs to the functions."""

import ast
import enum
import inspect
import pathlib
import re

import pytest

import arguments
import boundary
import python_binding
import python_choices as choices
import python_names
import quorvan as qv

MODELS = arguments.models()


def test_generated_files_are_current():
    for path, text in python_binding.outputs().items():
        assert path.read_text() == text, f"{path.name} is out of date, run tools/python_binding.py"


@pytest.fixture
def package(tmp_path, monkeypatch):
    monkeypatch.setattr(python_binding, "PACKAGE", tmp_path)
    monkeypatch.setattr(boundary, "ROOT", tmp_path)
    monkeypatch.setattr(python_binding.sys, "argv", ["python_binding.py"])
    python_binding.main()
    return tmp_path


def check(monkeypatch):
    monkeypatch.setattr(python_binding.sys, "argv", ["python_binding.py", "--check"])
    python_binding.main()


def test_stale_file_is_told(package, monkeypatch):
    check(monkeypatch)
    file = package / "_functions" / "spectrum.py"
    file.write_text(file.read_text().replace("dt=1.0", "dt=2.0", 1))
    with pytest.raises(SystemExit, match="spectrum.py"):
        check(monkeypatch)


def test_file_of_a_family_that_is_gone_is_told(package, monkeypatch):
    (package / "_functions" / "gone.py").write_text("")
    with pytest.raises(SystemExit, match="gone.py"):
        check(monkeypatch)


def test_planned_exports_have_no_function_until_they_land(monkeypatch):
    families = boundary.read_table()
    spectrum = next(f for f in families if f.name == "spectrum")
    export = next(e for e in spectrum.exports if e.name == "SpecPowerSpectrum")
    export.planned = True
    assert "power_spectrum" not in python_binding.functions(families)
    export.planned = False
    assert "power_spectrum" in python_binding.functions(families)


def test_every_export_can_be_made_planned_or_not():
    families = boundary.read_table()
    for family in families:
        for export in family.exports:
            export.planned = False
    made = python_binding.functions(families)
    assert sorted(f.export.number for f in made.values()) == boundary.ALL_NUMBERS
    names = {f.export.name: f.name for f in made.values()}
    for function in made.values():
        ast.parse(function.text(names))
        ast.parse("\n".join(function.stub()))


@pytest.mark.parametrize("name, wanted", [
    ("SpecPowerSpectrum", "power_spectrum"), ("ArrAdd2D", "array_add_2d"), ("CxArrAdd", "complex_array_add"),
    ("CxLog10", "complex_log10"), ("WinBlackmanHarris3Complex", "window_blackman_harris3_complex"),
    ("Convolve2DReal", "convolve_2d_real"), ("SpecHyperg1F1", "hyperg_1f1"), ("DistTCdf", "t_cdf"),
    ("MatSvdModeComplex", "svd_mode_complex"), ("FitLine", "fit_line"), ("SpecBesselJ", "bessel_j"),
    ("IirFilterComplexButterworthLowpass", "iir_filter_complex_butterworth_lowpass"),
])
def test_names_follow_the_rule(name, wanted):
    assert python_names.function_name(name) == wanted


def test_stub_tells_the_signatures():
    stub = ast.parse((python_binding.PACKAGE / "__init__.pyi").read_text())
    told = {node.name: node.args for node in stub.body if isinstance(node, ast.FunctionDef)}
    assert set(told) == set(MODELS)
    for name, args in told.items():
        real = inspect.signature(getattr(qv, name)).parameters
        assert [a.arg for a in args.args] == [p.name for p in real.values() if p.kind == p.POSITIONAL_OR_KEYWORD], name
        assert [a.arg for a in args.kwonlyargs] == [p.name for p in real.values() if p.kind == p.KEYWORD_ONLY], name
        defaults = [p.default for p in real.values() if p.kind == p.POSITIONAL_OR_KEYWORD and p.default is not p.empty]
        assert len(args.defaults) == len(defaults), name


def test_stub_tells_all_names():
    told = set()
    for node in ast.parse((python_binding.PACKAGE / "__init__.pyi").read_text()).body:
        if isinstance(node, (ast.FunctionDef, ast.ClassDef)):
            told.add(node.name)
        elif isinstance(node, ast.Assign):
            told.add(node.targets[0].id)
        elif isinstance(node, ast.ImportFrom) and node.level:
            told.update(alias.asname for alias in node.names)
    assert {name for name in told if not name.startswith("_")} == set(qv.__all__)


def test_stub_tells_the_results():
    stub = ast.parse((python_binding.PACKAGE / "__init__.pyi").read_text())
    for node in stub.body:
        if isinstance(node, ast.ClassDef) and node.name.endswith("Result"):
            fields = [field.target.id for field in node.body if isinstance(field, ast.AnnAssign)]
            assert list(getattr(qv, node.name)._fields) == fields


@pytest.mark.parametrize("name", choices.SELECTIONS)
def test_every_selection_applies_somewhere(name):
    assert issubclass(getattr(qv, name), enum.IntEnum | enum.IntFlag)
    exports = [e for f in boundary.read_table() for e in f.exports]
    for pattern, argument in choices.SELECTIONS[name][2]:
        assert any(re.fullmatch(pattern, e.name) and any(a.name == argument for a in e.arguments) for e in exports)


def test_window_codes_are_those_of_the_header():
    header = (boundary.ROOT / "include" / "quorvan" / "types.h").read_text()
    codes = {name: int(code) for name, code in re.findall(r"QV_WINDOW_(\w+) = (\d+)", header)}
    assert codes == {member.name: member.value for member in qv.Window}


def test_choices_speak_of_the_table():
    """A choice whose pattern fits nothing was made for a name that has changed."""
    exports = [e for f in boundary.read_table() for e in f.exports]
    for pattern in choices.REMARKS:
        assert any(re.fullmatch(pattern, e.name) for e in exports), pattern
    for table in (choices.DEFAULTS, choices.SHAPES, choices.SIZES, choices.FIRST):
        for pattern, names in table:
            assert any(re.fullmatch(pattern, e.name) and any(re.fullmatch(names, a.name) for a in e.arguments)
                       for e in exports), (pattern, names)
    assert {e.name for e in exports} >= set(choices.NAMES) | set(choices.DISTINCT) | set(choices.SPECTRUM_IN_PLACE)


@pytest.mark.parametrize("name", MODELS)
def test_documentation_tells_parameters_and_statuses(name):
    function, text = MODELS[name], inspect.getdoc(getattr(qv, name))
    assert text.partition("\n\n")[0].endswith(".")
    for p in function.parameters:
        assert f"\n{p.name} : " in text
    for code, _ in function.export.statuses:
        assert f"    {code}: " in text
    assert function.export.symbol in text and f">>> {function.example()}" in text
    ast.parse(function.example())


def test_version_is_that_of_the_library():
    cmake = (boundary.ROOT / "CMakeLists.txt").read_text()
    version = re.search(r"project\(quorvan VERSION ([\d.]+)", cmake)[1]
    project = (python_binding.PACKAGE.parent / "pyproject.toml").read_text()
    assert qv.__version__ == version == re.search(r'^version = "(.+)"$', project, re.M)[1]


def test_package_holds_nothing_but_what_is_listed_or_private():
    public = {name for name in vars(qv) if not name.startswith("_")}
    assert public == set(qv.__all__)
    assert len(set(qv.__all__)) == len(qv.__all__)


def test_every_module_is_part_of_the_wheel():
    project = (python_binding.PACKAGE.parent / "pyproject.toml").read_text()
    folders = {p.parent.relative_to(python_binding.PACKAGE.parent).as_posix().replace("/", ".")
               for p in python_binding.PACKAGE.rglob("*.py")}
    assert folders == set(re.findall(r'"(quorvan[\w.]*)"', re.search(r"packages = (\[.*?\])", project)[1]))
    assert pathlib.Path(qv.__file__).with_name("py.typed").exists()


@pytest.mark.parametrize("name", MODELS)
def test_documentation_speaks_of_nothing_that_only_c_has(name):
    text = inspect.getdoc(getattr(qv, name))
    parameters = text.partition("Parameters\n")[2].partition("Raises\n")[0]
    assert not re.search(r"\bnull\b|in: .*; out: |\b(?:other than|not) 0:|may be x$|together with", parameters, re.M | re.I)
    if "release" not in name:
        assert "memory_release" not in text
