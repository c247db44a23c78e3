// imask and inputmask, played by ./bench.sh --peers.
//     node web.mjs CASES MODULES memory   keys over inputs in memory, formats and reads
//     node web.mjs CASES MODULES jsdom    keys over inputs of jsdom
import { createRequire } from 'node:module';
import { join, resolve } from 'node:path';
import { readCases } from './cases.mjs';
import { measure, tellWrong } from './measure.mjs';
import { installJsdom, installMemoryDom } from './memory_dom.mjs';
import { imaskPeer, inputmaskPeer } from './web_peers.mjs';

const [casesPath, modules, dom] = process.argv.slice(2);
const require = createRequire(join(resolve(modules), 'package.json'));
const inJsdom = dom === 'jsdom';
const createInput = inJsdom ? installJsdom(require) : installMemoryDom();

// What a browser does with a key: the character goes into the input unless a listener has seen to it.
function press(input, key) {
    const options = { key, keyCode: key.charCodeAt(0), bubbles: true, cancelable: true };
    if (input.dispatchEvent(new KeyboardEvent('keydown', options))) {
        const start = input.selectionStart;
        input.value = input.value.slice(0, start) + key + input.value.slice(input.selectionEnd);
        input.setSelectionRange(start + 1, start + 1);
        input.dispatchEvent(new InputEvent('input', { data: key, inputType: 'insertText', bubbles: true }));
    }
    input.dispatchEvent(new KeyboardEvent('keyup', options));
}

function typeOverAll(input, keys) {
    input.setSelectionRange(0, input.value.length);
    for (const key of keys)
        press(input, key);
}

// What the control of imask does with its model for a character, and no more.
function spliceOverAll(masked, keys) {
    let position = 0;
    let selected = masked.displayValue.length;
    for (const key of keys) {
        const { offset } = masked.splice(position, selected, key, 'NONE', { input: true, raw: true });
        position = masked.nearestInputPos(position + offset, 'NONE');
        selected = 0;
    }
}

const settled = () => new Promise((done) => setTimeout(done, 20));

async function measureKeys(peer, row, played) {
    const input = createInput();
    played.attach(input);
    input.focus();
    await settled();  // the libraries put off what they do when an input is entered
    for (let i = 0; i < 2; ++i) {
        typeOverAll(input, row.keys);
        await settled();
    }
    const name = inJsdom ? `${peer}, jsdom` : peer;
    await measure({ peer: name, name: row.name, operation: 'keys', count: row.keys.length }, input.value, () =>
        typeOverAll(input, row.keys));
    typeOverAll(input, row.wrong ?? '');
    tellWrong(name, row.name, input.value);
}

async function measureModel(peer, row, masked) {
    spliceOverAll(masked, row.keys);
    spliceOverAll(masked, row.keys);
    await measure({ peer: `${peer}, model`, name: row.name, operation: 'keys', count: row.keys.length }, masked.value, () =>
        spliceOverAll(masked, row.keys));
    spliceOverAll(masked, row.wrong ?? '');
    tellWrong(`${peer}, model`, row.name, masked.value);
}

let kept;  // results are used, or the compiler could leave the work out

async function measureValues(peer, row, played) {
    const value = played.read(row.text);
    const read = value == null ? 'no value' : played.canonical(value);
    await measure({ peer, name: row.name, operation: 'formats' }, played.format(), () => {
        kept = played.format();
    });
    await measure({ peer, name: row.name, operation: 'reads' }, read, () => {
        kept = played.read(row.text);
    });
}

const peers = { imask: imaskPeer(require), inputmask: inputmaskPeer(require) };
for (const row of readCases(casesPath)) {
    for (const [peer, play] of Object.entries(peers)) {
        const played = play(row);
        await measureKeys(peer, row, played);
        if (inJsdom)
            continue;
        if (played.model)
            await measureModel(peer, row, played.model);
        await measureValues(peer, row, played);
    }
}
if (kept === undefined && !inJsdom)
    process.exitCode = 1;
