"""Runs diagnosis_session as a user does: exit codes, pipes, devices, packed files, Ctrl-C.

run_session.py DATA HAS_ZLIB PROGRAM...

PROGRAM is the program, behind the emulator that runs it, if any, and the emulator's options.
"""

import gzip
import json
import os
import signal
import subprocess
import sys
import tempfile
import time
from pathlib import Path

sys.path.append(str(Path(__file__).resolve().parents[1] / "support"))
from program_runs import Checks, Files, on_terminal

data, has_zlib, *program = sys.argv[1], sys.argv[2] == "1", *sys.argv[3:]
recording, items = os.path.join(data, "session.log"), os.path.join(data, "session.items.json")
check = Checks()


def run(*arguments, **options):
    return subprocess.run([*program, *arguments], capture_output=True, timeout=120, **options)


plain = run(recording, items)
body = plain.stdout.split(b"\n", 1)[1]
check("the report", plain.returncode == 0 and plain.stderr == b"" and b"37 exchanges, 55 values" in body, plain)
check("no log unless asked for", not os.path.exists("diagnosis_session.log"))

with open(recording, "rb") as file:
    text = file.read()
piped = run("-", items, input=text)
check("standard input", piped.returncode == 0 and b"37 exchanges, 55 values" in piped.stdout, piped)
check("its head comes when it is known", piped.stdout.index(b"91 frames") > piped.stdout.index(b"Freeze frame"), piped)

document = run("--json", recording, items)
parsed = json.loads(document.stdout)
check("JSON", parsed["summary"]["values"] == 55 and parsed["recording"]["ecus"] == ["7E8", "7E9"] and
      sum(event["kind"] == "value" for event in parsed["events"]) == 55, document)

with tempfile.TemporaryDirectory() as folder:
    path = Files(folder)

    if has_zlib:
        packed = run(path("s.log.gz", gzip.compress(text)), items)
        check("gzip", packed.returncode == 0 and packed.stdout.split(b"\n", 1)[1] == body, packed)
        joined = run(path("j.log.gz", gzip.compress(text[:2000]) + gzip.compress(text[2000:])), items)
        check("joined gzip members", joined.stdout.split(b"\n", 1)[1] == body, joined)
        cut = run(path("c.log.gz", gzip.compress(text)[:-20]), items)
        check("gzip that ends too early", cut.returncode == 2 and b"gzip data ends too early" in cut.stderr, cut)
        check("it is decoded as far as it goes", b"Vehicle identification number" in cut.stdout and
              b"exchanges, " in cut.stdout, cut)
        nothing = run(path("n.log.gz", gzip.compress(text)[:12]), items)
        check("nothing at all of it", nothing.returncode == 2 and nothing.stdout == b"", nothing)
    windows = run(path("w.log", b"\xef\xbb\xbf" + text.replace(b"\n", b"\r\n")), items)
    check("CRLF and byte order mark", windows.stdout.split(b"\n", 1)[1] == body, windows)

    bad = run(path("bad.log", b"rubbish\n" + text), items)
    check("a bad line is exit 1", bad.returncode == 1 and b"bad.log:1: " in bad.stderr, bad)
    check("wrong use is exit 2", run("--nonsense").returncode == 2)
    check("a missing file is exit 2", b"no such file" in run(path("missing")).stderr)
    mine = path("mytrace.log", text)
    refused = run(recording, items, "--operation-log", mine)
    with open(mine, "rb") as file:
        check("a recording is not overwritten", refused.returncode == 2 and file.read() == text, refused)
    os.symlink(mine, path("link.log"))
    check("nor an input by another name", b"is an input" in
          run(mine, items, "--values", path("link.log")).stderr)

    if os.path.exists("/dev/full"):
        with open("/dev/full", "wb") as full:
            told = subprocess.run([*program, recording, items], stdout=full, stderr=subprocess.PIPE, timeout=120)
        check("a full disk is exit 2", told.returncode == 2 and b"no space left" in told.stderr, told)
        for option in ("--values", "--operation-log"):
            told = run(recording, items, option, "/dev/full")
            check(option + " on a full disk is exit 2", told.returncode == 2 and b"no space left" in told.stderr, told)

    long = path("long.log", text * 2000)
    closed = subprocess.Popen([*program, long, items], stdout=subprocess.PIPE, stderr=subprocess.PIPE)
    closed.stdout.read(1000)
    closed.stdout.close()
    told = closed.stderr.read()
    check("a closed pipe is exit 2", closed.wait(120) == 2 and b"pipe" in told, told)

    # Ctrl-C while it waits for more.
    waiting = subprocess.Popen([*program, "-", items], stdin=subprocess.PIPE, stdout=subprocess.PIPE,
                               stderr=subprocess.PIPE)
    waiting.stdin.write(text)
    waiting.stdin.flush()
    first = waiting.stdout.read(200)
    waiting.send_signal(signal.SIGINT)
    rest, told = waiting.communicate(timeout=120)
    check("results come while it waits", first.startswith(b"Recording"), first)
    silent = subprocess.Popen([*program, "-", items], stdin=subprocess.PIPE, stdout=subprocess.PIPE,
                              stderr=subprocess.PIPE)
    time.sleep(0.5)
    silent.send_signal(signal.SIGINT)
    silent.wait(120)  # before its input is closed
    nothing, silently = silent.communicate(timeout=120)
    check("Ctrl-C before anything came", silent.returncode == 1 and b"interrupted" in silently and
          b"is empty" not in nothing, (silent.returncode, nothing, silently))
    check("Ctrl-C ends cleanly and says so", waiting.returncode == 1 and b"interrupted" in told and
          b"exchanges" in rest, (waiting.returncode, rest, told))

    # The progress bar: on a terminal only, and of what takes long enough to be looked at.
    bar = b""
    for times in (2000, 8000, 32000, 128000):
        longer = path("longer.log", text * times)
        status, shown = on_terminal([*program, longer, items], "stderr")
        bar += shown
        if status != 0 or bar != b"":
            break
    check("a progress bar on a terminal", b" MB" in bar and b"left" in bar, bar)
    check("none in a pipe", run(long, items).stderr == b"")

check.end()
