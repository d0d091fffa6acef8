#!/usr/bin/env python3
"""Compares what a built library exports with a checked list.

    check_exports.py LIST LIBRARY [NM]

LIST has one line per export: a function (`Class::Member`, whatever its arguments), `vtable for Class` and `typeinfo for
Class`, and `CKRMList<Element>` for a list with its whole member set. The library, an ELF shared object or the import
library of a DLL, must export every line. What else it exports may only be members of the classes that the list names:
what a compiler makes by itself, such as a copy constructor or the virtual table of a base that only others construct,
is exported by some, at some levels of optimisation, and inline or nowhere with others.

With --write the list is made anew from an ELF library, built with optimisation; read the difference before committing it.
"""

import re
import subprocess
import sys

LIST_MEMBERS = {
    "CKRMList", "~CKRMList", "operator=", "AddTail", "InsertAt", "RemoveAt", "RemoveAll", "GetCount",
    "GetHeadPosition", "GetTailPosition", "GetNext", "GetNextPtr", "GetPrev", "GetPrevPtr", "GetAt", "operator[]",
    "GetAtPtr",
}
OVERLOADED = {"AddTail": 2, "GetNext": 2, "GetNextPtr": 2, "GetPrev": 2, "GetPrevPtr": 2, "CKRMList": 2}


def symbols(library, nm):
    """Pairs (kind as nm gives it, demangled name) of the exported symbols."""
    if library.endswith(".dll.a"):
        command = [nm, "-C", "--defined-only", library]
    else:
        command = [nm, "-DC", "--defined-only", library]
    for line in subprocess.run(command, check=True, capture_output=True, text=True).stdout.splitlines():
        match = re.match(r"^[0-9a-f]+ (\w) (.*)$", line)
        kind, name = match.groups() if match else ("", "")
        if kind in "TWVDRBu" and kind and not name.startswith(("_", ".")):
            yield kind, name
        # Of data an import library has the pointer alone; 32-bit names have one underscore more.
        elif imported := kind == "I" and re.match(r"_{1,2}imp_{1,2}(_ZT.*)", name):
            yield "D", subprocess.run(["c++filt", imported[1]], check=True, capture_output=True, text=True).stdout.strip()


def without_arguments(name):
    """`Class::Member(int) const` without what is behind the member's name, nor the result that a template's name begins
    with; operator() would need more."""
    depth, begin = 0, 0
    for i, character in enumerate(name):
        if character == "<":
            depth += 1
        elif character == ">" and depth > 0:
            depth -= 1
        elif character == " " and depth == 0 and not re.search(r"\boperator$|\bfor$|^(vtable|typeinfo)$", name[begin:i]):
            begin = i + 1
        elif character == "(" and depth == 0:
            return name[begin:i]
    return name


def read_exports(library, nm):
    """Exports that every build must have; virtual tables and type descriptions that an optimised one has too; and those
    that only some have."""
    required, weak_data, optional, list_members = set(), set(), set(), {}
    for kind, name in symbols(library, nm):
        name = re.sub(r"unsigned (int|long)>", "krm_ulong>", name)
        if name.startswith("typeinfo name for "):
            continue
        on_list = re.match(r"^(CKRMList<[^<>]*>)::(.*)$", name)
        if on_list:
            members = list_members.setdefault(on_list.group(1), {})
            member = without_arguments(on_list.group(2))
            members.setdefault(member, set()).add(on_list.group(2))
        elif re.match(r"^(vtable|typeinfo) for CKRMList<", name):
            optional.add(name)
        else:
            {"W": optional, "V": weak_data}.get(kind, required).add(without_arguments(name))
    for name, members in list_members.items():
        missing = [m for m in LIST_MEMBERS if len(members.get(m, ())) < OVERLOADED.get(m, 1)]
        if missing:
            sys.exit(f"{library}: {name} lacks {', '.join(sorted(missing))}")
        required.add(name)
        extra = set(members) - LIST_MEMBERS
        if extra:
            sys.exit(f"{library}: {name} has {', '.join(sorted(extra))}, which is no part of the interface")
    return required, weak_data, optional


def class_of(name):
    name = re.sub(r"^(vtable|typeinfo) for ", "", name)
    return name.split("::")[0]


def main():
    arguments = [argument for argument in sys.argv[1:] if argument != "--write"]
    list_file, library = arguments[:2]
    nm = arguments[2] if len(arguments) > 2 else "nm"
    required, weak_data, optional = read_exports(library, nm)
    if "--write" in sys.argv:
        with open(list_file, "w", encoding="utf-8") as file:
            file.write("\n".join(sorted(required | weak_data)) + "\n")
        return
    with open(list_file, encoding="utf-8") as file:
        listed = set(file.read().split("\n")) - {""}
    classes = {class_of(name) for name in listed}
    exported = required | weak_data | optional
    missing = listed - exported
    foreign = {name for name in exported if name not in listed and class_of(name) not in classes}
    unlisted = set() if library.endswith(".dll.a") else required - listed
    for title, names in (("missing", missing), ("not of the interface", foreign), ("not in the list", unlisted)):
        for name in sorted(names):
            print(f"{title}: {name}")
    print(f"{library}: {len(listed)} listed exports, {len(missing)} missing, {len(foreign) + len(unlisted)} too many")
    sys.exit(1 if missing or foreign or unlisted else 0)


if __name__ == "__main__":
    main()
