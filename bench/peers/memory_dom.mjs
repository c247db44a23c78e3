// As much of a document as the two libraries ask for, in memory and as light as can be, so that what is measured is theirs: an
// input with a text, a selection and listeners, as the engine has its field in memory.

class MemoryEvent {
    constructor(type, properties) {
        this.type = type;
        this.defaultPrevented = false;
        Object.assign(this, properties);
    }
    preventDefault() {
        this.defaultPrevented = true;
    }
    stopPropagation() {}
}

class MemoryInput {
    nodeName = 'INPUT';
    tagName = 'INPUT';
    type = 'text';
    maxLength = -1;
    placeholder = '';
    form = null;
    style = {};
    scrollLeft = 0;
    scrollWidth = 1000;
    selectionStart = 0;
    selectionEnd = 0;
    #text = '';
    #attributes = new Map();
    #listeners = new Map();

    constructor(document) {
        this.ownerDocument = document;
    }
    get value() {
        return this.#text;
    }
    set value(text) {
        if (text !== this.#text)
            this.setSelectionRange(text.length, text.length);
        this.#text = text;
    }
    setSelectionRange(start, end) {
        this.selectionStart = start;
        this.selectionEnd = end;
    }
    getAttribute(name) {
        return this.#attributes.get(name) ?? null;
    }
    setAttribute(name, value) {
        this.#attributes.set(name, value);
    }
    removeAttribute(name) {
        this.#attributes.delete(name);
    }
    getRootNode() {
        return this.ownerDocument;
    }
    addEventListener(type, listener) {
        if (!this.#listeners.has(type))
            this.#listeners.set(type, []);
        this.#listeners.get(type).push(listener);
    }
    removeEventListener(type, listener) {
        const kept = (this.#listeners.get(type) ?? []).filter((one) => one !== listener);
        this.#listeners.set(type, kept);
    }
    dispatchEvent(event) {
        event.target = this;
        for (const listener of this.#listeners.get(event.type) ?? [])
            listener.call(this, event);
        return !event.defaultPrevented;
    }
    focus() {
        this.ownerDocument.activeElement = this;
        this.dispatchEvent(new MemoryEvent('focus'));
    }
    blur() {
        this.ownerDocument.activeElement = null;
        this.dispatchEvent(new MemoryEvent('blur'));
    }
}

function memoryWindow() {
    const style = { fontSize: '16px' };
    const document = { activeElement: null, head: {}, readyState: 'complete', addEventListener() {} };
    document.createElement = () => new MemoryInput(document);
    document.createEvent = () => new MemoryEvent('');
    const window = { document, navigator: { userAgent: 'memory', maxTouchPoints: 0 }, getComputedStyle: () => style };
    document.defaultView = window;
    for (const name of ['Event', 'CustomEvent', 'InputEvent', 'KeyboardEvent'])
        window[name] = MemoryEvent;
    window.Element = MemoryInput;
    return window;
}

// Puts a window where the libraries look for one: among the global names.
function install(window) {
    const globals = { window, innerWidth: 1920, matchMedia: () => ({ matches: false }) };
    for (const name of ['document', 'navigator', 'Element', 'HTMLElement', 'Event', 'CustomEvent', 'InputEvent', 'KeyboardEvent'])
        globals[name] = window[name];
    for (const [name, value] of Object.entries(globals))
        Object.defineProperty(globalThis, name, { value, configurable: true, writable: true });
}

export function installMemoryDom() {
    install(memoryWindow());
    return () => new MemoryInput(document);
}

export function installJsdom(require) {
    const { JSDOM } = require('jsdom');
    install(new JSDOM('', { pretendToBeVisual: true }).window);
    return () => document.body.appendChild(document.createElement('input'));
}
