#!/usr/bin/env python3
"""Prints, as JSON, what the site's search finds: a section of a page, a class, a member, a command.

Usage: search_entries.py XML [CATALOGUE]

XML is the folder of Doxygen's XML, CATALOGUE the catalogue's entries.json, which has the same form. An entry is {"title": ..., "kind": ..., "url": ..., "text": ...}; the text is what is searched beside the title, and in the catalogue's a "summary".
"""

import json
import re
import sys
import xml.etree.ElementTree as ElementTree
from pathlib import Path

MEMBERS = {"function": "function", "variable": "variable", "define": "macro", "typedef": "type", "enum": "enumeration", "friend": "function"}


def text_of(*elements, without=()):
    """The text within, the elements called as `without` left out."""
    words = []

    def walk(element):
        words.append(element.text or "")
        for child in element:
            if child.tag not in without:
                walk(child)
            words.append(" " if child.tag in ("para", "title", "entry", "codeline", "sp") else "")
            words.append(child.tail or "")

    for element in elements:
        if element is not None:
            walk(element)
            words.append(" ")
    return re.sub(r"\s+", " ", "".join(words)).strip()


def sections(element, page, file, kind):
    """The sections of a page, each without those in it."""
    nested = ("sect1", "sect2", "sect3", "sect4", "sect5", "sect6")
    for child in element:
        if child.tag in nested:
            title = text_of(child.find("title"))
            yield {"title": f"{page}: {title}", "kind": kind, "url": f"{file}#{child.get('id').partition('_1')[2]}",
                   "text": text_of(child, without=(*nested, "title"))}
            yield from sections(child, page, file, kind)


def page_entries(compound):
    name = compound.get("id")
    file = "index.html" if name == "indexpage" else f"{name}.html"
    kind = "guide" if name.startswith("guide") else "example" if name.startswith("examples_") else "page"
    title = text_of(compound.find("title")) or "Start"
    details = compound.find("detaileddescription")
    yield {"title": title, "kind": kind, "url": file, "text": text_of(details, without=("sect1", "sect2"))}
    yield from sections(details, title, file, kind)


def member_entries(compound):
    owner = compound.findtext("compoundname")
    kind_of_owner = compound.get("kind")
    for member in compound.iter("memberdef"):
        brief, details = member.find("briefdescription"), member.find("detaileddescription")
        text = text_of(brief, details, *member.iter("enumvalue"))
        if not text or member.get("prot") == "private" or member.findtext("name") == "Dump":
            continue
        name = member.findtext("name")
        within = kind_of_owner in ("class", "struct", "namespace")
        file, _, anchor = member.get("id").rpartition("_1")
        kind = "field" if kind_of_owner in ("class", "struct") and member.get("kind") == "variable" else MEMBERS[member.get("kind")]
        yield member.get("id"), {"title": f"{owner}::{name}" if within else name, "kind": kind, "url": f"{file}.html#{anchor}", "text": text}


def compound_entry(compound):
    name, kind = compound.findtext("compoundname"), compound.get("kind")
    if kind == "file":
        name, kind = compound.find("location").get("file").removeprefix("platform/"), "header"
    return {"title": name, "kind": kind, "url": f"{compound.get('id')}.html",
            "text": text_of(compound.find("briefdescription"), compound.find("detaileddescription"))}


def entries(folder):
    members = {}
    compounds = [ElementTree.parse(file).getroot().find("compounddef") for file in sorted(folder.glob("*.xml")) if file.name != "index.xml"]
    for compound in compounds:
        if compound is None or compound.get("prot") == "private":
            continue
        kind = compound.get("kind")
        if kind == "page":
            yield from page_entries(compound)
        elif kind in ("class", "struct", "namespace", "concept", "file"):
            entry = compound_entry(compound)
            if entry["text"]:
                yield entry
            # A header's functions are also its namespace's; their ID says which page they are on.
            members |= dict(member_entries(compound)) if kind != "file" else {
                key: entry for key, entry in member_entries(compound) if key not in members and key.startswith(f"{compound.get('id')}_1")}
    yield from members.values()


if __name__ == "__main__":
    if len(sys.argv) not in (2, 3):
        sys.exit(__doc__)
    found = list(entries(Path(sys.argv[1])))
    if len(sys.argv) == 3:
        found += json.loads(Path(sys.argv[2]).read_text(encoding="utf-8"))
    json.dump(found, sys.stdout, ensure_ascii=False, indent=0)
