#include "ui/formatters.h"

#include <QLocale>

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <string_view>
#include <utility>

#include "model/number_text.h"
#include "ui/byte_count_formatter.h"
#include "ui/translate.h"

namespace vantor::Formatters {

namespace {

constexpr ByteCountFormatter bytesFormatter{ByteCountFormatter::Style::memory};
constexpr ByteCountFormatter rateFormatter{ByteCountFormatter::Style::decimal};

constexpr double twoTo63 = 9223372036854775808.0;
constexpr auto largest = std::numeric_limits<std::int64_t>::max();

QString unknownTime() {
    //: a time that the machine does not tell
    return translate("Formatters", "Unknown");
}

/// What the C locale writes, in the digits and with the signs of `locale`.
QString inLocale(QString number, const QLocale& locale) {
    if (locale == QLocale::c()) return number;
    const QString point = locale.decimalPoint();
    const QString zeroDigit = locale.zeroDigit();
    // Digits beyond the first plane are those of scripts that hardly any font can show.
    const char16_t zero = zeroDigit.size() == 1 ? zeroDigit.front().unicode() : u'0';
    if (point == u"." && zero == u'0') return number;
    QString result;
    result.reserve(number.size());
    for (const QChar c : std::as_const(number)) {
        if (c >= u'0' && c <= u'9') {
            result += QChar(static_cast<char16_t>(zero + (c.unicode() - u'0')));
        } else if (c == u'.') {
            result += point;
        } else {
            result += c;
        }
    }
    return result;
}

QString plainFixed(double value, int precision) {
    // The toolkit rounds exact halves up, where printf rounds them to even.
    constexpr std::size_t maxDigits = std::numeric_limits<double>::max_exponent10 + 32;
    std::array<char, maxDigits> digits{};
    const std::string_view text = fixedText(digits, value, precision);
    if (text.empty()) return QString::number(value, 'f', precision);
    return QString::fromLatin1(text.data(), static_cast<qsizetype>(text.size()));
}

}  // namespace

QString bytes(std::uint64_t count, const QLocale& locale) {
    return bytesFormatter.string(
        static_cast<std::int64_t>(std::min(count, static_cast<std::uint64_t>(largest))), locale);
}

QString rate(double bytesPerSecond, const QLocale& locale) {
    //: a speed of zero: %1 is 0, B stands for bytes and s for a second
    if (!std::isfinite(bytesPerSecond) || !(bytesPerSecond > 0))
        return translate("Formatters", "%1 B/s").arg(count(0, locale));
    const auto whole =
        bytesPerSecond >= twoTo63 ? largest : static_cast<std::int64_t>(bytesPerSecond);
    //: a speed: %1 is an amount such as 1.5 MB, s stands for a second
    return translate("Formatters", "%1/s").arg(rateFormatter.string(whole, locale));
}

QString percent(double fraction, int precision, const QLocale& locale) {
    if (!std::isfinite(fraction)) return QStringLiteral("—");
    const double clamped = fraction <= 0 ? 0 : std::min(fraction, 1.0);
    return percentOf(fixed(clamped * 100, precision, locale));
}

QString uptime(double seconds, const QLocale& locale) {
    if (!std::isfinite(seconds) || seconds < 0) return unknownTime();
    const double wholeMinutes = std::floor(seconds / 60);
    if (wholeMinutes >= twoTo63) return unknownTime();
    const auto minutes = static_cast<std::int64_t>(wholeMinutes);
    const auto days = minutes / 1440;
    const auto hours = minutes % 1440 / 60;
    const QString rest = count(minutes % 60, locale);
    //: a time of days, hours and minutes, as short as possible
    if (days > 0)
        return translate("Formatters", "%1d %2h %3m")
            .arg(count(days, locale), count(hours, locale), rest);
    //: a time of hours and minutes, as short as possible
    if (hours > 0) return translate("Formatters", "%1h %2m").arg(count(hours, locale), rest);
    //: a time of minutes, as short as possible
    return translate("Formatters", "%1m").arg(rest);
}

QString percentOf(const QString& number) {
    //: a percentage: %1 is the number, the sign behind it stays
    return translate("Formatters", "%1%").arg(number);
}

QString number(double value, const QLocale& locale) {
    return inLocale(QString::number(value, 'g', 6), locale);
}

QString fixed(double value, int precision, const QLocale& locale) {
    return inLocale(plainFixed(value, precision), locale);
}

QString count(std::int64_t value, const QLocale& locale) {
    return inLocale(QString::number(value), locale);
}

QString localised(const QString& plain, const QLocale& locale) {
    return inLocale(plain, locale);
}

}  // namespace vantor::Formatters
