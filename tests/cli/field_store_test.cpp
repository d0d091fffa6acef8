#include "cli/field_store.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <cstdint>
#include <string>

#include "cli/surroundings.h"
#include "tests/support/no_more_files.h"
#include "tests/support/not_under.h"

namespace {

using krm_cli::FieldStore;
using krm_cli::FieldText;

/// "PATH=VALUE LINE CUT;" of each field.
std::string AllOf(FieldStore& store) {
    std::string text;
    store.ForEach([&](const FieldText& field) {
        text += std::string(field.path) + '=' + std::string(field.value) + ' ' + std::to_string(field.line) + ' ' +
                std::to_string(field.cutBytes) + ';';
    });
    return text;
}

// Whether all, some or none of them are in the file.
TEST(FieldStore, GivesFieldsBackInOrder) {
    const std::string value(200, 'v');
    for (const std::size_t mostInMemory : {std::size_t{1}, std::size_t{100}, std::size_t{500}, std::size_t{100000}}) {
        FieldStore store(mostInMemory);
        std::string expected;
        for (std::uint64_t i = 0; i < 7; ++i) {
            const std::string path = "Data[" + std::to_string(i) + "].m_strDTC";
            store.Add({path, i % 2 == 0 ? value : "", i + 4'000'000'000U, i * 3});
            expected += path + '=' + (i % 2 == 0 ? value : "") + ' ' + std::to_string(i + 4'000'000'000U) + ' ' +
                        std::to_string(i * 3) + ';';
        }
        EXPECT_EQ(AllOf(store), expected) << mostInMemory;
        EXPECT_EQ(AllOf(store), expected) << mostInMemory;
        store.Clear();
        EXPECT_EQ(AllOf(store), "");
        store.Add({"a", "1", 2, 0});
        EXPECT_EQ(AllOf(store), "a=1 2 0;");
    }
}

TEST(FieldStore, KeepsAFieldWithoutText) {
    FieldStore store;
    store.Add({"", "", 0, 0});
    EXPECT_EQ(AllOf(store), "= 0 0;");
}

#ifndef _WIN32
TEST(FieldStore, TellsWhyThereIsNoFile) {
    KRM_NOT_UNDER(AddressSanitizer, krm::test::NoMoreFiles::kNotSanitized);
    FieldStore store(100);
    const krm::test::NoMoreFiles none;
    try {
        store.Add({"m_strName", std::string(200, 'x'), 1, 0});
        FAIL();
    } catch (const krm_cli::Failure& failure) {
        EXPECT_STREQ(failure.what(), "a message of 241 bytes needs a temporary file: too many open files");
    }
}
#endif

}  // namespace
