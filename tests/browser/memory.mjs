// The module, loaded with an eye on the memory of its library, which it shows to nobody.

let copies = 0;

/** A copy of the module of one's own, and the size of its memory in bytes. */
export async function watchedModule() {
    const { instantiate } = WebAssembly;
    let memory;
    WebAssembly.instantiate = async (...given) => {
        const made = await instantiate.apply(WebAssembly, given);
        memory = made.instance?.exports.memory ?? memory; // others have a library of theirs loaded, too
        return made;
    };
    const module = await import(`../../build/web/ztfield.mjs?${++copies}`);
    WebAssembly.instantiate = instantiate;
    return { module, size: () => memory.buffer.byteLength };
}
