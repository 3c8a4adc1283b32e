"""Sphinx configuration of the reference; tools/reference.py writes the pages beside a copy of this file."""

project = "Quorvan"
author = "The Quorvan authors"
copyright = "2026, The Quorvan authors"
html_theme = "alabaster"
html_theme_options = {"description": "Numerical analysis for measurement, test and signal processing",
                      "page_width": "1280px", "sidebar_width": "260px", "fixed_sidebar": True}
html_sidebars = {"**": ["about.html", "navigation.html", "searchbox.html"]}
html_copy_source = False
add_function_parentheses = False
smartquotes = False  # formulas have plain ones
primary_domain = "c"
highlight_language = "c"
nitpicky = True
nitpick_ignore = [("c:identifier", name) for name in ("int32_t", "int64_t", "uint32_t", "size_t")]
