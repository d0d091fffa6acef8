// An error object that writes down how it is called: the sequence of calls is part of the tree's interface.
#ifndef KRM_TESTS_SUPPORT_RECORDING_ERROR_H_
#define KRM_TESTS_SUPPORT_RECORDING_ERROR_H_

#include <string>
#include <utility>
#include <vector>

#include "krm/platform/platform.h"

namespace krm::test {

class RecordingError : public CKRMError {
public:
    void SetError(krm_ulong code, const CKRMString& moduleName, const CKRMString& className,
                  const CKRMString& functionName, const CKRMString& functionArgs, const CKRMString& message) override {
        std::string call = "SetError(" + std::to_string(code);
        for (const CKRMString* detail : {&moduleName, &className, &functionName, &functionArgs, &message}) {
            call += std::string(",") + detail->GetText();
        }
        m_calls.push_back(call + ")");
        CKRMError::SetError(code, moduleName, className, functionName, functionArgs, message);
    }
    krm_ulong GetErrorCode() const override {
        m_calls.push_back("GetErrorCode");
        return CKRMError::GetErrorCode();
    }
    void SetErrorCode(krm_ulong code) override {
        m_calls.push_back("SetErrorCode(" + std::to_string(code) + ")");
        CKRMError::SetErrorCode(code);
    }

    /// The calls since the last TakeCalls.
    std::vector<std::string> TakeCalls() { return std::exchange(m_calls, {}); }

private:
    mutable std::vector<std::string> m_calls;
};

}  // namespace krm::test

#endif  // KRM_TESTS_SUPPORT_RECORDING_ERROR_H_
