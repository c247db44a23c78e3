"""What became of the mutants: the figures, and the survivors that nobody has accepted yet."""
import json
import sys
import threading
from collections import Counter, defaultdict

KILLED = ('failed', 'steps', 'time', 'crashed', 'compiler')


def headline(engine, mutant):
    return f'{mutant.number} {mutant.file}:{engine.line_of(mutant)}: {mutant.alternative.operator}: {engine.change(mutant)}'


class Progress:
    """Every so often, how far it is; each result at once in a log."""

    def __init__(self, total, log):
        self.total, self.done, self.alive = total, 0, 0
        self.log = open(log, 'w', buffering=1)
        self.lock = threading.Lock()

    def __call__(self, mutant, result):
        with self.lock:
            self.done += 1
            self.alive += result.outcome not in KILLED
            self.log.write(f'{mutant.number} {result.outcome} {result.test}\n')
            if self.done % 500 == 0:
                print(f'    {self.done} of {self.total}, {self.alive} not killed', flush=True)


def folder_of(mutant):
    return mutant.file.rsplit('/', 1)[0]


def table(title, rows):
    """Figures by folder or operator."""
    counts = defaultdict(Counter)
    for name, outcome in rows:
        counts[name][outcome] += 1
        counts['all'][outcome] += 1
    lines = [f'{title:28} {"mutants":>8} {"killed":>8} {"survived":>8} {"unreached":>9} {"left out":>8} {"killed %":>9}']
    for name in sorted(counts, key=lambda n: (n == 'all', n)):
        count = counts[name]
        killed = sum(count[o] for o in KILLED)
        tried = killed + count['survived'] + count['unreached']
        share = f'{100 * killed / tried:.1f}' if tried else '-'
        lines.append(f'{name:28} {sum(count.values()):8} {killed:8} {count["survived"]:8} {count["unreached"]:9} '
                     f'{count["left out"]:8} {share:>9}')
    return lines


def read_accepted(path):
    """Blocks of "file", "line", "change" (with operator and ordinal) and reason, each behind its word; see write_accepted."""
    accepted, block = {}, {}
    for line in path.read_text().splitlines() if path.exists() else []:
        word, _, rest = line.partition(': ')
        if word in ('file', 'line', 'change', 'reason') and not line.startswith('#'):
            block[word] = rest
        if word == 'reason':
            accepted[(block.get('file'), block.get('line'), block.get('change'))] = rest
            block = {'file': block.get('file')}
    return accepted


def name_of(engine, mutant):
    file, line, operator, change = engine.key(mutant)
    number = f' (number {mutant.ordinal})' if mutant.ordinal > 1 else ''
    return file, line, f'{operator}: {change}{number}'


def read_survivors(out):
    rows = json.loads((out / 'results.json').read_text())
    return {tuple(row[:3]) for row in rows.values() if row[3] not in KILLED}


def save(engine, mutants, results, path):
    rows = {}
    for mutant in mutants:
        result = results[mutant.number]
        rows[mutant.number] = [*name_of(engine, mutant), result.outcome, result.test, round(result.seconds, 3)]
    path.write_text(json.dumps(rows, indent=0))


def finish(engine, mutants, results, out, accepted_path, options):
    accepted = read_accepted(accepted_path)
    alive = [m for m in mutants if results[m.number].outcome not in KILLED]
    new = [m for m in alive if name_of(engine, m) not in accepted]
    lines = table('folder', [(folder_of(m), results[m.number].outcome) for m in mutants]) + ['']
    lines += table('operator', [(m.alternative.operator, results[m.number].outcome) for m in mutants]) + ['']
    counts = Counter(results[m.number].outcome for m in mutants)
    lines.append('killed by: ' + ', '.join(f'{counts[o]} {w}' for o, w in zip(KILLED, (
        'a failed test', 'an endless loop (steps)', 'an endless loop (time)', 'a crash or a failed assertion', 'the compiler'))))
    lines.append('by program: ' + str(dict(Counter(results[m.number].test.split(':')[0] for m in mutants
                                                   if results[m.number].outcome in KILLED))))
    lines.append(f'not killed: {len(alive)}, of these accepted: {len(alive) - len(new)}')
    print('\n'.join(lines))
    with open(out / 'report.txt', 'w') as file:
        file.write('\n'.join(lines) + '\n\n' + '\n'.join(table('file', [(m.file, results[m.number].outcome) for m in mutants])) + '\n\n')
        write_survivors(file, engine, alive, results, accepted)
    whole = not options.only and not options.survivors
    save(engine, mutants, results, out / ('results.json' if whole else 'some_results.json'))
    if new and options.accept:
        write_accepted(accepted_path, engine, new)
    if new:
        print(f'{len(new)} survivors are not listed in {accepted_path.name}; see {out}/report.txt', file=sys.stderr)
    return 1 if new else 0


def write_survivors(file, engine, mutants, results, accepted):
    """Line by line of the engine, with the lines around it."""
    places = defaultdict(list)
    for mutant in mutants:
        places[mutant.file, engine.line_of(mutant)].append(mutant)
    for name, line in sorted(places):
        text = engine.texts[name].split('\n')
        file.write(f'==== {name}:{line}\n')
        for i in range(max(1, line - 4), min(len(text), line + 4) + 1):
            file.write(f'{">" if i == line else " "} {i:4} {text[i - 1]}\n')
        for mutant in places[name, line]:
            file.write(describe(engine, mutant, results[mutant.number], accepted))
        file.write('\n')


def describe(engine, mutant, result, accepted):
    reason = accepted.get(name_of(engine, mutant))
    known = f'; accepted: {reason}' if reason else ''
    what = f' ({result.test})' if result.outcome == 'left out' else ''
    return f'    #{mutant.number} {result.outcome}{what}: {mutant.alternative.operator}: {engine.change(mutant)}{known}\n'


def write_accepted(path, engine, mutants):
    with open(path, 'a') as file:
        for mutant in mutants:
            name = name_of(engine, mutant)
            file.write(f'\nfile: {name[0]}\nline: {name[1]}\nchange: {name[2]}\nreason: \n')
