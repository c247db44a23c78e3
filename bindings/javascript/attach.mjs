// An input of a page that has become a field: what its user does goes to the field, and what the field shows into the input.
import { Field } from "./field.mjs";
import { parse } from "./values.mjs";
import { reportLater } from "./wasm.mjs";
import { dress } from "./dress.mjs";
import { numberTypes } from "./names.mjs";
import { commandOf, editOf, insert, isStepKey, notchesOf, recompose } from "./acts.mjs";

/** Types of inputs whose selection a page can read and set. */
const selectable = ["text", "search", "tel", "url", "password"];

const shownRefusal = 300; // milliseconds

/** The input's own setter: frameworks put others in front of it, which take what is set for what they know already. */
const setInputValue = Object.getOwnPropertyDescriptor(globalThis.HTMLInputElement?.prototype ?? {}, "value")?.set;

/** Who has which input. */
const attachedInputs = new WeakMap();

class AttachedInput {
    #input;
    #field;
    #options;
    #clothes;
    #stop = new AbortController();
    #roots = new WeakSet(); // where the resets of forms are heard
    #acting = false;
    #telling = false;
    #composing = null; // what stood there when an input method began
    #late = null; // an edit that the browser does not let us take its place of
    #disturbed = false; // the page has put another text there when it heard of ours: where the caret is says nothing then
    #pressed = false; // a mouse button
    #clicked = 0;
    #dropped = false; // a text that was dragged, here
    #notches = 0;
    #lastAct = performance.now();
    #committed; // the text that was last told by "change"
    #lastValue;
    #lastState;
    #refusal = 0;

    constructor(input, options) {
        this.#input = input;
        this.#options = options;
        const { value, ...setup } = options;
        this.#field = new Field({ ...setup, readOnly: options.readOnly || input.readOnly }, (event) => this.#hear(event));
        this.#clothes = dress(input, this.#field, options);
        this.#work(() => (value === undefined ? this.#takeTyped(input.value) : this.#take(value ?? "")));
        this.#committed = this.#field.text;
        this.#noteValue();
        this.#listen();
        this.#show();
    }

    get input() {
        return this.#input;
    }

    get field() {
        return this.#field;
    }

    get value() {
        return this.#field.value;
    }

    set value(value) {
        this.#work(() => (this.#field.value = value));
        this.#settle();
    }

    get state() {
        return this.#field.state;
    }

    setMask(mask, type) {
        const fits = this.#work(() => this.#field.setMask(mask, type));
        this.#clothes.fit();
        this.#settle();
        return fits;
    }

    detach() {
        if (this.#isDetached) return;
        this.#stop.abort();
        clearTimeout(this.#refusal);
        this.#clothes.takeOff();
        attachedInputs.delete(this.#input);
        this.#field.destroy();
    }

    get #isDetached() {
        return this.#stop.signal.aborted;
    }

    get #hasFocus() {
        return this.#input.getRootNode().activeElement === this.#input;
    }

    // ---- listening

    /** Ours come first, so that what the page hears is settled. */
    #listen() {
        const listeners = {
            keydown: this.#onKeyDown,
            keyup: this.#onKeyUp,
            beforeinput: this.#onBeforeInput,
            input: this.#onInput,
            change: this.#onChange,
            invalid: this.#onInvalid,
            compositionstart: this.#onCompositionStart,
            compositionend: this.#onCompositionEnd,
            copy: this.#onCopy,
            cut: this.#onCut,
            paste: this.#onPaste,
            mousedown: this.#onMouseDown,
            dblclick: this.#onDoubleClick,
            drop: this.#onDrop,
            wheel: this.#onWheel,
            focus: this.#onFocus,
            blur: this.#onBlur,
        };
        for (const [name, listener] of Object.entries(listeners)) this.#on(this.#input, name, listener);
        const around = {
            mouseup: this.#onMouseUp,
            selectionchange: this.#onSelectionChange,
            keydown: this.#onActElsewhere,
            pointerdown: this.#onActElsewhere,
        };
        for (const [name, listener] of Object.entries(around)) this.#listenAround(this.#input.ownerDocument, name, listener);
        this.#listenForReset();
    }

    /** The reset of a form does not come out of a shadow tree; an input may be put into one later. */
    #listenForReset() {
        for (const root of [this.#input.ownerDocument, this.#input.getRootNode()]) {
            if (!this.#roots.has(root)) this.#listenAround(root, "reset", this.#onReset);
            this.#roots.add(root);
        }
    }

    #on(target, name, listener) {
        target.addEventListener(name, (event) => listener.call(this, event), {
            capture: true,
            passive: false,
            signal: this.#stop.signal,
        });
    }

    /** What stays in the page must not hold an input that has been dropped without having been detached. */
    #listenAround(target, name, listener) {
        const weakly = new WeakRef(this);
        const { signal } = this.#stop;
        const hear = (event) => {
            const attached = weakly.deref();
            if (attached) listener.call(attached, event);
            else target.removeEventListener(name, hear, true);
        };
        target.addEventListener(name, hear, { capture: true, signal });
    }

    // ---- keys

    #onKeyDown(event) {
        if (event.isComposing || event.defaultPrevented || !event.key) return;
        if (event.key === "Enter") {
            this.#commit();
            return;
        }
        const command = commandOf(event, {
            hasSpin: this.#clothes.hasSpin,
            hasSelection: !this.#selectionIsEmpty,
            isTurned: this.#clothes.isTurned,
        });
        if (!command) return;
        event.preventDefault();
        this.#act(command.act, command.inputType);
    }

    #onKeyUp(event) {
        if (isStepKey(event.key)) this.#field.keyUp(event.key);
    }

    get #selectionIsEmpty() {
        return this.#input.selectionStart === this.#input.selectionEnd;
    }

    // ---- what inserts and deletes

    #onBeforeInput(event) {
        if (event.isComposing || this.#composing || event.defaultPrevented) return;
        const edit = editOf(event, this.#isValue);
        if (!edit) return;
        if (event.cancelable) {
            event.preventDefault();
            if (this.#dropped && event.inputType === "deleteByDrag") return;
            this.#act(edit.act, event.inputType, edit.data);
        } else {
            this.#catchUp();
            this.#late = edit;
        }
    }

    #isValue = (text) => {
        const { mask, dataType: type } = this.#field;
        return Boolean(parse(text, { mask, type, settings: this.#options.settings }));
    };

    /** What comes here without having been asked for: some keyboards of phones, and whoever fills in forms. */
    #onInput(event) {
        if (this.#telling || this.#composing || event.isComposing) return;
        const text = this.#input.value;
        const edit = this.#late ?? unaskedEditOf(event, this.#field, text, this.#isValue);
        this.#late = null;
        if (text === this.#field.text && !isHistory(event)) return;
        this.#restore();
        this.#act(edit.act);
    }

    #onCompositionStart() {
        this.#catchUp();
        this.#composing = { text: this.#field.text, ...this.#field.selection };
    }

    #onCompositionEnd(event) {
        const before = this.#composing;
        if (!before) return;
        this.#composing = null;
        const change = recompose(before, this.#input.value, event.data ?? "");
        this.#restore();
        if (change) this.#act((field) => replace(field, change), "insertCompositionText", event.data);
    }

    // ---- the clipboard

    #onCopy(event) {
        if (event.defaultPrevented) return;
        this.#catchUp();
        this.#give(event, this.#field.copy());
    }

    #onCut(event) {
        if (event.defaultPrevented) return;
        this.#act((field) => this.#give(event, field.cut()), "deleteByCut");
    }

    #give(event, text) {
        event.preventDefault();
        if (text) event.clipboardData?.setData("text/plain", text);
    }

    #onPaste(event) {
        if (!event.clipboardData || event.defaultPrevented) return;
        const text = event.clipboardData.getData("text/plain");
        event.preventDefault();
        if (text) this.#act((field) => field.paste(text), "insertFromPaste", text);
    }

    // ---- the mouse and the caret

    /** What is dragged within the input is copied: without the text that it takes out, positions would not be where it is let go. */
    #onDrop() {
        this.#dropped = true;
        setTimeout(() => (this.#dropped = false));
    }

    #onMouseDown(event) {
        this.#disturbed = false;
        this.#pressed = event.button === 0;
    }

    #onMouseUp(event) {
        if (!this.#pressed) return;
        this.#pressed = false;
        if (event.detail === 2) return; // the double click comes next
        const { start, end, anchor, caret } = this.#nativeSelection;
        if (start === end) {
            this.#clicked = start;
            this.#point((field) => field.click(placeOfClick(field, start), { shift: event.shiftKey }));
        } else if (this.#isSelectedElsewhere) {
            this.#point((field) => field.drag(anchor, caret));
        }
    }

    #onDoubleClick() {
        this.#point((field) => field.doubleClick(this.#clicked));
    }

    /** A caret that has been moved by means that are not ours: a phone's handles, a screen reader, keys of other systems. */
    #onSelectionChange() {
        if (!this.#hasFocus || this.#composing || this.#pressed || !this.#isSelectedElsewhere) return;
        if (this.#input.value !== this.#field.text || this.#hasLostCaret()) return;
        const { start, end, anchor, caret } = this.#nativeSelection;
        this.#point((field) => (start === end ? field.click(placeOfClick(field, start)) : field.select(anchor, caret)));
    }

    #point(act) {
        if (this.#input.value !== this.#field.text) return;
        this.#act(act, "insertReplacementText", null, false);
    }

    #onWheel(event) {
        if (!this.#hasFocus || !this.#clothes.hasSpin || event.ctrlKey || !event.deltaY || event.defaultPrevented) return;
        event.preventDefault();
        this.#notches += notchesOf(event);
        const notches = Math.trunc(this.#notches);
        this.#notches -= notches;
        if (notches) this.#act((field) => field.wheel(notches), "insertReplacementText");
    }

    // ---- coming, going, and forms

    /** The browser's own, where it has edited by itself, or of whoever fills in forms and tells no more. Ours comes by #commit. */
    #onChange(event) {
        if (this.#telling) return;
        const text = this.#input.value;
        if (text !== this.#field.text) this.#insteadOf(text);
        this.#act((field) => field.leave(), "insertReplacementText");
        if (event.isTrusted && this.#field.text === this.#committed) event.stopImmediatePropagation();
        this.#committed = this.#field.text;
    }

    #insteadOf(text) {
        this.#restore();
        this.#act((field) => replaceAll(field, text));
    }

    /** The form was to be sent. */
    #onInvalid() {
        this.#clothes.refused = true;
        this.#judge();
    }

    /** What the page has set is judged before the form can be sent. */
    #onActElsewhere(event) {
        if (event.target !== this.#input && !this.#composing) this.#takeAnswer();
    }

    #onFocus() {
        this.#listenForReset();
        this.#clothes.turn();
        if (this.#input.value !== this.#field.text) {
            this.#takeOutside();
            this.#tellValue();
        }
        this.#committed = this.#field.text;
        this.#notches = 0;
        if (!this.#pressed && this.#selectionIsEmpty) this.#show();
        this.#judge();
    }

    #onBlur() {
        this.#pressed = false;
        this.#composing = null;
        this.#commit();
        this.#clothes.touched = true;
        this.#judge();
    }

    /** As inputs do when their text is done with. */
    #commit() {
        this.#act((field) => field.leave(), "insertReplacementText");
        if (this.#isDetached || this.#field.text === this.#committed) return;
        this.#committed = this.#field.text;
        this.#dispatch(new Event("change", { bubbles: true }));
        this.#takeAnswer();
    }

    /** The form puts its texts back when all have heard of it. */
    #onReset(event) {
        if (event.target !== this.#input.form) return;
        setTimeout(() => {
            if (this.#isDetached || event.defaultPrevented) return;
            this.#takeOutside();
            this.#committed = this.#field.text;
            this.#clothes.touched = false;
            this.#clothes.refused = false;
            this.#settle();
        });
    }

    // ---- acts

    /**
     * Does what the user has done.
     * @param {(field: Field) => void} act
     * @param {string} [inputType] of the event that tells the page of it; none where the browser's own is under way
     * @param {string | null} [data]
     * @param {boolean} [fromSelection] false where the act brings its own
     */
    #act(act, inputType = undefined, data = null, fromSelection = true) {
        this.#catchUp(fromSelection);
        const before = this.#field.text;
        this.#work(() => act(this.#field));
        if (this.#isDetached) return;
        this.#show();
        this.#tellValue();
        if (inputType && !this.#isDetached && this.#field.text !== before) {
            this.#dispatch(new InputEvent("input", { bubbles: true, composed: true, inputType, data }));
            this.#meetAnswer();
        }
    }

    /** Pages put what they have made of the text back into the input: without its blanks, or by and by. The caret is lost by that. */
    #meetAnswer() {
        if (this.#isDetached || this.#input.value === this.#field.text) return;
        if (isSameBut(this.#input.value, this.#field)) this.#restore();
        else this.#disturbed = true;
    }

    /** What a page makes of a text that is done with is there to stay. */
    #takeAnswer() {
        if (this.#isDetached || this.#input.value === this.#field.text) return;
        this.#takeOutside();
        this.#settle();
    }

    /** A text that is set has its caret at the end; ours is put back. */
    #hasLostCaret() {
        if (!this.#disturbed) return false;
        this.#disturbed = false;
        const end = this.#field.text.length;
        if (this.#input.selectionStart !== end || this.#input.selectionEnd !== end) return false;
        this.#showSelection();
        return true;
    }

    /** Changes the field where what it shows is settled afterwards. */
    #work(change) {
        this.#acting = true;
        try {
            return change();
        } finally {
            this.#acting = false;
        }
    }

    #dispatch(event) {
        this.#telling = true;
        this.#input.dispatchEvent(event);
        this.#telling = false;
    }

    /** What has happened since the last act: time, and what the page has set. */
    #catchUp(withSelection = true) {
        const now = performance.now();
        this.#field.letTimePass(Math.min(Math.round(now - this.#lastAct), 0x7fffffff));
        this.#lastAct = now;
        const readOnly = Boolean(this.#options.readOnly || this.#input.readOnly);
        if (readOnly !== this.#field.readOnly) this.#field.readOnly = readOnly;
        if (this.#input.value !== this.#field.text) this.#takeOutside();
        else if (withSelection && this.#hasFocus && this.#isSelectedElsewhere && !this.#hasLostCaret()) {
            this.#field.select(this.#nativeSelection.anchor, this.#nativeSelection.caret);
        }
    }

    #takeOutside() {
        const text = this.#input.value;
        if (text === this.#field.text) return;
        if (!isSameBut(text, this.#field)) this.#work(() => this.#takeWithCaret(text));
        this.#show();
    }

    /** Where it is as long as ours it is ours, with other letters: the caret stays. */
    #takeWithCaret(text) {
        const { anchor, caret } = this.#field.selection;
        const stays = text.length === this.#field.text.length;
        this.#take(text);
        if (stays) this.#field.select(anchor, caret);
    }

    /** A value where the text is one, else as it stands: nothing that a page has set is lost. */
    #take(text) {
        if (this.#field.tryValue(text) !== null) this.#field.setText(text);
    }

    /** What stands in the input already may have been typed while the page was loaded. */
    #takeTyped(text) {
        const isValue = this.#field.tryValue(text) === null;
        if (!isValue && text !== this.#input.defaultValue) this.#field.type(text);
        if (this.#field.state !== "empty") return;
        if (!isValue) this.#field.setText(text);
        else if (this.#field.modern) this.#field.click(0);
    }

    get #nativeSelection() {
        const { selectionStart: start, selectionEnd: end, selectionDirection } = this.#input;
        const backward = selectionDirection === "backward";
        return { start, end, anchor: backward ? end : start, caret: backward ? start : end };
    }

    get #isSelectedElsewhere() {
        const { start, end } = this.#field.selection;
        return start !== this.#input.selectionStart || end !== this.#input.selectionEnd;
    }

    // ---- showing

    #restore() {
        setInputValue.call(this.#input, this.#field.text);
        this.#showSelection();
    }

    #show() {
        if (this.#input.value !== this.#field.text) setInputValue.call(this.#input, this.#field.text);
        this.#showSelection();
        this.#judge();
    }

    /** Where the input has no focus, some browsers would give it. */
    #showSelection() {
        if (!this.#hasFocus || !this.#isSelectedElsewhere) return;
        const { start, end, anchor, caret } = this.#field.selection;
        this.#input.setSelectionRange(start, end, caret < anchor ? "backward" : "forward");
    }

    #judge() {
        this.#clothes.judge(this.#hasFocus);
    }

    /** After a change by the program. */
    #settle() {
        if (!this.#hasFocus) this.#committed = this.#field.text;
        this.#show();
        this.#tellValue();
    }

    #noteValue() {
        this.#lastValue = this.#field.value;
        this.#lastState = this.#field.state;
    }

    #tellValue() {
        const value = this.#lastValue;
        const state = this.#lastState;
        this.#noteValue();
        if (value === this.#lastValue && state === this.#lastState) return;
        try {
            this.#options.onValue?.(this.#lastValue, this.#lastState);
        } catch (error) {
            reportLater(error); // the page hears of the input all the same
        }
    }

    #hear(event) {
        const told = event.kind === "rejected" ? { ...event, message: this.#messageOf(event) } : event;
        const taken = this.#options.onEvent?.(told) === true;
        if (event.kind === "changed" && !this.#acting) queueMicrotask(() => this.#isDetached || this.#settle());
        if (event.kind === "rejected" && !taken) this.#showRefusal(event.reason);
        if (event.kind === "beep" && !taken && !this.#field.modern) this.#showRefusal("beep");
        return taken;
    }

    #messageOf({ reason, message }) {
        return this.#options.messages?.[reason] ?? message;
    }

    #showRefusal(reason) {
        clearTimeout(this.#refusal);
        this.#clothes.put("data-rejected", reason);
        this.#refusal = setTimeout(() => this.#clothes.put("data-rejected", null), shownRefusal);
    }
}

/** Whether a page has only left out what the mask brings. */
function isSameBut(text, field) {
    if (text === "") return false;
    if (text.trimEnd() === field.text.trimEnd() || text === field.value) return true;
    if (numberTypes.includes(field.dataType)) return false; // which has its point among the literals
    const open = field.positions.filter(({ kind }) => kind !== "literal");
    const bare = open.map(({ index, length }) => field.text.slice(index, index + length)).join("");
    return withoutBlanks(text) === withoutBlanks(bare);
}

function withoutBlanks(text) {
    return text.replace(/\s/g, "");
}

/** Of what is taken at the caret the field knows better what goes: it takes no literals. */
function isAtCaret({ start, end, text }, { selection }) {
    return !text && selection.start === selection.end && [start, end].includes(selection.start);
}

/** The browser's history knows of other texts than ours: what it makes of them says nothing. */
function isHistory(event) {
    return /^history/.test(event.inputType ?? "");
}

/** What the browser, a script or an extension has edited, told by its result alone. */
function unaskedEditOf(event, field, text, isValue) {
    const type = event.inputType ?? "";
    if (isHistory(event)) return editOf(event, isValue);
    if (!/^(?:insert(?:Text|From)|delete)/.test(type)) return { act: () => replaceAll(field, text) };
    const change = recompose({ text: field.text, ...field.selection }, text, event.data ?? "");
    if (isAtCaret(change, field)) return editOf(event, isValue);
    return { act: () => replace(field, { ...change, pasted: type !== "insertText", isValue }) };
}

/** Behind a text with nothing filled in there is nothing to be done: who clicks there, where most of an input is, wants to begin. */
function placeOfClick(field, position) {
    return field.modern && field.state === "empty" && position === field.text.length ? 0 : position;
}

function replaceAll(field, text) {
    replace(field, { start: 0, end: field.text.length, text, pasted: true });
}

/**
 * @param {Field} field
 * @param {{ start: number, end: number, text: string, pasted?: boolean, isValue?: (text: string) => boolean }} change
 */
function replace(field, { start, end, text, pasted, isValue }) {
    const selection = field.selection;
    if (selection.start !== start || selection.end !== end) field.select(start, end);
    if (!text) field.press("Delete");
    else if (pasted) field.paste(text);
    else insert(field, text, isValue);
}

/**
 * @param {HTMLInputElement} input
 * @param {import("./ztfield.mjs").AttachOptions} [options]
 * @returns {import("./ztfield.mjs").Attached}
 */
export function attach(input, options = {}) {
    if (!selectable.includes(input.type)) throw new TypeError(`An input of the type "${input.type}" cannot become a field.`);
    attachedInputs.get(input)?.detach();
    const attached = new AttachedInput(input, options);
    attachedInputs.set(input, attached);
    return attached;
}
