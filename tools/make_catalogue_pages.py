#!/usr/bin/env python3
"""Makes the catalogue of commands as pages: one for each command, one for each record, an index, and a search.

    tools/make_catalogue_pages.py [--nav TEXT=LINK]... [--home LINK] EXAMPLES OUT

EXAMPLES is the program krm_catalogue_examples, OUT the folder for the pages, which is made anew. Each --nav is a link of
the pages' header, beside that to the catalogue's own index; --home is that of the name in front of them. Links are as seen
from OUT. The pages need nothing else and work over file://; their search is bundled by the esbuild of viewer/, for which
`npm ci --prefix viewer` must have run. Everything else is Python's standard library.

Test them with tools/catalogue/test.sh, which says how.

What they say comes from viewer/catalogue.json (tools/make_catalogue.py makes it of the sources), the families' comments in
krm/framework/commands.h, and the program's examples. Written are

    index.html              the commands by family, ID and name; the records
    <NAME><FAMILY>.html     a command, such as GetDTCCmd.html: #request and #answer, a field at #answer.Data.m_strDTC
    <CLASS>.html            a record, or a family's base, with a field at #m_strDTC; :: is a point in the name
    examples/               each message's example as <CLASS>.json and <CLASS>.log.txt
    entries.json            for a search over more than the catalogue: title, kind, url, summary and text of each page; the url
                            as seen from the folder above OUT

A record's fields stand once on each command's page that needs them, in a template for each way in which the log shows them;
the page's script puts copies where a reader opens one.
"""

import argparse
import html
import json
import re
import shutil
import string
import subprocess
import sys
from pathlib import Path

ROOT = Path(__file__).resolve().parent.parent
SOURCES = ROOT / "tools" / "catalogue"
ESBUILD = ROOT / "viewer" / "node_modules" / ".bin" / "esbuild"

# An example that is longer is shown as far as this; its file has all of it.
MOST_LINES = 100


# ---- HTML -------------------------------------------------------------------------------------------------------------

class Html(str):
    """Text that is markup already."""


def markup(*parts):
    """Texts, escaped, and markup; lists of both."""
    made = []
    for part in parts:
        if isinstance(part, (list, tuple)):
            made.append(markup(*part))
        elif part is not None:
            made.append(part if isinstance(part, Html) else html.escape(str(part)))
    return Html("".join(made))


def element(name, *content, **attributes):
    """An element; class_ is the attribute class, data_log data-log, and None leaves one out."""
    given = "".join(f' {key.rstrip("_").replace("_", "-")}="{html.escape(str(value))}"'
                    for key, value in attributes.items() if value is not None)
    return Html(f"<{name}{given}>{markup(*content)}</{name}>")


def breakable(text):
    """Where a long name may be broken: behind each of its words. The pages' script knows the same places."""
    return Html(re.sub(r"(?<=[a-z])(?=[A-Z])|(?<=::)|(?<=[\].])(?=[A-Za-z])", "<wbr>", html.escape(text)))


def code(text):
    return element("code", breakable(text))


def link(url, *content, **attributes):
    return element("a", *content, href=url, **attributes)


def link_list(links, class_=None):
    return element("ul", [element("li", one) for one in links], class_=class_)


def table(caption, columns, rows, class_="fields"):
    head = element("thead", element("tr", [element("th", column, scope="col") for column in columns]))
    body = element("tbody", [markup(row, "\n") for row in rows])
    return element("table", element("caption", caption), head, "\n", body, class_=class_)


# ---- The catalogue ----------------------------------------------------------------------------------------------------

class Catalogue:
    def __init__(self):
        content = json.loads((ROOT / "viewer" / "catalogue.json").read_text("utf-8"))
        self.commands, self.classes = content["commands"], content["classes"]
        self.roles = {}  # by a message's class: its command and direction
        for command in self.commands:
            command["file"] = f"{command['name']}{command['family']}.html"
            self.roles[command["send"]] = (command, "request")
            self.roles[command["receive"]] = (command, "answer")
        text = (ROOT / "krm" / "framework" / "commands.h").read_text("utf-8")
        # type, word and what they are, of each family
        self.families = [(int(number), word, what + rest) for number, what, word, rest in
                         re.findall(r"^    \w+ = (\d+),\s*///< ([^(\n]*) \(`(\w+)`\)(.*)", text, re.M)]
        self.users = {}  # by class: the classes and fields that hold one
        for name, entry in self.classes.items():
            for field in entry["fields"]:
                if held := self.held(field):
                    self.users.setdefault(held, []).append((name, field["name"]))

    def held(self, field):
        """The class of what a field holds, or None."""
        kind = field["element"] or field["type"]
        return kind if kind in self.classes else None

    def with_base(self, name, key):
        """The fields or lines of a class, those of its base first."""
        entry = self.classes[name]
        return (self.classes[entry["base"]][key] if entry["base"] else []) + entry[key]

    def owner(self, name, field):
        base = self.classes[name]["base"]
        return base if base and any(field is of for of in self.classes[base]["fields"]) else name

    def lines(self, name):
        """What the class's dump writes, as pairs of format and path of the field."""
        return tuple((line["format"], line["field"]) for line in self.with_base(name, "lines"))

    def lines_under(self, field, lines):
        """What is written of a record that a field holds, and whether under a prefix of its own."""
        path = field["name"] + ("[]" if field["element"] else "")
        if any(of == path and "=" not in text for text, of in lines):
            return self.lines(self.held(field)), True
        return tuple((text, of[len(path) + 1:]) for text, of in lines if of.startswith(path + ".")), False

    def is_shown(self, name):
        return bool(self.classes[name]["log"])

    def url(self, name, field=None):
        """The place of a class, or of one of its fields."""
        if name in self.roles:
            command, direction = self.roles[name]
            return f"{command['file']}#{direction}" + (f".{field}" if field else "")
        return f"{file_of(name)}" + (f"#{field}" if field else "")

    def messages_with(self, name):
        """The messages in which a record may be, at any depth."""
        found, todo = set(), [name]
        seen = {name}
        while todo:
            for holder, _ in self.users.get(todo.pop(), []):
                if holder in self.roles:
                    found.add(holder)
                if holder not in seen:
                    seen.add(holder)
                    todo.append(holder)
        return [command[key] for command in self.commands for key in ("send", "receive") if command[key] in found]


def file_of(name):
    return name.replace("::", ".") + ".html"


# ---- Tables of fields -------------------------------------------------------------------------------------------------

COLUMNS = ("Field", "Type", "Default", "Meaning", "In the log")


def default_text(field):
    value = field["default"]
    if value is None:
        return "a new one"
    if field["type"].startswith("CKRMMap") or (field["element"] and not value):
        return "empty"
    if isinstance(value, list):
        return f"{len(value)} times {value[0]}" if len(set(value)) == 1 else ", ".join(map(str, value))
    if isinstance(value, bool):
        return element("code", "true" if value else "false")
    return element("code", json.dumps(value, ensure_ascii=False))


class Fields:
    """Tables of fields, and the templates that their records need."""

    def __init__(self, catalogue):
        self.catalogue = catalogue
        self.templates = {}  # by class and lines: the number

    def type_of(self, field):
        held = self.catalogue.held(field)
        if not held:
            return element("code", field["type"])
        before, _, behind = field["type"].partition(held)
        return element("code", before, link(self.catalogue.url(held), breakable(held)), behind)

    def log_of(self, name, path, lines, log):
        """What the log shows of a field: a line for each format."""
        formats = [text for text, of in lines if of == path or of == path + "[]"]
        whole = [text for text in formats if "=" not in text]
        if not formats and any(of.startswith((path + ".", path + "[].")) for _, of in lines):
            return "its fields'"
        if not formats:
            return element("span", "not in the log", class_="no")
        if whole:
            return markup("its fields', behind ", [self.log_text(text, log) for text in whole])
        return [self.log_text(text, log) for text in formats]

    @staticmethod
    def log_text(text, log):
        """A format with the name or prefix that comes first; where that isn't known yet, the script puts it in."""
        if log is None:
            return element("code", breakable(text), class_="line", data_log=text)
        return element("code", breakable(text.replace("%s", log, 1)), class_="line")

    def row(self, name, field, lines, log, anchor, expand):
        catalogue = self.catalogue
        held = catalogue.held(field)
        number = len(catalogue.users[held]) if held else 0
        others = f"used in {number} places" if number > 1 else "used here alone"
        place = None if anchor is None else f"{anchor}{field['name']}"
        kind = [self.type_of(field), " ", element("small", others)] if held else self.type_of(field)
        cells = [
            element("th", link(f"#{place or ''}", breakable(field["name"])), scope="row"),
            element("td", kind, data_label="Type"),
            element("td", default_text(field), data_label="Default"),
            element("td", field["meaning"], data_label="Meaning"),
            element("td", self.log_of(name, field["name"], lines, log), data_label="In the log"),
        ]
        row = element("tr", cells, id=place, data_name=field["name"], tabindex="-1")
        if not held or not expand:
            return row
        inner, has_prefix = catalogue.lines_under(field, lines)
        path = field["name"] + ("[]" if field["element"] else "")
        prefix = next((text for text, of in lines if of == path and "=" not in text), "%s") if has_prefix else "%s"
        count = len(catalogue.with_base(held, "fields"))
        summary = element("summary", f"Fields of {field['name']}: ", element("span", breakable(held)), f", {count}")
        details = element("details", summary, data_template=self.template(held, inner), data_name=field["name"],
                          data_log=prefix if log is None else prefix.replace("%s", log, 1), data_path=place)
        return markup(row, "\n", element("tr", element("td", details, colspan=len(COLUMNS)), class_="inner"))

    def table(self, name, lines, log, anchor, label, expand=True):
        """The fields of a class. `log` is what its lines begin with, `anchor` what the fields' anchors begin with; where one
        isn't known yet, it is None."""
        fields = self.catalogue.with_base(name, "fields")
        if not fields:
            return element("p", "No fields.")
        return table(label, COLUMNS, [self.row(name, field, lines, self.log_name(name, field, log), anchor, expand)
                                      for field in fields])

    def log_name(self, name, field, log):
        """A message's base writes under its own name."""
        if log is None or name not in self.catalogue.roles:
            return log
        return self.catalogue.classes[self.catalogue.owner(name, field)]["log"] or log

    def template(self, name, lines):
        key = (name, lines)
        if key not in self.templates:
            self.templates[key] = len(self.templates)
        return f"t{self.templates[key]}"

    def all_templates(self):
        """Every template that has been asked for, and those that these ask for."""
        made = []
        while len(made) < len(self.templates):
            name, lines = list(self.templates)[len(made)]
            content = self.table(name, lines, None, None, f"Fields of {name}")
            made.append(markup(element("template", content, id=f"t{len(made)}"), "\n"))
        return made


# ---- Examples ---------------------------------------------------------------------------------------------------------

def read_examples(program):
    """By class: the JSON, laid out, and the lines of the log."""
    examples = {}
    written = subprocess.run([program], check=True, stdout=subprocess.PIPE).stdout.decode()
    for part in re.split(r"^== ", written, flags=re.M)[1:]:
        name, text, *log = part.rstrip("\n").split("\n")
        content = json.loads(text)
        if json.dumps(content, ensure_ascii=False, separators=(",", ":")) != text:
            sys.exit(f"{name}: the example would not stay as the library writes it")
        examples[name] = (laid_out(content).split("\n"), log)
    return examples


def laid_out(value, indent=""):
    """JSON of several lines; what holds neither objects nor lists stays on one."""
    inner = indent + "  "
    if isinstance(value, dict) and value:
        members = (f"{inner}{json.dumps(key)}: {laid_out(part, inner)}" for key, part in value.items())
        return "{\n" + ",\n".join(members) + f"\n{indent}}}"
    if isinstance(value, list) and any(isinstance(part, (dict, list)) for part in value):
        return "[\n" + ",\n".join(inner + laid_out(part, inner) for part in value) + f"\n{indent}]"
    return json.dumps(value, ensure_ascii=False)


def shown(lines, direction, form, file):
    if not lines:
        return None
    count = f"{len(lines)} {'line' if len(lines) == 1 else 'lines'}"
    rest = f"The first {MOST_LINES} of {count}. " if len(lines) > MOST_LINES else None
    text = element("pre", "\n".join(lines[:MOST_LINES]), tabindex="0", role="region",
                   aria_label=f"Example of the {direction} {form}")
    return element("details", element("summary", f"Example {form}, {count}"), text,
                   element("p", rest, link(file, f"All of it, {form}")) if rest else None,
                   open="" if len(lines) <= 20 else None, class_="example")


# ---- Pages ------------------------------------------------------------------------------------------------------------

class Site:
    def __init__(self, out, home, nav, examples):
        self.out, self.examples = out, examples
        self.catalogue = Catalogue()
        self.page = string.Template((SOURCES / "page.html").read_text("utf-8"))
        self.home = home
        self.nav = markup([markup(link(url, text), "\n") for text, url in nav])
        self.entries = []

    def write(self, file, kind, title, description, content, text, summary=None):
        self.entries.append({"title": title, "kind": kind, "url": f"{self.out.name}/{file}", "summary": summary or description,
                             "text": text})
        (self.out / file).write_text(self.page.substitute(
            title=html.escape(title), description=html.escape(description), home=html.escape(self.home), nav=self.nav,
            content=content), "utf-8")

    def words(self, name):
        """What a class says of itself, to be searched."""
        entry = self.catalogue.classes[name]
        return " ".join([name, entry["comment"], *(f"{field['name']} {field['meaning']}" for field in entry["fields"])])

    def message(self, command, name, direction, fields):
        catalogue = self.catalogue
        entry = catalogue.classes[name]
        lines = catalogue.lines(name) if entry["log"] else ()
        json_lines, log_lines = self.examples[name]
        folder = self.out / "examples"
        (folder / f"{name}.json").write_text("\n".join(json_lines) + "\n", "utf-8")
        if log_lines:
            (folder / f"{name}.log.txt").write_text("\n".join(log_lines) + "\n", "utf-8")
        users = catalogue.users.get(name)
        return element(
            "section",
            element("h2", direction.capitalize(), " ", code(name), id=direction, tabindex="-1"), "\n",
            element("p", entry["comment"]), "\n",
            None if entry["log"] else element("p", "It writes nothing into the operation log.", class_="no"),
            element("p", "It is also held by ", self.places(users), ".") if users else None,
            fields.table(name, lines, entry["log"] or "%s", f"{direction}.", f"Fields of the {direction}"), "\n",
            shown(json_lines, direction, "as JSON", f"examples/{name}.json"), "\n",
            shown(log_lines, direction, "as log", f"examples/{name}.log.txt"), "\n")

    def places(self, users):
        return [markup(", " if i else "", link(self.catalogue.url(holder, field), code(f"{holder}::{field}")))
                for i, (holder, field) in enumerate(users)]

    def family_of(self, word):
        return next(family for family in self.catalogue.families if family[1] == word)

    def numbers(self, command):
        """The two numbers that every message of a command has, with the lines that they write."""
        number, word, what = self.family_of(command["family"])
        log = f"CKRMCBase{word}AdaptData::ErrWriteOperationLog" if self.catalogue.is_shown(command["send"]) else None
        rows = [("m_dwCommandType", number, markup("family ", link(f"index.html#{word}", f"{word}, {what}"))),
                ("m_dwCommandID", command["id"], f"{command['name']} within the family")]
        def row(field, value, meaning):
            line = (element("code", breakable(f"[{log}] {field}={value}"), class_="line") if log
                    else element("span", "not in the log", class_="no"))
            return element("tr", element("th", field, scope="row"), element("td", element("code", value), data_label="Value"),
                           element("td", meaning, data_label="Meaning"), element("td", line, data_label="In the log"),
                           id=field, tabindex="-1")

        return table("Type and ID", ("Field", "Value", "Meaning", "In the log"), [row(*values) for values in rows],
                     "fields numbers")

    def command(self, command):
        fields = Fields(self.catalogue)
        send, receive = command["send"], command["receive"]
        content = markup(
            element("h1", command["name"]), "\n",
            element("p", f"Type {command['type']} ({command['family']}), ID {command['id']}. ",
                    link("#request", "Request"), " · ", link("#answer", "Answer"), class_="where"), "\n",
            self.numbers(command), "\n",
            self.message(command, send, "request", fields),
            self.message(command, receive, "answer", fields),
            fields.all_templates())
        self.write(command["file"], "command", f"{command['name']} ({command['family']} {command['id']})",
                   self.catalogue.classes[receive]["comment"], content, self.words(send) + " " + self.words(receive),
                   " ".join(self.catalogue.classes[name]["comment"] for name in (send, receive)))

    def record(self, name):
        catalogue = self.catalogue
        entry = catalogue.classes[name]
        fields = Fields(catalogue)
        is_base = name.startswith("CKRMCBase")
        # A structure that has no dump shows what the first class that holds it writes.
        lines = catalogue.lines(name) or tuple(
            (field["logged"], field["name"]) for field in entry["fields"] if field["logged"])
        if is_base:
            word, ending = re.fullmatch(r"CKRMCBase(\w+?)AdaptData(Snd|Rcv)", name).groups()
            key = "send" if ending == "Snd" else "receive"
            used = link_list([link(catalogue.url(command[key]), command["name"])
                              for command in catalogue.commands if command["family"] == word], "columns")
        else:
            holders = [link(catalogue.url(holder, field), code(f"{holder}::{field}"))
                       for holder, field in catalogue.users.get(name, [])]
            messages = [link(catalogue.url(message), f"{catalogue.roles[message][0]['name']} {catalogue.roles[message][1]}")
                        for message in catalogue.messages_with(name)]
            used = markup(element("h3", "Held by"), link_list(holders),
                          element("h3", "In the messages"), link_list(messages, "columns"))
        content = markup(
            element("h1", breakable(name)), "\n",
            element("p", entry["comment"]), "\n",
            element("p", "In the lines of the log, ", element("code", "%s"), " stands for what comes in front: the name of "
                    "the message, and the record's place in it.") if lines and not is_base else None,
            element("p", "It has no dump of its own: what holds it writes its fields, and not everything that holds it does.")
            if not entry["lines"] and entry["fields"] and lines else None,
            fields.table(name, lines, entry["log"] or "%s", "", f"Fields of {name}", expand=False), "\n",
            element("section", element("h2", "Where it is used", id="used", tabindex="-1"), used), "\n")
        self.write(file_of(name), "record", name, entry["comment"], content, self.words(name))

    def index(self, records):
        catalogue = self.catalogue

        def row(command):
            send, receive = (catalogue.classes[command[key]]["comment"] for key in ("send", "receive"))
            return element("tr", element("td", element("code", command["id"]), data_label="ID"),
                           element("th", link(command["file"], command["name"]), scope="row"),
                           element("td", send, data_label="Request"), element("td", receive, data_label="Answer"))

        sections = []
        for number, word, what in catalogue.families:
            rows = [row(command) for command in sorted(catalogue.commands, key=lambda command: command["id"])
                    if command["family"] == word]
            sections.append(markup(
                element("h2", f"{word}: {what}", id=word, tabindex="-1"), "\n",
                table(f"Command type {number}, {len(rows)} {'command' if len(rows) == 1 else 'commands'}",
                      ("ID", "Command", "Request", "Answer"), rows, "fields commands"), "\n"))
        names = [command["name"] for command in catalogue.commands]
        by_name = [link(command["file"], command["name"] if names.count(command["name"]) == 1
                        else f"{command['name']} ({command['family']})")
                   for command in sorted(catalogue.commands, key=lambda command: command["file"].lower())]
        content = markup(
            element("h1", "Catalogue of commands"), "\n",
            element("p", f"All {len(names)} commands that application and engine exchange, each with its request and its "
                    "answer: their fields, the lines that they write into the operation log, and an example. Search for an "
                    "ID, a command, a class, a field or words of its meaning, or paste a line of a log."), "\n",
            link_list([*(link(f"#{word}", f"{word}: {what}") for _, word, what in catalogue.families),
                       link("#names", "By name"), link("#records", "Records")]), "\n",
            sections,
            element("h2", "By name", id="names", tabindex="-1"), "\n",
            link_list(by_name, "columns"), "\n",
            element("h2", "Records", id="records", tabindex="-1"), "\n",
            element("p", "What messages hold, and the bases that they have in common."), "\n",
            link_list([link(file_of(name), code(name)) for name in records], "columns wide"), "\n")
        self.write("index.html", "page", "Catalogue of commands", "All commands, with their fields and lines of the log",
                   content, "catalogue of commands " + " ".join(names))

    def build(self):
        if self.out.exists():
            if any(self.out.iterdir()) and not (self.out / "entries.json").exists():
                sys.exit(f"{self.out} holds something else")
            shutil.rmtree(self.out)
        (self.out / "examples").mkdir(parents=True)
        records = [name for name in self.catalogue.classes if name not in self.catalogue.roles]
        for command in self.catalogue.commands:
            self.command(command)
        for name in records:
            self.record(name)
        self.index(records)
        for name in ("style.css", "page.js"):
            shutil.copyfile(SOURCES / name, self.out / name)
        subprocess.run([ESBUILD, SOURCES / "search.js", f"--outfile={self.out / 'search.js'}", "--bundle", "--minify",
                        "--format=iife", "--charset=utf8", "--target=es2020", "--log-level=warning"], check=True)
        (self.out / "entries.json").write_text(json.dumps(self.entries, ensure_ascii=False, indent=0) + "\n", "utf-8")


def main():
    def nav_link(text):
        name, equal, url = text.partition("=")
        if not equal:
            raise argparse.ArgumentTypeError("TEXT=LINK")
        return name, url

    parser = argparse.ArgumentParser(description="Makes the catalogue of commands as pages.")
    parser.add_argument("--nav", metavar="TEXT=LINK", type=nav_link, action="append", default=[],
                        help="a link of the pages' header")
    parser.add_argument("--home", metavar="LINK", default="index.html", help="where the name in the header leads")
    parser.add_argument("examples", metavar="EXAMPLES", type=Path, help="the program krm_catalogue_examples")
    parser.add_argument("out", metavar="OUT", type=Path, help="the folder for the pages; it is made anew")
    options = parser.parse_args()
    Site(options.out, options.home, options.nav, read_examples(options.examples.resolve())).build()


if __name__ == "__main__":
    main()
