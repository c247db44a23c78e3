"""ztedit.py - masked edit controls for Python on Windows, by ctypes and nothing else.

    heap = Heap()                                              # one per form
    due = Edit.create(heap, parent_hwnd, DT_DATE, "MM/DD/YYYY", place=(20, 20, 120, 24))
    due.value = datetime.date(2026, 11, 21)
    if due.state == ZTS_COMPLETE:
        store(due.value)

`dll` has the functions of ztedit.h, ztshared.h and ztdecimal.h under their own names (dll.ZTE_GetState(hwnd)); their contracts stand in
the headers. The three DLLs, of the interpreter's own width, are looked for where load() says, or beside this file.
"""
import ctypes
import datetime
import decimal
import os
from ctypes import (POINTER, Structure, c_char_p, c_double, c_int8, c_int16, c_int32, c_uint8, c_uint16, c_uint32, c_uint64,
                    c_void_p)

ZTEDIT_CLASS = "ZTEDIT050"

ZTEDIT_VERSION_MAJOR = 0
ZTEDIT_VERSION_MINOR = 5
ZTEDIT_VERSION_PATCH = 0
ZTEDIT_VERSION = 0x000500

# Data types
DT_STRING = 1
DT_NUMBER = 2
DT_DATE = 3
DT_TIME = 4
DT_DATETIME = 5
DT_DECIMAL = 6

DATETIME_NO_DATE = -32767
DATETIME_NO_TIME = -1
DATETIME_KIND_BOTH = 1
DATETIME_KIND_DATE = 2
DATETIME_KIND_TIME = 3

SHARED_FORMAT_SIZE = 256

# FormatResult.formatFlags
FORMAT_DONE = 0x0001
FORMAT_HAS_LITERALS = 0x4000
FORMAT_LITERAL_AFTER = 0x8000

SPINSTYLE_PICKLIST = 0x10000000
SPINSTYLE_CODETABLE = 0x08000000

# EditInitParams.options
ZTEO_AUTOSKIP = 0x1
ZTEO_SPIN = 0x2
ZTEO_CODE_PICK = 0x4
ZTEO_CODE_DISPLAY = 0x8
ZTEO_MODERN = 0x10

# ZTE_GetState
ZTS_EMPTY = 0
ZTS_INCOMPLETE = 1
ZTS_INVALID = 2
ZTS_OUT_OF_RANGE = 3
ZTS_COMPLETE = 4

# Why something was refused
ZTR_WRONG_KIND = 1
ZTR_OUT_OF_BOUNDS = 2
ZTR_FULL = 3
ZTR_READ_ONLY = 4
ZTR_DOES_NOT_FIT = 5
ZTR_IN_DOUBT = 6
ZTR_DOES_NOT_EXIST = 7
ZTR_NO_SUCH_ENTRY = 8
ZTR_END_OF_RANGE = 9
ZTR_NOT_IN_CODE_PAGE = 10

# ZTE_GetLastProblem
ZTP_NONE = 0
ZTP_NO_PARAMETERS = 1
ZTP_NO_HEAP = 2
ZTP_FOREIGN_HEAP = 3
ZTP_NOT_SUBCLASSED = 4
ZTP_WIDE_TEXTS = 5
ZTP_DATA_TYPE = 6
ZTP_MASK = 7

# ZTE_CheckMask
ZTM_FITS = 0
ZTM_DATA_TYPE = 1
ZTM_EMPTY = 2
ZTM_TOO_LONG = 3
ZTM_ESCAPE = 4
ZTM_KEYWORD = 5
ZTM_OUT_OF_PLACE = 6
ZTM_TWICE = 7
ZTM_FIELD_LENGTH = 8
ZTM_EXCLUDED = 9
ZTM_FIELD_MISSING = 10
ZTM_NO_DIGIT = 11

# WM_COMMAND
ZTN_AUTOSKIP = 0x0903
# WM_NOTIFY
ZTN_REJECTED = 0x0904
ZTN_STATECHANGED = 0x0905

_POINTER = c_void_p
_HWND = c_void_p
_HEAP = c_void_p
_LIST = c_void_p
_CALLBACK = getattr(ctypes, "WINFUNCTYPE", ctypes.CFUNCTYPE)  # elsewhere than on Windows this file is read only
_ENCODING = "mbcs" if os.name == "nt" else "ascii"


class DateTimeValue(Structure):
    _fields_ = [("microsecond", c_uint32), ("year", c_int16), ("month", c_int8), ("day", c_int8), ("hour", c_int8),
                ("minute", c_int8), ("second", c_int8), ("spare", c_int8)]


class DecimalValue(Structure):
    _fields_ = [("reserved", c_uint16), ("scale", c_uint8), ("sign", c_uint8), ("hi32", c_uint32), ("lo64", c_uint64)]


class EditInitParams(Structure):
    _fields_ = [("heap", _HEAP), ("heapFlags", c_uint32), ("reserved", c_uint32), ("maskText", c_char_p), ("dataType", c_int32),
                ("initialData", c_char_p), ("spinRangeText", c_char_p), ("spinIncrement", c_uint32), ("codeTableText", c_char_p),
                ("options", c_uint32)]


class FormatResult(Structure):
    _fields_ = [("text", _POINTER), ("formatFlags", c_uint32), ("firstFieldPos", c_int32)]


class NMHDR(Structure):
    _fields_ = [("hwndFrom", _HWND), ("idFrom", c_void_p), ("code", c_uint32)]


class ZTNotifyRejected(Structure):
    _fields_ = [("hdr", NMHDR), ("reason", c_int32), ("position", c_int32), ("character", c_int32)]


class ZTNotifyState(Structure):
    _fields_ = [("hdr", NMHDR), ("was", c_int32), ("is_", c_int32)]


class SharedHeapWatcher(Structure):
    pass


SharedHeapEnding = _CALLBACK(None, POINTER(SharedHeapWatcher))
SharedHeapWatcher._fields_ = [("ending", SharedHeapEnding), ("previous", POINTER(SharedHeapWatcher)),
                              ("next", POINTER(SharedHeapWatcher))]

# library: {function: (result, parameter...)}
_FUNCTIONS = {
    "ztedit050": {
        "ZTE_SuperEditWndProc": (_POINTER, _HWND, c_uint32, _POINTER, _POINTER),
        "ZTE_Initialize": (c_uint32,),
        "ZTE_CheckMask": (c_int32, c_char_p, c_int32, POINTER(c_int32)),
        "ZTE_GetLastProblem": (c_int32, _HWND),
        "ZTE_Init": (c_int32, _HWND, POINTER(EditInitParams)),
        "ZTE_SetAutoskip": (None, _HWND, c_uint32),
        "ZTE_UtilSetFormatRect": (None, _HWND),
        "ZTE_FmtSetMask": (c_int32, _HWND, c_char_p, c_int32),
        "ZTE_FmtSetData": (c_int32, _HWND, _POINTER),
        "ZTE_FmtSetDataString": (c_int32, _HWND, c_char_p),
        "ZTE_FmtGetData": (_POINTER, _HWND),
        "ZTE_FmtGetDataType": (c_uint16, _HWND),
        "ZTE_FmtFormatData": (POINTER(FormatResult), _HWND, _POINTER),
        "ZTE_FmtUnformatData": (_POINTER, _HWND, c_char_p),
        "ZTE_SetModern": (c_int32, _HWND, c_int32),
        "ZTE_GetState": (c_int32, _HWND),
        "ZTE_TrySetDataString": (c_int32, _HWND, c_char_p),
        "ZTE_GetDataString": (_POINTER, _HWND),
        "ZTE_SetSpin": (None, _HWND, c_uint32, c_char_p, c_char_p, c_uint32),
        "ZTE_CreateSpin": (None, _HWND),
        "ZTE_DestroySpin": (None, _HWND),
        "ZTE_PaintSpin": (None, _HWND, _POINTER, _POINTER),
        "ZTE_PaintSpinOnce": (c_int16, _POINTER, _POINTER),
        "ZTE_GetSpinWidth": (c_int16, _HWND, _POINTER),
        "ZTE_SetSpinBkColor": (None, _HWND, c_uint32),
        "ZTE_SpinDateRange": (c_int16, _HWND, POINTER(DateTimeValue), c_char_p),
        "ZTE_SpinRangeCompare": (c_int16, _HWND, _POINTER, _POINTER),
        "ZTE_SpinWndProc": (_POINTER, _HWND, c_uint32, _POINTER, _POINTER),
        "WEP": (c_int32, c_int32),
    },
    "ztshared": {
        "SharedHeapCreate": (_HEAP,),
        "SharedHeapDestroy": (None, _HEAP),
        "SharedHeapIsAlive": (c_int32, _HEAP),
        "SharedHeapWatch": (None, _HEAP, POINTER(SharedHeapWatcher)),
        "SharedHeapUnwatch": (None, _HEAP, POINTER(SharedHeapWatcher)),
        "SharedHeapBlockCount": (c_uint32, _HEAP),
        "SharedHeapAlloc": (_POINTER, _HEAP, c_uint32, c_uint32),
        "SharedHeapRealloc": (_POINTER, _HEAP, _POINTER, c_uint32, c_uint32),
        "SharedHeapFree": (None, _HEAP, _POINTER),
        "SharedHeapStrDup": (_POINTER, _HEAP, c_char_p, c_uint32),
        "SharedStrCopy": (_POINTER, _POINTER, c_char_p),
        "SharedCharConvertOne": (c_int32, c_int32),
        "SharedCharConvertTwo": (c_int32, c_int32),
        "SharedIsNumber": (c_int32, c_char_p),
        "SharedListCreate": (_LIST, _HEAP, c_uint32),
        "SharedListDestroy": (None, _LIST),
        "SharedListAppend": (None, _LIST, _POINTER),
        "SharedListFirst": (_POINTER, _LIST),
        "SharedListLast": (_POINTER, _LIST),
        "SharedListNext": (_POINTER, _LIST),
        "SharedListPrev": (_POINTER, _LIST),
        "SharedListCurrent": (_POINTER, _LIST),
        "SharedListTell": (c_int32, _LIST),
        "SharedListSeek": (None, _LIST, c_int32),
        "SharedParseDateTime": (c_int32, POINTER(DateTimeValue), c_char_p, c_int32),
        "SharedDateTimeNow": (None, POINTER(DateTimeValue)),
        "SharedCompileFormat": (c_int32, _POINTER, c_char_p, c_int32),
        "SharedFormatDouble": (c_int32, _POINTER, c_int32, _POINTER, c_double, c_uint32),
        "SharedFormatDecimal": (c_int32, _POINTER, c_int32, _POINTER, POINTER(DecimalValue), c_uint32),
        "SharedReadRegionalSettings": (None,),
    },
    "ztdecimal": {
        "DecFromString": (POINTER(DecimalValue), POINTER(DecimalValue), c_char_p, c_int32),
        "DecAdd": (POINTER(DecimalValue), POINTER(DecimalValue), POINTER(DecimalValue), POINTER(DecimalValue)),
        "DecSubtract": (POINTER(DecimalValue), POINTER(DecimalValue), POINTER(DecimalValue), POINTER(DecimalValue)),
        "DecDivide": (POINTER(DecimalValue), POINTER(DecimalValue), POINTER(DecimalValue), POINTER(DecimalValue)),
        "DecCompare": (c_int16, POINTER(DecimalValue), POINTER(DecimalValue)),
        "DecFromUnsigned": (POINTER(DecimalValue), POINTER(DecimalValue), c_uint32),
        "DecSetZero": (POINTER(DecimalValue), POINTER(DecimalValue)),
        "DecCopy": (POINTER(DecimalValue), POINTER(DecimalValue), POINTER(DecimalValue)),
    },
}


class _Libraries:
    """The functions of the three DLLs as attributes, loaded when the first one is asked for."""

    def __init__(self):
        self._folder = os.path.dirname(os.path.abspath(__file__))
        self._loaded = None

    def _load(self):
        if self._loaded is None:
            # The control's DLL finds its companions only once they are loaded.
            names = ("ztdecimal", "ztshared", "ztedit050")
            self._loaded = {name: ctypes.WinDLL(os.path.join(self._folder, name + ".dll")) for name in names}
        return self._loaded

    def __getattr__(self, name):
        for library, functions in _FUNCTIONS.items():
            if name in functions:
                function = getattr(self._load()[library], name)
                function.restype, *function.argtypes = functions[name]
                setattr(self, name, function)
                return function
        raise AttributeError(name)


dll = _Libraries()


def load(folder):
    """Says where the three DLLs stand; before anything else."""
    dll._folder = os.path.abspath(folder)


class Refused(ValueError):
    """A value that the control cannot show; reason is the ZTR_ value. The control shows what it showed before."""

    def __init__(self, reason):
        super().__init__("the control refuses the value, reason %d" % reason)
        self.reason = reason


class Heap:
    """The heap of a form's controls. A control without its heap is a plain edit from then on."""

    def __init__(self):
        self.handle = dll.SharedHeapCreate()

    def close(self):
        handle, self.handle = self.handle, None
        dll.SharedHeapDestroy(handle)

    def __enter__(self):
        return self

    def __exit__(self, *error):
        self.close()


def canonical(value, data_type):
    """The canonical text of a date, time, datetime, number, Decimal or str; "" for None."""
    if value is None:
        return ""
    if isinstance(value, datetime.datetime):
        value = value.replace(tzinfo=None)
        return value.date().isoformat() if data_type == DT_DATE else "%s %s" % (value.date().isoformat(), _time_text(value.time()))
    if isinstance(value, datetime.date):
        return value.isoformat()
    if isinstance(value, datetime.time):
        return _time_text(value)
    if isinstance(value, float):
        value = decimal.Decimal(repr(value))
    if isinstance(value, decimal.Decimal):
        return format(value, "f")
    return str(value)


def _time_text(time):
    text = time.strftime("%H:%M:%S")
    return text + ":%06d" % time.microsecond if time.microsecond else text


def _time(text):
    hour, minute, second, fraction = (text.replace(".", ":").split(":") + ["0", "0"])[:4]
    return datetime.time(int(hour), int(minute), int(second), int(fraction.ljust(6, "0")))


def _date_time(text):
    date, _, time = text.partition(" ")
    return datetime.datetime.combine(datetime.date.fromisoformat(date), _time(time) if time else datetime.time())


_VALUES = {DT_STRING: str, DT_NUMBER: float, DT_DECIMAL: decimal.Decimal, DT_DATE: datetime.date.fromisoformat, DT_TIME: _time,
           DT_DATETIME: _date_time}


class Edit:
    """A control: a name of its window, which ends with the window's parent."""

    def __init__(self, heap, hwnd):
        self.heap = heap
        self.hwnd = hwnd

    @classmethod
    def create(cls, heap, parent, data_type, mask="", place=(0, 0, 100, 24), control_id=0, options=ZTEO_MODERN, **setup):
        """A new child window; setup as in configure()."""
        params = cls._params(heap, data_type, mask, options, **setup)
        dll.ZTE_Initialize()  # the class is there from then on
        make = ctypes.WinDLL("user32").CreateWindowExA  # of our own: what it takes is set below
        make.restype = _HWND
        make.argtypes = [c_uint32, c_char_p, c_char_p, c_uint32] + [c_int32] * 4 + [_HWND, _POINTER, _POINTER, POINTER(EditInitParams)]
        child_visible_tabstop_autohscroll, client_edge = 0x50010080, 0x200
        hwnd = make(client_edge, ZTEDIT_CLASS.encode(), b"", child_visible_tabstop_autohscroll, *place, parent, control_id, None,
                    ctypes.byref(params))
        if not hwnd:
            raise ctypes.WinError()
        return cls(heap, hwnd)

    def configure(self, data_type, mask="", options=ZTEO_MODERN, **setup):
        """Makes a control of a window of the class ZTEDIT050, or configures one anew. setup: initial, spin_range, spin_increment, codes."""
        params = self._params(self.heap, data_type, mask, options, **setup)
        if not dll.ZTE_Init(self.hwnd, ctypes.byref(params)):
            raise ValueError("the window cannot be configured, problem %d" % self.problem)

    @staticmethod
    def _params(heap, data_type, mask, options, initial=None, spin_range=None, spin_increment=1, codes=None):
        def bytes_of(text):
            return None if text is None else text.encode(_ENCODING)

        return EditInitParams(heap.handle, 0, 0, bytes_of(mask), data_type, bytes_of(initial), bytes_of(spin_range), spin_increment,
                              bytes_of(codes), options)

    @property
    def data_type(self):
        return dll.ZTE_FmtGetDataType(self.hwnd)

    @property
    def state(self):
        return dll.ZTE_GetState(self.hwnd)

    @property
    def problem(self):
        """Why it is no control, or not the one that was asked for (a mask that does not fit): a ZTP_ value."""
        return dll.ZTE_GetLastProblem(self.hwnd)

    @property
    def text(self):
        """The value as canonical text: "" for the empty one, None for an incomplete or invalid one."""
        block = dll.ZTE_GetDataString(self.hwnd)
        if not block:
            return None
        try:
            return ctypes.string_at(block).decode(_ENCODING)
        finally:
            dll.SharedHeapFree(self.heap.handle, block)

    @property
    def value(self):
        """The value as date, time, datetime, float, Decimal or str, by the control's type; None where there is none."""
        text, data_type = self.text, self.data_type
        if text is None or (text == "" and data_type != DT_STRING):
            return None
        return _VALUES[data_type](text)

    @value.setter
    def value(self, value):
        reason = self.try_set(value)
        if reason:
            raise Refused(reason)

    def try_set(self, value):
        """Shows a value, a canonical text, or one that a user might paste: 0, or the ZTR_ reason, and then nothing has changed."""
        text = canonical(value, self.data_type)
        try:
            return dll.ZTE_TrySetDataString(self.hwnd, text.encode(_ENCODING))
        except UnicodeEncodeError:
            return ZTR_NOT_IN_CODE_PAGE

    def set_mask(self, mask, data_type):
        """False when the mask does not fit the type, and the type's default stands in."""
        return bool(dll.ZTE_FmtSetMask(self.hwnd, mask.encode(_ENCODING), data_type))


def check_mask(mask, data_type):
    """Without a control: (ZTM_FITS, -1), or what is wrong with a mask and where in it."""
    position = c_int32(-1)
    fault = dll.ZTE_CheckMask(mask.encode(_ENCODING), data_type, ctypes.byref(position))
    return fault, position.value


def rejected(l_param):
    """In the parent's WM_NOTIFY: the ZTNotifyRejected behind lParam, else None."""
    return _notice(l_param, ZTN_REJECTED, ZTNotifyRejected)


def state_changed(l_param):
    """In the parent's WM_NOTIFY: the ZTNotifyState behind lParam, else None."""
    return _notice(l_param, ZTN_STATECHANGED, ZTNotifyState)


def _notice(l_param, code, record):
    header = NMHDR.from_address(l_param)
    from_an_edit = header.code == code and dll.ZTE_FmtGetDataType(header.hwndFrom)
    return record.from_address(l_param) if from_an_edit else None
