// Rounds of an operation, timed and told in lines of
//     peer|case|operation|operations per second|what came out
// one a round, which table.mjs makes a table of. measure.h does the same, with a shorter
// warming up, since it has no compiler at work meanwhile.
import { performance } from 'node:perf_hooks';

const warmUpSeconds = 1.5;
const roundSeconds = 0.06;
const rounds = 7;
const burst = 16;  // operations between two looks at the clock

// What a peer has put off by setTimeout is part of what an operation costs.
const timersDone = () => new Promise((done) => setTimeout(done, 0));

async function ratePerSecond(seconds, operation) {
    const start = performance.now();
    let calls = 0;
    let elapsed = 0;
    while (elapsed < seconds) {
        for (let i = 0; i < burst; ++i)
            operation();
        calls += burst;
        elapsed = (performance.now() - start) / 1000;
    }
    await timersDone();
    return (calls * 1000) / (performance.now() - start);
}

// What a peer makes of wrong keys, in a line of the same kind.
export function tellWrong(peer, name, result) {
    console.log([peer, name, 'wrong', 0, result].join('|'));
}

// count: a call counts for so many operations (typing, one a key).
export async function measure({ peer, name, operation, count = 1 }, result, call) {
    await ratePerSecond(warmUpSeconds, call);
    for (let round = 0; round < rounds; ++round) {
        const rate = (await ratePerSecond(roundSeconds, call)) * count;
        console.log([peer, name, operation, rate.toFixed(0), result].join('|'));
    }
}
