// Positions: the library counts code points, JavaScript the UTF-16 units of a text.

const surrogates = /[\ud800-\udfff]/;

/**
 * Where the code point of an index begins, in UTF-16 units.
 * @param {string} text
 * @param {number} points
 */
export function unitsBefore(text, points) {
    if (!surrogates.test(text)) return Math.min(points, text.length);
    let units = 0;
    for (const character of text) {
        if (points-- <= 0) break;
        units += character.length;
    }
    return units;
}

/**
 * How many code points stand in front of a place that is told in UTF-16 units; one that it cuts counts as behind it.
 * @param {string} text
 * @param {number} units
 */
export function pointsBefore(text, units) {
    if (!surrogates.test(text)) return Math.max(0, Math.min(units, text.length));
    let points = 0;
    for (const character of text) {
        units -= character.length;
        if (units < 0) break;
        ++points;
    }
    return points;
}
