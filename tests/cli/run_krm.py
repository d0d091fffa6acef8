"""Runs krm as a user does: on a log, a recording, pipes, broken files, a terminal, Ctrl-C.

run_krm.py DATA LNAV_FORMAT KRM_PROGRAM... -- SESSION_PROGRAM...

SESSION_PROGRAM is diagnosis_session, which writes the log and the recording, DATA the folder of its example. Each program is
behind the emulator that runs it, if any, and the emulator's options.
"""

import base64
import gzip
import json
import os
import re
import shutil
import signal
import subprocess
import sys
import tempfile
import time
from pathlib import Path

sys.path.append(str(Path(__file__).resolve().parents[1] / "support"))
from program_runs import Checks, Files, on_terminal

data, lnav_format = sys.argv[1:3]
split = sys.argv.index("--")
krm, session = sys.argv[3:split], sys.argv[split + 1:]
check = Checks()


def run(*arguments, **options):
    return subprocess.run([*krm, *arguments], capture_output=True, timeout=300, **options)


def documents(result):
    return [json.loads(line) for line in result.stdout.splitlines()]


with tempfile.TemporaryDirectory() as folder:
    path = Files(folder)
    content = path.content

    log, recording = path("demo.log"), path("demo.krmrec")
    made = subprocess.run([*session, os.path.join(data, "session.log"), os.path.join(data, "session.items.json"),
                           "--operation-log", log, "--record", recording], capture_output=True, timeout=300)
    check("the demo", made.returncode == 0, made)
    text = content("demo.log")

    # show
    shown = run("show", log)
    lines = shown.stdout.decode().splitlines()
    check("show a log", shown.returncode == 0 and shown.stderr == b"" and
          any(line.endswith("GetDTC answer, ECU 2024: 3 codes: P0301, P0171, P0420; m_bDTCType=1") for line in lines),
          shown)
    check("its other lines are shown", lines[0] == "       line 1: # Operation log of diagnosis_session" and
          lines[-1].endswith("; 1 line belongs to no message"), lines[:2] + lines[-1:])
    check("no colours in a pipe", b"\x1b" not in shown.stdout)
    piped = run("show", "-", input=text)
    check("standard input", piped.stdout == shown.stdout, piped)
    told = run("show", recording)
    check("show a recording", told.returncode == 0 and
          b"GetDTC answer, ECU 2024: 3 codes: P0301, P0171, P0420" in told.stdout, told)
    check("a program's own messages are lines of their own",
          b"       line 2: a message of a class that the library doesn't have\n" in told.stdout and
          told.stdout.endswith(b"; 4 lines belong to no message\n"), told)
    check("a recording from a pipe", run("show", "-", input=content("demo.krmrec")).stdout == told.stdout)
    codes = run("show", log, "--filter", "command:GetDTC direction:answer m_strDTC=P03*", "--json")
    found = documents(codes)
    check("a filter, and JSON", all("P0301" in each["codes"] and each["ecu"] == 2024 for each in found[:-1]) and
          len(found) == 3 and found[-1]["totals"]["shown"] == 2, codes)
    number = str(found[0]["message"])
    folded = run("show", log, "--message", number).stdout.decode()
    check("one message, folded", "       Data[3]\n" in folded and "m_strDTC" not in folded.split("\n", 1)[1], folded)
    full = run("show", log, "--message", number, "--full").stdout.decode()
    check("one message, unfolded", "       Data[0]\n" in full and "         m_strDTC = P0301\n" in full, full[:2000])
    unfolded = documents(run("show", recording, "--full", "--json"))
    check("a recording unfolded has what the log hasn't", any(
        field["path"] == "Data[0].m_bStatusOfDTC" for each in unfolded for field in each.get("fields", [])), unfolded[:1])
    check("no such message", run("show", log, "--message", "100000").returncode == 2)
    check("a wrong filter", b"filter: there is no condition comand: but command: " in run("show", log, "--filter", "comand:x").stderr)

    # broken input
    cut = run("show", path("cut.log", text[:len(text) // 2]))
    check("a log cut in the middle of a line", cut.returncode == 0 and b"; the last line has no end\n" in cut.stdout, cut)
    windows = run("show", path("windows.log", b"\xef\xbb\xbf" + text.replace(b"\n", b"\r\n")))
    check("Windows line ends", windows.stdout == shown.stdout, windows)
    latin = path("latin.log", text.replace(b"Cylinder 1 misfire", b"Z\xfcndaussetzer \x1b[31m"))
    shown_latin = run("show", latin, "--full")
    check("Latin-1, and what a terminal would obey",
          "Zündaussetzer \\x1B[31m detected".encode() in shown_latin.stdout, shown_latin.stdout[:300])
    check("JSON has the bytes", any(field["value"] == {"$bytes": b"Z\xfcndaussetzer \x1b[31m detected".hex().upper()}
                                    for each in documents(run("show", latin, "--full", "--json")) if "fields" in each
                                    for field in each["fields"]))
    empty = run("show", path("empty.log", b""))
    check("an empty file", (empty.returncode, empty.stdout) == (0, b"0 messages in 0 lines\n"), empty)
    neither = run("show", path("neither.txt", b"a\nb\n"))
    check("neither is exit 2", neither.returncode == 2 and b"neither.txt:1: neither an operation log nor a recording" in
          neither.stderr, neither)
    torn = run("show", path("torn.krmrec", content("demo.krmrec")[:-100]))
    check("a torn recording is exit 1", torn.returncode == 1 and b"torn.krmrec:" in torn.stderr and
          b"1 line can't be read; the last line has no end\n" in torn.stdout, torn)
    whole = content("demo.krmrec").splitlines(keepends=True)
    torn = run("show", path("torn_before.krmrec", b"".join([*whole[:20], whole[20][:-100] + b"\n", *whole[21:]])))
    check("a line torn before others", torn.returncode == 1 and b"1 line can't be read\n" in torn.stdout, torn)
    long = run("show", path("long.log", text + b"x" * 10_000_000 + b"\n" + text))
    check("a line of 10 MB is cut and counted", b"xxx [8951424 bytes more]\n" in long.stdout and
          b"1 line is too long and cut" in long.stdout and long.returncode == 0, long.stdout[-300:])
    check("a missing file is exit 2", run("show", path("missing")).returncode == 2)
    check("a folder is exit 2", run("show", folder).returncode == 2)

    # diff
    check("equal", run("diff", log, log).returncode == 0)
    check("equal in silence", run("diff", log, log).stdout == b"")
    same = run("diff", recording, recording)
    check("equal recordings", same.returncode == 0 and same.stderr.count(b": not compared: a message of a class") == 8,
          same)
    both = run("diff", log, recording)
    check("a log equals the recording of the same session", both.returncode == 0, both)
    other = path("other.log", text.replace(b"m_strDTC=P0171", b"m_strDTC=P0172", 1))
    changed = run("diff", log, other)
    check("different is exit 1", changed.returncode == 1 and
          b"  changed Data[1].m_strDTC: \"P0171\" -> \"P0172\"\n" in changed.stdout and
          b" 1 differ; only in the first are 0, only in the second 0\n" in changed.stdout, changed)
    check("standard input is one of both", run("diff", "-", other, input=text).stdout == changed.stdout)
    twice = [run("diff", "-", "-", input=text), run("view", "-", "-", "-o", path("twice.html"), input=text),
             run("redact", "-", "--secret-file", "-", "-o", path("twice.krmrec"), input=text)]
    check("and not both", all(each.returncode == 2 and b"standard input can be one of both alone" in each.stderr
                              for each in twice), twice)
    keyed = run("diff", log, other, "--key", "Data=m_strDTC", "--json")
    check("a key", [each.get("difference") for each in documents(keyed)] == ["removed", "added", None], keyed)
    check("ignored", run("diff", log, other, "--ignore", "Data[*].m_strDTC").returncode == 0)
    wrong = run("diff", log, other, "--ignore", "Data[*].m_strDCT")
    check("a misspelled pattern is exit 2", wrong.returncode == 2 and b"no message has this" in wrong.stderr, wrong)
    halves = text.split(b"== ClearDTC request")
    shorter = run("diff", log, path("shorter.log", halves[0]))
    check("messages that one alone has", shorter.returncode == 1 and
          b"only in the first: message " in shorter.stdout, shorter.stdout[-500:])
    check("trouble is exit 2", run("diff", log, path("missing")).returncode == 2)
    check("a torn recording is trouble", run("diff", recording, path("torn.krmrec")).returncode == 2)

    both = run("diff", path("torn.krmrec"), path("torn.krmrec.2", content("torn.krmrec")))
    check("what is wrong with the first is told first", 0 <= both.stderr.find(b"torn.krmrec:") <
          both.stderr.find(b"torn.krmrec.2:"), both)

    # redact
    shared = path("shared.krmrec")
    redacted = run("redact", recording, "-o", shared)
    check("redact", redacted.returncode == 1 and redacted.stderr.count(b": left out: ") == 4 and b"KRM00000000000001" not in content("shared.krmrec") and
          run("diff", recording, shared).returncode == 1, redacted)
    check("no copy is overwritten", run("redact", recording, "-o", shared).returncode == 2)
    check("unless it shall be", run("redact", recording, "-o", shared, "--force").returncode == 1)
    refused = run("redact", log, "-o", path("shared.log"))
    check("a log is not redacted", refused.returncode == 2 and b"Only recordings are redacted" in refused.stderr and
          not os.path.exists(path("shared.log")), refused)
    check("no half-written copy", not [name for name in os.listdir(folder) if name.endswith(".part")])

    # schema, commands, convert
    check("schema", "$defs" in json.loads(run("schema").stdout))
    check("all commands", len(run("commands").stdout.splitlines()) == 79)
    meaning = run("commands", "1/2").stdout.decode()
    check("a command", "1/2     GetDTC (Cmd)\n" in meaning and "CKRMCGetDTCCmdAdaptDataRcv" in meaning and
          "m_ulReadynessStatus: number of 32 bits; readiness status" in meaning, meaning)
    logged = run("commands", "x [CKRMCGetDTCCmdAdaptDataRcv::ErrWriteOperationLog] Data[0].m_strDTC=P0301").stdout.decode()
    check("a line of the log", "GetDTC answer, type 1, ID 2" in logged and "m_strDTC: text; code as displayed" in logged,
          logged)
    check("a class", b"CKRMCCommandDTCData\n" in run("commands", "CKRMCCommandDTCData").stdout)
    check("a field", b"in CKRMCGetDTCCmdAdaptDataRcv\n" in run("commands", "m_ulReadynessStatus").stdout)
    check("nothing is exit 2", run("commands", "nonsense").returncode == 2)
    temperature = run("convert", "0", "0x7B", "--offset", "-40")
    check("convert", temperature.stdout.decode().splitlines()[2:4] == ["value  83", "text   83"], temperature)
    back = run("convert", "0", "--back", "83", "--offset", "-40")
    check("and back", back.stdout.startswith(b"raw    0x7B (123)\n"), back)
    switch = run("convert", "1", "--back", "On", "--pattern", "0=Off", "--pattern", "1=On")
    check("a pattern back", switch.stdout.startswith(b"raw    0x1 (1)\n"), switch)
    check("bytes", b"text   01AB\n" in run("convert", "104", "01AB").stdout)
    check("no raw value shows it", run("convert", "0", "--back", "1000").returncode == 1)
    listed = run("convert").stdout.decode().splitlines()
    check("all types", len(listed) == 34, listed)
    for code in range(256):
        good = run("convert", str(code), "0x41").returncode == 0 if code in (0, 4, 19, 104, 115, 116) else True
        if not good:
            check(f"type {code}", False)

    # view
    page = path("report.html")
    viewed = run("view", log, recording, "-o", page)
    if b"was built without the page" in viewed.stderr:
        print("not tested: krm view; the page is not built in")
    else:
        check("view", viewed.returncode == 0 and viewed.stdout == f"written to {page}; open it in a browser\n".encode(), viewed)
        put = json.loads(re.search(rb'id="krm-data">(.*?)</script>', content("report.html"), re.DOTALL)[1])["files"]
        check("the page has both files' names", [each["name"] for each in put] == ["demo.log", "demo.krmrec"], put)
        bytes_of = [base64.b64decode(each["base64"], validate=True) for each in put]
        check("and all their bytes", [gzip.decompress(data) if each["gzip"] else data for each, data in
                                      zip(put, bytes_of)] == [text, content("demo.krmrec")])
        check("a page is written again", run("view", log, "-o", page).returncode == 0)
        another = content("report.html")[:300] + b"<p>another version's</p>"
        with open(path("another.html"), "wb") as file:
            file.write(another)
        check("so is one that another version wrote", run("view", log, "-o", path("another.html")).returncode == 0 and
              len(content("another.html")) > len(another))
        check("nothing else is", run("view", log, "-o", recording).returncode == 2)

    # wrong use, help
    check("wrong use is exit 2", run("show").returncode == 2 and run("nonsense").returncode == 2 and
          run().returncode == 2)
    for subcommand in ("show", "diff", "view", "redact", "schema", "commands", "convert"):
        told = run(subcommand, "--help")
        check(subcommand + " --help has an example", told.returncode == 0 and b"Example" in told.stdout and
              b"krm " + subcommand.encode() in told.stdout, told)
    if os.path.exists("/dev/full"):
        with open("/dev/full", "wb") as full:
            told = subprocess.run([*krm, "show", log], stdout=full, stderr=subprocess.PIPE, timeout=300)
        check("a full disk is exit 2", told.returncode == 2 and b"no space left" in told.stderr, told)

    # Ctrl-C while it waits for more.
    for name, arguments in (("show", ["show", "-"]), ("redact", ["redact", "-", "-o", path("i.krmrec")])):
        waiting = subprocess.Popen([*krm, *arguments], stdin=subprocess.PIPE, stdout=subprocess.PIPE,
                                   stderr=subprocess.PIPE)
        waiting.stdin.write(content("demo.krmrec"))
        waiting.stdin.flush()
        time.sleep(0.5)
        waiting.send_signal(signal.SIGINT)
        told = waiting.stderr.read()
        waiting.stdin.close()
        check(f"Ctrl-C ends {name}", waiting.wait(120) == 2 and b"interrupted" in told, told)
        waiting.stdout.close()
        waiting.stderr.close()
    check("and leaves no half-written file", not [name for name in os.listdir(folder) if name.startswith("i.krmrec")])

    # Colours on a terminal alone, and not where NO_COLOR is set.
    for variable, wanted in ((None, True), ("1", False)):
        environment = {**os.environ, "TERM": "xterm"}
        environment.pop("NO_COLOR", None)
        if variable is not None:
            environment["NO_COLOR"] = variable
        _, seen = on_terminal([*krm, "show", log, "--filter", "command:GetVinCode"], "stdout", env=environment)
        check(f"colours with NO_COLOR={variable}", (b"\x1b[1mGetVinCode" in seen) == wanted, seen[:300])

    # lnav, as a user of it has the format.
    lnav = shutil.which("lnav")
    if lnav is None:
        print("not tested: the format of lnav, which is not installed")
    else:
        formats = path("home/.lnav/formats/installed")
        os.makedirs(formats)
        shutil.copy(lnav_format, formats)
        environment = {**os.environ, "HOME": path("home"), "TERM": "dumb"}
        environment.pop("XDG_CONFIG_HOME", None)
        valid = subprocess.run([lnav, "-C"], capture_output=True, timeout=300, env=environment)
        check("the format is one", valid.returncode == 0 and b"error" not in valid.stderr, valid)
        asked = subprocess.run(
            [lnav, "-n", "-c", ";SELECT value, count(*) FROM krm_log WHERE path LIKE 'Data[%].m_strDTC' AND "
             "value = 'P0171' GROUP BY value", "-c", ":write-csv-to -", log],
            capture_output=True, timeout=300, env=environment)
        check("lnav reads the log", b"\nP0171,1\n" in asked.stdout, asked)

check.end()
