// Expected log lines that many tests of the diagnostic messages share: the lines of the message bases, and those of the
// display, conversion, freeze-frame and trouble code records that other records embed.
#ifndef KRM_TESTS_MESSAGES_DIAG_EXPECTED_LINES_H_
#define KRM_TESTS_MESSAGES_DIAG_EXPECTED_LINES_H_

#include <gtest/gtest.h>

#include <initializer_list>
#include <string>
#include <string_view>
#include <type_traits>

#include "krm/framework/message.h"
#include "tests/support/log_text.h"
#include "tests/support/value_checks.h"

namespace krm::test {

/// The lines that a request writes before its own.
inline std::string RequestBaseLines(int commandId, int ecuId) {
    return "[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandType=1\n"
           "[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandID=" +
           std::to_string(commandId) +
           "\n[CKRMCBaseCmdAdaptDataSnd::ErrWriteOperationLog] m_ulEcuId=" + std::to_string(ecuId) + '\n';
}

/// The lines that an answer writes before its own.
inline std::string AnswerBaseLines(int commandId, int notSupport) {
    return "[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandType=1\n"
           "[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandID=" +
           std::to_string(commandId) +
           "\n[CKRMCBaseCmdAdaptDataRcv::ErrWriteOperationLog] m_bNotSupport=" + std::to_string(notSupport) + '\n';
}

/// The lines of a new display value whose `m_ulDataStringId` is `stringId`.
inline std::string DispDataLines(const std::string& prefix, int stringId) {
    return prefix + ".m_ulDataStringId=" + std::to_string(stringId) + '\n' + Under(prefix, R"(
.m_strDataPhys=
.m_strData=
.m_dDataPhys=0.000000
.m_dData=0.000000
.m_ulRawData=0
.m_chIndex=0
.m_lIndex=0
.m_ulDispDataType=0
)");
}

/// The lines of a new conversion rule whose `m_lMul` is `multiplier`.
inline std::string ConversionLines(const std::string& prefix, int multiplier) {
    return prefix + ".m_lMul=" + std::to_string(multiplier) + '\n' + Under(prefix, R"(
.m_lDiv=0
.m_lOffset=0
.m_ushGenreId=0
.m_uchSigned=0
.m_ushBitLength=0
.m_strDefaultPattern=
)") + DispDataLines(prefix + ".m_cDataMax", 0) +
           DispDataLines(prefix + ".m_cDataMin", 0) + DispDataLines(prefix + ".m_cGraphMax", 0) +
           DispDataLines(prefix + ".m_cGraphMin", 0);
}

/// The lines of a new freeze-frame item whose `m_ushId` is `id`.
inline std::string FreezeFrameLines(const std::string& prefix, int id) {
    return prefix + ".m_ushId=" + std::to_string(id) + '\n' + Under(prefix, R"(
.m_ulNameId=0
.m_strName=
.m_ulUnitPhysId=0
.m_strUnitPhys=
.m_ulUnitId=0
.m_strUnit=
.m_uchDataType=0
.m_uchDecPntCount=0
.m_uchUnitConvDecPntCount=0
)") + ConversionLines(prefix + ".m_cConversionTbl", 0) +
           DispDataLines(prefix + ".m_cResolutionData", 0) + Under(prefix, R"(
.m_cDataLayout.m_ulPidNo=0x0
.m_cDataLayout.m_ulDataLen=0
.m_cDataLayout.m_uchEndian=0
.m_cDataLayout.m_ulByteNum=0
.m_cDataLayout.m_ulBytePos=0
.m_cDataLayout.m_ulBitMask=0x00000000
)");
}

/// The lines of a new trouble code whose `m_uchDTCKind` is `kind`.
inline std::string TroubleCodeLines(const std::string& prefix, int kind) {
    return prefix + ".m_uchDTCKind=" + std::to_string(kind) + '\n' + Under(prefix, R"(
.m_ulDTCCode=0
.m_strDTC=
.m_ulDTCNameId=0
.m_strDTCName=
.m_ulDTCDivNameId=0
.m_strDTCDivName=
.m_chFFDType=0
.m_uchFFDId=0
.m_strComment=
.m_uchDTCType=0
.m_ulDTCTypeNameId=0
.m_strDTCTypeName=
.m_ulDTCTypeToolId=0
.m_strDTCTypeTool=
.m_uchDTCStatus=0
.m_ulDTCStatusNameId=0
.m_strDTCStatusName=
.m_ulDTCStatusToolId=0
.m_strDTCStatusTool=
.m_bTripTime=0
.m_bFailTripTime=0
)") + FreezeFrameLines(prefix + ".m_cTripTime", 0) +
           Under(prefix, R"(
.m_bAfterIgOnTime=0
.m_bFailAfterIgOnTime=0
)") + FreezeFrameLines(prefix + ".m_cAfterIgOnTime", 0) +
           Under(prefix, R"(
.m_ulOriginalCountId=0
)") + FreezeFrameLines(prefix + ".m_cClockType", 0) +
           Under(prefix, R"(
.m_bStatusOfDTC=0
.m_uchStatusOfDTC=0
.m_ulDTCGroupId=0
)");
}

/// Checks that `Request` and `Answer` are the messages of the diagnostic command `id`, and plain values.
template <class Request, class Answer>
void ExpectDiagnosticCommand(krm_ulong id) {
    static_assert(std::is_base_of_v<CKRMCBaseCmdAdaptDataSnd, Request>);
    static_assert(std::is_base_of_v<CKRMCBaseCmdAdaptDataRcv, Answer>);
    ExpectTypeAndId<Request>(1, id);
    ExpectTypeAndId<Answer>(1, id);
    ExpectPlainValue<Request>();
    ExpectPlainValue<Answer>();
}

/// Checks that `message` writes `expected`, and returns 0 even though the writer of the log fails.
template <class Message>
void ExpectLog(Message& message, std::initializer_list<std::string_view> expected) {
    LogCapture log(-1);
    EXPECT_EQ(message.ErrWriteOperationLog(), 0);
    EXPECT_EQ(Joined(log.Texts()), Log(expected));
}

}  // namespace krm::test

#endif  // KRM_TESTS_MESSAGES_DIAG_EXPECTED_LINES_H_
