#!/usr/bin/env python3
"""Compares the tables of docs/interface.md with the code: slots, families, error codes, conversion types.

    check_page.py CHECKOUT

Each row of such a table must be what the code says, and the code may have nothing that its table doesn't.
"""

import re
import sys
from pathlib import Path


class Page:
    def __init__(self, text):
        self.text = text

    def rows(self, *head):
        """The rows of the tables with this head, each a list of its cells."""
        rows, lines = [], iter(self.text.splitlines())
        found = False
        for line in lines:
            if line.startswith("|") and tuple(self.cells(line)) == head:
                found = True
                next(lines)
                for line in lines:
                    if not line.startswith("|"):
                        break
                    rows.append(self.cells(line))
        if not found:
            sys.exit(f"docs/interface.md has no table with the columns {', '.join(head)}")
        return rows

    @staticmethod
    def cells(line):
        return [cell.strip().replace("`", "") for cell in line.strip().strip("|").split("|")]


class Compared:
    """What a table has and what the code has, and their differences."""

    def __init__(self):
        self.faults = []
        self.rows = 0

    def table(self, name, page, code):
        self.rows += len(page)
        self.faults += [f"{name}: the page has {key} as {value}, the code as {code.get(key, 'nothing')}"
                        for key, value in page.items() if code.get(key) != value]
        self.faults += [f"{name}: the page doesn't have {key}, {value}" for key, value in code.items() if key not in page]
        if not code:
            self.faults.append(f"{name}: nothing was found in the code")


def slots(compared, page, root):
    code = {}
    for line in (root / "tests/interface/slots.def").read_text(encoding="utf-8").splitlines():
        if line.startswith("KRM_SLOT("):
            owner, number, _, operation = [part.strip() for part in line.removeprefix("KRM_SLOT(").split(",")][:4]
            code.setdefault(owner, {0: "destructor"})[int(number)] = operation

    def operation(cell):
        """The operation that a cell names, by itself or declared; without its parameters."""
        return re.search(r"(\w+)(?=\(|$| from| with| \()", cell)[1]

    tree = ("CKRMCNode", "CKRMCAttribute", "CKRMCElement", "CKRMCElementGroup")
    named = {name: {} for name in tree}
    for number, *cells in page.rows("slot", *tree):
        for name, cell in zip(tree, cells):
            if cell:
                named[name][int(number)] = operation(cell)
    for name in tree:
        compared.table(f"slots of {name}", named[name], code[name])

    # Two tables of operations, of records and of messages; that of the converters has a line for each slot, too.
    lists, current = [], {}
    for number, cell in page.rows("slot", "operation"):
        if int(number) == 0:
            current = {}
            lists.append(current)
        current[int(number)] = operation(cell)
    for name, listed in zip(("CKRMCBaseAdaptDataStructure", "krm::LoggedMessage", "CKRMCCommandConvSignalData"), lists, strict=True):
        compared.table(f"slots of {name}", listed, code[name])

    for name, cell in page.rows("class", "slots"):
        if name in code:
            compared.table(f"slots of {name}", {int(number): word for number, word in re.findall(r"(\d+) (\w+)", cell)}, code[name])


def families(compared, page, root):
    text = (root / "krm/framework/commands.h").read_text(encoding="utf-8")
    code = {number: word for number, word in re.findall(r"= (\d+), +///< .*\(`(\w+)`\)", text)}
    compared.table("families", {number: cell.strip(".") for _, number, cell, _ in page.rows("family", "type", "classes", "slots")}, code)


def error_codes(compared, page, root):
    text = (root / "krm/core/error_codes.h").read_text(encoding="utf-8")
    code = {name: f"{number} (0x{int(number):08X})" for name, number in re.findall(r"krm_ulong (k\w+) = (\d+);", text)}
    # A code has a row for each part of the library that raises it.
    for number, name, _ in page.rows("code", "name", "raised by"):
        if code.get(name) != number:
            compared.faults.append(f"error codes: the page has {name} as {number}, the code as {code.get(name, 'nothing')}")
    compared.table("error codes", {name: number for number, name, _ in page.rows("code", "name", "raised by")}, code)


def conversion_types(compared, page, root):
    text = (root / "krm/convert/conversion_types.h").read_text(encoding="utf-8")
    found = re.findall(r"\.code = (\d+),\s+\.name = \"[^\"]*\",\s+\.className = \"CKRMCCommandConvSignalData(\w*)\"", text)
    listed = {}
    for codes, names, _ in page.rows("code", "class", "shows"):
        if codes != "any other":
            codes, names = codes.split(", "), names.split(", ")
            listed |= dict(zip(codes, names if len(names) > 1 else names * len(codes), strict=True))
    compared.table("conversion types", listed, {code: name for code, name in found if code != "0"})


def main():
    if len(sys.argv) != 2:
        sys.exit(__doc__)
    root = Path(sys.argv[1])
    page = Page((root / "docs/interface.md").read_text(encoding="utf-8"))
    compared = Compared()
    for compare in (slots, families, error_codes, conversion_types):
        compare(compared, page, root)
    print(f"{compared.rows} rows, {len(compared.faults)} faults")
    sys.exit("\n".join(compared.faults) if compared.faults else 0)


if __name__ == "__main__":
    main()
