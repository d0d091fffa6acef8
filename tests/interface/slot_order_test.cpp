// The order of virtual operations is part of the interface: programs built against one version call by slot number. Fails
// when an operation is reordered, inserted or added.
#include <gtest/gtest.h>

#include <type_traits>

#include "krm/convert/specialised.h"
#include "krm/core/binary.h"
#include "krm/messages/all_messages.h"
#include "krm/tree/element.h"
#include "krm/tree/element_group.h"
#include "tests/support/all_classes.h"
#include "tests/support/slot.h"

namespace {

#if defined(_MSC_VER)
TEST(SlotOrder, OfThisCompiler) {
    GTEST_SKIP() << "this compiler's member pointers don't tell the slot";
}
#else

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

struct SmallRecord : krm::RecordOf<SmallRecord> {
    void Dump(const krm::RecordLines&) {}
};

TEST(SlotOrder, Record) {
    EXPECT_EQ(SlotOf(&CKRMCBaseAdaptDataStructure::Clear), 1);
    using Base = CKRMCBaseAdaptDataStructure;
    krm_long (Base::*const dump)(const char*, ...) = &Base::ErrWriteOperationLogStructure;
    krm_long (Base::*const line)(const char*, ...) = &Base::ER_WriteOperationLogFormatStructure;
    EXPECT_EQ(SlotOf(dump), 2);
    EXPECT_EQ(SlotOf(line), 3);
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
    krm_long (TypeParam::*const line)(const char*, ...) = &TypeParam::ER_WriteOperationLogFormat;
    EXPECT_EQ(SlotOf(line), 3);
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
    EXPECT_EQ(SlotOf(&CKRMCNode::Description), 1);
    using Attribute = CKRMCAttribute;
    EXPECT_EQ(SlotOf(&Attribute::Description), 1);
    EXPECT_EQ(SlotOf(&Attribute::ClearValue), 2);
    EXPECT_EQ(SlotOf(&Attribute::CompareValue), 3);
    EXPECT_EQ(SlotOf(static_cast<bool (Attribute::*)(CKRMError*, krm_ulong)>(&Attribute::SetValue)), 4);
    EXPECT_EQ(SlotOf(static_cast<bool (Attribute::*)(CKRMError*, krm_long)>(&Attribute::SetValue)), 5);
    EXPECT_EQ(SlotOf(static_cast<bool (Attribute::*)(CKRMError*, double)>(&Attribute::SetValue)), 6);
    EXPECT_EQ(SlotOf(static_cast<bool (Attribute::*)(CKRMError*, const char*)>(&Attribute::SetValue)), 7);
    EXPECT_EQ(SlotCountOf<Attribute>(), 8);
    using Element = CKRMCElement;
    EXPECT_EQ(SlotOf(&Element::Description), 1);
    EXPECT_EQ(SlotOf(&Element::RemoveAll), 2);
    EXPECT_EQ(SlotOf(&Element::CreateAttribute), 3);
    EXPECT_EQ(SlotOf(&Element::RemoveAttribute), 4);
    EXPECT_EQ(SlotOf(&Element::GetAttribute), 5);
    EXPECT_EQ(SlotOf(&Element::CreateElementGroup), 6);
    EXPECT_EQ(SlotOf(&Element::RemoveElementGroup), 7);
    EXPECT_EQ(SlotOf(&Element::GetElementGroup), 8);
    EXPECT_EQ(SlotOf(&Element::CreateElement), 9);
    EXPECT_EQ(SlotOf(&Element::RemoveElement), 10);
    EXPECT_EQ(SlotOf(&Element::GetFirstElement), 11);
    EXPECT_EQ(SlotOf(&Element::GetElementByAttribute), 12);
    EXPECT_EQ(SlotCountOf<Element>(), 13);
    using Group = CKRMCElementGroup;
    EXPECT_EQ(SlotOf(&Group::Description), 1);
    EXPECT_EQ(SlotOf(&Group::CreateElement), 2);
    EXPECT_EQ(SlotOf(&Group::RemoveElement), 3);
    EXPECT_EQ(SlotOf(&Group::GetFirstElement), 4);
    EXPECT_EQ(SlotOf(&Group::GetElementByAttribute), 5);
    EXPECT_EQ(SlotCountOf<Group>(), 6);
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
        EXPECT_EQ(SlotCountOf<Class>(), ExpectedSlots<Class>()) << #Class; \
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
    EXPECT_EQ(SlotOf(&Base::IsBinaryDataType), 1);
    EXPECT_EQ(SlotOf(static_cast<FromBytes>(&Base::ConvCommandDispData)), 2);
    EXPECT_EQ(SlotOf(static_cast<FromRaw>(&Base::ConvCommandDispData)), 3);
    EXPECT_EQ(SlotOf(&Base::ConvCommandDispVariableData), 4);
    EXPECT_EQ(SlotOf(static_cast<ToRawByDoubles>(&Base::ConvLogicalValue)), 5);
    EXPECT_EQ(SlotOf(static_cast<ToRawByRaws>(&Base::ConvLogicalValue)), 6);
    EXPECT_EQ(SlotOf(&Base::ValueConversion), 7);
    EXPECT_EQ(SlotOf(&Base::StringConversion), 8);
    EXPECT_EQ(SlotOf(&Base::StringVariableConversion), 9);
    EXPECT_EQ(SlotOf(&Steps::PhysicalConversion), 10);
    EXPECT_EQ(SlotOf(&Steps::SignedConversion), 11);
    EXPECT_EQ(SlotOf(&Steps::DecStringConversion), 12);
    EXPECT_EQ(SlotOf(&Steps::HexStringConversion), 13);
    EXPECT_EQ(SlotOf(&Steps::HexStringConversion2), 14);
    EXPECT_EQ(SlotCountOf<Base>(), 15);
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

#endif

}  // namespace
