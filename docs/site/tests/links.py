#!/usr/bin/env python3
"""Fails if a link of the site leads nowhere: to a file that isn't there, or to an anchor that its page doesn't have.

Usage: links.py SITE

A link to another host is asked for. Where the host says that there is no such page, that is a dead link too; where it can't
be reached, which is so on every machine without a network, or doesn't tell, that is said and nothing more.
"""

import sys
import urllib.error
import urllib.request
from html.parser import HTMLParser
from pathlib import Path
from urllib.parse import unquote, urldefrag


class Reader(HTMLParser):
    def __init__(self):
        super().__init__()
        self.anchors = set()
        self.links = []

    def handle_starttag(self, tag, attributes):
        for name, value in attributes:
            if name == "id" or (name == "name" and tag == "a"):
                self.anchors.add(value)
            elif name in ("href", "src") and value is not None:
                self.links.append(value)


def read(file):
    reader = Reader()
    reader.feed(file.read_text(encoding="utf-8"))
    return reader


def inside(site, pages):
    """The dead ones among the links within the site, each with a page that has it."""
    seen = set()
    for page, reader in pages.items():
        for link in reader.links:
            address, anchor = urldefrag(link)
            if ":" in address.split("/")[0] or link.startswith("//"):
                continue
            target = (page.parent / unquote(address)).resolve() if address else page
            if (target, anchor) in seen:
                continue
            seen.add((target, anchor))
            if not target.is_relative_to(site) or not target.is_file():
                yield f"{page.relative_to(site)}: {link} is no file of the site"
            elif anchor and target.suffix == ".html" and unquote(anchor) not in pages[target].anchors:
                yield f"{page.relative_to(site)}: {link} has no such anchor"


def outside(links):
    """The dead ones among the links to other hosts."""
    for link in sorted(links):
        request = urllib.request.Request(link, method="HEAD", headers={"User-Agent": "link check"})
        try:
            with urllib.request.urlopen(request, timeout=10):
                print(f"{link} is there")
        except urllib.error.HTTPError as error:
            if error.code in (404, 410):
                yield f"{link}: {error}"
            else:
                print(f"{link} is not checked: {error}")
        except OSError as error:
            print(f"{link} is not checked: {error}")


def main():
    site = Path(sys.argv[1]).resolve()
    pages = {file: read(file) for file in sorted(site.rglob("*.html"))}
    if not pages:
        sys.exit(f"there are no pages in {site}")
    links = {urldefrag(link)[0] for reader in pages.values() for link in reader.links if link.startswith(("http:", "https:"))}
    dead = sorted(set(inside(site, pages))) + list(outside(links))
    print(f"{len(pages)} pages, {sum(len(reader.links) for reader in pages.values())} links, {len(links)} of them to other hosts")
    sys.exit("\n".join(dead) if dead else 0)


if __name__ == "__main__":
    if len(sys.argv) != 2:
        sys.exit(__doc__)
    main()
