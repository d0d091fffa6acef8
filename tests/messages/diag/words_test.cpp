#include "krm/messages/diag/words.h"

#include <gtest/gtest.h>

#include "tests/support/log_text.h"

namespace {

using krm::test::ExpectLog;

TEST(WordsData, WritesTheIdUnsigned) {
    CKRMCCommandWordsData words;
    words.m_ulWordsId = 4294967295U;
    words.m_strWords = "Ignition 100 %";
    ExpectLog(words, {R"(
P.m_ulWordsId=4294967295
P.m_strWords=Ignition 100 %
)"});
}

}  // namespace
