// The filter language; docs/viewer.md has it.

import { decode } from "./bytes.js";
import { Finder } from "./text_search.js";

const kKeys = ["command", "family", "id", "direction", "ecu", "exchange", "thread"];

/** What is wrong with a filter, and where. */
export class FilterError extends Error {
    constructor(message, offset) {
        super(message);
        this.offset = offset;
    }
}

/** The text as a regular expression of nothing but it. */
export const escaped = (text) => text.replace(/[.+?^${}()|[\]\\]/g, "\\$&");
const pattern = (text, any) => new RegExp(`^${text.split("*").map(escaped).join(any)}$`, "isu");

/** The number that a field's value or a condition's is; NaN where it is none. */
export function numberOf(text) {
    if (/^[-+]?(?:\d+\.?\d*|\.\d+)(?:e[-+]?\d+)?$/i.test(text)) {
        return Number(text);
    }
    if (/^0x[0-9a-f]+$/i.test(text)) {
        return Number(text);
    }
    const both = /^(-?\d+)\(\d+\)$/.exec(text); // signed, and unsigned in brackets
    return both ? Number(both[1]) : text === "true" ? 1 : text === "false" ? 0 : NaN;
}

/** Takes words apart at blanks; a part in quotes is taken as it is. */
function words(text) {
    const found = [];
    let at = 0;
    while (at < text.length) {
        if (/\s/.test(text[at])) {
            ++at;
            continue;
        }
        const word = { offset: at, parts: [] }; // parts: text, and whether it was quoted
        let plain = "";
        while (at < text.length && !/\s/.test(text[at])) {
            if (text[at] !== '"') {
                plain += text[at++];
                continue;
            }
            word.parts.push({ text: plain, quoted: false });
            plain = "";
            const open = at++;
            let inside = "";
            while (at < text.length && text[at] !== '"') {
                if (text[at] === "\\" && at + 1 < text.length) {
                    ++at;
                }
                inside += text[at++];
            }
            if (at >= text.length) {
                throw new FilterError("the quote is not closed", open);
            }
            ++at;
            word.parts.push({ text: inside, quoted: true });
        }
        word.parts.push({ text: plain, quoted: false });
        word.parts = word.parts.filter((part) => part.quoted || part.text);
        found.push(word);
    }
    return found;
}

/** A value with `*` for any characters; what was quoted has none. */
class ValueTest {
    constructor(parts) {
        const isQuoted = parts.some((part) => part.quoted);
        this.text = parts.map((part) => part.text).join("");
        this.number = isQuoted ? NaN : numberOf(this.text);
        const source = parts.map((part) => (part.quoted ? escaped(part.text) : part.text.split("*").map(escaped).join("[^]*"))).join("");
        this.pattern = new RegExp(`^${source}$`, "iu");
    }
    isEqual(value) {
        return !Number.isNaN(this.number) && this.number === numberOf(value) ? true : this.pattern.test(value);
    }
}

class Condition {
    isFor(_entry) {
        return false;
    }
}

class EntryCondition extends Condition {
    constructor(key, parts, offset) {
        super();
        this.test = new ValueTest(parts);
        this.key = key;
        if (!this.test.text) {
            throw new FilterError(`nothing stands behind ${key}:`, offset);
        }
        if (key === "direction" && !/^(request|answer)$/i.test(this.test.text)) {
            throw new FilterError("a direction is request or answer", offset);
        }
    }
    isFor(entry) {
        if (entry.kind !== "message") {
            return false;
        }
        const { test } = this;
        switch (this.key) {
            case "id":
                return test.isEqual(String(entry.id)) || test.isEqual(`${entry.type}/${entry.id}`);
            case "ecu":
                return entry.ecu !== null && test.isEqual(String(entry.ecu));
            case "thread":
                return test.isEqual(entry.source);
            default:
                return entry[this.key] !== null && entry[this.key] !== undefined && test.isEqual(String(entry[this.key]));
        }
    }
}

class FieldCondition extends Condition {
    constructor(name, operation, parts, offset) {
        super();
        this.operation = operation;
        this.test = new ValueTest(parts);
        this.isAny = name.toLowerCase() === "value";
        this.isPath = /[.[]/.test(name);
        this.name = this.isPath ? pattern(name, "[^.]*") : pattern(name, "[^.[]*");
        this.bytes = !this.isAny && !this.isPath && !name.includes("*") && /^[\x21-\x7e]+$/.test(name) ? new TextEncoder().encode(name.toLowerCase()) : null;
        if (/[<>]/.test(operation) && Number.isNaN(this.test.number)) {
            throw new FilterError(`behind ${operation} stands a number`, offset);
        }
    }
    hasValue(value) {
        const { number } = this.test;
        switch (this.operation) {
            case "=":
                return this.test.isEqual(value);
            case "!=":
                return !this.test.isEqual(value);
            case ">":
                return numberOf(value) > number;
            case ">=":
                return numberOf(value) >= number;
            case "<":
                return numberOf(value) < number;
            default:
                return numberOf(value) <= number;
        }
    }
    hasName(path) {
        if (this.isAny) {
            return true;
        }
        if (this.isPath) {
            return this.name.test(path);
        }
        const name = path.replace(/(?:\[[^\]]*\])+$/, "");
        return this.name.test(name.slice(name.lastIndexOf(".") + 1));
    }
    isField(field) {
        return !field.empty && this.hasName(field.path) && this.hasValue(field.value);
    }
    isLine(bytes, line, end) {
        if (this.bytes) {
            let at = line.equal;
            if (bytes[at - 1] === 0x5d) {
                while (at > line.pathStart && bytes[at - 1] !== 0x5b) {
                    --at;
                }
                --at;
            }
            at -= this.bytes.length;
            const before = bytes[at - 1];
            if (at <= line.pathStart - 1 || !(before === 0x2e || before === 0x20 || at === line.pathStart)) {
                return false;
            }
            for (let i = 0; i < this.bytes.length; ++i) {
                const byte = bytes[at + i];
                if ((byte >= 65 && byte <= 90 ? byte + 32 : byte) !== this.bytes[i]) {
                    return false;
                }
            }
        } else if (!this.isAny && !this.hasName(line.path(bytes))) {
            return false;
        }
        if (this.isAny && !Number.isNaN(this.test.number) && this.operation !== "!=") {
            const first = bytes[line.equal + 1];
            if (!(first >= 0x30 && first <= 0x39) && first !== 0x2d && first !== 0x2e) {
                return false; // the log's numbers begin so
            }
        }
        return this.hasValue(decode(bytes.subarray(line.equal + 1, end)));
    }
}

class TextCondition extends Condition {
    constructor(text) {
        super();
        this.finder = new Finder(text);
    }
    isField(field) {
        return this.finder.isInText(`${field.path}=${field.value}`);
    }
    isLine(bytes, line, end) {
        return this.finder.isInLine(bytes, line, end);
    }
    isOther(bytes, start, end) {
        return this.finder.isInBytes(bytes, start, end);
    }
}

function conditionOf({ parts, offset }) {
    const [first] = parts;
    if (!first.quoted) {
        const key = /^([a-z]+):/i.exec(first.text);
        if (key) {
            const name = key[1].toLowerCase();
            if (!kKeys.includes(name)) {
                throw new FilterError(`there is no condition ${name}: but ${kKeys.map((known) => `${known}:`).join(" ")}`, offset);
            }
            return new EntryCondition(name, [{ text: first.text.slice(key[0].length), quoted: false }, ...parts.slice(1)], offset);
        }
        const comparison = /^([^=<>!]+)(!=|>=|<=|=|>|<)/.exec(first.text);
        if (comparison) {
            const rest = { text: first.text.slice(comparison[0].length), quoted: false };
            return new FieldCondition(comparison[1], comparison[2], [rest, ...parts.slice(1)], offset);
        }
    }
    return new TextCondition(parts.map((part) => part.text).join(""));
}

/** A filter that was understood. Throws FilterError. */
export class Filter {
    constructor(text) {
        this.conditions = words(text).map((word) => {
            const [first] = word.parts;
            const isNot = !first.quoted && first.text.startsWith("-") && (first.text.length > 1 || word.parts.length > 1);
            if (isNot) {
                first.text = first.text.slice(1);
                word.parts = word.parts.filter((part) => part.quoted || part.text);
                word.offset += 1;
            }
            return { isNot, condition: conditionOf(word) };
        });
        // What needs no line first.
        this.conditions.sort((one, other) => (other.condition instanceof EntryCondition) - (one.condition instanceof EntryCondition));
    }
    get isEmpty() {
        return this.conditions.length === 0;
    }

    /** Whether an entry of a file passes. */
    passes(file, entry) {
        const open = [];
        for (const { isNot, condition } of this.conditions) {
            if (condition instanceof EntryCondition) {
                if (condition.isFor(entry) === isNot) {
                    return false;
                }
            } else {
                open.push({ isNot, condition, isMet: false });
            }
        }
        if (open.length === 0) {
            return true;
        }
        const { bytes } = file.lines;
        if (entry.kind === "other") {
            for (const item of open) {
                for (let line = entry.first; line <= entry.last && !item.isMet && item.condition.isOther; ++line) {
                    item.isMet = item.condition.isOther(bytes, file.lines.start(line), file.lines.end(line));
                }
            }
        } else if (file.kind === "log") {
            file.forEachLine(entry, (number, line) => {
                for (const item of open) {
                    item.isMet ||= item.condition.isLine(bytes, line, file.lines.end(number));
                }
            });
        } else {
            for (const field of file.fields(entry)) {
                for (const item of open) {
                    item.isMet ||= item.condition.isField(field);
                }
            }
        }
        return open.every((item) => item.isMet !== item.isNot);
    }
}
