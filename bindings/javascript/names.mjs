// What the library tells and takes as numbers, by the names that it has in JavaScript. A name's number is its index.

export const dataTypes = ["", "string", "number", "date", "time", "datetime", "decimal"];

export const states = ["empty", "incomplete", "invalid", "out of range", "complete"];

export const eventKinds = ["", "changed", "beep", "full", "stepped", "rejected", "state", "value"];

export const positionKinds = [
    "literal", "digit", "number digit", "letter", "any", "upper", "lower", "year", "month", "day", "day of year", "hour", "minute",
    "second", "fraction", "half of day",
];

/** Why an act was refused, and the sentence for it. */
export const reasons = [
    [null, ""],
    ["wrong kind", "This character does not belong here."],
    ["out of bounds", "There is no such number here."],
    ["full", "There is no room for more."],
    ["read only", "This field cannot be changed."],
    ["does not fit", "This text cannot be read, or is more than fits."],
    ["in doubt", "This could be read in two ways."],
    ["does not exist", "There is no such date or time."],
    ["no such entry", "This is not in the list."],
    ["end of range", "This is the end of the range."],
    ["not in code page", "This character cannot be shown."],
];

/** Why a mask does not fit its type, and the sentence for it. */
export const maskReasons = [
    [null, ""],
    ["data type", "There is no such data type."],
    ["empty", "Only a string can be without a mask."],
    ["too long", "A mask has at most 255 characters."],
    ["escape", "Behind the ~ there is nothing that it could make a literal."],
    ["keyword", "Nothing can be made of this keyword under the settings."],
    ["out of place", "This cannot stand here."],
    ["twice", "This stands there a second time."],
    ["field length", "A field cannot have this length."],
    ["excluded", "A day of the year excludes a day and a month."],
    ["field missing", "A field needs another one that is missing."],
    ["no digit", "A number needs a place for a digit."],
];

/**
 * @param {string} type
 * @returns {number}
 */
export function numberOfType(type) {
    const number = dataTypes.indexOf(type, 1);
    if (number < 0) throw new TypeError(`There is no data type "${type}".`);
    return number;
}
