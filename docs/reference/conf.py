"""Sphinx configuration of the reference; tools/reference.py writes the pages beside a copy of this folder."""

from sphinx.addnodes import index
from sphinx.domains.c import CDomain

project = "Quorvan"
author = "The Quorvan authors"
copyright = "2026, The Quorvan authors"
html_title = "Quorvan"
html_theme = "theme"
html_theme_path = ["."]
html_copy_source = False
html_show_sphinx = False
add_function_parentheses = False
add_module_names = False
toc_object_entries = False
smartquotes_action = "D"  # dashes only: formulas have plain quotes
primary_domain = "c"
highlight_language = "c"
nitpicky = True
nitpick_ignore = [("c:identifier", name) for name in ("int32_t", "int64_t", "uint32_t", "size_t")]


class Functions(CDomain):
    """C without its parameters, among which a search would lose the functions."""

    def get_objects(self):
        return (one for one in super().get_objects() if one[2] != "functionParam")


def under_their_letters(app, doctree):
    """The index has each C name under its first letter behind the prefix, then the Python names; numbers have a table of
    their own. The search leads to the functions, and entries of the index, too, would only repeat their pages."""
    domain = app.env.get_domain("index")
    kept = []
    for kind, text, target, main, _ in domain.entries[app.env.docname]:
        name, _, rest = text.partition(" ")
        if not name.startswith("ZemFunc"):
            shown = f"{name.removesuffix('()')} (Python)" if "module quorvan" in rest else name
            kept.append((kind, shown, target, main, name.removeprefix("Qv")[0].upper()))
    domain.entries[app.env.docname] = kept
    for node in doctree.findall(index):
        node["entries"] = []


def setup(app):
    app.add_domain(Functions, override=True)
    app.connect("doctree-read", under_their_letters)
