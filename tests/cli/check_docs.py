"""Runs the examples of docs/krm.md and compares what they print with what stands there.

check_docs.py [--write] DOCUMENT DATA KRM_PROGRAM... -- SESSION_PROGRAM...

An example is a block of text with lines `$ COMMAND`, each followed by its output. --write puts the true output there. The other
arguments are those of run_krm.py. Examples of lnav are left out where it isn't installed.
"""

import os
import re
import shlex
import shutil
import subprocess
import sys
import tempfile

arguments = sys.argv[1:]
write = arguments[0] == "--write"
document, data = arguments[write:][:2]
split = arguments.index("--")
krm, session = arguments[write + 2:split], arguments[split + 1:]
krm, session = ([os.path.abspath(part) if os.path.exists(part) else part for part in program] for program in (krm, session))
data = os.path.abspath(data)

with open(document, encoding="utf-8") as file:
    text = file.read()
ran = 0

with tempfile.TemporaryDirectory() as folder:
    subprocess.run([*session, os.path.join(data, "session.log"), os.path.join(data, "session.items.json"), "--operation-log",
                    "demo.log", "--record", "demo.krmrec"], cwd=folder, check=True, capture_output=True, timeout=300)
    programs = os.path.join(folder, "bin")
    os.mkdir(programs)
    with open(os.path.join(programs, "krm"), "w", encoding="utf-8", opener=lambda path, flags: os.open(path, flags, 0o755)) as out:
        out.write(f'#!/bin/sh\nexec {shlex.join(krm)} "$@"\n')

    formats = os.path.join(folder, "home", ".lnav", "formats", "installed")  # where `lnav -i` puts it
    os.makedirs(formats)
    shutil.copy(os.path.join(os.path.dirname(os.path.abspath(document)), "..", "cli", "lnav", "krm_log.json"), formats)

    def output(command):
        environment = {**os.environ, "PATH": programs + os.pathsep + os.environ["PATH"], "TERM": "dumb",
                       "HOME": os.path.join(folder, "home")}
        environment.pop("XDG_CONFIG_HOME", None)
        return subprocess.run(["sh", "-c", command], cwd=folder, stdout=subprocess.PIPE, stderr=subprocess.STDOUT,
                              env=environment, timeout=300).stdout.decode()

    def example(block):
        global ran
        lines = []
        for shown in re.split(r"^(?=\$ )", block.group(1), flags=re.MULTILINE):
            command, _, rest = shown.partition("\n")
            if command.startswith("$ lnav") and not shutil.which("lnav"):
                lines.append(shown)
            elif command.startswith("$ "):
                ran += 1
                lines.append(f"{command}\n{output(command[2:])}")
            elif shown:
                raise SystemExit(f"{document}: an example doesn't begin with a command: {command}")
        return "```text\n" + "".join(lines) + "```"

    true = re.sub(r"```text\n(.*?)```", example, text, flags=re.DOTALL)

if write:
    with open(document, "w", encoding="utf-8") as out:
        out.write(true)
elif true != text:
    for number, (stands, prints) in enumerate(zip(text.splitlines(), true.splitlines()), 1):
        if stands != prints:
            raise SystemExit(f"{document}:{number}: {stands!r}, but it prints {prints!r}")
    raise SystemExit(f"{document}: some output is longer or shorter than what stands there")
if ran == 0:
    raise SystemExit(f"{document} has no examples")
print(f"{ran} examples of {document} print what stands there")
