"""Runs a test program with another linear algebra provider than the one that the system's alternatives have chosen.

Debian keeps each provider in folders of its own below that of the chosen one: the reference libraries in blas/ and
lapack/, OpenBLAS in openblas-pthread/ and the like. Every set of folders that has both libraries and resolves to other
files is tried. Exit status 77 where there is none.
"""

import os
import re
import subprocess
import sys
from pathlib import Path

SKIPPED = 77
LIBRARIES = ("libblas.so.3", "liblapack.so.3")


def resolved(program, environment):
    """The files, behind all links, that the loader takes the two libraries from."""
    listing = subprocess.run(["ldd", program], env=environment, capture_output=True, text=True, check=True).stdout
    found = {}
    for library in LIBRARIES:
        match = re.search(rf"{re.escape(library)} => (\S+)", listing)
        if match:
            found[library] = Path(match.group(1))
    return found


def folder_sets(root):
    """Folders below `root` that together hold both libraries."""
    reference = [root / "blas", root / "lapack"]
    whole = [[folder] for folder in sorted(root.iterdir()) if all((folder / name).exists() for name in LIBRARIES)]
    return [reference] + whole if all(map(Path.is_dir, reference)) else whole


def main():
    program = sys.argv[1]
    default = resolved(program, os.environ)
    if len(default) < len(LIBRARIES):
        print("the program does not load the generic libraries")
        return SKIPPED
    chosen = {name: path.resolve() for name, path in default.items()}
    tried = [chosen]
    status = SKIPPED
    home = default[LIBRARIES[0]].parent  # itself below the common folder where the environment has chosen
    for folders in folder_sets(home) + folder_sets(home.parent):
        paths = [str(folder) for folder in folders]
        environment = dict(os.environ, LD_LIBRARY_PATH=":".join(paths))
        files = {name: path.resolve() for name, path in resolved(program, environment).items()}
        if files in tried or any(files.get(name) == chosen[name] for name in LIBRARIES):
            continue
        tried.append(files)
        print("with", " and ".join(str(file) for file in files.values()), flush=True)
        failed = subprocess.run([program, "--gtest_brief=1"], env=environment, check=False).returncode
        if failed:
            return 1
        status = 0
    if status == SKIPPED:
        print("no second provider is installed")
    return status


sys.exit(main())
