# Untested: written without Conan at hand. A recipe of Conan 2 that packs the checkout that it lies in.
import os
import re

from conan import ConanFile
from conan.tools.build import check_min_cppstd
from conan.tools.cmake import CMake, CMakeDeps, CMakeToolchain, cmake_layout
from conan.tools.files import copy, load


class KrmConan(ConanFile):
    name = "krm"
    description = "Adaptation data of the vehicle-diagnosis exchange"
    settings = "os", "compiler", "build_type", "arch"
    options = {"shared": [True, False], "fPIC": [True, False], "exchange": [True, False]}
    default_options = {"shared": True, "fPIC": True, "exchange": True}
    implements = ["auto_shared_fpic"]

    def set_version(self):
        header = load(self, os.path.join(self.recipe_folder, "..", "krm", "version.h"))
        self.version = ".".join(re.search(rf"KRM_VERSION_{part} (\d+)\n", header)[1] for part in ("MAJOR", "MINOR", "PATCH"))

    def export_sources(self):
        for pattern in ("CMakeLists.txt", "cmake/*", "debugger/*", "krm/*", "packaging/*", "platform/*"):
            copy(self, pattern, os.path.join(self.recipe_folder, ".."), self.export_sources_folder)

    def layout(self):
        cmake_layout(self)

    def validate(self):
        check_min_cppstd(self, 20)

    def requirements(self):
        if self.options.exchange:
            self.requires("rapidjson/[>=1.1]", visible=False)

    def generate(self):
        toolchain = CMakeToolchain(self)
        for part in ("TESTS", "EXAMPLES", "BENCHMARKS", "CLI"):
            toolchain.cache_variables[f"KRM_BUILD_{part}"] = False
        toolchain.cache_variables["KRM_BUILD_EXCHANGE"] = bool(self.options.exchange)
        if self.options.exchange:
            toolchain.cache_variables["KRM_RAPIDJSON_DIR"] = self.dependencies["rapidjson"].cpp_info.includedirs[0]
        toolchain.generate()
        CMakeDeps(self).generate()

    def build(self):
        cmake = CMake(self)
        cmake.configure()
        cmake.build()

    def package(self):
        CMake(self).install()
        copy(self, "licence.txt", os.path.join(self.source_folder, "packaging"), os.path.join(self.package_folder, "licenses"))

    def package_info(self):
        # The package's own CMake files say more than Conan could.
        self.cpp_info.set_property("cmake_find_mode", "none")
        self.cpp_info.builddirs = ["lib/cmake/krm"]
