#include "krm/exchange/json.h"

#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <cstdint>
#include <limits>
#include <string>
#include <string_view>

#include "krm/fields/diag/trouble_codes.h"
#include "krm/fields/message_descriptions.h"
#include "krm/framework/message.h"
#include "krm/messages/auxiliary/stored_data.h"
#include "krm/messages/auxiliary/viewer.h"
#include "krm/messages/diag/trouble_codes.h"
#include "krm/messages/diag/vehicle.h"
#include "krm/platform/string.h"
#include "tests/support/failing_allocation.h"

/// A record and a message of a program's own, with every kind of value that the library's have too.
class PaintTone : public krm::RecordOf<PaintTone> {
public:
    void Dump(const krm::RecordLines&) {}

    signed char m_chTone = 0;
    short m_shTone = 0;
    krm_long m_lTone = 0;
    krm_int64 m_nTone = 0;
    unsigned char m_uchTone = 0;
    unsigned short m_ushTone = 0;
    krm_ulong m_ulTone = 0;
    double m_dTone = 0;
};
template <>
struct krm::Fields<PaintTone>
    : krm::FieldList<&PaintTone::m_chTone, &PaintTone::m_shTone, &PaintTone::m_lTone, &PaintTone::m_nTone,
                     &PaintTone::m_uchTone, &PaintTone::m_ushTone, &PaintTone::m_ulTone, &PaintTone::m_dTone> {};

class PaintInJson : public krm::MessageOf<PaintInJson, CKRMCBaseCmdAdaptDataRcv, krm::CommandName("ReadPaint", 900)> {
public:
    void Dump(const krm::MessageLines&) {}

    CKRMString m_strCode{"none"};
    PaintTone m_cTone;
    CKRMList<CKRMList<PaintTone>> m_cTones;
    unsigned char m_uchKey[3] = {};
    CKRMMap<CKRMString, CKRMString> m_cNames;
};
template <>
struct krm::Fields<PaintInJson> : krm::FieldList<&PaintInJson::m_strCode, &PaintInJson::m_cTone, &PaintInJson::m_cTones,
                                                 &PaintInJson::m_uchKey, &PaintInJson::m_cNames> {};

namespace {

using krm::FromJson;
using krm::MessageFromJson;
using krm::ToJson;

constexpr const krm::MessageDescription& kPaint = krm::kMessageDescription<PaintInJson>;

constexpr std::string_view kPaintStart = R"({"command":"ReadPaint","family":"Cmd","direction":"answer","content":)";

/// The content of a document: what follows `start`, without the last bracket.
std::string ContentIn(const std::string& document, std::string_view start) {
    EXPECT_TRUE(document.starts_with(start) && document.ends_with("}")) << document;
    return document.substr(start.size(), document.size() - start.size() - 1);
}

std::string JsonOfText(const char* text) {
    CKRMCGetVinCodeCmdAdaptDataRcv answer;
    answer.m_strVinCode = text;
    constexpr std::string_view kStart = R"({"m_bNotSupport":false,"m_strVinCode":)";
    const std::string content =
        ContentIn(ToJson(answer), R"({"command":"GetVinCode","family":"Cmd","direction":"answer","content":)");
    return ContentIn(content, kStart);
}

/// The text that the JSON text `json` is read as; "offset: error" where it isn't read.
std::string TextFromJson(std::string_view json) {
    const std::string content = R"({"content":{"m_strVinCode":)" + std::string(json) + "}}";
    const MessageFromJson read =
        FromJson(content, *krm::FindMessage(CKRMCGetVinCodeCmdAdaptDataRcv::kCommandType,
                                            CKRMCGetVinCodeCmdAdaptDataRcv::kCommandId, krm::Direction::Receive));
    return read ? krm::ToString(read.As<CKRMCGetVinCodeCmdAdaptDataRcv>()->m_strVinCode)
                : std::to_string(read.error.offset) + ": " + read.error.text;
}

/// "path @offset: text" of the error.
std::string ErrorOf(const MessageFromJson& read) {
    EXPECT_EQ(read.message, nullptr);
    EXPECT_EQ(read.description, nullptr);
    return read.error.path + " @" + std::to_string(read.error.offset) + ": " + read.error.text;
}
std::string ErrorIn(std::string_view json) {
    return ErrorOf(FromJson(json));
}
/// The error in the content of a document {"content":...} of the own message; its offset counts from the content on.
std::string ErrorInPaint(std::string_view content) {
    constexpr std::string_view kStart = R"({"content":)";
    MessageFromJson read = FromJson(std::string(kStart) + std::string(content) + '}', kPaint);
    read.error.offset -= kStart.size();
    return ErrorOf(read);
}

std::string JsonOfDouble(double number) {
    PaintInJson paint;
    paint.m_cTone.m_dTone = number;
    const std::string text = ToJson(paint, kPaint);
    const std::size_t begin = text.find("m_dTone\":") + std::string_view("m_dTone\":").size();
    return text.substr(begin, text.find('}', begin) - begin);
}

/// The bits of the double that is read; those of -1 where it isn't.
std::uint64_t BitsFromJson(std::string_view json) {
    const MessageFromJson read = FromJson(R"({"content":{"m_cTone":{"m_dTone":)" + std::string(json) + "}}}", kPaint);
    return std::bit_cast<std::uint64_t>(read ? read.As<PaintInJson>()->m_cTone.m_dTone : -1.0);
}

TEST(ToJson, OfARequest) {
    CKRMCClearDTCCmdAdaptDataSnd request;
    request.m_ulEcuId = 4294967295U;
    constexpr const char* kExpected =
        R"({"command":"ClearDTC","family":"Cmd","direction":"request","content":{"m_ulEcuId":4294967295}})";
    EXPECT_EQ(ToJson(request), kExpected);
    const CKRMBaseAdaptationData& untyped = request;
    EXPECT_EQ(ToJson(untyped, krm::Direction::Send), kExpected);
}

TEST(ToJson, OfAMessageWithoutFields) {
    EXPECT_EQ(ToJson(CKRMCCreateViewerDataCtrlVdcAdaptDataRcv()),
              R"({"command":"CreateViewerDataCtrl","family":"Vdc","direction":"answer","content":{}})");
}

TEST(ToJson, OfNestedRecordsListsArraysAndMaps) {
    PaintInJson paint;
    paint.m_bNotSupport = true;
    paint.m_strCode = "1F7";
    paint.m_cTones.AddTail(CKRMList<PaintTone>());
    CKRMList<PaintTone> tones;
    PaintTone tone;
    tone.m_chTone = -128;
    tone.m_shTone = -32768;
    tone.m_lTone = -2147483647 - 1;
    tone.m_nTone = std::numeric_limits<krm_int64>::min();
    tones.AddTail(tone);
    tone.m_chTone = 127;
    tone.m_shTone = 32767;
    tone.m_lTone = 2147483647;
    tone.m_nTone = std::numeric_limits<krm_int64>::max();
    tone.m_uchTone = 255;
    tone.m_ushTone = 65535;
    tone.m_ulTone = 4294967295U;
    tone.m_dTone = 0.1;
    tones.AddTail(tone);
    paint.m_cTones.AddTail(tones);
    paint.m_uchKey[2] = 7;
    paint.m_cNames.SetAt("fr", "gris");
    paint.m_cNames.SetAt("\xE9t\xE9", "x");
    const std::string text = ToJson(paint, kPaint);
    EXPECT_EQ(
        ContentIn(text, kPaintStart),
        R"({"m_bNotSupport":true,"m_strCode":"1F7",)"
        R"("m_cTone":{"m_chTone":0,"m_shTone":0,"m_lTone":0,"m_nTone":0,"m_uchTone":0,"m_ushTone":0,"m_ulTone":0,"m_dTone":0},)"
        R"("m_cTones":[[],[)"
        R"({"m_chTone":-128,"m_shTone":-32768,"m_lTone":-2147483648,"m_nTone":-9223372036854775808,)"
        R"("m_uchTone":0,"m_ushTone":0,"m_ulTone":0,"m_dTone":0},)"
        R"({"m_chTone":127,"m_shTone":32767,"m_lTone":2147483647,"m_nTone":9223372036854775807,)"
        R"("m_uchTone":255,"m_ushTone":65535,"m_ulTone":4294967295,"m_dTone":0.1}]],)"
        R"("m_uchKey":[0,0,7],"m_cNames":[["fr","gris"],[{"$bytes":"E974E9"},"x"]]})");
    const MessageFromJson read = FromJson(text, kPaint);
    ASSERT_TRUE(read) << ErrorOf(read);
    EXPECT_EQ(ToJson(*read.message, kPaint), text);
}

TEST(ToJson, IsEmptyOfWhatHasNoDescription) {
    const PaintInJson unknown;
    EXPECT_EQ(ToJson(unknown), "");
    const CKRMCGetVinCodeCmdAdaptDataRcv other;
    EXPECT_EQ(ToJson(other, kPaint), "");
}

TEST(ToJson, EscapesWhatAStringCannotHold) {
    EXPECT_EQ(JsonOfText(""), R"("")");
    EXPECT_EQ(JsonOfText("a\"b\\c/d"), R"("a\"b\\c/d")");
    EXPECT_EQ(JsonOfText("\b\t\n\v\f\r\x01\x1F\x7F"), "\"\\b\\t\\n\\u000B\\f\\r\\u0001\\u001F\x7F\"");
    EXPECT_EQ(JsonOfText("Temp\xC3\xA9rature \xE2\x82\xAC \xF0\x9F\x9A\x97"),
              "\"Temp\xC3\xA9rature \xE2\x82\xAC \xF0\x9F\x9A\x97\"");
}

TEST(ToJson, MarksBytesThatAreNoUtf8) {
    EXPECT_EQ(JsonOfText("\x83G\x83\x93"), R"({"$bytes":"83478393"})");  // of a Japanese code page
    for (const auto* const bytes :
         {"\x80", "\xC2", "\xC1\xBF", "\xE0\x9F\xBF", "\xED\xA0\x80", "\xF0\x8F\xBF\xBF", "\xF4\x90\x80\x80",
          "\xF5\x80\x80\x80", "\xFF", "\xE2\x82", "\xE2(\xA1", "\xF0\x9F\x9A", "abc\xE9", "\xC3\xA9\xA9"}) {
        const std::string text = JsonOfText(bytes);
        EXPECT_TRUE(text.starts_with(R"({"$bytes":")")) << text;
        EXPECT_EQ(TextFromJson(text), bytes);
    }
    for (const auto* const utf8 : {"\xC2\x80", "\xDF\xBF", "\xE0\xA0\x80", "\xED\x9F\xBF", "\xEE\x80\x80",
                                   "\xEF\xBF\xBF", "\xF0\x90\x80\x80", "\xF4\x8F\xBF\xBF"}) {
        EXPECT_EQ(JsonOfText(utf8), '"' + std::string(utf8) + '"');
        EXPECT_EQ(TextFromJson(JsonOfText(utf8)), utf8);
    }
}

TEST(ToJson, NeedsNoEscapeForTextsThatLookLikeMarks) {
    for (const auto* const text : {R"({"$bytes":"41"})", "$bytes", "NaN", R"(\u0041)"}) {
        EXPECT_EQ(TextFromJson(JsonOfText(text)), text);
    }
    EXPECT_EQ(JsonOfText(R"({"$bytes":"41"})"), R"("{\"$bytes\":\"41\"}")");
}

struct DoubleAndText {
    std::uint64_t bits;
    const char* text;
};
constexpr DoubleAndText kDoubles[] = {
    {0x0000000000000000U, "0"},
    {0x8000000000000000U, "-0"},
    {0x0000000000000001U, "5e-324"},
    {0x800FFFFFFFFFFFFFU, "-2.225073858507201e-308"},
    {0x0010000000000000U, "2.2250738585072014e-308"},
    {0x7FEFFFFFFFFFFFFFU, "1.7976931348623157e+308"},
    {0xFFEFFFFFFFFFFFFFU, "-1.7976931348623157e+308"},
    {0x3FB999999999999AU, "0.1"},
    {0x3FD3333333333334U, "0.30000000000000004"},
    {0x3FF0000000000000U, "1"},
    {0xC05EDD2F1A9FBE77U, "-123.456"},
    {0x444B1AE4D6E2EF50U, "1e+21"},
    {0x3EE4F8B588E368F1U, "1e-05"},
    {0x7FF0000000000000U, R"("Infinity")"},
    {0xFFF0000000000000U, R"("-Infinity")"},
    {0x7FF8000000000000U, R"("NaN")"},
    {0xFFF8000000000000U, "\"NaN(FFF8000000000000)\""},
    {0x7FF8000000000001U, "\"NaN(7FF8000000000001)\""},
    {0xFFFFFFFFFFFFFFFFU, "\"NaN(FFFFFFFFFFFFFFFF)\""},
};

TEST(ToJson, WritesDoublesInTheShortestFormThatReadsBackToTheSameBits) {
    for (const auto& [bits, text] : kDoubles) {
        EXPECT_EQ(JsonOfDouble(std::bit_cast<double>(bits)), text);
        EXPECT_EQ(BitsFromJson(text), bits) << text;
    }
}

TEST(FromJson, ReadsDoublesHoweverTheyAreWritten) {
    const auto bits = [](double number) { return std::bit_cast<std::uint64_t>(number); };
    EXPECT_EQ(BitsFromJson("1.50E+2"), bits(150));
    EXPECT_EQ(BitsFromJson("0.000e-999"), bits(0));
    EXPECT_EQ(BitsFromJson("-0.0"), bits(-0.0));
    EXPECT_EQ(BitsFromJson("2.4703282292062328e-324"), bits(5e-324));
    EXPECT_EQ(BitsFromJson("9007199254740993"), bits(9007199254740992.0));
    EXPECT_EQ(BitsFromJson("\"NaN(fff8000000000000)\""), 0xFFF8000000000000U);
}

TEST(FromJson, GivesTheMessageThatTheDocumentSays) {
    const MessageFromJson read =
        FromJson(R"({"command":"ClearDTC","family":"Cmd","direction":"request","content":{"m_ulEcuId":2016}})");
    ASSERT_TRUE(read) << ErrorOf(read);
    EXPECT_EQ(read.error.text, "");
    EXPECT_EQ(read.description->className, "CKRMCClearDTCCmdAdaptDataSnd");
    const auto* const request = read.As<CKRMCClearDTCCmdAdaptDataSnd>();
    ASSERT_NE(request, nullptr);
    EXPECT_EQ(request->m_ulEcuId, 2016U);
    EXPECT_EQ(read.As<CKRMCClearDTCCmdAdaptDataRcv>(), nullptr);
    EXPECT_EQ(read.As<CKRMCGetDTCCmdAdaptDataSnd>(), nullptr);
}

TEST(FromJson, TellsCommandsOfOneNameApart) {
    const auto className = [](std::string_view family) {
        const MessageFromJson read = FromJson(R"({"command":"GetTranslationString","family":")" + std::string(family) +
                                              R"(","direction":"answer","content":{}})");
        return read ? std::string(read.description->className) : ErrorOf(read);
    };
    EXPECT_EQ(className("Cmd"), "CKRMCGetTranslationStringCmdAdaptDataRcv");
    EXPECT_EQ(className("Dwt"), "CKRMCGetTranslationStringDwtAdaptDataRcv");
}

TEST(FromJson, TakesTheMembersInAnyOrder) {
    const MessageFromJson read = FromJson(
        " { \"content\" : { \"Data\" : [ { \"m_strDTC\" : \"P0301\" } ],\r\n\t"
        "\"m_bNotSupport\" : true }, \"direction\" : \"answer\", \"family\" : \"Cmd\","
        " \"command\" : \"GetDTC\" } ");
    ASSERT_TRUE(read) << ErrorOf(read);
    const auto* const answer = read.As<CKRMCGetDTCCmdAdaptDataRcv>();
    ASSERT_NE(answer, nullptr);
    EXPECT_TRUE(answer->m_bNotSupport);
    ASSERT_EQ(answer->Data.GetCount(), 1);
    EXPECT_EQ(begin(answer->Data)->m_strDTC, "P0301");
}

TEST(FromJson, KeepsTheDefaultOfWhatIsMissing) {
    const MessageFromJson own = FromJson(R"({"content":{}})", kPaint);
    ASSERT_TRUE(own) << ErrorOf(own);
    EXPECT_EQ(own.As<PaintInJson>()->m_strCode, "none");
    const MessageFromJson read =
        FromJson(R"({"command":"GetPcViewerResource","family":"Vdc","direction":"request","content":{}})");
    ASSERT_TRUE(read) << ErrorOf(read);
    EXPECT_EQ(read.As<CKRMCGetPcViewerResourceVdcAdptDataSnd>()->m_ulResourceType, 1U);
}

TEST(FromJson, OfAClassThatTheCallerKnows) {
    const krm::MessageDescription& clear = *krm::FindMessage(1, 5, krm::Direction::Send);
    EXPECT_TRUE(FromJson(R"({"content":{"m_ulEcuId":7}})", clear));
    EXPECT_TRUE(FromJson(R"({"content":{"m_ulEcuId":7},"command":"ClearDTC"})", clear));
    EXPECT_EQ(ErrorOf(FromJson(R"({"command":"GetDTC","content":{}})", clear)),
              "$.command @11: the message that is asked for has another");
    EXPECT_EQ(ErrorOf(FromJson(R"({"content":{},"direction":"answer"})", clear)),
              "$.direction @26: the message that is asked for has another");
    EXPECT_EQ(ErrorOf(FromJson(R"({"family":"Vdc","content":{}})", clear)),
              "$.family @10: the message that is asked for has another");
    EXPECT_EQ(ErrorOf(FromJson("{}", clear)), "$ @1: expected the member content");
}

TEST(FromJson, ReadsBytesOfAText) {
    EXPECT_EQ(TextFromJson(R"({"$bytes":"8347fF"})"), "\x83G\xFF");
    EXPECT_EQ(TextFromJson(R"({"$bytes":""})"), "");
    EXPECT_EQ(TextFromJson(R"({"$bytes":"8"})"), "37: expected pairs of hexadecimal digits, none of them 00");
    EXPECT_EQ(TextFromJson(R"({"$bytes":"8g"})"), "37: expected pairs of hexadecimal digits, none of them 00");
    EXPECT_EQ(TextFromJson(R"({"$bytes":"4100"})"), "37: expected pairs of hexadecimal digits, none of them 00");
    EXPECT_EQ(TextFromJson(R"({"$bytes":7})"), "37: expected pairs of hexadecimal digits, none of them 00");
    EXPECT_EQ(TextFromJson(R"({"$bytes":[]})"), "37: expected pairs of hexadecimal digits, none of them 00");
    EXPECT_EQ(TextFromJson(R"({"$bytes":{}})"), "37: expected pairs of hexadecimal digits, none of them 00");
    EXPECT_EQ(TextFromJson(R"({})"), "28: expected the member $bytes");
    EXPECT_EQ(TextFromJson(R"({"bytes":"41"})"), "28: unknown member");
    EXPECT_EQ(TextFromJson(R"({"$bytes":"41","$bytes":"41"})"), "42: this member comes twice");
}

TEST(FromJson, ReadsEscapes) {
    EXPECT_EQ(TextFromJson(R"("\"\\\/\b\f\n\r\t\u00e9\uD83D\uDE97")"), "\"\\/\b\f\n\r\t\xC3\xA9\xF0\x9F\x9A\x97");
    EXPECT_EQ(TextFromJson(R"("a\u0000b")"), "27: expected a text without NUL");
    EXPECT_EQ(TextFromJson(R"("a\uDC00")"), "27: expected UTF-8");
    EXPECT_EQ(TextFromJson(R"("a\uD800")"), "29: invalid escape or control character");
    EXPECT_EQ(TextFromJson(R"("a\uD800\u0041")"), "29: invalid escape or control character");
    EXPECT_EQ(TextFromJson(R"("a\x41")"), "29: invalid escape or control character");
    EXPECT_EQ(TextFromJson(R"("a\u00g1")"), "29: invalid escape or control character");
    EXPECT_EQ(TextFromJson("\"a\nb\""), "29: invalid escape or control character");
    EXPECT_EQ(TextFromJson("\"a\xE9\""), "27: expected UTF-8");
}

TEST(FromJson, SaysWhereTheClassIsWrong) {
    EXPECT_EQ(ErrorIn(R"({"command":"GetDTC","family":"Cmd","direction":"answer"})"),
              "$ @55: expected the member content");
    EXPECT_EQ(ErrorIn(R"({"command":"GetDTC","direction":"answer","content":{}})"),
              "$ @53: expected the member family");
    EXPECT_EQ(ErrorIn(R"({"content":{"x":[{"y":1},null,true,"z"]}})"), "$ @40: expected the member command");
    EXPECT_EQ(ErrorIn(R"({"command":"GetDtc","family":"Cmd","direction":"answer","content":{}})"),
              "$.direction @47: there is no message with this command, family and direction");
    EXPECT_EQ(ErrorIn(R"({"command":"GetDTC","family":"Cmd","direction":"Rcv","content":{}})"),
              R"($.direction @47: expected "request" or "answer")");
    EXPECT_EQ(ErrorIn(R"({"command":2})"), "$.command @11: expected a text");
    EXPECT_EQ(ErrorIn(R"({"family":{}})"), "$.family @10: expected a text");
    EXPECT_EQ(ErrorIn(R"({"family":[]})"), "$.family @10: expected a text");
    EXPECT_EQ(ErrorIn(R"({"direction":null})"), "$.direction @13: expected a text");
    EXPECT_EQ(ErrorIn(R"({"direction":true})"), "$.direction @13: expected a text");
    EXPECT_EQ(ErrorIn(R"({"command":"GetDTC","command":"GetDTC"})"), "$.command @20: this member comes twice");
    EXPECT_EQ(ErrorIn(R"({"content":{},"content":{}})"), "$.content @14: this member comes twice");
    EXPECT_EQ(ErrorIn(R"({"content":[]})"), "$.content @11: expected an object");
    EXPECT_EQ(ErrorIn(R"({"content":"x"})"), "$.content @11: expected an object");
    EXPECT_EQ(ErrorIn(R"({"content":false})"), "$.content @11: expected an object");
    EXPECT_EQ(ErrorIn(R"({"":1})"), R"($[""] @1: unknown member)");
    EXPECT_EQ(ErrorIn(R"({"Command":1})"), "$.Command @1: unknown member");
    EXPECT_EQ(ErrorIn("{\"\xFF\":1}"), "$ @1: expected UTF-8");
}

TEST(FromJson, SaysWhatIsNoJson) {
    EXPECT_EQ(ErrorIn(""), "$ @0: the document is empty");
    EXPECT_EQ(ErrorIn(" \n"), "$ @2: the document is empty");
    EXPECT_EQ(ErrorIn("[]"), "$ @0: expected an object");
    EXPECT_EQ(ErrorIn("\"GetDTC\""), "$ @0: expected an object");
    EXPECT_EQ(ErrorIn("12"), "$ @0: expected an object");
    EXPECT_EQ(ErrorIn("true"), "$ @0: expected an object");
    EXPECT_EQ(ErrorIn("GetDTC"), "$ @0: expected a value");
    EXPECT_EQ(ErrorIn("{"), "$ @1: expected a member's name");
    EXPECT_EQ(ErrorIn("{,}"), "$ @1: expected a member's name");
    EXPECT_EQ(ErrorIn(R"({"command" "GetDTC"})"), "$.command @11: expected a colon");
    EXPECT_EQ(ErrorIn(R"({"command":})"), "$.command @11: expected a value");
    EXPECT_EQ(ErrorIn(R"({"command":"GetDTC" "family":1})"), "$ @20: expected a comma or }");
    EXPECT_EQ(ErrorIn(R"({"command":"GetDTC)"), "$.command @18: expected the end of the string");
    EXPECT_EQ(ErrorInPaint(R"({"m_uchKey":[1 2]})"), "$.content.m_uchKey @15: expected a comma or ]");
    EXPECT_EQ(ErrorInPaint(R"({"m_uchKey":[1,]})"), "$.content.m_uchKey @15: expected a value");
    EXPECT_EQ(ErrorInPaint(R"({"m_uchKey":[1,01]})"), "$.content.m_uchKey @16: expected a comma or ]");
    EXPECT_EQ(ErrorInPaint(R"({"m_bNotSupport":True})"), "$.content.m_bNotSupport @17: expected a value");
    EXPECT_EQ(ErrorInPaint(R"({"m_uchKey":[-]})"), "$.content.m_uchKey @14: expected a value");
    EXPECT_EQ(ErrorInPaint(R"({"m_uchKey":[1.]})"), "$.content.m_uchKey @15: expected a digit");
    EXPECT_EQ(ErrorInPaint(R"({"m_uchKey":[1e]})"), "$.content.m_uchKey @15: expected a digit");
    constexpr std::string_view kWhole = R"({"content":{}})";
    EXPECT_TRUE(FromJson(std::string(kWhole) + " ", kPaint));
    for (const std::string& behind : {std::string("x"), std::string("{}"), std::string("\0", 1)}) {
        EXPECT_EQ(ErrorOf(FromJson(std::string(kWhole) + behind, kPaint)),
                  "$ @14: there is something behind the document");
    }
}

TEST(FromJson, SaysWhatTheClassDoesNotHave) {
    EXPECT_EQ(ErrorInPaint(R"({"m_strcode":""})"), "$.content.m_strcode @1: unknown member");
    EXPECT_EQ(ErrorInPaint(R"({"m_cTone":{"m_chTone":1,"m x":0}})"), R"($.content.m_cTone["m x"] @25: unknown member)");
    EXPECT_EQ(ErrorInPaint("{\"\xE9\":0}"), "$.content @1: expected UTF-8");
    EXPECT_EQ(ErrorInPaint(R"({"m_strCode":"","m_bNotSupport":true,"m_strCode":""})"),
              "$.content.m_strCode @37: this member comes twice");
    EXPECT_EQ(ErrorInPaint(R"({"m_cTones":[[{"m_chTone":1},{"m_chTone":1,"m_chTone":1}]]})"),
              "$.content.m_cTones[0][1].m_chTone @43: this member comes twice");
    EXPECT_EQ(ErrorInPaint(R"({"m_cNames":[["a","b"],["c","d"],["a","b"]]})"),
              "$.content.m_cNames[2] @41: this key comes twice");
}

TEST(FromJson, SaysWhatAFieldHolds) {
    constexpr const char* kWrong[] = {"null", "true", "7", "-1.5", R"("x")", "{}", "[]"};
    struct {
        const char* field;
        const char* error;
        std::string_view taken;  // of those above
    } const kFields[] = {
        {"m_bNotSupport", "expected true or false", "true"},
        {"m_strCode", "expected a text, or an object with its bytes", R"("x" {})"},
        {"m_cTone", "expected an object", "{}"},
        {"m_cTones", "expected an array", "[]"},
        {"m_uchKey", "expected an array of 3 elements", "[]"},
        {"m_cNames", "expected an array of pairs", "[]"},
    };
    for (const auto& [field, error, taken] : kFields) {
        for (const std::string value : kWrong) {
            if (taken.find(value) == std::string_view::npos) {
                const std::string start = "{\"" + std::string(field) + "\":";
                EXPECT_EQ(ErrorInPaint(start + value + "}"),
                          "$.content." + std::string(field) + " @" + std::to_string(start.size()) + ": " + error);
            }
        }
    }
    EXPECT_EQ(ErrorInPaint(R"({"m_cTone":{"m_dTone":"1.5"}})"),
              R"($.content.m_cTone.m_dTone @22: expected a number, or "NaN", "Infinity" or "-Infinity")");
    for (const auto* const wrong : {"nan", "NaN(7FF0000000000000)", "NaN(7FF800000000000)", "NaN(7FF800000000000g)",
                                    "NaN[7FF8000000000000]", "+Infinity", ""}) {
        EXPECT_EQ(ErrorInPaint(R"({"m_cTone":{"m_dTone":")" + std::string(wrong) + "\"}}"),
                  R"($.content.m_cTone.m_dTone @22: expected a number, or "NaN", "Infinity" or "-Infinity")");
    }
}

TEST(FromJson, SaysWhichNumbersAFieldHolds) {
    struct {
        const char* field;
        const char* range;
        std::vector<const char*> beyond;
        std::vector<const char*> within;
    } const kFields[] = {
        {"m_chTone", "-128 to 127", {"-129", "128"}, {"-128", "127"}},
        {"m_shTone", "-32768 to 32767", {"-32769", "32768"}, {"-32768", "32767"}},
        {"m_lTone", "-2147483648 to 2147483647", {"-2147483649", "2147483648"}, {"-2147483648", "2147483647"}},
        {"m_nTone",
         "-9223372036854775808 to 9223372036854775807",
         {"-9223372036854775809", "9223372036854775808", "99999999999999999999999"},
         {"-9223372036854775808", "9223372036854775807"}},
        {"m_uchTone", "0 to 255", {"-1", "256", "1.0", "1e2", R"("1")"}, {"0", "-0", "255"}},
        {"m_ushTone", "0 to 65535", {"-1", "65536"}, {"0", "65535"}},
        {"m_ulTone", "0 to 4294967295", {"-1", "4294967296"}, {"0", "4294967295"}},
    };
    for (const auto& [field, range, beyond, within] : kFields) {
        const std::string start = R"({"m_cTone":{")" + std::string(field) + "\":";
        for (const char* const number : beyond) {
            EXPECT_EQ(ErrorInPaint(start + number + "}}"), "$.content.m_cTone." + std::string(field) + " @" +
                                                               std::to_string(start.size()) +
                                                               ": expected a whole number from " + range);
        }
        for (const char* const number : within) {
            const MessageFromJson read = FromJson("{\"content\":" + start + number + "}}}", kPaint);
            ASSERT_TRUE(read) << ErrorOf(read);
            const std::string expected = "\"" + std::string(field) + "\":" + (number[1] == '0' ? "0" : number);
            EXPECT_NE(ToJson(*read.message, kPaint).find(expected), std::string::npos) << expected;
        }
    }
    for (const auto* const number : {"1e309", "-1e999", "1e-400", "-0.001e-330"}) {
        EXPECT_EQ(ErrorInPaint(R"({"m_cTone":{"m_dTone":)" + std::string(number) + "}}"),
                  "$.content.m_cTone.m_dTone @22: expected a number that a double can hold");
    }
}

TEST(FromJson, SaysWhatIsOfAnotherSize) {
    EXPECT_EQ(ErrorInPaint(R"({"m_uchKey":[1,2]})"), "$.content.m_uchKey @16: expected an array of 3 elements");
    EXPECT_EQ(ErrorInPaint(R"({"m_uchKey":[1,2,3,4]})"), "$.content.m_uchKey[3] @19: expected an array of 3 elements");
    EXPECT_EQ(ErrorInPaint(R"({"m_uchKey":[1,2,3,[]]})"), "$.content.m_uchKey[3] @19: expected an array of 3 elements");
    EXPECT_EQ(ErrorInPaint(R"({"m_uchKey":[1,256,3]})"),
              "$.content.m_uchKey[1] @15: expected a whole number from 0 to 255");
    EXPECT_EQ(ErrorInPaint(R"({"m_cNames":["a"]})"),
              "$.content.m_cNames[0] @13: expected a pair: an array of key and value");
    EXPECT_EQ(ErrorInPaint(R"({"m_cNames":[["a"]]})"),
              "$.content.m_cNames[0] @17: expected a pair: an array of key and value");
    EXPECT_EQ(ErrorInPaint(R"({"m_cNames":[["a","b","c"]]})"),
              "$.content.m_cNames[0][2] @22: expected a pair: an array of key and value");
    EXPECT_EQ(ErrorInPaint(R"({"m_cNames":[["a",1]]})"),
              "$.content.m_cNames[0][1] @18: expected a text, or an object with its bytes");
}

TEST(FromJson, LimitsNesting) {
    const auto nested = [](int depth) {
        const auto length = static_cast<std::size_t>(depth);
        return R"({"content":{"x":)" + std::string(length, '[') + std::string(length, ']') + "}}";
    };
    EXPECT_EQ(ErrorIn(nested(62)), "$ @141: expected the member command");
    EXPECT_TRUE(ErrorIn(nested(63)).ends_with(" @78: nested deeper than 64 levels")) << ErrorIn(nested(63));
    EXPECT_TRUE(ErrorIn(nested(1'000'000)).ends_with(" @78: nested deeper than 64 levels"));
    std::string objects = R"({"content":)";
    for (int i = 0; i < 100'000; ++i) {
        objects += R"({"x":)";
    }
    EXPECT_TRUE(ErrorIn(objects).ends_with(": nested deeper than 64 levels")) << ErrorIn(objects);
}

TEST(FromJson, GivesUpAtAnyTruncation) {
    PaintInJson paint;
    paint.m_strCode = "\xFF";
    paint.m_cTones.AddTail(CKRMList<PaintTone>());
    paint.m_cNames.SetAt("a", "b");
    const std::string text = ToJson(paint, kPaint);
    ASSERT_TRUE(FromJson(text, kPaint));
    for (std::size_t length = 0; length < text.size(); ++length) {
        const MessageFromJson read = FromJson(text.substr(0, length), kPaint);
        EXPECT_FALSE(read) << text.substr(0, length);
        EXPECT_LE(read.error.offset, length) << text.substr(0, length);
    }
}

TEST(FromJson, ThrowsBadAllocAndLeaksNothing) {
    KRM_SKIP_WITHOUT_FAILING_ALLOCATIONS();
    CKRMCGetDTCCmdAdaptDataRcv answer;
    CKRMCCommandDTCData code;
    code.m_strDTCName = "a name that is longer than what a string holds inline";
    answer.Data.AddTail(code);
    const std::string text = ToJson(answer);
    int failures = 0;
    for (bool failed = true; failed; ++failures) {
        const long before = krm::test::LivingBlocks();
        failed = false;
        try {
            const krm::test::FailAllocations fail(failures);
            const MessageFromJson read = FromJson(text);
            static_cast<void>(static_cast<bool>(read));
        } catch (const std::bad_alloc&) {
            failed = true;
        }
        ASSERT_EQ(krm::test::LivingBlocks(), before);
    }
    EXPECT_GT(failures, 5);
}

}  // namespace
