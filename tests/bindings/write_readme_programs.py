#!/usr/bin/env python3
"""Makes a program of each example in bindings/README.md, to be compiled: the example as it is printed, within what it takes for granted.

Usage: write_readme_programs.py FOLDER
"""
import pathlib
import re
import sys

README = pathlib.Path(__file__).resolve().parents[2] / "bindings/README.md"

# language of the example: file, what stands before it, what behind it. What must stand outside comes first in the example.
PROGRAMS = {
    "cpp": ("readme.cpp", r"#include .*\n", "void Example(HWND form)\n{\n", "(void)day;\n}\n"),
    "csharp": ("Readme.cs", r"using .*\n", "using System;\nusing System.Windows.Forms;\nclass Example : Form\n{\nvoid Make()\n{\n",
               "if (day != null) Text = day.ToString();\n}\n}\n"),
    "pascal": ("readme.pas", r"uses .*\n",
               "var Heap: TSharedHeap; Due, Form: HWND; Year, Month, Day: Integer;\nbegin\nForm := 0;\n", "end.\n"),
    "python": ("readme.py", r"from .*\n", "", ""),
}


def main(folder):
    examples = dict(re.findall(r"^```(\w+)\n(.*?)^```$", README.read_text(), re.M | re.S))
    for language, (name, outside, before, behind) in PROGRAMS.items():
        first = re.match(outside, examples[language]).group()
        head = "program readme;\n{$MODE DELPHI}\n" if language == "pascal" else ""
        text = head + first + before + examples[language][len(first):] + behind
        pathlib.Path(folder, name).write_text(text)


if __name__ == "__main__":
    main(sys.argv[1])
