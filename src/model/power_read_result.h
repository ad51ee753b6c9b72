#pragma once

#include <optional>
#include <variant>

#include "model/power_stats.h"

namespace vantor {

/// The answer of the power probe: either an update (an absent record means that the machine has
/// no battery, which is a result too) or a failure (no new value this time).
class PowerReadResult {
  public:
    static PowerReadResult update(std::optional<PowerStats> stats) {
        return PowerReadResult{std::move(stats)};
    }
    static PowerReadResult failure() { return PowerReadResult{Failure{}}; }

    bool isUpdate() const { return std::holds_alternative<Update>(value_); }
    /// The record; to be called of an update only.
    const std::optional<PowerStats>& stats() const { return std::get<Update>(value_); }

    bool operator==(const PowerReadResult&) const = default;

  private:
    using Update = std::optional<PowerStats>;
    struct Failure {
        bool operator==(const Failure&) const = default;
    };

    explicit PowerReadResult(std::variant<Failure, Update> value) : value_(std::move(value)) {}

    std::variant<Failure, Update> value_;
};

}  // namespace vantor
