// The calls that the laboratory writes, read by those who will read them: the compilers and interpreters of C, C++, Python and JavaScript.
import assert from "node:assert/strict";
import { spawnSync } from "node:child_process";
import { mkdtempSync, rmSync, writeFileSync } from "node:fs";
import { tmpdir } from "node:os";
import { after, test } from "node:test";
import { fileURLToPath } from "node:url";

import { benchOf } from "../../lab/bench.mjs";
import { callOf } from "../../lab/calls.mjs";

const root = fileURLToPath(new URL("../../", import.meta.url));
const folder = mkdtempSync(tmpdir() + "/lab-calls-");

const benches = [
    "",
    "#mask=MM/DD/YYYY&type=date&autoskip=1&lock=1&by=7&from=2026-01-01&to=2026-12-31&value=2026-07-04&region=de",
    '#mask=&type=string&spin=0&choices=a/b+=+1;say+"hi"+=;it\'s+=+2;back\\slash',
    "#mask=~A\\**'\"&type=string&modern=0&spin=0",
    "#mask=[date]+[time]&type=datetime&by=0&region=fr&currency=*",
    "#mask=*0&type=decimal&to=9",
    "#mask=**0%25&type=number&from=1",
    "#mask=HH:MM&type=time",
].map((address) => benchOf(address).bench);

const headers = ["-fsyntax-only", "-Wall", "-Werror", `-I${root}include`, `-I${root}bindings/cpp`];

const inFunction = (name, parameters, source, last) => `void ${name}(${parameters})\n{\n${source}\n${last}}\n`;

// How each language frames the calls, and who reads them.
const readers = {
    c: {
        file: "calls.c",
        frame: (source, i) =>
            inFunction(`Make${i}`, "SharedHeap heap, HWND form, HINSTANCE instance", source, "(void)field;\n"),
        head: '#include "ztedit.h"\n',
        command: (file) => ["x86_64-w64-mingw32-gcc", ...headers, file],
    },
    cpp: {
        file: "calls.cpp",
        frame: (source, i) => inFunction(`Make${i}`, "zt::Heap& heap, HWND form", source, "(void)field;\n"),
        head: '#include "ztedit.hpp"\n',
        command: (file) => ["x86_64-w64-mingw32-g++", "-std=c++17", ...headers, file],
    },
    python: {
        file: "calls.py",
        frame: (source, i) => `def make${i}(heap, form):\n${source.replace(/^/gm, "    ")}\n\n`,
        head: "import ctypes\nimport ztedit\n\n",
        command: (file) => ["python3", "-m", "py_compile", file],
    },
    javascript: {
        file: "calls.mjs",
        frame: (source, i) => source.replace(/^import .*$/m, "").replace("field =", `field${i} =`) + "\n",
        head: 'import { attach } from "./ztfield.mjs";\n',
        command: (file) => ["node", "--check", file],
    },
};

after(() => rmSync(folder, { recursive: true }));

for (const [language, { file, frame, head, command }] of Object.entries(readers))
    test(`the calls for ${file} are read without complaint`, () => {
        const path = `${folder}/${file}`;
        writeFileSync(path, head + benches.map((bench, i) => frame(callOf(language, bench), i)).join("\n"));
        const [program, ...words] = command(path);
        const run = spawnSync(program, words, { encoding: "utf8" });
        assert.equal(run.status, 0, String(run.error ?? run.stderr));
    });
