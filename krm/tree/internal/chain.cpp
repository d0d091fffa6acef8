#include "krm/tree/internal/chain.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

#include "krm/core/internal/digits.h"
#include "krm/tree/attribute.h"
#include "krm/tree/element.h"
#include "krm/tree/element_group.h"

namespace krm::tree {

namespace {

template <class Integer>
void AppendNumber(std::string& out, Integer number) {
    std::array<char, core::kDecimalRoom<Integer>> digits;
    out.append(digits.data(), core::WriteDecimal(digits.data(), number));
}

void AppendAddress(std::string& out, const void* address) {
    constexpr std::size_t kDigits = 8;
    std::array<char, kDigits> digits;
    const auto low32 = static_cast<std::uint32_t>(reinterpret_cast<std::uintptr_t>(address));
    out += "0x";
    out.append(digits.data(), core::WriteHexadecimal(digits.data(), low32, core::kUpperCase, kDigits));
}

void AppendNumber(std::string& out, double number) {
    CKRMString text;
    text.Format("%lf", number);
    out += text.GetText();
}

}  // namespace

/// Unlinks a chain that `node` owns and returns its head; null when there is none, or when the node's own destructor is
/// to do it.
CKRMCNode* Chain::TakeChildren(CKRMCNode* node) {
    if (CKRMCElement* const element = ExactlyA<CKRMCElement>(node)) {
        if (element->m_pcFirstAttribute != nullptr) {
            element->m_pcLastAttribute = nullptr;
            return std::exchange(element->m_pcFirstAttribute, nullptr);
        }
        element->m_pcLastGroup = nullptr;
        return std::exchange(element->m_pcFirstGroup, nullptr);
    }
    if (CKRMCElementGroup* const group = ExactlyA<CKRMCElementGroup>(node)) {
        group->m_pcLastElement = nullptr;
        return std::exchange(group->m_pcFirstElement, nullptr);
    }
    return nullptr;
}

CKRMCAttribute* Chain::NewAttribute(CKRMCElement& element, const char* name) {
    Operation operation(nullptr);
    return AppendNew(operation, element, element.m_pcFirstAttribute, element.m_pcLastAttribute, name);
}

CKRMCElementGroup* Chain::NewGroup(CKRMCElement& element, const char* name) {
    Operation operation(nullptr);
    return AppendNew(operation, element, element.m_pcFirstGroup, element.m_pcLastGroup, name);
}

CKRMCElement* Chain::NewElement(CKRMCElementGroup& group, const char* name) {
    Operation operation(nullptr);
    return AppendNew(operation, group, group.m_pcFirstElement, group.m_pcLastElement, name);
}

CKRMCElement* Chain::FirstElement(const CKRMCElementGroup& group) {
    return group.m_pcFirstElement;
}

// Which of an element's two chains a node stands in doesn't matter but for the node at an end, and this the end tells.
bool Chain::Unlink(CKRMCNode& node) {
    const auto moveEnds = [&node](auto*& head, auto*& tail) {
        if (head == &node) {
            head = static_cast<std::remove_reference_t<decltype(head)>>(node.m_pcNext);
        }
        if (tail == &node) {
            tail = static_cast<std::remove_reference_t<decltype(tail)>>(node.m_pcPrev);
        }
    };
    if (auto* const element = dynamic_cast<CKRMCElement*>(node.m_pcParent)) {
        moveEnds(element->m_pcFirstAttribute, element->m_pcLastAttribute);
        moveEnds(element->m_pcFirstGroup, element->m_pcLastGroup);
    } else if (auto* const group = dynamic_cast<CKRMCElementGroup*>(node.m_pcParent)) {
        moveEnds(group->m_pcFirstElement, group->m_pcLastElement);
    } else {
        return false;
    }
    if (node.m_pcNext != nullptr) {
        node.m_pcNext->m_pcPrev = node.m_pcPrev;
    }
    if (node.m_pcPrev != nullptr) {
        node.m_pcPrev->m_pcNext = node.m_pcNext;
    }
    node.m_pcNext = nullptr;
    node.m_pcPrev = nullptr;
    node.m_pcParent = nullptr;
    return true;
}

// A destructor that destroyed children and followers by itself would need a stack as deep as the tree, and as long as
// its longest chain. Here each node goes with nothing left to destroy. The way back up takes the place of the link to
// the previous sibling, which is gone by then.
void Chain::Destroy(CKRMCNode* node) {
    CKRMCNode* up = nullptr;
    while (node != nullptr) {
        node->m_pcPrev = up;
        if (CKRMCNode* const child = TakeChildren(node)) {
            up = node;
            node = child;
            continue;
        }
        CKRMCNode* const next = std::exchange(node->m_pcNext, nullptr);
        node->m_pcPrev = nullptr;
        delete node;
        node = next;
        if (node == nullptr && up != nullptr) {
            node = up;
            up = node->m_pcPrev;
        }
    }
}

void Chain::AppendAttribute(const CKRMCAttribute& attribute, std::string& out) {
    out += ' ';
    out += attribute.GetName();
    out += '[';
    AppendNumber(out, static_cast<int>(attribute.m_ulValueType));
    out += "]=\"";
    if (attribute.m_pValue == nullptr) {
        out += "NULL";
    } else {
        switch (attribute.m_ulValueType) {
            case kStringValue:
                out += attribute.GetString();
                break;
            case kDoubleValue:
                AppendNumber(out, attribute.GetDouble());
                break;
            case kLongValue:
                AppendNumber(out, attribute.GetLong());
                break;
            case kULongValue:
                AppendNumber(out, attribute.GetULong());
                break;
            default:
                AppendAddress(out, attribute.m_pValue);
                break;
        }
    }
    out += '"';
}

// Each sibling is to describe its followers inside its own call. As long as that is the very operation of this class, it
// is the same thing without a stack as long as the chain.
CKRMCNode* Chain::AppendAttributes(CKRMCNode* node, std::string& out) {
    while (const CKRMCAttribute* const attribute = ExactlyA<CKRMCAttribute>(node)) {
        AppendAttribute(*attribute, out);
        node = attribute->m_pcNext;
    }
    return node;
}

/// Writes elements and groups with an explicit stack of those that are open.
///
/// The text is collected and appended to the caller's string in larger pieces: every piece of a tag by itself would cost
/// more than its copying. What describes itself gets the string with all that stands before it.
class Chain::Describer {
public:
    explicit Describer(CKRMString& out) : m_out(out) {}

    void Open(CKRMCElement& element) {
        m_result = 0;
        m_text += '<';
        m_text += element.GetName();
        if (CKRMCNode* const other = AppendAttributes(element.m_pcFirstAttribute, m_text)) {
            Flush();
            m_result = other->Description(m_out);
        }
        m_text += ">\n";
        m_open.push_back({&element, true});
        m_node = element.m_pcFirstGroup;
    }

    void Open(CKRMCElementGroup& group) {
        m_result = 0;
        m_open.push_back({&group, false});
        m_node = group.m_pcFirstElement;
    }

    krm_ulong Run() {
        while (m_node != nullptr || !m_open.empty()) {
            if (m_node == nullptr) {
                Close();
            } else if (CKRMCElement* const element = ExactlyA<CKRMCElement>(m_node)) {
                Open(*element);
            } else if (CKRMCElementGroup* const group = ExactlyA<CKRMCElementGroup>(m_node)) {
                Open(*group);
            } else {
                Flush();
                m_result = m_node->Description(m_out);  // its followers are its own business
                m_node = nullptr;
            }
        }
        Flush();
        return m_result;
    }

private:
    struct Holder {
        CKRMCNode* node;
        bool isElement;
    };

    void Close() {
        const Holder closed = m_open.back();
        m_open.pop_back();
        if (closed.isElement) {
            m_text += "</";
            m_text += closed.node->GetName();
            m_text += ">\n";
            if (m_text.size() >= kPiece) {
                Flush();
            }
        }
        m_node = closed.node->m_pcNext;
    }

    void Flush() {
        m_out += m_text.c_str();
        m_text.clear();
    }

    static constexpr std::size_t kPiece = 4096;

    CKRMString& m_out;
    std::string m_text;  // what is not yet in m_out
    std::vector<Holder> m_open;
    CKRMCNode* m_node = nullptr;  // the next to describe; null at the end of a chain
    krm_ulong m_result = 0;       // of the last description in the order of the text
};

krm_ulong Chain::Describe(CKRMCElement& element, CKRMString& out) {
    Describer describer(out);
    describer.Open(element);
    return describer.Run();
}

krm_ulong Chain::Describe(CKRMCElementGroup& group, CKRMString& out) {
    Describer describer(out);
    describer.Open(group);
    return describer.Run();
}

}  // namespace krm::tree
