#!/usr/bin/env python3
"""Compares the lists of fields in krm/fields/ with the declarations of the classes.

    check_fields.py CHECKOUT

Every data member of a class of krm/messages/, of the messages' bases and of the platform's error object must stand in the
class's krm::Fields, in the order of the declaration, and nothing else. The suites see that the listed fields fill the
object; a small field whose place would be padding without it is seen here alone.
"""

import re
import sys
from pathlib import Path

LIST = re.compile(r"struct (?:krm::)?Fields<([\w:]+)>\s*:\s*(?:krm::)?FieldList<([^>]*)>\s*\{")
CLASS = re.compile(r"(?:class|struct)\s+(?:KRM_\w+\s+)?(\w+)\s*(?::[^:].*)?$", re.DOTALL)
MEMBER = re.compile(r"(?P<type>[\w:]+(?:\s+\w+)*?(?:\s*<[\w\s:,]+>)?)\s+(?P<name>\w+)(?:\[\w+\])?(?:\s*=\s*[^=()]*|\s*\{\})?",
                    re.DOTALL)
NO_MEMBER = re.compile(r"(public|protected|private)\s*:\s*|(using|friend|typedef|static|template|extern|enum)\b.*", re.DOTALL)


def code_of(text):
    """`text` without comments, directives, what stands behind an #else, and the insides of literals."""
    text = re.sub(r'//[^\n]*|/\*.*?\*/|"(?:\\.|[^"\\\n])*"', lambda match: '""' if match[0][0] == '"' else "", text,
                  flags=re.DOTALL)
    text = re.sub(r"^#else\b.*?^#endif", "#endif", text, flags=re.MULTILINE | re.DOTALL)
    return re.sub(r"^[ \t]*#(?:[^\n]*\\\n)*[^\n]*", "", text, flags=re.MULTILINE)


def statements(text):
    """Pairs of what stands in front of a `;` or of a `{...}` block, and that block's inside or None."""
    begin = i = 0
    while i < len(text):
        if text[i] == ";":
            yield text[begin:i].strip(), None
            begin = i + 1
        elif text[i] == "{":
            depth, inside = 1, i + 1
            while depth:
                i += 1
                depth += {"{": 1, "}": -1}.get(text[i], 0)
            head = text[begin:inside - 1].strip()
            if head.endswith("="):  # the value that a field starts with
                text = text[:inside - 1] + "0" + text[i + 1:]
                i = inside
                continue
            yield head, text[inside:i]
            begin = i + 1
        i += 1


def read_classes(text, around, found):
    """Adds {class: [its data members]} of `text`, which stands within class `around`."""
    for head, block in statements(text):
        head = re.sub(r"^((public|protected|private)\s*:\s*)+", "", head)
        if block is not None:
            opened = CLASS.match(head)
            if head.startswith("namespace"):
                read_classes(block, around, found)
            elif opened:
                name = (around + "::" if around else "") + opened[1]
                found[name] = []
                read_classes(block, name, found)
            elif around and "(" not in head and not NO_MEMBER.fullmatch(head):
                sys.exit(f"{around}: can't read \"{head} {{...}}\"")
        elif around and head and not NO_MEMBER.fullmatch(head) and not re.match(r"(class|struct)\s+\w+$", head):
            declared = re.sub(r"\s*=.*", "", head, flags=re.DOTALL)
            if "(" in declared or re.search(r"\boperator\b", head):
                continue  # an operation
            member = MEMBER.fullmatch(head)
            if not member:
                sys.exit(f"{around}: can't read \"{head}\"")
            found[around].append(member["name"])


def main():
    root = Path(sys.argv[1])
    declared, listed, faults = {}, {}, []
    for header in [*sorted((root / "krm/messages").rglob("*.h")), root / "krm/framework/message.h",
                   root / "platform/krm/platform/platform.h"]:
        read_classes(code_of(header.read_text(encoding="utf-8")), "", declared)
    for header in sorted((root / "krm/fields").rglob("*.h")):
        for name, members in LIST.findall(code_of(header.read_text(encoding="utf-8"))):
            if name in listed:
                faults.append(f"{name} is listed twice")
            listed[name] = [member.strip() for member in members.split(",") if member.strip()]
    in_messages = {name for header in (root / "krm/messages").rglob("*.h")
                   for name in re.findall(r"^(?:class|struct) KRM_API (\w+)", header.read_text(), re.MULTILINE)}
    for name in sorted(in_messages - listed.keys()):
        faults.append(f"{name} has no krm::Fields")
    for name, members in sorted(listed.items()):
        expected = [f"&{name}::{member}" for member in declared.get(name, ["(no such class)"])]
        if members != expected:
            faults.append(f"{name} has {', '.join(expected)}; listed are {', '.join(members)}")
    for fault in faults:
        print(fault)
    fields = sum(map(len, listed.values()))
    print(f"{len(listed)} classes, {fields} fields, {len(faults)} faults")
    sys.exit(1 if faults or fields == 0 else 0)


if __name__ == "__main__":
    main()
