// A configuration parameter of the communication interface, as SAE J2534 defines them.
#ifndef KRM_MESSAGES_DIAG_J2534_CONFIG_H_
#define KRM_MESSAGES_DIAG_J2534_CONFIG_H_

#include "krm/core/list.h"
#include "krm/core/types.h"

/// One configuration parameter of SAE J2534 and its value. The message that holds it writes its log lines.
class KRM_API CKRMCCommandJ2534Config {
public:
    void Clear() { *this = CKRMCCommandJ2534Config(); }

    krm_ulong m_ulParameter = 0;
    krm_ulong m_ulValue = 0;
};
extern template class CKRMList<CKRMCCommandJ2534Config>;

#endif  // KRM_MESSAGES_DIAG_J2534_CONFIG_H_
