// Regional settings, handed to the library for a call.
import { lend, library } from "./wasm.mjs";

/** The numbers of the settings in the library. */
const settingNumbers = {
    decimal: 1, thousands: 2, currency: 3, currencyPosition: 4, currencyDigits: 5, am: 6, pm: 7, date: 8, time: 9, months: 10,
};

function set(handle, name, value) {
    const number = settingNumbers[name];
    if (number === undefined) throw new TypeError(`There is no setting "${name}".`);
    const text = Array.isArray(value) ? value.join("/") : String(value);
    if (!lend([text], (address) => library.ZTF_SetSetting(handle, number, address))) {
        throw new RangeError(`The setting "${name}" cannot be "${text}".`);
    }
}

/**
 * @template Result
 * @param {import("./ztfield").Settings | undefined} settings
 * @param {(handle: number) => Result} call with 0 for the defaults
 * @returns {Result}
 */
export function withSettings(settings, call) {
    if (!settings) return call(0);
    const handle = library.ZTF_CreateSettings();
    try {
        for (const [name, value] of Object.entries(settings)) {
            if (value !== undefined) set(handle, name, value);
        }
        return call(handle);
    } finally {
        library.ZTF_DestroySettings(handle);
    }
}
