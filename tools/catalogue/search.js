// Finds commands, classes, fields and the field behind a line of a log. Bundled with the catalogue and with what the page for
// logs knows about their lines.
import catalogue from "../../viewer/catalogue.json" with { type: "json" };
import { decode } from "../../viewer/src/engine/bytes.js";
import { fieldAt, fieldsByLogPath, findClass, findCommand, findMessage, typeOfFamily } from "../../viewer/src/engine/catalogue.js";
import { LogLine, headingIn } from "../../viewer/src/engine/log_line.js";

const { commands, classes } = catalogue;

const pageOf = (command) => `${command.name}${command.family}.html`;
const withoutIndices = (path) => path.replace(/\[\d*\]/g, "");

/** The place of a class, or of a field in it. */
function urlOf(className, path) {
    const message = findMessage(className);
    const field = path ? withoutIndices(path) : "";
    if (message) {
        return `${pageOf(message.command)}#${message.direction}${field && `.${field}`}`;
    }
    return `${className.replace("::", ".")}.html${field && `#${field}`}`;
}

const commandResult = (command) => ({
    title: `${command.name} (${command.family} ${command.id})`, detail: classes[command.receive].comment, url: pageOf(command),
});
const classResult = (name) => ({ title: name, detail: classes[name].comment, url: urlOf(name) });
const fieldResult = (name, path, logged) => ({
    title: withoutIndices(path), detail: `${logged && logged !== path ? `${logged} in the log of ` : ""}${name}: ${fieldAt(name, path).field.meaning}`,
    url: urlOf(name, path),
});

/** What a line of a log is about; null where the text is none. */
function fromLine(text) {
    const heading = headingIn(text);
    if (heading) {
        const command = findCommand(heading.type, heading.id);
        if (!command) {
            return [];
        }
        const name = heading.direction && command[heading.direction === "request" ? "send" : "receive"];
        return [name ? classResult(name) : commandResult(command)];
    }
    const bytes = new TextEncoder().encode(text);
    const line = new LogLine();
    if (!line.find(bytes, 0, bytes.length)) {
        return null;
    }
    const name = decode(bytes.subarray(line.classStart, line.classEnd));
    const logged = line.path(bytes);
    const [, family] = /^CKRMCBase(\w+?)AdaptData$/.exec(name) ?? [];
    if (family) {
        const value = Number(text.slice(text.lastIndexOf("=") + 1));
        if (logged === "m_dwCommandType") {
            return typeOfFamily(family) ? [{ title: `m_dwCommandType of ${family}`, detail: `the family ${family}`, url: `index.html#${family}` }] : [];
        }
        const command = logged === "m_dwCommandID" && findCommand(typeOfFamily(family), value);
        return command ? [{ ...commandResult(command), url: `${pageOf(command)}#m_dwCommandID` }] : [];
    }
    if (!findClass(name)) {
        return [];
    }
    const paths = fieldsByLogPath(name).get(logged.replace(/\[\d+\]/g, "[]")) ?? [];
    return paths.map((path) => fieldResult(name, path, logged.replace(/^\./, "")));
}

/** The fields with such a path in a message, or such an end of one. */
function fromPath(text) {
    const wanted = text.replace(/=.*$/s, "").replace(/\[\d*\]/g, "[]");
    const plain = withoutIndices(wanted);
    const found = [];
    for (const { send, receive } of commands) {
        for (const name of [send, receive]) {
            for (const [logged, paths] of fieldsByLogPath(name)) {
                const isIt = (path) => path === plain || path.endsWith(`.${plain}`);
                if (isIt(withoutIndices(logged))) {
                    found.push(...paths.map((path) => fieldResult(name, path, logged)));
                }
            }
        }
    }
    return found;
}

/** How well a name fits: 0 it is the text, 1 it begins with it, 2 it has it; nothing where it hasn't. */
function fit(name, text) {
    const at = name.toLowerCase().indexOf(text);
    return at < 0 ? undefined : name.length === text.length ? 0 : at === 0 ? 1 : 2;
}

/** What has all of these words, each in the name of a field, its meaning, or the names and comment of its class and command,
    with how far from the field's name they are. A field must have one of them itself: else it is its class that is meant. */
function fromWords(words) {
    const found = [];
    // The words of a text and the parts of its names: a word that is asked for begins one of them.
    const partsOf = (text) => text.replace(/([a-z0-9])([A-Z])/g, "$1 $2").replace(/([A-Z]+)([A-Z][a-z])/g, "$1 $2").toLowerCase().split(/[^\p{L}\p{N}]+/u);
    const isIn = (text) => {
        const parts = [...partsOf(text), ...text.toLowerCase().split(/\s+/)];
        return (word) => parts.some((part) => part.startsWith(word));
    };
    const hasAll = (text) => words.every(isIn(text));
    for (const command of commands) {
        if (hasAll([command.name, classes[command.send].comment, classes[command.receive].comment].join(" "))) {
            found.push({ rank: hasAll(command.name) ? 0 : 2, ...commandResult(command) });
        }
    }
    for (const [name, { comment, fields }] of Object.entries(classes)) {
        const isInAround = isIn([name, comment, findMessage(name)?.command.name].join(" "));
        if (hasAll(`${name} ${comment}`)) {
            found.push({ rank: hasAll(name) ? 0.5 : 2.5, ...classResult(name) });
        }
        for (const field of fields) {
            const tests = [isIn(field.name), isIn(field.meaning), isInAround];
            const ranks = words.map((word) => tests.findIndex((isInIt) => isInIt(word)));
            if (!ranks.includes(-1) && ranks.some((rank) => rank < 2)) {
                // Of several with all of them the shortest name says the least beside.
                const rank = ranks.reduce((sum, each) => sum + each) / words.length + field.name.length / 1000;
                found.push({ rank, ...fieldResult(name, field.name) });
            }
        }
    }
    return found.length > 0 ? found : fromWordsWithin(words, isIn);
}

/** The fields of records within messages that have all words in their path, meaning, class or command, one of them in the name. */
function fromWordsWithin(words, isIn) {
    const found = [];
    for (const { name: command, send, receive } of commands) {
        for (const name of [send, receive]) {
            for (const path of new Set([...fieldsByLogPath(name).values()].flat())) {
                const { field } = fieldAt(name, path);
                if (words.every(isIn([path, field.meaning, name, command].join(" "))) && words.some(isIn(`${field.name} ${field.meaning}`))) {
                    found.push({ rank: path.length / 1000, ...fieldResult(name, path) });
                }
            }
        }
    }
    return found;
}

/** Everything that the text may mean, the best first. */
function search(query) {
    const text = query.trim();
    const lines = fromLine(text);
    if (lines) {
        return lines;
    }
    const [, typed, id] = /^(?:type\s*)?(?:(\d+)\s*(?:\/|,?\s*id\s*)\s*)?(?:id\s*)?(\d+)$/i.exec(text) ?? [];
    if (id !== undefined) {
        return commands.filter((command) => command.id === Number(id) && (typed === undefined || command.type === Number(typed))).map(commandResult);
    }
    const found = [];
    const add = (rank, result) => rank !== undefined && found.push({ rank, ...result });
    const wanted = text.toLowerCase();
    const [, owner, member] = /^(\w+)::(.+)$/.exec(wanted) ?? [];
    for (const command of commands) {
        add(fit(command.name, wanted), commandResult(command));
        add(fit(`${command.family} ${command.id}`, wanted) === 0 ? 0 : undefined, commandResult(command));
    }
    for (const [name, { comment, fields }] of Object.entries(classes)) {
        add(fit(name, wanted) ?? (comment.toLowerCase().includes(wanted) ? 8 : undefined), classResult(name));
        for (const field of fields) {
            const isOwned = owner && fit(name, owner) === 0 && fit(field.name, withoutIndices(member)) === 0;
            const rank = isOwned ? 0 : fit(field.name, wanted) ?? (field.meaning.toLowerCase().includes(wanted) ? 6 : undefined);
            add(rank === undefined ? undefined : rank + 0.5, fieldResult(name, field.name));
        }
    }
    if (!found.some(({ rank }) => rank < 1) && /[.[=]/.test(text)) {
        found.unshift(...fromPath(text).map((result) => ({ rank: 0, ...result })));
    }
    const words = wanted.split(/\s+/);
    if (words.length > 1) {
        // Behind what has the text as it is.
        const urls = new Set(found.map(({ url }) => url));
        found.push(...fromWords(words).filter(({ url }) => !urls.has(url)).map((result) => ({ ...result, rank: result.rank + 10 })));
    }
    return found.sort((a, b) => a.rank - b.rank);
}

window.krmCatalogue = { search };
