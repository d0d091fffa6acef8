// What the tests of the converters share: short calls of the long operations, pattern lists, and access to the
// protected steps.
#ifndef KRM_TESTS_SUPPORT_CONVERTERS_H_
#define KRM_TESTS_SUPPORT_CONVERTERS_H_

#include <bit>
#include <cmath>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "krm/convert/converter.h"
#include "krm/convert/specialised.h"
#include "tests/support/reference_conversions.h"

namespace krm::test {

/// The status of a null pointer, as callers know it.
inline constexpr krm_ulong kFailed = 0x419231A1U;
static_assert(kFailed == 1100100001U);

struct DeleteByFactory {
    void operator()(CKRMCCommandConvSignalData* converter) const {
        CKRMCCommandConvSignalData::DeleteConverter(converter);
    }
};
using ConverterPtr = std::unique_ptr<CKRMCCommandConvSignalData, DeleteByFactory>;

inline ConverterPtr Create(int code) {
    return ConverterPtr(CKRMCCommandConvSignalData::CreateConverter(static_cast<unsigned char>(code)));
}

/// The codes that give a class of its own, and 0 for the base; 4 and 104 take bytes.
inline const std::vector<int>& AllCodes() {
    static const std::vector<int> codes = {0,   1,   3,   4,   5,   6,   7,   8,   9,   10,  11,  12,
                                           13,  15,  16,  19,  20,  22,  24,  101, 102, 103, 104, 105,
                                           106, 107, 108, 109, 110, 111, 112, 113, 114, 115};
    return codes;
}

/// Opens the protected steps of `Converter` to the tests.
template <class Converter>
class Exposed : public Converter {
public:
    using Converter::Converter;
    using Converter::DecStringConversion;
    using Converter::HexStringConversion;
    using Converter::HexStringConversion2;
    using Converter::PhysicalConversion;
    using Converter::SignedConversion;
};

/// A pattern table as the converters take it.
class PatternLists {
public:
    PatternLists() = default;
    explicit PatternLists(const std::vector<Pattern>& patterns) {
        for (const Pattern& pattern : patterns) {
            CKRMCCommandDispData element;
            element.m_ulRawData = pattern.key;
            element.m_strDataPhys = pattern.text.c_str();
            element.m_ulDataStringId = pattern.id;
            plain.AddTail(element);
            std::vector<unsigned char> bytes;
            for (const unsigned shift : {24U, 16U, 8U, 0U}) {
                bytes.push_back(static_cast<unsigned char>(pattern.key >> shift));
            }
            AddBytes(bytes, pattern.text, pattern.id);
        }
    }
    void AddBytes(const std::vector<unsigned char>& bytes, const std::string& text, krm_ulong id) {
        CKRMCCommandDispVariableData element;
        for (const unsigned char byte : bytes) {
            element.m_uchRawDataList.AddTail(byte);
        }
        element.m_strDataPhys = text.c_str();
        element.m_ulDataStringId = id;
        variable.AddTail(element);
    }

    CKRMList<CKRMCCommandDispData> plain;
    CKRMList<CKRMCCommandDispVariableData> variable;
};

/// An item as the converters take it: made once, used for many raw values.
class Arguments {
public:
    explicit Arguments(const Item& from) : item(from), lists(from.patterns), defaultText(from.defaultText.c_str()) {}

    krm_ulong Raw(CKRMCCommandConvSignalData& converter, CKRMCCommandDispData* record, krm_ulong raw) {
        return converter.ConvCommandDispData(record, raw, item.sign, item.bits, item.mul, item.div, item.offset,
                                             item.decimals, item.max, item.min, &lists.plain, &defaultText,
                                             item.defaultId);
    }
    krm_ulong Variable(CKRMCCommandConvSignalData& converter, CKRMCCommandDispData* record, krm_ulong raw) {
        return converter.ConvCommandDispVariableData(record, raw, item.sign, item.bits, item.mul, item.div, item.offset,
                                                     item.decimals, item.max, item.min, &lists.variable, &defaultText,
                                                     item.defaultId);
    }
    krm_ulong Value(CKRMCCommandConvSignalData& converter, double* result, krm_ulong raw) const {
        return converter.ValueConversion(result, raw, item.sign, item.bits, item.mul, item.div, item.offset,
                                         item.decimals);
    }
    krm_ulong Text(CKRMCCommandConvSignalData& converter, CKRMString* result, krm_ulong* id, double phys,
                   krm_ulong raw) {
        return converter.StringConversion(result, id, phys, raw, item.sign, item.bits, item.decimals, item.max,
                                          item.min, &lists.plain, &defaultText, item.defaultId);
    }
    krm_ulong VariableText(CKRMCCommandConvSignalData& converter, CKRMString* result, krm_ulong* id, double phys,
                           krm_ulong raw) {
        return converter.StringVariableConversion(result, id, phys, raw, item.sign, item.bits, item.decimals, item.max,
                                                  item.min, &lists.variable, &defaultText, item.defaultId);
    }

    Item item;
    PatternLists lists;
    CKRMString defaultText;
};

/// The physical value that the converter of `code` gives.
inline double ValueBy(int code, krm_ulong raw, const Item& item = {}) {
    double value = -12345;
    return Arguments(item).Value(*Create(code), &value, raw) == 0 ? value : -54321;
}

/// The text that the converter of `code` gives to a physical value; "status N" where it fails.
inline std::string TextBy(int code, double phys, krm_ulong raw, const Item& item = {}) {
    CKRMString text = "untouched";
    krm_ulong id = 0;
    const krm_ulong status = Arguments(item).Text(*Create(code), &text, &id, phys, raw);
    return status == 0 ? text.GetText() : "status " + std::to_string(status);
}

/// The text that the composite of `code` gives to a raw value.
inline std::string DisplayBy(int code, krm_ulong raw, const Item& item = {}) {
    CKRMCCommandDispData record;
    const krm_ulong status = Arguments(item).Raw(*Create(code), &record, raw);
    return status == 0 ? record.m_strDataPhys.GetText() : "status " + std::to_string(status);
}

/// Fills every field of a record, so that one that a converter writes shows.
inline void MarkAll(CKRMCCommandDispData& record) {
    record.m_ulDataStringId = 0xA1;
    record.m_strDataPhys = "phys";
    record.m_strData = "converted";
    record.m_dDataPhys = -1.25;
    record.m_dData = -2.5;
    record.m_ulRawData = 0xA2;
    record.m_ulDispReserved = 0xA3;
    record.m_chIndex = -4;
    record.m_lIndex = -5;
    record.m_ulDispDataType = 0xA6;
}

/// Whether what no converter writes is still as MarkAll left it.
inline bool OthersAreMarked(const CKRMCCommandDispData& record) {
    return record.m_strData.Compare("converted") == 0 && record.m_dData == -2.5 && record.m_ulDispReserved == 0xA3 &&
           record.m_chIndex == -4 && record.m_lIndex == -5 && record.m_ulDispDataType == 0xA6;
}

/// Whether all of a record is as MarkAll left it.
inline bool IsAllMarked(const CKRMCCommandDispData& record) {
    return OthersAreMarked(record) && record.m_ulDataStringId == 0xA1 && record.m_strDataPhys.Compare("phys") == 0 &&
           record.m_dDataPhys == -1.25 && record.m_ulRawData == 0xA2;
}

/// The same bits; any NaN equals any other.
inline bool SameDouble(double a, double b) {
    return (std::isnan(a) && std::isnan(b)) || std::bit_cast<std::uint64_t>(a) == std::bit_cast<std::uint64_t>(b);
}

/// The same but for the last bits, as functions of the C library may differ.
inline bool NearlySameDouble(double a, double b) {
    return SameDouble(a, b) || std::fabs(a - b) <= 1e-13 * std::fmax(std::fabs(a), std::fabs(b)) ||
           std::fabs(a - b) <= 1e-12;
}

}  // namespace krm::test

#endif  // KRM_TESTS_SUPPORT_CONVERTERS_H_
