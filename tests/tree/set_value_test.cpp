// Setting an attribute's value from any text.
#include "krm/tree/set_value.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>

#include "krm/platform/platform.h"
#include "krm/tree/attribute.h"

namespace {

using krm::tree::SetValue;

TEST(SetAttributeValue, FromEveryKindOfText) {
    CKRMError error;
    CKRMCAttribute attribute("Code");
    EXPECT_TRUE(SetValue(&error, attribute, CKRMString("P0301")));
    EXPECT_EQ(attribute.GetValueType(), krm::tree::kStringValue);
    EXPECT_STREQ(attribute.GetString(), "P0301");
    EXPECT_TRUE(SetValue(&error, attribute, "P0302"));
    EXPECT_STREQ(attribute.GetString(), "P0302");
    EXPECT_TRUE(SetValue(&error, attribute, std::string("a\0b", 3)));
    EXPECT_STREQ(attribute.GetString(), "a");
    EXPECT_TRUE(SetValue(nullptr, attribute, std::string_view("P0303 and more").substr(0, 5)));
    EXPECT_STREQ(attribute.GetString(), "P0303");
    EXPECT_EQ(error.GetErrorCode(), 0U);
}

TEST(SetAttributeValue, ANullTextIsTheMembersError) {
    CKRMError error;
    CKRMCAttribute attribute("Code", "P0301");
    EXPECT_FALSE(SetValue(&error, attribute, static_cast<const char*>(nullptr)));
    EXPECT_EQ(error.GetErrorCode(), 1100100001U);
    EXPECT_STREQ(attribute.GetString(), "P0301");
}

}  // namespace
