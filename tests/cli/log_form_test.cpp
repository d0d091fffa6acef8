#include "cli/log_form.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

#include "cli/align.h"
#include "cli/log_input.h"
#include "cli/view_page.h"
#include "krm/exchange/compare.h"
#include "krm/fields/diag/freeze_frames.h"
#include "krm/fields/diag/trouble_codes.h"
#include "krm/framework/message.h"
#include "krm/messages/diag/freeze_frames.h"
#include "krm/messages/diag/trouble_codes.h"
#include "tests/cli/reading.h"
#include "tests/support/log_capture.h"

namespace {

using krm_cli::Align;
using krm_cli::LogForm;
using krm_cli::Pair;
using krm_cli::RebuiltMessage;
using krm_cli::ShapeOf;
using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::Not;

const krm::MessageDescription& GetDtcAnswer() {
    return *krm::FindMessage(1, 2, krm::Direction::Receive);
}

TEST(PathShape, HasNoIndices) {
    EXPECT_EQ(ShapeOf("Data[12].m_cList[3].m_a").path, "Data[].m_cList[].m_a");
    EXPECT_THAT(ShapeOf("Data[12].m_cList[3].m_a").indices, ElementsAre(12U, 3U));
    EXPECT_TRUE(ShapeOf("m_a").isGood);
    EXPECT_FALSE(ShapeOf("Data[x]").isGood);
    EXPECT_FALSE(ShapeOf("Data[1").isGood);
    EXPECT_FALSE(ShapeOf("Data[]").isGood);
    EXPECT_FALSE(ShapeOf("Data[").isGood);
}

TEST(LogForm, KnowsFieldsByTheirPathsInTheLog) {
    const LogForm& form = LogForm::Of(GetDtcAnswer());
    ASSERT_NE(form.Find("Data[].m_strDTC"), nullptr);
    EXPECT_EQ(form.Find("Data[].m_strDTC")->field, "Data[].m_strDTC");
    EXPECT_EQ(form.Find("Data[].m_uchSSRNo[]")->conversion, 'd');
    EXPECT_EQ(form.Find("m_bNotSupport")->field, "m_bNotSupport");
    EXPECT_EQ(form.Find("Data[].nothing"), nullptr);
    const LogForm& errors = LogForm::Of(*krm::FindMessage(1, 39, krm::Direction::Receive));
    ASSERT_NE(errors.Find("Data[].a_ulReturnCode"), nullptr);
    EXPECT_EQ(errors.Find("Data[].a_ulReturnCode")->field, "Data[].m_cError.a_ulReturnCode");
}

TEST(LogForm, KnowsARecordThatTheLogHasNoNameFor) {
    const LogForm& form = LogForm::Of(*krm::FindMessage(1, 10, krm::Direction::Receive));
    ASSERT_NE(form.Find("m_ushCarTypeOptionIndex"), nullptr);
    EXPECT_EQ(form.Find("m_ushCarTypeOptionIndex")->field, "m_cCarTypeOption.m_ushCarTypeOptionIndex");
    EXPECT_EQ(form.Find("m_cCarTypeOption.m_ushCarTypeOptionIndex"), nullptr);
}

TEST(LogForm, KnowsWhatIsNotInTheLog) {
    const LogForm& form = LogForm::Of(*krm::FindMessage(1, 109, krm::Direction::Receive));
    EXPECT_THAT(form.NotLogged(), Contains("Data[*].m_strDtcFfdText"));
    EXPECT_THAT(form.NotLogged(), Contains("Data[*].m_cTripTime"));
    EXPECT_THAT(form.NotLogged(), Not(Contains("Data[*].m_strDTC")));
}

TEST(RebuiltMessage, HasWhatTheLinesSay) {
    RebuiltMessage message(GetDtcAnswer());
    message.Take({"m_dwCommandType", "1"});
    message.Take({"m_bNotSupport", "1"});
    message.Take({"Data[0].m_strDTC", "P0301"});
    message.Take({"Data[0].m_uchSSRNo[0]", "7"});
    message.Take({"Data[0].m_uchSSRNo[1]", "8"});
    message.Take({"Data[1].m_ulDTCCode", "-1"});
    message.Take({"m_ulReadynessStatus", "5"});
    CKRMCGetDTCCmdAdaptDataRcv expected;
    expected.m_bNotSupport = true;
    CKRMCCommandDTCData code;
    code.m_strDTC = "P0301";
    code.m_uchSSRNo.AddTail(7);
    code.m_uchSSRNo.AddTail(8);
    expected.Data.AddTail(code);
    CKRMCCommandDTCData other;
    other.m_ulDTCCode = 0xFFFFFFFFU;
    expected.Data.AddTail(other);
    expected.m_ulReadynessStatus = 5;
    EXPECT_THAT(message.Rests(), IsEmpty());
    EXPECT_EQ(krm::ToText(krm::Compare(krm::ConstValue(krm::kTypeDescription<CKRMCGetDTCCmdAdaptDataRcv>, &expected),
                                       message.Content())),
              "");
}

TEST(RebuiltMessage, KeepsWhatHasNoPlace) {
    RebuiltMessage message(GetDtcAnswer());
    message.Take({"Data[0].m_strDTC", "P0301"});
    message.Take({"Data[2].m_strDTC", "P0302"});  // a line is missing
    message.Take({"Data[4000000000].m_strDTC", "P0302"});
    message.Take({"nothing", "1"});
    message.Take({"m_bDTCType", "x"});
    message.Take({"m_bDTCType", "2"});
    message.Take({"m_ulReadynessStatus", "4294967296000"});
    message.Take({"Data[0].m_strComment", "cut", 1, 5});
    ASSERT_EQ(message.Rests().size(), 7U);
    EXPECT_EQ(message.Rests()[0].path, "Data[2].m_strDTC");
    EXPECT_EQ(message.Rests()[6].value, "cut");
}

// A text of the library ends at its first NUL.
TEST(RebuiltMessage, TakesNoTextWithANul) {
    RebuiltMessage message(GetDtcAnswer());
    message.Take({"Data[0].m_strDTC", std::string_view("P\0"
                                                       "0301",
                                                       6)});
    ASSERT_EQ(message.Rests().size(), 1U);
    EXPECT_EQ(message.Rests()[0].value, std::string("P\0"
                                                    "0301",
                                                    6));
}

// 32 bits of a number, whether the line has them with a sign or without.
TEST(RebuiltMessage, TakesANumberOfEitherSign) {
    RebuiltMessage message(*krm::FindMessage(1, 6, krm::Direction::Receive));
    message.Take({"m_lBegin", "4294967294"});
    message.Take({"m_lEnd", "2147483648"});
    EXPECT_THAT(message.Rests(), IsEmpty());
    message.Take({"m_lEnd", "4294967296"});
    message.Take({"m_lEnd", "-2147483649"});
    EXPECT_EQ(message.Rests().size(), 2U);
    CKRMCGetFFDCmdAdaptDataRcv expected;
    expected.m_lBegin = -2;
    expected.m_lEnd = -2147483647 - 1;
    EXPECT_EQ(krm::ToText(krm::Compare(krm::ConstValue(krm::kTypeDescription<CKRMCGetFFDCmdAdaptDataRcv>, &expected),
                                       message.Content())),
              "");
}

TEST(RebuiltMessage, TakesNoTextForANumber) {
    RebuiltMessage message(GetDtcAnswer());
    message.Take({"m_ulReadynessStatus", "3(a)"});
    message.Take({"m_ulReadynessStatus", "3(3"});
    EXPECT_EQ(message.Rests().size(), 2U);
    message.Take({"m_ulReadynessStatus", "-1(4294967295)"});
    EXPECT_EQ(message.Rests().size(), 2U);
    CKRMCGetDTCCmdAdaptDataRcv expected;
    expected.m_ulReadynessStatus = 0xFFFFFFFFU;
    EXPECT_EQ(krm::ToText(krm::Compare(krm::ConstValue(krm::kTypeDescription<CKRMCGetDTCCmdAdaptDataRcv>, &expected),
                                       message.Content())),
              "");
}

/// A message with a different value in every field, as far as it goes, and two elements in every list.
void Fill(krm::Value value, int& next) {
    switch (value.Kind()) {
        case krm::ValueKind::Record:
            value.ForEachField([&](std::string_view, krm::Value field) { Fill(field, next); });
            return;
        case krm::ValueKind::List:
            for (int i = 0; i < 2; ++i) {
                Fill(*value.Append(), next);
            }
            return;
        case krm::ValueKind::Array:
            value.ForEachElement([&](krm::Value element) { Fill(element, next); });
            return;
        default:
            break;
    }
    next = next % 100 + 1;
    if (auto* const text = value.As<CKRMString>()) {
        *text = ("text " + std::to_string(next)).c_str();
    } else if (auto* const number = value.As<double>()) {
        *number = next + 0.25;
    } else if (!value.SetInteger(next)) {
        value.SetInteger(1);
    }
}

// Every message's own dump, read and made anew, is what it was, but for what isn't in the log.
TEST(RebuiltMessage, IsTheMessageThatWasLogged) {
    int read = 0;
    int silent = 0;
    for (const krm::MessageDescription& description : krm::AllMessages()) {
        const std::unique_ptr<CKRMBaseAdaptationData> message = description.create();
        auto* const logged = dynamic_cast<krm::LoggedMessage*>(message.get());
        if (logged == nullptr) {
            continue;  // the viewer's have no dump
        }
        int next = 0;
        Fill(*description.ContentOf(*message), next);
        krm::test::LogCapture log;
        logged->ErrWriteOperationLog();
        std::string text;
        for (const std::string& line : log.Texts()) {
            text += line + '\n';
        }
        if (std::string_view(description.className).find("DsdiAdaptData") != std::string_view::npos) {
            EXPECT_EQ(text, "") << description.className;  // stored data isn't dumped
            ++silent;
            continue;
        }
        krm::test::Reading reading(text);
        krm_cli::LogInput input(reading.Source());
        RebuiltMessage rebuilt(description);
        for (krm_cli::Event event = input.Next(); event != krm_cli::Event::Finished; event = input.Next()) {
            ASSERT_NE(event, krm_cli::Event::Other) << input.Other().text;
            if (event == krm_cli::Event::Field) {
                rebuilt.Take(input.Field());
            }
        }
        EXPECT_EQ(input.Totals().messages, 1U) << description.className;
        krm::CompareOptions options;
        options.ignore = LogForm::Of(description).NotLogged();
        EXPECT_EQ(krm::ToText(krm::Compare(*description.ContentOf(static_cast<const CKRMBaseAdaptationData&>(*message)),
                                           rebuilt.Content(), options)),
                  "")
            << description.className;
        ++read;
    }
    EXPECT_EQ(read, 144);
    EXPECT_EQ(silent, 4);
}

TEST(Align, PairsWhatIsEqual) {
    EXPECT_THAT(Align({}, {}), IsEmpty());
    EXPECT_THAT(Align({1, 2}, {1, 2}), ElementsAre(Pair{0, 0}, Pair{1, 1}));
    EXPECT_THAT(Align({1, 2, 3}, {1, 3}), ElementsAre(Pair{0, 0}, Pair{1, std::nullopt}, Pair{2, 1}));
    EXPECT_THAT(Align({1, 3}, {1, 2, 3}), ElementsAre(Pair{0, 0}, Pair{std::nullopt, 1}, Pair{1, 2}));
    EXPECT_THAT(Align({1}, {2}), ElementsAre(Pair{0, std::nullopt}, Pair{std::nullopt, 0}));
    EXPECT_THAT(Align({1}, {}), ElementsAre(Pair{0, std::nullopt}));
    EXPECT_THAT(Align({}, {1}), ElementsAre(Pair{std::nullopt, 0}));
}

/// Whether the pairs have each element once, in order, and pair equal ones; and how many they pair.
std::size_t CountPaired(const std::vector<std::uint64_t>& first, const std::vector<std::uint64_t>& second,
                        const std::vector<Pair>& pairs) {
    std::size_t x = 0;
    std::size_t y = 0;
    std::size_t paired = 0;
    for (const Pair& pair : pairs) {
        EXPECT_TRUE(pair.first || pair.second);
        EXPECT_TRUE(!pair.first || *pair.first == x);
        EXPECT_TRUE(!pair.second || *pair.second == y);
        if (pair.first && pair.second) {
            EXPECT_EQ(first[x], second[y]);
            ++paired;
        }
        x += pair.first ? 1 : 0;
        y += pair.second ? 1 : 0;
    }
    EXPECT_EQ(x, first.size());
    EXPECT_EQ(y, second.size());
    return paired;
}

TEST(Align, PairsAsManyAsThereAre) {
    std::uint32_t random = 1;
    const auto next = [&](std::uint32_t most) { return (random = random * 1664525U + 1013904223U) / 65536U % most; };
    for (int round = 0; round < 300; ++round) {
        std::vector<std::uint64_t> first(next(12));
        std::vector<std::uint64_t> second(next(12));
        std::generate(first.begin(), first.end(), [&] { return next(4); });
        std::generate(second.begin(), second.end(), [&] { return next(4); });
        // The longest common subsequence by its definition.
        std::vector<std::vector<std::size_t>> longest(first.size() + 1, std::vector<std::size_t>(second.size() + 1));
        for (std::size_t i = first.size(); i-- > 0;) {
            for (std::size_t j = second.size(); j-- > 0;) {
                longest[i][j] =
                    first[i] == second[j] ? longest[i + 1][j + 1] + 1 : std::max(longest[i + 1][j], longest[i][j + 1]);
            }
        }
        EXPECT_EQ(CountPaired(first, second, Align(first, second)), longest[0][0]);
        CountPaired(first, second, Align(first, second, 2));
        CountPaired(first, second, Align(first, second, 1));
    }
}

TEST(Align, GoesOnBehindManyDifferences) {
    std::vector<std::uint64_t> first(5000, 1);
    std::vector<std::uint64_t> second(5000, 2);
    first.push_back(3);
    second.push_back(3);
    EXPECT_LE(CountPaired(first, second, Align(first, second, 100)), 1U);
}

TEST(ViewPage, HasNamesThatEndNoElement) {
    EXPECT_EQ(krm_cli::NameForPage("a.log"), "\"a.log\"");
    EXPECT_EQ(krm_cli::NameForPage("</script>&\"\n\xE2\x80\xA8"),
              "\"\\u003C/script\\u003E\\u0026\\\"\\\\x0A\\\\u2028\"");
}

TEST(ViewPage, HasBytesAsBase64) {
    const auto encoded = [](const std::vector<std::string>& pieces) {
        krm_cli::Base64 base64;
        std::string text;
        for (const std::string& piece : pieces) {
            base64.Take(piece, text);
        }
        base64.End(text);
        return text;
    };
    EXPECT_EQ(encoded({""}), "");
    EXPECT_EQ(encoded({"f"}), "Zg==");
    EXPECT_EQ(encoded({"f", "o"}), "Zm8=");
    EXPECT_EQ(encoded({"fo", "obar"}), "Zm9vYmFy");
    EXPECT_EQ(encoded({std::string("\xFF\xFE\x00", 3)}), "//4A");
}

}  // namespace
