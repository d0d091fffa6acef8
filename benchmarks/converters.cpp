// Raw value to physical value and text by every converter, beside the snprintf call that would print its result.
//
// The peer prints the finished physical value and does nothing else: no scaling, no choice, no record to fill. Before it is
// timed, its text is compared with the converter's for every raw value.
#include "krm/convert/converter.h"

#include <fmt/format.h>

#include <array>
#include <cstdio>
#include <memory>
#include <string>
#include <vector>

#include "benchmarks/workload.h"

namespace krm::bench {
namespace {

/// A signal as an engine knows it, and raw values of it.
struct Signal {
    unsigned char type;  ///< conversion type
    std::vector<krm_ulong> raws;
    unsigned char decimals = 0;
    unsigned char signCode = 0;
    unsigned short bits = 16;
    krm_long mul = 1;
    krm_long div = 1;
    krm_long offset = 0;
    krm_ulong most = 0xFFFF;
    krm_ulong least = 0;
};

using Converter = std::unique_ptr<CKRMCCommandConvSignalData, decltype(&CKRMCCommandConvSignalData::DeleteConverter)>;

Converter Create(unsigned char type) {
    return {CKRMCCommandConvSignalData::CreateConverter(type), &CKRMCCommandConvSignalData::DeleteConverter};
}

/// 64 numbers from `first` on, `step` apart, in no order that a predictor of branches could learn by heart.
std::vector<krm_ulong> Raws(krm_ulong first, krm_ulong step) {
    std::vector<krm_ulong> raws;
    for (krm_ulong i = 0; i < 64; ++i) {
        raws.push_back(first + (i * 37 + 11) % 64 * step);
    }
    return raws;
}

/// The patterns that all signals have: 16 of them, with the keys 0 to 15.
template <class Pattern>
CKRMList<Pattern> Patterns() {
    constexpr std::array<const char*, 16> kTexts = {
        "Off", "On",       "Not available", "Error",     "Park",    "Reverse",  "Neutral",     "Drive",
        "Low", "Standing", "Initialising",  "Completed", "Aborted", "Learning", "Not learned", "Out of the range"};
    CKRMList<Pattern> patterns;
    for (std::size_t i = 0; i < kTexts.size(); ++i) {
        Pattern pattern;
        pattern.m_strDataPhys = kTexts[i];
        pattern.m_ulDataStringId = static_cast<krm_ulong>(5000 + i);
        if constexpr (std::is_same_v<Pattern, CKRMCCommandDispVariableData>) {
            pattern.m_uchRawDataList.AddTail(static_cast<unsigned char>(i));
        } else {
            pattern.m_ulRawData = static_cast<krm_ulong>(i);
        }
        patterns.AddTail(pattern);
    }
    return patterns;
}

/// What a converter is called with, and the record that it fills. The record is used again and again, as for a value that
/// is shown continuously.
class Conversion {
public:
    explicit Conversion(const Signal& signal) : m_signal(signal), m_converter(Create(signal.type)) {}

    krm_ulong Convert(krm_ulong raw) {
        return m_converter->ConvCommandDispData(&m_record, raw, m_signal.signCode, m_signal.bits, m_signal.mul,
                                                m_signal.div, m_signal.offset, m_signal.decimals, m_signal.most,
                                                m_signal.least, &m_patterns, &m_default, 4999);
    }
    krm_ulong ConvertVariable(krm_ulong raw) {
        return m_converter->ConvCommandDispVariableData(&m_record, raw, m_signal.signCode, m_signal.bits, m_signal.mul,
                                                        m_signal.div, m_signal.offset, m_signal.decimals, m_signal.most,
                                                        m_signal.least, &m_variablePatterns, &m_default, 4999);
    }
    krm_ulong ConvertBytes(const std::vector<unsigned char>& bytes) {
        m_record.m_strDataPhys.Empty();  // one of the converters appends
        return m_converter->ConvCommandDispData(&m_record, bytes.data(), static_cast<krm_ulong>(bytes.size()), 0, 0, 1,
                                                1, 0, 0, 0, 0, nullptr);
    }
    const CKRMCCommandDispData& Record() const { return m_record; }

private:
    Signal m_signal;
    Converter m_converter;
    CKRMList<CKRMCCommandDispData> m_patterns = Patterns<CKRMCCommandDispData>();
    CKRMList<CKRMCCommandDispVariableData> m_variablePatterns = Patterns<CKRMCCommandDispVariableData>();
    CKRMString m_default = "Unknown";
    CKRMCCommandDispData m_record;
};

/// Runs `convert(input)` over the inputs in turn.
template <class Inputs, class Convert>
void RunConverter(benchmark::State& state, const Inputs& inputs, Conversion& conversion, Convert convert) {
    std::size_t i = 0;
    for (auto _ : state) {
        krm_ulong status = convert(inputs[i]);
        benchmark::DoNotOptimize(status);
        benchmark::DoNotOptimize(conversion.Record().m_strDataPhys.GetText());
        benchmark::ClobberMemory();
        i = i + 1 == inputs.size() ? 0 : i + 1;
    }
}

/// A finished conversion: what the peer prints.
struct Result {
    double physical;
    krm_ulong raw;
    unsigned integer;  ///< the physical value's low 32 bits
    std::string text;
    std::vector<unsigned char> bytes;
};

using Buffer = std::array<char, 128>;

template <class Print>
void RunPeer(benchmark::State& state, const std::vector<Result>& results, Print print) {
    Buffer buffer{};
    for (const Result& result : results) {
        print(buffer, result);
        if (result.text != buffer.data()) {
            state.SkipWithError(("the peer prints " + std::string(buffer.data()) + ", not " + result.text).c_str());
            return;
        }
    }
    std::size_t i = 0;
    for (auto _ : state) {
        print(buffer, results[i]);
        benchmark::DoNotOptimize(buffer.data());
        benchmark::ClobberMemory();
        i = i + 1 == results.size() ? 0 : i + 1;
    }
}

template <class Inputs, class Convert>
std::vector<Result> Results(const Inputs& inputs, Conversion& conversion, Convert convert) {
    std::vector<Result> results;
    for (const auto& input : inputs) {
        convert(input);
        const CKRMCCommandDispData& record = conversion.Record();
        Result result{record.m_dDataPhys,
                      record.m_ulRawData,
                      static_cast<unsigned>(static_cast<krm_int64>(record.m_dDataPhys)),
                      record.m_strDataPhys.GetText(),
                      {}};
        if constexpr (!std::is_same_v<std::decay_t<decltype(input)>, krm_ulong>) {
            result.bytes = input;
        }
        results.push_back(std::move(result));
    }
    return results;
}

template <class Print>
Peer Printing(const std::string& name, const Signal& signal, double goal, Print print) {
    const auto run = [signal, print](benchmark::State& state) {
        Conversion conversion(signal);
        RunPeer(state, Results(signal.raws, conversion, [&](krm_ulong raw) { return conversion.Convert(raw); }), print);
    };
    return {name, run, goal};
}

Function Converting(const Signal& signal) {
    return [signal](benchmark::State& state) {
        Conversion conversion(signal);
        RunConverter(state, signal.raws, conversion, [&](krm_ulong raw) { return conversion.Convert(raw); });
    };
}

// The printing of a peer: one call of snprintf with `format` and what follows it, an expression of `it`.
#define KRM_SNPRINTF(...)                                         \
    [](Buffer& buffer, const Result& it) {                        \
        static_cast<void>(it);                                    \
        std::snprintf(buffer.data(), buffer.size(), __VA_ARGS__); \
    }

constexpr double kBelow = 1.0;

/// A converter beside the one call of snprintf.
template <class Print>
void Add(const std::string& name, const Signal& signal, const std::string& format, Print print) {
    Compare("convert: " + name, Converting(signal), {Printing("snprintf " + format, signal, kBelow, print)});
}

unsigned ByteOf(const Result& it, unsigned shift) {
    return (it.integer >> shift) & 0xFFU;
}

void AddBytes(const std::string& name, unsigned char type, const std::string& format,
              const std::vector<std::vector<unsigned char>>& inputs, void (*print)(Buffer&, const Result&)) {
    const Signal signal{type, {}};
    const auto ours = [=](benchmark::State& state) {
        Conversion conversion(signal);
        RunConverter(state, inputs, conversion,
                     [&](const std::vector<unsigned char>& bytes) { return conversion.ConvertBytes(bytes); });
    };
    const auto peer = [=](benchmark::State& state) {
        Conversion conversion(signal);
        const auto convert = [&](const std::vector<unsigned char>& bytes) { return conversion.ConvertBytes(bytes); };
        RunPeer(state, Results(inputs, conversion, convert), print);
    };
    Compare("convert: " + name, ours, {{"snprintf " + format, peer, kBelow}});
}

std::vector<std::vector<unsigned char>> Texts() {
    std::vector<std::vector<unsigned char>> texts;
    for (const std::string text :
         {"JTDKN3DU0A0123456", "JTMBFREV30D012345", "SB1KZ56E50F000001", "NMTK33BX70R098765"}) {
        texts.emplace_back(text.begin(), text.end());
    }
    return texts;
}

std::vector<std::vector<unsigned char>> EightBytes() {
    std::vector<std::vector<unsigned char>> texts = Texts();
    for (auto& text : texts) {
        text.erase(text.begin(), text.begin() + 9);
    }
    return texts;
}

void RegisterByteConverters() {
    AddBytes("Ascii (4), 17 bytes", 4, "\"%.*s\"", Texts(),
             KRM_SNPRINTF("%.*s", static_cast<int>(it.bytes.size()), reinterpret_cast<const char*>(it.bytes.data())));
    AddBytes("ArrayHex (104), 8 bytes", 104, "\"%02X%02X...\"", EightBytes(),
             KRM_SNPRINTF("%02X%02X%02X%02X%02X%02X%02X%02X", it.bytes[0], it.bytes[1], it.bytes[2], it.bytes[3],
                          it.bytes[4], it.bytes[5], it.bytes[6], it.bytes[7]));
}

void RegisterPatternConverters() {
    const Signal pattern{1, Raws(0, 1), 2};
    Signal found = pattern;
    for (krm_ulong& raw : found.raws) {
        raw %= 16;
    }
    // Beside "%.2f" it prints something else than the peer, whose raw values are those of the base converter.
    const Signal decimal{0, Raws(300, 971), 2, 0, 16, 3, 4, -4000};
    Signal integer = found;
    integer.decimals = 0;
    Compare("convert: StringPattern (1, 20, 22), 16 patterns", Converting(integer),
            {Printing("snprintf \"%.2f\"", decimal, 0.25, KRM_SNPRINTF("%.2f", it.physical)),
             Printing("snprintf \"%s\"", integer, 0, KRM_SNPRINTF("%s", it.text.c_str()))});
    Signal missing = integer;
    missing.raws = Raws(100, 3);
    Compare("convert: StringPattern, none of 16 matches", Converting(missing),
            {Printing("snprintf \"%s\"", missing, kBelow, KRM_SNPRINTF("%s", it.text.c_str()))});

    const auto variable = [integer](benchmark::State& state) {
        Conversion conversion(integer);
        RunConverter(state, integer.raws, conversion, [&](krm_ulong raw) { return conversion.ConvertVariable(raw); });
    };
    Compare("convert: StringPattern, 16 patterns of bytes", variable,
            {Printing("snprintf \"%s\"", integer, kBelow, KRM_SNPRINTF("%s", it.text.c_str()))});

    const Signal between{13, Raws(1000, 97), 2, 0, 16, 1, 1, 0, 60000, 10};
    Add("MinMax (13), between the limits", between, "\"%.2f\"", KRM_SNPRINTF("%.2f", it.physical));
    Signal beyond = between;
    beyond.raws = {0, 60000, 65535, 10, 5, 61000, 8, 62222};
    Add("MinMax, at a limit", beyond, "\"%s\"", KRM_SNPRINTF("%s", it.text.c_str()));

    Signal light = between;
    light.type = 24;
    light.decimals = 0;
    Add("IlluminanceMinMax (24), between the limits", light, "\"%.0f\"", KRM_SNPRINTF("%.0f", it.physical));
    beyond.type = 24;
    Add("IlluminanceMinMax, at a limit", beyond, "\"%s\"", KRM_SNPRINTF("%s", it.text.c_str()));

    Signal lsb = found;
    lsb.type = 103;
    Add("LsbPattern (103), 16 patterns", lsb, "\"%s\"", KRM_SNPRINTF("%s", it.text.c_str()));
    lsb.raws = Raws(300, 971);
    Add("LsbPattern, none of 16 matches", lsb, "\"%.2f\"", KRM_SNPRINTF("%.2f", it.physical));
}

void RegisterTimeConverters() {
    std::vector<krm_ulong> days;
    std::vector<krm_ulong> times;
    std::vector<krm_ulong> locals;
    std::vector<krm_ulong> localTimes;
    for (krm_ulong i = 0; i < 64; ++i) {
        const krm_ulong k = (i * 37 + 11) % 64;
        days.push_back((k % 30) << 16U | (1 + k % 12) << 8U | (1 + k % 28));
        times.push_back((k % 24) << 16U | (k * 7 % 60) << 8U | (k * 11 % 60));
        locals.push_back((1990 + k) << 16U | (1 + k % 12) << 8U | (1 + k % 28));
        localTimes.push_back((k % 24) << 24U | (k * 7 % 60) << 16U | (k * 11 % 60) << 8U);
    }
    const auto parts = KRM_SNPRINTF("%02d.%02d.%02d", static_cast<int>(ByteOf(it, 16)), static_cast<int>(ByteOf(it, 8)),
                                    static_cast<int>(ByteOf(it, 0)));
    Add("Date (15)", {15, days, 0, 0, 24}, "\"%02d.%02d.%02d\"", parts);
    Add("Time (16)", {16, times, 0, 0, 24}, "\"%02d.%02d.%02d\"", parts);
    Add("TimeHHMM (19)", {19, Raws(3, 21)}, "\"%02d:%02d\"",
        KRM_SNPRINTF("%02d:%02d", static_cast<int>(it.integer >> 8U), static_cast<int>(ByteOf(it, 0))));
    Add("TimeHHMM2 (111)", {111, Raws(3, 21)}, "\"%dhrs,%dmin\"",
        KRM_SNPRINTF("%dhrs,%dmin", static_cast<int>(it.integer >> 8U), static_cast<int>(ByteOf(it, 0))));
    Add("TimeHHMM3 (115)", {115, Raws(3, 1021)}, "\"%dhrs,%dmin\"",
        KRM_SNPRINTF("%dhrs,%dmin", static_cast<int>(it.integer / 3600), static_cast<int>(it.integer / 60 % 60)));
    // In the locale "C", which ./dev bench runs in.
    Add("Date2 (105), in the user's locale", {105, locals, 0, 0, 32}, "\"%02d/%02d/%02d\"",
        KRM_SNPRINTF("%02d/%02d/%02d", static_cast<int>(ByteOf(it, 8)), static_cast<int>(ByteOf(it, 0)),
                     static_cast<int>((it.integer >> 16U) % 100)));
    Add("Time2 (106), in the user's locale", {106, localTimes, 0, 0, 32}, "\"%02d:%02d:%02d\"",
        KRM_SNPRINTF("%02d:%02d:%02d", static_cast<int>(ByteOf(it, 24)), static_cast<int>(ByteOf(it, 16)),
                     static_cast<int>(ByteOf(it, 8))));
}

void RegisterTextConverters() {
    const std::vector<krm_ulong> words = Raws(300, 971);
    Add("Hex (3)", {3, words}, "\"0x%04X\"", KRM_SNPRINTF("0x%04X", it.integer));
    Add("Hex2 (112)", {112, words}, "\"%04X\"", KRM_SNPRINTF("%04X", it.integer));
    Add("DiagCode (5)", {5, words}, "\"%c%04X\"",
        KRM_SNPRINTF("%c%04X", "PCBU"[(it.integer >> 14U) & 3U], it.integer & 0x3FFFU));
    Add("SoftwareVersion (109)", {109, words}, "\"%X.%02X\"", KRM_SNPRINTF("%X.%02X", it.raw >> 8U, it.raw & 0xFFU));
    Add("Bin (113), 8 bits", {113, Raws(0, 3), 0, 0, 8}, "\"%d%d...\"",
        KRM_SNPRINTF("%d%d%d%d%d%d%d%d", it.raw >> 7U & 1U, it.raw >> 6U & 1U, it.raw >> 5U & 1U, it.raw >> 4U & 1U,
                     it.raw >> 3U & 1U, it.raw >> 2U & 1U, it.raw >> 1U & 1U, it.raw & 1U));
    const Signal degrees{107, Raws(0xFFF00000U, 0x4321), 4, 1, 32, 1, 1, 0};
    Add("Latitude (107)", degrees, "\"%c%.4f\"",
        KRM_SNPRINTF("%c%.4f", it.physical < 0 ? 'S' : 'N', it.physical < 0 ? -it.physical : it.physical));
    Signal longitude = degrees;
    longitude.type = 108;
    Add("Longitude (108)", longitude, "\"%c%.4f\"",
        KRM_SNPRINTF("%c%.4f", it.physical < 0 ? 'W' : 'E', it.physical < 0 ? -it.physical : it.physical));
}

void RegisterNumberConverters() {
    const auto decimal = KRM_SNPRINTF("%.2f", it.physical);
    const Signal scaled{0, Raws(300, 971), 2, 0, 16, 3, 4, -4000};
    const auto add = [&](const std::string& name, unsigned char type) {
        Signal signal = scaled;
        signal.type = type;
        Add(name, signal, "\"%.2f\"", decimal);
    };
    Add("Illuminance (6)", {6, Raws(1, 37)}, "\"%.0f\"", KRM_SNPRINTF("%.0f", it.physical));
    add("Chassis (7), 10 bits with sign", 7);
    add("Chassis (8), 12 bits with sign", 8);
    add("Chassis (9), 10 bits", 9);
    add("Chassis (10), 8 bits with sign", 10);
    add("Chassis (11), 16 bits", 11);
    add("Reversal (12)", 12);
    add("Bcd (101)", 101);
    Add("Incline (102)", {102, Raws(0, 29), 2, 1, 16, 1, 1, 0}, "\"%.2f\"", decimal);
    add("Special2 (110)", 110);
    Add("Special3 (114)", {114, Raws(1, 3), 2, 0, 8}, "\"%.2f\"", decimal);
}

}  // namespace

void RegisterConverters() {
    const Signal scaled{0, Raws(300, 971), 2, 0, 16, 3, 4, -4000};
    const auto decimal = KRM_SNPRINTF("%.2f", it.physical);
    const auto formatted = [](Buffer& buffer, const Result& it) {
        *fmt::format_to_n(buffer.data(), buffer.size() - 1, "{:.2f}", it.physical).out = '\0';
    };
    Compare("convert: base, 2 decimals", Converting(scaled),
            {Printing("snprintf \"%.2f\"", scaled, 0.33, decimal), Printing("fmt \"{:.2f}\"", scaled, 0, formatted)});
    RegisterPatternConverters();
    RegisterNumberConverters();
    RegisterTextConverters();
    RegisterTimeConverters();
    RegisterByteConverters();
}

}  // namespace krm::bench
