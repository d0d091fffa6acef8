// How an operation of the tree reports. Part of the tree's inside.
#ifndef KRM_TREE_INTERNAL_OPERATION_H_
#define KRM_TREE_INTERNAL_OPERATION_H_

#include <optional>

#include "krm/platform/platform.h"

namespace krm::tree {

/// The error object of one operation, cleared at its beginning: the caller's or, where he passed none, a local one.
class Operation {
public:
    explicit Operation(CKRMError* error) : m_error(error != nullptr ? *error : m_local.emplace()) {
        m_error.SetErrorCode(0);
    }
    Operation(const Operation&) = delete;
    Operation& operator=(const Operation&) = delete;

    /// For nested operations; never null.
    CKRMError* Error() { return &m_error; }
    /// Whether a nested operation failed.
    bool Failed() const { return m_error.GetErrorCode() != 0; }
    /// Reports `code` with empty details, which allocates nothing.
    void Fail(krm_ulong code) {
        const CKRMString empty;
        m_error.SetError(code, empty, empty, empty, empty, empty);
    }

private:
    std::optional<CKRMError> m_local;
    CKRMError& m_error;
};

}  // namespace krm::tree

#endif  // KRM_TREE_INTERNAL_OPERATION_H_
