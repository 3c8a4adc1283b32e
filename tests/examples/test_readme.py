"""The program in the README compiles without a warning and prints what the README says."""

import os
import pathlib
import re
import subprocess

ROOT = pathlib.Path(__file__).resolve().parents[2]


def test_readme_program_prints_what_the_readme_says(tmp_path):
    readme = (ROOT / "README.md").read_text()
    program, output = (re.search(rf"```{kind}\n(.*?)```", readme, re.DOTALL)[1] for kind in ("c", "text"))
    source, binary = tmp_path / "first.c", tmp_path / "first"
    source.write_text(program)
    library = pathlib.Path(os.environ["QUORVAN_LIBRARY"])
    subprocess.run([os.environ.get("CC", "cc"), "-std=c99", "-Wall", "-Wextra", "-Wpedantic", "-Werror",
                    f"-I{ROOT / 'include'}", source, f"-L{library.parent}", "-lquorvan",
                    f"-Wl,-rpath,{library.parent}", "-o", binary], check=True)
    assert subprocess.run([binary], check=True, capture_output=True, text=True).stdout == output
