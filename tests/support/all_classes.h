// The one table in the tests of what there is: every message with its base, type, ID and command, and every class that
// lists hold. Tests that must leave none out walk it.
//
// Written down here and not taken from the library, whose table of commands and list of messages are checked against it.
// A list is a macro over X, so that one line gives a test the class and its name, and it includes nothing: a test includes
// what it needs of the classes.
#ifndef KRM_TESTS_SUPPORT_ALL_CLASSES_H_
#define KRM_TESTS_SUPPORT_ALL_CLASSES_H_

// X(class, its request or answer base, command type, command ID, command): the 79 commands' requests and answers.
// clang-format off
#define KRM_ALL_MESSAGES(X) \
    X(CKRMCGetDTCCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd, 1, 2, "GetDTC")                                                \
    X(CKRMCGetDTCCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv, 1, 2, "GetDTC")                                                \
    X(CKRMCClearDTCCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd, 1, 5, "ClearDTC")                                            \
    X(CKRMCClearDTCCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv, 1, 5, "ClearDTC")                                            \
    X(CKRMCGetFFDCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd, 1, 6, "GetFFD")                                                \
    X(CKRMCGetFFDCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv, 1, 6, "GetFFD")                                                \
    X(CKRMCIsMultiFFDCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd, 1, 9, "IsMultiFFD")                                        \
    X(CKRMCIsMultiFFDCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv, 1, 9, "IsMultiFFD")                                        \
    X(CKRMCVehicleDecisionCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd, 1, 10, "VehicleDecision")                             \
    X(CKRMCVehicleDecisionCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv, 1, 10, "VehicleDecision")                             \
    X(CKRMCGetGroupEcuListCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd, 1, 12, "GetGroupEcuList")                             \
    X(CKRMCGetGroupEcuListCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv, 1, 12, "GetGroupEcuList")                             \
    X(CKRMCGetEcuFunctionListCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd, 1, 13, "GetEcuFunctionList")                       \
    X(CKRMCGetEcuFunctionListCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv, 1, 13, "GetEcuFunctionList")                       \
    X(CKRMCEcuConnectCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd, 1, 14, "EcuConnect")                                       \
    X(CKRMCEcuConnectCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv, 1, 14, "EcuConnect")                                       \
    X(CKRMCGetDataMonitorListCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd, 1, 17, "GetDataMonitorList")                       \
    X(CKRMCGetDataMonitorListCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv, 1, 17, "GetDataMonitorList")                       \
    X(CKRMCStartDataMonitorCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd, 1, 20, "StartDataMonitor")                           \
    X(CKRMCStartDataMonitorCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv, 1, 20, "StartDataMonitor")                           \
    X(CKRMCGetDataMonitorValueCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd, 1, 21, "GetDataMonitorValue")                     \
    X(CKRMCGetDataMonitorValueCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv, 1, 21, "GetDataMonitorValue")                     \
    X(CKRMCGetTriggerItemCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd, 1, 23, "GetTriggerItem")                               \
    X(CKRMCGetTriggerItemCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv, 1, 23, "GetTriggerItem")                               \
    X(CKRMCCreateCommCtrlMainCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd, 1, 24, "CreateCommCtrlMain")                       \
    X(CKRMCCreateCommCtrlMainCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv, 1, 24, "CreateCommCtrlMain")                       \
    X(CKRMCGetDescriptionCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd, 1, 25, "GetDescription")                               \
    X(CKRMCGetDescriptionCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv, 1, 25, "GetDescription")                               \
    X(CKRMCGetUtilityListCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd, 1, 26, "GetUtilityList")                               \
    X(CKRMCGetUtilityListCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv, 1, 26, "GetUtilityList")                               \
    X(CKRMCGetJ2534ConfigParamCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd, 1, 27, "GetJ2534ConfigParam")                     \
    X(CKRMCGetJ2534ConfigParamCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv, 1, 27, "GetJ2534ConfigParam")                     \
    X(CKRMCGetCustomListCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd, 1, 28, "GetCustomList")                                 \
    X(CKRMCGetCustomListCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv, 1, 28, "GetCustomList")                                 \
    X(CKRMCStartActiveTestCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd, 1, 32, "StartActiveTest")                             \
    X(CKRMCStartActiveTestCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv, 1, 32, "StartActiveTest")                             \
    X(CKRMCGetActiveTestListCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd, 1, 34, "GetActiveTestList")                         \
    X(CKRMCGetActiveTestListCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv, 1, 34, "GetActiveTestList")                         \
    X(CKRMCCheckActiveTestAssumptionCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd, 1, 37, "CheckActiveTestAssumption")         \
    X(CKRMCCheckActiveTestAssumptionCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv, 1, 37, "CheckActiveTestAssumption")         \
    X(CKRMCSetActiveTestSessionCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd, 1, 38, "SetActiveTestSession")                   \
    X(CKRMCSetActiveTestSessionCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv, 1, 38, "SetActiveTestSession")                   \
    X(CKRMCGetDataMonitorErrorCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd, 1, 39, "GetDataMonitorError")                     \
    X(CKRMCGetDataMonitorErrorCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv, 1, 39, "GetDataMonitorError")                     \
    X(CKRMCInitMountEcuListCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd, 1, 40, "InitMountEcuList")                           \
    X(CKRMCInitMountEcuListCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv, 1, 40, "InitMountEcuList")                           \
    X(CKRMCReadVBattCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd, 1, 43, "ReadVBatt")                                         \
    X(CKRMCReadVBattCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv, 1, 43, "ReadVBatt")                                         \
    X(CKRMCGetDiagDetailCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd, 1, 44, "GetDiagDetail")                                 \
    X(CKRMCGetDiagDetailCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv, 1, 44, "GetDiagDetail")                                 \
    X(CKRMCIsAbsFFDCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd, 1, 45, "IsAbsFFD")                                           \
    X(CKRMCIsAbsFFDCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv, 1, 45, "IsAbsFFD")                                           \
    X(CKRMCSelectCarIdCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd, 1, 46, "SelectCarId")                                     \
    X(CKRMCSelectCarIdCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv, 1, 46, "SelectCarId")                                     \
    X(CKRMCGetDiagSessionCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd, 1, 47, "GetDiagSession")                               \
    X(CKRMCGetDiagSessionCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv, 1, 47, "GetDiagSession")                               \
    X(CKRMCSetDiagSessionCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd, 1, 48, "SetDiagSession")                               \
    X(CKRMCSetDiagSessionCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv, 1, 48, "SetDiagSession")                               \
    X(CKRMCGetTranslationStringCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd, 1, 55, "GetTranslationString")                   \
    X(CKRMCGetTranslationStringCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv, 1, 55, "GetTranslationString")                   \
    X(CKRMCGetCanBusCategoryListCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd, 1, 56, "GetCanBusCategoryList")                 \
    X(CKRMCGetCanBusCategoryListCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv, 1, 56, "GetCanBusCategoryList")                 \
    X(CKRMCGetCanBusCheckListCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd, 1, 57, "GetCanBusCheckList")                       \
    X(CKRMCGetCanBusCheckListCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv, 1, 57, "GetCanBusCheckList")                       \
    X(CKRMCGetCustomizeSupportListCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd, 1, 59, "GetCustomizeSupportList")             \
    X(CKRMCGetCustomizeSupportListCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv, 1, 59, "GetCustomizeSupportList")             \
    X(CKRMCGetCustomizeItemListCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd, 1, 60, "GetCustomizeItemList")                   \
    X(CKRMCGetCustomizeItemListCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv, 1, 60, "GetCustomizeItemList")                   \
    X(CKRMCSetCustomizeItemCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd, 1, 61, "SetCustomizeItem")                           \
    X(CKRMCSetCustomizeItemCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv, 1, 61, "SetCustomizeItem")                           \
    X(CKRMCGetCurrentTimeInfoCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd, 1, 62, "GetCurrentTimeInfo")                       \
    X(CKRMCGetCurrentTimeInfoCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv, 1, 62, "GetCurrentTimeInfo")                       \
    X(CKRMCGetAbsoluteTimeInfoCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd, 1, 64, "GetAbsoluteTimeInfo")                     \
    X(CKRMCGetAbsoluteTimeInfoCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv, 1, 64, "GetAbsoluteTimeInfo")                     \
    X(CKRMCGetSpOperateCtrlRecordGroupCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd, 1, 66, "GetSpOperateCtrlRecordGroup")     \
    X(CKRMCGetSpOperateCtrlRecordGroupCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv, 1, 66, "GetSpOperateCtrlRecordGroup")     \
    X(CKRMCGetSpOperateCtrlRecordCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd, 1, 67, "GetSpOperateCtrlRecord")               \
    X(CKRMCGetSpOperateCtrlRecordCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv, 1, 67, "GetSpOperateCtrlRecord")               \
    X(CKRMCGetCustomizeDestinationCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd, 1, 69, "GetCustomizeDestination")             \
    X(CKRMCGetCustomizeDestinationCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv, 1, 69, "GetCustomizeDestination")             \
    X(CKRMCSetCustomizeDestinationCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd, 1, 70, "SetCustomizeDestination")             \
    X(CKRMCSetCustomizeDestinationCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv, 1, 70, "SetCustomizeDestination")             \
    X(CKRMCOnBoardMonitorCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd, 1, 74, "OnBoardMonitor")                               \
    X(CKRMCOnBoardMonitorCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv, 1, 74, "OnBoardMonitor")                               \
    X(CKRMCGetCancelCodeCategoryListCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd, 1, 75, "GetCancelCodeCategoryList")         \
    X(CKRMCGetCancelCodeCategoryListCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv, 1, 75, "GetCancelCodeCategoryList")         \
    X(CKRMCGetCancelCodeCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd, 1, 76, "GetCancelCode")                                 \
    X(CKRMCGetCancelCodeCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv, 1, 76, "GetCancelCode")                                 \
    X(CKRMCGetVehicleInfoCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd, 1, 77, "GetVehicleInfo")                               \
    X(CKRMCGetVehicleInfoCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv, 1, 77, "GetVehicleInfo")                               \
    X(CKRMCGetAllDtcSystemListCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd, 1, 78, "GetAllDtcSystemList")                     \
    X(CKRMCGetAllDtcSystemListCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv, 1, 78, "GetAllDtcSystemList")                     \
    X(CKRMCGetVinCodeCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd, 1, 79, "GetVinCode")                                       \
    X(CKRMCGetVinCodeCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv, 1, 79, "GetVinCode")                                       \
    X(CKRMCGetCarCategoryVinCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd, 1, 80, "GetCarCategoryVin")                         \
    X(CKRMCGetCarCategoryVinCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv, 1, 80, "GetCarCategoryVin")                         \
    X(CKRMCGetEventRecordDataListCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd, 1, 81, "GetEventRecordDataList")               \
    X(CKRMCGetEventRecordDataListCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv, 1, 81, "GetEventRecordDataList")               \
    X(CKRMCGetRecordDataListCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd, 1, 82, "GetRecordDataList")                         \
    X(CKRMCGetRecordDataListCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv, 1, 82, "GetRecordDataList")                         \
    X(CKRMCGetEventRecordDataCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd, 1, 83, "GetEventRecordData")                       \
    X(CKRMCGetEventRecordDataCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv, 1, 83, "GetEventRecordData")                       \
    X(CKRMCGetVehicleSystemInfoCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd, 1, 84, "GetVehicleSystemInfo")                   \
    X(CKRMCGetVehicleSystemInfoCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv, 1, 84, "GetVehicleSystemInfo")                   \
    X(CKRMCGetOscilloscopeListCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd, 1, 88, "GetOscilloscopeList")                     \
    X(CKRMCGetOscilloscopeListCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv, 1, 88, "GetOscilloscopeList")                     \
    X(CKRMCWriteDataItemCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd, 1, 91, "WriteDataItem")                                 \
    X(CKRMCWriteDataItemCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv, 1, 91, "WriteDataItem")                                 \
    X(CKRMCGetCurrentDataValueCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd, 1, 92, "GetCurrentDataValue")                     \
    X(CKRMCGetCurrentDataValueCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv, 1, 92, "GetCurrentDataValue")                     \
    X(CKRMCGetEOPInspectionResultMessageCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd, 1, 93, "GetEOPInspectionResultMessage") \
    X(CKRMCGetEOPInspectionResultMessageCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv, 1, 93, "GetEOPInspectionResultMessage") \
    X(CKRMCGetSpecialFunctionKeyListCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd, 1, 94, "GetSpecialFunctionKeyList")         \
    X(CKRMCGetSpecialFunctionKeyListCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv, 1, 94, "GetSpecialFunctionKeyList")         \
    X(CKRMCGetHexModeInfoCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd, 1, 101, "GetHexModeInfo")                              \
    X(CKRMCGetHexModeInfoCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv, 1, 101, "GetHexModeInfo")                              \
    X(CKRMCReadMemoryCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd, 1, 102, "ReadMemory")                                      \
    X(CKRMCReadMemoryCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv, 1, 102, "ReadMemory")                                      \
    X(CKRMCWriteMemoryCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd, 1, 103, "WriteMemory")                                    \
    X(CKRMCWriteMemoryCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv, 1, 103, "WriteMemory")                                    \
    X(CKRMCSelectVehicleInfoCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd, 1, 107, "SelectVehicleInfo")                        \
    X(CKRMCSelectVehicleInfoCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv, 1, 107, "SelectVehicleInfo")                        \
    X(CKRMCGetDtcFfdCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd, 1, 109, "GetDtcFfd")                                        \
    X(CKRMCGetDtcFfdCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv, 1, 109, "GetDtcFfd")                                        \
    X(CKRMCGetDataMonitorReceiveInfoCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd, 1, 111, "GetDataMonitorReceiveInfo")        \
    X(CKRMCGetDataMonitorReceiveInfoCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv, 1, 111, "GetDataMonitorReceiveInfo")        \
    X(CKRMCOnBoardMonitorListCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd, 1, 119, "OnBoardMonitorList")                      \
    X(CKRMCOnBoardMonitorListCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv, 1, 119, "OnBoardMonitorList")                      \
    X(CKRMCGetUnitInfoCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd, 1, 127, "GetUnitInfo")                                    \
    X(CKRMCGetUnitInfoCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv, 1, 127, "GetUnitInfo")                                    \
    X(CKRMCCreateViewerDataCtrlVdcAdaptDataSnd, CKRMCBaseVdcAdaptDataSnd, 2, 1, "CreateViewerDataCtrl")                    \
    X(CKRMCCreateViewerDataCtrlVdcAdaptDataRcv, CKRMCBaseVdcAdaptDataRcv, 2, 1, "CreateViewerDataCtrl")                    \
    X(CKRMCGetHelpInfoVdcAdptDataSnd, CKRMCBaseVdcAdaptDataSnd, 2, 2, "GetHelpInfo")                                       \
    X(CKRMCGetHelpInfoVdcAdptDataRcv, CKRMCBaseVdcAdaptDataRcv, 2, 2, "GetHelpInfo")                                       \
    X(CKRMCGetPcViewerResourceVdcAdptDataSnd, CKRMCBaseVdcAdaptDataSnd, 2, 3, "GetPcViewerResource")                       \
    X(CKRMCGetPcViewerResourceVdcAdptDataRcv, CKRMCBaseVdcAdaptDataRcv, 2, 3, "GetPcViewerResource")                       \
    X(CKRMCGetHideAllDataVdcAdaptDataSnd, CKRMCBaseVdcAdaptDataSnd, 2, 4, "GetHideAllData")                                \
    X(CKRMCGetHideAllDataVdcAdaptDataRcv, CKRMCBaseVdcAdaptDataRcv, 2, 4, "GetHideAllData")                                \
    X(CKRMCGetSecurityLevelVdcAdaptDataSnd, CKRMCBaseVdcAdaptDataSnd, 2, 5, "GetSecurityLevel")                            \
    X(CKRMCGetSecurityLevelVdcAdaptDataRcv, CKRMCBaseVdcAdaptDataRcv, 2, 5, "GetSecurityLevel")                            \
    X(CKRMCGetImportFileInfoDsdiAdaptDataSnd, CKRMCBaseDsdiAdaptDataSnd, 8, 1, "GetImportFileInfo")                        \
    X(CKRMCGetImportFileInfoDsdiAdaptDataRcv, CKRMCBaseDsdiAdaptDataRcv, 8, 1, "GetImportFileInfo")                        \
    X(CKRMCGetImportStoredDataDsdiAdaptDataSnd, CKRMCBaseDsdiAdaptDataSnd, 8, 2, "GetImportStoredData")                    \
    X(CKRMCGetImportStoredDataDsdiAdaptDataRcv, CKRMCBaseDsdiAdaptDataRcv, 8, 2, "GetImportStoredData")                    \
    X(CKRMCCreateUnitConversionCommandUccAdaptDataSnd, CKRMCBaseUccAdaptDataSnd, 10, 1, "CreateUnitConversionCommand")     \
    X(CKRMCCreateUnitConversionCommandUccAdaptDataRcv, CKRMCBaseUccAdaptDataRcv, 10, 1, "CreateUnitConversionCommand")     \
    X(CKRMCGetUnitConversionInfoListUccAdaptDataSnd, CKRMCBaseUccAdaptDataSnd, 10, 2, "GetUnitConversionInfoList")         \
    X(CKRMCGetUnitConversionInfoListUccAdaptDataRcv, CKRMCBaseUccAdaptDataRcv, 10, 2, "GetUnitConversionInfoList")         \
    X(CKRMCSetUnitConversionInfoUccAdaptDataSnd, CKRMCBaseUccAdaptDataSnd, 10, 3, "SetUnitConversionInfo")                 \
    X(CKRMCSetUnitConversionInfoUccAdaptDataRcv, CKRMCBaseUccAdaptDataRcv, 10, 3, "SetUnitConversionInfo")                 \
    X(CKRMCGetUnitSettingGroupListUccAdaptDataSnd, CKRMCBaseUccAdaptDataSnd, 10, 4, "GetUnitSettingGroupList")             \
    X(CKRMCGetUnitSettingGroupListUccAdaptDataRcv, CKRMCBaseUccAdaptDataRcv, 10, 4, "GetUnitSettingGroupList")             \
    X(CKRMCGetUnitSettingGroupParamListUccAdaptDataSnd, CKRMCBaseUccAdaptDataSnd, 10, 5, "GetUnitSettingGroupParamList")   \
    X(CKRMCGetUnitSettingGroupParamListUccAdaptDataRcv, CKRMCBaseUccAdaptDataRcv, 10, 5, "GetUnitSettingGroupParamList")   \
    X(CKRMCCreateDiagWordsTableDwtAdaptDataSnd, CKRMCBaseDwtAdaptDataSnd, 14, 1, "CreateDiagWordsTable")                   \
    X(CKRMCCreateDiagWordsTableDwtAdaptDataRcv, CKRMCBaseDwtAdaptDataRcv, 14, 1, "CreateDiagWordsTable")                   \
    X(CKRMCGetTranslationStringDwtAdaptDataSnd, CKRMCBaseDwtAdaptDataSnd, 14, 2, "GetTranslationString")                   \
    X(CKRMCGetTranslationStringDwtAdaptDataRcv, CKRMCBaseDwtAdaptDataRcv, 14, 2, "GetTranslationString")

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
