#include "krm/messages/diag/utilities.h"

#include <gtest/gtest.h>

#include "krm/messages/diag/j2534_config.h"
#include "tests/messages/diag/expected_lines.h"
#include "tests/support/log_text.h"

namespace {

using krm::test::AnswerBaseLines;
using krm::test::ExpectLog;
using krm::test::RequestBaseLines;
using krm::test::Under;

TEST(UtilityData, WritesItsFieldsInOrder) {
    CKRMCCommandUtilityData utility;
    utility.m_ulFunctionNameId = 1;
    utility.m_strFunctionName = "Key registration";
    utility.m_ushFunctionId = 3;
    utility.m_ushPhaseType = 4;
    utility.m_ulEcuId = 4294967295U;
    utility.m_ushBusId = 6;
    utility.m_ulHelpId = 7;
    utility.m_ulBaudrate = 500000;
    utility.m_ushP2Max = 9;
    utility.m_ulFcCode = 0xABCDEF12U;
    utility.m_ulPhysAddr = 0x18DA10F1U;
    utility.m_ul5bpsAddr = 0x33;
    utility.m_ulFuncAddr = 0x7DF;
    utility.m_ulNTA = 0x1FE;
    utility.m_ulToolAddr = 0xF1;
    utility.m_uchSecurityTargetFlag = 16;
    utility.m_ulSpecialFunctionKey = 17;
    utility.m_ulLegislatedAddr = 0xA;
    utility.m_ulP3Min = 19;
    utility.m_ulStminTx = 20;
    utility.m_ulNBrMin = 21;
    utility.m_ulCanP3Min = 22;
    ExpectLog(utility, {R"(
P.m_ulFunctionNameId=1
P.m_strFunctionName=Key registration
P.m_ushFunctionId=3
P.m_ushPhaseType=4
P.m_ulEcuId=-1
P.m_ushBusId=6
P.m_ulHelpId=7
P.m_ulBaudrate=500000
P.m_ushP2Max=9
P.m_ulFcCode=ABCDEF12
P.m_ulPhysAddr=18DA10F1
P.m_ul5bpsAddr=33
P.m_ulFuncAddr=7DF
P.m_ulNTA=1FE
P.m_ulToolAddr=F1
P.m_uchSecurityTargetFlag=16
P.m_ulSpecialFunctionKey=17
P.m_ulLegislatedAddr=A
P.m_ulP3Min=19
P.m_ulStminTx=20
P.m_ulNBrMin=21
P.m_ulCanP3Min=22
)"});
}

TEST(UtilityData, PadsTheFcCodeToSixDigitsAndTheTargetAddressToTwo) {
    CKRMCCommandUtilityData utility;
    utility.m_ulFcCode = 0x1A;
    utility.m_ulNTA = 5;
    ExpectLog(utility, {R"(
P.m_ulFunctionNameId=0
P.m_strFunctionName=
P.m_ushFunctionId=0
P.m_ushPhaseType=0
P.m_ulEcuId=0
P.m_ushBusId=0
P.m_ulHelpId=0
P.m_ulBaudrate=0
P.m_ushP2Max=0
P.m_ulFcCode=00001A
P.m_ulPhysAddr=0
P.m_ul5bpsAddr=0
P.m_ulFuncAddr=0
P.m_ulNTA=05
P.m_ulToolAddr=0
P.m_uchSecurityTargetFlag=0
P.m_ulSpecialFunctionKey=0
P.m_ulLegislatedAddr=0
P.m_ulP3Min=0
P.m_ulStminTx=0
P.m_ulNBrMin=0
P.m_ulCanP3Min=0
)"});
}

TEST(SpecialFunctionKeyInfo, WritesItsFieldsInOrderWithoutTheText) {
    CKRMCCommandSpecialFunctionKeyInfo key;
    key.m_ushScreenId = 1;
    key.m_ushFunctionId = 2;
    key.m_ushFunctionDetailId = 3;
    key.m_ulKeycode = 0xFFFFFFFFU;
    key.m_strKeyText = "never logged";
    key.m_ulCompareOptions = 0xB0;
    ExpectLog(key, {R"(
P.m_ushScreenId=1
P.m_ushFunctionId=2
P.m_ushFunctionDetailId=3
P.m_ulKeycode=0xFFFFFFFF
P.m_ulCompareOptions=0x00B0
)"});
}

TEST(SpecialFunctionKeyInfo, PadsTheKeyCodeToFourDigits) {
    CKRMCCommandSpecialFunctionKeyInfo key;
    key.m_ulKeycode = 0x1B;
    ExpectLog(key, {R"(
P.m_ushScreenId=0
P.m_ushFunctionId=0
P.m_ushFunctionDetailId=0
P.m_ulKeycode=0x001B
P.m_ulCompareOptions=0x0000
)"});
}

TEST(GetUtilityList, RequestWritesALinePerKey) {
    CKRMCGetUtilityListCmdAdaptDataSnd request;
    request.m_ulEcuId = 2016;
    request.m_uchConnectLevel = 3;
    request.m_ulSecurityLevel = 0xC;
    request.m_cSpecialFunctionKeyList.AddTail(0x1B);
    request.m_cSpecialFunctionKeyList.AddTail(0xFFFFFFFFU);
    ExpectLog(request, {RequestBaseLines(26, 2016), R"(
[CKRMCGetUtilityListCmdAdaptDataSnd::ErrWriteOperationLog] m_uchConnectLevel=3
[CKRMCGetUtilityListCmdAdaptDataSnd::ErrWriteOperationLog] m_ulSecurityLevel=0x000C
[CKRMCGetUtilityListCmdAdaptDataSnd::ErrWriteOperationLog] Data[0].m_cSpecialFunctionKeyList=0x001B
[CKRMCGetUtilityListCmdAdaptDataSnd::ErrWriteOperationLog] Data[1].m_cSpecialFunctionKeyList=0xFFFFFFFF
)"});
}

TEST(GetUtilityList, AnswerWritesUtilitiesThenConfigurationUnderTheSameName) {
    CKRMCGetUtilityListCmdAdaptDataRcv answer;
    CKRMCCommandUtilityData utility;
    utility.m_ulFunctionNameId = 1;
    answer.Data.AddTail(utility);
    CKRMCCommandJ2534Config config;
    config.m_ulParameter = 2;
    config.m_ulValue = 4294967295U;
    answer.m_cJ2534ConfigList.AddTail(config);
    config.m_ulParameter = 4;
    config.m_ulValue = 5;
    answer.m_cJ2534ConfigList.AddTail(config);
    ExpectLog(answer, {AnswerBaseLines(26, 0), Under("[CKRMCGetUtilityListCmdAdaptDataRcv::ErrWriteOperationLog] ", R"(
Data[0].m_ulFunctionNameId=1
Data[0].m_strFunctionName=
Data[0].m_ushFunctionId=0
Data[0].m_ushPhaseType=0
Data[0].m_ulEcuId=0
Data[0].m_ushBusId=0
Data[0].m_ulHelpId=0
Data[0].m_ulBaudrate=0
Data[0].m_ushP2Max=0
Data[0].m_ulFcCode=000000
Data[0].m_ulPhysAddr=0
Data[0].m_ul5bpsAddr=0
Data[0].m_ulFuncAddr=0
Data[0].m_ulNTA=00
Data[0].m_ulToolAddr=0
Data[0].m_uchSecurityTargetFlag=0
Data[0].m_ulSpecialFunctionKey=0
Data[0].m_ulLegislatedAddr=0
Data[0].m_ulP3Min=0
Data[0].m_ulStminTx=0
Data[0].m_ulNBrMin=0
Data[0].m_ulCanP3Min=0
Data[0].m_ulParameter=2
Data[0].m_ulValue=-1
Data[1].m_ulParameter=4
Data[1].m_ulValue=5
)")});
}

TEST(GetCustomList, RequestWritesTheBaseLinesOnly) {
    CKRMCGetCustomListCmdAdaptDataSnd request;
    request.m_ulEcuId = 7;
    ExpectLog(request, {RequestBaseLines(28, 7)});
}

TEST(GetCustomList, AnswerWritesTheFieldsOfEachList) {
    CKRMCGetCustomListCmdAdaptDataRcv answer;
    answer.m_bNotSupport = true;
    CKRMCCommandCustomListData list;
    list.m_strFileName = "a.lst";
    list.m_strName = "My 100 %s";
    list.m_ushDataType = 3;
    list.m_ushSortIndex = 65535;
    list.m_uchInitialDispFlag = 255;
    answer.Data.AddTail(list);
    list.Clear();
    answer.Data.AddTail(list);
    ExpectLog(answer, {AnswerBaseLines(28, 1), R"(
[CKRMCGetCustomListCmdAdaptDataRcv::ErrWriteOperationLog] Data[0].m_strFileName=a.lst
[CKRMCGetCustomListCmdAdaptDataRcv::ErrWriteOperationLog] Data[0].m_strName=My 100 %s
[CKRMCGetCustomListCmdAdaptDataRcv::ErrWriteOperationLog] Data[0].m_ushDataType=3
[CKRMCGetCustomListCmdAdaptDataRcv::ErrWriteOperationLog] Data[0].m_ushSortIndex=65535
[CKRMCGetCustomListCmdAdaptDataRcv::ErrWriteOperationLog] Data[0].m_uchInitialDispFlag=255
[CKRMCGetCustomListCmdAdaptDataRcv::ErrWriteOperationLog] Data[1].m_strFileName=
[CKRMCGetCustomListCmdAdaptDataRcv::ErrWriteOperationLog] Data[1].m_strName=
[CKRMCGetCustomListCmdAdaptDataRcv::ErrWriteOperationLog] Data[1].m_ushDataType=0
[CKRMCGetCustomListCmdAdaptDataRcv::ErrWriteOperationLog] Data[1].m_ushSortIndex=0
[CKRMCGetCustomListCmdAdaptDataRcv::ErrWriteOperationLog] Data[1].m_uchInitialDispFlag=0
)"});
}

TEST(GetSpecialFunctionKeyList, RequestWritesTheBaseLinesOnly) {
    CKRMCGetSpecialFunctionKeyListCmdAdaptDataSnd request;
    ExpectLog(request, {RequestBaseLines(94, 0)});
}

TEST(GetSpecialFunctionKeyList, AnswerWritesEachKeyUnderItsIndex) {
    CKRMCGetSpecialFunctionKeyListCmdAdaptDataRcv answer;
    CKRMCCommandSpecialFunctionKeyInfo key;
    key.m_ushScreenId = 1;
    answer.Data.AddTail(key);
    key.m_ushScreenId = 2;
    key.m_ulKeycode = 0x1B;
    answer.Data.AddTail(key);
    ExpectLog(answer, {AnswerBaseLines(94, 0), R"(
[CKRMCGetSpecialFunctionKeyListCmdAdaptDataRcv::ErrWriteOperationLog] Data[0].m_ushScreenId=1
[CKRMCGetSpecialFunctionKeyListCmdAdaptDataRcv::ErrWriteOperationLog] Data[0].m_ushFunctionId=0
[CKRMCGetSpecialFunctionKeyListCmdAdaptDataRcv::ErrWriteOperationLog] Data[0].m_ushFunctionDetailId=0
[CKRMCGetSpecialFunctionKeyListCmdAdaptDataRcv::ErrWriteOperationLog] Data[0].m_ulKeycode=0x0000
[CKRMCGetSpecialFunctionKeyListCmdAdaptDataRcv::ErrWriteOperationLog] Data[0].m_ulCompareOptions=0x0000
[CKRMCGetSpecialFunctionKeyListCmdAdaptDataRcv::ErrWriteOperationLog] Data[1].m_ushScreenId=2
[CKRMCGetSpecialFunctionKeyListCmdAdaptDataRcv::ErrWriteOperationLog] Data[1].m_ushFunctionId=0
[CKRMCGetSpecialFunctionKeyListCmdAdaptDataRcv::ErrWriteOperationLog] Data[1].m_ushFunctionDetailId=0
[CKRMCGetSpecialFunctionKeyListCmdAdaptDataRcv::ErrWriteOperationLog] Data[1].m_ulKeycode=0x001B
[CKRMCGetSpecialFunctionKeyListCmdAdaptDataRcv::ErrWriteOperationLog] Data[1].m_ulCompareOptions=0x0000
)"});
}

}  // namespace
