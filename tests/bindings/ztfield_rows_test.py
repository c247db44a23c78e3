#!/usr/bin/env python3
"""The keystroke tables of the native tests, played through the Python binding of libztfield: text and caret are what they are there.
ZTFIELD_LIBRARY names the library.

Usage: ztfield_rows_test.py FILE     what write_rows has written
"""
import json
import pathlib
import re
import sys

sys.dont_write_bytecode = True
sys.path[:0] = [str(pathlib.Path(__file__).resolve().parents[2] / "bindings/python")]
import ztfield  # noqa: E402
from ztfield import Field, Key, Settings  # noqa: E402

SETTING_NAMES = {"currencyPosition": "currency_position", "currencyDigits": "currency_digits", "date": "short_date"}
KEYS = {"Left": Key.LEFT, "Right": Key.RIGHT, "Up": Key.UP, "Down": Key.DOWN, "Home": Key.HOME, "End": Key.END, "Del": Key.DELETE,
        "Back": Key.BACKSPACE, "Ins": Key.INSERT, "PgUp": Key.PAGE_UP, "PgDn": Key.PAGE_DOWN, "Num.": Key.KEYPAD_POINT}
CHARACTERS = {"Tab": "\t", "Enter": "\r", "Esc": "\x1b"}
ACTS = {
    "Blur": lambda field, _: field.leave(),
    "Pause": lambda field, _: field.let_time_pass(1100),
    "ReadOnly": lambda field, _: field.set_read_only(True),
    "Undo": lambda field, _: field.undo(),
    "Redo": lambda field, _: field.redo(),
    "Paste": lambda field, _: field.paste(),
    "Clear": lambda field, _: field.clear(),
    "Click": lambda field, column: field.click(column),
    "Double": lambda field, column: field.double_click(column),
    "WheelUp": lambda field, _: field.wheel(1),
    "WheelDown": lambda field, _: field.wheel(-1),
}
STEPS = {"{Up}", "{Down}", "{WheelUp}", "{WheelDown}"}


def made(row):
    settings = Settings(**{SETTING_NAMES.get(name, name): value for name, value in row["settings"].items()})
    field = Field(row["mask"], row["type"], modern=row["modern"], settings=settings, spin=row.get("spin", False), range=row.get("range"),
                  codes=row.get("codes"))
    if "value" in row:
        field.set_data(row["value"])
    if "text" in row:
        text = row["text"]
        field.text = re.sub(r"[][|]", "", text)
        marks = [match.start() for match in re.finditer(r"[][|]", text)]
        if marks:
            field.select(marks[0], marks[-1] - 1 if len(marks) > 1 else marks[0])
    return field


def play(field, key):
    named = re.fullmatch(r"\{(\D+?)(\d*)\}", key)
    if not named:
        field.type(key)
        return
    *held, name = named.group(1).split("+")
    if name in ACTS:
        ACTS[name](field, int(named.group(2) or 0))
    elif name in CHARACTERS:
        field.type(CHARACTERS[name])
    else:
        field.press(KEYS.get(name, name), shift="Shift" in held, control="Ctrl" in held)


def shown(field):
    text, selection = field.text, field.selection
    if selection.start == selection.end:
        return text[:selection.start] + "|" + text[selection.start:]
    return text[:selection.start] + "[" + text[selection.start:selection.end] + "]" + text[selection.end:]


def steps_from_today(row):
    """The day of the tables is not that of the library."""
    return row["type"] in ("date", "time", "datetime") and "text" not in row and not STEPS.isdisjoint(row["keys"])


def main(path):
    rows = [row for row in json.loads(pathlib.Path(path).read_text()) if not steps_from_today(row)]
    differing = 0
    for row in rows:
        field = made(row)
        for key in row["keys"]:
            play(field, key)
        actual = shown(field)
        if not re.search(r"[|[]", row["after"]):  # a caret that the row does not tell is of no interest
            actual = field.text
        if actual != row["after"]:
            differing += 1
            print(f"{row['table']}, {row['mask']!r}: {row.get('text', row.get('value'))!r} {''.join(row['keys'])}: "
                  f"{actual!r}, not {row['after']!r}")
    print(f"{len(rows)} rows, {differing} differ")
    return 1 if differing or len(rows) < 900 else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1]))
