// Makes krm-viewer.html of src/ and catalogue.json: `node build.mjs`. With --check it compares instead.
import { createHash } from "node:crypto";
import { readFileSync, writeFileSync } from "node:fs";
import { fileURLToPath } from "node:url";
import { build } from "esbuild";

process.chdir(fileURLToPath(new URL(".", import.meta.url)));
const source = (name) => readFileSync(`src/page/${name}`, "utf8").trim();

/** A script of one file, safe within a page's <script>. */
async function bundle(entry) {
    const result = await build({
        absWorkingDir: process.cwd(), entryPoints: [entry], bundle: true, format: "iife", target: "es2022", charset: "utf8", write: false, logLevel: "warning",
        legalComments: "none", minifyWhitespace: true, lineLimit: 120,
    });
    const text = result.outputFiles[0].text;
    if (/<\/script|<!--/i.test(text)) {
        throw new Error(`${entry} would end the page's script`);
    }
    return text;
}
const hash = (text) => `'sha256-${createHash("sha256").update(text).digest("base64")}'`;

const [engine, page] = [await bundle("src/engine/worker.js"), await bundle("src/page/main.js")];
const style = `\n${source("style.css")}\n`;
const parts = {
    engine, page, style, help: `\n${source("help.html")}\n`,
    // What the page may: its own two scripts and its style, and a worker of what it has itself. No network whatever.
    policy: `default-src 'none'; script-src ${hash(engine)} ${hash(page)}; style-src ${hash(style)}; worker-src blob:; base-uri 'none'; form-action 'none'`,
};
const made = `${source("page.html").replace(/@(\w+)@/g, (_, name) => parts[name])}\n`;
if (process.argv[2] === "--check") {
    if (readFileSync("krm-viewer.html", "utf8") !== made) {
        console.error("viewer/krm-viewer.html is not what the sources give; run `node viewer/build.mjs` and commit it");
        process.exit(1);
    }
} else {
    writeFileSync("krm-viewer.html", made);
}
