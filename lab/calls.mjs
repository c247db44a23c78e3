// The call that makes the field on the bench, in each language.
import { choicesOf, rangeOf } from "./bench.mjs";
import { differences, home, regionOf } from "./regions.mjs";

const typeNames = {
    string: { c: "DT_STRING", pascal: "DT_STRING", dotted: "String" },
    number: { c: "DT_NUMBER", pascal: "DT_NUMBER", dotted: "Number" },
    decimal: { c: "DT_DECIMAL", pascal: "DT_DECIMAL", dotted: "Decimal" },
    date: { c: "DT_DATE", pascal: "DT_DATE", dotted: "Date" },
    time: { c: "DT_TIME", pascal: "DT_TIME", dotted: "Time" },
    datetime: { c: "DT_DATETIME", pascal: "DT_DATETIME", dotted: "DateTime" },
};

const escapes = { "\\": "\\\\", '"': '\\"', "\t": "\\t", "\n": "\\n", "\r": "\\r" };

// As C, C++, C# and Python read it.
export const quoted = (text) => '"' + text.replace(/[\\"\t\n\r]/g, (character) => escapes[character]) + '"';

const pascalQuoted = (text) =>
    text
        .split("\t")
        .map((part) => "'" + part.replace(/'/g, "''") + "'")
        .join("#9")
        .replace(/''#9/g, "#9");

const slashed = (text) => text.replace(/\//g, "//");

// "small\tS/large\tL"; "null!" stands for no data.
export const codeTableOf = (bench) =>
    choicesOf(bench.choices)
        .map(({ text, value }) => slashed(text) + "\t" + slashed(value ?? "null!"))
        .join("/");

// The option bits that the bench asks for, as constants of the headers.
const optionBits = (bench) =>
    [
        ["ZTEO_MODERN", bench.modern],
        ["ZTEO_AUTOSKIP", bench.autoskip],
        ["ZTEO_SPIN", bench.spin || bench.choices !== ""],
        ["ZTEO_CODE_PICK", bench.choices !== ""],
        ["ZTEO_CODE_DISPLAY", bench.choices !== ""],
    ]
        .filter(([, on]) => on)
        .map(([name]) => name);

const isStepped = (bench) => bench.spin || bench.choices !== "";

const incrementOf = (bench) => String(Number(bench.increment || "1") || 1);

// Controls follow the settings of their user; what the bench shows holds where these are the same.
const regionNote = (bench) => {
    const region = regionOf(bench.region);
    const own = differences(bench.settings, region.settings).length > 0;
    return region === home && !own ? "" : `as under the settings of ${region.name}${own ? ", changed" : ""}`;
};

const noted = (bench, before, after = "") => {
    const note = regionNote(bench);
    return note === "" ? [] : [before + note + after];
};

const c = (bench) => [
    ...noted(bench, "/* ", " */"),
    "EditInitParams p = {0};",
    "p.heap = heap;",
    `p.maskText = ${quoted(bench.mask)};`,
    `p.dataType = ${typeNames[bench.type].c};`,
    ...(bench.value ? [`p.initialData = ${quoted(bench.value)};`] : []),
    ...(isStepped(bench) ? [`p.spinIncrement = ${incrementOf(bench)};`] : []),
    ...(isStepped(bench) && rangeOf(bench) ? [`p.spinRangeText = ${quoted(rangeOf(bench))};`] : []),
    ...(bench.choices ? [`p.codeTableText = ${quoted(codeTableOf(bench))};`] : []),
    `p.options = ${optionBits(bench).join(" | ") || "0"};`,
    "HWND field = CreateWindowExA(",
    '    WS_EX_CLIENTEDGE, ZTEDIT_CLASS, "",',
    "    WS_CHILD | WS_VISIBLE | WS_TABSTOP | ES_AUTOHSCROLL,",
    "    20, 20, 160, 24, form, (HMENU)101, instance, &p);",
    ...(bench.readOnly ? ["SendMessageA(field, EM_SETREADONLY, TRUE, 0);"] : []),
];

const cppChoices = (bench) =>
    "zt::CodeTable()" +
    choicesOf(bench.choices)
        .map(({ text, value }) => `.Add(${quoted(text)}, ${value === null ? "zt::CodeTable::kNull" : quoted(value)})`)
        .join("");

const cppSetup = (bench) =>
    [
        `zt::Setup::${typeNames[bench.type].dotted}(${bench.mask === "" ? "" : quoted(bench.mask)})`,
        ...(bench.modern ? [".Modern()"] : []),
        ...(bench.autoskip ? [".Autoskip()"] : []),
        ...(isStepped(bench)
            ? [`.Spin(${incrementOf(bench)}${rangeOf(bench) ? ", " + quoted(rangeOf(bench)) : ""})`]
            : []),
        ...(bench.choices ? [`.Choices(${cppChoices(bench)})`] : []),
        ...(bench.value ? [`.Initial(${quoted(bench.value)})`] : []),
    ].join("\n        ");

const cpp = (bench) => [
    ...noted(bench, "// "),
    "zt::Edit field = zt::Edit::Create(",
    "    heap,",
    `    ${cppSetup(bench)},`,
    "    form, 101, {20, 20, 160, 24});",
    ...(bench.readOnly ? ["SendMessageA(field.Window(), EM_SETREADONLY, TRUE, 0);"] : []),
];

const csharp = (bench) => [
    ...noted(bench, "// "),
    "MaskedEdit field = new MaskedEdit",
    "{",
    `    DataType = DataType.${typeNames[bench.type].dotted}, Mask = ${quoted(bench.mask)},`,
    `    Modern = ${bench.modern}, SkipsWhenFull = ${bench.autoskip},`,
    `    Location = new Point(20, 20)${bench.readOnly ? ", Enabled = false" : ""}`,
    "};",
    ...(isStepped(bench)
        ? [`field.SetSpin(${incrementOf(bench)}, ${rangeOf(bench) ? quoted(rangeOf(bench)) : "null"});`]
        : []),
    ...(bench.choices ? [`field.SetChoices(${quoted(codeTableOf(bench))});`] : []),
    ...(bench.value ? [`field.TrySetValue(${quoted(bench.value)});`] : []),
    "form.Controls.Add(field);",
];

const pascal = (bench) => [
    ...noted(bench, "{ ", " }"),
    `Setup := ZtSetup(${typeNames[bench.type].pascal}, ${pascalQuoted(bench.mask)}, ${optionBits(bench).join(" or ") || "0"});`,
    ...(bench.value ? [`Setup.Initial := ${pascalQuoted(bench.value)};`] : []),
    ...(isStepped(bench) ? [`Setup.Increment := ${incrementOf(bench)};`] : []),
    ...(isStepped(bench) && rangeOf(bench) ? [`Setup.Range := ${pascalQuoted(rangeOf(bench))};`] : []),
    ...(bench.choices ? [`Setup.Codes := ${pascalQuoted(codeTableOf(bench))};`] : []),
    "Field := ZtCreate(Heap, Setup, Form, 101, 20, 20, 160, 24);",
    ...(bench.readOnly ? ["SendMessageA(Field, EM_SETREADONLY, 1, 0);"] : []),
];

const python = (bench) => [
    ...noted(bench, "# "),
    "field = ztedit.Edit.create(",
    `    heap, form.winfo_id(), ztedit.${typeNames[bench.type].c}, ${quoted(bench.mask)}, place=(20, 20, 160, 24),`,
    `    options=${
        optionBits(bench)
            .map((name) => "ztedit." + name)
            .join(" | ") || "0"
    }` +
        (isStepped(bench) ? `,\n    spin_increment=${incrementOf(bench)}` : "") +
        (isStepped(bench) && rangeOf(bench) ? `, spin_range=${quoted(rangeOf(bench))}` : "") +
        (bench.choices ? `,\n    codes=${quoted(codeTableOf(bench))}` : "") +
        (bench.value ? `,\n    initial=${quoted(bench.value)}` : "") +
        ")",
    ...(bench.readOnly ? ["ctypes.windll.user32.SendMessageA(field.hwnd, 0xCF, 1, 0)  # EM_SETREADONLY"] : []),
];

const jsSettings = (bench) =>
    differences(bench.settings, home.settings).map((row) => `${row.name}: ${JSON.stringify(bench.settings[row.name])}`);

const jsSpin = (bench) => {
    const parts = [
        ...(incrementOf(bench) === "1" ? [] : [`increment: ${incrementOf(bench)}`]),
        ...(rangeOf(bench) ? [`range: ${JSON.stringify(rangeOf(bench))}`] : []),
    ];
    return parts.length === 0 ? "true" : `{ ${parts.join(", ")} }`;
};

const jsOptions = (bench) => [
    `mask: ${JSON.stringify(bench.mask)}`,
    `type: ${JSON.stringify(bench.type)}`,
    ...(bench.modern ? [] : ["modern: false"]),
    ...(bench.autoskip ? ["autoskip: true"] : []),
    ...(bench.readOnly ? ["readOnly: true"] : []),
    ...(bench.spin ? [`spin: ${jsSpin(bench)}`] : []),
    ...(bench.choices ? [`choices: ${JSON.stringify(choicesOf(bench.choices))}`] : []),
    ...(bench.value ? [`value: ${JSON.stringify(bench.value)}`] : []),
    ...(jsSettings(bench).length > 0 ? [`settings: {\n        ${jsSettings(bench).join(",\n        ")},\n    }`] : []),
];

const javascript = (bench) => [
    'import { attach } from "./ztfield.mjs";',
    "",
    'const field = attach(document.querySelector("#field"), {',
    ...jsOptions(bench).map((option) => `    ${option},`),
    "});",
];

const writers = { c, cpp, csharp, pascal, python, javascript };

export const callOf = (language, bench) => writers[language](bench).join("\n");
