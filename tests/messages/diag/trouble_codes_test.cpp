#include "krm/messages/diag/trouble_codes.h"

#include <gtest/gtest.h>

#include <string>

#include "krm/fields/diag/trouble_codes.h"
#include "krm/messages/diag/trouble_code.h"
#include "krm/messages/diag/words.h"
#include "tests/messages/diag/expected_lines.h"
#include "tests/support/fields.h"
#include "tests/support/log_text.h"

namespace {

using krm::test::ExpectLog;
using krm::test::Fill;
using krm::test::NumberedItem;
using krm::test::NumberedItemLines;
using krm::test::RecordText;
using krm::test::Seed;

TEST(DtcFfdData, WritesTenOfItsFields) {
    CKRMCCommandDtcFfdData code;
    Seed seed(5);
    Fill(code, seed);  // so that what must stay out of the log is not merely empty
    code.m_uchDTCKind = 1;
    code.m_ulDTCCode = 0x01234567;
    code.m_strDTC = "U0100";
    code.m_ulDTCNameId = 4;
    code.m_strDTCName = "Lost communication";
    code.m_chFFDType = -6;
    code.m_uchFFDId = 7;
    code.m_cFFDList.RemoveAll();
    code.m_cFFDList.AddTail(NumberedItem(8));
    code.m_cFFDList.AddTail(NumberedItem(9));
    code.m_uchDTCStatus = 10;
    code.m_uchSubFunction = 11;
    ExpectLog(code, {R"(
P.m_uchDTCKind=1
P.m_ulDTCCode=0x1234567
P.m_strDTC=U0100
P.m_ulDTCNameId=4
P.m_strDTCName=Lost communication
P.m_chFFDType=-6
P.m_uchFFDId=7
)",
                     NumberedItemLines("P.m_cFFDList[0]", 8), NumberedItemLines("P.m_cFFDList[1]", 9), R"(
P.m_uchDTCStatus=10
P.m_uchSubFunction=11
)"});
}

TEST(TroubleCode, IsDecimalAloneAndHexadecimalWithItsFreezeFrames) {
    CKRMCCommandDTCData alone;
    alone.m_ulDTCCode = 0x12AB;
    EXPECT_NE(RecordText(alone).find("\nP.m_ulDTCCode=4779\n"), std::string::npos);
    CKRMCCommandDtcFfdData withFrames;
    withFrames.m_ulDTCCode = 0x12AB;
    EXPECT_NE(RecordText(withFrames).find("\nP.m_ulDTCCode=0x0012AB\n"), std::string::npos);
}

TEST(DiagDetailData, WritesItsFieldsInOrder) {
    CKRMCCommandDiagDetailData detail;
    detail.m_ulDiagDetailId = 1;
    detail.m_ulDiagDetailCode = 2147483648U;
    detail.m_cDiagDetailDataList.AddTail(NumberedItem(3));
    detail.m_cDiagDetailDataList.AddTail(NumberedItem(4));
    ExpectLog(detail,
              {R"(
P.m_ulDiagDetailId=1
P.m_ulDiagDetailCode=-2147483648
)",
               NumberedItemLines("P.m_cDiagDetailDataList[0]", 3), NumberedItemLines("P.m_cDiagDetailDataList[1]", 4)});
}

TEST(GetDTC, RequestLog) {
    CKRMCGetDTCCmdAdaptDataSnd request;
    request.m_ulEcuId = 20;
    request.m_uchPhaseType = 1;
    request.m_uchGetFFDType = 255;
    ExpectLog(request, {R"(
[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandType=1
[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandID=2
[CKRMCBaseCmdAdaptDataSnd::ErrWriteOperationLog] m_ulEcuId=20
[CKRMCGetDTCCmdAdaptDataSnd::ErrWriteOperationLog] m_uchPhaseType=1
[CKRMCGetDTCCmdAdaptDataSnd::ErrWriteOperationLog] m_uchGetFFDType=255
)"});
}

TEST(GetDTC, AnswerLog) {
    CKRMCGetDTCCmdAdaptDataRcv answer;
    CKRMCCommandDTCData code;
    code.m_strDTC = "P0301";
    code.m_uchSSRNo.AddTail(5);
    code.m_uchSDRNo.AddTail(6);
    code.m_cTripTime = NumberedItem(1);
    code.m_cAfterIgOnTime = NumberedItem(2);
    code.m_cClockType = NumberedItem(3);
    answer.Data.AddTail(code);
    answer.m_bDTCType = true;
    answer.m_ulReadynessStatus = 4;
    ExpectLog(answer,
              {R"(
[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandType=1
[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandID=2
[CKRMCBaseCmdAdaptDataRcv::ErrWriteOperationLog] m_bNotSupport=0
[CKRMCGetDTCCmdAdaptDataRcv::ErrWriteOperationLog] Data[0].m_uchDTCKind=0
[CKRMCGetDTCCmdAdaptDataRcv::ErrWriteOperationLog] Data[0].m_ulDTCCode=0
[CKRMCGetDTCCmdAdaptDataRcv::ErrWriteOperationLog] Data[0].m_strDTC=P0301
[CKRMCGetDTCCmdAdaptDataRcv::ErrWriteOperationLog] Data[0].m_ulDTCNameId=0
[CKRMCGetDTCCmdAdaptDataRcv::ErrWriteOperationLog] Data[0].m_strDTCName=
[CKRMCGetDTCCmdAdaptDataRcv::ErrWriteOperationLog] Data[0].m_ulDTCDivNameId=0
[CKRMCGetDTCCmdAdaptDataRcv::ErrWriteOperationLog] Data[0].m_strDTCDivName=
[CKRMCGetDTCCmdAdaptDataRcv::ErrWriteOperationLog] Data[0].m_chFFDType=0
[CKRMCGetDTCCmdAdaptDataRcv::ErrWriteOperationLog] Data[0].m_uchFFDId=0
[CKRMCGetDTCCmdAdaptDataRcv::ErrWriteOperationLog] Data[0].m_strComment=
[[CKRMCGetDTCCmdAdaptDataRcv::ErrWriteOperationLog] Data[0]] m_uchSSRNo[0]=5
[[CKRMCGetDTCCmdAdaptDataRcv::ErrWriteOperationLog] Data[0]] m_uchSDRNo[0]=6
[CKRMCGetDTCCmdAdaptDataRcv::ErrWriteOperationLog] Data[0].m_uchDTCType=0
[CKRMCGetDTCCmdAdaptDataRcv::ErrWriteOperationLog] Data[0].m_ulDTCTypeNameId=0
[CKRMCGetDTCCmdAdaptDataRcv::ErrWriteOperationLog] Data[0].m_strDTCTypeName=
[CKRMCGetDTCCmdAdaptDataRcv::ErrWriteOperationLog] Data[0].m_ulDTCTypeToolId=0
[CKRMCGetDTCCmdAdaptDataRcv::ErrWriteOperationLog] Data[0].m_strDTCTypeTool=
[CKRMCGetDTCCmdAdaptDataRcv::ErrWriteOperationLog] Data[0].m_uchDTCStatus=0
[CKRMCGetDTCCmdAdaptDataRcv::ErrWriteOperationLog] Data[0].m_ulDTCStatusNameId=0
[CKRMCGetDTCCmdAdaptDataRcv::ErrWriteOperationLog] Data[0].m_strDTCStatusName=
[CKRMCGetDTCCmdAdaptDataRcv::ErrWriteOperationLog] Data[0].m_ulDTCStatusToolId=0
[CKRMCGetDTCCmdAdaptDataRcv::ErrWriteOperationLog] Data[0].m_strDTCStatusTool=
[CKRMCGetDTCCmdAdaptDataRcv::ErrWriteOperationLog] Data[0].m_bTripTime=0
[CKRMCGetDTCCmdAdaptDataRcv::ErrWriteOperationLog] Data[0].m_bFailTripTime=0
)",
               NumberedItemLines("[CKRMCGetDTCCmdAdaptDataRcv::ErrWriteOperationLog] Data[0].m_cTripTime", 1), R"(
[CKRMCGetDTCCmdAdaptDataRcv::ErrWriteOperationLog] Data[0].m_bAfterIgOnTime=0
[CKRMCGetDTCCmdAdaptDataRcv::ErrWriteOperationLog] Data[0].m_bFailAfterIgOnTime=0
)",
               NumberedItemLines("[CKRMCGetDTCCmdAdaptDataRcv::ErrWriteOperationLog] Data[0].m_cAfterIgOnTime", 2), R"(
[CKRMCGetDTCCmdAdaptDataRcv::ErrWriteOperationLog] Data[0].m_ulOriginalCountId=0
)",
               NumberedItemLines("[CKRMCGetDTCCmdAdaptDataRcv::ErrWriteOperationLog] Data[0].m_cClockType", 3), R"(
[CKRMCGetDTCCmdAdaptDataRcv::ErrWriteOperationLog] Data[0].m_bStatusOfDTC=0
[CKRMCGetDTCCmdAdaptDataRcv::ErrWriteOperationLog] Data[0].m_uchStatusOfDTC=0
[CKRMCGetDTCCmdAdaptDataRcv::ErrWriteOperationLog] Data[0].m_ulDTCGroupId=0
[CKRMCGetDTCCmdAdaptDataRcv::ErrWriteOperationLog] m_bDTCType=1
[CKRMCGetDTCCmdAdaptDataRcv::ErrWriteOperationLog] m_ulReadynessStatus=4
)"});
}

TEST(ClearDTC, RequestLog) {
    CKRMCClearDTCCmdAdaptDataSnd request;
    request.m_ulEcuId = 50;
    ExpectLog(request, {R"(
[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandType=1
[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandID=5
[CKRMCBaseCmdAdaptDataSnd::ErrWriteOperationLog] m_ulEcuId=50
)"});
}

TEST(ClearDTC, AnswerLog) {
    CKRMCClearDTCCmdAdaptDataRcv answer;
    answer.m_bNotSupport = true;
    answer.m_ulResult = 4294967295U;
    ExpectLog(answer, {R"(
[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandType=1
[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandID=5
[CKRMCBaseCmdAdaptDataRcv::ErrWriteOperationLog] m_bNotSupport=1
[CKRMCClearDTCCmdAdaptDataRcv::ErrWriteOperationLog] m_ulResult=-1
)"});
}

TEST(GetDiagDetail, RequestLog) {
    CKRMCGetDiagDetailCmdAdaptDataSnd request;
    request.m_ulEcuId = 440;
    request.m_uchFFDId = 200;
    ExpectLog(request, {R"(
[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandType=1
[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandID=44
[CKRMCBaseCmdAdaptDataSnd::ErrWriteOperationLog] m_ulEcuId=440
[CKRMCGetDiagDetailCmdAdaptDataSnd::ErrWriteOperationLog] m_uchFFDId=200
)"});
}

TEST(GetDiagDetail, AnswerLog) {
    CKRMCGetDiagDetailCmdAdaptDataRcv answer;
    answer.m_bNotSupport = true;
    CKRMCCommandDiagDetailData detail;
    detail.m_ulDiagDetailId = 1;
    answer.Data.AddTail(detail);
    detail.m_ulDiagDetailCode = 2;
    detail.m_cDiagDetailDataList.AddTail(NumberedItem(3));
    answer.Data.AddTail(detail);
    ExpectLog(answer,
              {R"(
[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandType=1
[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandID=44
[CKRMCBaseCmdAdaptDataRcv::ErrWriteOperationLog] m_bNotSupport=1
[CKRMCGetDiagDetailCmdAdaptDataRcv::ErrWriteOperationLog] Data[0].m_ulDiagDetailId=1
[CKRMCGetDiagDetailCmdAdaptDataRcv::ErrWriteOperationLog] Data[0].m_ulDiagDetailCode=0
[CKRMCGetDiagDetailCmdAdaptDataRcv::ErrWriteOperationLog] Data[1].m_ulDiagDetailId=1
[CKRMCGetDiagDetailCmdAdaptDataRcv::ErrWriteOperationLog] Data[1].m_ulDiagDetailCode=2
)",
               NumberedItemLines(
                   "[CKRMCGetDiagDetailCmdAdaptDataRcv::ErrWriteOperationLog] Data[1].m_cDiagDetailDataList[0]", 3)});
}

TEST(GetEOPInspectionResultMessage, RequestLog) {
    CKRMCGetEOPInspectionResultMessageCmdAdaptDataSnd request;
    request.m_ulEcuId = 930;
    request.Data.m_ulEOPData = 4294967295U;
    ExpectLog(request, {R"(
[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandType=1
[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandID=93
[CKRMCBaseCmdAdaptDataSnd::ErrWriteOperationLog] m_ulEcuId=930
[CKRMCGetEOPInspectionResultMessageCmdAdaptDataSnd::ErrWriteOperationLog] Data.m_ulEOPData=-1
)"});
}

TEST(GetEOPInspectionResultMessage, AnswerLog) {
    CKRMCGetEOPInspectionResultMessageCmdAdaptDataRcv answer;
    answer.m_bNotSupport = true;
    CKRMCCommandWordsData words;
    words.m_ulWordsId = 1;
    words.m_strWords = "passed";
    answer.Data.AddTail(words);
    words.m_ulWordsId = 4294967295U;
    words.m_strWords = "";
    answer.Data.AddTail(words);
    ExpectLog(answer, {R"(
[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandType=1
[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandID=93
[CKRMCBaseCmdAdaptDataRcv::ErrWriteOperationLog] m_bNotSupport=1
[CKRMCGetEOPInspectionResultMessageCmdAdaptDataRcv::ErrWriteOperationLog] Data[0].m_ulWordsId=1
[CKRMCGetEOPInspectionResultMessageCmdAdaptDataRcv::ErrWriteOperationLog] Data[0].m_strWords=passed
[CKRMCGetEOPInspectionResultMessageCmdAdaptDataRcv::ErrWriteOperationLog] Data[1].m_ulWordsId=-1
[CKRMCGetEOPInspectionResultMessageCmdAdaptDataRcv::ErrWriteOperationLog] Data[1].m_strWords=
)"});
}

TEST(GetDtcFfd, RequestLog) {
    CKRMCGetDtcFfdCmdAdaptDataSnd request;
    request.m_ulEcuId = 1090;
    ExpectLog(request, {R"(
[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandType=1
[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandID=109
[CKRMCBaseCmdAdaptDataSnd::ErrWriteOperationLog] m_ulEcuId=1090
)"});
}

TEST(GetDtcFfd, AnswerLog) {
    CKRMCGetDtcFfdCmdAdaptDataRcv answer;
    answer.m_bNotSupport = true;
    CKRMCCommandDtcFfdData code;
    code.m_ulDTCCode = 0x12AB;
    code.m_cFFDList.AddTail(NumberedItem(1));
    answer.Data.AddTail(code);
    ExpectLog(answer,
              {R"(
[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandType=1
[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandID=109
[CKRMCBaseCmdAdaptDataRcv::ErrWriteOperationLog] m_bNotSupport=1
[CKRMCGetDtcFfdCmdAdaptDataRcv::ErrWriteOperationLog] Data[0].m_uchDTCKind=0
[CKRMCGetDtcFfdCmdAdaptDataRcv::ErrWriteOperationLog] Data[0].m_ulDTCCode=0x0012AB
[CKRMCGetDtcFfdCmdAdaptDataRcv::ErrWriteOperationLog] Data[0].m_strDTC=
[CKRMCGetDtcFfdCmdAdaptDataRcv::ErrWriteOperationLog] Data[0].m_ulDTCNameId=0
[CKRMCGetDtcFfdCmdAdaptDataRcv::ErrWriteOperationLog] Data[0].m_strDTCName=
[CKRMCGetDtcFfdCmdAdaptDataRcv::ErrWriteOperationLog] Data[0].m_chFFDType=0
[CKRMCGetDtcFfdCmdAdaptDataRcv::ErrWriteOperationLog] Data[0].m_uchFFDId=0
)",
               NumberedItemLines("[CKRMCGetDtcFfdCmdAdaptDataRcv::ErrWriteOperationLog] Data[0].m_cFFDList[0]", 1), R"(
[CKRMCGetDtcFfdCmdAdaptDataRcv::ErrWriteOperationLog] Data[0].m_uchDTCStatus=0
[CKRMCGetDtcFfdCmdAdaptDataRcv::ErrWriteOperationLog] Data[0].m_uchSubFunction=0
)"});
}

TEST(GetEOPInspectionResultMessage, WhatIsAskedForCanBeCleared) {
    CKRMCGetEOPInspectionResultMessageCmdAdaptDataSnd request;
    request.Data.m_ulEOPData = 7;
    request.Data.Clear();
    EXPECT_EQ(request.Data.m_ulEOPData, 0U);
}

}  // namespace
