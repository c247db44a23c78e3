// What the events of an input ask a field to do.

const isApple = /^(?:Mac|iPhone|iPad)/.test(globalThis.navigator?.platform ?? "");

const press = (key, held) => (field) => field.press(key, held);
const paste = (text) => (field) => field.paste(text);

/** Keys that are ours, and the inputType of what they do; "spin": where there is one. */
const commandKeys = {
    ArrowLeft: "",
    ArrowRight: "",
    Home: "",
    End: "",
    ArrowUp: "insertReplacementText",
    ArrowDown: "insertReplacementText",
    PageUp: "spin",
    PageDown: "spin",
    Backspace: "deleteContentBackward",
    Delete: "deleteContentForward",
};

const stepKeys = ["ArrowUp", "ArrowDown", "PageUp", "PageDown"];

/** With Ctrl, or on Apple's keyboards with Cmd. */
const commandLetters = { a: "insertReplacementText", z: "historyUndo", y: "historyRedo" };

/** A key that is held makes steps that belong together, until it comes up. */
export function isStepKey(key) {
    return stepKeys.includes(key);
}

function letterCommand(event) {
    const inputType = commandLetters[event.key.toLowerCase()];
    if (!inputType || event.altKey) return null;
    const redo = inputType === "historyUndo" && event.shiftKey;
    return { act: press(event.key, { ctrl: true, shift: event.shiftKey }), inputType: redo ? "historyRedo" : inputType };
}

/** Shift and Delete with a selection cut, which comes as an event of its own. */
function isCut(event, hasSelection) {
    return event.key === "Delete" && event.shiftKey && !event.ctrlKey && hasSelection;
}

/**
 * What a key does that makes no character; null where that is the browser's, which may tell us by another event.
 * @param {KeyboardEvent} event
 * @param {boolean} hasSpin
 * @param {boolean} hasSelection
 */
export function commandOf(event, hasSpin, hasSelection) {
    const { key, altKey, ctrlKey, metaKey } = event;
    const held = { shift: event.shiftKey, ctrl: ctrlKey };
    if (key.length === 1 && (isApple ? metaKey : ctrlKey)) return letterCommand(event);
    if (metaKey || (isApple && ctrlKey)) return null;
    if (altKey) return key === "Backspace" && !isApple ? { act: (field) => field.undo(), inputType: "historyUndo" } : null;
    if (event.code === "NumpadDecimal" && key.length === 1) return { act: press("NumpadDecimal"), inputType: "insertText" };
    const inputType = commandKeys[key];
    if (inputType === undefined || (inputType === "spin" && !hasSpin) || isCut(event, hasSelection)) return null;
    if (isStepKey(key)) return { act: (field) => field.keyDown(key, held), inputType: "insertReplacementText" };
    return { act: press(key, held), inputType: inputType || "insertReplacementText" };
}

const eraseWord = { ctrl: true };

function eraseTo(edge) {
    return (field) => {
        const { anchor, caret, start, end } = field.selection;
        if (start === end) field.select(anchor, edge === "start" ? 0 : field.text.length);
        if (caret !== field.selection.caret || start !== end) field.press("Delete");
    };
}

function eraseAll(field) {
    field.select(0, field.text.length);
    field.press("Delete");
}

const type = (text) => (field) => field.type(text);
const nothing = () => () => {};

/** What the inputTypes of beforeinput ask for. Of those that are not here none is let through. */
const edits = {
    insertText: type,
    insertFromPaste: paste,
    insertFromDrop: paste,
    insertFromYank: paste,
    insertReplacementText: paste,
    deleteContentBackward: () => press("Backspace"),
    deleteContentForward: () => press("Delete"),
    deleteContent: () => press("Delete"),
    deleteWordBackward: () => press("Backspace", eraseWord),
    deleteWordForward: () => press("Delete", eraseWord),
    deleteSoftLineBackward: () => eraseTo("start"),
    deleteHardLineBackward: () => eraseTo("start"),
    deleteSoftLineForward: () => eraseTo("end"),
    deleteHardLineForward: () => eraseTo("end"),
    deleteEntireSoftLine: () => eraseAll,
    deleteByCut: () => (field) => field.cut(),
    historyUndo: () => (field) => field.undo(),
    historyRedo: () => (field) => field.redo(),
};

/** The browser's: Enter sends the form, and an input method is heard when it is done. */
const browsersOwn = ["insertLineBreak", "insertCompositionText", "insertFromComposition", "deleteCompositionText"];

/**
 * What is asked for; null where it is left to the browser.
 * @param {InputEvent} event
 */
export function editOf(event) {
    if (browsersOwn.includes(event.inputType)) return null;
    const data = event.data ?? event.dataTransfer?.getData("text/plain") ?? "";
    return { act: (edits[event.inputType] ?? nothing)(data), data: event.data };
}

const pixelsOfNotch = 100;
const linesOfNotch = 3;

/**
 * Notches of a wheel, upwards: of a touchpad parts of one.
 * @param {WheelEvent} event
 */
export function notchesOf(event) {
    if (event.deltaMode === WheelEvent.DOM_DELTA_PAGE) return -Math.sign(event.deltaY);
    const notches = -event.deltaY / (event.deltaMode === WheelEvent.DOM_DELTA_LINE ? linesOfNotch : pixelsOfNotch);
    return Math.abs(notches) < 0.5 ? notches : Math.sign(notches) * Math.max(1, Math.floor(Math.abs(notches)));
}

/**
 * What an input method has put in the place of what; null where it has changed nothing.
 * @param {{ text: string, start: number, end: number }} before
 * @param {string} after the whole text
 * @param {string} data what it says that it has put there
 */
export function recompose(before, after, data) {
    const { text, start, end } = before;
    if (text === after) return null;
    if (after === text.slice(0, start) + data + text.slice(end)) return { start, end, text: data };
    const shorter = Math.min(text.length, after.length);
    let same = 0;
    while (same < shorter && text[same] === after[same]) ++same;
    let sameBehind = 0;
    while (sameBehind < shorter - same && text.at(-1 - sameBehind) === after.at(-1 - sameBehind)) ++sameBehind;
    return { start: same, end: text.length - sameBehind, text: after.slice(same, after.length - sameBehind) };
}
