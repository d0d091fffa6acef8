// The base of every message, as the stand-in has it.
#include <gtest/gtest.h>

#include "krm/platform/platform.h"

namespace {

TEST(ImportedBaseTest, HoldsTypeAndIdAndClearsThem) {
    CKRMBaseAdaptationData data;
    EXPECT_EQ(data.GetCommandType(), 0U);
    EXPECT_EQ(data.GetCommandID(), 0U);
    data.SetCommandType(0xFFFFFFFFU);
    data.SetCommandID(0x80000000U);
    const CKRMBaseAdaptationData copy(data);
    EXPECT_EQ(copy.GetCommandType(), 0xFFFFFFFFU);
    EXPECT_EQ(copy.GetCommandID(), 0x80000000U);
    data.Clear();
    EXPECT_EQ(data.GetCommandType(), 0U);
    EXPECT_EQ(data.GetCommandID(), 0U);
}

}  // namespace
