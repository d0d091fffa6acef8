// CKRMCElement: a named element with its attributes and its children.
#ifndef KRM_TREE_ELEMENT_H_
#define KRM_TREE_ELEMENT_H_

#include "krm/tree/attribute.h"
#include "krm/tree/node.h"

class CKRMCElementGroup;

/// An element: attributes, each name once, and groups of child elements, one group per child name. It owns both; whoever
/// constructed the root owns the tree.
///
///     CKRMError error;
///     CKRMCElement vehicle("Vehicle");
///     CKRMCElement* ecu = vehicle.CreateElement(&error, "Ecu");
///     ecu->CreateAttribute(&error, "Id")->SetValue(&error, krm_ulong(5));
///     for (CKRMCNode* node = vehicle.GetFirstElement(&error, "Ecu"); node != nullptr; node = node->GetNext()) {
///         const auto* each = static_cast<CKRMCElement*>(node);
///
/// Names match byte by byte. An empty name is a name like any other; a null one is kNullArgument everywhere but in the
/// constructor. A name that is not there is no error: the lookup gives null and leaves the error cleared. What a failed
/// operation was to change is unchanged.
///
/// The operations call one another virtually: whoever overrides GetAttribute changes what CreateAttribute finds.
///
/// Copies share attributes and children with the original, and both destroy them. Don't copy an element that has any:
/// krm::tree::Clone does that.
class KRM_API CKRMCElement : public CKRMCNode {
public:
    /// An element without attributes and children. A null `name` gives an empty one.
    explicit CKRMCElement(const char* name);
    CKRMCElement(const CKRMCElement&) = default;             ///< member-wise: shares attributes and children
    CKRMCElement& operator=(const CKRMCElement&) = default;  ///< member-wise: what was held before is not destroyed
    /// Destroys the attributes, then the groups, then the following siblings.
    ~CKRMCElement() override;

    /// Appends `<name attributes>`, the children, and `</name>`, the two tags with a newline each, then the same of the
    /// following siblings. Nothing is indented or escaped.
    krm_ulong Description(CKRMString& out) override;
    /// Destroys all attributes and all groups.
    virtual void RemoveAll();

    /// The attribute of that name: the one that is there, or a new, empty one behind the last. Null with an error code
    /// when it can't be allocated (kOutOfMemory).
    virtual CKRMCAttribute* CreateAttribute(CKRMError* error, const char* name);
    /// Destroys `attribute` AND ALL ATTRIBUTES BEHIND IT, which it owns.
    ///
    /// Only removing the last attribute leaves the element sound: after any other removal it still leads to the destroyed
    /// ones and must not be used or destroyed any more. krm::tree::Remove (krm/tree/tools.h) takes out just one; here
    /// several go from the last one backwards, or all with RemoveAll.
    ///
    /// False with an error code when the attribute is null (kNullArgument) or not in this element (kNoSuchAttribute).
    virtual bool RemoveAttribute(CKRMError* error, CKRMCAttribute* attribute);
    /// The first attribute of that name, or null.
    virtual CKRMCAttribute* GetAttribute(CKRMError* error, const char* name);

    /// The group of that name: the one that is there, or a new, empty one behind the last. Null with an error code when
    /// it can't be allocated (kOutOfMemory).
    virtual CKRMCElementGroup* CreateElementGroup(CKRMError* error, const char* name);
    /// Destroys `group` with its elements AND ALL GROUPS BEHIND IT, which it owns.
    ///
    /// Only removing the last group leaves the element sound; see RemoveAttribute. To be rid of a group's elements, remove
    /// them one by one, from the last one backwards: an emptied group does no harm.
    ///
    /// False with an error code when the group is null (kNullArgument) or not in this element (kNoSuchGroup).
    virtual bool RemoveElementGroup(CKRMError* error, CKRMCElementGroup* group);
    /// The first group of that name, or null.
    virtual CKRMCElementGroup* GetElementGroup(CKRMError* error, const char* name);

    /// A new child element of that name, behind the last one of its name; the group is created where it is missing.
    /// Every call adds one. To add very many, keep the group and call its CreateElement, which looks nothing up.
    /// Null with an error code when it can't be allocated (kOutOfMemory); a new group then stays, empty.
    virtual CKRMCElement* CreateElement(CKRMError* error, const char* name);
    /// Destroys the child `element` AND ALL CHILDREN OF ITS NAME BEHIND IT, which it owns. Its group stays, also when it
    /// is empty.
    ///
    /// Only removing the last one of its name leaves the tree sound; see RemoveAttribute.
    ///
    /// False with an error code when the element is null (kNullArgument), when there is no group of its name here
    /// (kNoSuchGroup), or when it is not in that group (kNoSuchElement).
    virtual bool RemoveElement(CKRMError* error, CKRMCElement* element);
    /// The first child element of that name, or null; GetNext leads to the others.
    virtual CKRMCElement* GetFirstElement(CKRMError* error, const char* name);
    /// The first child element of that name that has an attribute with the name and the value of `attribute`, or null.
    /// About error codes see CKRMCElementGroup::GetElementByAttribute.
    virtual CKRMCElement* GetElementByAttribute(CKRMError* error, const char* name, CKRMCAttribute* attribute);

    /// The first attribute, or null; GetNext leads to the others, in the order of their creation.
    CKRMCAttribute* GetFirstAttribute() const { return m_pcFirstAttribute; }
    /// The first group, or null; GetNext leads to the others, in the order of their creation.
    CKRMCElementGroup* GetFirstGroup() const { return m_pcFirstGroup; }

protected:
    CKRMCAttribute* m_pcFirstAttribute;  ///< owned, and through it the chain
    CKRMCAttribute* m_pcLastAttribute;   ///< not owned
    CKRMCElementGroup* m_pcFirstGroup;   ///< owned, and through it the chain
    CKRMCElementGroup* m_pcLastGroup;    ///< not owned

private:
    friend struct krm::tree::Chain;
};

#endif  // KRM_TREE_ELEMENT_H_
