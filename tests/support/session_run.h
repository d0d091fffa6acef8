// Runs the example diagnosis_session in this process, on files of the test's own.
#ifndef KRM_TESTS_SUPPORT_SESSION_RUN_H_
#define KRM_TESTS_SUPPORT_SESSION_RUN_H_

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

#include "examples/diagnosis_session/session.h"

namespace krm::test {

/// A folder for the files of one test, removed with it.
class SessionFolder {
public:
    SessionFolder() {
        const auto* info = ::testing::UnitTest::GetInstance()->current_test_info();
        m_path = std::filesystem::path(::testing::TempDir()) /
                 ("krm_session_" + std::string(info->test_suite_name()) + '_' + info->name());
        std::filesystem::remove_all(m_path);
        std::filesystem::create_directories(m_path);
    }
    ~SessionFolder() {
        std::error_code ignored;
        std::filesystem::remove_all(m_path, ignored);
    }
    SessionFolder(const SessionFolder&) = delete;
    SessionFolder& operator=(const SessionFolder&) = delete;

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

struct SessionResult {
    int status;
    std::string out;
    std::string err;
};

inline SessionResult RunSession(std::vector<std::string> arguments) {
    arguments.insert(arguments.begin(), "diagnosis_session");
    std::ostringstream out;
    std::ostringstream err;
    const int status = diagnosis_session::RunDiagnosisSession(arguments, out, err);
    return {status, out.str(), err.str()};
}

}  // namespace krm::test

#endif  // KRM_TESTS_SUPPORT_SESSION_RUN_H_
