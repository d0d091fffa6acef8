// Text in files: bytes, mostly UTF-8, sometimes of a Windows code page, sometimes neither.

const utf8 = new TextDecoder("utf-8", { fatal: true, ignoreBOM: true });
const latin1 = new TextDecoder("windows-1252");

/** The text of bytes: UTF-8 if they are, else of the Western Windows code page, which holds Latin-1. */
export function decode(bytes) {
    try {
        return utf8.decode(bytes);
    } catch {
        return latin1.decode(bytes);
    }
}

/** An array of numbers that grows: a typed array that is replaced by one twice as long. */
export class Numbers {
    constructor(Type) {
        this.values = new Type(1024);
        this.length = 0;
    }
    push(value) {
        if (this.length === this.values.length) {
            const longer = new this.values.constructor(this.length * 2);
            longer.set(this.values);
            this.values = longer;
        }
        this.values[this.length++] = value;
    }
}

/** Lets others run, when this has run for a while: the page on its own thread, messages of the page in a worker. */
export class Breather {
    constructor(milliseconds = 40) {
        this.milliseconds = milliseconds;
        this.last = performance.now();
    }
    isDue() {
        return performance.now() - this.last > this.milliseconds;
    }
    async pause() {
        await new Promise((resolve) => {
            const channel = new MessageChannel();
            channel.port1.onmessage = () => {
                channel.port1.close();
                resolve();
            };
            channel.port2.postMessage(null);
        });
        this.last = performance.now();
    }
}

/** The lines of a file, without a string for any of them. */
export class Lines {
    /** @param bytes all of the file */
    constructor(bytes) {
        this.bytes = bytes;
        this.starts = new Numbers(Uint32Array);
    }
    get count() {
        return this.starts.length;
    }
    start(line) {
        return this.starts.values[line];
    }
    /** Behind the line's last byte, its line end not counted. */
    end(line) {
        let end = line + 1 < this.starts.length ? this.starts.values[line + 1] - 1 : this.bytes.length;
        if (line + 1 === this.starts.length && end > this.start(line) && this.bytes[end - 1] === 10) {
            --end;
        }
        if (end > this.start(line) && this.bytes[end - 1] === 13) {
            --end;
        }
        return end;
    }
    /** Behind at most so many bytes from a place in the line on, and not within a character of UTF-8. */
    partEnd(line, from, most) {
        if (this.end(line) - from <= most) {
            return this.end(line);
        }
        const isWithin = (at) => (this.bytes[at] & 0xc0) === 0x80;
        let end = from + most;
        // A character has three bytes behind its first at the most; what has more is no UTF-8.
        while (from + most - end < 3 && isWithin(end)) {
            --end;
        }
        return isWithin(end) ? from + most : end;
    }
    text(line, most = Infinity) {
        const start = this.start(line);
        return decode(this.bytes.subarray(start, this.partEnd(line, start, most)));
    }
}
