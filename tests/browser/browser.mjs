// A browser with the page under test: npm's packages are looked for where tools/test_browser.sh puts them.
import { createServer } from "node:http";
import { readFile } from "node:fs/promises";
import { createRequire } from "node:module";
import { extname } from "node:path";
import { fileURLToPath } from "node:url";

const root = fileURLToPath(new URL("../..", import.meta.url));
const require = createRequire(`${root}build/browser/package.json`);

const flags = [
    "--headless", "--no-sandbox", "--disable-gpu", "--disable-quic", "--no-first-run", "--disable-background-networking",
    "--disable-component-update", "--disable-sync",
];

const mediaTypes = { ".html": "text/html", ".mjs": "text/javascript" };

/** Serves the files of the project, to this machine alone. */
async function serve() {
    const server = createServer(async (request, response) => {
        try {
            const { pathname } = new URL(request.url, "http://localhost");
            const content = await readFile(root + decodeURIComponent(pathname).slice(1));
            response.writeHead(200, { "content-type": mediaTypes[extname(pathname)] ?? "application/octet-stream" });
            response.end(content);
        } catch {
            response.writeHead(404).end();
        }
    });
    await new Promise((listening) => server.listen(0, "127.0.0.1", listening));
    return server;
}

/** Opens the page; close() ends all of it. */
export async function openPage(path = "tests/browser/page.html") {
    const { chromium } = require("playwright-core");
    const server = await serve();
    const browser = await chromium.launch({ executablePath: "/usr/bin/chromium", args: flags, headless: true });
    const context = await browser.newContext({ viewport: { width: 800, height: 600 }, locale: "en-US" });
    const page = await context.newPage();
    const problems = [];
    page.on("pageerror", (error) => problems.push(String(error)));
    page.on("console", (message) => message.type() === "error" && problems.push(message.text()));
    await page.goto(`http://127.0.0.1:${server.address().port}/${path}`);
    await page.waitForFunction(() => window.ready);
    const close = async () => {
        await browser.close();
        server.close();
    };
    return { page, protocol: await context.newCDPSession(page), problems, close };
}
