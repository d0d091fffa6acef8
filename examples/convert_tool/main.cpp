// Converts signals of every conversion type both ways: a raw value to its physical value and text, and each of these back
// to the raw value, by the interface's own way back and by the true inverse.
//
//     convert_tool                                            an example of every type
//     convert_tool TYPE RAW [BITS [MUL DIV OFFSET DECIMALS]]  that raw value, decimal or 0x7B
#include <cstdio>
#include <cstdlib>
#include <string>
#include <string_view>
#include <vector>

#include "krm/convert/signal.h"
#include "krm/messages/diag/freeze_frame_item.h"

namespace {

struct Example {
    unsigned char type;
    krm_ulong raw;
    unsigned short bits;
};
constexpr Example kExamples[] = {
    {0, 0x7B, 8},          {1, 1, 8},
    {3, 0xA, 12},          {4, 0x50333031, 32},
    {5, 0x4123, 16},       {6, 48, 16},
    {7, 0x8001, 16},       {8, 0x9001, 16},
    {9, 0x8001, 16},       {10, 0x81, 8},
    {11, 0x0180, 16},      {12, 0x3412, 16},
    {13, 0xFF, 8},         {15, 0x170C1F, 24},
    {16, 0x0E1E05, 24},    {19, 135, 16},
    {24, 0x1000, 16},      {101, 0xF012, 16},
    {102, 40, 8},          {103, 1, 8},
    {104, 0x01AB, 16},     {105, 0x7E70C1F, 32},
    {106, 0x0E1E0500, 32}, {107, 35, 8},
    {108, 35, 8},          {109, 0x1A05, 16},
    {110, 100, 8},         {111, 135, 16},
    {112, 0xFF, 8},        {113, 5, 4},
    {114, 100, 8},         {115, 8100, 16},
};

/// An item as an answer carries it, with two patterns.
CKRMCCommandFFDData Item(const Example& example) {
    CKRMCCommandFFDData item;
    item.m_uchDataType = example.type;
    CKRMCCommandConversionData& rule = item.m_cConversionTbl;
    rule.m_lMul = 1;
    rule.m_lDiv = 1;
    rule.m_ushBitLength = example.bits;
    rule.m_cDataMax.m_ulRawData = example.bits < 32 ? (krm_ulong{1} << example.bits) - 1 : 0xFFFFFFFFU;
    for (const char* const text : {"OFF", "ON"}) {
        CKRMCCommandDispData pattern;
        pattern.m_ulRawData = static_cast<krm_ulong>(rule.m_cPatternDispList.GetCount());
        pattern.m_strDataPhys = text;
        rule.m_cPatternDispList.AddTail(pattern);
    }
    return item;
}

std::string Told(const krm::RawSignal& signal) {
    std::string text;
    char digits[16];
    for (const unsigned char byte : signal.bytes) {
        std::snprintf(digits, sizeof digits, "%02X", unsigned{byte});
        text += digits;
    }
    std::snprintf(digits, sizeof digits, "0x%lX", static_cast<unsigned long>(signal.raw));
    switch (signal.status) {
        case krm::RawStatus::kFound:
            return signal.bytes.empty() ? digits : text;
        case krm::RawStatus::kNearest:
            return std::string("near ") + digits;
        case krm::RawStatus::kNone:
            return "none";
        case krm::RawStatus::kNoInverse:
            break;
    }
    return "can't be told";
}

/// The raw value, or the item's bytes, whichever the type takes.
void Show(const CKRMCCommandFFDData& item, krm_ulong raw) {
    std::vector<unsigned char> bytes;
    for (int shift = 24; shift >= 0; shift -= 8) {
        if (shift != 0 && shift >= item.m_cConversionTbl.m_ushBitLength) {
            continue;
        }
        bytes.push_back(static_cast<unsigned char>(raw >> shift));
    }
    CKRMCCommandDispData shown;
    krm::ConvertSignal(item, bytes, &shown);
    krm_ulong undone = 0;
    krm::ConvertSignalBack(item, shown.m_dDataPhys, &undone);
    std::printf("%4d  %-10lX  %-14g  %-14s  0x%-8lX  %-14s  %s\n", item.m_uchDataType, static_cast<unsigned long>(raw),
                shown.m_dDataPhys, shown.m_strDataPhys.GetText(), static_cast<unsigned long>(undone),
                Told(krm::RawFromPhysical(item, shown.m_dDataPhys)).c_str(),
                Told(krm::RawFromPhysical(item, shown.m_strDataPhys.GetText())).c_str());
}

int Usage() {
    std::fputs("usage: convert_tool [TYPE RAW [BITS [MUL DIV OFFSET DECIMALS]]]\n", stderr);
    return 2;
}

}  // namespace

int main(int argc, char** argv) {
    // TYPE RAW BITS MUL DIV OFFSET DECIMALS
    long long numbers[] = {0, 0, 32, 1, 1, 0, 0};
    if (argc == 2 || (argc > 4 && argc != 8)) {
        return Usage();
    }
    for (int i = 1; i < argc; ++i) {
        char* end = nullptr;
        numbers[i - 1] = std::strtoll(argv[i], &end, 0);
        if (end == argv[i] || *end != '\0') {
            return Usage();
        }
    }
    std::puts("type  raw         value           text            scaled back  from value      from text");
    if (argc == 1) {
        for (const Example& example : kExamples) {
            Show(Item(example), example.raw);
        }
        return 0;
    }
    CKRMCCommandFFDData item =
        Item({static_cast<unsigned char>(numbers[0]), 0, static_cast<unsigned short>(numbers[2])});
    item.m_cConversionTbl.m_lMul = static_cast<krm_long>(numbers[3]);
    item.m_cConversionTbl.m_lDiv = static_cast<krm_long>(numbers[4]);
    item.m_cConversionTbl.m_lOffset = static_cast<krm_long>(numbers[5]);
    item.m_uchDecPntCount = static_cast<unsigned char>(numbers[6]);
    Show(item, static_cast<krm_ulong>(numbers[1]));
    return 0;
}
