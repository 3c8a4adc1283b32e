"""Puts the shared object into the package: the one that QUORVAN_LIBRARY names, else that of the release build."""

import os
import pathlib
import shutil

from setuptools import Distribution, setup
from setuptools.command.build_py import build_py
from wheel.bdist_wheel import bdist_wheel

HERE = pathlib.Path(__file__).resolve().parent


class WithLibrary(build_py):
    def run(self):
        super().run()
        told = os.environ.get("QUORVAN_LIBRARY")
        library = pathlib.Path(told) if told else HERE.parents[1] / "build" / "release" / "libquorvan.so"
        if not library.exists():
            raise SystemExit(f"{library} is missing: build the library first, or name it in QUORVAN_LIBRARY")
        shutil.copy2(library.resolve(), pathlib.Path(self.build_lib) / "quorvan" / "libquorvan.so")


class ForPlatform(bdist_wheel):
    """Any Python 3, but this platform: ctypes loads what is inside."""

    def finalize_options(self):
        super().finalize_options()
        self.root_is_pure = False

    def get_tag(self):
        return "py3", "none", super().get_tag()[2]


class Binary(Distribution):
    def has_ext_modules(self):
        return True


setup(cmdclass={"build_py": WithLibrary, "bdist_wheel": ForPlatform}, distclass=Binary)
