// krm convert: a signal from raw value to physical value and text, and back.
#include <array>
#include <charconv>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "cli/patterns.h"
#include "cli/subcommands.h"
#include "cli/text_out.h"
#include "krm/convert/conversion_types.h"
#include "krm/convert/signal.h"
#include "krm/messages/diag/freeze_frame_item.h"

namespace krm_cli {
namespace {

std::string Hexadecimal(std::uint32_t number) {
    std::array<char, 8> digits{};
    std::string text(digits.data(), std::to_chars(digits.data(), digits.data() + digits.size(), number, 16).ptr);
    for (char& digit : text) {
        digit = digit >= 'a' ? static_cast<char>(digit - 'a' + 'A') : digit;
    }
    return "0x" + text;
}

std::string Hexadecimal(const std::vector<unsigned char>& bytes) {
    constexpr char kDigits[] = "0123456789ABCDEF";
    std::string text;
    for (const unsigned char byte : bytes) {
        text += kDigits[byte >> 4U];
        text += kDigits[byte & 0xFU];
    }
    return text;
}

/// A raw value: decimal, negative or not, or hexadecimal behind 0x.
krm_ulong RawIn(const std::string& text, const char* what) {
    std::string_view digits = text;
    const bool isHex = digits.starts_with("0x") || digits.starts_with("0X");
    digits.remove_prefix(isHex ? 2 : 0);
    const std::optional<krm_ulong> bits = BitsIn(digits, isHex ? 16 : 10);
    if (!bits || (isHex && digits.starts_with('-'))) {
        throw Failure(std::string(what) + " is no number of 32 bits, such as 123 or 0x7B: " + Shown(text));
    }
    return *bits;
}

/// Bytes in hexadecimal, with 0x in front and blanks between or without.
std::vector<unsigned char> BytesIn(const std::string& text) {
    std::string digits;
    for (const char character : text.starts_with("0x") ? std::string_view(text).substr(2) : std::string_view(text)) {
        if (character != ' ') {
            digits += character;
        }
    }
    std::vector<unsigned char> bytes;
    for (std::size_t i = 0; i < digits.size(); i += 2) {
        unsigned byte = 0;
        const char* const end = digits.data() + std::min(i + 2, digits.size());
        const auto [stop, error] = std::from_chars(digits.data() + i, end, byte, 16);
        if (error != std::errc() || stop != end || digits.size() % 2 != 0) {
            bytes.clear();
            break;
        }
        bytes.push_back(static_cast<unsigned char>(byte));
    }
    if (bytes.empty()) {
        throw Failure("RAW: this type takes bytes in hexadecimal, two digits each: " + Shown(text));
    }
    return bytes;
}

CKRMCCommandFFDData Item(const ConvertOptions& options, int bits) {
    CKRMCCommandFFDData item;
    item.m_uchDataType = static_cast<unsigned char>(*options.code);
    item.m_uchDecPntCount = static_cast<unsigned char>(options.decimals);
    CKRMCCommandConversionData& rule = item.m_cConversionTbl;
    rule.m_lMul = static_cast<krm_long>(options.mul);
    rule.m_lDiv = static_cast<krm_long>(options.div);
    rule.m_lOffset = static_cast<krm_long>(options.offset);
    rule.m_uchSigned = static_cast<unsigned char>(options.signCode);
    rule.m_ushBitLength = static_cast<unsigned short>(bits);
    rule.m_strDefaultPattern = options.defaultText.c_str();
    const krm_ulong all = bits > 0 && bits < 32 ? (krm_ulong{1} << bits) - 1 : 0xFFFFFFFFU;
    rule.m_cDataMax.m_ulRawData = options.max.empty() ? all : RawIn(options.max, "--max");
    rule.m_cDataMin.m_ulRawData = options.min.empty() ? 0 : RawIn(options.min, "--min");
    for (const std::string& pattern : options.patterns) {
        const std::size_t equals = pattern.find('=');
        if (equals == std::string::npos) {
            throw Failure("--pattern needs KEY=TEXT: " + Shown(pattern));
        }
        CKRMCCommandDispData text;
        text.m_ulRawData = RawIn(pattern.substr(0, equals), "--pattern's key");
        text.m_strDataPhys = pattern.c_str() + equals + 1;
        rule.m_cPatternDispList.AddTail(text);
    }
    return item;
}

std::string Told(const krm::RawSignal& signal) {
    const std::string raw = signal.bytes.empty() ? Hexadecimal(static_cast<std::uint32_t>(signal.raw)) + " (" +
                                                       std::to_string(signal.raw) + ')'
                                                 : Hexadecimal(signal.bytes);
    switch (signal.status) {
        case krm::RawStatus::kFound:
            return raw;
        case krm::RawStatus::kNearest:
            return "none; the nearest is " + raw + ", which is " + TextOf(signal.physical);
        case krm::RawStatus::kNone:
            return "none";
        case krm::RawStatus::kNoInverse:
            break;
    }
    return "can't be told: several raw values are shown so";
}

void WriteType(const krm::ConversionType& type, TextOut& out) {
    out << (type.code == 0 ? "other" : std::to_string(type.code)) << ", " << type.name << ": " << type.shows << '\n';
}

/// All types, each with an example.
int List(const Surroundings& surroundings) {
    TextOut out(surroundings);
    WriteType(krm::kPlainNumber, out);
    for (const krm::ConversionType& type : krm::kConversionTypes) {
        WriteType(type, out);
    }
    out.Flush();
    return kDone;
}

int ConvertBack(const ConvertOptions& options, const Surroundings& surroundings) {
    const CKRMCCommandFFDData item = Item(options, options.bits == 0 ? 8 : options.bits);
    // What is a number is a text, too, and the type shows it or not.
    krm::RawSignal signal = krm::RawFromPhysical(item, std::string_view(options.back));
    const std::optional<double> number = NumberIn(options.back);
    if (!signal && number) {
        signal = krm::RawFromPhysical(item, *number);
    }
    TextOut out(surroundings);
    out << "raw    " << Told(signal) << '\n';
    if (!signal) {
        out.Flush();
        return kBadParts;
    }
    CKRMCCommandDispData shown;
    if (signal.bytes.empty()) {
        krm::ConvertSignal(item, signal.raw, &shown);
    } else {
        krm::ConvertSignal(item, signal.bytes, &shown);
    }
    out << "value  " << TextOf(shown.m_dDataPhys) << "\ntext   " << Shown(shown.m_strDataPhys.GetText()) << '\n';
    out.Flush();
    return kDone;
}

}  // namespace

int RunConvert(const ConvertOptions& options, const Surroundings& surroundings) {
    if (!options.code) {
        return List(surroundings);
    }
    if (options.raw.empty() == options.back.empty()) {
        throw Failure("convert needs RAW, or --back and what is shown");
    }
    if (!options.back.empty()) {
        return ConvertBack(options, surroundings);
    }
    const krm::ConversionType& type = krm::ConversionTypeOf(static_cast<unsigned char>(*options.code));
    CKRMCCommandDispData shown;
    TextOut out(surroundings);
    out << "type   ";
    WriteType(type, out);
    int bits = options.bits;
    krm_ulong failed = 0;
    if (type.takesBytes) {
        const std::vector<unsigned char> bytes = BytesIn(options.raw);
        bits = static_cast<int>(std::min<std::size_t>(bytes.size() * 8, 0xFFFF));
        out << "raw    " << Hexadecimal(bytes) << ", " << bytes.size() << " bytes\n";
        failed = krm::ConvertSignal(Item(options, bits), bytes, &shown);
    } else {
        bits = bits == 0 ? 8 : bits;
        const krm_ulong raw = RawIn(options.raw, "RAW");
        out << "raw    " << Hexadecimal(static_cast<std::uint32_t>(raw)) << " (" << raw << "), " << bits << " bits\n";
        failed = krm::ConvertSignal(Item(options, bits), raw, &shown);
    }
    if (failed != 0) {
        throw Failure("the converter refuses this: status " + std::to_string(failed));
    }
    const CKRMCCommandFFDData item = Item(options, bits);
    out << "value  " << TextOf(shown.m_dDataPhys) << "\ntext   " << Shown(shown.m_strDataPhys.GetText())
        << "\nback   from the value: " << Told(krm::RawFromPhysical(item, shown.m_dDataPhys))
        << "\n       from the text: " << Told(krm::RawFromPhysical(item, shown.m_strDataPhys.GetText())) << '\n';
    out.Flush();
    return kDone;
}

}  // namespace krm_cli
