// A message as a tree of its fields.

import { fieldAt, findClass, isLogged } from "./catalogue.js";
import { numberOf } from "./filter.js";

/** The steps of a path: names, and indices or keys with their brackets. */
export function stepsOf(path) {
    return path.match(/\[(?:"(?:[^"\\]|\\.)*"|[^\]]*)\]|[^.[]+/g) ?? [];
}
const templateOf = (path) => path.replace(/\[(?:"(?:[^"\\]|\\.)*"|[^\]]*)\]/g, "[]");

/** One field, record, list or element. Leaves have a value, all others children. */
class Node {
    constructor(parent, name, path) {
        this.parent = parent;
        this.name = name;
        this.path = path;
        this.depth = parent ? parent.depth + 1 : 0;
        this.children = null;
        this.value = null;
        this.line = -1;
    }
    child(step) {
        return this.byName?.get(step);
    }
    add(step) {
        const isIndex = step.startsWith("[");
        const node = new Node(this, step, isIndex || !this.path ? this.path + step : `${this.path}.${step}`);
        node.isElement = isIndex;
        if (this.cls && !isIndex) {
            node.info = fieldAt(this.cls, step)?.field ?? null;
            const type = node.info && (node.info.element ?? node.info.type);
            node.cls = type && findClass(type) ? type : null;
        } else {
            node.info = isIndex && !this.cls ? this.info : null; // of a number what its list is
            node.cls = isIndex ? this.cls : null;
        }
        this.children ??= [];
        this.byName ??= new Map();
        this.byName.set(step, node);
        this.children.push(node);
        this.isList ||= isIndex;
        return node;
    }
    /** Whether nothing in it is other than in a new message. */
    get isDefault() {
        if (this.children) {
            return this.isElement && !this.parent.isArray ? false : this.children.every((child) => child.isDefault);
        }
        if (this.isEmpty) {
            return true;
        }
        const value = this.isElement ? (this.parent.isArray ? 0 : undefined) : this.info?.default;
        if (typeof value === "number" || typeof value === "boolean") {
            return numberOf(this.value) === Number(value);
        }
        return typeof value === "string" && this.value === value;
    }
    get isArray() {
        return Boolean(this.info && /\[\d+\]$/.test(this.info.type));
    }
}

/** The tree of a message. */
export function treeOf(file, entry) {
    const root = new Node(null, "", "");
    root.cls = entry.cls;
    let steps = [], nodes = [root]; // of the field before
    for (const field of file.fields(entry)) {
        const next = stepsOf(field.path);
        let same = 0;
        while (same < next.length && same < steps.length && next[same] === steps[same]) {
            ++same;
        }
        nodes.length = same + 1;
        for (; same < next.length; ++same) {
            nodes.push(nodes[same].child(next[same]) ?? nodes[same].add(next[same]));
        }
        steps = next;
        let leaf = nodes.at(-1);
        if (leaf.value !== null || leaf.children) {
            // The log has the line twice: both are shown.
            const before = leaf;
            leaf = new Node(before.parent, before.name, before.path);
            Object.assign(leaf, { info: before.info, cls: before.cls, isElement: before.isElement });
            before.parent.children.push(leaf);
        }
        leaf.value = field.value;
        leaf.line = field.line;
        if (field.empty) {
            leaf.isEmpty = true;
        }
        if (field.logged !== undefined && field.logged !== field.path) {
            leaf.logged = field.logged;
        }
        if (file.kind === "recording") {
            leaf.isUnlogged = !isLogged(entry.cls, templateOf(field.path));
        }
    }
    if (file.kind === "recording") {
        markUnlogged(root);
    }
    return root;
}

function markUnlogged(node) {
    if (node.children) {
        node.children.forEach(markUnlogged);
        node.isUnlogged = node.children.every((child) => child.isUnlogged);
    }
}

const short = (text, most) => (text.length > most ? `${text.slice(0, most - 1)}…` : text);

/** A few words that tell a record from others: its code, its name, its value with the unit. */
export function labelOf(node) {
    const text = (name) => node.child(name)?.value || "";
    const words = [];
    const named = ["m_strDTC", "m_strDTCName", "m_strName"].map(text).filter(Boolean);
    if (named.length === 0 && node.children) {
        const first = node.children.find((child) => child.value && /^(m_str\w*Name|m_strString|m_strWords|m_strVehicleInfo|String)$/.test(child.name));
        if (first) {
            named.push(first.value);
        }
    }
    if (named.length) {
        words.push(named.join(" "));
    }
    const shown = node.child("m_cDispDataList")?.children ?? (node.child("m_strDataPhys") ? [node] : []);
    const values = shown.map((disp) => {
        const converted = disp.child("m_strData")?.value, physical = disp.child("m_strDataPhys")?.value;
        const value = converted || physical || "";
        // Units are there for words too, such as "off" and "on", and are of no use with them.
        const unit = Number.isNaN(numberOf(value)) ? "" : text("m_strUnit") || text("m_strUnitPhys");
        return value + (unit ? ` ${unit}` : "");
    }).filter(Boolean);
    if (values.length) {
        words.push(short(values.join(", "), 80));
    }
    return short(words.join(": "), 160);
}

/** What stands out in a message: what isn't supported, its lists with their count, its own fields that aren't as in a new one. */
export function summaryOf(root) {
    const parts = [];
    for (const node of root.children ?? []) {
        if (/^m_dwCommand(Type|ID)$/.test(node.name)) {
            continue;
        }
        if (node.name === "m_bNotSupport") {
            if (numberOf(node.value) === 1) {
                parts.unshift("not supported");
            }
        } else if (node.isEmpty) {
            parts.push(`0 in ${node.name}`);
        } else if (node.isList && node.children) {
            const labels = node.children.slice(0, 6).map((child) => (child.children ? child.child("m_strDTC")?.value || labelOf(child) : short(child.value, 40))).filter(Boolean);
            const rest = node.children.length > labels.length && labels.length ? ", …" : "";
            parts.push(`${node.children.length} in ${node.name}${labels.length ? `: ${labels.join(", ")}${rest}` : ""}`);
        } else if (node.children) {
            const label = labelOf(node);
            if (label) {
                parts.push(`${node.name}: ${label}`);
            }
        } else if (node.name !== "m_ulEcuId" && !node.isDefault && node.value) {
            parts.push(`${node.name}=${short(node.value, 60)}`);
        }
        if (parts.length > 6) {
            break;
        }
    }
    // The log has no line for a list without elements.
    for (const { name, type, logged } of findClass(root.cls)?.fields ?? []) {
        if (type.startsWith("CKRMList<") && logged && !root.child(name)) {
            parts.push(`0 in ${name}`);
        }
    }
    return short(parts.join(" · "), 300);
}
