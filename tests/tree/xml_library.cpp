// What ToXml writes, read by an XML library that knows nothing of it: a program of its own, as only the tests need one.
#include <gtest/gtest.h>

#include <cstdlib>
#include <pugixml.hpp>
#include <string>

#include "krm/tree/tools.h"

namespace krm::test {
namespace {

TEST(TreeXmlByALibrary, ReadsTheSameNamesAndValues) {
    CKRMCElement vehicle("Vehicle");
    std::string every = "a<b> & \"c\" 'd' \t\r\n ]]> --> &amp; \xC3\xA4\xF0\x9F\x9A\x97";
    for (char character = ' '; character < 0x7F; ++character) {
        every += character;
    }
    vehicle.CreateAttribute(nullptr, every.c_str())->SetValue(nullptr, every.c_str());
    vehicle.CreateAttribute(nullptr, "Spaces")->SetValue(nullptr, "  two  \n\n lines  ");
    vehicle.CreateAttribute(nullptr, "Odometer")->SetValue(nullptr, krm_ulong{4294967295U});
    vehicle.CreateAttribute(nullptr, "Factor")->SetValue(nullptr, -1.0 / 3);
    vehicle.CreateAttribute(nullptr, "Control")->SetValue(nullptr, "\x01\xFF");
    vehicle.CreateAttribute(nullptr, "None");
    vehicle.CreateElement(nullptr, "Ecu")->CreateElement(nullptr, every.c_str());
    vehicle.CreateElement(nullptr, "Ecu");
    vehicle.CreateElementGroup(nullptr, "Key");

    pugi::xml_document document;
    const std::string xml = tree::ToXml(vehicle);
    const pugi::xml_parse_result result = document.load_string(xml.c_str());
    ASSERT_TRUE(result) << result.description();
    const pugi::xml_node root = document.document_element();
    EXPECT_STREQ("element", root.name());
    EXPECT_STREQ("Vehicle", root.attribute("name").value());
    const auto attribute = [&root](const char* name) {
        return root.find_child_by_attribute("attribute", "name", name);
    };
    EXPECT_EQ(every, attribute(every.c_str()).attribute("value").value());
    EXPECT_STREQ("string", attribute(every.c_str()).attribute("type").value());
    EXPECT_STREQ("  two  \n\n lines  ", attribute("Spaces").attribute("value").value());
    EXPECT_STREQ("ulong", attribute("Odometer").attribute("type").value());
    EXPECT_EQ(4294967295U, attribute("Odometer").attribute("value").as_uint());
    EXPECT_STREQ("double", attribute("Factor").attribute("type").value());
    EXPECT_EQ(-1.0 / 3, std::strtod(attribute("Factor").attribute("value").value(), nullptr));
    EXPECT_STREQ("01FF", attribute("Control").attribute("value-hex").value());
    EXPECT_STREQ("empty", attribute("None").attribute("type").value());
    EXPECT_FALSE(attribute("None").attribute("value"));

    std::string shape;
    for (const pugi::xml_node& group : root.children("group")) {
        shape += std::string(group.attribute("name").value()) + ":";
        for (const pugi::xml_node& element : group.children("element")) {
            shape += std::string(" ") + element.attribute("name").value();
            for (const pugi::xml_node& below : element.children("group")) {
                EXPECT_EQ(every, below.attribute("name").value());
                EXPECT_EQ(every, below.child("element").attribute("name").value());
                shape += "(1)";
            }
        }
        shape += '\n';
    }
    EXPECT_EQ("Ecu: Ecu(1) Ecu\nKey:\n", shape);
}

}  // namespace
}  // namespace krm::test
