// The element tree against a model: what each operation returns and reports, the links, and the whole description.
//
// Of a chain only the last node is removed: any other removal leaves a tree that must not be used any more.
#include <cmath>
#include <cstdio>
#include <cstring>
#include <memory>
#include <variant>

#include "fuzz/support/input.h"
#include "krm/tree/element.h"
#include "krm/tree/element_group.h"

namespace {

using krm::fuzz::Input;
using namespace krm::tree;

constexpr std::size_t kMostElements = 60;

/// In the order of the codes of the types.
using Value = std::variant<std::monostate, std::string, double, krm_long, krm_ulong>;

struct Attribute {
    CKRMCAttribute* node = nullptr;
    std::string name;
    Value value;
};

template <class T>
using Chain = std::vector<std::unique_ptr<T>>;

struct Group;

struct Element {
    CKRMCElement* node = nullptr;
    std::string name;
    Chain<Attribute> attributes;
    Chain<Group> groups;
};

struct Group {
    CKRMCElementGroup* node = nullptr;
    std::string name;
    Chain<Element> elements;
};

template <class T>
T* Find(const Chain<T>& chain, const std::string& name) {
    for (const std::unique_ptr<T>& entry : chain) {
        if (entry->name == name) {
            return entry.get();
        }
    }
    return nullptr;
}

template <class T>
bool Contains(const Chain<T>& chain, const void* node) {
    for (const std::unique_ptr<T>& entry : chain) {
        if (entry->node == node) {
            return true;
        }
    }
    return false;
}

template <class T>
T* Last(const Chain<T>& chain) {
    return chain.empty() ? nullptr : chain.back().get();
}

template <class T>
auto* NodeOf(T* entry) {
    return entry == nullptr ? nullptr : entry->node;
}

/// The error object of one call: one that still shows an earlier failure, or none.
class Error {
public:
    explicit Error(Input& input) : m_isNull(input.Byte() % 8 == 7) {
        const CKRMString detail = "earlier";
        m_error.SetError(kEarlier, detail, detail, detail, detail, detail);
    }

    CKRMError* Pointer() { return m_isNull ? nullptr : &m_error; }
    /// That the call reported `code`, 0 for none.
    void Check(krm_ulong code) const {
        KRM_FUZZ_CHECK(m_error.GetErrorCode() == (m_isNull ? kEarlier : code));
        KRM_FUZZ_CHECK(m_isNull || code == 0 || m_error.a_strMessage.GetLength() == 0);
    }

private:
    static constexpr krm_ulong kEarlier = 4711;

    CKRMError m_error;
    bool m_isNull;
};

/// A name, or null.
class Name {
public:
    explicit Name(Input& input) {
        constexpr const char* kNames[] = {"Ecu", "Dtc", "Id", "", "A"};
        const std::uint8_t byte = input.Byte();
        m_isNull = byte == 255;
        m_text = byte < 200 ? kNames[byte % 5] : input.Text(12);
    }

    const char* Pointer() const { return m_isNull ? nullptr : m_text.c_str(); }
    bool IsNull() const { return m_isNull; }
    const std::string& Text() const { return m_text; }

private:
    bool m_isNull;
    std::string m_text;
};

// ---- What the model says ----

std::string Printed(const char* format, double value) {
    char text[400];
    const int length = std::snprintf(text, sizeof text, format, value);
    return std::string(text, static_cast<std::size_t>(length));
}

std::string TextOf(const Value& value) {
    switch (value.index()) {
        case kStringValue:
            return std::get<std::string>(value);
        case kDoubleValue:
            return Printed("%f", std::get<double>(value));
        case kLongValue:
            return std::to_string(std::get<krm_long>(value));
        case kULongValue:
            return std::to_string(std::get<krm_ulong>(value));
        default:
            return "NULL";
    }
}

void Describe(const Element& element, std::string& out) {
    out += '<' + element.name;
    for (const auto& attribute : element.attributes) {
        out += ' ' + attribute->name + '[' + std::to_string(attribute->value.index()) + "]=\"" +
               TextOf(attribute->value) + '"';
    }
    out += ">\n";
    for (const auto& group : element.groups) {
        for (const auto& child : group->elements) {
            Describe(*child, out);
        }
    }
    out += "</" + element.name + ">\n";
}

/// Whether two values are equal, and the code that comparing them reports.
bool Compare(const Value& left, const Value& right, krm_ulong& code) {
    code = 0;
    if (left.index() == kEmptyValue || right.index() == kEmptyValue) {
        code = kValueUnset;
    } else if (left.index() != right.index()) {
        code = kDifferentTypes;
    }
    return code == 0 && left == right;
}

/// The first element with an attribute like `wanted`; the code is that of the last comparison.
Element* FindByAttribute(const Group& group, const Attribute& wanted, krm_ulong& code) {
    code = 0;
    for (const auto& element : group.elements) {
        const Attribute* const candidate = Find(element->attributes, wanted.name);
        code = 0;
        if (candidate != nullptr && Compare(candidate->value, wanted.value, code)) {
            return element.get();
        }
    }
    return nullptr;
}

void Collect(Element& element, std::vector<Element*>& all) {
    all.push_back(&element);
    for (const auto& group : element.groups) {
        for (const auto& child : group->elements) {
            Collect(*child, all);
        }
    }
}

// ---- That the tree is as the model ----

/// The links and names of a chain; `head` is what its holder gives.
template <class T>
void CheckChain(const Chain<T>& chain, const CKRMCNode* head, const CKRMCNode* parent, krm_ulong kind) {
    const CKRMCNode* node = head;
    const CKRMCNode* prev = nullptr;
    for (const auto& entry : chain) {
        KRM_FUZZ_CHECK(node != nullptr && node == entry->node);
        KRM_FUZZ_CHECK(node->GetPrev() == prev && node->GetParent() == parent && node->GetKind() == kind);
        KRM_FUZZ_CHECK(entry->name == node->GetName());
        prev = node;
        node = node->GetNext();
    }
    KRM_FUZZ_CHECK(node == nullptr);
}

void CheckValue(const Attribute& attribute) {
    const CKRMCAttribute& node = *attribute.node;
    const Value& value = attribute.value;
    KRM_FUZZ_CHECK(node.GetValueType() == value.index());
    const auto* const text = std::get_if<std::string>(&value);
    KRM_FUZZ_CHECK((node.GetString() == nullptr) == (text == nullptr));
    KRM_FUZZ_CHECK(text == nullptr || *text == node.GetString());
    const auto* const real = std::get_if<double>(&value);
    const double got = node.GetDouble();
    KRM_FUZZ_CHECK(std::memcmp(&got, real == nullptr ? &static_cast<const double&>(0.0) : real, sizeof got) == 0);
    const auto* const number = std::get_if<krm_long>(&value);
    KRM_FUZZ_CHECK(node.GetLong() == (number == nullptr ? 0 : *number));
    const auto* const uNumber = std::get_if<krm_ulong>(&value);
    KRM_FUZZ_CHECK(node.GetULong() == (uNumber == nullptr ? 0 : *uNumber));
}

void Check(const Element& element) {
    CheckChain(element.attributes, element.node->GetFirstAttribute(), element.node, kAttributeKind);
    for (const auto& attribute : element.attributes) {
        CheckValue(*attribute);
    }
    CheckChain(element.groups, element.node->GetFirstGroup(), element.node, kElementGroupKind);
    for (const auto& group : element.groups) {
        CheckChain(group->elements, group->node->GetFirstElement(nullptr), group->node, kElementKind);
        for (const auto& child : group->elements) {
            Check(*child);
        }
    }
}

// ---- The operations ----

/// Sets `attribute` to a value of the input, through the operation or when it is constructed.
class AnyValue {
public:
    explicit AnyValue(Input& input) {
        switch (input.UpTo(5)) {
            case 0:
                m_value = input.Text(30);
                break;
            case 1:
                m_value = input.Double();
                break;
            case 2:
                m_value = input.Number<krm_long>();
                break;
            case 3:
                m_value = input.Number<krm_ulong>();
                break;
            case 4:
                m_value = input.Flag() ? 0.0 : -0.0;  // differ, and are equal
                break;
            default:
                break;
        }
    }

    const Value& Get() const { return m_value; }

    std::unique_ptr<CKRMCAttribute> Construct(const char* name) const {
        switch (m_value.index()) {
            case kStringValue:
                return std::make_unique<CKRMCAttribute>(name, std::get<std::string>(m_value).c_str());
            case kDoubleValue:
                return std::make_unique<CKRMCAttribute>(name, std::get<double>(m_value));
            case kLongValue:
                return std::make_unique<CKRMCAttribute>(name, std::get<krm_long>(m_value));
            case kULongValue:
                return std::make_unique<CKRMCAttribute>(name, std::get<krm_ulong>(m_value));
            default:
                return std::make_unique<CKRMCAttribute>(name);
        }
    }
    bool Set(CKRMCAttribute& attribute, CKRMError* error) const {
        switch (m_value.index()) {
            case kStringValue:
                return attribute.SetValue(error, std::get<std::string>(m_value).c_str());
            case kDoubleValue:
                return attribute.SetValue(error, std::get<double>(m_value));
            case kLongValue:
                return attribute.SetValue(error, std::get<krm_long>(m_value));
            case kULongValue:
                return attribute.SetValue(error, std::get<krm_ulong>(m_value));
            default:
                return attribute.ClearValue();
        }
    }

private:
    Value m_value;
};

class Tree {
public:
    explicit Tree(Input& input) {
        const Name name(input);
        m_node = std::make_unique<CKRMCElement>(name.Pointer());
        m_root.node = m_node.get();
        m_root.name = name.IsNull() ? "" : name.Text();
    }

    void Step(Input& input) {
        std::vector<Element*> all;
        Collect(m_root, all);
        m_isFull = all.size() >= kMostElements;
        Element& element = *all[input.UpTo(all.size() - 1)];
        Element& other = *all[input.UpTo(all.size() - 1)];
        Group* const group =
            element.groups.empty() ? nullptr : element.groups[input.UpTo(element.groups.size() - 1)].get();
        Attribute* const attribute =
            element.attributes.empty() ? nullptr : element.attributes[input.UpTo(element.attributes.size() - 1)].get();
        switch (input.UpTo(15)) {
            case 0:
            case 1:
                CreateAttribute(element, input);
                break;
            case 2:
                LookUp(element, input);
                break;
            case 3:
            case 4:
                CreateElement(element, input);
                break;
            case 5:
                CreateGroup(element, input);
                break;
            case 6:
                CreateInGroup(group, input);
                break;
            case 7:
                RemoveAttribute(element, other, input);
                break;
            case 8:
                RemoveGroup(element, other, input);
                break;
            case 9:
                RemoveElement(element, group, other, input);
                break;
            case 10:
                RemoveFromGroup(group, other, input);
                break;
            case 11:
            case 12:
                SetValue(attribute, input);
                break;
            case 13:
                CompareValues(attribute, other, input);
                break;
            case 14:
                SearchByAttribute(element, group, other, input);
                break;
            default:
                if (input.Byte() % 4 == 0) {
                    element.node->RemoveAll();
                    element.attributes.clear();
                    element.groups.clear();
                }
                break;
        }
        Check(m_root);
    }

    void CheckDescription() const {
        std::string expected = "before";
        Describe(m_root, expected);
        CKRMString text = "before";
        KRM_FUZZ_CHECK(m_root.node->Description(text) == 0);
        KRM_FUZZ_CHECK(expected == text.GetText());
    }

private:
    static void CreateAttribute(Element& element, Input& input) {
        const Name name(input);
        Error error(input);
        CKRMCAttribute* const node = element.node->CreateAttribute(error.Pointer(), name.Pointer());
        error.Check(name.IsNull() ? kNullArgument : 0);
        KRM_FUZZ_CHECK((node == nullptr) == name.IsNull());
        if (node == nullptr) {
            return;
        }
        if (const Attribute* const existing = Find(element.attributes, name.Text())) {
            KRM_FUZZ_CHECK(node == existing->node);
        } else {
            element.attributes.push_back(std::make_unique<Attribute>(Attribute{node, name.Text(), {}}));
        }
    }

    static Group* AddGroup(Element& element, const std::string& name, CKRMCElementGroup* node) {
        if (Group* const existing = Find(element.groups, name)) {
            KRM_FUZZ_CHECK(node == nullptr || node == existing->node);
            return existing;
        }
        element.groups.push_back(std::make_unique<Group>());
        element.groups.back()->node = node != nullptr ? node : element.node->GetElementGroup(nullptr, name.c_str());
        element.groups.back()->name = name;
        return element.groups.back().get();
    }

    static void AddElement(Group& group, CKRMCElement* node) {
        KRM_FUZZ_CHECK(node != nullptr);
        group.elements.push_back(std::make_unique<Element>());
        group.elements.back()->node = node;
        group.elements.back()->name = group.name;
    }

    void CreateElement(Element& element, Input& input) const {
        const Name name(input);
        if (m_isFull && !name.IsNull()) {
            return;
        }
        Error error(input);
        CKRMCElement* const node = element.node->CreateElement(error.Pointer(), name.Pointer());
        error.Check(name.IsNull() ? kNullArgument : 0);
        if (name.IsNull()) {
            KRM_FUZZ_CHECK(node == nullptr);
        } else {
            AddElement(*AddGroup(element, name.Text(), nullptr), node);
        }
    }

    void CreateGroup(Element& element, Input& input) const {
        const Name name(input);
        if (element.groups.size() >= kMostElements) {
            return;
        }
        Error error(input);
        CKRMCElementGroup* const node = element.node->CreateElementGroup(error.Pointer(), name.Pointer());
        error.Check(name.IsNull() ? kNullArgument : 0);
        KRM_FUZZ_CHECK((node == nullptr) == name.IsNull());
        if (node != nullptr) {
            AddGroup(element, name.Text(), node);
        }
    }

    void CreateInGroup(Group* group, Input& input) const {
        if (group == nullptr || m_isFull) {
            return;
        }
        Error error(input);
        AddElement(*group, group->node->CreateElement(error.Pointer()));
        error.Check(0);
    }

    static void LookUp(const Element& element, Input& input) {
        const Name name(input);
        const krm_ulong code = name.IsNull() ? kNullArgument : 0;
        const Group* const group = name.IsNull() ? nullptr : Find(element.groups, name.Text());
        Error first(input);
        const Attribute* const attribute = name.IsNull() ? nullptr : Find(element.attributes, name.Text());
        KRM_FUZZ_CHECK(element.node->GetAttribute(first.Pointer(), name.Pointer()) == NodeOf(attribute));
        first.Check(code);
        Error second(input);
        KRM_FUZZ_CHECK(element.node->GetElementGroup(second.Pointer(), name.Pointer()) == NodeOf(group));
        second.Check(code);
        Error third(input);
        const Element* const child = group == nullptr || group->elements.empty() ? nullptr : group->elements[0].get();
        KRM_FUZZ_CHECK(element.node->GetFirstElement(third.Pointer(), name.Pointer()) == NodeOf(child));
        third.Check(code);
    }

    static void RemoveAttribute(Element& element, const Element& other, Input& input) {
        const Attribute* const attribute = Last(input.Flag() ? element.attributes : other.attributes);
        CKRMCAttribute* const node = NodeOf(attribute);
        Error error(input);
        const bool removed = element.node->RemoveAttribute(error.Pointer(), node);
        const bool isHere = Contains(element.attributes, node);
        KRM_FUZZ_CHECK(removed == isHere);
        error.Check(node == nullptr ? kNullArgument : isHere ? 0 : kNoSuchAttribute);
        if (removed) {
            element.attributes.pop_back();
        }
    }

    static void RemoveGroup(Element& element, const Element& other, Input& input) {
        CKRMCElementGroup* const node = NodeOf(Last(input.Flag() ? element.groups : other.groups));
        Error error(input);
        const bool removed = element.node->RemoveElementGroup(error.Pointer(), node);
        const bool isHere = Contains(element.groups, node);
        KRM_FUZZ_CHECK(removed == isHere);
        error.Check(node == nullptr ? kNullArgument : isHere ? 0 : kNoSuchGroup);
        if (removed) {
            element.groups.pop_back();
        }
    }

    /// The last child of `group`, or any element that is the last of its group, or null.
    static Element* Removable(Group* group, Element& other, Input& input) {
        if (input.Flag()) {
            return group == nullptr ? nullptr : Last(group->elements);
        }
        return other.node->GetNext() == nullptr ? &other : nullptr;
    }

    static void RemoveElement(Element& element, Group* group, Element& other, Input& input) {
        const Element* const child = Removable(group, other, input);
        CKRMCElement* const node = NodeOf(child);
        Group* const holder = child == nullptr ? nullptr : Find(element.groups, child->name);
        const bool isHere = holder != nullptr && Contains(holder->elements, node);
        Error error(input);
        const bool removed = element.node->RemoveElement(error.Pointer(), node);
        KRM_FUZZ_CHECK(removed == isHere);
        error.Check(node == nullptr ? kNullArgument : holder == nullptr ? kNoSuchGroup : isHere ? 0 : kNoSuchElement);
        if (removed) {
            holder->elements.pop_back();
        }
    }

    static void RemoveFromGroup(Group* group, Element& other, Input& input) {
        if (group == nullptr) {
            return;
        }
        CKRMCElement* const node = NodeOf(Removable(group, other, input));
        const bool isHere = Contains(group->elements, node);
        Error error(input);
        const bool removed = group->node->RemoveElement(error.Pointer(), node);
        KRM_FUZZ_CHECK(removed == isHere);
        error.Check(node == nullptr ? kNullArgument : isHere ? 0 : kNoSuchElement);
        if (removed) {
            group->elements.pop_back();
        }
    }

    static void SetValue(Attribute* attribute, Input& input) {
        if (attribute == nullptr) {
            return;
        }
        const std::uint8_t how = input.Byte();
        Error error(input);
        if (how == 255) {
            KRM_FUZZ_CHECK(!attribute->node->SetValue(error.Pointer(), static_cast<const char*>(nullptr)));
            error.Check(kNullArgument);
        } else if (how == 254 && attribute->value.index() == kStringValue) {
            KRM_FUZZ_CHECK(attribute->node->SetValue(error.Pointer(), attribute->node->GetString()));
            error.Check(0);
        } else {
            const AnyValue value(input);
            KRM_FUZZ_CHECK(value.Set(*attribute->node, error.Pointer()));
            if (value.Get().index() != kEmptyValue) {
                error.Check(0);
            }
            attribute->value = value.Get();
        }
    }

    static void CompareValues(const Attribute* attribute, const Element& other, Input& input) {
        if (attribute == nullptr) {
            return;
        }
        Attribute* const against =
            other.attributes.empty() ? nullptr : other.attributes[input.UpTo(other.attributes.size() - 1)].get();
        krm_ulong code = kNullArgument;
        const bool equal = against != nullptr && Compare(attribute->value, against->value, code);
        Error error(input);
        KRM_FUZZ_CHECK(attribute->node->CompareValue(error.Pointer(), NodeOf(against)) == equal);
        error.Check(code);
    }

    static void SearchByAttribute(const Element& element, const Group* group, const Element& other, Input& input) {
        const Name name(input);
        // An attribute on its own, one of the tree, or null.
        Attribute wanted;
        std::unique_ptr<CKRMCAttribute> own;
        if (input.Flag()) {
            const Name attributeName(input);
            const AnyValue value(input);
            own = value.Construct(attributeName.Pointer());
            wanted = {own.get(), attributeName.IsNull() ? "" : attributeName.Text(), value.Get()};
            CheckValue(wanted);
        } else if (const Attribute* const last = Last(other.attributes)) {
            wanted = *last;
        }

        if (group != nullptr) {
            krm_ulong code = kNullArgument;
            const Element* const expected = wanted.node == nullptr ? nullptr : FindByAttribute(*group, wanted, code);
            Error error(input);
            KRM_FUZZ_CHECK(group->node->GetElementByAttribute(error.Pointer(), wanted.node) == NodeOf(expected));
            error.Check(code);
        }
        krm_ulong code = kNullArgument;
        const Element* expected = nullptr;
        if (!name.IsNull() && wanted.node != nullptr) {
            code = 0;
            if (const Group* const named = Find(element.groups, name.Text())) {
                expected = FindByAttribute(*named, wanted, code);
            }
        }
        Error error(input);
        KRM_FUZZ_CHECK(element.node->GetElementByAttribute(error.Pointer(), name.Pointer(), wanted.node) ==
                       NodeOf(expected));
        error.Check(code);
    }

    std::unique_ptr<CKRMCElement> m_node;
    Element m_root;
    bool m_isFull = false;
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    Input input(data, size);
    Tree tree(input);
    while (!input.IsEmpty()) {
        tree.Step(input);
    }
    tree.CheckDescription();
    return 0;
}
