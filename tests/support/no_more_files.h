// A process that can open no more files.
#ifndef KRM_TESTS_SUPPORT_NO_MORE_FILES_H_
#define KRM_TESTS_SUPPORT_NO_MORE_FILES_H_

#ifndef _WIN32

#include <sys/resource.h>

namespace krm::test {

/// No file can be opened while it lives; those that are open stay so.
class NoMoreFiles {
public:
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
