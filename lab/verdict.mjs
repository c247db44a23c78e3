// Whether the mask is taken, and if not where in it and why.
import { Field, check } from "ztfield";

import { optionsOf } from "./bench.mjs";
import { make, show } from "./page.mjs";

// Modern editing reads "." and "," of a number's mask alike in all countries, so the field itself is asked; the check says why.
export const judge = (bench) => {
    const field = new Field({ type: bench.type, settings: bench.settings, modern: bench.modern });
    const isTaken = field.setMask(bench.mask, bench.type) || (bench.mask === "" && bench.type === "string");
    const blank = new Field({ ...optionsOf(bench), value: null });
    const judged = {
        isTaken,
        inForce: field.mask,
        blank: blank.text,
        check: check(bench.mask, bench.type, bench.settings, { modern: false }),
    };
    field.destroy();
    blank.destroy();
    return judged;
};

const accepted = (bench, judged) => {
    const words = ["Fits."];
    if (bench.mask === "") words.push("Without a mask the text stands as it is typed.");
    else if (judged.inForce !== bench.mask) words.push(`Stands for ${judged.inForce}.`);
    if (!judged.check.fits) words.push("A classic control under these settings refuses it.");
    return words.join(" ");
};

// The mask once more with a caret under what is wrong.
const pointed = (mask, position) => {
    const units = [...mask];
    const at = Math.max(0, Math.min(position, mask.length));
    const before = mask.slice(0, at);
    const wrong = [...mask.slice(at)][0] ?? " ";
    return make(
        "span",
        { class: "pointed mono", "aria-hidden": "true" },
        before,
        make("mark", { class: "wrong" }, wrong),
        mask.slice(at + (units.length > 0 ? wrong.length : 0)),
    );
};

const where = (mask, position) => {
    const character = [...mask.slice(position)][0];
    return character === undefined
        ? "At the end of the mask"
        : `At “${character}”, position ${position + 1} of the mask`;
};

export const showVerdict = (element, input, bench, judged) => {
    element.dataset.fits = String(judged.isTaken);
    input.setAttribute("aria-invalid", String(!judged.isTaken));
    if (judged.isTaken) {
        show(
            element,
            make("span", { class: "sign", "aria-hidden": "true" }, "✓"),
            make("span", {}, accepted(bench, judged)),
        );
        return;
    }
    const { reason, position, message } = judged.check;
    const standIn = judged.inForce === "" ? "No mask stands in." : `${judged.inForce} stands in.`;
    const why = message || reason || "It does not fit.";
    show(
        element,
        ...(bench.mask === "" ? [] : [pointed(bench.mask, position)]),
        make("span", { class: "sign", "aria-hidden": "true" }, "✕"),
        make("span", {}, bench.mask === "" ? `${why} ${standIn}` : `${where(bench.mask, position)}: ${why} ${standIn}`),
    );
};
