#!/usr/bin/env python3
"""Outside the FFT kernels no unit that is compiled for wide registers holds a fused multiply-add.

    fused_products.py FOLDER

The folder holds the objects, below quorvan_SET.dir. Contraction is off, so that stated orders of operations round alike
on every machine; but GCC 12 still fuses where it meets its pattern of interleaved complex products (vfmaddsub,
vfmsubadd).
Without objdump, without wide registers, and in an unoptimised build, where not even the kernels fuse, nothing can be
seen, and the exit code is 77.
"""

import pathlib
import re
import shutil
import subprocess
import sys

ROOT = pathlib.Path(__file__).resolve().parents[2]
SETS = ("avx2", "avx512")
SKIPPED = 77

# Where only the level of rounding counts.
KERNELS = "transforms/kernels/"
EXEMPT = (
    KERNELS,  # straight-line transforms, which fuse on purpose
    "transforms/fft_loops.target.cpp",  # passes of the FFT cores around them, held to the same level
)

FUSED = re.compile(r"^\s*[0-9a-f]+:\s+(vfn?m(?:add|sub)\w*)", re.MULTILINE)


def fused_instructions(unit):
    listing = subprocess.run(["objdump", "-d", "--no-show-raw-insn", unit], check=True, capture_output=True, text=True)
    return FUSED.findall(listing.stdout)


def skip(why):
    print(why)
    raise SystemExit(SKIPPED)


def main():
    if shutil.which("objdump") is None:
        skip("no objdump here")
    folder = pathlib.Path(sys.argv[1])
    if not (folder / "quorvan_baseline.dir").is_dir():
        raise SystemExit(f"no objects below {folder}")
    errors, seen, kernels = [], 0, 0
    for instruction_set in SETS:
        room = folder / f"quorvan_{instruction_set}.dir"
        for path in sorted(room.rglob("*.target.cpp.o*")):
            name = path.relative_to(room).as_posix()
            if not (ROOT / name[: name.rindex(".")]).exists():
                continue  # left by a unit that is gone
            if name.startswith(KERNELS):
                kernels += len(fused_instructions(path))
            if name.startswith(EXEMPT):
                continue
            seen += 1
            if fused := fused_instructions(path):
                errors.append(f"{instruction_set}: {name} holds {len(fused)} fused instructions: {sorted(set(fused))}")
    if not kernels and not errors:
        skip("nothing fuses in this build, not even the kernels")
    print(f"{seen} objects looked at")
    raise SystemExit("\n".join(errors) or None)


if __name__ == "__main__":
    main()
