#pragma once

#include <QString>

#include <cstdint>

/// Every number that the views show as text passes through here. Stateless; the same in every
/// locale, so that figures keep their width and never change meaning with the decimal sign.
namespace vantor::Formatters {

/// Memory sizes, in binary units.
QString bytes(std::uint64_t count);

/// Speeds, in decimal units with "/s"; "0 B/s" for a rate that is not finite or not above zero.
QString rate(double bytesPerSecond);

/// A fraction 0 to 1 as a percentage with `precision` decimals, held within 0 and 100; "—" for one
/// that is not finite.
QString percent(double fraction, int precision);

/// Days, hours and minutes: 42m, 3h 5m, 2d 0h 7m; "Unknown" for what cannot be a time.
QString uptime(double seconds);

/// The seconds between two readings with that unit behind: "0.5 s", "2 seconds".
QString interval(double seconds, const QString& unit);

/// `value` with `precision` decimals, the way printf's %.*f writes it in the C locale.
QString fixed(double value, int precision);

}  // namespace vantor::Formatters
