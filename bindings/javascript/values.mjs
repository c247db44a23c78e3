// Values and masks without a field that stays.
import { Field } from "./field.mjs";
import { maskReasons, numberOfType } from "./names.mjs";
import { withSettings } from "./settings.mjs";
import { unitsBefore } from "./texts.mjs";
import { integersFrom, lend, library, textFrom } from "./wasm.mjs";

function padded(number, digits) {
    return String(number).padStart(digits, "0");
}

function dateText(date) {
    return `${padded(date.getFullYear(), 4)}-${padded(date.getMonth() + 1, 2)}-${padded(date.getDate(), 2)}`;
}

function timeText(date) {
    const milliseconds = date.getMilliseconds();
    const fraction = milliseconds ? `:${padded(milliseconds, 3)}000` : "";
    return `${padded(date.getHours(), 2)}:${padded(date.getMinutes(), 2)}:${padded(date.getSeconds(), 2)}${fraction}`;
}

const dateTexts = {
    date: dateText,
    time: timeText,
    datetime: (date) => `${dateText(date)} ${timeText(date)}`,
};

/** A number without an exponent, as canonical texts are. */
function numberText(number) {
    const [, sign, whole, fraction = "", power] = /^(-?)(\d)(?:\.(\d+))?e([+-]\d+)$/.exec(number.toExponential());
    const digits = whole + fraction;
    const point = Number(power) + 1;
    if (point <= 0) return `${sign}0.${"0".repeat(-point)}${digits}`;
    if (point >= digits.length) return sign + digits.padEnd(point, "0");
    return `${sign}${digits.slice(0, point)}.${digits.slice(point)}`;
}

/** The canonical text of a JavaScript value; null for what is none. */
function canonicalText(value, type) {
    if (value instanceof Date) return Number.isNaN(value.getTime()) ? null : (dateTexts[type]?.(value) ?? null);
    if (typeof value === "number") return Number.isFinite(value) ? numberText(value) : null;
    return value === null ? "" : String(value);
}

function withField(options, use) {
    const field = new Field({ ...options, value: undefined, readOnly: false });
    try {
        return use(field);
    } finally {
        field.destroy();
    }
}

/**
 * @param {string | number | Date | null} value
 * @param {import("./ztfield.mjs").FieldOptions} options
 * @returns {string | null}
 */
export function format(value, options) {
    const type = options.type ?? "string";
    const number = numberOfType(type);
    const data = canonicalText(value, type);
    if (data === null) return null;
    if (options.choices) return withField(options, (field) => (field.tryValue(data) === null ? field.text : null));
    return withSettings(options.settings, (settings) =>
        lend([options.mask ?? "", data], (mask, text) =>
            textFrom((buffer, size) => library.ZTF_Format(settings, mask, number, text, buffer, size))));
}

/**
 * @param {string} text
 * @param {import("./ztfield.mjs").FieldOptions} options
 * @returns {string | null}
 */
export function parse(text, options) {
    const number = numberOfType(options.type ?? "string");
    if (options.choices) return withField(options, (field) => (field.tryValue(text) === null ? field.value : null));
    return withSettings(options.settings, (settings) =>
        lend([options.mask ?? "", text], (mask, typed) =>
            textFrom((buffer, size) => library.ZTF_Parse(settings, mask, number, typed, buffer, size, 0))));
}

/**
 * @param {string} mask
 * @param {import("./ztfield.mjs").DataType} type
 * @param {import("./ztfield.mjs").Settings} [settings]
 * @param {{ modern?: boolean }} [editing]
 * @returns {import("./ztfield.mjs").MaskVerdict}
 */
export function check(mask, type, settings = undefined, { modern = true } = {}) {
    const number = numberOfType(type);
    const judge = modern ? library.ZTF_CheckModernMask : library.ZTF_CheckMask;
    const [reason, offset] = withSettings(settings, (handle) =>
        lend([mask], (address) => integersFrom(1, (at) => judge(handle, address, number, at))));
    const fits = reason === 0;
    const position = fits ? -1 : unitsBefore(mask, offset);
    return { fits, reason: maskReasons[reason][0], position, message: maskReasons[reason][1] };
}

const release = library.ZTF_Version();
export const version = [release >>> 16, (release >>> 8) & 255, release & 255].join(".");
