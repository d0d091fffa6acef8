#include "examples/diagnosis_session/iso_tp.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

using diagnosis_session::Bytes;
using diagnosis_session::BytesOfHex;
using diagnosis_session::CanFrame;
using diagnosis_session::FrameData;
using diagnosis_session::HexOf;
using diagnosis_session::IsoTpAssembler;

class IsoTp : public ::testing::Test {
protected:
    /// Adds a frame on the next line; a message that it completes goes to `m_messages` as "ID line bytes".
    void Add(const std::string& hex, std::uint32_t id = 0x7E8) {
        if (const auto message = m_assembler.Add(CanFrame{++m_line, id, FrameData(BytesOfHex(hex).value())})) {
            m_messages.push_back(diagnosis_session::HexOfId(message->id) + ' ' + std::to_string(message->line) + ' ' +
                                 HexOf(message->bytes));
        }
    }

    using Texts = std::vector<std::string>;
    Texts m_messages;
    Texts m_faults;
    IsoTpAssembler m_assembler{[this](const diagnosis_session::Place& place, const std::string& what) {
        m_faults.push_back(std::to_string(place.line) + ": " + what);
    }};

private:
    std::size_t m_line = 0;
};

TEST_F(IsoTp, SingleFrame) {
    Add("03410D7C");
    Add("0141AAAAAAAAAAAA");
    EXPECT_EQ(m_messages, (Texts{"7E8 1 410D7C", "7E8 2 41"}));
    EXPECT_EQ(m_faults, Texts{});
}

TEST_F(IsoTp, SeveralFramesWithPaddingAndFlowControl) {
    Add("100A410101020304");
    Add("300000", 0x7E0);
    Add("2105060708AAAAAA");
    EXPECT_EQ(m_messages, (Texts{"7E8 1 41010102030405060708"}));
    EXPECT_EQ(m_faults, Texts{});
}

TEST_F(IsoTp, TheNumberOfFramesRunsOverAfter15) {
    std::string expected = "000000000000";
    Add("1076000000000000");  // 118 bytes: 6 and 16 frames of 7
    for (unsigned i = 1; i <= 16; ++i) {
        const Bytes frame{static_cast<std::uint8_t>(0x20U | i % 16), static_cast<std::uint8_t>(i), 2, 3, 4, 5, 6, 7};
        Add(HexOf(frame));
        expected += HexOf(frame).substr(2);
    }
    EXPECT_EQ(m_messages, (Texts{"7E8 1 " + expected}));
    EXPECT_EQ(m_faults, Texts{});
}

TEST_F(IsoTp, SendersAreKeptApart) {
    Add("1008410101020304", 0x7E8);
    Add("1008410111121314", 0x7E9);
    Add("211516", 0x7E9);
    Add("210506", 0x7E8);
    EXPECT_EQ(m_messages, (Texts{"7E9 2 4101111213141516", "7E8 1 4101010203040506"}));
    EXPECT_EQ(m_faults, Texts{});
}

TEST_F(IsoTp, WrongOrderIsToldOnceAndTheMessageGivenUp) {
    Add("1014410101020304");
    Add("2205060708090A0B");
    Add("210C0D0E0F101112");
    Add("03410D7C");
    EXPECT_EQ(m_faults, (Texts{"2: 7E8 sends consecutive frame 2 where 1 is due"}));
    EXPECT_EQ(m_messages, (Texts{"7E8 4 410D7C"}));
}

TEST_F(IsoTp, ARepeatedFrameIsOutOfOrder) {
    Add("1014410101020304");
    Add("2105060708090A0B");
    Add("2105060708090A0B");
    EXPECT_EQ(m_faults, (Texts{"3: 7E8 sends consecutive frame 1 where 2 is due"}));
}

TEST_F(IsoTp, BreakOffIsToldWhenAnotherMessageBegins) {
    Add("1014410101020304");
    Add("2105060708090A0B");
    Add("03410D7C");
    EXPECT_EQ(m_faults, (Texts{"1: 7E8 breaks off after 13 of 20 bytes"}));
    EXPECT_EQ(m_messages, (Texts{"7E8 3 410D7C"}));
    Add("1014410101020304");
    Add("1008410101020304");
    EXPECT_EQ(m_faults.back(), "4: 7E8 breaks off after 6 of 20 bytes");
}

TEST_F(IsoTp, BreakOffIsToldAtTheEnd) {
    Add("1014410101020304");
    EXPECT_EQ(m_assembler.End(), 1U);
    EXPECT_EQ(m_assembler.End(), 0U);
    EXPECT_EQ(m_faults, (Texts{"1: 7E8 breaks off after 6 of 20 bytes"}));
}

TEST_F(IsoTp, MoreThanPromised) {
    Add("1008410101020304");
    Add("210506");
    Add("220708");
    Add("230708");
    EXPECT_EQ(m_messages.size(), 1U);
    EXPECT_EQ(m_faults, (Texts{"3: 7E8 sends more than the 8 bytes that its first frame promised"}));
}

TEST_F(IsoTp, ConsecutiveFrameOutOfNowhere) {
    Add("2105060708090A0B");
    Add("2205060708090A0B");
    EXPECT_EQ(m_faults, (Texts{"1: 7E8 sends a consecutive frame without a first frame"}));
}

TEST_F(IsoTp, FramesThatAreTooShort) {
    Add("0741");
    Add("1014410101");
    Add("1014410101020304");
    Add("210506");
    Add("");
    EXPECT_EQ(m_faults, (Texts{"1: 7E8 sends a single frame that promises 7 bytes and carries 1",
                               "2: 7E8 sends a first frame of 5 bytes, not 8",
                               "4: 7E8 sends a consecutive frame with 2 bytes where 7 are due",
                               "5: 7E8 sends a frame without data"}));
}

TEST_F(IsoTp, LengthsAndTypesThatThereAreNot) {
    Add("00");
    Add("0F41");
    Add("1007410101020304");
    Add("40");
    EXPECT_EQ(m_faults, (Texts{"1: 7E8 sends a single frame of length 0", "2: 7E8 sends a single frame of length 15",
                               "3: 7E8 sends a first frame that promises 7 bytes, which take a single frame",
                               "4: 7E8 sends a frame of type 4, which ISO 15765-2 doesn't know"}));
}

}  // namespace
