// The oscilloscope: voltage ranges, time bases and channels.
//
// What channel, range and time IDs mean is the engine's.
#ifndef KRM_MESSAGES_DIAG_OSCILLOSCOPE_H_
#define KRM_MESSAGES_DIAG_OSCILLOSCOPE_H_

#include "krm/core/list.h"
#include "krm/core/types.h"
#include "krm/framework/message.h"
#include "krm/framework/record.h"
#include "krm/messages/diag/display.h"
#include "krm/platform/platform.h"

/// A voltage range of the oscilloscope: unit, conversion and resolution of its values.
class KRM_API CKRMCCommandOscData : public krm::RecordOf<CKRMCCommandOscData> {
public:
    void Dump(const krm::RecordLines& line);

    krm_ulong m_ulVolId = 0;             ///< voltage range ID; the first member, though logged after the decimal places
    krm_ulong m_ulUnitPhysId = 0;        ///< words ID of the physical unit
    CKRMString m_strUnitPhys;            ///< text of the physical unit
    krm_ulong m_ulUnitId = 0;            ///< words ID of the display unit
    CKRMString m_strUnit;                ///< text of the display unit
    krm_ulong m_ulOscReserved = 0;       ///< stored, copied and cleared only; not logged
    unsigned char m_uchDataType = 0;     ///< type of the value, as CreateConverter takes it
    unsigned char m_uchDecPntCount = 0;  ///< decimal places of the physical value
    unsigned char m_uchUnitConvDecPntCount = 0;   ///< decimal places after unit conversion
    CKRMCCommandConversionData m_cConversionTbl;  ///< conversion of a raw value
    CKRMCCommandDispData m_cResolutionData;       ///< smallest step, as a display value
};
extern template class CKRMList<CKRMCCommandOscData>;

/// A time base of the oscilloscope.
class KRM_API CKRMCCommandOscTimeInfo : public krm::RecordOf<CKRMCCommandOscTimeInfo> {
public:
    void Dump(const krm::RecordLines& line);

    unsigned short m_ushTimeId = 0;  ///< time base ID, as StartDataMonitor carries it
    krm_ulong m_ulSamplingHz = 0;    ///< sampling rate in hertz; logged unsigned
    krm_ulong m_ulRecordTime = 0;    ///< recording time; its unit is the engine's; logged unsigned
    bool m_bSyncFlag = false;        ///< sampling is synchronised
};
extern template class CKRMList<CKRMCCommandOscTimeInfo>;

/// GetOscilloscopeList asks for what the oscilloscope offers.
class KRM_API CKRMCGetOscilloscopeListCmdAdaptDataSnd
    : public krm::MessageOf<CKRMCGetOscilloscopeListCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd, "GetOscilloscopeList"> {
};

/// Answers GetOscilloscopeList with channels, voltage ranges and time bases.
class KRM_API CKRMCGetOscilloscopeListCmdAdaptDataRcv
    : public krm::MessageOf<CKRMCGetOscilloscopeListCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv, "GetOscilloscopeList"> {
public:
    void Dump(const krm::MessageLines& line);

    CKRMList<unsigned short> m_ushChList;           ///< channel IDs
    CKRMList<CKRMCCommandOscData> m_cVolList;       ///< voltage ranges to choose from
    CKRMList<CKRMCCommandOscTimeInfo> m_cTimeList;  ///< time bases to choose from
};

#endif  // KRM_MESSAGES_DIAG_OSCILLOSCOPE_H_
