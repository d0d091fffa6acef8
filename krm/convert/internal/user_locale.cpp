#include "krm/convert/internal/user_locale.h"

#include <array>
#include <new>

#if defined(_WIN32)
#define WIN32_LEAN_AND_MEAN
#ifndef NOMINMAX
#define NOMINMAX
#endif
#include <windows.h>

#include <cstddef>
#include <cstring>
#include <string>
#else
#include <locale.h>
#include <clocale>
#include <ctime>
#endif

namespace krm::convert {
namespace {

// A date or time that needs more is not written.
constexpr int kMostCharacters = 100;
using Text = std::array<char, kMostCharacters + 1>;

}  // namespace

std::shared_ptr<const UserLocale> UserLocale::Create() noexcept {
    try {
        const std::shared_ptr<const UserLocale> locale(new UserLocale);
        return locale->m_handle == nullptr ? nullptr : locale;
    } catch (const std::bad_alloc&) {
        return nullptr;
    }
}

#if defined(_WIN32)

// Windows formats by locale identifier: there is nothing to release. The C library's _strftime_l writes the same, but not
// every compiler's library has it.

namespace {

/// The locale's picture of a short date, "M/d/yyyy", with `day` in the place of the day. Empty where there is none.
std::string PictureWithDay(LCID locale, int day) {
    Text picture{};
    GetLocaleInfoA(locale, LOCALE_SSHORTDATE, picture.data(), static_cast<int>(picture.size()));
    std::string withDay;
    bool quoted = false;
    for (const char* p = picture.data(); *p != '\0';) {
        quoted = quoted != (*p == '\'');
        const std::size_t days = quoted ? 0 : std::strspn(p, "d");
        if (days == 1 || days == 2) {  // three and four mean the day of the week
            withDay += std::to_string(day);
        } else {
            withDay.append(p, days == 0 ? 1 : days);
        }
        p += days == 0 ? 1 : days;
    }
    return withDay;
}

}  // namespace

UserLocale::UserLocale() : m_handle(reinterpret_cast<void*>(static_cast<UINT_PTR>(GetUserDefaultLCID()))) {}

UserLocale::~UserLocale() = default;

bool UserLocale::Write(CalendarDay day, CKRMString& result) const {
    SYSTEMTIME time{};
    time.wYear = static_cast<WORD>(day.year);
    time.wMonth = static_cast<WORD>(day.month);
    time.wDay = static_cast<WORD>(day.day);
    Text text;
    const auto locale = static_cast<LCID>(reinterpret_cast<UINT_PTR>(m_handle));
    const int size = static_cast<int>(text.size());
    if (GetDateFormatA(locale, DATE_SHORTDATE, &time, nullptr, text.data(), size) == 0) {
        // Windows refuses the 31st of February, which elsewhere is shown as it was sent.
        time.wDay = 1;
        const std::string picture = PictureWithDay(locale, day.day);
        if (picture.empty() || GetDateFormatA(locale, 0, &time, picture.c_str(), text.data(), size) == 0) {
            return false;
        }
    }
    result = text.data();
    return true;
}

bool UserLocale::Write(TimeOfDay time, CKRMString& result) const {
    SYSTEMTIME day{};
    day.wYear = 1900;
    day.wMonth = 1;
    day.wDay = 1;
    day.wHour = static_cast<WORD>(time.hour);
    day.wMinute = static_cast<WORD>(time.minute);
    day.wSecond = static_cast<WORD>(time.second);
    Text text;
    const auto locale = static_cast<LCID>(reinterpret_cast<UINT_PTR>(m_handle));
    if (GetTimeFormatA(locale, 0, &day, nullptr, text.data(), static_cast<int>(text.size())) == 0) {
        return false;
    }
    result = text.data();
    return true;
}

#else

namespace {

bool Format(const char* format, const std::tm& time, void* locale, CKRMString& result) {
    Text text;
    if (strftime_l(text.data(), text.size(), format, &time, static_cast<locale_t>(locale)) == 0) {
        return false;
    }
    result = text.data();
    return true;
}

}  // namespace

UserLocale::UserLocale() : m_handle(newlocale(LC_ALL_MASK, "", static_cast<locale_t>(nullptr))) {}

UserLocale::~UserLocale() {
    if (m_handle != nullptr) {
        freelocale(static_cast<locale_t>(m_handle));
    }
}

bool UserLocale::Write(CalendarDay day, CKRMString& result) const {
    std::tm time{};
    time.tm_year = day.year - 1900;
    time.tm_mon = day.month - 1;
    time.tm_mday = day.day;
    return Format("%x", time, m_handle, result);
}

bool UserLocale::Write(TimeOfDay timeOfDay, CKRMString& result) const {
    std::tm time{};
    time.tm_hour = timeOfDay.hour;
    time.tm_min = timeOfDay.minute;
    time.tm_sec = timeOfDay.second;
    return Format("%X", time, m_handle, result);
}

#endif

}  // namespace krm::convert
