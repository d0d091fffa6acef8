// Finds a text in lines of bytes, upper and lower case alike, without making a string of every line.

import { decode } from "./bytes.js";

const lower = (byte) => (byte >= 65 && byte <= 90 ? byte + 32 : byte);

/** Something that tells whether a text is in bytes or in a string. */
export class Finder {
    constructor(text) {
        this.text = text.toLowerCase();
        this.bytes = /^[\x00-\x7f]*$/.test(text) ? Uint8Array.from(this.text, (letter) => letter.charCodeAt(0)) : null;
    }
    isInText(text) {
        return text.toLowerCase().includes(this.text);
    }
    isInBytes(bytes, start, end) {
        const needle = this.bytes;
        if (!needle) {
            return this.isInText(decode(bytes.subarray(start, end)));
        }
        const first = needle[0], last = end - needle.length;
        for (let at = start; at <= last; ++at) {
            if (lower(bytes[at]) !== first) {
                continue;
            }
            let i = 1;
            while (i < needle.length && lower(bytes[at + i]) === needle[i]) {
                ++i;
            }
            if (i === needle.length) {
                return true;
            }
        }
        return needle.length === 0;
    }
    /** Whether a log line's path and value, `path=value`, have the text. */
    isInLine(bytes, line, end) {
        if (line.brackets > 1) {
            return this.isInText(`${line.path(bytes)}=${decode(bytes.subarray(line.equal + 1, end))}`);
        }
        return this.isInBytes(bytes, line.pathStart, end);
    }
}
