// Reading and writing ECU memory.
#ifndef KRM_MESSAGES_DIAG_MEMORY_H_
#define KRM_MESSAGES_DIAG_MEMORY_H_

#include "krm/core/list.h"
#include "krm/core/types.h"
#include "krm/framework/message.h"
#include "krm/framework/record.h"
#include "krm/platform/platform.h"

/// One byte of ECU memory as it was read; each address has its own result.
class KRM_API CKRMCCommandReadMemoryInfo : public krm::RecordOf<CKRMCCommandReadMemoryInfo> {
public:
    void Dump(const krm::RecordLines& line);

    krm_ulong m_ulAddress = 0;    ///< memory address; logged in hexadecimal
    unsigned char m_uchData = 0;  ///< byte that was read; logged in hexadecimal
    krm_ulong m_ulErrorCode = 0;  ///< result of the read; logged with ten digits
};
extern template class CKRMList<CKRMCCommandReadMemoryInfo>;

/// ReadMemory asks for the bytes at memory addresses.
class KRM_API CKRMCReadMemoryCmdAdaptDataSnd
    : public krm::MessageOf<CKRMCReadMemoryCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd, "ReadMemory"> {
public:
    void Dump(const krm::MessageLines& line);

    CKRMList<krm_ulong> m_ulAddressList;  ///< memory addresses, one per byte; logged in hexadecimal
};

/// Answers ReadMemory with a record per address.
class KRM_API CKRMCReadMemoryCmdAdaptDataRcv
    : public krm::MessageOf<CKRMCReadMemoryCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv, "ReadMemory"> {
public:
    void Dump(const krm::MessageLines& line);

    CKRMList<CKRMCCommandReadMemoryInfo> m_cReadMemoryInfoList;  ///< bytes read, each with its result
};

/// WriteMemory asks to write one byte of memory.
class KRM_API CKRMCWriteMemoryCmdAdaptDataSnd
    : public krm::MessageOf<CKRMCWriteMemoryCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd, "WriteMemory"> {
public:
    void Dump(const krm::MessageLines& line);

    krm_ulong m_ulAddress = 0;    ///< memory address; logged in hexadecimal
    unsigned char m_uchData = 0;  ///< byte to write; logged in hexadecimal
};

/// Answers WriteMemory with the result.
class KRM_API CKRMCWriteMemoryCmdAdaptDataRcv
    : public krm::MessageOf<CKRMCWriteMemoryCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv, "WriteMemory"> {
public:
    void Dump(const krm::MessageLines& line);

    krm_ulong m_ulErrorCode = 0;  ///< result of the write; logged with ten digits
};

#endif  // KRM_MESSAGES_DIAG_MEMORY_H_
