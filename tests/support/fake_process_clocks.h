#pragma once

#include <cstdint>
#include <map>
#include <optional>

#include "platform/linux/processes/process_clocks.h"

namespace vantor {

/// CPU clocks by script, and manual time.
class FakeProcessClocks : public ProcessClocks {
  public:
    /// Nanoseconds; a missing process has no clock. 0 is the program that asks: not by its own
    /// number, which a made-up process may have too.
    std::map<std::int32_t, std::uint64_t> values{{0, 1}};
    std::map<std::int32_t, int> reads;
    double seconds = 1000;

    std::optional<std::uint64_t> read(std::int32_t pid) override {
        ++reads[pid];
        const auto found = values.find(pid);
        return found == values.end() ? std::nullopt : std::optional(found->second);
    }
    double now() override { return seconds; }

    int readsOfAll() const {
        int all = 0;
        for (const auto& [pid, count] : reads)
            all += count;
        return all;
    }
};

}  // namespace vantor
