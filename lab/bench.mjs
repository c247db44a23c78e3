// What stands on the bench: one plain value that every part of the page reads and the address holds.
import { differences, home, read, regionOf, settingRows, written } from "./regions.mjs";

export const types = ["string", "number", "decimal", "date", "time", "datetime"];

export const freshBench = () => ({
    mask: "MM/DD/YYYY",
    type: "date",
    modern: true,
    autoskip: false,
    readOnly: false,
    spin: true,
    increment: "1",
    minimum: "",
    maximum: "",
    choices: "",
    region: home.id,
    settings: { ...home.settings },
    value: "",
    keys: "",
});

const isAny = () => true;
const isFlag = (text) => text === "0" || text === "1";
const isIncrement = (text) => /^[0-9]{1,9}$/.test(text);
const asFlag = (text) => text === "1";
const fromFlag = (on) => (on ? "1" : "0");

// What an address says, in this order; the names are those of the bench unless told otherwise.
const addressRows = [
    { key: "mask", allows: (text) => text.length <= 600 },
    { key: "type", allows: (text) => types.includes(text) },
    { key: "modern", allows: isFlag, read: asFlag, write: fromFlag },
    { key: "autoskip", allows: isFlag, read: asFlag, write: fromFlag },
    { key: "lock", name: "readOnly", allows: isFlag, read: asFlag, write: fromFlag },
    { key: "spin", allows: isFlag, read: asFlag, write: fromFlag },
    { key: "by", name: "increment", allows: isIncrement },
    { key: "from", name: "minimum", allows: isAny },
    { key: "to", name: "maximum", allows: isAny },
    { key: "choices", allows: isAny },
    { key: "value", allows: isAny },
    { key: "keys", allows: (text) => text.length <= 2000 },
];

const nameOf = (row) => row.name ?? row.key;

// Written so that a person can read it: "#" comes as "*", a blank as "+", a new line as ";".
const plain = [
    [/%20/g, "+"],
    [/%23/g, "*"],
    [/%0A/g, ";"],
    [/%2F/g, "/"],
    [/%3A/g, ":"],
    [/%2C/g, ","],
    [/%24/g, "$"],
    [/%40/g, "@"],
    [/%5B/g, "["],
    [/%5D/g, "]"],
    [/%3D/g, "="],
    [/%7B/g, "{"],
    [/%7D/g, "}"],
];

const encode = (text) =>
    plain.reduce((done, [from, to]) => done.replace(from, to), encodeURIComponent(text).replace(/\*/g, "%2A"));

const decode = (text) => decodeURIComponent(text.replace(/\+/g, "%20").replace(/\*/g, "%23").replace(/;/g, "%0A"));

// Only what differs from a fresh bench, so that the address of a small change is short.
export const addressOf = (bench) => {
    const fresh = freshBench();
    const said = addressRows
        .map((row) => [row.key, (row.write ?? String)(bench[nameOf(row)]), (row.write ?? String)(fresh[nameOf(row)])])
        .filter(([key, text, usual]) => text !== usual || key === "mask" || key === "type");
    if (bench.region !== home.id) said.push(["region", bench.region]);
    for (const row of differences(bench.settings, regionOf(bench.region).settings))
        said.push([row.name, written(row, bench.settings)]);
    return said.map(([key, text]) => key + "=" + encode(text)).join("&");
};

const pairs = (address) =>
    address
        .replace(/^#/, "")
        .split("&")
        .filter((pair) => pair !== "")
        .map((pair) => {
            const at = pair.indexOf("=");
            return at < 0 ? [pair, ""] : [pair.slice(0, at), pair.slice(at + 1)];
        });

const decoded = (text) => {
    try {
        return decode(text);
    } catch {
        return null; // a percent sign that stands for nothing
    }
};

// Takes what one pair of the address says; false where it says nothing that can be taken.
const take = (bench, key, text) => {
    if (text === null || text.includes("\0")) return false;
    const row = addressRows.find((candidate) => candidate.key === key);
    const setting = settingRows.find((candidate) => candidate.name === key);
    if (row?.allows(text)) bench[nameOf(row)] = (row.read ?? String)(text);
    else if (!row && setting?.allows(text)) bench.settings[setting.name] = read(setting, text);
    else return false;
    return true;
};

const isRegion = (id) => regionOf(id).id === id;

// The bench that an address tells of, and the keys of it that could not be read: these stand as on a fresh bench.
export const benchOf = (address) => {
    const bench = freshBench();
    const unread = [];
    const said = pairs(address).map(([key, text]) => [key, decoded(text)]);
    const region = said.find(([key]) => key === "region")?.[1];
    if (region !== undefined && isRegion(region)) {
        bench.region = region;
        bench.settings = { ...regionOf(region).settings };
    }
    for (const [key, text] of said) if (key === "region" ? !isRegion(text) : !take(bench, key, text)) unread.push(key);
    return { bench, unread };
};

// An entry of the gallery as a bench: modern, since only then a number's mask is the same in every country.
export const benchOfEntry = (entry) => ({
    ...freshBench(),
    spin: false,
    ...entry.more,
    mask: entry.mask,
    type: entry.type,
    region: entry.region,
    settings: { ...regionOf(entry.region).settings },
    value: entry.value,
});

// A line is "text = value"; without "=" the text is the value, and nothing behind it stands for no data.
export const choicesOf = (lines) =>
    lines
        .split("\n")
        .map((line) => line.trim())
        .filter((line) => line !== "")
        .map((line) => {
            const at = line.lastIndexOf("=");
            if (at < 0) return { text: line, value: line };
            const value = line.slice(at + 1).trim();
            return { text: line.slice(0, at).trim(), value: value === "" ? null : value };
        });

export const rangeOf = (bench) =>
    bench.minimum === "" && bench.maximum === "" ? "" : bench.minimum + "~" + bench.maximum;

// As the module wants it.
export const optionsOf = (bench) => {
    const choices = choicesOf(bench.choices);
    const range = rangeOf(bench);
    return {
        mask: bench.mask,
        type: bench.type,
        settings: bench.settings,
        modern: bench.modern,
        autoskip: bench.autoskip,
        readOnly: bench.readOnly,
        spin: bench.spin && { increment: Number(bench.increment || "1"), ...(range === "" ? {} : { range }) },
        ...(choices.length > 0 ? { choices } : {}),
    };
};
