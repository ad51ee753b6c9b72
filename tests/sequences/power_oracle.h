#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "model/power_read_result.h"

namespace vantor {

/// Works out what is to be said of a list of power sources. Every reading stands for itself.
class PowerOracle {
  public:
    /// A field is absent when it is missing or of another kind than it should be.
    struct Source {
        bool isFetchable = true;
        bool isDescribed = true;
        std::optional<std::string> type;
        std::optional<std::string> name;
        std::optional<std::string> state;
        std::optional<std::int64_t> current;
        std::optional<std::int64_t> maximum;
        std::optional<bool> isCharging;
        std::optional<std::int64_t> minutesToFull;
        std::optional<std::int64_t> minutesToEmpty;
        std::optional<std::int64_t> cycles;
    };

    /// `sources` is absent when there is no list.
    static std::optional<std::string> judge(const PowerReadResult& actual,
                                            const std::optional<std::vector<Source>>& sources);
};

}  // namespace vantor
