/**
 * Masked fields for the web: the engine of the masked edit control, as WebAssembly inside one module without dependencies.
 *
 * Positions, lengths and carets are counted as JavaScript counts a text, in UTF-16 units.
 *
 *     import { attach, format, parse, check } from "./ztfield.mjs";
 *     const due = attach(document.querySelector("#due"), { mask: "MM/DD/YYYY", type: "date" });
 *     due.value;                                                       // "2026-07-04", "" or null
 *     format("1234.5", { mask: "#,##0.00", type: "number" });          // "1,234.50"
 *     parse("4 July 2026", { mask: "MM/DD/YYYY", type: "date" });      // "2026-07-04"
 *     check("MM/DD", "date");                                          // { fits: false, reason: "field missing", position: 5 }
 */

export type DataType = "string" | "number" | "date" | "time" | "datetime" | "decimal";

/** What can be said of the value shown, judged in this order. */
export type State = "empty" | "incomplete" | "invalid" | "out of range" | "complete";

/** Why an act of the user was refused. */
export type Reason =
    | "wrong kind"
    | "out of bounds"
    | "full"
    | "read only"
    | "does not fit"
    | "in doubt"
    | "does not exist"
    | "no such entry"
    | "end of range"
    | "not in code page";

/** Why a mask does not fit its type. */
export type MaskReason =
    | "data type"
    | "empty"
    | "too long"
    | "escape"
    | "keyword"
    | "out of place"
    | "twice"
    | "field length"
    | "excluded"
    | "field missing"
    | "no digit";

/** Regional settings; what is left out is as in the United States. */
export interface Settings {
    /** One character: "." */
    decimal?: string;
    /** One character: "," */
    thousands?: string;
    /** "$" */
    currency?: string;
    /** 0 and 2 before the digits, 1 and 3 behind them: 0 */
    currencyPosition?: 0 | 1 | 2 | 3;
    /** Fraction digits of an amount of money: 2 */
    currencyDigits?: number;
    /** "AM", at most 4 characters */
    am?: string;
    /** "PM" */
    pm?: string;
    /** The picture of the mask "[date]": "m/d/yy" */
    date?: string;
    /** The separator of the mask "[time]": ":" */
    time?: string;
    /** Twelve names, for "MMM": JAN to DEC */
    months?: readonly string[];
}

export interface Spin {
    /** 1 */
    increment?: number;
    /** "minimum~maximum"; either side may be empty */
    range?: string;
}

/** An entry of a list of choices; null stands for no data. */
export interface Choice {
    text: string;
    value: string | null;
}

export interface FieldOptions {
    /** "" */
    mask?: string;
    /** "string" */
    type?: DataType;
    settings?: Settings;
    /** Modern editing; false: classic. true */
    modern?: boolean;
    /** A first value, canonical or as it would be pasted. */
    value?: string | null;
    /** Tells "full" when the last position is filled. false */
    autoskip?: boolean;
    /** Up, Down and the wheel step the value. */
    spin?: boolean | Spin;
    /** Values are shown and chosen by the texts of this list. */
    choices?: readonly Choice[];
    readOnly?: boolean;
}

export type FieldEvent =
    | { kind: "changed" }
    | { kind: "beep" }
    | { kind: "full" }
    | { kind: "stepped" }
    | { kind: "value" }
    | { kind: "rejected"; reason: Reason; position: number; character: string; message: string }
    | { kind: "state"; was: State; is: State };

export type PositionKind =
    | "literal" | "digit" | "number digit" | "letter" | "any" | "upper" | "lower" | "year" | "month" | "day" | "day of year"
    | "hour" | "minute" | "second" | "fraction" | "half of day";

export interface Position {
    kind: PositionKind;
    /** The letter of the mask, or the literal shown. */
    character: string;
    /** A literal written with "~". */
    escaped: boolean;
    /** Which part of the value it belongs to, from 0; -1 for a literal. */
    part: number;
    /** Where it stands in the text shown, and how many UTF-16 units it takes. */
    index: number;
    length: number;
}

export interface MaskVerdict {
    fits: boolean;
    /** null where it fits */
    reason: MaskReason | null;
    /** In the mask, of what does not fit; -1 where it fits. */
    position: number;
    /** The reason as a sentence, "" where it fits. */
    message: string;
}

/** A field in memory, without a page around it. */
export declare class Field {
    constructor(options?: FieldOptions, listener?: (event: FieldEvent) => boolean | void);
    /** Gives its memory back; the field is not to be used any more. */
    destroy(): void;

    readonly text: string;
    readonly selection: { anchor: number; caret: number; start: number; end: number };
    readonly state: State;
    /** The value as canonical text: "" for the empty one, null for an incomplete or invalid one. */
    value: string | null;
    /** Shows a value where the text is one; null, or the reason, and nothing has changed. */
    tryValue(text: string | null): Reason | null;
    readonly positions: Position[];
    readonly canUndo: boolean;
    readonly canRedo: boolean;
    modern: boolean;
    readOnly: boolean;
    /** The mask in force: of a keyword what it stands for. */
    readonly mask: string;
    readonly dataType: DataType;
    setMask(mask: string, type: DataType): boolean;
    setSettings(settings: Settings): void;
    setSpin(spin: boolean | Spin, choices?: readonly Choice[]): void;

    /** Puts a text there from outside, as it is. */
    setText(text: string): void;

    /** Keys by their names in KeyboardEvent.key: "Backspace", "ArrowLeft", "a" with ctrl ...; "NumpadDecimal" is the keypad's point. */
    press(key: string, held?: { shift?: boolean; ctrl?: boolean }): void;
    /** The halves of a key that makes no character, where it is held: the steps of one such key are undone together. */
    keyDown(key: string, held?: { shift?: boolean; ctrl?: boolean }): void;
    keyUp(key: string, held?: { shift?: boolean; ctrl?: boolean }): void;
    type(text: string): void;
    paste(text: string): void;
    /** What was cut or copied, "" where nothing is selected. */
    cut(): string;
    copy(): string;
    undo(): void;
    redo(): void;
    click(position: number, held?: { shift?: boolean }): void;
    doubleClick(position: number): void;
    drag(from: number, to: number): void;
    wheel(notches: number): void;
    step(up: boolean): void;
    select(anchor: number, caret: number): void;
    leave(): void;
    letTimePass(milliseconds: number): void;
}

export interface AttachOptions extends FieldOptions {
    /** Hears every event of the field; true for a refusal keeps it from being shown. */
    onEvent?: (event: FieldEvent) => boolean | void;
    /** Called after every change of the value, by the user or by the program. */
    onValue?: (value: string | null, state: State) => void;
    /** A field that must be filled in is not valid while it is empty. The input's required attribute counts as well. */
    required?: boolean;
    /** The sentences of setCustomValidity by state, in place of the English ones. */
    messages?: Partial<Record<Exclude<State, "complete"> | Reason, string>>;
}

/** An input that has become a field. The page sees its text and its events "input" and "change" as of any input. */
export interface Attached {
    readonly input: HTMLInputElement;
    readonly field: Field;
    value: string | null;
    readonly state: State;
    setMask(mask: string, type: DataType): boolean;
    /** Gives the input back as it was, with the text that it shows. */
    detach(): void;
}

export declare function attach(input: HTMLInputElement, options?: AttachOptions): Attached;

/** A value (canonical text, a number, or a Date taken in local time) as a field would show it; null for what is no value. */
export declare function format(value: string | number | Date | null, options: FieldOptions): string | null;

/** The canonical text of what was typed or pasted in any of the usual forms; null where it cannot be read as one value. */
export declare function parse(text: string, options: FieldOptions): string | null;

/** As a modern field takes the mask, or a classic one: there a number's mask is judged by the settings' own separators. */
export declare function check(mask: string, type: DataType, settings?: Settings, editing?: { modern?: boolean }): MaskVerdict;

/** "0.5.0" */
export declare const version: string;
