// A list of any length of which only the rows that can be seen are in the document. It is one stop for the Tab key; the
// arrow keys go through its rows.

/** Browsers can't lay out an element much higher than this; a longer list is scrolled in proportion. */
const kHighest = 8e6;
const kPage = 100;
const kMostPages = 60;
const kSpare = 6;

export class VirtualList {
    #pages = new Map();
    #rows = new Map(); // by index, the elements in the document
    #top = 0;
    #expected = -1;
    #version = 0;
    count = 0;
    selected = -1;

    /**
     * @param box the element that scrolls; it has its role and label
     * @param options fetch(from, to): the rows, a promise; render(row, element, index); rowRole; rowHeight(): in pixels;
     *        select(index, row, how): a row was chosen by "click" or "key"; key(event, index, row): true if it was used
     */
    constructor(box, options) {
        this.box = box;
        this.options = options;
        this.sizer = document.createElement("div");
        this.sizer.className = "sizer";
        this.sizer.setAttribute("role", "presentation");
        box.append(this.sizer);
        box.tabIndex = 0;
        box.addEventListener("scroll", () => this.#scrolled());
        box.addEventListener("wheel", (event) => this.#wheel(event), { passive: false });
        box.addEventListener("keydown", (event) => this.#key(event));
        box.addEventListener("click", (event) => {
            const row = event.target.closest?.("[data-index]");
            if (row) {
                this.choose(Number(row.dataset.index), "click", event);
            }
        });
        new ResizeObserver(() => this.layOut()).observe(box);
        this.layOut();
    }

    /** Sets the number of rows; what was fetched of them is forgotten. */
    setCount(count) {
        this.count = count;
        this.refresh();
    }
    refresh() {
        this.#pages.clear();
        ++this.#version;
        if (this.selected >= this.count) {
            this.selected = -1;
        }
        this.layOut();
    }

    get #height() {
        return this.count * this.rowHeight;
    }
    get #ratio() {
        const view = this.box.clientHeight;
        return this.#height <= kHighest ? 1 : (this.#height - view) / (kHighest - view);
    }
    layOut() {
        this.rowHeight = this.options.rowHeight();
        this.sizer.style.height = `${Math.min(this.#height, kHighest)}px`;
        this.#top = Math.max(0, Math.min(this.#top, this.#height - this.box.clientHeight));
        this.#render(true);
    }
    #scrolled() {
        const { scrollTop } = this.box;
        if (Math.abs(scrollTop - this.#expected) > 1) {
            this.#top = scrollTop * this.#ratio;
        }
        this.#expected = -1;
        this.#render();
    }
    #wheel(event) {
        if (this.#ratio !== 1 && !event.ctrlKey && Math.abs(event.deltaY) > Math.abs(event.deltaX)) {
            event.preventDefault();
            this.scrollTo(this.#top + event.deltaY * (event.deltaMode === 1 ? this.rowHeight : 1));
        }
    }
    scrollTo(top) {
        this.#top = Math.max(0, Math.min(top, this.#height - this.box.clientHeight));
        const wanted = this.#top / this.#ratio;
        this.box.scrollTop = wanted;
        this.#expected = this.box.scrollTop;
        this.#render();
    }
    /** Brings a row into view, at the middle if it was out of it. */
    show(index) {
        const top = index * this.rowHeight, view = this.box.clientHeight;
        if (top < this.#top || top + this.rowHeight > this.#top + view) {
            this.scrollTo(top - (top < this.#top + view * 2 && top > this.#top - view ? (top < this.#top ? 0 : view - this.rowHeight) : view / 2));
        }
    }

    #page(number) {
        let page = this.#pages.get(number);
        if (!page) {
            if (this.#pages.size >= kMostPages) {
                this.#pages.delete(this.#pages.keys().next().value);
            }
            page = { rows: null };
            this.#pages.set(number, page);
            const version = this.#version;
            page.done = this.options.fetch(number * kPage, Math.min(this.count, (number + 1) * kPage)).then((rows) => {
                page.rows = rows;
                if (version === this.#version) {
                    this.#render(true);
                }
                return rows;
            });
        }
        return page;
    }
    /** The row at an index, as soon as it was fetched. */
    async row(index) {
        return (await this.#page(Math.floor(index / kPage)).done)?.[index % kPage];
    }
    rowNow(index) {
        return this.#pages.get(Math.floor(index / kPage))?.rows?.[index % kPage] ?? null;
    }

    #render(isAll = false) {
        const view = this.box.clientHeight;
        const from = Math.max(0, Math.floor(this.#top / this.rowHeight) - kSpare);
        const to = view ? Math.min(this.count, Math.ceil((this.#top + view) / this.rowHeight) + kSpare) : 0;
        const offset = this.#ratio === 1 ? 0 : this.box.scrollTop - this.#top;
        for (const [index, row] of this.#rows) {
            if (index < from || index >= to) {
                row.remove();
                this.#rows.delete(index);
            }
        }
        for (let index = from; index < to; ++index) {
            let row = this.#rows.get(index);
            const isNew = !row;
            if (isNew) {
                row = document.createElement("div");
                row.id = `${this.box.id}-${index}`;
                row.dataset.index = index;
                row.setAttribute("role", this.options.rowRole);
                this.#rows.set(index, row);
                const next = this.#rows.get(index + 1);
                this.sizer.insertBefore(row, next ?? null);
            }
            row.style.transform = `translateY(${index * this.rowHeight + offset}px)`;
            row.style.height = `${this.rowHeight}px`;
            const data = this.#page(Math.floor(index / kPage)).rows?.[index % kPage];
            if (isNew || isAll || (data && row.isEmpty)) {
                row.className = "row";
                if (data) {
                    row.replaceChildren();
                    this.options.render(data, row, index);
                } else if (isNew) {
                    row.textContent = "…";
                }
                row.isEmpty = !data;
                if (this.options.rowRole === "option") {
                    row.setAttribute("aria-posinset", index + 1);
                    row.setAttribute("aria-setsize", this.count);
                }
            }
            row.setAttribute("aria-selected", index === this.selected);
        }
        if (this.selected >= from && this.selected < to) {
            this.box.setAttribute("aria-activedescendant", `${this.box.id}-${this.selected}`);
        } else {
            this.box.removeAttribute("aria-activedescendant");
        }
    }

    /** Marks a row and brings it into view; tells nobody. */
    mark(index) {
        this.selected = index;
        if (index >= 0) {
            this.show(index);
        }
        this.#render();
    }
    /** Marks a row as the user did, and tells. */
    async choose(index, how, event) {
        if (index < 0 || index >= this.count) {
            return;
        }
        this.mark(index);
        const row = await this.row(index);
        if (row && this.selected === index) {
            this.options.select?.(index, row, how, event);
        }
    }

    #key(event) {
        if (event.altKey || event.metaKey || event.ctrlKey || event.target !== this.box) {
            return;
        }
        const page = Math.max(1, Math.floor(this.box.clientHeight / this.rowHeight) - 1);
        const at = this.selected;
        const to = { ArrowDown: at + 1, ArrowUp: at < 0 ? this.count - 1 : at - 1, PageDown: at + page, PageUp: at - page, Home: 0, End: this.count - 1 }[event.key];
        if (to !== undefined && this.count) {
            event.preventDefault();
            this.choose(Math.max(0, Math.min(this.count - 1, to)), "key", event);
        } else if (this.options.key?.(event, at, at >= 0 ? this.rowNow(at) : null)) {
            event.preventDefault();
        }
    }
}
