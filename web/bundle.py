"""Joins the JavaScript sources and the library into one module: bundle.py LIBRARY.wasm SOURCES OUT.mjs

The sources import one another by name and share no names at their top level, so that joining them is leaving out their imports and
exports. The library stands inside as text, deflated.
"""
import base64
import re
import sys
import zlib
from pathlib import Path

ENTRY = "ztfield.mjs"
PACKED = "packed.mjs"
HEADER = "// Masked fields for the web, with the library inside. Made from bindings/javascript; see ztfield.d.ts for what it gives.\n"

IMPORT = re.compile(r'^import (?:.|\n)*? from "\./([a-z]+\.mjs)";\n', re.MULTILINE)
REEXPORT = re.compile(r'^export \{ (.*) \} from "\./([a-z]+\.mjs)";\n', re.MULTILINE)
EXPORT = re.compile(r"^export (?=class |const |function )", re.MULTILINE)
DECLARATION = re.compile(r"^(?:async )?(?:class|const|let|function) ([A-Za-z]\w*)", re.MULTILINE)


def packed(library: Path) -> str:
    deflater = zlib.compressobj(9, zlib.DEFLATED, -zlib.MAX_WBITS)
    deflated = deflater.compress(library.read_bytes()) + deflater.flush()
    return f'const packed = "{base64.b64encode(deflated).decode()}";\n'


def in_order(sources: Path) -> list[str]:
    """The names of the sources, each behind those that it imports."""
    ordered: list[str] = []

    def visit(name: str) -> None:
        if name in ordered or name == PACKED:
            return
        text = (sources / name).read_text()
        for imported in IMPORT.findall(text) + [name for _, name in REEXPORT.findall(text)]:
            visit(imported)
        ordered.append(name)

    visit(ENTRY)
    return ordered


def check_names(modules: dict[str, str]) -> None:
    owners: dict[str, str] = {}
    for module, text in modules.items():
        for name in DECLARATION.findall(text):
            if name in owners:
                sys.exit(f"{name} is declared by {owners[name]} and by {module}: they are to be joined")
            owners[name] = module


def bundle(library: Path, sources: Path) -> str:
    modules = {PACKED: packed(library)}
    for name in in_order(sources):
        text = (sources / name).read_text()
        modules[name] = EXPORT.sub("", IMPORT.sub("", text)) if name != ENTRY else ""
    check_names(modules)
    given = [name for names, _ in REEXPORT.findall((sources / ENTRY).read_text()) for name in names.split(", ")]
    return HEADER + "\n".join(text for text in modules.values() if text) + f"\nexport {{ {', '.join(sorted(given))} }};\n"


def main() -> None:
    library, sources, out = map(Path, sys.argv[1:])
    out.write_text(bundle(library, sources))


main()
