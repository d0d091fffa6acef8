// Trouble codes (DTCs) and the details of a diagnosis, and the commands that read and clear them.
//
// The meaning of the codes in kind, type, phase and sub-function fields is the engine's; the library stores them unchanged.
#ifndef KRM_MESSAGES_DIAG_TROUBLE_CODES_H_
#define KRM_MESSAGES_DIAG_TROUBLE_CODES_H_

#include "krm/core/list.h"
#include "krm/core/types.h"
#include "krm/framework/message.h"
#include "krm/framework/record.h"
#include "krm/messages/diag/freeze_frame_item.h"
#include "krm/messages/diag/trouble_code.h"
#include "krm/messages/diag/words.h"
#include "krm/platform/platform.h"

/// One trouble code together with its freeze-frame items. The log shows the code, the items and the status only.
class KRM_API CKRMCCommandDtcFfdData : public krm::RecordOf<CKRMCCommandDtcFfdData> {
public:
    void Dump(const krm::RecordLines& line);

    unsigned char m_uchDTCKind = 0;            ///< kind of code
    krm_ulong m_ulDTCCode = 0;                 ///< the code as a number; logged in hexadecimal
    CKRMString m_strDTC;                       ///< the code as displayed
    krm_ulong m_ulDTCNameId = 0;               ///< words ID of the code's name
    CKRMString m_strDTCName;                   ///< the code's name
    signed char m_chFFDType = 0;               ///< freeze-frame type
    unsigned char m_uchFFDId = 0;              ///< freeze-frame ID
    CKRMString m_strDtcFfdText;                ///< stored and copied, never logged
    CKRMList<CKRMCCommandFFDData> m_cFFDList;  ///< the freeze-frame items
    unsigned char m_uchDTCType = 0;            ///< type of the code; not logged
    krm_ulong m_ulDTCTypeNameId = 0;           ///< words ID of the type's name; not logged
    CKRMString m_strDTCTypeName;               ///< the type's name; not logged
    unsigned char m_uchDTCStatus = 0;          ///< status of the code
    krm_ulong m_ulDTCStatusNameId = 0;         ///< words ID of the status' name; not logged
    CKRMString m_strDTCStatusName;             ///< the status' name; not logged
    bool m_bTripTime = false;                  ///< the trip time is there; not logged
    bool m_bFailTripTime = false;              ///< reading the trip time failed; not logged
    CKRMCCommandFFDData m_cTripTime;           ///< trip time; not logged
    bool m_bAfterIgOnTime = false;             ///< the time since ignition-on is there; not logged
    bool m_bFailAfterIgOnTime = false;         ///< reading the time since ignition-on failed; not logged
    CKRMCCommandFFDData m_cAfterIgOnTime;      ///< time since ignition-on; not logged
    krm_ulong m_ulOriginalCountId = 0;         ///< count ID; not logged
    CKRMCCommandFFDData m_cClockType;          ///< type of the clock; not logged
    bool m_bStatusOfDTC = false;               ///< m_uchStatusOfDTC is valid; not logged
    unsigned char m_uchStatusOfDTC = 0;        ///< raw status byte of the code; not logged
    krm_ulong m_ulDTCGroupId = 0;              ///< group ID; not logged
    unsigned char m_uchSubFunction = 0;        ///< sub-function
};
extern template class CKRMList<CKRMCCommandDtcFfdData>;

/// One detail of a diagnosis and its items.
class KRM_API CKRMCCommandDiagDetailData : public krm::RecordOf<CKRMCCommandDiagDetailData> {
public:
    void Dump(const krm::RecordLines& line);

    krm_ulong m_ulDiagDetailId = 0;                       ///< detail ID
    krm_ulong m_ulDiagDetailCode = 0;                     ///< detail code
    CKRMList<CKRMCCommandFFDData> m_cDiagDetailDataList;  ///< the detail's items
};
extern template class CKRMList<CKRMCCommandDiagDetailData>;

/// Asks for the trouble codes.
class KRM_API CKRMCGetDTCCmdAdaptDataSnd
    : public krm::MessageOf<CKRMCGetDTCCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd, "GetDTC"> {
public:
    void Dump(const krm::MessageLines& line);

    unsigned char m_uchPhaseType = 0;   ///< phase whose codes are asked for
    unsigned char m_uchGetFFDType = 0;  ///< which freeze frames are asked for
};

/// Answers with the trouble codes.
class KRM_API CKRMCGetDTCCmdAdaptDataRcv
    : public krm::MessageOf<CKRMCGetDTCCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv, "GetDTC"> {
public:
    void Dump(const krm::MessageLines& line);

    CKRMList<CKRMCCommandDTCData> Data;  ///< the trouble codes
    bool m_bDTCType = false;             ///< the codes have a type
    krm_ulong m_ulReadynessStatus = 0;   ///< readiness status
};

/// Asks to clear the trouble codes.
class KRM_API CKRMCClearDTCCmdAdaptDataSnd
    : public krm::MessageOf<CKRMCClearDTCCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd, "ClearDTC"> {};

/// Answers whether they were cleared.
class KRM_API CKRMCClearDTCCmdAdaptDataRcv
    : public krm::MessageOf<CKRMCClearDTCCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv, "ClearDTC"> {
public:
    void Dump(const krm::MessageLines& line);

    krm_ulong m_ulResult = 0;  ///< result, a code of the engine's
};

/// Asks for the details of a diagnosis.
class KRM_API CKRMCGetDiagDetailCmdAdaptDataSnd
    : public krm::MessageOf<CKRMCGetDiagDetailCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd, "GetDiagDetail"> {
public:
    void Dump(const krm::MessageLines& line);

    unsigned char m_uchFFDId = 0;  ///< freeze-frame ID
};

/// Answers with the details.
class KRM_API CKRMCGetDiagDetailCmdAdaptDataRcv
    : public krm::MessageOf<CKRMCGetDiagDetailCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv, "GetDiagDetail"> {
public:
    void Dump(const krm::MessageLines& line);

    CKRMList<CKRMCCommandDiagDetailData> Data;  ///< the details
};

/// Asks for the texts of an EOP inspection result.
class KRM_API CKRMCGetEOPInspectionResultMessageCmdAdaptDataSnd
    : public krm::MessageOf<CKRMCGetEOPInspectionResultMessageCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd,
                            "GetEOPInspectionResultMessage"> {
public:
    /// What is asked for. A plain value.
    struct EOPData {
        /// Restores the values of a new object.
        void Clear() { *this = EOPData(); }

        krm_ulong m_ulEOPData = 0;  ///< the inspection; a number of the engine's
    };

    void Dump(const krm::MessageLines& line);

    EOPData Data;  ///< what is asked for
};

/// Answers with the texts.
class KRM_API CKRMCGetEOPInspectionResultMessageCmdAdaptDataRcv
    : public krm::MessageOf<CKRMCGetEOPInspectionResultMessageCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv,
                            "GetEOPInspectionResultMessage"> {
public:
    void Dump(const krm::MessageLines& line);

    CKRMList<CKRMCCommandWordsData> Data;  ///< the texts
};

/// Asks for the trouble codes together with their freeze frames.
class KRM_API CKRMCGetDtcFfdCmdAdaptDataSnd
    : public krm::MessageOf<CKRMCGetDtcFfdCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd, "GetDtcFfd"> {};

/// Answers with both.
class KRM_API CKRMCGetDtcFfdCmdAdaptDataRcv
    : public krm::MessageOf<CKRMCGetDtcFfdCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv, "GetDtcFfd"> {
public:
    void Dump(const krm::MessageLines& line);

    CKRMList<CKRMCCommandDtcFfdData> Data;  ///< the trouble codes
};

#endif  // KRM_MESSAGES_DIAG_TROUBLE_CODES_H_
