// Regional settings of countries, as a control's user would have them, and what an address may say of each.

const english = "JAN FEB MAR APR MAY JUN JUL AUG SEP OCT NOV DEC".split(" ");
const german = "JAN FEB MÄR APR MAI JUN JUL AUG SEP OKT NOV DEZ".split(" ");
const french = "JAN FÉV MAR AVR MAI JUN JUL AOÛ SEP OCT NOV DÉC".split(" ");
const italian = "GEN FEB MAR APR MAG GIU LUG AGO SET OTT NOV DIC".split(" ");
const spanish = "ENE FEB MAR ABR MAY JUN JUL AGO SEP OCT NOV DIC".split(" ");
const portuguese = "JAN FEV MAR ABR MAI JUN JUL AGO SET OUT NOV DEZ".split(" ");
const dutch = "JAN FEB MRT APR MEI JUN JUL AUG SEP OKT NOV DEC".split(" ");
const polish = "STY LUT MAR KWI MAJ CZE LIP SIE WRZ PAŹ LIS GRU".split(" ");
const nordic = "JAN FEB MAR APR MAJ JUN JUL AUG SEP OKT NOV DEC".split(" ");

const noBreak = "\u00a0";
const narrowNoBreak = "\u202f";

// prettier-ignore
const rows = [
    // id  name             point  group          symbol  where digits am      pm      date          time months
    ["us", "United States",  ".", ",",           "$",     0, 2, "AM",   "PM",   "M/d/yyyy",    ":", english],
    ["gb", "United Kingdom", ".", ",",           "£",     0, 2, "AM",   "PM",   "dd/MM/yyyy",  ":", english],
    ["de", "Germany",        ",", ".",           "€",     3, 2, "AM",   "PM",   "dd.MM.yyyy",  ":", german],
    ["ch", "Switzerland",    ".", "’",           "CHF",   2, 2, "AM",   "PM",   "dd.MM.yyyy",  ":", german],
    ["fr", "France",         ",", narrowNoBreak, "€",     3, 2, "AM",   "PM",   "dd/MM/yyyy",  ":", french],
    ["it", "Italy",          ",", ".",           "€",     3, 2, "AM",   "PM",   "dd/MM/yyyy",  ":", italian],
    ["es", "Spain",          ",", ".",           "€",     3, 2, "a.m.", "p.m.", "dd/MM/yyyy",  ":", spanish],
    ["nl", "Netherlands",    ",", ".",           "€",     2, 2, "a.m.", "p.m.", "d-M-yyyy",    ":", dutch],
    ["pl", "Poland",         ",", noBreak,       "zł",    3, 2, "AM",   "PM",   "dd.MM.yyyy",  ":", polish],
    ["se", "Sweden",         ",", noBreak,       "kr",    3, 2, "fm",   "em",   "yyyy-MM-dd",  ":", nordic],
    ["dk", "Denmark",        ",", ".",           "kr.",   3, 2, "AM",   "PM",   "dd-MM-yyyy",  ".", nordic],
    ["br", "Brazil",         ",", ".",           "R$",    2, 2, "AM",   "PM",   "dd/MM/yyyy",  ":", portuguese],
    ["mx", "Mexico",         ".", ",",           "$",     0, 2, "a.m.", "p.m.", "dd/MM/yyyy",  ":", spanish],
    ["in", "India",          ".", ",",           "₹",     0, 2, "am",   "pm",   "dd-MM-yyyy",  ":", english],
    ["jp", "Japan",          ".", ",",           "¥",     0, 0, "午前", "午後", "yyyy/MM/dd",  ":", english],
    ["za", "South Africa",   ",", noBreak,       "R",     0, 2, "AM",   "PM",   "yyyy/MM/dd",  ":", english],
];
const settingsOf = ([
    ,
    ,
    decimal,
    thousands,
    currency,
    currencyPosition,
    currencyDigits,
    am,
    pm,
    date,
    time,
    months,
]) => ({ decimal, thousands, currency, currencyPosition, currencyDigits, am, pm, date, time, months });

export const regions = rows.map((row) => ({ id: row[0], name: row[1], settings: settingsOf(row) }));

export const home = regions[0];

export const regionOf = (id) => regions.find((region) => region.id === id) ?? home;

// Exactly one character, however many units it takes.
const isOne = (text) => [...text].length === 1;
const isUpTo = (most) => (text) => [...text].length <= most;
const isTwelveNames = (text) => text.split("/").length === 12 && text.split("/").every((name) => name.length > 0);

// Every setting as it is written in a form or an address: what it is called, what may stand there, and how it is read.
export const settingRows = [
    { name: "decimal", label: "Decimal character", hint: "one character", allows: isOne },
    { name: "thousands", label: "Thousands separator", hint: "one character", allows: isOne },
    { name: "currency", label: "Currency symbol", hint: "any text", allows: isUpTo(255) },
    {
        name: "currencyPosition",
        label: "Symbol stands",
        hint: "",
        allows: (text) => /^[0-3]$/.test(text),
        read: Number,
        choices: [
            ["0", "before: $1"],
            ["1", "behind: 1$"],
            ["2", "before, apart: $ 1"],
            ["3", "behind, apart: 1 $"],
        ],
    },
    {
        name: "currencyDigits",
        label: "Digits of money",
        hint: "0 to 16",
        allows: (text) => /^([0-9]|1[0-6])$/.test(text),
        read: Number,
    },
    { name: "am", label: "Before noon", hint: "up to 4 characters", allows: isUpTo(4) },
    { name: "pm", label: "After noon", hint: "up to 4 characters", allows: isUpTo(4) },
    {
        name: "date",
        label: "Picture of [date]",
        hint: "such as dd.MM.yyyy",
        allows: (text) => text !== "" && isUpTo(99)(text),
    },
    { name: "time", label: "Separator of [time]", hint: "usually :", allows: (text) => text !== "" && isUpTo(9)(text) },
    {
        name: "months",
        label: "Names of months",
        hint: "twelve, parted by /",
        allows: isTwelveNames,
        read: (text) => text.split("/"),
        write: (names) => names.join("/"),
    },
];

export const written = (row, settings) => (row.write ?? String)(settings[row.name]);

export const read = (row, text) => (row.read ?? String)(text);

// Those in which two differ.
export const differences = (settings, others) =>
    settingRows.filter((row) => written(row, settings) !== written(row, others));

const blanks = {
    " ": "a blank",
    [noBreak]: "a no-break blank",
    [narrowNoBreak]: "a narrow no-break blank",
    "\t": "a tab",
};

// What cannot be seen in a field is told beside it.
export const unseen = (text) => blanks[text] ?? "";
