#include "examples/diagnosis_session/item_table.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

#include "examples/diagnosis_session/json_document.h"

namespace {

using diagnosis_session::ItemTableKeys;
using diagnosis_session::JsonMember;
using diagnosis_session::JsonValue;

/// Editors go by the schema, the program by its own lists.
TEST(ItemTable, TheSchemaKnowsTheKeysThatTheTableMayHave) {
    std::ifstream file(std::string(KRM_GOLDEN_DIR) + "/../../../examples/data/items.schema.json", std::ios::binary);
    const std::string text((std::istreambuf_iterator<char>(file)), std::istreambuf_iterator<char>());
    const JsonValue schema = diagnosis_session::ParseJson(text);
    const JsonMember* const definitions = schema.Find("$defs");
    ASSERT_NE(definitions, nullptr);
    EXPECT_EQ(definitions->value.members.size(), diagnosis_session::KeysOfItemTable().size());
    for (const ItemTableKeys& object : diagnosis_session::KeysOfItemTable()) {
        const JsonMember* const definition = definitions->value.Find(object.object);
        ASSERT_NE(definition, nullptr) << object.object;
        const JsonMember* const others = definition->value.Find("additionalProperties");
        ASSERT_NE(others, nullptr) << object.object;
        EXPECT_EQ(others->value.text, "false") << object.object;
        std::vector<std::string> ofSchema;
        for (const JsonMember& property : definition->value.Find("properties")->value.members) {
            ofSchema.push_back(property.name);
        }
        std::vector<std::string> ofTable(object.keys.begin(), object.keys.end());
        std::sort(ofSchema.begin(), ofSchema.end());
        std::sort(ofTable.begin(), ofTable.end());
        EXPECT_EQ(ofSchema, ofTable) << object.object;
    }
}

TEST(JsonDocument, KnowsWhereEachPartStands) {
    const JsonValue document = diagnosis_session::ParseJson("{\"a\": [1,\n  {\"b\\\"c\": -2.50}], \"d\": \"x\"}");
    const JsonMember* const list = document.Find("a");
    ASSERT_NE(list, nullptr);
    ASSERT_EQ(list->value.elements.size(), 2U);
    EXPECT_EQ(list->value.elements[0].text, "1");
    EXPECT_EQ(list->value.elements[0].place.column, 8U);
    const JsonMember& inner = list->value.elements[1].members.at(0);
    EXPECT_EQ(inner.name, "b\"c");
    EXPECT_EQ(inner.place.line, 2U);
    EXPECT_EQ(inner.place.column, 4U);
    EXPECT_EQ(inner.value.text, "-2.50");
    EXPECT_EQ(inner.value.place.column, 12U);
    EXPECT_EQ(document.Find("d")->place.line, 2U);
    EXPECT_EQ(document.Find("d")->place.column, 21U);
}

}  // namespace
