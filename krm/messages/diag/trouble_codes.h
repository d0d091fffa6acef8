// Trouble codes (DTCs) and the details of a diagnosis, and the commands that read and clear them.
//
// Records come first, then the messages by command ID; the record of a code by itself is in trouble_code.h. What kinds,
// types, phases and sub-functions mean is the engine's; the library stores them unchanged.
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

/// One trouble code together with its freeze-frame items. The log shows what identifies the code, the items and the
/// status; the rest stays out on purpose.
class KRM_API CKRMCCommandDtcFfdData : public krm::RecordOf<CKRMCCommandDtcFfdData> {
public:
    void Dump(const krm::RecordLines& line);

    unsigned char m_uchDTCKind = 0;  ///< kind of code; the codes are the engine's
    krm_ulong m_ulDTCCode = 0;       ///< code as a number; logged in hexadecimal, unlike CKRMCCommandDTCData's
    CKRMString m_strDTC;             ///< code as displayed
    krm_ulong m_ulDTCNameId = 0;     ///< words ID of the code's name
    CKRMString m_strDTCName;         ///< text of the code's name
    signed char m_chFFDType = 0;     ///< type of its freeze frames; the codes are the engine's
    unsigned char m_uchFFDId = 0;    ///< ID of its freeze frame
    CKRMString m_strDtcFfdText;      ///< stored, copied and cleared only; not logged
    CKRMList<CKRMCCommandFFDData> m_cFFDList;  ///< items of the freeze frame
    unsigned char m_uchDTCType = 0;            ///< type of the code; not logged
    krm_ulong m_ulDTCTypeNameId = 0;           ///< words ID of the type's name; not logged
    CKRMString m_strDTCTypeName;               ///< text of the type's name; not logged
    unsigned char m_uchDTCStatus = 0;          ///< status of the code; the statuses are the engine's
    krm_ulong m_ulDTCStatusNameId = 0;         ///< words ID of the status's name; not logged
    CKRMString m_strDTCStatusName;             ///< text of the status's name; not logged
    bool m_bTripTime = false;                  ///< m_cTripTime is there; not logged
    bool m_bFailTripTime = false;              ///< reading the trip time failed; not logged
    CKRMCCommandFFDData m_cTripTime;           ///< trip time, as a freeze-frame item; not logged
    bool m_bAfterIgOnTime = false;             ///< m_cAfterIgOnTime is there; not logged
    bool m_bFailAfterIgOnTime = false;         ///< reading the time since ignition-on failed; not logged
    CKRMCCommandFFDData m_cAfterIgOnTime;      ///< time since ignition-on, as a freeze-frame item; not logged
    krm_ulong m_ulOriginalCountId = 0;         ///< ID of the count; not logged
    CKRMCCommandFFDData m_cClockType;          ///< type of the clock, as a freeze-frame item; not logged
    bool m_bStatusOfDTC = false;               ///< m_uchStatusOfDTC is valid; not logged
    unsigned char m_uchStatusOfDTC = 0;        ///< status byte as the ECU sent it; not logged
    krm_ulong m_ulDTCGroupId = 0;              ///< group of the code; not logged
    unsigned char m_uchSubFunction = 0;        ///< sub-function that it was read with; the codes are the engine's
};
extern template class CKRMList<CKRMCCommandDtcFfdData>;

/// One detail of a diagnosis and its values.
class KRM_API CKRMCCommandDiagDetailData : public krm::RecordOf<CKRMCCommandDiagDetailData> {
public:
    void Dump(const krm::RecordLines& line);

    krm_ulong m_ulDiagDetailId = 0;                       ///< ID of the detail; the IDs are the engine's
    krm_ulong m_ulDiagDetailCode = 0;                     ///< code of the detail; the codes are the engine's
    CKRMList<CKRMCCommandFFDData> m_cDiagDetailDataList;  ///< values of the detail, in the form of freeze-frame items
};
extern template class CKRMList<CKRMCCommandDiagDetailData>;

/// GetDTC asks for the trouble codes of a phase.
class KRM_API CKRMCGetDTCCmdAdaptDataSnd
    : public krm::MessageOf<CKRMCGetDTCCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd, "GetDTC"> {
public:
    void Dump(const krm::MessageLines& line);

    unsigned char m_uchPhaseType = 0;   ///< phase whose codes are asked for; the codes are the engine's
    unsigned char m_uchGetFFDType = 0;  ///< which freeze frames are asked for; the codes are the engine's
};

/// Answers GetDTC with the trouble codes and the readiness status.
class KRM_API CKRMCGetDTCCmdAdaptDataRcv
    : public krm::MessageOf<CKRMCGetDTCCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv, "GetDTC"> {
public:
    void Dump(const krm::MessageLines& line);

    CKRMList<CKRMCCommandDTCData> Data;  ///< trouble codes (DTCs)
    bool m_bDTCType = false;             ///< the codes have a type
    krm_ulong m_ulReadynessStatus = 0;   ///< readiness status; its meaning is the engine's
};

/// ClearDTC asks to clear the trouble codes.
class KRM_API CKRMCClearDTCCmdAdaptDataSnd
    : public krm::MessageOf<CKRMCClearDTCCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd, "ClearDTC"> {};

/// Answers ClearDTC with the result.
class KRM_API CKRMCClearDTCCmdAdaptDataRcv
    : public krm::MessageOf<CKRMCClearDTCCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv, "ClearDTC"> {
public:
    void Dump(const krm::MessageLines& line);

    krm_ulong m_ulResult = 0;  ///< result of the clearing; the codes are the engine's
};

/// GetDiagDetail asks for the details of a diagnosis.
class KRM_API CKRMCGetDiagDetailCmdAdaptDataSnd
    : public krm::MessageOf<CKRMCGetDiagDetailCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd, "GetDiagDetail"> {
public:
    void Dump(const krm::MessageLines& line);

    unsigned char m_uchFFDId = 0;  ///< ID of the freeze frame that the details belong to
};

/// Answers GetDiagDetail with the details.
class KRM_API CKRMCGetDiagDetailCmdAdaptDataRcv
    : public krm::MessageOf<CKRMCGetDiagDetailCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv, "GetDiagDetail"> {
public:
    void Dump(const krm::MessageLines& line);

    CKRMList<CKRMCCommandDiagDetailData> Data;  ///< details with their values
};

/// GetEOPInspectionResultMessage asks for the texts of an EOP inspection result.
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

    EOPData Data;  ///< result whose texts are asked for
};

/// Answers GetEOPInspectionResultMessage with the texts.
class KRM_API CKRMCGetEOPInspectionResultMessageCmdAdaptDataRcv
    : public krm::MessageOf<CKRMCGetEOPInspectionResultMessageCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv,
                            "GetEOPInspectionResultMessage"> {
public:
    void Dump(const krm::MessageLines& line);

    CKRMList<CKRMCCommandWordsData> Data;  ///< texts; written by the message, with their IDs as signed numbers
};

/// GetDtcFfd asks for the trouble codes together with their freeze frames.
class KRM_API CKRMCGetDtcFfdCmdAdaptDataSnd
    : public krm::MessageOf<CKRMCGetDtcFfdCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd, "GetDtcFfd"> {};

/// Answers GetDtcFfd with the trouble codes and their freeze-frame items.
class KRM_API CKRMCGetDtcFfdCmdAdaptDataRcv
    : public krm::MessageOf<CKRMCGetDtcFfdCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv, "GetDtcFfd"> {
public:
    void Dump(const krm::MessageLines& line);

    CKRMList<CKRMCCommandDtcFfdData> Data;  ///< trouble codes (DTCs), each with its freeze-frame items
};

#endif  // KRM_MESSAGES_DIAG_TROUBLE_CODES_H_
