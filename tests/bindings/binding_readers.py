"""What each binding declares, read from its source into the tables of header_facts.Declarations."""
import ctypes
import importlib.machinery
import re
import types

from header_facts import Declarations, Function

POINTERS = "ptr"


class Unreadable(Exception):
    """A declaration in a form that its reader does not know."""


def _kind(table, name, where):
    if name not in table:
        raise Unreadable(f"{where}: no such type is known: {name}")
    return table[name]


def _number(text):
    return int(text, 0)


# ---- Pascal

PASCAL_KINDS = {"Cardinal": "u32", "Integer": "i32", "SmallInt": "i16", "ShortInt": "i8", "Byte": "u8", "Word": "u16", "Double": "f64",
                "UInt64": "u64", "TNMHDR": "NMHDR"}
PASCAL_KINDS.update(dict.fromkeys(
    "Pointer PAnsiChar PRect PInteger HWND HDC WPARAM LPARAM LRESULT UINT_PTR TSharedHeap TSharedList TSharedHeapEnding PDateTimeValue "
    "PDecimalValue PEditInitParams PFormatResult PSharedHeapWatcher".split(), POINTERS))


def read_pascal(path):
    text = re.sub(r"\{.*?\}", "", path.read_text(), flags=re.S)
    declared = Declarations()
    libraries = dict(re.findall(r"^  (\w+Library) = '(\w+)\.dll';", text, re.M))
    for name, value in re.findall(r"^  ([A-Z][A-Z0-9_]+) = ([-$\d][^;]*|'.*?');", text, re.M):
        declared.constants[name] = value[1:-1] if value.startswith("'") else _number(value.replace("$", "0x"))
    for name, body in re.findall(r"^  T(\w+) = record(.*?)^  end;", text, re.M | re.S):
        fields = re.findall(r"(\w+): (\w+);", body)
        if name != "ZtSetup":  # the unit's own
            declared.records[name] = [(field, _kind(PASCAL_KINDS, kind, name)) for field, kind in fields]
    pattern = r"^(function|procedure) (\w+)(?:\(([^()]*)\))?(?:: (\w+))?;\s+stdcall; external (\w+);"
    for word, name, parameters, result, library in re.findall(pattern, text, re.M | re.S):
        kinds = [_kind(PASCAL_KINDS, part.split(":")[1].strip(), name) for part in parameters.split(";") if part.strip()]
        result_kind = "void" if word == "procedure" else _kind(PASCAL_KINDS, result, name)
        declared.functions[name] = Function(libraries[library], result_kind, kinds)
    return declared


# ---- C#

CSHARP_KINDS = {"void": "void", "uint": "u32", "int": "i32", "short": "i16", "ushort": "u16", "sbyte": "i8", "byte": "u8", "ulong": "u64",
                "double": "f64", "IntPtr": POINTERS, "UIntPtr": POINTERS, "string": POINTERS, "byte[]": POINTERS, "NMHDR": "NMHDR"}


def _csharp_parameter(text, where):
    words = text.split()
    return POINTERS if words[0] in ("ref", "out") else _kind(CSHARP_KINDS, words[0], where)


def read_csharp(path):
    text = re.sub(r"//.*$", "", path.read_text(), flags=re.M)
    declared = Declarations()
    libraries = dict(re.findall(r'public const string (\w+Library) = "(\w+)\.dll";', text))
    for name, value in re.findall(r"^        public const \w+ ([A-Z][A-Z0-9_]+) = (.+);", text, re.M):
        declared.constants[name] = value[1:-1] if value.startswith('"') else _number(value)
    for name, body in re.findall(r"^    public struct (\w+)\s*\{(.*?)^    \}", text, re.M | re.S):
        declared.records[name] = [(field, _kind(CSHARP_KINDS, kind, name))
                                  for kind, field in re.findall(r"public (\w+) @?(\w+);", body)]
    pattern = r"\[DllImport\((\w+),[^\]]*\)\]\s*public static extern (\w+) (\w+)\(([^()]*)\);"
    for library, result, name, parameters in re.findall(pattern, text, re.S):
        kinds = [_csharp_parameter(part, name) for part in parameters.split(",") if part.strip()]
        declared.functions[name] = Function(libraries[library], _kind(CSHARP_KINDS, result, name), kinds)
    return declared


def read_compiled_csharp(text):
    """The lines of ManagedFacts.cs: what the compiler and the marshaller made of it; and {record: (size, {field: offset})}."""
    declared, places = Declarations(), {}
    for line in text.splitlines():
        word, name, *rest = line.split()
        if word == "function":
            declared.functions[name] = Function(rest[0].replace(".dll", ""), rest[1], rest[2:])
        elif word == "record":
            declared.records[name] = []
            places[name] = (int(rest[0]), {})
        elif word == "field":
            declared.records[name].append((rest[0], rest[2]))
            places[name][1][rest[0]] = int(rest[1])
        elif name.isupper() or name.startswith("ZTEDIT"):
            declared.constants[name] = int(rest[0]) if re.fullmatch(r"-?\d+", rest[0]) else rest[0]
    return declared, places


# ---- Visual Basic. It has no unsigned numbers but Byte: there a kind says no more than a width.

BASIC_KINDS = {"Long": "i32", "Integer": "i16", "Byte": "i8", "Double": "f64", "LongPtr": POINTERS, "String": POINTERS, "NMHDR": "NMHDR"}


def _basic_number(text):
    """&H8000 without an & at its end is the 16-bit number -32768."""
    hexadecimal = re.fullmatch(r"&H([0-9A-F]+)(&?)", text)
    if not hexadecimal:
        return int(text)
    value = int(hexadecimal.group(1), 16)
    if not hexadecimal.group(2) and 0x8000 <= value <= 0xFFFF:
        return value - 0x10000
    return value - 2**32 if value >= 2**31 else value


def _basic_parameter(text, where):
    passing, name, kind = re.fullmatch(r"(ByVal|ByRef) (\w+) As (\w+)", text.strip()).groups()
    return POINTERS if passing == "ByRef" else _kind(BASIC_KINDS, kind, f"{where}({name})")


def _basic_fields(body, record):
    fields = []
    for name, kind in re.findall(r"^\s+(\w+) As (\w+)", body, re.M):
        if name.endswith("_high"):  # two Longs that stand for one number of 64 bits
            fields[-1] = (name[:-len("_high")], "u64")
        else:
            fields.append((name, _kind(BASIC_KINDS, kind, record)))
    return fields


def read_basic(path, vba7):
    """As VBA 7 (vba7), or as Visual Basic 6 and older VBA read it."""
    text = path.read_text().replace(" _\n", " ")
    kept = r"\1" if vba7 else r"\2"
    text = re.sub(r"^#If VBA7 Then$(.*?)^#Else$(.*?)^#End If$", kept, text, flags=re.M | re.S)
    text = re.sub(r"(?m)(^|\s)'.*$", "", text)
    declared = Declarations()
    for name, value in re.findall(r"^Public Const ([A-Z][A-Z0-9_]+) As \w+ = (.+?)\s*$", text, re.M):
        declared.constants[name] = value[1:-1] if value.startswith('"') else _basic_number(value)
    for name, body in re.findall(r"^Public Type (\w+)$(.*?)^End Type$", text, re.M | re.S):
        declared.records[name] = _basic_fields(body, name)
    pattern = r'^\s*Public Declare (PtrSafe )?(Function|Sub) (\w+) Lib "(\w+)\.dll" \((.*?)\)(?: As (\w+))?\s*$'
    for safe, word, name, library, parameters, result in re.findall(pattern, text, re.M):
        if bool(safe) != vba7:
            raise Unreadable(f"{name}: PtrSafe belongs to the branch of VBA 7, and there to every declaration")
        kinds = [_basic_parameter(part, name) for part in parameters.split(",") if part.strip()]
        declared.functions[name] = Function(library, "void" if word == "Sub" else _kind(BASIC_KINDS, result, name), kinds)
    return declared


# ---- Python

CTYPES_KINDS = {ctypes.c_uint32: "u32", ctypes.c_int32: "i32", ctypes.c_int16: "i16", ctypes.c_uint16: "u16", ctypes.c_int8: "i8",
                ctypes.c_uint8: "u8", ctypes.c_uint64: "u64", ctypes.c_double: "f64", ctypes.c_void_p: POINTERS,
                ctypes.c_char_p: POINTERS, None: "void"}


def _ctypes_kind(kind, module, where):
    if isinstance(kind, type) and issubclass(kind, (ctypes._Pointer, ctypes._CFuncPtr)):
        return POINTERS
    return "NMHDR" if kind is module.NMHDR else _kind(CTYPES_KINDS, kind, where)


def load_python(path):
    module = types.ModuleType("ztedit")
    module.__file__ = str(path)
    importlib.machinery.SourceFileLoader(module.__name__, str(path)).exec_module(module)
    return module


def read_python(path):
    module = load_python(path)
    declared = Declarations()
    for name, value in vars(module).items():
        if re.fullmatch(r"[A-Z][A-Z0-9_]+", name) and isinstance(value, (int, str)):
            declared.constants[name] = value
        elif isinstance(value, type) and issubclass(value, ctypes.Structure) and value is not ctypes.Structure:
            declared.records[name] = [(field, _ctypes_kind(kind, module, name)) for field, kind in value._fields_]
    for library, functions in module._FUNCTIONS.items():
        for name, (result, *parameters) in functions.items():
            kinds = [_ctypes_kind(kind, module, name) for kind in parameters]
            declared.functions[name] = Function(library, _ctypes_kind(result, module, name), kinds)
    return declared
