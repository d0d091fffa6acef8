// Nodes of a user's own for the tests of the tree: linked by hand, and telling when they are destroyed.
#ifndef KRM_TESTS_TREE_OWN_NODES_H_
#define KRM_TESTS_TREE_OWN_NODES_H_

#include <cstdint>
#include <cstring>
#include <string>
#include <utility>
#include <vector>

#include "krm/tree/attribute.h"
#include "krm/tree/element.h"
#include "krm/tree/element_group.h"

namespace krm::test {

/// Links nodes as a derived class may.
struct Link : CKRMCNode {
    static void Between(CKRMCNode& before, CKRMCNode& after) {
        before.*(&Link::m_pcNext) = &after;
        after.*(&Link::m_pcPrev) = &before;
        after.*(&Link::m_pcParent) = before.GetParent();
    }
    static void Cut(CKRMCNode& before) { before.*(&Link::m_pcNext) = nullptr; }
    static void ToParent(CKRMCNode& node, CKRMCNode& parent) { node.*(&Link::m_pcParent) = &parent; }
};

inline std::string Described(CKRMCNode& node) {
    CKRMString text;
    node.Description(text);
    return text.GetText();
}

/// An object that is never destroyed: where a copy shares what its original frees, or where a chain leads to freed nodes.
/// It can be reached until the program ends, so that nobody who looks for leaks takes it for one.
template <class T>
class Undestroyed {
public:
    template <class... Arguments>
    explicit Undestroyed(Arguments&&... arguments) : m_object(new T(std::forward<Arguments>(arguments)...)) {
        static auto& reachable = *new std::vector<T*>;
        reachable.push_back(m_object);
    }
    Undestroyed(const Undestroyed&) = delete;
    Undestroyed& operator=(const Undestroyed&) = delete;

    T& operator*() { return *m_object; }
    T* operator->() { return m_object; }

private:
    T* m_object;
};

/// An attribute, element or group that writes its name down when it is destroyed, with the neighbours it still has then.
template <class Node>
class Mortal : public Node {
public:
    Mortal(const char* name, std::vector<std::string>& destroyed) : Node(name), m_destroyed(destroyed) {}
    ~Mortal() override {
        m_destroyed.push_back(std::string(this->GetName()) + (this->GetPrev() != nullptr ? " prev" : "") +
                              (this->GetNext() != nullptr ? " next" : ""));
    }

private:
    std::vector<std::string>& m_destroyed;
};

/// A node that looks, while it is destroyed, where its follower's link back leads.
template <class Node>
class LooksBack : public Node {
public:
    LooksBack(const char* name, std::vector<const CKRMCNode*>& seen) : Node(name), m_seen(seen) {}
    ~LooksBack() override { m_seen.push_back(this->GetNext()->GetPrev()); }

private:
    std::vector<const CKRMCNode*>& m_seen;
};

/// An element that takes nodes of a user's own.
class OwnElement : public CKRMCElement {
public:
    using CKRMCElement::CKRMCElement;
    void Adopt(CKRMCAttribute* attribute) { Append(m_pcFirstAttribute, m_pcLastAttribute, attribute); }
    void Adopt(CKRMCElementGroup* group) { Append(m_pcFirstGroup, m_pcLastGroup, group); }
    CKRMCAttribute* LastAttribute() const { return m_pcLastAttribute; }
    CKRMCElementGroup* LastGroup() const { return m_pcLastGroup; }

private:
    template <class T>
    void Append(T*& head, T*& tail, T* node) {
        Link::ToParent(*node, *this);
        if (tail != nullptr) {
            Link::Between(*tail, *node);
        } else {
            head = node;
        }
        tail = node;
    }
};

/// A group that takes elements of a user's own.
class OwnGroup : public CKRMCElementGroup {
public:
    using CKRMCElementGroup::CKRMCElementGroup;
    void Adopt(CKRMCElement* element) {
        Link::ToParent(*element, *this);
        if (m_pcLastElement != nullptr) {
            Link::Between(*m_pcLastElement, *element);
        } else {
            m_pcFirstElement = element;
        }
        m_pcLastElement = element;
    }
    CKRMCElement* LastElement() const { return m_pcLastElement; }
};

/// The address as a number: the address of a destroyed object may be compared like this only.
inline std::uintptr_t AddressOf(const void* object) {
    return reinterpret_cast<std::uintptr_t>(object);
}

}  // namespace krm::test

#endif  // KRM_TESTS_TREE_OWN_NODES_H_
