#include "krm/exchange/player.h"

#include <gmock/gmock.h>

#include <atomic>
#include <filesystem>
#include <initializer_list>
#include <limits>
#include <memory>
#include <sstream>
#include <string>
#include <string_view>
#include <thread>
#include <utility>
#include <vector>

#include "krm/core/list_tools.h"
#include "krm/exchange/compare.h"
#include "krm/exchange/json.h"
#include "krm/exchange/recording.h"
#include "krm/fields/diag/trouble_codes.h"
#include "krm/fields/message_descriptions.h"
#include "krm/framework/message.h"
#include "krm/messages/diag/translation.h"
#include "krm/messages/diag/trouble_codes.h"
#include "krm/platform/string.h"
#include "tests/exchange/random_content.h"
#include "tests/exchange/recording_text.h"
#include "tests/support/folder.h"
#include "tests/support/not_under.h"

/// A request of a program's own, with a double.
class PlayedTone : public krm::MessageOf<PlayedTone, CKRMCBaseCmdAdaptDataSnd, krm::CommandName("FindTone", 902)> {
public:
    void Dump(const krm::MessageLines&) {}

    double m_dTone = 0;
    CKRMMap<CKRMString, CKRMString> m_cNames;
};
template <>
struct krm::Fields<PlayedTone> : krm::FieldList<&PlayedTone::m_dTone, &PlayedTone::m_cNames> {};

class PlayedToneAnswer
    : public krm::MessageOf<PlayedToneAnswer, CKRMCBaseCmdAdaptDataRcv, krm::CommandName("FindTone", 902)> {
public:
    void Dump(const krm::MessageLines&) {}

    CKRMString m_strTone;
};
template <>
struct krm::Fields<PlayedToneAnswer> : krm::FieldList<&PlayedToneAnswer::m_strTone> {};

namespace {

using ::testing::ElementsAre;
using ::testing::EndsWith;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

using krm::PlayedAnswer;
using krm::Player;
using krm::PlayerOptions;
using krm::Recorder;
using krm::test::Into;
using krm::test::kHeader;
using krm::test::TickingClock;

using Clear = CKRMCClearDTCCmdAdaptDataSnd;
using Codes = CKRMCGetDTCCmdAdaptDataSnd;

Clear ClearRequest(krm_ulong ecu = 2016) {
    Clear request;
    request.m_ulEcuId = ecu;
    return request;
}
Codes CodesRequest(krm_ulong ecu = 2016, unsigned char phase = 0) {
    Codes request;
    request.m_ulEcuId = ecu;
    request.m_uchPhaseType = phase;
    return request;
}
CKRMCGetTranslationStringCmdAdaptDataSnd TextsRequest(std::initializer_list<krm_ulong> ids) {
    CKRMCGetTranslationStringCmdAdaptDataSnd request;
    krm::Append(request.m_ulIdList, ids);
    return request;
}
/// Of trouble codes; the answers differ in their number.
CKRMCGetDTCCmdAdaptDataRcv CodesAnswer(int count) {
    CKRMCGetDTCCmdAdaptDataRcv answer;
    for (int i = 0; i < count; ++i) {
        CKRMCCommandDTCData code;
        code.m_strDTC = krm::MakeString("P03" + std::to_string(10 + i));
        answer.Data.AddTail(code);
    }
    return answer;
}

/// A recording that is made message by message and then played.
class Tape {
public:
    template <class Request, class Answer>
    Tape& Add(const Request& request, const Answer& answer) {
        const std::uint64_t exchange = recorder.BeginExchange();
        EXPECT_TRUE(recorder.Write(exchange, request));
        EXPECT_TRUE(recorder.Write(exchange, answer));
        return *this;
    }
    template <class Request>
    Tape& AddUnanswered(const Request& request) {
        EXPECT_TRUE(recorder.Write(recorder.BeginExchange(), request));
        return *this;
    }
    Player Play(PlayerOptions options = {}) {
        stream = std::make_unique<std::istringstream>(text);
        return Player(*stream, std::move(options));
    }

    std::string text;
    std::unique_ptr<std::istringstream> stream;
    Recorder recorder{Into(text), TickingClock()};
};

/// "exchange: number of codes" of an answer of trouble codes; "exchange: error" where there is none.
std::string Asked(Player& player, const CKRMBaseAdaptationData& request) {
    const PlayedAnswer played = player.Answer(request);
    EXPECT_EQ(static_cast<bool>(played), played.error.empty());
    const auto* const codes = played.As<CKRMCGetDTCCmdAdaptDataRcv>();
    return std::to_string(played.exchange) + ": " +
           (codes != nullptr ? std::to_string(codes->Data.GetCount())
            : played         ? std::string(played.description->className)
                             : played.error);
}

TEST(Player, AnswersEqualRequestsInRecordedOrder) {
    Tape tape;
    tape.Add(CodesRequest(), CodesAnswer(2)).Add(ClearRequest(), CKRMCClearDTCCmdAdaptDataRcv());
    tape.Add(CodesRequest(), CodesAnswer(0)).Add(CodesRequest(2017), CodesAnswer(5));
    Player player = tape.Play();
    EXPECT_EQ(player.Error(), "");
    EXPECT_THAT(player.Faults(), IsEmpty());
    EXPECT_EQ(player.FaultCount(), 0U);
    EXPECT_EQ(player.Count(), 4U);
    EXPECT_EQ(Asked(player, CodesRequest()), "1: 2");
    EXPECT_EQ(Asked(player, ClearRequest()), "2: CKRMCClearDTCCmdAdaptDataRcv");
    EXPECT_EQ(Asked(player, CodesRequest()), "3: 0");
    EXPECT_EQ(Asked(player, CodesRequest(2017)), "4: 5");
}

TEST(Player, AnswersInAnyOrderOfDifferentRequests) {
    Tape tape;
    for (int i = 0; i < 50; ++i) {
        tape.Add(CodesRequest(static_cast<krm_ulong>(i % 7)), CodesAnswer(i));
    }
    Player player = tape.Play();
    krm::test::Seed random(7);
    std::vector<int> turns(7);
    for (int i = 0; i < 200; ++i) {
        const std::uint32_t ecu = random.Next() % 7;
        const int asked = static_cast<int>(ecu) + 7 * turns[ecu];
        const int expected = asked < 50 ? asked : asked - 7;  // the last again
        turns[ecu] += asked < 50 ? 1 : 0;
        ASSERT_EQ(Asked(player, CodesRequest(ecu)), std::to_string(expected + 1) + ": " + std::to_string(expected));
    }
}

TEST(Player, CountsExchangesAndRequestsBeyond16Bits) {
    KRM_NOT_UNDER(Memcheck, "70,000 exchanges would take minutes");
    constexpr krm_ulong kExchanges = 70'000;
    Tape tape;
    for (krm_ulong ecu = 0; ecu < kExchanges; ++ecu) {
        tape.Add(ClearRequest(ecu), CKRMCClearDTCCmdAdaptDataRcv());
    }
    tape.Add(ClearRequest(3), CKRMCClearDTCCmdAdaptDataRcv());
    Player player = tape.Play();
    EXPECT_EQ(player.Count(), kExchanges + 1);
    EXPECT_EQ(Asked(player, ClearRequest(65'538)), "65539: CKRMCClearDTCCmdAdaptDataRcv");
    EXPECT_EQ(Asked(player, ClearRequest(3)), "4: CKRMCClearDTCCmdAdaptDataRcv");
    EXPECT_EQ(Asked(player, ClearRequest(3)), "70001: CKRMCClearDTCCmdAdaptDataRcv");
    EXPECT_EQ(Asked(player, ClearRequest(69'999)), "70000: CKRMCClearDTCCmdAdaptDataRcv");
}

TEST(Player, GivesTheLastAnswerAgainOrAnErrorWhenUsedUp) {
    Tape tape;
    tape.Add(CodesRequest(), CodesAnswer(2)).Add(CodesRequest(), CodesAnswer(1));
    Player again = tape.Play();
    EXPECT_EQ(Asked(again, CodesRequest()), "1: 2");
    for (int i = 0; i < 3; ++i) {
        EXPECT_EQ(Asked(again, CodesRequest()), "2: 1");
    }
    Player failing = tape.Play({.usedUp = PlayerOptions::UsedUp::Fail});
    EXPECT_EQ(Asked(failing, CodesRequest()), "1: 2");
    EXPECT_EQ(Asked(failing, CodesRequest()), "2: 1");
    for (int i = 0; i < 3; ++i) {
        EXPECT_EQ(Asked(failing, CodesRequest()),
                  "0: this GetDTC request was recorded 2 times, and as often it has been answered");
    }
}

TEST(Player, NamesTheNearestRequestWhenNoneIsEqual) {
    Tape tape;
    tape.Add(CodesRequest(2016, 1), CodesAnswer(0)).Add(CodesRequest(2017, 2), CodesAnswer(0));
    tape.Add(CodesRequest(2018, 2), CodesAnswer(0));
    Player player = tape.Play();
    EXPECT_EQ(Asked(player, ClearRequest()), "0: no ClearDTC request was recorded");
    EXPECT_EQ(Asked(player, CodesRequest(2016, 5)),
              "0: no equal GetDTC request was recorded; the nearest is that of exchange 1: "
              "changed m_uchPhaseType: 1 -> 5");
    EXPECT_EQ(Asked(player, CodesRequest(2019, 2)),
              "0: no equal GetDTC request was recorded; the nearest is that of exchange 2: "
              "changed m_ulEcuId: 2017 -> 2019");
    EXPECT_EQ(Asked(player, CodesRequest(1, 3)),
              "0: no equal GetDTC request was recorded; the nearest is that of exchange 1: "
              "changed m_ulEcuId: 2016 -> 1; changed m_uchPhaseType: 1 -> 3");
    // Nothing of that used up a turn.
    EXPECT_EQ(Asked(player, CodesRequest(2016, 1)), "1: 0");
}

TEST(Player, KnowsExchangesByNumbersOf64Bits) {
    Tape tape;
    tape.recorder.Write(4294967298U, CodesRequest(2016, 1));
    tape.recorder.Write(4294967298U, CodesAnswer(7));
    Player player = tape.Play();
    EXPECT_EQ(Asked(player, CodesRequest(2016, 1)), "4294967298: 7");
    EXPECT_EQ(Asked(player, CodesRequest(2016, 2)),
              "0: no equal GetDTC request was recorded; the nearest is that of exchange 4294967298: "
              "changed m_uchPhaseType: 1 -> 2");
}

TEST(Player, TellsAFewDifferencesAndNoLongTexts) {
    Tape tape;
    tape.Add(CKRMCGetTranslationStringCmdAdaptDataSnd(), CKRMCGetTranslationStringCmdAdaptDataRcv());
    Player player = tape.Play();
    EXPECT_EQ(player.Answer(TextsRequest({0, 1, 2, 3, 4, 5, 6, 7, 8})).error,
              "no equal GetTranslationString request was recorded; the nearest is that of exchange 1: "
              "added m_ulIdList[0]: 0; added m_ulIdList[1]: 1; added m_ulIdList[2]: 2; added m_ulIdList[3]: 3; "
              "added m_ulIdList[4]: 4; and 4 more");

    PlayedTone tone;
    Tape ofTones;
    const std::uint64_t exchange = ofTones.recorder.BeginExchange();
    ofTones.recorder.Write(exchange, tone, krm::kMessageDescription<PlayedTone>);
    const krm::MessageDescription own[] = {krm::kMessageDescription<PlayedTone>};
    Player ofOwn = ofTones.Play({.reading = {.ownMessages = own}});
    std::string text;
    for (int i = 0; i < 300; ++i) {
        text += "\xC3\xA9";
    }
    tone.m_cNames.SetAt("a", text.c_str());
    const std::string error = ofOwn.Answer(tone).error;
    EXPECT_THAT(error, HasSubstr("exchange 1: added m_cNames[\"a\"]: \"\xC3\xA9"));
    EXPECT_THAT(error, EndsWith("\xC3\xA9..."));
    EXPECT_LT(error.size(), 300U);
}

TEST(Player, LeavesFieldsOut) {
    Tape tape;
    tape.Add(CodesRequest(2016, 1), CodesAnswer(1)).Add(CodesRequest(2016, 2), CodesAnswer(2));
    tape.Add(CodesRequest(2017, 1), CodesAnswer(3)).Add(ClearRequest(), CKRMCClearDTCCmdAdaptDataRcv());
    Player player = tape.Play({.usedUp = PlayerOptions::UsedUp::Fail, .leaveOut = {"m_uchPhase*"}});
    EXPECT_EQ(player.Error(), "");
    EXPECT_EQ(Asked(player, CodesRequest(2016, 9)), "1: 1");
    EXPECT_EQ(Asked(player, CodesRequest(2017, 9)), "3: 3");
    EXPECT_EQ(Asked(player, CodesRequest(2016, 1)), "2: 2");
    EXPECT_EQ(Asked(player, ClearRequest()), "4: CKRMCClearDTCCmdAdaptDataRcv");
    EXPECT_EQ(Asked(player, CodesRequest(1, 9)),
              "0: no equal GetDTC request was recorded; the nearest is that of exchange 1: "
              "changed m_ulEcuId: 2016 -> 1");
}

TEST(Player, LeavesElementsOut) {
    Tape tape;
    tape.Add(TextsRequest({1, 2, 3}), CodesAnswer(1)).Add(TextsRequest({4, 5, 6}), CodesAnswer(2));
    Player one = tape.Play({.leaveOut = {"m_ulIdList[1]"}});
    EXPECT_EQ(Asked(one, TextsRequest({4, 77, 6})), "2: 2");
    EXPECT_EQ(Asked(one, TextsRequest({1, 77, 3})), "1: 1");
    EXPECT_THAT(Asked(one, TextsRequest({1, 3})),
                HasSubstr("the nearest is that of exchange 1: removed m_ulIdList[2]: 3"));
    Player all = tape.Play({.leaveOut = {"m_ulIdList[*]"}});
    EXPECT_EQ(Asked(all, TextsRequest({})), "1: 1");
    EXPECT_EQ(Asked(all, TextsRequest({9, 9, 9, 9})), "2: 2");
}

TEST(Player, SaysWhatIsWrongWithAPattern) {
    Tape tape;
    tape.Add(CodesRequest(), CodesAnswer(1));
    EXPECT_EQ(tape.Play({.leaveOut = {"m_uchPhaseType", "m_ushColour"}}).Error(),
              "no request has what \"m_ushColour\" names");
    EXPECT_THAT(tape.Play({.leaveOut = {"m_uchPhaseType["}}).Error(), HasSubstr("m_uchPhaseType["));
    Player player = tape.Play({.leaveOut = {"m_ushColour"}});
    EXPECT_EQ(player.Answer(CodesRequest()).error, "no request has what \"m_ushColour\" names");
    // That the recording lacks such a request is nothing wrong.
    EXPECT_EQ(tape.Play({.leaveOut = {"m_uchFFDId"}}).Error(), "");
}

TEST(Player, KeepsTheTurnOfARequestThatStayedWithoutAnswer) {
    Tape tape;
    tape.Add(CodesRequest(), CodesAnswer(2)).AddUnanswered(CodesRequest()).Add(CodesRequest(), CodesAnswer(1));
    tape.AddUnanswered(CodesRequest()).AddUnanswered(ClearRequest());
    Player player = tape.Play();
    EXPECT_EQ(player.Count(), 5U);
    EXPECT_EQ(Asked(player, CodesRequest()), "1: 2");
    EXPECT_EQ(Asked(player, CodesRequest()), "2: exchange 2: the recorded GetDTC request has no answer");
    EXPECT_EQ(Asked(player, CodesRequest()), "3: 1");
    EXPECT_EQ(Asked(player, CodesRequest()), "4: exchange 4: the recorded GetDTC request has no answer");
    EXPECT_EQ(Asked(player, CodesRequest()), "3: 1");
    EXPECT_EQ(Asked(player, ClearRequest()), "5: exchange 5: the recorded ClearDTC request has no answer");
    EXPECT_EQ(Asked(player, ClearRequest()), "5: exchange 5: the recorded ClearDTC request has no answer");
}

TEST(Player, FindsTheRequestOfAnAnswerByTheExchange) {
    Tape tape;
    tape.recorder.Write(1, CodesRequest(2016));
    tape.recorder.Write(2, CodesRequest(2017));
    tape.recorder.Write(2, CodesAnswer(7));
    tape.recorder.Write(1, CodesAnswer(6));
    // A recording that another one was put behind begins to count again.
    tape.recorder.Write(1, CodesRequest(2018));
    tape.recorder.Write(1, CodesAnswer(8));
    tape.recorder.Write(1, CodesAnswer(9));
    tape.recorder.Write(5, CodesAnswer(10));
    Player player = tape.Play();
    EXPECT_EQ(Asked(player, CodesRequest(2016)), "1: 6");
    EXPECT_EQ(Asked(player, CodesRequest(2017)), "2: 7");
    EXPECT_EQ(Asked(player, CodesRequest(2018)), "1: 8");
    ASSERT_EQ(player.FaultCount(), 2U);
    EXPECT_THAT(krm::ToText(player.Faults()[0]), HasSubstr("line 8, offset "));
    EXPECT_THAT(krm::ToText(player.Faults()[0]),
                EndsWith(", $.exchange: the answer belongs to no request: none of exchange 1 waits for one"));
    EXPECT_THAT(krm::ToText(player.Faults()[1]), EndsWith("none of exchange 5 waits for one"));
}

TEST(Player, PlaysTheRestWhereTheLastLineIsTorn) {
    Tape tape;
    tape.Add(CodesRequest(), CodesAnswer(2)).Add(CodesRequest(), CodesAnswer(1));
    tape.text.resize(tape.text.size() - 20);
    Player player = tape.Play();
    EXPECT_EQ(player.Error(), "");
    ASSERT_EQ(player.FaultCount(), 1U);
    EXPECT_TRUE(player.Faults()[0].torn);
    EXPECT_EQ(player.Faults()[0].line, 5U);
    EXPECT_EQ(Asked(player, CodesRequest()), "1: 2");
    EXPECT_EQ(Asked(player, CodesRequest()), "2: exchange 2: the recorded GetDTC request has no answer");
    EXPECT_EQ(Asked(player, CodesRequest()), "1: 2");
}

TEST(Player, SaysWhatIsWrongWithAnAnswerWhenItIsAskedFor) {
    Tape tape;
    tape.Add(CodesRequest(), CodesAnswer(0)).Add(CodesRequest(), CodesAnswer(1));
    const std::string_view wrong = "m_bNotSupport\":5,    \"";
    const std::size_t begin = tape.text.find("m_bNotSupport\":false,\"");
    tape.text.replace(begin, wrong.size(), wrong);
    Player player = tape.Play();
    EXPECT_EQ(player.FaultCount(), 0U);
    EXPECT_EQ(Asked(player, CodesRequest()), "1: exchange 1: line 3, offset " + std::to_string(begin + 15) +
                                                 ", $.message.content.m_bNotSupport: expected true or false");
    EXPECT_EQ(Asked(player, CodesRequest()), "2: 1");
}

TEST(Player, KeepsTheFirstFaults) {
    Tape tape;
    for (std::size_t i = 0; i < krm::kMaxKeptFaults + 50; ++i) {
        tape.text += "nonsense\n";
    }
    tape.Add(CodesRequest(), CodesAnswer(1));
    Player player = tape.Play();
    EXPECT_EQ(player.FaultCount(), krm::kMaxKeptFaults + 50);
    EXPECT_EQ(player.Faults().size(), krm::kMaxKeptFaults);
    EXPECT_EQ(player.Faults().back().line, krm::kMaxKeptFaults + 1);
    EXPECT_EQ(Asked(player, CodesRequest()), "1: 1");
}

TEST(Player, SaysWhatCannotBePlayed) {
    const krm::test::TestFolder folder;
    EXPECT_EQ(Player(std::filesystem::path(folder.Path("missing"))).Error(),
              "the file can't be opened: No such file or directory");
    Player player{std::filesystem::path(folder.Write("r", "nonsense\n"))};
    EXPECT_EQ(player.Error(), "line 1, offset 0: the file is no recording");
    const PlayedAnswer played = player.Answer(CodesRequest());
    EXPECT_FALSE(played);
    EXPECT_EQ(played.error, "line 1, offset 0: the file is no recording");
    EXPECT_EQ(player.Count(), 0U);
}

TEST(Player, KnowsRequestsByNumbersOf32Bits) {
    Tape tape;
    tape.Add(ClearRequest(), CKRMCClearDTCCmdAdaptDataRcv());
    Player player = tape.Play();
    Clear request = ClearRequest();
    request.SetCommandID(65536 + 5);
    EXPECT_EQ(player.Answer(request).error, "there is no request of type 1, ID 65541");
    request.SetCommandID(5);
    request.SetCommandType(65536 + 1);
    EXPECT_EQ(player.Answer(request).error, "there is no request of type 65537, ID 5");
    EXPECT_EQ(player.Answer(ClearRequest()).error, "");
}

TEST(Player, PlaysAFile) {
    const krm::test::TestFolder folder;
    Tape tape;
    tape.Add(CodesRequest(), CodesAnswer(3));
    Player player{std::filesystem::path(folder.Write("r", "\xEF\xBB\xBF" + tape.text))};
    EXPECT_EQ(Asked(player, CodesRequest()), "1: 3");
    Player moved = std::move(player);
    EXPECT_EQ(Asked(moved, CodesRequest()), "1: 3");
}

TEST(Player, PlaysAStreamFromWhereItIs) {
    Tape tape;
    tape.Add(CodesRequest(), CodesAnswer(3));
    std::istringstream in("something else\n" + tape.text);
    in.seekg(15);
    Player player(in);
    EXPECT_EQ(Asked(player, CodesRequest()), "1: 3");
}

TEST(Player, CopiesTheAnswer) {
    Tape tape;
    tape.Add(CodesRequest(), CodesAnswer(3)).Add(ClearRequest(), CodesAnswer(1));
    Player player = tape.Play();
    CKRMCGetDTCCmdAdaptDataRcv answer;
    EXPECT_EQ(player.Answer(CodesRequest(), answer), "");
    EXPECT_TRUE(krm::Compare(answer, CodesAnswer(3)).Equal());
    CKRMCClearDTCCmdAdaptDataRcv cleared;
    cleared.m_ulResult = 7;
    EXPECT_EQ(player.Answer(ClearRequest(), cleared),
              "the recorded answer is of another class: CKRMCGetDTCCmdAdaptDataRcv");
    EXPECT_EQ(cleared.m_ulResult, 7U);
    EXPECT_EQ(player.Answer(CodesRequest(1), answer).substr(0, 38), "no equal GetDTC request was recorded; ");
    EXPECT_EQ(answer.Data.GetCount(), 3);
}

TEST(Player, PlaysAProgramsOwnMessages) {
    constexpr const krm::MessageDescription& kTone = krm::kMessageDescription<PlayedTone>;
    PlayedTone request;
    PlayedToneAnswer answer;
    answer.m_strTone = "grey";
    request.m_dTone = -0.0;
    Tape tape;
    tape.recorder.Write(1, request, kTone);
    tape.recorder.Write(1, answer, krm::kMessageDescription<PlayedToneAnswer>);
    request.m_dTone = std::numeric_limits<double>::quiet_NaN();
    answer.m_strTone = "none";
    tape.recorder.Write(2, request, kTone);
    tape.recorder.Write(2, answer, krm::kMessageDescription<PlayedToneAnswer>);

    EXPECT_EQ(tape.Play().FaultCount(), 4U);
    EXPECT_EQ(tape.Play().Answer(request).error, "there is no request of type 1, ID 902");

    const krm::MessageDescription own[] = {kTone, krm::kMessageDescription<PlayedToneAnswer>};
    Player player = tape.Play({.leaveOut = {"m_cNames[\"note\"]"}, .reading = {.ownMessages = own}});
    EXPECT_EQ(player.Error(), "");
    // Equal is what Compare calls so.
    request.m_dTone = 0.0;
    request.m_cNames.SetAt("note", "left out");
    EXPECT_EQ(player.Answer(request, answer), "");
    EXPECT_EQ(answer.m_strTone, "grey");
    request.m_dTone = -std::numeric_limits<double>::quiet_NaN();
    EXPECT_EQ(player.Answer(request, answer), "");
    EXPECT_EQ(answer.m_strTone, "none");
    request.m_cNames.SetAt("name", "counts");
    EXPECT_EQ(player.Answer(request).error,
              "no equal FindTone request was recorded; the nearest is that of exchange 2: "
              "added m_cNames[\"name\"]: \"counts\"");
}

TEST(Player, TellsTextsOfOneLengthApart) {
    constexpr const krm::MessageDescription& kTone = krm::kMessageDescription<PlayedTone>;
    const krm::MessageDescription own[] = {kTone, krm::kMessageDescription<PlayedToneAnswer>};
    const std::vector<std::pair<const char*, const char*>> names = {
        {"note", "a"}, {"note", "b"}, {"nota", "a"}, {"note", "the longer 1"}, {"note", "the longer 2"}};
    Tape tape;
    std::uint64_t exchange = 0;
    for (const auto& [name, text] : names) {
        PlayedTone request;
        request.m_cNames.SetAt(name, text);
        tape.recorder.Write(++exchange, request, kTone);
        tape.recorder.Write(exchange, PlayedToneAnswer(), krm::kMessageDescription<PlayedToneAnswer>);
    }
    Player player = tape.Play({.reading = {.ownMessages = own}});
    for (std::size_t i = names.size(); i != 0; --i) {
        PlayedTone request;
        request.m_cNames.SetAt(names[i - 1].first, names[i - 1].second);
        EXPECT_EQ(player.Answer(request).exchange, i);
    }
}

// Each class's request, filled at random, and the same with one number or text changed.
TEST(Player, TakesForEqualWhatCompareDoes) {
    int equal = 0;
    int different = 0;
    for (const krm::MessageDescription& description : krm::AllMessages()) {
        if (description.direction != krm::Direction::Send) {
            continue;
        }
        Tape tape;
        for (std::uint32_t seed = 1; seed <= 3; ++seed) {
            tape.recorder.Write(seed, *krm::test::RandomMessage(description, seed), description);
        }
        for (std::uint32_t seed = 1; seed <= 6; ++seed) {
            const auto asked = krm::test::RandomMessage(description, seed);
            std::uint64_t expected = 0;
            for (std::uint32_t other = 3; other >= 1; --other) {
                const auto recorded = krm::test::RandomMessage(description, other);
                expected = krm::Compare(*recorded, *asked, krm::Direction::Send).Equal() ? other : expected;
            }
            Player player = tape.Play();
            ASSERT_EQ(player.Answer(*asked).exchange, expected) << description.className << seed;
            (expected != 0 ? equal : different) += 1;
        }
    }
    EXPECT_GT(equal, 200);
    EXPECT_GT(different, 50);
}

TEST(Player, MayBeUsedBySeveralThreads) {
    constexpr int kThreads = 4;
    constexpr int kExchanges = 50;
    Tape tape;
    for (int i = 0; i < kThreads * kExchanges; ++i) {
        tape.Add(CodesRequest(), CodesAnswer(1));
    }
    Player player = tape.Play({.usedUp = PlayerOptions::UsedUp::Fail});
    std::atomic<int> answered = 0;
    std::vector<std::thread> threads;
    for (int i = 0; i < kThreads; ++i) {
        threads.emplace_back([&] {
            for (int j = 0; j < kExchanges; ++j) {
                answered += player.Answer(CodesRequest()) ? 1 : 0;
            }
        });
    }
    for (std::thread& thread : threads) {
        thread.join();
    }
    EXPECT_EQ(answered, kThreads * kExchanges);
    EXPECT_FALSE(player.Answer(CodesRequest()));
}

}  // namespace
