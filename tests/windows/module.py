"""quorvan.dll under Wine: what it exports and depends on, where its entry looks for the provider, what is left behind.

Each case lays out folders, files and the registry value, loads the module in a program of its own (loader.c) and
compares what that program saw. Run by CTest, with the folders of the build in the environment.
"""

import os
import pathlib
import re
import shutil
import subprocess
import sys
import zipfile

import pytest

ROOT = pathlib.Path(__file__).resolve().parents[2]
BUILD = pathlib.Path(os.environ["QUORVAN_BUILD"])
PROGRAMS = BUILD / "tests" / "windows"
PROVIDER = "ZR150000_BLASLAPACK.dll"

sys.path.insert(0, str(ROOT / "tools"))
import boundary  # noqa: E402


def wine(program, *arguments, cwd=None, code=0):
    done = subprocess.run([os.environ["WINE"], str(program), *arguments], cwd=cwd, capture_output=True, text=True,
                          timeout=120)
    assert done.returncode == code, (done.returncode, done.stdout, done.stderr)
    return done.stdout.splitlines()


def objdump(path):
    return subprocess.run([os.environ["QUORVAN_OBJDUMP"], "-p", path], check=True, capture_output=True, text=True).stdout


def windows(path):
    """The same path as a Windows program writes it."""
    return "Z:" + str(path).replace("/", "\\")


class Layout:
    """Three folders: of the library, of the sibling module, and two more where a provider may lie."""

    def __init__(self, folder):
        self.own, self.sibling, self.named, self.registered = (folder / name for name in
                                                               ("own", "sibling", "named", "registered"))
        for path in (self.own, self.sibling, self.named, self.registered):
            path.mkdir()
        self.loader = folder / "loader.exe"
        shutil.copy(PROGRAMS / "loader.exe", self.loader)
        shutil.copy(PROGRAMS / "merovant.dll", self.sibling)
        self.library = self.own / "quorvan.dll"
        os.link(BUILD / "quorvan.dll", self.library)

    def provider(self, folder, source=None):
        folder.mkdir(parents=True, exist_ok=True)
        shutil.copy(source or PROGRAMS / "lacking" / PROVIDER, folder)
        return folder

    def path_file(self, content):
        (self.sibling / "mklpath").write_bytes(content)

    def load(self, *arguments, sibling=True, code=0, library=None):
        extra = [f"sibling={windows(self.sibling / 'merovant.dll')}"] if sibling else []
        return wine(self.loader, f"quorvan={windows(library or self.library)}", *extra, *arguments,
                    cwd=self.loader.parent, code=code)


@pytest.fixture
def layout(tmp_path):
    # Paths of the system code page within its limits.
    return Layout(tmp_path)


def loaded_from(folder):
    return f"loaded {windows(folder / PROVIDER)}"


REFUSED = "refused nowhere"
FREED = "freed library gone provider gone"


# The folder that the path file names.

@pytest.mark.parametrize("end", ["", "\\"])
def test_the_path_file_comes_before_the_own_folder(layout, end):
    layout.provider(layout.named)
    layout.provider(layout.own)
    layout.path_file((windows(layout.named) + end).encode())
    assert layout.load() == [loaded_from(layout.named), FREED]


def test_a_path_file_that_names_a_folder_without_the_module_ends_the_search(layout):
    layout.provider(layout.own)
    layout.provider(layout.registered / "MKL" / "ZR150000_BLASLAPACK")
    layout.path_file(windows(layout.named).encode())
    assert layout.load(f"registry={windows(layout.registered)}") == [REFUSED]


@pytest.mark.parametrize("end", [b"\n", b"\r\n", b" x"])
def test_the_bytes_of_the_path_file_are_used_as_they_stand(layout, end):
    layout.provider(layout.own)
    layout.provider(layout.named)
    layout.path_file(windows(layout.named).encode() + end)
    assert layout.load() == [REFUSED]


def test_an_empty_path_file_is_a_missing_one(layout):
    layout.provider(layout.own)
    layout.path_file(b"")
    assert layout.load() == [loaded_from(layout.own), FREED]


def test_a_path_file_that_someone_writes_is_a_missing_one(layout):
    # It is opened for no one else, so that a folder of that name fails too.
    layout.provider(layout.own)
    (layout.sibling / "mklpath").mkdir()
    assert layout.load() == [loaded_from(layout.own), FREED]


def test_without_the_sibling_module_its_path_file_is_not_read(layout):
    layout.provider(layout.own)
    layout.provider(layout.named)
    layout.path_file(windows(layout.named).encode())
    assert layout.load(sibling=False) == [loaded_from(layout.own), FREED]


def test_a_path_file_may_be_longer_than_what_is_read(layout):
    # Only its first bytes count, and they end at a zero: what stands behind is not looked at.
    layout.provider(layout.named)
    layout.provider(layout.own)
    layout.path_file(windows(layout.named).encode() + b"\\\0" + b"x" * 1000)
    assert layout.load() == [loaded_from(layout.named), FREED]
    layout.path_file(windows(layout.named).encode() + b"\0" + b"x" * 1000)
    assert layout.load() == [REFUSED]


@pytest.mark.parametrize("length, loads", [(200, True), (259, True), (300, False), (512, False), (600, False)])
def test_a_path_that_the_system_or_the_buffer_has_no_room_for_ends_the_search(layout, length, loads):
    # The system takes 259 bytes, a buffer 511.
    # Backslashes in a row are one: a path may be made any length.
    layout.provider(layout.named)
    layout.provider(layout.own)
    head, tail = windows(layout.named.parent), "named\\"
    folder = head + "\\" * (length - len(PROVIDER) - len(head) - len(tail)) + tail
    layout.path_file(folder.encode())
    first = layout.load()[0]
    assert (first == loaded_from(layout.named)) if loads else (first == REFUSED)


# The library's own folder.

def test_a_missing_path_file_leads_to_the_own_folder(layout):
    layout.provider(layout.own)
    assert layout.load() == [loaded_from(layout.own), FREED]


@pytest.mark.parametrize("present", [False, True])
def test_a_settings_file_beside_the_library_means_nothing(layout, present):
    layout.provider(layout.own)
    if present:
        (layout.own / "analysis.ini").write_text("[Paths]\nmklpath=Z:\\nowhere\n")
    assert layout.load() == [loaded_from(layout.own), FREED]


def test_a_library_under_another_name_does_not_find_itself(layout):
    layout.provider(layout.own)
    other = layout.own / "other.dll"
    layout.library.rename(other)
    assert layout.load(library=other) == [REFUSED]
    below = layout.provider(layout.registered / "MKL" / "ZR150000_BLASLAPACK")
    assert layout.load(f"registry={windows(layout.registered)}", library=other)[0] == loaded_from(below)


def test_the_own_folder_comes_before_the_registry(layout):
    layout.provider(layout.own)
    layout.provider(layout.registered / "MKL" / "ZR150000_BLASLAPACK")
    assert layout.load(f"registry={windows(layout.registered)}") == [loaded_from(layout.own), FREED]


# The registry.

@pytest.mark.parametrize("end", ["", "\\"])
def test_the_registry_comes_last_and_gets_its_backslash(layout, end):
    below = layout.provider(layout.registered / "MKL" / "ZR150000_BLASLAPACK")
    assert layout.load(f"registry={windows(layout.registered)}{end}") == [loaded_from(below), FREED]


def test_the_registry_names_the_folder_above_two_more(layout):
    layout.provider(layout.registered)
    assert layout.load(f"registry={windows(layout.registered)}") == [REFUSED]


def test_a_value_without_its_zero_ends_at_the_length_read(layout):
    below = layout.provider(layout.registered / "MKL" / "ZR150000_BLASLAPACK")
    assert layout.load(f"registry-bytes={windows(layout.registered).encode().hex()}") == [loaded_from(below), FREED]


def test_a_value_of_more_than_500_bytes_fails(layout):
    layout.provider(layout.registered / "MKL" / "ZR150000_BLASLAPACK")
    value = windows(layout.registered).encode()
    assert layout.load(f"registry-bytes={(value + bytes(501 - len(value))).hex()}") == [REFUSED]
    below = layout.registered / "MKL" / "ZR150000_BLASLAPACK"
    assert layout.load(f"registry-bytes={(value + bytes(500 - len(value))).hex()}") == [loaded_from(below), FREED]


def test_a_key_without_the_value_or_no_key_fails(layout):
    assert layout.load("registry-key") == [REFUSED]
    assert layout.load() == [REFUSED]
    assert layout.load(sibling=False) == [REFUSED]


# What the loaded module is good for.

def test_dependencies_of_the_provider_are_looked_for_next_to_it(layout):
    layout.provider(layout.named, PROGRAMS / "leaning" / PROVIDER)
    layout.path_file(windows(layout.named).encode())
    assert layout.load() == [REFUSED]
    shutil.copy(PROGRAMS / "beside.dll", layout.named)
    assert layout.load("call=dot") == [loaded_from(layout.named), "dot 0 1.375", FREED]


def test_a_missing_name_fails_at_its_call_and_no_sooner(layout):
    layout.provider(layout.own)
    lines = layout.load("call=add", "call=dot", code=3)
    assert lines == [loaded_from(layout.own), "add 0 1.5 2.25 3.125", f"raised c06d007f {PROVIDER} cblas_ddot"]


def test_a_whole_provider_works(layout):
    layout.provider(layout.own, BUILD / "provider" / PROVIDER)
    assert layout.load("call=add", "call=dot", "call=dot") == [
        loaded_from(layout.own), "add 0 1.5 2.25 3.125", "dot 0 1.375", "dot 0 1.375", FREED]


def test_a_thousand_threads_begin_anew(layout):
    # The system gives identifiers of threads again; a state that had stayed behind would draw other numbers.
    layout.provider(layout.own)
    assert layout.load("call=threads") == [loaded_from(layout.own), "threads 1000", FREED]


# The files.

def test_exports_exactly_the_names_of_the_table():
    listing = objdump(BUILD / "quorvan.dll").split("[Ordinal/Name Pointer] Table")[1].split("\n\n")[0]
    names = set(re.findall(r"\] (?:\+base\[ *\d+\] +[0-9a-f]+ )?(\w+)\s*$", listing, re.M))
    assert names == {export.symbol for export in boundary.implemented(boundary.read_table())}


@pytest.mark.parametrize("file", ["quorvan.dll", f"provider/{PROVIDER}"])
def test_depends_on_nothing_but_the_system(file):
    modules = set(re.findall(r"DLL Name: (\S+)", objdump(BUILD / file)))
    assert modules and modules <= {"KERNEL32.dll", "ADVAPI32.dll", "USER32.dll", "msvcrt.dll"}


def test_the_provider_of_the_tests_has_all_69_names():
    listing = objdump(BUILD / "provider" / PROVIDER).split("[Ordinal/Name Pointer] Table")[1].split("\n\n")[0]
    names = set(re.findall(r"\] (?:\+base\[ *\d+\] +[0-9a-f]+ )?(\w+)\s*$", listing, re.M))
    bound = set(re.findall(r"QV_PROVIDER_NAME\((\w+)\)", (BUILD / "generated" / "provider_names.inc").read_text()))
    assert names == bound and len(bound) == 69


def beside_the_library(folder, program):
    folder.mkdir(exist_ok=True)
    for file in (PROGRAMS / program, BUILD / "quorvan.dll", BUILD / "provider" / PROVIDER):
        shutil.copy(file, folder)
    return folder / program


def test_a_c_program_runs_on_the_import_library(tmp_path):
    assert wine(beside_the_library(tmp_path, "consumer.exe")) == ["The call was successful. 1.5 2.25 3.125"]


def test_the_archive_holds_all_that_a_program_needs(tmp_path):
    subprocess.run(["cpack", "-G", "ZIP", "-B", str(tmp_path)], cwd=BUILD, check=True, capture_output=True)
    archive, = tmp_path.glob("*.zip")
    with zipfile.ZipFile(archive) as file:
        files = {name.split("/", 1)[1] for name in file.namelist()}
        file.extractall(tmp_path / "out")
    assert {"bin/quorvan.dll", "lib/libquorvan.dll.a", "include/quorvan/quorvan.h", "include/quorvan/types.h",
            "lib/cmake/quorvan/quorvan-config.cmake"} <= files
    assert {pathlib.PurePath(name).name for name in files} >= {"LICENSE", "README.md", "CHANGELOG.md"}
    # And it is enough for a compiler.
    home, = (tmp_path / "out").iterdir()
    program = tmp_path / "consumer.exe"
    subprocess.run([os.environ["QUORVAN_CC"], "-std=c99", "-Wall", "-Wextra", "-Wpedantic", "-Werror",
                    ROOT / "tests" / "package" / "consumer.c", f"-I{home}/include", f"-L{home}/lib", "-lquorvan", "-o",
                    program], check=True)
    shutil.copy(home / "bin" / "quorvan.dll", tmp_path)
    shutil.copy(BUILD / "provider" / PROVIDER, tmp_path)
    assert wine(program) == ["The call was successful. 1.5 2.25 3.125"]


# The other system.

def test_stated_orders_give_the_same_bits_as_on_linux(tmp_path):
    native = BUILD.parent / "release" / "libquorvan.so"
    assert native.exists(), "build the release preset first: its results are the measure"
    program = tmp_path / "bits"
    subprocess.run(["cc", "-std=c99", "-O1", "-ffp-contract=off", f"-I{ROOT}/include", ROOT / "tests" / "windows" / "bits.c", native,
                    f"-Wl,-rpath,{native.parent}", "-lm", "-o", program], check=True)
    linux = subprocess.run([program], check=True, capture_output=True, text=True).stdout.splitlines()
    windows_lines = wine(beside_the_library(tmp_path / "w", "bits.exe"))
    assert len(linux) > 20
    assert [a for a, b in zip(linux, windows_lines, strict=True) if a != b] == []
