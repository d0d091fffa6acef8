// The element tree: named elements that carry typed attributes and hold their children in groups, one per child name.
//
//     element -> attributes
//             -> groups -> elements of the group's name -> ...
//
// Here is what all nodes share; docs/interface.md has slots, layouts and who raises which code. Nothing else of the library
// uses the tree, and krm/tree/ includes nothing but krm/core/ and the platform.
//
// Every operation that can fail takes a CKRMError first and sets its code: 0 on success, else one of the error codes
// below, with empty details. A null error object is allowed; the failure then shows in the result alone. No such operation
// throws; only Description, and a constructor whose name can't be copied, let a std::bad_alloc pass.
//
// krm/tree/tools.h has loops, searching by path, removing a single node, copies and XML.
//
// One tree is used by one thread at a time; distinct trees are independent.
#ifndef KRM_TREE_NODE_H_
#define KRM_TREE_NODE_H_

#include "krm/core/error_codes.h"
#include "krm/core/types.h"
#include "krm/platform/platform.h"

namespace krm::tree {

struct Chain;

// Kinds of nodes, as CKRMCNode::GetKind gives them.
inline constexpr krm_ulong kAttributeKind = 1;     ///< a CKRMCAttribute
inline constexpr krm_ulong kElementKind = 2;       ///< a CKRMCElement
inline constexpr krm_ulong kElementGroupKind = 3;  ///< a CKRMCElementGroup

// Error codes (krm/core/error_codes.h).
using krm::kDifferentTypes;
using krm::kNoSuchAttribute;
using krm::kNoSuchElement;
using krm::kNoSuchGroup;
using krm::kNullArgument;  // a name, text, attribute, element or group is null
using krm::kOutOfMemory;
using krm::kUnknownValueType;
using krm::kValueUnset;

}  // namespace krm::tree

/// What every node of the tree has: its kind, its name, and its links.
///
/// A node owns its next sibling, so that destroying it destroys all that follow it in its chain. Destroy a node by itself
/// only while GetNext() is null; a node that stands in a tree belongs to the tree, which destroys it.
///
/// Copying is member by member: a copy shares the following siblings, and in derived classes the value and the children,
/// with the original. Both destroy them, the second time as a double free. So don't copy a node that has any of these:
/// krm::tree::Clone (krm/tree/tools.h) makes a copy that owns what it holds.
class KRM_API CKRMCNode {
public:
    /// A node on its own. A null `name` leaves the name empty.
    CKRMCNode(krm_ulong kind, const char* name);
    CKRMCNode(const CKRMCNode&) = default;             ///< member-wise: shares what the links lead to
    CKRMCNode& operator=(const CKRMCNode&) = default;  ///< member-wise: what the links led to before is not destroyed
    /// Destroys the following siblings, each through its virtual destructor and unlinked from its neighbours.
    virtual ~CKRMCNode();

    /// Appends the text of this node and of every following sibling to `out`, and returns the last one's result, which
    /// is 0 unless a class of your own returns something else. The base appends nothing and returns 0.
    ///
    /// However many siblings and levels there are, the library's own classes need no deep stack. A node of a class of
    /// your own is described by a call of its Description, which encloses that of all its followers: an overriding
    /// Description calls its base's to go on with them. Compile such classes with run-time type information.
    virtual krm_ulong Description(CKRMString& out);

    /// What the node is: krm::tree::kAttributeKind, kElementKind or kElementGroupKind.
    krm_ulong GetKind() const { return m_ulKind; }
    /// The name, never null, valid as long as the node.
    const char* GetName() const { return m_strName.GetText(); }
    /// The next sibling, null after the last. It has the class of this node as far as the tree created both: in a chain
    /// of attributes it is a CKRMCAttribute, and so on.
    CKRMCNode* GetNext() const { return m_pcNext; }
    /// The previous sibling, null before the first.
    CKRMCNode* GetPrev() const { return m_pcPrev; }
    /// The element or group in whose chain the node stands, null for a node on its own.
    CKRMCNode* GetParent() const { return m_pcParent; }

protected:
    krm_ulong m_ulKind;     ///< krm::tree::kAttributeKind and so on
    CKRMString m_strName;   ///< may be empty
    CKRMCNode* m_pcNext;    ///< next sibling; owned
    CKRMCNode* m_pcPrev;    ///< previous sibling; not owned
    CKRMCNode* m_pcParent;  ///< element or group whose chain this is; not owned

private:
    friend struct krm::tree::Chain;
};

#endif  // KRM_TREE_NODE_H_
