#pragma once

#include <cstdint>
#include <map>
#include <optional>

#include "platform/linux/processes/process_clocks.h"

namespace vantor::fuzz {

/// CPU clocks with any value.
class LyingClocks : public ProcessClocks {
  public:
    std::map<std::int32_t, std::uint64_t> times{{0, 1}};
    double seconds = 1000;

    std::optional<std::uint64_t> read(std::int32_t pid) override {
        const auto found = times.find(pid);
        return found == times.end() ? std::nullopt : std::optional(found->second);
    }
    double now() override { return seconds; }
};

}  // namespace vantor::fuzz
