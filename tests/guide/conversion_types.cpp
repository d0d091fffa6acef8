// Prints the rows of the guide's table of conversion types, but for the formulas: code, what it shows, the class, and an
// example, which is converted here. An example that the converter shows in another way ends the program.
#include <cstdio>
#include <string>
#include <vector>

#include "krm/convert/signal.h"
#include "krm/platform/string.h"

namespace {

std::string Hexadecimal(krm_ulong number, int digits) {
    char text[16];
    std::snprintf(text, sizeof text, "%0*" KRM_PRIX, digits, number);
    return text;
}

/// What goes into the converter, beside what is as for a plain number.
std::string Given(const krm::ConversionType& type) {
    const krm::ConversionExample& example = type.example;
    std::string text;
    if (type.takesBytes) {
        for (int shift = example.bitLength - 8; shift >= 0; shift -= 8) {
            text += (text.empty() ? "" : " ") + Hexadecimal(example.raw >> shift & 0xFF, 2);
        }
    } else {
        text = "0x" + Hexadecimal(example.raw, (example.bitLength + 3) / 4) + ", " + std::to_string(example.bitLength) +
               " bits";
    }
    if (example.decimals != 0) {
        text += ", " + std::to_string(example.decimals) + (example.decimals == 1 ? " decimal" : " decimals");
    }
    if (example.max != krm::ConversionExample().max) {
        text += ", upper limit " + std::to_string(example.max);
    }
    if (example.patternText != nullptr) {
        text += ", pattern " + std::to_string(example.patternKey) + " " + example.patternText;
    }
    return text;
}

/// What the converter makes of it; empty where it fails.
std::string Shown(const krm::ConversionType& type) {
    const krm::ConversionExample& example = type.example;
    CKRMCCommandConversionData table;
    table.m_lMul = 1;
    table.m_lDiv = 1;
    table.m_ushBitLength = example.bitLength;
    table.m_cDataMax.m_ulRawData = example.max;
    if (example.patternText != nullptr) {
        CKRMCCommandDispData pattern;
        pattern.m_ulRawData = example.patternKey;
        pattern.m_strDataPhys = example.patternText;
        table.m_cPatternDispList.AddTail(pattern);
    }
    const krm::SignalRule rule(type.code, example.decimals, table);
    CKRMCCommandDispData shown;
    std::vector<unsigned char> bytes;
    for (int shift = example.bitLength - 8; shift >= 0; shift -= 8) {
        bytes.push_back(static_cast<unsigned char>(example.raw >> shift & 0xFF));
    }
    const krm_ulong status =
        type.takesBytes ? krm::ConvertSignal(rule, bytes, &shown) : krm::ConvertSignal(rule, example.raw, &shown);
    return status == 0 ? krm::ToString(shown.m_strDataPhys) : "";
}

bool Print(const krm::ConversionType& type, const char* code) {
    // The user's locale decides; the example is that of the C locale.
    const std::string shown = type.followsLocale ? type.example.text : Shown(type);
    std::printf("| %s | %s | `%s` | %s: `%s` |\n", code, type.shows, type.className, Given(type).c_str(),
                shown.c_str());
    return shown == type.example.text;
}

}  // namespace

int main() {
    bool asInTheTable = true;
    for (const krm::ConversionType& type : krm::kConversionTypes) {
        asInTheTable = Print(type, std::to_string(type.code).c_str()) && asInTheTable;
    }
    return Print(krm::kPlainNumber, "any other") && asInTheTable ? 0 : 1;
}
