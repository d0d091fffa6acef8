// Which vehicle this is and who answers in it: car type, VIN and vehicle information, ECUs and their functions, the
// communication controller, the diagnostic session.
//
// Records come first, then the messages by command ID. The library passes all codes (connection status, phase type,
// display type, session type, status, variant type) through unchanged; their meaning is the engine's.
#ifndef KRM_MESSAGES_DIAG_VEHICLE_H_
#define KRM_MESSAGES_DIAG_VEHICLE_H_

#include "krm/core/list.h"
#include "krm/framework/message.h"
#include "krm/framework/record.h"
#include "krm/messages/diag/trouble_codes.h"
#include "krm/messages/diag/words.h"
#include "krm/platform/platform.h"

/// One choice already made: a car type category and the contents chosen in it. The message that holds it writes its log
/// lines.
class KRM_API CKRMCCommandCarTypeCategoryIdData {
public:
    void Clear() { *this = CKRMCCommandCarTypeCategoryIdData(); }

    unsigned short m_ushCarTypeCategoryId = 0;          ///< category, such as model or engine
    unsigned short m_ushCarTypeCategoryContentsId = 0;  ///< the contents chosen in it
};
extern template class CKRMList<CKRMCCommandCarTypeCategoryIdData>;

/// One possible choice in a car type category.
class KRM_API CKRMCCommandCarTypeCategoryContentsData : public RecordOf<CKRMCCommandCarTypeCategoryContentsData> {
public:
    ~CKRMCCommandCarTypeCategoryContentsData() override;
    void Dump(const krm::RecordLines& line);

    unsigned short m_ushSortIndex = 0;  ///< where the choice stands in the list that the user sees
    unsigned short m_ushCarTypeCategoryContentsId = 0;
    krm_ulong m_ulCarTypeCategoryContentsNameId = 0;  ///< words ID of the name
    CKRMString m_strCarTypeCategoryContentsName;
};
extern template class CKRMList<CKRMCCommandCarTypeCategoryContentsData>;

/// A car type category with all its choices.
class KRM_API CKRMCCommandCarTypeCategoryData : public RecordOf<CKRMCCommandCarTypeCategoryData> {
public:
    ~CKRMCCommandCarTypeCategoryData() override;
    void Dump(const krm::RecordLines& line);

    unsigned short m_ushCarTypeCategoryId = 0;
    CKRMList<CKRMCCommandCarTypeCategoryContentsData> m_cCarTypeOptionContentsList;  ///< the choices
};
extern template class CKRMList<CKRMCCommandCarTypeCategoryData>;

/// One possible choice of a car type option.
class KRM_API CKRMCCommandCarTypeOptionContentsData : public RecordOf<CKRMCCommandCarTypeOptionContentsData> {
public:
    ~CKRMCCommandCarTypeOptionContentsData() override;
    void Dump(const krm::RecordLines& line);

    unsigned short m_ushCarTypeOptionContentsId = 0;
    krm_ulong m_ulCarTypeOptionContentsNameId = 0;  ///< words ID of the name
    CKRMString m_strCarTypeOptionContentsName;
};
extern template class CKRMList<CKRMCCommandCarTypeOptionContentsData>;

/// A car type option with all its choices.
class KRM_API CKRMCCommandCarTypeOptionData : public RecordOf<CKRMCCommandCarTypeOptionData> {
public:
    ~CKRMCCommandCarTypeOptionData() override;
    void Dump(const krm::RecordLines& line);

    unsigned short m_ushCarTypeOptionIndex = 0;
    CKRMList<CKRMCCommandCarTypeOptionContentsData> Data;  ///< the choices
};
extern template class CKRMList<CKRMCCommandCarTypeOptionData>;

/// A value that is a number or words; the type says which.
class KRM_API CKRMCCommandVariantData : public RecordOf<CKRMCCommandVariantData> {
public:
    ~CKRMCCommandVariantData() override;
    void Dump(const krm::RecordLines& line);

    krm_ulong m_ulVarType = 0;        ///< kind of value
    krm_ulong m_ulValue = 0;          ///< the number; logged both signed and unsigned
    CKRMCCommandWordsData m_cString;  ///< the words
};
extern template class CKRMList<CKRMCCommandVariantData>;

/// One ECU of the vehicle: how it is reached, and what it is called.
class KRM_API CKRMCCommandEcuData : public RecordOf<CKRMCCommandEcuData> {
public:
    ~CKRMCCommandEcuData() override;
    void Dump(const krm::RecordLines& line);

    unsigned short m_ushEcuConnectionStatus = 0;
    krm_ulong m_ulEcuId = 0;
    unsigned short m_ushBusId = 0;  ///< bus that the ECU is on
    unsigned char m_uchPhaseType = 0;
    krm_ulong m_ulEcuNameId = 0;  ///< words ID of the name
    CKRMString m_strEcuName;
    CKRMString m_strEcuShortName;
};
extern template class CKRMList<CKRMCCommandEcuData>;

/// A group of ECUs, such as power train or body.
class KRM_API CKRMCCommandEcuGroupData : public RecordOf<CKRMCCommandEcuGroupData> {
public:
    ~CKRMCCommandEcuGroupData() override;
    void Dump(const krm::RecordLines& line);

    unsigned short m_ushGroupId = 0;
    krm_ulong m_ulGroupNameId = 0;  ///< words ID of the name
    CKRMString m_strGroupName;
    CKRMList<CKRMCCommandEcuData> m_cEcuList;
};
extern template class CKRMList<CKRMCCommandEcuGroupData>;

/// One diagnostic function that an ECU offers. The message that holds it writes its log lines.
class KRM_API CKRMCCommandEcuFunctionData {
public:
    void Clear() { *this = CKRMCCommandEcuFunctionData(); }

    unsigned short m_ushId = 0;
    CKRMList<unsigned short> DetailList;  ///< IDs of the function's details
};
extern template class CKRMList<CKRMCCommandEcuFunctionData>;

/// One named piece of vehicle information with its values.
class KRM_API CKRMCCommandVehicleInfoItem : public RecordOf<CKRMCCommandVehicleInfoItem> {
public:
    ~CKRMCCommandVehicleInfoItem() override;
    void Dump(const krm::RecordLines& line);

    krm_ulong m_ulNameId = 0;  ///< words ID of the name
    CKRMString m_strName;
    unsigned char m_uchDispType = 0;                   ///< how the item is displayed
    CKRMList<CKRMCCommandFFDData> m_cVehicleInfoList;  ///< its values, in the form of freeze-frame items
};
extern template class CKRMList<CKRMCCommandVehicleInfoItem>;

/// One piece of vehicle information that has been chosen, or can be.
class KRM_API CKRMCCommandVehicleInfoData : public RecordOf<CKRMCCommandVehicleInfoData> {
public:
    ~CKRMCCommandVehicleInfoData() override;
    void Dump(const krm::RecordLines& line);

    unsigned short m_ushVehicleInfoId = 0;  ///< kind of information
    krm_ulong m_ulVehicleInfo = 0;          ///< its value
    CKRMString m_strVehicleInfo;            ///< the value's text
};
extern template class CKRMList<CKRMCCommandVehicleInfoData>;

/// A kind of vehicle information that is still open, with what it can be.
class KRM_API CKRMCCommandVehicleInfoSelectData : public RecordOf<CKRMCCommandVehicleInfoSelectData> {
public:
    ~CKRMCCommandVehicleInfoSelectData() override;
    void Dump(const krm::RecordLines& line);

    unsigned short m_ushVehicleInfoId = 0;                             ///< kind of information
    CKRMList<CKRMCCommandVehicleInfoData> m_cVehicleInfoContentsList;  ///< the choices
};
extern template class CKRMList<CKRMCCommandVehicleInfoSelectData>;

/// One piece of information about a system of the vehicle.
class KRM_API CKRMCCommandVehicleSystemInfo : public RecordOf<CKRMCCommandVehicleSystemInfo> {
public:
    ~CKRMCCommandVehicleSystemInfo() override;
    void Dump(const krm::RecordLines& line);

    krm_ulong m_ulInfoId = 0;
    CKRMList<CKRMCCommandVariantData> m_cInfoData;  ///< its values
};
extern template class CKRMList<CKRMCCommandVehicleSystemInfo>;

/// One configuration parameter of SAE J2534 and its value. The message that holds it writes its log lines.
class KRM_API CKRMCCommandJ2534Config {
public:
    void Clear() { *this = CKRMCCommandJ2534Config(); }

    krm_ulong m_ulParameter = 0;
    krm_ulong m_ulValue = 0;
};
extern template class CKRMList<CKRMCCommandJ2534Config>;

/// One identifier that the communication controller is created with. The message that holds it writes its log lines.
class KRM_API CKRMCWrapperCreationData {
public:
    void Clear() { *this = CKRMCWrapperCreationData(); }

    unsigned short m_ushIdType = 0;  ///< kind of identifier
    CKRMString m_strValue;           ///< its value
};
extern template class CKRMList<CKRMCWrapperCreationData>;

/// VehicleDecision asks what is still to choose, given the choices made so far.
class KRM_API CKRMCVehicleDecisionCmdAdaptDataSnd
    : public MessageOf<CKRMCVehicleDecisionCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd,
                       krm::CommandId(krm::CommandFamily::Diagnostic, "VehicleDecision")> {
public:
    krm_long ErrWriteOperationLog() override;

    unsigned short m_ushDivisionId = 0;                ///< division that the vehicle belongs to
    CKRMList<CKRMCCommandCarTypeCategoryIdData> Data;  ///< the choices made
    unsigned short m_ushCarTypeOptionIndex = 0;
    unsigned short m_ushCarTypeOptionContentsId = 0;  ///< the option's choice
};

/// Answers with the categories and the option that are still open.
class KRM_API CKRMCVehicleDecisionCmdAdaptDataRcv
    : public MessageOf<CKRMCVehicleDecisionCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv,
                       krm::CommandId(krm::CommandFamily::Diagnostic, "VehicleDecision")> {
public:
    krm_long ErrWriteOperationLog() override;

    CKRMList<CKRMCCommandCarTypeCategoryData> Data;
    unsigned char m_uchStatusId = 0;  ///< how far the decision has come
    CKRMCCommandCarTypeOptionData m_cCarTypeOption;
};

/// GetGroupEcuList asks for the ECUs of the vehicle.
class KRM_API CKRMCGetGroupEcuListCmdAdaptDataSnd
    : public MessageOf<CKRMCGetGroupEcuListCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd,
                       krm::CommandId(krm::CommandFamily::Diagnostic, "GetGroupEcuList")> {
public:
    ~CKRMCGetGroupEcuListCmdAdaptDataSnd() override;
};

/// Answers with the ECUs by group.
class KRM_API CKRMCGetGroupEcuListCmdAdaptDataRcv
    : public MessageOf<CKRMCGetGroupEcuListCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv,
                       krm::CommandId(krm::CommandFamily::Diagnostic, "GetGroupEcuList")> {
public:
    krm_long ErrWriteOperationLog() override;

    CKRMList<CKRMCCommandEcuGroupData> Data;
};

/// GetEcuFunctionList asks what an ECU of this phase can do.
class KRM_API CKRMCGetEcuFunctionListCmdAdaptDataSnd
    : public MessageOf<CKRMCGetEcuFunctionListCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd,
                       krm::CommandId(krm::CommandFamily::Diagnostic, "GetEcuFunctionList")> {
public:
    krm_long ErrWriteOperationLog() override;

    unsigned char m_uchPhaseType = 0;
};

/// Answers with the ECU's functions and their details.
class KRM_API CKRMCGetEcuFunctionListCmdAdaptDataRcv
    : public MessageOf<CKRMCGetEcuFunctionListCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv,
                       krm::CommandId(krm::CommandFamily::Diagnostic, "GetEcuFunctionList")> {
public:
    krm_long ErrWriteOperationLog() override;

    CKRMList<CKRMCCommandEcuFunctionData> Data;
};

/// EcuConnect asks to connect an ECU of a group on a bus.
class KRM_API CKRMCEcuConnectCmdAdaptDataSnd
    : public MessageOf<CKRMCEcuConnectCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd,
                       krm::CommandId(krm::CommandFamily::Diagnostic, "EcuConnect")> {
public:
    krm_long ErrWriteOperationLog() override;

    unsigned short m_ushGroupId = 0;
    unsigned short m_ushBusId = 0;
};

/// Answers whether it is connected, and which ECU it is.
class KRM_API CKRMCEcuConnectCmdAdaptDataRcv
    : public MessageOf<CKRMCEcuConnectCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv,
                       krm::CommandId(krm::CommandFamily::Diagnostic, "EcuConnect")> {
public:
    krm_long ErrWriteOperationLog() override;

    bool m_bConnect = false;
    krm_ulong m_ulEcuId = 0;
    unsigned short m_ushBusId = 0;
    unsigned char m_uchPhaseType = 0;
    krm_ulong m_ulDescriptionId = 0;  ///< words ID of the description
    CKRMString m_strDescription;
};

/// CreateCommCtrlMain asks to create the communication controller.
class KRM_API CKRMCCreateCommCtrlMainCmdAdaptDataSnd
    : public MessageOf<CKRMCCreateCommCtrlMainCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd,
                       krm::CommandId(krm::CommandFamily::Diagnostic, "CreateCommCtrlMain")> {
public:
    krm_long ErrWriteOperationLog() override;

    CKRMList<CKRMCWrapperCreationData> Data;  ///< what to create it with
};

/// Answers; carries nothing beyond its base.
class KRM_API CKRMCCreateCommCtrlMainCmdAdaptDataRcv
    : public MessageOf<CKRMCCreateCommCtrlMainCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv,
                       krm::CommandId(krm::CommandFamily::Diagnostic, "CreateCommCtrlMain")> {
public:
    ~CKRMCCreateCommCtrlMainCmdAdaptDataRcv() override;
};

/// GetJ2534ConfigParam asks for the SAE J2534 configuration of a bus.
class KRM_API CKRMCGetJ2534ConfigParamCmdAdaptDataSnd
    : public MessageOf<CKRMCGetJ2534ConfigParamCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd,
                       krm::CommandId(krm::CommandFamily::Diagnostic, "GetJ2534ConfigParam")> {
public:
    krm_long ErrWriteOperationLog() override;

    unsigned short m_ushBusId = 0;
};

/// Answers with its parameters.
class KRM_API CKRMCGetJ2534ConfigParamCmdAdaptDataRcv
    : public MessageOf<CKRMCGetJ2534ConfigParamCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv,
                       krm::CommandId(krm::CommandFamily::Diagnostic, "GetJ2534ConfigParam")> {
public:
    krm_long ErrWriteOperationLog() override;

    CKRMList<CKRMCCommandJ2534Config> Data;
};

/// InitMountEcuList asks to set up the list of the ECUs that the model is equipped with.
class KRM_API CKRMCInitMountEcuListCmdAdaptDataSnd
    : public MessageOf<CKRMCInitMountEcuListCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd,
                       krm::CommandId(krm::CommandFamily::Diagnostic, "InitMountEcuList")> {
public:
    krm_long ErrWriteOperationLog() override;

    unsigned short m_ushModelId = 0;
};

/// Answers whether it is set up.
class KRM_API CKRMCInitMountEcuListCmdAdaptDataRcv
    : public MessageOf<CKRMCInitMountEcuListCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv,
                       krm::CommandId(krm::CommandFamily::Diagnostic, "InitMountEcuList")> {
public:
    krm_long ErrWriteOperationLog() override;

    bool m_bInitialize = false;
};

/// ReadVBatt asks for the battery voltage.
class KRM_API CKRMCReadVBattCmdAdaptDataSnd
    : public MessageOf<CKRMCReadVBattCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd,
                       krm::CommandId(krm::CommandFamily::Diagnostic, "ReadVBatt")> {
public:
    ~CKRMCReadVBattCmdAdaptDataSnd() override;
};

/// Answers with the voltage.
class KRM_API CKRMCReadVBattCmdAdaptDataRcv
    : public MessageOf<CKRMCReadVBattCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv,
                       krm::CommandId(krm::CommandFamily::Diagnostic, "ReadVBatt")> {
public:
    krm_long ErrWriteOperationLog() override;

    krm_ulong m_ulVBattValue = 0;  ///< battery voltage; its unit is the engine's
};

/// SelectCarId asks to select the vehicle that the choices lead to.
class KRM_API CKRMCSelectCarIdCmdAdaptDataSnd
    : public MessageOf<CKRMCSelectCarIdCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd,
                       krm::CommandId(krm::CommandFamily::Diagnostic, "SelectCarId")> {
public:
    krm_long ErrWriteOperationLog() override;

    unsigned short m_ushVehicleId = 0;
    krm_ulong m_ulParentEcuId = 0;                     ///< ECU that stands above the request's
    unsigned short m_ushParentBusId = 0;               ///< its bus
    CKRMList<CKRMCCommandCarTypeCategoryIdData> Data;  ///< the choices made
};

/// Answers with the categories that are still open.
class KRM_API CKRMCSelectCarIdCmdAdaptDataRcv
    : public MessageOf<CKRMCSelectCarIdCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv,
                       krm::CommandId(krm::CommandFamily::Diagnostic, "SelectCarId")> {
public:
    krm_long ErrWriteOperationLog() override;

    CKRMList<CKRMCCommandCarTypeCategoryData> Data;
};

/// GetDiagSession asks which diagnostic session the ECU is in.
class KRM_API CKRMCGetDiagSessionCmdAdaptDataSnd
    : public MessageOf<CKRMCGetDiagSessionCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd,
                       krm::CommandId(krm::CommandFamily::Diagnostic, "GetDiagSession")> {
public:
    ~CKRMCGetDiagSessionCmdAdaptDataSnd() override;
};

/// Answers with the session.
class KRM_API CKRMCGetDiagSessionCmdAdaptDataRcv
    : public MessageOf<CKRMCGetDiagSessionCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv,
                       krm::CommandId(krm::CommandFamily::Diagnostic, "GetDiagSession")> {
public:
    krm_long ErrWriteOperationLog() override;

    unsigned char m_uchDiagSessionType = 0;
};

/// SetDiagSession asks to enter a diagnostic session.
class KRM_API CKRMCSetDiagSessionCmdAdaptDataSnd
    : public MessageOf<CKRMCSetDiagSessionCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd,
                       krm::CommandId(krm::CommandFamily::Diagnostic, "SetDiagSession")> {
public:
    krm_long ErrWriteOperationLog() override;

    unsigned char m_uchDiagSessionType = 0;
    bool m_bIgOnOffCount = false;          ///< the count below is given
    unsigned short m_ushIgOnOffCount = 0;  ///< how often the ignition is switched on and off
};

/// Answers whether it is entered.
class KRM_API CKRMCSetDiagSessionCmdAdaptDataRcv
    : public MessageOf<CKRMCSetDiagSessionCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv,
                       krm::CommandId(krm::CommandFamily::Diagnostic, "SetDiagSession")> {
public:
    krm_long ErrWriteOperationLog() override;

    bool m_bResult = false;
};

/// GetVehicleInfo asks what is known of the vehicle.
class KRM_API CKRMCGetVehicleInfoCmdAdaptDataSnd
    : public MessageOf<CKRMCGetVehicleInfoCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd,
                       krm::CommandId(krm::CommandFamily::Diagnostic, "GetVehicleInfo")> {
public:
    ~CKRMCGetVehicleInfoCmdAdaptDataSnd() override;
};

/// Answers with named items and their values.
class KRM_API CKRMCGetVehicleInfoCmdAdaptDataRcv
    : public MessageOf<CKRMCGetVehicleInfoCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv,
                       krm::CommandId(krm::CommandFamily::Diagnostic, "GetVehicleInfo")> {
public:
    krm_long ErrWriteOperationLog() override;

    CKRMList<CKRMCCommandVehicleInfoItem> Data;
};

/// GetAllDtcSystemList asks which systems trouble codes can be read from.
class KRM_API CKRMCGetAllDtcSystemListCmdAdaptDataSnd
    : public MessageOf<CKRMCGetAllDtcSystemListCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd,
                       krm::CommandId(krm::CommandFamily::Diagnostic, "GetAllDtcSystemList")> {
public:
    ~CKRMCGetAllDtcSystemListCmdAdaptDataSnd() override;
};

/// Answers with the systems.
class KRM_API CKRMCGetAllDtcSystemListCmdAdaptDataRcv
    : public MessageOf<CKRMCGetAllDtcSystemListCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv,
                       krm::CommandId(krm::CommandFamily::Diagnostic, "GetAllDtcSystemList")> {
public:
    krm_long ErrWriteOperationLog() override;

    CKRMList<krm_ulong> m_ulSystemIdList;
};

/// GetVinCode asks for the vehicle identification number (VIN).
class KRM_API CKRMCGetVinCodeCmdAdaptDataSnd
    : public MessageOf<CKRMCGetVinCodeCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd,
                       krm::CommandId(krm::CommandFamily::Diagnostic, "GetVinCode")> {
public:
    ~CKRMCGetVinCodeCmdAdaptDataSnd() override;
};

/// Answers with the VIN.
class KRM_API CKRMCGetVinCodeCmdAdaptDataRcv
    : public MessageOf<CKRMCGetVinCodeCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv,
                       krm::CommandId(krm::CommandFamily::Diagnostic, "GetVinCode")> {
public:
    krm_long ErrWriteOperationLog() override;

    CKRMString m_strVinCode;
};

/// GetCarCategoryVin asks what the VIN says about these categories.
class KRM_API CKRMCGetCarCategoryVinCmdAdaptDataSnd
    : public MessageOf<CKRMCGetCarCategoryVinCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd,
                       krm::CommandId(krm::CommandFamily::Diagnostic, "GetCarCategoryVin")> {
public:
    krm_long ErrWriteOperationLog() override;

    CKRMList<CKRMCCommandCarTypeCategoryData> Data;
};

/// Answers with the categories and what the VIN leaves of their choices.
class KRM_API CKRMCGetCarCategoryVinCmdAdaptDataRcv
    : public MessageOf<CKRMCGetCarCategoryVinCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv,
                       krm::CommandId(krm::CommandFamily::Diagnostic, "GetCarCategoryVin")> {
public:
    krm_long ErrWriteOperationLog() override;

    CKRMList<CKRMCCommandCarTypeCategoryData> Data;
};

/// GetVehicleSystemInfo asks for the information about a system of the vehicle.
class KRM_API CKRMCGetVehicleSystemInfoCmdAdaptDataSnd
    : public MessageOf<CKRMCGetVehicleSystemInfoCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd,
                       krm::CommandId(krm::CommandFamily::Diagnostic, "GetVehicleSystemInfo")> {
public:
    krm_long ErrWriteOperationLog() override;

    krm_ulong m_ulSystemId = 0;
};

/// Answers with the information.
class KRM_API CKRMCGetVehicleSystemInfoCmdAdaptDataRcv
    : public MessageOf<CKRMCGetVehicleSystemInfoCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv,
                       krm::CommandId(krm::CommandFamily::Diagnostic, "GetVehicleSystemInfo")> {
public:
    krm_long ErrWriteOperationLog() override;

    CKRMList<CKRMCCommandVehicleSystemInfo> Data;
};

/// SelectVehicleInfo asks to select the vehicle by the information chosen so far.
class KRM_API CKRMCSelectVehicleInfoCmdAdaptDataSnd
    : public MessageOf<CKRMCSelectVehicleInfoCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd,
                       krm::CommandId(krm::CommandFamily::Diagnostic, "SelectVehicleInfo")> {
public:
    krm_long ErrWriteOperationLog() override;

    CKRMList<CKRMCCommandVehicleInfoData> m_cVehicleInfoList;  ///< what has been chosen
};

/// Answers with what is settled and what is still open.
class KRM_API CKRMCSelectVehicleInfoCmdAdaptDataRcv
    : public MessageOf<CKRMCSelectVehicleInfoCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv,
                       krm::CommandId(krm::CommandFamily::Diagnostic, "SelectVehicleInfo")> {
public:
    krm_long ErrWriteOperationLog() override;

    CKRMList<CKRMCCommandVehicleInfoData> m_cVehicleInfoList;              ///< settled
    CKRMList<CKRMCCommandVehicleInfoSelectData> m_cVehicleInfoSelectList;  ///< still open, with the choices
    unsigned char m_uchStatusId = 0;                                       ///< how far the selection has come
};

#endif  // KRM_MESSAGES_DIAG_VEHICLE_H_
