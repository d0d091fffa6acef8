#!/usr/bin/env python3
"""Compiles the public headers for MSVC's targets and reads from the compiler where it puts slots and fields.

usage: check.py CLANG GCC

Needs neither MSVC nor Windows: Clang lays classes out as MSVC does, and takes the standard library of this system's
GCC, of which the 32-bit half must be there too. Checks, for 32 and 64 bits,
  - that every public header compiles on its own, and that no other file has a branch for MSVC, which nothing would
    compile;
  - that every class with a virtual table has the slots that tests/interface/slots.def documents;
  - that every class has its fields in the order of the other compilers, each at the next place that its alignment
    allows, the first one behind the base. (MSVC never puts a field into the padding at the base's end, as others do.)
"""
import concurrent.futures
import pathlib
import re
import subprocess
import sys
import tempfile

HERE = pathlib.Path(__file__).resolve().parent
ROOT = HERE.parent.parent
SLOTS = ROOT / "tests/interface/slots.def"
CLASSES = ROOT / "tests/support/all_classes.h"
# The target, the size of its pointers, GCC's option for them, and what its C library must take for its word: `long` has
# 32 bits on all of Windows.
TARGETS = (("i686-pc-windows-msvc", 4, "-m32", ()), ("x86_64-pc-windows-msvc", 8, "-m64", ("-D__ILP32__",)))
WARNINGS = ("-Wall", "-Wextra", "-Wpedantic", "-Wshadow", "-Wconversion", "-Werror")
SIZES = {"char": 1, "signed char": 1, "unsigned char": 1, "_Bool": 1, "bool": 1, "short": 2, "unsigned short": 2,
         "int": 4, "unsigned int": 4, "krm_ulong": 4, "krm_long": 4, "double": 8, "krm_int64": 8, "CommandFamily": 4}

# What the library's classes are called; all others are the standard library's, and functions without a name.
OWN = r"krm::|CKRM"

failures = []


def expect(condition, message):
    if not condition:
        failures.append(message)
    return condition


def run(command, what):
    done = subprocess.run(command, capture_output=True, text=True, check=False)
    return done.stdout if expect(done.returncode == 0, f"{what}:\n{done.stderr}") else ""


def output(*command):
    return subprocess.run(command, capture_output=True, text=True, check=True).stdout.strip()


class Msvc:
    """Compiles for one of MSVC's targets."""

    def __init__(self, clang, gcc, target, word, definitions, folder):
        self.target = target
        search = subprocess.run([gcc, word, "-E", "-v", "-x", "c++", "/dev/null"], capture_output=True, text=True,
                                check=True).stderr
        folders = search.split("#include <...> search starts here:\n")[1].split("End of search list.")[0].split()
        # GCC's own <stddef.h> and so on are Clang's here.
        own = output(clang, "-print-resource-dir") + "/include"
        folders = [own if re.search(r"/lib/gcc/[^+]*/include$", each) else each for each in folders]
        # The kernel's headers, which GCC takes from elsewhere for 32 bits.
        folders.append("/usr/include/" + output(gcc, "-print-multiarch"))
        self.command = [clang, f"--target={target}", "-std=c++20", "-nostdinc", "-fgnuc-version=4.2.1",
                        "-fno-ms-compatibility", "-fms-compatibility-version=19.30", "-D__linux__", "-D__ELF__",
                        "-D_GNU_SOURCE", *definitions, *(f"-isystem{each}" for each in folders),
                        "-I", str(ROOT), "-I", str(ROOT / "platform"), *WARNINGS]
        # The library's headers must not see that their standard library is GCC's.
        self.prelude = f"{folder}/{target}.pch"
        run([*self.command, "-x", "c++-header", str(HERE / "prelude.h"), "-o", self.prelude], f"{target}: prelude.h")

    def compile_alone(self, header):
        run([*self.command, "-fsyntax-only", "-x", "c++", str(header)],
            f"{self.target}: {header.relative_to(ROOT)} does not compile on its own")

    def compile(self, source, *options):
        return run([*self.command, "-include-pch", self.prelude, *options, "-x", "c++", str(source)],
                   f"{self.target}: {source.relative_to(ROOT)} does not compile")


def sources(*patterns):
    return sorted(path for pattern in patterns for path in ROOT.glob(pattern))


def is_public(path):
    parts = path.relative_to(ROOT).parts
    return path.suffix == ".h" and parts[0] in ("krm", "platform") and "internal" not in parts


def check_branches():
    for folder in ("krm", "platform", "tests", "examples", "benchmarks", "fuzz"):
        for path in sources(f"{folder}/**/*.h", f"{folder}/**/*.cpp"):
            expect(is_public(path) or not re.search(r"_MSC_VER|_MSVC_LANG", path.read_text()),
                   f"{path.relative_to(ROOT)}: a branch for MSVC in a file that is not compiled for it here")


def spelled(text):
    """One spelling of a type: no blanks around *, & and commas, no class-key."""
    text = re.sub(r"\b(class|struct) ", "", text)
    return re.sub(r"\s*([*&,<>])\s*", r"\1", text).strip()


def documented_slots():
    """{class: {slot: (result, operation, parameters)}}"""
    slots = {}
    for line in SLOTS.read_text().splitlines():
        row = re.fullmatch(r"KRM_SLOT\(([\w:]+), (\d+), (.+?), (\w+), \((.*)\)( const)?\)", line)
        if row:
            slots.setdefault(row[1], {})[int(row[2])] = (spelled(row[3]), row[4], spelled(row[5]), bool(row[6]))
        else:
            expect(not line.startswith("KRM_SLOT"), f"{SLOTS.name}: can't read {line}")
    return slots


def virtual_tables(dump):
    """[(class names from the first base to the class, entries)]"""
    tables = []
    for header, body in re.findall(r"^VFTable for (.*) \(\d+ entr(?:y|ies)\)\.\n((?: .*\n)*)", dump, re.MULTILINE):
        entries = re.findall(r"^ +(\d+) \| (.*)$", body, re.MULTILINE)
        tables.append((re.findall(r"'([^']*)'", header), [text for _, text in entries], body))
    return tables


def check_slots(target, dump, polymorphic):
    documented = documented_slots()
    seen = set()
    used = set()
    for chain, entries, body in virtual_tables(dump):
        name = f"{target}: {chain[-1]}"
        if not re.match(OWN, chain[-1]):
            continue
        if not expect(len(entries) > 1 and entries[0].endswith(" RTTI") and "adjustment" not in body,
                      f"{name}: a virtual table of an unknown form:\n{body}"):
            continue
        found = entries[1:]
        destructor = re.fullmatch(r"(.*)::~\w+\(\).* \[scalar deleting\]", found[0])
        if not expect(destructor, f"{name}: slot 0 is {found[0]}"):
            continue
        seen.add(spelled(destructor[1]).replace("unsigned long", "krm_ulong"))
        expected = {}
        for base in chain:
            expected.update(documented.get(base, {}))
            used.update({base} & documented.keys())
        expect(len(found) == len(expected) + 1, f"{name}: {len(found)} slots instead of {len(expected) + 1}:\n{body}")
        for slot, text in enumerate(found[1:], 1):
            parts = re.match(r"(.*?)(\w+)\(([^()]*)\)( const)?(?: \[.*)?$", text)
            wanted = expected.get(slot)
            if not expect(parts and wanted, f"{name}: slot {slot} is {text}, which is not documented"):
                continue
            expect(spelled(parts[1]).startswith(wanted[0])
                   and (parts[2], spelled(parts[3]), bool(parts[4])) == wanted[1:],
                   f"{name}: slot {slot} is {text} instead of {wanted[0]} {wanted[1]}({wanted[2]})")
    expect(used == documented.keys(), f"{target}: no virtual table of {sorted(documented.keys() - used)}")
    expect(polymorphic <= seen, f"{target}: no virtual table of {sorted(polymorphic - seen)}")
    return len(seen)


class Layout:
    """A class as the compiler prints it: parts are (offset, type, field's name, or "base" or "table")."""

    def __init__(self, text):
        lines = text.rstrip().splitlines()
        self.name = spelled(re.fullmatch(r" *0 \| (.*?)(?: \(empty\))?", lines[0])[1])
        self.empty = lines[0].endswith("(empty)")
        self.size, self.align = (int(re.search(rf"\b{word}=(\d+)", text)[1]) for word in ("sizeof", "align"))
        self.parts = []
        for line in lines[1:]:
            part = re.fullmatch(r" *(\d+) \|   (\S.*)", line)
            if not part:
                continue
            offset, what = int(part[1]), re.sub(r" \(empty\)$", "", part[2])
            if what.endswith("table pointer)"):
                self.parts.append((offset, "*", "table"))
            elif re.search(r" \((primary )?base\)( \(empty\))?$", part[2]):
                self.parts.append((offset, spelled(re.sub(r" \((primary )?base\).*$", "", part[2])), "base"))
            else:
                kind, field = what.rsplit(" ", 1)
                self.parts.append((offset, spelled(kind), field))

    def fields(self):
        return [(re.sub(r"\bunsigned (int|long)\b", "krm_ulong", kind), name) for _, kind, name in self.parts
                if name not in ("base", "table")]

    def is_polymorphic(self, layouts):
        return any(name == "table" or name == "base" and layouts[kind].is_polymorphic(layouts)
                   for _, kind, name in self.parts)


def layouts_of(dump):
    records = re.findall(r"^\*\*\* Dumping AST Record Layout\n((?: .*\n)+)", dump, re.MULTILINE)
    return {layout.name: layout for layout in map(Layout, records)}


def size_and_alignment(kind, pointer, layouts):
    array = re.fullmatch(r"(.*?)\[(\d+)\]", kind)
    if array:
        size, align = size_and_alignment(array[1], pointer, layouts)
        return size * int(array[2]), align
    if kind.endswith("*"):
        return pointer, pointer
    kind = re.sub(r"^(const |enum krm::|enum )", "", kind)
    if kind in layouts:
        return layouts[kind].size, layouts[kind].align
    return SIZES[kind], SIZES[kind]


def check_fields(target, pointer, layouts, others):
    count = 0
    for layout in layouts.values():
        if not re.match(OWN, layout.name):
            continue
        count += 1
        end, align = 0, 1
        for offset, kind, name in layout.parts:
            try:
                size, needed = size_and_alignment(kind, pointer, layouts)
            except KeyError:
                failures.append(f"{target}: {layout.name}: the size of {kind} {name} is not known here")
                break
            if name == "base" and layouts[kind].empty:
                continue
            place = -(-end // needed) * needed
            expect(offset == place, f"{target}: {layout.name}: {name} ({kind}) lies at {offset} instead of {place}")
            end, align = offset + size, max(align, needed)
        else:
            whole = max(-(-end // align) * align, 1)
            expect((layout.size, layout.align) == (whole, align),
                   f"{target}: {layout.name}: {layout.size} bytes aligned to {layout.align}, not {whole} to {align}")
        if expect(layout.name in others, f"{target}: {layout.name} is not laid out elsewhere"):
            expect(layout.fields() == others[layout.name].fields(),
                   f"{target}: {layout.name}: other fields than elsewhere")
    return count


def main():
    clang, gcc = sys.argv[1:]
    check_branches()
    headers = [path for path in sources("krm/**/*.h", "platform/**/*.h") if is_public(path)]
    listed = {name for name in re.findall(r"^    X\((\w+),", CLASSES.read_text(), re.MULTILINE)}
    every = HERE / "every_class.cpp"
    dump = ("-S", "-emit-llvm", "-o", "/dev/null", "-Xclang", "-fdump-record-layouts", "-Xclang",
            "-fdump-vtable-layouts")
    with tempfile.TemporaryDirectory() as folder, concurrent.futures.ThreadPoolExecutor() as pool:
        for target, pointer, word, definitions in TARGETS:
            msvc = Msvc(clang, gcc, target, word, definitions, folder)
            if target == TARGETS[0][0]:
                list(pool.map(msvc.compile_alone, headers))
            list(pool.map(lambda header: msvc.compile(header, "-fsyntax-only"), headers))
            if failures:
                break
            text = msvc.compile(every, "-DKRM_BUILDING_ADAPTATION_DATA", "-DKRM_BUILDING_PLATFORM", *dump)
            layouts = layouts_of(text)
            others = layouts_of(run([clang, "-std=c++20", "-I", str(ROOT), "-I", str(ROOT / "platform"), *dump,
                                     str(every)], "every_class.cpp does not compile for this system"))
            missing = {name for name in listed if name not in layouts or f"CKRMList<{name}>" not in layouts}
            expect(not missing, f"{target}: not laid out: {sorted(missing)}")
            polymorphic = {name for name, layout in layouts.items()
                           if layout.is_polymorphic(layouts) and re.match(OWN, name)}
            tables = check_slots(target, text, polymorphic)
            fields = check_fields(target, pointer, layouts, others)
            print(f"{target}: {len(headers)} headers, {tables} virtual tables, {fields} layouts")
    for failure in failures[:20]:
        print(failure, file=sys.stderr)
    if len(failures) > 20:
        print(f"and {len(failures) - 20} more", file=sys.stderr)
    return 1 if failures else 0


if __name__ == "__main__":
    sys.exit(main())
