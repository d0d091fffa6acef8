// The site in build/docs in a real browser: every page, and the search as people use it.
import assert from "node:assert/strict";
import { existsSync, readdirSync, readFileSync } from "node:fs";
import { createRequire } from "node:module";
import { join } from "node:path";
import { after, before, test } from "node:test";
import { fileURLToPath, pathToFileURL } from "node:url";
import { Browser, findings } from "../../../viewer/tests/browser.mjs";

const site = fileURLToPath(new URL("../../../build/docs", import.meta.url));
const widths = [1400, 360];
// The catalogue's own tests look at its pages.
const pages = readdirSync(site).filter((name) => name.endsWith(".html"));

let browser;
before(async () => {
    browser = await Browser.start();
});
after(() => browser.stop());

async function onPage(name, options, run) {
    const page = await browser.tab(join(site, name), "", options);
    await run(page);
    assert.deepEqual(page.complaints, [], name);
    await page.context().close();
}
const search = async (page, query) => {
    await page.fill("#site-query", query);
    await page.waitForSelector(`#site-query[data-shown=${JSON.stringify(query)}]`, { state: "attached" });
    return page.locator("#site-results a").evaluateAll((links) => links.map((link) => ({ title: link.querySelector("b").textContent, href: link.href })));
};

test("every page, without complaints and without scrolling sideways", async () => {
    assert.ok(pages.length > 300 && pages.includes("index.html"), `${pages.length} pages`);
    const faults = [];
    let next = 0;
    const lookAtSome = async () => {
        const page = await browser.tab(join(site, "index.html"), "", {});
        let order = widths;
        for (let name; (name = pages[next++]) !== undefined;) {
            // The width that the last page was left with is this one's first.
            order = [...order].reverse();
            for (const [i, width] of order.entries()) {
                await page.setViewportSize({ width, height: 900 });
                if (i === 0) {
                    await page.goto(pathToFileURL(join(site, name)).href);
                }
                const wide = await page.evaluate(() => document.documentElement.scrollWidth - document.documentElement.clientWidth);
                if (wide > 0) {
                    faults.push(`${name} is ${wide} pixels too wide at ${width}`);
                }
            }
            faults.push(...page.complaints.splice(0).map((complaint) => `${name}: ${complaint}`));
        }
        await page.context().close();
    };
    await Promise.all([lookAtSome(), lookAtSome(), lookAtSome()]);
    assert.deepEqual(faults, []);
});

test("the search finds pages, classes, members and words within texts", () => onPage("index.html", {}, async (page) => {
    const first = async (query) => (await search(page, query))[0]?.title;
    assert.equal(await first("CKRMList"), "CKRMList");
    assert.equal(await first("KRM_PRIu"), "KRM_PRIu");
    assert.equal(await first("krm::tree::Clone"), "krm::tree::Clone");
    assert.equal(await first("filter language"), "The program krm: The filter language");
    assert.match(await first("slots"), /^The interface: Slots/);
    const dtc = (await search(page, "getdtc")).map(({ title }) => title);
    assert.equal(dtc[0], "GetDTC (Cmd 2)");
    assert.ok(dtc.includes("CKRMCGetDTCCmdAdaptDataRcv"), dtc.join());
    for (const { title } of (await search(page, "m_ulEcuId")).slice(0, 5)) {
        assert.match(title, /::m_ulEcuId$/);
    }
    assert.equal(await first("log_sinks.h"), "krm/framework/log_sinks.h");
    // Words that a title has otherwise, or not at all.
    const among = async (query, count) => (await search(page, query)).slice(0, count).map(({ title }) => title);
    for (const query of ["trouble code", "trouble codes"]) {
        assert.ok((await among(query, 3)).includes("GetDTC (Cmd 2)"), `${query}: ${await among(query, 3)}`);
    }
    assert.equal((await among("read trouble codes", 1))[0], "GetDTC (Cmd 2)");
    assert.match(await first("xml"), /^The element tree: /);
    assert.match(await first("flush"), /^Your platform: /);
    assert.ok((await among("flush", 4)).includes("krm::PlainLog"));
    assert.match(await first("no limits"), /^Converting values: Limits/);
    assert.match(await first("not supported"), /^An application and an engine/);
    // A slip of the keyboard is forgiven; what isn't there is said.
    assert.match(await first("converterz"), /onverters/);
    assert.deepEqual(await search(page, "qqqqqqqq"), []);
    assert.equal(await page.locator("#site-results").innerText(), "Nothing found");
    await page.fill("#site-query", "");
    await page.waitForSelector("#site-results", { state: "hidden" });
}));

test("nothing of the search is loaded before it is used", () => onPage("interface.html", {}, async (page) => {
    const scripts = () => page.locator("script[src*='/search/']").count();
    assert.equal(await scripts(), 0);
    await search(page, "list");
    assert.equal(await scripts(), 3);
}));

test("the search leads to a section, by the keyboard and by a click", () => onPage("index.html", {}, async (page) => {
    await page.keyboard.press("/");
    await page.keyboard.type("error codes");
    await page.waitForSelector("#site-query[data-shown='error codes']", { state: "attached" });
    const links = page.locator("#site-results a");
    const number = (await links.allInnerTexts()).findIndex((text) => text.startsWith("The interface: Error codes"));
    assert.ok(number >= 0);
    for (let i = 0; i < number; ++i) {
        await page.keyboard.press("ArrowDown");
    }
    await page.keyboard.press("Enter");
    await page.waitForURL(/interface\.html#interface-error-codes$/);
    assert.ok(await page.locator("#interface-error-codes").count());

    await search(page, "CKRMBinary");
    await links.first().click();
    await page.waitForURL(/classCKRMBinary\.html$/);
    await search(page, "CKRMBinary");
    await page.keyboard.press("Escape");
    await page.waitForSelector("#site-results", { state: "hidden" });
}));

test("a line of the log goes to the catalogue", () => onPage("index.html", {}, async (page) => {
    const lines = ["[CKRMCGetDTCCmdAdaptDataRcv::ErrWriteOperationLog] Data[0].m_strDTC=P0301", "2024-02-29T23:59:59.999Z 1 [CKRMCBaseCmdAdaptDataSnd::ErrWriteOperationLog] m_ulEcuId=2016",
        "[[CKRMCGetCancelCodeCmdAdaptDataRcv::ErrWriteOperationLog] Data[0]] m_uchSSRNo[0]=5"];
    for (const line of lines) {
        const [{ href }] = await search(page, line);
        assert.ok(href.endsWith(`/catalogue/index.html?q=${encodeURIComponent(line)}`), href);
    }
}));

test("every entry of the search leads to a page", () => {
    globalThis.siteSearch = {};
    createRequire(import.meta.url)(join(site, "search/index.js"));
    const { entries } = globalThis.siteSearch.data;
    assert.ok(entries.length > 1000);
    assert.deepEqual(entries.filter(([, , url]) => !existsSync(join(site, url.replace(/[?#].*/, "")))), []);
});

test("every source of the examples is on a page, whole, and the search finds it", async () => {
    const examples = fileURLToPath(new URL("../../../examples", import.meta.url));
    const folders = readdirSync(examples).filter((name) => existsSync(join(examples, name, "main.cpp")));
    assert.ok(folders.length >= 5 && folders.includes("diagnosis_session"), folders.join());
    for (const folder of folders) {
        const files = readdirSync(join(examples, folder)).filter((name) => /\.(cpp|h)$/.test(name)).sort().reverse(); // a header first
        const stems = new Set(files.map((name) => name.replace(/\..*/, "")));
        for (const stem of stems) {
            await onPage(stem === "main" ? `examples_${folder}.html` : `examples_${folder}_${stem}.html`, {}, async (page) => {
                const shown = await page.locator("div.fragment").evaluateAll((fragments) => fragments.map((fragment) =>
                    [...fragment.querySelectorAll(".line")].map(({ textContent }) => textContent.replaceAll("\u00a0", " ").trimEnd()).join("\n")));
                for (const name of files.filter((file) => file.startsWith(`${stem}.`))) {
                    assert.ok(shown.includes(readFileSync(join(examples, folder, name), "utf8").trimEnd()), `${folder}/${name}`);
                }
            });
        }
    }
    await onPage("index.html", {}, async (page) => {
        const titles = async (query) => (await search(page, query)).map(({ title }) => title);
        assert.equal((await titles("convert_tool"))[0], "Example: convert_tool");
        assert.match((await titles("OperationLogFile"))[0], /^Example: diagnosis_session, operation_log_file/);
    });
});

test("the list of pages opens on a narrow screen, and stands beside the page on a wide one", async () => {
    await onPage("interface.html", { viewport: { width: 360, height: 640 } }, async (page) => {
        const list = page.locator("#site-nav");
        assert.ok(!(await list.isVisible()));
        await page.click("#site-menu");
        assert.ok(await list.isVisible());
        assert.equal(await page.getAttribute("#site-menu", "aria-expanded"), "true");
        await list.getByText("The viewer").click();
        await page.waitForURL(/viewer\.html$/);
    });
    await onPage("interface.html", { viewport: { width: 1400, height: 900 } }, async (page) => {
        assert.ok(await page.locator("#site-nav").isVisible());
        assert.equal(await page.locator("#site-nav [aria-current]").innerText(), "The interface");
    });
});

for (const colorScheme of ["light", "dark"]) {
    test(`axe finds nothing, ${colorScheme}`, () => onPage("interface.html", { colorScheme, viewport: { width: 800, height: 800 } }, async (page) => {
        assert.deepEqual(await findings(page), []);
        await search(page, "list");
        assert.deepEqual(await findings(page), []);
    }));
}
