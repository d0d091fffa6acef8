// Which vehicle this is and who answers in it: car type, VIN and vehicle information, ECUs and their functions, the
// communication controller, the diagnostic session.
//
// Records come first, then the messages by command ID. The library passes all codes through unchanged.
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

/// A choice made in a car type category. Has no dump: the message that holds it writes its fields.
class KRM_API CKRMCCommandCarTypeCategoryIdData {
public:
    /// Restores the values of a new object.
    void Clear() { *this = CKRMCCommandCarTypeCategoryIdData(); }

    unsigned short m_ushCarTypeCategoryId = 0;          ///< ID of the category
    unsigned short m_ushCarTypeCategoryContentsId = 0;  ///< ID of the choice made in it
};
template <>
inline constexpr bool krm::kCopiedInOneStep<CKRMCCommandCarTypeCategoryIdData> = true;
extern template class CKRMList<CKRMCCommandCarTypeCategoryIdData>;

/// One possible choice in a car type category.
class KRM_API CKRMCCommandCarTypeCategoryContentsData : public krm::RecordOf<CKRMCCommandCarTypeCategoryContentsData> {
public:
    void Dump(const krm::RecordLines& line);

    unsigned short m_ushSortIndex = 0;                  ///< place of the choice in the list that the user sees
    unsigned short m_ushCarTypeCategoryContentsId = 0;  ///< ID of the choice, as requests send it back
    krm_ulong m_ulCarTypeCategoryContentsNameId = 0;    ///< words ID of the choice's name
    CKRMString m_strCarTypeCategoryContentsName;        ///< text of the choice's name
};
extern template class CKRMList<CKRMCCommandCarTypeCategoryContentsData>;

/// A car type category with its possible choices.
class KRM_API CKRMCCommandCarTypeCategoryData : public krm::RecordOf<CKRMCCommandCarTypeCategoryData> {
public:
    void Dump(const krm::RecordLines& line);

    unsigned short m_ushCarTypeCategoryId = 0;  ///< ID of the category
    CKRMList<CKRMCCommandCarTypeCategoryContentsData>
        m_cCarTypeOptionContentsList;  ///< possible choices; of the category, in spite of "Option"
};
extern template class CKRMList<CKRMCCommandCarTypeCategoryData>;

/// One possible choice of a car type option.
class KRM_API CKRMCCommandCarTypeOptionContentsData : public krm::RecordOf<CKRMCCommandCarTypeOptionContentsData> {
public:
    void Dump(const krm::RecordLines& line);

    unsigned short m_ushCarTypeOptionContentsId = 0;  ///< ID of the choice, as requests send it back
    krm_ulong m_ulCarTypeOptionContentsNameId = 0;    ///< words ID of the choice's name
    CKRMString m_strCarTypeOptionContentsName;        ///< text of the choice's name
};
extern template class CKRMList<CKRMCCommandCarTypeOptionContentsData>;

/// A car type option with its possible choices.
class KRM_API CKRMCCommandCarTypeOptionData : public krm::RecordOf<CKRMCCommandCarTypeOptionData> {
public:
    void Dump(const krm::RecordLines& line);

    unsigned short m_ushCarTypeOptionIndex = 0;            ///< which option it is
    CKRMList<CKRMCCommandCarTypeOptionContentsData> Data;  ///< possible choices
};
extern template class CKRMList<CKRMCCommandCarTypeOptionData>;

/// A value that may be a number or words; the type says which.
class KRM_API CKRMCCommandVariantData : public krm::RecordOf<CKRMCCommandVariantData> {
public:
    void Dump(const krm::RecordLines& line);

    krm_ulong m_ulVarType = 0;        ///< type of the value; the codes are the engine's; logged in hexadecimal
    krm_ulong m_ulValue = 0;          ///< the number; logged signed, then unsigned in parentheses
    CKRMCCommandWordsData m_cString;  ///< the words
};
extern template class CKRMList<CKRMCCommandVariantData>;

/// One ECU of the vehicle: how it is reached, and what it is called.
class KRM_API CKRMCCommandEcuData : public krm::RecordOf<CKRMCCommandEcuData> {
public:
    void Dump(const krm::RecordLines& line);

    unsigned short m_ushEcuConnectionStatus = 0;  ///< whether it is connected; the codes are the engine's
    krm_ulong m_ulEcuId = 0;                      ///< ECU identifier, as requests carry it
    unsigned short m_ushBusId = 0;                ///< bus that the ECU is on
    unsigned char m_uchPhaseType = 0;             ///< phase of the ECU; the codes are the engine's
    krm_ulong m_ulEcuNameId = 0;                  ///< words ID of the ECU's name
    CKRMString m_strEcuName;                      ///< text of the ECU's name
    CKRMString m_strEcuShortName;                 ///< short form of the name, for narrow places
};
extern template class CKRMList<CKRMCCommandEcuData>;

/// A group of ECUs.
class KRM_API CKRMCCommandEcuGroupData : public krm::RecordOf<CKRMCCommandEcuGroupData> {
public:
    void Dump(const krm::RecordLines& line);

    unsigned short m_ushGroupId = 0;           ///< ID of the group, as EcuConnect carries it
    krm_ulong m_ulGroupNameId = 0;             ///< words ID of the group's name
    CKRMString m_strGroupName;                 ///< text of the group's name
    CKRMList<CKRMCCommandEcuData> m_cEcuList;  ///< the ECUs in the group
};
extern template class CKRMList<CKRMCCommandEcuGroupData>;

/// One diagnostic function of an ECU. Has no dump: the message that holds it writes its fields.
class KRM_API CKRMCCommandEcuFunctionData {
public:
    /// Restores the values of a new object.
    void Clear() { *this = CKRMCCommandEcuFunctionData(); }

    unsigned short m_ushId = 0;  ///< function ID
    CKRMList<unsigned short>
        DetailList;  ///< IDs of the function's details; each is logged under the name m_cEcuFunctionDetailId
};
template <>
inline constexpr bool krm::kCopiedInOneStep<CKRMCCommandEcuFunctionData> = true;
extern template class CKRMList<CKRMCCommandEcuFunctionData>;

/// One named item of vehicle information with its values.
class KRM_API CKRMCCommandVehicleInfoItem : public krm::RecordOf<CKRMCCommandVehicleInfoItem> {
public:
    void Dump(const krm::RecordLines& line);

    krm_ulong m_ulNameId = 0;                          ///< words ID of the item's name
    CKRMString m_strName;                              ///< text of the item's name
    unsigned char m_uchDispType = 0;                   ///< how the item is displayed; the codes are the engine's
    CKRMList<CKRMCCommandFFDData> m_cVehicleInfoList;  ///< its values, in the form of freeze-frame items
};
extern template class CKRMList<CKRMCCommandVehicleInfoItem>;

/// A piece of vehicle information that has been chosen, or can be.
class KRM_API CKRMCCommandVehicleInfoData : public krm::RecordOf<CKRMCCommandVehicleInfoData> {
public:
    void Dump(const krm::RecordLines& line);

    unsigned short m_ushVehicleInfoId = 0;  ///< kind of information; logged unsigned
    krm_ulong m_ulVehicleInfo = 0;          ///< value chosen; the codes are the engine's; logged unsigned
    CKRMString m_strVehicleInfo;            ///< text of the value
};
extern template class CKRMList<CKRMCCommandVehicleInfoData>;

/// A kind of vehicle information that is open to choice, with the choices.
class KRM_API CKRMCCommandVehicleInfoSelectData : public krm::RecordOf<CKRMCCommandVehicleInfoSelectData> {
public:
    void Dump(const krm::RecordLines& line);

    unsigned short m_ushVehicleInfoId = 0;                             ///< kind of information; logged unsigned
    CKRMList<CKRMCCommandVehicleInfoData> m_cVehicleInfoContentsList;  ///< possible choices
};
extern template class CKRMList<CKRMCCommandVehicleInfoSelectData>;

/// A piece of information about a system of the vehicle.
class KRM_API CKRMCCommandVehicleSystemInfo : public krm::RecordOf<CKRMCCommandVehicleSystemInfo> {
public:
    void Dump(const krm::RecordLines& line);

    krm_ulong m_ulInfoId = 0;                       ///< kind of information; logged unsigned
    CKRMList<CKRMCCommandVariantData> m_cInfoData;  ///< its values
};
extern template class CKRMList<CKRMCCommandVehicleSystemInfo>;

/// An identifier that the communication controller is created with. Has no dump: the message that holds it writes
/// its fields.
class KRM_API CKRMCWrapperCreationData {
public:
    /// Restores the values of a new object.
    void Clear() { *this = CKRMCWrapperCreationData(); }

    unsigned short m_ushIdType = 0;  ///< kind of identifier; the codes are the engine's
    CKRMString m_strValue;           ///< value of the identifier
};
template <>
inline constexpr bool krm::kCopiedInOneStep<CKRMCWrapperCreationData> = true;
extern template class CKRMList<CKRMCWrapperCreationData>;

/// VehicleDecision asks which choices are open after those made.
class KRM_API CKRMCVehicleDecisionCmdAdaptDataSnd
    : public krm::MessageOf<CKRMCVehicleDecisionCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd, "VehicleDecision"> {
public:
    void Dump(const krm::MessageLines& line);

    unsigned short m_ushDivisionId = 0;                ///< division that the vehicle belongs to
    CKRMList<CKRMCCommandCarTypeCategoryIdData> Data;  ///< choices made, one per category
    unsigned short m_ushCarTypeOptionIndex = 0;        ///< which option is chosen
    unsigned short m_ushCarTypeOptionContentsId = 0;   ///< ID of that option's choice
};

/// Answers VehicleDecision with the categories and the option that are open to choice.
class KRM_API CKRMCVehicleDecisionCmdAdaptDataRcv
    : public krm::MessageOf<CKRMCVehicleDecisionCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv, "VehicleDecision"> {
public:
    void Dump(const krm::MessageLines& line);

    CKRMList<CKRMCCommandCarTypeCategoryData> Data;  ///< categories open to choice
    unsigned char m_uchStatusId = 0;                 ///< how far the decision has come; the codes are the engine's
    CKRMCCommandCarTypeOptionData m_cCarTypeOption;  ///< option open to choice; logged without a member name of its own
};

/// GetGroupEcuList asks for the ECUs of the vehicle.
class KRM_API CKRMCGetGroupEcuListCmdAdaptDataSnd
    : public krm::MessageOf<CKRMCGetGroupEcuListCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd, "GetGroupEcuList"> {};

/// Answers GetGroupEcuList with the ECUs by group.
class KRM_API CKRMCGetGroupEcuListCmdAdaptDataRcv
    : public krm::MessageOf<CKRMCGetGroupEcuListCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv, "GetGroupEcuList"> {
public:
    void Dump(const krm::MessageLines& line);

    CKRMList<CKRMCCommandEcuGroupData> Data;  ///< groups with their ECUs
};

/// GetEcuFunctionList asks for the functions of an ECU in a phase.
class KRM_API CKRMCGetEcuFunctionListCmdAdaptDataSnd
    : public krm::MessageOf<CKRMCGetEcuFunctionListCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd, "GetEcuFunctionList"> {
public:
    void Dump(const krm::MessageLines& line);

    unsigned char m_uchPhaseType = 0;  ///< phase of the ECU; the codes are the engine's
};

/// Answers GetEcuFunctionList with the functions and their details.
class KRM_API CKRMCGetEcuFunctionListCmdAdaptDataRcv
    : public krm::MessageOf<CKRMCGetEcuFunctionListCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv, "GetEcuFunctionList"> {
public:
    void Dump(const krm::MessageLines& line);

    CKRMList<CKRMCCommandEcuFunctionData> Data;  ///< functions with the IDs of their details
};

/// EcuConnect asks to connect an ECU of a group on a bus.
class KRM_API CKRMCEcuConnectCmdAdaptDataSnd
    : public krm::MessageOf<CKRMCEcuConnectCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd, "EcuConnect"> {
public:
    void Dump(const krm::MessageLines& line);

    unsigned short m_ushGroupId = 0;  ///< group of the ECU
    unsigned short m_ushBusId = 0;    ///< bus to connect on
};

/// Answers EcuConnect with the outcome, and the ECU that was connected.
class KRM_API CKRMCEcuConnectCmdAdaptDataRcv
    : public krm::MessageOf<CKRMCEcuConnectCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv, "EcuConnect"> {
public:
    void Dump(const krm::MessageLines& line);

    bool m_bConnect = false;           ///< the ECU is connected
    krm_ulong m_ulEcuId = 0;           ///< identifier of the ECU, for the requests that follow
    unsigned short m_ushBusId = 0;     ///< bus that it is connected on
    unsigned char m_uchPhaseType = 0;  ///< phase of the ECU; the codes are the engine's
    krm_ulong m_ulDescriptionId = 0;   ///< words ID of the ECU's description
    CKRMString m_strDescription;       ///< text of the ECU's description
};

/// CreateCommCtrlMain asks to create the communication controller.
class KRM_API CKRMCCreateCommCtrlMainCmdAdaptDataSnd
    : public krm::MessageOf<CKRMCCreateCommCtrlMainCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd, "CreateCommCtrlMain"> {
public:
    void Dump(const krm::MessageLines& line);

    CKRMList<CKRMCWrapperCreationData> Data;  ///< identifiers that it is created with
};

/// Answers CreateCommCtrlMain; has only what every answer has.
class KRM_API CKRMCCreateCommCtrlMainCmdAdaptDataRcv
    : public krm::MessageOf<CKRMCCreateCommCtrlMainCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv, "CreateCommCtrlMain"> {};

/// GetJ2534ConfigParam asks for the SAE J2534 configuration of a bus.
class KRM_API CKRMCGetJ2534ConfigParamCmdAdaptDataSnd
    : public krm::MessageOf<CKRMCGetJ2534ConfigParamCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd, "GetJ2534ConfigParam"> {
public:
    void Dump(const krm::MessageLines& line);

    unsigned short m_ushBusId = 0;  ///< bus whose configuration is asked for
};

/// Answers GetJ2534ConfigParam with the configuration parameters.
class KRM_API CKRMCGetJ2534ConfigParamCmdAdaptDataRcv
    : public krm::MessageOf<CKRMCGetJ2534ConfigParamCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv, "GetJ2534ConfigParam"> {
public:
    void Dump(const krm::MessageLines& line);

    CKRMList<CKRMCCommandJ2534Config> Data;  ///< parameters with their values
};

/// InitMountEcuList asks to initialise the list of the ECUs that a model is equipped with.
class KRM_API CKRMCInitMountEcuListCmdAdaptDataSnd
    : public krm::MessageOf<CKRMCInitMountEcuListCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd, "InitMountEcuList"> {
public:
    void Dump(const krm::MessageLines& line);

    unsigned short m_ushModelId = 0;  ///< vehicle model
};

/// Answers InitMountEcuList with the outcome.
class KRM_API CKRMCInitMountEcuListCmdAdaptDataRcv
    : public krm::MessageOf<CKRMCInitMountEcuListCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv, "InitMountEcuList"> {
public:
    void Dump(const krm::MessageLines& line);

    bool m_bInitialize = false;  ///< the list is initialised
};

/// ReadVBatt asks for the battery voltage.
class KRM_API CKRMCReadVBattCmdAdaptDataSnd
    : public krm::MessageOf<CKRMCReadVBattCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd, "ReadVBatt"> {};

/// Answers ReadVBatt with the voltage.
class KRM_API CKRMCReadVBattCmdAdaptDataRcv
    : public krm::MessageOf<CKRMCReadVBattCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv, "ReadVBatt"> {
public:
    void Dump(const krm::MessageLines& line);

    krm_ulong m_ulVBattValue = 0;  ///< battery voltage; its unit is the engine's
};

/// SelectCarId asks to select a vehicle by the choices made.
class KRM_API CKRMCSelectCarIdCmdAdaptDataSnd
    : public krm::MessageOf<CKRMCSelectCarIdCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd, "SelectCarId"> {
public:
    void Dump(const krm::MessageLines& line);

    unsigned short m_ushVehicleId = 0;                 ///< ID of the vehicle
    krm_ulong m_ulParentEcuId = 0;                     ///< parent ECU
    unsigned short m_ushParentBusId = 0;               ///< bus of the parent ECU
    CKRMList<CKRMCCommandCarTypeCategoryIdData> Data;  ///< choices made, one per category
};

/// Answers SelectCarId with the categories that are open to choice.
class KRM_API CKRMCSelectCarIdCmdAdaptDataRcv
    : public krm::MessageOf<CKRMCSelectCarIdCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv, "SelectCarId"> {
public:
    void Dump(const krm::MessageLines& line);

    CKRMList<CKRMCCommandCarTypeCategoryData> Data;  ///< categories open to choice
};

/// GetDiagSession asks which diagnostic session the ECU is in.
class KRM_API CKRMCGetDiagSessionCmdAdaptDataSnd
    : public krm::MessageOf<CKRMCGetDiagSessionCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd, "GetDiagSession"> {};

/// Answers GetDiagSession with the session.
class KRM_API CKRMCGetDiagSessionCmdAdaptDataRcv
    : public krm::MessageOf<CKRMCGetDiagSessionCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv, "GetDiagSession"> {
public:
    void Dump(const krm::MessageLines& line);

    unsigned char m_uchDiagSessionType = 0;  ///< session that the ECU is in; the codes are the engine's
};

/// SetDiagSession asks to enter a diagnostic session.
class KRM_API CKRMCSetDiagSessionCmdAdaptDataSnd
    : public krm::MessageOf<CKRMCSetDiagSessionCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd, "SetDiagSession"> {
public:
    void Dump(const krm::MessageLines& line);

    unsigned char m_uchDiagSessionType = 0;  ///< session to enter; the codes are the engine's
    bool m_bIgOnOffCount = false;            ///< m_ushIgOnOffCount is given
    unsigned short m_ushIgOnOffCount = 0;    ///< how often the ignition is switched on and off
};

/// Answers SetDiagSession with the outcome.
class KRM_API CKRMCSetDiagSessionCmdAdaptDataRcv
    : public krm::MessageOf<CKRMCSetDiagSessionCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv, "SetDiagSession"> {
public:
    void Dump(const krm::MessageLines& line);

    bool m_bResult = false;  ///< the session is entered
};

/// GetVehicleInfo asks for the vehicle information.
class KRM_API CKRMCGetVehicleInfoCmdAdaptDataSnd
    : public krm::MessageOf<CKRMCGetVehicleInfoCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd, "GetVehicleInfo"> {};

/// Answers GetVehicleInfo with named items and their values.
class KRM_API CKRMCGetVehicleInfoCmdAdaptDataRcv
    : public krm::MessageOf<CKRMCGetVehicleInfoCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv, "GetVehicleInfo"> {
public:
    void Dump(const krm::MessageLines& line);

    CKRMList<CKRMCCommandVehicleInfoItem> Data;  ///< items of vehicle information
};

/// GetAllDtcSystemList asks for the systems that trouble codes can be read from.
class KRM_API CKRMCGetAllDtcSystemListCmdAdaptDataSnd
    : public krm::MessageOf<CKRMCGetAllDtcSystemListCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd, "GetAllDtcSystemList"> {
};

/// Answers GetAllDtcSystemList with the systems.
class KRM_API CKRMCGetAllDtcSystemListCmdAdaptDataRcv
    : public krm::MessageOf<CKRMCGetAllDtcSystemListCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv, "GetAllDtcSystemList"> {
public:
    void Dump(const krm::MessageLines& line);

    CKRMList<krm_ulong> m_ulSystemIdList;  ///< system IDs
};

/// GetVinCode asks for the vehicle identification number (VIN).
class KRM_API CKRMCGetVinCodeCmdAdaptDataSnd
    : public krm::MessageOf<CKRMCGetVinCodeCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd, "GetVinCode"> {};

/// Answers GetVinCode with the VIN.
class KRM_API CKRMCGetVinCodeCmdAdaptDataRcv
    : public krm::MessageOf<CKRMCGetVinCodeCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv, "GetVinCode"> {
public:
    void Dump(const krm::MessageLines& line);

    CKRMString m_strVinCode;  ///< the VIN as text
};

/// GetCarCategoryVin asks what the VIN says about car type categories.
class KRM_API CKRMCGetCarCategoryVinCmdAdaptDataSnd
    : public krm::MessageOf<CKRMCGetCarCategoryVinCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd, "GetCarCategoryVin"> {
public:
    void Dump(const krm::MessageLines& line);

    CKRMList<CKRMCCommandCarTypeCategoryData> Data;  ///< categories with their possible choices
};

/// Answers GetCarCategoryVin with the categories as the VIN decides them.
class KRM_API CKRMCGetCarCategoryVinCmdAdaptDataRcv
    : public krm::MessageOf<CKRMCGetCarCategoryVinCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv, "GetCarCategoryVin"> {
public:
    void Dump(const krm::MessageLines& line);

    CKRMList<CKRMCCommandCarTypeCategoryData> Data;  ///< categories with the choices that the VIN leaves
};

/// GetVehicleSystemInfo asks for the information about a system of the vehicle.
class KRM_API CKRMCGetVehicleSystemInfoCmdAdaptDataSnd
    : public krm::MessageOf<CKRMCGetVehicleSystemInfoCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd,
                            "GetVehicleSystemInfo"> {
public:
    void Dump(const krm::MessageLines& line);

    krm_ulong m_ulSystemId = 0;  ///< system that is asked about; logged unsigned
};

/// Answers GetVehicleSystemInfo with the information.
class KRM_API CKRMCGetVehicleSystemInfoCmdAdaptDataRcv
    : public krm::MessageOf<CKRMCGetVehicleSystemInfoCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv,
                            "GetVehicleSystemInfo"> {
public:
    void Dump(const krm::MessageLines& line);

    CKRMList<CKRMCCommandVehicleSystemInfo> Data;  ///< pieces of information about it
};

/// SelectVehicleInfo asks to select the vehicle by the information chosen.
class KRM_API CKRMCSelectVehicleInfoCmdAdaptDataSnd
    : public krm::MessageOf<CKRMCSelectVehicleInfoCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd, "SelectVehicleInfo"> {
public:
    void Dump(const krm::MessageLines& line);

    CKRMList<CKRMCCommandVehicleInfoData> m_cVehicleInfoList;  ///< information chosen
};

/// Answers SelectVehicleInfo with what is settled and what is open to choice.
class KRM_API CKRMCSelectVehicleInfoCmdAdaptDataRcv
    : public krm::MessageOf<CKRMCSelectVehicleInfoCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv, "SelectVehicleInfo"> {
public:
    void Dump(const krm::MessageLines& line);

    CKRMList<CKRMCCommandVehicleInfoData> m_cVehicleInfoList;  ///< information that is settled
    CKRMList<CKRMCCommandVehicleInfoSelectData>
        m_cVehicleInfoSelectList;     ///< kinds of information that are open to choice
    unsigned char m_uchStatusId = 0;  ///< how far the selection has come; the codes are the engine's
};

#endif  // KRM_MESSAGES_DIAG_VEHICLE_H_
