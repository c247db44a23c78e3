"""Reads what the public headers declare, with the comments that stand before and behind it."""
import re
from dataclasses import dataclass, field


@dataclass
class Declaration:
    name: str
    kind: str  # "function", "constant", "record" or "type"
    text: str
    remark: str = ""  # the comment behind it, of a constant or a function


@dataclass
class Group:
    """Declarations that stand together under one comment."""

    comment: str
    declarations: list = field(default_factory=list)


@dataclass
class Section:
    title: str
    groups: list = field(default_factory=list)


@dataclass
class Header:
    name: str
    comment: str
    sections: list = field(default_factory=list)


TITLE = re.compile(r"/\* -{3,} (.*?) -{3,} \*/$")
CONSTANT = re.compile(r"#define (\w+) +(.*?)(?: */\*(.*)\*/)?$")
RECORD = re.compile(r"typedef struct \w+ \{$")
RECORD_END = re.compile(r"\} (\w+);$")
TYPE = re.compile(r"typedef .*\b(\w+);$")
FUNCTION = re.compile(r"[\w ]+?[\w*]+ (?:WINAPI|CALLBACK) (\w+)\(")
NOT_DECLARED = re.compile(r'#(?!define)|extern "C"|\}$|$')


def comment_text(lines):
    """The words of a comment without its frame, its own indentation kept."""
    stripped = [re.sub(r"^ ?\*/? ?", "", line) for line in lines]
    stripped[0] = stripped[0].removeprefix("/").lstrip("* ")
    stripped[-1] = re.sub(r" ?\*/$", "", stripped[-1])
    while stripped and not stripped[-1].strip():
        stripped.pop()
    return "\n".join(stripped)


def function_of(lines):
    """A prototype, and the comment behind it."""
    text = "\n".join(lines)
    remark = re.search(r"; */\*(.*)\*/$", text)
    return Declaration(FUNCTION.match(text).group(1), "function", text[: text.rindex(";") + 1] if not remark else
                       text[: remark.start() + 1], remark.group(1).strip() if remark else "")


class Reader:
    def __init__(self, path):
        self.path = path
        self.lines = path.read_text(encoding="utf-8").splitlines()
        self.at = 0

    def until(self, ends):
        """The lines from here up to the first that ends it."""
        first = self.at
        while not ends(self.lines[self.at]):
            self.at += 1
        self.at += 1
        return self.lines[first:self.at]

    def declaration(self):
        line = self.lines[self.at]
        constant = CONSTANT.match(line)
        if constant:
            self.at += 1
            name, value, remark = constant.groups()
            return Declaration(name, "constant", value, (remark or "").strip())
        if RECORD.match(line):
            text = self.until(RECORD_END.match)
            return Declaration(RECORD_END.match(text[-1]).group(1), "record", "\n".join(text))
        if TYPE.match(line):
            self.at += 1
            return Declaration(TYPE.match(line).group(1), "type", line)
        if FUNCTION.match(line):
            return function_of(self.until(lambda end: ";" in end))
        raise SystemExit(f"{self.path}:{self.at + 1}: nothing that the reference knows: {line}")

    def read(self):
        header = Header(self.path.name, comment_text(self.until(lambda line: line.endswith("*/"))))
        header.sections.append(Section(""))
        guard = self.path.name.upper().replace(".", "_")
        group = None
        while self.at < len(self.lines):
            line = self.lines[self.at]
            if TITLE.match(line):
                header.sections.append(Section(TITLE.match(line).group(1)))
                self.at += 1
            elif line.startswith("/*"):
                group = Group(comment_text(self.until(lambda end: end.endswith("*/"))))
                header.sections[-1].groups.append(group)
            elif NOT_DECLARED.match(line) or line == f"#define {guard}":
                if not line:
                    group = None
                self.at += 1
            else:
                if group is None:
                    group = Group("")
                    header.sections[-1].groups.append(group)
                group.declarations.append(self.declaration())
        return header


def read_header(path):
    return Reader(path).read()
