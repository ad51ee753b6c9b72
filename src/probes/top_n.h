#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <span>
#include <vector>

#include "model/process_stats.h"

namespace vantor {

/// The places of the heaviest entries of a list, heaviest first, found by bounded insertion: one
/// look at each entry, no sorting of all. `weigh` returns what is compared; equals go by lower pid.
template <class Weigh>
class TopN {
  public:
    static constexpr std::size_t capacity = 18;

    explicit TopN(Weigh weigh) : weigh_(weigh) {}

    void offer(std::span<const ProcessStats> list, std::size_t place) {
        const ProcessStats& entry = list[place];
        if (count_ == capacity && !isBefore(entry, list[places_[capacity - 1]])) return;
        std::size_t at = count_ < capacity ? count_++ : capacity - 1;
        for (; at > 0 && isBefore(entry, list[places_[at - 1]]); --at)
            places_[at] = places_[at - 1];
        places_[at] = place;
    }

    std::vector<ProcessStats> copyFrom(std::span<const ProcessStats> list) const {
        std::vector<ProcessStats> copies;
        copies.reserve(count_);
        for (std::size_t i = 0; i < count_; ++i)
            copies.push_back(list[places_[i]]);
        return copies;
    }

  private:
    bool isBefore(const ProcessStats& a, const ProcessStats& b) const {
        const auto x = weigh_(a);
        const auto y = weigh_(b);
        return x > y || (x == y && a.pid < b.pid);
    }

    Weigh weigh_;
    std::array<std::size_t, capacity> places_{};
    std::size_t count_ = 0;
};

}  // namespace vantor
