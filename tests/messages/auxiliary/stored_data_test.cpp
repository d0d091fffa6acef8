#include "krm/messages/auxiliary/stored_data.h"

#include <gmock/gmock.h>

#include <cstddef>
#include <cstring>
#include <memory>
#include <new>
#include <type_traits>

#include "tests/messages/auxiliary/stored_data_fields.h"
#include "tests/support/fields.h"
#include "tests/support/log_capture.h"

namespace {

using krm::test::Described;
using krm::test::Fill;
using krm::test::IsZero;
using krm::test::LogCapture;
using krm::test::MessageLines;
using krm::test::Seed;
using testing::ElementsAre;
using testing::IsEmpty;

static_assert(sizeof(CKRMCStoredDataSystemTime) == 16, "16 bytes and nothing else");
static_assert(sizeof(CKRMCStoredDataTimestamp) == 14, "two stamps of 7 bytes and nothing else");

template <class T>
class StoredDataRecord : public testing::Test {};
using Records =
    testing::Types<CKRMCStoredDataSystemTime, CKRMCStoredDataTimestamp, CKRMCStoredDataFileHeader,
                   CKRMCStoredDataSystemInfo, CKRMCStoredDataFFD, CKRMCStoredDataAbsFFD, CKRMCStoredDataXPos,
                   CKRMCStoredDataImportFileInfo, CKRMCStoredDataSystemData, CKRMCStoredDataImportFileData>;
TYPED_TEST_SUITE(StoredDataRecord, Records);

// Sets the one field that has no value in a new object.
template <class T>
void Settle(T&) {}
void Settle(CKRMCStoredDataFFD& frame) {
    frame.m_ushFFDNo = 0;
}

TYPED_TEST(StoredDataRecord, IsAPlainStructure) {
    EXPECT_FALSE(std::is_polymorphic_v<TypeParam>);
}

TYPED_TEST(StoredDataRecord, StartsAtZeroAndReturnsThereByClear) {
    TypeParam it;
    Settle(it);
    const std::string fresh = Described(it);
    EXPECT_TRUE(IsZero(it)) << fresh;
    Seed seed(61);
    Fill(it, seed);
    EXPECT_FALSE(IsZero(it));
    it.Clear();
    Settle(it);
    EXPECT_EQ(Described(it), fresh);
}

TYPED_TEST(StoredDataRecord, CopiesEveryField) {
    Seed seed(611);
    auto source = std::make_unique<TypeParam>();
    Fill(*source, seed);
    const std::string filled = Described(*source);
    TypeParam copy(*source);
    TypeParam assigned;
    Fill(assigned, seed);
    assigned = *source;
    source.reset();
    EXPECT_EQ(Described(copy), filled);
    EXPECT_EQ(Described(assigned), filled);
}

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
    EXPECT_EQ(frame.m_cFirstFFD.GetCommandID(), 6U);
    EXPECT_EQ(frame.m_cSecondFFD.GetCommandID(), 6U);
    EXPECT_EQ(frame.m_cDiagDetail.GetCommandID(), 44U);
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
    EXPECT_EQ(system.m_cDTC.GetCommandType(), 1U);
    EXPECT_EQ(system.m_cDTC.GetCommandID(), 2U);
    EXPECT_EQ(system.m_cIsAbsFFD.GetCommandID(), 45U);
    EXPECT_EQ(system.m_cDataMonitorValue.GetCommandID(), 21U);
    EXPECT_EQ(CKRMCStoredDataAbsFFD().m_cFFD.GetCommandID(), 6U);
    EXPECT_EQ(CKRMCStoredDataImportFileInfo().m_cVehicle.GetCommandID(), 10U);
    EXPECT_EQ(CKRMCStoredDataImportFileData().m_cVehicle.GetCommandID(), 10U);
}

TEST(StoredData, ANewFileListRequestIsEmpty) {
    CKRMCGetImportFileInfoDsdiAdaptDataSnd request;
    EXPECT_EQ(request.GetCommandType(), 8U);
    EXPECT_EQ(request.GetCommandID(), 1U);
    EXPECT_EQ(request.m_ulEcuId, 0U);
    EXPECT_STREQ(request.m_strPath.GetText(), "");
    EXPECT_EQ(request.m_ulFileType, 0U);
}

TEST(StoredData, TheOtherMessagesStartEmpty) {
    CKRMCGetImportFileInfoDsdiAdaptDataRcv files;
    EXPECT_EQ(files.GetCommandType(), 8U);
    EXPECT_EQ(files.GetCommandID(), 1U);
    EXPECT_EQ(files.Data.GetCount(), 0);
    CKRMCGetImportStoredDataDsdiAdaptDataSnd request;
    EXPECT_EQ(request.GetCommandType(), 8U);
    EXPECT_EQ(request.GetCommandID(), 2U);
    EXPECT_EQ(request.m_ulEcuId, 0U);
    EXPECT_STREQ(request.m_strFileName.GetText(), "");
    CKRMCGetImportStoredDataDsdiAdaptDataRcv content;
    EXPECT_EQ(content.GetCommandType(), 8U);
    EXPECT_EQ(content.GetCommandID(), 2U);
    EXPECT_TRUE(IsZero(content));
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

TYPED_TEST(StoredDataMessage, ClearRestoresTypeAndId) {
    TypeParam message;
    const krm_ulong id = message.GetCommandID();
    message.SetCommandType(0);
    message.SetCommandID(99);
    message.Clear();
    EXPECT_EQ(message.GetCommandType(), 8U);
    EXPECT_EQ(message.GetCommandID(), id);
}

TEST(StoredData, TheBasesOfTheFamilyStillWrite) {
    CKRMCBaseDsdiAdaptDataSnd request(2);
    request.m_ulEcuId = 7;
    EXPECT_THAT(MessageLines(request), ElementsAre("[CKRMCBaseDsdiAdaptData::ErrWriteOperationLog] m_dwCommandType=8",
                                                   "[CKRMCBaseDsdiAdaptData::ErrWriteOperationLog] m_dwCommandID=2",
                                                   "[CKRMCBaseDsdiAdaptDataSnd::ErrWriteOperationLog] m_ulEcuId=7"));
    CKRMCBaseDsdiAdaptDataRcv answer(2);
    EXPECT_THAT(MessageLines(answer), ElementsAre("[CKRMCBaseDsdiAdaptData::ErrWriteOperationLog] m_dwCommandType=8",
                                                  "[CKRMCBaseDsdiAdaptData::ErrWriteOperationLog] m_dwCommandID=2"));
}

TEST(StoredData, ClearOfRequestsAndFileListEmptiesThem) {
    Seed seed(614);
    CKRMCGetImportFileInfoDsdiAdaptDataSnd listRequest;
    Fill(listRequest, seed);
    listRequest.Clear();
    EXPECT_TRUE(IsZero(listRequest));
    CKRMCGetImportFileInfoDsdiAdaptDataRcv files;
    Fill(files, seed);
    files.Clear();
    EXPECT_TRUE(IsZero(files));
    CKRMCGetImportStoredDataDsdiAdaptDataSnd request;
    Fill(request, seed);
    request.Clear();
    EXPECT_TRUE(IsZero(request));
}

TEST(StoredData, ClearOfTheAnswerKeepsTheFilesContent) {
    CKRMCGetImportStoredDataDsdiAdaptDataRcv answer;
    Seed seed(615);
    Fill(answer, seed);
    const std::string filled = Described(answer);
    answer.SetCommandID(99);
    answer.Clear();
    EXPECT_EQ(answer.GetCommandID(), 2U);
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
