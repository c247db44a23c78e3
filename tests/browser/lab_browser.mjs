// The browser that the pages are tried in. The library that drives it is installed into build/browser.
import { createRequire } from "node:module";
import { fileURLToPath } from "node:url";

export const root = fileURLToPath(new URL("../../", import.meta.url));

const { chromium } = createRequire(root + "build/browser/")("playwright-core");

// Nothing of the browser's own shall use the network or ask.
const flags = [
    "--headless",
    "--no-sandbox",
    "--disable-gpu",
    "--disable-quic",
    "--no-first-run",
    "--disable-background-networking",
    "--disable-component-update",
    "--disable-sync",
];

export const launch = () =>
    chromium.launch({ executablePath: process.env.CHROMIUM ?? "/usr/bin/chromium", args: flags });
