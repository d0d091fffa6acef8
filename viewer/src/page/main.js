// The page: what is on the screen, and what keys and clicks do. Everything about files is the engine's.

import { draw, describe } from "./chart_view.js";
import { connect } from "./client.js";
import { element, foreign, plain, shown } from "./safe_text.js";
import { fromHash, initial, toHash } from "./state.js";
import { VirtualList } from "./virtual_list.js";

const $ = (id) => document.getElementById(id);
const count = (number, one, many = `${one}s`) => `${number.toLocaleString("en")} ${number === 1 ? one : many}`;
const rem = () => parseFloat(getComputedStyle(document.documentElement).fontSize);
const isNarrow = () => matchMedia("(max-width: 46rem)").matches;

let engine;
let files = [];
let state = initial();
let current = null; // the message that is shown
let hits = []; // of each file how many the search found
let hitAt = -1; // the number of the one that was gone to

// ---- Reading ------------------------------------------------------------------------------------------------------------

function onState({ what, progress }) {
    if (progress !== undefined) {
        $("progress").hidden = progress >= 1;
        $("progress").value = progress;
        if (what) {
            $("progress").setAttribute("aria-label", what);
        }
    }
}

function say(text) {
    $("status").textContent = plain(text);
}

/** What the command line program put in: the files, or none. */
function embedded() {
    const text = $("krm-data").textContent.trim();
    return text ? JSON.parse(text).files.map(({ name, base64, gzip }) => ({ name, base64, gzip })) : [];
}

async function open(sources, isAdded = false) {
    if (sources.length === 0) {
        return;
    }
    say(`Reading ${sources.map(({ name }) => name).join(" and ")}`);
    let opened;
    try {
        opened = await engine("open", sources, isAdded);
    } catch (error) {
        onState({ progress: 1 });
        say(`${sources.map(({ name }) => name).join(", ")} can't be read: ${error.message}`);
        return;
    }
    if (!opened) {
        return;
    }
    files = opened;
    document.title = `${files.map(({ name }) => plain(name)).join(" and ")} – Log viewer`;
    $("empty").hidden = true;
    $("exchange").hidden = false;
    $("message").hidden = false;
    for (const id of ["filter-form", "search-form"]) {
        $(id).hidden = false;
    }
    const hasState = location.hash.length > 1;
    await apply(fromHash(location.hash));
    if (files.length === 2 && !hasState) {
        await compare(true);
    } else if (!state.isComparing) {
        say(files.map(factsOf).join("; "));
    }
    document.body.dataset.loaded = files.length;
}

function factsOf(file) {
    const others = file.others ? `, ${count(file.others, file.kind === "log" ? "line is" : "line can't be read", file.kind === "log" ? "lines are" : "lines can't be read")}${file.kind === "log" ? " no log line" + (file.others === 1 ? "" : "s") : ""}` : "";
    return `${file.name}: ${file.kind === "log" ? "operation log" : `recording of version ${file.version} by library ${file.library}`}, ${count(file.messages, "message")}, ${count(file.lines, "line")}${others}`;
}

// ---- The address --------------------------------------------------------------------------------------------------------

let isStepping = false; // the next change of the address is one to come back from
function save(isStep = false) {
    const hash = toHash(state);
    if (hash !== (location.hash || "#")) {
        history[isStep || isStepping ? "pushState" : "replaceState"](null, "", hash);
        isStepping = false;
    }
}

/** Shows what an address says. */
async function apply(wanted) {
    state = initial();
    state.hide = wanted.hide;
    state.file = Math.min(wanted.file, files.length - 1);
    state.keys = wanted.keys;
    state.ignore = wanted.ignore;
    state.onlyDifferent = wanted.onlyDifferent;
    state.all = wanted.all;
    $("hide-defaults").checked = state.hide;
    $("filter").value = wanted.filter;
    $("search").value = wanted.search;
    $("pair-keys").value = state.keys;
    $("pair-ignore").value = state.ignore;
    $("only-different").checked = state.onlyDifferent;
    $("all-fields").checked = state.all;
    await filter(wanted.filter, true);
    await search(wanted.search, true);
    showFiles();
    offer();
    if (wanted.isComparing && files.length === 2) {
        await compare(true, wanted.pair);
        return;
    }
    await compare(false);
    const index = wanted.index >= 0 && wanted.index < files[state.file].entries ? wanted.index : -1;
    if (index >= 0) {
        await select(index, { path: wanted.path, tab: wanted.tab, chart: wanted.chart });
        setPane(isNarrow() ? "message" : "outline");
    } else {
        deselect();
    }
}

// ---- Files --------------------------------------------------------------------------------------------------------------

function showFiles() {
    const button = (text, isPressed, onclick, title) => element("button", { type: "button", "aria-pressed": String(isPressed), onclick, title }, foreign(text));
    const all = files.map((file, number) => button(file.name, !state.isComparing && state.file === number, async () => {
        if (state.isComparing || state.file !== number) {
            state.file = number;
            await compare(false);
            deselect();
            showFiles();
            offer();
            refreshOutline();
            save(true);
        }
    }, plain(factsOf(file))));
    if (files.length === 2) {
        all.push(button("Differences", state.isComparing, () => compare(true)));
    } else if (files.length === 1) {
        all.push(element("button", { type: "button", onclick: () => choose(true) }, "Compare with…"));
    }
    $("files").replaceChildren(...all);
}

let isAdding = false;
function choose(isAdded) {
    isAdding = isAdded;
    $("file-input").click();
}

async function offer() {
    const number = state.file;
    $("offers").replaceChildren();
    const found = await engine("offers", number);
    if (!found || number !== state.file) {
        return;
    }
    const file = files[number];
    const buttons = found.map((item) => element("button", {
        type: "button", "data-filter": item.filter, "aria-pressed": String(item.filter === state.filter),
        onclick: () => {
            const isOn = state.filter === item.filter;
            $("filter").value = isOn ? "" : item.filter;
            filter($("filter").value);
        },
    }, `${item.name} `, element("span", { class: "number" }, String(item.count))));
    if (file.others) {
        buttons.push(element("button", { type: "button", onclick: () => goToOther(-1, 1) }, "Other lines ", element("span", { class: "number" }, String(file.others))));
    }
    $("offers").replaceChildren(...buttons);
}

// ---- The messages on the left -------------------------------------------------------------------------------------------

const arrows = { request: "→", answer: "←" };

/** What everybody sees of a message in one line: the same in the outline and above its fields. */
function nameOf(row) {
    if (row.kind === "other") {
        return row.why ? `Line that can't be read: ${row.why}` : count(row.lines, "other line");
    }
    const command = row.command ?? (row.id === null ? "message" : `command ${row.type}/${row.id}`);
    return `${command} ${row.direction ?? "request or answer"}`;
}
const ecuOf = (row) => (row.ecu ? (row.ecuName ? `${row.ecu} ${row.ecuName}` : `ECU ${row.ecu}`) : "");
const shortTime = (time) => /\d\d:\d\d:\d\d[.,]?\d*/.exec(time)?.[0].slice(0, 12) ?? time;

const outline = new VirtualList($("outline"), {
    rowRole: "option",
    rowHeight: () => (isNarrow() ? 4.5 : 3.25) * rem(),
    fetch: (from, to) => (state.isComparing ? engine("pairOutline", from, to) : engine("outline", state.file, from, to)),
    render(row, box) {
        box.classList.add(row.kind, ...(row.summary.isBad ? ["bad"] : []), ...(row.summary.hasCodes ? ["codes"] : []), ...(row.direction ? [row.direction] : []));
        const number = state.isComparing ? `${row.a >= 0 ? row.a + 1 : "–"} | ${row.b >= 0 ? row.b + 1 : "–"}` : String(row.index + 1);
        const first = element("div", { class: "first" },
            element("span", { class: "number" }, number),
            row.kind === "message" ? element("span", { class: "arrow", "aria-hidden": "true" }, arrows[row.direction] ?? "↔") : null,
            foreign(nameOf(row), { class: "name" }));
        if (row.hits) {
            first.append(element("span", { class: "badge" }, count(row.hits, "hit")));
        }
        if (row.differences !== undefined) {
            const text = row.differences < 0 ? (row.a < 0 ? "only in the second" : "only in the first") : row.differences === 0 ? "equal" : count(row.differences, "difference");
            first.append(element("span", { class: `badge ${row.differences ? "differs" : "equal"}` }, text));
        }
        if (row.isCut) {
            first.append(element("span", { class: "badge" }, "beginning missing"));
        }
        first.append(element("span", { class: "gap" }), ...(row.ecu ? [foreign(ecuOf(row), { class: "ecu" })] : []), foreign(shortTime(row.time), { class: "time" }));
        box.append(first, element("div", { class: "second" }, foreign(row.summary.text, {}, state.search.toLowerCase())));
    },
    select(index, row, how, event) {
        if (state.isComparing) {
            selectPair(row.pair, how);
        } else {
            select(row.index, { isStep: how === "click" });
        }
        if (how === "click" || event?.key === "Enter") {
            setPane("message");
        }
    },
    key(event, index) {
        if (event.key === "Enter" && index >= 0) {
            setPane("message");
            focusMessage();
            return true;
        }
        return commonKey(event);
    },
});

function refreshOutline() {
    const title = state.isComparing ? "Message pairs" : "Messages";
    $("exchange-title").textContent = title;
    $("offers").hidden = state.isComparing;
    $("pair-options").hidden = !state.isComparing;
    outline.refresh();
}

async function setCounts() {
    const shownCount = state.isComparing ? await engine("choosePairs", state.onlyDifferent) : counts[state.file];
    outline.setCount(shownCount ?? 0);
    $("outline-none").hidden = outline.count > 0;
    $("outline-none").textContent = state.isComparing && !state.filter ? "The files don't differ." : "No message passes the filter.";
    $("outline").hidden = outline.count === 0;
}

let counts = [];
/** Sets the filter; what is shown stays where it is if it passes. */
async function filter(text, isApplying = false) {
    const result = await engine("filter", text);
    if (!result) {
        return;
    }
    const input = $("filter");
    input.setAttribute("aria-invalid", String(Boolean(result.error)));
    $("filter-error").textContent = result.error ? plain(`Filter, character ${result.offset + 1}: ${result.error}`) : "";
    if (result.error) {
        return;
    }
    state.filter = text.trim();
    counts = result.counts;
    const all = files[state.file];
    $("filter-count").textContent = state.filter ? `${counts[state.file].toLocaleString("en")} of ${all.entries.toLocaleString("en")}` : "";
    for (const button of $("offers").children) {
        if (button.dataset.filter) {
            button.setAttribute("aria-pressed", String(button.dataset.filter === state.filter));
        }
    }
    if (!isApplying) {
        await setCounts();
        if (state.search) {
            await search(state.search, true);
        }
        if (!state.isComparing) {
            const place = state.index >= 0 ? await engine("placeOf", state.file, state.index) : -1;
            if (place >= 0) {
                outline.mark(place);
            } else if (state.filter && outline.count) {
                outline.mark(0);
                await select((await outline.row(0)).index);
            }
            say(`${count(counts[state.file], "message")} shown`);
        }
        save();
    }
}

async function search(text, isApplying = false) {
    state.search = text;
    const result = await engine("search", text);
    if (!result) {
        return;
    }
    hits = result.counts;
    hitAt = -1;
    showHits();
    outline.refresh();
    if (current) {
        await refreshTree();
    }
    if (!isApplying) {
        save();
        if (hits[state.file]) {
            await goToHit(1);
        } else if (text) {
            say(`Nothing found for ${text}`);
        }
    }
}
function showHits() {
    const all = hits[state.file] ?? 0;
    $("search-count").textContent = !state.search ? "" : hitAt >= 0 ? `${(hitAt + 1).toLocaleString("en")} of ${all.toLocaleString("en")}` : count(all, "hit");
}

async function goToHit(step) {
    const all = hits[state.file] ?? 0;
    if (!all || state.isComparing) {
        return;
    }
    if (hitAt < 0) {
        const first = await engine("hitFrom", state.file, Math.max(0, state.index));
        hitAt = step > 0 ? first : (first - 1 + all) % all;
    } else {
        hitAt = (hitAt + step + all) % all;
    }
    showHits();
    const hit = await engine("hit", state.file, hitAt);
    if (hit.path) {
        await select(hit.index, { path: hit.path, tab: state.tab === "raw" ? "raw" : "fields", line: hit.line });
    } else {
        await select(hit.index, { tab: "raw", line: hit.line });
    }
    setPane("message");
    say(`Hit ${hitAt + 1} of ${all}: ${hit.path ?? `line ${hit.line + 1}`}`);
}

// ---- The message on the right -------------------------------------------------------------------------------------------

function deselect() {
    current = null;
    Object.assign(state, { index: -1, path: "", tab: "fields", chart: "" });
    document.body.dataset.has = "nothing";
    $("message-title").textContent = "No message selected";
    $("message-comment").textContent = "Choose one on the left.";
    $("message-facts").replaceChildren();
    tree.setCount(0);
    $("field").replaceChildren();
    outline.mark(-1);
}

let selecting = 0;
/** Shows an entry: its fields, the one at `path` if it is given; or its lines. */
async function select(index, { path = "", tab = null, line = -1, chart = "", isStep = false } = {}) {
    const mine = ++selecting;
    const isSame = current?.index === index && current.file === state.file;
    const message = await engine("message", state.file, index, state.hide);
    if (mine !== selecting) {
        return;
    }
    isStepping = isStep;
    current = { ...message, file: state.file };
    state.index = index;
    state.chart = chart;
    document.body.dataset.has = message.kind;
    showFacts();
    if (!isSame) {
        state.path = "";
        tree.setCount(message.rows);
        tree.scrollTo(0);
        tree.mark(-1);
        showField(null);
    }
    const place = await engine("placeOf", state.file, index);
    if (mine !== selecting) {
        return;
    }
    outline.mark(place);
    let wanted = tab ?? state.tab;
    if (message.kind === "other") {
        wanted = "raw";
    } else if (tab === null && isOtherShown) {
        wanted = "fields";
    }
    isOtherShown = message.kind === "other";
    if (path) {
        await reveal(path);
    }
    await setTab(wanted, line);
}
let isOtherShown = false;

function showFacts() {
    const { comment, isCut } = current;
    $("message-title").replaceChildren(element("span", { class: "number" }, `#${current.index + 1} `), shown(nameOf(current)));
    $("message-comment").textContent = isCut ? `${comment} The file does not have its beginning.`.trim() : comment;
    const facts = [
        current.time, ecuOf(current), current.type !== null && current.id !== null ? `type ${current.type}, ID ${current.id}` : "",
        current.exchange !== null ? `exchange ${current.exchange}` : "", current.source ? `thread ${current.source}` : "",
        files[state.file].kind === "log" ? count(current.lines, "line") : `line ${current.first + 1}`, current.cls ?? "",
    ].filter(Boolean).map((fact) => foreign(fact));
    for (const [name, index] of [["Its request", current.request], ["Its answer", current.answer]]) {
        if (index >= 0) {
            facts.push(element("button", { type: "button", class: "link", onclick: () => select(index, { isStep: true }) }, `${name}, #${index + 1}`));
        }
    }
    $("message-facts").replaceChildren(...facts.flatMap((fact, i) => (i ? [" · ", fact] : [fact])));
}

const tree = new VirtualList($("tree"), {
    rowRole: "treeitem",
    rowHeight: () => 1.75 * rem(),
    fetch: (from, to) => (current ? engine("tree", current.file, current.index, state.hide, from, to) : Promise.resolve([])),
    render(row, box) {
        box.setAttribute("aria-level", row.depth);
        box.setAttribute("aria-posinset", row.place);
        box.setAttribute("aria-setsize", row.of);
        const isBranch = row.value === null;
        if (isBranch) {
            box.setAttribute("aria-expanded", row.isOpen);
        } else {
            box.removeAttribute("aria-expanded");
        }
        box.classList.toggle("default", row.isDefault);
        box.style.setProperty("--depth", Math.min(row.depth - 1, 12));
        const needle = state.search.toLowerCase();
        const what = element("span", { class: "what" },
            element("span", { class: "twisty", "aria-hidden": "true" }, isBranch ? (row.isOpen ? "▾" : "▸") : ""),
            foreign(row.name, { class: "name" }, needle));
        if (isBranch) {
            what.append(element("span", { class: "count" }, row.isList ? count(row.count, "element") : count(row.count, "field")));
            if (row.label) {
                what.append(foreign(row.label, { class: "label" }, needle));
            }
        } else if (row.isEmpty) {
            what.append(element("span", { class: "count" }, "0 elements"));
        } else {
            what.append(element("span", { class: "equal-sign" }, "="), foreign(row.value.text, { class: `value${row.isText ? " text" : ""}` }, needle));
            if (row.value.more) {
                what.append(element("span", { class: "count" }, `… ${count(row.value.more, "more character")}`));
            } else if (row.isText && row.value.text === "") {
                what.append(element("span", { class: "count" }, "empty"));
            }
        }
        if (row.hits && isBranch && !row.isOpen) {
            what.append(element("span", { class: "badge" }, count(row.hits, "hit")));
        }
        if (row.isUnlogged) {
            what.append(element("span", { class: "badge unlogged" }, "not in the log"));
        }
        box.append(what, element("span", { class: "meaning" }, row.meaning));
    },
    async select(index, row, how, event) {
        state.path = row.path;
        showField(row.path);
        if (how === "click" && row.value === null && (event.target.closest(".twisty") || event.detail === 2)) {
            await toggle(row.path, !row.isOpen);
        }
        save();
    },
    key(event, index, row) {
        if (row && (event.key === "ArrowRight" || event.key === "ArrowLeft" || event.key === "Enter" || event.key === " " || event.key === "*")) {
            const isBranch = row.value === null;
            if (event.key === "*") {
                toggle(row.path, true, true);
            } else if (event.key === "ArrowRight") {
                if (isBranch && !row.isOpen) {
                    toggle(row.path, true);
                } else if (isBranch) {
                    tree.choose(index + 1, "key", event);
                }
            } else if (event.key === "ArrowLeft") {
                if (isBranch && row.isOpen) {
                    toggle(row.path, false);
                } else {
                    toParent(row);
                }
            } else if (isBranch) {
                toggle(row.path, !row.isOpen);
            }
            return true;
        }
        return commonKey(event);
    },
});

async function toParent(row) {
    const parent = row.path.replace(/(?:\.[^.[]+|\[(?:"(?:[^"\\]|\\.)*"|[^\]]*)\]|^[^.[]+)$/, "");
    const index = parent ? await engine("rowOf", current.file, current.index, parent, state.hide) : -1;
    if (index >= 0) {
        tree.choose(index, "key");
    }
}

async function toggle(path, isOpen, isDeep = false) {
    tree.setCount(await engine("toggle", current.file, current.index, path, isOpen, state.hide, isDeep));
    if (state.path) {
        tree.mark(await engine("rowOf", current.file, current.index, state.path, state.hide));
    }
}

async function refreshTree() {
    const message = await engine("message", current.file, current.index, state.hide);
    tree.setCount(message.rows);
    if (state.path) {
        tree.mark(await engine("rowOf", current.file, current.index, state.path, state.hide));
    }
}

async function reveal(path) {
    const { row, rows } = await engine("reveal", current.file, current.index, path, state.hide);
    tree.setCount(rows);
    if (row >= 0) {
        tree.mark(row);
        state.path = path;
        await showField(path);
    } else if (state.hide) {
        state.hide = $("hide-defaults").checked = false;
        await reveal(path);
    }
}

let field = null;
/** The panel under the tree: all about one field. */
async function showField(path) {
    const box = $("field");
    field = path ? await engine("field", current.file, current.index, path) : null;
    if (!field) {
        box.replaceChildren(element("p", { class: "quiet" }, "Select a field to see what it means."));
        return;
    }
    const { value } = field;
    const list = element("dl");
    const add = (name, ...content) => list.append(element("dt", {}, name), element("dd", {}, ...content));
    add("Meaning", field.meaning || "not described", field.comment && !field.meaning.includes(field.comment) ? element("span", { class: "quiet" }, ` ${field.comment}`) : null);
    if (value) {
        add("Value", foreign(value.text, { class: "value whole" }, state.search.toLowerCase()), value.more ? element("span", { class: "count" }, ` … ${count(value.more, "more character")}, in the raw line`) : null);
    } else {
        add("Holds", count(field.count, "element or field", "elements or fields"));
    }
    if (field.type) {
        add("Type", element("code", {}, field.type), field.default !== null && !Array.isArray(field.default) ? [", new: ", element("code", {}, JSON.stringify(field.default))].reduce((all, part) => (all.append(part), all), element("span")) : null);
    }
    add("In the log", field.isUnlogged || (field.type && field.format === null && files[current.file].kind === "recording") ? element("strong", {}, "not in the log") : field.format ? element("code", {}, field.format) : "yes");
    const path2 = field.logged ?? field.path;
    box.replaceChildren(
        element("div", { class: "tools" },
            foreign(path2, { class: "path" }),
            element("button", { type: "button", id: "copy", onclick: copyPath, title: "y" }, "Copy path"),
            field.isNumber ? element("button", { type: "button", id: "to-chart", onclick: chartField, title: "c" }, "Over time") : null,
            field.line >= 0 ? element("button", { type: "button", id: "to-raw", onclick: () => setTab("raw", field.line), title: "r" }, "Raw line") : null),
        list);
}

async function copyPath() {
    const text = field ? (field.logged ?? field.path).replace(/^\./, "") : "";
    if (!text) {
        return;
    }
    try {
        await navigator.clipboard.writeText(text);
    } catch {
        const area = element("textarea", { class: "unseen", "aria-hidden": "true" });
        area.value = text;
        document.body.append(area);
        area.select();
        document.execCommand("copy");
        area.remove();
    }
    say(`Copied ${text}`);
}

// ---- Tabs ---------------------------------------------------------------------------------------------------------------

const kTabs = ["fields", "raw", "chart"];
async function setTab(tab, line = -1) {
    state.tab = tab;
    for (const name of kTabs) {
        const isOn = name === tab && !state.isComparing;
        $(`tab-${name}`).setAttribute("aria-selected", String(isOn));
        $(`tab-${name}`).tabIndex = isOn ? 0 : -1;
        $(`panel-${name}`).hidden = !isOn;
    }
    $("panel-pair").hidden = !state.isComparing;
    $("tabs").hidden = state.isComparing || current?.kind === "other";
    $("raw-field").hidden = current?.kind === "other" || files[state.file]?.kind !== "log";
    $("next-other").hidden = $("previous-other").hidden = !files[state.file]?.others;
    if (tab === "raw" && current) {
        if (raw.file !== state.file || raw.count !== files[state.file].lines) {
            raw.file = state.file;
            raw.setCount(files[state.file].lines);
        }
        const at = line >= 0 ? line : field && field.line >= 0 ? field.line : current.first;
        if (!(at === raw.selected)) {
            raw.mark(at);
            showLine(await raw.row(at));
        }
        raw.refresh();
        raw.show(at);
    } else if (tab === "chart" && current) {
        await drawChart(state.chart || (field?.isNumber ? field.pathToChart : ""));
    }
    save();
}

const raw = new VirtualList($("raw"), {
    rowRole: "option",
    rowHeight: () => 1.35 * rem(),
    fetch: (from, to) => engine("raw", state.file, from, to),
    render(row, box) {
        box.classList.toggle("other", row.isOther);
        box.classList.toggle("of-message", row.entry === state.index);
        box.append(element("span", { class: "number" }, String(row.line + 1)), foreign(row.text, { class: "text" }, state.search.toLowerCase()));
        if (row.more) {
            box.append(element("span", { class: "count" }, `… ${count(row.more, "more byte")}`));
        }
    },
    select(index, row) {
        showLine(row);
    },
    key(event, index, row) {
        if (event.key === "Enter" && row) {
            lineToField(row.line);
            return true;
        }
        return commonKey(event);
    },
});

const kPart = 100000;
function showLine(row) {
    if (!row) {
        return;
    }
    const text = foreign(row.text, { class: "whole" });
    const more = element("button", { type: "button" }, `${count(row.more, "more byte")}`);
    let left = row.more;
    more.addEventListener("click", async () => {
        const part = await engine("part", state.file, row.line, left, kPart);
        left = part.left;
        text.append(shown(part.text));
        more.textContent = count(left, "more byte");
        more.hidden = left === 0;
    });
    $("raw-line").replaceChildren(element("span", { class: "number" }, `Line ${row.line + 1}: `), text, row.more ? more : "");
}

async function lineToField(line) {
    const found = await engine("fieldOfLine", state.file, line);
    if (found.index >= 0) {
        await select(found.index, { path: found.path ?? "", tab: found.path ? "fields" : null, line, isStep: true });
        if (found.path) {
            $("tree").focus();
        }
    }
}

async function goToOther(from, step) {
    const line = await engine("otherLine", state.file, from, step);
    if (line < 0) {
        say(step > 0 ? "There is no other line behind this one." : "There is no other line in front of this one.");
        return;
    }
    const { index } = await engine("fieldOfLine", state.file, line);
    await select(index, { tab: "raw", line });
    setPane("message");
}

// ---- Chart --------------------------------------------------------------------------------------------------------------

const chartRows = new VirtualList($("chart-rows"), {
    rowRole: "option",
    rowHeight: () => 1.6 * rem(),
    fetch: (from, to) => engine("chartRows", state.file, from, to),
    render(row, box) {
        box.append(element("span", { class: "number" }, `#${row.entry + 1}`), foreign(shortTime(row.time), { class: "time" }),
            foreign(row.text, { class: "value" }), foreign(row.path, { class: "path" }));
    },
    select() {},
    key(event, index, row) {
        if (event.key === "Enter" && row) {
            select(row.entry, { path: row.path, tab: "fields", isStep: true });
            return true;
        }
        return commonKey(event);
    },
});

let chart = null;
async function drawChart(path) {
    $("chart-path").value = path;
    state.chart = path;
    save();
    if (!path) {
        chart = null;
        $("chart-text").textContent = "Select a field that is a number, or give a path: [*] stands for every element of a list, [m_ushId=4] for one by what is in it.";
        $("chart").replaceChildren();
        chartRows.setCount(0);
        return;
    }
    const result = await engine("chart", state.file, state.index, path);
    if (!result) {
        return;
    }
    chart = result;
    const legend = chart.series.map((series, place) => element("span", { class: "item" },
        element("span", { class: `legend line-${place}`, "aria-hidden": "true" }), foreign(describe({ series: [series] }))));
    const rest = [
        chart.left ? `${count(chart.left, "value")} of further fields not drawn` : "",
        chart.notNumbers ? `${count(chart.notNumbers, "value is", "values are")} no number` : "",
        chart.hasTimes || !chart.points ? "" : "by number of message, as not all have a time",
    ].filter(Boolean).join("; ");
    $("chart-text").replaceChildren(...(chart.points ? legend : ["No numbers found there in messages of this kind. "]), rest);
    draw($("chart"), chart, openPoint);
    chartRows.setCount(chart.points);
}

const openPoint = ({ entry, path }) => select(entry, { path, tab: "fields", isStep: true });

async function chartField() {
    if (field?.isNumber) {
        state.chart = field.pathToChart;
        await setTab("chart");
        $("tab-chart").focus();
    }
}

// ---- Two files ----------------------------------------------------------------------------------------------------------

async function compare(isOn, pair = -1) {
    state.isComparing = isOn && files.length === 2;
    document.body.dataset.mode = state.isComparing ? "pairs" : "messages";
    if (state.isComparing) {
        deselect();
        state.isComparing = true;
        const result = await engine("compare", state.keys, state.ignore);
        if (!result) {
            return;
        }
        await setCounts();
        refreshOutline();
        showFiles();
        await setTab("fields");
        $("message-comment").textContent = "Choose a pair of messages on the left.";
        say(`${count(result.pairs, "pair")} of messages: ${result.equal.toLocaleString("en")} equal, ${(result.pairs - result.equal - result.alone).toLocaleString("en")} different, ${result.alone.toLocaleString("en")} in one file only`);
        pairRows.setCount(0);
        if (pair >= 0) {
            await selectPair(pair);
            outline.mark(await engine("placeOfPair", pair));
        }
        save();
    } else {
        await setCounts();
        refreshOutline();
        await setTab(state.tab);
    }
}

async function selectPair(pair) {
    const found = await engine("pair", pair, state.all);
    if (!found) {
        return;
    }
    state.pair = pair;
    current = null;
    document.body.dataset.has = "pair";
    $("message-title").textContent = plain(nameOf(found.a ?? found.b));
    $("message-comment").textContent = found.comment;
    const side = (number, row) => (row ? element("button", {
        type: "button", class: "link", onclick: async () => {
            state.file = number;
            await compare(false);
            showFiles();
            offer();
            await select(row.index, { isStep: true });
        },
    }, shown(`${files[number].name} #${row.index + 1}`)) : element("span", {}, "not in ", foreign(files[number].name)));
    $("message-facts").replaceChildren(side(0, found.a), " · ", side(1, found.b), " · ", found.differences < 0 ? "only in one file" : found.differences ? count(found.differences, "difference") : "equal");
    $("pair-head").replaceChildren(element("span", {}), element("span", {}, "Field"), ...files.map(({ name }) => foreign(name)));
    pairRows.setCount(found.rows);
    pairRows.mark(-1);
    $("pair-field").replaceChildren();
    save();
}

const kSigns = { changed: "≠", added: "+", removed: "−", same: "=" };
const pairRows = new VirtualList($("pair-rows"), {
    rowRole: "option",
    rowHeight: () => (isNarrow() ? 4.6 : 1.75) * rem(),
    fetch: (from, to) => engine("pairRows", from, to),
    render(row, box) {
        box.classList.add(row.kind);
        const side = (value, name) => (value === null ? element("span", { class: `side ${name} none` }, "–") : foreign(value.text, { class: `side ${name}` }));
        box.append(element("span", { class: "sign", title: row.kind }, kSigns[row.kind]), element("span", { class: "unseen" }, ` ${row.kind} `),
            foreign(row.path, { class: "path" }), side(row.a, "a"), side(row.b, "b"));
    },
    select(index, row) {
        const list = element("dl");
        const add = (name, ...content) => list.append(element("dt", {}, ...[name].flat()), element("dd", {}, ...content));
        if (row.meaning) {
            add("Meaning", row.meaning);
        }
        add([foreign(files[0].name)], row.a === null ? "–" : foreign(row.a.text, { class: "value whole" }));
        add([foreign(files[1].name)], row.b === null ? "–" : foreign(row.b.text, { class: "value whole" }), row.pathB ? element("span", { class: "quiet" }, ` as ${plain(row.pathB)}`) : null);
        $("pair-field").replaceChildren(element("div", { class: "tools" }, foreign(row.path, { class: "path" })), list);
    },
    key: (event) => commonKey(event),
});

// ---- Keys, buttons, dropped files ---------------------------------------------------------------------------------------

function setPane(pane) {
    document.body.dataset.pane = pane;
}
function focusMessage() {
    const list = state.isComparing ? "pair-rows" : state.tab === "raw" ? "raw" : state.tab === "chart" ? "chart-rows" : "tree";
    $(list).focus();
    if (list === "tree" && tree.selected < 0) {
        tree.choose(0, "key");
    }
}

/** Keys of one letter, in lists alone: there nobody types. */
function commonKey(event) {
    const actions = {
        f: () => $("filter").focus(), "/": () => $("search").focus(), n: () => goToHit(1), p: () => goToHit(-1),
        j: () => step(1), k: () => step(-1), t: () => switchTo("fields"), r: () => switchTo("raw"), h: () => $("hide-defaults").click(),
        c: () => (field?.isNumber ? chartField() : switchTo("chart")), y: copyPath, o: () => choose(false), "?": () => $("help").showModal(),
        Escape: () => {
            setPane("outline");
            $("outline").focus();
        },
    };
    if (!Object.hasOwn(actions, event.key)) {
        return false;
    }
    actions[event.key]();
    return true;
}

/** The next or previous message, with the focus where it is. */
async function step(by) {
    const place = outline.selected + by;
    if (place >= 0 && place < outline.count) {
        outline.choose(place, "key");
    }
}

async function switchTo(tab) {
    if (current && current.kind !== "other") {
        await setTab(tab);
        focusMessage();
    }
}

function onEvents() {
    let typing = 0;
    $("filter").addEventListener("input", () => {
        clearTimeout(typing);
        typing = setTimeout(() => filter($("filter").value), 250);
    });
    $("filter-form").addEventListener("submit", (event) => {
        event.preventDefault();
        clearTimeout(typing);
        filter($("filter").value);
    });
    let searching = 0;
    $("search").addEventListener("input", () => {
        clearTimeout(searching);
        searching = setTimeout(() => search($("search").value), 300);
    });
    $("search-form").addEventListener("submit", async (event) => {
        event.preventDefault();
        clearTimeout(searching);
        if ($("search").value === state.search) {
            await goToHit(1);
        } else {
            await search($("search").value);
        }
    });
    $("search").addEventListener("keydown", (event) => {
        if (event.key === "Enter" && event.shiftKey) {
            event.preventDefault();
            goToHit(-1);
        }
    });
    $("previous-hit").addEventListener("click", () => goToHit(-1));
    $("open").addEventListener("click", () => choose(false));
    $("open-first").addEventListener("click", () => choose(false));
    $("file-input").addEventListener("change", () => {
        const chosen = [...$("file-input").files].slice(0, 2);
        $("file-input").value = "";
        openNew(chosen, isAdding);
    });
    $("skip").addEventListener("click", (event) => {
        event.preventDefault();
        $(files.length ? "outline" : "open-first").focus();
    });
    $("back").addEventListener("click", () => {
        setPane("outline");
        $("outline").focus();
    });
    for (const [place, name] of kTabs.entries()) {
        $(`tab-${name}`).addEventListener("click", () => setTab(name));
        $(`tab-${name}`).addEventListener("keydown", (event) => {
            const by = { ArrowRight: 1, ArrowLeft: -1 }[event.key];
            if (by) {
                const next = kTabs[(place + by + kTabs.length) % kTabs.length];
                setTab(next);
                $(`tab-${next}`).focus();
            }
        });
    }
    $("unfold").addEventListener("click", () => current && toggle("", true, true));
    $("fold").addEventListener("click", () => current && toggle("", false, true));
    $("hide-defaults").addEventListener("change", async () => {
        state.hide = $("hide-defaults").checked;
        if (current) {
            await refreshTree();
        }
        save();
    });
    $("raw-field").addEventListener("click", () => raw.selected >= 0 && lineToField(raw.selected));
    $("next-other").addEventListener("click", () => goToOther(raw.selected, 1));
    $("previous-other").addEventListener("click", () => goToOther(raw.selected, -1));
    $("chart-form").addEventListener("submit", (event) => {
        event.preventDefault();
        drawChart($("chart-path").value.trim());
    });
    $("only-different").addEventListener("change", async () => {
        state.onlyDifferent = $("only-different").checked;
        await setCounts();
        save();
    });
    for (const [id, name] of [["pair-keys", "keys"], ["pair-ignore", "ignore"]]) {
        $(id).addEventListener("change", () => {
            state[name] = $(id).value.trim();
            compare(true, state.pair);
        });
    }
    $("all-fields").addEventListener("change", () => {
        state.all = $("all-fields").checked;
        if (state.pair >= 0) {
            selectPair(state.pair);
        }
        save();
    });
    $("help-button").addEventListener("click", () => $("help").showModal());
    $("help-close").addEventListener("click", () => $("help").close());
    addEventListener("hashchange", () => files.length && apply(fromHash(location.hash)));
    addEventListener("popstate", () => files.length && location.hash !== toHash(state) && apply(fromHash(location.hash)));
    addEventListener("dragover", (event) => {
        event.preventDefault();
        document.body.classList.add("dropping");
    });
    addEventListener("dragleave", (event) => event.relatedTarget ?? document.body.classList.remove("dropping"));
    addEventListener("drop", (event) => {
        event.preventDefault();
        document.body.classList.remove("dropping");
        openNew([...event.dataTransfer.files].slice(0, 2), false);
    });
    new ResizeObserver(() => chart && draw($("chart"), chart, openPoint)).observe($("chart"));
}

/** Files that the user brought. Where an address was given before there was a file, it holds for the first. */
function openNew(chosen, isAdded) {
    if (chosen.length && files.length && !isAdded) {
        history.replaceState(null, "", "#");
    } else if (isAdded) {
        history.replaceState(null, "", "#compare=1");
    }
    open(chosen.map((file) => ({ name: file.name, blob: file })), isAdded);
}

async function start() {
    for (const id of ["filter-form", "search-form"]) {
        $(id).hidden = true;
    }
    onEvents();
    engine = await connect(onState);
    document.body.dataset.ready = "yes";
    try {
        await open(embedded());
    } catch (error) {
        say(`The data in this page can't be read: ${error.message}`);
    }
}

start();
