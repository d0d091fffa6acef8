#include "krm/messages/diag/can_bus.h"

#include <gtest/gtest.h>

#include "tests/messages/diag/expected_lines.h"
#include "tests/support/log_text.h"

namespace {

using krm::test::AnswerBaseLines;
using krm::test::ExpectLog;
using krm::test::RequestBaseLines;

TEST(GetCanBusCategoryList, RequestWritesTheBaseLinesOnly) {
    CKRMCGetCanBusCategoryListCmdAdaptDataSnd request;
    request.m_ulEcuId = 7;
    ExpectLog(request, {RequestBaseLines(56, 7)});
}

CKRMCCommandCanBusCategoryInfo Ecu(krm_ulong ecuId, const char* name) {
    CKRMCCommandCanBusCategoryInfo ecu;
    ecu.m_ulEcuId = ecuId;
    ecu.m_ulEcuNameId = 4294967295U;
    ecu.m_strEcuName = name;
    ecu.m_ulCategoryId = 4;
    ecu.m_uchHistPidSupport = 255;
    return ecu;
}

TEST(GetCanBusCategoryList, AnswerWritesTheFieldsOfEachEcu) {
    CKRMCGetCanBusCategoryListCmdAdaptDataRcv answer;
    answer.m_bNotSupport = true;
    answer.Data.AddTail(Ecu(1, "Engine 100 %s"));
    answer.Data.AddTail(Ecu(2, ""));
    ExpectLog(answer, {AnswerBaseLines(56, 1), R"(
[CKRMCGetCanBusCategoryListCmdAdaptDataRcv::ErrWriteOperationLog] Data[0].m_ulEcuId=1
[CKRMCGetCanBusCategoryListCmdAdaptDataRcv::ErrWriteOperationLog] Data[0].m_ulEcuNameId=-1
[CKRMCGetCanBusCategoryListCmdAdaptDataRcv::ErrWriteOperationLog] Data[0].m_strEcuName=Engine 100 %s
[CKRMCGetCanBusCategoryListCmdAdaptDataRcv::ErrWriteOperationLog] Data[0].m_ulCategoryId=4
[CKRMCGetCanBusCategoryListCmdAdaptDataRcv::ErrWriteOperationLog] Data[0].m_uchHistPidSupport=255
[CKRMCGetCanBusCategoryListCmdAdaptDataRcv::ErrWriteOperationLog] Data[1].m_ulEcuId=2
[CKRMCGetCanBusCategoryListCmdAdaptDataRcv::ErrWriteOperationLog] Data[1].m_ulEcuNameId=-1
[CKRMCGetCanBusCategoryListCmdAdaptDataRcv::ErrWriteOperationLog] Data[1].m_strEcuName=
[CKRMCGetCanBusCategoryListCmdAdaptDataRcv::ErrWriteOperationLog] Data[1].m_ulCategoryId=4
[CKRMCGetCanBusCategoryListCmdAdaptDataRcv::ErrWriteOperationLog] Data[1].m_uchHistPidSupport=255
)"});
}

TEST(GetCanBusCheckList, RequestWritesTheFieldsOfEachEcu) {
    CKRMCGetCanBusCheckListCmdAdaptDataSnd request;
    request.m_ulEcuId = 9;
    request.Data.AddTail(Ecu(1, "Engine"));
    ExpectLog(request, {RequestBaseLines(57, 9), R"(
[CKRMCGetCanBusCheckListCmdAdaptDataSnd::ErrWriteOperationLog] Data[0].m_ulEcuId=1
[CKRMCGetCanBusCheckListCmdAdaptDataSnd::ErrWriteOperationLog] Data[0].m_ulEcuNameId=-1
[CKRMCGetCanBusCheckListCmdAdaptDataSnd::ErrWriteOperationLog] Data[0].m_strEcuName=Engine
[CKRMCGetCanBusCheckListCmdAdaptDataSnd::ErrWriteOperationLog] Data[0].m_ulCategoryId=4
[CKRMCGetCanBusCheckListCmdAdaptDataSnd::ErrWriteOperationLog] Data[0].m_uchHistPidSupport=255
)"});
}

TEST(GetCanBusCheckList, AnswerWithoutCurrentResultsWritesTheHistoryAlone) {
    CKRMCGetCanBusCheckListCmdAdaptDataRcv answer;
    CKRMCCommandCanBusCategoryListData result;
    result.Data.AddTail(Ecu(1, "Engine"));
    result.Data.AddTail(Ecu(2, "Brakes"));
    answer.Hist.AddTail(result);
    ExpectLog(answer, {AnswerBaseLines(57, 0), R"(
[CKRMCGetCanBusCheckListCmdAdaptDataRcv::ErrWriteOperationLog] Hist[0].Data[0].m_ulEcuId=1
[CKRMCGetCanBusCheckListCmdAdaptDataRcv::ErrWriteOperationLog] Hist[0].Data[0].m_ulEcuNameId=-1
[CKRMCGetCanBusCheckListCmdAdaptDataRcv::ErrWriteOperationLog] Hist[0].Data[0].m_strEcuName=Engine
[CKRMCGetCanBusCheckListCmdAdaptDataRcv::ErrWriteOperationLog] Hist[0].Data[0].m_ulCategoryId=4
[CKRMCGetCanBusCheckListCmdAdaptDataRcv::ErrWriteOperationLog] Hist[0].Data[0].m_uchHistPidSupport=255
[CKRMCGetCanBusCheckListCmdAdaptDataRcv::ErrWriteOperationLog] Hist[0].Data[1].m_ulEcuId=2
[CKRMCGetCanBusCheckListCmdAdaptDataRcv::ErrWriteOperationLog] Hist[0].Data[1].m_ulEcuNameId=-1
[CKRMCGetCanBusCheckListCmdAdaptDataRcv::ErrWriteOperationLog] Hist[0].Data[1].m_strEcuName=Brakes
[CKRMCGetCanBusCheckListCmdAdaptDataRcv::ErrWriteOperationLog] Hist[0].Data[1].m_ulCategoryId=4
[CKRMCGetCanBusCheckListCmdAdaptDataRcv::ErrWriteOperationLog] Hist[0].Data[1].m_uchHistPidSupport=255
)"});
}

TEST(GetCanBusCheckList, AnswerCountsResultsAndEcusApart) {
    CKRMCGetCanBusCheckListCmdAdaptDataRcv answer;
    CKRMCCommandCanBusCategoryListData result;
    answer.Info.AddTail(result);
    result.Data.AddTail(Ecu(1, "Engine"));
    answer.Info.AddTail(result);
    result.Data.AddTail(Ecu(2, "Brakes"));
    answer.Info.AddTail(result);
    result.Clear();
    result.Data.AddTail(Ecu(3, "Doors"));
    answer.Hist.AddTail(result);
    ExpectLog(answer, {AnswerBaseLines(57, 0), R"(
[CKRMCGetCanBusCheckListCmdAdaptDataRcv::ErrWriteOperationLog] Info[1].Data[0].m_ulEcuId=1
[CKRMCGetCanBusCheckListCmdAdaptDataRcv::ErrWriteOperationLog] Info[1].Data[0].m_ulEcuNameId=-1
[CKRMCGetCanBusCheckListCmdAdaptDataRcv::ErrWriteOperationLog] Info[1].Data[0].m_strEcuName=Engine
[CKRMCGetCanBusCheckListCmdAdaptDataRcv::ErrWriteOperationLog] Info[1].Data[0].m_ulCategoryId=4
[CKRMCGetCanBusCheckListCmdAdaptDataRcv::ErrWriteOperationLog] Info[1].Data[0].m_uchHistPidSupport=255
[CKRMCGetCanBusCheckListCmdAdaptDataRcv::ErrWriteOperationLog] Info[2].Data[0].m_ulEcuId=1
[CKRMCGetCanBusCheckListCmdAdaptDataRcv::ErrWriteOperationLog] Info[2].Data[0].m_ulEcuNameId=-1
[CKRMCGetCanBusCheckListCmdAdaptDataRcv::ErrWriteOperationLog] Info[2].Data[0].m_strEcuName=Engine
[CKRMCGetCanBusCheckListCmdAdaptDataRcv::ErrWriteOperationLog] Info[2].Data[0].m_ulCategoryId=4
[CKRMCGetCanBusCheckListCmdAdaptDataRcv::ErrWriteOperationLog] Info[2].Data[0].m_uchHistPidSupport=255
[CKRMCGetCanBusCheckListCmdAdaptDataRcv::ErrWriteOperationLog] Info[2].Data[1].m_ulEcuId=2
[CKRMCGetCanBusCheckListCmdAdaptDataRcv::ErrWriteOperationLog] Info[2].Data[1].m_ulEcuNameId=-1
[CKRMCGetCanBusCheckListCmdAdaptDataRcv::ErrWriteOperationLog] Info[2].Data[1].m_strEcuName=Brakes
[CKRMCGetCanBusCheckListCmdAdaptDataRcv::ErrWriteOperationLog] Info[2].Data[1].m_ulCategoryId=4
[CKRMCGetCanBusCheckListCmdAdaptDataRcv::ErrWriteOperationLog] Info[2].Data[1].m_uchHistPidSupport=255
[CKRMCGetCanBusCheckListCmdAdaptDataRcv::ErrWriteOperationLog] Hist[0].Data[0].m_ulEcuId=3
[CKRMCGetCanBusCheckListCmdAdaptDataRcv::ErrWriteOperationLog] Hist[0].Data[0].m_ulEcuNameId=-1
[CKRMCGetCanBusCheckListCmdAdaptDataRcv::ErrWriteOperationLog] Hist[0].Data[0].m_strEcuName=Doors
[CKRMCGetCanBusCheckListCmdAdaptDataRcv::ErrWriteOperationLog] Hist[0].Data[0].m_ulCategoryId=4
[CKRMCGetCanBusCheckListCmdAdaptDataRcv::ErrWriteOperationLog] Hist[0].Data[0].m_uchHistPidSupport=255
)"});
}

}  // namespace
