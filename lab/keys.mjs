// What is typed into the live field, remembered as keys in braces, so that it can be played again and becomes a row of the tests.

const names = {
    Backspace: "Back",
    Delete: "Del",
    Insert: "Ins",
    ArrowLeft: "Left",
    ArrowRight: "Right",
    ArrowUp: "Up",
    ArrowDown: "Down",
    Home: "Home",
    End: "End",
    PageUp: "PgUp",
    PageDown: "PgDn",
    Escape: "Esc",
    Enter: "Enter",
};

const keysByName = Object.fromEntries(Object.entries(names).map(([key, name]) => [name, key]));

// What only the keys themselves mean, and not the clipboard of the moment.
const withCtrl = new Set(["a", "c", "x", "y", "z"]);

const isCharacter = (key) => [...key].length === 1;

// The name of a key pressed: "" for keys that do nothing to a field, null for what cannot be told by keys alone.
export const nameOf = ({ key, ctrlKey, metaKey, altKey, shiftKey }) => {
    const held = (ctrlKey || metaKey ? "Ctrl+" : "") + (shiftKey ? "Shift+" : "");
    if (names[key] !== undefined)
        return altKey || (key === "Insert" && (ctrlKey || shiftKey)) ? null : `{${held}${names[key]}}`;
    if (!isCharacter(key)) return "";
    if ((!ctrlKey && !metaKey) || (ctrlKey && altKey))
        // Ctrl and Alt together are the third level of many keyboards
        return key === "{" || key === "}" ? null : key;
    return withCtrl.has(key.toLowerCase()) ? `{${held}${key.toUpperCase()}}` : null;
};

export const split = (keys) => keys.match(/\{[^{}]+\}|[^{}]/gu) ?? [];

// A key as the field takes it: what stands in KeyboardEvent.key, and what is held.
export const strokeOf = (name) => {
    if (!name.startsWith("{")) return { key: name, held: {} };
    const parts = name.slice(1, -1).split("+");
    const last = parts.pop();
    const key = keysByName[last] ?? (isCharacter(last) ? last.toLowerCase() : null);
    return key === null ? null : { key, held: { ctrl: parts.includes("Ctrl"), shift: parts.includes("Shift") } };
};

// Keys since the field stood as it did at the start, with what was refused meanwhile.
export class Recording {
    constructor(start) {
        this.start = start;
        this.keys = "";
        this.reasons = [];
        this.beeps = 0;
    }

    add(name) {
        this.keys += name;
    }

    hear(event) {
        if (event.kind === "rejected") this.reasons.push(event.reason);
        if (event.kind === "beep") ++this.beeps;
    }
}

// The text with its caret or its selection.
export const marked = (text, { start, end }) =>
    start === end
        ? text.slice(0, start) + "|" + text.slice(start)
        : text.slice(0, start) + "[" + text.slice(start, end) + "]" + text.slice(end);
