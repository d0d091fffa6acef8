// A trouble code (DTC) with its texts, status and times, as GetDTC and the cancel codes answer with it.
#ifndef KRM_MESSAGES_DIAG_TROUBLE_CODE_H_
#define KRM_MESSAGES_DIAG_TROUBLE_CODE_H_

#include "krm/core/list.h"
#include "krm/core/types.h"
#include "krm/framework/record.h"
#include "krm/messages/diag/freeze_frame_item.h"
#include "krm/platform/platform.h"

/// One trouble code: its texts, kind and status, and three embedded time items.
class KRM_API CKRMCCommandDTCData : public krm::RecordOf<CKRMCCommandDTCData> {
public:
    void Dump(const krm::RecordLines& line);

    unsigned char m_uchDTCKind = 0;        ///< kind of code; the codes are the engine's
    krm_ulong m_ulDTCCode = 0;             ///< code as a number; logged in decimal
    CKRMString m_strDTC;                   ///< code as displayed
    krm_ulong m_ulDTCNameId = 0;           ///< words ID of the code's name
    CKRMString m_strDTCName;               ///< text of the code's name
    krm_ulong m_ulDTCDivNameId = 0;        ///< words ID of the division's name
    CKRMString m_strDTCDivName;            ///< text of the division's name
    signed char m_chFFDType = 0;           ///< type of its freeze frames; the codes are the engine's
    unsigned char m_uchFFDId = 0;          ///< ID of its freeze frame
    CKRMString m_strComment;               ///< comment on the code
    CKRMList<unsigned char> m_uchSSRNo;    ///< list of SSR numbers, of any length
    CKRMList<unsigned char> m_uchSDRNo;    ///< list of SDR numbers, of any length
    unsigned char m_uchDTCType = 0;        ///< type of the code; the types are the engine's
    krm_ulong m_ulDTCTypeNameId = 0;       ///< words ID of the type's name
    CKRMString m_strDTCTypeName;           ///< text of the type's name
    krm_ulong m_ulDTCTypeToolId = 0;       ///< words ID of the type's text for the tool
    CKRMString m_strDTCTypeTool;           ///< text of the type for the tool
    unsigned char m_uchDTCStatus = 0;      ///< status of the code; the statuses are the engine's
    krm_ulong m_ulDTCStatusNameId = 0;     ///< words ID of the status's name
    CKRMString m_strDTCStatusName;         ///< text of the status's name
    krm_ulong m_ulDTCStatusToolId = 0;     ///< words ID of the status's text for the tool
    CKRMString m_strDTCStatusTool;         ///< text of the status for the tool
    bool m_bTripTime = false;              ///< m_cTripTime is there
    bool m_bFailTripTime = false;          ///< reading the trip time failed
    CKRMCCommandFFDData m_cTripTime;       ///< trip time, as a freeze-frame item
    bool m_bAfterIgOnTime = false;         ///< m_cAfterIgOnTime is there
    bool m_bFailAfterIgOnTime = false;     ///< reading the time since ignition-on failed
    CKRMCCommandFFDData m_cAfterIgOnTime;  ///< time since ignition-on, as a freeze-frame item
    krm_ulong m_ulOriginalCountId = 0;     ///< ID of the count; the IDs are the engine's
    CKRMCCommandFFDData m_cClockType;      ///< type of the clock, as a freeze-frame item
    bool m_bStatusOfDTC = false;           ///< m_uchStatusOfDTC is valid
    unsigned char m_uchStatusOfDTC = 0;    ///< status byte as the ECU sent it
    krm_ulong m_ulDTCGroupId = 0;          ///< group of the code; the IDs are the engine's
};
extern template class CKRMList<CKRMCCommandDTCData>;

#endif  // KRM_MESSAGES_DIAG_TROUBLE_CODE_H_
