#include "krm/messages/diag/trouble_codes.h"
#include "krm/version.h"

static_assert(KRM_VERSION == KRM_VERSION_MAJOR * 10000 + KRM_VERSION_MINOR * 100 + KRM_VERSION_PATCH);

#ifdef EXPECTED_VERSION
#include <string>

bool IsExpectedVersion() {
    return std::to_string(KRM_VERSION_MAJOR) + '.' + std::to_string(KRM_VERSION_MINOR) + '.' +
               std::to_string(KRM_VERSION_PATCH) ==
           EXPECTED_VERSION;
}
#else
bool IsExpectedVersion() {
    return true;
}
#endif

int main() {
    CKRMCGetDTCCmdAdaptDataRcv answer;
    CKRMCCommandDTCData code;
    code.m_strDTC = "P0301";
    answer.Data.AddTail(code);
    const CKRMCGetDTCCmdAdaptDataRcv copy = answer;
    const CKRMBaseAdaptationData* const untyped = &copy;
    const bool right = krm::MessageAs<CKRMCGetDTCCmdAdaptDataRcv>(untyped) == &copy && copy.Data.GetCount() == 1;
    return right && answer.Data[0].m_strDTC.Compare("P0301") == 0 && IsExpectedVersion() ? 0 : 1;
}
