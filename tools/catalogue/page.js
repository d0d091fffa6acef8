// A page of the catalogue: opens what a reader asks for, and searches.
"use strict";

// ---- Nested records ----------------------------------------------------------------------------------------------------

/** Puts a record's fields where they are asked for: a copy of their template, with its anchors and lines of the log. */
function fill(details) {
    if (!details.dataset.template || details.querySelector("table")) {
        return;
    }
    const copy = document.getElementById(details.dataset.template).content.cloneNode(true);
    const { path, log } = details.dataset;
    const breakable = (text) => text.split(/(?<=[a-z])(?=[A-Z])|(?<=::)|(?<=[\].])(?=[A-Za-z])/).flatMap((part) => [document.createElement("wbr"), part]);
    const behindPrefix = (text) => text.replace("%s", () => log);
    for (const row of copy.querySelectorAll("tr[data-name]")) {
        row.id = `${path}.${row.dataset.name}`;
        row.querySelector("th a").hash = row.id;
    }
    for (const line of copy.querySelectorAll("[data-log]:not(details)")) {
        line.replaceChildren(...breakable(behindPrefix(line.dataset.log)));
    }
    for (const inner of copy.querySelectorAll("details")) {
        inner.dataset.path = `${path}.${inner.dataset.name}`;
        inner.dataset.log = behindPrefix(inner.dataset.log);
    }
    details.append(copy);
}

/** The element with this anchor; records on the way to it are opened. */
function find(anchor) {
    const steps = anchor.split(".");
    for (let count = 2; count < steps.length; ++count) {
        const path = steps.slice(0, count).join(".");
        const details = [...document.querySelectorAll("details[data-path]")].find((one) => one.dataset.path === path);
        if (details) {
            fill(details);
            details.open = true;
        }
    }
    return document.getElementById(anchor);
}

function land() {
    for (const found of document.querySelectorAll(".found")) {
        found.classList.remove("found");
    }
    const found = location.hash.length > 1 && find(decodeURIComponent(location.hash.slice(1)));
    if (found) {
        found.classList.toggle("found", found.matches("tr, h2"));
        found.focus({ preventScroll: true });
        found.scrollIntoView({ block: found.matches("tr") ? "center" : "start" });
    }
}

document.addEventListener("toggle", (event) => event.target.open && fill(event.target), true);
window.addEventListener("hashchange", land);
land();

// ---- Search ------------------------------------------------------------------------------------------------------------

const form = document.getElementById("search");
const query = document.getElementById("query");
const list = document.getElementById("results");
const status = document.getElementById("status");
const kMost = 40;
const kNothing = "Nothing found. An ID (2, 1/2), a command, a class, a field, words of its meaning, or a line of a log, pasted.";
let results = [];
let selected = -1;

let loading = null;
/** What searches, loaded when it is first needed: it brings the whole catalogue along. */
function searcher() {
    loading ??= new Promise((resolve, reject) => {
        const script = document.createElement("script");
        script.src = "search.js";
        script.onload = () => resolve(window.krmCatalogue.search);
        script.onerror = () => reject(new Error("search.js can't be loaded"));
        document.head.append(script);
    });
    return loading;
}

function select(index) {
    selected = index;
    [...list.children].forEach((item, i) => item.setAttribute("aria-selected", String(i === index)));
    if (index >= 0) {
        query.setAttribute("aria-activedescendant", `result-${index}`);
        list.children[index].scrollIntoView({ block: "nearest" });
    } else {
        query.removeAttribute("aria-activedescendant");
    }
}

function close() {
    list.hidden = true;
    status.textContent = "";
    query.setAttribute("aria-expanded", "false");
    select(-1);
}

function show(text) {
    list.replaceChildren(...results.slice(0, kMost).map(({ title, detail }, i) => {
        const item = document.createElement("li");
        const more = document.createElement("small");
        more.textContent = detail;
        item.append(title, more);
        item.id = `result-${i}`;
        item.setAttribute("role", "option");
        item.addEventListener("mousedown", (event) => event.preventDefault());
        item.addEventListener("click", () => go(i));
        return item;
    }));
    const isAny = results.length > 0;
    list.hidden = !isAny;
    query.setAttribute("aria-expanded", String(isAny));
    status.textContent = !text ? "" : !isAny ? kNothing :
        results.length > kMost ? `The first ${kMost} of ${results.length}.` : `${results.length} found.`;
    select(-1);
}

async function search() {
    const text = query.value.trim();
    const find = await searcher();
    if (text === query.value.trim()) {
        results = text ? find(text) : [];
        show(text);
    }
}

function go(index, turn = (target) => location.assign(target)) {
    const { url } = results[index];
    close();
    const target = new URL(url, location.href);
    if (target.href === location.href) {
        land(); // there already: show it again
    } else {
        turn(target.href);
    }
}

query.addEventListener("focus", () => searcher().catch(() => {}), { once: true });
query.addEventListener("input", search);
query.addEventListener("paste", (event) => {
    // The line of a log that is one field's leads there at once. Of several lines it is the first.
    const text = event.clipboardData.getData("text").trim().split(/[\r\n]/)[0];
    if (query.value === "" && text.includes("[")) {
        event.preventDefault();
        query.value = text;
        search().then(() => results.length === 1 && go(0));
    }
});
query.addEventListener("keydown", (event) => {
    const count = list.children.length;
    if (event.key === "ArrowDown" && count) {
        select((selected + 1) % count);
    } else if (event.key === "ArrowUp" && count) {
        select((selected + count - 1) % count);
    } else if (event.key === "Escape") {
        close();
        return;
    } else {
        return;
    }
    event.preventDefault();
});
query.addEventListener("blur", close);
form.addEventListener("submit", async (event) => {
    event.preventDefault();
    await search();
    if (results.length) {
        go(Math.max(selected, 0));
    }
});

// A link with ?q= is a search, and leads to what it finds where that is one thing; the way back is then to where the link was.
const asked = new URLSearchParams(location.search).get("q");
if (asked) {
    query.value = asked;
    query.focus();
    search().then(() => results.length === 1 && go(0, (target) => location.replace(target)));
}
// "/" leads to the box.
document.addEventListener("keydown", (event) => {
    if (event.key === "/" && !event.ctrlKey && !event.metaKey && !event.altKey && event.target !== query) {
        event.preventDefault();
        query.focus();
    }
});
