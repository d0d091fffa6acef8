#include "krm/framework/commands.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <iterator>
#include <map>
#include <set>
#include <string>
#include <utility>

namespace {

/// Every command, written out: type, ID, name.
const struct {
    krm_ulong type;
    krm_ulong id;
    const char* name;
} kRows[] = {
    {1, 2, "GetDTC"},
    {1, 5, "ClearDTC"},
    {1, 6, "GetFFD"},
    {1, 9, "IsMultiFFD"},
    {1, 10, "VehicleDecision"},
    {1, 12, "GetGroupEcuList"},
    {1, 13, "GetEcuFunctionList"},
    {1, 14, "EcuConnect"},
    {1, 17, "GetDataMonitorList"},
    {1, 20, "StartDataMonitor"},
    {1, 21, "GetDataMonitorValue"},
    {1, 23, "GetTriggerItem"},
    {1, 24, "CreateCommCtrlMain"},
    {1, 25, "GetDescription"},
    {1, 26, "GetUtilityList"},
    {1, 27, "GetJ2534ConfigParam"},
    {1, 28, "GetCustomList"},
    {1, 32, "StartActiveTest"},
    {1, 34, "GetActiveTestList"},
    {1, 37, "CheckActiveTestAssumption"},
    {1, 38, "SetActiveTestSession"},
    {1, 39, "GetDataMonitorError"},
    {1, 40, "InitMountEcuList"},
    {1, 43, "ReadVBatt"},
    {1, 44, "GetDiagDetail"},
    {1, 45, "IsAbsFFD"},
    {1, 46, "SelectCarId"},
    {1, 47, "GetDiagSession"},
    {1, 48, "SetDiagSession"},
    {1, 55, "GetTranslationString"},
    {1, 56, "GetCanBusCategoryList"},
    {1, 57, "GetCanBusCheckList"},
    {1, 59, "GetCustomizeSupportList"},
    {1, 60, "GetCustomizeItemList"},
    {1, 61, "SetCustomizeItem"},
    {1, 62, "GetCurrentTimeInfo"},
    {1, 64, "GetAbsoluteTimeInfo"},
    {1, 66, "GetSpOperateCtrlRecordGroup"},
    {1, 67, "GetSpOperateCtrlRecord"},
    {1, 69, "GetCustomizeDestination"},
    {1, 70, "SetCustomizeDestination"},
    {1, 74, "OnBoardMonitor"},
    {1, 75, "GetCancelCodeCategoryList"},
    {1, 76, "GetCancelCode"},
    {1, 77, "GetVehicleInfo"},
    {1, 78, "GetAllDtcSystemList"},
    {1, 79, "GetVinCode"},
    {1, 80, "GetCarCategoryVin"},
    {1, 81, "GetEventRecordDataList"},
    {1, 82, "GetRecordDataList"},
    {1, 83, "GetEventRecordData"},
    {1, 84, "GetVehicleSystemInfo"},
    {1, 88, "GetOscilloscopeList"},
    {1, 91, "WriteDataItem"},
    {1, 92, "GetCurrentDataValue"},
    {1, 93, "GetEOPInspectionResultMessage"},
    {1, 94, "GetSpecialFunctionKeyList"},
    {1, 101, "GetHexModeInfo"},
    {1, 102, "ReadMemory"},
    {1, 103, "WriteMemory"},
    {1, 107, "SelectVehicleInfo"},
    {1, 109, "GetDtcFfd"},
    {1, 111, "GetDataMonitorReceiveInfo"},
    {1, 119, "OnBoardMonitorList"},
    {1, 127, "GetUnitInfo"},
    {2, 1, "CreateViewerDataCtrl"},
    {2, 2, "GetHelpInfo"},
    {2, 3, "GetPcViewerResource"},
    {2, 4, "GetHideAllData"},
    {2, 5, "GetSecurityLevel"},
    {8, 1, "GetImportFileInfo"},
    {8, 2, "GetImportStoredData"},
    {10, 1, "CreateUnitConversionCommand"},
    {10, 2, "GetUnitConversionInfoList"},
    {10, 3, "SetUnitConversionInfo"},
    {10, 4, "GetUnitSettingGroupList"},
    {10, 5, "GetUnitSettingGroupParamList"},
    {14, 1, "CreateDiagWordsTable"},
    {14, 2, "GetTranslationString"},
};

TEST(CommandsTest, TheTableHasAll79AndNoOther) {
    static_assert(std::size(krm::kCommands) == 79);
    static_assert(std::size(kRows) == 79);
    for (const auto& row : kRows) {
        const krm::Command* const command = krm::FindCommand(row.type, row.id);
        ASSERT_NE(command, nullptr) << row.name;
        EXPECT_EQ(static_cast<krm_ulong>(command->family), row.type) << row.name;
        EXPECT_EQ(command->id, row.id) << row.name;
        EXPECT_STREQ(command->name, row.name);
    }
}

TEST(CommandsTest, TheTableStandsByFamilyAndId) {
    for (std::size_t i = 0; i < std::size(kRows); ++i) {
        EXPECT_EQ(static_cast<krm_ulong>(krm::kCommands[i].family), kRows[i].type) << i;
        EXPECT_EQ(krm::kCommands[i].id, kRows[i].id) << i;
        EXPECT_STREQ(krm::kCommands[i].name, kRows[i].name) << i;
    }
}

TEST(CommandsTest, IdsAndNamesAreUniqueWithinAFamily) {
    std::set<std::pair<krm::CommandFamily, krm_ulong>> ids;
    std::set<std::pair<krm::CommandFamily, std::string>> names;
    std::map<krm::CommandFamily, int> counts;
    for (const krm::Command& command : krm::kCommands) {
        EXPECT_TRUE(ids.insert({command.family, command.id}).second) << command.name;
        EXPECT_TRUE(names.insert({command.family, command.name}).second) << command.name;
        ++counts[command.family];
    }
    EXPECT_EQ(counts[krm::CommandFamily::Diagnostic], 65);
    EXPECT_EQ(counts[krm::CommandFamily::Viewer], 5);
    EXPECT_EQ(counts[krm::CommandFamily::StoredDataImport], 2);
    EXPECT_EQ(counts[krm::CommandFamily::UnitConversion], 5);
    EXPECT_EQ(counts[krm::CommandFamily::WordsTable], 2);
}

TEST(CommandsTest, GapsHaveNoCommand) {
    const std::pair<krm_ulong, krm_ulong> gaps[] = {
        {0, 0}, {0, 2},  {1, 0},  {1, 1},  {1, 3}, {1, 128}, {1, 0xFFFFFFFFU}, {2, 0},          {2, 6},
        {8, 3}, {10, 6}, {14, 0}, {14, 3}, {3, 1}, {9, 1},   {15, 1},          {0xFFFFFFFFU, 2}};
    for (const auto& [type, id] : gaps) {
        EXPECT_EQ(krm::FindCommand(type, id), nullptr) << type << ' ' << id;
    }
}

using krm::CommandFamily;
using krm::CommandId;
static_assert(static_cast<krm_ulong>(CommandFamily::Diagnostic) == 1);
static_assert(static_cast<krm_ulong>(CommandFamily::Viewer) == 2);
static_assert(static_cast<krm_ulong>(CommandFamily::StoredDataImport) == 8);
static_assert(static_cast<krm_ulong>(CommandFamily::UnitConversion) == 10);
static_assert(static_cast<krm_ulong>(CommandFamily::WordsTable) == 14);
static_assert(CommandId(CommandFamily::Diagnostic, "GetDTC") == 2);
static_assert(CommandId(CommandFamily::Diagnostic, "GetUnitInfo") == 127);
// The same name in two families.
static_assert(CommandId(CommandFamily::Diagnostic, "GetTranslationString") == 55);
static_assert(CommandId(CommandFamily::WordsTable, "GetTranslationString") == 2);
static_assert(krm::FindCommand(10, 5)->id == 5);

}  // namespace
