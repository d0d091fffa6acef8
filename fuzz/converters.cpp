// Every converter, through the factory and both ways, against the plain computation of the tests.
//
// All arguments come from the input: scalings and bit lengths that no vehicle has, null pointers, lists of patterns of
// both kinds, physical values that are infinite or none.
#include <cmath>

#include "fuzz/support/input.h"
#include "krm/convert/converter.h"
#include "tests/support/converters.h"

namespace {

using krm::fuzz::Input;
using krm::test::ConverterPtr;
using krm::test::kFailed;
using krm::test::MarkAll;
using krm::test::NearlySameDouble;
using krm::test::OthersAreMarked;
using krm::test::SameDouble;
namespace reference = krm::test::reference;

constexpr krm_ulong kIdBefore = 0xA1;  // as MarkAll sets it

struct BytePattern {
    std::vector<unsigned char> key;
    std::string text;
    krm_ulong id;
};

/// The arguments of one call.
struct Call {
    Call(int conversionType, Input& input) : code(conversionType) {
        const unsigned flags = input.Byte();
        raw = input.Number<krm_ulong>();
        item.sign = (flags & 1U) != 0 ? input.Byte() : static_cast<unsigned char>(flags >> 1U & 3U);
        item.bits = (flags & 8U) != 0 ? input.Number<std::uint16_t>() : static_cast<unsigned short>(input.UpTo(32));
        if (code == 3 || code == 112) {
            item.bits %= 4096;  // texts of 16,384 digits take time and show nothing more
        }
        item.mul = Scale(input);
        item.div = Scale(input);
        item.offset = input.Number<krm_long>();
        item.decimals = (flags & 16U) != 0 ? input.Byte() : static_cast<unsigned char>(input.UpTo(5));
        item.max = input.Number<krm_ulong>();
        item.min = input.Number<krm_ulong>();
        const bool keysNearRaw = (flags & 32U) != 0;
        for (std::size_t count = input.UpTo(4); count > 0; --count) {
            const krm_ulong key = keysNearRaw ? static_cast<krm_ulong>(raw + input.UpTo(3)) : input.Byte();
            const krm_ulong id = input.Byte();
            const std::string text = input.Text(20);
            item.patterns.push_back({key, text, id});
            bytePatterns.push_back({input.Bytes(12), text, id});
        }
        item.defaultText = input.Text(20);
        item.defaultId = input.Byte();
        const unsigned nulls = input.Byte();
        withList = nulls % 8 != 7;
        withDefault = nulls / 8 % 4 != 3;
        withResult = nulls / 32 != 7;
        withId = nulls / 32 != 6;

        for (const krm::test::Pattern& pattern : item.patterns) {
            CKRMCCommandDispData element;
            element.m_ulRawData = pattern.key;
            element.m_strDataPhys = pattern.text.c_str();
            element.m_ulDataStringId = pattern.id;
            plain.AddTail(element);
        }
        for (const BytePattern& pattern : bytePatterns) {
            CKRMCCommandDispVariableData element;
            for (const unsigned char byte : pattern.key) {
                element.m_uchRawDataList.AddTail(byte);
            }
            element.m_strDataPhys = pattern.text.c_str();
            element.m_ulDataStringId = pattern.id;
            variable.AddTail(element);
        }
        defaultText = item.defaultText.c_str();
        if (!withDefault) {
            item.defaultText.clear();
        }
    }

    /// Small numbers mostly; 0, 1 and negative ones are the special cases.
    static krm_long Scale(Input& input) {
        const std::uint8_t byte = input.Byte();
        return byte < 200 ? byte - 20 : input.Number<krm_long>();
    }

    CKRMList<CKRMCCommandDispData>* Plain() { return withList ? &plain : nullptr; }
    CKRMList<CKRMCCommandDispVariableData>* Variable() { return withList ? &variable : nullptr; }
    CKRMString* Default() { return withDefault ? &defaultText : nullptr; }

    bool IsStringPattern() const { return code == 1 || code == 20 || code == 22; }
    bool NeedsList() const { return IsStringPattern() || code == 13 || code == 24 || code == 103; }
    bool LeavesIdAlone() const { return code == 107 || code == 108; }

    /// The status of StringConversion for a result that is there.
    krm_ulong TextStatus() const { return (NeedsList() && !withList) || (code == 113 && item.bits > 32) ? kFailed : 0; }
    krm_ulong VariableTextStatus() const { return IsStringPattern() && !withList ? kFailed : 0; }

    /// Nobody writes to the arguments.
    void CheckArguments() const {
        KRM_FUZZ_CHECK(plain.GetCount() == static_cast<int>(item.patterns.size()));
        auto pattern = item.patterns.begin();
        for (const CKRMCCommandDispData& element : plain) {
            KRM_FUZZ_CHECK(element.m_ulRawData == pattern->key && element.m_ulDataStringId == pattern->id);
            KRM_FUZZ_CHECK(pattern->text == element.m_strDataPhys.GetText());
            ++pattern;
        }
        KRM_FUZZ_CHECK(variable.GetCount() == static_cast<int>(bytePatterns.size()));
        KRM_FUZZ_CHECK(!withDefault || item.defaultText == defaultText.GetText());
    }

    int code;
    krm_ulong raw;
    krm::test::Item item;
    std::vector<BytePattern> bytePatterns;
    bool withList;
    bool withDefault;
    bool withResult;
    bool withId;
    CKRMList<CKRMCCommandDispData> plain;
    CKRMList<CKRMCCommandDispVariableData> variable;
    CKRMString defaultText;
};

/// The class that the factory makes of a code: unknown ones make the base.
int Known(int code) {
    for (const int known : krm::test::AllCodes()) {
        if (code == known) {
            return code;
        }
    }
    return 0;
}

void CheckValue(const Call& call, double value) {
    const double expected = reference::ValueOf(call.code, call.raw, call.item);
    // Tangent, arcsine and logarithm are the C library's.
    const bool isExact = call.code != 102 && call.code != 114;
    KRM_FUZZ_CHECK(isExact ? SameDouble(value, expected) : NearlySameDouble(value, expected));
}

/// Whether `text` is what is expected. A NaN may be shown with a sign, which no computation promises; `expected` has none.
/// Patterns are texts, and may themselves read "-nan".
bool IsText(const CKRMString& text, const std::string& expected, double phys) {
    std::string got = text.GetText();
    KRM_FUZZ_CHECK(got.size() == text.GetLength());
    if (got == expected) {
        return true;
    }
    if (const std::size_t at = got.find("-nan"); std::isnan(phys) && at != std::string::npos) {
        got.erase(at, 1);
    }
    return got == expected;
}

void CheckLocaleText(const Call& call, double phys, const std::string& text) {
    const krm_ulong x = reference::Low32(phys);
    const auto byte = [x](unsigned shift) { return x >> shift & 0xFFU; };
    const bool valid = call.code == 105
                           ? (x >> 16U) >= 1900 && byte(8) >= 1 && byte(8) <= 12 && byte(0) >= 1 && byte(0) <= 31
                           : byte(24) < 24 && byte(16) < 60 && byte(8) < 60;
    KRM_FUZZ_CHECK(text.size() <= 100);
    if (!valid) {
        KRM_FUZZ_CHECK(text == (call.code == 105 ? "-" : ""));
    } else {
        KRM_FUZZ_CHECK(text.find_first_of("0123456789") != std::string::npos);
    }
}

/// What StringConversion made of `phys`; `id` is null where it was not asked for.
void CheckText(const Call& call, double phys, const CKRMString& text, const krm_ulong* id) {
    if (call.code == 105 || call.code == 106) {
        CheckLocaleText(call, phys, text.GetText());
        KRM_FUZZ_CHECK(id == nullptr || *id == 0);
        return;
    }
    const reference::Text expected = reference::TextOf(call.code, phys, call.raw, call.item);
    KRM_FUZZ_CHECK(IsText(text, expected.text, phys));
    KRM_FUZZ_CHECK(id == nullptr || *id == (call.LeavesIdAlone() ? kIdBefore : expected.id));
}

void CheckVariableText(const Call& call, double phys, const CKRMString& text, const krm_ulong* id) {
    reference::Text expected = reference::OrDecimal(nullptr, phys, call.item);
    if (call.IsStringPattern()) {
        expected = {reference::Hex(phys, call.item.bits), 0};
        if (!call.item.defaultText.empty()) {
            expected = {call.item.defaultText, call.item.defaultId};
        }
        for (auto pattern = call.bytePatterns.rbegin(); pattern != call.bytePatterns.rend(); ++pattern) {
            double key = 0;
            for (const unsigned char byte : pattern->key) {
                key = key * 256 + byte;
            }
            if (key == phys) {
                expected = {pattern->text, pattern->id};
            }
        }
    }
    KRM_FUZZ_CHECK(IsText(text, expected.text, phys));
    KRM_FUZZ_CHECK(id == nullptr || *id == expected.id);
}

// ---- The operations ----

void FromBytes(CKRMCCommandConvSignalData& converter, Call& call, Input& input) {
    const std::vector<std::uint8_t> bytes = input.Bytes(255);
    const bool noData = bytes.empty();
    const krm_ulong length = static_cast<krm_ulong>(bytes.size());
    CKRMCCommandDispData record;
    MarkAll(record);
    const krm_ulong status = converter.ConvCommandDispData(
        call.withResult ? &record : nullptr, noData ? nullptr : bytes.data(), length, call.item.sign, call.item.bits,
        call.item.mul, call.item.div, call.item.offset, call.item.decimals, call.item.max, call.item.min, call.Plain());
    KRM_FUZZ_CHECK(status == (noData || !call.withResult ? kFailed : 0));
    if (status != 0) {
        KRM_FUZZ_CHECK(krm::test::IsAllMarked(record));
        return;
    }
    KRM_FUZZ_CHECK(OthersAreMarked(record) && record.m_ulDataStringId == kIdBefore);
    KRM_FUZZ_CHECK(record.m_ulRawData == bytes[0] && record.m_dDataPhys == bytes[0]);
    std::string expected(bytes.begin(), std::find(bytes.begin(), bytes.end(), 0));
    if (call.code == 4 && bytes[0] == 0) {
        expected = "-";
    } else if (call.code == 104) {
        expected = "phys";
        for (const std::uint8_t byte : bytes) {
            expected += reference::HexDigits(byte, 8);
        }
    }
    KRM_FUZZ_CHECK(expected == record.m_strDataPhys.GetText());
}

void FromRaw(CKRMCCommandConvSignalData& converter, Call& call, bool byBytes) {
    CKRMCCommandDispData record;
    MarkAll(record);
    CKRMCCommandDispData* const target = call.withResult ? &record : nullptr;
    const krm::test::Item& item = call.item;
    const krm_ulong status =
        byBytes ? converter.ConvCommandDispVariableData(target, call.raw, item.sign, item.bits, item.mul, item.div,
                                                        item.offset, item.decimals, item.max, item.min, call.Variable(),
                                                        call.Default(), item.defaultId)
                : converter.ConvCommandDispData(target, call.raw, item.sign, item.bits, item.mul, item.div, item.offset,
                                                item.decimals, item.max, item.min, call.Plain(), call.Default(),
                                                item.defaultId);
    if (!call.withResult) {
        KRM_FUZZ_CHECK(status == kFailed && krm::test::IsAllMarked(record));
        return;
    }
    KRM_FUZZ_CHECK(status == (byBytes ? call.VariableTextStatus() : call.TextStatus()));
    KRM_FUZZ_CHECK(OthersAreMarked(record) && record.m_ulRawData == call.raw);
    CheckValue(call, record.m_dDataPhys);
    if (status != 0) {
        KRM_FUZZ_CHECK(record.m_strDataPhys.Compare("phys") == 0);
    } else if (byBytes) {
        CheckVariableText(call, record.m_dDataPhys, record.m_strDataPhys, &record.m_ulDataStringId);
    } else {
        CheckText(call, record.m_dDataPhys, record.m_strDataPhys, &record.m_ulDataStringId);
    }
}

void ToValue(CKRMCCommandConvSignalData& converter, const Call& call) {
    double value = -1.25;
    const krm::test::Item& item = call.item;
    const krm_ulong status = converter.ValueConversion(call.withResult ? &value : nullptr, call.raw, item.sign,
                                                       item.bits, item.mul, item.div, item.offset, item.decimals);
    KRM_FUZZ_CHECK(status == (call.withResult ? 0 : kFailed));
    if (status == 0) {
        CheckValue(call, value);
    }
}

/// Texts of any double, not only of those that ValueConversion gives.
void ToText(CKRMCCommandConvSignalData& converter, Call& call, double phys, bool byBytes) {
    CKRMString text = "untouched";
    krm_ulong id = kIdBefore;
    CKRMString* const target = call.withResult ? &text : nullptr;
    krm_ulong* const targetId = call.withId ? &id : nullptr;
    const krm::test::Item& item = call.item;
    const krm_ulong status =
        byBytes
            ? converter.StringVariableConversion(target, targetId, phys, call.raw, item.sign, item.bits, item.decimals,
                                                 item.max, item.min, call.Variable(), call.Default(), item.defaultId)
            : converter.StringConversion(target, targetId, phys, call.raw, item.sign, item.bits, item.decimals,
                                         item.max, item.min, call.Plain(), call.Default(), item.defaultId);
    const krm_ulong otherwise = byBytes ? call.VariableTextStatus() : call.TextStatus();
    KRM_FUZZ_CHECK(status == (call.withResult ? otherwise : kFailed));
    if (status != 0) {
        KRM_FUZZ_CHECK(text.Compare("untouched") == 0);
        KRM_FUZZ_CHECK(id == kIdBefore || id == 0);
    } else if (byBytes) {
        CheckVariableText(call, phys, text, targetId);
    } else {
        CheckText(call, phys, text, targetId);
    }
}

void ToRaw(CKRMCCommandConvSignalData& converter, const Call& call, double value, Input& input) {
    const krm::test::Item& item = call.item;
    krm_ulong raw = 0x5A5A5A5AU;
    krm_ulong* const target = call.withResult ? &raw : nullptr;
    const bool byValues = input.Flag();
    krm_ulong status = 0;
    krm_ulong expected = 0;
    if (byValues) {
        const double max = input.Double();
        const double min = input.Double();
        status = converter.ConvLogicalValue(target, value, item.sign, item.bits, item.mul, item.div, item.offset,
                                            item.decimals, max, min);
        expected = reference::LogicalByPhysicalLimits(value, item, max, min);
    } else {
        status = converter.ConvLogicalValue(target, value, item.sign, item.bits, item.mul, item.div, item.offset,
                                            item.decimals, item.max, item.min);
        expected = reference::LogicalByRawLimits(value, item);
    }
    KRM_FUZZ_CHECK(status == (call.withResult ? 0 : kFailed));
    KRM_FUZZ_CHECK(status != 0 || raw == expected);
}

double Physical(Input& input) {
    return input.Flag() ? input.Double() : input.Number<std::int32_t>() / 16.0;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    Input input(data, size);
    const std::uint8_t type = input.Byte();
    const ConverterPtr converter(CKRMCCommandConvSignalData::CreateConverter(type));
    KRM_FUZZ_CHECK(converter != nullptr);
    const int code = Known(type);
    KRM_FUZZ_CHECK(converter->IsBinaryDataType() == (code == 4 || code == 104));
    // The same converter for all: it keeps nothing between the calls.
    for (int calls = 0; calls < 8 && !input.IsEmpty(); ++calls) {
        const std::size_t operation = input.UpTo(6);
        Call call(code, input);
        switch (operation) {
            case 0:
                FromBytes(*converter, call, input);
                break;
            case 1:
            case 2:
                FromRaw(*converter, call, operation == 2);
                break;
            case 3:
                ToValue(*converter, call);
                break;
            case 4:
                ToText(*converter, call, Physical(input), false);
                break;
            case 5:
                ToText(*converter, call, Physical(input), true);
                break;
            default:
                ToRaw(*converter, call, Physical(input), input);
                break;
        }
        call.CheckArguments();
    }
    return 0;
}
