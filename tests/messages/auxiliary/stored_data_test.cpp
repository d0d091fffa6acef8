#include "krm/messages/auxiliary/stored_data.h"

#include <gmock/gmock.h>

#include <cstddef>
#include <cstring>
#include <new>
#include <string>

#include "krm/fields/auxiliary/stored_data.h"
#include "tests/support/fields.h"
#include "tests/support/log_capture.h"
#include "tests/support/log_text.h"

namespace {

using krm::test::Described;
using krm::test::ExpectLog;
using krm::test::Fill;
using krm::test::IsZero;
using krm::test::LogCapture;
using krm::test::Seed;
using testing::IsEmpty;

static_assert(sizeof(CKRMCStoredDataSystemTime) == 16, "16 bytes and nothing else");

static_assert(sizeof(CKRMCStoredDataTimestamp) == 14, "two stamps of 7 bytes and nothing else");

TEST(StoredData, ClearLeavesTheNumberOfAFreezeFrame) {
    CKRMCStoredDataFFD frame;
    Seed seed(612);
    Fill(frame, seed);
    frame.m_ushFFDNo = 4711;
    frame.Clear();
    EXPECT_EQ(frame.m_ushFFDNo, 4711);
    EXPECT_EQ(frame.m_uchFFDId, 0);
    EXPECT_EQ(frame.m_uchFFDType, 0);
    EXPECT_EQ(frame.m_uchSubFunction, 0);
    EXPECT_TRUE(IsZero(frame.m_cFirstFFD));
    EXPECT_TRUE(IsZero(frame.m_cSecondFFD));
    EXPECT_TRUE(IsZero(frame.m_cDiagDetail));
    EXPECT_EQ(frame.m_cFirstFFD.GetCommandID(), CKRMCGetFFDCmdAdaptDataRcv::kCommandId);
    EXPECT_EQ(frame.m_cSecondFFD.GetCommandID(), CKRMCGetFFDCmdAdaptDataRcv::kCommandId);
    EXPECT_EQ(frame.m_cDiagDetail.GetCommandID(), CKRMCGetDiagDetailCmdAdaptDataRcv::kCommandId);
}

TEST(StoredData, TheConstructorLeavesTheNumberOfAFreezeFrame) {
    // A constructor that the compiler wrote in the class, or an initialiser, would store into these bytes.
    alignas(CKRMCStoredDataFFD) std::byte memory[sizeof(CKRMCStoredDataFFD)];
    std::memset(memory, 0xA5, sizeof memory);
    auto* const frame = new (memory) CKRMCStoredDataFFD();
    EXPECT_EQ(frame->m_ushFFDNo, 0xA5A5);
    EXPECT_EQ(frame->m_uchFFDId, 0);
    frame->~CKRMCStoredDataFFD();
}

TEST(StoredData, CopiesCarryTheNumberOfAFreezeFrame) {
    CKRMCStoredDataFFD frame;
    frame.m_ushFFDNo = 65535;
    const CKRMCStoredDataFFD copy(frame);
    EXPECT_EQ(copy.m_ushFFDNo, 65535);
    CKRMList<CKRMCStoredDataFFD> list;
    list.AddTail(frame);
    EXPECT_EQ(list[0].m_ushFFDNo, 65535);
}

TEST(StoredData, EmbeddedAnswersStartAsTheirCommandsDo) {
    CKRMCStoredDataSystemData system;
    EXPECT_EQ(system.m_cDTC.GetCommandType(), CKRMCGetDTCCmdAdaptDataRcv::kCommandType);
    EXPECT_EQ(system.m_cDTC.GetCommandID(), CKRMCGetDTCCmdAdaptDataRcv::kCommandId);
    EXPECT_EQ(system.m_cIsAbsFFD.GetCommandID(), CKRMCIsAbsFFDCmdAdaptDataRcv::kCommandId);
    EXPECT_EQ(system.m_cDataMonitorValue.GetCommandID(), CKRMCGetDataMonitorValueCmdAdaptDataRcv::kCommandId);
    EXPECT_EQ(CKRMCStoredDataAbsFFD().m_cFFD.GetCommandID(), CKRMCGetFFDCmdAdaptDataRcv::kCommandId);
    EXPECT_EQ(CKRMCStoredDataImportFileInfo().m_cVehicle.GetCommandID(),
              CKRMCVehicleDecisionCmdAdaptDataRcv::kCommandId);
    EXPECT_EQ(CKRMCStoredDataImportFileData().m_cVehicle.GetCommandID(),
              CKRMCVehicleDecisionCmdAdaptDataRcv::kCommandId);
}

template <class T>
class StoredDataMessage : public testing::Test {};
using Messages = testing::Types<CKRMCGetImportFileInfoDsdiAdaptDataSnd, CKRMCGetImportFileInfoDsdiAdaptDataRcv,
                                CKRMCGetImportStoredDataDsdiAdaptDataSnd, CKRMCGetImportStoredDataDsdiAdaptDataRcv>;
TYPED_TEST_SUITE(StoredDataMessage, Messages);

TYPED_TEST(StoredDataMessage, WritesNothing) {
    LogCapture log(-1);
    TypeParam message;
    EXPECT_EQ(message.ErrWriteOperationLog(), 0);
    Seed seed(613);
    Fill(message, seed);
    CKRMCBaseDsdiAdaptData& base = message;
    EXPECT_EQ(base.ErrWriteOperationLog(), 0);
    EXPECT_THAT(log.Texts(), IsEmpty());
}

TEST(StoredData, TheBasesOfTheFamilyStillWrite) {
    CKRMCBaseDsdiAdaptDataSnd request(2);
    request.m_ulEcuId = 7;
    ExpectLog(request, {R"(
[CKRMCBaseDsdiAdaptData::ErrWriteOperationLog] m_dwCommandType=8
[CKRMCBaseDsdiAdaptData::ErrWriteOperationLog] m_dwCommandID=2
[CKRMCBaseDsdiAdaptDataSnd::ErrWriteOperationLog] m_ulEcuId=7
)"});
    CKRMCBaseDsdiAdaptDataRcv answer(2);
    ExpectLog(answer, {R"(
[CKRMCBaseDsdiAdaptData::ErrWriteOperationLog] m_dwCommandType=8
[CKRMCBaseDsdiAdaptData::ErrWriteOperationLog] m_dwCommandID=2
)"});
}

TEST(StoredData, ClearOfTheAnswerKeepsTheFilesContent) {
    CKRMCGetImportStoredDataDsdiAdaptDataRcv answer;
    Seed seed(615);
    Fill(answer, seed);
    const std::string filled = Described(answer);
    answer.SetCommandID(99);
    answer.Clear();
    EXPECT_EQ(answer.GetCommandID(), CKRMCGetImportStoredDataDsdiAdaptDataRcv::kCommandId);
    EXPECT_EQ(Described(answer), filled);
    answer.Data.Clear();
    EXPECT_TRUE(IsZero(answer));
}

TEST(StoredData, ACopyOfAFileOwnsItsSystemsAndTheirFreezeFrames) {
    CKRMCStoredDataImportFileData source;
    Seed seed(616);
    Fill(source, seed);
    ASSERT_EQ(source.m_cSystemList.GetCount(), 2);
    ASSERT_EQ(source.m_cSystemList[1].m_cFFDList.GetCount(), 2);
    const std::string before = Described(source);

    CKRMCStoredDataImportFileData copy(source);
    EXPECT_EQ(Described(copy), before);
    for (CKRMCStoredDataSystemData& system : copy.m_cSystemList) {
        for (CKRMCStoredDataFFD& frame : system.m_cFFDList) {
            frame.m_ushFFDNo = 1;
            frame.m_cFirstFFD.Data[0].m_strName = "changed";
            frame.m_cSecondFFD.Data[1].m_cDispDataList.RemoveAll();
            frame.m_cDiagDetail.Data.RemoveAt(0);
        }
        system.m_cAbsFFDList[0].m_cFFD.Data[0].m_cConversionTbl.m_cPatternDispList.RemoveAll();
        system.m_cDTC.Data[1].m_uchSSRNo.AddTail(1);
        system.m_cDataMonitorValue.Data.RemoveAll();
    }
    copy.m_cSecondXPosList[1].m_dXPos = -1;
    copy.m_cVehicle.Clear();
    EXPECT_NE(Described(copy), before);
    EXPECT_EQ(Described(source), before);
}

}  // namespace
