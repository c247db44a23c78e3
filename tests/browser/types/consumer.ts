// A program in TypeScript that uses all of the module: compiled, never run.
import {
    attach, check, Field, format, parse, version,
    type Attached, type AttachOptions, type Choice, type DataType, type FieldEvent, type FieldOptions, type MaskVerdict, type Position,
    type Reason, type Settings, type Spin, type State,
} from "../../../build/web/ztfield.mjs";

const german: Settings = { decimal: ",", thousands: ".", currencyPosition: 3, months: ["JAN", "FEB"] };
const spin: Spin = { increment: 5, range: "0~100" };
const colours: readonly Choice[] = [{ text: "Red", value: "r" }, { text: "None", value: null }];
const options: FieldOptions = { mask: "#,##0.00", type: "number", settings: german, spin, modern: true };

function tell(event: FieldEvent): boolean {
    switch (event.kind) {
        case "rejected": {
            const reason: Reason = event.reason;
            return reason !== "full" && event.position >= 0 && event.message.length > 0;
        }
        case "state": {
            const [was, is]: State[] = [event.was, event.is];
            return was !== is;
        }
        default:
            return false;
    }
}

const field = new Field(options, tell);
field.type("1");
field.press("a", { ctrl: true });
field.modern = !field.modern;
const positions: Position[] = field.positions;
const refused: Reason | null = field.tryValue("12");
const shown: string = field.text + field.cut() + positions.length + refused;
const type: DataType = field.dataType;
field.setSpin(true, colours);
field.destroy();

const listening: AttachOptions = {
    ...options,
    required: true,
    onEvent: tell,
    onValue: (value, state) => console.log(value?.length, state === "complete"),
    messages: { empty: "Bitte ausfüllen.", "wrong kind": "Nein." },
};
const input = document.querySelector<HTMLInputElement>("#due");
if (input) {
    const attached: Attached = attach(input, listening);
    attached.value = null;
    const value: string | null = attached.value;
    attached.setMask("MM/DD/YYYY", "date");
    attached.field.select(0, 2);
    console.log(value, attached.state satisfies State, attached.input.value);
    attached.detach();
}

const verdict: MaskVerdict = check("MM/DD", "date", german);
const texts: (string | null)[] = [format(1234.5, options), format(new Date(), { type }), parse("4 July 2026", options), version, shown];
console.log(verdict.fits, texts);

// What the types have to refuse.
// @ts-expect-error no such type
new Field({ type: "text" });
// @ts-expect-error null is no text
field.setText(null);
// @ts-expect-error read, not set
field.text = "12";
// @ts-expect-error no such option
attach(input!, { masks: "##" });
// @ts-expect-error null is no number of places
field.click("2");
// @ts-expect-error may be null
format(1, options).length;
