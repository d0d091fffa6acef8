// Writes the results of 100,000 conversions, the dump of every record and message, and where krm::exchange is built (for
// which the build defines KRM_PARITY_JSON) the JSON of every message to a text. Builds for every platform must write the same
// bytes: `./dev parity` compares them.
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <memory>
#include <string_view>
#include <type_traits>

#include "krm/adaptation_data.h"
#ifdef KRM_PARITY_JSON
#include "krm/exchange/json.h"
#endif
#include "krm/fields/all_fields.h"
#include "krm/fields/message_descriptions.h"
#include "tests/support/all_classes.h"
#include "tests/support/fields.h"
#include "tests/support/log_sink.h"

namespace {

using krm::test::Seed;

/// Where the text goes; lines end in '\n' on every platform.
std::FILE* g_out = nullptr;

krm_long WriteLogLine(void*, const char* text, krm_ulong length, int first, int second) {
    std::fwrite(text, 1, length, g_out);
    std::fprintf(g_out, " (%d %d)\n", first, second);
    return 0;
}

/// Fills an object and writes all that it holds.
void WriteContent(const char* name, const krm::TypeDescription& type, void* it, std::uint32_t seedValue) {
    Seed seed(seedValue);
    krm::test::Fill(type, it, seed);
    std::fprintf(g_out, "%s %s\n", name, krm::test::Described(type, it).c_str());
}

/// A filled message: all that it holds, then its dump where it has one, then its JSON.
void WriteMessage(const char* name, krm_ulong type, krm_ulong id, std::uint32_t seed) {
    const krm::Direction direction =
        std::string_view(name).ends_with("Snd") ? krm::Direction::Send : krm::Direction::Receive;
    const krm::MessageDescription& description = *krm::FindMessage(type, id, direction);
    const std::unique_ptr<CKRMBaseAdaptationData> message = description.create();
    WriteContent(name, *description.content, description.object(message.get()), seed);
    if (auto* const logged = dynamic_cast<krm::LoggedMessage*>(message.get())) {
        logged->ErrWriteOperationLog();
    }
#ifdef KRM_PARITY_JSON
    std::fprintf(g_out, "%s\n", krm::ToJson(*message, description).c_str());
#endif
}

/// A filled object of a class that lists hold: all that it holds, then its dump where it has one.
template <class Element>
void WriteElement(const char* name, std::uint32_t seed) {
    Element element{};
    WriteContent(name, krm::test::TypeOf<Element>(), &element, seed);
    if constexpr (std::is_base_of_v<CKRMCBaseAdaptDataStructure, Element>) {
        element.ErrWriteOperationLogStructure("[%s] Data[%d]", name, 3);
    }
}

/// Values that a conversion treats apart come often.
krm_ulong Raw(Seed& seed) {
    const std::uint32_t number = seed.Next();
    switch (number % 8) {
        case 0:
            return number >> 24U;
        case 1:
            return number >> 16U;
        case 2:
            return 0;
        case 3:
            return 0xFFFFFFFFU;
        default:
            return number;
    }
}

krm_long Scale(Seed& seed) {
    const std::uint32_t number = seed.Next();
    switch (number % 8) {
        case 0:
            return 0;
        case 1:
        case 2:
            return 1;
        case 3:
            return -static_cast<krm_long>(number >> 20U);
        case 4:
            return static_cast<krm_long>(number >> 1U);
        default:
            return static_cast<krm_long>(number >> 22U);
    }
}

/// One conversion in each direction by the converter of `code`.
void WriteConversion(unsigned char code, Seed& seed, CKRMList<CKRMCCommandDispData>& patterns, CKRMString& fallback) {
    constexpr unsigned char kSignCodes[] = {0, 1, 3, 2};
    const krm_ulong raw = Raw(seed);
    const unsigned char sign = kSignCodes[seed.Next() % 4];
    const auto bits = static_cast<unsigned short>(seed.Next() % 36);
    const krm_long multiplier = Scale(seed);
    const krm_long divisor = Scale(seed);
    const krm_long offset = Scale(seed);
    const auto decimals = static_cast<unsigned char>(seed.Next() % 16 == 0 ? seed.Next() : seed.Next() % 7);
    const krm_ulong most = Raw(seed);
    const krm_ulong least = Raw(seed);

    CKRMCCommandConvSignalData* const converter = CKRMCCommandConvSignalData::CreateConverter(code);
    CKRMCCommandDispData shown;
    krm_ulong status = 0;
    if (converter->IsBinaryDataType()) {
        const unsigned char bytes[] = {static_cast<unsigned char>(raw), static_cast<unsigned char>(raw >> 8U),
                                       static_cast<unsigned char>(raw >> 16U)};
        status = converter->ConvCommandDispData(&shown, bytes, sizeof(bytes), sign, bits, multiplier, divisor, offset,
                                                decimals, most, least, &patterns);
    } else {
        status = converter->ConvCommandDispData(&shown, raw, sign, bits, multiplier, divisor, offset, decimals, most,
                                                least, &patterns, &fallback, 99);
    }
    krm_ulong byRaws = 0;
    krm_ulong byDoubles = 0;
    const double value = static_cast<double>(static_cast<std::int32_t>(seed.Next())) / 64;
    converter->ConvLogicalValue(&byRaws, value, sign, bits, multiplier, divisor, offset, decimals, most, least);
    converter->ConvLogicalValue(&byDoubles, value, sign, bits, multiplier, divisor, offset, decimals, 1e6, -1e6);
    CKRMCCommandConvSignalData::DeleteConverter(converter);

    // The platform's own arcsine, tangent and logarithm may differ in the last digits, and so may texts of their values.
    const bool ofLibrary = code == 102 || code == 114;
    CKRMString line;
    line.Format(ofLibrary ? "%d %08X: %u %08X %.12g" : "%d %08X: %u %08X %.17g", static_cast<int>(code),
                static_cast<unsigned>(raw), static_cast<unsigned>(status), static_cast<unsigned>(shown.m_ulRawData),
                shown.m_dDataPhys);
    std::fprintf(g_out, "%s %u %08X %08X %s\n", line.GetText(), static_cast<unsigned>(shown.m_ulDataStringId),
                 static_cast<unsigned>(byRaws), static_cast<unsigned>(byDoubles),
                 ofLibrary && decimals > 9 ? "" : shown.m_strDataPhys.GetText());
}

void WriteConversions() {
    constexpr unsigned char kCodes[] = {0,  1,  3,  4,   5,   6,   7,   8,   9,   10,  11,  12,  13,  15,  16,  19,
                                        20, 22, 24, 101, 102, 103, 104, 107, 108, 109, 110, 111, 112, 113, 114, 115};
    CKRMList<CKRMCCommandDispData> patterns;
    for (krm_ulong key = 0; key < 16; ++key) {
        CKRMCCommandDispData pattern;
        pattern.m_ulRawData = key;
        pattern.m_ulDataStringId = 100 + key;
        pattern.m_strDataPhys.Format("pattern %u", static_cast<unsigned>(key));
        patterns.AddTail(pattern);
    }
    CKRMString fallback("default");
    CKRMString none;
    Seed seed(2026);
    constexpr int kConversions = 100'000;
    for (int i = 0; i < kConversions; ++i) {
        const unsigned char code = kCodes[static_cast<std::size_t>(i) % sizeof(kCodes)];
        WriteConversion(code, seed, patterns, i % 2 == 0 ? fallback : none);
    }
}

}  // namespace

int main(int argc, char** argv) {
    if (argc != 2 || (g_out = std::fopen(argv[1], "wb")) == nullptr) {
        std::fprintf(stderr, "usage: %s OUTPUT\n", argv[0]);
        return 2;
    }
    krm::test::SetLogSink(&WriteLogLine, nullptr);
    WriteConversions();
    std::uint32_t seed = 1;
#define KRM_WRITE(Class, Base, type, id, command) WriteMessage(#Class, type, id, seed++);
    KRM_ALL_MESSAGES(KRM_WRITE)
#undef KRM_WRITE
#define KRM_WRITE(Class, kind) WriteElement<Class>(#Class, seed++);
    KRM_ALL_LIST_ELEMENTS(KRM_WRITE)
#undef KRM_WRITE
    const bool written = std::ferror(g_out) == 0;
    return std::fclose(g_out) == 0 && written ? 0 : 1;
}
