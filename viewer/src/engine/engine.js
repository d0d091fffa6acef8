// All that the page does with files, behind one object that answers calls: in a worker, or where there can't be one on the
// page's own thread. The page holds what is on the screen, this everything else.

import { Breather, Numbers, decode } from "./bytes.js";
import { findClass, findMessage } from "./catalogue.js";
import { pathToChart, seriesOf, thin } from "./chart.js";
import { differencesOf, optionsOf, pairsOf, treeFor } from "./compare.js";
import { Filter, FilterError, numberOf } from "./filter.js";
import { LogFile } from "./log_file.js";
import { LogLine } from "./log_line.js";
import { RecordingFile, isRecording } from "./recording_file.js";
import { Finder } from "./text_search.js";
import { labelOf, summaryOf, treeOf } from "./tree.js";

/** Of a line or a value so many characters are shown at first. */
const kShown = 1500;
const kSummaries = 4000;
const kMostPoints = 2000;

/** What most people look for first; those that a file has are offered. */
const kOffers = [
    { name: "Trouble codes", filter: 'direction:answer m_strDTC!=""' },
    { name: "Freeze frames", filter: "direction:answer command:Get*FFD" },
    { name: "Monitored values", filter: "direction:answer command:Get*DataValue" },
    { name: "Monitored values", filter: "direction:answer command:GetDataMonitorValue" },
    { name: "Vehicle", filter: 'm_strVinCode!=""' },
    { name: "Not supported", filter: "m_bNotSupport=1" },
    { name: "Monitor errors", filter: "direction:answer command:GetDataMonitorError m_ushType!=0" },
];

/** Bytes of a source: a Blob (a dropped file), or Base64 text, gzip'ed or not. */
async function bytesOf({ blob, base64, gzip }, progress) {
    let stream = blob?.stream(), size = blob?.size;
    if (base64 !== undefined) {
        const text = base64.replace(/\s+/g, "");
        const bytes = new Uint8Array(Math.floor((text.length * 3) / 4) - (text.endsWith("==") ? 2 : text.endsWith("=") ? 1 : 0));
        const kPart = 1 << 20; // a multiple of 4
        for (let from = 0, at = 0; from < text.length; from += kPart) {
            const part = atob(text.slice(from, from + kPart));
            for (let i = 0; i < part.length; ++i) {
                bytes[at++] = part.charCodeAt(i);
            }
        }
        if (!gzip) {
            return bytes;
        }
        stream = new Blob([bytes]).stream();
    }
    const head = blob && !gzip ? new Uint8Array(await blob.slice(0, 2).arrayBuffer()) : [];
    if (gzip || (head[0] === 0x1f && head[1] === 0x8b)) {
        stream = stream.pipeThrough(new DecompressionStream("gzip"));
        size = undefined;
    }
    let bytes = new Uint8Array(size ?? 1 << 16), length = 0;
    for (const reader = stream.getReader(); ;) {
        const { done, value } = await reader.read();
        if (done) {
            return bytes.length === length ? bytes : bytes.slice(0, length);
        }
        if (length + value.length > bytes.length) {
            const longer = new Uint8Array(Math.max(2 * bytes.length, length + value.length));
            longer.set(bytes.subarray(0, length));
            bytes = longer;
        }
        bytes.set(value, length);
        length += value.length;
        progress(size ? length / size : 0);
    }
}

const cut = (text) => (text.length > kShown ? { text: text.slice(0, kShown), more: text.length - kShown } : { text });

export class Engine {
    files = [];
    #filter = new Filter("");
    #search = null;
    #passed = []; // of each file the indices of the entries that pass
    #summaries = new Map();
    #trees = new Map(); // by file
    #pairs = null;
    #jobs = new Map(); // by kind, the number of the last one

    /** @param tell called with what the page wants to know meanwhile: {progress, what} */
    constructor(tell) {
        this.tell = tell;
    }

    /** A job of a kind ends the one before it of that kind. */
    #job(kind) {
        const number = (this.#jobs.get(kind) ?? 0) + 1;
        this.#jobs.set(kind, number);
        return () => this.#jobs.get(kind) === number;
    }

    /** Reads files, in place of those that are there, or behind them. Sources are {name, blob} or {name, base64, gzip}. */
    async open(sources, isAdded) {
        const isLast = this.#job("open");
        const files = [];
        for (const source of sources) {
            const progress = (from, share) => (done) => isLast() && this.tell({ what: `Reading ${source.name}`, progress: from + share * done });
            const bytes = await bytesOf(source, progress(0, 0.3));
            const start = new TextDecoder().decode(bytes.subarray(0, 4096));
            const file = new (isRecording(start) ? RecordingFile : LogFile)(source.name, bytes);
            await file.index(progress(0.3, 0.7));
            files.push(file);
        }
        if (!isLast()) {
            return null;
        }
        this.files = [...(isAdded ? this.files.slice(0, 1) : []), ...files].slice(0, 2);
        this.#summaries.clear();
        this.#trees.clear();
        this.#pairs = null;
        this.#search = null;
        for (const file of this.files) {
            this.#nameEcus(file);
        }
        this.tell({ progress: 1 });
        await this.filter("");
        return this.files.map((file) => ({
            name: file.name, kind: file.kind, size: file.lines.bytes.length, lines: file.lines.count, messages: file.messages,
            others: file.others, entries: file.entries.length, firstOther: file.entries.find((entry) => entry.kind === "other")?.index ?? -1,
            version: file.version ?? null, library: file.library ?? null,
        }));
    }

    #nameEcus(file) {
        file.ecuNames = new Map();
        for (const entry of file.entries) {
            if (entry.command !== "GetGroupEcuList" || entry.direction !== "answer") {
                continue;
            }
            let id = null;
            for (const { path, value } of file.fields(entry)) {
                if (path.endsWith("].m_ulEcuId")) {
                    id = Number(value) >>> 0;
                } else if (path.endsWith("].m_strEcuName") && value) {
                    file.ecuNames.set(id, value);
                }
            }
        }
    }

    /** The filters that are worth offering, with the number of messages that they leave. */
    async offers(number) {
        const file = this.files[number];
        const isLast = this.#job(`offers ${number}`);
        const breather = new Breather();
        const found = [];
        for (const { name, filter } of kOffers) {
            const test = new Filter(filter);
            let count = 0;
            for (const entry of file.entries) {
                count += test.passes(file, entry);
                if (breather.isDue()) {
                    await breather.pause();
                    if (!isLast() || this.files[number] !== file) {
                        return null;
                    }
                }
            }
            if (count) {
                found.push({ name, filter, count });
            }
        }
        return found;
    }

    /** Sets the filter: how many entries of each file pass, or what is wrong with it. */
    async filter(text) {
        const isLast = this.#job("filter");
        let filter;
        try {
            filter = new Filter(text);
        } catch (error) {
            if (!(error instanceof FilterError)) {
                throw error;
            }
            return { error: error.message, offset: error.offset };
        }
        const breather = new Breather();
        const passed = [];
        for (const [number, file] of this.files.entries()) {
            const indices = new Numbers(Uint32Array);
            for (const entry of file.entries) {
                if (filter.isEmpty || filter.passes(file, entry)) {
                    indices.push(entry.index);
                }
                if (breather.isDue()) {
                    this.tell({ what: "Filtering", progress: (number + entry.index / file.entries.length) / this.files.length });
                    await breather.pause();
                    if (!isLast()) {
                        return null;
                    }
                }
            }
            passed.push(indices.values.slice(0, indices.length));
        }
        this.#filter = filter;
        this.#passed = passed;
        this.tell({ progress: 1 });
        return { counts: passed.map((indices) => indices.length) };
    }

    #passes(number, index) {
        return this.#placeOf(number, index) >= 0;
    }
    /** Where an entry stands among those that pass; -1 where it doesn't. */
    #placeOf(number, index) {
        const indices = this.#passed[number];
        let low = 0, high = indices.length;
        while (low < high) {
            const middle = (low + high) >> 1;
            if (indices[middle] < index) {
                low = middle + 1;
            } else {
                high = middle;
            }
        }
        return indices[low] === index ? low : -1;
    }
    async placeOf(number, index) {
        return this.#placeOf(number, index);
    }

    #summary(number, entry) {
        const key = `${number}/${entry.index}`;
        let summary = this.#summaries.get(key);
        if (!summary) {
            const file = this.files[number];
            if (entry.kind === "other") {
                const text = file.lines.text(entry.first, 400);
                summary = { text: text.trim(), isBad: false, hasCodes: false };
            } else {
                const text = summaryOf(treeOf(file, entry));
                summary = { text, isBad: text.startsWith("not supported"), hasCodes: entry.direction === "answer" && /^\d+ in \w+: [PCBU][0-9A-F]{4}\b/.test(text) };
            }
            if (this.#summaries.size > kSummaries) {
                this.#summaries.clear();
            }
            this.#summaries.set(key, summary);
        }
        return summary;
    }

    #describe(number, index) {
        const file = this.files[number];
        const entry = file.entries[index];
        return {
            index, kind: entry.kind, direction: entry.direction ?? null, command: entry.command ?? null, family: entry.family ?? null,
            type: entry.type ?? null, id: entry.id ?? null, cls: entry.cls ?? null, ecu: entry.ecu ?? null,
            ecuName: file.ecuNames.get(entry.ecu) ?? null, lines: entry.count, first: entry.first, source: entry.source,
            isCut: Boolean(entry.isCut), why: entry.why ?? null, exchange: entry.exchange ?? null,
            time: file.timeOf(entry),
        };
    }

    /** Entries that pass the filter, from one place to another, as the outline shows them. */
    async outline(number, from, to) {
        const indices = this.#passed[number].subarray(from, to);
        return Array.from(indices, (index) => {
            const entry = this.files[number].entries[index];
            return { ...this.#describe(number, index), summary: this.#summary(number, entry), hits: this.#search?.counts[number].get(index) ?? 0 };
        });
    }

    // ---- one message ----

    #tree(number, index) {
        let session = this.#trees.get(number);
        if (session?.index !== index) {
            const file = this.files[number];
            session = { index, root: treeOf(file, file.entries[index]), expanded: new Set(), rows: null };
            this.#trees.set(number, session);
        }
        return session;
    }

    /** What stands above the tree, and how many rows that has. */
    async message(number, index, hideDefaults) {
        const entry = this.files[number].entries[index];
        const description = this.#describe(number, index);
        if (entry.kind === "other") {
            return { ...description, rows: 0, comment: "" };
        }
        const request = entry.request >= 0 ? entry.request : -1;
        let answer = -1;
        if (entry.direction === "request") {
            for (let i = index + 1; i < Math.min(this.files[number].entries.length, index + 2000) && answer < 0; ++i) {
                answer = this.files[number].entries[i].request === index ? i : -1;
            }
        }
        return {
            ...description, comment: findClass(entry.cls)?.comment ?? "", isKnown: Boolean(findMessage(entry.cls)),
            rows: this.#rows(number, index, hideDefaults).length, request, answer,
        };
    }

    #rows(number, index, hideDefaults) {
        const session = this.#tree(number, index);
        if (!session.rows || session.hideDefaults !== hideDefaults || session.search !== this.#search) {
            const rows = [];
            const finder = this.#search?.finder;
            const count = (node) => {
                node.hits = node.children ? node.children.reduce((sum, child) => sum + count(child), 0) :
                    finder && !node.isEmpty && finder.isInText(`${node.logged ?? node.path}=${node.value}`) ? 1 : 0;
                return node.hits;
            };
            count(session.root);
            const add = (node) => {
                const children = hideDefaults ? node.children.filter((child) => !child.isDefault) : node.children;
                children.forEach((child, place) => {
                    rows.push({ node: child, place: place + 1, of: children.length });
                    if (child.children && session.expanded.has(child.path)) {
                        add(child);
                    }
                });
            };
            if (session.root.children) {
                add(session.root);
            }
            Object.assign(session, { rows, hideDefaults, search: this.#search });
        }
        return session.rows;
    }

    async tree(number, index, hideDefaults, from, to) {
        const { expanded } = this.#tree(number, index);
        return this.#rows(number, index, hideDefaults).slice(from, to).map(({ node, place, of }) => ({
            path: node.path, name: node.name, depth: node.depth, place, of,
            value: node.children ? null : cut(node.value ?? ""), isText: node.info?.type === "CKRMString" || node.info?.element === "CKRMString",
            count: node.children?.length ?? 0, isList: Boolean(node.isList), isEmpty: Boolean(node.isEmpty), isOpen: Boolean(node.children) && expanded.has(node.path),
            label: node.children ? labelOf(node) : "", meaning: node.info?.meaning ?? meaningOf(node), isUnlogged: Boolean(node.isUnlogged),
            isDefault: node.isDefault, hits: node.hits,
        }));
    }

    /** All about one field, for the panel under the tree. */
    async field(number, index, path) {
        const node = this.#find(number, index, path);
        if (!node) {
            return null;
        }
        const { info } = node;
        return {
            path: node.path, logged: node.logged ?? null, pathToChart: pathToChart(node), meaning: info?.meaning ?? meaningOf(node), type: info ? (node.isElement ? info.element : info.type) : null,
            default: info?.default ?? null, format: info?.logged ?? null, isUnlogged: Boolean(node.isUnlogged), line: node.line,
            comment: node.cls ? (findClass(node.cls)?.comment ?? "") : "", count: node.children?.length ?? null,
            value: node.children ? null : { text: (node.value ?? "").slice(0, 20000), more: Math.max(0, (node.value ?? "").length - 20000) },
            isNumber: !node.children && node.value !== null && Number.isFinite(numberOf(node.value.trim())),
        };
    }

    #find(number, index, path) {
        const search = (node) => {
            for (const child of node.children ?? []) {
                if (child.path === path) {
                    return child;
                }
                if (path.startsWith(child.path) && /^[.[]/.test(path.slice(child.path.length))) {
                    const found = search(child);
                    if (found) {
                        return found;
                    }
                }
            }
            return null;
        };
        return search(this.#tree(number, index).root);
    }

    /** Opens or closes a record or list, or all that it holds; the new number of rows. */
    async toggle(number, index, path, isOpen, hideDefaults, isDeep) {
        const session = this.#tree(number, index);
        const set = (node) => {
            if (node.children) {
                session.expanded[isOpen ? "add" : "delete"](node.path);
                if (isDeep) {
                    node.children.forEach(set);
                }
            }
        };
        if (path) {
            const node = this.#find(number, index, path);
            if (node) {
                set(node);
            }
        } else {
            session.root.children?.forEach(set);
        }
        session.rows = null;
        return this.#rows(number, index, hideDefaults).length;
    }

    /** The row of a field, with all around it opened; -1 where there is none. */
    async reveal(number, index, path, hideDefaults) {
        const session = this.#tree(number, index);
        let node = this.#find(number, index, path);
        if (!node) {
            return { row: -1, rows: this.#rows(number, index, hideDefaults).length };
        }
        for (node = node.parent; node?.path; node = node.parent) {
            session.expanded.add(node.path);
        }
        session.rows = null;
        const rows = this.#rows(number, index, hideDefaults);
        return { row: rows.findIndex((row) => row.node.path === path), rows: rows.length };
    }

    async rowOf(number, index, path, hideDefaults) {
        return this.#rows(number, index, hideDefaults).findIndex((row) => row.node.path === path);
    }

    // ---- lines ----

    async raw(number, from, to) {
        const file = this.files[number];
        const rows = [];
        for (let line = from; line < Math.min(to, file.lines.count); ++line) {
            const more = file.lines.end(line) - file.lines.partEnd(line, file.lines.start(line), kShown);
            const entry = file.entryOf.values[line];
            rows.push({
                line, entry, text: file.lines.text(line, kShown), more,
                isOther: entry >= 0 && file.entries[entry].kind === "other",
            });
        }
        return rows;
    }

    /** A part of a long line, from so many bytes before its end on. */
    async part(number, line, left, length) {
        const { lines } = this.files[number];
        const from = lines.end(line) - left;
        const end = lines.partEnd(line, from, length);
        return { text: decode(lines.bytes.subarray(from, end)), left: lines.end(line) - end };
    }

    /** The place and the field of a line: for going from a line to its meaning. */
    async fieldOfLine(number, line) {
        const file = this.files[number];
        const index = file.entryOf.values[line];
        const entry = file.entries[index];
        const field = entry?.kind === "message" && file.kind === "log" ? file.fields(entry).find((item) => item.line === line) : null;
        return { index, path: field?.path ?? null };
    }

    /** The next line, or the one before, that is no log line; -1 where there is none. */
    async otherLine(number, from, step) {
        const file = this.files[number];
        for (let line = from + step; line >= 0 && line < file.lines.count; line += step) {
            const entry = file.entries[file.entryOf.values[line]];
            if (entry?.kind === "other") {
                return line;
            }
        }
        return -1;
    }

    // ---- search ----

    /** Finds a text in the fields and other lines of all entries that pass the filter; how often, by file. */
    async search(text) {
        const isLast = this.#job("search");
        if (!text) {
            this.#search = null;
            return { counts: this.files.map(() => 0) };
        }
        const finder = new Finder(text);
        const breather = new Breather();
        const found = { finder, hits: [], counts: [] };
        for (const [number, file] of this.files.entries()) {
            const hits = new Numbers(Float64Array); // entry * 2^32 + line or field
            const counts = new Map();
            const { bytes } = file.lines;
            const line = new LogLine();
            const hit = (entry, at) => {
                hits.push(entry.index * 2 ** 32 + at);
                counts.set(entry.index, (counts.get(entry.index) ?? 0) + 1);
            };
            for (const index of this.#passed[number]) {
                const entry = file.entries[index];
                if (entry.kind === "other") {
                    for (let at = entry.first; at <= entry.last; ++at) {
                        if (file.entryOf.values[at] === index && finder.isInBytes(bytes, file.lines.start(at), file.lines.end(at))) {
                            hit(entry, at);
                        }
                    }
                } else if (file.kind === "log") {
                    for (let at = entry.first; at <= entry.last; ++at) {
                        if (file.entryOf.values[at] === index) {
                            const end = file.lines.end(at);
                            if (line.find(bytes, file.lines.start(at), end) && finder.isInLine(bytes, line, end)) {
                                hit(entry, at);
                            }
                        }
                    }
                } else {
                    file.fields(entry).forEach((field, at) => {
                        if (!field.empty && finder.isInText(`${field.path}=${field.value}`)) {
                            hit(entry, at);
                        }
                    });
                }
                if (breather.isDue()) {
                    this.tell({ what: "Searching", progress: index / file.entries.length });
                    await breather.pause();
                    if (!isLast()) {
                        return null;
                    }
                }
            }
            found.hits.push(hits);
            found.counts.push(counts);
        }
        this.#search = found;
        this.tell({ progress: 1 });
        return { counts: found.hits.map((hits) => hits.length) };
    }

    /** A hit by its number from 0: its entry, and its field or line. */
    async hit(number, place) {
        const hits = this.#search?.hits[number];
        if (!hits || place < 0 || place >= hits.length) {
            return null;
        }
        const file = this.files[number];
        const index = Math.floor(hits.values[place] / 2 ** 32);
        const at = hits.values[place] % 2 ** 32;
        const entry = file.entries[index];
        if (entry.kind === "other") {
            return { index, path: null, line: at };
        }
        const fields = file.fields(entry);
        const field = file.kind === "log" ? fields.find((item) => item.line === at) : fields[at];
        return { index, path: field?.path ?? null, line: field?.line ?? entry.first };
    }

    /** The number of the first hit at or behind an entry. */
    async hitFrom(number, index) {
        const hits = this.#search?.hits[number];
        if (!hits?.length) {
            return -1;
        }
        for (let i = 0; i < hits.length; ++i) {
            if (hits.values[i] >= index * 2 ** 32) {
                return i;
            }
        }
        return 0;
    }

    // ---- chart ----

    async chart(number, index, path) {
        const isLast = this.#job("chart");
        const file = this.files[number];
        const progress = (done) => this.tell({ what: "Collecting values", progress: done });
        const found = await seriesOf(file, file.entries[index], this.#passed[number], path, progress);
        this.tell({ progress: 1 });
        if (!isLast()) {
            return null;
        }
        this.charted = found;
        const numbers = (points) => points.map((point) => point.value);
        return {
            hasTimes: found.hasTimes, notNumbers: found.notNumbers, left: found.left,
            points: found.series.reduce((sum, { points }) => sum + points.length, 0),
            series: found.series.map(({ path: itsPath, name, points }) => ({
                path: itsPath, name, count: points.length, points: thin(points, kMostPoints).map(({ entry, time, value, path: exact }) => ({ entry, time, value, path: exact })),
                low: numbers(points).reduce((one, other) => Math.min(one, other), Infinity),
                high: numbers(points).reduce((one, other) => Math.max(one, other), -Infinity),
            })),
        };
    }

    /** The charted values as rows of a table, series by series. */
    async chartRows(number, from, to) {
        const rows = [];
        let at = 0;
        for (const { points } of this.charted?.series ?? []) {
            for (let i = Math.max(0, from - at); i < points.length && at + i < to; ++i) {
                const { entry, text, path } = points[i];
                rows.push({ path, entry, text: text.slice(0, 100), time: this.files[number].timeOf(this.files[number].entries[entry]) });
            }
            at += points.length;
        }
        return rows;
    }

    // ---- two files ----

    /** Compares both files message by message; how many pairs there are, and how many of them differ. */
    async compare(keys, ignore) {
        const isLast = this.#job("compare");
        if (this.files.length < 2) {
            return null;
        }
        const options = optionsOf(keys, ignore);
        const [one, other] = this.files;
        const pairs = await pairsOf(one, other, (done) => this.tell({ what: "Comparing", progress: done / 3 }));
        const breather = new Breather();
        for (const [place, pair] of pairs.entries()) {
            pair.differences = pair.a < 0 || pair.b < 0 ? -1 : differencesOf(treeFor(one, pair.a), treeFor(other, pair.b), options).length;
            if (breather.isDue()) {
                this.tell({ what: "Comparing", progress: 1 / 3 + (2 * place) / (3 * pairs.length) });
                await breather.pause();
                if (!isLast()) {
                    return null;
                }
            }
        }
        this.#pairs = { pairs, options };
        this.tell({ progress: 1 });
        return this.#compared();
    }
    #compared() {
        const { pairs } = this.#pairs;
        return { pairs: pairs.length, equal: pairs.filter((pair) => pair.differences === 0).length, alone: pairs.filter((pair) => pair.differences < 0).length };
    }

    /** Which pairs are shown: those that the filter leaves in either file, and not the equal ones if so asked. */
    async choosePairs(onlyDifferent) {
        if (!this.#pairs) {
            return 0;
        }
        this.#pairs.shown = this.#pairs.pairs.map((_, place) => place).filter((place) => {
            const { a, b, differences } = this.#pairs.pairs[place];
            return (!onlyDifferent || differences !== 0) && ((a >= 0 && this.#passes(0, a)) || (b >= 0 && this.#passes(1, b)));
        });
        return this.#pairs.shown.length;
    }
    async pairOutline(from, to) {
        return this.#pairs.shown.slice(from, to).map((place) => {
            const { a, b, differences } = this.#pairs.pairs[place];
            const [number, index] = a >= 0 ? [0, a] : [1, b];
            const summary = this.#summary(number, this.files[number].entries[index]);
            return { ...this.#describe(number, index), pair: place, a, b, differences, summary, hits: 0 };
        });
    }
    async placeOfPair(pair) {
        return this.#pairs?.shown?.indexOf(pair) ?? -1;
    }

    /** What differs in one pair. */
    async pair(place, all) {
        const pair = this.#pairs?.pairs[place];
        if (!pair) {
            return null;
        }
        const [one, other] = this.files;
        this.paired = differencesOf(treeFor(one, pair.a), treeFor(other, pair.b), this.#pairs.options, all);
        return {
            rows: this.paired.length, a: pair.a < 0 ? null : this.#describe(0, pair.a), b: pair.b < 0 ? null : this.#describe(1, pair.b),
            differences: pair.differences, comment: findClass((pair.a < 0 ? other.entries[pair.b] : one.entries[pair.a]).cls)?.comment ?? "",
        };
    }
    async pairRows(from, to) {
        return this.paired.slice(from, to).map((row) => ({ ...row, a: row.a === null ? null : cut(row.a), b: row.b === null ? null : cut(row.b) }));
    }
}

/** Of two lines that are no fields of the message. */
function meaningOf(node) {
    return node.name === "m_dwCommandType" ? "command type: the family that the message belongs to" :
        node.name === "m_dwCommandID" ? "command ID: the command within its family" : "";
}
