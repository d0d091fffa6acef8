#include "krm/exchange/schema.h"

#include <gtest/gtest.h>

#include <array>
#include <string>
#include <string_view>

#include "krm/fields/message_descriptions.h"

namespace {

int CountOf(std::string_view what, std::string_view text) {
    int count = 0;
    for (std::size_t at = text.find(what); at != std::string_view::npos; at = text.find(what, at + 1)) {
        ++count;
    }
    return count;
}

TEST(Schema, HasEveryMessage) {
    const std::string schema = krm::Schema();
    EXPECT_EQ(CountOf("\n{\"title\":\"", schema), 158);
    for (const krm::MessageDescription& message : krm::AllMessages()) {
        EXPECT_EQ(CountOf("\n{\"title\":\"" + std::string(message.className) + "\",", schema), 1) << message.className;
        EXPECT_EQ(CountOf("\n\"" + std::string(message.className) + "\":{", schema), 1) << message.className;
    }
}

TEST(Schema, OfTextsByText) {
    EXPECT_GE(CountOf(R"("m_cResourceMap":{"$ref":"#/$defs/map"})", krm::Schema()), 1);
}

TEST(Schema, OfOneMessage) {
    const std::array messages = {*krm::FindMessage(1, 27, krm::Direction::Receive)};
    EXPECT_EQ(krm::Schema(messages),
              R"({"$schema":"https://json-schema.org/draft/2020-12/schema","title":"krm::ToJson","oneOf":[
{"title":"CKRMCGetJ2534ConfigParamCmdAdaptDataRcv","type":"object","properties":{"command":{"const":"GetJ2534ConfigParam"},"family":{"const":"Cmd"},"direction":{"const":"answer"},"content":{"$ref":"#/$defs/CKRMCGetJ2534ConfigParamCmdAdaptDataRcv"}},"required":["command","family","direction","content"],"additionalProperties":false}
],"$defs":{
"text":{"anyOf":[{"type":"string","pattern":"^[^\\u0000]*$"},{"type":"object","properties":{"$bytes":{"type":"string","pattern":"^(0[1-9A-Fa-f]|[1-9A-Fa-f][0-9A-Fa-f])*$"}},"required":["$bytes"],"additionalProperties":false}]},
"double":{"anyOf":[{"type":"number"},{"enum":["NaN","Infinity","-Infinity"]},{"type":"string","pattern":"^NaN\\([7Ff][Ff][0-9A-Fa-f]{14}\\)$"}]},
"map":{"type":"array","items":{"type":"array","prefixItems":[{"$ref":"#/$defs/text"},{"$ref":"#/$defs/text"}],"items":false,"minItems":2}},
"CKRMCGetJ2534ConfigParamCmdAdaptDataRcv":{"type":"object","properties":{"m_bNotSupport":{"type":"boolean"},"Data":{"type":"array","items":{"$ref":"#/$defs/CKRMCCommandJ2534Config"}}},"additionalProperties":false},
"CKRMCCommandJ2534Config":{"type":"object","properties":{"m_ulParameter":{"type":"integer","minimum":0,"maximum":4294967295},"m_ulValue":{"type":"integer","minimum":0,"maximum":4294967295}},"additionalProperties":false}
}}
)");
}

}  // namespace
