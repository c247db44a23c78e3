"""What the public headers declare: functions, records and constants; and where a compiler puts the fields."""
import collections
import pathlib
import re
import struct
import subprocess
import tempfile

HEADERS = ("ztvalues.h", "ztdecimal.h", "ztshared.h", "ztedit.h")
LIBRARIES = {"ztedit050": "win32/ztedit050.def", "ztshared": "companions/ztshared/ztshared.def",
             "ztdecimal": "companions/ztdecimal/ztdecimal.def"}
COMPILERS = {4: "i686-w64-mingw32", 8: "x86_64-w64-mingw32"}
# The system's record that some of ours begin with.
SYSTEM_RECORDS = {"NMHDR": [("hwndFrom", "ptr"), ("idFrom", "ptr"), ("code", "u32")]}

KINDS = {
    "void": "void", "double": "f64", "int8_t": "i8", "uint8_t": "u8", "int16_t": "i16", "uint16_t": "u16", "int32_t": "i32",
    "uint32_t": "u32", "int64_t": "i64", "uint64_t": "u64", "UINT": "u32", "COLORREF": "u32", "HWND": "ptr", "HDC": "ptr",
    "WPARAM": "ptr", "LPARAM": "ptr", "LRESULT": "ptr", "SharedHeap": "ptr", "SharedList": "ptr", "NMHDR": "NMHDR",
}

Function = collections.namedtuple("Function", "library result parameters")  # kinds
Layout = collections.namedtuple("Layout", "size fields")  # fields: (name, offset, size)


class Declarations:
    """The same three tables for the headers and for each binding."""

    def __init__(self):
        self.functions = {}  # name: Function
        self.records = {}    # name: [(field, kind)]
        self.constants = {}  # name: number or text


def kind_of(c_type):
    """The kind of a C type: its width and sign, "ptr" for all that is as wide as a pointer."""
    c_type = re.sub(r"\b(const|struct)\b", "", c_type).strip()
    return "ptr" if "*" in c_type else KINDS[c_type]


def without_comments(text):
    return re.sub(r"/\*.*?\*/", "", text, flags=re.S)


def _type_of_declaration(declaration):
    """The type in "const char* mask"; a function pointer is a pointer."""
    if "(" in declaration:
        return "void*"
    return re.match(r"(.*?)\s*\b\w+$", declaration.strip(), re.S).group(1)


def _parameters(text):
    text = text.strip()
    return [] if text in ("", "void") else [kind_of(_type_of_declaration(part)) for part in text.split(",")]


def _fields(body):
    fields = []
    for declaration in filter(None, (part.strip() for part in body.split(";"))):
        pointer = re.match(r"void\s*\(\s*\w*\s*\*\s*(\w+)\)", declaration)
        name = pointer.group(1) if pointer else re.search(r"(\w+)$", declaration).group(1)
        fields.append((name, kind_of(_type_of_declaration(declaration))))
    return fields


def exports(root):
    """{function: library} of the .def files."""
    found = {}
    for library, path in LIBRARIES.items():
        names = re.findall(r"^\s+(\w+)(?:\s+@\d+)?\s*$", (root / path).read_text(), re.M)
        found.update({name: library for name in names})
    return found


def read_headers(root):
    declared = Declarations()
    libraries = {"ztvalues.h": None, "ztdecimal.h": "ztdecimal", "ztshared.h": "ztshared", "ztedit.h": "ztedit050"}
    for header in HEADERS:
        text = without_comments((root / "include" / header).read_text()).replace("\\\n", " ")
        for name, value in re.findall(r"^#define (\w+)[ \t]+(.+?)[ \t]*$", text, re.M):
            declared.constants[name] = value
        text = re.sub(r"^#.*$", "", text, flags=re.M)
        for body, name in re.findall(r"typedef struct \w+ \{(.*?)\} (\w+);", text, re.S):
            declared.records[name] = _fields(body)
        text = re.sub(r"typedef struct.*?\{.*?\} \w+;", "", text, flags=re.S)
        for result, name, parameters in re.findall(r"([\w \*]+?)\s*\b(?:WINAPI|CALLBACK) (\w+)\((.*?)\);", text, re.S):
            declared.functions[name] = Function(libraries[header], kind_of(result), _parameters(parameters))
    return declared


def compiled_facts(root, declared, pointer_size):
    """({constant: value}, {record: Layout}) as the compiler for this pointer size has them: numbers in a section of an object file."""
    texts = {name: value[1:-1] for name, value in declared.constants.items() if value.startswith('"')}
    numbers = [name for name in declared.constants if name not in texts]
    records = dict(declared.records, **SYSTEM_RECORDS)
    expressions = list(numbers)
    for record, fields in records.items():
        expressions.append(f"sizeof({record})")
        for field, _ in fields:
            expressions += [f"offsetof({record}, {field})", f"sizeof((({record}*)0)->{field})"]
    with tempfile.TemporaryDirectory() as folder:
        source = pathlib.Path(folder, "facts.c")
        listed = ", ".join(f"(long long)({expression})" for expression in expressions)
        source.write_text('#include <stddef.h>\n#include "ztedit.h"\n'
                          f'__attribute__((section(".facts"))) const long long facts[] = {{{listed}}};\n')
        tool = COMPILERS[pointer_size]
        subprocess.run([f"{tool}-gcc", "-DWIN32_LEAN_AND_MEAN", f"-I{root / 'include'}", "-c", source, "-o", source.with_suffix(".o")],
                       check=True)
        subprocess.run([f"{tool}-objcopy", "-O", "binary", "-j", ".facts", source.with_suffix(".o"), source.with_suffix(".bin")],
                       check=True)
        raw = source.with_suffix(".bin").read_bytes()
    values = iter(struct.unpack_from(f"<{len(expressions)}q", raw))
    constants = dict(texts, **{name: next(values) for name in numbers})
    layouts = {}
    for record, fields in records.items():
        size = next(values)
        layouts[record] = Layout(size, [(field, next(values), next(values)) for field, _ in fields])
    return constants, layouts


def size_and_alignment(kind, records, pointer_size):
    if kind in records:
        layout = layout_of(records[kind], records, pointer_size)
        return layout.size, max(size_and_alignment(each, records, pointer_size)[1] for _, each in records[kind])
    size = pointer_size if kind == "ptr" else int(kind[1:]) // 8
    return size, size


def layout_of(fields, records, pointer_size):
    """Where a record's fields stand by the rule of C: each on a multiple of its own size, the whole on one of the widest."""
    offset, widest, placed = 0, 1, []
    for name, kind in fields:
        size, alignment = size_and_alignment(kind, records, pointer_size)
        offset += -offset % alignment
        placed.append((name, offset, size))
        offset += size
        widest = max(widest, alignment)
    return Layout(offset + -offset % widest, placed)
