#!/usr/bin/env python3
"""The Python binding by itself: values as canonical texts and back, and what its class makes of the library's answers. In place of the
DLLs stands a control that remembers its text."""
import datetime
import decimal
import ctypes
import pathlib
import sys
import types
import unittest

sys.dont_write_bytecode = True
ROOT = pathlib.Path(__file__).resolve().parents[2]
sys.path[:0] = [str(ROOT / "bindings/python")]
import ztedit  # noqa: E402

HWND = 77
HEAP = 5


class RememberingLibrary:
    """One control in one heap: TrySetDataString takes what has no "x", and what is taken is given back."""

    def __init__(self, data_type):
        self.data_type = data_type
        self.text = b""
        self.blocks = []
        self.params = None

    def SharedHeapCreate(self):
        return HEAP

    def SharedHeapDestroy(self, heap):
        assert heap == HEAP and not self.blocks

    def SharedHeapFree(self, heap, block):
        assert heap == HEAP
        self.blocks.remove(next(each for each in self.blocks if ctypes.addressof(each) == block))

    def ZTE_FmtGetDataType(self, hwnd):
        return self.data_type if hwnd == HWND else 0

    def ZTE_TrySetDataString(self, hwnd, text):
        if b"x" in text:
            return ztedit.ZTR_DOES_NOT_FIT
        self.text = text
        return 0

    def ZTE_GetDataString(self, hwnd):
        if self.text is None:
            return None
        self.blocks.append(ctypes.create_string_buffer(self.text))
        return ctypes.addressof(self.blocks[-1])

    def ZTE_Init(self, hwnd, params):
        self.params = params._obj
        return hwnd == HWND

    def ZTE_GetLastProblem(self, hwnd):
        return ztedit.ZTP_NONE if hwnd == HWND else ztedit.ZTP_NOT_SUBCLASSED

    def ZTE_CheckMask(self, mask, data_type, position):
        position._obj.value = mask.find(b"x")
        return ztedit.ZTM_OUT_OF_PLACE if b"x" in mask and data_type == self.data_type else ztedit.ZTM_FITS


class Values(unittest.TestCase):
    ROWS = (
        (ztedit.DT_DATE, datetime.date(2026, 2, 3), "2026-02-03"),
        (ztedit.DT_TIME, datetime.time(0), "00:00:00"),
        (ztedit.DT_TIME, datetime.time(14, 7, 9, 250), "14:07:09:000250"),
        (ztedit.DT_DATETIME, datetime.datetime(1995, 7, 4, 14, 7), "1995-07-04 14:07:00"),
        (ztedit.DT_NUMBER, -1234.5, "-1234.5"),
        (ztedit.DT_NUMBER, 0.1 + 0.2, "0.30000000000000004"),
        (ztedit.DT_NUMBER, 1.5e-7, "0.00000015"),
        (ztedit.DT_NUMBER, 1.5e21, "1500000000000000000000"),
        (ztedit.DT_DECIMAL, decimal.Decimal("1234567.8901"), "1234567.8901"),
        (ztedit.DT_DECIMAL, decimal.Decimal("1E+3"), "1000"),
        (ztedit.DT_STRING, "ab", "ab"),
        (ztedit.DT_STRING, "", ""),
    )

    def setUp(self):
        self.real = ztedit.dll

    def tearDown(self):
        ztedit.dll = self.real

    def edit(self, data_type):
        ztedit.dll = RememberingLibrary(data_type)
        return ztedit.Edit(ztedit.Heap(), HWND)

    def test_go_as_canonical_text_and_come_back(self):
        for data_type, value, text in self.ROWS:
            with self.subTest(value=value):
                edit = self.edit(data_type)
                edit.value = value
                self.assertEqual(ztedit.dll.text, text.encode())
                self.assertEqual(edit.value, value)
                self.assertIs(type(edit.value), type(value))
                self.assertEqual(ztedit.dll.blocks, [], "a result was not given back")

    def test_none_is_the_empty_value(self):
        edit = self.edit(ztedit.DT_DATE)
        edit.value = datetime.date(2026, 2, 3)
        edit.value = None
        self.assertEqual(ztedit.dll.text, b"")
        self.assertIsNone(edit.value)

    def test_no_value_while_it_is_incomplete(self):
        edit = self.edit(ztedit.DT_DATE)
        ztedit.dll.text = None
        self.assertIsNone(edit.text)
        self.assertIsNone(edit.value)

    def test_a_date_of_a_moment(self):
        edit = self.edit(ztedit.DT_DATE)
        edit.value = datetime.datetime(1995, 7, 4, 14, 7)
        self.assertEqual(ztedit.dll.text, b"1995-07-04")

    def test_refused_with_a_reason(self):
        edit = self.edit(ztedit.DT_STRING)
        self.assertEqual(edit.try_set("x"), ztedit.ZTR_DOES_NOT_FIT)
        self.assertEqual(edit.try_set("\u0416"), ztedit.ZTR_NOT_IN_CODE_PAGE)
        with self.assertRaises(ztedit.Refused) as refused:
            edit.value = "x"
        self.assertEqual(refused.exception.reason, ztedit.ZTR_DOES_NOT_FIT)

    def test_configured_as_said(self):
        edit = self.edit(ztedit.DT_NUMBER)
        edit.configure(ztedit.DT_NUMBER, "##0", options=ztedit.ZTEO_SPIN, initial="5", spin_range="1~9", spin_increment=2)
        params = ztedit.dll.params
        given = (params.heap, params.maskText, params.dataType, params.initialData, params.spinRangeText, params.spinIncrement,
                 params.codeTableText, params.options)
        self.assertEqual(given, (HEAP, b"##0", ztedit.DT_NUMBER, b"5", b"1~9", 2, None, ztedit.ZTEO_SPIN))

    def test_a_window_that_cannot_be_configured(self):
        edit = self.edit(ztedit.DT_NUMBER)
        self.assertEqual(edit.problem, ztedit.ZTP_NONE)
        edit.hwnd = HWND + 1
        self.assertEqual(edit.problem, ztedit.ZTP_NOT_SUBCLASSED)
        with self.assertRaisesRegex(ValueError, str(ztedit.ZTP_NOT_SUBCLASSED)):
            edit.configure(ztedit.DT_NUMBER)

    def test_masks_without_a_control(self):
        self.edit(ztedit.DT_DATE)
        self.assertEqual(ztedit.check_mask("MM/x", ztedit.DT_DATE), (ztedit.ZTM_OUT_OF_PLACE, 3))
        self.assertEqual(ztedit.check_mask("MM/DD/YY", ztedit.DT_DATE), (ztedit.ZTM_FITS, -1))

    def test_notifications_of_masked_edits_only(self):
        self.edit(ztedit.DT_DATE)
        told = ztedit.ZTNotifyRejected(ztedit.NMHDR(HWND, 11, ztedit.ZTN_REJECTED), ztedit.ZTR_FULL, 3, ord("x"))
        address = ctypes.addressof(told)
        self.assertEqual(ztedit.rejected(address).reason, ztedit.ZTR_FULL)
        self.assertIsNone(ztedit.state_changed(address))
        told.hdr.hwndFrom = HWND + 1
        self.assertIsNone(ztedit.rejected(address))
        state = ztedit.ZTNotifyState(ztedit.NMHDR(HWND, 11, ztedit.ZTN_STATECHANGED), ztedit.ZTS_EMPTY, ztedit.ZTS_COMPLETE)
        self.assertEqual(ztedit.state_changed(ctypes.addressof(state)).is_, ztedit.ZTS_COMPLETE)


class Libraries(unittest.TestCase):
    def test_know_their_functions_only(self):
        with self.assertRaises(AttributeError):
            ztedit.dll.ZTE_NoSuchFunction

    def test_load_each_function_with_its_types(self):
        libraries = ztedit._Libraries()
        libraries._loaded = {name: types.SimpleNamespace(**{each: types.SimpleNamespace() for each in functions})
                             for name, functions in ztedit._FUNCTIONS.items()}
        function = libraries.ZTE_FmtSetMask
        self.assertEqual((function.restype, function.argtypes), (ctypes.c_int32, [ctypes.c_void_p, ctypes.c_char_p, ctypes.c_int32]))


if __name__ == "__main__":
    unittest.main()
