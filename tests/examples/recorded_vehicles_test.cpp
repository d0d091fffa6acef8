// Real answers of production vehicles; tests/data/obd/README.md says where they come from.
#include <gtest/gtest.h>

#include <cstddef>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <map>
#include <sstream>
#include <string>
#include <vector>

#include "tests/support/c_locale.h"
#include "tests/support/session_run.h"

namespace {

std::vector<std::string> FieldsOf(const std::string& line) {
    std::vector<std::string> fields;
    std::istringstream stream(line.substr(0, line.find('\r')));
    for (std::string field; std::getline(stream, field, ',');) {
        fields.push_back(field);
    }
    return fields;
}

/// A number with five decimals; a text of an enumerated item as it is.
std::string Expected(const std::string& value) {
    const krm::test::InCLocale inCLocale;
    char* end = nullptr;
    const double number = std::strtod(value.c_str(), &end);
    if (value.empty() || *end != '\0') {
        return value;
    }
    char text[64];
    std::snprintf(text, sizeof text, "%.5f", number);
    return text;
}

TEST(RecordedVehicles, EveryExchangeIsDecodedAndEveryValueMet) {
    const std::filesystem::path folder = KRM_TEST_DATA_DIR "/obd";
    const krm::test::SessionFolder files;
    const krm::test::SessionResult run =
        krm::test::RunSession({(folder / "recorded.log").string(), (folder / "items.json").string(), "--operation-log",
                               files.Path("operation.log"), "--values", files.Path("values.csv")});
    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(run.err, "");
    EXPECT_NE(run.out.find("\n373 exchanges, 587 values, "), std::string::npos);

    std::map<std::string, std::string> values;
    std::istringstream csv(files.Read("values.csv"));
    std::string line;
    std::getline(csv, line);
    EXPECT_EQ(line, "exchange,request,item,raw,value,unit,time,ecu,name,text");
    while (std::getline(csv, line)) {
        const std::vector<std::string> fields = FieldsOf(line);
        ASSERT_GE(fields.size(), 5U) << line;
        values[fields[0] + ' ' + fields[1] + ' ' + fields[2]] = fields[4];
    }

    std::ifstream expectations(folder / "recorded.expected.csv");
    std::getline(expectations, line);
    std::size_t met = 0;
    while (std::getline(expectations, line)) {
        const std::vector<std::string> fields = FieldsOf(line);
        ASSERT_EQ(fields.size(), 4U) << line;
        const std::string name = fields[0] + ' ' + fields[1] + ' ' + fields[2];
        ASSERT_TRUE(values.contains(name)) << name;
        EXPECT_EQ(values[name], Expected(fields[3])) << name;
        ++met;
    }
    EXPECT_EQ(met, 574U);
}

}  // namespace
