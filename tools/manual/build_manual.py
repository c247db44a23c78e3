#!/usr/bin/env python3
"""Builds build/manual: a page of HTML for each page of docs and docs/manual, and one of the interface.

Usage: build_manual.py FOLDER          (the manual goes there; needs pandoc)
"""
import os
import re
import shutil
import subprocess
import sys
from pathlib import Path

sys.dont_write_bytecode = True

from headers import read_header  # noqa: E402
from links import dead_links, page_of  # noqa: E402
from reference import names_of, reference_page  # noqa: E402

ROOT = Path(__file__).resolve().parents[2]
HERE = Path(__file__).resolve().parent
HEADERS = ["ztedit.h", "ztvalues.h", "ztshared.h", "ztdecimal.h"]
EXPORTS = ["win32/ztedit050.def", "companions/ztshared/ztshared.def", "companions/ztdecimal/ztdecimal.def"]
FIXED_BLANK = "\u00a0"


def fail(problems):
    print("\n".join(problems), file=sys.stderr)
    sys.exit("FAILED: the manual has the faults above")


def sources():
    """The pages by the names that they get, which one folder must be able to hold."""
    pages = {}
    for path in sorted((ROOT / "docs").glob("*.md")) + sorted((ROOT / "docs/manual").glob("*.md")):
        name = path.stem + ".html"
        if name in pages or name == "api.html":
            fail([f"{path}: there is another page of this name"])
        pages[name] = path
    return pages


class Links:
    """Rewrites the links of a page for the folder that all pages stand in."""

    def __init__(self, pages, folder):
        self.names = {path: name for name, path in pages.items()}
        self.folder = folder
        self.faults = []

    def rewritten(self, path, match):
        text, target, anchor = match.group(1), match.group(2), match.group(3) or ""
        if target == "" or "://" in target:
            return match.group(0)
        file = Path(os.path.normpath(path.parent / target))
        if file in self.names:
            return f"[{text}]({self.names[file]}{anchor})"
        if file.parent == ROOT / "include" and file.name in HEADERS:
            return f"[{text}](api.html{anchor or '#' + file.name})"
        if file.suffix == ".png" and file.is_file():
            shutil.copy(file, self.folder)
            return f"[{text}]({file.name})"
        if not file.exists():
            self.faults.append(f"{path}: there is no {target}")
        return text  # a file of the sources, which are not part of the manual

    def of(self, path, text):
        return re.sub(r"\[((?:[^][]|\[[^]]*\])*)\]\(([^)#\s]*)(#[^)\s]*)?\)", lambda match: self.rewritten(path, match), text)


def outside_of_code(text, change):
    """Changes a page, but for what stands in blocks of code and in marks of code."""
    parts = re.split(r"(^```.*?^```$|^(?: {4}[^\n]*\n)+|`[^`\n]+`)", text, flags=re.M | re.S)
    return "".join(part if index % 2 else change(part) for index, part in enumerate(parts))


def with_blanks(text):
    """Blanks in the cells of a table count; pandoc drops those at the ends of a mark of code."""
    def line(row):
        row = re.sub(r"\| `` (?=\|)", "| ", row)
        return re.sub(r"`[^`]*`", lambda code: code.group().replace(" ", FIXED_BLANK), row)
    return "\n".join(line(row) if row.startswith("|") else row for row in text.split("\n"))


def with_plain_blanks(page):
    return re.sub(r"<code>[^<]*</code>", lambda code: code.group().replace(FIXED_BLANK, " ").replace("&nbsp;", " "), page)


def title_of(text):
    return re.search(r"^# (.*)$", text, re.M).group(1)


def pandoc(text, title, form, contents):
    options = ["--toc", "--toc-depth=3"] if contents else []
    command = ["pandoc", "-f", form, "-t", "html5", "-s", "--no-highlight", f"--template={HERE / 'page.html'}",
               "--metadata", f"pagetitle={title}", *options]
    return subprocess.run(command, input=text, text=True, capture_output=True, check=True, encoding="utf-8").stdout


def linked_names(page, names):
    """A name of the interface in a mark of code leads to its contract."""
    def linked(code):
        name = code.group(1)
        return f'<a href="api.html#{name}">{code.group()}</a>' if name in names else code.group()

    parts = re.split(r"(<pre.*?</pre>|<a .*?</a>|<h\d.*?</h\d>)", page, flags=re.S)
    return "".join(part if index % 2 else re.sub(r"<code>(\w+)</code>", linked, part) for index, part in enumerate(parts))


def unknown_names(path, text, names):
    """What a page calls by a name of the interface that the headers do not have."""
    called = re.findall(r"\bZT(?:E|EO|N|S|R|P|M)_[A-Za-z]\w*", text)
    return [f"{path}: the headers know no {name}" for name in sorted(set(called) - names)]


def exported_names():
    for file in EXPORTS:
        text = (ROOT / file).read_text(encoding="utf-8").split("EXPORTS", 1)[1]
        for line in text.splitlines():
            name = re.match(r"\s*(\w+)", re.sub(r";.*", "", line))
            if name:
                yield name.group(1)


def main():
    folder = Path(sys.argv[1])
    shutil.rmtree(folder, ignore_errors=True)
    folder.mkdir(parents=True)
    pages = sources()
    headers = [read_header(ROOT / "include" / name) for name in HEADERS]
    names = names_of(headers)
    faults = [f"{name} is exported and not in the reference" for name in exported_names() if name not in names]
    links = Links(pages, folder)
    for name, path in pages.items():
        text = path.read_text(encoding="utf-8")
        faults += unknown_names(path, text, names)
        body = with_blanks(outside_of_code(text, lambda part, path=path: links.of(path, part)))
        page = pandoc(body, title_of(text), "gfm", name != "index.html")
        (folder / name).write_text(linked_names(with_plain_blanks(page), names), encoding="utf-8")
    reference = f"<h1>Interface</h1>\n{reference_page(headers)}"
    (folder / "api.html").write_text(pandoc(reference, "Interface", "html", True), encoding="utf-8")
    shutil.copy(HERE / "style.css", folder)
    anchors = page_of(folder / "api.html").anchors
    faults += [f"{name} has no anchor in api.html" for name in sorted(names - anchors)]
    faults += links.faults + dead_links(folder)
    if faults:
        fail(faults)
    print(f"{folder}/index.html: {len(pages) + 1} pages, {len(names)} names of the interface")


main()
