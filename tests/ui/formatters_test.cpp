#include "ui/formatters.h"

#include <gtest/gtest.h>

#include <QLocale>

#include <array>
#include <clocale>
#include <cmath>
#include <cstdio>
#include <limits>
#include <locale>
#include <string>

#include "ui/rendering.h"

namespace vantor::formatters_test {
namespace {

using std::numeric_limits;

constexpr double nan = numeric_limits<double>::quiet_NaN();
constexpr double infinity = numeric_limits<double>::infinity();

std::string rate(double bytesPerSecond) {
    return utf8(Formatters::rate(bytesPerSecond));
}
std::string percent(double fraction, int precision) {
    return utf8(Formatters::percent(fraction, precision));
}
std::string uptime(double seconds) {
    return utf8(Formatters::uptime(seconds));
}
std::string printed(double value, int precision) {
    std::array<char, 400> buffer{};
    std::snprintf(buffer.data(), buffer.size(), "%.*f", precision, value);
    return buffer.data();
}

TEST(Formatters, BytesAreBinaryAndHeldWithinASignedCount) {
    EXPECT_EQ(utf8(Formatters::bytes(0)), "0 bytes");
    EXPECT_EQ(utf8(Formatters::bytes(17'179'869'184)), "16 GB");
    EXPECT_EQ(utf8(Formatters::bytes(numeric_limits<std::uint64_t>::max())), "8 EB");
}

TEST(Formatters, RateOfZeroLessNoNumberOrInfinityIsZero) {
    for (const double nothing : {0.0, -0.0, -5.0, nan, infinity, -infinity}) {
        EXPECT_EQ(rate(nothing), "0 B/s") << nothing;
    }
}

TEST(Formatters, RateIsDecimalAndTruncatedToWholeBytes) {
    EXPECT_EQ(rate(1), "1 byte/s");
    EXPECT_EQ(rate(1.999), "1 byte/s");
    EXPECT_EQ(rate(999.99), "999 bytes/s");
    EXPECT_EQ(rate(1000), "1 KB/s");
    EXPECT_EQ(rate(1'250'000), "1.25 MB/s");
    EXPECT_EQ(rate(0.25), "0 bytes/s");
}

TEST(Formatters, RateBeyondASignedCountIsTheLargest) {
    EXPECT_EQ(rate(9.3e18), "9.22 EB/s");
    EXPECT_EQ(rate(std::ldexp(1, 63)), "9.22 EB/s");
    EXPECT_EQ(rate(1e300), "9.22 EB/s");
}

TEST(Formatters, PercentHasThePrecisionAskedFor) {
    EXPECT_EQ(percent(0.4567, 1), "45.7%");
    EXPECT_EQ(percent(0.4567, 0), "46%");
    EXPECT_EQ(percent(0.4567, 3), "45.670%");
    EXPECT_EQ(percent(1, 1), "100.0%");
}

TEST(Formatters, PercentIsHeldWithinNoneAndAll) {
    EXPECT_EQ(percent(1.7, 0), "100%");
    EXPECT_EQ(percent(-0.2, 1), "0.0%");
    EXPECT_EQ(percent(-0.0, 1), "0.0%");
}

TEST(Formatters, PercentOfNoNumberIsADash) {
    for (const double none : {nan, infinity, -infinity}) {
        EXPECT_EQ(percent(none, 1), "\u2014") << none;
    }
}

TEST(Formatters, UptimeBelowAnHourIsMinutes) {
    EXPECT_EQ(uptime(0), "0m");
    EXPECT_EQ(uptime(59), "0m");
    EXPECT_EQ(uptime(60), "1m");
    EXPECT_EQ(uptime(42 * 60), "42m");
    EXPECT_EQ(uptime(3599.999), "59m");
}

TEST(Formatters, UptimeBelowADayIsHoursAndMinutes) {
    EXPECT_EQ(uptime(3600), "1h 0m");
    EXPECT_EQ(uptime(3 * 3600 + 5 * 60), "3h 5m");
    EXPECT_EQ(uptime(86'399), "23h 59m");
}

TEST(Formatters, UptimeFromADayOnWritesZeroHours) {
    EXPECT_EQ(uptime(86'400), "1d 0h 0m");
    EXPECT_EQ(uptime(2 * 86'400 + 7 * 60), "2d 0h 7m");
    EXPECT_EQ(uptime(400 * 86'400.0 + 3600), "400d 1h 0m");
}

TEST(Formatters, UptimeThatCannotBeIsUnknown) {
    for (const double impossible : {-1.0, -0.001, nan, infinity, -infinity, 1e30}) {
        EXPECT_EQ(uptime(impossible), "Unknown") << impossible;
    }
}

TEST(Formatters, UptimeGoesUpToTheLastMinuteThatCanBeCounted) {
    EXPECT_EQ(uptime(std::ldexp(60, 63)), "Unknown");
    EXPECT_NE(uptime(std::ldexp(59, 63)), "Unknown");
}

TEST(Formatters, FixedRoundsAsPrintfDoes) {
    // Exact halves are where two ways of rounding part.
    for (const double value : {0.125, 0.375, 0.5, 1.5, 2.5, 12.5, 0.25, 0.75, -0.125, -2.5}) {
        for (const int precision : {0, 1, 2}) {
            EXPECT_EQ(utf8(Formatters::fixed(value, precision)), printed(value, precision))
                << value << " with " << precision;
        }
    }
}

TEST(Formatters, FixedEqualsPrintfForFiguresOfEverySize) {
    double value = 1e-9;
    for (int i = 0; i < 400; ++i, value *= 1.1733) {
        for (const int precision : {0, 1, 2, 6}) {
            ASSERT_EQ(utf8(Formatters::fixed(value, precision)), printed(value, precision));
        }
    }
    const double most = numeric_limits<double>::max();
    EXPECT_EQ(utf8(Formatters::fixed(most, 2)), printed(most, 2));
}

/// A language that writes 1.234,5.
struct CommaNumbers : std::numpunct<char> {
  protected:
    char do_decimal_point() const override { return ','; }
    char do_thousands_sep() const override { return '.'; }
    std::string do_grouping() const override { return "\3"; }
};

TEST(Formatters, WriteTheSameInEveryLocaleOfTheLibraryForC) {
    const std::locale before = std::locale::global(
        std::locale(std::locale::classic(), std::make_unique<CommaNumbers>().release()));
    for (const char* const installed : {"de_DE.UTF-8", "fr_FR.UTF-8", "C.UTF-8"}) {
        if (std::setlocale(LC_NUMERIC, installed)) break;
    }
    EXPECT_EQ(percent(0.4567, 1), "45.7%");
    EXPECT_EQ(rate(1'250'000), "1.25 MB/s");
    EXPECT_EQ(utf8(Formatters::bytes(1023)), "1023 bytes");
    EXPECT_EQ(utf8(Formatters::fixed(12345.678, 2)), "12345.68");
    EXPECT_EQ(uptime(5000 * 86'400.0), "5000d 0h 0m");
    std::setlocale(LC_NUMERIC, "C");
    std::locale::global(before);
}

TEST(Formatters, WriteTheDecimalSignOfTheLocale) {
    const QLocale german(QLocale::German, QLocale::Germany);
    EXPECT_EQ(utf8(Formatters::percent(0.4567, 1, german)), "45,7%");
    EXPECT_EQ(utf8(Formatters::rate(1'250'000, german)), "1,25 MB/s");
    EXPECT_EQ(utf8(Formatters::bytes(1'610'612'736, german)), "1,5 GB");
    EXPECT_EQ(utf8(Formatters::bytes(1023, german)), "1023 bytes");
    EXPECT_EQ(utf8(Formatters::fixed(12345.678, 2, german)), "12345,68");
    EXPECT_EQ(utf8(Formatters::number(0.5, german)), "0,5");
}

TEST(Formatters, WriteTheDigitsOfTheLocale) {
    const QLocale egyptian(QLocale::Arabic, QLocale::Egypt);
    EXPECT_EQ(utf8(Formatters::fixed(-45.678, 1, egyptian)), "-٤٥٫٧");
    EXPECT_EQ(utf8(Formatters::count(1234567890, egyptian)), "١٢٣٤٥٦٧٨٩٠");
    EXPECT_EQ(utf8(Formatters::bytes(1023, egyptian)), "١٠٢٣ bytes");
    EXPECT_EQ(utf8(Formatters::uptime(5000 * 86'400.0, egyptian)), "٥٠٠٠d ٠h ٠m");
    const QLocale chakma(QLocale::Chakma);  // whose own are beyond the first plane
    EXPECT_EQ(utf8(Formatters::count(1234, chakma)), "1234");
}

TEST(Formatters, WriteTheSameForEnglishAsWithoutAnyLocale) {
    const QLocale english(QLocale::English, QLocale::UnitedStates);
    EXPECT_EQ(utf8(Formatters::fixed(12345.678, 2, english)), "12345.68");
    EXPECT_EQ(utf8(Formatters::count(5000, english)), "5000");
}

TEST(Formatters, FollowTheUserWhereNoLocaleIsPassed) {
    QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
    EXPECT_EQ(percent(0.4567, 1), "45,7%");
    QLocale::setDefault(QLocale::c());
}

}  // namespace
}  // namespace vantor::formatters_test
