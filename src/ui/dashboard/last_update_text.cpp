#include "ui/dashboard/last_update_text.h"

#include <QDateTime>
#include <QTime>

#include <chrono>

#include "model/system_snapshot.h"
#include "ui/translate.h"

namespace vantor {

namespace {

constexpr std::int64_t secondsPerMinute = 60;
constexpr std::int64_t secondsPerDay = 86'400;

/// The format without the letter of the time zone and what sets it apart ("HH:mm:ss (t)",
/// "HH:mm:ss, t"), and with morning and afternoon for the parts of the day in words that some
/// locales ask for: the toolkit knows no such letter and would spell a "B". Quoted words stay.
QString withoutZoneAndDayParts(const QString& format) {
    QString plain;
    bool isQuoted = false;
    for (qsizetype i = 0; i < format.size(); ++i) {
        const QChar c = format[i];
        if (c == u'\'') isQuoted = !isQuoted;
        if (isQuoted || (c != u't' && c != u'B')) {
            plain += c;
        } else if (c == u'B') {
            plain += QStringLiteral("AP");
        } else {
            if (plain.endsWith(u'(') || plain.endsWith(u'[')) plain.chop(1);
            while (!plain.isEmpty() && plain.back().isSpace())
                plain.chop(1);
            if (plain.endsWith(u',')) plain.chop(1);
            const QChar next = i + 1 < format.size() ? format[i + 1] : QChar();
            if (next == u')' || next == u']') ++i;
        }
    }
    return plain.simplified();
}

}  // namespace

void LastUpdateText::adopt(const QLocale& locale) {
    if (locale_ == locale) return;
    locale_ = locale;
    // The long form is the one with seconds.
    format_ = withoutZoneAndDayParts(locale.timeFormat(QLocale::LongFormat));
}

/// Asking reads the zone's file. Daylight saving begins and ends at whole minutes; a user who
/// travels sees the change a minute later.
std::int64_t LastUpdateText::offsetAt(std::int64_t second) {
    const std::int64_t minute = second / secondsPerMinute;
    if (minute != minute_) {
        minute_ = minute;
        offset_ = QDateTime::fromSecsSinceEpoch(second).offsetFromUtc();
    }
    return offset_;
}

QString LastUpdateText::of(Timestamp timestamp, const QLocale& locale) {
    if (timestamp == SystemSnapshot::empty().timestamp)
        return translate("LastUpdateText", "Collecting live data…");
    adopt(locale);
    const std::int64_t second =
        std::chrono::floor<std::chrono::seconds>(timestamp.time_since_epoch()).count();
    const std::int64_t local = second + offsetAt(second);
    const std::int64_t ofDay = (local % secondsPerDay + secondsPerDay) % secondsPerDay;
    const QTime time = QTime::fromMSecsSinceStartOfDay(static_cast<int>(ofDay * 1000));
    return
        //: %1 is a time of day
        translate("LastUpdateText", "Updated %1").arg(locale.toString(time, format_));
}

}  // namespace vantor
