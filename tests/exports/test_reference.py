"""The reference pages tell all that the table tells, under every number and every name."""

import re

import boundary
import pytest
import reference

FAMILIES = boundary.read_table()
PAGES = reference.Pages(FAMILIES)


def test_every_family_has_its_place_in_the_contents():
    assert sorted(name for _, names in reference.PARTS for name in names.split()) == sorted(f.name for f in FAMILIES)


def test_all_numbers_lead_to_their_names_and_families():
    page = "\n".join(PAGES.numbers())
    rows = re.findall(r"\* - :c:func:`ZemFunc(\d+)`\n     - :c:func:`Qv(\w+)`\n     - :doc:`(\w+)`", page)
    wanted = sorted((e.number, e.name, f.name) for f in FAMILIES for e in f.exports)
    assert [(int(number), name, family) for number, name, family in rows] == wanted and len(rows) == 491


@pytest.mark.parametrize("family", FAMILIES, ids=lambda family: family.name)
def test_page_shows_formulas_and_every_function_with_its_statuses(family):
    page = "\n".join(PAGES.family(family))
    for word, lines in family.blocks:
        assert word == "intro" or "\n".join(f"   {line}" for line in lines) in page
    for export in family.exports:
        function = "\n".join(PAGES.function(export))
        assert function in page
        assert f"Qv{export.name}(" in function and f" {export.symbol}(" in function
        for code, _ in export.statuses:
            assert f":ref:`{code} <status{code}>`" in function or f"- {code}: " in function
        for argument in export.arguments:
            assert f":param {argument.name}: " in function or not argument.doc


@pytest.mark.parametrize("sentences, wanted", [
    (["The mean, sum(x) / n.", "Always succeeds."], "The mean, sum(x) / n"),
    (["Steps by method (Hoare,", "1961). More."], "Steps by method (Hoare, 1961)"),
    (["A cosine sum of 0.5, 0.25. n = 1 leaves x."], "A cosine sum of 0.5, 0.25"),
    (["The scheme of J. H. Wilkinson. More."], "The scheme of J. H. Wilkinson"),
])
def test_purpose_is_the_first_sentence(sentences, wanted):
    export = boundary.Export(1, "Name", "Name", "status", False, "family", sentences=sentences)
    assert reference.purpose(export) == wanted


def test_statuses_lead_back_to_the_functions_that_give_them():
    page = "\n".join(PAGES.statuses())
    for code in PAGES.codes:
        part = page.partition(f".. _status{code}:")[2].partition(".. _status")[0]
        givers = [e.name for f in FAMILIES for e in f.exports if code in [c for c, _ in e.statuses]]
        if len(givers) <= reference.MANY:
            assert re.findall(r":c:func:`Qv(\w+)`", part) == givers
        else:
            assert f"Given by {len(givers)} functions" in part


def test_names_in_texts_become_links():
    assert PAGES.prose("as QvArrAdd, ArrCopy's, ZemFunc3; see iir_design, a_b") == (
        r"as :c:func:`QvArrAdd <QvArrAdd>`, :c:func:`ArrCopy <QvArrCopy>`\ 's, :c:func:`ZemFunc3`; see :doc:`iir_design`, a\_b")


def test_dead_link_is_found(tmp_path):
    (tmp_path / "a.html").write_text('<a id="here" href="b.html#there">b</a> <a href="c.html">c</a> <a href="#here">a</a>')
    (tmp_path / "b.html").write_text('<p id="elsewhere"></p><a href="https://quorvan.example/">out</a>')
    assert sorted(reference.dead_links(tmp_path.resolve())) == ["a.html: b.html#there", "a.html: c.html"]
