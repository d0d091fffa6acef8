// What a Redactor replaces, and that nothing of it is left.
#include "krm/exchange/redact.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <iterator>
#include <memory>
#include <set>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

#include "krm/core/list_tools.h"
#include "krm/exchange/compare.h"
#include "krm/exchange/json.h"
#include "krm/exchange/recording.h"
#include "krm/fields/all_fields.h"
#include "krm/framework/dump.h"
#include "krm/messages/all_messages.h"
#include "krm/platform/platform.h"
#include "krm/platform/string.h"
#include "tests/exchange/random_content.h"
#include "tests/exchange/recording_text.h"
#include "tests/support/fields.h"
#include "tests/support/folder.h"
#include "tests/support/log_capture.h"
#include "tests/support/not_under.h"

// A program's own message, with every kind of value.

struct RedactedPart {
    unsigned char m_uchByte = 0;
    CKRMString m_strName;
};
template <>
struct krm::Fields<RedactedPart> : krm::FieldList<&RedactedPart::m_uchByte, &RedactedPart::m_strName> {};

class RedactedAnswer
    : public krm::MessageOf<RedactedAnswer, CKRMCBaseCmdAdaptDataRcv, krm::CommandName("ReadOwner", 902)> {
public:
    void Dump(const krm::MessageLines&) {}

    bool m_bSold = true;
    signed char m_chTemperature = -17;
    krm_ulong m_ulMileage = 48'215;
    krm_int64 m_llPhone = 0;
    double m_dLatitude = 51.5074;
    CKRMString m_strOwner;
    CKRMString m_strNote;
    CKRMList<CKRMString> m_cNotes;
    CKRMList<unsigned char> m_uchBytes;
    CKRMList<signed char> m_chBytes;
    CKRMList<krm_ulong> m_ulNumbers;
    CKRMList<krm_long> m_lNumbers;
    unsigned short m_ushCells[12] = {};
    CKRMList<RedactedPart> m_cParts;
    CKRMMap<CKRMString, CKRMString> m_cTexts;
};
template <>
struct krm::Fields<RedactedAnswer>
    : krm::FieldList<&RedactedAnswer::m_bSold, &RedactedAnswer::m_chTemperature, &RedactedAnswer::m_ulMileage,
                     &RedactedAnswer::m_llPhone, &RedactedAnswer::m_dLatitude, &RedactedAnswer::m_strOwner,
                     &RedactedAnswer::m_strNote, &RedactedAnswer::m_cNotes, &RedactedAnswer::m_uchBytes,
                     &RedactedAnswer::m_chBytes, &RedactedAnswer::m_ulNumbers, &RedactedAnswer::m_lNumbers,
                     &RedactedAnswer::m_ushCells, &RedactedAnswer::m_cParts, &RedactedAnswer::m_cTexts> {};

namespace {

/// What kind of character stands where: A for a capital letter, a for a small one, 0 for a digit; others as they are.
std::string Shape(std::string_view text) {
    std::string shape(text);
    for (char& c : shape) {
        c = c >= 'A' && c <= 'Z' ? 'A' : c >= 'a' && c <= 'z' ? 'a' : c >= '0' && c <= '9' ? '0' : c;
    }
    return shape;
}

using krm::RedactOptions;
using krm::Redactor;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::StartsWith;

constexpr const char* kVin = "KRM4A000000001234";
const krm::MessageDescription& kOwn = krm::kMessageDescription<RedactedAnswer>;

/// Of a program's own message; an error fails the test.
void Redact(Redactor& redactor, RedactedAnswer& answer) {
    const krm::Redaction done = redactor.Redact(answer, kOwn);
    EXPECT_TRUE(done) << done.error;
}

std::string Redacted(Redactor& redactor, std::string text) {
    const krm::Redaction done = redactor.Redact(text);
    EXPECT_TRUE(done) << done.error;
    return text;
}

template <class List>
void Assign(List& list, std::string_view bytes) {
    list.RemoveAll();
    for (const char c : bytes) {
        using Element = krm::ElementOf<List>;
        list.AddTail(static_cast<Element>(static_cast<unsigned char>(c)));
    }
}

template <class Range>
std::string Spelled(Range& range) {
    std::string text;
    for (const auto& element : range) {
        text += static_cast<char>(static_cast<unsigned char>(element));
    }
    return text;
}

std::string Hex(std::string_view bytes, const char* digits = "0123456789ABCDEF", std::string_view between = "") {
    std::string hex;
    for (const char c : bytes) {
        const auto byte = static_cast<unsigned char>(c);
        hex += hex.empty() ? "" : between;
        hex += digits[byte / 16];
        hex += digits[byte % 16];
    }
    return hex;
}

std::string Folded(std::string_view text) {
    std::string folded(text);
    std::ranges::transform(folded, folded.begin(),
                           [](char c) { return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c; });
    return folded;
}

/// The pseudonym of a value that the redactor knows.
std::string PseudonymOf(Redactor& redactor, const std::string& value) {
    std::string pseudonym = Redacted(redactor, value);
    EXPECT_NE(pseudonym, value);
    return pseudonym;
}

TEST(Redact, VinBecomesOneOfTheSameForm) {
    Redactor redactor;
    CKRMCGetVinCodeCmdAdaptDataRcv answer;
    answer.m_strVinCode = kVin;
    const krm::Redaction done = redactor.Redact(answer);
    EXPECT_EQ(done.error, "");
    EXPECT_EQ(done.places, 1U);
    const std::string pseudonym = krm::ToString(answer.m_strVinCode);
    EXPECT_NE(pseudonym, kVin);
    EXPECT_EQ(pseudonym.size(), 17U);
    EXPECT_EQ(Shape(pseudonym), "AAA0A000000000000");
    EXPECT_EQ(pseudonym.find_first_of("IOQ"), std::string::npos) << pseudonym;
}

TEST(Redact, EveryFormInATextIsReplacedByTheSamePseudonym) {
    Redactor redactor({.values = {"KRM4A00"}, .secret = "a secret"});
    const std::string pseudonym = PseudonymOf(redactor, "KRM4A00");
    std::string lower = pseudonym;
    std::ranges::transform(lower, lower.begin(), [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
    const auto becomes = [&](const std::string& text, const std::string& expected) {
        EXPECT_EQ(Redacted(redactor, text), expected) << text;
    };
    const auto hex = [&](std::string_view between) { return Hex(pseudonym, "0123456789ABCDEF", between); };
    becomes("of KRM4A00, KRM4A00!", "of " + pseudonym + ", " + pseudonym + "!");
    becomes("XKRM4A00KRM4A007", "X" + pseudonym + pseudonym + "7");
    becomes("krm4a00", lower);
    becomes("4B524D34413030", hex(""));
    becomes("4b524d34413030", Hex(pseudonym, "0123456789abcdef"));
    becomes("62F1904B524D34413030FF", "62F190" + hex("") + "FF");
    becomes("4B 52 4D 34 41 30 30", hex(" "));
    becomes("4B:52:4D:34:41:30:30", hex(":"));
    becomes("4B-52-4D-34-41-30-30", hex("-"));
    becomes("{0x4B, 0x52, 0x4D, 0x34, 0x41, 0x30, 0x30}", "{0x" + hex(", 0x") + "}");
    becomes("0x4B0x520x4D0x340x410x300x30", "0x" + hex("0x"));
    becomes("\\x4B\\x52\\x4D\\x34\\x41\\x30\\x30", "\\x" + hex("\\x"));
    becomes("4Bh 52h 4Dh 34h 41h 30h 30h", hex("h ") + "h");
    becomes("4B524D34 413030", hex("").substr(0, 8) + " " + hex("").substr(8));
    // Letters in lower case as bytes, too; digits that begin in the middle of a byte.
    becomes("6B726D34613030", Hex(lower));
    becomes("F4B524D34413030", "F" + hex(""));
    // And what is none of these stays.
    for (const char* const other : {"KRM4A0", "KRM 4A00", "4B524D344130", "4B--------52 4D 34 41 30 30", ""}) {
        becomes(other, other);
    }
}

TEST(Redact, TakesNumbersOfAByteForBytes) {
    Redactor redactor({.values = {"ab\x7F"
                                  "cdef",
                                  "ab\x80"
                                  "cdef"}});
    for (const krm_long byte :
         {krm_long{127}, krm_long{128}, krm_long{-128}, krm_long{-129}, krm_long{383}, krm_long{384}}) {
        RedactedAnswer answer;
        for (const krm_long number :
             {krm_long{'a'}, krm_long{'b'}, byte, krm_long{'c'}, krm_long{'d'}, krm_long{'e'}, krm_long{'f'}}) {
            answer.m_lNumbers.AddTail(number);
        }
        Redact(redactor, answer);
        const bool isByte = byte >= -128 && byte <= 255;
        EXPECT_EQ(krm::At(answer.m_lNumbers, 0) == 'a' && krm::At(answer.m_lNumbers, 6) == 'f', !isByte) << byte;
    }
}

TEST(Redact, ListsAndArraysThatSpellAValue) {
    Redactor redactor({.values = {"KRM4A00", "M\xC3\xBCller"}});
    const std::string pseudonym = PseudonymOf(redactor, "KRM4A00");
    RedactedAnswer answer;
    Assign(answer.m_uchBytes, "\x62\xF1\x90KRM4A00\xAA");
    answer.m_uchBytes.AddTail(static_cast<unsigned char>(0));
    Assign(answer.m_chBytes, "M\xC3\xBCllerKRM4A00");
    answer.m_ulNumbers.AddTail(0x4B52'4D34);
    for (const char c : std::string_view("KRM4A00krm4a00")) {
        answer.m_ulNumbers.AddTail(static_cast<krm_ulong>(c));
    }
    answer.m_ulNumbers.AddTail(256);
    std::ranges::copy(std::string_view("..KRM4A00..."), answer.m_ushCells);
    for (const char c : std::string_view("KRM4A00")) {
        RedactedPart part;
        part.m_uchByte = static_cast<unsigned char>(c);
        answer.m_cParts.AddTail(part);
    }
    Redact(redactor, answer);
    EXPECT_EQ(Spelled(answer.m_uchBytes), "\x62\xF1\x90" + pseudonym + std::string("\xAA\0", 2));
    EXPECT_THAT(Spelled(answer.m_chBytes), Not(StartsWith("M\xC3\xBC")));
    EXPECT_EQ(Spelled(answer.m_chBytes).substr(7), pseudonym);
    EXPECT_EQ(Folded(Spelled(answer.m_ulNumbers).substr(1, 14)), pseudonym + pseudonym);
    EXPECT_EQ(krm::At(answer.m_ulNumbers, 0), 0x4B52'4D34U);
    EXPECT_EQ(krm::At(answer.m_ulNumbers, 15), 256U);
    EXPECT_EQ(Spelled(answer.m_ushCells), ".." + pseudonym + "...");
    std::string column;
    for (const RedactedPart& part : answer.m_cParts) {
        column += static_cast<char>(part.m_uchByte);
    }
    EXPECT_EQ(column, pseudonym);
}

TEST(Redact, KeysAndValuesOfMaps) {
    Redactor redactor({.values = {"Jane Doe"}});
    const std::string pseudonym = PseudonymOf(redactor, "Jane Doe");
    EXPECT_EQ(Shape(pseudonym), "Aaaa Aaa");
    RedactedAnswer answer;
    answer.m_cTexts.SetAt("owner", "Jane Doe");
    answer.m_cTexts.SetAt("of Jane Doe", "yes");
    Redact(redactor, answer);
    EXPECT_EQ(answer.m_cTexts.GetCount(), 2);
    CKRMString text;
    EXPECT_TRUE(answer.m_cTexts.Lookup("owner", text));
    EXPECT_EQ(text, pseudonym);
    EXPECT_TRUE(answer.m_cTexts.Lookup(("of " + pseudonym).c_str(), text));
    EXPECT_EQ(text, "yes");
}

TEST(Redact, WhatAFieldHoldsIsReplacedEverywhere) {
    Redactor redactor({.fields = {"m_strOwner", "m_cTexts[\"phone\"]"}, .forOtherClassesToo = true});
    ASSERT_EQ(redactor.Error(), "");
    RedactedAnswer answer;
    answer.m_strNote = "Called JANE DOE on 01632960001.";
    answer.m_cNotes.AddTail("4A616E6520446F65");
    answer.m_strOwner = "  Jane Doe\r\n";
    answer.m_cTexts.SetAt("phone", "01632960001");
    answer.m_cTexts.SetAt("colour", "grey");
    Redact(redactor, answer);
    const std::string owner = krm::ToString(answer.m_strOwner);
    EXPECT_EQ(Shape(owner), "  Aaaa Aaa\r\n");
    CKRMString phone;
    EXPECT_TRUE(answer.m_cTexts.Lookup("phone", phone));
    EXPECT_EQ(Shape(krm::ToString(phone)), "00000000000");
    EXPECT_EQ(krm::ToString(answer.m_strNote),
              "Called " + Folded(owner.substr(2, 8)) + " on " + krm::ToString(phone) + ".");
    EXPECT_EQ(krm::ToString(krm::At(answer.m_cNotes, 0)), Hex(owner.substr(2, 8)));
    CKRMString colour;
    EXPECT_TRUE(answer.m_cTexts.Lookup("colour", colour));
    EXPECT_EQ(colour, "grey");
}

TEST(Redact, NamedNumbersBecomeOthersWithAsManyDigits) {
    Redactor redactor({.fields = {"m_chTemperature", "m_ulMileage", "m_llPhone", "m_dLatitude", "m_bSold",
                                  "m_ulNumbers[*]", "m_ushCells"},
                       .forOtherClassesToo = true});
    for (int i = 0; i < 200; ++i) {
        RedactedAnswer answer;
        answer.m_ulMileage = static_cast<krm_ulong>(4'294'967'295U - static_cast<unsigned>(i));
        answer.m_llPhone = 1'632'960'001 + i;
        answer.m_ulNumbers.AddTail(7);
        answer.m_ulNumbers.AddTail(48'215);
        std::ranges::fill(answer.m_ushCells, static_cast<unsigned short>(65'000));
        Redact(redactor, answer);
        EXPECT_TRUE(answer.m_bSold);
        EXPECT_NE(answer.m_chTemperature, -17);
        EXPECT_TRUE(answer.m_chTemperature <= -10 && answer.m_chTemperature >= -99);
        EXPECT_NE(answer.m_ulMileage, 4'294'967'295U - static_cast<unsigned>(i));
        EXPECT_GE(answer.m_ulMileage, 1'000'000'000U);
        EXPECT_NE(answer.m_llPhone, 1'632'960'001 + i);
        EXPECT_TRUE(answer.m_llPhone >= 1'000'000'000 && answer.m_llPhone <= 9'999'999'999);
        EXPECT_NE(answer.m_dLatitude, 51.5074);
        EXPECT_TRUE(answer.m_dLatitude > 0 && answer.m_dLatitude < 100) << answer.m_dLatitude;
        EXPECT_TRUE(krm::At(answer.m_ulNumbers, 0) != 7 && krm::At(answer.m_ulNumbers, 0) <= 9);
        EXPECT_TRUE(krm::At(answer.m_ulNumbers, 1) != 48'215 && krm::At(answer.m_ulNumbers, 1) >= 10'000 &&
                    krm::At(answer.m_ulNumbers, 1) <= 99'999);
        for (const unsigned short cell : answer.m_ushCells) {
            EXPECT_NE(cell, 65'000);
            EXPECT_GE(cell, 10'000);
        }
    }
}

TEST(Redact, NumbersThatHaveNoOthersStay) {
    Redactor redactor({.fields = {"m_dLatitude"}, .forOtherClassesToo = true});
    for (const double number : {std::nan(""), HUGE_VAL, -HUGE_VAL}) {
        RedactedAnswer answer;
        answer.m_dLatitude = number;
        Redact(redactor, answer);
        EXPECT_TRUE(std::isnan(number) ? std::isnan(answer.m_dLatitude) : answer.m_dLatitude == number);
    }
    RedactedAnswer largest;
    largest.m_dLatitude = 1.7976931348623157e308;
    Redact(redactor, largest);
    EXPECT_TRUE(std::isfinite(largest.m_dLatitude));
    EXPECT_NE(largest.m_dLatitude, 1.7976931348623157e308);
}

TEST(Redact, ShortOrEmptyContentOfAFieldIsReplacedThereAlone) {
    Redactor redactor({.fields = {"m_strOwner", "m_uchBytes"}, .forOtherClassesToo = true});
    RedactedAnswer answer;
    answer.m_strOwner = "Jo.";
    answer.m_strNote = "Jo. bought it in 0000.";
    for (int i = 0; i < 6; ++i) {
        answer.m_uchBytes.AddTail(static_cast<unsigned char>(0));
    }
    for (unsigned short& cell : answer.m_ushCells) {
        cell = 0;
    }
    Redact(redactor, answer);
    EXPECT_EQ(Shape(krm::ToString(answer.m_strOwner)), "Aa.");
    EXPECT_NE(answer.m_strOwner, "Jo.");
    EXPECT_EQ(answer.m_strNote, "Jo. bought it in 0000.");
    EXPECT_NE(Spelled(answer.m_uchBytes), std::string(6, '\0'));
    EXPECT_EQ(answer.m_uchBytes.GetCount(), 6);
    EXPECT_THAT(answer.m_ushCells, testing::Each(static_cast<unsigned short>(0)));
    for (const char* const nothing : {"", "   ", "--"}) {
        answer.m_strOwner = nothing;
        Redact(redactor, answer);
        EXPECT_EQ(answer.m_strOwner, nothing);
    }
}

TEST(Redact, BytesThatAreNoTextBecomeOtherBytes) {
    Redactor redactor({.fields = {"m_uchBytes"}, .forOtherClassesToo = true});
    RedactedAnswer answer;
    const std::string serial("\x20\x01\x00\x7F\xFE\x20", 6);
    Assign(answer.m_uchBytes, serial);
    answer.m_strNote = ("serial " + Hex(serial)).c_str();
    Assign(answer.m_chBytes, serial);
    Redact(redactor, answer);
    const std::string other = Spelled(answer.m_uchBytes);
    EXPECT_EQ(other.size(), 6U);
    EXPECT_NE(other, serial);
    EXPECT_EQ(other.find('\0'), std::string::npos);
    EXPECT_EQ(answer.m_strNote, "serial " + Hex(other));
    EXPECT_EQ(Spelled(answer.m_chBytes), other);
}

TEST(Redact, WhatLooksLikeAVinIsOne) {
    const auto isVin = [](const std::string& text) {
        Redactor redactor;
        std::string redacted = text;
        const krm::Redaction done = redactor.Redact(redacted);
        EXPECT_EQ(done.places != 0, redacted != text) << text;
        return done.places != 0;
    };
    EXPECT_TRUE(isVin(kVin));
    EXPECT_TRUE(isVin("VIN: krm4a000000001234."));
    EXPECT_TRUE(isVin("490201" + Hex(kVin)));
    EXPECT_TRUE(isVin("7E8 10 14 49 02 01 " + Hex(kVin, "0123456789abcdef", " ")));
    EXPECT_TRUE(isVin("4" + Hex(kVin)));
    EXPECT_FALSE(isVin("KRM4A00000000123"));    // 16
    EXPECT_FALSE(isVin("KRM4A0000000012345"));  // 18
    EXPECT_FALSE(isVin("KRO4A000000001234"));   // an O
    EXPECT_FALSE(isVin("KRM4A00000000123X"));   // no digit at the end
    EXPECT_FALSE(isVin("12345678901234567"));   // digits alone
    EXPECT_FALSE(isVin("KRM4A000-000001234"));
    Redactor redactor({.vin = false});
    EXPECT_EQ(Redacted(redactor, kVin), kVin);
    CKRMCGetVinCodeCmdAdaptDataRcv answer;
    answer.m_strVinCode = kVin;
    EXPECT_EQ(redactor.Redact(answer).places, 0U);
    EXPECT_EQ(answer.m_strVinCode, kVin);
}

TEST(Redact, VinThatIsReadByteByByteFromMemory) {
    Redactor redactor;
    CKRMCReadMemoryCmdAdaptDataRcv answer;
    std::vector<unsigned char> bytes;
    for (const char* c = kVin; *c != '\0'; ++c) {
        CKRMCCommandReadMemoryInfo info;
        info.m_ulAddress = static_cast<krm_ulong>(0x1000 + (c - kVin));
        info.m_uchData = static_cast<unsigned char>(*c);
        answer.m_cReadMemoryInfoList.AddTail(info);
    }
    ASSERT_TRUE(redactor.Redact(answer));
    std::string read;
    krm_ulong address = 0x1000;
    for (const CKRMCCommandReadMemoryInfo& info : answer.m_cReadMemoryInfoList) {
        read += static_cast<char>(info.m_uchData);
        EXPECT_EQ(info.m_ulAddress, address++);
    }
    EXPECT_EQ(read, PseudonymOf(redactor, kVin));
}

TEST(Redact, ValueWithinAnotherAndValuesThatOverlap) {
    Redactor redactor({.values = {"000000001234", kVin, "XYZKRM4"}});
    const std::string vin = PseudonymOf(redactor, kVin);
    const std::string part = PseudonymOf(redactor, "000000001234");
    std::string both = std::string(kVin) + " 000000001234";
    const krm::Redaction done = redactor.Redact(both);
    EXPECT_TRUE(done) << done.error;
    EXPECT_EQ(both, vin + " " + part);
    EXPECT_EQ(done.places, 2U);
    // The longer one is whole, and of the other one's rest nothing stays.
    const std::string overlapping = Redacted(redactor, std::string("XYZ") + kVin);
    EXPECT_EQ(overlapping.substr(3), vin);
    EXPECT_EQ(overlapping.substr(0, 3), PseudonymOf(redactor, "XYZKRM4").substr(0, 3));
    // Also where an occurrence overlaps the next one.
    Redactor repeated({.values = {"0101"}});
    EXPECT_THAT(Redacted(repeated, "010101010"), Not(HasSubstr("0101")));
}

TEST(Redact, PseudonymsHoldNoOtherValueAndDiffer) {
    std::vector<std::string> values;
    for (int i = 0; i < 1000; ++i) {
        std::string value = std::to_string(10000 + i * 9).substr(1);
        values.push_back(value);
    }
    Redactor redactor({.values = values});
    const std::set<std::string> originals(values.begin(), values.end());
    std::set<std::string> pseudonyms;
    for (const std::string& value : values) {
        const std::string pseudonym = Redacted(redactor, value);
        EXPECT_EQ(pseudonym.size(), value.size());
        EXPECT_FALSE(originals.contains(pseudonym));
        pseudonyms.insert(pseudonym);
    }
    EXPECT_EQ(pseudonyms.size(), originals.size());
}

TEST(Redact, MoreValuesThanPseudonymsIsAnError) {
    std::vector<std::string> values;
    for (int i = 0; i < 9990; ++i) {
        values.push_back(std::to_string(10000 + i).substr(1));
    }
    Redactor redactor({.values = values});
    std::string error;
    for (int i = 0; i < 100 && error.empty(); ++i) {
        std::string text = values[static_cast<std::size_t>(i)];
        error = redactor.Redact(text).error;
    }
    EXPECT_EQ(error, "there are so many values that one of them has no pseudonym left");
}

TEST(Redact, SecretMakesPseudonymsAndNoSecretMakesOthersEachTime) {
    const auto pseudonym = [](const char* secret) {
        Redactor redactor({.values = {"Jane Doe of Bath"}, .secret = secret});
        return PseudonymOf(redactor, "Jane Doe of Bath");
    };
    EXPECT_EQ(pseudonym("one"), pseudonym("one"));
    // On every platform.
    EXPECT_EQ(pseudonym("one"), "Fygu Wfu tm Wnyr");
    Redactor redactor({.secret = "one"});
    EXPECT_EQ(Redacted(redactor, kVin), "LWC0X959111475975");
    EXPECT_NE(pseudonym("one"), pseudonym("two"));
    EXPECT_NE(pseudonym(""), pseudonym(""));
    Redactor ofField({.fields = {"m_strOwner"}, .secret = "one", .forOtherClassesToo = true});
    RedactedAnswer answer;
    answer.m_strOwner = "Jo.";
    Redact(ofField, answer);
    EXPECT_EQ(answer.m_strOwner, "Ph.");
}

// Digits and small letters stay such, wherever in a byte they stand.
TEST(Redact, HexadecimalKeepsItsLetters) {
    for (const std::string& value : {std::string("\xC0\xC1\xD2\xE3\xF4"), std::string("jklmno")}) {
        Redactor redactor({.values = {value}});
        const std::string pseudonym = PseudonymOf(redactor, value);
        const char* const small = "0123456789abcdef";
        EXPECT_EQ(Redacted(redactor, Hex(value, small)), Hex(pseudonym, small));
        EXPECT_EQ(Redacted(redactor, Hex(value)), Hex(pseudonym));
    }
}

TEST(Redact, EveryEncodingKeepsItsLengthAndKind) {
    const auto pseudonym = [](const std::string& value) {
        Redactor redactor({.values = {value}});
        std::string other = PseudonymOf(redactor, value);
        EXPECT_EQ(other.size(), value.size());
        return other;
    };
    EXPECT_EQ(Shape(pseudonym("ab-CD 12/34")), "aa-AA 00/00");
    const std::string utf8 = pseudonym("\xC3\xBC\xE5\xBC\xA0\xF0\xA0\x80\x80z");
    EXPECT_TRUE(utf8[0] >= '\xC3' && utf8[2] >= '\xE4' && utf8[5] == '\xF0') << Hex(utf8);
    Redactor redactor({.values = {utf8}});
    CKRMCGetVinCodeCmdAdaptDataRcv answer;
    answer.m_strVinCode = utf8.c_str();
    ASSERT_TRUE(redactor.Redact(answer));
    EXPECT_THAT(krm::ToJson(answer), Not(HasSubstr("$bytes")));
    const std::string latin1 = pseudonym("M\xFCller");
    EXPECT_EQ(Shape(latin1.substr(2)), "aaaa");
    EXPECT_GE(static_cast<unsigned char>(latin1[1]), 0xC0);
}

TEST(Redact, ErrorsOfOptionsNameTheOptionAndNoValue) {
    const auto error = [](const RedactOptions& options) {
        Redactor redactor(options);
        CKRMCGetVinCodeCmdAdaptDataRcv answer;
        answer.m_strVinCode = kVin;
        std::string text = kVin;
        EXPECT_EQ(redactor.Redact(answer).error, redactor.Error());
        EXPECT_EQ(redactor.Redact(text).error, redactor.Error());
        EXPECT_EQ(redactor.Error().empty(), answer.m_strVinCode != kVin);
        EXPECT_EQ(redactor.Error().empty(), text != kVin);
        return redactor.Error();
    };
    EXPECT_EQ(error({.fields = {"m_cVehicleInfoList[*].m_strVehicleInfo", "m_c*"}, .values = {"abcd", "12-34"}}), "");
    EXPECT_EQ(error({.values = {"abcd", "abc"}}),
              "value 2: has fewer than 4 letters and digits, so it would be found everywhere");
    EXPECT_EQ(error({.values = {"---a-b-c-"}}),
              "value 1: has fewer than 4 letters and digits, so it would be found everywhere");
    EXPECT_EQ(error({.fields = {"Data[*].m_strVehicleInf"}}),
              "field \"Data[*].m_strVehicleInf\": no message of the library has it");
    EXPECT_EQ(error({.fields = {"Data[*].m_strVehicleInf"}, .forOtherClassesToo = true}), "");
    EXPECT_EQ(error({.fields = {"Data[x]"}, .forOtherClassesToo = true}),
              "field \"Data[x]\": at character 6, expected a number, * or a key in quotes, and ]");
    EXPECT_EQ(error({.fields = {""}}), "field \"\": is empty");
}

TEST(Redact, MessageOfAnotherClassIsAnError) {
    Redactor redactor;
    CKRMCGetVinCodeCmdAdaptDataRcv answer;
    answer.m_strVinCode = kVin;
    EXPECT_EQ(redactor.Redact(answer, kOwn).error, "the message is no RedactedAnswer");
    RedactedAnswer own;
    EXPECT_EQ(redactor.Redact(own).error, "the library has no message of " + krm::CommandNameOf(1, 902));
    EXPECT_EQ(answer.m_strVinCode, kVin);
    redactor.Collect(answer, kOwn);
    redactor.Collect(own);
    std::string text = "4A000000001234";
    EXPECT_EQ(redactor.Redact(text).places, 0U);
}

TEST(Redact, WhatIsCollectedFirstIsReplacedInWhatCameBefore) {
    Redactor redactor({.fields = {"m_strOwner"}, .forOtherClassesToo = true});
    RedactedAnswer early;
    early.m_strNote = "Jane Doe called";
    RedactedAnswer late;
    late.m_strOwner = "Jane Doe";
    redactor.Collect(early, kOwn);
    redactor.Collect(late, kOwn);
    Redact(redactor, early);
    EXPECT_EQ(krm::ToString(early.m_strNote), PseudonymOf(redactor, "Jane Doe") + " called");
}

/// Puts `bytes` somewhere into `text`.
void Insert(CKRMString& text, std::string_view bytes, krm::test::Seed& seed) {
    std::string whole = krm::ToString(text);
    whole.insert(seed.Next() % (whole.size() + 1), bytes);
    text = whole.c_str();
}

/// Puts a value into some of the places of a message that can hold it, in a form at random; says where.
class Hider {
public:
    Hider(std::string value, std::uint32_t seed) : m_value(std::move(value)), m_seed(seed) {}

    const std::vector<std::string>& Paths() const { return m_paths; }

    void Hide(krm::Value value, const std::string& path) {
        switch (value.Kind()) {
            case krm::ValueKind::Text:
                if (m_seed.Next() % 2 == 0) {
                    Insert(*value.As<CKRMString>(), Form(), m_seed);
                    m_paths.push_back(path);
                }
                return;
            case krm::ValueKind::Map: {
                auto& map = *value.As<CKRMMap<CKRMString, CKRMString>>();
                map.SetAt(("key " + Form()).c_str(), "of a map");
                map.SetAt("value", Form().c_str());
                m_paths.push_back(path);
                return;
            }
            case krm::ValueKind::Record:
                value.ForEachField([&](std::string_view name, krm::Value field) {
                    Hide(field, path + (path.empty() ? "" : ".") + std::string(name));
                });
                return;
            case krm::ValueKind::List:
                if (const krm::ValueKind kind = value.Type().element->kind;
                    (kind == krm::ValueKind::Unsigned || kind == krm::ValueKind::Signed) && m_seed.Next() % 2 == 0) {
                    for (const char c : m_value) {
                        value.Append()->SetInteger(c);
                    }
                    m_paths.push_back(path);
                    return;
                }
                {
                    int index = 0;
                    value.ForEachElement(
                        [&](krm::Value element) { Hide(element, path + '[' + std::to_string(index++) + ']'); });
                }
                return;
            default:
                return;
        }
    }

private:
    std::string Form() {
        constexpr const char* kUpper = "0123456789ABCDEF";
        constexpr const char* kLower = "0123456789abcdef";
        constexpr const char* kBetween[] = {"", " ", ":", ", 0x", "-"};
        const char* const between = kBetween[m_seed.Next() % std::size(kBetween)];
        switch (m_seed.Next() % 4) {
            case 0:
                return m_value;
            case 1:
                return Folded(m_value);
            case 2:
                return Hex(m_value, kUpper, between);
            default:
                return Hex(m_value, kLower, between);
        }
    }

    std::string m_value;
    krm::test::Seed m_seed;
    std::vector<std::string> m_paths;
};

/// The text with nothing in it but letters and digits, in upper case, and without marks of hexadecimal numbers: in it every
/// form with something between the bytes is one without.
std::string Condensed(std::string_view text) {
    std::string condensed;
    const std::string folded = Folded(text);
    for (std::size_t i = 0; i < folded.size(); ++i) {
        if (folded[i] == '0' && i + 1 < folded.size() && folded[i + 1] == 'X') {
            ++i;
        } else if ((folded[i] >= '0' && folded[i] <= '9') || (folded[i] >= 'A' && folded[i] <= 'Z')) {
            condensed += folded[i];
        }
    }
    return condensed;
}

/// All that is left of `value` in a text, in whatever form.
std::string Left(std::string_view text, std::string_view value) {
    std::string decimal;
    for (const char c : value) {
        decimal += (decimal.empty() ? "" : ",") + std::to_string(static_cast<unsigned char>(c));
    }
    const std::string condensed = Condensed(text);
    for (const std::string& form : {Folded(value), Hex(value), Hex(Folded(value))}) {
        if (condensed.find(form) != std::string::npos) {
            return form;
        }
    }
    return text.find(decimal) != std::string::npos ? decimal : std::string();
}

/// How long all texts and lists are, and the maps' entries.
std::string Lengths(krm::ConstValue value) {
    std::string lengths;
    if (const CKRMString* const text = value.As<CKRMString>()) {
        lengths = std::to_string(text->GetLength()) + ' ';
    } else if (const auto* const map = value.As<CKRMMap<CKRMString, CKRMString>>()) {
        std::multiset<std::string> entries;  // pseudonyms may bring them into another order
        for (const auto& [key, entry] : *map) {
            entries.insert(std::to_string(key.GetLength()) + '=' + std::to_string(entry.GetLength()) + ' ');
        }
        for (const std::string& entry : entries) {
            lengths += entry;
        }
    }
    value.ForEachField([&](std::string_view, krm::ConstValue field) { lengths += Lengths(field); });
    lengths += '[' + std::to_string(value.Count());
    value.ForEachElement([&](krm::ConstValue element) { lengths += Lengths(element); });
    return lengths + ']';
}

class RedactEveryMessage : public testing::TestWithParam<std::size_t> {};
INSTANTIATE_TEST_SUITE_P(All, RedactEveryMessage, testing::Range(std::size_t{0}, krm::AllMessages().size()),
                         [](const auto& test) { return std::string(krm::AllMessages()[test.param].className); });

TEST_P(RedactEveryMessage, LeavesNothingOfTheValueAndAllTheRest) {
    KRM_NOT_UNDER(Memcheck, "the sweep would take hours");
    const krm::MessageDescription& description = krm::AllMessages()[GetParam()];
    for (std::uint32_t seed = 1; seed <= 12; ++seed) {
        const std::string value = seed % 3 == 0 ? "Jane Doe9" : seed % 3 == 1 ? kVin : "krm4a000000001234";
        const std::unique_ptr<CKRMBaseAdaptationData> message = krm::test::RandomMessage(description, seed);
        Hider hider(value, seed * 7919U);
        hider.Hide(description.ContentOf(*message).value(), "");
        const std::string before = krm::ToJson(*message, description);
        const krm::MessageFromJson original = krm::FromJson(before);
        ASSERT_TRUE(original);

        Redactor redactor({.vin = false, .values = {value}, .secret = "same"});
        const krm::Redaction done = redactor.Redact(*message, description);
        ASSERT_TRUE(done) << done.error;
        EXPECT_EQ(done.places == 0, hider.Paths().empty());

        const std::string after = krm::ToJson(*message, description);
        EXPECT_EQ(Left(after, value), "") << after;
        EXPECT_EQ(Lengths(*description.ContentOf(*message)), Lengths(*description.ContentOf(*original.message)));
        // Lists are logged one number a line; what they spell is in the JSON.
        if (auto* const logged = dynamic_cast<krm::LoggedMessage*>(message.get())) {
            for (const std::string& line : krm::test::MessageLines(*logged)) {
                EXPECT_EQ(Left(line, value), "");
            }
        }
        // Nothing else is changed, and the same message again becomes the same.
        const krm::Comparison comparison = krm::Compare(*description.ContentOf(*original.message),
                                                        *description.ContentOf(*message), {.ignore = hider.Paths()});
        EXPECT_EQ(krm::ToText(comparison), "");
        Redactor again({.vin = false, .values = {value}, .secret = "same"});
        ASSERT_TRUE(again.Redact(*original.message, description));
        EXPECT_EQ(krm::ToJson(*original.message, description), after);
    }
}

// Recordings.

/// Not what a VIN looks like, so that only its field says that it is one.
constexpr const char* kOldVin = "Nr. 4711-abc";

/// The VIN comes as bytes before a field says that it is one; between them is a line that can't be read, behind them one
/// that is torn.
std::string RecordingOfVin() {
    std::string text;
    krm::Recorder recorder(krm::test::Into(text), krm::test::TickingClock());
    CKRMCGetDataMonitorListCmdAdaptDataRcv list;
    Assign(list.m_uchA8SupportData, std::string("\x01") + kOldVin + "\x02");
    CKRMCGetVinCodeCmdAdaptDataRcv answer;
    answer.m_strVinCode = kOldVin;
    EXPECT_TRUE(recorder.Write(1, list));
    text += std::string(R"({"exchange":2,"note":")") + kOldVin + "\"}\n";
    EXPECT_TRUE(recorder.Write(7, answer));
    return text + "{\"exchange\":8,\"ti";
}

TEST(RedactRecording, ReplacesWhatALaterMessageTellsAndLeavesOutWhatItCannotRead) {
    std::istringstream from(RecordingOfVin());
    std::ostringstream to;
    Redactor redactor;
    const krm::RedactedRecording done = krm::RedactRecording(from, to, redactor);
    ASSERT_TRUE(done) << done.error;
    EXPECT_EQ(done.messages, 2U);
    EXPECT_EQ(done.places, 2U);
    EXPECT_EQ(done.faultCount, 2U);
    ASSERT_EQ(done.faults.size(), 2U);
    EXPECT_EQ(done.faults[0].line, 3U);
    EXPECT_FALSE(done.faults[0].torn);
    EXPECT_EQ(done.faults[1].line, 5U);
    EXPECT_TRUE(done.faults[1].torn);

    const std::string pseudonym = PseudonymOf(redactor, kOldVin);
    EXPECT_EQ(Shape(pseudonym), "Aa. 0000-aaa");
    std::string numbers = "1";
    for (const char c : pseudonym) {
        numbers += ',' + std::to_string(static_cast<int>(c));
    }
    EXPECT_EQ(to.str(), R"({"format":"krm recording","version":1,"library":"1.0.0"})"
                        "\n"
                        R"({"exchange":1,"time":"2026-11-22T09:35:00.123456Z","type":1,"id":17,"message":)"
                        R"({"command":"GetDataMonitorList","family":"Cmd","direction":"answer","content":)"
                        R"({"m_bNotSupport":false,"Data":[],"m_uchA8SupportData":[)" +
                            numbers + ",2]}}}\n" +
                            R"({"exchange":7,"time":"2026-11-22T09:35:00.123457Z","type":1,"id":79,"message":)"
                            R"({"command":"GetVinCode","family":"Cmd","direction":"answer","content":)"
                            R"({"m_bNotSupport":false,"m_strVinCode":")" +
                            pseudonym + "\"}}}\n");
}

TEST(RedactRecording, ErrorsLeaveNoCopy) {
    const auto error = [](const std::string& recording, const RedactOptions& options) {
        std::istringstream from(recording);
        std::ostringstream to;
        Redactor redactor(options);
        const krm::RedactedRecording done = krm::RedactRecording(from, to, redactor);
        EXPECT_FALSE(done);
        EXPECT_THAT(to.str(), Not(HasSubstr("message")));
        return done.error;
    };
    EXPECT_EQ(error(RecordingOfVin(), {.values = {"abc"}}),
              "value 1: has fewer than 4 letters and digits, so it would be found everywhere");
    EXPECT_NE(error("", {}), "");
    EXPECT_THAT(error("something else\n", {}), StartsWith("line 1, "));

    // A stream that takes nothing, and one that gives nothing twice.
    std::istringstream from(RecordingOfVin());
    std::ostringstream to;
    to.setstate(std::ios::badbit);
    Redactor redactor;
    EXPECT_NE(krm::RedactRecording(from, to, redactor).error, "");
    std::istringstream withoutMessages((std::string(krm::test::kHeader)));
    EXPECT_NE(krm::RedactRecording(withoutMessages, to, redactor).error, "");
    struct OnceOnly : std::stringbuf {
        using std::stringbuf::stringbuf;
        pos_type seekoff(off_type, std::ios_base::seekdir, std::ios_base::openmode) override { return pos_type(-1); }
        pos_type seekpos(pos_type, std::ios_base::openmode) override { return pos_type(-1); }
    } buffer(RecordingOfVin());
    std::istream once(&buffer);
    std::ostringstream out;
    EXPECT_EQ(krm::RedactRecording(once, out, redactor).error, "the recording can't be read twice, as it is no file");
}

TEST(RedactRecording, KeepsTheFirstFaultsAlone) {
    std::string recording = RecordingOfVin();
    for (int i = 0; i < 250; ++i) {
        recording += "\n{";
    }
    std::istringstream from(recording);
    std::ostringstream to;
    Redactor redactor;
    const krm::RedactedRecording done = krm::RedactRecording(from, to, redactor);
    EXPECT_TRUE(done);
    EXPECT_EQ(done.messages, 2U);
    EXPECT_EQ(done.faultCount, 252U);
    EXPECT_EQ(done.faults.size(), krm::kMaxKeptFaults);
}

TEST(RedactRecording, ProgramsOwnMessagesAreReadByOptions) {
    std::string recording;
    krm::Recorder recorder(krm::test::Into(recording));
    RedactedAnswer answer;
    answer.m_strOwner = "Jane Doe";
    ASSERT_TRUE(recorder.Write(1, answer, kOwn));
    Redactor redactor({.fields = {"m_strOwner"}, .forOtherClassesToo = true});
    std::istringstream from(recording);
    std::ostringstream to;
    const krm::MessageDescription own[] = {kOwn};
    const krm::RedactedRecording done = krm::RedactRecording(from, to, redactor, {.ownMessages = own});
    EXPECT_EQ(done.error, "");
    EXPECT_EQ(done.messages, 1U);
    EXPECT_THAT(to.str(), HasSubstr("\"m_strOwner\":\"" + PseudonymOf(redactor, "Jane Doe") + '"'));
    EXPECT_THAT(to.str(), Not(HasSubstr("Jane")));
}

class RedactRecordingFile : public testing::Test {
protected:
    std::vector<std::string> Files() const {
        std::vector<std::string> files;
        for (const auto& entry : std::filesystem::directory_iterator(m_folder.Path(""))) {
            files.push_back(entry.path().filename().string());
        }
        std::ranges::sort(files);
        return files;
    }
    krm::RedactedRecording Copy(krm::RecordingMode mode = krm::RecordingMode::CreateNew) {
        return krm::RedactRecording(m_from, m_to, m_redactor, mode);
    }

    const krm::test::TestFolder m_folder;
    const std::filesystem::path m_from = m_folder.Write("from", RecordingOfVin());
    const std::filesystem::path m_to = m_folder.Path("to");
    Redactor m_redactor{{.secret = "a secret"}};
};

TEST_F(RedactRecordingFile, IsTheSameAsTheStream) {
    std::istringstream from(RecordingOfVin());
    std::ostringstream to;
    ASSERT_TRUE(krm::RedactRecording(from, to, m_redactor));
    const krm::RedactedRecording done = Copy();
    EXPECT_EQ(done.error, "");
    EXPECT_EQ(done.messages, 2U);
    EXPECT_EQ(m_folder.Read("to"), to.str());
    EXPECT_EQ(m_folder.Read("from"), RecordingOfVin());
    EXPECT_THAT(Files(), ElementsAre("from", "to"));
}

TEST_F(RedactRecordingFile, AnotherFileIsOverwrittenOnRequestAlone) {
    m_folder.Write("to", "precious");
    EXPECT_EQ(Copy().error, "the file is there already");
    EXPECT_EQ(Copy(krm::RecordingMode::Append).error, "a redacted recording can't be appended to another");
    EXPECT_EQ(m_folder.Read("to"), "precious");
    EXPECT_EQ(Copy(krm::RecordingMode::Overwrite).error, "");
    EXPECT_THAT(m_folder.Read("to"), StartsWith(krm::test::kHeader));
    // Also the recording itself.
    EXPECT_EQ(krm::RedactRecording(m_from, m_from, m_redactor, krm::RecordingMode::Overwrite).error, "");
    EXPECT_EQ(m_folder.Read("from"), m_folder.Read("to"));
    EXPECT_THAT(Files(), ElementsAre("from", "to"));
}

TEST_F(RedactRecordingFile, ErrorsLeaveWhatIsThere) {
    m_folder.Write("to", "precious");
    m_folder.Write("from", "no recording\n");
    constexpr krm::RecordingMode kOverwrite = krm::RecordingMode::Overwrite;
    EXPECT_NE(Copy(kOverwrite).error, "");
    EXPECT_NE(krm::RedactRecording(m_folder.Path("missing"), m_to, m_redactor, kOverwrite).error, "");
    EXPECT_NE(krm::RedactRecording(m_from, std::filesystem::path(m_folder.Path("missing")) / "to", m_redactor).error,
              "");
    EXPECT_EQ(m_folder.Read("to"), "precious");
    EXPECT_THAT(Files(), ElementsAre("from", "to"));
}

}  // namespace
