// The table of all commands: which family each belongs to, its ID and its name. The one place where IDs stand.
#ifndef KRM_FRAMEWORK_COMMANDS_H_
#define KRM_FRAMEWORK_COMMANDS_H_

#include <cstddef>
#include <string_view>

#include "krm/core/types.h"
#include "krm/framework/literal.h"

namespace krm {

/// The command type of a message: which family it belongs to.
enum class CommandFamily : krm_ulong {
    Diagnostic = 1,        ///< diagnostic commands (`Cmd`)
    Viewer = 2,            ///< viewer data control (`Vdc`); has no dump
    StoredDataImport = 8,  ///< stored-data import (`Dsdi`)
    UnitConversion = 10,   ///< unit conversion (`Ucc`)
    WordsTable = 14,       ///< words table (`Dwt`)
};

/// One command of the exchange. Its send and its receive message both carry the type and the ID.
struct Command {
    CommandFamily family;  ///< whose command type its messages carry
    krm_ulong id;          ///< unique within the family; gaps are commands without messages
    const char* name;      ///< as in the names of its classes: "GetDTC" of `CKRMCGetDTCCmdAdaptDataSnd`
};

/// All commands, by family and ID. Walk it to list or name commands in a log or a tool.
inline constexpr Command kCommands[] = {
    {CommandFamily::Diagnostic, 2, "GetDTC"},
    {CommandFamily::Diagnostic, 5, "ClearDTC"},
    {CommandFamily::Diagnostic, 6, "GetFFD"},
    {CommandFamily::Diagnostic, 9, "IsMultiFFD"},
    {CommandFamily::Diagnostic, 10, "VehicleDecision"},
    {CommandFamily::Diagnostic, 12, "GetGroupEcuList"},
    {CommandFamily::Diagnostic, 13, "GetEcuFunctionList"},
    {CommandFamily::Diagnostic, 14, "EcuConnect"},
    {CommandFamily::Diagnostic, 17, "GetDataMonitorList"},
    {CommandFamily::Diagnostic, 20, "StartDataMonitor"},
    {CommandFamily::Diagnostic, 21, "GetDataMonitorValue"},
    {CommandFamily::Diagnostic, 23, "GetTriggerItem"},
    {CommandFamily::Diagnostic, 24, "CreateCommCtrlMain"},
    {CommandFamily::Diagnostic, 25, "GetDescription"},
    {CommandFamily::Diagnostic, 26, "GetUtilityList"},
    {CommandFamily::Diagnostic, 27, "GetJ2534ConfigParam"},
    {CommandFamily::Diagnostic, 28, "GetCustomList"},
    {CommandFamily::Diagnostic, 32, "StartActiveTest"},
    {CommandFamily::Diagnostic, 34, "GetActiveTestList"},
    {CommandFamily::Diagnostic, 37, "CheckActiveTestAssumption"},
    {CommandFamily::Diagnostic, 38, "SetActiveTestSession"},
    {CommandFamily::Diagnostic, 39, "GetDataMonitorError"},
    {CommandFamily::Diagnostic, 40, "InitMountEcuList"},
    {CommandFamily::Diagnostic, 43, "ReadVBatt"},
    {CommandFamily::Diagnostic, 44, "GetDiagDetail"},
    {CommandFamily::Diagnostic, 45, "IsAbsFFD"},
    {CommandFamily::Diagnostic, 46, "SelectCarId"},
    {CommandFamily::Diagnostic, 47, "GetDiagSession"},
    {CommandFamily::Diagnostic, 48, "SetDiagSession"},
    {CommandFamily::Diagnostic, 55, "GetTranslationString"},
    {CommandFamily::Diagnostic, 56, "GetCanBusCategoryList"},
    {CommandFamily::Diagnostic, 57, "GetCanBusCheckList"},
    {CommandFamily::Diagnostic, 59, "GetCustomizeSupportList"},
    {CommandFamily::Diagnostic, 60, "GetCustomizeItemList"},
    {CommandFamily::Diagnostic, 61, "SetCustomizeItem"},
    {CommandFamily::Diagnostic, 62, "GetCurrentTimeInfo"},
    {CommandFamily::Diagnostic, 64, "GetAbsoluteTimeInfo"},
    {CommandFamily::Diagnostic, 66, "GetSpOperateCtrlRecordGroup"},
    {CommandFamily::Diagnostic, 67, "GetSpOperateCtrlRecord"},
    {CommandFamily::Diagnostic, 69, "GetCustomizeDestination"},
    {CommandFamily::Diagnostic, 70, "SetCustomizeDestination"},
    {CommandFamily::Diagnostic, 74, "OnBoardMonitor"},
    {CommandFamily::Diagnostic, 75, "GetCancelCodeCategoryList"},
    {CommandFamily::Diagnostic, 76, "GetCancelCode"},
    {CommandFamily::Diagnostic, 77, "GetVehicleInfo"},
    {CommandFamily::Diagnostic, 78, "GetAllDtcSystemList"},
    {CommandFamily::Diagnostic, 79, "GetVinCode"},
    {CommandFamily::Diagnostic, 80, "GetCarCategoryVin"},
    {CommandFamily::Diagnostic, 81, "GetEventRecordDataList"},
    {CommandFamily::Diagnostic, 82, "GetRecordDataList"},
    {CommandFamily::Diagnostic, 83, "GetEventRecordData"},
    {CommandFamily::Diagnostic, 84, "GetVehicleSystemInfo"},
    {CommandFamily::Diagnostic, 88, "GetOscilloscopeList"},
    {CommandFamily::Diagnostic, 91, "WriteDataItem"},
    {CommandFamily::Diagnostic, 92, "GetCurrentDataValue"},
    {CommandFamily::Diagnostic, 93, "GetEOPInspectionResultMessage"},
    {CommandFamily::Diagnostic, 94, "GetSpecialFunctionKeyList"},
    {CommandFamily::Diagnostic, 101, "GetHexModeInfo"},
    {CommandFamily::Diagnostic, 102, "ReadMemory"},
    {CommandFamily::Diagnostic, 103, "WriteMemory"},
    {CommandFamily::Diagnostic, 107, "SelectVehicleInfo"},
    {CommandFamily::Diagnostic, 109, "GetDtcFfd"},
    {CommandFamily::Diagnostic, 111, "GetDataMonitorReceiveInfo"},
    {CommandFamily::Diagnostic, 119, "OnBoardMonitorList"},
    {CommandFamily::Diagnostic, 127, "GetUnitInfo"},
    {CommandFamily::Viewer, 1, "CreateViewerDataCtrl"},
    {CommandFamily::Viewer, 2, "GetHelpInfo"},
    {CommandFamily::Viewer, 3, "GetPcViewerResource"},
    {CommandFamily::Viewer, 4, "GetHideAllData"},
    {CommandFamily::Viewer, 5, "GetSecurityLevel"},
    {CommandFamily::StoredDataImport, 1, "GetImportFileInfo"},
    {CommandFamily::StoredDataImport, 2, "GetImportStoredData"},
    {CommandFamily::UnitConversion, 1, "CreateUnitConversionCommand"},
    {CommandFamily::UnitConversion, 2, "GetUnitConversionInfoList"},
    {CommandFamily::UnitConversion, 3, "SetUnitConversionInfo"},
    {CommandFamily::UnitConversion, 4, "GetUnitSettingGroupList"},
    {CommandFamily::UnitConversion, 5, "GetUnitSettingGroupParamList"},
    {CommandFamily::WordsTable, 1, "CreateDiagWordsTable"},
    {CommandFamily::WordsTable, 2, "GetTranslationString"},
};

// Called for what doesn't fit the table. Not constexpr, so that the compiler stops there and shows the name.
void NoSuchCommandInTheTable();        ///< a name without an ID that the family doesn't have
void TheTableHasThisCommandAlready();  ///< an own name or ID that the family has

/// The ID of the command `name` of `family`; an unknown name doesn't compile.
consteval krm_ulong CommandId(CommandFamily family, std::string_view name) {
    for (const Command& command : kCommands) {
        if (command.family == family && command.name == name) {
            return command.id;
        }
    }
    NoSuchCommandInTheTable();
    return 0;
}

/// The command of a message's class: one of the table by its name alone, `"GetDTC"`, or a user's own by name and ID,
/// `krm::CommandName("ReadPaintCode", 900)`.
template <std::size_t Size>
struct CommandName {
    /// A command of the table.
    consteval CommandName(const char (&text)[Size]) : name(text) {}  // NOLINT: a literal converts by itself
    /// A command of a user's own.
    consteval CommandName(const char (&text)[Size], krm_ulong ownId) : name(text), own(true), id(ownId) {}

    /// The command's ID in `family`. A name without an ID that is not in the table doesn't compile, nor does an ID of
    /// one's own, or a name, that the table has.
    consteval krm_ulong IdIn(CommandFamily family) const {
        if (!own) {
            return CommandId(family, name.View());
        }
        for (const Command& command : kCommands) {
            if (command.family == family && (command.id == id || command.name == name.View())) {
                TheTableHasThisCommandAlready();
            }
        }
        return id;
    }

    Literal<Size> name;  ///< as in the names of the command's classes
    bool own = false;    ///< not of the table
    krm_ulong id = 0;    ///< of a user's own command
};

/// The command with this type and ID, or null where there is none.
constexpr const Command* FindCommand(krm_ulong commandType, krm_ulong commandId) {
    for (const Command& command : kCommands) {
        if (static_cast<krm_ulong>(command.family) == commandType && command.id == commandId) {
            return &command;
        }
    }
    return nullptr;
}

}  // namespace krm

#endif  // KRM_FRAMEWORK_COMMANDS_H_
