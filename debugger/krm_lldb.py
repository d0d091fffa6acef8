"""lldb's formatters for the library's classes. In lldb: `command script import krm_lldb.py`; docs/debugging.md has the rest.

They read memory alone and evaluate no expression in the program. What can't be right, such as an object that isn't
constructed yet, shows as `<corrupt: why>`. Of a long list only the elements that lldb shows are read
(target.max-children-count), of a long text or block only the bytes (target.max-string-summary-length).

lldb picks formatters by the names of classes. For a record or message of a program's own they are asked for once:

    type summary add -w krm -e -F krm_lldb.summary PaintAnswer
    type synthetic add -w krm -l krm_lldb.Children PaintAnswer
"""

import re

import lldb

# krm/core/error_codes.h
ERROR_NAMES = {
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
KINDS = {"CKRMCAttribute": 1, "CKRMCElement": 2, "CKRMCElementGroup": 3}

# These are a line each; all others expand.
LINES = ("CKRMString", "CKRMBinary", "CKRMCAttribute")
CLASSES = r"^CKRM(Error|BaseAdaptationData|List<.+>|C[A-Z].*)$"


class Corrupt(Exception):
    """What is wrong with an object, in words."""


class Unknown(Corrupt):
    """The debug information lacks a class."""

    def __init__(self):
        super().__init__("no debug information of this class")


class Memory:
    """The program's memory."""

    def __init__(self, value):
        self.target = value.GetTarget()
        self.process = value.GetProcess()
        self.word = self.target.GetAddressByteSize()

    def bytes(self, address, size):
        error = lldb.SBError()
        read = self.process.ReadMemory(address, size, error) if size else b""
        if error.Fail() or read is None or len(read) != size:
            raise Corrupt(f"wild pointer 0x{address:x}")
        return read

    def pointer(self, address):
        error = lldb.SBError()
        read = self.process.ReadPointerFromMemory(address, error)
        if error.Fail():
            raise Corrupt(f"wild pointer 0x{address:x}")
        return read

    def limit(self, setting):
        values = lldb.SBDebugger.GetInternalVariableValue(setting, self.target.GetDebugger().GetInstanceName())
        return int(values.GetStringAtIndex(0))


def raw(value):
    """The object itself, without a view of its children, and behind a reference."""
    value = value.GetNonSyntheticValue()
    return value.Dereference() if value.GetType().IsReferenceType() else value


def class_of(value):
    return value.GetType().GetCanonicalType().GetUnqualifiedType()


def bases(type):
    """The class itself and all its bases, none by a name that it has elsewhere."""
    type = type.GetCanonicalType()
    yield type
    for index in range(type.GetNumberOfDirectBaseClasses()):
        yield from bases(type.GetDirectBaseClassAtIndex(index).GetType())


def base_names(type):
    return [base.GetName() for base in bases(type)]


def parents(value):
    """The names of its direct bases, by which an object's parts are called."""
    type = class_of(value)
    return {type.GetDirectBaseClassAtIndex(i).GetName() for i in range(type.GetNumberOfDirectBaseClasses())}


def fields(value):
    """Each data member, those of the bases first."""
    inherited = parents(value)
    for index in range(value.GetNumChildren()):
        child = value.GetChildAtIndex(index)
        if child.GetName() in inherited:
            yield from fields(child)
        elif child.GetName() and not child.GetName().startswith("_vptr"):
            yield child


def number(value, name):
    member = value.GetChildMemberWithName(name)
    if not member.IsValid():
        raise Unknown
    error = lldb.SBError()
    result = member.GetValueAsUnsigned(error, 0)
    if error.Fail():
        raise Corrupt(f"{name} can't be read")
    return result


def signed(value, name):
    result = number(value, name)
    return result - (1 << 32) if result >= 1 << 31 else result


def address_of(value):
    return value.GetLoadAddress()


def check(value):
    """Raises Corrupt unless the object begins with what can be a table of virtual functions."""
    if not class_of(value).IsPolymorphicClass() or address_of(value) == lldb.LLDB_INVALID_ADDRESS:
        return
    memory = Memory(value)
    table = memory.pointer(address_of(value))
    if table == 0:
        raise Corrupt("not constructed, its table of virtual functions is null")
    try:
        # The first function is there, and the table doesn't lie among code or variables.
        section = memory.target.ResolveLoadAddress(table).GetSection().GetName()
        memory.bytes(memory.pointer(table), 1)
        if table % memory.word == 0 and section not in (".text", ".data", ".bss"):
            return
    except Corrupt:
        pass
    raise Corrupt(f"not constructed, there is no table of virtual functions at 0x{table:x}")


def text_of(value):
    """A CKRMString in quotes. Its first two words are the text's address and length, on every platform."""
    memory = Memory(value)
    place = address_of(value)
    address, length = memory.pointer(place), memory.pointer(place + memory.word)
    shown = min(length, memory.limit("target.max-string-summary-length"))
    try:
        if length >= 1 << 32 or memory.bytes(address + length, 1) != b"\0":
            raise Corrupt("")
        text = memory.bytes(address, shown).decode("utf-8", "backslashreplace")
    except Corrupt:
        raise Corrupt(f"no text of {length} bytes at 0x{address:x}") from None
    for character, escaped in ("\\", "\\\\"), ('"', '\\"'), ("\n", "\\n"), ("\t", "\\t"), ("\r", "\\r"), ("\0", "\\0"):
        text = text.replace(character, escaped)
    return f'"{text}"' + ("..." if shown < length else "")


class List:
    """A list, walked as far as lldb shows it. Each node is checked against its neighbours, so that every walk ends."""

    def __init__(self, value):
        check(value)
        self.memory = Memory(value)
        self.element = class_of(value).GetTemplateArgumentType(0)
        self.count = signed(value, "m_count")
        head, tail = number(value, "m_head"), number(value, "m_tail")
        if self.count < 0:
            raise Corrupt(f"its count is {self.count}")
        if self.count == 0 and (head or tail):
            raise Corrupt("its count is 0, and it has nodes")
        if self.count > 0 and not (head and tail):
            raise Corrupt(f"its count is {self.count}, and it has no {'last node' if head else 'nodes'}")
        self.nodes, self.error = [], None
        self.next, self.tail = head, tail
        self.reach(self.memory.limit("target.max-children-count"))

    def reach(self, length):
        """Walks on until so many nodes are known, or an error is."""
        while self.error is None and len(self.nodes) < min(length, self.count):
            try:
                self.step()
            except Corrupt as error:
                self.error = f"[{len(self.nodes)}]: {error}"

    def step(self):
        node, previous = self.next, self.nodes[-1] if self.nodes else 0
        # Both links lie behind the element (docs/interface.md).
        behind = -(-self.element.GetByteSize() // self.memory.word) * self.memory.word
        try:
            self.next, back = (self.memory.pointer(node + behind + i * self.memory.word) for i in range(2))
        except Corrupt:
            raise Corrupt(f"wild pointer 0x{node:x}") from None
        if back != previous:
            raise Corrupt(f"its previous node is 0x{back:x} and not 0x{previous:x}")
        self.nodes.append(node)
        last = len(self.nodes) == self.count
        if (self.next == 0) != last or (node == self.tail) != last:
            reason = "more follow" if last else f"it ends after {len(self.nodes)}"
            raise Corrupt(f"the count is {self.count}, and {reason}")

    def length(self):
        """How many elements there are, as far as is known."""
        return self.count if self.error is None else len(self.nodes)

    def child(self, value, index):
        self.reach(index + 1)
        if index >= len(self.nodes):
            return None
        return numeric(value.CreateValueFromAddress(f"[{index}]", self.nodes[index], self.element))

    def summary(self):
        return f"{self.count} element{'s' if self.count != 1 else ''}" + (f", <corrupt: {self.error}>" if self.error else "")


def numeric(value):
    """Bytes are numbers here, and no characters."""
    basic = class_of(value).GetBasicType()
    if basic in (lldb.eBasicTypeUnsignedChar, lldb.eBasicTypeSignedChar, lldb.eBasicTypeChar):
        value.SetFormat(lldb.eFormatDecimal if basic == lldb.eBasicTypeSignedChar else lldb.eFormatUnsigned)
    return value


def chain(value, first, last, kind):
    """The nodes of a chain as `kind`, each checked against its neighbours and its parent."""
    memory = Memory(value)
    type = memory.target.FindFirstType(kind)
    node, previous, end = number(value, first), 0, number(value, last)
    for _ in range(memory.limit("target.max-children-count")):
        if not node:
            break
        child = raw(value.CreateValueFromAddress(kind, node, type))
        memory.bytes(node, type.GetByteSize())
        next, back, parent = (number(child, name) for name in ("m_pcNext", "m_pcPrev", "m_pcParent"))
        if back != previous:
            raise Corrupt(f"its previous node is 0x{back:x} and not 0x{previous:x}")
        if parent != address_of(value):
            raise Corrupt(f"its parent is 0x{parent:x}")
        yield child
        previous, node = node, next
    if not node and previous != end:
        raise Corrupt(f"the last node is 0x{previous:x} and not 0x{end:x}")


def name_of(node):
    """A node's name without quotes."""
    try:
        return text_of(node.GetChildMemberWithName("m_strName"))[1:-1]
    except Corrupt as error:
        return f"<corrupt: {error}>"


def attribute_value(value):
    memory, type, cell = Memory(value), number(value, "m_ulValueType"), number(value, "m_pValue")
    if type == 0:
        return "<empty>"
    order = "little" if memory.target.GetByteOrder() == lldb.eByteOrderLittle else "big"
    if type == 1:
        return text_of(raw(value.CreateValueFromAddress("text", cell, memory.target.FindFirstType("CKRMString"))))
    if type == 2:
        memory.bytes(cell, 8)
        real = value.CreateValueFromAddress("real", cell, memory.target.GetBasicType(lldb.eBasicTypeDouble))
        return real.GetValue()
    if type == 3:
        return f"{int.from_bytes(memory.bytes(cell, 4), order, signed=True)} (krm_long)"
    if type == 4:
        return f"{int.from_bytes(memory.bytes(cell, 4), order)} (krm_ulong)"
    return f"<corrupt: its type of value is {type}>"


def tree_children(value, kind):
    if kind == "CKRMCElement":
        for child in chain(value, "m_pcFirstAttribute", "m_pcLastAttribute", "CKRMCAttribute"):
            yield child.CreateValueFromAddress(f"@{name_of(child)}", address_of(child), child.GetType())
        for child in chain(value, "m_pcFirstGroup", "m_pcLastGroup", "CKRMCElementGroup"):
            yield child.CreateValueFromAddress(name_of(child), address_of(child), child.GetType())
    elif kind == "CKRMCElementGroup":
        for index, child in enumerate(chain(value, "m_pcFirstElement", "m_pcLastElement", "CKRMCElement")):
            yield child.CreateValueFromAddress(f"[{index}]", address_of(child), child.GetType())


def tree_kind(names):
    return next((name for name in names if name in KINDS), "CKRMCNode" if "CKRMCNode" in names else None)


def node_summary(value, kind):
    found = number(value, "m_ulKind")
    if kind in KINDS and found != KINDS[kind]:
        raise Corrupt(f"its kind is {found}")
    name = text_of(value.GetChildMemberWithName("m_strName"))
    if kind == "CKRMCAttribute":
        # Below its element it has its name already.
        return attribute_value(value) if (value.GetName() or "").startswith("@") else f"{name} = {attribute_value(value)}"
    try:
        for _ in tree_children(value, kind):
            pass
    except Corrupt as error:
        return f"{name}, <corrupt: {error}>"
    return name


def block_summary(value):
    block, position, size = (number(value, name) for name in ("m_puchBuffer", "m_uiPos", "m_uiSize"))
    if not block:
        return f"no block, position {position}"
    if position > size:
        raise Corrupt(f"its position is {position}, and its size {size}")
    memory = Memory(value)
    shown = min(size, memory.limit("target.max-string-summary-length"))
    try:
        memory.bytes(block + size - 1, 1)
        text = memory.bytes(block, shown).hex(" ")
    except Corrupt:
        raise Corrupt(f"no block of {size} bytes at 0x{block:x}") from None
    return f"{size} bytes, position {position}: {text}" + ("..." if shown < size else "")


def message_base(value):
    """The part of a message that is the imported base: its first two members are type and ID."""
    if class_of(value).GetName() == "CKRMBaseAdaptationData":
        return value
    inherited = parents(value)
    return message_base(next(child for child in value if child.GetName() in inherited))


def message_summary(value, names):
    members = list(fields(message_base(value)))
    if len(members) < 2:
        raise Unknown
    type, id = members[:2]
    described = f"type {type.GetValueAsUnsigned()}, ID {id.GetValueAsUnsigned()}"
    found = re.match(r"CKRMC(?!Base)(\w+)(?:Cmd|Vdc|Dsdi|Ucc|Dwt)Ada?ptData(?:Snd|Rcv)$", names[0])
    directions = [base[-3:] for base in names if re.match(r"CKRMCBase\w+(Snd|Rcv)$", base)]
    if not found or not directions:
        return described
    return f"{found[1]} {'request' if directions[0] == 'Snd' else 'answer'}, {described}"


def describe(value):
    """The summary; raises Corrupt."""
    names = base_names(class_of(value))
    if names[0].startswith("CKRMList<"):
        return List(value).summary()
    check(value)
    if "CKRMString" in names:
        return text_of(value)
    if "CKRMBinary" in names:
        return block_summary(value)
    if "CKRMError" in names:
        code = number(value, "a_ulReturnCode")
        return f"{code} ({ERROR_NAMES[code]})" if code in ERROR_NAMES else f"{code}"
    if tree_kind(names):
        return node_summary(value, tree_kind(names))
    if "CKRMBaseAdaptationData" in names:
        return message_summary(value, names)
    return ""


def summary(value, _):
    """The line that shows an object."""
    try:
        return describe(raw(value))
    except Unknown as error:
        return f"<{error}>"
    except Corrupt as error:
        return f"<corrupt: {error}>"


class Children:
    """What an object expands to: elements, fields as if they were all the class's own, attributes and groups."""

    def __init__(self, value, _):
        self.value = raw(value)
        self.list = None
        self.shown = []

    def update(self):
        self.list, self.shown = None, []
        names = base_names(class_of(self.value))
        try:
            if names[0].startswith("CKRMList<"):
                self.list = List(self.value)
                return False
            describe(self.value)
            for child in self.content(names):
                self.shown.append(child)
        except Corrupt:
            pass  # the summary tells of it
        return False

    def content(self, names):
        if tree_kind(names):
            yield from tree_children(self.value, tree_kind(names))
        else:
            # Type and ID are in the summary.
            hidden = 2 if "CKRMBaseAdaptationData" in names else 0
            yield from (numeric(field) for field in list(fields(self.value))[hidden:])

    def num_children(self):
        return self.list.length() if self.list else len(self.shown)

    def get_child_at_index(self, index):
        if self.list:
            return self.list.child(self.value, index)
        return self.shown[index] if 0 <= index < len(self.shown) else None

    def get_child_index(self, name):
        if self.list:
            return int(name[1:-1]) if re.match(r"\[\d+\]$", name) else -1
        return next((index for index, child in enumerate(self.shown) if child.GetName() == name), -1)

    def has_children(self):
        return True


class NoChildren:
    """The line is all that there is to see."""

    def __init__(self, value, _):
        pass

    def update(self):
        return False

    def num_children(self):
        return 0

    def get_child_at_index(self, index):
        return None

    def get_child_index(self, name):
        return -1

    def has_children(self):
        return False


def __lldb_init_module(debugger, _):
    for name in LINES:
        debugger.HandleCommand(f"type summary add -w krm -F krm_lldb.summary {name}")
        debugger.HandleCommand(f"type synthetic add -w krm -l krm_lldb.NoChildren {name}")
    debugger.HandleCommand(f"type summary add -w krm -e -F krm_lldb.summary -x '{CLASSES}'")
    debugger.HandleCommand(f"type synthetic add -w krm -l krm_lldb.Children -x '{CLASSES}'")
    debugger.HandleCommand("type category enable krm")
