// What the field has told, as a list that is read aloud as it grows.
import { make } from "./page.mjs";

const most = 200;

const act = (event) => (event.character ? `“${event.character === " " ? "blank" : event.character}”` : "An act");

// The words of an event; the sign stands for its kind beside the words.
const tellers = {
    changed: (event) => ({ sign: "…", words: `Text changed: ${event.text}` }),
    beep: () => ({ sign: "♪", words: "Beep" }),
    full: () => ({ sign: "→", words: "Full: the focus may move on" }),
    stepped: () => ({ sign: "↕", words: "Stepped" }),
    value: (event) => ({ sign: "=", words: `Value put by other than typing: ${event.text}` }),
    rejected: (event) => ({
        sign: "✕",
        words: `${act(event)} refused at ${event.position + 1}, ${event.reason}. ${event.message}`,
    }),
    state: (event) => ({ sign: "●", words: `State: ${event.was} to ${event.is}` }),
};

const listOf = (log) => log.querySelector("ol");

export const add = (log, event) => {
    const list = listOf(log);
    const { sign, words } = tellers[event.kind](event);
    list.append(
        make(
            "li",
            { class: `told-${event.kind}` },
            make("span", { class: "sign", "aria-hidden": "true" }, sign),
            make("span", {}, words),
        ),
    );
    while (list.children.length > most) list.firstElementChild.remove();
    log.scrollTop = log.scrollHeight;
};

export const clear = (log) => listOf(log).replaceChildren();
