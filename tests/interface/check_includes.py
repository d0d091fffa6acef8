#!/usr/bin/env python3
"""Compares who includes whom in the library with the table of folders in CONTRIBUTING.md.

    check_includes.py CHECKOUT

The table's rows name a folder and what it may include: `nothing`, other folders by their last name, or single headers by
their path below krm/. Every header and source of krm/ and platform/ must lie in a folder of the table (directly in krm/
only headers may lie, which gather others), may include its own folder and what its row names, and a public header no
`internal/` one. Tests are compiled with GoogleMock's header in front of them: whoever uses its macros includes it all the
same, or GoogleTest's where that is enough.
"""

import re
import sys
from pathlib import Path

TABLE_HEAD = ["folder", "what", "may include"]


def cells(line):
    return [cell.strip() for cell in line.strip().strip("|").split("|")]


def read_table(text):
    """The rows of the table: {folder below its include root: names that its row allows}, in the table's order."""
    lines = iter(text.splitlines())
    for line in lines:
        if line.startswith("|") and cells(line) == TABLE_HEAD:
            break
    else:
        sys.exit(f"CONTRIBUTING.md has no table with the columns {', '.join(TABLE_HEAD)}")
    next(lines)  # the rule below the head
    rows = {}
    for line in lines:
        if not line.startswith("|"):
            break
        folder, _, allowed = cells(line)
        path = re.fullmatch(r"`(?:platform/)?(krm/\S+)/`", folder)
        names = re.findall(r"`([^`]+)`", allowed)
        if not path or (allowed != "nothing" and not names):
            sys.exit(f"CONTRIBUTING.md: a row that says nothing to this check: {line}")
        rows[path[1]] = names
    return rows


def allowed_paths(rows):
    """{folder: paths that it may include: folders, ending in a slash, and headers}, its own among them."""
    by_name = {folder.rsplit("/", 1)[1]: folder for folder in rows}
    result = {}
    for folder, names in rows.items():
        result[folder] = {folder + "/"}
        for name in names:
            if name in by_name:
                result[folder].add(by_name[name] + "/")
            elif name.endswith(".h"):
                result[folder].add("krm/" + name)
            else:
                sys.exit(f"CONTRIBUTING.md: {folder} may include {name}, which is no folder of the table")
    return result


def circle(allowed):
    """A folder that includes itself by way of others, or None. Single headers are arrows too."""
    arrows = {folder: {other for other in allowed if other != folder
                       and any(path.startswith(other + "/") for path in paths)}
              for folder, paths in allowed.items()}
    for start in arrows:
        reached, todo = set(), list(arrows[start])
        while todo:
            folder = todo.pop()
            if folder == start:
                return start
            if folder not in reached:
                reached.add(folder)
                todo.extend(arrows[folder])
    return None


def test_faults(root):
    """The tests that use GoogleTest or GoogleMock without including it."""
    for path in sorted((root / "tests").rglob("*_test.cpp")):
        text = path.read_text(encoding="utf-8")
        if re.search(r"\b(EXPECT_THAT|ASSERT_THAT|MOCK_METHOD)\(", text):
            wanted = ["gmock/gmock.h"]
        elif re.search(r"\bTEST(_F|_P)?\(", text):
            wanted = ["gtest/gtest.h", "gmock/gmock.h"]
        else:
            continue
        included = re.findall(r'#include [<"]([^">]+)[">]', text)
        if not set(included) & set(wanted):
            yield f"{path.relative_to(root).as_posix()}: doesn't include {wanted[0]}"


def main():
    root = Path(sys.argv[1])
    allowed = allowed_paths(read_table((root / "CONTRIBUTING.md").read_text(encoding="utf-8")))
    faults = []
    if circle(allowed):
        faults.append(f"CONTRIBUTING.md: {circle(allowed)} includes itself by way of others")
    includes = 0
    for folder in allowed:
        if not any((include_root / folder).is_dir() for include_root in (root, root / "platform")):
            faults.append(f"CONTRIBUTING.md: there is no folder {folder}")
    files = [(path, path.relative_to(include_root).as_posix())
             for include_root in (root, root / "platform")
             for path in sorted((include_root / "krm").rglob("*")) if path.suffix in (".h", ".cpp")]
    for path, name in files:
        folder = next((folder for folder in allowed if name.startswith(folder + "/")), None)
        if folder is None and (name.count("/") > 1 or path.suffix != ".h"):
            faults.append(f"{name}: its folder is not in CONTRIBUTING.md's table")
            continue
        public = path.suffix == ".h" and "/internal/" not in name
        for number, line in enumerate(path.read_text(encoding="utf-8").splitlines(), 1):
            match = re.match(r'\s*#\s*include\s*(?:"([^"]+)"|<(krm/[^>]+)>)', line)
            if not match:
                continue
            includes += 1
            included = match[1] or match[2]
            where = f"{name}:{number}: "
            if not any((include_root / included).is_file() for include_root in (root, root / "platform")):
                faults.append(where + f"{included} is no path from an include root")
                continue
            internal = "/internal/" in included
            if public and internal:
                faults.append(where + f"a public header includes {included}")
            if folder is None:
                continue
            if not any(included == entry or (entry.endswith("/") and included.startswith(entry))
                       for entry in allowed[folder]):
                faults.append(where + f"{folder} may not include {included}")
    faults += test_faults(root)
    for fault in faults:
        print(fault)
    print(f"{len(files)} files, {includes} includes, {len(faults)} faults")
    sys.exit(1 if faults or includes == 0 else 0)


if __name__ == "__main__":
    main()
