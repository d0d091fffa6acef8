#!/usr/bin/env python3
"""Whether the pages in the folder OUT have everything that the program EXAMPLES says of the library: content.py OUT EXAMPLES

The program makes each of the library's messages and writes it as JSON, with every field in order. The pages must have the
same fields in the same order, whichever record they are in.
"""

import json
import re
import subprocess
import sys
import unittest
from html.parser import HTMLParser
from pathlib import Path
from urllib.parse import urlparse

ROOT = Path(__file__).resolve().parents[3]
OUT, PROGRAM = Path(sys.argv[1]), Path(sys.argv[2]).resolve()
VOID = {"meta", "link", "input", "wbr"}


class Node:
    def __init__(self, name, attributes, parent):
        self.name, self.attributes, self.parent = name, dict(attributes), parent
        self.children = []

    def all(self, name):
        """The elements of this name below it, in order."""
        for child in self.children:
            if isinstance(child, Node):
                if child.name == name:
                    yield child
                yield from child.all(name)

    def text(self):
        return "".join(child if isinstance(child, str) else child.text() for child in self.children)


class Page(HTMLParser):
    def __init__(self, path):
        super().__init__()
        self.root = self.open = Node("", [], None)
        self.ids = []
        self.feed(path.read_text("utf-8"))
        self.close()
        # By the template's ID its rows.
        self.templates = {node.attributes["id"]: rows_of(node) for node in self.root.all("template")}
        if self.open is not self.root:
            raise AssertionError(f"{path.name}: <{self.open.name}> isn't closed")

    def handle_starttag(self, tag, attrs):
        node = Node(tag, attrs, self.open)
        self.open.children.append(node)
        if "id" in node.attributes:
            self.ids.append(node.attributes["id"])
        if tag not in VOID:
            self.open = node

    def handle_endtag(self, tag):
        if tag != self.open.name:
            raise AssertionError(f"</{tag}> within <{self.open.name}>")
        self.open = self.open.parent

    def handle_data(self, data):
        self.open.children.append(data)


def rows_of(node):
    """The rows of fields of the first table of fields in a part of the page, and by name what their records' templates are."""
    tables = [table for table in node.all("table") if "numbers" not in table.attributes.get("class", "")]
    rows, templates = [], {}
    for row in (tables[0].all("tr") if tables else []):
        if "data-name" in row.attributes:
            rows.append(row)
        for details in row.all("details"):
            templates[details.attributes["data-name"]] = details.attributes["data-template"]
    return rows, templates


class Content(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.pages = {path.name: Page(path) for path in OUT.glob("*.html")}
        written = subprocess.run([PROGRAM], check=True, stdout=subprocess.PIPE).stdout.decode()
        cls.messages = {}
        for part in re.split(r"^== ", written, flags=re.M)[1:]:
            name, text, *_ = part.split("\n")
            cls.messages[name] = json.loads(text)
        cls.classes = json.loads((ROOT / "viewer" / "catalogue.json").read_text("utf-8"))["classes"]

    def page_of(self, message):
        return f"{message['command']}{message['family']}.html"

    def test_all_commands_and_messages(self):
        self.assertEqual(len(self.messages), 158)
        commands = {self.page_of(message) for message in self.messages.values()}
        self.assertEqual(len(commands), 79)
        others = {name.replace("::", ".") + ".html" for name in self.classes if name not in self.messages}
        self.assertEqual(set(self.pages), commands | others | {"index.html"})
        for name, message in self.messages.items():
            headings = [node for node in self.pages[self.page_of(message)].root.all("h2") if node.attributes["id"] == message["direction"]]
            self.assertEqual([heading.text() for heading in headings], [f"{message['direction'].capitalize()} {name}"])

    def test_every_field(self):
        fields = 0

        def check(rows, value, page, where):
            nonlocal fields
            rows, templates = rows
            self.assertEqual([row.attributes["data-name"] for row in rows], list(value), where)
            fields += len(rows)
            for name, inner in value.items():
                element = inner[0] if isinstance(inner, list) and inner and isinstance(inner[0], dict) else inner
                self.assertEqual(isinstance(element, dict), name in templates, f"{where}.{name}")
                if isinstance(element, dict):
                    check(page.templates[templates[name]], element, page, f"{where}.{name}")

        for name, message in self.messages.items():
            page = self.pages[self.page_of(message)]
            heading = next(node for node in page.root.all("h2") if node.attributes["id"] == message["direction"])
            check(rows_of(heading.parent), message["content"], page, name)
        self.assertGreater(fields, 6000)

    def test_records(self):
        for name, entry in self.classes.items():
            if name not in self.messages:
                page = self.pages[name.replace("::", ".") + ".html"]
                rows, _ = rows_of(page.root)
                self.assertEqual([row.attributes["id"] for row in rows], [field["name"] for field in entry["fields"]], name)
                self.assertIn("used", page.ids)

    def test_every_field_says_everything(self):
        for file, page in self.pages.items():
            for row in page.root.all("tr"):
                if "data-name" in row.attributes:
                    cells = [child for child in row.children if isinstance(child, Node)]
                    self.assertEqual([cell.name for cell in cells], ["th", "td", "td", "td", "td"])
                    for cell in cells:
                        self.assertTrue(cell.text().strip(), f"{file}: {row.text()}")

    def test_anchors_and_links(self):
        for file, page in self.pages.items():
            self.assertEqual(len(page.ids), len(set(page.ids)), file)
            for node in page.root.all("a"):
                target = urlparse(node.attributes["href"])
                if target.path.startswith("../") or node.attributes["href"] == "#":
                    continue  # the site's, or the script's
                path = target.path or file
                self.assertTrue((OUT / path).is_file(), f"{file}: {path}")
                if target.fragment:
                    self.assertIn(target.fragment, self.pages[path].ids, f"{file}: {node.attributes['href']}")

    def test_small(self):
        for file in self.pages:
            self.assertLess((OUT / file).stat().st_size, 100_000, file)
        self.assertLess((OUT / "search.js").stat().st_size, 300_000)

    def test_entries(self):
        entries = json.loads((OUT / "entries.json").read_text("utf-8"))
        self.assertEqual({entry["url"] for entry in entries}, {f"{OUT.name}/{file}" for file in self.pages})
        for entry in entries:
            self.assertTrue(entry["title"] and entry["kind"] and entry["text"])


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1], verbosity=1)
