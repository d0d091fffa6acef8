// A recording: a JSON document in each line, the first one says what the file is.

import { Breather, Lines, Numbers } from "./bytes.js";
import { findMessage, typeOfFamily } from "./catalogue.js";

/** Whether a file that begins so is a recording. */
export const isRecording = (text) => /^\uFEFF?\s*\{[^\n]*"format"\s*:\s*"krm recording"/.test(text);

/** The longest line that is read. */
const kLongestLine = 256 * 1024 * 1024;

export class RecordingFile {
    kind = "recording";
    entries = [];
    others = 0;

    constructor(name, bytes) {
        this.name = name;
        this.lines = new Lines(bytes);
        this.entryOf = new Numbers(Int32Array);
    }

    async index(progress) {
        const { bytes } = this.lines;
        const breather = new Breather();
        const requests = new Map();
        let start = bytes[0] === 0xef && bytes[1] === 0xbb && bytes[2] === 0xbf ? 3 : 0;
        let hasHeader = false;
        while (start < bytes.length) {
            this.lines.starts.push(start);
            const end = bytes.indexOf(10, start);
            start = end < 0 ? bytes.length : end + 1;
        }
        for (let number = 0; number < this.lines.count; ++number) {
            const entry = this.read(number, hasHeader);
            if (entry === "header") {
                hasHeader = true;
            }
            if (typeof entry === "object") {
                entry.index = this.entries.length;
                if (entry.kind === "message" && entry.exchange !== null) {
                    const key = `${entry.exchange}/${entry.type}/${entry.id}`;
                    if (entry.direction === "request") {
                        requests.set(key, entry);
                    } else if (requests.has(key)) {
                        entry.request = requests.get(key).index;
                        entry.ecu ??= requests.get(key).ecu;
                    }
                }
                this.others += entry.kind === "other";
                this.entries.push(entry);
                this.entryOf.push(entry.index);
            } else {
                this.entryOf.push(-1);
            }
            if (breather.isDue()) {
                progress(this.lines.end(number) / bytes.length);
                await breather.pause();
            }
        }
        this.messages = this.entries.length - this.others;
    }

    /** The entry of a line; "header" or "empty" for what is none. */
    read(number, hasHeader) {
        const other = (why) => ({ kind: "other", first: number, last: number, count: 1, source: "", why });
        if (this.lines.end(number) - this.lines.start(number) > kLongestLine) {
            return other("longer than 256 MB");
        }
        const text = this.lines.text(number);
        if (!text.trim()) {
            return "empty";
        }
        let line;
        try {
            line = JSON.parse(text);
        } catch {
            return other(number + 1 === this.lines.count && this.lines.bytes.at(-1) !== 10 ? "cut off" : "not JSON");
        }
        if (!hasHeader && line?.format === "krm recording") {
            this.version = line.version;
            this.library = String(line.library ?? "");
            return "header";
        }
        const message = line?.message;
        if (typeof message?.command !== "string" || typeof message.content !== "object" || message.content === null ||
            !["request", "answer"].includes(message.direction)) {
            return other("not a message");
        }
        const family = String(message.family ?? "Cmd");
        const ending = message.direction === "request" ? "Snd" : "Rcv";
        let cls = `CKRMC${message.command}${family}AdaptData${ending}`;
        if (!findMessage(cls) && findMessage(cls.replace("AdaptData", "AdptData"))) {
            cls = cls.replace("AdaptData", "AdptData");
        }
        const ecu = message.content.m_ulEcuId;
        return {
            kind: "message", first: number, last: number, count: 1, source: "", type: Number(line.type ?? typeOfFamily(family)),
            id: Number(line.id ?? findMessage(cls)?.command.id), cls, direction: message.direction, command: message.command,
            family, ecu: message.direction === "request" && Number.isInteger(ecu) ? ecu : null, request: -1,
            // Up to 2^64 - 1, more than a number of JavaScript holds: the digits as they stand there.
            exchange: /"exchange"\s*:\s*(\d+)/.exec(text.slice(0, 200))?.[1] ?? (line.exchange === undefined ? null : String(line.exchange)),
            time: typeof line.time === "string" ? line.time : "", isCut: false,
        };
    }

    timeOf(entry) {
        return entry.time ?? "";
    }

    /** The message's fields in order, as those of a log. Lists and maps that are empty are no fields. */
    fields(entry) {
        const found = [];
        let content;
        try {
            content = JSON.parse(this.lines.text(entry.first)).message.content;
        } catch {
            return found;
        }
        const walk = (path, value) => {
            if (Array.isArray(value)) {
                if (value.length === 0) {
                    found.push({ path, value: "", line: entry.first, empty: true });
                }
                value.forEach((element, index) => {
                    if (Array.isArray(element) && element.length === 2 && typeof element[0] === "string") {
                        walk(`${path}[${JSON.stringify(element[0])}]`, element[1]); // of a map
                    } else {
                        walk(`${path}[${index}]`, element);
                    }
                });
            } else if (value !== null && typeof value === "object" && typeof value.$bytes !== "string") {
                for (const [name, inner] of Object.entries(value)) {
                    walk(path ? `${path}.${name}` : name, inner);
                }
            } else {
                const text = typeof value === "object" && value ? textOfBytes(value.$bytes) : String(value);
                found.push({ path, value: text, line: entry.first });
            }
        };
        walk("", content);
        return found;
    }
}

/** Bytes that are no UTF-8, given in hexadecimal, as the text that they mostly are: of the Western Windows code page. */
function textOfBytes(hexadecimal) {
    const bytes = Uint8Array.from(hexadecimal.match(/../g) ?? [], (digits) => parseInt(digits, 16));
    return new TextDecoder("windows-1252").decode(bytes);
}
