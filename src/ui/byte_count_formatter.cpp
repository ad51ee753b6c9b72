#include "ui/byte_count_formatter.h"

#include <QLatin1StringView>

#include <array>

namespace vantor {

namespace {

constexpr std::array units{"bytes", "KB", "MB", "GB", "TB", "PB", "EB"};
constexpr std::size_t megabytes = 2;

struct Fraction {
    std::uint64_t value = 0;  ///< in units of the last digit
    std::uint64_t limit = 1;  ///< ten to the number of digits
};

Fraction fractionOf(std::uint64_t rest, std::uint64_t unitSize, std::size_t unit) {
    std::uint64_t limit = unit < megabytes ? 1 : unit == megabytes ? 10 : 100;
    // Exabytes times a hundred do not fit 64 bits; a thousandth of them does, and loses nothing
    // that two digits could show.
    while (unitSize > UINT64_MAX / 1000) {
        unitSize /= 1000;
        rest /= 1000;
    }
    if (unit == megabytes && rest * 100 % unitSize == 0) limit = 100;
    return {(rest * limit + unitSize / 2) / unitSize, limit};
}

QString fractionText(Fraction fraction) {
    if (fraction.value == 0) return {};
    while (fraction.value % 10 == 0) {
        fraction.value /= 10;
        fraction.limit /= 10;
    }
    const QString digits = QString::number(fraction.limit + fraction.value);
    return u'.' + digits.mid(1);  // the leading 1 has kept the zeros before the digits
}

}  // namespace

QString ByteCountFormatter::string(std::int64_t count) const {
    // NOLINTBEGIN(clang-analyzer-core.DivideZero): the sixth power of 1024 still fits
    const std::uint64_t bytes = count > 0 ? static_cast<std::uint64_t>(count) : 0;
    std::size_t unit = 0;
    std::uint64_t unitSize = 1;
    while (unit + 1 < units.size() && bytes / unitSize >= multiple_) {
        unitSize *= multiple_;
        ++unit;
    }
    std::uint64_t whole = bytes / unitSize;
    Fraction fraction = fractionOf(bytes % unitSize, unitSize, unit);
    // NOLINTEND(clang-analyzer-core.DivideZero)
    if (fraction.value >= fraction.limit) {
        fraction.value = 0;
        ++whole;
    }
    if (whole == multiple_ && unit + 1 < units.size()) {
        whole = 1;
        ++unit;
    }
    const char* const name = unit == 0 && whole == 1 ? "byte" : units[unit];
    return QString::number(whole) + fractionText(fraction) + u' ' + QLatin1StringView(name);
}

}  // namespace vantor
