#include "platform/posix/posix_local_calendar.h"

#include <ctime>

namespace vantor {

CalendarTime PosixLocalCalendar::at(std::chrono::system_clock::time_point moment) const {
    const auto seconds = std::chrono::floor<std::chrono::seconds>(moment).time_since_epoch();
    const auto instant = static_cast<std::time_t>(seconds.count());
    std::tm local{};
    // Unlike localtime, localtime_r looks at the zone only once in the program's life.
    ::tzset();
    ::localtime_r(&instant, &local);  // fails only for years beyond an int
    return {local.tm_year + 1900, local.tm_mon + 1, local.tm_mday,
            local.tm_hour,        local.tm_min,     local.tm_sec};
}

}  // namespace vantor
