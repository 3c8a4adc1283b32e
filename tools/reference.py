#!/usr/bin/env python3
"""Makes the reference pages from exports/table and frame/status_table.inc with Sphinx.

    tools/reference.py              writes build/reference/html
    tools/reference.py --output DIR writes DIR/html, and fails on a warning or a dead link

One page a family; each function under its name and its number; a page of all numbers, one of all statuses, one of the
types; Sphinx adds the index and the search.
"""

import argparse
import html.parser
import itertools
import pathlib
import re
import shutil
import subprocess
import sys
import urllib.parse

import boundary
import python_binding

MANY = 60  # functions that give one status; more than that say little of it

PARTS = (
    ("Frame", "status memory arrays complex"),
    ("Transforms", "plans transforms convolution time_domain"),
    ("Signal sources", "generators random windows"),
    ("Measurement", "spectrum tones peaks pulses pulse_parameters"),
    ("Statistics", "statistics distributions variance_analysis"),
    ("Special functions", "gamma bessel elliptic"),
    ("Filters", "filter_objects iir_design fir_windows fir_equiripple fir_narrowband direct_filters"),
    ("Polynomials and integration", "polynomial_roots polynomial_zeros multiple_roots integration"),
    ("Fits and interpolation", "linear_fits model_fits nonlinear_fit interpolation fit_bounds"),
    ("Linear algebra", "matrices decompositions eigenproblems"),
)

INDEX = """Quorvan reference
=================

Flat functions over plain arrays of doubles. Each has a number, which programs bind (``ZemFunc10``), and a readable name
(``QvSpecPowerSpectrum``): :doc:`numbers` leads from one to the other. The :ref:`genindex` has the names in C and in
Python, and the search knows all three.

Sizes are signed 64-bit and must fit 32 bits; -20046 follows otherwise, and nothing is touched. A size below the minimum
gives -20003 unless the function says otherwise. 0 is success, a positive status a warning with valid results, a negative
one an error (:doc:`statuses`). A complex number is a :c:struct:`QvComplex`; a matrix is row-major without gaps. Outputs
stand last; where one may be null, the function says what happens then. Null pointers are not detected elsewhere. Every
function may be called from any thread.

"""

CPP = """C++20
=====

``quorvan/quorvan.hpp`` puts a thin layer over the C functions: ``qv::call`` takes one of them with its arguments in
order, contiguous ranges where it wants pointers and ``qv::out`` where it writes a scalar. What comes back is a
``qv::Result``: the value, or several as a tuple, or a status below 0 with its text; ``value()`` throws ``qv::Error``
then. Objects of the library have owners: ``qv::FftPlan``, ``qv::IirFilter``, ``qv::IirStateComplex``,
``qv::FirNarrowband``; and ``qv::Array`` takes an array that the library allocated.

.. code-block:: cpp

   #include <quorvan/quorvan.hpp>

   std::vector<double> x = read(), power(x.size() / 2 + 1);
   const auto window = qv::call(QvWinApplyScaledPlain, x, x.size(), QV_WINDOW_HANNING, qv::out).value();
   const auto df = qv::call(QvSpecPowerSpectrum, x, x.size(), 1e-3, power, qv::out);
   if (!df) return std::puts(df.text());
   const auto [frequency, peak] =
       qv::call(QvSpecPeakPowerFrequency, power, x.size() / 2, -1, &window, *df, 5, qv::out, qv::out).value();

   const qv::IirFilter lowpass(QvIirFilterCreate(0, 4));
   qv::call(QvIirDesignButterworth, 1000, 100, 0, lowpass).value();
   qv::call(QvIirCascadeApply, x, x.size(), lowpass, x).value();

The room of an array is the caller's affair, as in C. Functions that give their value themselves (special functions)
need no layer. The whole of it:

.. literalinclude:: quorvan.hpp
   :language: cpp
"""


def escaped(text):
    return re.sub(r"([\\*_`|])", r"\\\1", text)


def purpose(export):
    """The first sentence of a function."""
    return re.split(r"(?<![. ])(?<! [A-Z])\. ", " ".join(export.sentences), 1)[0].rstrip(".")


class Pages:
    def __init__(self, families):
        self.families = {family.name: family for family in families}
        self.names = {e.name: e for f in families for e in f.exports if not e.planned}
        self.codes = self.status_rows()
        self.python = {f.export.name: f for f in python_binding.functions(families).values()}

    @staticmethod
    def status_rows():
        table = (boundary.ROOT / "frame" / "status_table.inc").read_text()
        rows = re.findall(r'QV_STATUS\((\w+), (-?\d+),\s*"(.*?)"\)', table, re.S)
        return dict((int(code), text) for _, code, text in reversed(rows))

    def prose(self, text):
        """Escaped, with names of functions and numbers as links; `arguments` stay as they are."""
        def link(match):
            word = match.group()
            if word[0] == "`":
                return f"`{word}`"
            bare = word.removeprefix("Qv")
            if word in self.families:
                return f":doc:`{word}`"
            if bare in self.names:
                return rf":c:func:`{word} <Qv{bare}>`"
            return f":c:func:`{word}`" if word.startswith("ZemFunc") else word
        words = re.compile(r"`\w+`|\b(?:[a-z]+_[a-z]+|ZemFunc\d+|(?:Qv)?[A-Z][a-z]+(?:[A-Z0-9][a-z0-9]*)+)\b")
        out, last = "", 0
        for match in words.finditer(text):
            linked = link(match)
            if linked == match.group():
                continue
            out += escaped(text[last:match.start()]) + linked
            last = match.end()
            if last < len(text) and (text[last].isalnum() or text[last] in "_'([{<"):
                out += "\\ "
        return out + escaped(text[last:])

    def function(self, export):
        arguments = ", ".join(a.c for a in export.arguments) or "void"
        lines = [f".. c:function:: {export.c_result} Qv{export.name}({arguments})",
                 f"                {export.c_result} {export.symbol}({arguments})", ""]
        python = self.python[export.name]
        lines += [f"   .. py:function:: {python.name}({python.signature()})", "      :module: quorvan", ""]
        lines += ["   " + self.prose(" ".join(export.sentences)), ""]
        lines += [f"   :param {a.name}: {self.prose(a.doc)}" for a in export.arguments if a.doc]
        if export.statuses:
            lines += ["   :returns: a status:", ""]
            for code, text in export.statuses:
                row = f":ref:`{code} <status{code}>`" if int(code) in self.codes else code
                lines.append(f"             - {row}: {self.prose(text)}")
        lines.append("")
        if export.examples:
            lines += ["   .. code-block:: c", "", *("      " + line for line in export.examples), ""]
        return lines

    def family(self, family):
        ready = [e for e in family.exports if not e.planned]
        lines = [family.title, "=" * len(family.title), ""]
        for word, told in family.blocks:
            if word == "formula":
                lines += [".. code-block:: none", "", *(f"   {line}" for line in told), ""]
            else:
                lines += [self.prose(" ".join(told)), ""]
        lines += [".. list-table::", "   :class: functions", "   :widths: 12 30 58", "   :header-rows: 1", "",
                  "   * - number", "     - name", "     - purpose"]
        for e in ready:
            lines += [f"   * - :c:func:`{e.symbol}`", f"     - :c:func:`Qv{e.name}`",
                      f"     - {self.prose(purpose(e))}"]
        lines += [""]
        for export in ready:
            lines += [export.name, "-" * len(export.name), "", *self.function(export)]
        return lines

    def numbers(self):
        lines = ["All numbers", "===========", "", ".. list-table::", "   :class: functions", "   :header-rows: 1", "",
                 "   * - number", "     - name", "     - family"]
        exports = sorted((e for f in self.families.values() for e in f.exports), key=lambda e: e.number)
        for e in exports:
            name = f"``Qv{e.name}`` (to come)" if e.planned else f":c:func:`Qv{e.name}`"
            number = f"``{e.symbol}``" if e.planned else f":c:func:`{e.symbol}`"
            lines += [f"   * - {number}", f"     - {name}", f"     - :doc:`{e.family}`"]
        return lines

    def statuses(self):
        lines = ["Statuses", "========", "", ":c:func:`QvStatusMessage` gives the text of a code.", ""]
        for code, text in sorted(self.codes.items(), key=lambda row: (row[0] < 0, abs(row[0]))):
            title = str(code)
            lines += [f".. _status{code}:", "", title, "-" * len(title), "", escaped(text.replace('\\"', '"')), ""]
            givers = [e for e in self.names.values() if any(other == code for other, _ in e.statuses)]
            if 0 < len(givers) <= MANY:
                lines += ["Given by " + ", ".join(f":c:func:`Qv{e.name}`" for e in givers) + ".", ""]
            elif givers:
                lines += [f"Given by {len(givers)} functions.", ""]
        return lines

    def types(self):
        """Each type and each list of codes of types.h with the comment that stands before it."""
        header = (boundary.ROOT / "include" / "quorvan" / "types.h").read_text()
        lines = ["Types", "=====", "", "From ``quorvan/types.h``.", ""]
        declarations = r"^/\*\*(.*?)\*/\n((?:typedef|enum)\b[^;{]*(?:\{.*?^\}[^;]*)?;)$"
        for comment, code in re.findall(declarations, header, re.S | re.M):
            indent = ""
            if code.startswith("typedef"):
                name = re.search(r"\w+(?=;$|\)\()", code).group()
                lines += [f".. c:{'struct' if code.startswith('typedef struct') else 'type'}:: {name}", ""]
                indent = "   "
            told = [re.sub(r"^ \*(?: |$)", "", line) for line in comment.strip().splitlines()]
            for formula, block in itertools.groupby(told, lambda line: line.startswith("    ")):
                block = list(block)
                text = ["", ".. code-block:: none", "", *block, ""] if formula else [self.prose(" ".join(block)), ""]
                lines += [indent + line for line in text]
            lines += [f"{indent}.. code-block:: c", "", *(f"{indent}   {line}" for line in code.splitlines()), ""]
        return lines

    def write(self, folder):
        def page(name, lines):
            (folder / f"{name}.rst").write_text("\n".join(lines) + "\n")
        index = [INDEX]
        listed = []
        for title, names in PARTS:
            listed += names.split()
            index += [f".. toctree::\n   :maxdepth: 1\n   :caption: {title}\n", *(f"   {name}" for name in names.split()), ""]
        unlisted = set(self.families) - set(listed)
        if unlisted:
            raise SystemExit(f"tools/reference.py: no part for {', '.join(sorted(unlisted))}")
        index += [".. toctree::\n   :maxdepth: 1\n   :caption: Tables\n",
                  *(f"   {name}" for name in ("numbers", "statuses", "types", "cpp"))]
        page("index", index)
        page("numbers", self.numbers())
        page("statuses", self.statuses())
        page("types", self.types())
        page("cpp", [CPP])
        shutil.copy(boundary.ROOT / "include" / "quorvan" / "quorvan.hpp", folder)
        for family in self.families.values():
            page(family.name, self.family(family))


class Links(html.parser.HTMLParser):
    """What a page leads to or is made of, and its anchors."""

    def __init__(self, text):
        super().__init__()
        self.targets, self.anchors = [], set()
        self.feed(text)

    def handle_starttag(self, tag, attributes):
        attributes = dict(attributes)
        self.anchors.update(filter(None, (attributes.get("id"), attributes.get("name"))))
        target = attributes.get("href" if tag in ("a", "link") else "src")
        if target:
            self.targets.append(target)


def dead_links(folder):
    pages = {path: Links(path.read_text()) for path in folder.rglob("*.html")}
    for path, links in pages.items():
        for target in links.targets:
            url = urllib.parse.urlparse(target)
            if url.scheme or url.netloc:
                continue
            other = (path.parent / urllib.parse.unquote(url.path)).resolve() if url.path else path
            if other.suffix != ".html" and other.is_file():
                continue
            if other not in pages or (url.fragment and urllib.parse.unquote(url.fragment) not in pages[other].anchors):
                yield f"{path.name}: {target}"


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("--output", type=pathlib.Path, default=boundary.ROOT / "build" / "reference")
    options = parser.parse_args()
    try:
        import sphinx  # noqa: F401
    except ImportError:
        print("tools/reference.py: Sphinx is missing (python3-sphinx)", file=sys.stderr)
        sys.exit(77)
    source, pages = options.output / "source", options.output / "html"
    for folder in (source, pages):
        shutil.rmtree(folder, ignore_errors=True)
    shutil.copytree(boundary.ROOT / "docs" / "reference", source)
    Pages(boundary.read_table()).write(source)
    print("making the pages, which takes about half a minute", flush=True)
    quiet = [] if sys.stdout.isatty() else ["-q"]  # Sphinx shows its progress
    subprocess.run([sys.executable, "-m", "sphinx", *quiet, "-W", "--keep-going", "-b", "html", "-d",
                    options.output / "doctrees", source, pages], check=True)
    dead = list(dead_links(pages.resolve()))
    if dead:
        sys.exit("dead links:\n" + "\n".join(dead))
    print(f"written: {pages / 'index.html'}")


if __name__ == "__main__":
    main()
