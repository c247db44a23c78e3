// Ready masks. Each is shown with its sample as its own country writes it, and put on the bench under that country's settings.

// prettier-ignore
const dates = [
    // title                       region mask              type     sample          more
    ["As the country writes it",   "us", "[date]",          "date", "2026-07-04"],
    ["As the country writes it",   "de", "[date]",          "date", "2026-07-04"],
    ["As the country writes it",   "se", "[date]",          "date", "2026-07-04"],
    ["Month, day, year",           "us", "MM/DD/YYYY",      "date", "2026-07-04", { spin: true }],
    ["Short year",                 "us", "MM/DD/YY",        "date", "2026-07-04"],
    ["Day, month, year",           "gb", "DD/MM/YYYY",      "date", "2026-07-04"],
    ["Day, month, year",           "de", "DD.MM.YYYY",      "date", "2026-07-04", { spin: true }],
    ["Day and name of the month",  "fr", "DD MMM YYYY",     "date", "2026-08-15"],
    ["Day and name of the month",  "pl", "DD MMM YYYY",     "date", "2026-10-11"],
    ["Named month, with hyphens",  "us", "DD-MMM-YYYY",     "date", "2026-07-04"],
    ["International",              "se", "YYYY-MM-DD",      "date", "2026-07-04"],
    ["Year first",                 "jp", "YYYY/MM/DD",      "date", "2026-07-04"],
    ["With signs of the calendar", "jp", "YYYY年MM月DD日",  "date", "2026-07-04"],
    ["Card expires",               "us", "MM/YY",           "date", "2029-11-01"],
    ["Day of the year",            "us", "JJJ/YYYY",        "date", "2026-07-04"],
    ["Within one year",            "ch", "DD.MM.YYYY",      "date", "2026-07-04",
        { spin: true, minimum: "2026-01-01", maximum: "2026-12-31" }],
];

// prettier-ignore
const times = [
    ["As the country writes it",   "dk", "[time]",          "time", "14:07:09"],
    ["Hours and minutes",          "de", "HH:MM",           "time", "14:07", { spin: true }],
    ["Twelve hours",               "us", "HH:MM AM/PM",     "time", "14:07", { spin: true }],
    ["Half of the day first",      "jp", "AM/PM HH:MM",     "time", "14:07"],
    ["Twelve hours, small letters", "in", "HH:MM am/pm",    "time", "14:07"],
    ["With seconds",               "gb", "HH:MM:SS",        "time", "14:07:09"],
    ["With milliseconds",          "us", "HH:MM:SS.FFF",    "time", "14:07:09:250"],
    ["With a dot",                 "it", "HH.MM",           "time", "14:07"],
    ["Office hours",               "nl", "HH:MM",           "time", "09:30", { spin: true, minimum: "08:00", maximum: "18:00" }],
];

// prettier-ignore
const moments = [
    ["As the country writes it",   "de", "[date] [time]",       "datetime", "2026-07-04 14:07:09"],
    ["Appointment",                "us", "MM/DD/YYYY HH:MM AM/PM", "datetime", "2026-07-04 14:07", { spin: true }],
    ["Appointment",                "fr", "DD/MM/YYYY HH:MM",    "datetime", "2026-07-04 14:07"],
    ["Log line",                   "se", "YYYY-MM-DD HH:MM:SS", "datetime", "2026-07-04 14:07:09"],
    ["With fractions",             "ch", "DD.MM.YYYY HH:MM:SS.FFF", "datetime", "2026-07-04 14:07:09:250"],
];

// prettier-ignore
const phones = [
    ["Phone",               "us", "(###) ###-####",      "string", "5551234567"],
    ["Phone and extension", "us", "(###) ###-#### e~xt. ####", "string", "55512345671234"],
    ["Mobile",              "gb", "##### ######",        "string", "07700900123"],
    ["Phone",               "fr", "## ## ## ## ##",      "string", "0199001234"],
    ["International",       "de", "+49 ### #######",     "string", "3012345678"],
    ["Phone",               "br", "(##) #####-####",     "string", "11961234567"],
    ["Mobile",              "in", "+91 ##### #####",     "string", "9812345678"],
    ["Phone",               "jp", "##-####-####",        "string", "0312345678"],
    ["Mobile",              "pl", "+48 ### ### ###",     "string", "512345678"],
];

// prettier-ignore
const codes = [
    ["Postal code",         "us", "#####",               "string", "90210"],
    ["Postal code and more", "us", "#####-####",         "string", "902101234"],
    ["Social security",     "us", "###-##-####",         "string", "078051120"],
    ["Postal code",         "pl", "##-###",              "string", "00950"],
    ["Postal code",         "nl", "#### !!",             "string", "1012AB"],
    ["Postal code",         "br", "#####-###",           "string", "01310100"],
    ["Taxpayer",            "br", "###.###.###-##",      "string", "12345678909"],
    ["Postal code",         "jp", "〒###-####",          "string", "1000001"],
    ["National insurance",  "gb", "!! ## ## ## !",       "string", "QQ123456C"],
    ["Fiscal code",         "it", "!!!!!!##!##!###!",    "string", "RSSMRA85T10A562S"],
    ["Bank account",        "de", "DE## #### #### #### #### ##", "string", "89370400440532013000"],
    ["Old-age insurance",   "ch", "756.####.####.##",    "string", "9217076985"],
    ["Taxpayer",            "in", "!!!!!####!",          "string", "ABCPE1234F"],
    ["Number plate",        "fr", "!!-###-!!",           "string", "AB123CD"],
    ["Payment card",        "us", "#### #### #### ####", "string", "4000001234567899"],
    ["Book",                "us", "###-#-##-######-#",   "string", "9780000000000"],
    ["Licence key",         "us", "!!!!!-!!!!!-!!!!!",   "string", "A1B2C3D4E5F6G7H"],
    ["Part of a machine",   "de", "~A##-^^/###",         "string", "12xy345"],
];

// prettier-ignore
const amounts = [
    ["Money, nine digits",  "us", "[currency(9)]",       "decimal", "1234.5"],
    ["Money, nine digits",  "de", "[currency(9)]",       "decimal", "1234.5"],
    ["Money, nine digits",  "fr", "[currency(9)]",       "decimal", "1234.5"],
    ["Money, nine digits",  "ch", "[currency(9)]",       "decimal", "1234.5"],
    ["Money, nine digits",  "in", "[currency(9)]",       "decimal", "1234.5"],
    ["Money without fraction", "jp", "[currency(9)]",    "decimal", "1234"],
    ["Money, nine digits",  "br", "[currency(9)]",       "decimal", "-1234.5"],
    ["Amount",              "us", "#,###,##0.00",        "decimal", "1234.5"],
    ["Amount",              "de", "#,###,##0.00",        "decimal", "1234.5"],
    ["Amount",              "se", "#,###,##0.00",        "decimal", "1234.5"],
    ["Rate of exchange",    "gb", "##0.0000",            "number",  "1.1875"],
    ["Whole number",        "us", "#,###,##0",           "number",  "1234567"],
    ["Pieces, 1 to 99",     "us", "#0",                  "number",  "12", { spin: true, minimum: "1", maximum: "99" }],
    ["Four digits",         "us", "0000",                "number",  "42"],
    ["Total in front",      "us", "Total #,##0.00",      "number",  "1234.5"],
];

// prettier-ignore
const shares = [
    ["Percentage",          "us", "##0%",                "number",  "0.15", { spin: true, minimum: "0", maximum: "1" }],
    ["One place",           "us", "##0.0%",              "number",  "0.125"],
    ["One place",           "de", "##0.0%",              "number",  "0.125"],
    ["Two places",          "fr", "##0.00%",             "decimal", "0.0725"],
    ["Two places",          "in", "##0.00%",             "decimal", "0.18"],
];

// prettier-ignore
const lists = [
    ["Size",                "us", "",                    "string",  "M",  { spin: true, choices: "small = S\nmedium = M\nlarge = L" }],
    ["Salutation",          "gb", "",                    "string",  "ms", { spin: true, choices: "Ms = ms\nMr = mr\nMx = mx\n(none) =" }],
    ["Day of the week",     "de", "",                    "string",  "1",
        { spin: true, choices: "Montag = 1\nDienstag = 2\nMittwoch = 3\nDonnerstag = 4\nFreitag = 5" }],
];
const drawer = (name, rows) => ({
    name,
    entries: rows.map(([title, region, mask, type, value, more = {}]) => ({ title, region, mask, type, value, more })),
});

export const drawers = [
    drawer("Dates", dates),
    drawer("Times", times),
    drawer("Dates with times", moments),
    drawer("Phones", phones),
    drawer("Codes", codes),
    drawer("Amounts", amounts),
    drawer("Percentages", shares),
    drawer("Choices", lists),
];
