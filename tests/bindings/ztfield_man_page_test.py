#!/usr/bin/env python3
"""The man page of libztfield against the header: every function as it is declared, with a word on what it does, and every event.

Usage: ztfield_man_page_test.py              compares them
       ztfield_man_page_test.py --example    prints the page's example
"""
import pathlib
import re
import shlex
import subprocess
import sys
import unittest

sys.dont_write_bytecode = True
ROOT = pathlib.Path(__file__).resolve().parents[2]
PAGE = (ROOT / "ztfield/ztfield.3").read_text()
HEADER = re.sub(r"/\*.*?\*/", "", (ROOT / "include/ztfield.h").read_text(), flags=re.S)


def section(title):
    return re.search(rf"^\.Sh {title}\n(.*?)(?=^\.Sh |\Z)", PAGE, re.M | re.S).group(1)


def declared_in_the_header():
    return {name: (result, [" ".join(each.split()) for each in parameters.split(",")]) for result, name, parameters in
            re.findall(r"^ZTF_API ([\w ]+\*?)\s*(ZTF_\w+)\((.*?)\);", HEADER, re.M | re.S)}


def declared_in_the_page():
    rows = re.findall(r"^\.Ft (.*)\n\.Fn (\w+) (.*)$", section("SYNOPSIS"), re.M)
    return {name: (shlex.split(result)[0], shlex.split(parameters)) for result, name, parameters in rows}


class TheManPage(unittest.TestCase):
    def test_declares_every_function_as_the_header_does(self):
        self.assertGreater(len(declared_in_the_header()), 50)
        self.assertEqual(declared_in_the_page(), {name: (result.strip(), parameters) for name, (result, parameters) in
                                                  declared_in_the_header().items()})

    def test_tells_of_every_function(self):
        told = dict(re.findall(r"^\.It Fn (\w+)\n(.+)$", section("DESCRIPTION"), re.M))
        self.assertEqual(set(told), set(declared_in_the_header()))

    def test_tells_of_every_event_and_of_nothing_that_there_is_not(self):
        events = re.search(r"#define ZTF_CHANGED.*?typedef", HEADER, re.S).group()
        self.assertEqual(re.findall(r"^\.It Dv (\w+)$", PAGE, re.M), re.findall(r"#define (\w+)", events))
        known = set(re.findall(r"\bZT\w*_\w+", HEADER + (ROOT / "include/ztvalues.h").read_text()))
        self.assertEqual([name for name in re.findall(r"\bZT(?:F|EO|S|R|M)_\w*[A-Za-z]\b", PAGE) if name not in known], [])

    def test_is_set_without_a_complaint(self):
        told = subprocess.run(["groff", "-mdoc", "-ww", "-z", ROOT / "ztfield/ztfield.3"], capture_output=True, text=True, check=True)
        self.assertEqual(told.stderr, "")


if __name__ == "__main__":
    if sys.argv[1:] == ["--example"]:
        print(re.search(r"^\.Bd -literal.*?\n(.*?)^\.Ed", section("EXAMPLES"), re.M | re.S).group(1), end="")
    else:
        unittest.main()
