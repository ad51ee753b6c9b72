#include "ui/formatters.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <string_view>

#include "model/number_text.h"
#include "ui/byte_count_formatter.h"

namespace vantor::Formatters {

namespace {

constexpr ByteCountFormatter bytesFormatter{ByteCountFormatter::Style::memory};
constexpr ByteCountFormatter rateFormatter{ByteCountFormatter::Style::decimal};

constexpr double twoTo63 = 9223372036854775808.0;
constexpr auto largest = std::numeric_limits<std::int64_t>::max();

}  // namespace

QString bytes(std::uint64_t count) {
    return bytesFormatter.string(
        static_cast<std::int64_t>(std::min(count, static_cast<std::uint64_t>(largest))));
}

QString rate(double bytesPerSecond) {
    if (!std::isfinite(bytesPerSecond) || !(bytesPerSecond > 0)) return QStringLiteral("0 B/s");
    const auto count =
        bytesPerSecond >= twoTo63 ? largest : static_cast<std::int64_t>(bytesPerSecond);
    return rateFormatter.string(count) + QStringLiteral("/s");
}

QString percent(double fraction, int precision) {
    if (!std::isfinite(fraction)) return QStringLiteral("—");
    const double clamped = fraction <= 0 ? 0 : std::min(fraction, 1.0);
    return fixed(clamped * 100, precision) + u'%';
}

QString uptime(double seconds) {
    if (!std::isfinite(seconds) || seconds < 0) return QStringLiteral("Unknown");
    const double wholeMinutes = std::floor(seconds / 60);
    if (wholeMinutes >= twoTo63) return QStringLiteral("Unknown");
    const auto minutes = static_cast<std::int64_t>(wholeMinutes);
    const auto days = minutes / 1440;
    const auto hours = minutes % 1440 / 60;
    QString tail = QString::number(minutes % 60) + u'm';
    if (days > 0) return QStringLiteral("%1d %2h ").arg(days).arg(hours) + tail;
    if (hours > 0) return QStringLiteral("%1h ").arg(hours) + tail;
    return tail;
}

QString interval(double seconds, const QString& unit) {
    return QString::number(seconds, 'g', 6) + u' ' + unit;
}

QString fixed(double value, int precision) {
    // The toolkit rounds exact halves up, where printf rounds them to even.
    constexpr std::size_t maxDigits = std::numeric_limits<double>::max_exponent10 + 32;
    std::array<char, maxDigits> digits{};
    const std::string_view text = fixedText(digits, value, precision);
    if (text.empty()) return QString::number(value, 'f', precision);
    return QString::fromLatin1(text.data(), static_cast<qsizetype>(text.size()));
}

}  // namespace vantor::Formatters
