// Makes the table of ./bench.sh --peers of the lines that its programs print (measure.h), read from standard input: of each peer
// the median of its rounds, in thousand operations a second. A result that is not the expected one is marked and told below,
// and is a failure where it is our own.
//     node table.mjs CASES <LINES
import { readFileSync } from 'node:fs';
import { readCases } from './cases.mjs';

const operations = ['keys', 'formats', 'reads'];
const peers = ['engine', 'ICU', 'imask', 'imask, model', 'imask, jsdom', 'inputmask', 'inputmask, jsdom'];

function readRates(lines) {
    const figures = new Map();
    for (const line of lines.split('\n').filter(Boolean)) {
        const [peer, name, operation, rate, result] = line.split('|');
        const key = [peer, name, operation].join('|');
        if (!figures.has(key))
            figures.set(key, { rates: [], result });
        figures.get(key).rates.push(Number(rate));
    }
    return figures;
}

function median(numbers) {
    const sorted = [...numbers].sort((a, b) => a - b);
    return sorted[Math.floor(sorted.length / 2)];
}

function thousands(rate) {
    const digits = rate >= 1e5 ? 0 : rate >= 1e4 ? 1 : 2;
    return (rate / 1000).toFixed(digits);
}

const line = (cells) => console.log(`| ${cells.join(' | ')} |`);

const figures = readRates(readFileSync(0, 'utf8'));
const differences = [];

function cell(row, operation, peer) {
    const figure = figures.get([peer, row.name, operation].join('|'));
    if (!figure)
        return '-';
    const expected = operation === 'reads' ? row.value : row.text;
    if (figure.result === expected)
        return thousands(median(figure.rates));
    if (peer === 'engine')
        process.exitCode = 1;
    differences.push(`${row.name}, ${operation}: ${peer} has ${figure.result} instead of ${expected}`);
    return `${thousands(median(figure.rates))} *`;
}

function tellTakenWrong(row) {
    for (const peer of peers)
        if (row.never && figures.get([peer, row.name, 'wrong'].join('|'))?.result === row.never)
            differences.push(`${row.name}: ${peer} takes ${row.never}`);
}

line(['case', 'operation', ...peers]);
line(['---', '---', ...peers.map(() => '---:')]);
for (const row of readCases(process.argv[2]))
    for (const operation of operations)
        line([row.name, operation, ...peers.map((peer) => cell(row, operation, peer))]);
readCases(process.argv[2]).forEach(tellTakenWrong);

console.log();
for (const difference of differences)
    console.log(`\\* ${difference}`);
const spreads = [...figures.values()].filter(({ rates }) => rates[0] > 0).map(({ rates }) => Math.max(...rates) / Math.min(...rates));
console.log(`The fastest round of a figure was ${median(spreads).toFixed(1)} times as fast as its slowest (median of all figures).`);
