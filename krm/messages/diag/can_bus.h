// Checks of the CAN bus: which ECUs are on it, and which answer.
#ifndef KRM_MESSAGES_DIAG_CAN_BUS_H_
#define KRM_MESSAGES_DIAG_CAN_BUS_H_

#include "krm/core/list.h"
#include "krm/core/types.h"
#include "krm/framework/message.h"
#include "krm/platform/platform.h"

/// An ECU on the CAN bus, as a check of the bus sees it.
class KRM_API CKRMCCommandCanBusCategoryInfo {
public:
    /// Restores the values of a new object.
    void Clear() { *this = CKRMCCommandCanBusCategoryInfo(); }

    krm_ulong m_ulEcuId = 0;                ///< ECU identifier
    krm_ulong m_ulEcuNameId = 0;            ///< words ID of the ECU's name
    CKRMString m_strEcuName;                ///< the ECU's name
    krm_ulong m_ulCategoryId = 0;           ///< category ID; the IDs are the engine's
    unsigned char m_uchHistPidSupport = 0;  ///< whether the ECU has a PID for its history; the codes are the engine's
};
extern template class CKRMList<CKRMCCommandCanBusCategoryInfo>;

/// The ECUs of one result of a check of the CAN bus.
class KRM_API CKRMCCommandCanBusCategoryListData {
public:
    /// Restores the values of a new object.
    void Clear() { *this = CKRMCCommandCanBusCategoryListData(); }

    CKRMList<CKRMCCommandCanBusCategoryInfo> Data;  ///< ECUs
};
extern template class CKRMList<CKRMCCommandCanBusCategoryListData>;

/// GetCanBusCategoryList asks for the ECUs whose communication can be checked.
class KRM_API CKRMCGetCanBusCategoryListCmdAdaptDataSnd
    : public krm::MessageOf<CKRMCGetCanBusCategoryListCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd,
                            "GetCanBusCategoryList"> {};

/// Answers with those ECUs.
class KRM_API CKRMCGetCanBusCategoryListCmdAdaptDataRcv
    : public krm::MessageOf<CKRMCGetCanBusCategoryListCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv,
                            "GetCanBusCategoryList"> {
public:
    void Dump(const krm::MessageLines& line);

    CKRMList<CKRMCCommandCanBusCategoryInfo> Data;  ///< ECUs
};

/// GetCanBusCheckList asks to check the communication of the given ECUs.
class KRM_API CKRMCGetCanBusCheckListCmdAdaptDataSnd
    : public krm::MessageOf<CKRMCGetCanBusCheckListCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd, "GetCanBusCheckList"> {
public:
    void Dump(const krm::MessageLines& line);

    CKRMList<CKRMCCommandCanBusCategoryInfo> Data;  ///< ECUs to check
};

/// Answers with what the check found.
class KRM_API CKRMCGetCanBusCheckListCmdAdaptDataRcv
    : public krm::MessageOf<CKRMCGetCanBusCheckListCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv, "GetCanBusCheckList"> {
public:
    void Dump(const krm::MessageLines& line);

    CKRMList<CKRMCCommandCanBusCategoryListData> Info;  ///< current results
    CKRMList<CKRMCCommandCanBusCategoryListData> Hist;  ///< history
};

#endif  // KRM_MESSAGES_DIAG_CAN_BUS_H_
