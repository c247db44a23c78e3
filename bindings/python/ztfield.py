"""ztfield.py - masked fields without a window for Python, by ctypes and nothing else.

    >>> import datetime
    >>> due = Field("MM/DD/YYYY", "date")
    >>> due.type("7/4/2026")
    >>> due.text, due.value, due.state.name
    ('07/04/2026', datetime.date(2026, 7, 4), 'COMPLETE')
    >>> due.value = datetime.date(2026, 12, 24)
    >>> due.text
    '12/24/2026'
    >>> format(1234.5, "#,##0.00", "number")
    '1,234.50'
    >>> parse("4 July 2026", "MM/DD/YYYY", "date")
    datetime.date(2026, 7, 4)
    >>> check("MM/DD", "date")
    Verdict(fault=<MaskFault.FIELD_MISSING: 10>, position=5)

A field does in memory what the masked edit control does with a key, a paste or a value; the program draws it. Positions count the
characters of a str. Types are members of DataType or their names in small letters. `library` has the functions of ztfield.h under
their own names; their contracts stand in the header.

A field is used by one thread at a time; what hears its events may ask it, and not change it. The library is looked for where
ZTFIELD_LIBRARY says, beside this file, in the folder lib of the package that this file is part of, and where the system keeps its own.
"""
import ctypes
import ctypes.util
import dataclasses
import datetime
import decimal
import enum
import operator
import os
import re
import weakref
from ctypes import POINTER, Structure, c_char_p, c_int32, c_uint32, c_void_p

VERSION = 0x000500


# ---- what the headers name

class DataType(enum.IntEnum):
    STRING = 1
    NUMBER = 2
    DATE = 3
    TIME = 4
    DATETIME = 5
    DECIMAL = 6


class Option(enum.IntFlag):
    AUTOSKIP = 0x1
    SPIN = 0x2
    CODE_PICK = 0x4
    CODE_DISPLAY = 0x8
    MODERN = 0x10


class State(enum.IntEnum):
    """What can be said of the value shown, judged in this order."""
    EMPTY = 0
    INCOMPLETE = 1
    INVALID = 2
    OUT_OF_RANGE = 3
    COMPLETE = 4


class Reason(enum.IntEnum):
    """Why something was refused."""
    NONE = 0
    WRONG_KIND = 1
    OUT_OF_BOUNDS = 2
    FULL = 3
    READ_ONLY = 4
    DOES_NOT_FIT = 5
    IN_DOUBT = 6
    DOES_NOT_EXIST = 7
    NO_SUCH_ENTRY = 8
    END_OF_RANGE = 9
    NOT_IN_CODE_PAGE = 10


class MaskFault(enum.IntEnum):
    """Why a mask does not fit its type."""
    FITS = 0
    DATA_TYPE = 1
    EMPTY = 2
    TOO_LONG = 3
    ESCAPE = 4
    KEYWORD = 5
    OUT_OF_PLACE = 6
    TWICE = 7
    FIELD_LENGTH = 8
    EXCLUDED = 9
    FIELD_MISSING = 10
    NO_DIGIT = 11


class SpinStyle(enum.IntFlag):
    CODETABLE = 0x08000000
    PICKLIST = 0x10000000


class Key(enum.IntEnum):
    BACKSPACE = 0x08
    PAGE_UP = 0x21
    PAGE_DOWN = 0x22
    END = 0x23
    HOME = 0x24
    LEFT = 0x25
    UP = 0x26
    RIGHT = 0x27
    DOWN = 0x28
    INSERT = 0x2D
    DELETE = 0x2E
    KEYPAD_POINT = 0x6E


class Held(enum.IntFlag):
    SHIFT = 1
    CONTROL = 2


class Setting(enum.IntEnum):
    DECIMAL = 1
    THOUSANDS = 2
    CURRENCY = 3
    CURRENCY_POSITION = 4
    CURRENCY_DIGITS = 5
    AM = 6
    PM = 7
    SHORT_DATE = 8
    TIME_SEPARATOR = 9
    MONTHS = 10


class EventKind(enum.IntEnum):
    CHANGED = 1
    BEEP = 2
    FULL = 3
    STEPPED = 4
    REJECTED = 5
    STATE = 6
    VALUE = 7


class PositionKind(enum.IntEnum):
    LITERAL = 0
    DIGIT = 1
    NUMBER_DIGIT = 2
    LETTER = 3
    ANY = 4
    UPPER = 5
    LOWER = 6
    YEAR = 7
    MONTH = 8
    DAY = 9
    DAY_OF_YEAR = 10
    HOUR = 11
    MINUTE = 12
    SECOND = 13
    FRACTION = 14
    HALF_OF_DAY = 15


_FIELD = c_void_p
_SETTINGS = c_void_p
_BUFFER = c_void_p
_NUMBER_OUT = POINTER(c_int32)


class ZTFieldEvent(Structure):
    _fields_ = [("kind", c_int32), ("reason", c_int32), ("position", c_int32), ("character", c_uint32), ("was", c_int32), ("is_", c_int32)]


class ZTFieldPosition(Structure):
    _fields_ = [("kind", c_int32), ("character", c_uint32), ("escaped", c_int32), ("part", c_int32)]


# Whoever calls the library keeps the interpreter to itself meanwhile: calls take microseconds, and a field is safe from a second thread.
ZTFieldListener = ctypes.PYFUNCTYPE(c_int32, c_void_p, _FIELD, POINTER(ZTFieldEvent))


class ZTFieldSetup(Structure):
    _fields_ = [("mask", c_char_p), ("dataType", c_int32), ("options", c_uint32), ("data", c_char_p), ("range", c_char_p),
                ("increment", c_uint32), ("codeTable", c_char_p), ("settings", _SETTINGS), ("listener", ZTFieldListener),
                ("context", c_void_p)]


# function: (result, parameter...)
_FUNCTIONS = {
    "ZTF_Version": (c_uint32,),
    "ZTF_CreateSettings": (_SETTINGS,),
    "ZTF_DestroySettings": (None, _SETTINGS),
    "ZTF_SetSetting": (c_int32, _SETTINGS, c_int32, c_char_p),
    "ZTF_GetSetting": (c_int32, _SETTINGS, c_int32, _BUFFER, c_int32),
    "ZTF_Create": (_FIELD, POINTER(ZTFieldSetup)),
    "ZTF_Destroy": (None, _FIELD),
    "ZTF_UseSettings": (None, _FIELD, _SETTINGS),
    "ZTF_SetMask": (c_int32, _FIELD, c_char_p, c_int32),
    "ZTF_GetMask": (c_int32, _FIELD, _BUFFER, c_int32),
    "ZTF_GetDataType": (c_int32, _FIELD),
    "ZTF_SetModern": (c_int32, _FIELD, c_int32),
    "ZTF_SetAutoskip": (None, _FIELD, c_int32),
    "ZTF_SetReadOnly": (None, _FIELD, c_int32),
    "ZTF_SetSpin": (None, _FIELD, c_uint32, c_char_p, c_char_p, c_uint32),
    "ZTF_ShowSpin": (None, _FIELD, c_int32),
    "ZTF_SetDataString": (None, _FIELD, c_char_p),
    "ZTF_TrySetDataString": (c_int32, _FIELD, c_char_p),
    "ZTF_GetDataString": (c_int32, _FIELD, _BUFFER, c_int32),
    "ZTF_ReadData": (c_int32, _FIELD, _BUFFER, c_int32),
    "ZTF_ReadText": (c_int32, _FIELD, c_char_p, _BUFFER, c_int32),
    "ZTF_GetState": (c_int32, _FIELD),
    "ZTF_Press": (None, _FIELD, c_int32, c_int32),
    "ZTF_KeyDown": (None, _FIELD, c_int32, c_int32),
    "ZTF_KeyUp": (None, _FIELD, c_int32, c_int32),
    "ZTF_Character": (None, _FIELD, c_uint32),
    "ZTF_Type": (None, _FIELD, c_char_p),
    "ZTF_SetClipboard": (None, _FIELD, c_char_p),
    "ZTF_GetClipboard": (c_int32, _FIELD, _BUFFER, c_int32),
    "ZTF_Paste": (None, _FIELD),
    "ZTF_Cut": (None, _FIELD),
    "ZTF_Copy": (None, _FIELD),
    "ZTF_Clear": (None, _FIELD),
    "ZTF_Undo": (None, _FIELD),
    "ZTF_Redo": (None, _FIELD),
    "ZTF_CanUndo": (c_int32, _FIELD),
    "ZTF_CanRedo": (c_int32, _FIELD),
    "ZTF_Click": (None, _FIELD, c_int32, c_int32),
    "ZTF_DoubleClick": (None, _FIELD, c_int32),
    "ZTF_Drag": (None, _FIELD, c_int32, c_int32),
    "ZTF_Wheel": (None, _FIELD, c_int32),
    "ZTF_Step": (None, _FIELD, c_int32),
    "ZTF_Leave": (None, _FIELD),
    "ZTF_LetTimePass": (None, _FIELD, c_uint32),
    "ZTF_GetText": (c_int32, _FIELD, _BUFFER, c_int32),
    "ZTF_SetText": (None, _FIELD, c_char_p),
    "ZTF_ReplaceSelection": (None, _FIELD, c_char_p),
    "ZTF_GetSelection": (None, _FIELD, _NUMBER_OUT, _NUMBER_OUT),
    "ZTF_Select": (None, _FIELD, c_int32, c_int32),
    "ZTF_IsModified": (c_int32, _FIELD),
    "ZTF_SetModified": (None, _FIELD, c_int32),
    "ZTF_CountPositions": (c_int32, _FIELD),
    "ZTF_GetPosition": (c_int32, _FIELD, c_int32, POINTER(ZTFieldPosition)),
    "ZTF_CheckMask": (c_int32, _SETTINGS, c_char_p, c_int32, _NUMBER_OUT),
    "ZTF_CheckModernMask": (c_int32, _SETTINGS, c_char_p, c_int32, _NUMBER_OUT),
    "ZTF_Format": (c_int32, _SETTINGS, c_char_p, c_int32, c_char_p, _BUFFER, c_int32),
    "ZTF_Parse": (c_int32, _SETTINGS, c_char_p, c_int32, c_char_p, _BUFFER, c_int32, _NUMBER_OUT),
}


# ---- the library

def _candidates():
    named = os.environ.get("ZTFIELD_LIBRARY")
    if named:
        yield named
        return
    here = os.path.dirname(os.path.abspath(__file__))
    for folder in (here, os.path.join(here, "..", "..", "..", "lib")):
        for name in ("libztfield.so.0.5", "libztfield.so"):
            path = os.path.join(folder, name)
            if os.path.exists(path):
                yield path
    found = ctypes.util.find_library("ztfield")
    if found:
        yield found


class _Library:
    """The functions as attributes; loaded when the first one is asked for."""

    _loaded = None

    def load(self, path):
        loaded = ctypes.PyDLL(path)
        for name, (result, *parameters) in _FUNCTIONS.items():
            function = getattr(loaded, name)
            function.restype, function.argtypes = result, parameters
        version = loaded.ZTF_Version()
        if version >> 8 != VERSION >> 8:
            raise OSError("%s is version %d.%d, wanted is %d.%d" % (
                path, version >> 16, version >> 8 & 255, VERSION >> 16, VERSION >> 8 & 255))
        for name in _FUNCTIONS:
            setattr(self, name, getattr(loaded, name))
        self._loaded = loaded

    def __getattr__(self, name):
        if name not in _FUNCTIONS or self._loaded is not None:
            raise AttributeError(name)
        path = next(_candidates(), None)
        if path is None:
            raise OSError("there is no libztfield; ZTFIELD_LIBRARY may name it")
        self.load(path)
        return getattr(self, name)


library = _Library()


def load(path):
    """Says which file is the library; before anything else."""
    library.load(os.fspath(path))


# ---- texts, numbers, values

def _utf8(text):
    """What no UTF-8 can say stands for U+FFFD, as in the library."""
    if text is None:
        return None
    if "\0" in text:
        raise ValueError("a text with a null character")
    return re.sub("[\ud800-\udfff]", "\ufffd", text).encode()


def _number(value):
    """Beyond what a position can be counts as the last one."""
    return max(-2 ** 31, min(2 ** 31 - 1, operator.index(value)))


def _read(function, *arguments, behind=()):
    """The text that a function writes into a buffer; None where it gives -1."""
    size = 256
    while True:
        buffer = ctypes.create_string_buffer(size)
        length = function(*arguments, buffer, size, *behind)
        if length < size:
            return None if length < 0 else buffer.value.decode()
        size = length + 1


def _data_type(data_type):
    try:
        return DataType[data_type.upper()] if isinstance(data_type, str) else DataType(data_type)
    except (KeyError, ValueError):
        raise ValueError("there is no type %r" % (data_type,)) from None


def _time_text(time):
    text = time.strftime("%H:%M:%S")
    return text + ":%06d" % time.microsecond if time.microsecond else text


def _time(text):
    hour, minute, second, fraction = (text.replace(".", ":").split(":") + ["0", "0"])[:4]
    return datetime.time(int(hour), int(minute), int(second), int(fraction.ljust(6, "0")))


def _date_time(text):
    date, _, time = text.partition(" ")
    return datetime.datetime.combine(datetime.date.fromisoformat(date), _time(time) if time else datetime.time())


_VALUES = {DataType.STRING: str, DataType.NUMBER: float, DataType.DECIMAL: decimal.Decimal,
           DataType.DATE: datetime.date.fromisoformat, DataType.TIME: _time, DataType.DATETIME: _date_time}


def canonical(value, data_type):
    """The canonical text of a date, time, datetime, number, Decimal or str; "" for None.

    >>> canonical(datetime.time(9, 5), "time"), canonical(decimal.Decimal("1E+2"), "decimal")
    ('09:05:00', '100')
    """
    data_type = _data_type(data_type)
    if value is None:
        return ""
    if isinstance(value, datetime.datetime):
        parts = (value.date().isoformat(), _time_text(value.time()))
        return {DataType.DATE: parts[0], DataType.TIME: parts[1]}.get(data_type, " ".join(parts))
    if isinstance(value, datetime.date):
        return value.isoformat()
    if isinstance(value, datetime.time):
        return _time_text(value)
    if isinstance(value, float):
        value = decimal.Decimal(repr(value))
    if isinstance(value, decimal.Decimal):
        return value.__format__("f")
    return str(value)


def from_canonical(text, data_type):
    """The value of a canonical text: date, time, datetime, float, Decimal or str; None for none and, but for strings, for "".

    >>> from_canonical("13:30:00", "time"), from_canonical("", "date"), from_canonical("", "string")
    (datetime.time(13, 30), None, '')
    """
    data_type = _data_type(data_type)
    if text is None or (text == "" and data_type != DataType.STRING):
        return None
    return _VALUES[data_type](text)


class Refused(ValueError):
    """A value that cannot be shown or read; `reason` is the Reason."""

    def __init__(self, reason):
        self.reason = Reason(reason)
        super().__init__("refused: " + self.reason.name.lower().replace("_", " "))


# ---- settings

class _Owner:
    """Owns what the library has made, until close() or its own end."""

    _handle = None

    def __init__(self, handle, destroy):
        if not handle:
            raise MemoryError
        self._handle = handle
        self._end = weakref.finalize(self, destroy, handle)

    @property
    def handle(self):
        """For the functions of `library`."""
        if self._handle is None:
            raise ValueError("it is closed")
        return self._handle

    def close(self):
        """Gives its memory back; the second time does nothing."""
        if self._handle is not None:
            self._handle = None
            self._end()

    def __enter__(self):
        return self

    def __exit__(self, *error):
        self.close()


def _text_of(setting):
    return property(lambda self: self._get(setting), lambda self, value: self._set(setting, value))


def _digit_of(setting):
    return property(lambda self: int(self._get(setting)), lambda self, value: self._set(setting, str(operator.index(value))))


def _names_of(setting):
    return property(lambda self: self._get(setting).split("/"), lambda self, value: self._set(setting, "/".join(value)))


class Settings(_Owner):
    """Regional settings; what is left out is as in the United States.

    >>> german = Settings(decimal=",", thousands=".", currency="€", currency_position=1)
    >>> format(1234.5, "[currency(8)]", "decimal", german)
    '1.234,50€'
    >>> german.months = "Jan Feb Mär Apr Mai Jun Jul Aug Sep Okt Nov Dez".split()
    >>> format("2026-03-01", "DD. MMM YYYY", "date", german)
    '01. Mär 2026'

    The names are those of Setting in small letters; months are twelve texts. ValueError for a value that a setting cannot have.
    A field keeps the settings that it was made with: see Field.use_settings.
    """

    def __init__(self, **settings):
        super().__init__(library.ZTF_CreateSettings(), library.ZTF_DestroySettings)
        for name, value in settings.items():
            if name.upper() not in Setting.__members__:
                raise TypeError("there is no setting %r" % name)
            setattr(self, name, value)

    def _get(self, setting):
        return _read(library.ZTF_GetSetting, self.handle, setting)

    def _set(self, setting, text):
        if not library.ZTF_SetSetting(self.handle, setting, _utf8(text)):
            raise ValueError("%s cannot be %r" % (setting.name.lower(), text))

    decimal = _text_of(Setting.DECIMAL)
    thousands = _text_of(Setting.THOUSANDS)
    currency = _text_of(Setting.CURRENCY)
    currency_position = _digit_of(Setting.CURRENCY_POSITION)
    currency_digits = _digit_of(Setting.CURRENCY_DIGITS)
    am = _text_of(Setting.AM)
    pm = _text_of(Setting.PM)
    short_date = _text_of(Setting.SHORT_DATE)
    time_separator = _text_of(Setting.TIME_SEPARATOR)
    months = _names_of(Setting.MONTHS)


def _settings(settings):
    return None if settings is None else settings.handle


# ---- fields

@dataclasses.dataclass(frozen=True)
class Event:
    """What a field tells. Of REJECTED are `reason`, `position`, `character` (the one typed, "" for other acts); of STATE `was`, `now`."""
    kind: EventKind
    reason: Reason = Reason.NONE
    position: int = 0
    character: str = ""
    was: State = State.EMPTY
    now: State = State.EMPTY


@dataclasses.dataclass(frozen=True)
class Position:
    """What stands there: `character` is the letter of the mask, or the literal; `part` counts the parts of the value, -1: literal."""
    kind: PositionKind
    character: str
    escaped: bool
    part: int


@dataclasses.dataclass(frozen=True)
class Selection:
    """The end that stays and the end that moves; both the same where nothing is selected."""
    anchor: int
    caret: int

    @property
    def start(self):
        return min(self.anchor, self.caret)

    @property
    def end(self):
        return max(self.anchor, self.caret)

    def __iter__(self):
        return iter((self.anchor, self.caret))


@dataclasses.dataclass(frozen=True)
class Verdict:
    """Of a mask: what is wrong first, and where in it (-1: it fits). True for one that fits."""
    fault: MaskFault
    position: int

    def __bool__(self):
        return self.fault == MaskFault.FITS


def _event(told):
    if told.kind == EventKind.REJECTED:
        return Event(EventKind.REJECTED, Reason(told.reason), told.position, chr(told.character) if told.character else "")
    if told.kind == EventKind.STATE:
        return Event(EventKind.STATE, was=State(told.was), now=State(told.is_))
    return Event(EventKind(told.kind))


class _Ear:
    """Hears a field's events for a function of the program's. What that raises is raised where the act was called, once the act is done."""

    def __init__(self, heard):
        self.heard = heard
        self.listening = False
        self.error = None
        self.function = ZTFieldListener(self.hear)

    def hear(self, _context, _field, told):
        if self.error is not None:
            return 0
        self.listening = True
        try:
            return 1 if self.heard(_event(told.contents)) else 0
        except BaseException as error:  # nothing may be thrown through the library
            self.error = error
            return 0
        finally:
            self.listening = False

    def raise_error(self):
        error, self.error = self.error, None
        if error is not None:
            raise error


class Field(_Owner):
    """A field without a window.

    >>> heard = []
    >>> day = Field("MM/DD/YYYY", "date", on_event=heard.append)
    >>> day.type("13")
    >>> [(event.kind.name, event.reason.name) for event in heard if event.kind == EventKind.REJECTED]
    [('REJECTED', 'OUT_OF_BOUNDS')]
    >>> size = Field(codes={"Small": "s", "Large": "l"}, value="l")
    >>> size.text, size.value
    ('Large', 'l')

    value    a first value: as of the property, or text as it would be pasted
    spin     Up, Down, a wheel and step() step the value by `increment` within `range`, "minimum~maximum"
    codes    texts shown and the values that stand for them (None: no value): the field shows and chooses by them
    on_event called with each Event; what it returns counts for REJECTED alone: true, and the field does not beep
    """

    def __init__(self, mask="", data_type=DataType.STRING, *, value=None, settings=None, modern=True, autoskip=False, read_only=False,
                 spin=False, increment=1, range=None, codes=None, on_event=None):
        self._ear = _Ear(on_event) if on_event is not None else None
        setup = ZTFieldSetup()
        setup.mask = _utf8(mask)
        setup.dataType = _data_type(data_type)
        options = {Option.MODERN: modern, Option.AUTOSKIP: autoskip, Option.SPIN: spin or range is not None or codes is not None,
                   Option.CODE_PICK: codes is not None, Option.CODE_DISPLAY: codes is not None}
        setup.options = sum(option for option, on in options.items() if on)
        setup.increment = max(0, _number(increment))
        setup.range = _utf8(range)
        setup.codeTable = _code_table(codes)
        setup.settings = _settings(settings)
        if self._ear is not None:
            setup.listener = self._ear.function
        super().__init__(library.ZTF_Create(ctypes.byref(setup)), library.ZTF_Destroy)
        if value is not None:
            self.value = value
        if read_only:
            self.set_read_only(True)

    def close(self):
        self._not_while_it_tells()
        super().close()

    def _not_while_it_tells(self):
        if self._ear is not None and self._ear.listening:
            raise RuntimeError("who hears a field may not change it")

    def _do(self, function, *arguments):
        handle = self.handle
        self._not_while_it_tells()
        result = function(handle, *arguments)
        if self._ear is not None:
            self._ear.raise_error()
        return result

    # What is shown

    @property
    def text(self):
        """The text shown. Set, it is put there from outside, as into an edit control not known to be a masked one."""
        return _read(library.ZTF_GetText, self.handle)

    @text.setter
    def text(self, text):
        self._do(library.ZTF_SetText, _utf8(text))

    @property
    def selection(self):
        anchor, caret = c_int32(), c_int32()
        library.ZTF_GetSelection(self.handle, anchor, caret)
        return Selection(anchor.value, caret.value)

    @selection.setter
    def selection(self, selection):
        self.select(*selection)

    def select(self, anchor, caret=None):
        """An end of -1 is the end of the text; without a caret nothing is selected."""
        self._do(library.ZTF_Select, _number(anchor), _number(anchor if caret is None else caret))

    def replace_selection(self, text):
        self._do(library.ZTF_ReplaceSelection, _utf8(text))

    @property
    def positions(self):
        """A Position for each character of the text.

        >>> [(position.kind.name, position.character, position.part) for position in Field("#-A").positions]
        [('DIGIT', '#', 0), ('LITERAL', '-', -1), ('LETTER', 'A', 1)]
        """
        found, told = [], ZTFieldPosition()
        while library.ZTF_GetPosition(self.handle, len(found), told):
            found.append(Position(PositionKind(told.kind), chr(told.character), bool(told.escaped), told.part))
        return found

    @property
    def modified(self):
        """Whether the user has changed the text since a program has set it."""
        return bool(library.ZTF_IsModified(self.handle))

    @modified.setter
    def modified(self, on):
        self._do(library.ZTF_SetModified, bool(on))

    # Values

    @property
    def state(self):
        return State(library.ZTF_GetState(self.handle))

    @property
    def data(self):
        """The value as canonical text: "" for the empty one, None for an incomplete or invalid one."""
        return _read(library.ZTF_GetDataString, self.handle)

    @property
    def value(self):
        """The value as date, time, datetime, float, Decimal or str, by the field's type; None where there is none.

        Set, Refused is raised where it cannot be shown, and nothing has changed.

        >>> amount = Field("#,##0.00", "decimal", value=12)
        >>> amount.value = "12,5,0"
        Traceback (most recent call last):
        ...
        ztfield.Refused: refused: does not fit
        >>> amount.value
        Decimal('12.00')
        """
        return from_canonical(self.data, self.data_type)

    @value.setter
    def value(self, value):
        reason = self.try_set(value)
        if reason:
            raise Refused(reason)

    def try_set(self, value):
        """Shows a value, a canonical text, or one that a user might paste: Reason.NONE, or why not, and then nothing has changed."""
        return Reason(self._do(library.ZTF_TrySetDataString, _utf8(canonical(value, self.data_type))))

    def set_data(self, text):
        """As try_set, but what is no value shows the empty one."""
        self._do(library.ZTF_SetDataString, _utf8(text))

    def read_data(self):
        """The value by the rules of classic editing, in which what is not filled in counts as zero; None for null."""
        return _read(library.ZTF_ReadData, self.handle)

    def read_text(self, text):
        """A text by the same rules, as if the field showed it."""
        return _read(library.ZTF_ReadText, self.handle, _utf8(text))

    # How it is set up

    @property
    def mask(self):
        """The mask in force: of a keyword what it stands for."""
        return _read(library.ZTF_GetMask, self.handle)

    @property
    def data_type(self):
        return DataType(library.ZTF_GetDataType(self.handle))

    def set_mask(self, mask, data_type):
        """False when the mask does not fit the type, and the type's default stands in."""
        return bool(self._do(library.ZTF_SetMask, _utf8(mask), _data_type(data_type)))

    def use_settings(self, settings):
        """None for the defaults. The value stays, under the mask as these settings read it."""
        self._do(library.ZTF_UseSettings, _settings(settings))

    def set_modern(self, on):
        """Modern editing on or off; what it was is returned."""
        return bool(self._do(library.ZTF_SetModern, bool(on)))

    def set_autoskip(self, on):
        self._do(library.ZTF_SetAutoskip, bool(on))

    def set_read_only(self, on):
        self._do(library.ZTF_SetReadOnly, bool(on))

    def set_spin(self, increment=1, range=None, codes=None, style=SpinStyle(0)):
        table = _code_table(codes)
        self._do(library.ZTF_SetSpin, max(0, _number(increment)), _utf8(range), table, style)

    def show_spin(self, on):
        """Without its spin, a field has no range and no codes either."""
        self._do(library.ZTF_ShowSpin, bool(on))

    # What the user does

    def type(self, text):
        """Characters, one after another."""
        self._do(library.ZTF_Type, _utf8(text))

    def press(self, key, shift=False, control=False):
        """A Key, or a letter as in press("Z", control=True)."""
        self._do(library.ZTF_Press, _key(key), _held(shift, control))

    def key_down(self, key, shift=False, control=False):
        self._do(library.ZTF_KeyDown, _key(key), _held(shift, control))

    def key_up(self, key, shift=False, control=False):
        self._do(library.ZTF_KeyUp, _key(key), _held(shift, control))

    def character(self, character):
        """A character by itself, control characters too."""
        self._do(library.ZTF_Character, ord(character))

    @property
    def clipboard(self):
        """The field's own: what was cut or copied, None for no text. A program that keeps the system's sets it before a paste."""
        return _read(library.ZTF_GetClipboard, self.handle)

    @clipboard.setter
    def clipboard(self, text):
        self._do(library.ZTF_SetClipboard, _utf8(text))

    def paste(self, text=None):
        """What the clipboard has, or what is given, which goes there first."""
        if text is not None:
            self.clipboard = text
        self._do(library.ZTF_Paste)

    def cut(self):
        """What was cut."""
        self._do(library.ZTF_Cut)
        return self.clipboard

    def copy(self):
        self._do(library.ZTF_Copy)
        return self.clipboard

    def clear(self):
        self._do(library.ZTF_Clear)

    def undo(self):
        self._do(library.ZTF_Undo)

    def redo(self):
        self._do(library.ZTF_Redo)

    @property
    def can_undo(self):
        return bool(library.ZTF_CanUndo(self.handle))

    @property
    def can_redo(self):
        return bool(library.ZTF_CanRedo(self.handle))

    def click(self, position, shift=False):
        self._do(library.ZTF_Click, _number(position), _held(shift, False))

    def double_click(self, position):
        self._do(library.ZTF_DoubleClick, _number(position))

    def drag(self, start, end):
        self._do(library.ZTF_Drag, _number(start), _number(end))

    def wheel(self, notches):
        self._do(library.ZTF_Wheel, _number(notches))

    def step(self, up=True):
        """An arrow of the spin."""
        self._do(library.ZTF_Step, bool(up))

    def leave(self):
        """The focus leaves for another field."""
        self._do(library.ZTF_Leave)

    def let_time_pass(self, milliseconds):
        """A field has no clock of its own: a pause of a second between keys ends what they have begun."""
        self._do(library.ZTF_LetTimePass, max(0, _number(milliseconds)))

    def __repr__(self):
        if self._handle is None:
            return "<Field, closed>"
        return "<Field %r %s %r>" % (self.mask, self.data_type.name.lower(), self.text)


def _key(key):
    return ord(key.upper()) if isinstance(key, str) else _number(key)


def _held(shift, control):
    return (Held.SHIFT if shift else 0) | (Held.CONTROL if control else 0)


def _code_table(codes):
    """Entries as the library wants them, of {text: value} or of the whole table as text."""
    if codes is None or isinstance(codes, str):
        return _utf8(codes)
    return _utf8("/".join("%s\t%s" % (text, "null!" if value is None else value) for text, value in codes.items()))


# ---- without a field

def check(mask, data_type, settings=None, modern=True):
    """Whether a mask fits a type, as a modern field or as a classic one takes it: a Verdict.

    >>> bool(check("(###) ###-####", "string")), check("MM/MM/YYYY", "date")
    (True, Verdict(fault=<MaskFault.TWICE: 7>, position=3))
    """
    position = c_int32(-1)
    judge = library.ZTF_CheckModernMask if modern else library.ZTF_CheckMask
    fault = judge(_settings(settings), _utf8(mask), _data_type(data_type), position)
    return Verdict(MaskFault(fault), position.value)


def format(value, mask, data_type, settings=None):
    """A value, or its canonical text, as a field would show it; ValueError for what is no value of the type or does not fit."""
    data_type = _data_type(data_type)
    text = _read(library.ZTF_Format, _settings(settings), _utf8(mask), data_type, _utf8(canonical(value, data_type)))
    if text is None:
        raise ValueError("%r cannot be shown under %r" % (value, mask))
    return text


def parse(text, mask, data_type, settings=None):
    """The value of what was typed or pasted in any of the usual forms; Refused where it cannot be read as one value.

    >>> parse("$1,234.5", "$#,##0.00", "decimal"), parse("", "MM/DD/YYYY", "date")
    (Decimal('1234.50'), None)
    >>> parse("2/30/2026", "MM/DD/YYYY", "date")
    Traceback (most recent call last):
    ...
    ztfield.Refused: refused: does not exist
    """
    data_type, reason = _data_type(data_type), c_int32()
    read = _read(library.ZTF_Parse, _settings(settings), _utf8(mask), data_type, _utf8(text), behind=(reason,))
    if read is None:
        raise Refused(reason.value)
    return from_canonical(read, data_type)
