// Elements, made and found in one way.

export const byId = (id) => document.getElementById(id);

// make("li", { class: "cell" }, "text", otherElement)
export const make = (tag, attributes = {}, ...children) => {
    const element = document.createElement(tag);
    for (const [name, value] of Object.entries(attributes)) element.setAttribute(name, value);
    element.append(...children);
    return element;
};

// A text whose blanks can be seen, and are heard by who listens.
export const withBlanks = (text) => {
    if (!/[ \u00a0\u202f]/.test(text)) return [text];
    const heard = text.replace(
        /[ \u00a0\u202f]+/g,
        (blanks) => ` ${blanks.length === 1 ? "blank" : blanks.length + " blanks"} `,
    );
    return [
        make("span", { "aria-hidden": "true" }, text.replace(/[ \u00a0\u202f]/g, "␣")),
        make("span", { class: "heard" }, heard.trim()),
    ];
};

export const show = (element, ...children) => element.replaceChildren(...children);

// A row of radio buttons that looks like one switch.
export const fillSegments = (fieldset, name, rows) =>
    fieldset.append(
        ...rows.map(([value, label]) =>
            make(
                "label",
                {},
                make("input", { type: "radio", name, value, id: `${name}-${value}` }),
                make("span", {}, label),
            ),
        ),
    );

export const checkedOf = (name) => document.querySelector(`input[name="${name}"]:checked`)?.value;

export const check = (name, value) => {
    const radio = document.querySelector(`input[name="${name}"][value="${CSS.escape(value)}"]`);
    if (radio) radio.checked = true;
};
