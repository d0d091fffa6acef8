#!/usr/bin/env python3
"""Lets a diagnosis session with its recording run for long, and takes away what it needs.

    tools/soak.py MINUTES SESSION_PROGRAM KRM_PROGRAM DATA

SESSION_PROGRAM is diagnosis_session, KRM_PROGRAM krm, DATA the folder of the example's recording. Needs the right to mount a
small file system, for a disk that is full (`unshare --mount` keeps it from everybody else).

Four parts, each of which prints what it saw, and fails where that isn't as it should be:

long     the example's exchange is repeated MINUTES long, about six times a second. The program's memory and its open files
         stay what they were after the first tenth of the time; the recording is whole: played again, it is as many exchanges.
full     the disk is full in the middle, and has room again later. The session goes on, says at its end that not all was
         recorded, and exits with 2; the recording is readable but for the lines that found no room.
removed  the recording's folder is removed in the middle. The session goes on and ends well; the folder isn't made again.
killed   the program is killed in the middle, 20 times: every line of its recording but the last is readable. Started
         again, it records anew.

Exits with 0 when all of it held, with 1 when not.
"""

import array
import fcntl
import os
import random
import re
import shutil
import subprocess
import sys
import tempfile
import termios
import time
from pathlib import Path

sys.path.append(str(Path(__file__).resolve().parents[1] / "tests" / "support"))
from program_runs import Checks

ROUNDS_A_SECOND = 6
EXCHANGES_A_ROUND = 37  # of the example's recording

minutes, session, krm, data = float(sys.argv[1]), *sys.argv[2:5]
with open(os.path.join(data, "session.log"), "rb") as file:
    vehicle = file.read()
check = Checks()


class Session:
    """A session that waits for what the vehicle says."""

    def __init__(self, recording):
        self.errors = tempfile.TemporaryFile()
        self.process = subprocess.Popen(
            [session, "-", os.path.join(data, "session.items.json"), "--record", recording],
            stdin=subprocess.PIPE, stdout=subprocess.DEVNULL, stderr=self.errors)

    def rounds(self, count):
        for _ in range(count):
            self.process.stdin.write(vehicle)
            self.process.stdin.flush()

    def has_read_all(self):
        left = array.array("i", [0])
        fcntl.ioctl(self.process.stdin, termios.FIONREAD, left)
        return left[0] == 0

    def memory(self):
        """Resident kilobytes."""
        with open(f"/proc/{self.process.pid}/status", encoding="ascii") as status:
            return int(re.search(r"VmRSS:\s+(\d+)", status.read())[1])

    def open_files(self):
        return len(os.listdir(f"/proc/{self.process.pid}/fd"))

    def end(self):
        """Exit status and what it said on standard error."""
        self.process.stdin.close()
        status = self.process.wait(600)
        self.errors.seek(0)
        return status, self.errors.read().decode()


def until(condition, seconds=60):
    for _ in range(seconds * 20):
        if condition():
            return True
        time.sleep(0.05)
    return False


def size(file):
    return os.path.getsize(file) if os.path.exists(file) else 0


def summary(recording):
    """Exit status and last line of krm, which counts."""
    shown = subprocess.Popen([krm, "show", recording], stdout=subprocess.PIPE, stderr=subprocess.DEVNULL)
    last = b""
    for line in shown.stdout:
        last = line
    return shown.wait(600), last.decode().strip()


def long(folder):
    recording = os.path.join(folder, "long.krmrec")
    running = Session(recording)
    seen, rounds = [], 0
    begin = time.monotonic()
    while (passed := time.monotonic() - begin) < minutes * 60:
        due = int(passed * ROUNDS_A_SECOND) + 1 - rounds
        running.rounds(due)
        rounds += due
        seen.append((passed, running.memory(), running.open_files()))
        time.sleep(1 / ROUNDS_A_SECOND)
    status, said = running.end()
    early = [sample for sample in seen if sample[0] < minutes * 6]
    late = seen[len(early):]
    grown = max(memory for _, memory, _ in late) - max(memory for _, memory, _ in early)
    files = {count for _, _, count in seen[1:]}
    print(f"long: {minutes:g} minutes, {rounds} rounds, {rounds * EXCHANGES_A_ROUND} exchanges, "
          f"{size(recording) / 1e6:.0f} MB recorded")
    print(f"      {late[-1][1]} kB of memory at the end, {grown} kB more at most than in the first tenth; open files {files}")
    check("the session ends well", status == 0 and said == "", (status, said))
    check("memory stays", grown <= 256, seen[:: max(1, len(seen) // 50)])
    check("open files stay", len(files) == 1, files)
    again = subprocess.run([session, "--replay", recording], capture_output=True, timeout=3600)
    check("the whole recording can be played", again.returncode == 0 and again.stderr == b"" and
          f"\n{rounds * EXCHANGES_A_ROUND} exchanges, ".encode() in again.stdout[-300:], again.stdout[-300:] + again.stderr[-300:])
    os.remove(recording)


def full(folder):
    disk = os.path.join(folder, "disk")
    os.mkdir(disk)
    subprocess.run(["mount", "-t", "tmpfs", "-o", "size=4m", "none", disk], check=True)
    try:
        ballast, recording = os.path.join(disk, "ballast"), os.path.join(disk, "full.krmrec")
        with open(ballast, "wb") as out:
            out.write(bytes(2_000_000))
        running = Session(recording)
        running.rounds(30)
        check("the disk is full", until(lambda: os.statvfs(disk).f_bavail == 0), os.statvfs(disk))
        running.rounds(100)
        check("it goes on", until(running.has_read_all), running.memory())
        before = size(recording)
        os.remove(ballast)
        running.rounds(5)
        check("it records again where there is room", until(lambda: size(recording) > before), size(recording))
        status, said = running.end()
        print(f"full: {said.strip()}")
        check("the session tells", status == 2 and "not all was recorded: the file can't be written: No space left on device"
              in said, (status, said))
        _, last = summary(recording)
        print(f"      {last}")
        found = re.match(r"(\d+) messages in \d+ lines;.* 1 line can't be read$", last)
        check("but for one line cut off, what found room can be read", found is not None and
              int(found[1]) > 1000, last)
    finally:
        subprocess.run(["umount", disk], check=True)


def removed(folder):
    place = os.path.join(folder, "place")
    os.mkdir(place)
    recording = os.path.join(place, "removed.krmrec")
    running = Session(recording)
    running.rounds(5)
    check("it records", until(lambda: size(recording) > 0), size(recording))
    shutil.rmtree(place)
    running.rounds(50)
    status, said = running.end()
    print(f"removed: exit {status}")
    check("the session goes on without the folder", status == 0 and not os.path.exists(place), (status, said))


def killed(folder):
    def whole_round(recording):
        started = Session(recording)
        started.rounds(1)
        return started.end(), summary(recording)

    whole = whole_round(os.path.join(folder, "whole.krmrec"))
    check("a round is recorded", whole[0] == (0, "") and whole[1][0] == 0, whole)
    least = None
    for turn in range(20):
        recording = os.path.join(folder, f"killed{turn}.krmrec")
        running = Session(recording)
        running.rounds(1)
        until(lambda: size(recording) > 0)
        running.rounds(15)  # what a pipe holds
        time.sleep(random.uniform(0, 0.3))
        running.process.kill()
        running.process.wait()
        with open(recording, "rb") as file:
            left = file.read()
        _, last = summary(recording)
        is_cut = not left.endswith(b"\n")
        lost = re.search(r"(\d+) lines? can't be read", last)
        if lost and (int(lost[1]) > 1 or not is_cut):
            check(f"every line but the last can be read, the {turn + 1}th time", False, last)
        anew = whole_round(recording)
        if anew != whole:
            check(f"it records anew, the {turn + 1}th time", False, anew)
        least = min(least or left.count(b"\n"), left.count(b"\n"))
        os.remove(recording)
    print(f"killed: 20 times, with {least} lines at least")
    check("lines were recorded each time", least > 1, least)


with tempfile.TemporaryDirectory(dir=os.environ.get("TMPDIR", "/var/tmp")) as folder:
    for part in (full, removed, killed, long):
        part(folder)
check.end()
