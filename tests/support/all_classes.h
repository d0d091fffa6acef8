// Every message class and every class that lists hold, one line each, for tests that must leave none out.
//
// The numbers are written down here and not taken from the library's table of commands: that table is checked against
// them. A list is a macro over X, so that one line gives a test the class and its name.
#ifndef KRM_TESTS_SUPPORT_ALL_CLASSES_H_
#define KRM_TESTS_SUPPORT_ALL_CLASSES_H_

#include "krm/messages/auxiliary/stored_data.h"
#include "krm/messages/auxiliary/unit_conversion.h"
#include "krm/messages/auxiliary/viewer.h"
#include "krm/messages/auxiliary/words_table.h"
#include "krm/messages/diag/active_test.h"
#include "krm/messages/diag/can_bus.h"
#include "krm/messages/diag/cancel_codes.h"
#include "krm/messages/diag/customize.h"
#include "krm/messages/diag/data_item.h"
#include "krm/messages/diag/data_monitor.h"
#include "krm/messages/diag/display.h"
#include "krm/messages/diag/event_records.h"
#include "krm/messages/diag/freeze_frame_item.h"
#include "krm/messages/diag/freeze_frames.h"
#include "krm/messages/diag/j2534_config.h"
#include "krm/messages/diag/memory.h"
#include "krm/messages/diag/on_board_monitor.h"
#include "krm/messages/diag/oscilloscope.h"
#include "krm/messages/diag/oscilloscope_channel.h"
#include "krm/messages/diag/special_operation.h"
#include "krm/messages/diag/translation.h"
#include "krm/messages/diag/trouble_code.h"
#include "krm/messages/diag/trouble_codes.h"
#include "krm/messages/diag/utilities.h"
#include "krm/messages/diag/vehicle.h"
#include "krm/messages/diag/words.h"

// X(class, its request or answer base, command type, command ID): the 79 commands' requests and answers.
// clang-format off
#define KRM_ALL_MESSAGES(X) \
    X(CKRMCGetDTCCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd, 1, 2)                          \
    X(CKRMCGetDTCCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv, 1, 2)                          \
    X(CKRMCClearDTCCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd, 1, 5)                        \
    X(CKRMCClearDTCCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv, 1, 5)                        \
    X(CKRMCGetFFDCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd, 1, 6)                          \
    X(CKRMCGetFFDCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv, 1, 6)                          \
    X(CKRMCIsMultiFFDCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd, 1, 9)                      \
    X(CKRMCIsMultiFFDCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv, 1, 9)                      \
    X(CKRMCVehicleDecisionCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd, 1, 10)                \
    X(CKRMCVehicleDecisionCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv, 1, 10)                \
    X(CKRMCGetGroupEcuListCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd, 1, 12)                \
    X(CKRMCGetGroupEcuListCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv, 1, 12)                \
    X(CKRMCGetEcuFunctionListCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd, 1, 13)             \
    X(CKRMCGetEcuFunctionListCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv, 1, 13)             \
    X(CKRMCEcuConnectCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd, 1, 14)                     \
    X(CKRMCEcuConnectCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv, 1, 14)                     \
    X(CKRMCGetDataMonitorListCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd, 1, 17)             \
    X(CKRMCGetDataMonitorListCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv, 1, 17)             \
    X(CKRMCStartDataMonitorCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd, 1, 20)               \
    X(CKRMCStartDataMonitorCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv, 1, 20)               \
    X(CKRMCGetDataMonitorValueCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd, 1, 21)            \
    X(CKRMCGetDataMonitorValueCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv, 1, 21)            \
    X(CKRMCGetTriggerItemCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd, 1, 23)                 \
    X(CKRMCGetTriggerItemCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv, 1, 23)                 \
    X(CKRMCCreateCommCtrlMainCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd, 1, 24)             \
    X(CKRMCCreateCommCtrlMainCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv, 1, 24)             \
    X(CKRMCGetDescriptionCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd, 1, 25)                 \
    X(CKRMCGetDescriptionCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv, 1, 25)                 \
    X(CKRMCGetUtilityListCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd, 1, 26)                 \
    X(CKRMCGetUtilityListCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv, 1, 26)                 \
    X(CKRMCGetJ2534ConfigParamCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd, 1, 27)            \
    X(CKRMCGetJ2534ConfigParamCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv, 1, 27)            \
    X(CKRMCGetCustomListCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd, 1, 28)                  \
    X(CKRMCGetCustomListCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv, 1, 28)                  \
    X(CKRMCStartActiveTestCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd, 1, 32)                \
    X(CKRMCStartActiveTestCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv, 1, 32)                \
    X(CKRMCGetActiveTestListCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd, 1, 34)              \
    X(CKRMCGetActiveTestListCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv, 1, 34)              \
    X(CKRMCCheckActiveTestAssumptionCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd, 1, 37)      \
    X(CKRMCCheckActiveTestAssumptionCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv, 1, 37)      \
    X(CKRMCSetActiveTestSessionCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd, 1, 38)           \
    X(CKRMCSetActiveTestSessionCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv, 1, 38)           \
    X(CKRMCGetDataMonitorErrorCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd, 1, 39)            \
    X(CKRMCGetDataMonitorErrorCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv, 1, 39)            \
    X(CKRMCInitMountEcuListCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd, 1, 40)               \
    X(CKRMCInitMountEcuListCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv, 1, 40)               \
    X(CKRMCReadVBattCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd, 1, 43)                      \
    X(CKRMCReadVBattCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv, 1, 43)                      \
    X(CKRMCGetDiagDetailCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd, 1, 44)                  \
    X(CKRMCGetDiagDetailCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv, 1, 44)                  \
    X(CKRMCIsAbsFFDCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd, 1, 45)                       \
    X(CKRMCIsAbsFFDCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv, 1, 45)                       \
    X(CKRMCSelectCarIdCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd, 1, 46)                    \
    X(CKRMCSelectCarIdCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv, 1, 46)                    \
    X(CKRMCGetDiagSessionCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd, 1, 47)                 \
    X(CKRMCGetDiagSessionCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv, 1, 47)                 \
    X(CKRMCSetDiagSessionCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd, 1, 48)                 \
    X(CKRMCSetDiagSessionCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv, 1, 48)                 \
    X(CKRMCGetTranslationStringCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd, 1, 55)           \
    X(CKRMCGetTranslationStringCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv, 1, 55)           \
    X(CKRMCGetCanBusCategoryListCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd, 1, 56)          \
    X(CKRMCGetCanBusCategoryListCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv, 1, 56)          \
    X(CKRMCGetCanBusCheckListCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd, 1, 57)             \
    X(CKRMCGetCanBusCheckListCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv, 1, 57)             \
    X(CKRMCGetCustomizeSupportListCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd, 1, 59)        \
    X(CKRMCGetCustomizeSupportListCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv, 1, 59)        \
    X(CKRMCGetCustomizeItemListCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd, 1, 60)           \
    X(CKRMCGetCustomizeItemListCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv, 1, 60)           \
    X(CKRMCSetCustomizeItemCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd, 1, 61)               \
    X(CKRMCSetCustomizeItemCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv, 1, 61)               \
    X(CKRMCGetCurrentTimeInfoCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd, 1, 62)             \
    X(CKRMCGetCurrentTimeInfoCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv, 1, 62)             \
    X(CKRMCGetAbsoluteTimeInfoCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd, 1, 64)            \
    X(CKRMCGetAbsoluteTimeInfoCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv, 1, 64)            \
    X(CKRMCGetSpOperateCtrlRecordGroupCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd, 1, 66)    \
    X(CKRMCGetSpOperateCtrlRecordGroupCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv, 1, 66)    \
    X(CKRMCGetSpOperateCtrlRecordCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd, 1, 67)         \
    X(CKRMCGetSpOperateCtrlRecordCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv, 1, 67)         \
    X(CKRMCGetCustomizeDestinationCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd, 1, 69)        \
    X(CKRMCGetCustomizeDestinationCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv, 1, 69)        \
    X(CKRMCSetCustomizeDestinationCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd, 1, 70)        \
    X(CKRMCSetCustomizeDestinationCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv, 1, 70)        \
    X(CKRMCOnBoardMonitorCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd, 1, 74)                 \
    X(CKRMCOnBoardMonitorCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv, 1, 74)                 \
    X(CKRMCGetCancelCodeCategoryListCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd, 1, 75)      \
    X(CKRMCGetCancelCodeCategoryListCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv, 1, 75)      \
    X(CKRMCGetCancelCodeCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd, 1, 76)                  \
    X(CKRMCGetCancelCodeCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv, 1, 76)                  \
    X(CKRMCGetVehicleInfoCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd, 1, 77)                 \
    X(CKRMCGetVehicleInfoCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv, 1, 77)                 \
    X(CKRMCGetAllDtcSystemListCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd, 1, 78)            \
    X(CKRMCGetAllDtcSystemListCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv, 1, 78)            \
    X(CKRMCGetVinCodeCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd, 1, 79)                     \
    X(CKRMCGetVinCodeCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv, 1, 79)                     \
    X(CKRMCGetCarCategoryVinCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd, 1, 80)              \
    X(CKRMCGetCarCategoryVinCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv, 1, 80)              \
    X(CKRMCGetEventRecordDataListCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd, 1, 81)         \
    X(CKRMCGetEventRecordDataListCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv, 1, 81)         \
    X(CKRMCGetRecordDataListCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd, 1, 82)              \
    X(CKRMCGetRecordDataListCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv, 1, 82)              \
    X(CKRMCGetEventRecordDataCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd, 1, 83)             \
    X(CKRMCGetEventRecordDataCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv, 1, 83)             \
    X(CKRMCGetVehicleSystemInfoCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd, 1, 84)           \
    X(CKRMCGetVehicleSystemInfoCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv, 1, 84)           \
    X(CKRMCGetOscilloscopeListCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd, 1, 88)            \
    X(CKRMCGetOscilloscopeListCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv, 1, 88)            \
    X(CKRMCWriteDataItemCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd, 1, 91)                  \
    X(CKRMCWriteDataItemCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv, 1, 91)                  \
    X(CKRMCGetCurrentDataValueCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd, 1, 92)            \
    X(CKRMCGetCurrentDataValueCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv, 1, 92)            \
    X(CKRMCGetEOPInspectionResultMessageCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd, 1, 93)  \
    X(CKRMCGetEOPInspectionResultMessageCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv, 1, 93)  \
    X(CKRMCGetSpecialFunctionKeyListCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd, 1, 94)      \
    X(CKRMCGetSpecialFunctionKeyListCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv, 1, 94)      \
    X(CKRMCGetHexModeInfoCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd, 1, 101)                \
    X(CKRMCGetHexModeInfoCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv, 1, 101)                \
    X(CKRMCReadMemoryCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd, 1, 102)                    \
    X(CKRMCReadMemoryCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv, 1, 102)                    \
    X(CKRMCWriteMemoryCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd, 1, 103)                   \
    X(CKRMCWriteMemoryCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv, 1, 103)                   \
    X(CKRMCSelectVehicleInfoCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd, 1, 107)             \
    X(CKRMCSelectVehicleInfoCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv, 1, 107)             \
    X(CKRMCGetDtcFfdCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd, 1, 109)                     \
    X(CKRMCGetDtcFfdCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv, 1, 109)                     \
    X(CKRMCGetDataMonitorReceiveInfoCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd, 1, 111)     \
    X(CKRMCGetDataMonitorReceiveInfoCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv, 1, 111)     \
    X(CKRMCOnBoardMonitorListCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd, 1, 119)            \
    X(CKRMCOnBoardMonitorListCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv, 1, 119)            \
    X(CKRMCGetUnitInfoCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd, 1, 127)                   \
    X(CKRMCGetUnitInfoCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv, 1, 127)                   \
    X(CKRMCCreateViewerDataCtrlVdcAdaptDataSnd, CKRMCBaseVdcAdaptDataSnd, 2, 1)            \
    X(CKRMCCreateViewerDataCtrlVdcAdaptDataRcv, CKRMCBaseVdcAdaptDataRcv, 2, 1)            \
    X(CKRMCGetHelpInfoVdcAdptDataSnd, CKRMCBaseVdcAdaptDataSnd, 2, 2)                      \
    X(CKRMCGetHelpInfoVdcAdptDataRcv, CKRMCBaseVdcAdaptDataRcv, 2, 2)                      \
    X(CKRMCGetPcViewerResourceVdcAdptDataSnd, CKRMCBaseVdcAdaptDataSnd, 2, 3)              \
    X(CKRMCGetPcViewerResourceVdcAdptDataRcv, CKRMCBaseVdcAdaptDataRcv, 2, 3)              \
    X(CKRMCGetHideAllDataVdcAdaptDataSnd, CKRMCBaseVdcAdaptDataSnd, 2, 4)                  \
    X(CKRMCGetHideAllDataVdcAdaptDataRcv, CKRMCBaseVdcAdaptDataRcv, 2, 4)                  \
    X(CKRMCGetSecurityLevelVdcAdaptDataSnd, CKRMCBaseVdcAdaptDataSnd, 2, 5)                \
    X(CKRMCGetSecurityLevelVdcAdaptDataRcv, CKRMCBaseVdcAdaptDataRcv, 2, 5)                \
    X(CKRMCGetImportFileInfoDsdiAdaptDataSnd, CKRMCBaseDsdiAdaptDataSnd, 8, 1)             \
    X(CKRMCGetImportFileInfoDsdiAdaptDataRcv, CKRMCBaseDsdiAdaptDataRcv, 8, 1)             \
    X(CKRMCGetImportStoredDataDsdiAdaptDataSnd, CKRMCBaseDsdiAdaptDataSnd, 8, 2)           \
    X(CKRMCGetImportStoredDataDsdiAdaptDataRcv, CKRMCBaseDsdiAdaptDataRcv, 8, 2)           \
    X(CKRMCCreateUnitConversionCommandUccAdaptDataSnd, CKRMCBaseUccAdaptDataSnd, 10, 1)    \
    X(CKRMCCreateUnitConversionCommandUccAdaptDataRcv, CKRMCBaseUccAdaptDataRcv, 10, 1)    \
    X(CKRMCGetUnitConversionInfoListUccAdaptDataSnd, CKRMCBaseUccAdaptDataSnd, 10, 2)      \
    X(CKRMCGetUnitConversionInfoListUccAdaptDataRcv, CKRMCBaseUccAdaptDataRcv, 10, 2)      \
    X(CKRMCSetUnitConversionInfoUccAdaptDataSnd, CKRMCBaseUccAdaptDataSnd, 10, 3)          \
    X(CKRMCSetUnitConversionInfoUccAdaptDataRcv, CKRMCBaseUccAdaptDataRcv, 10, 3)          \
    X(CKRMCGetUnitSettingGroupListUccAdaptDataSnd, CKRMCBaseUccAdaptDataSnd, 10, 4)        \
    X(CKRMCGetUnitSettingGroupListUccAdaptDataRcv, CKRMCBaseUccAdaptDataRcv, 10, 4)        \
    X(CKRMCGetUnitSettingGroupParamListUccAdaptDataSnd, CKRMCBaseUccAdaptDataSnd, 10, 5)   \
    X(CKRMCGetUnitSettingGroupParamListUccAdaptDataRcv, CKRMCBaseUccAdaptDataRcv, 10, 5)   \
    X(CKRMCCreateDiagWordsTableDwtAdaptDataSnd, CKRMCBaseDwtAdaptDataSnd, 14, 1)           \
    X(CKRMCCreateDiagWordsTableDwtAdaptDataRcv, CKRMCBaseDwtAdaptDataRcv, 14, 1)           \
    X(CKRMCGetTranslationStringDwtAdaptDataSnd, CKRMCBaseDwtAdaptDataSnd, 14, 2)           \
    X(CKRMCGetTranslationStringDwtAdaptDataRcv, CKRMCBaseDwtAdaptDataRcv, 14, 2)

// X(class, what it derives from): the 76 classes that have an exported list. A Record derives from the base of records;
// the others have no base, and only those with a VirtualDestructor have a virtual table.
#define KRM_ALL_LIST_ELEMENTS(X) \
    X(CKRMCAbsoluteTimeInfo, Record)                                \
    X(CKRMCCommandAbsFFDData, Record)                               \
    X(CKRMCCommandActiveTestData, Record)                           \
    X(CKRMCCommandButtonData, Record)                               \
    X(CKRMCCommandButtonVariableData, Record)                       \
    X(CKRMCCommandCanBusCategoryInfo, Plain)                        \
    X(CKRMCCommandCanBusCategoryListData, Plain)                    \
    X(CKRMCCommandCancelCodeCategoryInfo, Record)                   \
    X(CKRMCCommandCancelCodeData, Record)                           \
    X(CKRMCCommandCarTypeCategoryContentsData, Record)              \
    X(CKRMCCommandCarTypeCategoryData, Record)                      \
    X(CKRMCCommandCarTypeCategoryIdData, Plain)                     \
    X(CKRMCCommandCarTypeOptionContentsData, Record)                \
    X(CKRMCCommandCarTypeOptionData, Record)                        \
    X(CKRMCCommandConversionData, Record)                           \
    X(CKRMCCommandCustomListData, Plain)                            \
    X(CKRMCCommandCustomizeItemData, Plain)                         \
    X(CKRMCCommandCustomizeItemResult, Plain)                       \
    X(CKRMCCommandCustomizeItemSetData, Plain)                      \
    X(CKRMCCommandCustomizeItemValue, Plain)                        \
    X(CKRMCCommandCustomizeName, Plain)                             \
    X(CKRMCCommandDTCData, Record)                                  \
    X(CKRMCCommandDataLayout, Record)                               \
    X(CKRMCCommandDataMonitorIdData, Plain)                         \
    X(CKRMCCommandDiagDetailData, Record)                           \
    X(CKRMCCommandDiagMessage, Record)                              \
    X(CKRMCCommandDispData, Record)                                 \
    X(CKRMCCommandDispVariableData, Record)                         \
    X(CKRMCCommandDmErrorData, Plain)                               \
    X(CKRMCCommandDmReceiveData, Plain)                             \
    X(CKRMCCommandDtcFfdData, Record)                               \
    X(CKRMCCommandEcuData, Record)                                  \
    X(CKRMCCommandEcuFunctionData, Plain)                           \
    X(CKRMCCommandEcuGroupData, Record)                             \
    X(CKRMCCommandEventRecordDataItem, Record)                      \
    X(CKRMCCommandFFDData, Record)                                  \
    X(CKRMCCommandJ2534Config, Plain)                               \
    X(CKRMCCommandOnBoardMonitorInfo, Record)                       \
    X(CKRMCCommandOscData, Record)                                  \
    X(CKRMCCommandOscInfo, Record)                                  \
    X(CKRMCCommandOscTimeInfo, Record)                              \
    X(CKRMCCommandReadMemoryInfo, Record)                           \
    X(CKRMCCommandRecordDataItem, Record)                           \
    X(CKRMCCommandSpecialFunctionKeyInfo, Record)                   \
    X(CKRMCCommandStartDataMonitorData, Plain)                      \
    X(CKRMCCommandTranslationStringData, Plain)                     \
    X(CKRMCCommandTriggerData, Record)                              \
    X(CKRMCCommandUtilityData, Record)                              \
    X(CKRMCCommandVariantData, Record)                              \
    X(CKRMCCommandVehicleInfoData, Record)                          \
    X(CKRMCCommandVehicleInfoItem, Record)                          \
    X(CKRMCCommandVehicleInfoSelectData, Record)                    \
    X(CKRMCCommandVehicleSystemInfo, Record)                        \
    X(CKRMCCommandWordsData, Record)                                \
    X(CKRMCCommandWriteData, Record)                                \
    X(CKRMCDbHelpInfo, Plain)                                       \
    X(CKRMCDiagWordsTableCreationData, VirtualDestructor)           \
    X(CKRMCDiagWordsTableTranslationStringData, VirtualDestructor)  \
    X(CKRMCDrivingData, Plain)                                      \
    X(CKRMCEcuSpecificInfo, Record)                                 \
    X(CKRMCSpGroup, Plain)                                          \
    X(CKRMCStoredDataAbsFFD, Plain)                                 \
    X(CKRMCStoredDataFFD, Plain)                                    \
    X(CKRMCStoredDataFileHeader, Plain)                             \
    X(CKRMCStoredDataImportFileData, Plain)                         \
    X(CKRMCStoredDataImportFileInfo, Plain)                         \
    X(CKRMCStoredDataSystemData, Plain)                             \
    X(CKRMCStoredDataSystemInfo, Plain)                             \
    X(CKRMCStoredDataSystemTime, Plain)                             \
    X(CKRMCStoredDataTimestamp, Plain)                              \
    X(CKRMCStoredDataXPos, Plain)                                   \
    X(CKRMCUnitConvDataItemInfo, Plain)                             \
    X(CKRMCUnitConvDataSettingInfo, Plain)                          \
    X(CKRMCUnitConversionCreationData, Plain)                       \
    X(CKRMCUnitConversionData, Plain)                               \
    X(CKRMCWrapperCreationData, Plain)
// clang-format on

#endif  // KRM_TESTS_SUPPORT_ALL_CLASSES_H_
