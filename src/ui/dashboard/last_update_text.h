#pragma once

#include <QLocale>
#include <QString>

#include <cstdint>
#include <optional>

#include "model/timestamp.h"

namespace vantor {

/// The footer's text for the last commit: its time of day to the second, or that there has been
/// none. Caches what does not change from tick to tick. Main thread.
class LastUpdateText {
  public:
    QString of(Timestamp timestamp, const QLocale& locale);

  private:
    void adopt(const QLocale& locale);
    /// Seconds that the user's clocks are ahead of UTC at that moment.
    std::int64_t offsetAt(std::int64_t second);

    std::optional<QLocale> locale_;
    QString format_;
    std::optional<std::int64_t> minute_;  ///< since the epoch, that the offset was asked for
    std::int64_t offset_ = 0;
};

}  // namespace vantor
