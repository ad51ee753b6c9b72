#pragma once

#include <cstddef>
#include <cstdint>
#include <random>
#include <vector>

namespace vantor {

/// What happens by chance: the same on every system for the same seed.
class Chance {
  public:
    explicit Chance(std::uint64_t seed) : random_(seed) {}

    std::uint64_t any() { return random_(); }
    std::uint64_t below(std::uint64_t limit) { return random_() % limit; }
    bool oneIn(std::uint64_t many) { return below(many) == 0; }

    /// A number of any size: small ones are as likely as those that fill all bits.
    std::uint64_t ofAnySize(unsigned bits = 64) { return random_() >> (64 - 1 - below(bits)); }

    template <class T>
    std::size_t placeIn(const std::vector<T>& list) {
        return static_cast<std::size_t>(below(list.size()));
    }
    template <class List>
    const auto& oneOf(const List& list) {
        return list[static_cast<std::size_t>(below(std::size(list)))];
    }

  private:
    std::mt19937_64 random_;
};

}  // namespace vantor
