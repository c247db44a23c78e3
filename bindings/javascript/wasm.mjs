// The library: loaded once, its memory, texts handed in and out.
import { packed } from "./packed.mjs";

const encoder = new TextEncoder();
const decoder = new TextDecoder("utf-8", { ignoreBOM: true });

/** Who hears the events of a field, by its address. */
const listeners = new Map();

/** What the library asks of the page. */
const page = {
    /** The local time, into six integers. */
    now(address) {
        const now = new Date();
        const parts = [now.getFullYear(), now.getMonth(), now.getDate(), now.getHours(), now.getMinutes(), now.getSeconds()];
        new Int32Array(memory.buffer, address, parts.length).set(parts);
    },
    /** A double as its shortest digits, d.ddde+x. */
    write(value, address) {
        return encoder.encodeInto(value.toExponential(), new Uint8Array(memory.buffer, address, 32)).written;
    },
    told(field, ...event) {
        return listeners.get(field)?.(...event) ? 1 : 0;
    },
};

async function unpack(text) {
    const bytes = Uint8Array.from(atob(text), (character) => character.charCodeAt(0));
    const stream = new Blob([bytes]).stream().pipeThrough(new DecompressionStream("deflate-raw"));
    return new Response(stream).arrayBuffer();
}

export const library = (await WebAssembly.instantiate(await unpack(packed), { env: page })).instance.exports;
const memory = library.memory;
library._initialize();

/**
 * @param {number} field
 * @param {((...event: number[]) => boolean | void) | null} listener null: none any more
 */
export function hearField(field, listener) {
    if (listener) listeners.set(field, listener);
    else listeners.delete(field);
}

/** A NUL would end the text: it goes in as what it is, no character. */
function place(text) {
    if (text === null || text === undefined) return 0;
    const bytes = encoder.encode(String(text).replaceAll("\0", "\ufffd"));
    const address = library.malloc(bytes.length + 1);
    const room = new Uint8Array(memory.buffer, address, bytes.length + 1);
    room.set(bytes);
    room[bytes.length] = 0;
    return address;
}

/**
 * Lends texts to the library for a call; null and undefined are null there.
 * @template Result
 * @param {(string | null | undefined)[]} texts
 * @param {(...addresses: number[]) => Result} call
 * @returns {Result}
 */
export function lend(texts, call) {
    const addresses = texts.map(place);
    try {
        return call(...addresses);
    } finally {
        addresses.forEach((address) => library.free(address));
    }
}

let room = 1024;
let buffer = library.malloc(room);

/**
 * A text that the library writes into a buffer; null where it has none.
 * @param {(buffer: number, size: number) => number} write
 */
export function textFrom(write) {
    const length = write(buffer, room);
    if (length < 0) return null;
    if (length >= room) {
        library.free(buffer);
        room = length + 1;
        buffer = library.malloc(room);
        write(buffer, room);
    }
    return decoder.decode(new Uint8Array(memory.buffer, buffer, length));
}

const cells = library.malloc(16);

/**
 * What a call returns, and the integers that it writes.
 * @param {number} count at most four
 * @param {(...addresses: number[]) => number} call with an address for each
 */
export function integersFrom(count, call) {
    const addresses = Array.from({ length: count }, (_, index) => cells + 4 * index);
    const result = call(...addresses);
    return [result, ...new Int32Array(memory.buffer, cells, count)];
}
