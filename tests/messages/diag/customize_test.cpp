#include "krm/messages/diag/customize.h"

#include <gtest/gtest.h>

#include <initializer_list>

#include "tests/messages/diag/expected_lines.h"
#include "tests/support/log_text.h"

namespace {

using krm::test::AnswerBaseLines;
using krm::test::ExpectLog;
using krm::test::RequestBaseLines;
using krm::test::Under;

TEST(GetCustomizeSupportList, RequestWritesTheBaseLinesOnly) {
    CKRMCGetCustomizeSupportListCmdAdaptDataSnd request;
    ExpectLog(request, {RequestBaseLines(59, 0)});
}

TEST(GetCustomizeSupportList, AnswerWritesTheFieldsOfEachName) {
    CKRMCGetCustomizeSupportListCmdAdaptDataRcv answer;
    CKRMCCommandCustomizeName name;
    name.m_ushCustomizeId = 65535;
    name.m_ulCustomizeNameId = 4294967295U;
    name.m_strCustomizeName = "Door locks";
    answer.Data.AddTail(name);
    name.Clear();
    answer.Data.AddTail(name);
    ExpectLog(answer, {AnswerBaseLines(59, 0), R"(
[CKRMCGetCustomizeSupportListCmdAdaptDataRcv::ErrWriteOperationLog] Data[0].m_ushCustomizeId=65535
[CKRMCGetCustomizeSupportListCmdAdaptDataRcv::ErrWriteOperationLog] Data[0].m_ulCustomizeNameId=-1
[CKRMCGetCustomizeSupportListCmdAdaptDataRcv::ErrWriteOperationLog] Data[0].m_strCustomizeName=Door locks
[CKRMCGetCustomizeSupportListCmdAdaptDataRcv::ErrWriteOperationLog] Data[1].m_ushCustomizeId=0
[CKRMCGetCustomizeSupportListCmdAdaptDataRcv::ErrWriteOperationLog] Data[1].m_ulCustomizeNameId=0
[CKRMCGetCustomizeSupportListCmdAdaptDataRcv::ErrWriteOperationLog] Data[1].m_strCustomizeName=
)"});
}

TEST(GetCustomizeItemList, RequestWritesItsFieldsInOrder) {
    CKRMCGetCustomizeItemListCmdAdaptDataSnd request;
    request.m_ulEcuId = 1;
    request.m_ushCustomizeId = 2;
    request.m_bGetCurrentValue = true;
    request.m_cSpecialFunctionKeyList.AddTail(0x1B);
    request.m_cSpecialFunctionKeyList.AddTail(0xABCDEF01U);
    request.m_ulPersonalizeId = 0x5C;
    ExpectLog(request, {RequestBaseLines(60, 1), R"(
[CKRMCGetCustomizeItemListCmdAdaptDataSnd::ErrWriteOperationLog] m_ushCustomizeId=2
[CKRMCGetCustomizeItemListCmdAdaptDataSnd::ErrWriteOperationLog] m_bGetCurrentValue=1
[CKRMCGetCustomizeItemListCmdAdaptDataSnd::ErrWriteOperationLog] Data[0].m_cSpecialFunctionKeyList=0x001B
[CKRMCGetCustomizeItemListCmdAdaptDataSnd::ErrWriteOperationLog] Data[1].m_cSpecialFunctionKeyList=0xABCDEF01
[CKRMCGetCustomizeItemListCmdAdaptDataSnd::ErrWriteOperationLog] m_ulPersonalizeId=0x0000005C
)"});
}

void AddBytes(CKRMList<unsigned char>& list, std::initializer_list<unsigned char> bytes) {
    for (const unsigned char byte : bytes) {
        list.AddTail(byte);
    }
}

TEST(GetCustomizeItemList, AnswerWritesEachItemAndItsValues) {
    CKRMCGetCustomizeItemListCmdAdaptDataRcv answer;
    CKRMCCommandCustomizeItemData item;
    item.m_ushCustomizeItemId = 1;
    item.m_ulCustomizeItemNameId = 4294967295U;
    item.m_strCustomizeItemName = "Auto lock";
    item.m_bCurrentValue = true;
    item.m_ushCurrentValue = 65535;
    AddBytes(item.m_uchCurrentValueList, {0x00, 0xFF, 0x0A});
    item.m_ulInfoId = 7;
    item.m_ulPersonalizeId = 0xAB;
    CKRMCCommandCustomizeItemValue value;
    value.m_strDispName = "On 100 %";
    value.m_ulDispNameId = 4294967295U;
    value.m_ushCustomizeValue = 11;
    AddBytes(value.m_uchCustomizeValueList, {0x01, 0xAB});
    item.m_cCustomizeValueList.AddTail(value);
    value.Clear();
    item.m_cCustomizeValueList.AddTail(value);
    answer.Data.AddTail(item);
    item.Clear();
    answer.Data.AddTail(item);
    ExpectLog(answer,
              {AnswerBaseLines(60, 0), Under("[CKRMCGetCustomizeItemListCmdAdaptDataRcv::ErrWriteOperationLog] ", R"(
Data[0].m_ushCustomizeItemId=1
Data[0].m_ulCustomizeItemNameId=-1
Data[0].m_strCustomizeItemName=Auto lock
Data[0].m_bCurrentValue=1
Data[0].m_ushCurrentValue=65535
Data[0].m_uchCurrentValueList=0x00ff0a
Data[0].m_ulInfoId=7
Data[0].m_ulPersonalizeId=0x000000AB
Data[0].m_cCustomizeValueList[0].m_strDispName=On 100 %
Data[0].m_cCustomizeValueList[0].m_ulDispNameId=-1
Data[0].m_cCustomizeValueList[0].m_ushCustomizeValue=11
Data[0].m_cCustomizeValueList[0].m_uchCustomizeValueList=0x01ab
Data[0].m_cCustomizeValueList[1].m_strDispName=
Data[0].m_cCustomizeValueList[1].m_ulDispNameId=0
Data[0].m_cCustomizeValueList[1].m_ushCustomizeValue=0
Data[0].m_cCustomizeValueList[1].m_uchCustomizeValueList=0x
Data[1].m_ushCustomizeItemId=0
Data[1].m_ulCustomizeItemNameId=0
Data[1].m_strCustomizeItemName=
Data[1].m_bCurrentValue=0
Data[1].m_ushCurrentValue=0
Data[1].m_uchCurrentValueList=0x
Data[1].m_ulInfoId=0
Data[1].m_ulPersonalizeId=0x00000000
)")});
}

TEST(SetCustomizeItem, RequestWritesBytesAsOneLowerCaseHexadecimalText) {
    CKRMCSetCustomizeItemCmdAdaptDataSnd request;
    request.m_ulEcuId = 1;
    CKRMCCommandCustomizeItemSetData item;
    item.m_ushCustomizeId = 2;
    item.m_ushCustomizeItemId = 3;
    item.m_ushCustomizeValue = 4;
    AddBytes(item.m_uchCustomizeValueList, {0x01, 0xAB});
    request.Data.AddTail(item);
    ExpectLog(request, {RequestBaseLines(61, 1), R"(
[CKRMCSetCustomizeItemCmdAdaptDataSnd::ErrWriteOperationLog] Data[0].m_ushCustomizeId=2
[CKRMCSetCustomizeItemCmdAdaptDataSnd::ErrWriteOperationLog] Data[0].m_ushCustomizeItemId=3
[CKRMCSetCustomizeItemCmdAdaptDataSnd::ErrWriteOperationLog] Data[0].m_ushCustomizeValue=4
[CKRMCSetCustomizeItemCmdAdaptDataSnd::ErrWriteOperationLog] Data[0].m_uchCustomizeValueList=0x01ab
)"});
}

TEST(SetCustomizeItem, RequestCarriesNoBytesOverFromTheItemBefore) {
    CKRMCSetCustomizeItemCmdAdaptDataSnd request;
    CKRMCCommandCustomizeItemSetData item;
    AddBytes(item.m_uchCustomizeValueList, {0xDE, 0xAD});
    request.Data.AddTail(item);
    item.Clear();
    request.Data.AddTail(item);
    AddBytes(item.m_uchCustomizeValueList, {0x07});
    request.Data.AddTail(item);
    ExpectLog(request, {RequestBaseLines(61, 0), R"(
[CKRMCSetCustomizeItemCmdAdaptDataSnd::ErrWriteOperationLog] Data[0].m_ushCustomizeId=0
[CKRMCSetCustomizeItemCmdAdaptDataSnd::ErrWriteOperationLog] Data[0].m_ushCustomizeItemId=0
[CKRMCSetCustomizeItemCmdAdaptDataSnd::ErrWriteOperationLog] Data[0].m_ushCustomizeValue=0
[CKRMCSetCustomizeItemCmdAdaptDataSnd::ErrWriteOperationLog] Data[0].m_uchCustomizeValueList=0xdead
[CKRMCSetCustomizeItemCmdAdaptDataSnd::ErrWriteOperationLog] Data[1].m_ushCustomizeId=0
[CKRMCSetCustomizeItemCmdAdaptDataSnd::ErrWriteOperationLog] Data[1].m_ushCustomizeItemId=0
[CKRMCSetCustomizeItemCmdAdaptDataSnd::ErrWriteOperationLog] Data[1].m_ushCustomizeValue=0
[CKRMCSetCustomizeItemCmdAdaptDataSnd::ErrWriteOperationLog] Data[1].m_uchCustomizeValueList=0x
[CKRMCSetCustomizeItemCmdAdaptDataSnd::ErrWriteOperationLog] Data[2].m_ushCustomizeId=0
[CKRMCSetCustomizeItemCmdAdaptDataSnd::ErrWriteOperationLog] Data[2].m_ushCustomizeItemId=0
[CKRMCSetCustomizeItemCmdAdaptDataSnd::ErrWriteOperationLog] Data[2].m_ushCustomizeValue=0
[CKRMCSetCustomizeItemCmdAdaptDataSnd::ErrWriteOperationLog] Data[2].m_uchCustomizeValueList=0x07
)"});
}

TEST(SetCustomizeItem, AnswerWritesTheFieldsOfEachResult) {
    CKRMCSetCustomizeItemCmdAdaptDataRcv answer;
    CKRMCCommandCustomizeItemResult result;
    result.m_ushCustomizeId = 1;
    result.m_ushCustomizeItemId = 2;
    result.m_bSuccess = true;
    answer.Data.AddTail(result);
    result.Clear();
    answer.Data.AddTail(result);
    ExpectLog(answer, {AnswerBaseLines(61, 0), R"(
[CKRMCSetCustomizeItemCmdAdaptDataRcv::ErrWriteOperationLog] Data[0].m_ushCustomizeId=1
[CKRMCSetCustomizeItemCmdAdaptDataRcv::ErrWriteOperationLog] Data[0].m_ushCustomizeItemId=2
[CKRMCSetCustomizeItemCmdAdaptDataRcv::ErrWriteOperationLog] Data[0].m_bSuccess=1
[CKRMCSetCustomizeItemCmdAdaptDataRcv::ErrWriteOperationLog] Data[1].m_ushCustomizeId=0
[CKRMCSetCustomizeItemCmdAdaptDataRcv::ErrWriteOperationLog] Data[1].m_ushCustomizeItemId=0
[CKRMCSetCustomizeItemCmdAdaptDataRcv::ErrWriteOperationLog] Data[1].m_bSuccess=0
)"});
}

TEST(GetCustomizeDestination, RequestWritesTheBaseLinesOnly) {
    CKRMCGetCustomizeDestinationCmdAdaptDataSnd request;
    ExpectLog(request, {RequestBaseLines(69, 0)});
}

TEST(GetCustomizeDestination, AnswerWritesItsFieldsInOrder) {
    CKRMCGetCustomizeDestinationCmdAdaptDataRcv answer;
    answer.m_bEnable = true;
    answer.m_ulDestinationDispId = 4294967295U;
    answer.m_strDestinationDisp = "Europe";
    ExpectLog(answer, {AnswerBaseLines(69, 0), R"(
[CKRMCGetCustomizeDestinationCmdAdaptDataRcv::ErrWriteOperationLog] m_bEnable=1
[CKRMCGetCustomizeDestinationCmdAdaptDataRcv::ErrWriteOperationLog] m_ulDestinationDispId=-1
[CKRMCGetCustomizeDestinationCmdAdaptDataRcv::ErrWriteOperationLog] m_strDestinationDisp=Europe
)"});
}

TEST(SetCustomizeDestination, RequestWritesTheCode) {
    CKRMCSetCustomizeDestinationCmdAdaptDataSnd request;
    request.m_ulEcuId = 1;
    request.m_strDestinationCode = "EU%d";
    ExpectLog(request, {RequestBaseLines(70, 1), R"(
[CKRMCSetCustomizeDestinationCmdAdaptDataSnd::ErrWriteOperationLog] m_strDestinationCode=EU%d
)"});
}

TEST(SetCustomizeDestination, AnswerWritesWhetherTheCodeIsInvalid) {
    CKRMCSetCustomizeDestinationCmdAdaptDataRcv answer;
    answer.m_bInvalidCode = true;
    ExpectLog(answer, {AnswerBaseLines(70, 0), R"(
[CKRMCSetCustomizeDestinationCmdAdaptDataRcv::ErrWriteOperationLog] m_bInvalidCode=1
)"});
}

}  // namespace
