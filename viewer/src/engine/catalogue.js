// What the interface says about commands, classes and fields, and which log line belongs to which field.
import catalogue from "../../catalogue.json" with { type: "json" };

const { commands, classes } = catalogue;
const byClass = new Map();
const byTypeAndId = new Map();
for (const command of commands) {
    byClass.set(command.send, { command, direction: "request" });
    byClass.set(command.receive, { command, direction: "answer" });
    byTypeAndId.set(`${command.type}/${command.id}`, command);
}

const familyTypes = new Map(commands.map((command) => [command.family, command.type]));

/** The command with this type and ID, or undefined. */
export const findCommand = (type, id) => byTypeAndId.get(`${type}/${id}`);
/** What is known about a class of messages by its name. */
export const findMessage = (name) => byClass.get(name);
/** The class of that name, or undefined. */
export const findClass = (name) => (Object.hasOwn(classes, name) ? classes[name] : undefined);
export const typeOfFamily = (family) => familyTypes.get(family);

/** The class of a command's request or answer; null where there is none, or the direction isn't known. */
export function classOf(type, id, direction) {
    const command = findCommand(type, id);
    return command && direction ? command[direction === "request" ? "send" : "receive"] : null;
}

const ownFields = new Map();
/** The field of a class by its name: those of its base first. */
function fieldOf(className, name) {
    let fields = ownFields.get(className);
    if (!fields) {
        fields = new Map();
        const entry = findClass(className);
        if (entry) {
            for (const from of entry.base ? [entry.base, className] : [className]) {
                for (const field of classes[from].fields) {
                    fields.set(field.name, { owner: from, field });
                }
            }
        }
        ownFields.set(className, fields);
    }
    return fields.get(name);
}

/** The field behind a path in which [] stands for every index, or undefined. */
export function fieldAt(className, path) {
    let found;
    for (const step of path.split(".")) {
        found = fieldOf(className, step.replace(/\[\]$/, ""));
        if (!found) {
            return undefined;
        }
        className = found.field.element ?? found.field.type;
    }
    return found;
}

const expanded = new Map();
/** All lines that a class can write: the path in the log and that of the field, both with [] for an index. */
function linesOf(className) {
    let lines = expanded.get(className);
    if (lines) {
        return lines;
    }
    lines = [];
    expanded.set(className, lines);
    const entry = findClass(className);
    for (const { format, field } of entry ? [...(entry.base ? classes[entry.base].lines : []), ...entry.lines] : []) {
        const logged = format.replace(/^\[%s\][ .]?|^%s\./, "").replace(/\[%[du]\]/g, "[]").replace(/=.*$/, "");
        if (format.includes("=")) {
            lines.push({ logged, path: field });
            continue;
        }
        const { field: of } = fieldAt(className, field);
        for (const inner of linesOf(of.element ?? of.type)) {
            lines.push({ logged: logged ? `${logged}.${inner.logged}` : `.${inner.logged}`, path: `${field}.${inner.path}` });
        }
    }
    return lines;
}

const byLog = new Map();
/**
 * For a message's class the fields by their path in the log, [] for an index: each has the paths of those that are logged
 * under it, in order. A few have several: lists that are logged under one name.
 */
export function fieldsByLogPath(className) {
    let paths = byLog.get(className);
    if (!paths) {
        paths = new Map();
        paths.isAmbiguous = false;
        for (const { logged, path } of linesOf(className)) {
            const fields = paths.get(logged);
            if (!fields) {
                paths.set(logged, [path]);
            } else if (!fields.includes(path)) {
                fields.push(path);
            }
        }
        // Ambiguous are not only equal paths: two lists under one name may differ in what they hold.
        const roots = new Map();
        for (const [logged, fields] of paths) {
            const root = logged.split(".")[0];
            for (const path of fields) {
                const fieldsRoot = path.split(".")[0];
                if (root.endsWith("[]") && (roots.get(root) ?? fieldsRoot) !== fieldsRoot) {
                    paths.isAmbiguous = true;
                }
                roots.set(root, fieldsRoot);
            }
        }
        byLog.set(className, paths);
    }
    return paths;
}

const loggedPaths = new Map();
/** Whether the log shows the field, or something in it; the path has [] for an index. */
export function isLogged(className, path) {
    const entry = findClass(className);
    if (!entry || !byClass.has(className)) {
        return true; // nobody knows
    }
    let paths = loggedPaths.get(className);
    if (!paths) {
        paths = new Set();
        if (entry.log) {
            for (const { path: logged } of linesOf(className)) {
                const steps = logged.split(".");
                for (let i = 1; i <= steps.length; ++i) {
                    const part = steps.slice(0, i).join(".");
                    paths.add(part);
                    paths.add(part.replace(/\[\]$/, ""));
                }
            }
        }
        loggedPaths.set(className, paths);
    }
    return paths.has(path) || paths.has(path.replace(/\[\]$/, ""));
}

/** The fields that identify an element of a list, the best first. */
const kKeys = ["m_strDTC", "m_ulDTCCode", "m_ulEcuId", "m_ulSystemId", "m_ushDataMonitorId", "m_ushPidId", "m_ulId", "m_ushId",
    "m_uchItemId", "m_uchGroupId", "m_ulAddress", "m_ulParameter"];
/** The names of fields by which elements of such a class may be told apart. */
export function keysOf(className) {
    const entry = findClass(className);
    if (!entry) {
        return kKeys;
    }
    const names = entry.fields.map((field) => field.name);
    const others = names.filter((name) => /^m_u(l|sh|ch)\w+Id$/.test(name) && !/(Name|String|Unit|UnitPhys|Help|Info|Genre)Id$/.test(name));
    return [...new Set([...kKeys.filter((key) => names.includes(key)), ...others])];
}
