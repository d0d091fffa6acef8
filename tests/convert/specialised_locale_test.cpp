// Dates and times in the user's locale, and who owns that locale.
#include <gtest/gtest.h>

#include <ctime>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "tests/support/converters.h"

#if !defined(_WIN32)
#include <locale.h>
#include <stdlib.h>
#endif

namespace krm::test {
namespace {

using Date2 = CKRMCCommandConvSignalDataDate2;
using Time2 = CKRMCCommandConvSignalDataTime2;

constexpr krm_ulong kLastOf2023 = 0x07E70C1F;
constexpr krm_ulong kSevenPast = 0x0D071E00;  // 13:07:30

// The text of a converter; its string ID must have been reset.
std::string TextOf(CKRMCCommandConvSignalData& converter, double phys) {
    CKRMString text = "old";
    krm_ulong id = 9;
    EXPECT_EQ(Arguments({}).Text(converter, &text, &id, phys, 12345), 0U);
    EXPECT_EQ(id, 0U);
    return text.GetText();
}

// What the C library says in the user's locale as it is now.
std::string Formatted(const char* format, const std::tm& parts) {
    char text[200];
#if defined(_WIN32)
    return std::string(text, std::strftime(text, sizeof text, format, &parts));
#else
    const locale_t user = newlocale(LC_ALL_MASK, "", nullptr);
    EXPECT_NE(user, nullptr);
    const std::size_t length = strftime_l(text, sizeof text, format, &parts, user);
    freelocale(user);
    return std::string(text, length);
#endif
}

[[maybe_unused]] std::string DateText(int year, int month, int day) {
    std::tm parts{};
    parts.tm_year = year - 1900;
    parts.tm_mon = month - 1;
    parts.tm_mday = day;
    return Formatted("%x", parts);
}

[[maybe_unused]] std::string TimeText(int hour, int minute, int second) {
    std::tm parts{};
    parts.tm_hour = hour;
    parts.tm_min = minute;
    parts.tm_sec = second;
    return Formatted("%X", parts);
}

// Compares with the C library where it can be asked for the user's locale; on Windows looks for the numbers alone.
void ExpectDate(const std::string& text, [[maybe_unused]] int year, [[maybe_unused]] int month, int day) {
#if defined(_WIN32)
    EXPECT_NE(text, "-");
    EXPECT_NE(text.find(std::to_string(day)), std::string::npos) << text;
#else
    EXPECT_EQ(text, DateText(year, month, day));
#endif
}

void ExpectTime(const std::string& text, [[maybe_unused]] int hour, int minute, int second) {
#if defined(_WIN32)
    EXPECT_NE(text.find(std::to_string(minute)), std::string::npos) << text;
    EXPECT_NE(text.find(std::to_string(second)), std::string::npos) << text;
#else
    EXPECT_EQ(text, TimeText(hour, minute, second));
#endif
}

constexpr double Date(int year, int month, int day) {
    return year * 65536.0 + month * 256.0 + day;
}

TEST(Date2Text, IsTheLocalesShortDate) {
    Date2 converter;
    ExpectDate(TextOf(converter, static_cast<double>(kLastOf2023)), 2023, 12, 31);
    ExpectDate(TextOf(converter, Date(1900, 1, 1)), 1900, 1, 1);
    ExpectDate(TextOf(converter, Date(1999, 2, 31)), 1999, 2, 31);  // only the ranges are looked at, not the calendar
    ExpectDate(TextOf(converter, Date(9999, 6, 15) + 0.9), 9999, 6, 15);
#if !defined(_WIN32)
    EXPECT_EQ(TextOf(converter, Date(65535, 12, 31)), DateText(65535, 12, 31));
#endif
}

TEST(Date2Text, OutOfRangeIsADash) {
    Date2 converter;
    EXPECT_EQ(TextOf(converter, Date(2023, 0, 31)), "-");
    EXPECT_EQ(TextOf(converter, Date(2023, 13, 31)), "-");
    EXPECT_EQ(TextOf(converter, Date(2023, 12, 0)), "-");
    EXPECT_EQ(TextOf(converter, Date(2023, 12, 32)), "-");
    EXPECT_EQ(TextOf(converter, Date(1899, 12, 31)), "-");
    EXPECT_EQ(TextOf(converter, Date(2023, 255, 255)), "-");
    EXPECT_EQ(TextOf(converter, 0), "-");
    EXPECT_EQ(TextOf(converter, -1), "-");
    EXPECT_EQ(TextOf(converter, 1e300), "-");
}

TEST(Date2Text, ByTheComposite) {
    CKRMCCommandDispData record;
    MarkAll(record);
    EXPECT_EQ(Arguments({.bits = 3, .mul = 9, .offset = 5, .decimals = 2}).Raw(*Create(105), &record, kLastOf2023), 0U);
    EXPECT_EQ(record.m_ulRawData, kLastOf2023);
    EXPECT_EQ(record.m_dDataPhys, static_cast<double>(kLastOf2023));
    ExpectDate(record.m_strDataPhys.GetText(), 2023, 12, 31);
    EXPECT_EQ(record.m_ulDataStringId, 0U);
    EXPECT_TRUE(OthersAreMarked(record));
}

TEST(Time2Text, IsTheLocalesTime) {
    Time2 converter;
    ExpectTime(TextOf(converter, static_cast<double>(kSevenPast)), 13, 7, 30);
    ExpectTime(TextOf(converter, static_cast<double>(kSevenPast | 0xFFU)), 13, 7, 30);
    ExpectTime(TextOf(converter, 0), 0, 0, 0);
    ExpectTime(TextOf(converter, 0x173B3B00), 23, 59, 59);
    EXPECT_FALSE(TextOf(converter, 0).empty());
}

TEST(Time2Text, OutOfRangeIsEmpty) {
    Time2 converter;
    EXPECT_EQ(TextOf(converter, 0x18000000), "");
    EXPECT_EQ(TextOf(converter, 0x003C0000), "");
    EXPECT_EQ(TextOf(converter, 0x00003C00), "");
    EXPECT_EQ(TextOf(converter, -1), "");
    // An empty text replaces an old one in a record, too.
    CKRMCCommandDispData record;
    MarkAll(record);
    EXPECT_EQ(Arguments({}).Raw(*Create(106), &record, 0x18000000), 0U);
    EXPECT_STREQ(record.m_strDataPhys.GetText(), "");
    EXPECT_EQ(record.m_ulDataStringId, 0U);
}

// ---- Ownership ----

template <class Converter>
class LocaleOwner : public ::testing::Test {
protected:
    static constexpr bool kIsDate = std::is_same_v<Converter, Date2>;

    // Whether the object still has its locale.
    static void ExpectWorks(CKRMCCommandConvSignalData& converter) {
        if (kIsDate) {
            ExpectDate(TextOf(converter, static_cast<double>(kLastOf2023)), 2023, 12, 31);
        } else {
            ExpectTime(TextOf(converter, static_cast<double>(kSevenPast)), 13, 7, 30);
        }
    }
};
using LocaleOwners = ::testing::Types<Date2, Time2>;
TYPED_TEST_SUITE(LocaleOwner, LocaleOwners);

TYPED_TEST(LocaleOwner, CopiesOutliveTheOriginal) {
    auto original = std::make_unique<TypeParam>();
    TypeParam copy(*original);
    TypeParam assigned;
    assigned = *original;
    original.reset();
    this->ExpectWorks(copy);
    this->ExpectWorks(assigned);
}

TYPED_TEST(LocaleOwner, TheOriginalOutlivesItsCopies) {
    TypeParam original;
    {
        TypeParam copy(original);
        TypeParam assigned;
        assigned = copy;
        this->ExpectWorks(assigned);
    }
    this->ExpectWorks(original);
}

TYPED_TEST(LocaleOwner, AssignmentToItselfKeepsIt) {
    TypeParam object;
    TypeParam& same = object;
    object = same;
    object = same;
    this->ExpectWorks(object);
}

TYPED_TEST(LocaleOwner, ChainsAndCirclesOfAssignments) {
    std::vector<TypeParam> objects(5);
    for (std::size_t round = 0; round < 20; ++round) {
        objects[round % 5] = objects[(round * 3 + 1) % 5];
    }
    objects.erase(objects.begin() + 1, objects.begin() + 4);
    for (TypeParam& object : objects) {
        this->ExpectWorks(object);
    }
}

TYPED_TEST(LocaleOwner, WhatWasMovedFromCanBeAssignedAndDestroyed) {
    TypeParam first;
    TypeParam second(std::move(first));
    this->ExpectWorks(second);
    first = second;
    this->ExpectWorks(first);
    TypeParam third;
    third = std::move(second);
    this->ExpectWorks(third);
}

#if !defined(_WIN32)

// Sets the user's locale while it lives.
class UserLocaleSetting {
public:
    explicit UserLocaleSetting(const char* name) {
        const char* const before = getenv("LC_ALL");
        m_wasSet = before != nullptr;
        m_before = m_wasSet ? before : "";
        setenv("LC_ALL", name, 1);
    }
    ~UserLocaleSetting() {
        if (m_wasSet) {
            setenv("LC_ALL", m_before.c_str(), 1);
        } else {
            unsetenv("LC_ALL");
        }
    }
    UserLocaleSetting(const UserLocaleSetting&) = delete;
    UserLocaleSetting& operator=(const UserLocaleSetting&) = delete;

private:
    bool m_wasSet;
    std::string m_before;
};

TEST(UserLocale, InTheCLocaleTextsAreAmerican) {
    const UserLocaleSetting setting("C");
    Date2 date;
    Time2 time;
    EXPECT_EQ(TextOf(date, static_cast<double>(kLastOf2023)), "12/31/23");
    EXPECT_EQ(TextOf(time, static_cast<double>(kSevenPast)), "13:07:30");
}

TEST(UserLocale, ThatDoesNotExistGivesSubstitutes) {
    const UserLocaleSetting setting("xx_XX");
    Date2 date;
    Time2 time;
    EXPECT_EQ(TextOf(date, static_cast<double>(kLastOf2023)), "-");
    EXPECT_EQ(TextOf(time, static_cast<double>(kSevenPast)), "");
    EXPECT_EQ(TextOf(date, 0), "-");
    EXPECT_EQ(TextOf(time, -1), "");
    EXPECT_EQ(DisplayBy(105, kLastOf2023), "-");
    EXPECT_EQ(DisplayBy(106, kSevenPast), "");
}

TEST(UserLocale, ThatDoesNotExistCanBeCopiedToAndFrom) {
    const UserLocaleSetting good("C");
    Date2 works;
    Time2 worksToo;
    {
        const UserLocaleSetting bad("xx_XX");
        Date2 date;
        Date2 copy(date);
        EXPECT_EQ(TextOf(copy, static_cast<double>(kLastOf2023)), "-");
        copy = copy = works;
        EXPECT_EQ(TextOf(copy, static_cast<double>(kLastOf2023)), "12/31/23");
        works = date;
        Time2 time;
        time = worksToo;
        EXPECT_EQ(TextOf(time, static_cast<double>(kSevenPast)), "13:07:30");
        worksToo = Time2();
    }
    EXPECT_EQ(TextOf(works, static_cast<double>(kLastOf2023)), "-");
    EXPECT_EQ(TextOf(worksToo, static_cast<double>(kSevenPast)), "");
}

TEST(UserLocale, IsTakenWhenTheConverterIsMade) {
    std::unique_ptr<Date2> date;
    {
        const UserLocaleSetting setting("C");
        date = std::make_unique<Date2>();
    }
    const UserLocaleSetting bad("xx_XX");
    EXPECT_EQ(TextOf(*date, static_cast<double>(kLastOf2023)), "12/31/23");
}

TEST(UserLocale, DecidesTheTexts) {
    for (const char* const name : {"de_DE.UTF-8", "de_DE.utf8", "ja_JP.UTF-8", "fr_FR.UTF-8", "en_GB.UTF-8"}) {
        const UserLocaleSetting setting(name);
        const locale_t known = newlocale(LC_ALL_MASK, "", nullptr);
        if (known == nullptr) {
            continue;
        }
        freelocale(known);
        Date2 date;
        EXPECT_EQ(TextOf(date, static_cast<double>(kLastOf2023)), DateText(2023, 12, 31));
        EXPECT_NE(TextOf(date, static_cast<double>(kLastOf2023)), "12/31/23");
        Time2 time;
        EXPECT_EQ(TextOf(time, static_cast<double>(kSevenPast)), TimeText(13, 7, 30));
        // Numbers stay as they are.
        EXPECT_EQ(DisplayBy(0, 15, {.decimals = 1}), "1.5");
        return;
    }
    GTEST_SKIP() << "this machine has no locale other than C";
}

#endif

}  // namespace
}  // namespace krm::test
