// Checks of the communication on the CAN bus. Records come first, then the messages by command ID.
#ifndef KRM_MESSAGES_DIAG_CAN_BUS_H_
#define KRM_MESSAGES_DIAG_CAN_BUS_H_

#include "krm/core/list.h"
#include "krm/core/types.h"
#include "krm/framework/message.h"
#include "krm/platform/platform.h"

/// An ECU as a check of the CAN bus sees it. Has no dump: the message that holds it writes its fields.
class KRM_API CKRMCCommandCanBusCategoryInfo {
public:
    /// Restores the values of a new object.
    void Clear() { *this = CKRMCCommandCanBusCategoryInfo(); }

    krm_ulong m_ulEcuId = 0;                ///< ECU identifier, as requests carry it
    krm_ulong m_ulEcuNameId = 0;            ///< words ID of the ECU's name
    CKRMString m_strEcuName;                ///< text of the ECU's name
    krm_ulong m_ulCategoryId = 0;           ///< category of the ECU; the IDs are the engine's
    unsigned char m_uchHistPidSupport = 0;  ///< whether a PID gives the ECU's history; the codes are the engine's
};
template <>
inline constexpr bool krm::kCopiedInOneStep<CKRMCCommandCanBusCategoryInfo> = true;
extern template class CKRMList<CKRMCCommandCanBusCategoryInfo>;

/// The ECUs of one result of a check of the CAN bus.
class KRM_API CKRMCCommandCanBusCategoryListData {
public:
    /// Restores the values of a new object.
    void Clear() { *this = CKRMCCommandCanBusCategoryListData(); }

    CKRMList<CKRMCCommandCanBusCategoryInfo> Data;  ///< ECUs that the result is about
};
template <>
inline constexpr bool krm::kCopiedInOneStep<CKRMCCommandCanBusCategoryListData> = true;
extern template class CKRMList<CKRMCCommandCanBusCategoryListData>;

/// GetCanBusCategoryList asks for the ECUs whose communication can be checked.
class KRM_API CKRMCGetCanBusCategoryListCmdAdaptDataSnd
    : public krm::MessageOf<CKRMCGetCanBusCategoryListCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd,
                            "GetCanBusCategoryList"> {};

/// Answers GetCanBusCategoryList with the ECUs that can be checked.
class KRM_API CKRMCGetCanBusCategoryListCmdAdaptDataRcv
    : public krm::MessageOf<CKRMCGetCanBusCategoryListCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv,
                            "GetCanBusCategoryList"> {
public:
    void Dump(const krm::MessageLines& line);

    CKRMList<CKRMCCommandCanBusCategoryInfo> Data;  ///< ECUs that can be checked
};

/// GetCanBusCheckList asks to check the communication of ECUs.
class KRM_API CKRMCGetCanBusCheckListCmdAdaptDataSnd
    : public krm::MessageOf<CKRMCGetCanBusCheckListCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd, "GetCanBusCheckList"> {
public:
    void Dump(const krm::MessageLines& line);

    CKRMList<CKRMCCommandCanBusCategoryInfo> Data;  ///< ECUs to check, as GetCanBusCategoryList answers with them
};

/// Answers GetCanBusCheckList with the results of the check.
class KRM_API CKRMCGetCanBusCheckListCmdAdaptDataRcv
    : public krm::MessageOf<CKRMCGetCanBusCheckListCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv, "GetCanBusCheckList"> {
public:
    void Dump(const krm::MessageLines& line);

    CKRMList<CKRMCCommandCanBusCategoryListData> Info;  ///< current results
    CKRMList<CKRMCCommandCanBusCategoryListData> Hist;  ///< history of results
};

#endif  // KRM_MESSAGES_DIAG_CAN_BUS_H_
