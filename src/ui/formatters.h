#pragma once

#include <QLocale>
#include <QString>

#include <cstdint>

/// Every number that the views show as text passes through here: with the digits and the decimal
/// sign of `locale`, which is the user's unless another one is passed, and with the words around it
/// from the catalogue. Thousands are not set apart. Stateless.
namespace vantor::Formatters {

/// Memory sizes, in binary units.
QString bytes(std::uint64_t count, const QLocale& locale = QLocale());

/// Speeds, in decimal units with "/s"; "0 B/s" for a rate that is not finite or not above zero.
QString rate(double bytesPerSecond, const QLocale& locale = QLocale());

/// A fraction 0 to 1 as a percentage with `precision` decimals, held within 0 and 100; "—" for one
/// that is not finite.
QString percent(double fraction, int precision, const QLocale& locale = QLocale());

/// Days, hours and minutes: 42m, 3h 5m, 2d 0h 7m; "Unknown" for what cannot be a time.
QString uptime(double seconds, const QLocale& locale = QLocale());

/// A written number as a percentage.
QString percentOf(const QString& number);

/// With up to six digits, and no more decimals than it has: 0.5, 2.
QString number(double value, const QLocale& locale = QLocale());

/// `value` with `precision` decimals, rounded the way printf's %.*f rounds.
QString fixed(double value, int precision, const QLocale& locale = QLocale());

/// A whole number.
QString count(std::int64_t value, const QLocale& locale = QLocale());

/// A number that is written as in the C locale.
QString localised(const QString& plain, const QLocale& locale = QLocale());

}  // namespace vantor::Formatters
