"""Keeps docs/guide/ and README.md true: their blocks of code are compiled and run, what is shown as output is compared.

    guide.py extract OUT PAGES...              writes OUT/PAGE.cpp for every page that has a program, prints their names
    guide.py run PAGE.md [--write] PROGRAM...  runs a page's program and compares its output; --write puts the true one there
    guide.py types PAGE.md [--write] PROGRAM... compares the page's table of conversion types with the one that PROGRAM prints
    guide.py project PAGE.md FOLDER [VARIABLE=VALUE...] [-- COMMAND]
                                               follows the page's commands in FOLDER, which is made anew, with these variables
                                               of the environment; what its program prints is compared. COMMAND is what
                                               calls this, and needn't be followed where the page has it
    guide.py snippet PAGE.md PREFIX [VARIABLE=VALUE...]
                                               builds the page's program by its block of CMake, with the library installed in
                                               PREFIX, and compares what it prints
    guide.py configure PAGE.md [VARIABLE=VALUE...]
                                               configures a project that has the page's block of CMake
    guide.py check PAGES                       says what no test would notice

PAGES is the folder docs/guide, or a page, PROGRAM a program behind the emulator that runs it, if any.

A page has one program: all of its ```cpp blocks, one behind the other. Where one of them has `main`, they are the source as
they stand, and the page's only ```text block is what it prints, to standard output and standard error. Otherwise they are
statements of one `main`, but for those that begin with #include or stand behind the comment <!-- file scope -->, and each
```text block is what is printed by the statements between the one before and itself. A last line `...` stands for whatever
else there is. The guide's README.md is the index, in the order in which one page leads to the next.

Blocks of console are commands, each behind `$ `, for a folder of a project's own, or behind the comment <!-- in the checkout -->
for one with the checkout's files. WHERE in them is a third folder. A file of the project is the block behind a line that ends
in `NAME`: ; main.cpp, where no such line names it, is the page's program. A command that is neither CMake's nor cp's is the
program, which has to print what the page's blocks of text show. `wine` is the command that the variable KRM_WINE names.
"""

import os
import re
import shlex
import shutil
import subprocess
import sys
import tempfile

CHECKOUT = os.path.dirname(os.path.dirname(os.path.dirname(os.path.abspath(__file__))))
# Whose commands, or whose block of CMake, a test follows: guide.project, guide.configure, and `./dev windows`.
FOLLOWED = {("first-message.md", "console"), ("first-message.md", "cmake"), ("platform.md", "cmake"), ("windows.md", "console"),
            ("windows.md", "cmake")}

# What a program of statements prints where a block of text stands.
MARK = "\x1e"


class Block:
    def __init__(self, language, line, text, before):
        self.language = language
        self.line = line  # of the first line of the text, from 1
        self.text = text
        self.before = before  # the last line in front of it that isn't empty
        self.at_file_scope = before == "<!-- file scope -->" or text.startswith("#include")


def read(path):
    with open(path, encoding="utf-8", newline="") as file:
        return file.read()


def blocks(text):
    """The fenced blocks of a page. A fence that isn't closed, or is indented, is an error."""
    result = []
    lines = text.splitlines(keepends=True)
    number = 0
    while number < len(lines):
        if re.match(r"\s+```", lines[number]):
            raise SystemExit(f"line {number + 1}: a block that is indented isn't tested")
        if lines[number].startswith("```"):
            language = lines[number][3:].strip()
            first = number + 1
            number = first
            while number < len(lines) and lines[number].rstrip() != "```":
                number += 1
            if number == len(lines):
                raise SystemExit(f"line {first}: the block has no end")
            before = next((line.strip() for line in reversed(lines[:first - 1]) if line.strip()), "")
            result.append(Block(language, first + 1, "".join(lines[first:number]), before))
        number += 1
    return result


def has_main(found):
    return any(block.language == "cpp" and re.search(r"^int main\(", block.text, re.MULTILINE) for block in found)


def source(page, found):
    """The program of a page, with line numbers of the page; empty where it has no code."""
    code = [block for block in found if block.language == "cpp"]
    if not code:
        return ""
    name = os.path.relpath(page, CHECKOUT).replace(os.sep, "/")

    def placed(block):
        if block.language == "text":
            return 'std::fputs("\\x1e", stdout);\n'
        return f'#line {block.line} "{name}"\n{block.text}\n'

    text = f"// From {name}: its blocks of code, one behind the other.\n"
    if has_main(found):
        return text + "".join(map(placed, code))
    text += "#include <cstdio>\n\n" + "".join(placed(block) for block in code if block.at_file_scope) + "int main() {\n"
    body = [block for block in found if block.language in ("cpp", "text") and not block.at_file_scope]
    return text + "".join(map(placed, body)) + "}\n"


def pages(folder):
    return sorted(os.path.join(folder, name) for name in os.listdir(folder) if name.endswith(".md"))


def extract(out, *places):
    os.makedirs(out, exist_ok=True)
    names = []
    for page in (page for place in places for page in (pages(place) if os.path.isdir(place) else [place])):
        try:
            text = source(page, blocks(read(page)))
        except SystemExit as error:
            raise SystemExit(f"{page}: {error}")
        if text:
            name = os.path.splitext(os.path.basename(page))[0]
            names.append(name)
            path = os.path.join(out, name + ".cpp")
            if not os.path.exists(path) or read(path) != text:
                with open(path, "w", encoding="utf-8", newline="\n") as file:
                    file.write(text)
    print(";".join(names), end="")


def output(program, folder=None, environment=None):
    program = [os.path.abspath(part) if os.path.exists(part) else part for part in program]
    done = subprocess.run(program, cwd=folder, stdin=subprocess.DEVNULL, stdout=subprocess.PIPE, stderr=subprocess.STDOUT,
                          timeout=1400, env={**os.environ, **(environment or {})})
    return done.returncode, done.stdout.decode("utf-8", "backslashreplace").replace("\r\n", "\n")


def expect_same(page, shown, printed):
    """shown: pairs of line number and line of the page."""
    printed = printed.splitlines()
    if shown and shown[-1][1] == "...":
        shown = shown[:-1]
        if len(printed) <= len(shown):
            raise SystemExit(f"{page}: nothing more is printed where it says ...")
        printed = printed[:len(shown)]
    for (number, line), other in zip(shown, printed):
        if line != other:
            raise SystemExit(f"{page}:{number}: {line!r}, but it prints {other!r}")
    if len(shown) != len(printed):
        rest = printed[len(shown):] or [line for _, line in shown[len(printed):]]
        raise SystemExit(f"{page}: {len(shown)} lines are shown, {len(printed)} are printed; the first one too many: {rest[0]!r}")


def numbered(block):
    return list(enumerate(block.text.splitlines(), block.line))


def run(page, write, program):
    # Beside the program: an emulator may see the folders there alone.
    with tempfile.TemporaryDirectory(dir=os.path.dirname(os.path.abspath(program[-1]))) as folder:
        status, printed = output(program, folder, {"LC_ALL": "C"})
    if status != 0:
        raise SystemExit(f"{page}: the program ends with {status} and prints\n{printed}")
    text = read(page)
    found = blocks(text)
    shown = [block for block in found if block.language == "text"]
    parts = [printed] if has_main(found) else printed.split(MARK)
    if not has_main(found) and parts.pop() != "":
        raise SystemExit(f"{page}: something is printed behind the last block of text")
    if len(parts) != len(shown) or not all(parts):
        raise SystemExit(f"{page}: {len(shown)} blocks of text, but the program prints {len([p for p in parts if p])}")
    if write:
        lines = text.splitlines(keepends=True)
        for block, part in reversed(list(zip(shown, parts))):
            lines[block.line - 1:block.line - 1 + len(block.text.splitlines())] = part.splitlines(keepends=True)
        with open(page, "w", encoding="utf-8", newline="\n") as file:
            file.write("".join(lines))
        return
    for block, part in zip(shown, parts):
        expect_same(page, numbered(block), part)
    print(f"{page}: {len(shown_output(found))} lines are as shown")


def types(page, write, program):
    """The rows of the table have six cells, code to example; the formula, the fifth, stands in the page alone."""
    status, printed = output(program)
    if status != 0:
        raise SystemExit(f"{' '.join(program)} ends with {status}:\n{printed}")

    def cells(line):
        return [cell.strip() for cell in line.strip().strip("|").split("|")]

    expected = [cells(line) for line in printed.splitlines()]
    text = read(page)
    begin, end = (text.index(f"<!-- {mark} conversion types -->") for mark in ("begin", "end"))
    table = text[begin:end].splitlines()[1:]
    table = [line for line in table if line.strip()]
    rows = [cells(line) for line in table[2:]]
    if write:
        formulas = {row[0]: row[3] for row in rows}
        made = [" | ".join(["", *row[:3], formulas.get(row[0], "?"), row[3], ""]).strip() for row in expected]
        marked = text[begin:].splitlines()[0] + "\n\n" + "\n".join(table[:2] + made) + "\n\n"
        with open(page, "w", encoding="utf-8", newline="\n") as file:
            file.write(text[:begin] + marked + text[end:])
        return
    if [row[0] for row in rows] != [row[0] for row in expected]:
        raise SystemExit(f"{page}: the table's codes are {[row[0] for row in rows]}, not {[row[0] for row in expected]}")
    for row, other in zip(rows, expected):
        if len(row) != 5 or not row[3] or row[3] == "?":
            raise SystemExit(f"{page}: type {row[0]} has no formula")
        if row[:3] + row[4:] != other:
            raise SystemExit(f"{page}: type {row[0]}: {row[:3] + row[4:]}, but the library has {other}")
    print(f"{page}: {len(rows)} conversion types are as the library has them")


def run_shell(page, number, command, folder, environment):
    status, printed = output(["sh", "-c", command], folder, environment)
    if status != 0:
        raise SystemExit(f"{page}:{number}: {command} ends with {status}:\n{printed}")
    return printed


def settings(variables):
    """The environment of commands, of VARIABLE=VALUE."""
    return {"LC_ALL": "C", **dict(variable.split("=", 1) for variable in variables)}


def write_file(folder, name, text):
    with open(os.path.join(folder, name), "w", encoding="utf-8", newline="\n") as file:
        file.write(text)


def shown_output(found):
    return [line for block in found if block.language == "text" for line in numbered(block)]


def project(page, folder, *rest):
    variables, caller = (rest[:rest.index("--")], list(rest[rest.index("--") + 1:])) if "--" in rest else (rest, [])
    environment = settings(variables)
    found = blocks(read(page))
    shutil.rmtree(folder, ignore_errors=True)
    checkout, own, where = (os.path.join(os.path.abspath(folder), name) for name in ("checkout", "project", "where"))
    os.makedirs(own)

    def left_out(place, names):
        """What was built, and what FOLDER lies in."""
        return [name for name in names if name.startswith(".") or name in ("build", "node_modules") or
                own.startswith(os.path.join(place, name) + os.sep)]

    # Nothing is built in the checkout itself: its build folders may be in use. And links in place of the copy would be
    # installed as links, and written through.
    shutil.copytree(CHECKOUT, checkout, ignore=left_out)
    files = {}
    for block in found:
        name = re.search(r"`([\w.-]+)`:$", block.before)
        if name:
            files[name[1]] = block.text
        elif block.language == "cmake":
            raise SystemExit(f"{page}:{block.line}: a block of CMake that is no file of the project")
    for name, text in {"main.cpp": source(page, found), **files}.items():
        write_file(own, name, text)
    compared = False
    for block in (block for block in found if block.language == "console"):
        place = checkout if block.before == "<!-- in the checkout -->" else own
        for number, line in numbered(block):
            if not line.startswith("$ "):
                raise SystemExit(f"{page}:{number}: a line of a console block is no command")
            command = line[2:]
            if [command] == caller:
                caller = []
                continue
            is_program = not re.match(r"(cmake|cp|for) ", command)
            command = re.sub(r"^wine ", lambda _: environment["KRM_WINE"] + " ", command).replace("WHERE", shlex.quote(where))
            # Standard error alone is unbuffered there, so it comes first.
            printed = run_shell(page, number, command, place, environment)
            if is_program:
                expect_same(page, shown_output(found), printed.replace(MARK, ""))
                compared = True
    if not compared:
        raise SystemExit(f"{page} has no command that runs its program")
    if caller:
        raise SystemExit(f"{page} doesn't have {caller[0]}")
    shutil.rmtree(folder)
    print(f"the commands of {page} do what it says")


def cmake_block(page, found):
    found = [block for block in found if block.language == "cmake"]
    if len(found) != 1:
        raise SystemExit(f"{page} has {len(found)} blocks of CMake, not one")
    return found[0]


def snippet(page, prefix, *variables):
    """The block goes on with a project that has the target my_tool."""
    found = blocks(read(page))
    block = cmake_block(page, found)
    with tempfile.TemporaryDirectory() as folder:
        write_file(folder, "main.cpp", source(page, found))
        write_file(folder, "CMakeLists.txt", "cmake_minimum_required(VERSION 3.25)\nproject(my_tool LANGUAGES CXX)\n"
                   "add_executable(my_tool main.cpp)\n" + block.text)
        for command in (f"cmake -S . -B build -DCMAKE_PREFIX_PATH={shlex.quote(os.path.abspath(prefix))}", "cmake --build build"):
            run_shell(page, block.line, command, folder, settings(variables))
        printed = run_shell(page, block.line, "build/my_tool", folder, settings(variables))
    expect_same(page, shown_output(found), printed)
    print(f"the program of {page}, built as it says, prints what it shows")


def configure(page, *variables):
    """The page's libraries and folders, which the project here has to have: real_libraries, my_root, krm."""
    block = cmake_block(page, blocks(read(page)))
    with tempfile.TemporaryDirectory() as folder:
        os.symlink(CHECKOUT, os.path.join(folder, "krm"))
        os.symlink(os.path.join(CHECKOUT, "platform"), os.path.join(folder, "my_root"))
        write_file(folder, "CMakeLists.txt", "cmake_minimum_required(VERSION 3.25)\nproject(mine LANGUAGES CXX)\n"
                   "add_library(real_libraries INTERFACE)\n" + block.text +
                   "if(TARGET krm::platform OR NOT TARGET krm::adaptation_data)\n"
                   "    message(FATAL_ERROR \"the library isn't built on the platform of this project\")\nendif()\n")
        run_shell(page, block.line, "cmake -S . -B build", folder, settings(variables))
    print(f"the CMake of {page} configures")


def check(folder):
    """Says which blocks no test looks at, and which page isn't where the index has it."""
    faults = []
    index = read(os.path.join(folder, "README.md"))
    order = re.findall(r"^\| \[[^]]+\]\(([\w-]+\.md)\)", index, re.MULTILINE)
    there = {os.path.basename(page) for page in pages(folder)} - {"README.md"}
    for name in sorted(there ^ set(order)):
        faults.append(f"README.md's table and the folder don't both have {name}")
    for page in pages(folder):
        name = os.path.basename(page)
        text = read(page)
        found = blocks(text)
        has_program = any(block.language == "cpp" for block in found)
        for block in found:
            first = block.text.splitlines()[0] if block.text else ""
            if block.language == "text" and not has_program:
                faults.append(f"{name}:{block.line}: output of no program")
            elif block.language in ("console", "cmake"):
                if (name, block.language) not in FOLLOWED:
                    faults.append(f"{name}:{block.line}: no test follows it: {first}")
            elif block.language not in ("cpp", "text"):
                faults.append(f"{name}:{block.line}: a block of \"{block.language}\" isn't tested")
        prose = re.sub(r"^```.*?^```$|`[^`\n]*`", "", text, flags=re.MULTILINE | re.DOTALL)
        for link in re.findall(r"\]\(([^)#]+)[^)]*\)", prose):
            if not link.startswith("http") and not os.path.exists(os.path.join(folder, link)):
                faults.append(f"{name}: there is no {link}")
        if name in order:
            if not re.match(r"# .+\n\nAfter this page you ", text):
                faults.append(f"{name} doesn't begin with what one can do after it")
            following = order[order.index(name) + 1:][:1] or ["README.md"]
            if not text.splitlines()[-1].endswith(f"]({following[0]})"):
                faults.append(f"{name} doesn't end with the way to {following[0]}")
    if faults:
        raise SystemExit("\n".join(faults))
    print(f"{len(pages(folder))} pages, each block tested")


def main(arguments):
    verb, *rest = arguments
    write = "--write" in rest
    rest = [argument for argument in rest if argument != "--write"]
    if verb == "extract":
        extract(*rest)
    elif verb == "run":
        run(rest[0], write, rest[1:])
    elif verb == "types":
        types(rest[0], write, rest[1:])
    elif verb == "project":
        project(*rest)
    elif verb == "snippet":
        snippet(*rest)
    elif verb == "configure":
        configure(*rest)
    elif verb == "check":
        check(*rest)
    else:
        raise SystemExit(__doc__)


main(sys.argv[1:])
