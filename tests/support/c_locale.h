// Lets tests ask the C library in the C locale, where the whole program may run in another one.
#ifndef KRM_TESTS_SUPPORT_C_LOCALE_H_
#define KRM_TESTS_SUPPORT_C_LOCALE_H_

#if !defined(_WIN32)
#include <locale.h>
#endif

namespace krm::test {

/// While it lives, the C library's functions follow the C locale in this thread. Keep its scope to their calls: the
/// library under test is to be called in the program's locale. Does nothing on Windows, where the tests run in no other.
class InCLocale {
public:
#if defined(_WIN32)
    InCLocale() {}
    ~InCLocale() {}
#else
    InCLocale() : m_before(uselocale(C())) {}
    ~InCLocale() {
        uselocale(m_before);
    }
#endif
    InCLocale(const InCLocale&) = delete;
    InCLocale& operator=(const InCLocale&) = delete;

#if !defined(_WIN32)
private:
    static locale_t C() {
        static const locale_t locale = newlocale(LC_ALL_MASK, "C", static_cast<locale_t>(nullptr));
        return locale;
    }

    locale_t m_before;
#endif
};

}  // namespace krm::test

#endif  // KRM_TESTS_SUPPORT_C_LOCALE_H_
