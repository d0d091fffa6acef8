// The user's locale, for the two converters that follow it. Part of the library's inside, and the one place that knows
// the system's ways of writing a date.
#ifndef KRM_CONVERT_INTERNAL_USER_LOCALE_H_
#define KRM_CONVERT_INTERNAL_USER_LOCALE_H_

#include <memory>

#include "krm/platform/platform.h"

namespace krm::convert {

/// A day of the calendar; out of range where the month or the day doesn't exist.
struct CalendarDay {
    int year;
    int month;  ///< 1 to 12
    int day;    ///< 1 to 31
};

/// A time of day.
struct TimeOfDay {
    int hour;
    int minute;
    int second;
};

/// Owns a handle of the user's locale as it was at construction. Immutable: may be shared between threads.
class UserLocale {
public:
    /// The user's locale, or null where it doesn't exist or memory runs out. Doesn't throw.
    static std::shared_ptr<const UserLocale> Create() noexcept;

    ~UserLocale();
    UserLocale(const UserLocale&) = delete;
    UserLocale& operator=(const UserLocale&) = delete;

    /// Assigns the locale's short date and returns true; returns false and assigns nothing where that can't be written.
    bool Write(CalendarDay day, CKRMString& result) const;
    /// The same for the locale's time of day.
    bool Write(TimeOfDay time, CKRMString& result) const;

private:
    UserLocale();

    void* m_handle;
};

}  // namespace krm::convert

#endif  // KRM_CONVERT_INTERNAL_USER_LOCALE_H_
