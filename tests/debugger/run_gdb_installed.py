#!/usr/bin/env python3
"""Installs the library as a package for /usr does, and lets gdb find the printers by itself.

    run_gdb_installed.py VIEWS PROGRAM ALONE CMAKE BUILD CONFIGURATION FOLDER

BUILD is installed for /usr into FOLDER, without debug information. FOLDER takes the place of the system's root: gdb looks for
scripts there, and trusts it. PROGRAM knows the layout of every class by itself, ALONE leaves most of them to the library.
Skipped where gdb is not installed, or has no Python.
"""

import os
import shutil
import sys
from pathlib import Path

import sessions
from run_gdb import START, echo, find_gdb, session, shows

EXPECTED = [("bytes", "CKRMList<unsigned char> of 3 = {65, 66, 67}"), ("shortText", '"P0301"')]
EXPECTED_ALONE = [("bytes", "CKRMList<unsigned char> <no debug information of this class>"), ("shortText", '"P0301"'),
                  ("*rawBlock", "CKRMBinary <no debug information of this class>")]


def main(_, program, alone, cmake, build, configuration, folder):
    gdb = find_gdb()
    root = Path(folder).resolve()
    shutil.rmtree(root, ignore_errors=True)
    sessions.run([cmake, "--install", build, "--config", configuration, "--prefix", "/usr", "--strip"], DESTDIR=str(root))

    scripts = root / "usr/share/gdb/auto-load"
    found = list(scripts.rglob("*-gdb.py"))
    if len(found) != 1:
        print(f"installed for gdb are {found}")
        return 1
    library = root / str(found[0].relative_to(scripts)).removesuffix("-gdb.py")
    if not library.is_file() or library.is_symlink():
        print(f"{found[0]} belongs to no library")
        return 1
    # gdb looks below its folder of scripts for the library's whole path, which begins with this root.
    place = scripts / root.relative_to("/")
    place.mkdir(parents=True)
    os.symlink(scripts / "usr", place / "usr")

    start = [command for command in START if command != "set auto-load no"]
    start += [f"set auto-load scripts-directory {scripts}", f"set auto-load safe-path {root}"]
    wrong = 0
    for debugged, expected in (program, EXPECTED), (alone, EXPECTED_ALONE):
        commands = ["break Stop", "run", "up", *shows(name for name, _ in expected)]
        shown = sessions.marked(session(gdb, debugged, commands, start, LD_LIBRARY_PATH=str(library.parent)))
        wrong |= sessions.compare(shown, expected)
    return wrong


if __name__ == "__main__":
    sys.exit(main(*sys.argv[1:]))
