// The oscilloscope's channels, voltage ranges and time bases; reading and writing ECU memory; the values that are
// written to items.
//
// Records come first, then the messages by command ID. What channel, range and item IDs and value types mean is the
// engine's.
#ifndef KRM_MESSAGES_DIAG_OSCILLOSCOPE_MEMORY_H_
#define KRM_MESSAGES_DIAG_OSCILLOSCOPE_MEMORY_H_

#include "krm/core/list.h"
#include "krm/framework/message.h"
#include "krm/framework/record.h"
#include "krm/messages/diag/display.h"
#include "krm/platform/platform.h"

/// An oscilloscope channel with the voltage range that is chosen for it.
class KRM_API CKRMCCommandOscInfo : public RecordOf<CKRMCCommandOscInfo> {
public:
    ~CKRMCCommandOscInfo() override;
    void Dump(const krm::RecordLines& line);

    unsigned short m_ushChId = 0;  ///< channel ID
    krm_ulong m_ulVolId = 0;       ///< voltage range ID
};
extern template class CKRMList<CKRMCCommandOscInfo>;

/// A voltage range of the oscilloscope: unit, conversion and resolution of its values.
class KRM_API CKRMCCommandOscData : public RecordOf<CKRMCCommandOscData> {
public:
    ~CKRMCCommandOscData() override;
    void Dump(const krm::RecordLines& line);

    krm_ulong m_ulVolId = 0;       ///< voltage range ID; the first member, though logged after the decimal places
    krm_ulong m_ulUnitPhysId = 0;  ///< words ID of the physical unit
    CKRMString m_strUnitPhys;
    krm_ulong m_ulUnitId = 0;  ///< words ID of the display unit
    CKRMString m_strUnit;
    krm_ulong m_ulOscReserved = 0;                ///< stored and copied, never logged
    unsigned char m_uchDataType = 0;              ///< data type of the value, as the converters take it
    unsigned char m_uchDecPntCount = 0;           ///< decimal places of the value
    unsigned char m_uchUnitConvDecPntCount = 0;   ///< decimal places after unit conversion
    CKRMCCommandConversionData m_cConversionTbl;  ///< conversion rule
    CKRMCCommandDispData m_cResolutionData;       ///< resolution as a display value
};
extern template class CKRMList<CKRMCCommandOscData>;

/// A time base of the oscilloscope.
class KRM_API CKRMCCommandOscTimeInfo : public RecordOf<CKRMCCommandOscTimeInfo> {
public:
    ~CKRMCCommandOscTimeInfo() override;
    void Dump(const krm::RecordLines& line);

    unsigned short m_ushTimeId = 0;  ///< time base ID
    krm_ulong m_ulSamplingHz = 0;    ///< sampling rate in hertz
    krm_ulong m_ulRecordTime = 0;    ///< recording time; its unit is the engine's
    bool m_bSyncFlag = false;        ///< synchronised sampling
};
extern template class CKRMList<CKRMCCommandOscTimeInfo>;

/// One byte of ECU memory as it was read; each address has its own result.
class KRM_API CKRMCCommandReadMemoryInfo : public RecordOf<CKRMCCommandReadMemoryInfo> {
public:
    ~CKRMCCommandReadMemoryInfo() override;
    void Dump(const krm::RecordLines& line);

    krm_ulong m_ulAddress = 0;
    unsigned char m_uchData = 0;  ///< the byte
    krm_ulong m_ulErrorCode = 0;  ///< result of the read
};
extern template class CKRMList<CKRMCCommandReadMemoryInfo>;

/// A value to be written to an item.
class KRM_API CKRMCCommandWriteData : public RecordOf<CKRMCCommandWriteData> {
public:
    ~CKRMCCommandWriteData() override;
    void Dump(const krm::RecordLines& line);

    unsigned short m_ushId = 0;   ///< item ID
    unsigned char m_uchType = 0;  ///< value type
    krm_ulong m_ulData = 0;       ///< the value
};
extern template class CKRMList<CKRMCCommandWriteData>;

/// GetOscilloscopeList asks what the oscilloscope offers.
class KRM_API CKRMCGetOscilloscopeListCmdAdaptDataSnd
    : public MessageOf<CKRMCGetOscilloscopeListCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd,
                       krm::CommandId(krm::CommandFamily::Diagnostic, "GetOscilloscopeList")> {
public:
    ~CKRMCGetOscilloscopeListCmdAdaptDataSnd() override;
};

/// Answers with channels, voltage ranges and time bases.
class KRM_API CKRMCGetOscilloscopeListCmdAdaptDataRcv
    : public MessageOf<CKRMCGetOscilloscopeListCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv,
                       krm::CommandId(krm::CommandFamily::Diagnostic, "GetOscilloscopeList")> {
public:
    krm_long ErrWriteOperationLog() override;

    CKRMList<unsigned short> m_ushChList;           ///< channel IDs
    CKRMList<CKRMCCommandOscData> m_cVolList;       ///< voltage ranges
    CKRMList<CKRMCCommandOscTimeInfo> m_cTimeList;  ///< time bases
};

/// ReadMemory asks for the bytes at these addresses.
class KRM_API CKRMCReadMemoryCmdAdaptDataSnd
    : public MessageOf<CKRMCReadMemoryCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd,
                       krm::CommandId(krm::CommandFamily::Diagnostic, "ReadMemory")> {
public:
    krm_long ErrWriteOperationLog() override;

    CKRMList<krm_ulong> m_ulAddressList;  ///< one address per byte
};

/// Answers with a record per address.
class KRM_API CKRMCReadMemoryCmdAdaptDataRcv
    : public MessageOf<CKRMCReadMemoryCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv,
                       krm::CommandId(krm::CommandFamily::Diagnostic, "ReadMemory")> {
public:
    krm_long ErrWriteOperationLog() override;

    CKRMList<CKRMCCommandReadMemoryInfo> m_cReadMemoryInfoList;
};

/// WriteMemory asks to write one byte.
class KRM_API CKRMCWriteMemoryCmdAdaptDataSnd
    : public MessageOf<CKRMCWriteMemoryCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd,
                       krm::CommandId(krm::CommandFamily::Diagnostic, "WriteMemory")> {
public:
    krm_long ErrWriteOperationLog() override;

    krm_ulong m_ulAddress = 0;
    unsigned char m_uchData = 0;  ///< the byte
};

/// Answers with the result.
class KRM_API CKRMCWriteMemoryCmdAdaptDataRcv
    : public MessageOf<CKRMCWriteMemoryCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv,
                       krm::CommandId(krm::CommandFamily::Diagnostic, "WriteMemory")> {
public:
    krm_long ErrWriteOperationLog() override;

    krm_ulong m_ulErrorCode = 0;  ///< result of the write
};

#endif  // KRM_MESSAGES_DIAG_OSCILLOSCOPE_MEMORY_H_
