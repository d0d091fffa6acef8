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
    EXPECT_EQ(0u, binary.GetSize());
    EXPECT_EQ(0u, binary.GetPos());
    EXPECT_FALSE(binary.Read(&byte, 1));
    EXPECT_EQ('x', byte);
}

TEST(Binary, CountsWithoutABlock) {
    CKRMBinary binary;
    const char bytes[10] = {};
    EXPECT_TRUE(binary.Write(bytes, 10));
    EXPECT_EQ(10u, binary.GetPos());
    EXPECT_EQ(0u, binary.GetSize());
    char byte = 'x';
    EXPECT_FALSE(binary.Read(&byte, 1));
    EXPECT_EQ('x', byte);
    EXPECT_EQ(10u, binary.GetPos());
}

TEST(Binary, CountingWrapsAndNeverReadsItsSource) {
    CKRMBinary binary;
    const char byte = 0;
    EXPECT_TRUE(binary.Write(&byte, 0xFFFFFFFF));
    EXPECT_EQ(0xFFFFFFFFu, binary.GetPos());
    EXPECT_TRUE(binary.Write(&byte, 3));
    EXPECT_EQ(2u, binary.GetPos());
}

TEST(Binary, FillsABlockToItsLastByte) {
    CKRMBinary binary;
    ASSERT_TRUE(binary.CreateBuffer(8));
    EXPECT_EQ(8u, binary.GetSize());
    EXPECT_EQ(0u, binary.GetPos());
    EXPECT_TRUE(binary.Write("abcde", 5));
    EXPECT_FALSE(binary.Write("FGHI", 4));
    EXPECT_EQ(5u, binary.GetPos());
    EXPECT_TRUE(binary.Write("fgh", 3));
    EXPECT_EQ(8u, binary.GetPos());
    EXPECT_FALSE(binary.Write("i", 1));
    EXPECT_EQ(8u, binary.GetPos());
}

TEST(Binary, ReadsAllOrNothing) {
    CKRMBinary binary;
    Fill(binary, "abcdef");
    char bytes[7] = "......";
    EXPECT_TRUE(binary.Read(bytes, 4));
    EXPECT_STREQ("abcd..", bytes);
    EXPECT_EQ(4u, binary.GetPos());
    EXPECT_FALSE(binary.Read(bytes, 3));
    EXPECT_FALSE(binary.Read(bytes, 0xFFFFFFFF));
    EXPECT_STREQ("abcd..", bytes);
    EXPECT_EQ(4u, binary.GetPos());
    EXPECT_TRUE(binary.Read(bytes, 2));
    EXPECT_STREQ("efcd..", bytes);
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
        EXPECT_EQ(0u, binary.GetPos());
    }
}

TEST(Binary, CreateBufferOfNothingKeepsTheBlock) {
    CKRMBinary binary;
    EXPECT_FALSE(binary.CreateBuffer(0));
    Fill(binary, "abcd");
    char byte = 0;
    ASSERT_TRUE(binary.Read(&byte, 1));
    EXPECT_FALSE(binary.CreateBuffer(0));
    EXPECT_EQ(4u, binary.GetSize());
    EXPECT_EQ(1u, binary.GetPos());
    EXPECT_EQ("bcd", Rest(binary));
}

TEST(Binary, CreateBufferStartsAnew) {
    CKRMBinary binary;
    ASSERT_TRUE(binary.CreateBuffer(4));
    ASSERT_TRUE(binary.Write("abcd", 4));
    ASSERT_TRUE(binary.CreateBuffer(6));
    EXPECT_EQ(6u, binary.GetSize());
    EXPECT_EQ(0u, binary.GetPos());
    EXPECT_TRUE(binary.Write("ABCDEF", 6));
}

TEST(Binary, CreateBufferEndsCounting) {
    CKRMBinary binary;
    ASSERT_TRUE(binary.Write("abc", 3));
    ASSERT_TRUE(binary.CreateBuffer(binary.GetPos()));
    EXPECT_EQ(0u, binary.GetPos());
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
        EXPECT_EQ(3u, binary.GetSize());
        EXPECT_EQ(0u, binary.GetPos());
        EXPECT_EQ("cde", Rest(binary));
    }
    EXPECT_EQ('x', first[0]);
    delete[] first;
}

TEST(Binary, TheSameBlockAgainSetsTheCursorBack) {
    auto* const block = new unsigned char[3]{'a', 'b', 'c'};
    CKRMBinary binary;
    binary.SetBuffer(block, 3);
    EXPECT_EQ("abc", Rest(binary));
    binary.SetBuffer(block, 3);
    EXPECT_EQ("abc", Rest(binary));
}

TEST(Binary, FreesAnAdoptedBlockButNotOneThatAnotherReplaces) {
    KRM_SKIP_WITHOUT_FAILING_ALLOCATIONS();
    const long before = LivingBlocks();
    {
        CKRMBinary binary;
        binary.SetBuffer(new unsigned char[8], 8);
        ASSERT_TRUE(binary.CreateBuffer(8));
        EXPECT_EQ(before + 1, LivingBlocks());
        const CKRMBinary other;
        binary = other;
        EXPECT_EQ(before, LivingBlocks());
        binary.SetBuffer(new unsigned char[8], 8);
    }
    EXPECT_EQ(before, LivingBlocks());
    auto* const kept = new unsigned char[8];
    {
        CKRMBinary binary;
        binary.SetBuffer(kept, 8);
        binary.SetBuffer(nullptr, 0);
    }
    EXPECT_EQ(before + 1, LivingBlocks());
    delete[] kept;
}

TEST(Binary, ANullBlockCountsWhateverItsSize) {
    CKRMBinary binary;
    binary.SetBuffer(nullptr, 4);
    EXPECT_EQ(4u, binary.GetSize());
    char byte = 'x';
    EXPECT_FALSE(binary.Read(&byte, 1));
    EXPECT_TRUE(binary.Write("abcdef", 6));
    EXPECT_EQ(6u, binary.GetPos());

    CKRMBinary copy(binary);
    CKRMBinary assigned;
    ASSERT_TRUE(assigned.CreateBuffer(2));
    assigned = binary;
    for (CKRMBinary* const each : {&copy, &assigned, &binary}) {
        EXPECT_EQ(4u, each->GetSize());
        EXPECT_EQ(6u, each->GetPos());
        EXPECT_FALSE(each->Read(&byte, 1));
        EXPECT_TRUE(each->Write("g", 1));
        EXPECT_EQ(7u, each->GetPos());
    }
    EXPECT_EQ('x', byte);
    const CKRMBinary& self = binary;
    binary = self;
    EXPECT_EQ(7u, binary.GetPos());
}

TEST(Binary, ABlockOfNothingCountsAndIsFreed) {
    CKRMBinary binary;
    binary.SetBuffer(new unsigned char[1]{'a'}, 0);
    char byte = 'x';
    EXPECT_FALSE(binary.Read(&byte, 1));
    EXPECT_TRUE(binary.Write("abc", 3));
    EXPECT_EQ(3u, binary.GetPos());
    EXPECT_FALSE(binary.Read(&byte, 1));
    const CKRMBinary copy(binary);
    EXPECT_EQ(0u, copy.GetSize());
    EXPECT_EQ(3u, copy.GetPos());
    const CKRMBinary& self = binary;
    binary = self;
    EXPECT_EQ(3u, binary.GetPos());
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
        EXPECT_EQ(6u, each->GetSize());
        EXPECT_EQ(2u, each->GetPos());
        EXPECT_EQ("cdef", Rest(*each));
    }
    EXPECT_EQ("def", Rest(binary));
}

TEST(Binary, AnAssignedEmptyOneDropsTheBlock) {
    CKRMBinary binary;
    Fill(binary, "abc");
    CKRMBinary counting;
    ASSERT_TRUE(counting.Write("12345", 5));
    binary = counting;
    EXPECT_EQ(0u, binary.GetSize());
    EXPECT_EQ(5u, binary.GetPos());
    EXPECT_EQ("", Rest(binary));
}

TEST(Binary, SelfAssignmentLosesTheBytes) {
    CKRMBinary binary;
    Fill(binary, "abcd");
    char byte = 0;
    ASSERT_TRUE(binary.Read(&byte, 1));
    const CKRMBinary& self = binary;
    binary = self;
    EXPECT_EQ(4u, binary.GetSize());
    EXPECT_EQ(1u, binary.GetPos());
    EXPECT_EQ(std::string(3, '\0'), Rest(binary));
}

TEST(Binary, SourceAndTargetMayLieInTheBlock) {
    auto* const block = new unsigned char[8]{'a', 'b', 'c', 'd', 'e', 'f', 'g', 'h'};
    CKRMBinary binary;
    binary.SetBuffer(block, 8);
    char skipped[2];
    ASSERT_TRUE(binary.Read(skipped, 2));
    EXPECT_TRUE(binary.Write(block, 5));
    EXPECT_EQ("ababcdeh", std::string(reinterpret_cast<char*>(block), 8));
    binary.SetBuffer(block, 8);
    EXPECT_TRUE(binary.Read(block + 1, 6));
    EXPECT_EQ("aababcdh", std::string(reinterpret_cast<char*>(block), 8));
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
        EXPECT_EQ(0u, copy.GetSize());
        EXPECT_EQ(0u, copy.GetPos());
        EXPECT_FALSE(copy.Read(&byte, 1));
        EXPECT_TRUE(copy.Write("abc", 3));
        EXPECT_EQ(3u, copy.GetPos());
    }
    EXPECT_FALSE(result);
    for (CKRMBinary* const each : {&created, &assigned}) {
        EXPECT_EQ(0u, each->GetSize());
        EXPECT_EQ(0u, each->GetPos());
        EXPECT_FALSE(each->Read(&byte, 1));
    }
    EXPECT_EQ("bcd", Rest(original));
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
    EXPECT_EQ(0u, binary.GetSize());
    EXPECT_EQ("", Rest(binary));
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
    ASSERT_EQ(4000u, binary.GetPos());
    ASSERT_TRUE(binary.CreateBuffer(binary.GetPos()));
    serialise();
    EXPECT_EQ(4000u, binary.GetPos());
    EXPECT_FALSE(binary.Write("x", 1));
}

}  // namespace
}  // namespace krm::test
