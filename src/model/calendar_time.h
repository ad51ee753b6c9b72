#pragma once

namespace vantor {

/// A moment by the calendar (Gregorian) and the clock of some time zone.
struct CalendarTime {
    int year = 1970;
    int month = 1;  ///< from 1
    int day = 1;    ///< from 1
    int hour = 0;   ///< 0 to 23
    int minute = 0;
    int second = 0;  ///< 60 in a leap second, where the system counts those

    bool operator==(const CalendarTime&) const = default;
};

}  // namespace vantor
