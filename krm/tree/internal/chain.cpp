#include "krm/tree/internal/chain.h"

#include <cstdint>
#include <type_traits>
#include <utility>
#include <vector>

#include "krm/tree/attribute.h"
#include "krm/tree/element.h"
#include "krm/tree/element_group.h"

namespace krm::tree {

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

void Chain::AppendAttribute(const CKRMCAttribute& attribute, DescriptionWriter& out) {
    out.Append(" ", attribute.m_strName, "[");
    out.AppendNumber(static_cast<int>(attribute.m_ulValueType));
    out.Append("]=\"");
    const void* const value = attribute.m_pValue;
    if (value == nullptr) {
        out.Append("NULL");
    } else {
        switch (attribute.m_ulValueType) {
            case kStringValue:
                out.Append(*static_cast<const CKRMString*>(value));
                break;
            case kDoubleValue: {
                CKRMString text;
                text.Format("%lf", attribute.GetDouble());
                out.Append(text);
                break;
            }
            case kLongValue:
                out.AppendNumber(attribute.GetLong());
                break;
            case kULongValue:
                out.AppendNumber(attribute.GetULong());
                break;
            default:
                out.Append("0x");
                out.AppendHexadecimal(reinterpret_cast<std::uintptr_t>(value));
                break;
        }
    }
    out.Append("\"");
}

// Each sibling is to describe its followers inside its own call. As long as that is the very operation of this class, it
// is the same thing without a stack as long as the chain.
CKRMCNode* Chain::AppendAttributes(CKRMCNode* node, DescriptionWriter& out) {
    while (const CKRMCAttribute* const attribute = ExactlyA<CKRMCAttribute>(node)) {
        AppendAttribute(*attribute, out);
        node = attribute->m_pcNext;
    }
    return node;
}

/// Writes elements and groups with an explicit stack of those that are open. What describes itself gets the string with all
/// that stands before it.
class Chain::Describer {
public:
    explicit Describer(CKRMString& out) : m_out(out), m_text(out) {}

    void Open(CKRMCElement& element) {
        m_result = 0;
        m_text.Append("<", element.m_strName);
        if (CKRMCNode* const other = AppendAttributes(element.m_pcFirstAttribute, m_text)) {
            m_text.Flush();
            m_result = other->Description(m_out);
        }
        m_text.Append(">\n");
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
                m_text.Flush();
                m_result = m_node->Description(m_out);  // its followers are its own business
                m_node = nullptr;
            }
        }
        m_text.Flush();
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
            m_text.Append("</", closed.node->m_strName, ">\n");
        }
        m_node = closed.node->m_pcNext;
    }

    CKRMString& m_out;
    DescriptionWriter m_text;  // writes into m_out
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
