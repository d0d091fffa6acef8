#!/usr/bin/env python3
"""Writes viewer/catalogue.json: what every command, class and field of the interface is, from the sources themselves.

    tools/make_catalogue.py [--check]

--check compares what the sources give with the file that is there, and fails where they differ.

The file is one JSON object:

    commands   one for each row of krm/framework/commands.h: its family's word, type, id and name, and the classes of its
               request ("send") and of its answer ("receive")
    classes    by name, every message, record and structure, the bases of requests and answers, and CKRMError:
        comment    what it is
        base       of a message its base, whose field comes before its own; else null
        log        of a message or base the name in brackets at the beginning of its own lines in the operation log; null
                   where it writes none, or is no message
        fields     in order, each with
            name, meaning   as in the source; a default that isn't what Clear restores is said in the comments
            type            as in the source; of a list CKRMList<...>
            element         of a list or an array what it holds, else null
            default         of a new object: a number, false, a text, [] of a list, {} of a map, null of a record
            logged          the format of its line in the log. Of a record or a list of records what comes in front of its
                            own lines. A structure that has no dump shows the format of the first class that writes it.
                            null: the log doesn't show it
        lines      what the class itself writes into the log, in order: "format", and the path of the "field", in which
                   [] stands for an index. A format without "=" is a record's or a list's, whose own lines follow
"""

import json
import os
import re
import sys
from pathlib import Path

ROOT = Path(__file__).resolve().parent.parent
CATALOGUE = ROOT / "viewer" / "catalogue.json"
BASES = ROOT / "krm" / "framework" / "message.h"
PLATFORM = ROOT / "platform" / "krm" / "platform" / "platform.h"


def stop(what):
    sys.exit(f"make_catalogue.py: {what}")


# ---- Classes: comments, fields, defaults ------------------------------------------------------------------------------

CLASS_HEAD = re.compile(r"^(?:class|struct) (?:KRM_\w*API )?(\w+)\b([^;{]*)\{")
FIELD = re.compile(r"^(?P<type>(?:const )?[\w:]+(?: (?:char|short|int|long))?(?:<.*>)?) (?P<name>\w+)(?:\[(?P<length>\d+)\])?"
                   r"(?: = (?P<default>[^;]+))?;$")
NO_FIELD = re.compile(r"^(using|static|friend|extern|typedef|return|public|private|protected)\b")


def default_of(kind, text, length):
    if length:
        return [0] * int(length)
    if kind.startswith("CKRMList<"):
        return []
    if kind.startswith("CKRMMap<"):
        return {}
    if kind == "CKRMString":
        return ""
    if text is None:
        return None
    if text in ("true", "false"):
        return text == "true"
    return float(text) if kind == "double" else int(text, 0)


def element_of(kind, length):
    if length:
        return kind
    match = re.fullmatch(r"CKRM(?:List|Map)<(.*)>", kind)
    return match.group(1) if match else None


def read_classes(path, wanted, classes):
    """Adds the classes of a header whose name `wanted` takes."""
    open_classes = []  # (name or None, depth of its braces)
    depth = 0
    comment = []
    statement = ""  # code since the last end of a statement
    meaning = []  # what stands behind it as ///<
    for line in path.read_text().splitlines():
        text = line.strip()
        if text.startswith("/// ") or text == "///":
            comment.append(text[4:])
            continue
        code, _, trailing = text.partition("///<")
        if trailing:
            meaning.append(trailing.strip())
        code = code.split("//")[0].strip()
        if code.startswith("#"):
            continue
        statement = f"{statement} {code}".strip()
        if not statement:
            comment = [] if not text else comment
            continue
        head = CLASS_HEAD.match(statement)
        if head and not statement.startswith("template"):
            name = head.group(1)
            outer = [entry[0] for entry in open_classes if entry[0]]
            if outer:
                name = f"{outer[-1]}::{name}"
            base = re.search(r"\b(CKRMCBase(?:Cmd|Vdc|Dsdi|Ucc|Dwt)AdaptData(?:Snd|Rcv)?)\b", head.group(2))
            keep = wanted(name)
            if keep:
                classes[name] = {"comment": " ".join(comment), "base": base.group(1) if base else None, "log": None,
                                 "fields": [], "lines": []}
                classes[name]["dumps"] = bool(re.search(r"(?:RecordOf|MessageOf)<", head.group(2)))
            opened = depth
            depth += statement.count("{") - statement.count("}")
            if depth > opened:
                open_classes.append((name if keep else None, depth))
            statement, comment, meaning = "", [], []
            continue
        at_class = open_classes and open_classes[-1][0] and open_classes[-1][1] == depth
        if not re.search(r"[;{}:]$", code):
            continue  # it goes on in the next line
        opened = statement.count("{") - statement.count("}")
        if statement.count("(") != statement.count(")"):
            continue
        plain = statement.replace(" = {}", "")
        if at_class and opened == 0 and "(" not in plain and not NO_FIELD.match(plain):
            field = FIELD.match(plain)
            if not field:
                stop(f"{path}: what is this? {plain}")
            kind, length = field["type"], field["length"]
            classes[open_classes[-1][0]]["fields"].append({
                "name": field["name"],
                "type": f"{kind}[{length}]" if length else kind,
                "element": element_of(kind, length),
                "default": default_of(kind, field["default"], length),
                "meaning": " ".join(meaning) or " ".join(comment),
                "logged": None,
            })
        depth += opened
        while open_classes and open_classes[-1][1] > depth:
            open_classes.pop()
        statement, comment, meaning = "", [], []


def check_fields(classes):
    """krm/fields/, which the compiler and a test check against the classes, must say the same."""
    listed = {}
    for path in sorted((ROOT / "krm" / "fields").rglob("*.h")):
        text = re.sub(r"//.*", "", path.read_text())
        for name, members in re.findall(r"struct (?:krm::)?Fields<([\w:]+)>\s*:\s*(?:krm::)?FieldList<([^;{]*)>\s*\{\s*\}", text):
            listed[name] = re.findall(r"&[\w:]+::(\w+)", members)
    if set(listed) != set(classes):
        stop(f"krm/fields/ and the headers have different classes: {sorted(set(listed) ^ set(classes))}")
    for name, fields in listed.items():
        if fields != [field["name"] for field in classes[name]["fields"]]:
            stop(f"{name}: krm/fields/ has {fields}")


# ---- Dumps: the formats of the log's lines ----------------------------------------------------------------------------

FUNCTION = re.compile(r"^(?:void|krm_long) (\w+(?:::\w+)*)\(([^)]*)\) \{\n(.*?)^\}", re.M | re.S)
STATEMENT = re.compile(
    r"\s*(?:"
    r"(?P<comment>//[^\n]*\n)|"
    r"(?P<line>\w+)\(\s*\"(?P<format>[^\"]*)\",\s*(?P<values>[^;]*)\);|"
    r"(?P<walker>\w+)\.ForEach\(\s*(?P<list>[\w.]+),\s*\[\]\(const auto& (?P<item_line>\w+), auto& (?P<item>\w+)\) \{|"
    r"(?P<helper>\w+)\((?P<arguments>[\w, .]+)\);|"
    r"(?P<other>[^;]*;))")


def body_end(text, start):
    """Behind the brace that ends what begins at `start`."""
    depth, position = 1, start
    for match in re.finditer(r"\"[^\"]*\"|[{}]", text[start:]):
        depth += {"{": 1, "}": -1}.get(match.group(), 0)
        if depth == 0:
            position = start + match.end()
            break
    return position


def read_dumps(classes):
    for path in [*sorted((ROOT / "krm" / "messages").rglob("*.cpp")), BASES.with_suffix(".cpp")]:
        functions = {name: (parameters, body) for name, parameters, body in FUNCTION.findall(path.read_text())}
        for name, (_, body) in functions.items():
            owner, _, operation = name.rpartition("::")
            if operation in ("Dump", "ErrWriteOperationLog") and owner in classes:
                classes[owner]["lines"] = list(lines_of(body, {}, functions, path))


def lines_of(body, roots, functions, path):
    """The lines that a dump's body writes. `roots` has for each name of an element the path that it stands for."""
    def path_of(expression):
        expression = re.sub(r"^HexOf\((.*)\)$", r"\1", expression.strip())
        expression = re.sub(r"\.GetCount\(\)$", "", expression)
        first, dot, rest = expression.partition(".")
        return roots[first] + dot + rest if first in roots else expression

    position = 0
    while body[position:].strip():
        match = STATEMENT.match(body, position)
        if not match:
            stop(f"{path}: what is this? {body[position:position + 100]!r}")
        position = match.end()
        if match["format"]:
            field = path_of(re.split(r",\s*(?![^(]*\))", match["values"])[0])
            indices = len(re.findall(r"\[%[du]\]", match["format"]))
            yield {"format": match["format"], "field": field + "[]" * (indices - field.count("[]"))}
        elif match["walker"]:
            end = body_end(body, match.end())
            element = {match["item"]: path_of(match["list"]) + "[]"}
            yield from lines_of(body[match.end():end - 1], {**roots, **element}, functions, path)
            position = body.index(";", end) + 1
        elif match["helper"] in functions:
            parameters, inner = functions[match["helper"]]
            names = [parameter.split()[-1].lstrip("&") for parameter in parameters.split(",")]
            arguments = [argument.strip() for argument in match["arguments"].split(",")]
            yield from lines_of(inner, dict(zip(names[1:], map(path_of, arguments[1:]))), functions, path)


def find_field(classes, name, path):
    """The field of the class, or of what it holds, and the name of the class that has it."""
    first, _, rest = path.partition(".")
    for field in classes[name]["fields"]:
        if field["name"] == first.replace("[]", ""):
            if not rest:
                return name, field
            return find_field(classes, field["element"] or field["type"], rest)
    return stop(f"{name} has no field {path}")


def set_logged(classes, messages):
    """Each class's own fields by its own lines; then what its lines say of structures that have no dump."""
    for own in (True, False):
        for name, entry in classes.items():
            if name in messages and entry["log"] is None:
                continue
            for line in entry["lines"]:
                parts = line["field"].split(".")
                for count in range(1, len(parts) + 1):
                    owner, field = find_field(classes, name, ".".join(parts[:count]))
                    is_whole = count == len(parts)
                    if (owner == name) != own or (not own and classes[owner]["dumps"]) or field["logged"] is not None:
                        continue
                    # A record that has no name of its own in the log, such as CKRMError, shares that of its holder.
                    head, steps = re.match(r"(\[%s\][ .]?|%s\.)(.*)", line["format"]).groups()
                    steps = steps.split(".")
                    prefix = head + ".".join(steps[:min(count, len(steps) - 1)])
                    field["logged"] = line["format"] if is_whole else prefix


# ---- Commands ---------------------------------------------------------------------------------------------------------

def read_commands(classes):
    text = (ROOT / "krm" / "framework" / "commands.h").read_text()
    families = {name: (word, int(number)) for name, number, word in
                re.findall(r"^    (\w+) = (\d+),\s*///<[^(\n]*\(`(\w+)`\)", text, re.M)}
    commands = []
    for family, number, name in re.findall(r"\{CommandFamily::(\w+), (\d+), \"(\w+)\"\}", text):
        word, kind = families[family]
        command = {"family": word, "type": kind, "id": int(number), "name": name}
        for key, ending in (("send", "Snd"), ("receive", "Rcv")):
            found = [entry for entry in classes if re.fullmatch(rf"CKRMC{name}{word}Ada?ptData{ending}", entry)]
            if len(found) != 1:
                stop(f"the {key} class of {name} in {word}: {found}")
            command[key] = found[0]
        commands.append(command)
    return commands


def catalogue():
    classes = {}
    for path in sorted((ROOT / "krm" / "messages").rglob("*.h")):
        read_classes(path, lambda name: name.startswith("CKRMC"), classes)
    read_classes(BASES, lambda name: re.fullmatch(r"CKRMCBase\w+AdaptData(Snd|Rcv)", name), classes)
    read_classes(PLATFORM, lambda name: name == "CKRMError", classes)
    for name, entry in classes.items():
        for field in entry["fields"]:
            if f"{name}::{field['type']}" in classes:
                field["type"] = f"{name}::{field['type']}"
    check_fields(classes)
    read_dumps(classes)
    commands = read_commands(classes)
    messages = {command[key] for command in commands for key in ("send", "receive")}
    for name, entry in classes.items():
        if name in messages or name.startswith("CKRMCBase"):
            # The stored-data messages override the dump of their base by one that writes nothing; the viewer's have none.
            silent = "Vdc" in name or (name in messages and "Dsdi" in name)
            entry["log"] = None if silent else f"{name}::ErrWriteOperationLog"
    for name in messages:
        if classes[name]["base"] not in classes:
            stop(f"the base of {name}: {classes[name]['base']}")
    set_logged(classes, messages)
    for name, entry in classes.items():
        if name not in messages:
            entry["base"] = None
        del entry["dumps"]
        if not entry["comment"]:
            stop(f"{name} has no comment")
        for field in entry["fields"]:
            if not field["meaning"]:
                stop(f"{name}::{field['name']} has no comment")
    return {"commands": commands, "classes": dict(sorted(classes.items()))}


def written(content):
    """One line for each command, field and line of a dump, so that a difference can be read."""
    def compact(value):
        return json.dumps(value, ensure_ascii=False)

    def rows(values, indent):
        if not values:
            return "[]"
        return "[\n" + ",\n".join(indent + "  " + compact(value) for value in values) + "\n" + indent + "]"

    classes = []
    for name, entry in content["classes"].items():
        members = [f'      {compact(key)}: {compact(entry[key])}' for key in ("comment", "base", "log")]
        members += [f'      {compact(key)}: {rows(entry[key], "      ")}' for key in ("fields", "lines")]
        classes.append(f"    {compact(name)}: {{\n" + ",\n".join(members) + "\n    }")
    return ('{\n  "commands": ' + rows(content["commands"], "  ") + ',\n  "classes": {\n' + ",\n".join(classes) + "\n  }\n}\n")


def main():
    if sys.argv[1:] not in ([], ["--check"]):
        print(__doc__, file=sys.stderr)
        sys.exit(2)
    text = written(catalogue())
    if sys.argv[1:]:
        if not CATALOGUE.exists() or CATALOGUE.read_text() != text:
            stop(f"{os.path.relpath(CATALOGUE)} is not what the sources give; run tools/make_catalogue.py and commit it")
        return
    CATALOGUE.write_text(text)


if __name__ == "__main__":
    main()
