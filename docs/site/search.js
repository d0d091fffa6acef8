// What the search does, without a page: how texts become words, and how a query finds entries. `./dev docs` makes the index
// with it, the pages search with it.
(function (root) {
    /** A word without the end of a plural. */
    const singular = (word) => (word.length > 3 ? word.replace(/s$/, "") : word);

    /** Whether a word is searched for: a single letter isn't. */
    const tells = (word) => word.length > 1 || /\d/.test(word);

    /** The words of a text, as often as it has them: each whole, and of names their parts too, so that `dtc` finds
        CKRMCGetDTCCmdAdaptDataRcv. */
    function wordsOf(text) {
        return text.split(/[^\p{L}\p{N}_]+/u).flatMap((word) => {
            const name = word.replace(/^m_[a-z]+(?=[A-Z])/, "");
            const parts = name.replace(/([a-z0-9])([A-Z])/g, "$1 $2").replace(/([A-Z]+)([A-Z][a-z])/g, "$1 $2").split(/[ _]+/);
            const all = new Set([word, name, name.replace(/^CKRMC?/, ""), ...parts].map((each) => singular(each.toLowerCase())));
            return [...all].filter(tells);
        });
    }

    /** The words that a query asks for: as they are typed, but for the end of a plural. */
    const asked = (query) => query.toLowerCase().split(/[^\p{L}\p{N}_]+/u).filter(tells).map(singular);

    /** What all kinds of entries are worth: a page before a class, a class before its members. The names of headers and of
        examples' sources are no titles. */
    const worth = { guide: 4, command: 4, page: 2.5, class: 2, struct: 1.5, header: 0.5, example: 0.5 };

    /** The index of these entries ({title, kind, url, text, summary}), as it is written into a file. The summary, which few
        have, says in a sentence or two what an entry of much text is about. */
    function build(lunr, entries) {
        const builder = new lunr.Builder();
        builder.tokenizer = (text) => Array.from(wordsOf(text ?? ""), (word) => new lunr.Token(word, {}));
        builder.ref("number");
        builder.field("title", { boost: 8 });
        builder.field("summary", { boost: 8 });
        builder.field("text");
        entries.forEach(({ title, kind, text, summary }, number) => builder.add({ number, title, summary, text }, { boost: worth[kind] ?? 1 }));
        const start = (text) => (text.length > 160 ? `${text.slice(0, 160).replace(/\S*$/, "")}…` : text);
        return {
            index: builder.build().toJSON(),
            entries: entries.map(({ title, kind, url, text, summary }) => [title, kind, url, start(summary ?? text)]),
        };
    }

    class Search {
        constructor(lunr, { index, entries }) {
            this.lunr = lunr;
            this.index = lunr.Index.load(index);
            this.entries = entries;
        }

        /** The entries that have all words of the query, or their beginnings; if none has, those with some word like one of them. */
        find(query, count = 40) {
            const words = asked(query);
            if (words.length === 0) {
                return [];
            }
            const { presence, wildcard } = this.lunr.Query;
            let hits = this.index.query((all) => {
                for (const word of words) {
                    // Too much begins with two letters, such as those of `no`.
                    all.term(word, { presence: presence.REQUIRED, wildcard: word.length > 2 ? wildcard.TRAILING : wildcard.NONE });
                    all.term(word, { boost: 4 });
                }
            });
            if (hits.length === 0) {
                hits = this.index.query((all) => {
                    for (const word of words) {
                        all.term(word, { wildcard: wildcard.TRAILING });
                        all.term(word, { editDistance: word.length > 3 ? 1 : 0 });
                    }
                });
            }
            const exactly = query.trim().toLowerCase();
            const isIt = ({ ref }) => this.entries[ref][0].toLowerCase() === exactly;
            return [...hits.filter(isIt), ...hits.filter((hit) => !isIt(hit))].slice(0, count)
                .map(({ ref }) => this.entries[ref]).map(([title, kind, url, text]) => ({ title, kind, url, text }));
        }
    }

    /** Whether this is a line of the operation log, which the catalogue finds. */
    const isLogLine = (text) => /::ErrWriteOperationLog\]|^\[?\[?[\w: .[\]]*\]? ?[\w.[\]]+=/.test(text.trim());

    const search = { Search, build, isLogLine, wordsOf };
    if (typeof module === "object") {
        module.exports = search;
    } else {
        root.siteSearch = Object.assign(root.siteSearch ?? {}, search);
    }
})(globalThis);
