#pragma once

#include <chrono>

#include "model/calendar_time.h"

namespace vantor {

/// The calendar and the clock of where the user is. Any thread.
class LocalCalendar {
  public:
    virtual ~LocalCalendar() = default;

    /// In whole seconds, rounded down; by the rules for summer time of that very day. A time zone
    /// that the user has changed meanwhile counts.
    virtual CalendarTime at(std::chrono::system_clock::time_point moment) const = 0;
};

}  // namespace vantor
