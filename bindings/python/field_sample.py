#!/usr/bin/env python3
"""field_sample.py - a form on a terminal with two masked fields: a due date and an amount. Enter goes on, Escape gives up."""
import curses
import os
import sys

import ztfield
from ztfield import EventKind, Key

KEYS = {curses.KEY_LEFT: (Key.LEFT, False), curses.KEY_RIGHT: (Key.RIGHT, False), curses.KEY_HOME: (Key.HOME, False),
        curses.KEY_END: (Key.END, False), curses.KEY_UP: (Key.UP, False), curses.KEY_DOWN: (Key.DOWN, False),
        curses.KEY_DC: (Key.DELETE, False), curses.KEY_BACKSPACE: (Key.BACKSPACE, False), "\x7f": (Key.BACKSPACE, False),
        curses.KEY_SLEFT: (Key.LEFT, True), curses.KEY_SRIGHT: (Key.RIGHT, True)}
ENTER, ESCAPE = ("\n", "\r"), "\x1b"
COLUMN, REMARK = 10, 30


class Line:
    """A field, its label, and what was last refused."""

    def __init__(self, row, label, mask, data_type, **setup):
        self.row, self.label, self.refused = row, label, ""
        self.field = ztfield.Field(mask, data_type, on_event=self.hear, **setup)

    def hear(self, event):
        if event.kind == EventKind.REJECTED:
            self.refused = event.reason.name.lower().replace("_", " ")
        elif event.kind == EventKind.BEEP:
            curses.beep()

    def draw(self, screen):
        selection = self.field.selection
        screen.addstr(self.row, 0, self.label)
        for column, character in enumerate(self.field.text):
            shown = curses.A_REVERSE if selection.start <= column < selection.end else curses.A_UNDERLINE
            screen.addstr(self.row, COLUMN + column, character, shown)
        screen.addstr(self.row, REMARK, self.refused or self.field.state.name.lower().replace("_", " "))
        screen.clrtoeol()
        screen.move(self.row, COLUMN + selection.caret)

    def edit(self, screen):
        while True:
            self.draw(screen)
            key = screen.get_wch()
            self.refused = ""
            if key in ENTER or key == ESCAPE:
                self.field.leave()
                self.draw(screen)
                return key != ESCAPE
            if key in KEYS:
                self.field.press(KEYS[key][0], shift=KEYS[key][1])
            elif isinstance(key, str) and key < " ":
                self.field.press(chr(ord(key) + 64), control=True)
            elif isinstance(key, str):
                self.field.type(key)


def fill_in(screen):
    lines = [Line(0, "Due", "MM/DD/YYYY", "date", spin=True), Line(1, "Amount", "#,###,##0.00", "decimal", range="0~99999")]
    for line in lines:
        line.draw(screen)
    return [line.field.value for line in lines] if all(line.edit(screen) for line in lines) else None


def main():
    os.environ.setdefault("ESCDELAY", "50")
    values = curses.wrapper(fill_in)
    if values is None:
        sys.exit(1)
    print("Due %s, amount %s" % tuple(values))


if __name__ == "__main__":
    main()
