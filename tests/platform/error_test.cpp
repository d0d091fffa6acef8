#include <gtest/gtest.h>

#include <type_traits>

#include "krm/platform/platform.h"

namespace {

void ExpectDetails(const CKRMError& error, const char* module, const char* className, const char* function,
                   const char* arguments, const char* message) {
    EXPECT_STREQ(error.a_strErrorModuleName.GetText(), module);
    EXPECT_STREQ(error.a_strErrorClassName.GetText(), className);
    EXPECT_STREQ(error.a_strErrorFunctionName.GetText(), function);
    EXPECT_STREQ(error.a_strErrorFunctionArgs.GetText(), arguments);
    EXPECT_STREQ(error.a_strMessage.GetText(), message);
}

TEST(ErrorTest, IsSuccessWhenNew) {
    const CKRMError error;
    EXPECT_EQ(error.GetErrorCode(), 0U);
    EXPECT_EQ(error.a_ulReturnCode, 0U);
    ExpectDetails(error, "", "", "", "", "");
}

TEST(ErrorTest, SetErrorSetsCodeAndDetails) {
    CKRMError error;
    error.SetError(4100100001U, "module", "class", "function", "arguments", "message");
    EXPECT_EQ(error.GetErrorCode(), 4100100001U);
    EXPECT_EQ(error.a_ulReturnCode, 4100100001U);
    ExpectDetails(error, "module", "class", "function", "arguments", "message");
    error.SetError(1, "", "", "", "", "");
    EXPECT_EQ(error.GetErrorCode(), 1U);
    ExpectDetails(error, "", "", "", "", "");
}

TEST(ErrorTest, SetErrorCodeLeavesTheDetails) {
    CKRMError error;
    error.SetError(7, "module", "class", "function", "arguments", "message");
    error.SetErrorCode(0);
    EXPECT_EQ(error.GetErrorCode(), 0U);
    ExpectDetails(error, "module", "class", "function", "arguments", "message");
}

TEST(ErrorTest, CopiesAreDeep) {
    CKRMError error;
    error.SetError(7, "module", "class", "function", "arguments", "message");
    const CKRMError copy(error);
    CKRMError assigned;
    assigned = error;
    error.SetError(8, "", "", "", "", "");
    EXPECT_EQ(copy.GetErrorCode(), 7U);
    ExpectDetails(copy, "module", "class", "function", "arguments", "message");
    EXPECT_EQ(assigned.GetErrorCode(), 7U);
    ExpectDetails(assigned, "module", "class", "function", "arguments", "message");
}

TEST(ErrorTest, ItsOperationsAreVirtual) {
    /// Counts the failures that are reported to it, as a caller's own error object may.
    class Counting : public CKRMError {
    public:
        void SetError(krm_ulong code, const CKRMString& moduleName, const CKRMString& className,
                      const CKRMString& functionName, const CKRMString& functionArgs,
                      const CKRMString& message) override {
            ++m_failures;
            CKRMError::SetError(code, moduleName, className, functionName, functionArgs, message);
        }
        krm_ulong GetErrorCode() const override { return a_ulReturnCode + 100; }
        void SetErrorCode(krm_ulong code) override { a_ulReturnCode = code + 1; }
        int m_failures = 0;
    };
    Counting counting;
    CKRMError& error = counting;
    error.SetError(3, "", "", "", "", "");
    EXPECT_EQ(counting.m_failures, 1);
    EXPECT_EQ(error.GetErrorCode(), 103U);
    error.SetErrorCode(5);
    EXPECT_EQ(counting.a_ulReturnCode, 6U);
    static_assert(std::has_virtual_destructor_v<CKRMError>);
}

}  // namespace
