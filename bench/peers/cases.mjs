// The cases that every program of ./bench.sh --peers plays, from one table (cases.txt).
import { readFileSync } from 'node:fs';

export function readCases(path) {
    const cases = [];
    for (const line of readFileSync(path, 'utf8').split('\n')) {
        const column = /^([^#\s]+)\s+(.*)$/.exec(line);
        if (!column)
            continue;
        const [, name, content] = column;
        if (name === 'case')
            cases.push({ name: content });
        else
            cases[cases.length - 1][name] = content;
    }
    return cases;
}
