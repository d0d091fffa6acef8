// What makes trees pleasant to use: loops, searching by path, taking out one node, copies, and XML both ways.
//
//     for (CKRMCElement& ecu : krm::tree::Children(vehicle, "Ecu")) ...
//     CKRMCElement* const code = krm::tree::Find(vehicle, "Ecu[@Id=2024]/Dtc");
//     krm::tree::Remove(*code);                                   // that one alone
//     std::unique_ptr<CKRMCElement> copy = krm::tree::Clone(vehicle);
//     std::string xml = krm::tree::ToXml(vehicle);
//
// Free functions beside the classes of the other headers. None of them needs a stack as deep as the tree, or as long as
// its longest chain. They throw nothing but std::bad_alloc, and leave nothing half-built behind then.
#ifndef KRM_TREE_TOOLS_H_
#define KRM_TREE_TOOLS_H_

#include <cstddef>
#include <iterator>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "krm/tree/attribute.h"
#include "krm/tree/element.h"
#include "krm/tree/element_group.h"

namespace krm::tree {

// ---- Loops ----

/// Nodes of a chain, in their order, for a range-for. Don't remove the node that the loop stands at: step on first.
template <class Node>
class Siblings {
public:
    /// A forward iterator. Valid as long as the node it stands on.
    class Iterator {
    public:
        using iterator_category = std::forward_iterator_tag;  ///< what algorithms may count on
        using difference_type = std::ptrdiff_t;               ///< of two iterators; asked for by algorithms
        using value_type = Node;                              ///< a node of the chain
        using pointer = Node*;                                ///< what `->` gives
        using reference = Node&;                              ///< what `*` gives

        Iterator() = default;                            ///< the end of every chain
        explicit Iterator(Node* node) : m_node(node) {}  ///< at `node`; null is the end
        Node& operator*() const { return *m_node; }      ///< the node. REQUIRES: this is not the end
        Node* operator->() const { return m_node; }      ///< the node's members. REQUIRES: this is not the end
        /// Moves on to the next node, or to the end. REQUIRES: this is not the end.
        Iterator& operator++() {
            m_node = static_cast<Node*>(m_node->GetNext());
            return *this;
        }
        /// The same; returns where the iterator stood.
        Iterator operator++(int) {
            const Iterator before = *this;
            ++*this;
            return before;
        }
        /// Whether both stand on the same node, or both at the end.
        friend bool operator==(Iterator left, Iterator right) { return left.m_node == right.m_node; }

    private:
        Node* m_node = nullptr;
    };

    explicit Siblings(Node* first) : m_first(first) {}    ///< `first` and what follows it; null is an empty chain
    Iterator begin() const { return Iterator(m_first); }  ///< the first node
    Iterator end() const { return Iterator(); }           ///< behind the last node

private:
    Node* m_first;
};

/// The attributes of an element, in the order of their creation.
inline Siblings<CKRMCAttribute> Attributes(CKRMCElement& element) {
    return Siblings(element.GetFirstAttribute());
}
/// The groups of an element, one per name of its child elements.
inline Siblings<CKRMCElementGroup> Groups(CKRMCElement& element) {
    return Siblings(element.GetFirstGroup());
}
/// The elements of a group.
inline Siblings<CKRMCElement> Elements(CKRMCElementGroup& group) {
    return Siblings(group.GetFirstElement(nullptr));
}
/// The child elements of one name.
inline Siblings<CKRMCElement> Children(CKRMCElement& element, const char* name) {
    return Siblings(element.GetFirstElement(nullptr, name));
}

// ---- Searching ----

/// The first element that the path leads to, in the order of the tree; null where there is none.
///
/// A path leads from an element to elements below it, one step per level, with slashes between the steps:
///
///     Ecu/Dtc              every Dtc of every Ecu
///     Ecu[1]/Dtc           of the second Ecu alone: counting starts at 0
///     Ecu[@Id=2024]/Dtc    of those Ecus whose attribute Id is 2024
///
/// A step is a name of any characters but `/` and `[`. Behind `[@name=` the value ends at the next `]` and matches a text byte
/// by byte, a number when it reads as one of the same value; an empty attribute matches nothing. A path that is not of this
/// form finds nothing.
KRM_API CKRMCElement* Find(CKRMCElement& from, std::string_view path);
/// All elements that the path leads to, in the order of the tree.
KRM_API std::vector<CKRMCElement*> FindAll(CKRMCElement& from, std::string_view path);

// ---- Removing ----

/// Takes exactly this attribute, group or element, with what is below it, out of its tree and hands it over: keep it, or let
/// it be destroyed at once. What stood behind it stays, unlike with RemoveElement and its sisters. A group whose last element
/// goes stays, empty. Nodes of classes of your own are taken out like any other.
///
/// A node that no element or group holds, such as the root, is left alone; the result is null then.
KRM_API std::unique_ptr<CKRMCNode> Remove(CKRMCNode& node);

// ---- Copies ----

/// A copy that owns all of what it holds: names, values, groups, also empty ones, and elements to any depth, but not the
/// node's own siblings.
///
/// Every node of the copy has the library's class. Of a class of your own the copy keeps what that class inherits; a value of
/// a type of its own becomes empty, and a node that is no attribute, element or group is left out.
KRM_API std::unique_ptr<CKRMCAttribute> Clone(const CKRMCAttribute& attribute);
/// The same of an element with its attributes and all that is below it.
KRM_API std::unique_ptr<CKRMCElement> Clone(const CKRMCElement& element);
/// The same of a group with its elements.
KRM_API std::unique_ptr<CKRMCElementGroup> Clone(const CKRMCElementGroup& group);

// ---- XML ----

/// The element with all that is below it as an XML 1.0 document from which FromXml makes an equal tree:
///
///     <?xml version="1.0" encoding="UTF-8"?>
///     <element name="Ecu">
///     <attribute name="Id" type="ulong" value="2024"/>
///     <group name="Dtc">
///     <element name="Dtc">
///     </element>
///     </group>
///     </element>
///
/// Types are string, double, long, ulong, and empty, which has no value. Numbers have as many digits as tell them apart from
/// any other. A name or text that XML can't carry, with control characters or bytes that are no UTF-8, stands in hexadecimal
/// as `name-hex` or `value-hex`; so do the 8 bytes, most significant first, of an infinite double or a NaN. What belongs to
/// classes of your own is written as Clone copies it.
KRM_API std::string ToXml(const CKRMCElement& element);

/// What FromXml has made of a document.
struct XmlTree {
    std::unique_ptr<CKRMCElement> root;  ///< null where the document has an error
    std::size_t errorOffset = 0;         ///< of the line with the error, in bytes from the start
    const char* error = "";              ///< what is wrong with it
};

/// The tree that ToXml has written. Reads that form and nothing else, byte by byte: other XML, were it only indented in
/// another way, is an error.
KRM_API XmlTree FromXml(std::string_view xml);

}  // namespace krm::tree

#endif  // KRM_TREE_TOOLS_H_
