// The catalogue's pages in a real browser: KRM_CATALOGUE is their folder, KRM_DEMO_LOG the operation log of the demo.
import assert from "node:assert/strict";
import { readFileSync, readdirSync } from "node:fs";
import { join } from "node:path";
import { after, before, test } from "node:test";
import { pathToFileURL } from "node:url";
import { Browser, findings } from "../../../viewer/tests/browser.mjs";

const folder = process.env.KRM_CATALOGUE;
const files = readdirSync(folder).filter((name) => name.endsWith(".html"));
const isLogLine = (line) => line.includes("[CKRMC");
const linesOf = (name) => readFileSync(join(folder, "examples", name), "utf8").trimEnd().split("\n");

let browser;
before(async () => {
    browser = await Browser.start();
});
after(() => browser.stop());

const open = (file, hash = "", options = {}) => browser.tab(join(folder, file), hash, options);
async function closed(page) {
    assert.deepEqual(page.complaints, []);
    await page.context().close();
}

/** Opens everything that can be opened, and tells the page's anchors and what each field's row says of the log. */
const openAll = (page) => page.evaluate(async () => {
    for (let closed; (closed = [...document.querySelectorAll("details:not([open])")]).length;) {
        for (const details of closed) {
            details.open = true;
        }
        await new Promise((resolve) => setTimeout(resolve)); // the script hears of it
    }
    return {
        ids: [...document.querySelectorAll("[id]")].map(({ id }) => id),
        formats: Object.fromEntries([...document.querySelectorAll("tr[id]")].map(({ id, lastElementChild }) =>
            [id, [...lastElementChild.querySelectorAll(".line")].map(({ textContent }) => textContent)])),
    };
});
const isTooWide = (page) => page.evaluate(() => document.documentElement.scrollWidth > innerWidth);

/** By file: the anchors, and by anchor the formats; from everything that is open. */
const shown = new Map();

test("every page, 1400 and 360 pixels wide, closed and open", async () => {
    const wide = { width: 1400, height: 900 };
    const narrow = { width: 360, height: 900 };
    const queue = [...files];
    const lookAtSome = async () => {
        const page = await open("index.html", "", { viewport: wide });
        for (let file; (file = queue.shift());) {
            await page.setViewportSize(wide);
            await page.goto(pathToFileURL(join(folder, file)).href);
            for (const size of [narrow, wide]) {
                await page.setViewportSize(size);
                assert.equal(await isTooWide(page), false, `${file}, ${size.width} wide`);
            }
            const all = await openAll(page);
            for (const size of [wide, narrow]) {
                await page.setViewportSize(size);
                assert.equal(await isTooWide(page), false, `${file}, opened, ${size.width} wide`);
            }
            assert.equal(new Set(all.ids).size, all.ids.length, `${file} has an anchor twice`);
            shown.set(file, { ids: new Set(all.ids), formats: all.formats });
        }
        await closed(page);
    };
    await Promise.all([lookAtSome(), lookAtSome()]);
    assert.equal(shown.size, files.length);
});

/** What the search finds for each text. */
async function searched(texts) {
    const page = await open("index.html");
    await page.focus("#query");
    await page.waitForFunction(() => globalThis.krmCatalogue);
    const found = await page.evaluate((all) => all.map((text) => globalThis.krmCatalogue.search(text)), texts);
    await closed(page);
    return found;
}

/** Whether the place is there, once all on its page is open. */
function isThere(url) {
    const [file, anchor] = url.split("#");
    return shown.has(file) && (!anchor || shown.get(file).ids.has(anchor));
}
const formatsAt = (url) => shown.get(url.split("#")[0]).formats[url.split("#")[1]] ?? [];

/** The lines that a format as of printf can make. */
function pattern(format) {
    const conversions = { "%s": ".*", "%d": "-?\\d+", "%u": "\\d+", "%lf": "-?\\d+\\.\\d+", "%.2lf": "-?\\d+\\.\\d\\d" };
    return new RegExp(`^${format.split(/(%[.\d]*l?[a-zA-Z])/).map((part) => conversions[part] ??
        (/^%0?\d*X$/.test(part) ? "[0-9A-F]+" : /^%\d+u$/.test(part) ? "\\d+" : part.replace(/[.*+?^${}()|[\]\\]/g, "\\$&"))).join("")}$`);
}

test("each line of each example leads to the field that says so", async () => {
    const names = readdirSync(join(folder, "examples")).filter((name) => name.endsWith(".log.txt"));
    assert.equal(names.length, 144); // all but the viewer's three commands and the stored-data import's four
    const lines = names.flatMap(linesOf);
    const found = await searched(lines);
    const said = new Set();
    lines.forEach((line, i) => {
        assert.ok(found[i].length > 0, line);
        for (const { url } of found[i]) {
            assert.ok(isThere(url), `${line}: ${url}`);
        }
        if (/ m_dwCommand(Type|ID)=/.test(line)) {
            assert.equal(found[i].length, 1, line);
            return;
        }
        const saying = found[i].filter(({ url }) => formatsAt(url).some((format) => format.includes("=") && pattern(format).test(line)));
        assert.ok(saying.length > 0, `${line}: ${found[i].map(({ url }) => `${url} ${formatsAt(url)}`)}`);
        saying.forEach(({ url }) => said.add(url));
    });
    // And no field says of a line that isn't written.
    for (const [file, { formats }] of shown) {
        for (const [id, texts] of Object.entries(formats)) {
            const base = { m_ulEcuId: "Snd", m_bNotSupport: "Rcv" }[id.replace(/^(request|answer)\./, "")];
            const isBase = base && texts.some((text) => text.startsWith("[CKRMCBase"));
            if (/^(request|answer)\./.test(id) && !isBase && texts.some((text) => text.includes("="))) {
                assert.ok(said.has(`${file}#${id}`), `${file}#${id} says ${texts}`);
            }
        }
    }
});

test("each line of the demo's log leads to its field", async () => {
    const lines = readFileSync(process.env.KRM_DEMO_LOG, "utf8").trimEnd().split("\n").filter((line) => isLogLine(line) || / == /.test(line));
    assert.ok(lines.length > 6000);
    const found = await searched(lines);
    lines.forEach((line, i) => {
        assert.ok(found[i].length > 0, line);
        for (const { url } of found[i]) {
            assert.ok(isThere(url), `${line}: ${url}`);
        }
        if (isLogLine(line)) {
            const path = /::ErrWriteOperationLog\](.*?)=/.exec(line)[1];
            const name = path.replace(/\[\d+\]|\]|:.*/g, "").split(/[. ]/).at(-1);
            assert.ok(found[i].some(({ url }) => url.split(/[#.]/).at(-1) === name || name === "m_dwCommandType"), `${line}: ${found[i][0].url}`);
        }
    });
});

test("what the search takes", async () => {
    const first = {
        "12": "GetGroupEcuListCmd.html", "type 2, ID 3": "GetPcViewerResourceVdc.html", "1/12": "GetGroupEcuListCmd.html", "getdtc": "GetDTCCmd.html", "Cmd 2": "GetDTCCmd.html",
        "CKRMCGetDTCCmdAdaptDataRcv": "GetDTCCmd.html#answer", "CKRMCCommandDTCData": "CKRMCCommandDTCData.html",
        "m_strVinCode": "GetVinCodeCmd.html#answer.m_strVinCode", "CKRMCCommandDTCData::m_cTripTime": "CKRMCCommandDTCData.html#m_cTripTime",
        "Data[0].m_cEcuList[1].m_ulEcuId=2025": "GetGroupEcuListCmd.html#answer.Data.m_cEcuList.m_ulEcuId",
        "== GetDTC answer (type 1, ID 2)": "GetDTCCmd.html#answer",
        "[[CKRMCGetDTCCmdAdaptDataRcv::ErrWriteOperationLog] Data[3]] m_uchSSRNo[1]=7": "GetDTCCmd.html#answer.Data.m_uchSSRNo",
    };
    const found = await searched(Object.keys(first));
    assert.deepEqual(found.map(([best]) => best?.url), Object.values(first));
    for (const result of found.flat()) {
        assert.ok(isThere(result.url), result.url);
    }
    // What nobody knows, and what the catalogue doesn't.
    const [nothing, unknown] = await searched(["x y z", "[CKRMCReadPaintCodeCmdAdaptDataRcv::ErrWriteOperationLog] m_strPaintCode=1F7"]);
    assert.deepEqual([nothing, unknown], [[], []]);
});

test("several words find what has all of them: in the field, its meaning, its class or its command", async () => {
    const urls = (found) => found.map(({ url }) => url);
    const [named, turned, nothing, commanded, other, within] = (await searched(["dtc name", "name dtc", "stored misfire dtc", "trouble codes",
        "EcuConnect description", "GetDTC division name"])).map(urls);
    assert.equal(named[0], "CKRMCCommandDTCData.html#m_strDTCName");
    assert.ok(named.includes("CKRMCCommandDTCData.html#m_strDTCTypeName"), named.join());
    assert.deepEqual(turned, named);
    assert.deepEqual(nothing, []);
    assert.ok(commanded.includes("GetDTCCmd.html"), commanded.join());
    assert.ok(other.includes("EcuConnectCmd.html#answer.m_strDescription"), other.join());
    // The command has one of them, a record in its answer the others.
    assert.ok(within.length > 0 && within.every((url) => url.startsWith("GetDTCCmd.html#answer.Data.")), within.join());
    for (const url of [...named, ...commanded, ...other, ...within]) {
        assert.ok(isThere(url), url);
    }
});

/** The row that is marked, and where it is. */
const marked = (page) => page.evaluate(() => {
    const rows = [...document.querySelectorAll(".found")];
    const { top, bottom } = rows[0]?.getBoundingClientRect() ?? {};
    return { ids: rows.map(({ id }) => id), isInView: top >= 0 && bottom <= innerHeight, hasFocus: document.activeElement === rows[0] };
});

for (const width of [1400, 360]) {
    test(`a pasted line lands on its field, ${width} pixels wide`, async () => {
        const page = await open("index.html", "", { viewport: { width, height: 900 } });
        await page.focus("#query");
        await page.evaluate((text) => navigator.clipboard.writeText(text),
            "2024-11-07T17:20:00.048Z 1 [CKRMCGetDTCCmdAdaptDataRcv::ErrWriteOperationLog] Data[0].m_cTripTime.m_cDispDataList[1].m_dData=61.000000\nanother");
        await page.keyboard.press("Control+V");
        await page.waitForURL(/GetDTCCmd\.html/);
        await page.waitForSelector(".found");
        assert.deepEqual(await marked(page), { ids: ["answer.Data.m_cTripTime.m_cDispDataList.m_dData"], isInView: true, hasFocus: true });
        assert.equal(await page.locator("details[data-path][open]").count(), 3);
        // From there to another field of the same page.
        await page.fill("#query", "Data[2].m_cAfterIgOnTime.m_strUnit");
        await page.waitForSelector("#results li");
        await page.keyboard.press("Enter");
        await page.waitForFunction(() => document.querySelector(".found")?.id === "answer.Data.m_cAfterIgOnTime.m_strUnit");
        assert.deepEqual(await marked(page), { ids: ["answer.Data.m_cAfterIgOnTime.m_strUnit"], isInView: true, hasFocus: true });
        assert.equal(await isTooWide(page), false);
        await closed(page);
    });
}

test("the search by keyboard, and from a link", async () => {
    const page = await open("GetVinCodeCmd.html");
    await page.keyboard.press("/");
    await page.keyboard.type("EcuList");
    await page.waitForSelector("#results li");
    await page.keyboard.press("ArrowDown");
    await page.keyboard.press("ArrowDown");
    const chosen = await page.locator("#results [aria-selected=true]");
    assert.equal(await page.getAttribute("#query", "aria-activedescendant"), await chosen.getAttribute("id"));
    assert.match(await chosen.textContent(), /^InitMountEcuList/);
    await page.keyboard.press("Escape");
    assert.equal(await page.locator("#results").isVisible(), false);
    await page.fill("#query", "no such thing");
    await page.waitForFunction(() => document.getElementById("status").textContent ===
        "Nothing found. An ID (2, 1/2), a command, a class, a field, words of its meaning, or a line of a log, pasted.");
    assert.equal(await isTooWide(page), false);
    const index = pathToFileURL(join(folder, "index.html")).href;
    await page.goto(`${index}?q=EcuList`);
    await page.waitForSelector("#results li");
    await page.keyboard.press("Enter");
    await page.waitForURL(/GetGroupEcuListCmd\.html$/);
    const line = "[CKRMCGetVinCodeCmdAdaptDataRcv::ErrWriteOperationLog] m_strVinCode=KRM00000000000001";
    await page.goto(`${index}?q=${encodeURIComponent(line)}`);
    await page.waitForURL(/GetVinCodeCmd\.html#answer\.m_strVinCode$/);
    await page.goBack();
    await page.waitForURL(/GetGroupEcuListCmd\.html$/);
    await closed(page);
});

for (const colorScheme of ["light", "dark"]) {
    for (const width of [1400, 360]) {
        test(`axe finds nothing, ${colorScheme}, ${width} pixels wide`, async () => {
            for (const [file, hash] of [["index.html", ""], ["GetGroupEcuListCmd.html", "#answer.Data.m_cEcuList.m_ulEcuId"], ["GetPcViewerResourceVdc.html", "#answer"], ["CKRMCCommandFFDData.html", "#m_strUnit"]]) {
                const page = await open(file, hash, { colorScheme, viewport: { width, height: 900 } });
                await page.fill("#query", "m_strUnit");
                await page.waitForSelector("#results li");
                assert.deepEqual(await findings(page), [], file);
                await closed(page);
            }
        });
    }
}
