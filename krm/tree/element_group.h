// CKRMCElementGroup: the children of one name of an element.
#ifndef KRM_TREE_ELEMENT_GROUP_H_
#define KRM_TREE_ELEMENT_GROUP_H_

#include "krm/tree/element.h"
#include "krm/tree/node.h"

/// Elements that all have the group's name, in the order of their creation. The group owns them.
///
/// The operations call one another, and those of the elements, virtually.
///
/// Copies share the elements with the original, and both destroy them. Don't copy a group that has any: krm::tree::Clone
/// does that.
class KRM_API CKRMCElementGroup : public CKRMCNode {
public:
    /// A group without elements. A null `name` gives an empty one.
    explicit CKRMCElementGroup(const char* name);
    CKRMCElementGroup(const CKRMCElementGroup&) = default;             ///< member-wise: shares the elements
    CKRMCElementGroup& operator=(const CKRMCElementGroup&) = default;  ///< member-wise: what was held is not destroyed
    /// Destroys the elements, then the following siblings.
    ~CKRMCElementGroup() override;

    /// Appends what its elements append, then what the following siblings append; a group has no text of its own.
    krm_ulong Description(CKRMString& out) override;

    /// A new element with the group's name, behind the last; costs the same however many there are. Null with an error
    /// code when it can't be allocated (kOutOfMemory).
    virtual CKRMCElement* CreateElement(CKRMError* error);
    /// Destroys `element` AND ALL ELEMENTS BEHIND IT, which it owns.
    ///
    /// Only removing the last element leaves the group sound: after any other removal it still leads to the destroyed
    /// ones, and neither it nor the tree that holds it may be used or destroyed any more. krm::tree::Remove takes
    /// out just one.
    ///
    /// False with an error code when the element is null (kNullArgument) or not in this group (kNoSuchElement).
    virtual bool RemoveElement(CKRMError* error, CKRMCElement* element);
    /// The first element, or null; GetNext leads to the others.
    virtual CKRMCElement* GetFirstElement(CKRMError* error);
    /// The first element that has an attribute with the name and the value of `attribute`, or null.
    ///
    /// Elements without such an attribute, or with one that can't be compared with `attribute`, are passed over. When none
    /// is found, the error keeps what the last element left: 0, or a code of CKRMCAttribute::CompareValue. A null
    /// `attribute` is kNullArgument.
    virtual CKRMCElement* GetElementByAttribute(CKRMError* error, CKRMCAttribute* attribute);

protected:
    CKRMCElement* m_pcFirstElement;  ///< owned, and through it the chain
    CKRMCElement* m_pcLastElement;   ///< not owned

private:
    friend struct krm::tree::Chain;
};

#endif  // KRM_TREE_ELEMENT_GROUP_H_
