#include "krm/messages/auxiliary/unit_conversion.h"

#include <gmock/gmock.h>

#include <string>

#include "krm/fields/auxiliary/unit_conversion.h"
#include "tests/support/fields.h"
#include "tests/support/log_capture.h"
#include "tests/support/log_text.h"

namespace {

using krm::test::Described;
using krm::test::ExpectLog;
using krm::test::Fill;
using krm::test::Seed;
using testing::ElementsAre;
using testing::EndsWith;

TEST(UnitConversion, CreationIsLoggedElementByElement) {
    CKRMCCreateUnitConversionCommandUccAdaptDataSnd message;
    CKRMCUnitConversionCreationData creation;
    creation.m_ushIdType = 7;
    creation.m_strValue = "EU 100%d";
    message.Data.AddTail(creation);
    creation.m_ushIdType = 65535;
    creation.m_strValue = "";
    message.Data.AddTail(creation);
    ExpectLog(message, {R"(
[CKRMCBaseUccAdaptData::ErrWriteOperationLog] m_dwCommandType=10
[CKRMCBaseUccAdaptData::ErrWriteOperationLog] m_dwCommandID=1
[CKRMCCreateUnitConversionCommandUccAdaptDataSnd::ErrWriteOperationLog] Data[0].m_ushIdType=7
[CKRMCCreateUnitConversionCommandUccAdaptDataSnd::ErrWriteOperationLog] Data[0].m_strValue=EU 100%d
[CKRMCCreateUnitConversionCommandUccAdaptDataSnd::ErrWriteOperationLog] Data[1].m_ushIdType=65535
[CKRMCCreateUnitConversionCommandUccAdaptDataSnd::ErrWriteOperationLog] Data[1].m_strValue=
)"});
}

// A unit record as an item's list holds it.
CKRMCUnitConversionData Unit(unsigned char id, const char* name) {
    CKRMCUnitConversionData unit;
    unit.m_uchUnitId = id;
    unit.m_strUnitName = name;
    return unit;
}

TEST(UnitConversion, UnitsOfAnItemAreLoggedUnderBothIndices) {
    CKRMCGetUnitConversionInfoListUccAdaptDataRcv message;
    CKRMCUnitConvDataItemInfo item;
    item.m_uchItemId = 4;
    item.m_strItemName = "Vehicle speed";
    item.m_cUnitList.AddTail(Unit(1, "km/h"));
    item.m_cUnitList.AddTail(Unit(255, "mph"));
    message.Data.AddTail(item);
    ExpectLog(message, {R"(
[CKRMCBaseUccAdaptData::ErrWriteOperationLog] m_dwCommandType=10
[CKRMCBaseUccAdaptData::ErrWriteOperationLog] m_dwCommandID=2
[CKRMCGetUnitConversionInfoListUccAdaptDataRcv::ErrWriteOperationLog] Data[0].m_uchItemId=4
[CKRMCGetUnitConversionInfoListUccAdaptDataRcv::ErrWriteOperationLog] Data[0].m_strItemName=Vehicle speed
[CKRMCGetUnitConversionInfoListUccAdaptDataRcv::ErrWriteOperationLog] Data[0].m_cUnitList[0].m_uchUnitId=1
[CKRMCGetUnitConversionInfoListUccAdaptDataRcv::ErrWriteOperationLog] Data[0].m_cUnitList[0].m_strUnitName=km/h
[CKRMCGetUnitConversionInfoListUccAdaptDataRcv::ErrWriteOperationLog] Data[0].m_cUnitList[1].m_uchUnitId=255
[CKRMCGetUnitConversionInfoListUccAdaptDataRcv::ErrWriteOperationLog] Data[0].m_cUnitList[1].m_strUnitName=mph
)"});
}

TEST(UnitConversion, ASecondItemsUnitsStartAtIndexZero) {
    CKRMCGetUnitConversionInfoListUccAdaptDataRcv message;
    message.Data.AddTail(CKRMCUnitConvDataItemInfo());
    CKRMCUnitConvDataItemInfo item;
    item.m_cUnitList.AddTail(Unit(9, "bar"));
    message.Data.AddTail(item);
    ExpectLog(message, {R"(
[CKRMCBaseUccAdaptData::ErrWriteOperationLog] m_dwCommandType=10
[CKRMCBaseUccAdaptData::ErrWriteOperationLog] m_dwCommandID=2
[CKRMCGetUnitConversionInfoListUccAdaptDataRcv::ErrWriteOperationLog] Data[0].m_uchItemId=0
[CKRMCGetUnitConversionInfoListUccAdaptDataRcv::ErrWriteOperationLog] Data[0].m_strItemName=
[CKRMCGetUnitConversionInfoListUccAdaptDataRcv::ErrWriteOperationLog] Data[1].m_uchItemId=0
[CKRMCGetUnitConversionInfoListUccAdaptDataRcv::ErrWriteOperationLog] Data[1].m_strItemName=
[CKRMCGetUnitConversionInfoListUccAdaptDataRcv::ErrWriteOperationLog] Data[1].m_cUnitList[0].m_uchUnitId=9
[CKRMCGetUnitConversionInfoListUccAdaptDataRcv::ErrWriteOperationLog] Data[1].m_cUnitList[0].m_strUnitName=bar
)"});
}

CKRMCUnitConversionData Setting(unsigned char item, unsigned char unit) {
    CKRMCUnitConversionData setting;
    setting.m_uchItemId = item;
    setting.m_uchUnitId = unit;
    return setting;
}

TEST(UnitConversion, ChoosingUnitsLogsItemAndUnitOnly) {
    CKRMCSetUnitConversionInfoUccAdaptDataSnd message;
    Seed seed(63);
    CKRMCUnitConversionData choice;
    Fill(choice, seed);
    choice.m_uchItemId = 200;
    choice.m_uchUnitId = 3;
    message.Data.AddTail(choice);
    message.Data.AddTail(Setting(5, 6));
    ExpectLog(message, {R"(
[CKRMCBaseUccAdaptData::ErrWriteOperationLog] m_dwCommandType=10
[CKRMCBaseUccAdaptData::ErrWriteOperationLog] m_dwCommandID=3
[CKRMCSetUnitConversionInfoUccAdaptDataSnd::ErrWriteOperationLog] Data[0].m_uchItemId=200
[CKRMCSetUnitConversionInfoUccAdaptDataSnd::ErrWriteOperationLog] Data[0].m_uchUnitId=3
[CKRMCSetUnitConversionInfoUccAdaptDataSnd::ErrWriteOperationLog] Data[1].m_uchItemId=5
[CKRMCSetUnitConversionInfoUccAdaptDataSnd::ErrWriteOperationLog] Data[1].m_uchUnitId=6
)"});
}

TEST(UnitConversion, ChosenUnitsAreLoggedByGenre) {
    CKRMCSetUnitConversionInfoUccAdaptDataRcv message;
    Seed seed(64);
    CKRMCUnitConversionData chosen;
    Fill(chosen, seed);
    chosen.m_ushGenreId = 40000;
    chosen.m_uchUnitId = 2;
    message.Data.AddTail(chosen);
    ExpectLog(message, {R"(
[CKRMCBaseUccAdaptData::ErrWriteOperationLog] m_dwCommandType=10
[CKRMCBaseUccAdaptData::ErrWriteOperationLog] m_dwCommandID=3
[CKRMCSetUnitConversionInfoUccAdaptDataRcv::ErrWriteOperationLog] Data[0].m_ushGenreId=40000
[CKRMCSetUnitConversionInfoUccAdaptDataRcv::ErrWriteOperationLog] Data[0].m_uchUnitId=2
)"});
}

TEST(UnitConversion, GroupsAreLoggedByNumberAndName) {
    CKRMCGetUnitSettingGroupListUccAdaptDataRcv message;
    CKRMCUnitConversionData group;
    group.m_uchGroupId = 1;
    group.m_strGroupName = "Metric";
    message.Data.AddTail(group);
    group.m_uchGroupId = 2;
    group.m_strGroupName = "Imperial";
    message.Data.AddTail(group);
    ExpectLog(message, {R"(
[CKRMCBaseUccAdaptData::ErrWriteOperationLog] m_dwCommandType=10
[CKRMCBaseUccAdaptData::ErrWriteOperationLog] m_dwCommandID=4
[CKRMCGetUnitSettingGroupListUccAdaptDataRcv::ErrWriteOperationLog] Data[0].m_uchGroupId=1
[CKRMCGetUnitSettingGroupListUccAdaptDataRcv::ErrWriteOperationLog] Data[0].m_strGroupName=Metric
[CKRMCGetUnitSettingGroupListUccAdaptDataRcv::ErrWriteOperationLog] Data[1].m_uchGroupId=2
[CKRMCGetUnitSettingGroupListUccAdaptDataRcv::ErrWriteOperationLog] Data[1].m_strGroupName=Imperial
)"});
}

TEST(UnitConversion, GroupsAskedForAreLoggedByNumber) {
    CKRMCGetUnitSettingGroupParamListUccAdaptDataSnd message;
    CKRMCUnitConversionData group;
    group.m_strGroupName = "not written";
    group.m_uchGroupId = 8;
    message.Data.AddTail(group);
    group.m_uchGroupId = 9;
    message.Data.AddTail(group);
    ExpectLog(message, {R"(
[CKRMCBaseUccAdaptData::ErrWriteOperationLog] m_dwCommandType=10
[CKRMCBaseUccAdaptData::ErrWriteOperationLog] m_dwCommandID=5
[CKRMCGetUnitSettingGroupParamListUccAdaptDataSnd::ErrWriteOperationLog] Data[0].m_uchGroupId=8
[CKRMCGetUnitSettingGroupParamListUccAdaptDataSnd::ErrWriteOperationLog] Data[1].m_uchGroupId=9
)"});
}

TEST(UnitConversion, SettingsOfAGroupAreLoggedUnderBothIndices) {
    CKRMCGetUnitSettingGroupParamListUccAdaptDataRcv message;
    CKRMCUnitConvDataSettingInfo group;
    group.m_uchGroupId = 1;
    message.Data.AddTail(group);
    group.m_uchGroupId = 2;
    group.m_cSettingList.AddTail(Setting(10, 20));
    group.m_cSettingList.AddTail(Setting(11, 21));
    message.Data.AddTail(group);
    ExpectLog(message, {R"(
[CKRMCBaseUccAdaptData::ErrWriteOperationLog] m_dwCommandType=10
[CKRMCBaseUccAdaptData::ErrWriteOperationLog] m_dwCommandID=5
[CKRMCGetUnitSettingGroupParamListUccAdaptDataRcv::ErrWriteOperationLog] Data[0].m_uchGroupId=1
[CKRMCGetUnitSettingGroupParamListUccAdaptDataRcv::ErrWriteOperationLog] Data[1].m_uchGroupId=2
[CKRMCGetUnitSettingGroupParamListUccAdaptDataRcv::ErrWriteOperationLog] Data[1].m_cSettingList[0].m_uchItemId=10
[CKRMCGetUnitSettingGroupParamListUccAdaptDataRcv::ErrWriteOperationLog] Data[1].m_cSettingList[0].m_uchUnitId=20
[CKRMCGetUnitSettingGroupParamListUccAdaptDataRcv::ErrWriteOperationLog] Data[1].m_cSettingList[1].m_uchItemId=11
[CKRMCGetUnitSettingGroupParamListUccAdaptDataRcv::ErrWriteOperationLog] Data[1].m_cSettingList[1].m_uchUnitId=21
)"});
}

TEST(UnitConversion, MessagesWithoutDataLogTypeAndIdOnly) {
    CKRMCCreateUnitConversionCommandUccAdaptDataRcv created;
    ExpectLog(created, {R"(
[CKRMCBaseUccAdaptData::ErrWriteOperationLog] m_dwCommandType=10
[CKRMCBaseUccAdaptData::ErrWriteOperationLog] m_dwCommandID=1
)"});
    CKRMCGetUnitConversionInfoListUccAdaptDataSnd items;
    ExpectLog(items, {R"(
[CKRMCBaseUccAdaptData::ErrWriteOperationLog] m_dwCommandType=10
[CKRMCBaseUccAdaptData::ErrWriteOperationLog] m_dwCommandID=2
)"});
    CKRMCGetUnitSettingGroupListUccAdaptDataSnd groups;
    ExpectLog(groups, {R"(
[CKRMCBaseUccAdaptData::ErrWriteOperationLog] m_dwCommandType=10
[CKRMCBaseUccAdaptData::ErrWriteOperationLog] m_dwCommandID=4
)"});
}

TEST(UnitConversion, AnEmptyListLogsNothing) {
    CKRMCSetUnitConversionInfoUccAdaptDataSnd message;
    ExpectLog(message, {R"(
[CKRMCBaseUccAdaptData::ErrWriteOperationLog] m_dwCommandType=10
[CKRMCBaseUccAdaptData::ErrWriteOperationLog] m_dwCommandID=3
)"});
}

TEST(UnitConversion, LoggingSucceedsWhateverTheWriterSays) {
    krm::test::LogCapture log(-1);
    CKRMCGetUnitSettingGroupParamListUccAdaptDataRcv message;
    message.Data.AddTail(CKRMCUnitConvDataSettingInfo());
    EXPECT_EQ(message.ErrWriteOperationLog(), 0);
    EXPECT_THAT(log.Texts(), ElementsAre(EndsWith("m_dwCommandType=10"), EndsWith("m_dwCommandID=5"),
                                         EndsWith("Data[0].m_uchGroupId=0")));
}

TEST(UnitConversion, ACopyOwnsItsNestedSettings) {
    CKRMCGetUnitSettingGroupParamListUccAdaptDataRcv source;
    CKRMCUnitConvDataSettingInfo group;
    group.m_cSettingList.AddTail(Setting(1, 2));
    source.Data.AddTail(group);
    source.Data.AddTail(group);
    const std::string before = Described(source);

    CKRMCGetUnitSettingGroupParamListUccAdaptDataRcv copy(source);
    EXPECT_EQ(Described(copy), before);
    for (CKRMCUnitConvDataSettingInfo& copied : copy.Data) {
        copied.m_cSettingList[0].m_uchUnitId = 77;
        copied.m_cSettingList[0].m_strUnitName = "changed";
        copied.m_cSettingList.AddTail(Setting(3, 4));
    }
    copy.Data.RemoveAt(1);
    EXPECT_EQ(Described(source), before);

    CKRMCGetUnitSettingGroupParamListUccAdaptDataRcv assigned;
    assigned.Data.AddTail(CKRMCUnitConvDataSettingInfo());
    assigned = source;
    EXPECT_EQ(Described(assigned), before);
    assigned.Data[1].m_cSettingList.RemoveAll();
    EXPECT_EQ(Described(source), before);
}

}  // namespace
