// The order of virtual operations is part of the interface: programs built against one version call by slot number. Fails
// when an operation is reordered, inserted or added.
#include <gtest/gtest.h>

#include <cstdint>
#include <cstring>

#include "krm/adaptation_data.h"

namespace {

#if defined(_MSC_VER)
TEST(SlotOrder, OfThisCompiler) {
    GTEST_SKIP() << "this compiler's member pointers don't tell the slot";
}
#else

/// The slot of a virtual member function. By the Itanium C++ ABI its pointer holds 1 + the offset in the virtual table;
/// the destructor takes the first two entries and counts as one slot here.
template <class Member>
int SlotOf(Member member) {
    std::uintptr_t word = 0;
    static_assert(sizeof(member) >= sizeof(word));
    std::memcpy(&word, &member, sizeof(word));
    EXPECT_EQ(1U, word & 1U) << "not a virtual function";
    return static_cast<int>((word - 1) / sizeof(void*)) - 1;
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

struct SmallRecord : RecordOf<SmallRecord> {
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
