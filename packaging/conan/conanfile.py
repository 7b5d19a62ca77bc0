"""Recipe of axm for Conan 2; the sources are those that the recipe lies in: conan create packaging/conan"""

import os
import re

from conan import ConanFile
from conan.tools.cmake import CMake, CMakeToolchain, cmake_layout
from conan.tools.files import copy, load, rmdir

# Each library with what it needs, the lowest first.
LIBRARIES = {"co": [], "ut": ["co"], "ap": ["ut"], "axm": ["ap"], "axs": ["axm"]}
FOLDERS = ("cmake", "containers", "data", "docs", "examples", "platform", "service", "source", "utilities", "command")


class AxmRecipe(ConanFile):
    name = "axm"
    description = "One way for C++ applications to work with XML, whatever engine stands behind it"
    topics = ("xml", "xpath", "xml-schema")
    package_type = "library"
    settings = "os", "compiler", "build_type", "arch"
    options = {"shared": [True, False], "fPIC": [True, False]}
    default_options = {"shared": True, "fPIC": True}
    implements = ["auto_shared_fpic"]

    def set_version(self):
        text = load(self, os.path.join(self.recipe_folder, "..", "..", "CMakeLists.txt"))
        self.version = re.search(r"project\(axm VERSION ([\d.]+)", text).group(1)

    def export_sources(self):
        top = os.path.join(self.recipe_folder, "..", "..")
        for pattern in ("CMakeLists.txt", "*.md", "NOTICE"):
            copy(self, pattern, top, self.export_sources_folder, excludes="*/*")
        for folder in FOLDERS:
            copy(self, f"{folder}/*", top, self.export_sources_folder)

    def layout(self):
        cmake_layout(self)

    def generate(self):
        toolchain = CMakeToolchain(self)
        toolchain.cache_variables["AXM_BUILD_COMMAND"] = False
        toolchain.generate()

    def build(self):
        cmake = CMake(self)
        cmake.configure()
        cmake.build()

    def package(self):
        CMake(self).install()
        copy(self, "NOTICE", self.source_folder, os.path.join(self.package_folder, "licenses"))
        for folder in ("share", "lib/cmake", "lib/pkgconfig"):
            rmdir(self, os.path.join(self.package_folder, folder))

    def package_info(self):
        for library, needed in LIBRARIES.items():
            component = self.cpp_info.components[library]
            component.libs = [library]
            component.includedirs = [f"include/axm/{library}"]
            component.requires = needed
            component.set_property("cmake_target_name", f"axm::{library}")
            component.set_property("pkg_config_name", library if library in ("axm", "axs") else f"axm-{library}")
            if not self.options.shared:
                component.defines = ["AXM_STATIC"]
