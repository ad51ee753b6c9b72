#pragma once

#include <QLocale>
#include <QString>

#include <cstdint>

namespace vantor {

/// Writes byte counts for people: 512 bytes, 1.5 MB, 16 GB.
///
/// The unit is always there and the fraction shrinks with it: none for bytes and KB, one digit for
/// MB, two from GB on; zeros at its end are not written. A count of MB that two digits tell exactly
/// keeps both (1.25 MB): rounding would take a true digit away. Halves round up, and a count that
/// rounds up to a whole next unit is written in that unit. Numbers are written as Formatters writes
/// them. Stateless.
class ByteCountFormatter {
  public:
    enum class Style {
        memory,  ///< 1 KB = 1024 bytes
        decimal  ///< 1 KB = 1000 bytes
    };

    explicit constexpr ByteCountFormatter(Style style)
        : multiple_(style == Style::memory ? 1024 : 1000) {}

    /// A negative count is written as 0.
    QString string(std::int64_t count, const QLocale& locale = QLocale()) const;

  private:
    std::uint64_t multiple_;
};

}  // namespace vantor
