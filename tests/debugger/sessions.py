"""Runs a debugger on a program and takes what it shows apart. What the tests of all debuggers share."""

import os
import re
import shutil
import subprocess
import sys

SKIPPED = 77  # CTest's SKIP_RETURN_CODE of these tests
SECONDS = 300  # more than any session takes, so that a debugger that hangs ends
MARK = "@@@ "


def skip(reason):
    print(f"skipped: {reason}")
    sys.exit(SKIPPED)


def find(debugger):
    """The debugger's path; without one the test is skipped."""
    return shutil.which(debugger) or skip(f"{debugger} is not installed")


def run(command, may_fail=False, **environment):
    """What the command writes. Where it fails the test does, unless it may."""
    try:
        done = subprocess.run(command, capture_output=True, timeout=SECONDS, env={**os.environ, **environment},
                              encoding="utf-8", errors="backslashreplace", stdin=subprocess.DEVNULL)
    except subprocess.TimeoutExpired:
        sys.exit(f"{' '.join(command[:3])}... doesn't end")
    if "ptrace" in done.stderr and "Operation not permitted" in done.stderr:
        skip("debugging is not permitted here")
    if done.returncode != 0 and not may_fail:
        sys.exit(f"{command[0]} ends with {done.returncode}\n{done.stdout}{done.stderr}")
    return done.stdout


def marked(output):
    """{what stands behind a mark: the lines up to the next one}"""
    shown = {}
    name = None
    for line in output.splitlines():
        if line.startswith(MARK):
            name = line[len(MARK):]
            shown[name] = []
        elif name is not None:
            shown[name].append(line)
    return {name: "\n".join(lines).strip("\n") for name, lines in shown.items()}


def steady(text):
    """The text with a `*` for each address, and for what memory without an object holds instead of a length.

    krm_ulong has its own name in place of the type behind it.
    """
    text = re.sub(r"0x[0-9a-f]+", "0x*", text)
    text = re.sub(r"CKRMList<unsigned (int|long)>", "CKRMList<krm_ulong>", text)
    return re.sub(r"no text of \d{8,} bytes", "no text of * bytes", text)


def compare(shown, expected):
    """Prints what is shown otherwise than expected; returns the exit code."""
    wrong = 0
    for name, text in expected:
        actual = steady(shown.get(name, "(nothing)"))
        if actual != text:
            wrong += 1
            print(f"{name}\n  expected {text}\n  shown    {actual}")
    print(f"{len(expected)} compared, {wrong} wrong")
    return 1 if wrong else 0
