// The keys typed as a row of the library's own tables of tests.
import { codeTableOf, quoted } from "./calls.mjs";
import { rangeOf } from "./bench.mjs";
import { split } from "./keys.mjs";
import { home, regionOf } from "./regions.mjs";

const types = {
    string: "DT_STRING",
    number: "DT_NUMBER",
    decimal: "DT_DECIMAL",
    date: "DT_DATE",
    time: "DT_TIME",
    datetime: "DT_DATETIME",
};

// Modern rows name acts, where classic ones name keys.
const acts = {
    "{Back}": "{Bs}",
    "{Ctrl+Back}": "{CtrlBs}",
    "{Ctrl+Del}": "{CtrlDel}",
    "{Ctrl+Left}": "{CtrlLeft}",
    "{Ctrl+Right}": "{CtrlRight}",
    "{Shift+Left}": "{ShiftLeft}",
    "{Shift+Right}": "{ShiftRight}",
    "{Shift+Del}": "{ShiftDel}",
    "{PgUp}": "{PageUp}",
    "{PgDn}": "{PageDown}",
    "{Esc}": "{Escape}",
    "{Ctrl+A}": "{All}",
    "{Ctrl+C}": "{CtrlC}",
    "{Ctrl+X}": "{CtrlX}",
    "{Ctrl+Y}": "{CtrlY}",
    "{Ctrl+Z}": "{CtrlZ}",
    "{Ctrl+Shift+Z}": "{CtrlShiftZ}",
};

// Keys that are named alike in both.
const alike = new Set(["{Left}", "{Right}", "{Up}", "{Down}", "{Home}", "{End}", "{Del}", "{Ins}", "{Enter}"]);

const actsOf = (keys) =>
    split(keys)
        .map((key) => acts[key] ?? key)
        .join("");

const isNamed = (key) => !key.startsWith("{") || acts[key] !== undefined || alike.has(key);

// What keeps a modern row from being played as it stands.
const doubts = ({ start, keys }) => [
    ...[...new Set(split(keys))].filter((key) => !isNamed(key)).map((key) => `// these rows have no name for ${key}`),
    ...(keys.includes("Z}") && !start.isFresh ? ["// undoing may reach back before this row"] : []),
];

const reasonNames = { "read only": "read-only" };

const regionNote = (bench) =>
    bench.region === home.id ? [] : [`// under the settings of ${regionOf(bench.region).name}`];

const modernSetup = (bench) => {
    const bits =
        [bench.autoskip && "ZTEO_AUTOSKIP", (bench.spin || bench.choices) && "ZTEO_SPIN"].filter(Boolean).join(" | ") ||
        "0";
    const halves = bench.settings.am !== home.settings.am || bench.settings.pm !== home.settings.pm;
    const parts = [
        quoted(bench.mask),
        types[bench.type],
        bits,
        bench.choices ? quoted(codeTableOf(bench)) : "nullptr",
        rangeOf(bench) ? quoted(rangeOf(bench)) : "nullptr",
        ...(halves ? [quoted(bench.settings.am), quoted(bench.settings.pm)] : []),
    ];
    const usual = ["", "", "0", "nullptr", "nullptr"];
    while (parts.length > 2 && parts[parts.length - 1] === usual[parts.length - 1]) parts.pop();
    return `inline constexpr TypingSetup kBench = {${parts.join(", ")}};`;
};

const modernRow = (bench, recording, shown) => {
    const before = recording.start.isFresh ? "nullptr" : quoted(recording.start.marked);
    const reasons = recording.reasons.map((reason) => reasonNames[reason] ?? reason).join(", ");
    return (
        `{kBench, ${before}, ${quoted((bench.readOnly ? "{ReadOnly}" : "") + actsOf(recording.keys))}, ${quoted(shown)}` +
        (reasons ? `, ${quoted(reasons)}},` : "},")
    );
};

const classicRow = (bench, { start, keys, beeps }, shown) => {
    const given = (start.isValue ? "" : "text:") + start.marked;
    const row = [
        quoted("Bench"),
        quoted(bench.mask),
        types[bench.type],
        quoted(given),
        quoted(keys),
        quoted(shown),
        beeps,
    ];
    return `{${row.join(", ")}},`;
};

export const testRowOf = (bench, recording, shown) => {
    if (recording.keys === "") return "// Type into the field: the keys become a row here.";
    const rows = bench.modern
        ? [...doubts(recording), modernSetup(bench), modernRow(bench, recording, shown)]
        : [classicRow(bench, recording, shown)];
    return [...regionNote(bench), ...rows].join("\n");
};
