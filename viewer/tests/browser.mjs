// Drives Debian's Chromium over file://, with the network refused: what a test may use, and what it must not notice.
import { mkdtempSync, readFileSync, rmSync, writeFileSync } from "node:fs";
import { createRequire } from "node:module";
import { tmpdir } from "node:os";
import { join } from "node:path";
import { fileURLToPath, pathToFileURL } from "node:url";
import { gzipSync } from "node:zlib";
import { chromium } from "playwright-core";

export const pagePath = fileURLToPath(new URL("../krm-viewer.html", import.meta.url));

/** The page with files in it, as `krm view` writes it. Files are {name, content, gzip}; content is text or bytes. */
export function withData(files) {
    const page = readFileSync(pagePath, "utf8");
    const data = JSON.stringify({
        files: files.map(({ name, content, gzip = true }) => {
            const bytes = Buffer.from(content);
            return { name, base64: (gzip ? gzipSync(bytes) : bytes).toString("base64"), gzip };
        }),
    }).replace(/[<>&\u2028\u2029]/g, (character) => `\\u${character.charCodeAt(0).toString(16).padStart(4, "0").toUpperCase()}`);
    const element = '<script type="application/x-krm-data" id="krm-data"></script>';
    if (page.split("\n").filter((line) => line === element).length !== 1) {
        throw new Error("the page has no line for the data, or several");
    }
    return page.replace(element, () => element.replace("></", `>${data}</`));
}

const axe = readFileSync(createRequire(import.meta.url).resolve("axe-core/axe.min.js"), "utf8");
/** What axe finds wrong with the page as it is shown. The page's policy must let it in; files of their own it can't read. */
export async function findings(page) {
    return page.evaluate(async (source) => {
        if (!globalThis.axe) {
            globalThis.eval?.(source);
        }
        const { violations } = await globalThis.axe.run(document, { resultTypes: ["violations"], preload: false });
        return violations.map(({ id, nodes }) => `${id}: ${nodes.map(({ html }) => html.slice(0, 160)).join(" | ")}`);
    }, axe);
}

export class Browser {
    static async start() {
        const self = new Browser();
        self.folder = mkdtempSync(join(tmpdir(), "krm-viewer-"));
        self.browser = await chromium.launch({
            executablePath: process.env.CHROMIUM ?? "/usr/bin/chromium",
            args: ["--no-sandbox", "--disable-gpu", "--disable-quic", "--no-first-run", "--disable-background-networking", "--disable-component-update",
                "--disable-sync", "--disable-extensions", "--host-resolver-rules=MAP * ~NOTFOUND", "--proxy-server=127.0.0.1:9"],
        });
        return self;
    }
    async stop() {
        await this.browser.close();
        rmSync(this.folder, { recursive: true, force: true });
    }
    write(name, content) {
        const path = join(this.folder, name);
        writeFileSync(path, content);
        return path;
    }

    /** A tab with the page of that file, what it does wrong in `complaints`; options are what Playwright's newContext takes. */
    async tab(path, hash, options) {
        const context = await this.browser.newContext({ viewport: { width: 1280, height: 800 }, ...options });
        await context.grantPermissions(["clipboard-read", "clipboard-write"]).catch(() => {});
        context.setDefaultTimeout(120000); // a busy machine is no finding
        const page = await context.newPage();
        const complaints = [];
        page.on("pageerror", (error) => complaints.push(`error: ${error.message}`));
        page.on("console", (message) => ["error", "warning"].includes(message.type()) && complaints.push(`${message.type()}: ${message.text()}`));
        page.on("request", (request) => /^(file|blob|data):/.test(request.url()) || complaints.push(`request: ${request.url()}`));
        page.on("dialog", (dialog) => {
            complaints.push(`dialog: ${dialog.message()}`);
            dialog.dismiss();
        });
        await page.goto(pathToFileURL(path).href + hash);
        return Object.assign(page, { complaints });
    }

    /** A tab with the viewer: files as {name, content}, hash, and what newContext takes. */
    async open({ files = [], hash = "", ...options } = {}) {
        const path = files.length ? this.write(`page-${++this.pages}.html`, withData(files)) : pagePath;
        const page = await this.tab(path, hash, options);
        await page.waitForSelector("body[data-ready=yes]");
        if (files.length) {
            await page.waitForSelector(`body[data-loaded="${files.length}"]`, { state: "attached" });
        }
        return page;
    }
    pages = 0;
}
