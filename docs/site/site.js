// The bar at the top of every page: the list of pages on narrow screens, and the search over all of the site. Search library
// and index, more than a megabyte, are loaded by the first use of the box.
(function () {
    const root = document.currentScript.src.replace(/[^/]*$/, "");
    const menu = document.getElementById("site-menu");
    const pages = document.getElementById("site-nav");
    const box = document.getElementById("site-query");
    const results = document.getElementById("site-results");

    // ---- The list of pages ----

    menu.addEventListener("click", () => {
        menu.setAttribute("aria-expanded", String(pages.classList.toggle("open")));
    });
    for (const link of pages.querySelectorAll("a")) {
        if (link.href === location.href.replace(/[?#].*$/, "")) {
            link.setAttribute("aria-current", "page");
            link.scrollIntoView({ block: "nearest" });
        }
    }

    // ---- What scrolls sideways by itself ----

    /** Whoever has no mouse scrolls what has the focus. */
    const letScroll = () => {
        for (const part of document.querySelectorAll("pre.fragment, div.fragment, table.markdownTable")) {
            if (part.scrollWidth > part.clientWidth) {
                part.tabIndex = 0;
            } else {
                part.removeAttribute("tabindex");
            }
        }
    };
    addEventListener("load", letScroll);
    addEventListener("resize", letScroll);

    // ---- The search ----

    function load(file) {
        return new Promise((resolve, reject) => {
            const script = document.createElement("script");
            script.src = `${root}search/${file}`;
            script.onload = resolve;
            script.onerror = () => reject(new Error(`${file} can't be loaded`));
            document.head.append(script);
        });
    }
    let loading = null;
    const whenLoaded = () => (loading ??= Promise.all(["lunr.js", "search.js", "index.js"].map(load))
        .then(() => new siteSearch.Search(lunr, siteSearch.data)));

    const links = () => Array.from(results.querySelectorAll("a"));
    let selected = -1;
    function select(number) {
        links().forEach((link, i) => link.setAttribute("aria-selected", String(i === number)));
        selected = number;
        links()[number]?.scrollIntoView({ block: "nearest" });
        box.setAttribute("aria-activedescendant", number < 0 ? "" : `site-result-${number}`);
    }
    function show(content) {
        results.replaceChildren(...content);
        results.hidden = content.length === 0;
        box.setAttribute("aria-expanded", String(content.length > 0));
        select(links().length > 0 ? 0 : -1);
    }
    function element(name, text) {
        const made = document.createElement(name);
        made.textContent = text;
        return made;
    }
    function result({ title, kind, url, text }, number) {
        const link = document.createElement("a");
        link.href = root + url;
        link.id = `site-result-${number}`;
        link.setAttribute("role", "option");
        link.append(element("b", title), element("i", kind), element("span", text));
        return link;
    }
    async function search() {
        const query = box.value;
        if (query.trim() === "") {
            show([]);
            return;
        }
        try {
            if (loading === null) {
                show([element("p", "Loading the index")]);
            }
            const index = await whenLoaded();
            if (query !== box.value) {
                return; // typed on
            }
            const found = index.find(query);
            if (siteSearch.isLogLine(query)) {
                found.unshift({ title: "Find this line's field in the catalogue", kind: "log line", text: query,
                    url: `catalogue/index.html?q=${encodeURIComponent(query.trim())}` });
            }
            show(found.length > 0 ? found.map(result) : [element("p", "Nothing found")]);
        } catch (error) {
            show([element("p", error.message)]);
        }
        box.dataset.shown = query; // for who waits for it
    }
    results.setAttribute("role", "listbox");
    results.setAttribute("aria-label", "Results");
    box.addEventListener("focus", () => whenLoaded().catch(() => {}));
    box.addEventListener("input", search);
    box.addEventListener("keydown", (event) => {
        const count = links().length;
        if (event.key === "ArrowDown" && count > 0) {
            select((selected + 1) % count);
        } else if (event.key === "ArrowUp" && count > 0) {
            select((selected + count - 1) % count);
        } else if (event.key === "Enter" && selected >= 0) {
            links()[selected].click();
        } else if (event.key === "Escape") {
            show([]);
        } else {
            return;
        }
        event.preventDefault();
    });
    results.addEventListener("click", (event) => {
        if (event.target.closest("a") !== null && !event.ctrlKey && !event.metaKey) {
            show([]);
        }
    });
    document.addEventListener("click", (event) => {
        if (!event.target.closest("#site-search")) {
            results.hidden = true;
        }
    });
    document.addEventListener("keydown", (event) => {
        if (event.key === "/" && !/^(INPUT|TEXTAREA|SELECT)$/.test(document.activeElement.tagName) && !event.ctrlKey && !event.metaKey) {
            box.focus();
            box.select();
            event.preventDefault();
        }
    });
})();
