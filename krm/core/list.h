// CKRMList<T>: the sequence that holds every list field of a record or message.
//
// A doubly linked list of elements held by value, with a cached count. Use it where the interface asks for it; inside a
// program of your own a standard container serves better.
//
// The library instantiates the list once for each of its record classes, beside the class, and the platform library for
// numbers; for other types it works as any template does. Layout and slots are in docs/interface.md.
#ifndef KRM_CORE_LIST_H_
#define KRM_CORE_LIST_H_

#include <cstddef>
#include <iterator>
#include <memory>
#include <type_traits>

#include "krm/core/types.h"

/// Names one element of one list. Never defined: a `_SKRMPOSITION*` is the address of a list node, which is also the
/// address of its element. Null means "no element": before the head or past the tail. A position stays valid until its
/// element is removed.
struct _SKRMPOSITION;

namespace krm {

/// Whether a list may construct a new element of type `T` as a copy, in one step. That saves a sixth of the time and can be
/// told from the two steps of every other element (CKRMList) unless a copy is the same as a new object assigned to.
template <class T>
inline constexpr bool kCopiedInOneStep = false;

/// A node of a list: one heap block. The element comes first, so that the node's address is the element's too. For the
/// list and its iterator only.
template <class T>
struct ListNode {
    // Constructed in place: initialising the node as a whole would fill it with zeros before.
    ListNode() : element() {}                                    ///< with a new element
    explicit ListNode(const T& original) : element(original) {}  ///< with a copy

    T element;                 ///< first, so that the node's address is its own
    ListNode* next = nullptr;  ///< null at the tail
    ListNode* prev = nullptr;  ///< null at the head

    /// The node that a position names.
    static ListNode* Of(_SKRMPOSITION* position) { return reinterpret_cast<ListNode*>(position); }
    /// The position that names a node.
    static _SKRMPOSITION* ToPosition(ListNode* node) { return reinterpret_cast<_SKRMPOSITION*>(node); }
};

}  // namespace krm

/// Doubly linked list that owns its elements.
///
/// `T` needs a default constructor, copy construction, copy assignment and a destructor. A new element is
/// default-constructed in its node and then assigned to, unless `krm::kCopiedInOneStep<T>` says that nothing tells the
/// difference. Copying a list copies every element; nothing is ever shared.
///
/// Indices count from 0. No operation checks an index or a position against the list beyond what it says: callers check
/// against GetCount. GetAt, InsertAt and RemoveAt walk from the head, so a loop over indices is quadratic; walk by
/// position, or with range-for, instead:
///
///     for (CKRMCCommandEcuData& ecu : group.m_cEcuList) ...
///
/// Moving a list copies it: the interface fixes its members, among which there is no move, so std::move leaves the source
/// whole and costs what a copy does. Fill a list where it shall stay, or hand on a reference to it.
///
/// krm/core/list_tools.h has what stands beside it: size, filling from a range or braces, const access by index,
/// comparison.
///
/// One list is used by one thread at a time.
template <class T>
class KRM_TEMPLATE_CLASS CKRMList {
public:
    /// An empty list; allocates nothing.
    KRM_TEMPLATE_MEMBER CKRMList();
    /// A list of copies of `other`'s elements.
    KRM_TEMPLATE_MEMBER CKRMList(const CKRMList<T>& other);
    /// Destroys the elements from head to tail.
    KRM_TEMPLATE_MEMBER virtual ~CKRMList();
    /// Empties this list, then appends copies of `other`'s elements. A list assigned to itself is therefore emptied.
    KRM_TEMPLATE_MEMBER const CKRMList<T>& operator=(const CKRMList<T>& other);

    /// Appends a copy of `element`, which may lie in this list; returns its position, never null.
    KRM_TEMPLATE_MEMBER _SKRMPOSITION* AddTail(const T& element);
    /// Appends a copy of every element of `*other`, in order.
    /// REQUIRES: `other` is not null; and it is not this list unless that is empty, or the walk would never end.
    KRM_TEMPLATE_MEMBER void AddTail(const CKRMList<T>* other);
    /// Inserts a copy of `element` so that it ends up at `index`: below 1 first, at GetCount() or beyond last.
    KRM_TEMPLATE_MEMBER void InsertAt(int index, const T& element);
    /// Destroys the element at `index`: below 1 the first; at GetCount() or beyond nothing happens.
    /// On an empty list a negative index still takes one off the count: the comparison with the count is the only guard.
    KRM_TEMPLATE_MEMBER void RemoveAt(int index);
    /// Destroys all elements, from head to tail.
    KRM_TEMPLATE_MEMBER void RemoveAll();

    /// The number of elements; constant time.
    KRM_TEMPLATE_MEMBER int GetCount() const;
    /// The first element's position, null when the list is empty.
    KRM_TEMPLATE_MEMBER _SKRMPOSITION* GetHeadPosition() const;
    /// The last element's position, null when the list is empty.
    KRM_TEMPLATE_MEMBER _SKRMPOSITION* GetTailPosition() const;

    // Each of these yields the element at `position`, then moves the position on: GetNext* towards the tail, GetPrev*
    // towards the head, to null after the last.

    /// A copy of the element at `position`, which moves on to the next element or to null.
    /// REQUIRES, as do the seven that follow: `position` is not null and names an element of this list.
    KRM_TEMPLATE_MEMBER T GetNext(_SKRMPOSITION*& position) const;
    /// The element at `position` itself, which moves on to the next element or to null.
    KRM_TEMPLATE_MEMBER T& GetNext(_SKRMPOSITION*& position);
    /// The element at `position`, never null and not const; the position moves on as GetNext's does.
    KRM_TEMPLATE_MEMBER T* GetNextPtr(_SKRMPOSITION*& position) const;
    /// The element at `position`, never null; the position moves on as GetNext's does.
    KRM_TEMPLATE_MEMBER T* GetNextPtr(_SKRMPOSITION*& position);
    /// A copy of the element at `position`, which moves back to the previous element or to null.
    KRM_TEMPLATE_MEMBER T GetPrev(_SKRMPOSITION*& position) const;
    /// The element at `position` itself, which moves back to the previous element or to null.
    KRM_TEMPLATE_MEMBER T& GetPrev(_SKRMPOSITION*& position);
    /// The element at `position`, never null and not const; the position moves back as GetPrev's does.
    KRM_TEMPLATE_MEMBER T* GetPrevPtr(_SKRMPOSITION*& position) const;
    /// The element at `position`, never null; the position moves back as GetPrev's does.
    KRM_TEMPLATE_MEMBER T* GetPrevPtr(_SKRMPOSITION*& position);

    /// The element at `index`; every index below 1 means the first. Linear in the index.
    /// REQUIRES: `index` is below GetCount(), and the list is not empty.
    KRM_TEMPLATE_MEMBER T& GetAt(int index);
    /// Same as GetAt.
    KRM_TEMPLATE_MEMBER T& operator[](int index);
    /// As GetAt, but null when the list is empty or `index` equals GetCount(). REQUIRES: `index` is not beyond that.
    KRM_TEMPLATE_MEMBER T* GetAtPtr(int index);

private:
    using Node = krm::ListNode<T>;

    KRM_TEMPLATE_PRIVATE static std::unique_ptr<Node> NewNode(const T& element);
    KRM_TEMPLATE_PRIVATE void Append(Node* node);
    KRM_TEMPLATE_PRIVATE Node* NodeAt(int index) const;

    int m_count;
    Node* m_head;
    Node* m_tail;
};

/// Bidirectional iterator, for range-for and algorithms; `Element` is `T` or `const T`. Valid as long as the position it
/// stands on, and at the end as long as the list. Of two iterators of one list the positions compare.
template <class Element>
class CKRMListIterator {
public:
    using iterator_category = std::bidirectional_iterator_tag;  ///< what algorithms may count on
    using value_type = std::remove_const_t<Element>;            ///< the list's element type
    using difference_type = std::ptrdiff_t;                     ///< of two iterators; asked for by algorithms
    using pointer = Element*;                                   ///< what `->` gives
    using reference = Element&;                                 ///< what `*` gives

    /// The end of every list.
    CKRMListIterator() = default;
    /// At `position` of `list`; null is the end. Without its list it can't step back from there.
    explicit CKRMListIterator(_SKRMPOSITION* position, const CKRMList<value_type>* list = nullptr)
        : m_position(position), m_list(list) {}
    /// An iterator to const elements from any.
    operator CKRMListIterator<const Element>() const requires(!std::is_const_v<Element>) {
        return CKRMListIterator<const Element>(m_position, m_list);
    }

    /// The element. REQUIRES: this is not the end.
    reference operator*() const { return Node::Of(m_position)->element; }
    /// The element's members. REQUIRES: this is not the end.
    pointer operator->() const { return &**this; }
    /// Moves on to the next element, or to the end. REQUIRES: this is not the end.
    CKRMListIterator& operator++() {
        m_position = Node::ToPosition(Node::Of(m_position)->next);
        return *this;
    }
    /// The same; returns where the iterator stood.
    CKRMListIterator operator++(int) {
        CKRMListIterator before = *this;
        ++*this;
        return before;
    }
    /// Moves back to the element before; from the end to the last. REQUIRES: there is one.
    CKRMListIterator& operator--() {
        m_position = m_position == nullptr ? m_list->GetTailPosition() : Node::ToPosition(Node::Of(m_position)->prev);
        return *this;
    }
    /// The same; returns where it stood.
    CKRMListIterator operator--(int) {
        CKRMListIterator before = *this;
        --*this;
        return before;
    }
    /// Whether both stand on the same element, or both at the end.
    friend bool operator==(CKRMListIterator left, CKRMListIterator right) {
        return left.m_position == right.m_position;
    }

private:
    using Node = krm::ListNode<value_type>;

    _SKRMPOSITION* m_position = nullptr;
    const CKRMList<value_type>* m_list = nullptr;
};

// Free functions, because the list's member set is part of the interface.

/// The first element, for range-for; equal to end() when the list is empty.
template <class T>
CKRMListIterator<T> begin(CKRMList<T>& list) {
    return CKRMListIterator<T>(list.GetHeadPosition(), &list);
}
/// Behind the last element, for range-for.
template <class T>
CKRMListIterator<T> end(CKRMList<T>& list) {
    return CKRMListIterator<T>(nullptr, &list);
}
/// The first element of a const list.
template <class T>
CKRMListIterator<const T> begin(const CKRMList<T>& list) {
    return CKRMListIterator<const T>(list.GetHeadPosition(), &list);
}
/// Behind the last element of a const list.
template <class T>
CKRMListIterator<const T> end(const CKRMList<T>& list) {
    return CKRMListIterator<const T>(nullptr, &list);
}

// Members are defined outside the class: only so does an explicit instantiation export them from a DLL. The short
// ones may be compiled into the caller all the same (KRM_TEMPLATE_INLINE).

template <class T>
CKRMList<T>::CKRMList() : m_count(0), m_head(nullptr), m_tail(nullptr) {}

template <class T>
CKRMList<T>::CKRMList(const CKRMList<T>& other) : CKRMList() {
    AddTail(&other);
}

template <class T>
CKRMList<T>::~CKRMList() {
    RemoveAll();
}

template <class T>
const CKRMList<T>& CKRMList<T>::operator=(const CKRMList<T>& other) {
    RemoveAll();
    AddTail(&other);
    return *this;
}

template <class T>
std::unique_ptr<typename CKRMList<T>::Node> CKRMList<T>::NewNode(const T& element) {
    if constexpr (krm::kCopiedInOneStep<T>) {
        return std::make_unique<Node>(element);
    } else {
        std::unique_ptr<Node> node(new Node);
        node->element = element;
        return node;
    }
}

template <class T>
void CKRMList<T>::Append(Node* node) {
    if (m_head != nullptr) {
        m_tail->next = node;
        node->prev = m_tail;
    } else {
        m_head = node;
    }
    ++m_count;
    m_tail = node;
}

template <class T>
_SKRMPOSITION* CKRMList<T>::AddTail(const T& element) {
    Node* const node = NewNode(element).release();
    Append(node);
    return Node::ToPosition(node);
}

template <class T>
void CKRMList<T>::AddTail(const CKRMList<T>* other) {
    for (const Node* node = other->m_head; node != nullptr; node = node->next) {
        Append(NewNode(node->element).release());
    }
}

template <class T>
void CKRMList<T>::InsertAt(int index, const T& element) {
    Node* const node = NewNode(element).release();
    // The second test only matters for a negative index on an empty list, which has no node to link behind.
    if (index >= m_count || m_head == nullptr) {
        Append(node);
        return;
    }
    Node* const current = NodeAt(index);
    if (current == m_head) {
        m_head = node;
    } else {
        node->prev = current->prev;
        current->prev->next = node;
    }
    node->next = current;
    current->prev = node;
    ++m_count;
}

template <class T>
void CKRMList<T>::RemoveAt(int index) {
    if (index >= m_count) {
        return;
    }
    Node* removed = m_head;
    if (m_count <= 1) {
        m_head = nullptr;
        m_tail = nullptr;
    } else {
        removed = NodeAt(index);
        if (removed == m_head) {
            m_head = removed->next;
            m_head->prev = nullptr;
        } else if (removed != m_tail) {
            removed->prev->next = removed->next;
            removed->next->prev = removed->prev;
        } else {
            m_tail = removed->prev;
            m_tail->next = nullptr;
        }
    }
    delete removed;
    --m_count;
}

template <class T>
void CKRMList<T>::RemoveAll() {
    for (Node* node = m_head; node != nullptr;) {
        Node* const next = node->next;
        delete node;
        node = next;
    }
    m_count = 0;
    m_head = nullptr;
    m_tail = nullptr;
}

template <class T>
KRM_TEMPLATE_INLINE int CKRMList<T>::GetCount() const {
    return m_count;
}

template <class T>
KRM_TEMPLATE_INLINE _SKRMPOSITION* CKRMList<T>::GetHeadPosition() const {
    return Node::ToPosition(m_head);
}

template <class T>
KRM_TEMPLATE_INLINE _SKRMPOSITION* CKRMList<T>::GetTailPosition() const {
    return Node::ToPosition(m_tail);
}

// Loads the position, steps it and stores it back; never through a reference of another type.
template <class T>
KRM_TEMPLATE_INLINE T* CKRMList<T>::GetNextPtr(_SKRMPOSITION*& position) const {
    Node* const node = Node::Of(position);
    position = Node::ToPosition(node->next);
    return &node->element;
}

template <class T>
KRM_TEMPLATE_INLINE T* CKRMList<T>::GetPrevPtr(_SKRMPOSITION*& position) const {
    Node* const node = Node::Of(position);
    position = Node::ToPosition(node->prev);
    return &node->element;
}

template <class T>
KRM_TEMPLATE_INLINE T CKRMList<T>::GetNext(_SKRMPOSITION*& position) const {
    return *GetNextPtr(position);
}

template <class T>
KRM_TEMPLATE_INLINE T& CKRMList<T>::GetNext(_SKRMPOSITION*& position) {
    return *GetNextPtr(position);
}

template <class T>
KRM_TEMPLATE_INLINE T* CKRMList<T>::GetNextPtr(_SKRMPOSITION*& position) {
    return static_cast<const CKRMList<T>*>(this)->GetNextPtr(position);
}

template <class T>
KRM_TEMPLATE_INLINE T CKRMList<T>::GetPrev(_SKRMPOSITION*& position) const {
    return *GetPrevPtr(position);
}

template <class T>
KRM_TEMPLATE_INLINE T& CKRMList<T>::GetPrev(_SKRMPOSITION*& position) {
    return *GetPrevPtr(position);
}

template <class T>
KRM_TEMPLATE_INLINE T* CKRMList<T>::GetPrevPtr(_SKRMPOSITION*& position) {
    return static_cast<const CKRMList<T>*>(this)->GetPrevPtr(position);
}

template <class T>
typename CKRMList<T>::Node* CKRMList<T>::NodeAt(int index) const {
    Node* node = m_head;
    for (int i = 0; i < index; ++i) {
        node = node->next;
    }
    return node;
}

template <class T>
T& CKRMList<T>::GetAt(int index) {
    return NodeAt(index)->element;
}

template <class T>
T& CKRMList<T>::operator[](int index) {
    return GetAt(index);
}

template <class T>
T* CKRMList<T>::GetAtPtr(int index) {
    // Converts the node, null included, instead of taking the address of a member of null.
    return reinterpret_cast<T*>(NodeAt(index));
}

#endif  // KRM_CORE_LIST_H_
