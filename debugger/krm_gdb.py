"""gdb's pretty printers for the library's classes. In gdb: `source krm_gdb.py`; docs/debugging.md has the rest.

They read memory alone and call nothing in the program, so that they serve core files too. What can't be right, such as an
object that isn't constructed yet, shows as `<corrupt: why>`. Whatever is long is read only as far as gdb shows it (`set print
elements`).

Members are found by the names in the debug information, so one code serves words of 32 and 64 bits and every compiler's
layout.
"""

import re

import gdb
import gdb.printing

# krm/core/error_codes.h
KRM_ERROR_NAMES = {
    1100100001: "kNullArgument",
    2100100002: "kOutOfMemory",
    2100100101: "kNoSuchAttribute",
    2100100102: "kNoSuchElement",
    2100100103: "kNoSuchGroup",
    2100100121: "kUnknownValueType",
    2100100122: "kDifferentTypes",
    2100100123: "kValueUnset",
}
# krm/tree/node.h
KRM_KINDS = {"CKRMCAttribute": 1, "CKRMCElement": 2, "CKRMCElementGroup": 3}

# Bases that are shown in a summary, or have nothing to show. `krm::MessageOf<...>` and its like add no member.
KRM_MESSAGE_BASE = "CKRMBaseAdaptationData"
KRM_RECORD_BASE = "CKRMCBaseAdaptDataStructure"
KRM_CONVERTER_BASE = "CKRMCCommandConvSignalData"


class KrmCorrupt(Exception):
    """What is wrong with an object, in words."""


def krm_class(type):
    """The class behind typedefs, `const` and references; its name may be None."""
    type = type.strip_typedefs()
    if type.code in (gdb.TYPE_CODE_REF, gdb.TYPE_CODE_RVALUE_REF):
        type = type.target().strip_typedefs()
    return type.unqualified()


def krm_bases(type):
    """The class itself and all its bases, as types."""
    yield type
    for field in type.fields():
        if field.is_base_class:
            yield from krm_bases(krm_class(field.type))


def krm_base_names(type):
    return [base.name for base in krm_bases(type)]


def krm_limit(whole):
    """How many of `whole` elements or bytes gdb shows."""
    limit = gdb.parameter("print elements")
    return min(whole, limit) if limit else whole


def krm_readable(address, size=1):
    try:
        gdb.selected_inferior().read_memory(address, size)
        return True
    except (gdb.error, OverflowError):
        return False


def krm_word(address):
    """The pointer at an address, as a number."""
    pointer = gdb.lookup_type("void").pointer()
    return int(gdb.Value(address).cast(pointer.pointer()).dereference())


def krm_symbol(address):
    """What gdb knows of an address: the symbol before it, and its section."""
    return gdb.execute(f"info symbol {address}", to_string=True)


def krm_check_virtual(table):
    """Raises KrmCorrupt unless `table`, the first word of an object, can be a table of virtual functions."""
    word = gdb.lookup_type("void").pointer().sizeof
    address = int(table)
    if address == 0:
        raise KrmCorrupt("not constructed, its table of virtual functions is null")
    try:
        # The first function is there, and the table doesn't lie among code or variables.
        place = krm_symbol(address)
        elsewhere = re.search(r" in section \.(text|data|bss)\b(?!\.)", place)
        if address % word == 0 and krm_readable(krm_word(address)) and not elsewhere:
            return
    except gdb.error:
        pass
    raise KrmCorrupt(f"not constructed, there is no table of virtual functions at 0x{address:x}")


def krm_own_class(value):
    """`value` as an object of the class that it was constructed as, where that is known."""
    if value.address is None:
        return value
    type = krm_class(value.type)
    try:
        word = gdb.lookup_type("void").pointer().sizeof
        symbol = re.match(r"vtable for (.+) \+ (\d+) in section ", krm_symbol(krm_word(int(value.address))))
        # Functions begin behind two words.
        if symbol and int(symbol[2]) == 2 * word and symbol[1] != type.name:
            own = gdb.lookup_type(symbol[1])
            if type.name in krm_base_names(own):
                return value.address.cast(own.pointer()).dereference()
    except gdb.error:
        pass
    return value


def krm_fields(value, type=None):
    """Name and value of each data member, those of the bases first. Checks the table of virtual functions on its way."""
    for field in (type or krm_class(value.type)).fields():
        if not hasattr(field, "bitpos"):
            continue  # a static member
        if field.is_base_class:
            yield from krm_fields(value[field], krm_class(field.type))
        elif field.name and field.name.startswith("_vptr"):
            krm_check_virtual(value[field])
        else:
            yield field.name, value[field]


def krm_shown(value):
    """A value as it is to be shown: bytes are numbers here, and no characters."""
    type = value.type.strip_typedefs()
    if type.code == gdb.TYPE_CODE_INT and type.sizeof == 1:
        return value.cast(gdb.lookup_type("int"))
    return value


def krm_check(value):
    """Raises KrmCorrupt unless a class's own table of virtual functions can be one."""
    for field in krm_class(value.type).fields():
        if field.is_base_class:
            krm_check(value[field])
        elif field.name and field.name.startswith("_vptr"):
            krm_check_virtual(value[field])


def krm_pointer(address, type):
    return gdb.Value(int(address)).cast(type.pointer())


class KrmPrinter:
    """What all printers share: no exception, whatever the object holds."""

    def __init__(self, value):
        self.value = value
        self.type = krm_class(value.type)

    def to_string(self):
        if not self.type.fields():
            return f"{self.type.name} <no debug information of this class>"
        try:
            return self.summary()
        except KrmCorrupt as error:
            return f"{self.type.name} <corrupt: {error}>"
        except gdb.error as error:
            return f"{self.type.name} <corrupt: {error}>"


class KrmExpanding(KrmPrinter):
    """What those share that have something inside. Front ends show a line only of those that haven't."""

    def children(self):
        try:
            yield from self.content()
        except KrmCorrupt as error:
            # Where the object as a whole is corrupt its summary says so.
            if self.sound():
                yield "<corrupt>", f"<corrupt: {error}>"
        except gdb.error as error:
            if self.sound():
                yield "<corrupt>", f"<corrupt: {error}>"

    def sound(self):
        try:
            self.summary()
            return True
        except (KrmCorrupt, gdb.error):
            return False


class KrmString(KrmPrinter):
    """Its text, in quotes."""

    def __init__(self, value):
        super().__init__(value)
        self.text, self.error = None, None
        try:
            self.text = self.read()
        except (KrmCorrupt, gdb.error) as error:
            self.error = error

    def read(self):
        address, length = self.words()
        if length >= 1 << 32 or not krm_readable(address) or not krm_readable(address + length):
            raise KrmCorrupt(f"no text of {length} bytes at 0x{address:x}")
        text = krm_pointer(address, gdb.lookup_type("char"))
        if int(text[length]) != 0:
            raise KrmCorrupt(f"no NUL behind its {length} bytes at 0x{address:x}")
        return text.lazy_string(length=length)

    def words(self):
        """The address of the text and its length: the first two words, which every platform's CKRMString has."""
        word = gdb.lookup_type("void").pointer().sizeof
        if self.value.address is not None:
            address = int(self.value.address)
            return krm_word(address), krm_word(address + word)
        # What a function has just returned has no address.
        numbers = [leaf for leaf in self.leaves(self.value)][:2]
        if len(numbers) < 2:
            raise KrmCorrupt("it isn't in memory")
        return int(numbers[0]), int(numbers[1])

    def leaves(self, value):
        for field in value.type.strip_typedefs().fields():
            if hasattr(field, "bitpos"):
                member = value[field]
                if member.type.strip_typedefs().code == gdb.TYPE_CODE_STRUCT:
                    yield from self.leaves(member)
                else:
                    yield member

    def summary(self):
        if self.error:
            raise KrmCorrupt(str(self.error))
        return self.text

    def display_hint(self):
        return "string" if self.text is not None else None


class KrmList(KrmExpanding):
    """Its count, and its elements: each node is checked against its neighbours, so that a walk through it always ends."""

    def summary(self):
        count, head, tail = self.ends()
        return f"{self.type.name} of {count}"

    def ends(self):
        """Its count, and the addresses of its first and last node."""
        krm_check(self.value)
        count, head, tail = int(self.value["m_count"]), int(self.value["m_head"]), int(self.value["m_tail"])
        if count < 0:
            raise KrmCorrupt(f"its count is {count}")
        if count == 0 and (head or tail):
            raise KrmCorrupt("its count is 0, and it has nodes")
        if count > 0 and not (head and tail):
            raise KrmCorrupt(f"its count is {count}, and it has no {'last node' if head else 'nodes'}")
        if count:
            self.check_end("head", head, "previous", 1)
            self.check_end("tail", tail, "next", 0)
        return count, head, tail

    def check_end(self, end, node, outside, link):
        try:
            beyond = self.links(node)[link]
        except gdb.error:
            raise KrmCorrupt(f"its {end} is a wild pointer, 0x{node:x}") from None
        if beyond:
            raise KrmCorrupt(f"its {end} has a {outside} node, 0x{beyond:x}")

    def element_type(self):
        return self.type.template_argument(0)

    def links(self, node):
        """The addresses of the next and the previous node.

        The class of nodes may be missing in the debug information of a program that leaves all work on its lists to the
        library. Then both lie behind the element (docs/interface.md).
        """
        type = self.value["m_head"].type.target().strip_typedefs()
        if type.fields():
            value = krm_pointer(node, type).dereference()
            return int(value["next"]), int(value["prev"])
        word = gdb.lookup_type("void").pointer().sizeof
        behind = node + -(-self.element_type().sizeof // word) * word
        return krm_word(behind), krm_word(behind + word)

    def content(self):
        count, node, tail = self.ends()
        previous = 0
        type = self.element_type()
        for index in range(count):
            try:
                next, back = self.links(node)
            except gdb.error:
                yield f"[{index}]", f"<corrupt: wild pointer 0x{node:x}>"
                return
            if back != previous:
                yield f"[{index}]", f"<corrupt: its previous node is 0x{back:x} and not 0x{previous:x}>"
                return
            yield f"[{index}]", krm_shown(krm_pointer(node, type).dereference())
            if (next == 0) != (index == count - 1) or (node == tail) != (index == count - 1):
                more = "more follow" if next and index == count - 1 else f"it ends after {index + 1}"
                yield f"[{index + 1}]", f"<corrupt: the count is {count}, and {more}>"
                return
            previous, node = node, next

    def display_hint(self):
        try:
            type = self.element_type().strip_typedefs()
            return "array" if type.code != gdb.TYPE_CODE_STRUCT or type.name == "CKRMString" else None
        except (gdb.error, RuntimeError):
            return None


class KrmListIterator(KrmExpanding):
    """The element that it stands on."""

    def summary(self):
        return f"{self.type.name} at {'an element' if int(self.value['m_position']) else 'the end'}"

    def content(self):
        position = int(self.value["m_position"])
        if position:
            yield "element", krm_shown(krm_pointer(position, self.type.template_argument(0)).dereference())


class KrmBinary(KrmPrinter):
    """Its cursor, its size and its bytes."""

    def summary(self):
        krm_check(self.value)
        block, position, size = (int(self.value[name]) for name in ("m_puchBuffer", "m_uiPos", "m_uiSize"))
        if not block:
            return f"{self.type.name} without a block, position {position}"
        if position > size:
            raise KrmCorrupt(f"its position is {position}, and its size {size}")
        if not krm_readable(block) or not krm_readable(block + size - 1):
            raise KrmCorrupt(f"no block of {size} bytes at 0x{block:x}")
        shown = krm_limit(size)
        text = bytes(gdb.selected_inferior().read_memory(block, shown)).hex(" ")
        return f"{self.type.name} of {size} bytes, position {position}: {text}" + ("..." if shown < size else "")


class KrmRecord(KrmExpanding):
    """Its class and its fields, those of its bases first, as if they were its own."""

    def summary(self):
        krm_check(self.value)
        return self.type.name

    def content(self):
        self.summary()
        for name, value in krm_fields(self.value):
            yield name, krm_shown(value)


class KrmError(KrmRecord):
    """Its code with the code's name, and its texts."""

    def summary(self):
        krm_check(self.value)
        code = int(self.value["a_ulReturnCode"])
        name = KRM_ERROR_NAMES.get(code)
        return f"{self.type.name} {code}" + (f" ({name})" if name else "")


class KrmMessage(KrmRecord):
    """Command and direction, class, type and ID; then its fields as a record's."""

    def summary(self):
        krm_check(self.value)
        (_, type), (_, id) = self.type_and_id()
        described = f"{self.type.name}, type {int(type)}, ID {int(id)}"
        command = self.command()
        return f"{command} ({described})" if command else described

    def type_and_id(self):
        """The first two members of the imported base, whatever its platform calls them."""
        base = self.value
        while krm_class(base.type).name != KRM_MESSAGE_BASE:
            base = base[next(field for field in krm_class(base.type).fields() if field.is_base_class)]
        fields = krm_fields(base)
        return next(fields), next(fields)

    def command(self):
        """For example "GetDTC answer"; empty for a class that is no single command's."""
        names = krm_base_names(self.type)
        name = None
        for base in names:
            # Clang writes numbers in place of the text, and not all of them.
            found = re.match(r'krm::MessageOf<.*krm::CommandName<.*"(\w+)"', base)
            name = name or (found and found[1])
        if not name:
            found = re.match(r"CKRMC(?!Base)(\w+)(?:Cmd|Vdc|Dsdi|Ucc|Dwt)Ada?ptData(?:Snd|Rcv)$", self.type.name)
            name = found and found[1]
        if not name:
            return ""
        directions = [base[-3:] for base in names if re.match(r"CKRMCBase\w+(Snd|Rcv)$", base)]
        return name + {"Snd": " request", "Rcv": " answer"}[directions[0]] if directions else name

    def content(self):
        self.summary()
        shown = {name for name, _ in self.type_and_id()}
        for name, value in krm_fields(self.value):
            if name not in shown:
                yield name, krm_shown(value)


class KrmNode(KrmPrinter):
    """What the tree's nodes share: their name, and the walk through a chain."""

    def summary(self):
        krm_check(self.value)
        kind = int(self.value["m_ulKind"])
        if kind != KRM_KINDS.get(self.kind_name(), kind):
            raise KrmCorrupt(f"its kind is {kind}")
        name = KrmString(self.value["m_strName"])
        return f"{self.type.name} {self.quoted(name.summary())}"

    def kind_name(self):
        return next((name for name in krm_base_names(self.type) if name in KRM_KINDS), None)

    @staticmethod
    def quoted(text):
        """A lazy string as gdb writes it, in one piece."""
        return text.value().format_string() if text.length else '""'

    def chain(self, first, last, kind):
        """The nodes of a chain as `kind`, each checked against its neighbours and its parent; at the end an error, if any."""
        node, previous, end = int(self.value[first]), 0, int(self.value[last])
        type = gdb.lookup_type(kind)
        while node:
            try:
                value = krm_pointer(node, type).dereference()
                next, back, parent = (int(value[name]) for name in ("m_pcNext", "m_pcPrev", "m_pcParent"))
            except gdb.error:
                yield None, f"<corrupt: wild pointer 0x{node:x}>"
                return
            if back != previous:
                yield None, f"<corrupt: its previous node is 0x{back:x} and not 0x{previous:x}>"
                return
            if self.value.address is not None and parent != int(self.value.address):
                yield None, f"<corrupt: its parent is 0x{parent:x}>"
                return
            yield value, None
            previous, node = node, next
        if previous != end:
            yield None, f"<corrupt: the last node is 0x{previous:x} and not 0x{end:x}>"


class KrmAttribute(KrmNode):
    """Its name and its value, with the type of an integer."""

    # krm/tree/attribute.h
    TYPES = {1: "CKRMString", 2: "double", 3: "krm_long", 4: "krm_ulong"}

    def summary(self):
        return f"{super().summary()} = {self.text()}"

    def held(self):
        """Its value, or a text where it has none that can be read."""
        type, cell = int(self.value["m_ulValueType"]), int(self.value["m_pValue"])
        if type == 0:
            return "<empty>"
        if type not in self.TYPES:
            return f"<corrupt: its type of value is {type}>"
        value = krm_pointer(cell, gdb.lookup_type(self.TYPES[type])).dereference()
        try:
            value.fetch_lazy()
            return value
        except gdb.error:
            return f"<corrupt: wild pointer 0x{cell:x}>"

    def text(self):
        value = self.held()
        if isinstance(value, str):
            return value
        name = value.type.name
        if name == "CKRMString":
            try:
                return self.quoted(KrmString(value).summary())
            except KrmCorrupt as error:
                return f"<corrupt: {error}>"
        return value.format_string() + (f" ({name})" if name.startswith("krm_") else "")


class KrmElement(KrmNode, KrmExpanding):
    """Its attributes, and each group of children under the children's name."""

    def content(self):
        self.summary()
        for attribute, error in self.chain("m_pcFirstAttribute", "m_pcLastAttribute", "CKRMCAttribute"):
            if error:
                yield "@", error
                return
            printer = KrmAttribute(attribute)
            yield f"@{self.bare(printer)}", printer.held()
        for group, error in self.chain("m_pcFirstGroup", "m_pcLastGroup", "CKRMCElementGroup"):
            if error:
                yield "...", error
                return
            yield self.bare(KrmNode(group)), group

    @staticmethod
    def bare(node):
        """The node's name without quotes."""
        name = KrmString(node.value["m_strName"])
        return f"<corrupt: {name.error}>" if name.error else KrmNode.quoted(name.text)[1:-1]


class KrmElementGroup(KrmNode, KrmExpanding):
    """Its elements."""

    def content(self):
        self.summary()
        elements = self.chain("m_pcFirstElement", "m_pcLastElement", "CKRMCElement")
        for index, (element, error) in enumerate(elements):
            yield f"[{index}]", error or element


class KrmPrinters(gdb.printing.PrettyPrinter):
    """Finds the printer of a class by its name or, so that a program's own records and messages have one, by its bases."""

    BY_NAME = {
        "CKRMString": KrmString,
        "CKRMBinary": KrmBinary,
        "CKRMError": KrmError,
        KRM_MESSAGE_BASE: KrmMessage,
        KRM_RECORD_BASE: KrmRecord,
        "CKRMCNode": KrmNode,
        "CKRMCAttribute": KrmAttribute,
        "CKRMCElement": KrmElement,
        "CKRMCElementGroup": KrmElementGroup,
    }

    def __init__(self):
        super().__init__("krm")

    def __call__(self, value):
        type = krm_class(value.type)
        if type.code != gdb.TYPE_CODE_STRUCT:
            return None
        printer = self.printer_of(type)
        if printer is None:
            return None
        if value.type.strip_typedefs().code != gdb.TYPE_CODE_STRUCT:
            value = value.referenced_value()
        # What stands behind a pointer to a base is shown whole.
        if issubclass(printer, (KrmRecord, KrmNode)):
            value = krm_own_class(value)
            printer = self.printer_of(krm_class(value.type))
        return printer(value)

    def printer_of(self, type):
        for base in krm_bases(type):
            if base.name is None:
                continue
            if base.name in self.BY_NAME:
                return self.BY_NAME[base.name]
            if base.name.startswith("CKRMList<"):
                return KrmList
            if base.name.startswith("CKRMListIterator<"):
                return KrmListIterator
        # Some records are plain structures.
        if type.name is not None and type.name.startswith("CKRMC") and KRM_CONVERTER_BASE not in type.name:
            return KrmRecord
        return None


gdb.printing.register_pretty_printer(gdb.current_objfile(), KrmPrinters(), replace=True)
