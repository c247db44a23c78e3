// What a field wears in a page: attributes for phones and screen readers, and what the form is told of its validity.

/** Kinds of positions that the keypad of a phone can fill. */
const keypadKinds = ["digit", "year", "month", "day", "day of year", "hour", "minute", "second", "fraction"];

const sentences = {
    empty: "Please fill in this field.",
    incomplete: "Please complete this field.",
    invalid: "There is no such value.",
    "out of range": "This value is out of range.",
};

const numberTypes = ["number", "decimal"];

/** Why a field is marked before its user has left it: it cannot become right by being gone on with. */
const wrongAtOnce = ["invalid", "out of range"];

/** The keyboard of a phone; null for the usual one. */
function inputModeOf(field) {
    if (numberTypes.includes(field.dataType)) return "decimal";
    const open = field.positions.filter(({ kind }) => kind !== "literal");
    const named = open.filter(({ kind }) => kind === "month").length > 2;
    return open.length && !named && open.every(({ kind }) => keypadKinds.includes(kind)) ? "numeric" : null;
}

function rangeOf(spin) {
    const [least = "", most = ""] = (spin?.range ?? "").split("~");
    return { least: least || null, most: most || null };
}

class Clothes {
    touched = false;
    #input;
    #field;
    #options;
    #before = new Map();

    constructor(input, field, options) {
        this.#input = input;
        this.#field = field;
        this.#options = options;
        this.put("maxlength", null); // the mask knows
        for (const [name, value] of [["autocapitalize", "off"], ["autocorrect", "off"], ["spellcheck", "false"]]) {
            if (!input.hasAttribute(name)) this.put(name, value);
        }
        if (options.required) this.put("aria-required", "true");
        if (this.hasSpin) this.put("role", "spinbutton");
        this.fit();
    }

    get hasSpin() {
        return Boolean(this.#options.spin || this.#options.choices);
    }

    /** Sets an attribute, or takes it away by null; what was there is remembered. */
    put(name, value) {
        const input = this.#input;
        if (!this.#before.has(name)) this.#before.set(name, input.getAttribute(name));
        if (value === null) input.removeAttribute(name);
        else if (input.getAttribute(name) !== value) input.setAttribute(name, value);
    }

    /** What depends on the mask. */
    fit() {
        const own = this.#before.has("inputmode") ? this.#before.get("inputmode") : this.#input.getAttribute("inputmode");
        if (own === null && !this.#options.choices) this.put("inputmode", inputModeOf(this.#field));
        this.#tellRange();
    }

    judge(hasFocus) {
        const message = this.#message();
        this.#input.setCustomValidity(message);
        const wrong = message && ((this.touched && !hasFocus) || wrongAtOnce.includes(this.#field.state));
        this.put("aria-invalid", wrong ? "true" : null);
        if (this.hasSpin) this.#tellSpin();
    }

    takeOff() {
        for (const [name, value] of this.#before) this.put(name, value);
        this.#input.setCustomValidity("");
    }

    #message() {
        const { state } = this.#field;
        const optional = state === "empty" && !this.#options.required && !this.#input.required;
        return state === "complete" || optional ? "" : (this.#options.messages?.[state] ?? sentences[state]);
    }

    get #isNumber() {
        return numberTypes.includes(this.#field.dataType);
    }

    #tellRange() {
        if (!this.hasSpin || !this.#isNumber) return;
        const { least, most } = rangeOf(this.#options.spin);
        this.put("aria-valuemin", least);
        this.put("aria-valuemax", most);
    }

    #tellSpin() {
        this.put("aria-valuenow", this.#isNumber ? this.#field.value || null : null);
        this.put("aria-valuetext", this.#field.text);
    }
}

/**
 * @param {HTMLInputElement} input
 * @param {import("./field.mjs").Field} field
 * @param {import("./ztfield").AttachOptions} options
 */
export function dress(input, field, options) {
    return new Clothes(input, field, options);
}
