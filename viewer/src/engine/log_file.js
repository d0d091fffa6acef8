// An operation log as messages. A message begins where a dump writes its command type; lines of several threads are told
// apart by what stands in front of them.

import { Breather, Lines, Numbers, decode } from "./bytes.js";
import { classOf, fieldsByLogPath, findCommand, findMessage, typeOfFamily } from "./catalogue.js";
import { LogLine, headingIn, partsOfPrefix } from "./log_line.js";

const kMessageClass = /^CKRMC(.+?)(Cmd|Vdc|Dsdi|Ucc|Dwt)Ada?ptData(Snd|Rcv)?$/;

/** What the class's name in a line says. */
function roleOf(name) {
    const [, command, family, ending] = kMessageClass.exec(name) ?? [];
    return {
        name,
        isFamily: command === "Base" && !ending,
        isBase: command === "Base",
        command,
        family,
        type: typeOfFamily(family),
        id: findMessage(name)?.command.id ?? null,
        direction: ending === "Snd" ? "request" : ending === "Rcv" ? "answer" : null,
    };
}

/** A number of 32 bits as the log has it, signed or not. */
function numberIn(bytes, start, end) {
    const text = decode(bytes.subarray(start, end));
    const value = /^-?[0-9]+$/.test(text) ? Number(text) : NaN;
    return value >= -(2 ** 31) && value < 2 ** 32 ? value >>> 0 : null;
}

function startsWith(bytes, at, text) {
    for (let i = 0; i < text.length; ++i) {
        if (bytes[at + i] !== text[i]) {
            return false;
        }
    }
    return true;
}
const ascii = (text) => new TextEncoder().encode(text);
const kType = ascii(" m_dwCommandType=");
const kId = ascii(" m_dwCommandID=");
const kEcu = ascii(" m_ulEcuId=");

export class LogFile {
    kind = "log";
    entries = [];
    others = 0; // lines that are no log lines

    constructor(name, bytes) {
        this.name = name;
        this.lines = new Lines(bytes);
        this.entryOf = new Numbers(Int32Array);
    }

    /** Finds lines and messages; tells how much of the bytes is done. */
    async index(progress) {
        const { bytes } = this.lines;
        const breather = new Breather();
        const line = new LogLine();
        const roles = new Map(); // by a sum of the name's bytes, verified
        const openBySource = new Map();
        const requests = new Map();
        let open = null; // the message that the last line belongs to
        let lastHeading = -1, heading = null;
        let prefixFrom = 0, prefixLength = -1, source = "";
        let start = bytes[0] === 0xef && bytes[1] === 0xbb && bytes[2] === 0xbf ? 3 : 0;

        const roleAt = (from, to) => {
            let sum = to - from;
            for (let i = from; i < to; ++i) {
                sum = (Math.imul(sum, 31) + bytes[i]) | 0;
            }
            const found = roles.get(sum);
            if (found && startsWith(bytes, from, found.bytes) && found.bytes.length === to - from) {
                return found;
            }
            const name = bytes.slice(from, to);
            const role = Object.assign(roleOf(decode(name)), { bytes: name });
            roles.set(sum, role);
            return role;
        };
        const begin = (number, isCut) => {
            open = { kind: "message", first: number, last: number, count: 0, source, type: null, id: null, cls: null,
                direction: null, command: null, family: null, ecu: null, request: -1, isCut };
            if (lastHeading === number - 1 && heading) {
                open.first = lastHeading;
                open.direction = heading.direction;
                this.entryOf.values[lastHeading] = this.entries.length;
                this.others -= 1;
                const before = this.entries.at(-1);
                if (before?.kind === "other" && before.last === lastHeading) {
                    before.last -= 1;
                    before.count -= 1;
                    if (before.count === 0) {
                        this.entries.pop();
                        this.entryOf.values[lastHeading] = this.entries.length;
                    }
                }
                heading = null;
            }
            open.index = this.entries.length;
            this.entries.push(open);
            openBySource.set(source, open);
        };
        const learn = (role, end) => {
            open.family ??= role.family ?? null;
            open.type ??= role.type ?? null;
            open.direction ??= role.direction;
            if (!role.isBase) {
                open.cls = role.name;
                open.command ??= role.command ?? null;
            }
            const at = line.pathStart;
            if (role.isFamily && startsWith(bytes, at, kId)) {
                open.id = numberIn(bytes, line.equal + 1, end);
            } else if (role.isBase && role.direction && startsWith(bytes, at, kEcu)) {
                open.ecu = numberIn(bytes, line.equal + 1, end);
            }
            if (open.request < 0 && open.id !== null && (role.isBase ? role.direction : true)) {
                const key = `${open.source}\n${open.type}/${open.id}`;
                if (open.direction === "request") {
                    requests.set(key, open);
                } else if (open.direction === "answer" && requests.has(key)) {
                    const request = requests.get(key);
                    open.request = request.index;
                    open.ecu ??= request.ecu;
                    requests.delete(key);
                }
            }
        };

        while (start < bytes.length) {
            let end = bytes.indexOf(10, start);
            if (end < 0) {
                end = bytes.length;
            }
            const number = this.lines.count;
            this.lines.starts.push(start);
            if (line.find(bytes, start, end)) {
                const length = line.head - start;
                if (length !== prefixLength || !startsWith(bytes, start, bytes.subarray(prefixFrom, prefixFrom + length))) {
                    source = length ? partsOfPrefix(decode(bytes.subarray(start, line.head))).source : "";
                    prefixFrom = start;
                    prefixLength = length;
                }
                const role = roleAt(line.classStart, line.classEnd);
                if (role.isFamily && startsWith(bytes, line.pathStart, kType)) {
                    begin(number, false);
                } else {
                    // A source that began no message says nothing: a running number may stand in front of the lines.
                    open = openBySource.get(source) ?? open;
                    const isOther = open && ((role.family ?? open.family) !== (open.family ?? role.family) ||
                        (!role.isBase && (open.cls ? open.cls !== role.name : open.id !== null && (role.id ?? open.id) !== open.id)) ||
                        (role.direction && open.direction && role.direction !== open.direction));
                    if (!open || isOther) {
                        begin(number, true);
                    }
                }
                learn(role, bytes[end - 1] === 13 ? end - 1 : end);
                open.last = number;
                open.count += 1;
                this.entryOf.push(open.index);
            } else {
                heading = end - start < 1024 ? headingIn(decode(bytes.subarray(start, end)).replace(/\r$/, "")) : null;
                lastHeading = number;
                let other = this.entries.at(-1);
                if (other?.kind !== "other" || other.last !== number - 1) {
                    other = { kind: "other", first: number, last: number, count: 0, index: this.entries.length, source: "" };
                    this.entries.push(other);
                }
                other.last = number;
                other.count += 1;
                this.others += 1;
                this.entryOf.push(other.index);
            }
            start = end + 1;
            if ((number & 1023) === 0 && breather.isDue()) {
                progress(start / bytes.length);
                await breather.pause();
            }
        }
        for (const entry of this.entries) {
            if (entry.kind === "message") {
                entry.command ??= findCommand(entry.type, entry.id)?.name ?? null;
                entry.cls ??= classOf(entry.type, entry.id, entry.direction);
                if (entry.id === null && entry.cls) {
                    entry.id = findMessage(entry.cls)?.command.id ?? null;
                }
            }
        }
        this.messages = this.entries.reduce((count, entry) => count + (entry.kind === "message"), 0);
    }

    /** What stands in front of the entry's first line. */
    timeOf(entry) {
        const line = new LogLine();
        const start = this.lines.start(entry.first), end = this.lines.end(entry.first);
        const isLog = line.find(this.lines.bytes, start, end);
        const text = decode(this.lines.bytes.subarray(start, isLog ? line.head : Math.min(end, start + 128)));
        const heading = isLog ? -1 : text.indexOf("== ");
        return isLog || heading >= 0 ? partsOfPrefix(isLog ? text : text.slice(0, heading)).time : "";
    }

    /** Calls visit(line number, LogLine) for each log line of the message. */
    forEachLine(entry, visit) {
        const line = new LogLine();
        for (let number = entry.first; number <= entry.last; ++number) {
            if (this.entryOf.values[number] === entry.index &&
                line.find(this.lines.bytes, this.lines.start(number), this.lines.end(number))) {
                visit(number, line);
            }
        }
    }

    /** The message's fields in order: path, the log's own path where it is another, value and line. */
    fields(entry) {
        const found = [];
        const { bytes } = this.lines;
        this.forEachLine(entry, (number, line) => {
            const end = this.lines.end(number);
            const value = decode(bytes.subarray(line.equal + 1, end));
            found.push({ logged: line.path(bytes), value, line: number });
        });
        nameFields(found, entry.cls);
        return found;
    }
}

/** Gives each field the path that it has in its class. */
function nameFields(found, className) {
    const paths = className ? fieldsByLogPath(className) : new Map();
    let candidates = (field) => paths.get(field.template);
    for (const field of found) {
        field.template = field.logged.replace(/\[\d+\]/g, "[]");
    }
    if (paths.isAmbiguous) {
        candidates = distinguish(found, paths);
    }
    for (const field of found) {
        const path = candidates(field)?.[0];
        if (path === undefined) {
            field.path = field.logged.replace(/^\./, "");
        } else if (path === field.template) {
            field.path = field.logged;
        } else {
            const indices = field.logged.match(/\[\d+\]/g) ?? [];
            let i = 0;
            field.path = path.replace(/\[\]/g, () => indices[i++] ?? "[0]");
        }
        delete field.template;
    }
}

/**
 * Several lists under one name follow each other, each counted from 0. Each element goes to the first list, from that of the
 * element before on, whose elements have all its lines; a count that goes back begins a new list.
 */
function distinguish(found, paths) {
    const choice = new Map();
    const rootOf = (path) => path.split(".")[0];
    const last = new Map(); // by the name: the list of the element before, and its index
    for (let i = 0; i < found.length;) {
        const [head, index] = /^[^.[]*\[(\d+)\]/.exec(found[i].logged) ?? [];
        let j = i + 1;
        if (head === undefined) {
            i = j;
            continue;
        }
        while (j < found.length && found[j].logged.startsWith(head) && found[j].logged !== found[i].logged) {
            ++j;
        }
        const name = head.slice(0, head.indexOf("["));
        const all = [];
        for (const [logged, fields] of paths) {
            if (logged.startsWith(`${name}[]`)) {
                all.push(...fields.map(rootOf).filter((root) => !all.includes(root)));
            }
        }
        const before = last.get(name) ?? { at: 0, index: -1 };
        const from = Number(index) > before.index ? before.at : before.at + 1;
        let at = all.findIndex((root, place) => place >= from &&
            found.slice(i, j).every((field) => paths.get(field.template)?.some((path) => rootOf(path) === root)));
        at = at < 0 ? Math.min(from, all.length - 1) : at;
        last.set(name, { at, index: Number(index) });
        for (; i < j; ++i) {
            choice.set(found[i], paths.get(found[i].template)?.filter((path) => rootOf(path) === all[at]));
        }
    }
    return (field) => (choice.get(field)?.length ? choice.get(field) : paths.get(field.template));
}
