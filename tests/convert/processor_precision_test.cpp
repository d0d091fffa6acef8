// Converters compute the same whatever number of bits the program around them has set the processor's long double to, and
// leave it at that. Windows programs often run with 53.
#include <gtest/gtest.h>

#include <bit>
#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "tests/support/converters.h"
#include "tests/support/not_under.h"

namespace krm::test {
namespace {

#if defined(__GNUC__) && (defined(__i386__) || defined(__x86_64__))

/// The processor's control word for its 80-bit numbers; the precision is 0x000 for 24 bits, 0x200 for 53, 0x300 for 64.
std::uint16_t ControlWord() {
    std::uint16_t word = 0;
    __asm__ volatile("fnstcw %0" : "=m"(word));
    return word;
}

void SetControlWord(std::uint16_t word) {
    __asm__ volatile("fldcw %0" : : "m"(word));
}

std::uint16_t WithPrecision(std::uint16_t word, std::uint16_t precision) {
    return static_cast<std::uint16_t>((word & ~0x300U) | precision);
}

/// What every converter of numbers makes of many raw values and scalings, bit for bit.
std::vector<std::string> EverythingConverted() {
    struct Scaling {
        unsigned char sign;
        unsigned short bits;
        krm_long multiplier;
        krm_long divisor;
        krm_long offset;
        unsigned char decimals;
    };
    const Scaling scalings[] = {{0, 8, 1, 1, 0, 0},
                                {1, 16, 3, 7, -40, 2},
                                {3, 16, 5, 9, 1, 1},
                                {0, 32, 2147483647, 3, 7, 5},
                                {1, 32, -17, 11, 2147483647, 30}};
    std::vector<std::string> all;
    for (const int code : AllCodes()) {
        const ConverterPtr converter = Create(code);
        for (const Scaling& scaling : scalings) {
            for (krm_ulong raw = 1; raw < 0xF0000000U; raw = raw * 3 + 11) {
                CKRMCCommandDispData shown;
                krm_ulong status = 0;
                if (converter->IsBinaryDataType()) {
                    const auto byte = static_cast<unsigned char>(raw & 0xFFU);
                    status = converter->ConvCommandDispData(&shown, &byte, 1, scaling.sign, scaling.bits,
                                                            scaling.multiplier, scaling.divisor, scaling.offset,
                                                            scaling.decimals, 0xFFFF, 0, nullptr);
                } else {
                    status = converter->ConvCommandDispData(&shown, raw, scaling.sign, scaling.bits, scaling.multiplier,
                                                            scaling.divisor, scaling.offset, scaling.decimals, 0xFFFF,
                                                            0, nullptr, nullptr, 0);
                }
                krm_ulong back = 0;
                const krm_ulong backStatus = converter->ConvLogicalValue(
                    &back, shown.m_dDataPhys, scaling.sign, scaling.bits, scaling.multiplier, scaling.divisor,
                    scaling.offset, scaling.decimals, 1e9, -1e9);
                all.push_back(std::to_string(code) + ' ' + std::to_string(raw) + ' ' + std::to_string(status) + ' ' +
                              std::to_string(std::bit_cast<std::uint64_t>(shown.m_dDataPhys)) + ' ' +
                              shown.m_strDataPhys.GetText() + ' ' + std::to_string(backStatus) + ' ' +
                              std::to_string(back));
            }
        }
    }
    return all;
}

class ProcessorPrecision : public testing::TestWithParam<std::uint16_t> {
protected:
    ~ProcessorPrecision() override { SetControlWord(m_before); }

private:
    std::uint16_t m_before = ControlWord();
};

TEST_P(ProcessorPrecision, ChangesNoResultAndStays) {
    KRM_NOT_UNDER(Memcheck, "it computes 80-bit numbers in 64 bits, whatever the control word says");
    const std::vector<std::string> expected = EverythingConverted();
    ASSERT_GT(expected.size(), 1000U);

    const std::uint16_t word = WithPrecision(ControlWord(), GetParam());
    SetControlWord(word);
    const std::vector<std::string> actual = EverythingConverted();
    EXPECT_EQ(ControlWord(), word);
    ASSERT_EQ(actual.size(), expected.size());
    for (std::size_t i = 0; i < expected.size(); ++i) {
        ASSERT_EQ(actual[i], expected[i]);
    }
}

INSTANTIATE_TEST_SUITE_P(Bits24And53And64, ProcessorPrecision, testing::Values(0x000, 0x200, 0x300));

#else

TEST(ProcessorPrecision, ChangesNoResultAndStays) {
    GTEST_SKIP() << "this processor has no 80-bit numbers";
}

#endif

}  // namespace
}  // namespace krm::test
