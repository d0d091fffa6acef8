// Dates and times that the user's locale can't write, or writes at great length: no locale at hand does, so the C library's
// strftime_l is replaced here, for the library too, which takes this program's.
#if __has_include(<gnu/libc-version.h>)  // the GNU C library

#include <dlfcn.h>
#include <gtest/gtest.h>
#include <locale.h>

#include <algorithm>
#include <ctime>
#include <optional>
#include <string>

#include "tests/support/converters.h"

namespace {

std::optional<std::size_t> g_length;  // of the text that strftime_l writes; the C library's own where there is none

}  // namespace

extern "C" std::size_t strftime_l(char* text, std::size_t size, const char* format, const std::tm* time,
                                  locale_t locale) noexcept {
    if (g_length) {
        if (*g_length >= size) {
            return 0;  // as the C library: it doesn't fit with its NUL
        }
        std::fill_n(text, *g_length, 'x');
        text[*g_length] = '\0';
        return *g_length;
    }
    using Function = std::size_t (*)(char*, std::size_t, const char*, const std::tm*, locale_t);
    static const auto real = reinterpret_cast<Function>(dlsym(RTLD_NEXT, "strftime_l"));
    return real(text, size, format, time, locale);
}

namespace krm::test {
namespace {

class UnwritableDate : public ::testing::Test {
protected:
    ~UnwritableDate() override { g_length.reset(); }

    template <class Converter>
    static std::string TextOf(krm_ulong raw) {
        Converter converter;
        CKRMString text = "old";
        EXPECT_EQ(Arguments({}).Text(converter, &text, nullptr, raw, raw), 0U);
        return text.GetText();
    }
    static std::string Date() { return TextOf<CKRMCCommandConvSignalDataDate2>(0x07E70C1F); }
    static std::string Time() { return TextOf<CKRMCCommandConvSignalDataTime2>(0x0D071E00); }
};

TEST_F(UnwritableDate, IsADashAndAnUnwritableTimeNothing) {
    g_length = 0;
    EXPECT_EQ(Date(), "-");
    EXPECT_EQ(Time(), "");
}

TEST_F(UnwritableDate, HasMoreThanAHundredCharacters) {
    for (const std::size_t length : {std::size_t{1}, std::size_t{100}}) {
        g_length = length;
        EXPECT_EQ(Date(), std::string(length, 'x'));
        EXPECT_EQ(Time(), std::string(length, 'x'));
    }
    g_length = 101;
    EXPECT_EQ(Date(), "-");
    EXPECT_EQ(Time(), "");
}

}  // namespace
}  // namespace krm::test

#endif
