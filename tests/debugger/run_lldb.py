#!/usr/bin/env python3
"""Compares what lldb shows of the objects of objects.cpp with what it shall show.

    run_lldb.py VIEWS PROGRAM

VIEWS is the folder of krm_lldb.py. Skipped where lldb is not installed, or has no Python.
"""

import re
import sys
import tempfile
from pathlib import Path

import sessions

ECU = ('{ m_ushEcuConnectionStatus = 0 m_ulEcuId = 7 m_ushBusId = 0 m_uchPhaseType = 65 m_ulEcuNameId = 0 '
       'm_strEcuName = "Engine" m_strEcuShortName = "" }')
GROUP = ('{ m_ushGroupId = 0 m_ulGroupNameId = 0 m_strGroupName = "Power train" '
         f"m_cEcuList = 1 element {{ [0] = {ECU} }} }}")
ANSWER = ("GetGroupEcuList answer, type 1, ID 12 { m_uchStatus = 0 m_bNotSupport = false "
          f"Data = 1 element {{ [0] = {GROUP} }} }}")
ECUS = '"Ecu" { [0] = "Ecu" { @Id = 1 (krm_ulong) } [1] = "Ecu" { @Id = 2 (krm_ulong) } }'
NO_TABLE = "<corrupt: not constructed, there is no table of virtual functions at 0x*>"
NULL_TABLE = "<corrupt: not constructed, its table of virtual functions is null>"

# What `frame variable` shows behind type and name, in one line, addresses replaced by 0x*.
SHOWN = [
    # Texts.
    ("emptyText", '""'),
    ("shortText", '"P0301"'),
    ("quotedText", r'"say \"ah\"\n"'),
    ("longText", '"' + 30 * "0123456789" + '"'),
    ("*rawText", "<corrupt: no text of * bytes at 0x*>"),
    ("*zeroText", "<corrupt: no text of 0 bytes at 0x*>"),
    ("*addressText", "<corrupt: no text of * bytes at 0x*>"),
    # Lists.
    ("noNumbers", "0 elements {}"),
    ("oneNumber", "1 element { [0] = 65 }"),
    ("bytes", "3 elements { [0] = 65 [1] = 66 [2] = 67 }"),
    ("words", "3 elements { [0] = 65000000 [1] = 66000000 [2] = 67000000 }"),
    ("texts", '3 elements { [0] = "text" [1] = "text" [2] = "text" }'),
    ("nested", "3 elements { [0] = 1 element { [0] = 65 } [1] = 2 elements { [0] = 65 [1] = 66 } "
               "[2] = 3 elements { [0] = 65 [1] = 66 [2] = 67 } }"),
    ("million", "1000000 elements { " + " ".join(f"[{i}] = {i}" for i in range(256)) + " ... }"),
    ("million[300]", "300"),
    ("*rawList", f"{NO_TABLE} {{}}"),
    ("*zeroList", f"{NULL_TABLE} {{}}"),
    ("*addressList", f"{NO_TABLE} {{}}"),
    ("*cycle", "4 elements, <corrupt: [3]: its previous node is 0x* and not 0x*> { [0] = 10 [1] = 20 [2] = 30 }"),
    ("*wholeCycle", "4 elements, <corrupt: [4]: the count is 4, and more follow> { [0] = 10 [1] = 20 [2] = 30 [3] = 40 }"),
    ("*wildNext", "4 elements, <corrupt: [2]: wild pointer 0x*> { [0] = 10 [1] = 20 }"),
    ("*wildHead", "4 elements, <corrupt: [0]: wild pointer 0x*> {}"),
    ("*countTooLow", "2 elements, <corrupt: [2]: the count is 2, and more follow> { [0] = 10 [1] = 20 }"),
    ("*countTooHigh", "5 elements, <corrupt: [4]: the count is 5, and it ends after 4> "
                      "{ [0] = 10 [1] = 20 [2] = 30 [3] = 40 }"),
    ("*negativeCount", "<corrupt: its count is -1> {}"),
    ("*lostCount", "<corrupt: its count is 0, and it has nodes> {}"),
    ("*lostNodes", "<corrupt: its count is 4, and it has no nodes> {}"),
    ("*lostTail", "<corrupt: its count is 4, and it has no last node> {}"),
    # Records and messages.
    ("ecu", ECU),
    ("*anyRecord", ECU),
    ("group", GROUP),
    ("answer", ANSWER),
    ("*untyped", ANSWER),
    ("request", "GetDTC request, type 1, ID 2 { m_uchStatus = 0 m_ulEcuId = 7 m_uchPhaseType = 1 m_uchGetFFDType = 0 }"),
    ("viewerRequest", "GetHelpInfo request, type 2, ID 2 { m_uchStatus = 0 m_ulVdcSndValue = 0 m_ulHelpId = 0 }"),
    ("onlyTheBase", "type 1, ID 12 { m_uchStatus = 0 m_ulEcuId = 0 }"),
    ("withPlainStructure", "GetEOPInspectionResultMessage request, type 1, ID 93 { m_uchStatus = 0 m_ulEcuId = 0 "
                           "Data = { m_ulEOPData = 3 } }"),
    ("paint", "type 1, ID 900 { m_uchStatus = 0 m_bNotSupport = false m_cLayerList = 1 element { "
              '[0] = { m_ushThickness = 20 m_strColour = "grey" } } }'),
    ("*rawRecord", f"{NO_TABLE} {{}}"),
    ("*zeroMessage", f"{NULL_TABLE} {{}}"),
    ("*addressMessage", f"{NO_TABLE} {{}}"),
    # The tree.
    ("vehicle", '"Vehicle" { @Vin = "W0L000000Y2000000" @Mass = 1250.5 @Offset = -40 (krm_long) @Doors = 5 (krm_ulong) '
                f'@Owner = <empty> Ecu = {ECUS} Trailer = "Trailer" {{}} }}'),
    ("bare", '"" {}'),
    ("*ecus", ECUS),
    ("*vin", '"Vin" = "W0L000000Y2000000"'),
    ("*anyNode", '"Vin" = "W0L000000Y2000000"'),
    ("*wrongType", '"Wrong" = <corrupt: its type of value is 5>'),
    ("*rawElement", f"{NO_TABLE} {{}}"),
    ("*zeroElement", f"{NULL_TABLE} {{}}"),
    ("*strayed", '"Strayed", <corrupt: its parent is 0x*> {}'),
    ("*wildAttribute", '"Wild", <corrupt: wild pointer 0x*> {}'),
    # Bytes.
    ("noBlock", "no block, position 3"),
    ("block", "4 bytes, position 3: 01 02 ab ff"),
    ("longBlock", "300 bytes, position 300: " + " ".join(300 * ["7f"])),
    ("*rawBlock", NO_TABLE),
    ("*wildBlock", "<corrupt: no block of 16 bytes at 0x*>"),
    # Errors.
    ("error", '2100100101 (kNoSuchAttribute) { a_ulReturnCode = 2100100101 a_strErrorModuleName = "module" '
              'a_strErrorClassName = "CKRMCElement" a_strErrorFunctionName = "RemoveAttribute" '
              'a_strErrorFunctionArgs = "" a_strMessage = "no such attribute" }'),
    ("*rawError", f"{NO_TABLE} {{}}"),
]
# The line alone of each error.
ERRORS = ["1100100001 (kNullArgument)", "2100100002 (kOutOfMemory)", "2100100101 (kNoSuchAttribute)",
          "2100100102 (kNoSuchElement)", "2100100103 (kNoSuchGroup)", "2100100121 (kUnknownValueType)",
          "2100100122 (kDifferentTypes)", "2100100123 (kValueUnset)"]

# Under `settings set target.max-string-summary-length 2` and `target.max-children-count 2`.
SHORT = [
    ("shortText", '"P0"...'),
    ("block", "4 bytes, position 3: 01 02..."),
    ("bytes", "3 elements { [0] = 65 [1] = 66 ... }"),
]


def run(lldb, lines, program, **options):
    with tempfile.TemporaryDirectory() as folder:
        script = Path(folder) / "commands"
        script.write_text("\n".join(["settings set use-color false", "settings set target.disable-aslr false", *lines, ""]))
        return sessions.run([lldb, "-x", "-b", "-s", str(script), *program], **options)


def python_of(lldb):
    """What the environment must say so that lldb finds its Python; without any the test is skipped."""
    asked = ["script print('with' + chr(32) + 'Python')"]
    if "with Python" in run(lldb, asked, [], may_fail=True):
        return {}
    # Debian's looks for its modules where they are not, and for Python's beside whatever python3 comes first.
    version = re.search(r"version (\d+)", sessions.run([lldb, "--version"]))[1]
    for place in sorted(Path(f"/usr/lib/llvm-{version}/lib").glob("python3*/dist-packages")):
        environment = {"PYTHONPATH": str(place), "PYTHONDONTWRITEBYTECODE": "1", "PATH": "/usr/bin:/bin"}
        if "with Python" in run(lldb, asked, [], may_fail=True, **environment):
            return environment
    sessions.skip("this lldb has no Python")


def shows(names, suffix=""):
    for name in names:
        yield f"script print('{sessions.MARK}{name}{suffix}')"
        yield f"frame variable {name}"


def value(text):
    """What stands behind type and name, in one line and without lldb's own remarks."""
    text = re.sub(r"^\(lldb\).*$|^\*\*\* Some of your variables.*$", "", text, flags=re.MULTILINE)
    return re.sub(r"\s+", " ", text.partition(" = ")[2]).strip()


def main(views, program):
    lldb = sessions.find("lldb")
    environment = python_of(lldb)
    errors = [(f"errors[{index}]", line) for index, line in enumerate(ERRORS)]
    lines = [f"command script import {Path(views) / 'krm_lldb.py'}"]
    # A program's own classes ask for it.
    for name in "PaintAnswer", "PaintLayer":
        lines += [f"type summary add -w krm -e -F krm_lldb.summary -x '{name}$'",
                  f"type synthetic add -w krm -l krm_lldb.Children -x '{name}$'"]
    lines += ["breakpoint set -n Stop", "run", "up", *shows(name for name, _ in SHOWN + errors)]
    lines += ["settings set target.max-string-summary-length 2", "settings set target.max-children-count 2",
              *shows((name for name, _ in SHORT), " in short"), f"script print('{sessions.MARK}end')"]
    shown = {name: value(text) for name, text in sessions.marked(run(lldb, lines, [program], **environment)).items()}
    for name, _ in errors:
        shown[name] = shown.get(name, "").partition(" {")[0]
    return sessions.compare(shown, SHOWN + errors + [(f"{name} in short", text) for name, text in SHORT])


if __name__ == "__main__":
    sys.exit(main(*sys.argv[1:]))
