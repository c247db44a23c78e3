// A field in memory.
import { dataTypes, eventKinds, numberOfType, positionKinds, reasons, states } from "./names.mjs";
import { withSettings } from "./settings.mjs";
import { pointsBefore, unitsBefore } from "./texts.mjs";
import { hearField, integersFrom, lend, library, textFrom } from "./wasm.mjs";

const AUTOSKIP = 0x1;
const SPIN = 0x2;
const CODE_DISPLAY = 0x8;
const MODERN = 0x10;
const CODE_TABLE = 0x08000000;
const SHIFT = 1;
const CONTROL = 2;

/** Keys by their names in KeyboardEvent.key (of the keypad's point in KeyboardEvent.code), and their numbers in the library. */
const keyNumbers = {
    Backspace: 0x08, PageUp: 0x21, PageDown: 0x22, End: 0x23, Home: 0x24, ArrowLeft: 0x25, ArrowUp: 0x26, ArrowRight: 0x27,
    ArrowDown: 0x28, Insert: 0x2d, Delete: 0x2e, NumpadDecimal: 0x6e,
};

function numberOfKey(key, held) {
    if (held.ctrl && /^[a-z]$/i.test(key)) return key.toUpperCase().charCodeAt(0);
    return keyNumbers[key] ?? 0;
}

function bitsOf(held) {
    return (held.shift ? SHIFT : 0) | (held.ctrl ? CONTROL : 0);
}

function isOneCharacter(text) {
    return [...text].length === 1;
}

/** An entry is "text, tab, value"; entries are parted by "/", and one that belongs to a text is doubled. */
function codeTableOf(choices) {
    const escaped = (text) => String(text).replaceAll("\t", " ").replaceAll("/", "//");
    const entries = choices.map(({ text, value }) => `${escaped(text)}\t${value === null ? "null!" : escaped(value)}`);
    return entries.join("/");
}

function spinOf(options) {
    const spin = typeof options.spin === "object" ? options.spin : {};
    const table = options.choices ? codeTableOf(options.choices) : null;
    return { on: Boolean(options.spin || table), increment: spin.increment ?? 1, range: spin.range ?? null, table };
}

export class Field {
    #field;
    #listener;
    #modern;
    #readOnly = false;
    #pasted = null; // what the position of a refusal is counted in while a text is pasted

    /**
     * @param {import("./ztfield").FieldOptions} [options]
     * @param {(event: import("./ztfield").FieldEvent) => boolean | void} [listener]
     */
    constructor(options = {}, listener = undefined) {
        const type = numberOfType(options.type ?? "string");
        const spin = spinOf(options);
        const bits =
            (options.autoskip ? AUTOSKIP : 0) |
            (options.modern === false ? 0 : MODERN) |
            (spin.on ? SPIN : 0) |
            (spin.table ? CODE_DISPLAY : 0);
        this.#field = withSettings(options.settings, (settings) =>
            lend([options.mask ?? "", spin.range, spin.table], (mask, range, table) =>
                library.ZTW_Create(mask, type, bits, range, spin.increment, table, settings)));
        this.#listener = listener;
        this.#modern = options.modern !== false;
        if (options.value !== undefined) this.value = options.value;
        if (options.readOnly) this.readOnly = true;
        if (listener) hearField(this.#field, (...event) => this.#hear(...event));
    }

    destroy() {
        hearField(this.#field, null);
        library.ZTF_Destroy(this.#field);
        this.#field = 0;
    }

    // ---- what is shown

    get text() {
        return textFrom((buffer, size) => library.ZTF_GetText(this.#field, buffer, size));
    }

    get selection() {
        const [, anchorPoints, caretPoints] = integersFrom(2, (anchorAt, caretAt) =>
            library.ZTF_GetSelection(this.#field, anchorAt, caretAt));
        const text = this.text;
        const anchor = unitsBefore(text, anchorPoints);
        const caret = unitsBefore(text, caretPoints);
        return { anchor, caret, start: Math.min(anchor, caret), end: Math.max(anchor, caret) };
    }

    get positions() {
        const characters = [...this.text];
        const count = library.ZTF_CountPositions(this.#field);
        let index = 0;
        return Array.from({ length: count }, (_, at) => {
            const [, kind, character, escaped, part] = integersFrom(4, (address) =>
                library.ZTF_GetPosition(this.#field, at, address));
            const length = characters[at]?.length ?? 1;
            index += length;
            return {
                kind: positionKinds[kind],
                character: String.fromCodePoint(character),
                escaped: escaped !== 0,
                part,
                index: index - length,
                length,
            };
        });
    }

    // ---- values

    get state() {
        return states[library.ZTF_GetState(this.#field)];
    }

    get value() {
        return textFrom((buffer, size) => library.ZTF_GetDataString(this.#field, buffer, size));
    }

    set value(text) {
        lend([text], (address) => library.ZTF_SetDataString(this.#field, address));
    }

    tryValue(text) {
        return reasons[lend([text], (address) => library.ZTF_TrySetDataString(this.#field, address))][0];
    }

    setText(text) {
        lend([text], (address) => library.ZTF_SetText(this.#field, address));
    }

    // ---- how it is set up

    get mask() {
        return textFrom((buffer, size) => library.ZTF_GetMask(this.#field, buffer, size));
    }

    get dataType() {
        return dataTypes[library.ZTF_GetDataType(this.#field)];
    }

    setMask(mask, type) {
        const number = numberOfType(type);
        return lend([mask], (address) => library.ZTF_SetMask(this.#field, address, number)) !== 0;
    }

    setSettings(settings) {
        withSettings(settings, (handle) => library.ZTF_UseSettings(this.#field, handle));
    }

    setSpin(spin, choices = undefined) {
        const { on, increment, range, table } = spinOf({ spin, choices });
        lend([range, table], (rangeAt, tableAt) =>
            library.ZTF_SetSpin(this.#field, increment, rangeAt, tableAt, table ? CODE_TABLE : 0));
        library.ZTF_ShowSpin(this.#field, on ? 1 : 0);
    }

    get modern() {
        return this.#modern;
    }

    set modern(on) {
        if (Boolean(on) === this.#modern) return;
        this.#modern = Boolean(on);
        library.ZTF_SetModern(this.#field, on ? 1 : 0);
    }

    get readOnly() {
        return this.#readOnly;
    }

    set readOnly(on) {
        this.#readOnly = Boolean(on);
        library.ZTF_SetReadOnly(this.#field, on ? 1 : 0);
    }

    // ---- what the user does

    press(key, held = {}) {
        const number = numberOfKey(key, held);
        if (number) library.ZTF_Press(this.#field, number, bitsOf(held));
        else if (!held.ctrl && isOneCharacter(key)) this.type(key);
    }

    keyDown(key, held = {}) {
        library.ZTF_KeyDown(this.#field, numberOfKey(key, held), bitsOf(held));
    }

    keyUp(key, held = {}) {
        library.ZTF_KeyUp(this.#field, numberOfKey(key, held), bitsOf(held));
    }

    type(text) {
        lend([text], (address) => library.ZTF_Type(this.#field, address));
    }

    paste(text) {
        this.#pasted = text;
        lend([text], (address) => library.ZTF_SetClipboard(this.#field, address));
        library.ZTF_Paste(this.#field);
        this.#pasted = null;
    }

    cut() {
        return this.#taken(() => library.ZTF_Cut(this.#field));
    }

    copy() {
        return this.#taken(() => library.ZTF_Copy(this.#field));
    }

    get canUndo() {
        return library.ZTF_CanUndo(this.#field) !== 0;
    }

    get canRedo() {
        return library.ZTF_CanRedo(this.#field) !== 0;
    }

    undo() {
        library.ZTF_Undo(this.#field);
    }

    redo() {
        library.ZTF_Redo(this.#field);
    }

    click(position, held = {}) {
        library.ZTF_Click(this.#field, this.#points(position), bitsOf(held));
    }

    doubleClick(position) {
        library.ZTF_DoubleClick(this.#field, this.#points(position));
    }

    drag(from, to) {
        library.ZTF_Drag(this.#field, this.#points(from), this.#points(to));
    }

    select(anchor, caret) {
        library.ZTF_Select(this.#field, this.#points(anchor), this.#points(caret));
    }

    wheel(notches) {
        library.ZTF_Wheel(this.#field, notches);
    }

    step(up) {
        library.ZTF_Step(this.#field, up ? 1 : 0);
    }

    leave() {
        library.ZTF_Leave(this.#field);
    }

    letTimePass(milliseconds) {
        library.ZTF_LetTimePass(this.#field, milliseconds);
    }

    // ---- events and positions

    #points(units) {
        return pointsBefore(this.text, units);
    }

    /** What an act leaves on the clipboard; "" where it leaves nothing. */
    #taken(act) {
        library.ZTF_SetClipboard(this.#field, 0);
        act();
        return textFrom((buffer, size) => library.ZTF_GetClipboard(this.#field, buffer, size)) ?? "";
    }

    #hear(kindNumber, reason, position, character, was, is) {
        const kind = eventKinds[kindNumber];
        if (kind === "state") return this.#listener({ kind, was: states[was], is: states[is] });
        if (kind !== "rejected") return this.#listener({ kind });
        return this.#listener({
            kind,
            reason: reasons[reason][0],
            position: unitsBefore(this.#pasted ?? this.text, position),
            character: character ? String.fromCodePoint(character) : "",
            message: reasons[reason][1],
        });
    }
}
