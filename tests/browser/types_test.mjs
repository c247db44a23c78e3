// The types that the module declares: a program that uses all of them, and the module's own sources, compiled.
import assert from "node:assert/strict";
import { spawnSync } from "node:child_process";
import { test } from "node:test";
import { fileURLToPath } from "node:url";

const compiler = fileURLToPath(new URL("../../build/browser/node_modules/typescript/bin/tsc", import.meta.url));

function complaintsOf(project) {
    const path = fileURLToPath(new URL(`types/${project}`, import.meta.url));
    const { stdout, stderr, status, error } = spawnSync(process.execPath, [compiler, "--project", path], { encoding: "utf8" });
    assert.equal(error, undefined);
    return status === 0 ? [] : (stdout + stderr).trim().split("\n");
}

test("a strict program finds its types, and is refused what they do not allow", () => {
    assert.deepEqual(complaintsOf("tsconfig.json"), []);
});

test("the sources are what is declared of them", () => {
    assert.deepEqual(complaintsOf("sources.json"), []);
});
