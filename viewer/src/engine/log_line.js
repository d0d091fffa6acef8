// One line of the operation log: `[Class::Operation] path=value`, behind whatever the sink wrote in front.

import { decode } from "./bytes.js";

const kOpen = 0x5b; // [
const kClose = 0x5d; // ]
const kEqual = 0x3d; // =
const kColon = 0x3a; // :
const kBlank = 0x20;
const kPoint = 0x2e;
const kHead = [0x5b, 0x43, 0x4b, 0x52, 0x4d, 0x43]; // [CKRMC
/** A prefix longer than this is no prefix of a log. */
const kLongestPrefix = 512;

function isHeadAt(bytes, at) {
    for (let i = 0; i < kHead.length; ++i) {
        if (bytes[at + i] !== kHead[i]) {
            return false;
        }
    }
    return true;
}

/** Where a name ends that begins at a place. */
function endOfName(bytes, at) {
    let byte = bytes[at];
    while ((byte >= 0x30 && byte <= 0x39) || (byte >= 0x41 && byte <= 0x5a) || (byte >= 0x61 && byte <= 0x7a) || byte === 0x5f) {
        byte = bytes[++at];
    }
    return at;
}

/** Where the parts of one line are. It is used again for the next line: copy what is to be kept. */
export class LogLine {
    prefixStart = 0;
    head = 0; // the first of the brackets in front of the class
    classStart = 0;
    classEnd = 0;
    pathStart = 0; // behind the bracket of the class
    equal = 0;
    brackets = 0;

    /** Finds the parts of the line between two places; false where it is no line of the log. */
    find(bytes, start, end) {
        // A text that the sink wrote in front may look like the begin of a class, and the class itself come behind it.
        for (let at = start, last = Math.min(end - 8, start + kLongestPrefix); at < last; ++at) {
            if (isHeadAt(bytes, at) && this.#findBehind(bytes, start, end, at)) {
                return true;
            }
        }
        return false;
    }

    /** Finds the parts of the line whose class begins in the bracket at a place. */
    #findBehind(bytes, start, end, at) {
        this.prefixStart = start;
        this.classStart = at + 1;
        this.classEnd = endOfName(bytes, this.classStart);
        const operation = this.classEnd + 2;
        const close = endOfName(bytes, operation);
        if (bytes[this.classEnd] !== kColon || bytes[this.classEnd + 1] !== kColon || close === operation ||
            bytes[close] !== kClose || (bytes[close + 1] !== kBlank && bytes[close + 1] !== kPoint)) {
            return false;
        }
        this.pathStart = close + 1;
        let equal = this.pathStart;
        while (equal < end && bytes[equal] !== kEqual) {
            ++equal;
        }
        this.equal = equal;
        if (equal >= end || equal === this.pathStart + 1) {
            return false;
        }
        // A record's prefix in brackets ends within the path, before a blank or a point; no other blank is in a path.
        this.head = at;
        for (let i = this.pathStart + 1, depth = 0; i < equal; ++i) {
            depth += bytes[i] === kOpen ? 1 : bytes[i] === kClose ? -1 : 0;
            if (bytes[i] === kClose && depth < 0 && this.head > start && bytes[this.head - 1] === kOpen && i + 2 < equal &&
                (bytes[i + 1] === kBlank || bytes[i + 1] === kPoint)) {
                depth = 0;
                this.head -= 1;
                i += 1;
            } else if (bytes[i] === kBlank) {
                return false;
            }
        }
        this.brackets = at - this.head + 1;
        return true;
    }

    /**
     * The path: that of the field in the message, without brackets of its prefix. It begins with a point where the log has
     * one behind the class.
     */
    path(bytes) {
        let text = decode(bytes.subarray(this.pathStart, this.equal));
        if (text.charCodeAt(0) === 32) {
            text = text.slice(1);
        }
        // `[[CLASS::OPERATION] Data[0]] m_uchSSRNo[1]` has the record's prefix in brackets.
        for (let i = 1; i < this.brackets; ++i) {
            let depth = 0, at = 0;
            for (; at < text.length; ++at) {
                if (text[at] === "[") {
                    ++depth;
                } else if (text[at] === "]" && depth-- === 0) {
                    break;
                }
            }
            const rest = text.slice(at + 1).replace(/^[ .]/, "");
            text = at ? `${text.slice(0, at)}.${rest}` : rest;
        }
        return text;
    }
}

const kHeading = /^== (\S+)( request| answer)? \(type (\d+), ID (\d+)\)$/;
/** What a heading in front of a message says, or null. */
export function headingIn(text) {
    const at = text.indexOf("== ");
    const found = at < 0 || at > kLongestPrefix ? null : kHeading.exec(text.slice(at));
    return found && { direction: found[2]?.trim() ?? null, type: Number(found[3]), id: Number(found[4]) };
}

/** What a sink wrote in front: words with digits and a sign of dates and times are the time, the rest says who wrote it. */
export function partsOfPrefix(text) {
    const time = [], source = [];
    for (const word of text.split(/[ \t]+/)) {
        if (/\d[-:.,/]\d/.test(word)) {
            time.push(word);
        } else if (word) {
            source.push(word);
        }
    }
    return { time: time.join(" ").replace(/^[[(]+|[\])]+$/g, ""), source: source.join(" ") };
}
