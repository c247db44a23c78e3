// The text shown, position by position: what each is, what may be typed there, and where the caret stands.
import { make, show } from "./page.mjs";

// family: how it is coloured; name: what it is called; takes: what may be typed there.
const kinds = {
    literal: { family: "literal", name: "literal", takes: "stands as it is; the caret passes it" },
    digit: { family: "digits", name: "digit", takes: "a digit, 0 to 9" },
    "number digit": {
        family: "digits",
        name: "number",
        takes: "digits, and the sign and the decimal character where they belong",
    },
    letter: { family: "letters", name: "letter", takes: "a letter or a digit" },
    any: { family: "letters", name: "any", takes: "any character" },
    upper: { family: "letters", name: "upper case", takes: "any character; a letter becomes upper case" },
    lower: { family: "letters", name: "lower case", takes: "any character; a letter becomes lower case" },
    year: { family: "calendar", name: "year", takes: "digits of the year" },
    month: { family: "calendar", name: "month", takes: "digits of the month, 01 to 12" },
    day: { family: "calendar", name: "day", takes: "digits of the day, 01 to 31" },
    "day of year": { family: "calendar", name: "day of year", takes: "digits, 001 to 366" },
    hour: { family: "clock", name: "hour", takes: "digits of the hour" },
    minute: { family: "clock", name: "minute", takes: "digits of the minute, 00 to 59" },
    second: { family: "clock", name: "second", takes: "digits of the second, 00 to 59" },
    fraction: { family: "clock", name: "fraction", takes: "digits of the fraction of the second" },
    "half of day": { family: "clock", name: "half of day", takes: "the first letter of a half of the day" },
};

const monthByName = { ...kinds.month, takes: "the month's name by its letters, or its number" };

const kindOf = (position, positions) => {
    const isNamed = position.kind === "month" && positions.filter((other) => other.kind === "month").length > 2;
    return isNamed ? monthByName : (kinds[position.kind] ?? kinds.any);
};

// Neighbours of one part, and neighbouring literals, side by side under one name.
const groups = (positions) => {
    const all = [];
    for (const position of positions) {
        const last = all[all.length - 1];
        if (last && last[0].part === position.part) last.push(position);
        else all.push([position]);
    }
    return all;
};

const shownAt = (text, position) => text.slice(position.index, position.index + position.length);

const isBlank = (character) => /^[ \u00a0\u202f]*$/.test(character);

const told = (position, number, kind, character) => {
    const what =
        position.kind !== "literal" ? kind.name : position.escaped ? "literal, written with a tilde" : "literal";
    return `Position ${number}: ${what}, ${isBlank(character) ? "blank" : character}`;
};

// What the mask has there. A number's digits come and go, and have no letter of their own.
const letterOf = ({ kind, character, escaped }) =>
    escaped ? "~" + character : kind === "literal" || kind === "number digit" ? "·" : character;

const cellOf = (position, number, text, positions) => {
    const kind = kindOf(position, positions);
    const character = shownAt(text, position);
    const cell = make(
        "li",
        { class: "cell", "data-index": String(position.index) },
        make("span", { class: "number", "aria-hidden": "true" }, String(number)),
        make("span", { class: "character mono", "aria-hidden": "true" }, isBlank(character) ? "␣" : character),
        make("span", { class: "letter mono", "aria-hidden": "true" }, letterOf(position)),
        make("span", { class: "heard" }, told(position, number, kind, character)),
    );
    cell.classList.toggle("blank", isBlank(character));
    cell.title = `${kind.name}: ${kind.takes}`;
    return cell;
};

const partOf = (group, first, text, positions) => {
    const kind = kindOf(group[0], positions);
    const isEscaped = group.some((position) => position.escaped);
    const part = make(
        "li",
        { class: `part ${kind.family}` },
        make("span", { class: "part-name" }, isEscaped ? "escape" : kind.name),
        make("ol", { class: "cells" }, ...group.map((position, i) => cellOf(position, first + i, text, positions))),
    );
    part.classList.toggle("escaped", isEscaped);
    return part;
};

export const showMap = (element, text, positions) => {
    if (positions.length === 0) {
        show(element, make("p", { class: "hint" }, "No positions: any text may stand here."));
        return;
    }
    let number = 1;
    const parts = groups(positions).map((group) => {
        const part = partOf(group, number, text, positions);
        number += group.length;
        return part;
    });
    show(element, make("ol", { class: "parts" }, ...parts));
};

// Shows caret and selection among the cells that are there.
export const markCaret = (element, { start, end, caret }, length) => {
    for (const cell of element.querySelectorAll(".cell")) {
        const index = Number(cell.dataset.index);
        cell.classList.toggle("caret", start === end && index === caret);
        cell.classList.toggle("selected", index >= start && index < end);
    }
    element.classList.toggle("caret-at-end", start === end && caret >= length);
};

// What may be typed where the caret stands, as a sentence.
export const atCaret = (positions, selection) => {
    const position = positions.find((candidate) => candidate.index + candidate.length > selection.start);
    if (selection.start !== selection.end) return "What is typed takes the place of the selection.";
    if (!position) return positions.length === 0 ? "" : "The caret is at the end.";
    const kind = kindOf(position, positions);
    if (position.kind === "literal") return `At the caret: “${position.character}” ${kind.takes}.`;
    return `At the caret: ${kind.name}. It takes ${kind.takes}.`;
};
