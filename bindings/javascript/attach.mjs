// An input of a page that has become a field: what its user does goes to the field, and what the field shows into the input.
import { Field } from "./field.mjs";
import { dress } from "./dress.mjs";
import { commandOf, editOf, isStepKey, notchesOf, recompose } from "./acts.mjs";

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
    #acting = false;
    #telling = false;
    #composing = null; // what stood there when an input method began
    #late = null; // an edit that the browser does not let us take its place of
    #pressed = false; // a mouse button
    #clicked = 0;
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
        this.#work(() => this.#take(value === undefined ? input.value : (value ?? "")));
        this.#clothes = dress(input, this.#field, options);
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
            compositionstart: this.#onCompositionStart,
            compositionend: this.#onCompositionEnd,
            copy: this.#onCopy,
            cut: this.#onCut,
            paste: this.#onPaste,
            mousedown: this.#onMouseDown,
            dblclick: this.#onDoubleClick,
            wheel: this.#onWheel,
            focus: this.#onFocus,
            blur: this.#onBlur,
        };
        for (const [name, listener] of Object.entries(listeners)) this.#on(this.#input, name, listener);
        this.#on(this.#input.ownerDocument, "mouseup", this.#onMouseUp);
        this.#on(this.#input.ownerDocument, "selectionchange", this.#onSelectionChange);
        this.#on(this.#input.ownerDocument, "reset", this.#onReset);
    }

    #on(target, name, listener) {
        target.addEventListener(name, (event) => listener.call(this, event), {
            capture: true,
            passive: false,
            signal: this.#stop.signal,
        });
    }

    // ---- keys

    #onKeyDown(event) {
        if (event.isComposing || event.defaultPrevented || !event.key) return;
        if (event.key === "Enter") {
            this.#commit();
            return;
        }
        const command = commandOf(event, this.#clothes.hasSpin, !this.#selectionIsEmpty);
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
        const edit = editOf(event);
        if (!edit) return;
        if (event.cancelable) {
            event.preventDefault();
            this.#act(edit.act, event.inputType, edit.data);
        } else {
            this.#catchUp();
            this.#late = edit;
        }
    }

    /** What comes here without having been asked for: some keyboards of phones, and whoever fills in forms. */
    #onInput(event) {
        if (this.#telling || this.#composing || event.isComposing) return;
        const edit = this.#late;
        this.#late = null;
        const text = this.#input.value;
        if (text === this.#field.text) return;
        this.#restore();
        this.#act(edit?.act ?? ((field) => replaceAll(field, text)));
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
        this.#catchUp();
        this.#give(event, this.#field.copy());
    }

    #onCut(event) {
        this.#act((field) => this.#give(event, field.cut()), "deleteByCut");
    }

    #give(event, text) {
        event.preventDefault();
        if (text) event.clipboardData?.setData("text/plain", text);
    }

    #onPaste(event) {
        if (!event.clipboardData) return;
        const text = event.clipboardData.getData("text/plain");
        event.preventDefault();
        if (text) this.#act((field) => field.paste(text), "insertFromPaste", text);
    }

    // ---- the mouse and the caret

    #onMouseDown(event) {
        this.#pressed = event.button === 0;
    }

    #onMouseUp(event) {
        if (!this.#pressed) return;
        this.#pressed = false;
        if (event.detail === 2) return; // the double click comes next
        const { start, end, anchor, caret } = this.#nativeSelection;
        if (start === end) {
            this.#clicked = start;
            this.#point((field) => field.click(start, { shift: event.shiftKey }));
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
        if (this.#input.value !== this.#field.text) return;
        const { start, end, anchor, caret } = this.#nativeSelection;
        this.#point((field) => (start === end ? field.click(start) : field.select(anchor, caret)));
    }

    #point(act) {
        if (this.#input.value !== this.#field.text) return;
        this.#act(act, "insertReplacementText", null, false);
    }

    #onWheel(event) {
        if (!this.#hasFocus || !this.#clothes.hasSpin || event.ctrlKey || !event.deltaY) return;
        event.preventDefault();
        this.#notches += notchesOf(event);
        const notches = Math.trunc(this.#notches);
        this.#notches -= notches;
        if (notches) this.#act((field) => field.wheel(notches), "insertReplacementText");
    }

    // ---- coming, going, and forms

    #onFocus() {
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
    }

    /** The form puts its texts back when all have heard of it. */
    #onReset(event) {
        if (event.target !== this.#input.form) return;
        setTimeout(() => {
            if (this.#isDetached || event.defaultPrevented) return;
            this.#takeOutside();
            this.#committed = this.#field.text;
            this.#clothes.touched = false;
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
        }
    }

    /** Changes the field where what it shows is settled afterwards. */
    #work(change) {
        this.#acting = true;
        const result = change();
        this.#acting = false;
        return result;
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
        else if (withSelection && this.#hasFocus && this.#isSelectedElsewhere) {
            this.#field.select(this.#nativeSelection.anchor, this.#nativeSelection.caret);
        }
    }

    #takeOutside() {
        if (this.#input.value === this.#field.text) return;
        this.#work(() => this.#take(this.#input.value));
        this.#show();
    }

    /** A value where the text is one, else as it stands: nothing that a page has set is lost. */
    #take(text) {
        if (this.#field.tryValue(text) !== null) this.#field.setText(text);
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
        if (value !== this.#lastValue || state !== this.#lastState) this.#options.onValue?.(this.#lastValue, this.#lastState);
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

function replaceAll(field, text) {
    replace(field, { start: 0, end: field.text.length, text, pasted: true });
}

function replace(field, { start, end, text, pasted }) {
    const selection = field.selection;
    if (selection.start !== start || selection.end !== end) field.select(start, end);
    if (!text) field.press("Delete");
    else if (pasted) field.paste(text);
    else field.type(text);
}

/**
 * @param {HTMLInputElement} input
 * @param {import("./ztfield").AttachOptions} [options]
 * @returns {import("./ztfield").Attached}
 */
export function attach(input, options = {}) {
    if (!selectable.includes(input.type)) throw new TypeError(`An input of the type "${input.type}" cannot become a field.`);
    attachedInputs.get(input)?.detach();
    const attached = new AttachedInput(input, options);
    attachedInputs.set(input, attached);
    return attached;
}
