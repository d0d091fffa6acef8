// A process that can open no more files.
#ifndef KRM_TESTS_SUPPORT_NO_MORE_FILES_H_
#define KRM_TESTS_SUPPORT_NO_MORE_FILES_H_

#ifndef _WIN32

#include <sys/resource.h>

namespace krm::test {

/// No file can be opened while it lives; those that are open stay so. A test that uses it begins with
///
///     KRM_NOT_UNDER(AddressSanitizer, krm::test::NoMoreFiles::kNotSanitized);
class NoMoreFiles {
public:
    static constexpr const char* kNotSanitized = "Clang's look at an object's type needs a pipe";

    NoMoreFiles() {
        getrlimit(RLIMIT_NOFILE, &m_before);
        const rlimit none{0, m_before.rlim_max};
        setrlimit(RLIMIT_NOFILE, &none);
    }
    ~NoMoreFiles() { setrlimit(RLIMIT_NOFILE, &m_before); }
    NoMoreFiles(const NoMoreFiles&) = delete;
    NoMoreFiles& operator=(const NoMoreFiles&) = delete;

private:
    rlimit m_before{};
};

}  // namespace krm::test

#endif

#endif  // KRM_TESTS_SUPPORT_NO_MORE_FILES_H_
