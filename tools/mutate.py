#!/usr/bin/env python3
"""Checks that the tests can fail: changes library or program at one place at a time and sees whether a test notices.

    tools/mutate.py [COUNT] [--build DIR] [--seed WORD] [--only REGEX] [--list] [--headers N] [--jobs N]

COUNT places (200 if not given) are drawn from krm/, platform/ and cli/, evenly over the kinds of change below, the same ones for
the same seed and the same code. --only draws from the changes alone whose description ("krm/convert/converter.cpp:57
constant: 1 -> 2") matches; --list shows the draw and runs nothing. As many changes are tried at a time as there are
processors, or --jobs. Kinds:

    comparison      < and <=, > and >=, == and != exchanged
    arithmetic      + - * / % += and the like replaced, ++ and -- exchanged, a sign lost
    logic           && and ||, & and |, << and >>, true and false exchanged, a ! lost
    constant        n becomes n + 1; so do shift counts, sign codes, cases, bounds
    default         the same for the value that a field starts with
    return          a returned error code becomes 0, a returned true false
    type            a local variable, an inner field or the result of an inner function narrowed: krm_ulong to unsigned
                    short, double to float
    cast            a number's static_cast narrowed alike, or lost where an operator or an auto takes its type
    condition       the condition of an if becomes true or false, of a loop false; a ?: one of its two values
    ternary         the two values of a ?: exchanged
    arguments       two arguments of one type exchanged, of a call or in braces
    error code      the code that an operation fails with becomes another
    statement       a statement of one line is left out: a call, an assignment, a reset
    conversion      %d %u %X %s %lf in the format of a log line replaced
    name            a letter of the field's name in such a format, or of the function's name in front of it
    line order      two neighbouring log lines exchanged
    line lost       a log line left out
    field           the field of the next log line in the place of this one's

Comments, preprocessor lines, Windows' own code and texts that are no format of a log line stay as they are; so do changes
that change nothing by their kind (%d for %u where the field has less than 32 bits, or is an index; a class that may be
copied in one step copied field by field; an int or a std::size_t made a short, as they count bits, digits or elements;
std::min's arguments exchanged, a returned kDone, which is 0 already). The types of the interface's fields stay, too: their
layout has tests of its own (tests/interface/), which a changed header isn't compiled with.

DIR is a tree that is built already (build/linux64; `./dev mutate` builds it). Neither the checkout nor the tree is ever
changed: the changed file, all that is built from it and what the tests write lie in DIR/mutants, which goes at the end,
interrupted or not. The tests' program stays as it is and loads the changed library. A changed source costs one object,
without optimisation, but with the standard library's assertions and traps for undefined behaviour: what the sanitizers see
is noticed here, too. A changed header that tests include, too, costs those sources of the library that include it and a
small program of the tests that stand for it (TESTS_OF_HEADERS), so the draw takes only few of them (--headers).

The suites of the changed file's own folder run first, then the other quick ones, then the slow ones; the first failure
ends it. A change of the program krm is tested by the suites of tests/cli/, and by what ctest runs it for (cli.*). A header of krm/framework/ must also still refuse the code of tests/must_not_compile. A change that doesn't
compile was noticed by the compiler (warnings don't count: an unused parameter or a missing pair of parentheses says
nothing about the tests), one that crashes or fails a test by the tests, and one that doesn't end by the time limit. What
is known to change nothing that a caller could see stands in tools/mutate_equivalent.txt with the reason, and isn't drawn.

Exits with 0 when every change was noticed, with 1 when not. The result is in DIR/mutation.txt, too.
"""

import argparse
import bisect
import copy
import hashlib
import json
import os
import re
import resource
import shlex
import shutil
import signal
import subprocess
import sys
from collections import Counter, namedtuple
from concurrent.futures import ThreadPoolExecutor
from pathlib import Path
from queue import SimpleQueue

ROOT = Path(__file__).resolve().parent.parent
EQUIVALENT = ROOT / "tools" / "mutate_equivalent.txt"

# The tests that stand for a header, when they are to be compiled anew for it. Other headers take the test of their name.
TESTS_OF_HEADERS = {
    "krm/core/error_codes.h": ["tests/framework/errors_test.cpp"],
    "krm/core/list.h": ["tests/core/list_test.cpp", "tests/core/list_tools_test.cpp"],
    "krm/core/internal/digits.h": ["tests/core/digits_test.cpp"],
    "krm/messages/diag/j2534_config.h": ["tests/messages/diag/vehicle_test.cpp"],
    "krm/tree/node.h": ["tests/tree/element_test.cpp"],
    "krm/convert/number_converters.h": ["tests/convert/specialised_numbers_test.cpp"],
    "krm/framework/dump.h": ["tests/framework/record_test.cpp", "tests/messages/diag/words_test.cpp"],
    "krm/framework/record.h": ["tests/framework/record_test.cpp"],
    "krm/framework/message.h": ["tests/framework/message_test.cpp"],
    "krm/framework/commands.h": ["tests/framework/commands_test.cpp", "tests/framework/message_test.cpp"],
    "krm/framework/log_sinks.h": ["tests/framework/log_sinks_test.cpp", "tests/platform/scoped_log_sink_test.cpp"],
    "krm/platform/string.h": ["tests/platform/string_conveniences_test.cpp"],
    "platform/krm/platform/platform.h": ["tests/platform/map_test.cpp", "tests/platform/string_test.cpp",
                                         "tests/platform/error_test.cpp", "tests/platform/imported_base_test.cpp",
                                         "tests/framework/message_test.cpp"],
    "krm/convert/internal/extended.h": ["tests/convert/extended_test.cpp", "tests/convert/base_conversions_test.cpp"],
    "krm/convert/internal/quick_scaling.h": ["tests/convert/quick_scaling_test.cpp"],
    "krm/convert/internal/numbers.h": ["tests/convert/decimal_text_test.cpp", "tests/convert/base_conversions_test.cpp"],
}

# What looks at the first value of every field.
TESTS_OF_FIELDS = ["tests/messages/completeness_test.cpp", "tests/messages/element_completeness_test.cpp"]

# Where code is changed: the library's include roots, and the program krm. A path is relative to the checkout everywhere; what
# lies in platform/ is included without it.
PROGRAM = "cli/"
INCLUDE_ROOTS = ("krm/", "platform/krm/", PROGRAM)

# How a changed source is compiled.
CHECKED = ["-O0", "-g0", "-w", "-D_GLIBCXX_ASSERTIONS", "-fsanitize=shift,bounds,signed-integer-overflow,float-cast-overflow",
           "-fsanitize-undefined-trap-on-error"]

MEMORY_LIMIT = 6 << 30

Mutant = namedtuple("Mutant", "path line kind before after start end text")


def include_path(path):
    """How a file of the library is included."""
    return path.removeprefix("platform/")


def describe(mutant):
    return f"{mutant.path}:{mutant.line} {mutant.kind}: {mutant.before} -> {mutant.after}"


# ---------------------------------------------------------------------------------------------------- places to change

TOKEN = re.compile(
    r"""(?P<comment>//[^\n]*|/\*.*?\*/)
      | (?P<directive>^[ \t]*\#(?:[^\n]*\\\n)*[^\n]*)
      | (?P<string>"(?:\\.|[^"\\\n])*")
      | (?P<character>'(?:\\.|[^'\\\n])')
      | (?P<number>\b0[xX][0-9A-Fa-f']+[uUlL]*|\b[0-9][0-9']*(?:\.[0-9]+)?(?:[uUlL]*)\b)
      | (?P<word>[A-Za-z_]\w*)
      | (?P<operator><<=|>>=|<=>|->|\+\+|--|&&|\|\||<<|>>|<=|>=|==|!=|[-+*/%&|^]=|::|[-+*/%&|^!~<>=?:;,.(){}\[\]])""",
    re.VERBOSE | re.MULTILINE | re.DOTALL)

COMPARISONS = {"<": "<=", "<=": "<", ">": ">=", ">=": ">", "==": "!=", "!=": "=="}
ARITHMETIC = {"+": "-", "-": "+", "*": "/", "/": "*", "%": "/", "+=": "-=", "-=": "+=", "*=": "/=", "/=": "*=",
              "%=": "/="}
LOGIC = {"&&": "||", "||": "&&", "&": "|", "|": "&", "<<": ">>", ">>": "<<", "|=": "&=", "&=": "|=", "<<=": ">>=",
         ">>=": "<<="}

LOG_LINE = re.compile(r'^(?P<indent> +)(?P<writer>\w*[lL]ine)\((?P<format>"[^"]*"), (?P<field>[^()"]+)\);$')
STATEMENT = re.compile(r"""^\ {4,}(?:
      (?:\+\+|--)[\w.\->]+
    | [\w.\->:\[\]*]+(?:\(\))?\ (?:[-+*/%&|]|<<|>>)?=\ .+
    | \*?[\w.\->:]+(?:\[[^\]]*\])?(?:\(\))?\ =\ .+
    | (?!return\b|delete\b)[\w.\->:]+\(.*\)
    | delete\ \w+
    );$""", re.VERBOSE)
NARROW = re.compile(r"\bm_(uch|ush|ch|b|c)[A-Z]|Data\[%[du]\]$")


# A narrower type for each that a variable is declared with or a value cast to. An int or a std::size_t counts bits, digits or
# the elements of a table mostly, which have room in a short.
NARROWER = {"krm_ulong": "unsigned short", "krm_long": "short", "krm_int64": "krm_long", "unsigned short": "unsigned char",
            "std::uintmax_t": "std::uint32_t", "std::intmax_t": "std::int32_t",
            "std::uint64_t": "std::uint32_t", "std::int64_t": "std::int32_t", "std::uint32_t": "std::uint16_t",
            "std::int32_t": "std::int16_t", "double": "float"}
DECLARATION = re.compile(rf"(?P<type>{'|'.join(NARROWER)}) (?P<name>\w+)(?P<then> = |;|\()")
CAST = re.compile(r"static_cast<(?P<type>[\w: ]+)>\(")
CAST_BEHIND = {"<", "<=", ">", ">=", "-", "*", "/", "%"}  # operators whose result depends on the type that is cast to
CAST_BEFORE = CAST_BEHIND | {"<<", ">>"}
NUMBERS = set(NARROWER) | {"int", "unsigned", "char", "signed char", "unsigned char"}
# What has a field's, parameter's or variable's type in front of its name.
TYPED_NAME = re.compile(r"\b(?P<type>(?:unsigned )?[A-Za-z_][\w:]*(?:<[\w:]+>)?(?: const)?[ *&]+)(?P<name>\w+)"
                        r"(?= = |[;,){])")
NO_TYPES = {"auto", "return", "case", "new", "delete", "class", "typename", "struct", "else", "namespace", "throw", "goto"}
ARGUMENT = re.compile(r"[A-Za-z_]\w*(?:(?:\.|->)[A-Za-z_]\w*)*")
SYMMETRIC = {"min", "max", "swap", "Same"}
ZEROS = {"kDone"}  # what is returned by these names is 0
NO_CALLS = {"if", "while", "for", "switch", "return", "sizeof", "catch", "operator"}


def windows_lines(text):
    """Numbers of the lines that only a build for Windows sees."""
    lines, stack, found = text.split("\n"), [], set()
    for number, line in enumerate(lines, 1):
        directive = line.strip()
        if directive.startswith("#if"):
            stack.append("_WIN32" in directive and "!defined(_WIN32)" not in directive)
        elif directive.startswith("#else") and stack:
            stack[-1] = False
        elif directive.startswith("#endif") and stack:
            stack.pop()
        elif any(stack):
            found.add(number)
    return found


def next_number(text):
    digits = re.match(r"0[xX][0-9A-Fa-f']+|[0-9'.]+", text).group()
    suffix = text[len(digits):]
    plain = digits.replace("'", "")
    if plain.lower().startswith("0x"):
        return f"0x{int(plain, 16) + 1:X}{suffix}"
    if "." in plain:
        whole, decimals = plain.split(".")
        return f"{int(whole) + 1}.{decimals}{suffix}"
    return f"{int(plain) + 1}{suffix}"


def changed_letter(text, place):
    letter = text[place]
    other = {"z": "a", "Z": "A", "9": "8"}.get(letter, chr(ord(letter) + 1))
    return text[:place] + other + text[place + 1:]


def changes_of_format(literal, is_log_line):
    """Pairs of kind and changed literal."""
    if "::ErrWriteOperationLog" in literal:
        yield "name", changed_letter(literal, 6 + len(literal) % 10)
        return
    if not is_log_line:
        return
    for match in re.finditer(r"%([0-9]*)(lf|[duXs])", literal):
        if match.start() <= 2:
            continue  # the prefix
        number, letter = match.groups()
        index = literal[match.end():match.end() + 1] == "]"
        narrow = index or NARROW.search(literal[:match.start()])
        if letter == "d" and re.search(r"\bm_b[A-Z]\w*=$", literal[:match.start()]):
            continue  # 0 or 1
        others = {"d": ["X" if narrow else "u"], "u": ["X"], "X": ["d"], "s": ["d"], "lf": ["f", "d"]}[letter]
        if not narrow and letter == "d":
            others.append("X")
        for other in others:
            yield "conversion", literal[:match.start()] + "%" + number + other + literal[match.end():]
        if number:
            yield "conversion", literal[:match.start()] + "%" + letter + literal[match.end():]
    letters = [m.start() for m in re.finditer(r"(?<![%\\])[A-Za-z](?=[^%]*[\[=\"])", literal)
               if literal[m.start() - 1] != "%" and not re.search(r"%[0-9l]*$", literal[:m.start()])]
    if letters:
        yield "name", changed_letter(literal, letters[len(literal) * 7 % len(letters)])


def closing(code, i):
    """The place of the token that closes the bracket which is code[i]; of the last where an #if opens two for one."""
    depth = 0
    for j in range(i, len(code)):
        if code[j].group() in ("(", "[", "{"):
            depth += 1
        elif code[j].group() in (")", "]", "}"):
            depth -= 1
            if depth == 0:
                return j
    return len(code) - 1


def parts(code, first, last, separator):
    """The tokens code[first:last], split at each `separator` that stands in no bracket: pairs of first and last place."""
    found, begin, i = [], first, first
    while i < last:
        word = code[i].group()
        if word in ("(", "[", "{"):
            i = closing(code, i)
        elif word == separator:
            found.append((begin, i))
            begin = i + 1
        i += 1
    return found + [(begin, last)]


def types_narrowed(path, text, code):
    """Tuples of kind, start, end, replacement; so from each of the functions behind this one."""
    inner = [match.span() for match in re.finditer(r"^namespace \{$.*?^\}  // namespace$", text, re.MULTILINE | re.DOTALL)]
    for i, token in enumerate(code):
        match = DECLARATION.match(text, token.start())
        if not match or token.lastgroup != "word":
            continue
        j = i - 1
        while code[j].group() in ("const", "static", "inline"):
            j -= 1
        ahead = code[j].group()
        if ahead == "(" and code[j - 1].group() not in ("if", "for", "while", "switch"):
            continue  # a parameter
        if ahead not in ("{", "}", ";", ":", ">", "(", ")") and code[j].lastgroup != "directive":
            continue
        if match["then"] == "(":
            opening = next(k for k in range(i, len(code)) if code[k].group() == "(")
            behind = closing(code, opening) + 1
            while code[behind].group() in ("const", "noexcept"):
                behind += 1
            if code[behind].group() != "{" or not path.endswith(".h") and not any(a < token.start() < b for a, b in inner):
                continue  # no definition, or one that a header declares
        elif re.match(r"m_(ul|l|ush|dw|d)[A-Z]", match["name"]) and path.endswith(".h"):
            continue  # a field of the interface
        yield "type", match.start("type"), match.end("type"), NARROWER[match["type"]]


def casts_changed(path, text, code):
    for i, token in enumerate(code):
        match = CAST.match(text, token.start())
        if not match or match["type"] not in NUMBERS:
            continue
        if match["type"] in NARROWER:
            yield "cast", match.start("type"), match.end("type"), NARROWER[match["type"]]
        opening = next(k for k in range(i, len(code)) if code[k].start() == match.end() - 1)
        behind = code[closing(code, opening) + 1].group()
        # Most operators convert by themselves to what the cast names.
        if match["type"] == "double":
            matters = "/" in (behind, code[i - 1].group())
        else:
            matters = behind in CAST_BEFORE or code[i - 1].group() in CAST_BEHIND or re.search(r"\bauto \w+ = $",
                                                                                            text[:token.start()])
        if matters:
            yield "cast", token.start(), code[opening].start(), ""


def conditions_replaced(path, text, code):
    for i, token in enumerate(code[:-1]):
        word = token.group()
        if word not in ("if", "while", "for") or code[i + 1].group() != "(":
            continue
        statements = parts(code, i + 2, closing(code, i + 1), ";")
        if word == "for" and len(statements) != 3:
            continue
        first, last = statements[1] if word == "for" else statements[-1]
        if first == last:
            continue
        start, end = code[first].start(), code[last - 1].end()
        # What the condition declares is used behind it.
        declared = text[start:end] + "; " if any(code[k].group() == "=" for k in range(first, last)) else ""
        for value in ("true", "false") if word == "if" else ("false",):
            yield "condition", start, end, declared + value


def ternaries_changed(path, text, code):
    for i, token in enumerate(code):
        if token.group() != "?":
            continue
        nested, colon = 1, i
        while nested:
            colon += 1
            word = code[colon].group()
            if word in ("(", "[", "{"):
                colon = closing(code, colon)
            nested += {"?": 1, ":": -1}.get(word, 0)
        last = colon + 1
        while code[last].group() not in (";", ",", ")", "]", "}"):
            last = closing(code, last) + 1 if code[last].group() in ("(", "[", "{") else last + 1
        start, end = code[i + 1].start(), code[last - 1].end()
        one, other = text[start:code[colon - 1].end()], text[code[colon + 1].start():end]
        yield "ternary", start, end, f"({other}) : ({one})"
        yield "condition", start, end, f"{one} : ({one})"
        yield "condition", start, end, f"({other}) : {other}"


def arguments_exchanged(path, text, code, fields):
    declared = [(match.start("name"), match["name"], plain_type(match)) for match in TYPED_NAME.finditer(text)]

    def type_of(argument, place):
        name = re.split(r"\.|->", argument)[-1]
        if name == argument:
            near = [what for start, known, what in declared if known == name and start < place]
            if near:
                return near[-1]
        return next(iter(fields[name])) if len(fields.get(name, ())) == 1 else None

    for i, token in enumerate(code):
        call = code[i - 1].lastgroup == "word" and code[i - 1].group() not in NO_CALLS | SYMMETRIC
        if token.group() != "{" and (token.group() != "(" or not call):
            continue
        known = []
        for first, last in parts(code, i + 1, closing(code, i), ","):
            argument = text[code[first].start():code[last - 1].end()] if first < last else ""
            if ARGUMENT.fullmatch(argument) and argument not in NUMBERS and (what := type_of(argument, token.start())):
                known.append((code[first].start(), argument, what))
        for k, (start, argument, what) in enumerate(known):
            behind = next((other for other in known[k + 1:] if other[2] == what), None)
            if behind and behind[1] != argument:
                between = text[start + len(argument):behind[0]]
                yield "arguments", start, behind[0] + len(behind[1]), behind[1] + between + argument


def plain_type(match):
    what = re.sub(r"\bconst\b|&", "", match["type"]).replace(" *", "*").strip()
    return None if what in NO_TYPES else what


def types_of_fields():
    """Name -> all types that anything of that name has in the library."""
    fields = {}
    for path in library_files():
        for match in TYPED_NAME.finditer((ROOT / path).read_text()):
            fields.setdefault(match["name"], set()).add(plain_type(match))
    return fields


def library_files():
    return sorted(str(path.relative_to(ROOT)) for root in INCLUDE_ROOTS for path in (ROOT / root).rglob("*")
                  if path.suffix in (".h", ".cpp"))


def mutants_of(path, error_codes, fields):
    text = (ROOT / path).read_text()
    windows = windows_lines(text)
    starts = [0] + [match.end() for match in re.finditer("\n", text)]
    lines = text.split("\n")
    found = []

    def line_of(offset):
        return bisect.bisect_right(starts, offset)

    def add(kind, start, end, replacement):
        number = line_of(start)
        if number not in windows:
            before, after = text[start:end].strip(), replacement.strip()
            found.append(Mutant(path, number, kind, " ".join(before.split()), " ".join(after.split()) or "(nothing)",
                                start, end, text[:start] + replacement + text[end:]))

    tokens = [match for match in TOKEN.finditer(text) if match.lastgroup != "comment"]
    asserted = [(token.start(), text.index(";", token.start())) for token in tokens if token.group() == "static_assert"]
    skip_until = -1
    for i, token in enumerate(tokens):
        kind, word, start, end = token.lastgroup, token.group(), token.start(), token.end()
        if kind == "directive" or start < skip_until:
            continue
        before = tokens[i - 1].group() if i > 0 else ""
        line = lines[line_of(start) - 1]
        if word == "static_assert":
            skip_until = text.index(";", start)
        elif kind == "string":
            for what, literal in changes_of_format(word, LOG_LINE.match(line) or re.search(r"\w*[lL]ine\($", text[:start])):
                add(what, start, end, literal)
        elif kind == "character" and len(word) == 3 and word[1].isalnum():
            add("constant", start, end, changed_letter(word, 1))
        elif kind == "number":
            field = re.match(r"^    [\w:]+ m_\w+ = ", line)
            add("default" if field else "constant", start, end, next_number(word))
        elif word in ("true", "false") and before != "bool" and "::kCopiedInOneStep<" not in line:
            field = re.match(r"^    [\w:]+ m_\w+ = ", line)
            kind = "default" if field else "return" if before == "return" else "logic"
            add(kind, start, end, "false" if word == "true" else "true")
        elif kind == "word" and re.match(r"k[A-Z]", word):
            if before == "return" and tokens[i + 1].group() == ";" and word not in ZEROS:
                add("return", start, end, "0")
            elif before == "(" and tokens[i - 2].group() == "Fail" and word in error_codes:
                others = error_codes
                add("error code", start, end, others[(others.index(word) + 1) % len(others)])
        elif kind == "operator" and before != "operator":
            spaced = text[start - 1:start] == " " and text[end:end + 1] in (" ", "\n")
            if word in ("++", "--"):
                add("arithmetic", start, end, "--" if word == "++" else "++")
            elif word == "!":
                add("logic", start, end, "")
            elif word == "-" and before in ("(", "=", ",", "return", "?", ":") and text[end:end + 1] != " ":
                add("arithmetic", start, end, "")
            elif spaced and before not in (",", "(", "template"):
                for what, table in (("comparison", COMPARISONS), ("arithmetic", ARITHMETIC), ("logic", LOGIC)):
                    if word in table:
                        add(what, start, end, table[word])

    code = [token for token in tokens if token.lastgroup != "directive"
            and not any(a <= token.start() < b for a, b in asserted)]
    for changes in (types_narrowed, casts_changed, conditions_replaced, ternaries_changed):
        for change in changes(path, text, code):
            add(*change)
    for change in arguments_exchanged(path, text, code, fields):
        add(*change)

    for number, line in enumerate(lines, 1):
        start = starts[number - 1]
        end = start + len(line) + 1
        match = LOG_LINE.match(line)
        if match:
            add("line lost", start, end, "")
            following = LOG_LINE.match(lines[number])
            if following and following["writer"] == match["writer"]:
                add("line order", start, end + len(lines[number]) + 1, lines[number] + "\n" + line + "\n")
                field = match.start("field")
                add("field", start + field, start + match.end("field"), following["field"])
        elif STATEMENT.match(line) and path.endswith(".cpp") or re.match(r"^ {8,}(\+\+|--)?m_\w+( [-+]?= .*)?;$", line):
            if not re.match(r"^ +(using|typedef)\b", line):
                add("statement", start, end, "")
    return found


def read_equivalent():
    """Tuples of file, kind, change, part of the line, reason."""
    entries = []
    for line in EQUIVALENT.read_text().splitlines() if EQUIVALENT.exists() else []:
        if line.strip() and not line.startswith("#"):
            path, kind, change, code, reason = line.rstrip().split(" ;; ")
            entries.append((path, kind, change, code, reason))
    return entries


def all_mutants():
    entries = read_equivalent()
    used = Counter()
    error_codes = re.findall(r"\b(k[A-Z]\w*) = \d{10};", (ROOT / "krm/core/error_codes.h").read_text())
    fields = types_of_fields()
    mutants = []
    for path in library_files():
        text = (ROOT / path).read_text()
        lines = text.split("\n")
        for mutant in mutants_of(path, error_codes, fields):
            for entry in entries:
                line = lines[mutant.line - 1]
                part, _, behind = entry[3].partition(" ... ")
                if "@" in part:
                    column = mutant.start - text.rfind("\n", 0, mutant.start) - 1
                    line = line[:column] + "@" + line[column + mutant.end - mutant.start:]
                if (entry[0], entry[1], entry[2]) == (path, mutant.kind, f"{mutant.before} -> {mutant.after}") \
                        and part in line and behind in lines[mutant.line]:
                    used[entry] += 1
                    break
            else:
                mutants.append(mutant)
    for entry in entries:
        if not used[entry]:
            print(f"mutate_equivalent.txt: no place has the change {' ;; '.join(entry[:4])}", file=sys.stderr)
    return mutants, sum(used.values())


def draw(mutants, count, headers, seed):
    """`count` of `mutants`, the kinds in turn; a change of code elsewhere leaves the order as it is."""
    occurrences = Counter()
    by_kind = {}
    for mutant in mutants:
        name = (mutant.path, mutant.kind, mutant.before, mutant.after)
        occurrences[name] += 1
        rank = hashlib.sha256(repr((seed, name, occurrences[name])).encode()).hexdigest()
        by_kind.setdefault(mutant.kind, []).append((rank, mutant))
    for ranked in by_kind.values():
        ranked.sort(key=lambda pair: pair[0], reverse=True)
    drawn = []
    while len(drawn) < count and any(by_kind.values()):
        for kind in sorted(by_kind):
            while by_kind[kind] and len(drawn) < count:
                mutant = by_kind[kind].pop()[1]
                if mutant.path.endswith(".h"):
                    if headers == 0:
                        continue
                    headers -= 1
                drawn.append(mutant)
                break
    return sorted(drawn, key=lambda mutant: (mutant.path, mutant.start))


# ------------------------------------------------------------------------------------------------------ build and run


class Tree:
    """A build tree, and the folder in it where a changed source is built and tested."""

    def __init__(self, build):
        self.build = build
        self.mutants = build / "mutants"
        self.objects = {}   # source, relative to the checkout -> its compile command
        for entry in json.loads((build / "compile_commands.json").read_text()):
            if Path(entry["file"]).is_relative_to(ROOT):
                self.objects[str(Path(entry["file"]).relative_to(ROOT))] = shlex.split(entry["command"])
        # The object, as the linker gets it -> its source.
        self.sources = {command[command.index("-o") + 1]: source for source, command in self.objects.items()}
        self.program = build / "bin" / "krm_tests"
        self.libraries = {name: next((build / "krm").glob(f"lib{name}.so.*.*.*"))
                          for name in ("krmc_adaptation_data", "krmc_exchange", "krmc_platform")}
        self.links = {name: self._link_command(path.relative_to(build)) for name, path in self.libraries.items()}
        self.test_link = self._link_command("bin/krm_tests")
        self.program_link = self._link_command("bin/krm")
        self.program_tests = [test["command"] for test in json.loads(
            self._run(["ctest", "-R", r"^cli\.", "--show-only=json-v1"]))["tests"]]
        self.includers = self._includers()
        self.times = self._measure()
        self.quick = [name for name, seconds in self.times.items() if seconds < 0.3]
        self.slow = [name for name, seconds in self.times.items() if seconds >= 0.3]

    def with_folder(self, name):
        """The same tree with a folder of its own below, for another change at the same time."""
        other = copy.copy(self)
        other.mutants = self.mutants / name
        return other

    def _run(self, command):
        return subprocess.run(command, cwd=self.build, check=True, capture_output=True, text=True).stdout

    def _link_command(self, target):
        line = self._run(["ninja", "-t", "commands", "-s", str(target)]).strip().split("\n")[-1]
        words = shlex.split(line.removeprefix(": && ").removesuffix(" && :"))
        return words

    def _includers(self):
        """Header -> the sources, relative to the checkout, whose objects include it."""
        includers, source = {}, None
        for line in self._run(["ninja", "-t", "deps"]).split("\n"):
            if line and not line.startswith(" "):
                source = None
            elif line.strip():
                path = Path(os.path.normpath(self.build / line.strip()))
                if path.is_relative_to(ROOT):
                    name = str(path.relative_to(ROOT))
                    if source is None:
                        source = name
                    includers.setdefault(name, set()).add(source)
        return includers

    def _measure(self):
        """Runs all tests as they are: they must pass. Returns the suites with their seconds, quick ones first."""
        result = self.build / "mutants" / "times.json"
        self.mutants.mkdir(exist_ok=True)
        run = subprocess.run([self.program, "--gtest_brief=1", f"--gtest_output=json:{result}"], cwd=self.build,
                             stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        if run.returncode != 0:
            raise SystemExit("the tests fail already without any change")
        return {name: seconds for seconds, name in sorted(
            (float(suite["time"].rstrip("s")), suite["name"])
            for suite in json.loads(result.read_text())["testsuites"])}

    def compile(self, source, output, extra):
        words = list(self.objects[source])
        if Path(words[0]).name == "ccache":
            del words[0]
        words[words.index("-o") + 1] = str(output)
        place = words.index("-c")
        words[place + 1] = str(extra.get("file", words[place + 1]))
        words[1:1] = [f"-I{extra['include']}"] if "include" in extra else []
        output.parent.mkdir(parents=True, exist_ok=True)
        return subprocess.run(words + CHECKED, cwd=self.build, capture_output=True, timeout=300).returncode == 0

    def link(self, name, objects):
        """Links the library again, with `objects` (source -> object) in the place of its own."""
        words = list(self.links[name])
        for i, word in enumerate(words):
            if self.sources.get(word) in objects:
                words[i] = str(objects[self.sources[word]])
        words[words.index("-o") + 1] = str(self.mutants / f"lib{name}.so.1")
        self._link(words)

    def link_tests(self, objects, tests=()):
        """Links a program of the tests in `objects`, of those of `tests` that aren't, and of what supports them."""
        self._link_with(objects, "some_tests", [
            word for word in self.test_link if "/support/" in word or not word.endswith("_test.cpp.o")
            or self.sources.get(word) in tests])

    def link_program(self, objects):
        self._link_with(objects, "krm", self.program_link)

    def _link_with(self, objects, name, command):
        """Links what `command` does, with `objects` (source -> object) in front of its libraries, which hold the same as they
        were, or in the place of its own."""
        words = [word for word in command if self.sources.get(word) not in objects]
        words[words.index("-o") + 1] = str(self.mutants / name)
        words[words.index("-o"):words.index("-o")] = [str(made) for made in objects.values()]
        self._link(words)

    def program_passes(self):
        """Whether the changed program krm does what ctest runs it for: True, False, or None at the time limit."""
        program = str(self.build / "bin" / "krm")
        for command in self.program_tests:
            passed = self._ends_well([str(self.mutants / "krm") if word == program else word for word in command], 60)
            if not passed:
                return passed
        return True

    def _link(self, words):
        """No change here renames anything, so what compiles links; if not, the fault is this program's."""
        run = subprocess.run(words, cwd=self.build, capture_output=True, text=True)
        if run.returncode != 0:
            raise SystemExit("can't link: " + run.stderr)

    def passes(self, program, suites):
        """Whether the tests pass with the changed libraries: True, False, or None at the time limit."""
        flags = self.mutants / "flags"
        flags.write_text("--gtest_filter=" + ":".join(name + ".*" for name in suites) + "\n" if suites else "")
        limit = 30 + 8 * sum(self.times[name] for name in suites) if suites else 60
        return self._ends_well([program, "--gtest_brief=1", "--gtest_fail_fast", f"--gtest_flagfile={flags}"], limit)

    def _ends_well(self, command, limit):
        """Whether `command` ends with 0, with the changed libraries if there are some; None at the time limit."""
        written = self.mutants / "written"
        written.mkdir(exist_ok=True)
        environment = dict(os.environ, LD_LIBRARY_PATH=str(self.mutants), TEST_TMPDIR=str(written), TMPDIR=str(written))

        def limits():
            resource.setrlimit(resource.RLIMIT_AS, (MEMORY_LIMIT, MEMORY_LIMIT))
            resource.setrlimit(resource.RLIMIT_CORE, (0, 0))

        process = subprocess.Popen(command, cwd=self.mutants, env=environment, preexec_fn=limits, start_new_session=True,
                                   stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        try:
            return process.wait(limit) == 0
        except subprocess.TimeoutExpired:
            return None
        finally:
            if process.poll() is None:
                os.killpg(process.pid, signal.SIGKILL)
                process.wait()

    def refuses_bad_code(self):
        """Whether the code of tests/must_not_compile is refused, with the changed header, as it announces. What concerns
        the compiler's standard and not the header is left out."""
        folder = ROOT / "tests" / "must_not_compile"
        compiler = [word for word in self.objects["krm/framework/message.cpp"] if "ccache" not in word][0]
        command = [compiler, "-std=c++20", "-fsyntax-only"]
        command += [f"-I{include}" for include in (self.mutants / "include", ROOT, ROOT / "platform")]
        return all(subprocess.run(["cmake", f"-DSOURCE={source}", "-P", folder / "check.cmake", "--"] + command,
                                  capture_output=True).returncode == 0
                   for source in sorted(folder.glob("*.cpp")) if source.stem != "below_cpp20")

    def empty_folder(self):
        shutil.rmtree(self.mutants, ignore_errors=True)
        self.mutants.mkdir(parents=True)


def suites_of_folder(path):
    """The names that suites of the tests of `path`'s folder begin with."""
    folder = ROOT / "tests" / Path(include_path(path).replace("/internal/", "/")).parent.relative_to("krm")
    names = set()
    for test in folder.glob("*_test.cpp"):
        names.update(re.findall(r"^(?:TYPED_)?TEST(?:_[FP])?\((\w+),", test.read_text(), re.MULTILINE))
    return names


def stands_in_framework_header(mutant):
    return mutant.path.startswith("krm/framework/") and mutant.path.endswith(".h")


def verdict(tree, mutant):
    """"compiler", "test", "time limit", or "unnoticed"."""
    tree.empty_folder()
    objects, program, stages = {}, tree.program, None
    in_program = mutant.path.startswith(PROGRAM)
    if mutant.path.endswith(".cpp"):
        changed = tree.mutants / Path(mutant.path).name
        changed.write_text(mutant.text)
        objects[mutant.path] = tree.mutants / "mutant.o"
        if not tree.compile(mutant.path, objects[mutant.path], {"file": changed}):
            return "compiler"
    else:
        changed = tree.mutants / "include" / include_path(mutant.path)
        changed.parent.mkdir(parents=True)
        changed.write_text(mutant.text)
        extra = {"include": tree.mutants / "include"}
        includers = tree.includers.get(mutant.path, set())
        tests = [name for name in includers if name.startswith("tests/")]
        if tests and not in_program:
            stem = include_path(mutant.path).removeprefix("krm/").removesuffix(".h")
            tests = TESTS_OF_HEADERS.get(mutant.path, [f"tests/{stem}_test.cpp"])
            if mutant.kind == "default" and mutant.path.startswith("krm/messages/"):
                tests = tests + TESTS_OF_FIELDS
            tests = [name for name in tests if (ROOT / name).exists()]
            if not tests:
                raise SystemExit(f"no tests stand for {mutant.path}: name them in TESTS_OF_HEADERS")
        # The tests' own objects first: they are what most often refuses to compile or fails.
        for source in tests + sorted(name for name in includers if name.startswith(INCLUDE_ROOTS)):
            objects[source] = tree.mutants / "objects" / (source + ".o")
            if not tree.compile(source, objects[source], extra):
                return "compiler"
        if tests:
            tree.link_tests(objects if in_program else {name: objects[name] for name in tests})
            program, stages = tree.mutants / "some_tests", [[]]
    if in_program:
        if mutant.path == PROGRAM + "main.cpp":
            stages = []  # the tests have one of their own
        elif stages is None:
            tree.link_tests(objects, [name for name in tree.objects if name.startswith("tests/cli/")])
            program, stages = tree.mutants / "some_tests", [[]]
        tree.link_program({source: made for source, made in objects.items() if not source.startswith("tests/")})
    for name, words in tree.links.items():
        if any(tree.sources.get(word) in objects for word in words):
            tree.link(name, objects)
    if stages is None:
        names = suites_of_folder(mutant.path)

        def is_own(suite):
            return any(part in names for part in suite.split("/"))

        stages = [[suite for suite in tree.quick if is_own(suite)], [suite for suite in tree.quick if not is_own(suite)],
                  [suite for suite in tree.slow if is_own(suite)], [suite for suite in tree.slow if not is_own(suite)]]
        stages = [stage for stage in stages if stage]
    for stage in stages:
        passed = tree.passes(program, stage)
        if passed is None:
            return "time limit"
        if not passed:
            return "test"
    if in_program:
        passed = tree.program_passes()
        if not passed:
            return "time limit" if passed is None else "test"
    if stands_in_framework_header(mutant) and not tree.refuses_bad_code():
        return "test"
    return "unnoticed"


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("count", nargs="?", type=int, default=200)
    parser.add_argument("--build", type=Path, default=ROOT / "build" / "linux64")
    parser.add_argument("--seed", default="krm")
    parser.add_argument("--only", default="")
    parser.add_argument("--headers", type=int, default=15)
    parser.add_argument("--list", action="store_true")
    parser.add_argument("--jobs", type=int, default=len(os.sched_getaffinity(0)))
    options = parser.parse_args()

    mutants, equivalent = all_mutants()
    places = len(mutants)
    mutants = [mutant for mutant in mutants if re.search(options.only, describe(mutant))]
    drawn = draw(mutants, options.count, options.headers, options.seed)
    kinds = Counter(mutant.kind for mutant in drawn)
    print(f"{len(drawn)} of {places} changes, {equivalent} known to change nothing: "
          + ", ".join(f"{kind} {number}" for kind, number in sorted(kinds.items())), flush=True)
    if options.list:
        print("\n".join(describe(mutant) for mutant in drawn))
        return 0

    signal.signal(signal.SIGTERM, lambda *_: sys.exit(143))
    signal.signal(signal.SIGHUP, lambda *_: sys.exit(129))
    build = options.build.resolve()
    report = build / "mutation.txt"
    results = {}
    try:
        tree = Tree(build)
        if any(stands_in_framework_header(mutant) for mutant in drawn) and not tree.refuses_bad_code():
            raise SystemExit("the code of tests/must_not_compile isn't refused as it announces, already without any change")
        folders = SimpleQueue()
        for job in range(options.jobs):
            folders.put(tree.with_folder(str(job)))

        def tried(mutant):
            folder = folders.get()
            try:
                return verdict(folder, mutant)
            finally:
                folders.put(folder)

        with report.open("w") as out, ThreadPoolExecutor(options.jobs) as pool:
            try:
                for number, (mutant, found) in enumerate(zip(drawn, pool.map(tried, drawn)), 1):
                    results[mutant] = found
                    line = f"{number}/{len(drawn)} {found:10} {describe(mutant)}"
                    print(line, flush=True)
                    print(line, file=out, flush=True)
            except BaseException:
                pool.shutdown(wait=False, cancel_futures=True)
                raise
            counts = Counter(results.values())
            by_kind = {kind: Counter(result for mutant, result in results.items() if mutant.kind == kind)
                       for kind in sorted(kinds)}
            unnoticed = [mutant for mutant in drawn if results[mutant] == "unnoticed"]
            lines = [f"{'':12} {'changes':>8} {'compiler':>8} {'tests':>8} {'time':>8} {'unnoticed':>9}"]
            for kind, row in list(by_kind.items()) + [("all", counts)]:
                lines.append(f"{kind:12} {sum(row.values()):8} {row['compiler']:8} {row['test']:8} "
                             f"{row['time limit']:8} {row['unnoticed']:9}")
            lines += ["unnoticed: " + describe(mutant) for mutant in unnoticed]
            print("\n".join(lines))
            print("\n".join(lines), file=out)
    finally:
        shutil.rmtree(build / "mutants", ignore_errors=True)
    return 1 if unnoticed else 0


if __name__ == "__main__":
    sys.exit(main())
