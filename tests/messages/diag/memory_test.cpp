#include "krm/messages/diag/memory.h"

#include <gtest/gtest.h>

#include "tests/support/log_text.h"

namespace {

using krm::test::ExpectLog;

CKRMCCommandReadMemoryInfo Byte(krm_ulong address, unsigned char data, krm_ulong errorCode) {
    CKRMCCommandReadMemoryInfo info;
    info.m_ulAddress = address;
    info.m_uchData = data;
    info.m_ulErrorCode = errorCode;
    return info;
}

TEST(ReadMemoryInfo, WritesTenDigitsOfErrorEightOfAddressTwoOfData) {
    CKRMCCommandReadMemoryInfo byte = Byte(0x1234, 0x0A, 5);
    ExpectLog(byte, {R"(
P.m_ulAddress=0x00001234
P.m_uchData=0x0A
P.m_ulErrorCode=0000000005
)"});
}

TEST(ReadMemoryInfo, WritesTheLargestNumbersUnsigned) {
    CKRMCCommandReadMemoryInfo byte = Byte(4294967295U, 255, 4294967295U);
    ExpectLog(byte, {R"(
P.m_ulAddress=0xFFFFFFFF
P.m_uchData=0xFF
P.m_ulErrorCode=4294967295
)"});
}

TEST(ReadMemory, RequestWritesEachAddress) {
    CKRMCReadMemoryCmdAdaptDataSnd request;
    request.m_ulEcuId = 2016;
    request.m_ulAddressList.AddTail(0x1234);
    request.m_ulAddressList.AddTail(4294967295U);
    ExpectLog(request, {R"(
[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandType=1
[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandID=102
[CKRMCBaseCmdAdaptDataSnd::ErrWriteOperationLog] m_ulEcuId=2016
[CKRMCReadMemoryCmdAdaptDataSnd::ErrWriteOperationLog] m_ulAddressList[0]=0x00001234
[CKRMCReadMemoryCmdAdaptDataSnd::ErrWriteOperationLog] m_ulAddressList[1]=0xFFFFFFFF
)"});
}

TEST(ReadMemory, AnswerWritesEachByte) {
    CKRMCReadMemoryCmdAdaptDataRcv answer;
    answer.m_bNotSupport = true;
    answer.m_cReadMemoryInfoList.AddTail(Byte(0x1234, 0x0A, 0));
    answer.m_cReadMemoryInfoList.AddTail(Byte(0xFFFFFFFF, 0xFF, 5));
    ExpectLog(answer, {R"(
[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandType=1
[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandID=102
[CKRMCBaseCmdAdaptDataRcv::ErrWriteOperationLog] m_bNotSupport=1
[CKRMCReadMemoryCmdAdaptDataRcv::ErrWriteOperationLog] m_cReadMemoryInfoList[0].m_ulAddress=0x00001234
[CKRMCReadMemoryCmdAdaptDataRcv::ErrWriteOperationLog] m_cReadMemoryInfoList[0].m_uchData=0x0A
[CKRMCReadMemoryCmdAdaptDataRcv::ErrWriteOperationLog] m_cReadMemoryInfoList[0].m_ulErrorCode=0000000000
[CKRMCReadMemoryCmdAdaptDataRcv::ErrWriteOperationLog] m_cReadMemoryInfoList[1].m_ulAddress=0xFFFFFFFF
[CKRMCReadMemoryCmdAdaptDataRcv::ErrWriteOperationLog] m_cReadMemoryInfoList[1].m_uchData=0xFF
[CKRMCReadMemoryCmdAdaptDataRcv::ErrWriteOperationLog] m_cReadMemoryInfoList[1].m_ulErrorCode=0000000005
)"});
}

TEST(WriteMemory, RequestWritesAddressAndByte) {
    CKRMCWriteMemoryCmdAdaptDataSnd request;
    request.m_ulEcuId = 2016;
    request.m_ulAddress = 0x1234;
    request.m_uchData = 0x0A;
    ExpectLog(request, {R"(
[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandType=1
[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandID=103
[CKRMCBaseCmdAdaptDataSnd::ErrWriteOperationLog] m_ulEcuId=2016
[CKRMCWriteMemoryCmdAdaptDataSnd::ErrWriteOperationLog] m_ulAddress=0x00001234
[CKRMCWriteMemoryCmdAdaptDataSnd::ErrWriteOperationLog] m_uchData=0x0A
)"});
}

TEST(WriteMemory, AnswerWritesTenDigitsOfError) {
    CKRMCWriteMemoryCmdAdaptDataRcv answer;
    answer.m_ulErrorCode = 5;
    ExpectLog(answer, {R"(
[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandType=1
[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandID=103
[CKRMCBaseCmdAdaptDataRcv::ErrWriteOperationLog] m_bNotSupport=0
[CKRMCWriteMemoryCmdAdaptDataRcv::ErrWriteOperationLog] m_ulErrorCode=0000000005
)"});
}

}  // namespace
