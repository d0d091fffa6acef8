// What is shown, as it stands in the address: who opens the same file by the same link sees the same.

const kText = { filter: "f", search: "s", path: "p", tab: "tab", keys: "keys", ignore: "ignore", chart: "c" };
const kFlags = { hide: "hide", all: "all" };

export const initial = () => ({
    file: 0, index: -1, path: "", tab: "fields", filter: "", search: "", hide: false, isComparing: false, pair: -1, keys: "", ignore: "",
    onlyDifferent: true, all: false, chart: "",
});

/** The part of the address behind "#". Numbers are those on the page, from 1. */
export function toHash(state) {
    const parameters = new URLSearchParams();
    if (state.isComparing) {
        parameters.set("compare", state.onlyDifferent ? "1" : "all");
        if (state.pair >= 0) {
            parameters.set("pair", state.pair + 1);
        }
    } else {
        if (state.file) {
            parameters.set("file", state.file + 1);
        }
        if (state.index >= 0) {
            parameters.set("m", state.index + 1);
        }
    }
    for (const [name, key] of Object.entries(kText)) {
        if (state[name] && !(name === "tab" && state.tab === "fields")) {
            parameters.set(key, state[name]);
        }
    }
    for (const [name, key] of Object.entries(kFlags)) {
        if (state[name]) {
            parameters.set(key, "1");
        }
    }
    return `#${parameters}`;
}

export function fromHash(hash) {
    const parameters = new URLSearchParams(hash.replace(/^#/, ""));
    const state = initial();
    const number = (key) => {
        const value = Number(parameters.get(key) ?? 0);
        return Number.isInteger(value) && value > 0 ? value - 1 : -1;
    };
    state.file = Math.max(0, number("file"));
    state.index = number("m");
    state.pair = number("pair");
    state.isComparing = parameters.has("compare");
    state.onlyDifferent = parameters.get("compare") !== "all";
    for (const [name, key] of Object.entries(kText)) {
        state[name] = parameters.get(key) ?? state[name];
    }
    if (!["fields", "raw", "chart"].includes(state.tab)) {
        state.tab = "fields";
    }
    for (const [name, key] of Object.entries(kFlags)) {
        state[name] = parameters.get(key) === "1";
    }
    return state;
}
