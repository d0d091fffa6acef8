// Every message class, and a message made from its type, its ID and its direction.
//
// krm/messages/ has the messages and the records that they carry, a header for each function area: diag/ those of the
// diagnostic commands, auxiliary/ those of the other families. It includes krm/core/, krm/framework/ and the platform.
#ifndef KRM_MESSAGES_ALL_MESSAGES_H_
#define KRM_MESSAGES_ALL_MESSAGES_H_

#include <memory>

#include "krm/core/types.h"
#include "krm/framework/message.h"
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
#include "krm/messages/diag/event_records.h"
#include "krm/messages/diag/freeze_frames.h"
#include "krm/messages/diag/memory.h"
#include "krm/messages/diag/on_board_monitor.h"
#include "krm/messages/diag/oscilloscope.h"
#include "krm/messages/diag/special_operation.h"
#include "krm/messages/diag/translation.h"
#include "krm/messages/diag/trouble_codes.h"
#include "krm/messages/diag/utilities.h"
#include "krm/messages/diag/vehicle.h"
#include "krm/platform/platform.h"

namespace krm {

/// A list of classes, for what is to be done with each of them.
template <class... Classes>
struct ClassList {};

/// The request and the answer of every command, in the order of krm::kCommands.
using AllMessageClasses = ClassList<
    CKRMCGetDTCCmdAdaptDataSnd, CKRMCGetDTCCmdAdaptDataRcv, CKRMCClearDTCCmdAdaptDataSnd, CKRMCClearDTCCmdAdaptDataRcv,
    CKRMCGetFFDCmdAdaptDataSnd, CKRMCGetFFDCmdAdaptDataRcv, CKRMCIsMultiFFDCmdAdaptDataSnd,
    CKRMCIsMultiFFDCmdAdaptDataRcv, CKRMCVehicleDecisionCmdAdaptDataSnd, CKRMCVehicleDecisionCmdAdaptDataRcv,
    CKRMCGetGroupEcuListCmdAdaptDataSnd, CKRMCGetGroupEcuListCmdAdaptDataRcv, CKRMCGetEcuFunctionListCmdAdaptDataSnd,
    CKRMCGetEcuFunctionListCmdAdaptDataRcv, CKRMCEcuConnectCmdAdaptDataSnd, CKRMCEcuConnectCmdAdaptDataRcv,
    CKRMCGetDataMonitorListCmdAdaptDataSnd, CKRMCGetDataMonitorListCmdAdaptDataRcv,
    CKRMCStartDataMonitorCmdAdaptDataSnd, CKRMCStartDataMonitorCmdAdaptDataRcv, CKRMCGetDataMonitorValueCmdAdaptDataSnd,
    CKRMCGetDataMonitorValueCmdAdaptDataRcv, CKRMCGetTriggerItemCmdAdaptDataSnd, CKRMCGetTriggerItemCmdAdaptDataRcv,
    CKRMCCreateCommCtrlMainCmdAdaptDataSnd, CKRMCCreateCommCtrlMainCmdAdaptDataRcv, CKRMCGetDescriptionCmdAdaptDataSnd,
    CKRMCGetDescriptionCmdAdaptDataRcv, CKRMCGetUtilityListCmdAdaptDataSnd, CKRMCGetUtilityListCmdAdaptDataRcv,
    CKRMCGetJ2534ConfigParamCmdAdaptDataSnd, CKRMCGetJ2534ConfigParamCmdAdaptDataRcv, CKRMCGetCustomListCmdAdaptDataSnd,
    CKRMCGetCustomListCmdAdaptDataRcv, CKRMCStartActiveTestCmdAdaptDataSnd, CKRMCStartActiveTestCmdAdaptDataRcv,
    CKRMCGetActiveTestListCmdAdaptDataSnd, CKRMCGetActiveTestListCmdAdaptDataRcv,
    CKRMCCheckActiveTestAssumptionCmdAdaptDataSnd, CKRMCCheckActiveTestAssumptionCmdAdaptDataRcv,
    CKRMCSetActiveTestSessionCmdAdaptDataSnd, CKRMCSetActiveTestSessionCmdAdaptDataRcv,
    CKRMCGetDataMonitorErrorCmdAdaptDataSnd, CKRMCGetDataMonitorErrorCmdAdaptDataRcv,
    CKRMCInitMountEcuListCmdAdaptDataSnd, CKRMCInitMountEcuListCmdAdaptDataRcv, CKRMCReadVBattCmdAdaptDataSnd,
    CKRMCReadVBattCmdAdaptDataRcv, CKRMCGetDiagDetailCmdAdaptDataSnd, CKRMCGetDiagDetailCmdAdaptDataRcv,
    CKRMCIsAbsFFDCmdAdaptDataSnd, CKRMCIsAbsFFDCmdAdaptDataRcv, CKRMCSelectCarIdCmdAdaptDataSnd,
    CKRMCSelectCarIdCmdAdaptDataRcv, CKRMCGetDiagSessionCmdAdaptDataSnd, CKRMCGetDiagSessionCmdAdaptDataRcv,
    CKRMCSetDiagSessionCmdAdaptDataSnd, CKRMCSetDiagSessionCmdAdaptDataRcv, CKRMCGetTranslationStringCmdAdaptDataSnd,
    CKRMCGetTranslationStringCmdAdaptDataRcv, CKRMCGetCanBusCategoryListCmdAdaptDataSnd,
    CKRMCGetCanBusCategoryListCmdAdaptDataRcv, CKRMCGetCanBusCheckListCmdAdaptDataSnd,
    CKRMCGetCanBusCheckListCmdAdaptDataRcv, CKRMCGetCustomizeSupportListCmdAdaptDataSnd,
    CKRMCGetCustomizeSupportListCmdAdaptDataRcv, CKRMCGetCustomizeItemListCmdAdaptDataSnd,
    CKRMCGetCustomizeItemListCmdAdaptDataRcv, CKRMCSetCustomizeItemCmdAdaptDataSnd,
    CKRMCSetCustomizeItemCmdAdaptDataRcv, CKRMCGetCurrentTimeInfoCmdAdaptDataSnd,
    CKRMCGetCurrentTimeInfoCmdAdaptDataRcv, CKRMCGetAbsoluteTimeInfoCmdAdaptDataSnd,
    CKRMCGetAbsoluteTimeInfoCmdAdaptDataRcv, CKRMCGetSpOperateCtrlRecordGroupCmdAdaptDataSnd,
    CKRMCGetSpOperateCtrlRecordGroupCmdAdaptDataRcv, CKRMCGetSpOperateCtrlRecordCmdAdaptDataSnd,
    CKRMCGetSpOperateCtrlRecordCmdAdaptDataRcv, CKRMCGetCustomizeDestinationCmdAdaptDataSnd,
    CKRMCGetCustomizeDestinationCmdAdaptDataRcv, CKRMCSetCustomizeDestinationCmdAdaptDataSnd,
    CKRMCSetCustomizeDestinationCmdAdaptDataRcv, CKRMCOnBoardMonitorCmdAdaptDataSnd, CKRMCOnBoardMonitorCmdAdaptDataRcv,
    CKRMCGetCancelCodeCategoryListCmdAdaptDataSnd, CKRMCGetCancelCodeCategoryListCmdAdaptDataRcv,
    CKRMCGetCancelCodeCmdAdaptDataSnd, CKRMCGetCancelCodeCmdAdaptDataRcv, CKRMCGetVehicleInfoCmdAdaptDataSnd,
    CKRMCGetVehicleInfoCmdAdaptDataRcv, CKRMCGetAllDtcSystemListCmdAdaptDataSnd,
    CKRMCGetAllDtcSystemListCmdAdaptDataRcv, CKRMCGetVinCodeCmdAdaptDataSnd, CKRMCGetVinCodeCmdAdaptDataRcv,
    CKRMCGetCarCategoryVinCmdAdaptDataSnd, CKRMCGetCarCategoryVinCmdAdaptDataRcv,
    CKRMCGetEventRecordDataListCmdAdaptDataSnd, CKRMCGetEventRecordDataListCmdAdaptDataRcv,
    CKRMCGetRecordDataListCmdAdaptDataSnd, CKRMCGetRecordDataListCmdAdaptDataRcv,
    CKRMCGetEventRecordDataCmdAdaptDataSnd, CKRMCGetEventRecordDataCmdAdaptDataRcv,
    CKRMCGetVehicleSystemInfoCmdAdaptDataSnd, CKRMCGetVehicleSystemInfoCmdAdaptDataRcv,
    CKRMCGetOscilloscopeListCmdAdaptDataSnd, CKRMCGetOscilloscopeListCmdAdaptDataRcv, CKRMCWriteDataItemCmdAdaptDataSnd,
    CKRMCWriteDataItemCmdAdaptDataRcv, CKRMCGetCurrentDataValueCmdAdaptDataSnd, CKRMCGetCurrentDataValueCmdAdaptDataRcv,
    CKRMCGetEOPInspectionResultMessageCmdAdaptDataSnd, CKRMCGetEOPInspectionResultMessageCmdAdaptDataRcv,
    CKRMCGetSpecialFunctionKeyListCmdAdaptDataSnd, CKRMCGetSpecialFunctionKeyListCmdAdaptDataRcv,
    CKRMCGetHexModeInfoCmdAdaptDataSnd, CKRMCGetHexModeInfoCmdAdaptDataRcv, CKRMCReadMemoryCmdAdaptDataSnd,
    CKRMCReadMemoryCmdAdaptDataRcv, CKRMCWriteMemoryCmdAdaptDataSnd, CKRMCWriteMemoryCmdAdaptDataRcv,
    CKRMCSelectVehicleInfoCmdAdaptDataSnd, CKRMCSelectVehicleInfoCmdAdaptDataRcv, CKRMCGetDtcFfdCmdAdaptDataSnd,
    CKRMCGetDtcFfdCmdAdaptDataRcv, CKRMCGetDataMonitorReceiveInfoCmdAdaptDataSnd,
    CKRMCGetDataMonitorReceiveInfoCmdAdaptDataRcv, CKRMCOnBoardMonitorListCmdAdaptDataSnd,
    CKRMCOnBoardMonitorListCmdAdaptDataRcv, CKRMCGetUnitInfoCmdAdaptDataSnd, CKRMCGetUnitInfoCmdAdaptDataRcv,
    CKRMCCreateViewerDataCtrlVdcAdaptDataSnd, CKRMCCreateViewerDataCtrlVdcAdaptDataRcv, CKRMCGetHelpInfoVdcAdptDataSnd,
    CKRMCGetHelpInfoVdcAdptDataRcv, CKRMCGetPcViewerResourceVdcAdptDataSnd, CKRMCGetPcViewerResourceVdcAdptDataRcv,
    CKRMCGetHideAllDataVdcAdaptDataSnd, CKRMCGetHideAllDataVdcAdaptDataRcv, CKRMCGetSecurityLevelVdcAdaptDataSnd,
    CKRMCGetSecurityLevelVdcAdaptDataRcv, CKRMCGetImportFileInfoDsdiAdaptDataSnd,
    CKRMCGetImportFileInfoDsdiAdaptDataRcv, CKRMCGetImportStoredDataDsdiAdaptDataSnd,
    CKRMCGetImportStoredDataDsdiAdaptDataRcv, CKRMCCreateUnitConversionCommandUccAdaptDataSnd,
    CKRMCCreateUnitConversionCommandUccAdaptDataRcv, CKRMCGetUnitConversionInfoListUccAdaptDataSnd,
    CKRMCGetUnitConversionInfoListUccAdaptDataRcv, CKRMCSetUnitConversionInfoUccAdaptDataSnd,
    CKRMCSetUnitConversionInfoUccAdaptDataRcv, CKRMCGetUnitSettingGroupListUccAdaptDataSnd,
    CKRMCGetUnitSettingGroupListUccAdaptDataRcv, CKRMCGetUnitSettingGroupParamListUccAdaptDataSnd,
    CKRMCGetUnitSettingGroupParamListUccAdaptDataRcv, CKRMCCreateDiagWordsTableDwtAdaptDataSnd,
    CKRMCCreateDiagWordsTableDwtAdaptDataRcv, CKRMCGetTranslationStringDwtAdaptDataSnd,
    CKRMCGetTranslationStringDwtAdaptDataRcv>;

/// A new message of this class, as its default constructor leaves it; null where no message has this type and ID. A receiver
/// that learns type, ID and direction before the content makes the object to fill with it. Throws std::bad_alloc when memory
/// runs out.
KRM_API std::unique_ptr<CKRMBaseAdaptationData> NewMessage(krm_ulong commandType, krm_ulong commandId,
                                                           Direction direction);

}  // namespace krm

#endif  // KRM_MESSAGES_ALL_MESSAGES_H_
