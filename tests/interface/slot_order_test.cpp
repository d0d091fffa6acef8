// The order of virtual operations is part of the interface: programs built against one version call by slot number. Fails
// when an operation is reordered, inserted or added.
#include <gtest/gtest.h>

#include <algorithm>
#include <type_traits>

#include "krm/convert/specialised.h"
#include "krm/core/binary.h"
#include "krm/messages/all_messages.h"
#include "krm/tree/element.h"
#include "krm/tree/element_group.h"
#include "tests/support/all_classes.h"
#include "tests/support/slot.h"

namespace {

using krm::test::SlotOf;

/// The number of slots of `Class`, destructor included: the slot that a further virtual operation gets.
template <class Class>
int SlotCountOf() {
    struct Further : Class {
        using Class::Class;
        virtual void OneMore() {}
    };
    return SlotOf(&Further::OneMore);
}

TEST(SlotOrder, List) {
    EXPECT_EQ(SlotCountOf<CKRMList<CKRMCCommandDispData> >(), 1);
}

/// A class whose documented operations can be named: those that are protected are opened.
template <class Class>
struct Opened : Class {};
template <>
struct Opened<CKRMCCommandConvSignalData> : CKRMCCommandConvSignalData {
    using CKRMCCommandConvSignalData::DecStringConversion;
    using CKRMCCommandConvSignalData::HexStringConversion;
    using CKRMCCommandConvSignalData::HexStringConversion2;
    using CKRMCCommandConvSignalData::PhysicalConversion;
    using CKRMCCommandConvSignalData::SignedConversion;
};

/// The number of documented slots of `Class`: those of its bases and its own.
template <class Class>
int DocumentedSlotCount() {
    int count = 1;  // the destructor
#define KRM_SLOT(Of, slot, ...)                   \
    if constexpr (std::is_base_of_v<Of, Class>) { \
        count = std::max(count, (slot) + 1);      \
    }
#include "tests/interface/slots.def"
    return count;
}

TEST(SlotOrder, OfEveryDocumentedOperation) {
#define KRM_SLOT(Class, slot, result, operation, parameters)                                             \
    EXPECT_EQ(SlotOf(static_cast<result(Opened<Class>::*) parameters>(&Opened<Class>::operation)), slot) \
        << #operation << " of " << #Class;
#include "tests/interface/slots.def"
}

struct SmallRecord : krm::RecordOf<SmallRecord> {
    void Dump(const krm::RecordLines&) {}
};

TEST(SlotOrder, Record) {
    EXPECT_EQ(SlotCountOf<SmallRecord>(), 4);
    EXPECT_EQ(SlotCountOf<CKRMCCommandConversionData>(), 4);
    EXPECT_EQ(SlotOf(&CKRMCCommandConversionData::Clear), 1);
    EXPECT_EQ(SlotOf(&CKRMCCommandConversionData::ErrWriteOperationLogStructure), 2);
}

template <class Message>
class MessageSlots : public testing::Test {};

using DumpingBases = testing::Types<CKRMCBaseCmdAdaptData, CKRMCBaseCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataRcv,
                                    CKRMCBaseDsdiAdaptData, CKRMCBaseDsdiAdaptDataSnd, CKRMCBaseDsdiAdaptDataRcv,
                                    CKRMCBaseUccAdaptData, CKRMCBaseUccAdaptDataSnd, CKRMCBaseUccAdaptDataRcv,
                                    CKRMCBaseDwtAdaptData, CKRMCBaseDwtAdaptDataSnd, CKRMCBaseDwtAdaptDataRcv>;
TYPED_TEST_SUITE(MessageSlots, DumpingBases);

TYPED_TEST(MessageSlots, DestructorClearDumpLine) {
    EXPECT_EQ(SlotOf(&TypeParam::Clear), 1);
    EXPECT_EQ(SlotOf(&TypeParam::ErrWriteOperationLog), 2);
    EXPECT_EQ(SlotOf(&TypeParam::ER_WriteOperationLogFormat), 3);
    EXPECT_EQ(SlotCountOf<TypeParam>(), 4);
}

TEST(SlotOrder, ViewerMessagesHaveNoDump) {
    EXPECT_EQ(SlotOf(&CKRMCBaseVdcAdaptData::Clear), 1);
    EXPECT_EQ(SlotCountOf<CKRMCBaseVdcAdaptData>(), 2);
    EXPECT_EQ(SlotCountOf<CKRMCBaseVdcAdaptDataSnd>(), 2);
    EXPECT_EQ(SlotCountOf<CKRMCBaseVdcAdaptDataRcv>(), 2);
}

TEST(SlotOrder, ByteBuffer) {
    EXPECT_EQ(SlotCountOf<CKRMBinary>(), 1);
}

TEST(SlotOrder, Tree) {
    EXPECT_EQ(SlotCountOf<CKRMCNode>(), 2);
    EXPECT_EQ(SlotCountOf<CKRMCAttribute>(), 8);
    EXPECT_EQ(SlotCountOf<CKRMCElement>(), 13);
    EXPECT_EQ(SlotCountOf<CKRMCElementGroup>(), 6);
}

// Every message and every record, by the list of all classes.

void ExpectSlots(const char* name, int count, int documented) {
    EXPECT_EQ(count, documented) << name;
}

TEST(SlotOrder, EveryMessageAndListElement) {
#define KRM_EXPECT_SLOTS(Class, ...)                                             \
    if constexpr (std::is_polymorphic_v<Class>) {                                \
        ExpectSlots(#Class, SlotCountOf<Class>(), DocumentedSlotCount<Class>()); \
    }
    KRM_ALL_MESSAGES(KRM_EXPECT_SLOTS)
    KRM_ALL_LIST_ELEMENTS(KRM_EXPECT_SLOTS)
#undef KRM_EXPECT_SLOTS
}

TEST(SlotOrder, Converter) {
    EXPECT_EQ(SlotCountOf<CKRMCCommandConvSignalData>(), 15);
}

template <class Converter>
class ConverterSlots : public testing::Test {};

using SpecialisedConverters = testing::Types<
    CKRMCCommandConvSignalDataStringPattern, CKRMCCommandConvSignalDataHex, CKRMCCommandConvSignalDataAscii,
    CKRMCCommandConvSignalDataDiagCode, CKRMCCommandConvSignalDataIlluminance, CKRMCCommandConvSignalDataChassis,
    CKRMCCommandConvSignalDataReversal, CKRMCCommandConvSignalDataMinMax, CKRMCCommandConvSignalDataDate,
    CKRMCCommandConvSignalDataTime, CKRMCCommandConvSignalDataTimeHHMM, CKRMCCommandConvSignalDataIlluminanceMinMax,
    CKRMCCommandConvSignalDataBcd, CKRMCCommandConvSignalDataIncline, CKRMCCommandConvSignalDataLsbPattern,
    CKRMCCommandConvSignalDataArrayHex, CKRMCCommandConvSignalDataDate2, CKRMCCommandConvSignalDataTime2,
    CKRMCCommandConvSignalDataLatitude, CKRMCCommandConvSignalDataLongitude, CKRMCCommandConvSignalDataSoftwareVersion,
    CKRMCCommandConvSignalDataSpecial2, CKRMCCommandConvSignalDataTimeHHMM2, CKRMCCommandConvSignalDataHex2,
    CKRMCCommandConvSignalDataBin, CKRMCCommandConvSignalDataSpecial3, CKRMCCommandConvSignalDataTimeHHMM3>;
TYPED_TEST_SUITE(ConverterSlots, SpecialisedConverters);

TYPED_TEST(ConverterSlots, NoneAdded) {
    EXPECT_EQ(SlotCountOf<TypeParam>(), 15);
}

}  // namespace
