// Which vehicle this is and who answers in it: car type, VIN and vehicle information, ECUs and their functions, the
// communication controller, the diagnostic session.
//
// Records come first, then the messages by command ID. The library passes all codes (connection status, phase type,
// display type, session type, status, variant type) through unchanged; their meaning is the engine's.
#ifndef KRM_MESSAGES_DIAG_VEHICLE_H_
#define KRM_MESSAGES_DIAG_VEHICLE_H_

#include "krm/core/list.h"
#include "krm/core/types.h"
#include "krm/framework/message.h"
#include "krm/framework/record.h"
#include "krm/messages/diag/freeze_frame_item.h"
#include "krm/messages/diag/j2534_config.h"
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
class KRM_API CKRMCCommandCarTypeCategoryContentsData : public krm::RecordOf<CKRMCCommandCarTypeCategoryContentsData> {
public:
    void Dump(const krm::RecordLines& line);

    unsigned short m_ushSortIndex = 0;  ///< where the choice stands in the list that the user sees
    unsigned short m_ushCarTypeCategoryContentsId = 0;
    krm_ulong m_ulCarTypeCategoryContentsNameId = 0;  ///< words ID of the name
    CKRMString m_strCarTypeCategoryContentsName;
};
extern template class CKRMList<CKRMCCommandCarTypeCategoryContentsData>;

/// A car type category with all its choices.
class KRM_API CKRMCCommandCarTypeCategoryData : public krm::RecordOf<CKRMCCommandCarTypeCategoryData> {
public:
    void Dump(const krm::RecordLines& line);

    unsigned short m_ushCarTypeCategoryId = 0;
    CKRMList<CKRMCCommandCarTypeCategoryContentsData> m_cCarTypeOptionContentsList;  ///< the choices
};
extern template class CKRMList<CKRMCCommandCarTypeCategoryData>;

/// One possible choice of a car type option.
class KRM_API CKRMCCommandCarTypeOptionContentsData : public krm::RecordOf<CKRMCCommandCarTypeOptionContentsData> {
public:
    void Dump(const krm::RecordLines& line);

    unsigned short m_ushCarTypeOptionContentsId = 0;
    krm_ulong m_ulCarTypeOptionContentsNameId = 0;  ///< words ID of the name
    CKRMString m_strCarTypeOptionContentsName;
};
extern template class CKRMList<CKRMCCommandCarTypeOptionContentsData>;

/// A car type option with all its choices.
class KRM_API CKRMCCommandCarTypeOptionData : public krm::RecordOf<CKRMCCommandCarTypeOptionData> {
public:
    void Dump(const krm::RecordLines& line);

    unsigned short m_ushCarTypeOptionIndex = 0;
    CKRMList<CKRMCCommandCarTypeOptionContentsData> Data;  ///< the choices
};
extern template class CKRMList<CKRMCCommandCarTypeOptionData>;

/// A value that is a number or words; the type says which.
class KRM_API CKRMCCommandVariantData : public krm::RecordOf<CKRMCCommandVariantData> {
public:
    void Dump(const krm::RecordLines& line);

    krm_ulong m_ulVarType = 0;        ///< kind of value
    krm_ulong m_ulValue = 0;          ///< the number; logged both signed and unsigned
    CKRMCCommandWordsData m_cString;  ///< the words
};
extern template class CKRMList<CKRMCCommandVariantData>;

/// One ECU of the vehicle: how it is reached, and what it is called.
class KRM_API CKRMCCommandEcuData : public krm::RecordOf<CKRMCCommandEcuData> {
public:
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
class KRM_API CKRMCCommandEcuGroupData : public krm::RecordOf<CKRMCCommandEcuGroupData> {
public:
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
class KRM_API CKRMCCommandVehicleInfoItem : public krm::RecordOf<CKRMCCommandVehicleInfoItem> {
public:
    void Dump(const krm::RecordLines& line);

    krm_ulong m_ulNameId = 0;  ///< words ID of the name
    CKRMString m_strName;
    unsigned char m_uchDispType = 0;                   ///< how the item is displayed
    CKRMList<CKRMCCommandFFDData> m_cVehicleInfoList;  ///< its values, in the form of freeze-frame items
};
extern template class CKRMList<CKRMCCommandVehicleInfoItem>;

/// One piece of vehicle information that has been chosen, or can be.
class KRM_API CKRMCCommandVehicleInfoData : public krm::RecordOf<CKRMCCommandVehicleInfoData> {
public:
    void Dump(const krm::RecordLines& line);

    unsigned short m_ushVehicleInfoId = 0;  ///< kind of information
    krm_ulong m_ulVehicleInfo = 0;          ///< its value
    CKRMString m_strVehicleInfo;            ///< the value's text
};
extern template class CKRMList<CKRMCCommandVehicleInfoData>;

/// A kind of vehicle information that is still open, with what it can be.
class KRM_API CKRMCCommandVehicleInfoSelectData : public krm::RecordOf<CKRMCCommandVehicleInfoSelectData> {
public:
    void Dump(const krm::RecordLines& line);

    unsigned short m_ushVehicleInfoId = 0;                             ///< kind of information
    CKRMList<CKRMCCommandVehicleInfoData> m_cVehicleInfoContentsList;  ///< the choices
};
extern template class CKRMList<CKRMCCommandVehicleInfoSelectData>;

/// One piece of information about a system of the vehicle.
class KRM_API CKRMCCommandVehicleSystemInfo : public krm::RecordOf<CKRMCCommandVehicleSystemInfo> {
public:
    void Dump(const krm::RecordLines& line);

    krm_ulong m_ulInfoId = 0;
    CKRMList<CKRMCCommandVariantData> m_cInfoData;  ///< its values
};
extern template class CKRMList<CKRMCCommandVehicleSystemInfo>;

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
    : public krm::MessageOf<CKRMCVehicleDecisionCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd, "VehicleDecision"> {
public:
    void Dump(const krm::MessageLines& line);

    unsigned short m_ushDivisionId = 0;                ///< division that the vehicle belongs to
    CKRMList<CKRMCCommandCarTypeCategoryIdData> Data;  ///< the choices made
    unsigned short m_ushCarTypeOptionIndex = 0;
    unsigned short m_ushCarTypeOptionContentsId = 0;  ///< the option's choice
};

/// Answers with the categories and the option that are still open.
class KRM_API CKRMCVehicleDecisionCmdAdaptDataRcv
    : public krm::MessageOf<CKRMCVehicleDecisionCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv, "VehicleDecision"> {
public:
    void Dump(const krm::MessageLines& line);

    CKRMList<CKRMCCommandCarTypeCategoryData> Data;
    unsigned char m_uchStatusId = 0;  ///< how far the decision has come
    CKRMCCommandCarTypeOptionData m_cCarTypeOption;
};

/// GetGroupEcuList asks for the ECUs of the vehicle.
class KRM_API CKRMCGetGroupEcuListCmdAdaptDataSnd
    : public krm::MessageOf<CKRMCGetGroupEcuListCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd, "GetGroupEcuList"> {};

/// Answers with the ECUs by group.
class KRM_API CKRMCGetGroupEcuListCmdAdaptDataRcv
    : public krm::MessageOf<CKRMCGetGroupEcuListCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv, "GetGroupEcuList"> {
public:
    void Dump(const krm::MessageLines& line);

    CKRMList<CKRMCCommandEcuGroupData> Data;
};

/// GetEcuFunctionList asks what an ECU of this phase can do.
class KRM_API CKRMCGetEcuFunctionListCmdAdaptDataSnd
    : public krm::MessageOf<CKRMCGetEcuFunctionListCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd, "GetEcuFunctionList"> {
public:
    void Dump(const krm::MessageLines& line);

    unsigned char m_uchPhaseType = 0;
};

/// Answers with the ECU's functions and their details.
class KRM_API CKRMCGetEcuFunctionListCmdAdaptDataRcv
    : public krm::MessageOf<CKRMCGetEcuFunctionListCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv, "GetEcuFunctionList"> {
public:
    void Dump(const krm::MessageLines& line);

    CKRMList<CKRMCCommandEcuFunctionData> Data;
};

/// EcuConnect asks to connect an ECU of a group on a bus.
class KRM_API CKRMCEcuConnectCmdAdaptDataSnd
    : public krm::MessageOf<CKRMCEcuConnectCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd, "EcuConnect"> {
public:
    void Dump(const krm::MessageLines& line);

    unsigned short m_ushGroupId = 0;
    unsigned short m_ushBusId = 0;
};

/// Answers whether it is connected, and which ECU it is.
class KRM_API CKRMCEcuConnectCmdAdaptDataRcv
    : public krm::MessageOf<CKRMCEcuConnectCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv, "EcuConnect"> {
public:
    void Dump(const krm::MessageLines& line);

    bool m_bConnect = false;
    krm_ulong m_ulEcuId = 0;
    unsigned short m_ushBusId = 0;
    unsigned char m_uchPhaseType = 0;
    krm_ulong m_ulDescriptionId = 0;  ///< words ID of the description
    CKRMString m_strDescription;
};

/// CreateCommCtrlMain asks to create the communication controller.
class KRM_API CKRMCCreateCommCtrlMainCmdAdaptDataSnd
    : public krm::MessageOf<CKRMCCreateCommCtrlMainCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd, "CreateCommCtrlMain"> {
public:
    void Dump(const krm::MessageLines& line);

    CKRMList<CKRMCWrapperCreationData> Data;  ///< what to create it with
};

/// Answers; carries nothing beyond its base.
class KRM_API CKRMCCreateCommCtrlMainCmdAdaptDataRcv
    : public krm::MessageOf<CKRMCCreateCommCtrlMainCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv, "CreateCommCtrlMain"> {};

/// GetJ2534ConfigParam asks for the SAE J2534 configuration of a bus.
class KRM_API CKRMCGetJ2534ConfigParamCmdAdaptDataSnd
    : public krm::MessageOf<CKRMCGetJ2534ConfigParamCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd, "GetJ2534ConfigParam"> {
public:
    void Dump(const krm::MessageLines& line);

    unsigned short m_ushBusId = 0;
};

/// Answers with its parameters.
class KRM_API CKRMCGetJ2534ConfigParamCmdAdaptDataRcv
    : public krm::MessageOf<CKRMCGetJ2534ConfigParamCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv, "GetJ2534ConfigParam"> {
public:
    void Dump(const krm::MessageLines& line);

    CKRMList<CKRMCCommandJ2534Config> Data;
};

/// InitMountEcuList asks to set up the list of the ECUs that the model is equipped with.
class KRM_API CKRMCInitMountEcuListCmdAdaptDataSnd
    : public krm::MessageOf<CKRMCInitMountEcuListCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd, "InitMountEcuList"> {
public:
    void Dump(const krm::MessageLines& line);

    unsigned short m_ushModelId = 0;
};

/// Answers whether it is set up.
class KRM_API CKRMCInitMountEcuListCmdAdaptDataRcv
    : public krm::MessageOf<CKRMCInitMountEcuListCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv, "InitMountEcuList"> {
public:
    void Dump(const krm::MessageLines& line);

    bool m_bInitialize = false;
};

/// ReadVBatt asks for the battery voltage.
class KRM_API CKRMCReadVBattCmdAdaptDataSnd
    : public krm::MessageOf<CKRMCReadVBattCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd, "ReadVBatt"> {};

/// Answers with the voltage.
class KRM_API CKRMCReadVBattCmdAdaptDataRcv
    : public krm::MessageOf<CKRMCReadVBattCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv, "ReadVBatt"> {
public:
    void Dump(const krm::MessageLines& line);

    krm_ulong m_ulVBattValue = 0;  ///< battery voltage; its unit is the engine's
};

/// SelectCarId asks to select the vehicle that the choices lead to.
class KRM_API CKRMCSelectCarIdCmdAdaptDataSnd
    : public krm::MessageOf<CKRMCSelectCarIdCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd, "SelectCarId"> {
public:
    void Dump(const krm::MessageLines& line);

    unsigned short m_ushVehicleId = 0;
    krm_ulong m_ulParentEcuId = 0;                     ///< ECU that stands above the request's
    unsigned short m_ushParentBusId = 0;               ///< its bus
    CKRMList<CKRMCCommandCarTypeCategoryIdData> Data;  ///< the choices made
};

/// Answers with the categories that are still open.
class KRM_API CKRMCSelectCarIdCmdAdaptDataRcv
    : public krm::MessageOf<CKRMCSelectCarIdCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv, "SelectCarId"> {
public:
    void Dump(const krm::MessageLines& line);

    CKRMList<CKRMCCommandCarTypeCategoryData> Data;
};

/// GetDiagSession asks which diagnostic session the ECU is in.
class KRM_API CKRMCGetDiagSessionCmdAdaptDataSnd
    : public krm::MessageOf<CKRMCGetDiagSessionCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd, "GetDiagSession"> {};

/// Answers with the session.
class KRM_API CKRMCGetDiagSessionCmdAdaptDataRcv
    : public krm::MessageOf<CKRMCGetDiagSessionCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv, "GetDiagSession"> {
public:
    void Dump(const krm::MessageLines& line);

    unsigned char m_uchDiagSessionType = 0;
};

/// SetDiagSession asks to enter a diagnostic session.
class KRM_API CKRMCSetDiagSessionCmdAdaptDataSnd
    : public krm::MessageOf<CKRMCSetDiagSessionCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd, "SetDiagSession"> {
public:
    void Dump(const krm::MessageLines& line);

    unsigned char m_uchDiagSessionType = 0;
    bool m_bIgOnOffCount = false;          ///< the count below is given
    unsigned short m_ushIgOnOffCount = 0;  ///< how often the ignition is switched on and off
};

/// Answers whether it is entered.
class KRM_API CKRMCSetDiagSessionCmdAdaptDataRcv
    : public krm::MessageOf<CKRMCSetDiagSessionCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv, "SetDiagSession"> {
public:
    void Dump(const krm::MessageLines& line);

    bool m_bResult = false;
};

/// GetVehicleInfo asks what is known of the vehicle.
class KRM_API CKRMCGetVehicleInfoCmdAdaptDataSnd
    : public krm::MessageOf<CKRMCGetVehicleInfoCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd, "GetVehicleInfo"> {};

/// Answers with named items and their values.
class KRM_API CKRMCGetVehicleInfoCmdAdaptDataRcv
    : public krm::MessageOf<CKRMCGetVehicleInfoCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv, "GetVehicleInfo"> {
public:
    void Dump(const krm::MessageLines& line);

    CKRMList<CKRMCCommandVehicleInfoItem> Data;
};

/// GetAllDtcSystemList asks which systems trouble codes can be read from.
class KRM_API CKRMCGetAllDtcSystemListCmdAdaptDataSnd
    : public krm::MessageOf<CKRMCGetAllDtcSystemListCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd, "GetAllDtcSystemList"> {
};

/// Answers with the systems.
class KRM_API CKRMCGetAllDtcSystemListCmdAdaptDataRcv
    : public krm::MessageOf<CKRMCGetAllDtcSystemListCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv, "GetAllDtcSystemList"> {
public:
    void Dump(const krm::MessageLines& line);

    CKRMList<krm_ulong> m_ulSystemIdList;
};

/// GetVinCode asks for the vehicle identification number (VIN).
class KRM_API CKRMCGetVinCodeCmdAdaptDataSnd
    : public krm::MessageOf<CKRMCGetVinCodeCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd, "GetVinCode"> {};

/// Answers with the VIN.
class KRM_API CKRMCGetVinCodeCmdAdaptDataRcv
    : public krm::MessageOf<CKRMCGetVinCodeCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv, "GetVinCode"> {
public:
    void Dump(const krm::MessageLines& line);

    CKRMString m_strVinCode;
};

/// GetCarCategoryVin asks what the VIN says about these categories.
class KRM_API CKRMCGetCarCategoryVinCmdAdaptDataSnd
    : public krm::MessageOf<CKRMCGetCarCategoryVinCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd, "GetCarCategoryVin"> {
public:
    void Dump(const krm::MessageLines& line);

    CKRMList<CKRMCCommandCarTypeCategoryData> Data;
};

/// Answers with the categories and what the VIN leaves of their choices.
class KRM_API CKRMCGetCarCategoryVinCmdAdaptDataRcv
    : public krm::MessageOf<CKRMCGetCarCategoryVinCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv, "GetCarCategoryVin"> {
public:
    void Dump(const krm::MessageLines& line);

    CKRMList<CKRMCCommandCarTypeCategoryData> Data;
};

/// GetVehicleSystemInfo asks for the information about a system of the vehicle.
class KRM_API CKRMCGetVehicleSystemInfoCmdAdaptDataSnd
    : public krm::MessageOf<CKRMCGetVehicleSystemInfoCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd,
                            "GetVehicleSystemInfo"> {
public:
    void Dump(const krm::MessageLines& line);

    krm_ulong m_ulSystemId = 0;
};

/// Answers with the information.
class KRM_API CKRMCGetVehicleSystemInfoCmdAdaptDataRcv
    : public krm::MessageOf<CKRMCGetVehicleSystemInfoCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv,
                            "GetVehicleSystemInfo"> {
public:
    void Dump(const krm::MessageLines& line);

    CKRMList<CKRMCCommandVehicleSystemInfo> Data;
};

/// SelectVehicleInfo asks to select the vehicle by the information chosen so far.
class KRM_API CKRMCSelectVehicleInfoCmdAdaptDataSnd
    : public krm::MessageOf<CKRMCSelectVehicleInfoCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd, "SelectVehicleInfo"> {
public:
    void Dump(const krm::MessageLines& line);

    CKRMList<CKRMCCommandVehicleInfoData> m_cVehicleInfoList;  ///< what has been chosen
};

/// Answers with what is settled and what is still open.
class KRM_API CKRMCSelectVehicleInfoCmdAdaptDataRcv
    : public krm::MessageOf<CKRMCSelectVehicleInfoCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv, "SelectVehicleInfo"> {
public:
    void Dump(const krm::MessageLines& line);

    CKRMList<CKRMCCommandVehicleInfoData> m_cVehicleInfoList;              ///< settled
    CKRMList<CKRMCCommandVehicleInfoSelectData> m_cVehicleInfoSelectList;  ///< still open, with the choices
    unsigned char m_uchStatusId = 0;                                       ///< how far the selection has come
};

#endif  // KRM_MESSAGES_DIAG_VEHICLE_H_
