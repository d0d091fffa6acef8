// The order of virtual operations is part of the interface: programs built against one version call by slot number. Fails
// when an operation is reordered, inserted or added.
#include <gtest/gtest.h>

#include <type_traits>

#include "krm/adaptation_data.h"
#include "tests/support/all_classes.h"
#include "tests/support/slot.h"

namespace {

#if defined(_MSC_VER)
TEST(SlotOrder, OfThisCompiler) {
    GTEST_SKIP() << "this compiler's member pointers don't tell the slot";
}
#else

/// The documented slot, which counts the destructor as one; it takes two entries of the table.
template <class Member>
int SlotOf(Member member) {
    return krm::test::SlotOf(member) - 1;
}

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
    EXPECT_EQ(1, SlotCountOf<CKRMList<CKRMCCommandDispData> >());
}

struct SmallRecord : krm::RecordOf<SmallRecord> {
    void Dump(const krm::RecordLines&) {}
};

TEST(SlotOrder, Record) {
    EXPECT_EQ(1, SlotOf(&CKRMCBaseAdaptDataStructure::Clear));
    EXPECT_EQ(2, SlotOf(&CKRMCBaseAdaptDataStructure::ErrWriteOperationLogStructure));
    EXPECT_EQ(3, SlotOf(&CKRMCBaseAdaptDataStructure::ER_WriteOperationLogFormatStructure));
    EXPECT_EQ(4, SlotCountOf<SmallRecord>());
    EXPECT_EQ(4, SlotCountOf<CKRMCCommandConversionData>());
    EXPECT_EQ(1, SlotOf(&CKRMCCommandConversionData::Clear));
    EXPECT_EQ(2, SlotOf(&CKRMCCommandConversionData::ErrWriteOperationLogStructure));
}

template <class Message>
class MessageSlots : public testing::Test {};

using DumpingBases = testing::Types<CKRMCBaseCmdAdaptData, CKRMCBaseCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataRcv,
                                    CKRMCBaseDsdiAdaptData, CKRMCBaseDsdiAdaptDataSnd, CKRMCBaseDsdiAdaptDataRcv,
                                    CKRMCBaseUccAdaptData, CKRMCBaseUccAdaptDataSnd, CKRMCBaseUccAdaptDataRcv,
                                    CKRMCBaseDwtAdaptData, CKRMCBaseDwtAdaptDataSnd, CKRMCBaseDwtAdaptDataRcv>;
TYPED_TEST_SUITE(MessageSlots, DumpingBases);

TYPED_TEST(MessageSlots, DestructorClearDumpLine) {
    EXPECT_EQ(1, SlotOf(&TypeParam::Clear));
    EXPECT_EQ(2, SlotOf(&TypeParam::ErrWriteOperationLog));
    EXPECT_EQ(3, SlotOf(&TypeParam::ER_WriteOperationLogFormat));
    EXPECT_EQ(4, SlotCountOf<TypeParam>());
}

TEST(SlotOrder, ViewerMessagesHaveNoDump) {
    EXPECT_EQ(1, SlotOf(&CKRMCBaseVdcAdaptData::Clear));
    EXPECT_EQ(2, SlotCountOf<CKRMCBaseVdcAdaptData>());
    EXPECT_EQ(2, SlotCountOf<CKRMCBaseVdcAdaptDataSnd>());
    EXPECT_EQ(2, SlotCountOf<CKRMCBaseVdcAdaptDataRcv>());
}

TEST(SlotOrder, ByteBuffer) {
    EXPECT_EQ(1, SlotCountOf<CKRMBinary>());
}

TEST(SlotOrder, Tree) {
    EXPECT_EQ(1, SlotOf(&CKRMCNode::Description));
    using Attribute = CKRMCAttribute;
    EXPECT_EQ(1, SlotOf(&Attribute::Description));
    EXPECT_EQ(2, SlotOf(&Attribute::ClearValue));
    EXPECT_EQ(3, SlotOf(&Attribute::CompareValue));
    EXPECT_EQ(4, SlotOf(static_cast<bool (Attribute::*)(CKRMError*, krm_ulong)>(&Attribute::SetValue)));
    EXPECT_EQ(5, SlotOf(static_cast<bool (Attribute::*)(CKRMError*, krm_long)>(&Attribute::SetValue)));
    EXPECT_EQ(6, SlotOf(static_cast<bool (Attribute::*)(CKRMError*, double)>(&Attribute::SetValue)));
    EXPECT_EQ(7, SlotOf(static_cast<bool (Attribute::*)(CKRMError*, const char*)>(&Attribute::SetValue)));
    EXPECT_EQ(8, SlotCountOf<Attribute>());
    using Element = CKRMCElement;
    EXPECT_EQ(1, SlotOf(&Element::Description));
    EXPECT_EQ(2, SlotOf(&Element::RemoveAll));
    EXPECT_EQ(3, SlotOf(&Element::CreateAttribute));
    EXPECT_EQ(4, SlotOf(&Element::RemoveAttribute));
    EXPECT_EQ(5, SlotOf(&Element::GetAttribute));
    EXPECT_EQ(6, SlotOf(&Element::CreateElementGroup));
    EXPECT_EQ(7, SlotOf(&Element::RemoveElementGroup));
    EXPECT_EQ(8, SlotOf(&Element::GetElementGroup));
    EXPECT_EQ(9, SlotOf(&Element::CreateElement));
    EXPECT_EQ(10, SlotOf(&Element::RemoveElement));
    EXPECT_EQ(11, SlotOf(&Element::GetFirstElement));
    EXPECT_EQ(12, SlotOf(&Element::GetElementByAttribute));
    EXPECT_EQ(13, SlotCountOf<Element>());
    using Group = CKRMCElementGroup;
    EXPECT_EQ(1, SlotOf(&Group::Description));
    EXPECT_EQ(2, SlotOf(&Group::CreateElement));
    EXPECT_EQ(3, SlotOf(&Group::RemoveElement));
    EXPECT_EQ(4, SlotOf(&Group::GetFirstElement));
    EXPECT_EQ(5, SlotOf(&Group::GetElementByAttribute));
    EXPECT_EQ(6, SlotCountOf<Group>());
}

// Every message and every record, by the list of all classes.

template <class Class>
int ExpectedSlots() {
    if constexpr (std::is_base_of_v<CKRMCBaseVdcAdaptData, Class>) {
        return 2;
    } else if constexpr (std::is_base_of_v<CKRMBaseAdaptationData, Class> ||
                         std::is_base_of_v<CKRMCBaseAdaptDataStructure, Class>) {
        return 4;
    } else {
        return std::has_virtual_destructor_v<Class> ? 1 : 0;
    }
}

TEST(SlotOrder, EveryMessageAndListElement) {
#define KRM_EXPECT_SLOTS(Class, ...)                                       \
    if constexpr (std::is_polymorphic_v<Class>) {                          \
        EXPECT_EQ(ExpectedSlots<Class>(), SlotCountOf<Class>()) << #Class; \
    }
    KRM_ALL_MESSAGES(KRM_EXPECT_SLOTS)
    KRM_ALL_LIST_ELEMENTS(KRM_EXPECT_SLOTS)
#undef KRM_EXPECT_SLOTS
}

/// Opens the protected steps.
struct Steps : CKRMCCommandConvSignalData {
    using CKRMCCommandConvSignalData::DecStringConversion;
    using CKRMCCommandConvSignalData::HexStringConversion;
    using CKRMCCommandConvSignalData::HexStringConversion2;
    using CKRMCCommandConvSignalData::PhysicalConversion;
    using CKRMCCommandConvSignalData::SignedConversion;
};

TEST(SlotOrder, Converter) {
    using Base = CKRMCCommandConvSignalData;
    using Patterns = CKRMList<CKRMCCommandDispData>*;
    using FromBytes =
        krm_ulong (Base::*)(CKRMCCommandDispData*, const unsigned char*, krm_ulong, unsigned char, unsigned short,
                            krm_long, krm_long, krm_long, unsigned char, krm_ulong, krm_ulong, Patterns);
    using FromRaw =
        krm_ulong (Base::*)(CKRMCCommandDispData*, krm_ulong, unsigned char, unsigned short, krm_long, krm_long,
                            krm_long, unsigned char, krm_ulong, krm_ulong, Patterns, CKRMString*, krm_ulong);
    using ToRawByDoubles = krm_ulong (Base::*)(krm_ulong*, double, unsigned char, unsigned short, krm_long, krm_long,
                                               krm_long, unsigned char, double, double);
    using ToRawByRaws = krm_ulong (Base::*)(krm_ulong*, double, unsigned char, unsigned short, krm_long, krm_long,
                                            krm_long, unsigned char, krm_ulong, krm_ulong);
    EXPECT_EQ(1, SlotOf(&Base::IsBinaryDataType));
    EXPECT_EQ(2, SlotOf(static_cast<FromBytes>(&Base::ConvCommandDispData)));
    EXPECT_EQ(3, SlotOf(static_cast<FromRaw>(&Base::ConvCommandDispData)));
    EXPECT_EQ(4, SlotOf(&Base::ConvCommandDispVariableData));
    EXPECT_EQ(5, SlotOf(static_cast<ToRawByDoubles>(&Base::ConvLogicalValue)));
    EXPECT_EQ(6, SlotOf(static_cast<ToRawByRaws>(&Base::ConvLogicalValue)));
    EXPECT_EQ(7, SlotOf(&Base::ValueConversion));
    EXPECT_EQ(8, SlotOf(&Base::StringConversion));
    EXPECT_EQ(9, SlotOf(&Base::StringVariableConversion));
    EXPECT_EQ(10, SlotOf(&Steps::PhysicalConversion));
    EXPECT_EQ(11, SlotOf(&Steps::SignedConversion));
    EXPECT_EQ(12, SlotOf(&Steps::DecStringConversion));
    EXPECT_EQ(13, SlotOf(&Steps::HexStringConversion));
    EXPECT_EQ(14, SlotOf(&Steps::HexStringConversion2));
    EXPECT_EQ(15, SlotCountOf<Base>());
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
    EXPECT_EQ(15, SlotCountOf<TypeParam>());
}

#endif

}  // namespace
