#!/usr/bin/env python3
"""Fails if a word of the pages or of the headers' comments is in neither hunspell's British dictionary nor words.txt.

Usage: spelling.py PAGES

PAGES is the folder of the pages. Names of the code are no words: what stands in backticks or in a block of code, and what has
an underscore, a digit, or a capital behind its first letter. A word of words.txt that occurs nowhere is an error too.
"""

import re
import subprocess
import sys
from pathlib import Path

ROOT = Path(__file__).resolve().parents[3]
WORDS = Path(__file__).with_name("words.txt")


def without_code(text):
    text = re.sub(r"^ *(```+|~~~+).*?^ *\1 *$", " ", text, flags=re.DOTALL | re.MULTILINE)
    text = re.sub(r"^(?: {4}|\t).*$", " ", text, flags=re.MULTILINE)
    text = re.sub(r"(`+)(?:(?!\1).)+\1", " ", text, flags=re.DOTALL)
    text = re.sub(r"<!--.*?-->|<code>.*?</code>|<[^>]*>|\{#[^}]*\}|\]\([^)]*\)|https?://[^\s)>]+", " ", text, flags=re.DOTALL)
    return text


def comments(text):
    """A header's comments. A block of code in one is indented there as it is in a page."""
    lines = [match[1] if (match := re.match(r" *///?<? ?(.*)", line)) else line.partition("///< ")[2] for line in text.splitlines()]
    return "\n".join(lines)


def words_of(text):
    for match in re.finditer(r"[\w'./:-]+", without_code(text)):
        for part in re.split(r"[./:-]+", match[0]):
            word = part.strip("'").removesuffix("'s")
            if re.fullmatch(r"[A-Za-z]?[a-z']*[a-z]", word) and "_" not in match[0] and "::" not in match[0] and not re.search(r"\.(h|cpp|md|html|py|sh)$", match[0]):
                yield word


def main(pages):
    places = {}
    texts = [(file.name, file.read_text(encoding="utf-8")) for file in sorted(pages.glob("*.md"))]
    texts += [(str(file.relative_to(ROOT)), comments(file.read_text(encoding="utf-8")))
              for folder in ("krm", "platform") for file in sorted((ROOT / folder).rglob("*.h"))]
    for name, text in texts:
        for word in words_of(text):
            places.setdefault(word, name)
    if len(places) < 1000:
        sys.exit(f"only {len(places)} words were found")
    checked = subprocess.run(["hunspell", "-d", "en_GB", "-l"], input="\n".join(places), capture_output=True, encoding="utf-8", check=True)
    unknown = set(checked.stdout.split())
    known = set(WORDS.read_text(encoding="utf-8").split())
    faults = [f"{places[word]}: {word}" for word in sorted(unknown - known) if word in places]
    faults += [f"{WORDS.name}: {word} isn't needed" for word in sorted(known - unknown)]
    print(f"{len(places)} words in {len(texts)} texts, {len(known)} of them of {WORDS.name}")
    sys.exit("\n".join(faults) if faults else 0)


if __name__ == "__main__":
    if len(sys.argv) != 2:
        sys.exit(__doc__)
    main(Path(sys.argv[1]))
