// One line of the operation log: `[Class::Operation] path=value`, behind whatever the sink wrote in front.

import { decode } from "./bytes.js";

const kOpen = 0x5b; // [
const kClose = 0x5d; // ]
const kEqual = 0x3d; // =
const kColon = 0x3a; // :
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
        this.prefixStart = start;
        // Mostly the prefix is as long as that of the line before.
        let at = start + (this.lastPrefix ?? 0);
        if (!(at + 8 < end && isHeadAt(bytes, at))) {
            const last = Math.min(end - 8, start + kLongestPrefix);
            at = start;
            while (at < last && !isHeadAt(bytes, at)) {
                ++at;
            }
            if (at >= last) {
                return false;
            }
        }
        this.lastPrefix = at - start;
        this.classStart = at + 1;
        this.head = at;
        while (this.head > start && bytes[this.head - 1] === kOpen) {
            --this.head;
        }
        this.brackets = at - this.head + 1;
        let colon = this.classStart;
        while (colon < end && bytes[colon] !== kColon && bytes[colon] !== kClose && bytes[colon] !== kEqual) {
            ++colon;
        }
        if (bytes[colon] !== kColon || bytes[colon + 1] !== kColon) {
            return false;
        }
        this.classEnd = colon;
        let close = colon + 2;
        while (close < end && bytes[close] !== kClose && bytes[close] !== kEqual) {
            ++close;
        }
        if (close >= end || bytes[close] !== kClose) {
            return false;
        }
        this.pathStart = close + 1;
        let equal = this.pathStart;
        while (equal < end && bytes[equal] !== kEqual) {
            ++equal;
        }
        this.equal = equal;
        return equal < end && equal > this.pathStart;
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
