#!/usr/bin/env python3
"""Outside the FFT kernels no unit that is compiled for wide registers holds a fused multiply-add.

    fused_products.py FOLDER

The folder holds the objects, below quorvan_SET.dir. Contraction is off, so that stated orders of operations round alike
on every machine; but GCC 12 still fuses where it meets its pattern of interleaved complex products (vfmaddsub,
vfmsubadd).
Without objdump, or without wide registers, nothing can be looked at, and the exit code is 77.
"""

import pathlib
import re
import shutil
import subprocess
import sys

SETS = ("avx2", "avx512")
SKIPPED = 77

# Where only the level of rounding counts.
EXEMPT = (
    "transforms/kernels/",  # straight-line transforms, which fuse on purpose
    "transforms/fft_loops.target.cpp",  # passes of the FFT cores around them, held to the same level
)

FUSED = re.compile(r"^\s*[0-9a-f]+:\s+(vfn?m(?:add|sub)\w*)", re.MULTILINE)


def fused_instructions(unit):
    listing = subprocess.run(["objdump", "-d", "--no-show-raw-insn", unit], check=True, capture_output=True, text=True)
    return FUSED.findall(listing.stdout)


def main():
    if shutil.which("objdump") is None:
        print("no objdump here")
        raise SystemExit(SKIPPED)
    folder = pathlib.Path(sys.argv[1])
    if not (folder / "quorvan_baseline.dir").is_dir():
        raise SystemExit(f"no objects below {folder}")
    if not any((folder / f"quorvan_{instruction_set}.dir").is_dir() for instruction_set in SETS):
        print("this build has no wide registers")
        raise SystemExit(SKIPPED)
    errors, seen = [], 0
    for instruction_set in SETS:
        room = folder / f"quorvan_{instruction_set}.dir"
        units = {path.relative_to(room).as_posix(): path for path in room.rglob("*.target.cpp.o*")}
        kernels = [path for name, path in units.items() if name.startswith("transforms/kernels/")]
        if not any(map(fused_instructions, kernels)):
            errors.append(f"{instruction_set}: not even the kernels fuse, so this test sees nothing")
        for name, path in sorted(units.items()):
            if name.startswith(EXEMPT):
                continue
            seen += 1
            if fused := fused_instructions(path):
                errors.append(f"{instruction_set}: {name} holds {len(fused)} fused instructions: {sorted(set(fused))}")
    print(f"{seen} objects looked at")
    raise SystemExit("\n".join(errors) or None)


if __name__ == "__main__":
    main()
