// The two libraries of the web, each as its own documentation uses it. A peer has, for a case,
//     attach(input)   masks an input, which then takes keys
//     format(text)    the text of the case's value
//     read(text)      the value of a text, as canonical text for comparison by canonical(value)

const pad = (number, digits = 2) => String(number).padStart(digits, '0');
const datePart = (date) => [pad(date.getFullYear(), 4), pad(date.getMonth() + 1), pad(date.getDate())].join('-');
const timePart = (date) => [pad(date.getHours()), pad(date.getMinutes()), pad(date.getSeconds())].join(':');

// imask has values of types, and is told how dates are written.
function imaskTypes(IMask) {
    const range = (from, to) => ({ mask: IMask.MaskedRange, from, to, maxLength: String(to).length });
    const date = {
        mask: Date,
        format: (value) => [pad(value.getMonth() + 1), pad(value.getDate()), pad(value.getFullYear(), 4)].join('/'),
        parse: (text) => {
            const [month, day, year] = text.split('/').map(Number);
            return new Date(year, month - 1, day);
        },
    };
    const time = {
        blocks: { h: range(0, 23), m: range(0, 59), s: range(0, 59) },
        format: timePart,
        parse: (text) => {
            const [hour, minute, second] = text.split(':').map(Number);
            return new Date(1970, 0, 1, hour, minute, second);
        },
    };
    return {
        string: { options: {}, value: String, canonical: String },
        date: { options: date, value: (text) => new Date(`${text}T00:00:00`), canonical: datePart },
        time: { options: time, value: (text) => new Date(`1970-01-01T${text}`), canonical: timePart },
        number: { options: { mask: Number }, value: Number, canonical: String },
        decimal: { options: { mask: Number }, value: Number, canonical: String },
    };
}

export function imaskPeer(require) {
    const module = require('imask');
    const IMask = module.default ?? module;
    const types = imaskTypes(IMask);
    return (row) => {
        const type = types[row.type];
        const options = { ...type.options, ...JSON.parse(row.imask) };
        const masked = IMask.createMask(options);
        const value = type.value(row.value);
        return {
            attach: (input) => IMask(input, options),
            model: IMask.createMask(options),
            format() {
                masked.typedValue = value;
                return masked.value;
            },
            read(text) {
                masked.value = text;
                return masked.typedValue;
            },
            canonical: type.canonical,
        };
    };
}

// inputmask knows texts only: it is given the digits as they would be typed, and gives the text without its literals, or for
// dates and times the text itself.
export function inputmaskPeer(require) {
    const module = require('inputmask');
    const Inputmask = module.default ?? module;
    return (row) => {
        const options = JSON.parse(row.inputmask);
        const mask = new Inputmask(options);
        const hasValues = !options.alias || options.alias === 'numeric';
        return {
            attach: (input) => mask.mask(input),
            format: () => mask.format(row.keys),
            read: (text) => mask.unmaskedvalue(text),
            canonical: (text) => (hasValues || text !== row.text ? text : row.value),
        };
    };
}
