#include "ui/byte_count_formatter.h"

#include <QCoreApplication>

#include <array>

#include "ui/formatters.h"
#include "ui/translate.h"

namespace vantor {

namespace {

constexpr auto byteCountContext = "ByteCountFormatter";
/// Those of 1024 and of 1000 bytes are called the same. The first one has a plural.
constexpr std::array units{"",
                           //: an amount of 1000 or 1024 bytes each
                           QT_TRANSLATE_NOOP("ByteCountFormatter", "%1 KB"),
                           //: an amount of about a million bytes each
                           QT_TRANSLATE_NOOP("ByteCountFormatter", "%1 MB"),
                           //: an amount of 1000 or 1024 MB each
                           QT_TRANSLATE_NOOP("ByteCountFormatter", "%1 GB"),
                           //: an amount of 1000 or 1024 GB each
                           QT_TRANSLATE_NOOP("ByteCountFormatter", "%1 TB"),
                           //: an amount of 1000 or 1024 TB each
                           QT_TRANSLATE_NOOP("ByteCountFormatter", "%1 PB"),
                           //: an amount of 1000 or 1024 PB each
                           QT_TRANSLATE_NOOP("ByteCountFormatter", "%1 EB")};
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

QString inBytes(int count, const QLocale& locale) {
    QString text = translate("ByteCountFormatter", "%Ln byte(s)", nullptr, count);
    // The toolkit counts in its default locale, whatever is passed here.
    const QLocale counted;
    if (counted != locale) text.replace(counted.toString(count), Formatters::count(count, locale));
    return text;
}

}  // namespace

QString ByteCountFormatter::string(std::int64_t count, const QLocale& locale) const {
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
    if (unit == 0) return inBytes(static_cast<int>(whole), locale);
    return translate(byteCountContext, units[unit])
        .arg(Formatters::localised(QString::number(whole) + fractionText(fraction), locale));
}

}  // namespace vantor
