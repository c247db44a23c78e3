// The field that is typed into: the module's own attach on one input, made anew for each bench, with what its keys have been.
import { Field, attach } from "ztfield";

import { optionsOf } from "./bench.mjs";
import { Recording, marked, nameOf, split, strokeOf } from "./keys.mjs";

const canShow = (options, value) => {
    const field = new Field(options);
    const isShown = field.tryValue(value) === null;
    field.destroy();
    return isShown;
};

export class Live {
    // listener.told(event) for each event of the field, listener.shown() whenever something may look different.
    constructor(input, listener) {
        this.input = input;
        this.listener = listener;
        this.attached = null;
        this.isFrozen = true;
        this.hearKeys();
        document.addEventListener("selectionchange", () => {
            if (document.activeElement === input) this.refresh();
        });
    }

    // Puts a field for the bench in place of the last one, with a value where it can be shown, or with keys that are played.
    build(bench, value, keys = "") {
        const options = optionsOf(bench);
        this.attached?.detach();
        this.attached = null;
        this.input.value = "";
        this.attached = attach(this.input, {
            ...options,
            value: value && canShow(options, value) ? value : "",
            onEvent: (event) => this.hear(event),
            onValue: () => this.refresh(),
        });
        this.given = value ?? "";
        this.givenText = this.text;
        this.isFresh = this.field.state === "empty";
        this.freshMarks = this.marked;
        this.beginRow();
        this.play(keys);
        this.refresh();
    }

    get field() {
        return this.attached.field;
    }

    // The value to go on with under another bench: what was given, as long as the field has not been touched, though this bench may
    // not show it (a mask that is half typed).
    get value() {
        return this.text === this.givenText ? this.given : (this.field.value ?? "");
    }

    get text() {
        return this.field.text;
    }

    get selection() {
        return this.field.selection;
    }

    get marked() {
        return marked(this.text, this.selection);
    }

    // What the page does to the field in the user's place.
    act(deed) {
        this.freeze();
        deed(this.attached);
        this.refresh();
    }

    // Gives a value as a program does: null, or why it is none.
    give(text) {
        this.freeze();
        const reason = this.field.tryValue(text);
        if (reason === null) this.beginRow();
        this.refresh();
        return reason;
    }

    hear(event) {
        if (!this.isFrozen) this.recording.hear(event);
        this.listener.told(
            event.kind === "changed" || event.kind === "value"
                ? { ...event, text: this.attached?.field.text ?? "" }
                : event,
        );
        this.refresh();
        return undefined;
    }

    // Once for all that happens together, and after the module has settled it.
    refresh() {
        if (this.isAwaited) return;
        this.isAwaited = true;
        setTimeout(() => {
            this.isAwaited = false;
            if (!this.isFrozen) this.after = this.marked;
            this.listener.shown();
        });
    }

    // ---- the row of keys

    beginRow() {
        this.recording = new Recording({
            marked: this.marked,
            isFresh: this.isFresh && this.marked === this.freshMarks,
            isAllSelected:
                this.isFresh &&
                this.marked === marked(this.text, { start: 0, end: this.text.length }) &&
                this.text === this.freshMarks.replace("|", ""),
            isValue: this.field.state === "complete",
        });
        this.after = this.marked;
        this.isFrozen = true;
    }

    // The row ends here: what comes now is no key.
    freeze() {
        if (!this.isFrozen) this.after = this.marked;
        this.isFrozen = true;
    }

    // Goes on with the row, or begins another where the field stands otherwise than the keys have left it.
    thaw() {
        if (this.isFrozen && this.marked !== this.after) this.beginRow();
        this.isFrozen = false;
    }

    hearKeys() {
        const { input } = this;
        const listen = (name, heard) => input.addEventListener(name, heard, { capture: true });
        listen("keydown", (event) => this.hearKey(event));
        listen("beforeinput", (event) => {
            if (this.isUnnamed && event.inputType === "insertText" && !event.isComposing) this.record(event.data ?? "");
        });
        listen("compositionend", (event) => this.record(event.data ?? ""));
        for (const name of ["blur", "pointerdown", "paste", "drop", "wheel"]) listen(name, () => this.freeze());
    }

    hearKey(event) {
        if (event.isComposing || ["Shift", "Control", "Alt", "Meta", "Tab"].includes(event.key)) return;
        const name = nameOf(event);
        this.isUnnamed = event.key === "Unidentified";
        if (name === null) this.freeze();
        else if (name !== "") this.record(name);
    }

    record(name) {
        this.thaw();
        this.recording.add(name);
        this.refresh();
    }

    // Keys of an address, as if they were typed.
    play(keys) {
        for (const name of split(keys)) {
            const stroke = strokeOf(name);
            if (!stroke) continue;
            this.isFrozen = false;
            this.recording.add(name);
            if (stroke.held.ctrl && stroke.key === "a") this.field.select(0, this.field.text.length);
            else this.field.press(stroke.key, stroke.held);
        }
        this.freeze();
    }

    // The keys from the empty field on, where what is shown came of them alone.
    get keysFromEmpty() {
        const { start, keys } = this.recording;
        if (keys === "" || keys.length > 400 || this.marked !== this.after || !(start.isFresh || start.isAllSelected))
            return "";
        return start.isFresh ? keys : "{Ctrl+A}" + keys;
    }
}
