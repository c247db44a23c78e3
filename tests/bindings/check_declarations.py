#!/usr/bin/env python3
"""Compares what the bindings declare with the public headers, the .def files and where compilers put the fields of the records, for 32 and
64 bits. Prints a line for each difference and exits with 1 where there is one.

Usage: check_declarations.py                           the sources of all bindings
       check_declarations.py --csharp FACTS            what ManagedFacts.exe has told of the compiled C# binding
       check_declarations.py --pascal FACTS            what the program of the next line has told
       check_declarations.py --pascal-program FILE     writes a program that tells the records of the compiled Pascal binding
"""
import pathlib
import re
import sys

import binding_readers
import header_facts

ROOT = pathlib.Path(__file__).resolve().parents[2]
BINDINGS = ROOT / "bindings"
# Constants that bindings with enumerations of their own must take up there as well.
ENUMERATED = ("DT_", "ZTS_", "ZTR_", "ZTP_", "ZTM_", "ZTEO_")


class Headers:
    def __init__(self):
        self.declared = header_facts.read_headers(ROOT)
        self.exports = header_facts.exports(ROOT)
        self.layouts = {}
        for pointer_size in header_facts.COMPILERS:
            self.constants, self.layouts[pointer_size] = header_facts.compiled_facts(ROOT, self.declared, pointer_size)
        self.records = dict(self.declared.records, **header_facts.SYSTEM_RECORDS)

    def differences_from_exports(self):
        declared = {name: function.library for name, function in self.declared.functions.items()}
        for name in sorted(set(declared) | set(self.exports)):
            if declared.get(name) != self.exports.get(name):
                yield f"headers and .def files differ in {name}: {declared.get(name)}, {self.exports.get(name)}"


def of_width(kind):
    """A kind without its sign."""
    return re.sub(r"^[iu](\d+)$", r"w\1", kind)


def names_differ(expected, actual):
    for name in sorted(set(expected) - set(actual)):
        yield f"{name} is missing"
    for name in sorted(set(actual) - set(expected)):
        yield f"{name} is not in the headers"


def function_differences(headers, declared, as_written):
    expected = headers.declared.functions
    yield from names_differ(expected, declared.functions)
    for name in sorted(set(expected) & set(declared.functions)):
        here, there = declared.functions[name], expected[name]
        if here.library != headers.exports.get(name):
            yield f"{name} is declared in {here.library}, exported by {headers.exports.get(name)}"
        if as_written(here.result) != as_written(there.result):
            yield f"{name} returns {here.result}, in the header {there.result}"
        if [as_written(kind) for kind in here.parameters] != [as_written(kind) for kind in there.parameters]:
            yield f"{name} takes {here.parameters}, in the header {there.parameters}"


def constant_differences(headers, declared):
    expected = headers.constants
    yield from names_differ(expected, declared.constants)
    for name in sorted(set(expected) & set(declared.constants)):
        if declared.constants[name] != expected[name]:
            yield f"{name} is {declared.constants[name]}, in the header {expected[name]}"


def plain_layout(layout):
    """Without the marks that keep a field's name from being a word of the language."""
    return layout.size, [(name.rstrip("_"), offset, size) for name, offset, size in layout.fields]


def record_differences(headers, declared):
    yield from names_differ(headers.records, declared.records)
    for name in sorted(set(headers.records) & set(declared.records)):
        for pointer_size, layouts in headers.layouts.items():
            here = plain_layout(header_facts.layout_of(declared.records[name], declared.records, pointer_size))
            if here != plain_layout(layouts[name]):
                yield f"{name}, {8 * pointer_size} bits, is {here}, in the header {plain_layout(layouts[name])}"


def all_differences(headers, declared, as_written=lambda kind: kind):
    yield from function_differences(headers, declared, as_written)
    yield from constant_differences(headers, declared)
    yield from record_differences(headers, declared)


def missing_enumerators(headers, path, pattern):
    named = set(re.findall(pattern, path.read_text()))
    for name in headers.constants:
        if name.startswith(ENUMERATED) and name not in named:
            yield f"{name} has no name of its own in an enumeration"


def check_sources(headers):
    pascal, csharp, basic, python, cpp = (BINDINGS / path for path in (
        "pascal/ztedit.pas", "csharp/ZtEdit.cs", "vb6/ztedit.bas", "python/ztedit.py", "cpp/ztedit.hpp"))
    yield from headers.differences_from_exports()
    for name, found in (
            (pascal, all_differences(headers, binding_readers.read_pascal(pascal))),
            (csharp, all_differences(headers, binding_readers.read_csharp(csharp))),
            (csharp, missing_enumerators(headers, csharp, r"\bNative\.(\w+)")),
            (basic, all_differences(headers, binding_readers.read_basic(basic, vba7=True), of_width)),
            (basic, all_differences(headers, binding_readers.read_basic(basic, vba7=False), of_width)),
            (python, all_differences(headers, binding_readers.read_python(python))),
            (cpp, missing_enumerators(headers, cpp, r"= ([A-Z]+_\w+)"))):
        yield from (f"{name.relative_to(ROOT)}: {difference}" for difference in found)


def check_compiled_csharp(headers, path):
    declared, places = binding_readers.read_compiled_csharp(path.read_text())
    yield from all_differences(headers, declared)
    yield from place_differences(headers, places)


def place_differences(headers, places):
    """Of records as the 64-bit language itself has placed them."""
    yield from names_differ(headers.records, places)
    for name in sorted(set(headers.records) & set(places)):
        size, fields = plain_layout(headers.layouts[8][name])
        expected = (size, {field: offset for field, offset, _ in fields})
        actual = (places[name][0], {field.rstrip("_"): offset for field, offset in places[name][1].items()})
        if actual != expected:
            yield f"{name} is placed as {actual}, in the header as {expected}"


def check_compiled_pascal(headers, path):
    places = {}
    for line in path.read_text().splitlines():
        word, name, *rest = line.split()
        if word == "record":
            places[name] = (int(rest[0]), {})
        else:
            places[name][1][rest[0]] = int(rest[1])
    yield from place_differences(headers, places)


def write_pascal_program(path):
    records = binding_readers.read_pascal(BINDINGS / "pascal/ztedit.pas").records
    lines = ["program pascal_facts;", "{$MODE OBJFPC}", "{$APPTYPE CONSOLE}", "uses ztedit;", "var"]
    lines += [f"  {record}_: T{record};" for record in records]
    lines.append("begin")
    for record, fields in records.items():
        lines.append(f"  WriteLn('record {record} ', SizeOf({record}_));")
        for field, _ in fields:
            lines.append(f"  WriteLn('field {record} {field} ', PtrUInt(@{record}_.{field}) - PtrUInt(@{record}_));")
    path.write_text("\n".join(lines + ["end.", ""]))


def main(arguments):
    if arguments[:1] == ["--pascal-program"]:
        write_pascal_program(pathlib.Path(arguments[1]))
        return 0
    headers = Headers()
    if arguments[:1] == ["--csharp"]:
        found = list(check_compiled_csharp(headers, pathlib.Path(arguments[1])))
    elif arguments[:1] == ["--pascal"]:
        found = list(check_compiled_pascal(headers, pathlib.Path(arguments[1])))
    else:
        found = list(check_sources(headers))
    for difference in found:
        print(difference)
    print(f"{len(headers.exports)} functions, {len(headers.records)} records, {len(headers.constants)} constants: "
          f"{len(found)} differences")
    return 1 if found else 0


if __name__ == "__main__":
    try:
        sys.exit(main(sys.argv[1:]))
    except binding_readers.Unreadable as unreadable:
        sys.exit(f"FAILED: {unreadable}")
