// Two files side by side: which messages belong together, and which fields differ.

import { Breather } from "./bytes.js";
import { isLogged, keysOf } from "./catalogue.js";
import { escaped, numberOf } from "./filter.js";
import { labelOf, treeOf } from "./tree.js";

const template = (path) => path.replace(/\[\d+\]/g, "[]");

/** A value as both kinds of file would have it: numbers and bools as numbers. */
function plain(value) {
    const number = numberOf(value);
    return Number.isNaN(number) ? value : String(number);
}

/** Tells requests apart by what they ask, and answers by their request. */
function keyOf(file, entry, keys) {
    if (entry.request >= 0 && keys.has(entry.request)) {
        return `answer to ${keys.get(entry.request)}`;
    }
    let key = `${entry.type}/${entry.id} ${entry.command} ${entry.direction} ${entry.ecu}`;
    if (entry.direction === "request") {
        for (const field of file.fields(entry)) {
            if (!field.empty && !/^m_dwCommand(Type|ID)$/.test(field.path) &&
                (file.kind === "log" || isLogged(entry.cls, template(field.path)))) {
                key += `\n${field.path}=${plain(field.value)}`;
            }
        }
    }
    keys.set(entry.index, key);
    return key;
}

/**
 * The messages of both files in order, each as the indices of its entries, -1 where one has none. Equal requests, and their
 * answers, are taken in their order.
 */
export async function pairsOf(one, other, progress) {
    const breather = new Breather();
    const keyed = [];
    for (const [place, file] of [one, other].entries()) {
        const keys = new Map(), counts = new Map();
        const list = [];
        for (const entry of file.entries) {
            if (entry.kind === "message") {
                const key = keyOf(file, entry, keys);
                const count = counts.get(key) ?? 0;
                counts.set(key, count + 1);
                list.push({ index: entry.index, key: `${key}\n#${count}` });
            }
            if (breather.isDue()) {
                progress((place + entry.index / file.entries.length) / 2);
                await breather.pause();
            }
        }
        keyed.push(list);
    }
    const places = new Map(keyed[0].map((item, place) => [item.key, place]));
    const partner = new Map();
    const behind = Array.from({ length: keyed[0].length + 1 }, () => []); // of each place of the first, those of the second alone
    let place = 0;
    for (const item of keyed[1]) {
        const found = places.get(item.key);
        if (found === undefined) {
            behind[place].push({ a: -1, b: item.index });
        } else {
            partner.set(found, item.index);
            place = found + 1;
        }
    }
    const pairs = [...behind[0]];
    keyed[0].forEach((item, at) => pairs.push({ a: item.index, b: partner.get(at) ?? -1 }, ...behind[at + 1]));
    return pairs;
}

/** A pattern as krm::Compare has it: `*` within a name stands for any characters, `[*]` for every index. `end` comes behind it. */
function patternOf(text, end) {
    const source = text.trim().split(/(\[\*\]|\*)/).map((part) =>
        (part === "[*]" ? "\\[[^\\]]*\\]" : part === "*" ? "[^.[\\]]*" : escaped(part))).join("");
    return new RegExp(`^${source}${end}`);
}

/** `Data=m_strDTC, Data[*].m_cFFDList=m_ushId` and patterns of what to ignore, as objects. */
export function optionsOf(keys = "", ignore = "") {
    return {
        ignore: ignore.split(/[\s,]+/).filter(Boolean).map((text) => patternOf(text, "(?:[.[]|$)")),
        keys: keys.split(/[\s,]+/).filter((text) => text.includes("=")).map((text) => {
            const [list, fields] = text.split("=");
            return { list: patternOf(list, "$"), fields: fields.split("+") };
        }),
    };
}

/** The key of a list's elements: what options say, else the first identifying field that is unique in both. */
function keyFor(one, other, options) {
    const own = options.keys.find((key) => key.list.test(one.path));
    const valueOf = (element, field) => field.split(".").reduce((node, step) => node?.child(step), element)?.value;
    const textOf = (fields) => (element) => fields.map((field) => valueOf(element, field)).join("\n");
    if (own) {
        return textOf(own.fields);
    }
    if (!one.cls || !one.children || !other.children) {
        return null;
    }
    return keysOf(one.cls).map((field) => textOf([field])).find((key) =>
        [one, other].every((list) => {
            const values = list.children.map(key);
            return values.every(Boolean) && new Set(values).size === values.length;
        })) ?? null;
}

const countLeaves = (node) => (node.children ? node.children.reduce((count, child) => count + countLeaves(child), 0) : 1);
function textOf(node) {
    if (!node) {
        return null;
    }
    if (!node.children) {
        return node.value;
    }
    const label = labelOf(node);
    const count = countLeaves(node);
    return `{${label ? `${label} – ` : ""}${count} ${count === 1 ? "field" : "fields"}}`;
}

/** What differs between two trees, or all of their fields, in order. */
export function differencesOf(one, other, options, all = false) {
    const rows = [];
    const isMixed = one.file.kind !== other.file.kind;
    const row = (kind, a, b) => rows.push({
        kind, path: (a ?? b).path, pathB: b && a && b.path !== a.path ? b.path : null, a: textOf(a), b: textOf(b),
        meaning: (a ?? b).info?.meaning ?? "",
    });
    const isEqual = (a, b) => {
        if (a === b) {
            return true;
        }
        const numbers = [numberOf(a), numberOf(b)];
        if (numbers.some(Number.isNaN)) {
            return false;
        }
        // The log has six digits behind the point.
        return numbers[0] === numbers[1] || (isMixed && Math.abs(numbers[0] - numbers[1]) <= 1e-6);
    };
    const isLeftOut = (node) => options.ignore.some((pattern) => pattern.test(node.path)) ||
        (isMixed && (node.isUnlogged || node.isEmpty || /^m_dwCommand(Type|ID)$/.test(node.path)));
    const compare = (a, b) => {
        if (isLeftOut(a ?? b)) {
            return;
        }
        if (!a || !b) {
            if (!(a ?? b).isEmpty) {
                row(a ? "removed" : "added", a, b);
            }
            return;
        }
        if (!a.children && !b.children) {
            if (!isEqual(a.value, b.value)) {
                row("changed", a, b);
            } else if (all) {
                row("same", a, b);
            }
            return;
        }
        if (!a.children || !b.children) {
            if (a.isEmpty || b.isEmpty) {
                (a.children ?? b.children).forEach((child) => (a.children ? compare(child, null) : compare(null, child)));
            } else {
                row("changed", a, b);
            }
            return;
        }
        const key = a.isList ? keyFor(a, b, options) : null;
        const partners = new Map();
        for (const child of b.children) {
            const name = key ? key(child) : child.name;
            partners.set(name, [...(partners.get(name) ?? []), child]);
        }
        for (const child of a.children) {
            const partner = partners.get(key ? key(child) : child.name)?.shift() ?? null;
            compare(child, partner);
        }
        for (const child of b.children) {
            if (partners.get(key ? key(child) : child.name)?.includes(child)) {
                compare(null, child);
            }
        }
    };
    if (one.root && other.root) {
        compare(one.root, other.root);
    } else {
        (one.root ?? other.root).children?.forEach((child) => (one.root ? compare(child, null) : compare(null, child)));
    }
    return rows;
}

export const treeFor = (file, index) => ({ file, root: index < 0 ? null : treeOf(file, file.entries[index]) });
