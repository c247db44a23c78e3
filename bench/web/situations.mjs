// What clerks do with masked inputs, and what they should find there: the same for whoever masks the input.
//
// kind | what is tried | text at first, with its caret or selection marked; "" for an empty input | what is done |
// the text that must stand there
//
// Done: characters are typed; keys stand in braces, as do {Paste text} and {Tab}, which leaves the input. Blanks at the end do not count,
// and "_" for what is not filled in counts as a blank.
const rows = `
date   | digits alone                                  |                  | 07041995                       | 07/04/1995
date   | separators typed where they stand             |                  | 07/04/1995                     | 07/04/1995
date   | single digits, each ended by a separator      |                  | 7/4/1995                       | 07/04/1995
date   | points in the place of slashes                |                  | 7.4.1995                       | 07/04/1995
date   | dashes in the place of slashes                |                  | 7-4-1995                       | 07/04/1995
date   | a leap day                                    |                  | 02292024                       | 02/29/2024
date   | a leap day over another date, all selected    | [03/31/2023]     | 02292024                       | 02/29/2024
date   | a leap day over another date, from its start  | |03/31/2023      | 02292024                       | 02/29/2024
date   | the 31st over a 30th, month first             | |04/30/2023      | 05312023                       | 05/31/2023
date   | two digits of the year                        |                  | 7/4/95{Tab}                    | 07/04/1995
date   | a letter among digits                         |                  | 07x041995                      | 07/04/1995
date   | paste: the day first, the month by its name   |                  | {Paste 4 July 2026}            | 07/04/2026
date   | paste: the month by its name first            |                  | {Paste July 4, 2026}           | 07/04/2026
date   | paste: year, month, day                       |                  | {Paste 2026-07-04}             | 07/04/2026
date   | paste: single digits                          |                  | {Paste 7/4/2026}               | 07/04/2026
date   | paste: blanks around it                       |                  | {Paste  07/04/2026 }           | 07/04/2026
date   | paste of a word leaves the date               | [07/04/1995]     | {Paste hello}                  | 07/04/1995
date   | paste of a day that does not exist            | [07/04/1995]     | {Paste 02/30/2026}             | 07/04/1995
date   | Backspace behind a slash takes the digit      | 07/|04/1995      | {Backspace}                    | 0 /04/1995
date   | Backspace at the end                          | 07/04/1995|      | {Backspace}                    | 07/04/199
date   | a selection over a slash deleted              | 0[7/04]/1995     | {Delete}                       | 0 /  /1995
date   | all deleted                                   | [07/04/1995]     | {Delete}                       |   /  /
date   | another day over the selected one             | 07/[04]/1995     | 09                             | 07/09/1995
date   | the day cut                                   | 07/[04]/1995     | {Control+x}                    | 07/  /1995
date   | a deletion undone                             | [07/04/1995]     | {Delete}{Control+z}            | 07/04/1995
date   | typing undone                                 | [07/04/1995]     | 12252026{Control+z}            | 07/04/1995
date   | typing undone and done again                  | [07/04/1995]     | 12252026{Control+z}{Control+y} | 12/25/2026
date   | a paste undone                                | [07/04/1995]     | {Paste 2026-12-25}{Control+z}  | 07/04/1995
phone  | digits alone                                  |                  | 2125551234                     | (212) 555-1234
phone  | typed with its punctuation                    |                  | (212) 555-1234                 | (212) 555-1234
phone  | paste: digits alone                           |                  | {Paste 2125551234}             | (212) 555-1234
phone  | paste: as it is shown                         |                  | {Paste (212) 555-1234}         | (212) 555-1234
phone  | paste: with points                            |                  | {Paste 212.555.1234}           | (212) 555-1234
phone  | a digit too many                              |                  | 21255512349                    | (212) 555-1234
phone  | Backspace behind the bracket takes the digit  | (212) |555-1234  | {Backspace}                    | (21 ) 555-1234
phone  | a digit deleted leaves the others in place    | (2|12) 555-1234  | {Delete}                       | (2 2) 555-1234
phone  | a digit typed over another one                | (212) |555-1234  | 9                              | (212) 955-1234
phone  | another area code over the selected one       | ([212]) 555-1234 | 646                            | (646) 555-1234
phone  | a deletion over literals undone               | (21[2) 55]5-1234 | {Delete}{Control+z}            | (212) 555-1234
number | a fraction                                    |                  | 1234.5{Tab}                    | 1,234.50
number | separators typed as well                      |                  | 1,234.5{Tab}                   | 1,234.50
number | the point first, over another number          | [1,234.50]       | .5{Tab}                        | 0.50
number | a minus first, over another number            | [12.00]          | -0.5{Tab}                      | -0.50
number | a minus behind                                |                  | 5-{Tab}                        | -5.00
number | a letter and then a fraction                  | [12.00]          | x.5{Tab}                       | 0.50
number | Backspace behind a separator takes the digit  | 1,|234.00        | {Backspace}{Tab}               | 234.00
number | more digits than the fraction has             |                  | 1.239{Tab}                     | 1.23
number | paste: with a currency symbol                 |                  | {Paste $1,234.50}{Tab}         | 1,234.50
number | paste: negative, in brackets                  |                  | {Paste (1,234.50)}{Tab}        | -1,234.50
number | paste of a word leaves the number             | [12.00]          | {Paste 7 apples}{Tab}          | 12.00
number | all typed over, and undone                    | [12.00]          | 99{Control+z}{Tab}             | 12.00
german | a fraction                                    |                  | 1234,5{Tab}                    | 1.234,50
german | the point of the keypad                       |                  | 1234{NumpadDecimal}5{Tab}      | 1.234,50
german | paste: as it is written there, with a symbol  |                  | {Paste 1.234,50 €}{Tab}        | 1.234,50
german | the comma first, over another number          | [12,00]          | ,5{Tab}                        | 0,50
clock  | afternoon by its hour                         |                  | 1330                           | 01:30 PM
clock  | afternoon by a letter                         |                  | 930p                           | 09:30 PM
clock  | the half of the day alone                     | 09:30 [AM]       | p                              | 09:30 PM
code   | small letters                                 |                  | ab1234                         | AB-1234
code   | paste: small letters and the dash             |                  | {Paste ab-1234}                | AB-1234
`;

/** Where the bars between the columns stand; a caret is the same sign, and stands elsewhere. */
const bars = [7, 55, 74, 107];

function cells(line) {
    const ends = [...bars, line.length + 1];
    return ends.map((end, i) => line.slice(i === 0 ? 0 : bars[i - 1] + 2, end - 1));
}

/** The text without its marks, and where they stand. */
function unmarked(marked) {
    const start = marked.search(/[|[]/);
    const text = marked.replace(/[|[\]]/g, "");
    const end = marked.includes("]") ? marked.indexOf("]") - 1 : start;
    return { text, start, end };
}

/** Characters and names in braces, one by one. */
function actsOf(done) {
    return [...done.matchAll(/\{([^}]*)\}|([^{]+)/g)].map(([, name, typed]) => (name === undefined ? { typed } : actNamed(name)));
}

function actNamed(name) {
    return name.startsWith("Paste ") ? { pasted: name.slice("Paste ".length) } : { key: name };
}

export const situations = rows
    .split("\n")
    .filter((line) => line.trim())
    .map(cells)
    .map(([kind, title, start, done, shown]) => ({
        kind: kind.trim(),
        title: title.trim(),
        start: unmarked(start.trim()),
        done: done.trimEnd(),
        acts: actsOf(done.trimEnd()),
        shown: shown.trimEnd(),
    }));
