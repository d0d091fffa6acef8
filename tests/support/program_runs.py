"""What the tests have in common that run a program as its user does."""

import os
import pty
import subprocess
import sys


class Checks:
    """Called with a name, whether it holds, and what was seen, which is printed where it doesn't."""

    def __init__(self):
        self.failures = []

    def __call__(self, name, holds, seen=""):
        print("ok  " if holds else "FAIL", name)
        if not holds:
            self.failures.append(name)
            print(seen)

    def end(self):
        """Ends the test."""
        print(f"{len(self.failures)} failed" if self.failures else "all passed")
        sys.exit(1 if self.failures else 0)


class Files:
    """Files in a folder."""

    def __init__(self, folder):
        self.folder = folder

    def __call__(self, name, content=None):
        """The file's path, after the content, if any, was written into it."""
        where = os.path.join(self.folder, name)
        if content is not None:
            with open(where, "wb") as out:
                out.write(content)
        return where

    def content(self, name):
        with open(self(name), "rb") as file:
            return file.read()


def on_terminal(command, stream, **options):
    """Runs it with its "stdout" or "stderr" on a terminal, the other one going nowhere: exit status and what was shown."""
    leader, follower = pty.openpty()
    process = subprocess.Popen(command, **{"stdout": subprocess.DEVNULL, "stderr": subprocess.DEVNULL, **options,
                                           stream: follower})
    os.close(follower)
    shown = b""
    try:
        while piece := os.read(leader, 65536):
            shown += piece
    except OSError:  # the other side is closed
        pass
    os.close(leader)
    return process.wait(300), shown
