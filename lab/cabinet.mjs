// The dialog of ready masks: drawers of buttons, thinned out by a search.
import { format } from "ztfield";

import { benchOfEntry, optionsOf } from "./bench.mjs";
import { drawers } from "./gallery.mjs";
import { byId, make, show } from "./page.mjs";
import { regionOf } from "./regions.mjs";

const typeNames = {
    string: "text",
    number: "number",
    decimal: "decimal",
    date: "date",
    time: "time",
    datetime: "date and time",
};

// As the country shows the entry's value.
export const sampleOf = (entry) => format(entry.value, optionsOf(benchOfEntry(entry)));

const simple = (text) =>
    text
        .toLowerCase()
        .normalize("NFD")
        .replace(/\p{Diacritic}/gu, "");

const wordsOf = (drawer, entry, sample) =>
    simple(
        [drawer.name, entry.title, regionOf(entry.region).name, entry.mask, typeNames[entry.type], sample].join(" "),
    );

const buttonOf = (drawer, entry, choose) => {
    const sample = sampleOf(entry) ?? "";
    const button = make(
        "button",
        { type: "button", class: "ready" },
        make("span", { class: "ready-title" }, entry.title),
        make("span", { class: "ready-place" }, regionOf(entry.region).name),
        make("span", { class: "ready-mask mono" }, entry.mask || "a list"),
        make("span", { class: "ready-sample mono" }, sample),
    );
    button.dataset.words = wordsOf(drawer, entry, sample);
    button.addEventListener("click", () => choose(entry));
    return button;
};

const drawerOf = (drawer, choose) => {
    const title = make("h3", {}, drawer.name);
    const list = make("ul", {}, ...drawer.entries.map((entry) => make("li", {}, buttonOf(drawer, entry, choose))));
    return make("section", { class: "ready-drawer" }, title, list);
};

// All words of the search must be found, in any order.
const search = (container) => {
    const words = simple(byId("search").value)
        .split(/\s+/)
        .filter((word) => word !== "");
    let found = 0;
    for (const section of container.querySelectorAll(".ready-drawer")) {
        let inDrawer = 0;
        for (const button of section.querySelectorAll(".ready")) {
            const fits = words.every((word) => button.dataset.words.includes(word));
            button.parentElement.hidden = !fits;
            inDrawer += fits ? 1 : 0;
        }
        section.hidden = inDrawer === 0;
        found += inDrawer;
    }
    show(byId("found"), found === 0 ? "Nothing found." : `${found} ${found === 1 ? "mask" : "masks"}`);
};

// Down and Up go from mask to mask, and up from the first one back to the search.
const walk = (container, event) => {
    if (event.key !== "ArrowDown" && event.key !== "ArrowUp") return;
    const buttons = [...container.querySelectorAll(".ready")].filter((button) => button.offsetParent !== null);
    const at = buttons.indexOf(document.activeElement) + (event.key === "ArrowDown" ? 1 : -1);
    if (at >= buttons.length) return;
    event.preventDefault();
    (buttons[at] ?? byId("search")).focus();
};

export const setUpCabinet = (take) => {
    const dialog = byId("gallery");
    const container = byId("drawers");
    const choose = (entry) => {
        dialog.close();
        take(entry);
    };
    byId("open-gallery").addEventListener("click", () => {
        if (container.children.length === 0) container.append(...drawers.map((drawer) => drawerOf(drawer, choose)));
        byId("search").value = "";
        search(container);
        dialog.showModal();
        byId("search").focus();
    });
    byId("close-gallery").addEventListener("click", () => dialog.close());
    byId("search").addEventListener("input", () => search(container));
    dialog.addEventListener("keydown", (event) => walk(container, event));
};
