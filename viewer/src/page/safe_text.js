// Text out of files, shown as text whatever it holds: never as markup, and what can't be seen or would turn the text
// around it is shown by its code.

const kInvisible = /[\u0000-\u0008\u000a-\u001f\u007f-\u009f\u00ad\u061c\u200b\u200e\u200f\u2028-\u202e\u2060-\u2069\ufeff\ufff9-\ufffb]|[\u{e0000}-\u{e007f}]/u;
const kParts = new RegExp(`(${kInvisible.source})`, "u");

const codeOf = (character) => {
    const code = character.codePointAt(0);
    return code < 0x20 ? String.fromCodePoint(0x2400 + code) : code === 0x7f ? "␡" : `⟨U+${code.toString(16).toUpperCase().padStart(4, "0")}⟩`;
};

/** The text with codes in the place of what can't be seen: for attributes. */
export const plain = (text) => text.split(kParts).map((part, i) => (i % 2 ? codeOf(part) : part)).join("");

/** The same as nodes; where `needle` stands in it, upper and lower case alike, it is marked. */
export function shown(text, needle = "") {
    const fragment = document.createDocumentFragment();
    const addMarked = (part) => {
        const lower = needle && part.toLowerCase();
        // Some letters change their length in lower case; then the places would be wrong.
        for (let from = 0; from < part.length;) {
            const at = needle && lower.length === part.length ? lower.indexOf(needle, from) : -1;
            if (at < 0) {
                fragment.append(part.slice(from));
                return;
            }
            fragment.append(part.slice(from, at));
            const mark = document.createElement("mark");
            mark.textContent = part.slice(at, at + needle.length);
            fragment.append(mark);
            from = at + needle.length;
        }
    };
    text.split(kParts).forEach((part, i) => {
        if (i % 2) {
            const code = document.createElement("span");
            code.className = "code-point";
            code.textContent = codeOf(part);
            fragment.append(code);
        } else if (part) {
            addMarked(part);
        }
    });
    return fragment;
}

/** An element with attributes and children; a string among the children is text. */
export function element(name, attributes = {}, ...children) {
    const made = document.createElement(name);
    for (const [key, value] of Object.entries(attributes)) {
        if (key.startsWith("on")) {
            made.addEventListener(key.slice(2), value);
        } else if (typeof value === "boolean") {
            made.toggleAttribute(key, value);
        } else if (value !== null && value !== undefined) {
            made.setAttribute(key, value);
        }
    }
    made.append(...children.filter((child) => child !== null && child !== undefined && child !== false));
    return made;
}

/** A text out of a file, kept from turning its surroundings around. */
export const foreign = (text, attributes = {}, needle = "") => element("bdi", attributes, shown(text, needle));
