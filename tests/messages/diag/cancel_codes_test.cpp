#include "krm/messages/diag/cancel_codes.h"

#include <gtest/gtest.h>

#include <string>

#include "krm/messages/diag/trouble_code.h"
#include "tests/messages/diag/expected_lines.h"
#include "tests/support/log_text.h"

namespace {

using krm::test::AnswerBaseLines;
using krm::test::ExpectLog;
using krm::test::ItemLines;
using krm::test::RequestBaseLines;
using krm::test::TroubleCodeLines;
using krm::test::Under;

TEST(CancelCodeData, WritesItsFieldsInOrder) {
    CKRMCCommandCancelCodeData code;
    code.m_uchKind = 1;
    code.m_uchStatus = 255;
    code.m_ulCode = 4294967295U;
    code.m_strCode = "C 100 %";
    code.m_ulExplanationId = 5;
    code.m_strExplanation = "Driver switched it off";
    code.m_bTripCount = true;
    code.m_cTripCount.m_ushId = 8;
    code.m_cTimeCount.m_ushId = 10;
    code.m_bTripGroup = true;
    code.m_cTripGroup.m_ushId = 12;
    code.m_cOccurrenceCount.m_ushId = 14;
    code.m_bMainUnitTemperature = true;
    code.m_cMainUnitTemperature.m_ushId = 16;
    code.m_cCameraUnitTemperature.m_ushId = 18;
    ExpectLog(code, {R"(
P.m_uchKind=1
P.m_uchStatus=255
P.m_ulCode=-1
P.m_strCode=C 100 %
P.m_ulExplanationId=5
P.m_strExplanation=Driver switched it off
P.m_bTripCount=1
)",
                     ItemLines("P.m_cTripCount", 8), R"(
P.m_bTimeCount=0
)",
                     ItemLines("P.m_cTimeCount", 10), R"(
P.m_bTripGroup=1
)",
                     ItemLines("P.m_cTripGroup", 12), R"(
P.m_bOccurrenceCount=0
)",
                     ItemLines("P.m_cOccurrenceCount", 14), R"(
P.m_bMainUnitTemperature=1
)",
                     ItemLines("P.m_cMainUnitTemperature", 16), R"(
P.m_bCameraUnitTemperature=0
)",
                     ItemLines("P.m_cCameraUnitTemperature", 18)});
}

TEST(CancelCodeData, WritesEachFlagFromItsOwnField) {
    CKRMCCommandCancelCodeData code;
    code.m_bTimeCount = true;
    code.m_bOccurrenceCount = true;
    code.m_bCameraUnitTemperature = true;
    ExpectLog(code, {R"(
P.m_uchKind=0
P.m_uchStatus=0
P.m_ulCode=0
P.m_strCode=
P.m_ulExplanationId=0
P.m_strExplanation=
P.m_bTripCount=0
)",
                     ItemLines("P.m_cTripCount", 0), R"(
P.m_bTimeCount=1
)",
                     ItemLines("P.m_cTimeCount", 0), R"(
P.m_bTripGroup=0
)",
                     ItemLines("P.m_cTripGroup", 0), R"(
P.m_bOccurrenceCount=1
)",
                     ItemLines("P.m_cOccurrenceCount", 0), R"(
P.m_bMainUnitTemperature=0
)",
                     ItemLines("P.m_cMainUnitTemperature", 0), R"(
P.m_bCameraUnitTemperature=1
)",
                     ItemLines("P.m_cCameraUnitTemperature", 0)});
}

TEST(CancelCodeCategoryInfo, WritesItsNumbersUnsigned) {
    CKRMCCommandCancelCodeCategoryInfo category;
    category.m_ushCategoryId = 65535;
    category.m_ulCategoryNameId = 4294967295U;
    category.m_strCategoryName = "Parking aid";
    category.m_ulWarningMessageId = 2147483648U;
    category.m_strWarningMessage = "Stop the engine";
    ExpectLog(category, {R"(
P.m_ushCategoryId=65535
P.m_ulCategoryNameId=4294967295
P.m_strCategoryName=Parking aid
P.m_ulWarningMessageId=2147483648
P.m_strWarningMessage=Stop the engine
)"});
}

TEST(GetCancelCodeCategoryList, RequestWritesTheBaseLinesOnly) {
    CKRMCGetCancelCodeCategoryListCmdAdaptDataSnd request;
    ExpectLog(request, {RequestBaseLines(75, 0)});
}

TEST(GetCancelCodeCategoryList, AnswerWritesEachCategoryUnderItsIndex) {
    CKRMCGetCancelCodeCategoryListCmdAdaptDataRcv answer;
    CKRMCCommandCancelCodeCategoryInfo category;
    category.m_ushCategoryId = 1;
    answer.Data.AddTail(category);
    category.m_ushCategoryId = 2;
    answer.Data.AddTail(category);
    ExpectLog(answer, {AnswerBaseLines(75, 0), R"(
[CKRMCGetCancelCodeCategoryListCmdAdaptDataRcv::ErrWriteOperationLog] Data[0].m_ushCategoryId=1
[CKRMCGetCancelCodeCategoryListCmdAdaptDataRcv::ErrWriteOperationLog] Data[0].m_ulCategoryNameId=0
[CKRMCGetCancelCodeCategoryListCmdAdaptDataRcv::ErrWriteOperationLog] Data[0].m_strCategoryName=
[CKRMCGetCancelCodeCategoryListCmdAdaptDataRcv::ErrWriteOperationLog] Data[0].m_ulWarningMessageId=0
[CKRMCGetCancelCodeCategoryListCmdAdaptDataRcv::ErrWriteOperationLog] Data[0].m_strWarningMessage=
[CKRMCGetCancelCodeCategoryListCmdAdaptDataRcv::ErrWriteOperationLog] Data[1].m_ushCategoryId=2
[CKRMCGetCancelCodeCategoryListCmdAdaptDataRcv::ErrWriteOperationLog] Data[1].m_ulCategoryNameId=0
[CKRMCGetCancelCodeCategoryListCmdAdaptDataRcv::ErrWriteOperationLog] Data[1].m_strCategoryName=
[CKRMCGetCancelCodeCategoryListCmdAdaptDataRcv::ErrWriteOperationLog] Data[1].m_ulWarningMessageId=0
[CKRMCGetCancelCodeCategoryListCmdAdaptDataRcv::ErrWriteOperationLog] Data[1].m_strWarningMessage=
)"});
}

TEST(GetCancelCode, RequestWritesTheCategory) {
    CKRMCGetCancelCodeCmdAdaptDataSnd request;
    request.m_ulEcuId = 1;
    request.m_ushCategoryId = 65535;
    ExpectLog(request, {RequestBaseLines(76, 1), R"(
[CKRMCGetCancelCodeCmdAdaptDataSnd::ErrWriteOperationLog] m_ushCategoryId=65535
)"});
}

TEST(GetCancelCode, AnswerCountsTroubleCodesAndCancelCodesFromZeroUnderTheSameName) {
    CKRMCGetCancelCodeCmdAdaptDataRcv answer;
    CKRMCCommandDTCData troubleCode;
    troubleCode.m_uchDTCKind = 11;
    answer.m_cDTCList.AddTail(troubleCode);
    troubleCode.m_uchDTCKind = 12;
    answer.m_cDTCList.AddTail(troubleCode);
    CKRMCCommandCancelCodeData cancelCode;
    cancelCode.m_uchKind = 13;
    answer.Data.AddTail(cancelCode);
    answer.m_bProhibit = true;
    const std::string name = "[CKRMCGetCancelCodeCmdAdaptDataRcv::ErrWriteOperationLog] ";
    const std::string data = name + "Data[0]";
    ExpectLog(
        answer,
        {AnswerBaseLines(76, 0), TroubleCodeLines(data, 11), TroubleCodeLines(name + "Data[1]", 12), Under(data, R"(
.m_uchKind=13
.m_uchStatus=0
.m_ulCode=0
.m_strCode=
.m_ulExplanationId=0
.m_strExplanation=
.m_bTripCount=0
)"),
         ItemLines(data + ".m_cTripCount", 0), data + ".m_bTimeCount=0\n", ItemLines(data + ".m_cTimeCount", 0),
         data + ".m_bTripGroup=0\n", ItemLines(data + ".m_cTripGroup", 0), data + ".m_bOccurrenceCount=0\n",
         ItemLines(data + ".m_cOccurrenceCount", 0), data + ".m_bMainUnitTemperature=0\n",
         ItemLines(data + ".m_cMainUnitTemperature", 0), data + ".m_bCameraUnitTemperature=0\n",
         ItemLines(data + ".m_cCameraUnitTemperature", 0), name + "m_bProhibit=1\n"});
}

TEST(GetCancelCode, AnswerWithoutCodesWritesTheFlagOnly) {
    CKRMCGetCancelCodeCmdAdaptDataRcv answer;
    ExpectLog(answer, {AnswerBaseLines(76, 0), R"(
[CKRMCGetCancelCodeCmdAdaptDataRcv::ErrWriteOperationLog] m_bProhibit=0
)"});
}

}  // namespace
