#include "platform/posix/posix_local_calendar.h"

#include <gtest/gtest.h>

#include <chrono>
#include <cstdlib>
#include <ctime>
#include <optional>
#include <string>

#include "model/snapshot_file_name.h"

namespace vantor::posix_local_calendar_test {
namespace {

using namespace std::chrono;

/// The user's time zone for a while.
class TimeZone {
  public:
    explicit TimeZone(const char* zone) {
        if (const char* before = std::getenv("TZ")) before_ = before;
        ::setenv("TZ", zone, 1);
    }
    TimeZone(const TimeZone&) = delete;
    TimeZone& operator=(const TimeZone&) = delete;
    ~TimeZone() {
        before_ ? ::setenv("TZ", before_->c_str(), 1) : ::unsetenv("TZ");
        ::tzset();
    }

  private:
    std::optional<std::string> before_;
};

constexpr auto centralEurope = "CET-1CEST,M3.5.0,M10.5.0/3";

TEST(LocalCalendar, NamesASnapshotOfAFebruaryMorningByTheLocalClock) {
    const TimeZone zone(centralEurope);
    const auto moment = sys_days{February / 3 / 2026} + 8h + 5min + 7s;
    EXPECT_EQ(snapshotFileName(PosixLocalCalendar().at(moment)), "Vantor-2026-02-03-090507.json");
}

TEST(LocalCalendar, KnowsSummerTime) {
    const TimeZone zone(centralEurope);
    EXPECT_EQ(PosixLocalCalendar().at(sys_days{July / 31 / 2026} + 22h),
              (CalendarTime{2026, 8, 1, 0, 0, 0}));
}

TEST(LocalCalendar, FollowsAUserWhoTravels) {
    const PosixLocalCalendar calendar;
    const auto moment = sys_days{December / 31 / 2026} + 20h;
    {
        const TimeZone zone("UTC0");
        EXPECT_EQ(calendar.at(moment), (CalendarTime{2026, 12, 31, 20, 0, 0}));
    }
    const TimeZone zone("IST-5:30");
    EXPECT_EQ(calendar.at(moment), (CalendarTime{2027, 1, 1, 1, 30, 0}));
}

TEST(LocalCalendar, RoundsDownBeforeTheEpochToo) {
    const TimeZone zone("UTC0");
    EXPECT_EQ(PosixLocalCalendar().at(sys_days{January / 1 / 1970} - 1ms),
              (CalendarTime{1969, 12, 31, 23, 59, 59}));
    EXPECT_EQ(PosixLocalCalendar().at(sys_days{January / 1 / 1970} + 999ms),
              (CalendarTime{1970, 1, 1, 0, 0, 0}));
}

TEST(LocalCalendar, HasADayForTheEarliestMoment) {
    const TimeZone zone("UTC0");
    EXPECT_EQ(PosixLocalCalendar().at(system_clock::time_point::min()).year, 1677);
}

}  // namespace
}  // namespace vantor::posix_local_calendar_test
