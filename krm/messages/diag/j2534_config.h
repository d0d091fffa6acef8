// A configuration parameter of the communication interface, as SAE J2534 defines them.
#ifndef KRM_MESSAGES_DIAG_J2534_CONFIG_H_
#define KRM_MESSAGES_DIAG_J2534_CONFIG_H_

#include "krm/core/list.h"
#include "krm/core/types.h"

/// A configuration parameter of SAE J2534 and its value. Has no dump: the message that holds it writes its fields.
class KRM_API CKRMCCommandJ2534Config {
public:
    /// Restores the values of a new object.
    void Clear() { *this = CKRMCCommandJ2534Config(); }

    krm_ulong m_ulParameter = 0;  ///< number of the parameter, as SAE J2534 gives it
    krm_ulong m_ulValue = 0;      ///< value, in the parameter's unit by SAE J2534
};
template <>
inline constexpr bool krm::kCopiedInOneStep<CKRMCCommandJ2534Config> = true;
extern template class CKRMList<CKRMCCommandJ2534Config>;

#endif  // KRM_MESSAGES_DIAG_J2534_CONFIG_H_
