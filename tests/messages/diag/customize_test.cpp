#include "krm/messages/diag/customize.h"

#include <gtest/gtest.h>

#include <initializer_list>
#include <string>
#include <type_traits>

#include "krm/messages/diag/can_bus.h"
#include "krm/messages/diag/cancel_codes.h"
#include "krm/messages/diag/on_board_monitor.h"
#include "krm/messages/diag/trouble_code.h"
#include "tests/messages/diag/customize_fields.h"
#include "tests/messages/diag/expected_lines.h"
#include "tests/support/log_text.h"
#include "tests/support/value_checks.h"

namespace {

using krm::test::AnswerBaseLines;
using krm::test::ConversionLines;
using krm::test::DispDataLines;
using krm::test::ExpectCopiedIntoLists;
using krm::test::ExpectDiagnosticCommand;
using krm::test::ExpectLog;
using krm::test::ExpectPlainValue;
using krm::test::FreezeFrameLines;
using krm::test::Log;
using krm::test::RecordText;
using krm::test::RequestBaseLines;
using krm::test::TroubleCodeLines;
using krm::test::Under;

static_assert(!std::is_polymorphic_v<CKRMCCommandCustomizeName>, "a plain value without a virtual table");
static_assert(!std::is_polymorphic_v<CKRMCCommandCustomizeItemValue>, "a plain value without a virtual table");
static_assert(!std::is_polymorphic_v<CKRMCCommandCustomizeItemData>, "a plain value without a virtual table");
static_assert(!std::is_polymorphic_v<CKRMCCommandCustomizeItemSetData>, "a plain value without a virtual table");
static_assert(!std::is_polymorphic_v<CKRMCCommandCustomizeItemResult>, "a plain value without a virtual table");
static_assert(!std::is_polymorphic_v<CKRMCCommandCanBusCategoryInfo>, "a plain value without a virtual table");
static_assert(!std::is_polymorphic_v<CKRMCCommandCanBusCategoryListData>, "a plain value without a virtual table");

template <class Record>
class CustomizeRecord : public testing::Test {};
using CustomizeRecords =
    testing::Types<CKRMCCommandCancelCodeData, CKRMCCommandCancelCodeCategoryInfo, CKRMCCommandOnBoardMonitorInfo,
                   CKRMCCommandCustomizeName, CKRMCCommandCustomizeItemValue, CKRMCCommandCustomizeItemData,
                   CKRMCCommandCustomizeItemSetData, CKRMCCommandCustomizeItemResult, CKRMCCommandCanBusCategoryInfo,
                   CKRMCCommandCanBusCategoryListData>;
TYPED_TEST_SUITE(CustomizeRecord, CustomizeRecords);

TYPED_TEST(CustomizeRecord, IsAPlainValue) {
    ExpectPlainValue<TypeParam>();
}

TYPED_TEST(CustomizeRecord, IsCopiedIntoLists) {
    ExpectCopiedIntoLists<TypeParam>();
}

void AddBytes(CKRMList<unsigned char>& list, std::initializer_list<unsigned char> bytes) {
    for (const unsigned char byte : bytes) {
        list.AddTail(byte);
    }
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
    EXPECT_EQ(RecordText(code), Log({R"(
P.m_uchKind=1
P.m_uchStatus=255
P.m_ulCode=-1
P.m_strCode=C 100 %
P.m_ulExplanationId=5
P.m_strExplanation=Driver switched it off
P.m_bTripCount=1
)",
                                     FreezeFrameLines("P.m_cTripCount", 8), R"(
P.m_bTimeCount=0
)",
                                     FreezeFrameLines("P.m_cTimeCount", 10), R"(
P.m_bTripGroup=1
)",
                                     FreezeFrameLines("P.m_cTripGroup", 12), R"(
P.m_bOccurrenceCount=0
)",
                                     FreezeFrameLines("P.m_cOccurrenceCount", 14), R"(
P.m_bMainUnitTemperature=1
)",
                                     FreezeFrameLines("P.m_cMainUnitTemperature", 16), R"(
P.m_bCameraUnitTemperature=0
)",
                                     FreezeFrameLines("P.m_cCameraUnitTemperature", 18)}));
}

TEST(CancelCodeData, WritesEachFlagFromItsOwnField) {
    CKRMCCommandCancelCodeData code;
    code.m_bTimeCount = true;
    code.m_bOccurrenceCount = true;
    code.m_bCameraUnitTemperature = true;
    EXPECT_EQ(RecordText(code), Log({R"(
P.m_uchKind=0
P.m_uchStatus=0
P.m_ulCode=0
P.m_strCode=
P.m_ulExplanationId=0
P.m_strExplanation=
P.m_bTripCount=0
)",
                                     FreezeFrameLines("P.m_cTripCount", 0), R"(
P.m_bTimeCount=1
)",
                                     FreezeFrameLines("P.m_cTimeCount", 0), R"(
P.m_bTripGroup=0
)",
                                     FreezeFrameLines("P.m_cTripGroup", 0), R"(
P.m_bOccurrenceCount=1
)",
                                     FreezeFrameLines("P.m_cOccurrenceCount", 0), R"(
P.m_bMainUnitTemperature=0
)",
                                     FreezeFrameLines("P.m_cMainUnitTemperature", 0), R"(
P.m_bCameraUnitTemperature=1
)",
                                     FreezeFrameLines("P.m_cCameraUnitTemperature", 0)}));
}

TEST(CancelCodeCategoryInfo, WritesItsNumbersUnsigned) {
    CKRMCCommandCancelCodeCategoryInfo category;
    category.m_ushCategoryId = 65535;
    category.m_ulCategoryNameId = 4294967295U;
    category.m_strCategoryName = "Parking aid";
    category.m_ulWarningMessageId = 2147483648U;
    category.m_strWarningMessage = "Stop the engine";
    EXPECT_EQ(RecordText(category), Log({R"(
P.m_ushCategoryId=65535
P.m_ulCategoryNameId=4294967295
P.m_strCategoryName=Parking aid
P.m_ulWarningMessageId=2147483648
P.m_strWarningMessage=Stop the engine
)"}));
}

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
    EXPECT_EQ(RecordText(result), Log({R"(
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
                                       ConversionLines("P.m_cConversionTbl", 13), DispDataLines("P.m_cTestValData", 14),
                                       DispDataLines("P.m_cTestMinData", 15), DispDataLines("P.m_cTestMaxData", 16), R"(
P.m_bResult=1
)"}));
}

TEST(GetCanBusCategoryList, IsCommand56) {
    ExpectDiagnosticCommand<CKRMCGetCanBusCategoryListCmdAdaptDataSnd, CKRMCGetCanBusCategoryListCmdAdaptDataRcv>(56);
}

TEST(GetCanBusCategoryList, RequestWritesTheBaseLinesOnly) {
    CKRMCGetCanBusCategoryListCmdAdaptDataSnd request;
    request.m_ulEcuId = 7;
    ExpectLog(request, {RequestBaseLines(56, 7)});
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

TEST(GetCanBusCheckList, IsCommand57) {
    ExpectDiagnosticCommand<CKRMCGetCanBusCheckListCmdAdaptDataSnd, CKRMCGetCanBusCheckListCmdAdaptDataRcv>(57);
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

TEST(GetCustomizeSupportList, IsCommand59) {
    ExpectDiagnosticCommand<CKRMCGetCustomizeSupportListCmdAdaptDataSnd, CKRMCGetCustomizeSupportListCmdAdaptDataRcv>(
        59);
}

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

TEST(GetCustomizeItemList, IsCommand60) {
    ExpectDiagnosticCommand<CKRMCGetCustomizeItemListCmdAdaptDataSnd, CKRMCGetCustomizeItemListCmdAdaptDataRcv>(60);
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

TEST(SetCustomizeItem, IsCommand61) {
    ExpectDiagnosticCommand<CKRMCSetCustomizeItemCmdAdaptDataSnd, CKRMCSetCustomizeItemCmdAdaptDataRcv>(61);
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
    result.m_bSuccess = false;
    answer.Data.AddTail(result);
    ExpectLog(answer, {AnswerBaseLines(61, 0), R"(
[CKRMCSetCustomizeItemCmdAdaptDataRcv::ErrWriteOperationLog] Data[0].m_ushCustomizeId=1
[CKRMCSetCustomizeItemCmdAdaptDataRcv::ErrWriteOperationLog] Data[0].m_ushCustomizeItemId=2
[CKRMCSetCustomizeItemCmdAdaptDataRcv::ErrWriteOperationLog] Data[0].m_bSuccess=1
[CKRMCSetCustomizeItemCmdAdaptDataRcv::ErrWriteOperationLog] Data[1].m_ushCustomizeId=1
[CKRMCSetCustomizeItemCmdAdaptDataRcv::ErrWriteOperationLog] Data[1].m_ushCustomizeItemId=2
[CKRMCSetCustomizeItemCmdAdaptDataRcv::ErrWriteOperationLog] Data[1].m_bSuccess=0
)"});
}

TEST(GetCustomizeDestination, IsCommand69) {
    ExpectDiagnosticCommand<CKRMCGetCustomizeDestinationCmdAdaptDataSnd, CKRMCGetCustomizeDestinationCmdAdaptDataRcv>(
        69);
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

TEST(SetCustomizeDestination, IsCommand70) {
    ExpectDiagnosticCommand<CKRMCSetCustomizeDestinationCmdAdaptDataSnd, CKRMCSetCustomizeDestinationCmdAdaptDataRcv>(
        70);
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

TEST(OnBoardMonitor, IsCommand74) {
    ExpectDiagnosticCommand<CKRMCOnBoardMonitorCmdAdaptDataSnd, CKRMCOnBoardMonitorCmdAdaptDataRcv>(74);
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
                    DispDataLines(prefix + ".m_cTestValData", 100 + i) + DispDataLines(prefix + ".m_cTestMinData", 0) +
                    DispDataLines(prefix + ".m_cTestMaxData", 0) + prefix + ".m_bResult=0\n";
    }
    ExpectLog(answer, {expected});
}

TEST(GetCancelCodeCategoryList, IsCommand75) {
    ExpectDiagnosticCommand<CKRMCGetCancelCodeCategoryListCmdAdaptDataSnd,
                            CKRMCGetCancelCodeCategoryListCmdAdaptDataRcv>(75);
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

TEST(GetCancelCode, IsCommand76) {
    ExpectDiagnosticCommand<CKRMCGetCancelCodeCmdAdaptDataSnd, CKRMCGetCancelCodeCmdAdaptDataRcv>(76);
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
    ExpectLog(answer, {AnswerBaseLines(76, 0), TroubleCodeLines(data, 11), TroubleCodeLines(name + "Data[1]", 12),
                       Under(data, R"(
.m_uchKind=13
.m_uchStatus=0
.m_ulCode=0
.m_strCode=
.m_ulExplanationId=0
.m_strExplanation=
.m_bTripCount=0
)"),
                       FreezeFrameLines(data + ".m_cTripCount", 0), data + ".m_bTimeCount=0\n",
                       FreezeFrameLines(data + ".m_cTimeCount", 0), data + ".m_bTripGroup=0\n",
                       FreezeFrameLines(data + ".m_cTripGroup", 0), data + ".m_bOccurrenceCount=0\n",
                       FreezeFrameLines(data + ".m_cOccurrenceCount", 0), data + ".m_bMainUnitTemperature=0\n",
                       FreezeFrameLines(data + ".m_cMainUnitTemperature", 0), data + ".m_bCameraUnitTemperature=0\n",
                       FreezeFrameLines(data + ".m_cCameraUnitTemperature", 0), name + "m_bProhibit=1\n"});
}

TEST(GetCancelCode, AnswerWithoutCodesWritesTheFlagOnly) {
    CKRMCGetCancelCodeCmdAdaptDataRcv answer;
    ExpectLog(answer, {AnswerBaseLines(76, 0), R"(
[CKRMCGetCancelCodeCmdAdaptDataRcv::ErrWriteOperationLog] m_bProhibit=0
)"});
}

TEST(OnBoardMonitorList, IsCommand119) {
    ExpectDiagnosticCommand<CKRMCOnBoardMonitorListCmdAdaptDataSnd, CKRMCOnBoardMonitorListCmdAdaptDataRcv>(119);
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
