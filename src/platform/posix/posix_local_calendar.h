#pragma once

#include "platform/local_calendar.h"

namespace vantor {

/// By the C library: TZ, else /etc/localtime.
class PosixLocalCalendar : public LocalCalendar {
  public:
    CalendarTime at(std::chrono::system_clock::time_point moment) const override;
};

}  // namespace vantor
