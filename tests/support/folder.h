// A folder for the files of one test, removed with it.
#ifndef KRM_TESTS_SUPPORT_FOLDER_H_
#define KRM_TESTS_SUPPORT_FOLDER_H_

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <system_error>

namespace krm::test {

class TestFolder {
public:
    TestFolder() {
        const auto* info = ::testing::UnitTest::GetInstance()->current_test_info();
        std::string name = "krm_" + std::string(info->test_suite_name()) + '_' + info->name() + '_';
        // A test with parameters has slashes in its name.
        std::replace(name.begin(), name.end(), '/', '_');
        // Another program may be running the same test.
        for (int i = 0; i == 0 || !std::filesystem::create_directory(m_path); ++i) {
            m_path = std::filesystem::path(::testing::TempDir()) / (name + std::to_string(i));
        }
    }
    ~TestFolder() {
        std::error_code ignored;
        std::filesystem::remove_all(m_path, ignored);
    }
    TestFolder(const TestFolder&) = delete;
    TestFolder& operator=(const TestFolder&) = delete;

    std::string Path(const std::string& name) const { return (m_path / name).string(); }
    std::string Write(const std::string& name, const std::string& text) const {
        std::ofstream(Path(name), std::ios::binary) << text;
        return Path(name);
    }
    std::string Read(const std::string& name) const {
        std::ifstream file(Path(name), std::ios::binary);
        return std::string(std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>());
    }

private:
    std::filesystem::path m_path;
};

}  // namespace krm::test

#endif  // KRM_TESTS_SUPPORT_FOLDER_H_
