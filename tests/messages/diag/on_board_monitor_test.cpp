#include "krm/messages/diag/on_board_monitor.h"

#include <gtest/gtest.h>

#include <initializer_list>
#include <string>

#include "tests/messages/diag/expected_lines.h"
#include "tests/support/log_text.h"

namespace {

using krm::test::AnswerBaseLines;
using krm::test::ConversionLines;
using krm::test::DisplayLines;
using krm::test::ExpectLog;
using krm::test::RequestBaseLines;
using krm::test::Under;

TEST(OnBoardMonitorInfo, WritesItsFieldsInOrder) {
    CKRMCCommandOnBoardMonitorInfo result;
    result.m_ushId = 65535;
    result.m_strName = "Catalyst monitor bank 1";
    result.m_ulDescriptionId = 4294967295U;
    result.m_strDescription = "Conversion efficiency";
    result.m_strScalingId = "0x0A";
    result.m_ulUnitPhysId = 6;
    result.m_strUnitPhys = "V";
    result.m_ulUnitId = 8;
    result.m_strUnit = "mV";
    result.m_uchDataType = 10;
    result.m_uchDecPntCount = 11;
    result.m_uchUnitConvDecPntCount = 12;
    result.m_cConversionTbl.m_lMul = 13;
    result.m_cTestValData.m_ulDataStringId = 14;
    result.m_cTestMinData.m_ulDataStringId = 15;
    result.m_cTestMaxData.m_ulDataStringId = 16;
    result.m_bResult = true;
    ExpectLog(result, {R"(
P.m_ushId=65535
P.m_strName=Catalyst monitor bank 1
P.m_ulDescriptionId=-1
P.m_strDescription=Conversion efficiency
P.m_strScalingId=0x0A
P.m_ulUnitPhysId=6
P.m_strUnitPhys=V
P.m_ulUnitId=8
P.m_strUnit=mV
P.m_uchDataType=10
P.m_uchDecPntCount=11
P.m_uchUnitConvDecPntCount=12
)",
                       ConversionLines("P.m_cConversionTbl", 13), DisplayLines("P.m_cTestValData", 14),
                       DisplayLines("P.m_cTestMinData", 15), DisplayLines("P.m_cTestMaxData", 16), R"(
P.m_bResult=1
)"});
}

void AddBytes(CKRMList<unsigned char>& list, std::initializer_list<unsigned char> bytes) {
    for (const unsigned char byte : bytes) {
        list.AddTail(byte);
    }
}

TEST(OnBoardMonitor, RequestWritesALinePerMonitor) {
    CKRMCOnBoardMonitorCmdAdaptDataSnd request;
    request.m_ulEcuId = 1;
    AddBytes(request.m_uchMIDList, {0x21, 0xFF});
    ExpectLog(request, {RequestBaseLines(74, 1), R"(
[CKRMCOnBoardMonitorCmdAdaptDataSnd::ErrWriteOperationLog] m_uchMIDList[0]=33
[CKRMCOnBoardMonitorCmdAdaptDataSnd::ErrWriteOperationLog] m_uchMIDList[1]=255
)"});
}

TEST(OnBoardMonitor, AnswerWritesEachResultUnderItsIndex) {
    CKRMCOnBoardMonitorCmdAdaptDataRcv answer;
    CKRMCCommandOnBoardMonitorInfo result;
    std::string expected = AnswerBaseLines(74, 0);
    for (int i = 0; i < 2; ++i) {
        result.m_cTestValData.m_ulDataStringId = static_cast<krm_ulong>(100 + i);
        answer.Data.AddTail(result);
        const std::string prefix =
            "[CKRMCOnBoardMonitorCmdAdaptDataRcv::ErrWriteOperationLog] Data[" + std::to_string(i) + ']';
        expected += Under(prefix, R"(
.m_ushId=0
.m_strName=
.m_ulDescriptionId=0
.m_strDescription=
.m_strScalingId=
.m_ulUnitPhysId=0
.m_strUnitPhys=
.m_ulUnitId=0
.m_strUnit=
.m_uchDataType=0
.m_uchDecPntCount=0
.m_uchUnitConvDecPntCount=0
)");
        expected += ConversionLines(prefix + ".m_cConversionTbl", 0) +
                    DisplayLines(prefix + ".m_cTestValData", 100 + i) + DisplayLines(prefix + ".m_cTestMinData", 0) +
                    DisplayLines(prefix + ".m_cTestMaxData", 0) + prefix + ".m_bResult=0\n";
    }
    ExpectLog(answer, {expected});
}

TEST(OnBoardMonitorList, RequestWritesTheBaseLinesOnly) {
    CKRMCOnBoardMonitorListCmdAdaptDataSnd request;
    request.m_ulEcuId = 3;
    ExpectLog(request, {RequestBaseLines(119, 3)});
}

TEST(OnBoardMonitorList, AnswerWritesALinePerMonitor) {
    CKRMCOnBoardMonitorListCmdAdaptDataRcv answer;
    AddBytes(answer.m_uchMIDList, {0x01, 0xA1});
    ExpectLog(answer, {AnswerBaseLines(119, 0), R"(
[CKRMCOnBoardMonitorListCmdAdaptDataRcv::ErrWriteOperationLog] m_uchMIDList[0]=1
[CKRMCOnBoardMonitorListCmdAdaptDataRcv::ErrWriteOperationLog] m_uchMIDList[1]=161
)"});
}

}  // namespace
