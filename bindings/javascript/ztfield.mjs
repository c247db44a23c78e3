// Masked fields for the web: what the module gives.
export { attach } from "./attach.mjs";
export { Field } from "./field.mjs";
export { check, format, parse, version } from "./values.mjs";
