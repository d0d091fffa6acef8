// Makes the pictures of docs/viewer.md of the demo's log: `node screenshots.mjs LOG FOLDER [PICTURE...]`.
import { readFileSync } from "node:fs";
import { join } from "node:path";
import { Browser } from "./tests/browser.mjs";

const [log, folder] = process.argv.slice(2);
const content = readFileSync(log, "latin1");
const changed = content.replaceAll("Catalyst system efficiency below threshold, bank 1", "Catalyst efficiency low, bank 1")
    .replaceAll("Data[0].m_ulDTCCode=769", "Data[0].m_ulDTCCode=770");
const file = (name, text) => ({ name, content: Buffer.from(text, "latin1") });
const viewport = { width: 1100, height: 680 };
const pictures = {
    "viewer": { files: [file("demo.log", content)], viewport, hash: `#m=129&p=${encodeURIComponent("Data[0].m_strDTCName")}` },
    "viewer-differences": { files: [file("before.log", content), file("after.log", changed)], viewport, colorScheme: "dark", hash: "#compare=1&pair=128" },
    // To be looked at, and not part of the documentation.
    "narrow": { files: [file("demo.log", content)], viewport: { width: 360, height: 640 } },
    "narrow-message": { files: [file("demo.log", content)], viewport: { width: 360, height: 640 }, colorScheme: "dark", hash: "#m=129" },
    "narrow-differences": { files: [file("before.log", content), file("after.log", changed)], viewport: { width: 360, height: 640 }, hash: "#compare=1&pair=128" },
    "differences-light": { files: [file("before.log", content), file("after.log", changed)], viewport, hash: "#compare=1&pair=128" },
};
const wanted = process.argv.length > 4 ? process.argv.slice(4) : ["viewer", "viewer-differences"];
const browser = await Browser.start();
for (const name of wanted) {
    const page = await browser.open(pictures[name]);
    await page.waitForTimeout(500); // nothing moves any more
    await page.screenshot({ path: join(folder, `${name}.png`) });
    await page.context().close();
}
await browser.stop();
