// Who masks an input, and how each is told of a kind of field: as its own documentation has it, with all positions shown.

const month = { from: 1, to: 12, maxLength: 2 };
const day = { from: 1, to: 31, maxLength: 2 };
const halves = ["AM", "PM"];

const ours = {
    date: { mask: "MM/DD/YYYY", type: "date" },
    phone: { mask: "(###) ###-####", type: "string" },
    number: { mask: "#,##0.00", type: "number" },
    german: { mask: "#,##0.00", type: "number", settings: { decimal: ",", thousands: ".", currency: " €", currencyPosition: 1 } },
    clock: { mask: "HH:MM AM/PM", type: "time" },
    code: { mask: "!!-####", type: "string" },
};

function imaskKinds(IMask) {
    const shown = { lazy: false, placeholderChar: "_", overwrite: true };
    const range = (limits) => ({ mask: IMask.MaskedRange, autofix: "pad", ...limits });
    const number = { mask: Number, scale: 2, padFractionalZeros: true, normalizeZeros: true };
    return {
        date: { ...shown, mask: "m/d/y", blocks: { m: range(month), d: range(day), y: range({ from: 1900, to: 2999 }) } },
        phone: { ...shown, mask: "(000) 000-0000" },
        number: { ...number, thousandsSeparator: ",", radix: "." },
        german: { ...number, thousandsSeparator: ".", radix: ",", mapToRadix: ["."] },
        clock: {
            ...shown,
            mask: "h:i a",
            blocks: {
                h: range({ from: 1, to: 12, maxLength: 2 }),
                i: range({ from: 0, to: 59, maxLength: 2 }),
                a: { mask: IMask.MaskedEnum, enum: halves },
            },
            prepareChar: (typed) => typed.toUpperCase(),
        },
        code: { ...shown, mask: "aa-0000", prepareChar: (typed) => typed.toUpperCase() },
    };
}

const number = { alias: "numeric", digits: 2, digitsOptional: false, rightAlign: false, unmaskAsNumber: true };
const inputmaskKinds = {
    date: { alias: "datetime", inputFormat: "mm/dd/yyyy", placeholder: "_" },
    phone: { mask: "(999) 999-9999" },
    number: { ...number, groupSeparator: ",", radixPoint: "." },
    german: { ...number, groupSeparator: ".", radixPoint: "," },
    clock: { alias: "datetime", inputFormat: "hh:MM TT", placeholder: "_" },
    code: { mask: "AA-9999" },
};

/** name: a function that masks an input as a kind of field, and gives back how a text is put there by the program. */
export function maskers({ module, IMask, Inputmask }) {
    const all = {
        ztfield: (input, kind) => {
            const attached = module.attach(input, ours[kind]);
            return { set: (text) => void (attached.value = module.parse(text, ours[kind])), end: () => attached.detach() };
        },
    };
    if (IMask) {
        const kinds = imaskKinds(IMask);
        all.imask = (input, kind) => {
            const mask = IMask(input, kinds[kind]);
            return { set: (text) => void (mask.value = text), end: () => mask.destroy() };
        };
    }
    if (Inputmask) {
        all.inputmask = (input, kind) => {
            Inputmask(inputmaskKinds[kind]).mask(input);
            return { set: (text) => input.inputmask.setValue(text), end: () => input.inputmask.remove() };
        };
    }
    return all;
}
