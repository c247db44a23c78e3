// The page: one bench, shown by all parts and held by the address.
import { version } from "ztfield";

import { addressOf, benchOf, benchOfEntry, choicesOf, freshBench, types } from "./bench.mjs";
import { setUpCabinet } from "./cabinet.mjs";
import { callOf } from "./calls.mjs";
import { copy } from "./copying.mjs";
import { Live } from "./live.mjs";
import * as log from "./log.mjs";
import { atCaret, markCaret, showMap } from "./map.mjs";
import { byId, check, checkedOf, fillSegments, make, show, withBlanks } from "./page.mjs";
import { differences, read, regionOf, regions, settingRows, unseen, written } from "./regions.mjs";
import { testRowOf } from "./testrow.mjs";
import { setUpTheme } from "./theme.mjs";
import { judge, showVerdict } from "./verdict.mjs";

const typeLabels = {
    string: "Text",
    number: "Number",
    decimal: "Decimal",
    date: "Date",
    time: "Time",
    datetime: "Date and time",
};

const languages = [
    ["c", "C"],
    ["cpp", "C++"],
    ["csharp", "C#"],
    ["pascal", "Pascal"],
    ["python", "Python"],
    ["javascript", "JavaScript"],
    ["test", "Test row"],
];

// Controls whose text or tick is the bench's, by their names there.
const texts = { mask: "mask", increment: "increment", minimum: "minimum", maximum: "maximum", choices: "choices" };
const ticks = { autoskip: "autoskip", "read-only": "readOnly", spin: "spin" };

let bench = freshBench();

let silence = 0;

// Goes away by itself, so that it covers nothing for long.
const tell = (text) => {
    clearTimeout(silence);
    show(byId("told"), text);
    silence = setTimeout(() => show(byId("told")), 8000);
};

const live = new Live(byId("field"), {
    told: (event) => {
        if (event.kind !== "changed" || byId("log-changes").checked) log.add(byId("log"), event);
    },
    shown: () => showField(),
});

// ---- what is shown

const stateSigns = { empty: "○", incomplete: "◐", invalid: "✕", "out of range": "↔", complete: "●" };

const valueWords = (value) => (value === null ? ["none yet"] : value === "" ? ["the empty value"] : withBlanks(value));

const caretWords = ({ start, end, caret }) =>
    start === end ? `at ${caret}` : `${start} to ${end} selected, caret at ${caret}`;

const setAvailable = (button, isAvailable) => button.setAttribute("aria-disabled", String(!isAvailable));

let mapped = "";

function showPositions(text, positions, selection) {
    const drawn = JSON.stringify([text, positions]);
    if (drawn !== mapped) showMap(byId("map"), text, positions);
    mapped = drawn;
    markCaret(byId("map"), selection, text.length);
    show(byId("at-caret"), atCaret(positions, selection));
}

function showField() {
    if (!live.attached) return;
    const { field, selection } = live;
    const { state, text } = field;
    show(
        byId("state"),
        make(
            "span",
            { class: `state`, "data-state": state },
            make("span", { "aria-hidden": "true" }, stateSigns[state]),
            " " + state,
        ),
    );
    show(byId("value"), ...valueWords(field.value));
    byId("value").classList.toggle("soft", !field.value);
    show(byId("shown"), ...withBlanks(text));
    show(byId("caret"), caretWords(selection));
    showPositions(text, field.positions, selection);
    setAvailable(byId("undo"), field.canUndo);
    setAvailable(byId("redo"), field.canRedo);
    showCall();
    keepAddress();
}

function showBench() {
    const judged = judge(bench);
    showVerdict(byId("verdict"), byId("mask"), bench, judged);
    show(byId("blank"), ...(judged.blank === "" ? ["nothing"] : withBlanks(judged.blank)));
    show(byId("in-force"), ...(judged.inForce === "" ? ["none"] : withBlanks(judged.inForce)));
    showChanged();
}

function showChanged() {
    const changed = differences(bench.settings, regionOf(bench.region).settings).length;
    show(byId("regional-changed"), changed === 0 ? "" : `${changed} changed`);
}

const callNotes = {
    csharp: "A MaskedEdit of the binding; the form's own using lines are those of its sample.",
    javascript: "An input of the page becomes the field.",
    test: "From the keys typed since the field was last emptied, or since something else than a key changed it.",
};

function showCall() {
    const language = checkedOf("language") ?? "c";
    const source =
        language === "test"
            ? testRowOf(bench, live.recording, live.isFrozen ? live.after : live.marked)
            : callOf(language, bench);
    if (byId("call").textContent !== source) show(byId("call"), source);
    show(byId("call-note"), callNotes[language] ?? "The control; heap, form and instance are the program's.");
}

// ---- the address

const currentAddress = () => {
    const keys = live.keysFromEmpty;
    return "#" + addressOf({ ...bench, keys, value: keys === "" ? (live.field.value ?? "") : "" });
};

let awaited = 0;

// Not at every key: browsers allow only so many changes of the address in a time.
function keepAddress() {
    clearTimeout(awaited);
    awaited = setTimeout(() => {
        const address = currentAddress();
        if (address !== location.hash) history.replaceState(null, "", address);
    }, 200);
}

function takeAddress() {
    const { bench: told, unread } = benchOf(location.hash);
    bench = told;
    fillControls();
    rebuild(bench.value, bench.keys);
    tell(
        unread.length === 0
            ? ""
            : `The address says something that cannot be read: ${unread.join(", ").slice(0, 100)}.`,
    );
}

// ---- from the controls to the bench

function rebuild(value, keys = "") {
    live.build(bench, value, keys);
    showBench();
    showField();
}

// A change of the bench keeps the value where it is of the same type.
function change(changes) {
    const value = changes.type === undefined || changes.type === bench.type ? live.value : "";
    bench = { ...bench, value: changes.type === undefined ? bench.value : "", ...changes };
    rebuild(value);
}

function fillSettings() {
    show(
        byId("settings"),
        ...settingRows.map((row) => {
            const id = `setting-${row.name}`;
            const hint = make("span", { class: "hint", id: `${id}-hint` }, row.hint);
            const control = row.choices
                ? make("select", { id }, ...row.choices.map(([value, label]) => make("option", { value }, label)))
                : make("input", {
                      id,
                      type: "text",
                      class: "mono",
                      autocomplete: "off",
                      spellcheck: "false",
                      "aria-describedby": `${id}-hint`,
                  });
            control.addEventListener("input", () => changeSetting(row, control, hint));
            return make(
                "div",
                { class: `setting setting-${row.name}` },
                make("label", { for: id }, row.label),
                control,
                hint,
            );
        }),
    );
}

function changeSetting(row, control, hint) {
    const allowed = row.allows(control.value);
    control.setAttribute("aria-invalid", String(!allowed));
    show(hint, unseen(control.value) || row.hint);
    if (allowed) change({ settings: { ...bench.settings, [row.name]: read(row, control.value) } });
}

function showSettings() {
    for (const row of settingRows) {
        const control = byId(`setting-${row.name}`);
        control.value = written(row, bench.settings);
        control.setAttribute("aria-invalid", "false");
        show(byId(`setting-${row.name}-hint`), unseen(control.value) || row.hint);
    }
}

function fillControls() {
    for (const [id, name] of Object.entries(texts)) byId(id).value = bench[name];
    for (const [id, name] of Object.entries(ticks)) byId(id).checked = bench[name];
    check("type", bench.type);
    check("way", bench.modern ? "modern" : "classic");
    byId("region").value = bench.region;
    showSettings();
    showSteps();
}

const hasSteps = () => bench.spin || choicesOf(bench.choices).length > 0;

function showSteps() {
    byId("spin-settings").disabled = !bench.spin;
    for (const id of ["step-up", "step-down"]) setAvailable(byId(id), hasSteps());
}

function put(entry) {
    bench = benchOfEntry(entry);
    log.clear(byId("log"));
    fillControls();
    rebuild(bench.value);
    tell(`${entry.title}, ${regionOf(entry.region).name}: on the bench.`);
    byId("field").focus();
}

function give() {
    const text = byId("given").value;
    const reason = live.give(text);
    if (reason === null) bench.value = text;
    show(byId("given-answer"), reason === null ? "Taken." : `Refused: ${reason}. Nothing has changed.`);
    showField();
}

function empty() {
    bench.value = "";
    rebuild("");
    tell("The field is empty.");
    byId("field").focus();
}

function setUpControls() {
    for (const [id, name] of Object.entries(texts))
        byId(id).addEventListener("input", (event) => {
            change({ [name]: event.target.value });
            showSteps();
        });
    for (const [id, name] of Object.entries(ticks))
        byId(id).addEventListener("change", (event) => {
            change({ [name]: event.target.checked });
            showSteps();
        });
    byId("types").addEventListener("change", () => change({ type: checkedOf("type") }));
    byId("ways").addEventListener("change", () => change({ modern: checkedOf("way") === "modern" }));
    byId("languages").addEventListener("change", showCall);
    byId("region").addEventListener("change", (event) => {
        const region = regionOf(event.target.value);
        change({ region: region.id, settings: { ...region.settings } });
        showSettings();
    });
}

function step(up) {
    if (hasSteps()) live.act((attached) => attached.field.step(up));
}

function setUpDeeds() {
    const deeds = {
        "step-up": () => step(true),
        "step-down": () => step(false),
        undo: () => live.act((attached) => attached.field.undo()),
        redo: () => live.act((attached) => attached.field.redo()),
        empty: empty,
        give: give,
        "clear-log": () => log.clear(byId("log")),
        "copy-call": async () =>
            tell((await copy(byId("call").textContent)) ? "Copied." : "The browser does not let the page copy."),
        share: share,
        reset: () => {
            history.replaceState(null, "", "#");
            log.clear(byId("log"));
            takeAddress();
        },
    };
    for (const [id, deed] of Object.entries(deeds)) byId(id).addEventListener("click", deed);
    byId("given").addEventListener("keydown", (event) => event.key === "Enter" && give());
}

async function share() {
    history.replaceState(null, "", currentAddress());
    tell(
        (await copy(location.href))
            ? "The link is on the clipboard."
            : "Copy the address of the page: it holds all of this.",
    );
}

// A click on a cell puts the caret there; with keys it is moved in the field itself.
function setUpMap() {
    byId("map").addEventListener("click", (event) => {
        const cell = event.target.closest(".cell");
        if (!cell) return;
        const index = Number(cell.dataset.index);
        byId("field").focus();
        live.act((attached) => attached.field.click(index));
        byId("field").setSelectionRange(live.field.selection.start, live.field.selection.end);
    });
}

fillSegments(
    byId("types"),
    "type",
    types.map((type) => [type, typeLabels[type]]),
);
fillSegments(byId("languages"), "language", languages);
byId("region").append(...regions.map(({ id, name }) => make("option", { value: id }, name)));
check("language", "c");
show(byId("version"), version);
fillSettings();
setUpControls();
setUpDeeds();
setUpMap();
setUpTheme(byId("theme"));
setUpCabinet(put);
takeAddress();
window.addEventListener("hashchange", takeAddress);
