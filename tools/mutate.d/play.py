"""Builds the test programs over the instrumented engine, records what each test reaches, and plays the mutants."""
import json
import os
import re
import shutil
import subprocess
import sys
import threading
import time
from dataclasses import dataclass, field
from pathlib import Path

HERE = Path(__file__).parent
QUICK = ['units', 'field', 'engine', 'model']
PROGRAMS = QUICK + ['properties']  # the last for what all others have not noticed
NO_MUTANT = 0x7FFFFFFF
HEAVY = 60000  # microseconds: tests that take longer run after all others
LINKED = ['CMakeLists.txt', 'README.md', 'CHANGELOG.md', 'cmake', 'companions', 'docs', 'include', 'tests', 'tools', 'win32', 'demo',
          'samples']
# Small samples; see CONTRIBUTING.md.
SAMPLES = {'ZT_LAW_EVERY': '8192', 'ZT_MASKS': '3000', 'ZT_MODEL_ROUNDS': '1'}


def link_tree(root, tree):
    """Beside the engine's copy everything else stands as it is."""
    tree.mkdir(parents=True, exist_ok=True)
    for name in LINKED:
        if not (tree / name).exists():
            os.symlink(root / name, tree / name)


def run(command, log, **more):
    with open(log, 'w') as output:
        if subprocess.run(command, stdout=output, stderr=subprocess.STDOUT, **more).returncode:
            sys.stderr.write(Path(log).read_text()[-4000:])
            raise SystemExit(f'FAILED: {" ".join(map(str, command[:4]))} ... (see {log})')


def build(tree, out, jobs):
    agent = out / 'agent.o'
    before = agent.read_bytes() if agent.exists() else b''
    include = f'-include {HERE}/switches.h'
    run(['clang++', '-std=c++17', '-O1', '-w', '-fno-access-control', '-I/usr/src/googletest/googletest/include',
         '-I/usr/src/googletest/googletest', '-c', HERE / 'agent.cpp', '-o', agent],
        out / 'agent.log')
    if not (out / 'programs/build.ninja').exists():
        run(['cmake', '-G', 'Ninja', '-S', tree, '-B', out / 'programs', '-DCMAKE_BUILD_TYPE=Debug', '-DCMAKE_CXX_COMPILER=clang++',
             '-DCMAKE_C_COMPILER=clang', '-DZT_WARNINGS_AS_ERRORS=OFF', '-DCMAKE_TRY_COMPILE_TARGET_TYPE=STATIC_LIBRARY',
             f'-DCMAKE_CXX_FLAGS_DEBUG=-O1 -g0 -w -D_GLIBCXX_ASSERTIONS {include}',
             f'-DCMAKE_EXE_LINKER_FLAGS={agent} -fuse-ld=lld'], out / 'configure.log')
    if agent.read_bytes() != before:  # the build knows it as a flag only
        for program in (out / 'programs/bin').glob('test_*'):
            program.unlink()
    targets = [f'test_{p}' for p in PROGRAMS]
    run(['ninja', '-C', out / 'programs', f'-j{jobs}', *targets], out / 'build.log')


@dataclass
class Test:
    name: str
    microseconds: int
    steps: int


@dataclass
class Record:
    """What the tests of a program reach."""
    program: str
    tests: list = field(default_factory=list)
    reaching: dict = field(default_factory=dict)  # the first mutant of a site: the numbers of the tests
    everywhere: set = field(default_factory=set)  # reached outside of tests


def environment(**more):
    return {**os.environ, **{k: v for k, v in SAMPLES.items() if k not in os.environ}, 'MALLOC_PERTURB_': '165', **more}


def record(out, program):
    path = out / f'{program}.record'
    run([out / f'programs/bin/test_{program}', '--gtest_brief=1'], out / f'record-{program}.log',
        env=environment(MUTATE_RECORD=str(path)))
    result = Record(program)
    for line in path.read_text().splitlines():
        name, microseconds, steps, *reached = line.split(' ')
        if name == '-':
            result.everywhere.update(map(int, reached))
            continue
        for first in reached:
            result.reaching.setdefault(int(first), []).append(len(result.tests))
        result.tests.append(Test(name, int(microseconds), int(steps)))
    return result


class Server:
    """A loaded test program that plays one mutant after the other."""

    def __init__(self, out, program, tell=False):
        commands, self.to = os.pipe()
        self.of, answers = os.pipe()
        os.set_inheritable(commands, True)
        os.set_inheritable(answers, True)
        more = {'MUTATE_TELL': '1'} if tell else {}
        # The descriptors 3 and 4 are the child's ends, wherever they were made.
        script = f'exec 3<&{commands} 4>&{answers}; exec "$0" --gtest_brief=1'
        self.process = subprocess.Popen(['bash', '-c', script, str(out / f'programs/bin/test_{program}')], pass_fds=(commands, answers),
                                        env=environment(MUTATE_PLAY=str(out / f'{program}.record'), **more))
        os.close(commands)
        os.close(answers)
        self.answers = os.fdopen(self.of)

    def play(self, number, chosen):
        self.send(f"{number} {chosen}\n".encode())
        answer = self.answers.readline().strip()
        if not answer:
            raise SystemExit('a test program ended unexpectedly')
        return answer

    def send(self, data):
        while data:
            data = data[os.write(self.to, data):]

    def close(self):
        os.close(self.to)
        self.process.wait()
        self.answers.close()


@dataclass
class Result:
    outcome: str  # failed, steps, time, crashed, survived, unreached
    test: str = ''
    seconds: float = 0


class Worker(threading.Thread):
    def __init__(self, out, records, programs, queue, results, progress):
        super().__init__()
        self.out, self.records, self.programs = out, records, programs
        self.queue, self.results, self.progress = queue, results, progress
        self.servers, self.killers = {}, {}
        self.numbers = {p: {t.name: i for i, t in enumerate(r.tests)} for p, r in records.items()}

    def run(self):
        try:
            while True:
                try:
                    mutant = self.queue.pop()
                except IndexError:
                    break
                begin = time.monotonic()
                result = self.play(mutant)
                result.seconds = time.monotonic() - begin
                self.results[mutant.number] = result
                self.progress(mutant, result)
        finally:
            for server in self.servers.values():
                server.close()

    def play(self, mutant):
        """First the tests that killed others of the file, then all that reach it."""
        killers = self.killers.setdefault(mutant.file, [])
        for program, number in killers[:8]:
            chosen = choose(self.records[program], mutant.site.first, False)
            if chosen[number] == '1':
                answer = self.server(program).play(mutant.number, '0' * number + '1' + '0' * (len(chosen) - number - 1))
                if answer != 'survived':
                    return self.killed(killers, program, answer)
        reached = False
        for heavy in (False, True):
            for program in self.programs:
                chosen = choose(self.records[program], mutant.site.first, heavy)
                if '1' not in chosen:
                    continue
                reached = True
                answer = self.server(program).play(mutant.number, chosen)
                if answer != 'survived':
                    return self.killed(killers, program, answer)
        return Result('survived' if reached else 'unreached')

    def killed(self, killers, program, answer):
        outcome, _, test = answer.partition(' ')
        number = self.numbers[program].get(test)
        if number is not None and not is_heavy(self.records[program].tests[number]):
            if (program, number) in killers:
                killers.remove((program, number))
            killers.insert(0, (program, number))
        return Result(outcome, f'{program}: {test}')

    def server(self, program):
        if program not in self.servers:
            self.servers[program] = Server(self.out, program)
        return self.servers[program]


def is_heavy(test):
    return test.microseconds > HEAVY


def choose(record, first, heavy):
    """The tests of a program that reach a site, as the agent wants them."""
    chosen = ['0'] * len(record.tests)
    numbers = range(len(record.tests)) if first in record.everywhere else record.reaching.get(first, ())
    for number in numbers:
        if is_heavy(record.tests[number]) == heavy:
            chosen[number] = '1'
    return ''.join(chosen)


def play(out, records, programs, mutants, jobs, progress):
    queue, results = list(reversed(mutants)), {}
    workers = [Worker(out, records, programs, queue, results, progress) for _ in range(jobs)]
    for worker in workers:
        worker.start()
    for worker in workers:
        worker.join()
    if len(results) != len(mutants):
        raise SystemExit('not all mutants were played')
    return results


class Builder:
    """Mutants that no switch can make, because the compiler itself evaluates them: built one by one."""

    def __init__(self, engine, tree, out, records):
        self.engine, self.tree, self.out, self.records = engine, tree, out, records
        self.place = out / 'one'
        (self.place / 'programs/bin').mkdir(parents=True, exist_ok=True)
        rows = json.loads((out / 'programs/compile_commands.json').read_text())
        self.compile = {row['file']: row['command'] for row in rows if '/zt_engine.dir/' in row['command']}
        self.links = {}
        for program in PROGRAMS:
            done = subprocess.run(['ninja', '-C', str(out / 'programs'), '-t', 'commands', '-s', f'bin/test_{program}'],
                                  capture_output=True, text=True, check=True)
            self.links[program] = done.stdout.strip().splitlines()[-1]
            shutil.copy(out / f'{program}.record', self.place)

    def play(self, mutant):
        """Whether the tests notice; what the compiler refuses is noticed too."""
        source = self.place / 'mutant.cpp'
        source.write_bytes(self.engine.mutated(mutant).encode('latin-1'))
        file = str(self.tree / mutant.file)
        name = Path(file).name + '.o'  # as in the library
        command = re.sub(r' -o \S+', f' -o {self.place / name}', self.compile[file]).replace(f'-c {file}', f'-c {source}')
        if self.run(command):
            return Result('compiler')
        library = self.place / 'libmutant.a'
        shutil.copy(self.out / 'programs/lib/libzt_engine.a', library)
        if self.run(f'ar r {library} {self.place / name}'):
            raise SystemExit('the library could not be changed')
        for heavy in (False, True):
            for program in PROGRAMS:
                if not heavy and self.run(self.links[program].replace('lib/libzt_engine.a', str(library))
                                          .replace(f'-o bin/test_{program}', f'-o {self.place}/programs/bin/test_{program}')):
                    raise SystemExit(f'test_{program} could not be linked')
                tests = self.records[program].tests
                chosen = ''.join('1' if is_heavy(t) == heavy else '0' for t in tests)
                server = Server(self.place, program)
                answer = server.play(NO_MUTANT, chosen)
                server.close()
                if answer != 'survived':
                    outcome, _, test = answer.partition(' ')
                    return Result(outcome, f'{program}: {test}')
        return Result('survived')

    def run(self, command):
        return subprocess.run(command, shell=True, cwd=self.out / 'programs', stdout=subprocess.DEVNULL,
                              stderr=subprocess.DEVNULL).returncode


def build_and_play(engine, tree, out, records, mutants):
    builder = Builder(engine, tree, out, records)
    return {m.number: builder.play(m) for m in mutants}
