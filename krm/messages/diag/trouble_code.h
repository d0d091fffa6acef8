// A trouble code (DTC) with its texts, status and times, as GetDTC and the cancel codes answer with it.
#ifndef KRM_MESSAGES_DIAG_TROUBLE_CODE_H_
#define KRM_MESSAGES_DIAG_TROUBLE_CODE_H_

#include "krm/core/list.h"
#include "krm/core/types.h"
#include "krm/framework/record.h"
#include "krm/messages/diag/freeze_frame_item.h"
#include "krm/platform/platform.h"

/// One trouble code: its texts, kind and status, and the times at which it was stored.
class KRM_API CKRMCCommandDTCData : public krm::RecordOf<CKRMCCommandDTCData> {
public:
    void Dump(const krm::RecordLines& line);

    unsigned char m_uchDTCKind = 0;        ///< kind of code
    krm_ulong m_ulDTCCode = 0;             ///< the code as a number; logged in decimal
    CKRMString m_strDTC;                   ///< the code as displayed
    krm_ulong m_ulDTCNameId = 0;           ///< words ID of the code's name
    CKRMString m_strDTCName;               ///< the code's name
    krm_ulong m_ulDTCDivNameId = 0;        ///< words ID of the division's name
    CKRMString m_strDTCDivName;            ///< the division's name
    signed char m_chFFDType = 0;           ///< freeze-frame type
    unsigned char m_uchFFDId = 0;          ///< freeze-frame ID
    CKRMString m_strComment;               ///< comment
    CKRMList<unsigned char> m_uchSSRNo;    ///< SSR numbers
    CKRMList<unsigned char> m_uchSDRNo;    ///< SDR numbers
    unsigned char m_uchDTCType = 0;        ///< type of the code
    krm_ulong m_ulDTCTypeNameId = 0;       ///< words ID of the type's name
    CKRMString m_strDTCTypeName;           ///< the type's name
    krm_ulong m_ulDTCTypeToolId = 0;       ///< words ID of the type's text for the tool
    CKRMString m_strDTCTypeTool;           ///< the type's text for the tool
    unsigned char m_uchDTCStatus = 0;      ///< status of the code
    krm_ulong m_ulDTCStatusNameId = 0;     ///< words ID of the status' name
    CKRMString m_strDTCStatusName;         ///< the status' name
    krm_ulong m_ulDTCStatusToolId = 0;     ///< words ID of the status' text for the tool
    CKRMString m_strDTCStatusTool;         ///< the status' text for the tool
    bool m_bTripTime = false;              ///< the trip time is there
    bool m_bFailTripTime = false;          ///< reading the trip time failed
    CKRMCCommandFFDData m_cTripTime;       ///< trip time
    bool m_bAfterIgOnTime = false;         ///< the time since ignition-on is there
    bool m_bFailAfterIgOnTime = false;     ///< reading the time since ignition-on failed
    CKRMCCommandFFDData m_cAfterIgOnTime;  ///< time since ignition-on
    krm_ulong m_ulOriginalCountId = 0;     ///< count ID
    CKRMCCommandFFDData m_cClockType;      ///< type of the clock
    bool m_bStatusOfDTC = false;           ///< m_uchStatusOfDTC is valid
    unsigned char m_uchStatusOfDTC = 0;    ///< raw status byte of the code
    krm_ulong m_ulDTCGroupId = 0;          ///< group ID
};
extern template class CKRMList<CKRMCCommandDTCData>;

#endif  // KRM_MESSAGES_DIAG_TROUBLE_CODE_H_
