#!/usr/bin/env python3
"""Writes what Doxygen makes the site of beside the headers: the pages, as it reads Markdown, and the head of every page.

Usage: pages.py OUT

OUT gets pages/NAME.md for README.md, the pages of docs/, the other documents, and the programs of examples/ with their whole
source; header.html with the list of all pages; and files/ with what pages link to that is none. A page is called as its file: docs/interface.md becomes interface.html,
docs/guide/lists.md guide_lists.html. Headings get the anchors that GitHub gives them, with the page's name in front, since
Doxygen's are for the whole site; links between pages follow. A link that leads nowhere ends it.
"""

import html
import os
import posixpath
import re
import shutil
import sys
from pathlib import Path

ROOT = Path(__file__).resolve().parents[2]
# What stands in the list beside the guide, in this order; a page of docs/ that isn't here ends the run.
PARTS = {
    "Using it": ["install", "building", "headers", "examples", "exchange", "krm", "viewer", "debugging"],
    "About it": ["platforms", "performance", "reliability", "security", "changelog", "contributing", "fuzz"],
}
REFERENCE = [("catalogue/index.html", "Catalogue of commands"), ("annotated.html", "All classes"), ("files.html", "All headers"), ("concepts.html", "All concepts")]
# Pages with so many sections have a list of them.
LONG = 5
# Said by another page, for readers of the checkout alone.
LEFT_OUT = ["debugger/README.md"]


def name_of(path):
    """The page's name, which is its file's on the site without .html."""
    parts = path.removesuffix(".md").split("/")
    if parts[0] == "docs" and len(parts) > 1:
        parts = parts[1:]
    if parts[-1] in ("README", "index") and len(parts) > 1:
        parts = parts[:-1]
    return re.sub(r"[^a-z0-9]+", "_", "_".join(parts).lower())


def slug_of(heading):
    """GitHub's anchor of a heading."""
    text = re.sub(r"\[([^]]*)\]\([^)]*\)", r"\1", heading)
    return re.sub(r"[^\w\- ]", "", text.lower()).strip().replace(" ", "-")


class Page:
    def __init__(self, path, lines=None):
        """The page of a document, or of these lines in its place."""
        self.path = path
        self.name = name_of(path)
        self.lines = (ROOT / path).read_text(encoding="utf-8").splitlines() if lines is None else lines
        self.title = None
        self.anchors = {}  # line number of a heading: its slug
        for number, line, in_code in self.outside_code():
            heading = not in_code and re.fullmatch(r"(#+) (.*)", line)
            if heading and heading[1] == "#" and self.title is None:
                self.title = heading[2].replace("`", "")
            elif heading:
                slug = slug_of(heading[2])
                repeated = sum(other == slug or re.fullmatch(re.escape(slug) + r"-\d+", other) is not None
                               for other in self.anchors.values())
                self.anchors[number] = f"{slug}-{repeated}" if repeated else slug
        if self.title is None:
            sys.exit(f"{path} has no title")

    def outside_code(self):
        """Number and text of each line, and whether it belongs to a fenced block."""
        fence = None
        for number, line in enumerate(self.lines):
            mark = re.match(r" *(```+|~~~+)", line)
            if fence is None and mark:
                fence = mark[1]
                yield number, line, True
            elif fence is not None:
                yield number, line, True
                if line.strip() == fence:
                    fence = None
            else:
                yield number, line, False

    @property
    def file(self):
        return "index.html" if self.path == "README.md" else f"{self.name}.html"

    def anchor(self, slug):
        return f"{self.name}-{slug}"


def head_comment(file):
    """What a source says of itself at its beginning."""
    lines = file.read_text(encoding="utf-8").splitlines()
    end = next(number for number, line in enumerate(lines) if not line.startswith("//"))
    return [line[2:].removeprefix(" ") for line in lines[:end]]


def source(file):
    """A section with a whole source."""
    return [f"## {file.name}", "", "```cpp", *file.read_text(encoding="utf-8").splitlines(), "```", ""]


def examples():
    """The pages of each program of examples/: its own, with its main, and one for each header with its source."""
    for main in sorted((ROOT / "examples").glob("*/main.cpp")):
        folder = main.parent
        name = folder.name
        parts = {}  # by the name that header and source have in common
        for file in sorted({*folder.glob("*.h"), *folder.glob("*.cpp")} - {main}, key=lambda file: (file.stem, file.suffix != ".h")):
            parts.setdefault(file.stem, []).append(file)
        built = f"It lies in `examples/{name}/`; `examples/CMakeLists.txt` builds it. [All examples](../docs/examples.md)"
        lines = [f"# Example: {name}", "", *head_comment(main), "", built, "", *source(main)]
        if parts:
            lines += ["## Its other files", "", "| files | what |", "|---|---|"]
            for part, files in parts.items():
                says = re.match(r".*?\.(?= |$)", " ".join(head_comment(files[0])).replace("|", "\\|"))
                lines.append(f"| [{', '.join(file.name for file in files)}]({name}/{part}) | {says[0]} |")
        yield Page(f"examples/{name}", lines)
        for part, files in parts.items():
            lines = [f"# Example: {name}, {part}", "", f"Of the example [{name}](../{name}).", ""]
            yield Page(f"examples/{name}/{part}", lines + [line for file in files for line in source(file)])


class Site:
    def __init__(self, out):
        self.out = out
        paths = ["README.md", "CHANGELOG.md", "CONTRIBUTING.md", "SECURITY.md", "fuzz/README.md"]
        paths += [f"docs/{file.name}" for file in sorted((ROOT / "docs").glob("*.md"))]
        paths += [f"docs/guide/{file.name}" for file in sorted((ROOT / "docs/guide").glob("*.md"))]
        self.pages = {path: Page(path) for path in paths} | {page.path: page for page in examples()}
        self.faults = []

    def link(self, page, text, target):
        """Where a page's link leads on the site, as Doxygen has it."""
        if re.match(r"[a-z]+:", target):
            return f"[{text}]({target})"
        path, _, slug = target.partition("#")
        path = posixpath.normpath(posixpath.join(posixpath.dirname(page.path), path)) if path else page.path
        for index in ("README.md", "index.md"):
            if f"{path}/{index}" in self.pages:
                path = f"{path}/{index}"
        if path in self.pages:
            to = self.pages[path]
            if slug and slug not in to.anchors.values():
                self.faults.append(f"{page.path}: {target} has no such heading")
            return f'<a href="{to.file}{"#" + to.anchor(slug) if slug else ""}">{text_as_html(text)}</a>'
        if path in LEFT_OUT or path.endswith(".h"):
            return text
        if not (ROOT / path).is_file():
            self.faults.append(f"{page.path}: there is no {target}")
            return text
        copy = self.out / "files" / path
        copy.parent.mkdir(parents=True, exist_ok=True)
        shutil.copyfile(ROOT / path, copy)
        return f'<a href="files/{path}">{text_as_html(text)}</a>'

    def markdown(self, page):
        made, text = [], []

        def end_text():
            # Links may go on in the next line, and have code in their text. Not within code, and not of images.
            made.append(re.sub(r"`+[^`]+`+|(?<!!)\[(?P<text>(?:[^][]|\[[^]]*\])*)\]\((?P<target>[^() ]+)\)",
                               lambda match: self.link(page, match["text"], match["target"]) if match["target"] else match[0],
                               "\n".join(text)))
            made.append("\n" if text else "")
            text.clear()

        titled = False
        for number, line, in_code in page.outside_code():
            if in_code:
                end_text()
                fence = re.fullmatch(r"( *)(```+|~~~+) *([\w+.-]+).*", line)
                if fence:
                    language = ".cpp" if fence[3] in ("cpp", "c++", "h") else ".unparsed"
                    line = f"{fence[1]}{fence[2]}{{{language}}}"
                made.append(f"{line}\n")
            elif not titled and line.startswith("# "):
                titled = True
                text.append(f"# {page.title} {{#{'mainpage' if page.file == 'index.html' else page.name}}}")
                if sum(page.lines[heading].startswith("## ") for heading in page.anchors) >= LONG:
                    text.append("\n[TOC]")
            elif number in page.anchors:
                text.append(f"{line} {{#{page.anchor(page.anchors[number])}}}")
            else:
                text.append(line)
        end_text()
        return "".join(made)

    def guide(self):
        """The guide's pages in the order in which its first page links to them."""
        pages = [page for page in self.pages.values() if page.path.startswith("docs/guide/")]
        first = [page for page in pages if page.name == "guide"]
        linked = re.findall(r"\]\(([\w.-]+\.md)", "\n".join(first[0].lines)) if first else []
        order = {f"docs/guide/{name}": number for number, name in reversed(list(enumerate(linked)))}
        return first + sorted((page for page in pages if page.name != "guide"),
                              key=lambda page: (order.get(page.path, len(order)), page.path))

    def navigation(self):
        """The list of all pages."""
        by_name = {page.name: page for page in self.pages.values()}
        parts = [("Guide", [(page.file, page.title) for page in self.guide()])]
        parts += [(title, [(by_name[name].file, by_name[name].title) for name in names]) for title, names in PARTS.items()]
        programs = [page for page in self.pages.values() if page.path.startswith("examples/")]
        parts[2:2] = [("Examples", [(page.file, page.title.removeprefix("Example: ")) for page in programs if page.path.count("/") == 1])]
        # A program's other files are listed on its page.
        listed = {file for _, links in parts for file, _ in links} | {"index.html", "interface.html", *(page.file for page in programs)}
        self.faults += [f"{page.path} isn't listed in {Path(__file__).name}" for page in self.pages.values() if page.file not in listed]
        parts[1:1] = [("Reference", [("interface.html", by_name["interface"].title), *REFERENCE])]
        lines = []
        for title, links in parts:
            if links:
                lines.append(f"<h2>{html.escape(title)}</h2><ul>")
                lines += [f'<li><a href="$relpath^{file}">{html.escape(name)}</a></li>' for file, name in links]
                lines.append("</ul>")
        return "\n".join(lines)

    def write(self):
        pages = self.out / "pages"
        pages.mkdir(parents=True)
        for page in self.pages.values():
            (pages / f"{page.name}.md").write_text(self.markdown(page), encoding="utf-8")
        head = (ROOT / "docs/site/header.html").read_text(encoding="utf-8")
        (self.out / "header.html").write_text(head.replace("@NAVIGATION@", self.navigation()), encoding="utf-8")
        if self.faults:
            sys.exit("\n".join(self.faults))


def text_as_html(text):
    """A link's text, which may be code."""
    return re.sub(r"`([^`]*)`", r"<code>\1</code>", html.escape(text, quote=False))


if __name__ == "__main__":
    if len(sys.argv) != 2:
        sys.exit(__doc__)
    target = Path(sys.argv[1])
    shutil.rmtree(target, ignore_errors=True)
    os.makedirs(target)
    Site(target).write()
