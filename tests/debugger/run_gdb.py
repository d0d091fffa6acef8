#!/usr/bin/env python3
"""Compares what gdb shows of the objects of objects.cpp with what it shall show.

    run_gdb.py VIEWS PROGRAM

Once in the running program, once in a core file of it, and once as docs/debugging.md has it.
VIEWS is the folder of krm_gdb.py. Skipped where gdb is not installed, or has no Python.
"""

import re
import sys
import tempfile
from pathlib import Path

import sessions

ECU = ("CKRMCCommandEcuData = {m_ushEcuConnectionStatus = 0, m_ulEcuId = 7, m_ushBusId = 0, m_uchPhaseType = 65, "
       'm_ulEcuNameId = 0, m_strEcuName = "Engine", m_strEcuShortName = ""}')
GROUP = ('CKRMCCommandEcuGroupData = {m_ushGroupId = 0, m_ulGroupNameId = 0, m_strGroupName = "Power train", '
         "m_cEcuList = CKRMList<CKRMCCommandEcuData> of 1 = {[0] = " + ECU + "}}")
ANSWER = ("GetGroupEcuList answer (CKRMCGetGroupEcuListCmdAdaptDataRcv, type 1, ID 12) = {m_uchStatus = 0, "
          "m_bNotSupport = false, Data = CKRMList<CKRMCCommandEcuGroupData> of 1 = {[0] = " + GROUP + "}}")
ECUS = ('CKRMCElementGroup "Ecu" = {[0] = CKRMCElement "Ecu" = {@Id = 1}, '
        '[1] = CKRMCElement "Ecu" = {@Id = 2}}')
NO_TABLE = "<corrupt: not constructed, there is no table of virtual functions at 0x*>"
NULL_TABLE = "<corrupt: not constructed, its table of virtual functions is null>"


def code_alone(shown):
    """An error object with a code, "CODE (NAME)", and no texts."""
    return (f"CKRMError {shown} = {{a_ulReturnCode = {shown.split()[0]}, " 'a_strErrorModuleName = "", '
            'a_strErrorClassName = "", a_strErrorFunctionName = "", a_strErrorFunctionArgs = "", a_strMessage = ""}')


# What `print` shows, addresses replaced by 0x*.
SHOWN = [
    # Texts.
    ("emptyText", '""'),
    ("shortText", '"P0301"'),
    ("quotedText", r'"say \"ah\"\n"'),
    ("longText", '"' + 20 * "0123456789" + '"...'),
    ("*rawText", "CKRMString <corrupt: no text of * bytes at 0x*>"),
    ("*zeroText", "CKRMString <corrupt: no text of 0 bytes at 0x*>"),
    ("*addressText", "CKRMString <corrupt: no text of * bytes at 0x*>"),
    # Lists.
    ("noNumbers", "CKRMList<unsigned short> of 0"),
    ("oneNumber", "CKRMList<unsigned short> of 1 = {65}"),
    ("bytes", "CKRMList<unsigned char> of 3 = {65, 66, 67}"),
    ("words", "CKRMList<krm_ulong> of 3 = {65000000, 66000000, 67000000}"),
    ("texts", 'CKRMList<CKRMString> of 3 = {"text", "text", "text"}'),
    ("nested", "CKRMList<CKRMList<unsigned char> > of 3 = {[0] = CKRMList<unsigned char> of 1 = {65}, "
               "[1] = CKRMList<unsigned char> of 2 = {65, 66}, [2] = CKRMList<unsigned char> of 3 = {65, 66, 67}}"),
    ("second", "CKRMListIterator<unsigned char> at an element = {element = 66}"),
    ("theEnd", "CKRMListIterator<unsigned char> at the end"),
    ("million", "CKRMList<int> of 1000000 = {" + ", ".join(map(str, range(200))) + "...}"),
    ("*rawList", f"CKRMList<unsigned short> {NO_TABLE}"),
    ("*zeroList", f"CKRMList<unsigned short> {NULL_TABLE}"),
    ("*addressList", f"CKRMList<unsigned short> {NO_TABLE}"),
    ("*cycle", "CKRMList<unsigned short> of 4 = {10, 20, 30, <corrupt: its previous node is 0x* and not 0x*>}"),
    ("*wholeCycle", "CKRMList<unsigned short> <corrupt: its tail has a next node, 0x*>"),
    ("*wildNext", "CKRMList<unsigned short> of 4 = {10, 20, <corrupt: wild pointer 0x*>}"),
    ("*wildHead", "CKRMList<unsigned short> <corrupt: its head is a wild pointer, 0x*>"),
    ("*countTooLow", "CKRMList<unsigned short> of 2 = {10, 20, <corrupt: the count is 2, and more follow>}"),
    ("*countTooHigh", "CKRMList<unsigned short> of 5 = {10, 20, 30, 40, <corrupt: the count is 5, and it ends after 4>}"),
    ("*negativeCount", "CKRMList<unsigned short> <corrupt: its count is -1>"),
    ("*lostCount", "CKRMList<unsigned short> <corrupt: its count is 0, and it has nodes>"),
    ("*lostNodes", "CKRMList<unsigned short> <corrupt: its count is 4, and it has no nodes>"),
    ("*lostTail", "CKRMList<unsigned short> <corrupt: its count is 4, and it has no last node>"),
    # Records and messages.
    ("ecu", ECU),
    ("*anyRecord", ECU),
    ("group", GROUP),
    ("answer", ANSWER),
    ("*untyped", ANSWER),
    ("request", "GetDTC request (CKRMCGetDTCCmdAdaptDataSnd, type 1, ID 2) = {m_uchStatus = 0, m_ulEcuId = 7, "
                "m_uchPhaseType = 1, m_uchGetFFDType = 0}"),
    ("viewerRequest", "GetHelpInfo request (CKRMCGetHelpInfoVdcAdptDataSnd, type 2, ID 2) = {m_uchStatus = 0, "
                      "m_ulVdcSndValue = 0, m_ulHelpId = 0}"),
    ("onlyTheBase", "CKRMCBaseCmdAdaptDataSnd, type 1, ID 12 = {m_uchStatus = 0, m_ulEcuId = 0}"),
    ("withPlainStructure", "GetEOPInspectionResultMessage request (CKRMCGetEOPInspectionResultMessageCmdAdaptDataSnd, "
                           "type 1, ID 93) = {m_uchStatus = 0, m_ulEcuId = 0, "
                           "Data = CKRMCGetEOPInspectionResultMessageCmdAdaptDataSnd::EOPData = {m_ulEOPData = 3}}"),
    ("*rawRecord", f"CKRMCCommandEcuData {NO_TABLE}"),
    ("*zeroMessage", f"CKRMCGetGroupEcuListCmdAdaptDataRcv {NULL_TABLE}"),
    ("*addressMessage", f"CKRMCGetGroupEcuListCmdAdaptDataRcv {NO_TABLE}"),
    # The tree.
    ("vehicle", 'CKRMCElement "Vehicle" = {@Vin = "W0L000000Y2000000", @Mass = 1250.5, @Offset = -40, '
                f'@Doors = 5, @Owner = <empty>, Ecu = {ECUS}, Trailer = CKRMCElementGroup "Trailer"}}'),
    ("bare", 'CKRMCElement ""'),
    ("*ecus", ECUS),
    ("*vin", 'CKRMCAttribute "Vin" = "W0L000000Y2000000"'),
    ("*vehicle.m_pcFirstAttribute->m_pcNext->m_pcNext", 'CKRMCAttribute "Offset" = -40 (krm_long)'),
    ("*vehicle.m_pcLastAttribute->m_pcPrev", 'CKRMCAttribute "Doors" = 5 (krm_ulong)'),
    ("*anyNode", 'CKRMCAttribute "Vin" = "W0L000000Y2000000"'),
    ("*wrongType", 'CKRMCAttribute "Wrong" = <corrupt: its type of value is 5>'),
    ("*rawElement", f"CKRMCElement {NO_TABLE}"),
    ("*zeroElement", f"CKRMCElement {NULL_TABLE}"),
    ("*strayed", 'CKRMCElement "Strayed" = {... = <corrupt: its parent is 0x*>}'),
    ("*wildAttribute", 'CKRMCElement "Wild" = {@ = <corrupt: wild pointer 0x*>}'),
    # Bytes.
    ("noBlock", "CKRMBinary without a block, position 3"),
    ("block", "CKRMBinary of 4 bytes, position 3: 01 02 ab ff"),
    ("longBlock", "CKRMBinary of 300 bytes, position 300: " + " ".join(200 * ["7f"]) + "..."),
    ("*rawBlock", f"CKRMBinary {NO_TABLE}"),
    ("*wildBlock", "CKRMBinary <corrupt: no block of 16 bytes at 0x*>"),
    # Errors.
    ("error", 'CKRMError 2100100101 (kNoSuchAttribute) = {a_ulReturnCode = 2100100101, a_strErrorModuleName = "module", '
              'a_strErrorClassName = "CKRMCElement", a_strErrorFunctionName = "RemoveAttribute", '
              'a_strErrorFunctionArgs = "", a_strMessage = "no such attribute"}'),
    ("errors", "{" + ", ".join(map(code_alone, ["1100100001 (kNullArgument)", "2100100002 (kOutOfMemory)",
                                                "2100100101 (kNoSuchAttribute)", "2100100102 (kNoSuchElement)",
                                                "2100100103 (kNoSuchGroup)", "2100100121 (kUnknownValueType)",
                                                "2100100122 (kDifferentTypes)", "2100100123 (kValueUnset)"])) + "}"),
    ("ownCode", code_alone("42")),
    ("*rawError", f"CKRMError {NO_TABLE}"),
]

# Clang shortens the text in a template argument, from which a program's own command has its name.
PAINT = ("(anonymous namespace)::PaintAnswer, type 1, ID 900{} = {{m_uchStatus = 0, m_bNotSupport = false, "
         "m_cLayerList = CKRMList<(anonymous namespace)::PaintLayer> of 1 = {{"
         '[0] = (anonymous namespace)::PaintLayer = {{m_ushThickness = 20, m_strColour = "grey"}}}}}}')
PAINT_SHOWN = ["ReadPaintCode answer (" + PAINT.format(")"), PAINT.format("")]

# Under `set print elements 2`.
SHORT = [
    ("bytes", "CKRMList<unsigned char> of 3 = {65, 66...}"),
    ("nested", "CKRMList<CKRMList<unsigned char> > of 3 = {[0] = CKRMList<unsigned char> of 1 = {65}, "
               "[1] = CKRMList<unsigned char> of 2 = {65, 66...}...}"),
    ("shortText", '"P0"...'),
    ("block", "CKRMBinary of 4 bytes, position 3: 01 02..."),
    # What is wrong behind the last element shown is not looked for.
    ("*wildNext", "CKRMList<unsigned short> of 4 = {10, 20...}"),
]

START = ["set debuginfod enabled off", "set auto-load no", "set style enabled off", "set width 0", "set height 0",
         "set print address on", "set confirm off"]


# What front ends are told.
FRONT_END = [
    ("shortText", r'value="\"P0301\"",type="CKRMString"'),
    ("block", 'value="CKRMBinary of 4 bytes, position 3: 01 02 ab ff",type="CKRMBinary"'),
    ("million", 'value="{...}",type="CKRMList<int>"'),
    ("vehicle", 'value="{...}",type="CKRMCElement"'),
    ("vehicle.@Vin", r'value="\"W0L000000Y2000000\"",type="CKRMString"'),
    ("vehicle.@Mass", 'value="1250.5",type="double"'),
    ("vehicle.@Offset", 'value="-40",type="krm_long"'),
]


def session(gdb, program, commands, start=START, **environment):
    """What the commands write, at the objects' place."""
    arguments = [gdb, "-nx", "-batch"]
    for command in start:
        arguments += ["-iex", command]
    for command in commands:
        arguments += ["-ex", command]
    return sessions.run(arguments + [program], **environment)


def find_gdb():
    gdb = sessions.find("gdb")
    if "with Python" not in sessions.run([gdb, "-nx", "-batch", "-ex", "python print('with Python')"]):
        sessions.skip("this gdb has no Python")
    return gdb


def echo(name):
    return f"echo \\n{sessions.MARK}{name}\\n"


def shows(expressions, suffix=""):
    for expression in expressions:
        yield echo(expression + suffix)
        yield f"output {expression}"


def front_end():
    """Asks as front ends do, over gdb's machine interface."""
    yield echo("front end")
    yield 'interpreter-exec mi "-enable-pretty-printing"'
    for name, _ in FRONT_END:
        yield echo(f"front end's {name}")
        if "." in name:
            yield f'interpreter-exec mi "-var-evaluate-expression {name}"'
            yield f'interpreter-exec mi "-var-info-type {name}"'
        else:
            yield f'interpreter-exec mi "-var-create {name} * {name}"'
            yield echo("children")
            yield f'interpreter-exec mi "-var-list-children {name} 0 9"'


def check_front_end(shown):
    told = {}
    for name, _ in FRONT_END:
        parts = re.findall(r'(?:value|type)="(?:[^"\\]|\\.)*"', shown.get(f"front end's {name}", ""))
        told[name] = ",".join(parts)
    return sessions.compare(told, FRONT_END)


def check_short(shown):
    expected = [(f"{name} in short", text) for name, text in SHORT]
    shown["finish"] = shown["finish"].splitlines()[-1].partition(" = ")[2]
    expected.append(("finish", '"made"'))
    return sessions.compare(shown, expected)


def check_whole(shown):
    paint = sessions.steady(shown["paint"])
    return sessions.compare(shown, SHOWN + [("paint", paint if paint in PAINT_SHOWN else PAINT_SHOWN[0])])


def documented(views):
    """The session that docs/debugging.md shows: its commands, each with what it writes."""
    text = (Path(views).parent / "docs/debugging.md").read_text(encoding="utf-8")
    block = re.search(r"```gdb\n(.*?)```", text, re.DOTALL)[1]
    steps = re.findall(r"^\(gdb\) (.*)\n((?:(?!\(gdb\) ).*\n)*)", block, re.MULTILINE)
    return [(command, sessions.steady(written.rstrip("\n"))) for command, written in steps]


def main(views, program):
    gdb = find_gdb()
    source = f"source {Path(views) / 'krm_gdb.py'}"
    whole = list(shows([*(name for name, _ in SHOWN), "paint"]))
    with tempfile.TemporaryDirectory() as folder:
        core = str(Path(folder) / "core")
        alive = [source, "tbreak MakeText", "tbreak Stop", "run", echo("finish"), "finish", echo("stop"), "continue", "up",
                 *whole, *front_end(), "set print elements 2", *shows((name for name, _ in SHORT), " in short"),
                 echo("core"), f"generate-core-file {core}"]
        shown = sessions.marked(session(gdb, program, alive))
        # In a core file nothing can be called.
        dead = [source, f"core-file {core}", "up", *whole]
        results = [check_short(shown), check_whole(shown), check_front_end(shown),
                   check_whole(sessions.marked(session(gdb, program, dead)))]
    steps = documented(views)
    told = [part for command, _ in steps for part in (echo(command), command)]
    shown = sessions.marked(session(gdb, program, [source, "tbreak Stop", "run", "up", *told]))
    return max(*results, sessions.compare(shown, steps))


if __name__ == "__main__":
    sys.exit(main(*sys.argv[1:]))
