#!/usr/bin/env python3
"""Checks krm.natvis without Visual Studio: its elements by a table, and what it shows by an interpreter of its own.

    check_natvis.py VIEWS PROGRAM

The interpreter runs in gdb, where every expression of the file is evaluated on an object of objects.cpp that makes it count,
and what comes out is compared. An expression that no object reaches is an error, so that each member's name is proved.
Skipped where gdb is not installed, or has no Python.
"""

import re
import sys
from pathlib import Path
from xml.etree import ElementTree

try:
    import gdb
except ImportError:
    gdb = None

# For each element: the attributes that it must have, those that it may have, and its elements in their order, each with how
# often it comes. An element without elements is an expression, or DisplayString's text with expressions in braces.
ANY, ONE, MAYBE = (0, 1000), (1, 1), (0, 1)
SCHEMA = {
    "AutoVisualizer": ((), (), [("Type", (1, 1000))]),
    "Type": (("Name",), ("Inheritable", "Priority"), [("DisplayString", ANY), ("Expand", MAYBE)]),
    "DisplayString": ((), ("Condition",), None),
    # The views within may stand in any order.
    "Expand": ((), ("HideRawView",), {"Item", "ArrayItems", "LinkedListItems", "ExpandedItem", "Synthetic"}),
    "Item": (("Name",), ("Condition",), None),
    "ExpandedItem": ((), ("Condition",), None),
    "Synthetic": (("Name",), ("Condition",), [("DisplayString", ANY), ("Expand", MAYBE)]),
    "ArrayItems": ((), ("Condition",), [("Size", ONE), ("ValuePointer", ONE)]),
    "LinkedListItems": ((), ("Condition",),
                        [("Size", MAYBE), ("HeadPointer", ONE), ("NextPointer", ONE), ("ValueNode", ONE)]),
    "Size": ((), ("Condition",), None),
    "ValuePointer": ((), (), None),
    "HeadPointer": ((), (), None),
    "NextPointer": ((), (), None),
    "ValueNode": ((), (), None),
}
NAMESPACE = "{http://schemas.microsoft.com/vstudio/debugger/natvis/2010}"

# What is shown: the object itself, then what it expands to.
SHOWN = [
    ("shortText", '"P0301"; "P0301"'),
    ("emptyText", '""; ""'),
    ("noNumbers", "{ count=0 }; [count]: 0"),
    ("bytes", "{ count=3 }; [count]: 3; [0]: 65; [1]: 66; [2]: 67"),
    ("texts", '{ count=3 }; [count]: 3; [0]: "text"; [1]: "text"; [2]: "text"'),
    ("nested", "{ count=3 }; [count]: 3; [0]: { count=1 }; [1]: { count=2 }; [2]: { count=3 }"),
    ("*bytes.m_head", "65"),
    ("*cycle", "{ count=4 }; [count]: 4; [0]: 10; [1]: 20; [2]: 30; [3]: 20"),
    ("*negativeCount", "<corrupt: the count is -1>; [count]: -1"),
    ("*lostCount", "<corrupt: the count is 0, the head 0x*>; [count]: 0"),
    ("*lostTail", "<corrupt: the count is 4, the tail 0x*>; [count]: 4; [0]: 10; [1]: 20; [2]: 30; [3]: 40"),
    ("second", "66; 66"),
    ("theEnd", "end"),
    ("noBlock", "no block, position 3; [position]: 3; [size]: 0"),
    ("block", "4 bytes, position 3; [position]: 3; [size]: 4; [0]: 1; [1]: 2; [2]: 171; [3]: 255"),
    ("request", "type 1, ID 2"),
    ("*untyped", "type 1, ID 12"),
    ("error", "kNoSuchAttribute (2100100101)"),
    ("ownCode", "42"),
    ("errors[0]", "kNullArgument (1100100001)"),
    ("errors[1]", "kOutOfMemory (2100100002)"),
    ("errors[2]", "kNoSuchAttribute (2100100101)"),
    ("errors[3]", "kNoSuchElement (2100100102)"),
    ("errors[4]", "kNoSuchGroup (2100100103)"),
    ("errors[5]", "kUnknownValueType (2100100121)"),
    ("errors[6]", "kDifferentTypes (2100100122)"),
    ("errors[7]", "kValueUnset (2100100123)"),
    ("*anyNode", '"Vin"'),
    ("*vin", '"Vin" = "W0L000000Y2000000"'),
    ("*wrongType", "<corrupt: the type of value is 5>"),
    ("vehicle", '"Vehicle"; [attributes]; [0]: "Vin" = "W0L000000Y2000000"; [1]: "Mass" = 1250.5; '
                '[2]: "Offset" = -40 (krm_long); [3]: "Doors" = 5 (krm_ulong); [4]: "Owner" is empty; '
                '[0]: "Ecu"; [1]: "Trailer"; [parent]: 0x*'),
    ("*ecus", '"Ecu"; [0]: "Ecu"; [1]: "Ecu"; [parent]: 0x*'),
]


def wrong_elements(root):
    """Yields what is against the table."""
    if root.tag != f"{NAMESPACE}AutoVisualizer":
        yield f"the outermost element is {root.tag}"
    for element in root.iter():
        name = element.tag.removeprefix(NAMESPACE)
        if name not in SCHEMA:
            yield f"{name} is no element"
            continue
        required, allowed, children = SCHEMA[name]
        for attribute in set(element.keys()) - set(required) - set(allowed):
            yield f"{name} has no attribute {attribute}"
        for attribute in set(required) - set(element.keys()):
            yield f"{name} lacks {attribute}"
        inner = [child.tag.removeprefix(NAMESPACE) for child in element]
        if children is None:
            if inner:
                yield f"{name} has {inner}"
            if not (element.text or "").strip():
                yield f"{name} is empty"
            continue
        if any(text and text.strip() for text in [element.text, *(child.tail for child in element)]):
            yield f"{name} has text"
        if isinstance(children, set):
            yield from (f"{name} has {child}" for child in inner if child not in children)
            continue
        order = [child for child, _ in children]
        if any(child not in order for child in inner) or inner != sorted(inner, key=order.index):
            yield f"{name} has {inner}, and not {order}"
        for child, (least, most) in children:
            if not least <= inner.count(child) <= most:
                yield f"{name} has {inner.count(child)} {child}"
        # The first text whose condition holds is shown: one without a condition hides those behind it.
        conditions = [child.get("Condition") for child in element if child.tag == f"{NAMESPACE}DisplayString"]
        if None in conditions[:-1] or (conditions and conditions[-1] is not None):
            yield f"{element.get('Name')}: the last DisplayString, and no other, is the one without a condition"


def read(path):
    parser = ElementTree.XMLParser(target=ElementTree.TreeBuilder())
    return ElementTree.parse(path, parser).getroot()


def pieces(text):
    """Text and expressions in turn, those without their braces."""
    for piece in re.findall(r"\{\{|\}\}|\{[^{}]+\}|[^{}]+", text):
        if piece in ("{{", "}}"):
            yield piece[0], None
        elif piece.startswith("{"):
            yield None, piece[1:-1]
        else:
            yield piece, None


def expressions(root):
    """Every expression of the file, with the element that it stands in."""
    for element in root.iter():
        name = element.tag.removeprefix(NAMESPACE)
        if element.get("Condition"):
            yield element, element.get("Condition")
        if name == "DisplayString":
            yield from ((element, expression) for _, expression in pieces(element.text) if expression)
        elif SCHEMA[name][2] is None:
            yield element, element.text.strip()


class Interpreter:
    """Shows objects of the program that gdb has stopped, as the file says."""

    def __init__(self, root):
        self.types = [(type, self.pattern(type.get("Name"))) for type in root]
        self.reached = set()

    @staticmethod
    def pattern(name):
        return re.compile(re.escape(name).replace(r"\*", "(.+)") + "$")

    def type_of(self, type):
        """The file's element for a class, or that of its nearest base; and what its wildcards stand for."""
        type = type.strip_typedefs().unqualified()
        if type.code != gdb.TYPE_CODE_STRUCT:
            return None
        for element, pattern in self.types:
            match = pattern.match(type.name)
            if match:
                return element, match.groups()
        for field in type.fields():
            found = field.is_base_class and self.type_of(field.type)
            if found:
                return found
        return None

    @staticmethod
    def members(type):
        for field in type.strip_typedefs().fields():
            if field.is_base_class:
                yield from Interpreter.members(field.type)
            else:
                yield field.name

    def evaluate(self, element, expression, object, wildcards=()):
        """The value of an expression within `object`, which may end in a format."""
        self.reached.add((element, expression))
        text = re.sub(r",[du]$", "", expression)
        for number, wildcard in enumerate(wildcards, 1):
            text = text.replace(f"$T{number}", wildcard)
        names = set(self.members(object.type))
        gdb.set_convenience_variable("object", object.address)
        # What is no member stays as it is; gdb knows it as a type or not at all.
        text = re.sub(r"(?<![\w.>:$])[A-Za-z_]\w*",
                      lambda name: "$object" if name[0] == "this" else
                      f"$object->{name[0]}" if name[0] in names else name[0], text)
        return gdb.parse_and_eval(text)

    def holds(self, element, object, wildcards):
        condition = element.get("Condition")
        return condition is None or bool(self.evaluate(element, condition, object, wildcards))

    def display(self, object):
        type = object.type.strip_typedefs()
        if type.name and re.match(r"std::(__cxx11::)?basic_string<char", type.name):
            return '"' + object["_M_dataplus"]["_M_p"].string() + '"'  # Visual Studio has its own view of it
        found = self.type_of(type)
        if not found:
            return f"{int(object):#x}" if type.code == gdb.TYPE_CODE_PTR else self.plain(object)
        element, wildcards = found
        for shown in element.findall(f"{NAMESPACE}DisplayString"):
            if self.holds(shown, object, wildcards):
                return "".join(text if expression is None
                               else self.display(self.evaluate(shown, expression, object, wildcards))
                               for text, expression in pieces(shown.text))
        return "?"

    @staticmethod
    def plain(number):
        return str(float(number)) if number.type.strip_typedefs().code == gdb.TYPE_CODE_FLT else str(int(number))

    def expand(self, expand, object, wildcards):
        """What an Expand shows of `object`, a text for each line."""
        for view in expand if expand is not None else ():
            if not self.holds(view, object, wildcards):
                continue
            kind = view.tag.removeprefix(NAMESPACE)
            inner = {child.tag.removeprefix(NAMESPACE): child for child in view}

            def value(name):
                return self.evaluate(inner[name], inner[name].text.strip(), object, wildcards)

            if kind == "Item":
                yield f"{view.get('Name')}: {self.display(self.evaluate(view, view.text.strip(), object, wildcards))}"
            elif kind == "ExpandedItem":
                yield self.display(self.evaluate(view, view.text.strip(), object, wildcards))
            elif kind == "Synthetic":
                yield view.get("Name")
                yield from self.expand(inner["Expand"], object, wildcards)
            elif kind == "ArrayItems":
                first = value("ValuePointer")
                yield from (f"[{index}]: {self.display(first[index])}" for index in range(int(value("Size"))))
            else:
                yield from self.linked(inner, value)

    def linked(self, inner, value):
        node, index = value("HeadPointer"), 0
        size = int(value("Size")) if "Size" in inner else None
        while int(node) and index != size:
            object = node.dereference()
            shown = self.evaluate(inner["ValueNode"], inner["ValueNode"].text.strip(), object)
            yield f"[{index}]: {self.display(shown)}"
            node, index = self.evaluate(inner["NextPointer"], inner["NextPointer"].text.strip(), object), index + 1

    def lines(self, object):
        element, wildcards = self.type_of(object.type)
        return "; ".join([self.display(object),
                          *self.expand(element.find(f"{NAMESPACE}Expand"), object, wildcards)])


def inside():
    """In gdb: writes what the file shows of each object, then what it never evaluated."""
    root = read(gdb.parameter("args"))
    interpreter = Interpreter(root)
    for name, _ in SHOWN:
        try:
            text = interpreter.lines(gdb.parse_and_eval(name))
        except (gdb.error, TypeError) as error:
            text = f"{type(error).__name__}: {error}"
        print(f"@@@ {name}\n{text}")
    unreached = [expression for key in expressions(root) if key not in interpreter.reached for expression in [key[1]]]
    print("@@@ never evaluated\n" + "\n".join(unreached))


def outside(views, program):
    import sessions
    from run_gdb import find_gdb, session

    path = Path(views) / "krm.natvis"
    try:
        wrong = list(wrong_elements(read(path)))
    except ElementTree.ParseError as error:
        wrong = [f"{path}: {error}"]
    for text in wrong:
        print(text)
    if wrong:
        return 1
    output = session(find_gdb(), program, ["break Stop", "run", "up", f"set args {path}", f"source {__file__}"])
    return sessions.compare(sessions.marked(output), SHOWN + [("never evaluated", "")])


if gdb:
    inside()
elif __name__ == "__main__":
    sys.exit(outside(*sys.argv[1:]))
