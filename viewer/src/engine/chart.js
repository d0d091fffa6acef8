// The values of a field over time.

import { Breather } from "./bytes.js";
import { keysOf } from "./catalogue.js";
import { escaped, numberOf } from "./filter.js";
import { stepsOf, treeOf } from "./tree.js";

/** More lines in one chart can't be told apart. */
const kMostSeries = 8;

/** A time as a number of milliseconds; NaN where it isn't one. */
export function timeNumber(text) {
    const parsed = /^\d{4}-\d\d-\d\d[T ]\d/.test(text) ? Date.parse(text.replace(" ", "T")) : NaN;
    if (!Number.isNaN(parsed)) {
        return parsed;
    }
    const clock = /^(\d{1,2}):(\d\d):(\d\d(?:[.,]\d+)?)$/.exec(text);
    return clock ? ((Number(clock[1]) * 60 + Number(clock[2])) * 60 + Number(clock[3].replace(",", "."))) * 1000 : NaN;
}

/** The step to an element by what identifies it, `[m_ushId=4]`, as its place may be another in each message. */
function identity(element) {
    const list = element.parent;
    if (element.cls && element.children) {
        for (const key of keysOf(element.cls)) {
            const value = element.child(key)?.value;
            if (value && !/[\][=]/.test(value)) {
                return list.children.filter((other) => other.child(key)?.value === value).length === 1 ? `[${key}=${value}]` : element.name;
            }
        }
    }
    return element.name;
}

/** The path of a node by which it is found in other messages, too. */
export function pathToChart(node) {
    if (!node.parent) {
        return "";
    }
    const before = pathToChart(node.parent);
    return node.isElement ? before + identity(node) : before ? `${before}.${node.name}` : node.name;
}

/** The nodes that the steps of a pattern lead to. */
function* nodesAt(node, steps, at = 0) {
    if (at === steps.length) {
        yield node;
        return;
    }
    const step = steps[at];
    const key = /^\[(\w+)=(.*)\]$/.exec(step);
    if (key) {
        for (const child of node.children ?? []) {
            if (child.isElement && child.child(key[1])?.value === key[2]) {
                yield* nodesAt(child, steps, at + 1);
            }
        }
    } else if (step.includes("*")) {
        const pattern = new RegExp(`^${step.split("*").map(escaped).join(".*")}$`);
        for (const child of node.children ?? []) {
            if (pattern.test(child.name)) {
                yield* nodesAt(child, steps, at + 1);
            }
        }
    } else if (node.child(step)) {
        yield* nodesAt(node.child(step), steps, at + 1);
    }
}

function nameOf(node) {
    for (let around = node.parent; around; around = around.parent) {
        if (around.isElement && around.child("m_strName")?.value) {
            return around.child("m_strName").value;
        }
    }
    return "";
}

/** Collects the fields that a path leads to from the entries of the same command and direction, a series for each field and ECU. */
export async function seriesOf(file, like, indices, path, progress) {
    const breather = new Breather();
    const steps = stepsOf(path);
    const series = new Map();
    let notNumbers = 0, left = 0;
    let hasTimes = true;
    for (let i = 0; i < indices.length && steps.length; ++i) {
        const entry = file.entries[indices[i]];
        if (entry.kind !== "message" || entry.command !== like.command || entry.family !== like.family || entry.direction !== like.direction) {
            continue;
        }
        let time;
        for (const node of nodesAt(treeOf(file, entry), steps)) {
            if (node.value === null || node.isEmpty) {
                continue;
            }
            const value = numberOf(node.value.trim());
            if (!Number.isFinite(value)) {
                ++notNumbers;
                continue;
            }
            if (time === undefined) {
                time = timeNumber(file.timeOf(entry));
                hasTimes &&= !Number.isNaN(time);
            }
            const found = pathToChart(node);
            const key = `${found}\n${entry.ecu}`;
            let one = series.get(key);
            if (!one) {
                if (series.size === kMostSeries) {
                    ++left;
                    continue;
                }
                one = { path: found, ecu: entry.ecu, name: nameOf(node), points: [] };
                series.set(key, one);
            }
            one.points.push({ entry: entry.index, time, value, text: node.value, path: node.path });
        }
        if (breather.isDue()) {
            progress(i / indices.length);
            await breather.pause();
        }
    }
    const all = [...series.values()];
    if (all.some(({ ecu }) => ecu !== all[0].ecu)) {
        for (const one of all) {
            one.name = `${one.name} ECU ${one.ecu ?? "unknown"}`.trim();
        }
    }
    return { series: all, notNumbers, left, hasTimes };
}

/** At most so many points that look the same: of each stretch the lowest and the highest. */
export function thin(points, most) {
    if (points.length <= most) {
        return points;
    }
    const size = Math.ceil(points.length / (most / 2));
    const kept = [];
    for (let from = 0; from < points.length; from += size) {
        let low = from, high = from;
        for (let i = from; i < Math.min(from + size, points.length); ++i) {
            low = points[i].value < points[low].value ? i : low;
            high = points[i].value > points[high].value ? i : high;
        }
        kept.push(points[Math.min(low, high)], ...(low === high ? [] : [points[Math.max(low, high)]]));
    }
    return kept;
}
