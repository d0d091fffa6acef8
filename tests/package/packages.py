#!/usr/bin/env python3
"""Tests what `./dev package` has made, each thing as a user gets it: packages.py document|linux|deb|windows PACKAGES CACHE.

Every archive is unpacked to a place of its own, the Debian packages are installed in a Debian that has nothing else, and
programs are built against what lies there alone.
"""

import concurrent.futures
import datetime
import hashlib
import json
import os
import pathlib
import re
import shutil
import struct
import subprocess
import sys
import tarfile
import unittest
import zipfile

HERE = pathlib.Path(__file__).resolve().parent
ROOT = HERE.parent.parent
CONSUMER = HERE / "consumer"
WORK = ROOT / "build/package/tests"
PROGRAMS = ["byte_buffer", "converter", "json", "list", "message", "platform_string", "tree"]
LIBRARIES = ["krmc_adaptation_data", "krmc_exchange", "krmc_platform"]
KIND, PACKAGES, CACHE = sys.argv[1], pathlib.Path(sys.argv[2]).resolve(), pathlib.Path(sys.argv[3])
LAUNCHER = os.environ.get("CMAKE_CXX_COMPILER_LAUNCHER")


def run(*command, **options):
    """Runs it and returns what it printed, both streams; an AssertionError with that where it fails."""
    done = subprocess.run(list(map(str, command)), stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True, **options)
    if done.returncode != 0:
        raise AssertionError(f"{' '.join(map(str, command))}: {done.returncode}\n{done.stdout}")
    return done.stdout


def tell(figure):
    print(f"-- {figure}", file=sys.stderr, flush=True)


def fresh(name):
    folder = WORK / name
    shutil.rmtree(folder, ignore_errors=True)
    folder.mkdir(parents=True)
    return folder


def one(pattern):
    found = list(PACKAGES.glob(pattern))
    assert len(found) == 1, f"{pattern}: {found}"
    return found[0]


def expected(column, names, library="lib"):
    """What installed.txt lists where its column has one of the names."""
    files = set()
    for line in (HERE / "installed.txt").read_text().splitlines():
        if line and not line.startswith("#"):
            *columns, path = line.split()
            if columns[column] in names:
                files.add(path.replace("{lib}", library))
    assert files, f"the list has nothing for {names}"
    return files


def below(folder):
    return {path.relative_to(folder).as_posix() for path in folder.rglob("*") if not path.is_dir() or path.is_symlink()}


def compiled(jobs):
    """Runs compilers, two at a time; returns what the failing ones printed."""
    def compile_one(command):
        return subprocess.run([*([LAUNCHER] if LAUNCHER else []), *map(str, command)], stdout=subprocess.PIPE,
                              stderr=subprocess.STDOUT, text=True, cwd=WORK)
    with concurrent.futures.ThreadPoolExecutor(os.cpu_count()) as pool:
        return [done.stdout for done in pool.map(compile_one, jobs) if done.returncode != 0]


def headers_that_need_others(compiler, include, objects):
    """Compiles each header alone. Returns the errors."""
    return compiled([compiler, "-std=c++20", "-Wall", "-Wextra", "-Wpedantic", "-Werror",
                     "-I", os.path.relpath(include, WORK), "-x", "c++", "-c",
                     os.path.relpath(header, WORK), "-o", objects / f"{number}.o"]
                    for number, header in enumerate(sorted(include.rglob("*.h"))))


class Document(unittest.TestCase):
    """The list of what is inside, in SPDX."""

    def test_names_every_file_with_its_sums(self):
        document = json.loads(one("*.spdx.json").read_text())
        files = {file["SPDXID"]: file for file in document["files"]}
        inside = {}
        for relation in document["relationships"]:
            if relation["relationshipType"] == "CONTAINS" and relation["relatedSpdxElement"] in files:
                inside.setdefault(relation["spdxElementId"], []).append(files[relation["relatedSpdxElement"]])
        artefacts = {package["packageFileName"]: package for package in document["packages"] if "packageFileName" in package}
        self.assertEqual(set(artefacts), {path.name for path in PACKAGES.iterdir() if not path.name.endswith(".spdx.json")})
        for name, package in artefacts.items():
            content = (PACKAGES / name).read_bytes()
            self.assertEqual(package["checksums"][0]["checksumValue"], hashlib.sha256(content).hexdigest())
            self.assertEqual(package["licenseDeclared"], "LicenseRef-krm")
            told = {file["fileName"]: file["checksums"][1]["checksumValue"] for file in inside[package["SPDXID"]]}
            folder = fresh("sbom")
            if name.endswith(".deb"):
                run("dpkg-deb", "--extract", PACKAGES / name, folder)
            else:
                shutil.unpack_archive(PACKAGES / name, folder)
            found = {f"./{path.relative_to(folder).as_posix()}": hashlib.sha256(path.read_bytes()).hexdigest()
                     for path in folder.rglob("*") if path.is_file() and not path.is_symlink()}
            self.assertEqual(told, found)
        tell(f"{len(files)} files of {len(artefacts)} archives and packages, each with its sum; "
             f"{len(document['packages']) - len(artefacts)} parts of others")

    def test_names_what_is_not_our_own(self):
        document = json.loads(one("*.spdx.json").read_text())
        names = {package["name"] for package in document["packages"]}
        self.assertLessEqual({"RapidJSON", "CLI11"}, names)
        if any(PACKAGES.glob("*.zip")):
            self.assertLessEqual({"zlib", "GCC runtime libraries", "MinGW-w64 runtime"}, names)
        known = {"SPDXRef-DOCUMENT"} | {part["SPDXID"] for part in document["packages"] + document["files"]}
        self.assertEqual(len(known), 1 + len(document["packages"]) + len(document["files"]))
        for relation in document["relationships"]:
            self.assertLessEqual({relation["spdxElementId"], relation["relatedSpdxElement"]}, known)


def assert_hardened(test, file):
    """An ELF file has what a release promises: docs/install.md."""
    dynamic = run("readelf", "--wide", "--dynamic", "--program-headers", file)
    test.assertIn("GNU_RELRO", dynamic, file)
    test.assertRegex(dynamic, r"FLAGS_1.*NOW", file)
    test.assertRegex(dynamic, r"GNU_STACK .* RW ", file)
    test.assertIn("DYN (", run("readelf", "--file-header", file), file)  # wherever it is loaded
    symbols = run("readelf", "--wide", "--dyn-syms", file)
    test.assertIn("__stack_chk_fail", symbols, file)
    test.assertRegex(run("readelf", "--notes", file), "x86 feature:.*SHSTK", file)
    # Each exported function begins with the mark for indirect calls.
    code = run("objdump", "--disassemble", "--wide", "--no-show-raw-insn", file)
    starts = dict(re.findall(r"^([0-9a-f]+) <[^>]*>:\n *[0-9a-f]+:\t(\S+)", code, re.MULTILINE))
    exported = re.findall(r"^ *\d+: ([0-9a-f]+) +\d+ FUNC +(?:GLOBAL|WEAK) +DEFAULT +\d+ (\S+)", symbols, re.MULTILINE)
    for address, name in exported:
        test.assertEqual(starts.get(address), "endbr64", f"{file}: {name}")
    return symbols, len(exported)


def time_of_dll(file):
    """When a DLL or program for Windows says that it was made: seconds since 1970."""
    content = file.read_bytes()
    (header,) = struct.unpack_from("<I", content, 0x3C)
    return struct.unpack_from("<I", content, header + 8)[0]


class Linux(unittest.TestCase):
    """The archive for Linux: unpacked, and moved afterwards."""

    @classmethod
    def setUpClass(cls):
        archive = one("krm-*-linux-x86_64.tar.gz")
        folder = fresh("linux")
        with tarfile.open(archive) as packed:
            packed.extractall(folder)
        name = archive.name.removesuffix(".tar.gz")
        cls.tree = folder / "moved here"
        (folder / name).rename(cls.tree)

    def test_has_the_files_of_the_list(self):
        self.assertEqual(below(self.tree), expected(0, ["linux"]))

    def test_says_how_it_is_licensed(self):
        text = (self.tree / "share/doc/krm/licences.txt").read_text()
        self.assertIn((ROOT / "packaging/licence.txt").read_text().strip(), text)
        for words in ("Milo Yip", "University of Cincinnati"):
            self.assertIn(words, text)

    def test_is_hardened(self):
        count = 0
        for library in LIBRARIES:
            _, exported = assert_hardened(self, self.tree / f"lib/lib{library}.so")
            count += exported
        symbols, _ = assert_hardened(self, self.tree / "bin/krm")
        self.assertGreater(count, 1000)
        self.assertRegex(symbols, r"__\w+_chk@")
        tell(f"{count} exported functions of {len(LIBRARIES)} libraries begin with the mark for indirect calls")

    def test_exports_what_the_interface_lists(self):
        run(sys.executable, ROOT / "tests/interface/check_exports.py", ROOT / "tests/interface/exports.txt",
            self.tree / "lib/libkrmc_adaptation_data.so", "nm")

    def test_does_not_tell_where_it_was_built(self):
        for path in self.tree.rglob("*"):
            if path.is_file():
                content = path.read_bytes()
                for folder in (ROOT, CACHE):
                    self.assertNotIn(os.fsencode(folder), content, path)

    def test_headers_compile_alone(self):
        self.assertEqual(headers_that_need_others("g++", self.tree / "include", fresh("headers")), [])

    def consume(self, name, *options, source=CONSUMER):
        build = fresh(name)
        output = run("cmake", "-S", source, "-B", build, f"-DCMAKE_PREFIX_PATH={self.tree}", "-DWITH_EXCHANGE=ON", *options)
        run("cmake", "--build", build, "--parallel", "2")
        run("ctest", "--test-dir", build, "--output-on-failure", "--no-tests=error")
        return build, output

    def test_find_package(self):
        build, _ = self.consume("find_package")
        self.assertIn(f"{self.tree}/lib", run("ldd", build / "json"))

    def test_find_package_static(self):
        build, _ = self.consume("find_package_static", "-DKRM_KIND=static")
        self.assertNotIn("krmc", run("ldd", build / "json"))

    def refused(self, request):
        """What CMake says to a find_package that must not succeed."""
        folder = fresh("refused")
        (folder / "CMakeLists.txt").write_text(
            f"cmake_minimum_required(VERSION 3.25)\nproject(refused LANGUAGES CXX)\n{request}\n")
        done = subprocess.run(["cmake", "-S", folder, "-B", folder / "build", f"-DCMAKE_PREFIX_PATH={self.tree}"],
                              capture_output=True, text=True)
        self.assertNotEqual(done.returncode, 0, request)
        return " ".join(done.stderr.split())

    def test_find_package_refuses(self):
        self.assertIn("krm has no component nothing, but adaptation_data, platform and exchange, and shared or static",
                      self.refused("find_package(krm REQUIRED COMPONENTS nothing)"))
        self.assertIn("the components shared and static exclude each other",
                      self.refused("find_package(krm REQUIRED COMPONENTS shared static)"))
        self.assertIn("krm was found before with its shared libraries, and one project can't have both",
                      self.refused("find_package(krm REQUIRED)\nfind_package(krm REQUIRED COMPONENTS static)"))
        self.assertIn('compatible with requested version "2.0"', self.refused("find_package(krm 2.0 REQUIRED)"))

    def pkg_config(self, *options):
        return run("pkg-config", *options, "krm_exchange",
                   env={**os.environ, "PKG_CONFIG_LIBDIR": f"{self.tree}/lib/pkgconfig"}).replace("\\ ", "\0").split()

    def build_with_pkg_config(self, name, flags, *options):
        folder = fresh(name)
        flags = [flag.replace("\0", " ") for flag in flags]
        for program in PROGRAMS:
            run("g++", "-std=c++20", CONSUMER / f"{program}.cpp", "-o", folder / program, *options, *flags)
            run(folder / program, env={**os.environ, "LD_LIBRARY_PATH": f"{self.tree}/lib"})

    def test_pkg_config(self):
        flags = self.pkg_config("--cflags", "--libs")
        self.assertNotIn("-DKRM_STATIC", flags)
        self.build_with_pkg_config("pkg_config", flags)

    def test_pkg_config_static(self):
        flags = self.pkg_config("--static", "--cflags", "--libs")
        self.assertIn("-DKRM_STATIC", flags)
        self.build_with_pkg_config("pkg_config_static", flags, "-static")

    def test_program(self):
        krm = self.tree / "bin/krm"
        version = re.search(r"krm-([\d.]+)-linux", one("*.tar.gz").name).group(1)
        self.assertEqual(run(krm, "--version"), f"krm {version}\n")
        self.assertIn("0x7B", run(krm, "convert", "0", "--back", "83", "--offset", "-40"))
        manual = (self.tree / "share/man/man1/krm.1").read_text().replace("\\-", "-")
        for verb in ("show", "diff", "view", "redact", "schema", "commands", "convert"):
            self.assertIn(f".B {verb}\n", manual)
            for option in re.findall(r"^  (?:-\w,)?(--[a-z-]+)", run(krm, verb, "--help"), re.MULTILINE):
                self.assertIn(option, manual, verb)


class Deb(unittest.TestCase):
    """The Debian packages, in a Debian that has a compiler at most."""

    @classmethod
    def setUpClass(cls):
        cls.packages = {name: one(f"{name}_*_amd64.deb") for name in ("libkrm1", "libkrm-dev", "krm")}
        cls.root = CACHE / "package-root"
        assert (cls.root / ".complete").exists()
        cls.in_root("dpkg", "--purge", *cls.packages)  # of a run that was stopped
        cls.before = cls.system()

    @classmethod
    def in_root(cls, *command):
        return run("chroot", cls.root, "env", "-i", "PATH=/usr/sbin:/usr/bin:/sbin:/bin", "LC_ALL=C.UTF-8", "HOME=/root",
                   *command)

    @classmethod
    def system(cls):
        return {path for folder in ("etc", "usr") for path in below(cls.root / folder)
                if not path.endswith((".pyc", "/ld.so.cache", "ld.so.cache"))}

    def install(self, *names):
        shutil.rmtree(self.root / "packages", ignore_errors=True)
        (self.root / "packages").mkdir()
        for name in names:
            shutil.copy(self.packages[name], self.root / "packages")
        self.addCleanup(lambda: self.in_root("dpkg", "--purge", *names))
        self.in_root("dpkg", "--install", *(f"/packages/{self.packages[name].name}" for name in names))

    def test_have_the_files_of_the_list(self):
        for name, package in self.packages.items():
            folder = fresh(f"deb_{name}")
            run("dpkg-deb", "--extract", package, folder)
            self.assertEqual(below(folder / "usr"), expected(1, [name], "lib/x86_64-linux-gnu"))
            self.assertEqual(below(folder), {f"usr/{path}" for path in below(folder / "usr")})
            notices = (folder / f"usr/share/doc/{name}/copyright").read_text()
            self.assertIn((ROOT / "packaging/licence.txt").read_text().strip(), notices)
            for elf in [*folder.glob("usr/bin/*"), *folder.glob("usr/lib/*/lib*.so.1")]:
                assert_hardened(self, elf)
                self.assertNotRegex(run("readelf", "--dynamic", elf), "R(UN)?PATH")

    def test_lintian_is_content(self):
        said = run("lintian", "--allow-root", "--fail-on", "error,warning", "--tag-display-limit", "0", *self.packages.values())
        self.assertNotRegex(said, r"(?m)^[EW]:")

    def test_program_alone(self):
        self.install("libkrm1", "krm")
        self.assertRegex(self.in_root("krm", "--version"), r"^krm [\d.]+\n$")
        self.assertIn('"$schema"', self.in_root("krm", "schema"))

    def test_are_gone_when_purged(self):
        self.install("libkrm1", "libkrm-dev", "krm")
        self.assertNotEqual(self.system(), self.before)
        self.doCleanups()
        self.assertEqual(self.system(), self.before)

    def test_programs_are_built(self):
        self.install("libkrm1", "libkrm-dev")
        shutil.copytree(CONSUMER, self.root / "packages/consumer")
        for kind in ("shared", "static"):
            build = f"/packages/{kind}"
            self.in_root("cmake", "-S", "/packages/consumer", "-B", build, "-DWITH_EXCHANGE=ON", f"-DKRM_KIND={kind}")
            self.in_root("cmake", "--build", build, "--parallel", "2")
            self.in_root("ctest", "--test-dir", build, "--output-on-failure", "--no-tests=error")
        for asked, linked in ([], []), (["--static"], ["-static"]):
            flags = self.in_root("pkg-config", *asked, "--cflags", "--libs", "krm_exchange").split()
            self.in_root("g++", "-std=c++20", "/packages/consumer/json.cpp", "-o", "/packages/json", *linked, *flags)
            self.in_root("/packages/json")

    def test_gdb_finds_the_views(self):
        # gdb looks below its safe path for the library's whole path.
        folder = fresh("autoload")
        run("dpkg-deb", "--extract", self.packages["libkrm-dev"], folder)
        script = next(folder.glob("usr/share/gdb/auto-load/usr/lib/*/*-gdb.py"))
        sourced = re.search(r'__file__\)\), "([^"]+)"', script.read_text()).group(1)
        self.assertTrue((script.parent / sourced / "krm_gdb.py").exists(), sourced)


class Windows(unittest.TestCase):
    """The archives for Windows: programs built against them alone, run in wine."""

    @classmethod
    def setUpClass(cls):
        cls.trees, cls.files = {}, {}
        for machine in ("i686", "x86_64"):
            archive = one(f"krm-*-windows-{machine}.zip")
            folder = fresh(f"windows-{machine}")
            with zipfile.ZipFile(archive) as packed:
                packed.extractall(folder)
            cls.trees[machine] = folder / archive.name.removesuffix(".zip")
            cls.files[machine] = below(cls.trees[machine])  # the tests put their programs there

    def wine(self, machine, program, *arguments):
        # Windows looks for DLLs beside the program, and there alone: they lie in one folder.
        return run(os.environ[f"KRM_WINE_{machine}"], program.name, *arguments, cwd=program.parent)

    def each(self):
        for machine, tree in self.trees.items():
            yield machine, tree, f"{machine}-w64-mingw32-g++-posix"

    def test_have_the_files_of_the_list(self):
        for machine, _, _ in self.each():
            self.assertEqual(self.files[machine], expected(2, ["windows", machine]))

    def test_say_how_they_are_licensed(self):
        for _, tree, _ in self.each():
            text = (tree / "share/doc/krm/licences.txt").read_text()
            self.assertIn((ROOT / "packaging/licence.txt").read_text().strip(), text)
            for words in ("Milo Yip", "University of Cincinnati", "Mark Adler", "GCC RUNTIME LIBRARY EXCEPTION", "Lockless"):
                self.assertIn(words, text)

    def test_are_hardened(self):
        created = json.loads(one("krm-*.spdx.json").read_text())["creationInfo"]["created"]
        released = datetime.datetime.fromisoformat(created.replace("Z", "+00:00")).timestamp()
        for machine, tree, _ in self.each():
            for name in [*(f"{library}.dll" for library in LIBRARIES), "krm.exe"]:
                file = tree / "bin" / name
                said = run(f"{machine}-w64-mingw32-objdump", "--private-headers", file)
                bits = int(re.search(r"DllCharacteristics\s+([0-9a-f]+)", said).group(1), 16)
                self.assertTrue(bits & 0x40, f"{name}: not at any address")
                self.assertTrue(bits & 0x100, f"{name}: data can be run")
                if machine == "x86_64":
                    self.assertTrue(bits & 0x20, f"{name}: not at any of 64 bits")
                self.assertEqual(time_of_dll(file), released, name)
                self.assertIn(b"stack smashing detected", file.read_bytes(), f"{name}: no guard of the stack")
                # Nothing is needed that the archive or Windows doesn't have.
                needed = set(re.findall(r"DLL Name: (\S+)", said))
                self.assertLessEqual(needed - {path.name for path in (tree / "bin").iterdir()},
                                     {"KERNEL32.dll", "msvcrt.dll", "ADVAPI32.dll", "SHELL32.dll", "USER32.dll"})
                for folder in (ROOT, CACHE):
                    self.assertNotIn(os.fsencode(folder), file.read_bytes(), name)

    def test_find_package(self):
        for machine, tree, compiler in self.each():
            build = fresh(f"windows-{machine}-consumer")
            run("cmake", "-S", CONSUMER, "-B", build, "-DCMAKE_SYSTEM_NAME=Windows", f"-DCMAKE_CXX_COMPILER={compiler}",
                f"-DCMAKE_PREFIX_PATH={tree}", "-DWITH_EXCHANGE=ON", f"-DCMAKE_RUNTIME_OUTPUT_DIRECTORY={tree}/bin",
                f"-DCMAKE_CROSSCOMPILING_EMULATOR={os.environ[f'KRM_WINE_{machine}']}")
            run("cmake", "--build", build, "--parallel", "2")
            run("ctest", "--test-dir", build, "--output-on-failure", "--no-tests=error")

    def test_import_libraries(self):
        # That of GNU by pkg-config; that in Microsoft's form by GNU's linker, and by LLVM's.
        for machine, tree, compiler in self.each():
            gnu = run("pkg-config", "--cflags", "--libs", "krm_exchange",
                      env={**os.environ, "PKG_CONFIG_LIBDIR": f"{tree}/lib/pkgconfig"}).split()
            microsoft = [f"-I{tree}/include", *(tree / f"lib/{library}.lib" for library in reversed(LIBRARIES))]
            objects = fresh(f"windows-{machine}-objects")
            for name, flags in {"gnu": gnu, "microsoft": microsoft, "llvm": [*microsoft, "-fuse-ld=lld"]}.items():
                for program in ("json", "tree"):
                    compiled = objects / f"{program}.o"
                    if not compiled.exists():
                        run(compiler, "-std=c++20", f"-I{tree}/include", "-c", CONSUMER / f"{program}.cpp", "-o", compiled)
                    linked = tree / f"bin/{name}_{program}.exe"
                    run(compiler, compiled, *flags, "-o", linked)
                    self.wine(machine, linked)

    def test_definitions_list_what_the_dll_exports(self):
        for machine, tree, _ in self.each():
            for library in LIBRARIES:
                said = run(f"{machine}-w64-mingw32-objdump", "--private-headers", tree / f"bin/{library}.dll")
                exported = set(re.findall(r"^\t\[ *\d+\](?: \+base\[ *\d+\])? +(?:[0-9a-f]{4} )?(\S+)$",
                                          said[said.index("[Ordinal/Name Pointer] Table"):], re.MULTILINE))
                listed = set(re.findall(r"^    (\S+) @\d+", (tree / f"lib/{library}.def").read_text(), re.MULTILINE))
                self.assertGreater(len(listed), 20)
                self.assertEqual(listed, exported)

    def test_program(self):
        for machine, tree, _ in self.each():
            self.assertRegex(self.wine(machine, tree / "bin/krm.exe", "--version"), r"^krm [\d.]+\s*$")
            self.assertIn("0x7B", self.wine(machine, tree / "bin/krm.exe", "convert", "0", "--back", "83", "--offset", "-40"))


if __name__ == "__main__":
    WORK.mkdir(parents=True, exist_ok=True)
    case = {"document": Document, "linux": Linux, "deb": Deb, "windows": Windows}[KIND]
    suite = unittest.defaultTestLoader.loadTestsFromTestCase(case)
    sys.exit(not unittest.TextTestRunner(verbosity=2).run(suite).wasSuccessful())
