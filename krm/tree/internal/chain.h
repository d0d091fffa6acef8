// Chains of siblings: how nodes are appended, found, removed, described and destroyed. Part of the tree's inside.
#ifndef KRM_TREE_INTERNAL_CHAIN_H_
#define KRM_TREE_INTERNAL_CHAIN_H_

#include <cstddef>
#include <cstring>
#include <new>
#include <typeinfo>

#include "krm/tree/internal/description_writer.h"
#include "krm/tree/internal/operation.h"
#include "krm/tree/node.h"

class CKRMCAttribute;
class CKRMCElement;
class CKRMCElementGroup;

namespace krm::tree {

/// The kind that the nodes of a class have.
template <class T>
inline constexpr krm_ulong kKindOf = 0;
template <>
inline constexpr krm_ulong kKindOf<CKRMCAttribute> = kAttributeKind;
template <>
inline constexpr krm_ulong kKindOf<CKRMCElement> = kElementKind;
template <>
inline constexpr krm_ulong kKindOf<CKRMCElementGroup> = kElementGroupKind;

/// `node` as a `T` when it is one and of no derived class, else null.
///
/// Describing and destroying go on without recursion through such nodes alone: what an overriding class does in its
/// Description or destructor must happen inside a call, and only the exact type tells that nothing is overridden. The
/// kind only saves looking at the types of most others, whose names would be compared.
template <class T>
T* ExactlyA(CKRMCNode* node) {
    return node != nullptr && node->GetKind() == kKindOf<T> && typeid(*node) == typeid(T) ? static_cast<T*>(node)
                                                                                          : nullptr;
}

/// The operations on chains, which alone reach the links of other nodes.
struct Chain {
    /// The first node of that name, or null. A name that is not there is no failure.
    template <class T>
    static T* Find(T* head, const char* name) {
        const std::size_t length = std::strlen(name);
        T* node = head;
        // Names of different lengths differ, which is cheaper to see than to compare them.
        while (node != nullptr && (node->m_strName.GetLength() != length || node->m_strName.Compare(name) != 0)) {
            node = static_cast<T*>(node->m_pcNext);
        }
        return node;
    }

    /// Appends a new node of `parent`; null, and reported, when it can't be allocated.
    template <class T>
    static T* AppendNew(Operation& operation, CKRMCNode& parent, T*& head, T*& tail, const char* name) {
        T* const node = Allocate<T>(name);
        if (node == nullptr) {
            operation.Fail(kOutOfMemory);
            return nullptr;
        }
        node->m_pcParent = &parent;
        node->m_pcPrev = tail;
        if (tail != nullptr) {
            tail->m_pcNext = node;
        }
        tail = node;
        if (head == nullptr) {
            head = node;
        }
        return node;
    }

    // A new node behind the last, whatever else has its name; null when it can't be allocated.
    static CKRMCAttribute* NewAttribute(CKRMCElement& element, const char* name);
    static CKRMCElementGroup* NewGroup(CKRMCElement& element, const char* name);
    static CKRMCElement* NewElement(CKRMCElementGroup& group, const char* name);

    /// The first element of `group`, asking no operation that a class of a user's own may override.
    static CKRMCElement* FirstElement(const CKRMCElementGroup& group);

    /// Takes `node` alone out of the element or group that holds it; false, and nothing done, when none does.
    static bool Unlink(CKRMCNode& node);

    /// Unlinks `node` and destroys it with all its followers, which it owns. What leads to these is left as it was.
    template <class T>
    static bool Remove(Operation& operation, T*& head, T*& tail, T* node, krm_ulong notFound) {
        if (node == nullptr) {
            operation.Fail(kNullArgument);
            return false;
        }
        const CKRMCNode* found = head;
        while (found != nullptr && found != node) {
            found = found->m_pcNext;
        }
        if (found == nullptr) {
            operation.Fail(notFound);
            return false;
        }
        CKRMCNode* const next = node->m_pcNext;
        CKRMCNode* const prev = node->m_pcPrev;
        if (next != nullptr) {
            next->m_pcPrev = prev;
        }
        if (prev != nullptr) {
            prev->m_pcNext = next;
        }
        if (head == node) {
            head = static_cast<T*>(next);
        }
        if (tail == node) {
            tail = static_cast<T*>(prev);
        }
        delete node;
        return true;
    }

    /// Destroys the chain that begins with `node`, which may be null.
    static void Destroy(CKRMCNode* node);

    /// Appends the text of `attribute` alone.
    static void AppendAttribute(const CKRMCAttribute& attribute, DescriptionWriter& out);
    /// Appends the texts from `node` on, which may be null, as long as these are attributes of no derived class. Returns
    /// the first that isn't, which describes itself and all after it; null at the end of the chain.
    static CKRMCNode* AppendAttributes(CKRMCNode* node, DescriptionWriter& out);

    /// Describes `element` or `group` as its class does it, then its followers.
    static krm_ulong Describe(CKRMCElement& element, CKRMString& out);
    static krm_ulong Describe(CKRMCElementGroup& group, CKRMString& out);

private:
    class Describer;

    template <class T>
    static T* Allocate(const char* name) {
        try {
            return new (std::nothrow) T(name);
        } catch (const std::bad_alloc&) {  // the name's own memory
            return nullptr;
        }
    }

    static CKRMCNode* TakeChildren(CKRMCNode* node);
};

}  // namespace krm::tree

#endif  // KRM_TREE_INTERNAL_CHAIN_H_
