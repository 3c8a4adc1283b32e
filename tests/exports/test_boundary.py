"""The table is refused as soon as it contradicts itself: what is derived from it could not be trusted."""

import re
import shutil

import boundary
import library
import pytest


@pytest.fixture
def table(tmp_path, monkeypatch):
    copy = tmp_path / "table"
    shutil.copytree(boundary.TABLE, copy)
    monkeypatch.setattr(boundary, "TABLE", copy)
    return copy


def replace(path, old, new):
    text = path.read_text()
    assert text.count(old) >= 1
    path.write_text(text.replace(old, new, 1))


def test_all_491_numbers_are_listed_once_each():
    numbers = [e.number for f in boundary.read_table() for e in f.exports]
    assert sorted(numbers) == boundary.ALL_NUMBERS and len(numbers) == 491


def test_generated_files_repeat_no_name():
    names = [e.name for f in boundary.read_table() for e in f.exports]
    assert len(set(names)) == 491


def test_introduction_is_paragraphs_and_formulas(table):
    replace(table / "peaks", "title", "intro  One,\nintro  two.\nformula a  = b\nformula  c = d\nintro\nintro  Three.\nintro\n"
            "intro  Four.\ntitle")
    family = next(f for f in boundary.read_table() if f.name == "peaks")
    assert family.blocks[:3] == [("intro", ["One,", "two."]), ("formula", ["a  = b", "c = d"]), ("intro", ["Three."])]
    assert family.blocks[3][0] == "intro" and family.blocks[3][1][0] == "Four."
    assert " *     a  = b\n" in boundary.header([family])


@pytest.mark.parametrize("family", boundary.read_table(), ids=lambda family: family.name)
def test_family_begins_with_what_it_is_for_and_shows_its_formulas(family):
    words = [word for word, _ in family.blocks]
    assert words[0] == "intro" and words[-1] == "intro"
    assert "formula" in words or family.name == "memory"


@pytest.mark.parametrize("family, old, new, message", [
    ("peaks", "194 PeakDetect", "3 PeakDetect", "ZemFunc3: listed twice"),
    ("peaks", "194 PeakDetect", "199 PeakDetect", "ZemFunc199: listed twice or not one of the numbers"),
    ("peaks", "194 PeakDetect", "194 ArrAdd", "ArrAdd: the name is taken"),
    ("peaks", "family peaks", "family summits", "the family is not the file's name"),
    ("peaks", "width + 1", "breadth + 1", "speaks of breadth"),
    ("peaks", "width + 1", "threshold + 1", "speaks of threshold"),
    ("peaks", "width + 1", "width +", "is not an expression"),
    ("peaks", "width + 1", "width ** 2", "not a shape"),
    ("peaks", "out    int64 count", "to     int64 count", "not an argument"),
    ("peaks", "out    int64 count", "out    count", "type missing"),
    ("memory", "  > Frees one block that the library handed out, whatever it holds.\n  > A null pointer is ignored.\n", "",
     "implemented, but not documented"),
])
def test_contradiction_is_refused(table, family, old, new, message):
    replace(table / family, old, new)
    with pytest.raises(SystemExit, match=re.escape(message)):
        boundary.read_table()


def test_number_that_goes_missing_is_told(table):
    text = (table / "integration").read_text()
    (table / "integration").write_text(text[:text.index("230 ")])
    with pytest.raises(SystemExit, match=r"not these numbers: \[230\]"):
        boundary.read_table()


def test_numbers_of_a_family_without_a_file_are_listed_as_missing(table):
    (table / "integration").unlink()
    assert boundary.unlisted(boundary.read_table()) == [230]


def test_second_name_takes_the_arguments_of_its_entry():
    exports = {e.number: e for f in boundary.read_table() for e in f.exports}
    for alias, entry in ((339, 130), (338, 131), (375, 374)):
        assert exports[alias].arguments == exports[entry].arguments
        assert exports[alias].planned == exports[entry].planned


@pytest.mark.parametrize("number, prototype", [
    (194, "QvStatus ZemFunc194(const double* x, int64_t n, double threshold, int64_t width, uint32_t polarity, "
          "uint32_t first, int32_t last, int64_t* count, double** locations, double** amplitudes, "
          "double** secondDerivatives)"),
    (233, "QvIirFilter* ZemFunc233(uint32_t kind, int32_t order)"),
    (131, "QvStatus ZemFunc131(const double* x, const double* y, double* fitted, int64_t n, int32_t limit, "
          "QvModel model, double* coefficients, int32_t m, double* meanSquaredError)"),
    (408, "QvStatus ZemFunc408(int32_t taps, double fs, const QvBand* bands, int64_t count, int32_t kind, double* h, "
          "double* delta)"),
    (491, "QvFirNarrowband* ZemFunc491(void)"),
    (318, "double ZemFunc318(double m, const double* phi)"),
])
def test_prototype_follows_the_table(number, prototype):
    export = next(e for f in boundary.read_table() for e in f.exports if e.number == number)
    assert export.prototype == prototype


def test_every_argument_has_a_type_for_the_python_side():
    for family in boundary.read_table():
        for export in family.exports:
            for argument in export.arguments:
                kind = library.argument_type(argument)
                assert not isinstance(kind, library.Address) or kind.dtype is not None, (export.symbol, argument.name)
