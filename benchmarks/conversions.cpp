#include "benchmarks/conversions.h"

#include <array>
#include <cstdio>
#include <memory>
#include <stdexcept>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

#include "krm/convert/signal.h"

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

/// What the base converter scales.
Signal Scaled() {
    return {0, Raws(300, 971), 2, 0, 16, 3, 4, -4000};
}
/// The same with a quotient that no binary fraction holds, of signed values.
Signal Sevenths() {
    return {0, Raws(300, 971), 2, 1, 16, 3, 7, -4000};
}

/// What a converter is called with, and the record that it fills. The record is used again and again, as for a value that
/// is shown continuously.
class Conversion {
public:
    explicit Conversion(const Signal& signal) : m_signal(signal), m_converter(signal.type) {}

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
    krm_ulong ConvertValue(krm_ulong raw) {
        return m_converter->ValueConversion(&m_record.m_dDataPhys, raw, m_signal.signCode, m_signal.bits, m_signal.mul,
                                            m_signal.div, m_signal.offset, m_signal.decimals);
    }
    const CKRMCCommandDispData& Record() const { return m_record; }

private:
    Signal m_signal;
    SignalConverter m_converter;
    CKRMList<CKRMCCommandDispData> m_patterns = Patterns<CKRMCCommandDispData>();
    CKRMList<CKRMCCommandDispVariableData> m_variablePatterns = Patterns<CKRMCCommandDispVariableData>();
    CKRMString m_default = "Unknown";
    CKRMCCommandDispData m_record;
};

/// A pass that runs `convert(conversion, input)` over the inputs.
template <class Input, class Convert>
MakePass Converting(const Signal& signal, const std::vector<Input>& inputs, Convert convert) {
    return [=]() -> Pass {
        const auto conversion = std::make_shared<Conversion>(signal);
        return {static_cast<double>(inputs.size()), [=] {
                    for (const Input& input : inputs) {
                        Keep(convert(*conversion, input));
                        Keep(conversion->Record());
                    }
                }};
    };
}

using Buffer = ConversionBuffer;
using Result = ConversionResult;

template <class Input, class Convert>
std::vector<Result> Results(const Signal& signal, const std::vector<Input>& inputs, Convert convert) {
    std::vector<Result> results;
    Conversion conversion(signal);
    for (const Input& input : inputs) {
        convert(conversion, input);
        const CKRMCCommandDispData& record = conversion.Record();
        Result result{record.m_dDataPhys,
                      static_cast<unsigned>(record.m_ulRawData),
                      static_cast<unsigned>(static_cast<krm_int64>(record.m_dDataPhys)),
                      record.m_strDataPhys.GetText(),
                      {}};
        if constexpr (!std::is_same_v<Input, krm_ulong>) {
            result.bytes = input;
        }
        results.push_back(std::move(result));
    }
    return results;
}

/// A pass that prints what these conversions give.
template <class Input, class Convert, class Print>
MakePass PrintingOf(const Signal& signal, const std::vector<Input>& inputs, Convert convert, Print print) {
    return [=]() -> Pass {
        const std::vector<Result> results = Results(signal, inputs, convert);
        Buffer first{};
        for (const Result& result : results) {
            print(first, result);
            if (result.text != first.data()) {
                throw std::runtime_error("the peer prints " + std::string(first.data()) + ", not " + result.text);
            }
        }
        return {static_cast<double>(results.size()), [=] {
                    Buffer buffer;
                    for (const Result& result : results) {
                        print(buffer, result);
                        Keep(buffer);
                    }
                }};
    };
}

constexpr auto kConvert = [](Conversion& conversion, krm_ulong raw) { return conversion.Convert(raw); };
constexpr auto kConvertVariable = [](Conversion& conversion, krm_ulong raw) { return conversion.ConvertVariable(raw); };
constexpr auto kConvertBytes = [](Conversion& conversion, const std::vector<unsigned char>& bytes) {
    return conversion.ConvertBytes(bytes);
};

MakePass Converting(const Signal& signal) {
    return Converting(signal, signal.raws, kConvert);
}
template <class Print>
ConversionPeer Printing(const std::string& name, const Signal& signal, double goal, Print print) {
    return {name, PrintingOf(signal, signal.raws, kConvert, print), goal};
}

// The printing of a peer: one call of snprintf with `format` and what follows it, an expression of `it`.
#define KRM_SNPRINTF(...)                                         \
    [](Buffer& buffer, const Result& it) {                        \
        static_cast<void>(it);                                    \
        std::snprintf(buffer.data(), buffer.size(), __VA_ARGS__); \
    }

constexpr double kBelow = 1.0;
constexpr double kThird = 0.33;

using Workloads = std::vector<ConversionWorkload>;

/// A converter beside the one call of snprintf.
template <class Print>
void Add(Workloads& workloads, const std::string& name, const Signal& signal, const std::string& format, Print print) {
    workloads.push_back(
        {"convert: " + name, Converting(signal), {Printing("snprintf " + format, signal, kBelow, print)}});
}

/// What the user's locale shows there is the system's own, wine's other than Windows'.
void WithoutPeerOnWindows([[maybe_unused]] ConversionWorkload& workload) {
#ifdef _WIN32
    workload.peers.clear();
#endif
}

unsigned ByteOf(const Result& it, unsigned shift) {
    return (it.integer >> shift) & 0xFFU;
}

template <class Print>
void AddBytes(Workloads& workloads, const std::string& name, unsigned char type, const std::string& format,
              const std::vector<std::vector<unsigned char>>& inputs, Print print) {
    const Signal signal{type, {}};
    workloads.push_back({"convert: " + name,
                         Converting(signal, inputs, kConvertBytes),
                         {{"snprintf " + format, PrintingOf(signal, inputs, kConvertBytes, print), kBelow}}});
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

void AddByteConverters(Workloads& workloads) {
    AddBytes(workloads, "Ascii (4), 17 bytes", 4, "\"%.*s\"", Texts(),
             KRM_SNPRINTF("%.*s", static_cast<int>(it.bytes.size()), reinterpret_cast<const char*>(it.bytes.data())));
    AddBytes(workloads, "ArrayHex (104), 8 bytes", 104, "\"%02X%02X...\"", EightBytes(),
             KRM_SNPRINTF("%02X%02X%02X%02X%02X%02X%02X%02X", it.bytes[0], it.bytes[1], it.bytes[2], it.bytes[3],
                          it.bytes[4], it.bytes[5], it.bytes[6], it.bytes[7]));
}

void AddPatternConverters(Workloads& workloads) {
    const auto compare = [&](const std::string& name, const MakePass& library,
                             const std::vector<ConversionPeer>& peers) {
        workloads.push_back({name, library, peers});
    };
    const Signal pattern{1, Raws(0, 1), 2};
    Signal found = pattern;
    for (krm_ulong& raw : found.raws) {
        raw %= 16;
    }
    // Beside "%.2f" it prints something else than the peer, whose raw values are those of the base converter.
    const Signal decimal = Scaled();
    Signal integer = found;
    integer.decimals = 0;
    compare("convert: StringPattern (1, 20, 22), 16 patterns", Converting(integer),
            {Printing("snprintf \"%.2f\"", decimal, 0.25, KRM_SNPRINTF("%.2f", it.physical)),
             Printing("snprintf \"%s\"", integer, 0, KRM_SNPRINTF("%s", it.text.c_str()))});
    Signal missing = integer;
    missing.raws = Raws(100, 3);
    compare("convert: StringPattern, none of 16 matches", Converting(missing),
            {Printing("snprintf \"%s\"", missing, kBelow, KRM_SNPRINTF("%s", it.text.c_str()))});

    compare("convert: StringPattern, 16 patterns of bytes", Converting(integer, integer.raws, kConvertVariable),
            {Printing("snprintf \"%s\"", integer, kBelow, KRM_SNPRINTF("%s", it.text.c_str()))});

    const Signal between{13, Raws(1000, 97), 2, 0, 16, 1, 1, 0, 60000, 10};
    Add(workloads, "MinMax (13), between the limits", between, "\"%.2f\"", KRM_SNPRINTF("%.2f", it.physical));
    Signal beyond = between;
    beyond.raws = {0, 60000, 65535, 10, 5, 61000, 8, 62222};
    Add(workloads, "MinMax, at a limit", beyond, "\"%s\"", KRM_SNPRINTF("%s", it.text.c_str()));

    Signal light = between;
    light.type = 24;
    light.decimals = 0;
    Add(workloads, "IlluminanceMinMax (24), between the limits", light, "\"%.0f\"", KRM_SNPRINTF("%.0f", it.physical));
    beyond.type = 24;
    Add(workloads, "IlluminanceMinMax, at a limit", beyond, "\"%s\"", KRM_SNPRINTF("%s", it.text.c_str()));

    Signal lsb = found;
    lsb.type = 103;
    Add(workloads, "LsbPattern (103), 16 patterns", lsb, "\"%s\"", KRM_SNPRINTF("%s", it.text.c_str()));
    lsb.raws = Raws(300, 971);
    Add(workloads, "LsbPattern, none of 16 matches", lsb, "\"%.2f\"", KRM_SNPRINTF("%.2f", it.physical));
}

void AddTimeConverters(Workloads& workloads) {
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
    Add(workloads, "Date (15)", {15, days, 0, 0, 24}, "\"%02d.%02d.%02d\"", parts);
    Add(workloads, "Time (16)", {16, times, 0, 0, 24}, "\"%02d.%02d.%02d\"", parts);
    Add(workloads, "TimeHHMM (19)", {19, Raws(3, 21)}, "\"%02d:%02d\"",
        KRM_SNPRINTF("%02d:%02d", static_cast<int>(it.integer >> 8U), static_cast<int>(ByteOf(it, 0))));
    Add(workloads, "TimeHHMM2 (111)", {111, Raws(3, 21)}, "\"%dhrs,%dmin\"",
        KRM_SNPRINTF("%dhrs,%dmin", static_cast<int>(it.integer >> 8U), static_cast<int>(ByteOf(it, 0))));
    Add(workloads, "TimeHHMM3 (115)", {115, Raws(3, 1021)}, "\"%dhrs,%dmin\"",
        KRM_SNPRINTF("%dhrs,%dmin", static_cast<int>(it.integer / 3600), static_cast<int>(it.integer / 60 % 60)));
    // In the locale "C", which ./dev bench runs in.
    Add(workloads, "Date2 (105), in the user's locale", {105, locals, 0, 0, 32}, "\"%02d/%02d/%02d\"",
        KRM_SNPRINTF("%02d/%02d/%02d", static_cast<int>(ByteOf(it, 8)), static_cast<int>(ByteOf(it, 0)),
                     static_cast<int>((it.integer >> 16U) % 100)));
    WithoutPeerOnWindows(workloads.back());
    Add(workloads, "Time2 (106), in the user's locale", {106, localTimes, 0, 0, 32}, "\"%02d:%02d:%02d\"",
        KRM_SNPRINTF("%02d:%02d:%02d", static_cast<int>(ByteOf(it, 24)), static_cast<int>(ByteOf(it, 16)),
                     static_cast<int>(ByteOf(it, 8))));
    WithoutPeerOnWindows(workloads.back());
}

void AddTextConverters(Workloads& workloads) {
    const std::vector<krm_ulong> words = Raws(300, 971);
    Add(workloads, "Hex (3)", {3, words}, "\"0x%04X\"", KRM_SNPRINTF("0x%04X", it.integer));
    Add(workloads, "Hex2 (112)", {112, words}, "\"%04X\"", KRM_SNPRINTF("%04X", it.integer));
    Add(workloads, "DiagCode (5)", {5, words}, "\"%c%04X\"",
        KRM_SNPRINTF("%c%04X", "PCBU"[(it.integer >> 14U) & 3U], it.integer & 0x3FFFU));
    Add(workloads, "SoftwareVersion (109)", {109, words}, "\"%X.%02X\"",
        KRM_SNPRINTF("%X.%02X", it.raw >> 8U, it.raw & 0xFFU));
    Add(workloads, "Bin (113), 8 bits", {113, Raws(0, 3), 0, 0, 8}, "\"%d%d...\"",
        KRM_SNPRINTF("%d%d%d%d%d%d%d%d", it.raw >> 7U & 1U, it.raw >> 6U & 1U, it.raw >> 5U & 1U, it.raw >> 4U & 1U,
                     it.raw >> 3U & 1U, it.raw >> 2U & 1U, it.raw >> 1U & 1U, it.raw & 1U));
    const Signal degrees{107, Raws(0xFFF00000U, 0x4321), 4, 1, 32, 1, 1, 0};
    Add(workloads, "Latitude (107)", degrees, "\"%c%.4f\"",
        KRM_SNPRINTF("%c%.4f", it.physical < 0 ? 'S' : 'N', it.physical < 0 ? -it.physical : it.physical));
    Signal longitude = degrees;
    longitude.type = 108;
    Add(workloads, "Longitude (108)", longitude, "\"%c%.4f\"",
        KRM_SNPRINTF("%c%.4f", it.physical < 0 ? 'W' : 'E', it.physical < 0 ? -it.physical : it.physical));
}

void AddNumberConverters(Workloads& workloads) {
    const auto decimal = KRM_SNPRINTF("%.2f", it.physical);
    const Signal scaled = Scaled();
    const auto add = [&](const std::string& name, unsigned char type) {
        Signal signal = scaled;
        signal.type = type;
        Add(workloads, name, signal, "\"%.2f\"", decimal);
    };
    Add(workloads, "Illuminance (6)", {6, Raws(1, 37)}, "\"%.0f\"", KRM_SNPRINTF("%.0f", it.physical));
    add("Chassis (7), 10 bits with sign", 7);
    add("Chassis (8), 12 bits with sign", 8);
    add("Chassis (9), 10 bits", 9);
    add("Chassis (10), 8 bits with sign", 10);
    add("Chassis (11), 16 bits", 11);
    add("Reversal (12)", 12);
    add("Bcd (101)", 101);
    Add(workloads, "Incline (102)", {102, Raws(0, 29), 2, 1, 16, 1, 1, 0}, "\"%.2f\"", decimal);
    add("Special2 (110)", 110);
    Add(workloads, "Special3 (114)", {114, Raws(1, 3), 2, 0, 8}, "\"%.2f\"", decimal);
}

}  // namespace

ConversionWorkload ValueAlone() {
    return {"convert: physical value alone",
            Converting(Sevenths(), Sevenths().raws,
                       [](Conversion& conversion, krm_ulong raw) { return conversion.ConvertValue(raw); }),
            {}};
}

Workloads ConversionWorkloads() {
    const auto decimal = KRM_SNPRINTF("%.2f", it.physical);
    Workloads workloads;
    workloads.push_back({"convert: base, 2 decimals",
                         Converting(Scaled()),
                         {Printing("snprintf \"%.2f\"", Scaled(), kThird, decimal)}});
    workloads.push_back({"convert: base, 16 signed bits x 3 / 7 - 40",
                         Converting(Sevenths()),
                         {Printing("snprintf \"%.2f\"", Sevenths(), kThird, decimal)}});
    AddPatternConverters(workloads);
    AddNumberConverters(workloads);
    AddTextConverters(workloads);
    AddTimeConverters(workloads);
    AddByteConverters(workloads);
    return workloads;
}

MakePass PrintingBaseBy(void (*print)(ConversionBuffer&, const ConversionResult&)) {
    return PrintingOf(Scaled(), Scaled().raws, kConvert, print);
}

}  // namespace krm::bench
