#!/usr/bin/env python3
"""Runs the recipe with classes in place of Conan's that do what matters here: conan_test.py SOURCE VERSION WORK COMPILER GENERATOR"""

import fnmatch
import importlib.util
import re
import shutil
import subprocess
import sys
import types
import unittest
from pathlib import Path

SOURCE, VERSION, WORK, COMPILER, GENERATOR = sys.argv[1:6]
EXPORTED = Path(WORK, "exported")


class Anything:
    """Takes any call, and keeps what is set."""

    def __init__(self, *arguments):
        self.cache_variables = {}

    def __getattr__(self, name):
        return lambda *arguments, **named: None


def copy(_, pattern, source, target, excludes=None):
    for file in Path(source).rglob("*"):
        name = file.relative_to(source).as_posix()
        if file.is_file() and fnmatch.fnmatch(name, pattern) and not (excludes and fnmatch.fnmatch(name, excludes)):
            Path(target, name).parent.mkdir(parents=True, exist_ok=True)
            shutil.copy(file, Path(target, name))


def load_recipe():
    toolchains = []

    class Toolchain(Anything):
        def __init__(self, *arguments):
            super().__init__(*arguments)
            toolchains.append(self)

    conan, cmake, files = types.ModuleType("conan"), types.ModuleType("cmake"), types.ModuleType("files")
    conan.ConanFile = type("ConanFile", (), {})
    cmake.CMake, cmake.CMakeToolchain, cmake.cmake_layout = Anything, Toolchain, lambda recipe: None
    files.copy, files.rmdir = copy, lambda recipe, folder: None
    files.load = lambda recipe, file: Path(file).read_text(encoding="utf-8")
    sys.modules.update({"conan": conan, "conan.tools": types.ModuleType("tools"), "conan.tools.cmake": cmake,
                        "conan.tools.files": files})
    file = Path(SOURCE, "packaging/conan/conanfile.py")
    spec = importlib.util.spec_from_file_location("conanfile", file)
    module = importlib.util.module_from_spec(spec)
    spec.loader.exec_module(module)
    recipe = module.AxmRecipe()
    recipe.recipe_folder = str(file.parent)
    recipe.export_sources_folder = str(EXPORTED)
    return module, recipe, toolchains


class ConanRecipe(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        shutil.rmtree(WORK, ignore_errors=True)
        cls.module, cls.recipe, cls.toolchains = load_recipe()
        cls.recipe.export_sources()
        cls.recipe.generate()

    def test_has_the_version_of_the_project(self):
        self.recipe.set_version()
        self.assertEqual(self.recipe.version, VERSION)

    def test_exports_what_is_configured_with_its_options(self):
        options = [f"-D{name}={'ON' if value else 'OFF'}" for name, value in self.toolchains[0].cache_variables.items()]
        self.assertTrue(options)
        done = subprocess.run(["cmake", "-G", GENERATOR, "-S", EXPORTED, "-B", Path(WORK, "build"), f"-DCMAKE_CXX_COMPILER={COMPILER}",
                               *options], stdout=subprocess.DEVNULL, stderr=subprocess.PIPE, text=True)
        self.assertEqual((done.returncode, done.stderr), (0, ""))

    def test_knows_the_libraries_and_what_they_need(self):
        found = {}
        for file in EXPORTED.glob("*/CMakeLists.txt"):
            library = re.search(r"^axm_add_library\((\w+)$(.*?)^\S*.*?\)$", file.read_text(encoding="utf-8"), re.M | re.S)
            if library:
                public = re.search(r"^  PUBLIC ([\w ]+)", library.group(0), re.M)
                found[library.group(1)] = public.group(1).split() if public else []
        self.assertEqual(found, self.module.LIBRARIES)


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
