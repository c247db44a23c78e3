// Drops fields without destroying them, and says whether the memory of the library has grown: for node --expose-gc.
import { watchedModule } from "./memory.mjs";

const { module, size } = await watchedModule();
let heard = 0;
const held = new module.Field({ mask: "##" }, () => ++heard && false);

async function drop() {
    for (let i = 0; i < 500; ++i) {
        const field = new module.Field({ mask: "##" }, () => field.text === "");
        field.type("1");
    }
    globalThis.gc();
    await new Promise((done) => setTimeout(done));
}

for (let i = 0; i < 3; ++i) await drop();
const before = size();
for (let i = 0; i < 20; ++i) await drop();
held.type("1");
console.log(JSON.stringify({ grown: size() - before, heldIsHeard: heard > 0, held: held.text }));
