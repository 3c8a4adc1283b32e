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
import tempfile
import zipfile

import pytest

ROOT = pathlib.Path(__file__).resolve().parents[2]
BUILD = pathlib.Path(os.environ["QUORVAN_BUILD"])
PROGRAMS = BUILD / "tests" / "windows"
PROVIDER = "ZR150000_BLASLAPACK.dll"

sys.path.insert(0, str(ROOT / "tools"))
import boundary  # noqa: E402


def wine(program, *arguments, cwd=None, code=0, trace=None):
    """The lines of the program's output, or with `trace` those of the emulator's own channels of that name."""
    environment = {**os.environ, **({"WINEDEBUG": trace} if trace else {})}
    # Into files: processes of the emulator may outlive the program and would keep a pipe open.
    with tempfile.TemporaryFile("w+", errors="replace") as out, tempfile.TemporaryFile("w+", errors="replace") as log:
        done = subprocess.run([os.environ["WINE"], str(program), *arguments], cwd=cwd, stdin=subprocess.DEVNULL,
                              stdout=out, stderr=log, env=environment, timeout=120)
        out.seek(0)
        log.seek(0)
        lines, logged = out.read().splitlines(), log.read()
    assert done.returncode == code, (done.returncode, lines, logged[-2000:])
    return logged.splitlines() if trace else lines


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

    def load(self, *arguments, sibling=True, library=None, **how):
        extra = [f"sibling={windows(self.sibling / 'merovant.dll')}"] if sibling else []
        return wine(self.loader, f"quorvan={windows(library or self.library)}", *extra, *arguments,
                    cwd=self.loader.parent, **how)


@pytest.fixture
def layout(tmp_path):
    # Paths of the system code page within its limits.
    return Layout(tmp_path)


def loaded_from(folder):
    return f"loaded {windows(folder / PROVIDER)}"


REFUSED = "refused nowhere"
FREED = "freed library gone provider gone 0 blocks"
WITNESS = PROGRAMS / "witness" / PROVIDER


# The folder that the path file names.

@pytest.mark.parametrize("end", ["", "\\"])
def test_the_path_file_settles_the_matter_and_the_own_folder_is_not_looked_at(layout, end):
    layout.provider(layout.named)
    # This one would tell.
    layout.provider(layout.own, WITNESS)
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


@pytest.mark.parametrize("how", ["hold", "lend"])
def test_a_path_file_that_someone_has_open_is_a_missing_one(layout, how):
    # It is opened for no one else, so that another's handle stands in the way, however generous.
    layout.provider(layout.own)
    layout.provider(layout.named)
    layout.path_file(windows(layout.named).encode())
    assert layout.load(f"{how}={windows(layout.sibling / 'mklpath')}") == [loaded_from(layout.own), FREED]


def test_a_folder_in_the_place_of_the_path_file_is_a_missing_one(layout):
    layout.provider(layout.own)
    (layout.sibling / "mklpath").mkdir()
    assert layout.load() == [loaded_from(layout.own), FREED]


def test_the_path_file_lies_beside_the_sibling_and_nowhere_else(layout):
    layout.provider(layout.own)
    layout.provider(layout.named)
    (layout.own / "mklpath").write_bytes(windows(layout.named).encode())
    (layout.sibling / "mklpath.txt").write_bytes(windows(layout.named).encode())
    assert layout.load() == [loaded_from(layout.own), FREED]


def test_a_file_that_is_no_module_ends_the_search_where_the_path_file_names_it(layout):
    layout.provider(layout.own)
    (layout.named / PROVIDER).write_text("no module")
    layout.path_file(windows(layout.named).encode())
    assert layout.load() == [REFUSED]


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


@pytest.mark.parametrize("length, loads", [(200, True), (259, True), (300, False)])
def test_a_path_that_the_system_has_no_room_for_ends_the_search(layout, length, loads):
    # The system takes 259 bytes. Backslashes in a row are one: a path may be made any length.
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


@pytest.mark.parametrize("own", [None, b"no module"])
def test_a_failure_in_the_own_folder_leads_to_the_registry(layout, own):
    if own:
        (layout.own / PROVIDER).write_bytes(own)
    below = layout.provider(layout.registered / "MKL" / "ZR150000_BLASLAPACK")
    assert layout.load(f"registry={windows(layout.registered)}") == [loaded_from(below), FREED]


# The registry.

@pytest.mark.parametrize("end", ["", "\\"])
def test_the_registry_comes_last_and_gets_its_backslash(layout, end):
    below = layout.provider(layout.registered / "MKL" / "ZR150000_BLASLAPACK")
    assert layout.load(f"registry={windows(layout.registered)}{end}") == [loaded_from(below), FREED]


def test_a_registry_that_names_a_folder_without_the_module_ends_the_search(layout):
    assert layout.load(f"registry={windows(layout.registered)}") == [REFUSED]


def test_the_steps_come_in_order_and_a_settings_file_is_never_opened(layout):
    below = layout.provider(layout.registered / "MKL" / "ZR150000_BLASLAPACK")
    (layout.own / "analysis.ini").write_text("[Paths]")
    trace = layout.load(f"registry={windows(layout.registered)}", trace="+file,+reg,+module")

    def first(pattern):
        return next(k for k, line in enumerate(trace) if re.search(pattern, line))

    begin = first(r"own\\\\quorvan\.dll")
    trace = trace[begin:]
    steps = [first(r"sibling\\\\mklpath"), first(r"own\\\\ZR150000_BLASLAPACK\.dll"), first("ZRSHAREDDIR64"),
             first(r"registered\\\\MKL\\\\ZR150000_BLASLAPACK\\\\ZR150000_BLASLAPACK\.dll")]
    assert steps == sorted(steps)
    assert not [line for line in trace if "analysis.ini" in line]
    assert below.exists()


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


def test_a_provider_stays_no_longer_than_the_library_and_comes_again_with_it(layout):
    layout.provider(layout.own)
    assert layout.load("call=add", "twice") == [loaded_from(layout.own), "add 0 1.5 2.25 3.125", FREED] * 2


def test_the_registry_of_threads_and_the_plans_stand_before_the_provider_is_loaded(layout):
    layout.provider(layout.own, WITNESS)
    # The state of the first thread was made before the program counted.
    assert layout.load() == ["witness 0 stream plan", loaded_from(layout.own), FREED]


def test_the_provider_goes_first_then_the_mutex_of_plans_then_states_then_the_mutex_of_threads(layout):
    layout.provider(layout.own)
    assert layout.load("call=stay", "call=watch") == [loaded_from(layout.own), "stay 2 blocks",
                                                     "gives back provider mutex block block mutex", FREED]


def test_the_entry_lets_a_thread_begin_and_removes_its_state_at_its_end(layout):
    layout.provider(layout.own)
    assert layout.load("call=entry") == [loaded_from(layout.own), "entry 1 goes on 1 anew", FREED]


def test_a_thousand_threads_begin_anew_and_leave_nothing(layout):
    # The system gives identifiers of threads again; a state that had stayed behind would draw other numbers.
    layout.provider(layout.own)
    assert layout.load("call=threads") == [loaded_from(layout.own),
                                           "threads 1000 left 0 blocks identifiers came again", FREED]


def test_the_state_of_a_thread_that_goes_on_is_freed_with_the_library(layout):
    layout.provider(layout.own)
    assert layout.load("call=stay") == [loaded_from(layout.own), "stay 2 blocks", FREED]


def test_a_program_may_end_with_the_library_loaded(layout):
    layout.provider(layout.own)
    assert layout.load("call=stay", "call=exit") == [loaded_from(layout.own), "stay 2 blocks", "exit"]


# The files.

def exports(path):
    """Address by name."""
    head, names = objdump(path).split("[Ordinal/Name Pointer] Table")
    addresses = dict(re.findall(r"\[ *(\d+)\] \+base\[ *\d+\] ([0-9a-f]+) Export RVA", head))
    found = re.findall(r"\[ *(\d+)\] (?:\+base\[ *\d+\] +[0-9a-f]+ )?(\w+)\s*$", names.split("\n\n")[0], re.M)
    assert len(addresses) == len(found), "an address without a name, or a name twice"
    return {name: addresses[number] for number, name in found}


def test_exports_exactly_the_names_of_the_table():
    names = exports(BUILD / "quorvan.dll")
    assert set(names) == {export.symbol for export in boundary.implemented(boundary.read_table())}
    assert set(names) == {f"ZemFunc{number}" for number in range(1, 494) if number not in (199, 244)}
    assert len(names) == 491


def test_four_groups_of_names_share_an_entry():
    addresses = exports(BUILD / "quorvan.dll")
    shared = {}
    for name, address in addresses.items():
        shared.setdefault(address, set()).add(int(name.removeprefix("ZemFunc")))
    groups = [{130, 339}, {131, 338}, {234, 238, 470}, {374, 375}]
    for group in groups:
        assert len({addresses[f"ZemFunc{number}"] for number in group}) == 1
    assert sorted(map(sorted, (group for group in shared.values() if len(group) > 1))) == sorted(map(sorted, groups))


@pytest.mark.parametrize("file", ["quorvan.dll", f"provider/{PROVIDER}"])
def test_depends_on_nothing_but_the_system(file):
    modules = set(re.findall(r"DLL Name: (\S+)", objdump(BUILD / file)))
    assert modules and modules <= {"KERNEL32.dll", "ADVAPI32.dll", "USER32.dll", "msvcrt.dll"}


def test_the_provider_of_the_tests_has_all_69_names():
    names = set(exports(BUILD / "provider" / PROVIDER))
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
