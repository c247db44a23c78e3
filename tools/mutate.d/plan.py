"""The instrumented copy of the engine: all mutants in one set of sources, chosen among at run time."""
import hashlib
import os
import pickle
import re
import subprocess
import sys
from concurrent.futures import ProcessPoolExecutor, ThreadPoolExecutor
from dataclasses import dataclass
from pathlib import Path

import clang.cindex as cindex

from sites import NUMBER, Alternative, Reader, Site, apply_edits

HERE = Path(__file__).parent
NUMBERS_OF_A_FILE = 2048
MOST_MUTANTS = 1 << 19  # as many as switches.h has room for
FLAGS = ['-std=c++17', '-fno-exceptions', '-fno-rtti', '-D_GLIBCXX_ASSERTIONS', '-w']


@dataclass
class Mutant:
    number: int
    site: Site
    alternative: Alternative
    ordinal: int = 1  # among mutants of the same key

    @property
    def file(self):
        return self.site.file

    @property
    def is_fixed(self):
        """Whether the compiler may have evaluated it, so that only building it tells."""
        return self.file.endswith('.cpp') and (bool(self.site.left_out) or NUMBER in self.site.open.replace(f'Now({NUMBER}', '') or
                                              bool(self.site.variable))


def read_file(root, file):
    return Reader(root, file, cindex.Index.create(), ['-std=c++17', f'-I{root}', f'-I{root}/include'])


def read_share(share):
    readers = [read_file(*row) for row in share]
    return [(r.file, r.sites, r.constants, r.uses) for r in readers]


def load(root, tree, jobs):
    """The engine with its copy written; read anew only where something has changed."""
    digest = hashlib.sha256()
    own = [HERE / 'plan.py', HERE / 'sites.py', HERE / 'switches.h']
    for path in sorted([*(root / 'engine').rglob('*'), *(root / 'include').rglob('*'), *own]):
        if path.is_file():
            digest.update(str(path).encode() + path.read_bytes())
    kept = tree.parent / 'engine.pickle'
    if kept.exists():
        before, engine = pickle.loads(kept.read_bytes())
        if before == digest.hexdigest():
            engine.write()
            return engine
    engine = Engine(root, tree, jobs)
    engine.make()
    kept.write_bytes(pickle.dumps((digest.hexdigest(), engine)))
    return engine


class Engine:
    """Every site of the engine, with the numbers of its mutants."""

    def __init__(self, root, tree, jobs):
        self.root, self.tree, self.jobs = root, tree, jobs
        self.files = sorted(str(f.relative_to(root)) for f in (root / 'engine').rglob('*') if f.suffix in ('.h', '.cpp'))
        self.texts = {f: (root / f).read_bytes().decode('latin-1') for f in self.files}
        self.sites = {f: [] for f in self.files}
        self.read()
        self.number()

    def read(self):
        constants, uses = {}, []
        shares = [[(self.root, f) for f in self.files[i::self.jobs]] for i in range(self.jobs)]
        with ProcessPoolExecutor(self.jobs) as pool:
            for rows in pool.map(read_share, shares):
                for file, sites, found, used in rows:
                    self.sites[file] = sites
                    constants.update((c.usr, c) for c in found)
                    uses += used
        self.constants = constants
        by_usr = {}
        for sites in self.sites.values():
            for site in sites:
                if site.variable:
                    by_usr[site.variable] = site
        self.uses = {f: [] for f in self.files}
        for use in uses:
            constant = constants.get(use.usr)
            if constant and constant.visible in ('', use.file):
                self.uses[use.file].append((use, by_usr[use.usr]))

    def number(self):
        self.mutants = {}
        for index, file in enumerate(self.files):
            number = index * NUMBERS_OF_A_FILE
            for site in sorted(self.sites[file], key=lambda s: (s.start, s.order)):
                site.first = number
                for alternative in site.alternatives:
                    self.mutants[number] = Mutant(number, site, alternative)
                    number += 1
            if number > (index + 1) * NUMBERS_OF_A_FILE:
                raise SystemExit(f'{file} has more than {NUMBERS_OF_A_FILE} mutants')
        if len(self.files) * NUMBERS_OF_A_FILE > MOST_MUTANTS:
            raise SystemExit(f'{len(self.files)} files are more than the switches have room for')
        counts = {}
        for mutant in self.mutants.values():
            key = self.key(mutant)
            counts[key] = mutant.ordinal = counts.get(key, 0) + 1

    # ---- what a mutant is, as text

    def line_of(self, mutant):
        return self.texts[mutant.file].count('\n', 0, mutant.alternative.edits[0][0]) + 1

    def line_text(self, mutant):
        return self.texts[mutant.file].split('\n')[self.line_of(mutant) - 1].strip()

    def change(self, mutant):
        text = self.texts[mutant.file]
        parts = []
        for start, end, new in mutant.alternative.edits:
            before = ' '.join(text[start:end].split())
            parts.append(f'{before} -> {" ".join(new.split()) or "(nothing)"}')
        return '; '.join(parts)

    def key(self, mutant):
        return mutant.file, self.line_text(mutant), mutant.alternative.operator, self.change(mutant)

    def mutated(self, mutant):
        return apply_edits(self.texts[mutant.file], mutant.alternative.edits)

    # ---- the copy

    def instrumented(self, file):
        """The text of a file with its switches, and where in it each site stands."""
        text = self.texts[file]
        pieces = {}  # offset: [closings, openings]
        replaced = {}
        for site in self.sites[file]:
            if site.left_out:
                continue
            self.put(pieces, site, site.start, site.end, site.open.replace(NUMBER, str(site.first)),
                     site.close.replace(NUMBER, str(site.first)), site.order)
            for start, end, replacement in site.replacements:
                replaced[start] = (end, replacement.replace(NUMBER, str(site.first)))
        for use, site in self.uses[file]:
            if not site.left_out and use not in self.left_out_uses:
                number = f'mutate::Now({site.first})' if use.runtime else site.first
                name = text[use.start:use.end]
                self.put(pieces, use, use.start, use.end, f'mutate::Variant({number}, ', f', {name}_variants)', use.order)
        return self.lay(text, pieces, replaced)

    @staticmethod
    def put(pieces, site, start, end, opening, closing, order):
        pieces.setdefault(start, ([], []))[1].append((-end, order, opening, site))
        if end > start:
            pieces.setdefault(end, ([], []))[0].append((-start, -order, closing, site))

    @staticmethod
    def lay(text, pieces, replaced):
        out, length, at = [], 0, 0
        where = {}

        def write(part):
            nonlocal length
            out.append(part)
            length += len(part)

        for offset in sorted(set(pieces) | set(replaced)):
            write(text[at:offset])
            at = offset
            closings, openings = pieces.get(offset, ([], []))
            for _, _, part, site in sorted(closings, key=lambda c: c[:2]):
                write(part)
                where[id(site)][1] = length
            for _, _, part, site in sorted(openings, key=lambda c: c[:2]):
                where[id(site)] = [length, length + len(part), site]
                write(part)
            if offset in replaced:
                end, part = replaced[offset]
                write(part)
                at = end
        write(text[at:])
        return ''.join(out), list(where.values())

    def write(self):
        for file in self.files:
            text, self.where[file] = self.instrumented(file)
            self.written[file] = text
            path = self.tree / file
            path.parent.mkdir(parents=True, exist_ok=True)
            if not path.exists() or path.read_bytes().decode('latin-1') != text:
                path.write_bytes(text.encode('latin-1'))

    def make(self):
        """Writes the copy, without what the compiler refuses."""
        self.where, self.written, self.left_out_uses = {}, {}, set()
        checked = [f for f in self.files if f.endswith('.cpp')]
        for attempt in range(12):
            self.write()
            with ThreadPoolExecutor(self.jobs) as pool:
                outputs = list(pool.map(self.check, checked))
            refused = [(f, o) for f, o in zip(checked, outputs) if o]
            if not refused:
                return
            before = self.count_left_out()
            for file, output in refused:
                self.leave_out(output, attempt)
            if self.count_left_out() == before:
                sys.stderr.write(refused[0][1][:4000])
                raise SystemExit('the instrumented engine does not compile')
            checked = [f for f, _ in refused]
        raise SystemExit('the instrumented engine does not compile after twelve attempts')

    def count_left_out(self):
        return sum(bool(s.left_out) for sites in self.sites.values() for s in sites) + len(self.left_out_uses)

    def check(self, file):
        command = ['clang++', '-fsyntax-only', '-ferror-limit=0', '-fno-caret-diagnostics', '-ftemplate-backtrace-limit=0', *FLAGS,
                   f'-I{self.tree}', f'-I{self.tree}/include', '-include', str(HERE / 'switches.h'), str(self.tree / file)]
        done = subprocess.run(command, capture_output=True, text=True)
        return done.stderr if done.returncode else ''

    def leave_out(self, output, attempt):
        """Leaves out the innermost switch around each error; after some attempts all of its line."""
        pending = ''
        for match in re.finditer(r'^(.*?):(\d+):(\d+): (fatal error|error|note): (.*)$', output, re.M):
            path, line, column, kind, what = match.groups()
            if kind != 'note':
                pending = what
            if not pending or not path.startswith(f'{self.tree}/engine'):
                continue
            self.leave_out_at(os.path.relpath(path, self.tree), int(line), int(column), pending, attempt)
            pending = ''

    def leave_out_at(self, file, line, column, what, attempt):
        text = self.written[file]
        start = 0
        for _ in range(line - 1):
            start = text.index('\n', start) + 1
        end = text.find('\n', start)
        offset = start + column - 1
        around = [w for w in self.where[file] if w[0] <= offset <= w[1]]
        if attempt > 5 or not around:
            around = [w for w in self.where[file] if start <= w[0] <= end]
        elif around:
            around = [min(around, key=lambda w: w[1] - w[0])]
        for _, _, site in around:
            if isinstance(site, Site):
                site.left_out = site.left_out or what
            else:
                self.left_out_uses.add(site)

