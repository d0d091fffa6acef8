// The page in a real browser, as people use it.
import assert from "node:assert/strict";
import { readFileSync } from "node:fs";
import { after, before, test } from "node:test";
import { Browser, findings, pagePath } from "./browser.mjs";
import { answer, code, codesEnd, lines, longLog, recording, session } from "./fixtures.mjs";

let browser;
before(async () => {
    browser = await Browser.start();
});
after(() => browser.stop());

const demo = { name: "session.log", content: session };

/** A test with the page open; nothing may have been complained about at its end. */
function onPage(name, options, run) {
    test(name, async () => {
        const page = await browser.open(options);
        await run(page);
        assert.deepEqual(page.complaints, []);
        await page.context().close();
    });
}
/** What the page shows follows what is done to it by and by: tries until the assertion holds, and fails with it after a while. */
async function eventually(assertion) {
    const end = Date.now() + 30000;
    for (;;) {
        try {
            return await assertion();
        } catch (error) {
            if (!(error instanceof assert.AssertionError) || Date.now() > end) {
                throw error;
            }
        }
        await new Promise((wait) => setTimeout(wait, 50));
    }
}
const texts = (page, selector) => page.locator(selector).allInnerTexts();
/** Of rows of a list, what they say, in one line each. */
const rowsOf = async (page, list) => (await texts(page, `#${list} .row`)).map((text) => text.replace(/\s+/g, " ").trim());
const until = (page, list, text) => page.locator(`#${list} .row`, { hasText: text }).first().waitFor();
const row = (page, list, text) => page.locator(`#${list} .row`, { hasText: text }).first();
const status = (page) => page.locator("#status").innerText();

// ---- Files --------------------------------------------------------------------------------------------------------------

onPage("an empty page takes a chosen file", {}, async (page) => {
    await eventually(async () => assert.ok(await page.locator("#empty").isVisible()));
    await page.setInputFiles("#file-input", browser.write("chosen.log", session));
    await until(page, "outline", "GetVinCode answer");
    await eventually(async () => assert.equal(await status(page), "chosen.log: operation log, 16 messages, 106 lines, 2 lines are no log lines"));
    await eventually(async () => assert.equal(await page.title(), "chosen.log – Log viewer"));
});

onPage("an empty page takes a dropped file, and then another", {}, async (page) => {
    const drop = (name, content) => page.evaluate(([fileName, text]) => {
        const data = new DataTransfer();
        data.items.add(new File([text], fileName));
        document.body.dispatchEvent(new DragEvent("dragover", { dataTransfer: data, bubbles: true, cancelable: true }));
        document.body.dispatchEvent(new DragEvent("drop", { dataTransfer: data, bubbles: true, cancelable: true }));
    }, [name, content]);
    await drop("dropped.log", session);
    await until(page, "outline", "GetVinCode answer");
    await drop("dropped.krmrec", recording);
    await until(page, "outline", "ReadPaintCode answer");
    await eventually(async () => assert.match(await status(page), /^dropped.krmrec: recording of version 1 by library 1.0.0, 7 messages/));
});

onPage("the page holds what was put in, packed or not", { files: [{ ...demo, gzip: false }] }, async (page) => {
    await until(page, "outline", "GetVinCode answer");
    await eventually(async () => assert.deepEqual(await texts(page, "#files button"), ["session.log", "Compare with…"]));
});

test("without a worker the page does its work itself", async () => {
    const context = await browser.browser.newContext();
    const page = await context.newPage();
    await page.addInitScript(() => {
        globalThis.Worker = class {
            constructor() {
                throw new Error("none here");
            }
        };
    });
    await page.goto(`file://${pagePath}`);
    await page.waitForSelector("body[data-ready=yes]");
    await page.setInputFiles("#file-input", browser.write("own.log", session));
    await until(page, "outline", "GetVinCode answer");
    await context.close();
});

onPage("an empty file and one that isn't a log are told", {}, async (page) => {
    await page.setInputFiles("#file-input", browser.write("empty.log", ""));
    await page.waitForFunction(() => document.querySelector("#status").textContent.startsWith("empty.log: operation log, 0 messages"));
    await page.setInputFiles("#file-input", browser.write("poem.txt", "roses\nare red\n"));
    await until(page, "outline", "2 other lines");
    await eventually(async () => assert.equal(await status(page), "poem.txt: operation log, 0 messages, 2 lines, 2 lines are no log lines"));
});

// ---- Looking ------------------------------------------------------------------------------------------------------------

onPage("the stored trouble codes are two clicks away", { files: [demo] }, async (page) => {
    await eventually(async () => assert.deepEqual((await texts(page, "#offers button")).map((text) => text.trim()), ["Trouble codes 1", "Vehicle 1", "Other lines 2"]));
    await page.click("#offers button >> text=Trouble codes");
    await page.waitForFunction(() => document.querySelectorAll("#outline .row").length === 1);
    await eventually(async () => assert.deepEqual(await rowsOf(page, "outline"), ["5 ← GetDTC answer 2024 Engine 17:20:01.048 2 in Data: P0301, P0171 · m_bDTCType=1"]));
    await eventually(async () => assert.equal(await page.locator("#message-title").innerText(), "#5 GetDTC answer"));
    await row(page, "tree", "Data").locator(".twisty").click();
    await until(page, "tree", "P0301 Cylinder 1 misfire detected");
});

onPage("the outline says number, direction, command, ECU, time and what stands out", { files: [demo] }, async (page) => {
    await until(page, "outline", "GetDTC request");
    const rows = await rowsOf(page, "outline");
    assert.equal(rows[0], "1 1 other line # Operation log of a session");
    assert.equal(rows[2], "3 ← GetGroupEcuList answer 17:20:00.048 1 in Data");
    assert.equal(rows[3], "4 → GetDTC request 2024 Engine 17:20:01.048 m_uchPhaseType=1");
});

onPage("a message is folded to the first level, with counts and meanings", { files: [demo] }, async (page) => {
    await row(page, "outline", "P0301").click();
    await until(page, "tree", "m_ulReadynessStatus");
    await eventually(async () => assert.deepEqual(await rowsOf(page, "tree"), [
        "m_dwCommandType = 1 command type: the family that the message belongs to", "m_dwCommandID = 2 command ID: the command within its family",
        "m_bNotSupport = 0 The engine says that it doesn't support the command.", "▸ Data 2 elements trouble codes (DTCs)",
        "m_bDTCType = 1 the codes have a type", "m_ulReadynessStatus = 0 readiness status; its meaning is the engine's",
    ]));
    await page.click("#unfold");
    await until(page, "tree", "m_cTripTime");
    await row(page, "tree", "m_strDTCName").click();
    await page.waitForFunction(() => document.querySelector("#field").innerText.includes("Cylinder 1 misfire detected"));
    const about = await page.locator("#field").innerText();
    assert.match(about, /Data\[0\]\.m_strDTCName/);
    assert.match(about, /text of the code's name/);
    await page.click("#fold");
    await page.waitForFunction(() => document.querySelectorAll("#tree .row").length === 6);
});

onPage("a path is copied in the log's own notation", { files: [demo], hash: `#m=5&p=${encodeURIComponent("Data[1].m_uchSSRNo[1]")}` }, async (page) => {
    await page.click("#copy");
    await page.waitForFunction(() => document.querySelector("#status").textContent.startsWith("Copied"));
    await eventually(async () => assert.equal(await page.evaluate(() => navigator.clipboard.readText()), "Data[1].m_uchSSRNo[1]"));
});

onPage("the raw lines are one click away, and lead back", { files: [demo], hash: `#m=5&p=${encodeURIComponent("Data[1].m_strDTC")}` }, async (page) => {
    await page.click("#to-raw");
    await page.waitForSelector("#raw .row[aria-selected=true]");
    await eventually(async () => assert.match(await page.locator("#raw .row[aria-selected=true]").innerText(), /2024-11-07T17:20:01.048Z 1 \[CKRMCGetDTCCmdAdaptDataRcv::ErrWriteOperationLog\] Data\[1\]\.m_strDTC=P0171/));
    await row(page, "raw", "Data[0].m_strDTCName=").click();
    await page.click("#raw-field");
    await page.waitForFunction(() => document.querySelector("#field .path")?.textContent === "Data[0].m_strDTCName");
    await eventually(async () => assert.ok(await page.locator("#tree").isVisible()));
    await page.click("#tab-raw");
    await eventually(async () => assert.match(await page.locator("#raw .row[aria-selected=true]").innerText(), /Data\[0\]\.m_strDTCName=Cylinder 1/));
});

onPage("lines that are no log lines are counted and shown", { files: [demo] }, async (page) => {
    await page.click("#offers button >> text=Other lines");
    await page.waitForSelector("#raw .row.other");
    await eventually(async () => assert.match(await page.locator("#raw .row[aria-selected=true]").innerText(), /# Operation log of a session/));
    await page.click("#next-other");
    await page.waitForFunction(() => document.querySelector("#raw .row[aria-selected=true]")?.innerText.includes("goodbye"));
});

onPage("a request leads to its answer", { files: [demo], hash: "#m=4" }, async (page) => {
    await page.click("#message-facts >> text=Its answer");
    await page.waitForFunction(() => document.querySelector("#message-title").innerText === "#5 GetDTC answer");
    await page.goBack();
    await page.waitForFunction(() => document.querySelector("#message-title").innerText === "#4 GetDTC request");
});

onPage("a recording says what isn't in the log", { files: [{ name: "r.krmrec", content: recording }], hash: "#m=3" }, async (page) => {
    await until(page, "tree", "m_ushValueReserved");
    await eventually(async () => assert.deepEqual((await rowsOf(page, "tree")).map((text) => /^(?:▸ )?(\w+)/.exec(text)[1] + (text.includes("not in the log") ? " unlogged" : "")),
        ["m_bNotSupport", "m_ushValueReserved unlogged", "Data unlogged"]));
    await eventually(async () => assert.match(await page.locator("#message-facts").innerText(), /exchange 18446744073709551615/));
    await row(page, "tree", "Data").click();
    await page.waitForFunction(() => /not in the log/.test(document.querySelector("#field").innerText));
});

onPage("fields that have their default are hidden", { files: [demo], hash: "#m=5" }, async (page) => {
    await until(page, "tree", "m_ulReadynessStatus");
    await page.check("#hide-defaults");
    await page.waitForFunction(() => !document.querySelector("#tree").innerText.includes("m_ulReadynessStatus"));
    await eventually(async () => assert.match(await page.locator("#tree").innerText(), /m_bDTCType/));
    assert.match(page.url(), /hide=1/);
});

// ---- Finding ------------------------------------------------------------------------------------------------------------

onPage("a filter leaves the messages that meet it", { files: [demo] }, async (page) => {
    await page.fill("#filter", "command:GetDTC ecu:2024 m_strDTC=P03* value>50");
    await page.waitForFunction(() => document.querySelectorAll("#outline .row").length === 1);
    await eventually(async () => assert.equal(await page.locator("#filter-count").innerText(), "1 of 18"));
    await page.fill("#filter", "comand:GetDTC");
    await page.waitForSelector("#filter[aria-invalid=true]");
    await eventually(async () => assert.match(await page.locator("#filter-error").innerText(), /^Filter, character 1: there is no condition comand: but command:/));
    await eventually(async () => assert.equal(await page.locator("#outline .row").count(), 1));
    await page.fill("#filter", "ecu:9999");
    await page.waitForSelector("#outline-none:not([hidden])");
    await eventually(async () => assert.equal(await page.locator("#outline-none").innerText(), "No message passes the filter."));
    await page.fill("#filter", "");
    await until(page, "outline", "GetGroupEcuList request");
});

onPage("a search counts hits and goes to them, whatever is folded", { files: [demo], hash: "#m=5" }, async (page) => {
    await until(page, "tree", "m_ulReadynessStatus");
    await page.fill("#search", "trip TIME");
    await page.waitForFunction(() => document.querySelector("#search-count").textContent === "1 of 2");
    await eventually(async () => assert.equal(await page.locator("#field .path").innerText(), "Data[0].m_cTripTime.m_strName"));
    await eventually(async () => assert.equal(await page.locator("#tree .row[aria-selected=true] mark").innerText(), "Trip time"));
    await eventually(async () => assert.match((await row(page, "outline", "P0301").innerText()).replace(/\s+/g, " "), /2 hits/));
    await page.press("#search", "Enter");
    await page.waitForFunction(() => document.querySelector("#search-count").textContent === "2 of 2");
    await eventually(async () => assert.equal(await page.locator("#field .path").innerText(), "Data[1].m_cTripTime.m_strName"));
    await page.click("#fold");
    await page.waitForFunction(() => document.querySelectorAll("#tree .row").length === 6);
    await eventually(async () => assert.match((await row(page, "tree", "Data").innerText()).replace(/\s+/g, " "), /2 hits/));
    await page.fill("#search", "nowhere to be found");
    await page.waitForFunction(() => document.querySelector("#search-count").textContent === "0 hits");
});

onPage("the address leads to the same view", { files: [demo] }, async (page) => {
    await page.fill("#filter", "command:GetDTC");
    await page.waitForFunction(() => document.querySelectorAll("#outline .row").length === 4);
    await row(page, "outline", "P0301").click();
    await page.fill("#search", "lean");
    await page.waitForFunction(() => document.querySelector("#search-count").textContent === "1 of 1");
    await page.waitForFunction(() => /p=Data/.test(location.hash) && /s=lean/.test(location.hash));
    const address = page.url();
    const other = await page.context().newPage();
    await other.goto(address);
    await other.waitForSelector("#tree .row[aria-selected=true]");
    await eventually(async () => assert.equal(await other.inputValue("#filter"), "command:GetDTC"));
    await eventually(async () => assert.equal(await other.inputValue("#search"), "lean"));
    await eventually(async () => assert.equal(await other.locator("#outline .row").count(), 4));
    await eventually(async () => assert.equal(await other.locator("#message-title").innerText(), "#5 GetDTC answer"));
    await eventually(async () => assert.equal(await other.locator("#field .path").innerText(), "Data[1].m_strDTCName"));
});

onPage("a field over time is a chart and a table", { files: [demo], hash: "#m=9&p=m_ulVBattValue" }, async (page) => {
    await page.click("#to-chart");
    await page.waitForSelector("#chart svg polyline");
    await eventually(async () => assert.equal(await page.locator("#chart svg").getAttribute("aria-label"), "m_ulVBattValue: 4 values, from 11900 to 12600"));
    await eventually(async () => assert.equal(await page.locator("#chart svg circle.dot").count(), 4));
    await eventually(async () => assert.deepEqual(await rowsOf(page, "chart-rows"), ["#9 17:20:03.048 12100 m_ulVBattValue", "#11 17:20:04.048 12350 m_ulVBattValue", "#13 17:20:05.048 11900 m_ulVBattValue",
        "#15 17:20:06.048 12600 m_ulVBattValue"]));
    await page.locator("#chart-rows").focus();
    await page.keyboard.press("End");
    await page.keyboard.press("Enter");
    await page.waitForFunction(() => document.querySelector("#message-title").innerText === "#15 ReadVBatt answer");
});

onPage("a chart tells elements of a list apart by what is in them", { files: [{ name: "r.krmrec", content: recording }], hash: `#m=4&tab=chart&c=${encodeURIComponent("Data[*].m_cDispDataList[0].m_dData")}` }, async (page) => {
    await page.waitForSelector("#chart svg polyline");
    await eventually(async () => assert.deepEqual((await texts(page, "#chart-text .item")).map((text) => text.trim()), [
        "Coolant (Data[m_ushId=5].m_cDispDataList[0].m_dData): 3 values, from 20.5 to 90", "Load (Data[m_ushId=4].m_cDispDataList[0].m_dData): 1 value, from 5 to 5"]));
});

// ---- Two files ----------------------------------------------------------------------------------------------------------

const changed = { name: "other.log", content: session.replace("System too lean, bank 1", "System too rich").replace("12350", "12351") };
onPage("two files are side by side", { files: [demo, changed] }, async (page) => {
    await until(page, "outline", "GetDTC answer");
    await eventually(async () => assert.equal(await page.locator("#outline .row").count(), 2));
    await eventually(async () => assert.equal(await status(page), "16 pairs of messages: 14 equal, 2 different, 0 in one file only"));
    await row(page, "outline", "GetDTC answer").click();
    await until(page, "pair-rows", "m_strDTCName");
    await eventually(async () => assert.deepEqual(await rowsOf(page, "pair-rows"), ["≠ changed Data[1].m_strDTCName System too lean, bank 1 System too rich"]));
    await row(page, "pair-rows", "m_strDTCName").click();
    await page.waitForFunction(() => document.querySelector("#pair-field").innerText.includes("text of the code's name"));
    await page.check("#all-fields");
    await until(page, "pair-rows", "m_ulReadynessStatus");
    await page.uncheck("#only-different");
    await until(page, "outline", "GetVinCode answer");
    await page.fill("#pair-ignore", "m_ulVBattValue Data[*].m_strDTC*");
    await page.press("#pair-ignore", "Enter");
    await page.waitForFunction(() => document.querySelector("#status").textContent.startsWith("16 pairs of messages: 16 equal"));
    await page.click("#files button >> text=other.log");
    await until(page, "outline", "1 other line");
    assert.match(page.url(), /file=2/);
});

onPage("a second file comes beside the first", { files: [demo] }, async (page) => {
    const chooser = page.waitForEvent("filechooser");
    await page.click("#files button >> text=Compare with");
    await (await chooser).setFiles(browser.write("second.log", changed.content));
    await until(page, "outline", "ReadVBatt answer");
    await eventually(async () => assert.deepEqual(await texts(page, "#files button"), ["session.log", "second.log", "Differences"]));
    await eventually(async () => assert.equal(await page.locator("#outline .row").count(), 2));
});

// ---- By keyboard alone --------------------------------------------------------------------------------------------------

onPage("everything can be done with the keyboard alone", { files: [demo] }, async (page) => {
    const { keyboard } = page;
    const focused = () => page.evaluate(() => document.activeElement.id);
    const title = (text) => page.waitForFunction((wanted) => document.querySelector("#message-title").innerText === wanted, text);
    await keyboard.press("Tab");
    await eventually(async () => assert.equal(await focused(), "skip"));
    await keyboard.press("Enter");
    await eventually(async () => assert.equal(await focused(), "outline"));
    for (let i = 0; i < 5; ++i) {
        await keyboard.press("ArrowDown");
    }
    await title("#5 GetDTC answer");
    await keyboard.press("Enter");
    await page.waitForFunction(() => document.activeElement.id === "tree" && document.querySelector("#tree").hasAttribute("aria-activedescendant"));
    for (let i = 0; i < 3; ++i) {
        await keyboard.press("ArrowDown");
    }
    await keyboard.press("ArrowRight");
    await page.waitForSelector("#tree .row[aria-expanded=true]");
    await keyboard.press("ArrowRight");
    await page.waitForFunction(() => document.querySelector("#tree .row[aria-selected=true]").innerText.includes("P0301"));
    await keyboard.press("*");
    await until(page, "tree", "m_cTripTime");
    await keyboard.press("ArrowLeft");
    await page.waitForFunction(() => document.querySelector("#tree .row[aria-selected=true]").getAttribute("aria-expanded") === "false");
    await keyboard.press("ArrowLeft");
    await page.waitForFunction(() => document.querySelector("#tree .row[aria-selected=true]").innerText.includes("2 elements"));
    await keyboard.press("y");
    await page.waitForFunction(() => document.querySelector("#status").textContent === "Copied Data");
    await keyboard.press("r");
    await page.waitForFunction(() => document.activeElement.id === "raw");
    await keyboard.press("t");
    await page.waitForFunction(() => document.activeElement.id === "tree");
    await keyboard.press("j");
    await title("#6 GetDTC request");
    await keyboard.press("k");
    await title("#5 GetDTC answer");
    await keyboard.press("h");
    await page.waitForFunction(() => document.querySelector("#hide-defaults").checked);
    await keyboard.press("/");
    await eventually(async () => assert.equal(await focused(), "search"));
    await keyboard.type("goodbye");
    await keyboard.press("Enter");
    await title("#18 1 other line");
    await page.locator("#outline").focus();
    await keyboard.press("f");
    await eventually(async () => assert.equal(await focused(), "filter"));
    await keyboard.type("command:ReadVBatt");
    await keyboard.press("Enter");
    await page.waitForFunction(() => document.querySelectorAll("#outline .row").length === 8);
    await page.locator("#outline").focus();
    await keyboard.press("End");
    await title("#15 ReadVBatt answer");
    await keyboard.press("?");
    await page.waitForSelector("#help[open]");
    await keyboard.press("Escape");
    await page.waitForSelector("#help:not([open])", { state: "attached" });
    await keyboard.press("Enter");
    await page.waitForFunction(() => document.activeElement.id === "tree");
    await keyboard.press("Escape");
    await eventually(async () => assert.equal(await focused(), "outline"));
});

// ---- Small screens, dark ones, screen readers ---------------------------------------------------------------------------

onPage("a screen 360 pixels wide shows one side at a time, and all of it", { files: [demo], viewport: { width: 360, height: 640 } }, async (page) => {
    const isWide = () => page.evaluate(() => document.documentElement.scrollWidth > 360);
    await until(page, "outline", "GetDTC answer");
    assert.ok(!(await isWide()));
    await eventually(async () => assert.ok(await page.locator("#message").isHidden()));
    await row(page, "outline", "P0301").click();
    await until(page, "tree", "m_ulReadynessStatus");
    await eventually(async () => assert.ok(await page.locator("#exchange").isHidden()));
    await page.click("#unfold");
    await row(page, "tree", "m_strDTCName").click();
    await page.waitForFunction(() => document.querySelector("#field").innerText.includes("text of the code's name"));
    assert.ok(!(await isWide()));
    for (const tab of ["raw", "chart"]) {
        await page.click(`#tab-${tab}`);
        assert.ok(!(await isWide()), tab);
    }
    await page.click("#back");
    await eventually(async () => assert.ok(await page.locator("#outline").isVisible()));
});

for (const colorScheme of ["light", "dark"]) {
    for (const width of [1280, 360]) {
        test(`axe finds nothing, ${colorScheme}, ${width} pixels wide`, async () => {
            // The page's policy forbids what axe is brought in by; the checked page is the same but for that.
            const options = { colorScheme, viewport: { width, height: 800 }, bypassCSP: true };
            const views = [
                {}, { files: [demo] }, { files: [demo], hash: `#m=5&s=lean&hide=1&p=${encodeURIComponent("Data[1].m_strDTCName")}` }, { files: [demo], hash: "#m=5&tab=raw&f=command:GetDTC" },
                { files: [demo], hash: "#m=9&tab=chart&c=m_ulVBattValue" }, { files: [demo], hash: "#f=command:" }, { files: [demo, changed], hash: "#compare=1&pair=4" },
                { files: [{ name: "r.krmrec", content: recording }], hash: "#m=3" },
            ];
            for (const view of views) {
                const page = await browser.open({ ...options, ...view });
                if (/[#&](m|pair)=/.test(view.hash ?? "")) {
                    await page.waitForSelector('body:not([data-has="nothing"])');
                    if (width === 360) {
                        await page.evaluate(() => (document.body.dataset.pane = "message"));
                    }
                }
                assert.deepEqual(await findings(page), [], JSON.stringify(view.hash ?? "empty"));
                if (view === views[1]) {
                    await page.click("#help-button");
                    assert.deepEqual(await findings(page), [], "help");
                }
                await page.context().close();
            }
        });
    }
}

onPage("light and dark follow the system", { files: [demo] }, async (page) => {
    const background = () => page.evaluate(() => getComputedStyle(document.body).backgroundColor);
    await page.emulateMedia({ colorScheme: "light" });
    await eventually(async () => assert.equal(await background(), "rgb(255, 255, 255)"));
    await page.emulateMedia({ colorScheme: "dark" });
    await eventually(async () => assert.equal(await background(), "rgb(18, 23, 29)"));
});

onPage("a screen reader is told where it is in lists and trees", { files: [demo], hash: `#m=5&p=${encodeURIComponent("Data[1].m_strDTC")}` }, async (page) => {
    const chosen = page.locator("#tree .row[aria-selected=true]");
    await chosen.waitFor();
    const attributes = (...names) => Promise.all(names.map((name) => chosen.getAttribute(name)));
    await eventually(async () => assert.deepEqual(await attributes("role", "aria-level", "aria-posinset", "aria-setsize"), ["treeitem", "3", "3", "6"]));
    await eventually(async () => assert.equal(await page.locator("#tree").getAttribute("aria-activedescendant"), await chosen.getAttribute("id")));
    const entry = page.locator("#outline .row[aria-selected=true]");
    await eventually(async () => assert.deepEqual([await entry.getAttribute("aria-posinset"), await entry.getAttribute("aria-setsize")], ["5", "18"]));
});

// ---- Much, and hostile --------------------------------------------------------------------------------------------------

onPage("of a million lines a few are in the document", {}, async (page) => {
    const million = longLog(1_000_000);
    await page.setInputFiles("#file-input", browser.write("million.log", million));
    await page.waitForFunction(() => document.body.dataset.loaded === "1");
    await eventually(async () => assert.match(await status(page), /285,716 messages, 1,000,006 lines$/));
    const most = () => page.evaluate(() => document.querySelectorAll("*").length);
    await page.locator("#outline").focus();
    await page.keyboard.press("End");
    await page.waitForFunction(() => document.querySelector("#message-title").innerText === "#285716 ReadVBatt answer");
    assert.ok((await most()) < 1500, `${await most()} elements`);
    await page.click("#tab-raw");
    await until(page, "raw", "1000006");
    await page.locator("#raw").focus();
    for (const [key, line] of [["Home", "1"], ["End", "1000006"], ["PageUp", null]]) {
        await page.keyboard.press(key);
        if (line) {
            await page.waitForFunction((wanted) => document.querySelector("#raw .row[aria-selected=true] .number")?.innerText === wanted, line);
        }
        assert.ok((await most()) < 1500, `${await most()} elements`);
    }
    // By the wheel, too, line by line and to every place.
    const first = () => page.evaluate(() => {
        const box = document.querySelector("#raw").getBoundingClientRect();
        return Math.min(...[...document.querySelectorAll("#raw .row")].filter((one) => one.getBoundingClientRect().top >= box.top - 1).map((one) => Number(one.dataset.index)));
    });
    await page.keyboard.press("Home");
    await page.waitForFunction(() => document.querySelector("#raw .row[aria-selected=true] .number")?.innerText === "1");
    await page.locator("#raw").hover();
    const height = await page.evaluate(() => document.querySelector("#raw .row").getBoundingClientRect().height);
    await page.mouse.wheel(0, height * 3);
    await page.waitForFunction(() => document.querySelector("#raw").scrollTop > 0);
    assert.equal(await first(), 3);
    for (const part of [0.25, 0.5, 0.75]) {
        await page.evaluate((at) => {
            const box = document.querySelector("#raw");
            box.scrollTop = at * (box.scrollHeight - box.clientHeight);
        }, part);
        await page.waitForFunction((at) => [...document.querySelectorAll("#raw .row")].some((one) => Math.abs(Number(one.dataset.index) - at * 1_000_006) < 200), part);
        assert.ok((await most()) < 1500, `${await most()} elements`);
    }
    await page.fill("#filter", "m_ulVBattValue=12345");
    await page.waitForFunction(() => document.querySelector("#filter-count").textContent === "142,858 of 285,716");
    await page.fill("#search", "m_ulVBattValue=1");
    await page.waitForFunction(() => /of 142,858$/.test(document.querySelector("#search-count").textContent));
});

const kHostile = [
    "</script><script>alert(1)</script>", "<img src=x onerror=alert(2)>", "\u202Egnp.exe\u202C", "\u2066isolated\u2069", "a\0b\u0007\u001b[31mred\u001b[0m", "\u200bzero\ufeff width", "'\"><svg onload=alert(3)>",
    "javascript:alert(4)", "{{constructor.constructor('alert(5)')()}}", "\u2028\u2029", "&lt;b&gt;", "-->", "]]>", "%s%n", "\ud83d\ude00",
];
const vin = "[CKRMCGetVinCodeCmdAdaptDataRcv::ErrWriteOperationLog] m_strVinCode=";
const words = "[CKRMCGetTranslationStringCmdAdaptDataRcv::ErrWriteOperationLog] m_cTranslationStringDataList";
const hostile = lines("", ...answer(55, ...kHostile.map((text, i) => `${words}[${i}].String=${text}`))) + kHostile.map((text) => `${text}\n`).join("") +
    lines("<b>1</b> ", ...answer(79, `${vin}in front`)) + lines("", ...answer(2, "[CKRMC<img src=x onerror=alert(6)>::x] <script>alert(7)</script>=1"));
test("hostile texts are shown as text and do nothing", async () => {
    const name = "</script><script>alert(8)</script>\u202E.log";
    const page = await browser.open({ files: [{ name, content: hostile }], hash: "#m=1&s=%3Cimg%20src", viewport: { width: 1280, height: 1400 } });
    await page.click("#unfold");
    await until(page, "tree", "alert(1)");
    const tree = await page.locator("#tree").innerText();
    for (const text of ["</script><script>alert(1)</script>", "<img src=x onerror=alert(2)>", "⟨U+202E⟩gnp.exe⟨U+202C⟩", "⟨U+2066⟩isolated⟨U+2069⟩", "a␀b␇␛[31mred␛[0m",
        "⟨U+200B⟩zero⟨U+FEFF⟩ width", "⟨U+2028⟩⟨U+2029⟩", "&lt;b&gt;", "{{constructor.constructor('alert(5)')()}}", "\ud83d\ude00"]) {
        assert.ok(tree.includes(text), text);
    }
    const selected = async (key, title) => {
        await page.locator("#outline").focus();
        await page.keyboard.press(key);
        await page.waitForFunction((wanted) => document.querySelector("#message-title").innerText.startsWith(wanted), title);
    };
    const safe = async () => {
        assert.equal(await page.evaluate(() => document.querySelectorAll("main img, main svg, main script, main b").length), 0);
        assert.equal(await page.evaluate(() => /[\u202a-\u202e\u2066-\u2069\0]/.test(document.title + document.body.innerText)), false);
    };
    await row(page, "tree", "gnp.exe").click();
    await page.waitForSelector("#field .path");
    await safe();
    await selected("ArrowDown", "#2 15 other lines");
    await until(page, "raw", "alert(1)");
    await safe();
    await selected("ArrowDown", "#3 GetVinCode answer");
    await eventually(async () => assert.match(await page.locator("#message-facts").innerText(), /thread <b>1<\/b>/));
    await selected("End", "#5 ");
    await until(page, "raw", "<script>alert(7)</script>");
    await safe();
    assert.deepEqual(page.complaints, []);
    await page.context().close();
});

onPage("a line of 10 MB is cut, and shown in parts", { files: [{ name: "long.log", content: lines("", ...answer(79, vin + "x".repeat(10_000_000) + "END")) }], hash: "#m=1" }, async (page) => {
    await until(page, "tree", "m_strVinCode");
    await eventually(async () => assert.match((await row(page, "tree", "m_strVinCode").innerText()).replace(/\s+/g, " "), /… 9,998,503 more characters/));
    await row(page, "tree", "m_strVinCode").click();
    await page.click("#to-raw");
    await page.click("#raw-line button");
    await page.waitForFunction(() => document.querySelector("#raw-line").innerText.length > 100000);
    assert.ok((await page.evaluate(() => document.body.innerText.length)) < 200000);
});

onPage("a message of a hundred thousand lines", { files: [{ name: "big.log", content: lines("", ...answer(2, ...Array.from({ length: 9000 }, (_, i) => code(i, "P0301", 769, `number ${i}`)).flat(), ...codesEnd)) }], hash: "#m=1" }, async (page) => {
    await page.click("#unfold");
    await until(page, "tree", "number 0");
    await page.locator("#tree").focus();
    await page.keyboard.press("End");
    await page.waitForFunction(() => document.querySelector("#tree .row[aria-selected=true]")?.innerText.includes("m_ulReadynessStatus"));
    assert.ok((await page.evaluate(() => document.querySelectorAll("*").length)) < 1500);
});

// ---- The page itself ----------------------------------------------------------------------------------------------------

onPage("the page may do nothing but its own", { files: [demo] }, async (page) => {
    const failed = [];
    page.on("requestfailed", (request) => failed.push(`request: ${request.url()} ${request.failure().errorText}`));
    const refused = await page.evaluate(async () => {
        const violations = [];
        document.addEventListener("securitypolicyviolation", (event) => violations.push(event.effectiveDirective));
        const script = document.createElement("script");
        script.textContent = "globalThis.wasRun = true";
        document.body.append(script);
        const image = new Image();
        image.src = "http://127.0.0.1:1/x.png";
        await fetch("http://127.0.0.1:1/").catch(() => {});
        await new Promise((resolve) => setTimeout(resolve, 50));
        return { violations: violations.sort(), wasRun: Boolean(globalThis.wasRun) };
    });
    assert.deepEqual(refused, { violations: ["connect-src", "img-src", "script-src-elem"], wasRun: false });
    // A request that the policy stopped may be told too; it got nowhere.
    const stopped = (text) => /Content Security Policy/.test(text) || failed.includes(`${text} csp`);
    assert.ok(page.complaints.every(stopped), [...page.complaints, ...failed].join("\n"));
    page.complaints.length = 0;
});

test("the page names nothing on a network", () => {
    const page = readFileSync(pagePath, "utf8");
    const addresses = [...page.matchAll(/\b(?:https?|wss?):\/\/[^\s"'`)]+/g)].map(([address]) => address);
    assert.deepEqual(addresses, ["http://www.w3.org/2000/svg"]);
});
