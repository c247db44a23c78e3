#!/usr/bin/env python3
"""The Python binding of libztfield, on the library itself: what it declares against the header, what it makes of the library's answers, and
what careless programs hand in. ZTFIELD_LIBRARY names the library.

Usage: ztfield_python_test.py [TEST...]
"""
import ctypes
import datetime
import decimal
import doctest
import gc
import os
import pathlib
import random
import re
import sys
import threading
import unittest

sys.dont_write_bytecode = True
ROOT = pathlib.Path(__file__).resolve().parents[2]
sys.path[:0] = [str(ROOT / "bindings/python")]
import header_facts  # noqa: E402
import ztfield  # noqa: E402
from ztfield import DataType, EventKind, Field, Key, MaskFault, PositionKind, Reason, Refused, Selection, Settings, State  # noqa: E402

# Prefixes of constants and the enumeration that has them; ZTF_ alone is in three, by what stands around it in the header.
ENUMERATIONS = {"DT_": DataType, "ZTEO_": ztfield.Option, "ZTS_": State, "ZTR_": Reason, "ZTM_": MaskFault, "SPINSTYLE_": ztfield.SpinStyle,
                "ZTF_KEY_": Key}
# Of the control with a window alone.
NOT_OF_FIELDS = ("ZTP_", "DATETIME_", "FORMAT_", "SHARED_")
NO_CONSTANTS = ("ZTFIELD_H", "ZTVALUES_H", "ZTF_API", "ZTFIELD_VERSION")

KIND_OF_CTYPE = {None: "void", ctypes.c_int32: "i32", ctypes.c_uint32: "u32", ctypes.c_double: "f64"}


def kind_of_ctype(of):
    return KIND_OF_CTYPE.get(of, "ptr")


class TheHeader(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        text = header_facts.without_comments((ROOT / "include/ztfield.h").read_text())
        values = header_facts.without_comments((ROOT / "include/ztvalues.h").read_text())
        cls.constants = {name: int(value.rstrip("u"), 0) for name, value in
                         re.findall(r"^#define (\w+)[ \t]+(\w+)[ \t]*$", text + values, re.M) if value[0].isdigit()}
        cls.text = re.sub(r"^#.*$", "", text, flags=re.M)
        header_facts.KINDS["ZTFieldListener"] = "ptr"

    def test_every_function_is_declared_as_it_is(self):
        declared = {name: (header_facts.kind_of(result), *header_facts._parameters(parameters)) for result, name, parameters in
                    re.findall(r"^ZTF_API ([\w ]+\*?)\s*(ZTF_\w+)\((.*?)\);", self.text, re.M | re.S)}
        self.assertGreater(len(declared), 50)
        self.assertEqual(declared, {name: tuple(map(kind_of_ctype, row)) for name, row in ztfield._FUNCTIONS.items()})

    def test_every_record_is_laid_out_as_it_is(self):
        records = {name: header_facts._fields(body) for body, name in
                   re.findall(r"typedef struct \w+ \{(.*?)\} (\w+);", self.text, re.S)}
        self.assertEqual(set(records), {"ZTFieldEvent", "ZTFieldSetup", "ZTFieldPosition"})
        for name, fields in records.items():
            layout = header_facts.layout_of(fields, records, ctypes.sizeof(ctypes.c_void_p))
            record = getattr(ztfield, name)
            here = [(field.rstrip("_"), getattr(record, field).offset, getattr(record, field).size) for field, _ in record._fields_]
            self.assertEqual((ctypes.sizeof(record), here), (layout.size, layout.fields), name)

    def test_every_constant_has_its_name_in_an_enumeration(self):
        of_fields = {name: value for name, value in self.constants.items()
                     if not name.startswith((*NOT_OF_FIELDS, "ZTFIELD_")) and name not in NO_CONSTANTS}
        self.assertGreater(len(of_fields), 80)
        unnamed = (ztfield.Held, ztfield.Setting, EventKind, PositionKind)
        for name, value in of_fields.items():
            prefix = next((prefix for prefix in ENUMERATIONS if name.startswith(prefix)), None)
            enumerations = [ENUMERATIONS[prefix]] if prefix else unnamed
            short = name[len(prefix or "ZTF_"):]
            self.assertIn(value, [each.__members__[short] for each in enumerations if short in each.__members__], name)
        named = sum(len(each) for each in (*ENUMERATIONS.values(), *unnamed)) - 1  # Reason.NONE is ours
        self.assertEqual(named, len(of_fields))

    def test_the_version_is_that_of_the_header_and_of_the_library(self):
        parts = [self.constants["ZTFIELD_VERSION_" + part] for part in ("MAJOR", "MINOR", "PATCH")]
        self.assertEqual(ztfield.VERSION, parts[0] * 65536 + parts[1] * 256 + parts[2])
        self.assertEqual(ztfield.library.ZTF_Version(), ztfield.VERSION)


class TheExamples(unittest.TestCase):
    def test_of_the_module_give_what_they_print(self):
        result = doctest.testmod(ztfield)
        self.assertGreater(result.attempted, 20)
        self.assertEqual(result.failed, 0)

    def test_of_the_manual_give_what_they_print(self):
        result = doctest.testfile(str(ROOT / "docs/manual/ztfield.md"), module_relative=False, encoding="utf-8")
        self.assertGreater(result.attempted, 5)
        self.assertEqual(result.failed, 0)


class Values(unittest.TestCase):
    ROWS = [
        # mask, type, value, text
        ("MM/DD/YYYY", "date", datetime.date(2026, 7, 4), "07/04/2026"),
        ("MM/DD/YYYY", "date", None, "  /  /    "),
        ("HH:MM AM/PM", "time", datetime.time(13, 30), "01:30 PM"),
        ("HH:MM:SS.FFFFFF", "time", datetime.time(1, 2, 3, 40), "01:02:03.000040"),
        ("YYYY-MM-DD HH:MM", "datetime", datetime.datetime(2024, 2, 29, 23, 59), "2024-02-29 23:59"),
        ("#,##0.00", "number", 1234.5, "1,234.50"),
        ("#,##0.00", "number", -0.5, "-0.50"),
        ("#,##0.00", "decimal", decimal.Decimal("12345678901234567890.12"), "12,345,678,901,234,567,890.12"),
        ("(###) ###-####", "string", "5551234567", "(555) 123-4567"),
        ("AAAA", "string", "Ünaą", "Ünaą"),
    ]

    def test_are_shown_and_given_back_as_what_they_are(self):
        for mask, data_type, value, text in self.ROWS:
            with self.subTest(mask=mask, value=value):
                field = Field(mask, data_type)
                field.value = value
                self.assertEqual((field.text, field.value, type(field.value)), (text, value, type(value)))
                if value is not None:
                    self.assertEqual(ztfield.format(value, mask, data_type), text)
                    self.assertEqual(ztfield.parse(text, mask, data_type), value)

    def test_may_be_of_a_kind_beside_the_type(self):
        at = datetime.datetime(2026, 7, 4, 13, 30)
        self.assertEqual(ztfield.format(at, "MM/DD/YYYY", "date"), "07/04/2026")
        self.assertEqual(ztfield.format(at, "HH:MM", "time"), "13:30")
        self.assertEqual(ztfield.format(7, "000", DataType.NUMBER), "007")

    def test_that_are_refused_change_nothing_and_say_why(self):
        day = Field("MM/DD/YYYY", "date", value="2026-07-04")
        for value, reason in (("2/30/2026", Reason.DOES_NOT_EXIST), ("tomorrow", Reason.DOES_NOT_FIT)):
            with self.assertRaises(Refused) as refused:
                day.value = value
            self.assertEqual((refused.exception.reason, day.text), (reason, "07/04/2026"))
            with self.assertRaises(Refused) as refused:
                ztfield.parse(value, "MM/DD/YYYY", "date")
            self.assertEqual(refused.exception.reason, reason)

    def test_that_are_none_yet_are_told_by_the_state(self):
        day = Field("MM/DD/YYYY", "date")
        self.assertEqual((day.state, day.data, day.value), (State.EMPTY, "", None))
        day.type("07")
        self.assertEqual((day.state, day.data, day.value), (State.INCOMPLETE, None, None))

    def test_a_part_of_a_value_is_not_read_as_one(self):
        with self.assertRaises(Refused) as refused:
            ztfield.parse("555", "(###) ###-####", "string")
        self.assertEqual(refused.exception.reason, Reason.DOES_NOT_FIT)

    def test_masks_are_judged_as_modern_fields_take_them_and_as_classic_ones_do(self):
        german = Settings(decimal=",", thousands=".")
        self.assertTrue(ztfield.check("#,##0.00", "number", german))
        self.assertEqual(ztfield.check("#,##0.00", "number", german, modern=False).fault, MaskFault.OUT_OF_PLACE)

    def test_longer_than_any_first_guess_come_whole(self):
        long = "ü" * 250
        note = Field("X" * 250, "string", value=long)
        self.assertEqual((note.text, note.data, ztfield.parse(long, "X" * 250, "string")), (long, long, long))


class Acts(unittest.TestCase):
    def test_are_those_of_the_control(self):
        day = Field("MM/DD/YYYY", "date")
        day.type("7/4/2026")
        self.assertEqual((day.text, day.modified), ("07/04/2026", True))
        day.press(Key.BACKSPACE)
        self.assertEqual(day.text, "07/04/202 ")
        day.undo()
        self.assertEqual((day.text, day.can_redo), ("07/04/2026", True))
        day.redo()
        day.press("Z", control=True)
        self.assertEqual(day.text, "07/04/2026")
        day.select(0, -1)
        self.assertEqual((day.selection, day.selection.start, day.selection.end), (Selection(0, 10), 0, 10))
        self.assertEqual(day.copy(), "07/04/2026")
        day.paste("4 July 2027")
        self.assertEqual(day.value, datetime.date(2027, 7, 4))

    def test_of_the_spin_step_within_the_range(self):
        count = Field("##0", "number", range="0~3", value=1)
        count.step()
        count.press(Key.UP)
        count.step()
        self.assertEqual(count.value, 3)
        count.wheel(-2)
        count.step(False)
        self.assertEqual(count.value, 0)

    def test_of_a_mask_and_of_settings_keep_the_value_where_they_say(self):
        amount = Field("", "decimal", value="1234.5")
        amount.use_settings(Settings(decimal=",", thousands="\u202f"))
        self.assertEqual((amount.text, amount.data), ("1\u202f234,50", "1234.50"))
        self.assertTrue(amount.set_mask("HH:MM", "time"))
        self.assertEqual((amount.text, amount.data_type, amount.mask), ("  :  ", DataType.TIME, "HH:MM"))
        self.assertFalse(amount.set_mask("M", "date"))

    def test_of_classic_editing_too(self):
        day = Field("MM/DD/YY", "date", modern=False)
        day.type("7")
        self.assertEqual(day.text, "07/00/00")
        self.assertFalse(day.set_modern(True))
        self.assertTrue(day.set_modern(False))

    def test_positions_say_what_stands_there(self):
        day = Field("DD.MM.YYYY", "date").positions
        self.assertEqual("".join(position.character for position in day), "DD.MM.YYYY")
        self.assertEqual([position.part for position in day], [0, 0, -1, 1, 1, -1, 2, 2, 2, 2])
        self.assertEqual(day[-1].kind, PositionKind.YEAR)
        self.assertEqual([(position.character, position.escaped) for position in Field("~A#").positions], [("A", True), ("#", False)])

    def test_of_a_read_only_field_are_refused(self):
        fixed = Field("AAA", value="abc", read_only=True)
        fixed.type("x")
        self.assertEqual(fixed.text, "abc")

    def test_codes_are_shown_for_values(self):
        size = Field(codes={"Small": "s", "Large": "l", "None": None})
        size.type("l")
        self.assertEqual((size.text, size.value), ("Large", "l"))


class Events(unittest.TestCase):
    def test_come_in_their_order(self):
        heard = []
        day = Field("MM/DD/YYYY", "date", on_event=heard.append)
        day.type("1")
        self.assertEqual([event.kind for event in heard], [EventKind.CHANGED, EventKind.STATE])
        self.assertEqual((heard[1].was, heard[1].now), (State.EMPTY, State.INCOMPLETE))
        del heard[:]
        day.type("é")
        self.assertEqual(heard[0], ztfield.Event(EventKind.REJECTED, Reason.WRONG_KIND, 1, "é"))
        self.assertEqual([event.kind for event in heard], [EventKind.REJECTED, EventKind.BEEP])

    def test_that_are_taken_do_not_beep(self):
        heard = []
        day = Field("MM/DD/YYYY", "date", on_event=lambda event: heard.append(event.kind) or True)
        day.type("é")
        self.assertEqual(heard, [EventKind.REJECTED])

    def test_may_ask_the_field_and_not_change_it(self):
        asked, day = [], None

        def ask(event):
            asked.append(day.text)
            if event.kind == EventKind.CHANGED:
                day.type("2")

        day = Field("MM/DD/YYYY", "date", on_event=ask)
        with self.assertRaisesRegex(RuntimeError, "may not change"):
            day.type("1")
        self.assertEqual((asked, day.text), (["1 /  /    "], "1 /  /    "))

    def test_may_not_end_the_field(self):
        word = Field("A", on_event=lambda event: word.close())
        with self.assertRaisesRegex(RuntimeError, "may not change"):
            word.type("x")
        self.assertEqual(word.text, "x")

    def test_what_they_raise_is_raised_where_the_act_was(self):
        def raise_it(event):
            raise KeyError(event.kind)

        word = Field("AA", on_event=raise_it)
        with self.assertRaises(KeyError):
            word.type("x")
        self.assertEqual(word.text, "x ")
        word.press(Key.HOME)  # nothing is left behind of it


class Lives(unittest.TestCase):
    def test_end_once_and_nothing_is_asked_behind(self):
        word = Field("AA")
        word.close()
        word.close()
        self.assertEqual(repr(word), "<Field, closed>")
        for act in (lambda: word.text, lambda: word.type("x"), lambda: word.state):
            with self.assertRaisesRegex(ValueError, "closed"):
                act()
        with Settings() as settings:
            pass
        with self.assertRaisesRegex(ValueError, "closed"):
            Field("AA", settings=settings)

    def test_a_field_outlives_its_settings_and_is_collected_without_being_closed(self):
        fields = [Field("", "decimal", settings=Settings(decimal=","), value="1.5", on_event=repr) for _ in range(50)]
        gc.collect()
        self.assertEqual({field.text for field in fields}, {"1,50"})
        ended = [field._end for field in fields]
        del fields
        gc.collect()
        self.assertFalse(any(end.alive for end in ended))

    def test_in_several_threads_keep_apart(self):
        wrong = []

        def clerk(seed):
            rows = random.Random(seed)
            with Settings(decimal=rows.choice(".,"), thousands=" ") as settings:
                mine = [Field("", "decimal", settings=settings) for _ in range(20)]
                for _ in range(200):
                    field, number = rows.choice(mine), decimal.Decimal(rows.randrange(10 ** 7)) / 100
                    field.select(0, -1)
                    field.type(str(number).replace(".", settings.decimal))
                    if field.value != number:
                        wrong.append((seed, number, field.text))

        threads = [threading.Thread(target=clerk, args=(seed,)) for seed in range(8)]
        for thread in threads:
            thread.start()
        for thread in threads:
            thread.join()
        self.assertEqual(wrong, [])


class CarelessPrograms(unittest.TestCase):
    def test_are_told_what_they_did_wrong(self):
        for act, error in ((lambda: Field("AA", "dates"), ValueError), (lambda: Field("AA", 9), ValueError),
                           (lambda: Field("A\0A"), ValueError), (lambda: Field(12), TypeError),
                           (lambda: Settings(decimals="."), TypeError), (lambda: Settings(decimal=""), ValueError),
                           (lambda: Settings(months=["Jan"]), ValueError), (lambda: Field("AA").select("1"), TypeError),
                           (lambda: Field("AA").character("ab"), TypeError), (lambda: ztfield.format("x", "#", "number"), ValueError)):
            with self.subTest(error=error), self.assertRaises(error):
                act()

    def test_hand_in_texts_that_no_keyboard_makes(self):
        word = Field("XXXX")
        word.type("\ud800\udfffa\U0010ffff")
        self.assertEqual(word.text, "\ufffd\ufffda\U0010ffff")

    def test_hand_in_numbers_beyond_all_positions(self):
        word = Field("XXXX", value="abcd")
        for far in (2 ** 31, -2 ** 31 - 1, 2 ** 70, -2 ** 70):
            word.select(far)
            word.click(far)
            word.double_click(far)
            word.drag(far, -far)
            word.wheel(far)
            word.press(far)
            self.assertIn(word.selection.caret, range(5))
        word.click(2 ** 32)
        self.assertEqual((word.text, word.selection.caret), ("abcd", 4))

    def test_play_at_random_and_the_field_stands(self):
        play = random.Random(12)
        alphabet = "0123456789/:.,-+%~[]AMPXaz€éß \t\n\x7f中𝟘\ufeff"

        def text():
            return "".join(play.choice(alphabet) for _ in range(play.randrange(12)))

        for _ in range(150):
            data_type = play.choice(list(DataType))
            settings = Settings()
            for name in ("decimal", "thousands", "currency", "am", "short_date", "time_separator"):
                try:
                    setattr(settings, name, text())
                except ValueError:
                    pass
            ztfield.check(text(), data_type, settings)
            field = Field(play.choice([text(), "MM/DD/YYYY", "#,##0.00", "[date]", "[time]", "[currency(8)]", "HH:MM AM/PM"]), data_type,
                          settings=settings, modern=play.random() < 0.7, range=play.choice([None, text() + "~" + text()]),
                          codes=play.choice([None, None, {text(): text(), text(): None}]), on_event=lambda event: play.random() < 0.5)
            acts = [lambda: field.type(text()), lambda: field.press(play.randrange(256), play.random() < 0.3, play.random() < 0.3),
                    lambda: field.paste(text()), lambda: field.cut(), lambda: field.select(play.randrange(-3, 20), play.randrange(-3, 20)),
                    lambda: field.step(play.random() < 0.5), lambda: field.undo(), lambda: field.redo(), lambda: field.leave(),
                    lambda: field.try_set(text()), lambda: field.set_data(text()), lambda: setattr(field, "text", text()),
                    lambda: field.click(play.randrange(20)), lambda: field.read_text(text()), lambda: field.read_data(),
                    lambda: field.character(chr(play.randrange(1, 0x10ffff))), lambda: field.wheel(play.randrange(-3, 4)),
                    lambda: field.replace_selection(text()), lambda: field.let_time_pass(play.randrange(2000)), lambda: field.clear()]
            for _ in range(60):
                play.choice(acts)()
                shown = field.text
                self.assertLessEqual(max(field.selection), len(shown))
                self.assertIn(field.state, State)
                self.assertEqual(len(field.positions), ztfield.library.ZTF_CountPositions(field.handle))
                field.data


class TheLibrary(unittest.TestCase):
    def test_is_looked_for_where_it_is_said_to_be(self):
        before = os.environ.get("ZTFIELD_LIBRARY")
        try:
            os.environ["ZTFIELD_LIBRARY"] = "/nowhere/libztfield.so"
            self.assertEqual(list(ztfield._candidates()), ["/nowhere/libztfield.so"])
            with self.assertRaises(OSError):
                ztfield._Library().ZTF_Version()
        finally:
            if before is None:
                del os.environ["ZTFIELD_LIBRARY"]
            else:
                os.environ["ZTFIELD_LIBRARY"] = before
        with self.assertRaises(AttributeError):
            ztfield.library.ZTF_Nothing


if __name__ == "__main__":
    unittest.main()
