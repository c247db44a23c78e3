#!/usr/bin/env python3
"""Types into the forms on a terminal, as a user does, and looks at what they show and give.

Usage: types_into_a_terminal.py PROGRAM...
"""
import os
import pty
import re
import select
import sys
import time

PATIENCE = 20  # seconds
SHIFT_LEFT, DELETE, UP = "\x1b[1;2D", "\x1b[3~", "\x1b[A"


class Terminal:
    def __init__(self, program):
        self.told = ""
        self.process, self.end = pty.fork()
        if self.process == 0:
            os.environ["TERM"] = "xterm"
            os.execvp(program[0], program)

    def wait_for(self, pattern):
        """Until the program has shown it, from what was waited for before."""
        ends = time.monotonic() + PATIENCE
        while time.monotonic() < ends:
            found = re.search(pattern, self.told)
            if found:
                self.told = self.told[found.end():]
                return
            if select.select([self.end], [], [], 0.1)[0]:
                try:
                    self.told += os.read(self.end, 4096).decode(errors="replace")
                except OSError:  # the program has ended
                    ends = min(ends, time.monotonic() + 0.5)
        sys.exit(f"FAILED: it does not show {pattern!r} but {self.told!r}")

    def type(self, keys):
        os.write(self.end, keys.encode())

    def result(self):
        return os.waitstatus_to_exitcode(os.waitpid(self.process, 0)[1])


def check(what, is_so):
    if not is_so:
        sys.exit(f"FAILED: {what}")


def fill_in_c(program):
    form = Terminal(program)
    form.wait_for("Due")
    form.type("13")
    form.wait_for("there is no such number")
    form.type("\x7f7/4/2026" + UP + "\r")
    form.wait_for("Amount")
    form.type("1234.5\x7f6é")
    form.wait_for("does not belong there")
    form.type("\r")
    form.wait_for("Phone")
    form.type("5551234567" + SHIFT_LEFT + SHIFT_LEFT + DELETE + "\x1a\r")
    for line in ("Due=2027-07-04", "Amount=1234.60", "Phone=5551234567"):
        form.wait_for(line + "\r\n")
    check("the form ends well", form.result() == 0)
    form = Terminal(program)
    form.wait_for("Due")
    form.type("7\x1b")
    check("Escape gives up", form.result() == 1)


def fill_in_python(program):
    form = Terminal(program)
    form.wait_for("Amount")
    form.type("7/4/2026" + "\r")
    form.wait_for("complete")
    form.type("1234.5\r")
    form.wait_for("Due 2026-07-04, amount 1234.50\r\n")
    check("the form ends well", form.result() == 0)


if __name__ == "__main__":
    (fill_in_python if sys.argv[-1].endswith(".py") else fill_in_c)(sys.argv[1:])
