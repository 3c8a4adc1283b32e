#!/usr/bin/env python3
"""The shared object exports exactly the implemented names of the table; says which of the 491 are not implemented yet,
and which of them no family lists.

    symbols.py LIBRARY
"""

import pathlib
import subprocess
import sys

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[2] / "tools"))
import boundary  # noqa: E402

# What the tool chain itself puts into every shared object.
TOOL_CHAIN = {"_init", "_fini", "_edata", "_end", "__bss_start"}


def main():
    families = boundary.read_table()
    wanted = {e.symbol: e for e in boundary.implemented(families)}
    listing = subprocess.run(["nm", "--dynamic", "--defined-only", sys.argv[1]], check=True, capture_output=True,
                             text=True).stdout
    address = {fields[2]: fields[0] for fields in map(str.split, listing.splitlines())}
    found = set(address) - TOOL_CHAIN
    errors = [f"not exported: {name}" for name in sorted(set(wanted) - found)]
    errors += [f"exported, but not an implemented name: {name}" for name in sorted(found - set(wanted))]
    for export in wanted.values():
        if export.same is not None and address.get(export.symbol) != address.get(f"ZemFunc{export.same}"):
            errors.append(f"{export.symbol} is not at the address of ZemFunc{export.same}")
    missing = [n for n in boundary.ALL_NUMBERS if f"ZemFunc{n}" not in wanted]
    print(f"{len(wanted)} of {len(boundary.ALL_NUMBERS)} names are exported; missing: {missing or 'none'}; "
          f"not listed: {boundary.unlisted(families) or 'none'}")
    raise SystemExit("\n".join(errors) or None)


if __name__ == "__main__":
    main()
