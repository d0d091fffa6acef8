#include "krm/core/binary.h"

#include <cstddef>
#include <cstring>
#include <numeric>
#include <string>
#include <type_traits>
#include <vector>

#include "gtest/gtest.h"
#include "tests/support/failing_allocation.h"

namespace krm::test {
namespace {

static_assert(std::has_virtual_destructor_v<CKRMBinary>);
static_assert(
    std::is_same_v<const CKRMBinary&, decltype(std::declval<CKRMBinary&>() = std::declval<const CKRMBinary&>())>);

struct BinaryLayout {
    virtual ~BinaryLayout() = default;
    unsigned char* buffer;
    unsigned int position;
    unsigned int size;
};
static_assert(sizeof(CKRMBinary) == sizeof(BinaryLayout));

/// A buffer that holds `bytes`, with the cursor at 0.
void Fill(CKRMBinary& binary, const std::string& bytes) {
    auto* const block = new unsigned char[bytes.size()];
    std::memcpy(block, bytes.data(), bytes.size());
    binary.SetBuffer(block, static_cast<unsigned>(bytes.size()));
}

/// All that is left to read.
std::string Rest(CKRMBinary& binary) {
    std::string rest;
    for (char byte = 0; binary.Read(&byte, 1);) {
        rest += byte;
    }
    return rest;
}

TEST(Binary, IsEmptyAtFirst) {
    CKRMBinary binary;
    char byte = 'x';
    EXPECT_EQ(binary.GetSize(), 0u);
    EXPECT_EQ(binary.GetPos(), 0u);
    EXPECT_FALSE(binary.Read(&byte, 1));
    EXPECT_EQ(byte, 'x');
}

TEST(Binary, CountsWithoutABlock) {
    CKRMBinary binary;
    const char bytes[10] = {};
    EXPECT_TRUE(binary.Write(bytes, 10));
    EXPECT_EQ(binary.GetPos(), 10u);
    EXPECT_EQ(binary.GetSize(), 0u);
    char byte = 'x';
    EXPECT_FALSE(binary.Read(&byte, 1));
    EXPECT_EQ(byte, 'x');
    EXPECT_EQ(binary.GetPos(), 10u);
}

TEST(Binary, CountingWrapsAndNeverReadsItsSource) {
    CKRMBinary binary;
    const char byte = 0;
    EXPECT_TRUE(binary.Write(&byte, 0xFFFFFFFF));
    EXPECT_EQ(binary.GetPos(), 0xFFFFFFFFu);
    EXPECT_TRUE(binary.Write(&byte, 3));
    EXPECT_EQ(binary.GetPos(), 2u);
}

TEST(Binary, FillsABlockToItsLastByte) {
    CKRMBinary binary;
    ASSERT_TRUE(binary.CreateBuffer(8));
    EXPECT_EQ(binary.GetSize(), 8u);
    EXPECT_EQ(binary.GetPos(), 0u);
    EXPECT_TRUE(binary.Write("abcde", 5));
    EXPECT_FALSE(binary.Write("FGHI", 4));
    EXPECT_EQ(binary.GetPos(), 5u);
    EXPECT_TRUE(binary.Write("fgh", 3));
    EXPECT_EQ(binary.GetPos(), 8u);
    EXPECT_FALSE(binary.Write("i", 1));
    EXPECT_EQ(binary.GetPos(), 8u);
}

TEST(Binary, ReadsAllOrNothing) {
    CKRMBinary binary;
    Fill(binary, "abcdef");
    char bytes[7] = "......";
    EXPECT_TRUE(binary.Read(bytes, 4));
    EXPECT_STREQ(bytes, "abcd..");
    EXPECT_EQ(binary.GetPos(), 4u);
    EXPECT_FALSE(binary.Read(bytes, 3));
    EXPECT_FALSE(binary.Read(bytes, 0xFFFFFFFF));
    EXPECT_STREQ(bytes, "abcd..");
    EXPECT_EQ(binary.GetPos(), 4u);
    EXPECT_TRUE(binary.Read(bytes, 2));
    EXPECT_STREQ(bytes, "efcd..");
    EXPECT_FALSE(binary.Read(bytes, 1));
}

TEST(Binary, RefusesNothingToCopy) {
    CKRMBinary binary;
    char byte = 'x';
    for (const bool withBlock : {false, true}) {
        if (withBlock) {
            ASSERT_TRUE(binary.CreateBuffer(4));
        }
        EXPECT_FALSE(binary.Write(nullptr, 1));
        EXPECT_FALSE(binary.Write(&byte, 0));
        EXPECT_FALSE(binary.Read(nullptr, 1));
        EXPECT_FALSE(binary.Read(&byte, 0));
        EXPECT_EQ(binary.GetPos(), 0u);
    }
}

TEST(Binary, CreateBufferOfNothingKeepsTheBlock) {
    CKRMBinary binary;
    EXPECT_FALSE(binary.CreateBuffer(0));
    Fill(binary, "abcd");
    char byte = 0;
    ASSERT_TRUE(binary.Read(&byte, 1));
    EXPECT_FALSE(binary.CreateBuffer(0));
    EXPECT_EQ(binary.GetSize(), 4u);
    EXPECT_EQ(binary.GetPos(), 1u);
    EXPECT_EQ(Rest(binary), "bcd");
}

TEST(Binary, CreateBufferStartsAnew) {
    CKRMBinary binary;
    ASSERT_TRUE(binary.CreateBuffer(4));
    ASSERT_TRUE(binary.Write("abcd", 4));
    ASSERT_TRUE(binary.CreateBuffer(6));
    EXPECT_EQ(binary.GetSize(), 6u);
    EXPECT_EQ(binary.GetPos(), 0u);
    EXPECT_TRUE(binary.Write("ABCDEF", 6));
}

TEST(Binary, CreateBufferEndsCounting) {
    CKRMBinary binary;
    ASSERT_TRUE(binary.Write("abc", 3));
    ASSERT_TRUE(binary.CreateBuffer(binary.GetPos()));
    EXPECT_EQ(binary.GetPos(), 0u);
    EXPECT_TRUE(binary.Write("abc", 3));
    EXPECT_FALSE(binary.Write("d", 1));
}

TEST(Binary, SetBufferLeavesTheOldBlockToItsCaller) {
    auto* const first = new unsigned char[2]{'a', 'b'};
    auto* const second = new unsigned char[3]{'c', 'd', 'e'};
    {
        CKRMBinary binary;
        binary.SetBuffer(first, 2);
        ASSERT_TRUE(binary.Write("x", 1));
        binary.SetBuffer(second, 3);
        EXPECT_EQ(binary.GetSize(), 3u);
        EXPECT_EQ(binary.GetPos(), 0u);
        EXPECT_EQ(Rest(binary), "cde");
    }
    EXPECT_EQ(first[0], 'x');
    delete[] first;
}

TEST(Binary, TheSameBlockAgainSetsTheCursorBack) {
    auto* const block = new unsigned char[3]{'a', 'b', 'c'};
    CKRMBinary binary;
    binary.SetBuffer(block, 3);
    EXPECT_EQ(Rest(binary), "abc");
    binary.SetBuffer(block, 3);
    EXPECT_EQ(Rest(binary), "abc");
}

TEST(Binary, FreesAnAdoptedBlockButNotOneThatAnotherReplaces) {
    KRM_SKIP_WITHOUT_FAILING_ALLOCATIONS();
    const long before = LivingBlocks();
    {
        CKRMBinary binary;
        binary.SetBuffer(new unsigned char[8], 8);
        ASSERT_TRUE(binary.CreateBuffer(8));
        EXPECT_EQ(LivingBlocks(), before + 1);
        const CKRMBinary other;
        binary = other;
        EXPECT_EQ(LivingBlocks(), before);
        binary.SetBuffer(new unsigned char[8], 8);
    }
    EXPECT_EQ(LivingBlocks(), before);
    auto* const kept = new unsigned char[8];
    {
        CKRMBinary binary;
        binary.SetBuffer(kept, 8);
        binary.SetBuffer(nullptr, 0);
    }
    EXPECT_EQ(LivingBlocks(), before + 1);
    delete[] kept;
}

TEST(Binary, ANullBlockCountsWhateverItsSize) {
    CKRMBinary binary;
    binary.SetBuffer(nullptr, 4);
    EXPECT_EQ(binary.GetSize(), 4u);
    char byte = 'x';
    EXPECT_FALSE(binary.Read(&byte, 1));
    EXPECT_TRUE(binary.Write("abcdef", 6));
    EXPECT_EQ(binary.GetPos(), 6u);

    CKRMBinary copy(binary);
    CKRMBinary assigned;
    ASSERT_TRUE(assigned.CreateBuffer(2));
    assigned = binary;
    for (CKRMBinary* const each : {&copy, &assigned, &binary}) {
        EXPECT_EQ(each->GetSize(), 4u);
        EXPECT_EQ(each->GetPos(), 6u);
        EXPECT_FALSE(each->Read(&byte, 1));
        EXPECT_TRUE(each->Write("g", 1));
        EXPECT_EQ(each->GetPos(), 7u);
    }
    EXPECT_EQ(byte, 'x');
    const CKRMBinary& self = binary;
    binary = self;
    EXPECT_EQ(binary.GetPos(), 7u);
}

TEST(Binary, ABlockOfNothingCountsAndIsFreed) {
    CKRMBinary binary;
    binary.SetBuffer(new unsigned char[1]{'a'}, 0);
    char byte = 'x';
    EXPECT_FALSE(binary.Read(&byte, 1));
    EXPECT_TRUE(binary.Write("abc", 3));
    EXPECT_EQ(binary.GetPos(), 3u);
    EXPECT_FALSE(binary.Read(&byte, 1));
    const CKRMBinary copy(binary);
    EXPECT_EQ(copy.GetSize(), 0u);
    EXPECT_EQ(copy.GetPos(), 3u);
    const CKRMBinary& self = binary;
    binary = self;
    EXPECT_EQ(binary.GetPos(), 3u);
}

TEST(Binary, ACopyHasABlockOfItsOwn) {
    CKRMBinary binary;
    Fill(binary, "abcdef");
    char byte = 0;
    ASSERT_TRUE(binary.Read(&byte, 1));
    ASSERT_TRUE(binary.Write("B", 1));

    CKRMBinary copy(binary);
    CKRMBinary assigned;
    Fill(assigned, "an old block");
    assigned = binary;
    ASSERT_TRUE(binary.Write("C", 1));
    for (CKRMBinary* const each : {&copy, &assigned}) {
        EXPECT_EQ(each->GetSize(), 6u);
        EXPECT_EQ(each->GetPos(), 2u);
        EXPECT_EQ(Rest(*each), "cdef");
    }
    EXPECT_EQ(Rest(binary), "def");
}

TEST(Binary, AnAssignedEmptyOneDropsTheBlock) {
    CKRMBinary binary;
    Fill(binary, "abc");
    CKRMBinary counting;
    ASSERT_TRUE(counting.Write("12345", 5));
    binary = counting;
    EXPECT_EQ(binary.GetSize(), 0u);
    EXPECT_EQ(binary.GetPos(), 5u);
    EXPECT_EQ(Rest(binary), "");
}

TEST(Binary, SelfAssignmentLosesTheBytes) {
    CKRMBinary binary;
    Fill(binary, "abcd");
    char byte = 0;
    ASSERT_TRUE(binary.Read(&byte, 1));
    const CKRMBinary& self = binary;
    binary = self;
    EXPECT_EQ(binary.GetSize(), 4u);
    EXPECT_EQ(binary.GetPos(), 1u);
    EXPECT_EQ(Rest(binary), std::string(3, '\0'));
}

TEST(Binary, SourceAndTargetMayLieInTheBlock) {
    auto* const block = new unsigned char[8]{'a', 'b', 'c', 'd', 'e', 'f', 'g', 'h'};
    CKRMBinary binary;
    binary.SetBuffer(block, 8);
    char skipped[2];
    ASSERT_TRUE(binary.Read(skipped, 2));
    EXPECT_TRUE(binary.Write(block, 5));
    EXPECT_EQ(std::string(reinterpret_cast<char*>(block), 8), "ababcdeh");
    binary.SetBuffer(block, 8);
    EXPECT_TRUE(binary.Read(block + 1, 6));
    EXPECT_EQ(std::string(reinterpret_cast<char*>(block), 8), "aababcdh");
}

TEST(Binary, WithoutMemoryThereIsNoBlock) {
    KRM_SKIP_WITHOUT_FAILING_ALLOCATIONS();
    CKRMBinary original;
    Fill(original, "abcd");
    char byte = 0;
    ASSERT_TRUE(original.Read(&byte, 1));
    CKRMBinary created(original);
    CKRMBinary assigned(original);
    bool result = true;
    {
        const FailAllocations failing(0);
        result = created.CreateBuffer(2);
        assigned = original;
        CKRMBinary copy(original);
        EXPECT_EQ(copy.GetSize(), 0u);
        EXPECT_EQ(copy.GetPos(), 0u);
        EXPECT_FALSE(copy.Read(&byte, 1));
        EXPECT_TRUE(copy.Write("abc", 3));
        EXPECT_EQ(copy.GetPos(), 3u);
    }
    EXPECT_FALSE(result);
    for (CKRMBinary* const each : {&created, &assigned}) {
        EXPECT_EQ(each->GetSize(), 0u);
        EXPECT_EQ(each->GetPos(), 0u);
        EXPECT_FALSE(each->Read(&byte, 1));
    }
    EXPECT_EQ(Rest(original), "bcd");
}

TEST(Binary, SelfAssignmentWithoutMemoryEmpties) {
    KRM_SKIP_WITHOUT_FAILING_ALLOCATIONS();
    CKRMBinary binary;
    Fill(binary, "abcd");
    const CKRMBinary& self = binary;
    {
        const FailAllocations failing(0);
        binary = self;
    }
    EXPECT_EQ(binary.GetSize(), 0u);
    EXPECT_EQ(Rest(binary), "");
}

TEST(Binary, ASerialiserRunTwiceFillsABlockOfJustItsSize) {
    std::vector<unsigned> numbers(1000);
    std::iota(numbers.begin(), numbers.end(), 0u);
    CKRMBinary binary;
    const auto serialise = [&] {
        for (const unsigned number : numbers) {
            ASSERT_TRUE(binary.Write(&number, sizeof number));
        }
    };
    serialise();
    ASSERT_EQ(binary.GetPos(), 4000u);
    ASSERT_TRUE(binary.CreateBuffer(binary.GetPos()));
    serialise();
    EXPECT_EQ(binary.GetPos(), 4000u);
    EXPECT_FALSE(binary.Write("x", 1));
}

}  // namespace
}  // namespace krm::test
