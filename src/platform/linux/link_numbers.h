#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <vector>

#include "platform/linux/link_source.h"

namespace vantor {

/// Gives each link of a dump a number that fits into the 16 bits of an interface's message.
///
/// The kernel numbers links on and on: on a machine that starts containers all day they are past 16
/// bits within weeks. A number that fits stays; another is folded, and where that one is taken the
/// next free one serves. The same links get the same numbers in every dump.
class LinkNumbers {
  public:
    /// Numbers the links anew; storage is reused.
    void assign(std::span<const LinkSource::Link> links);

    /// Of the link at that place of the dump; 0 = all numbers were taken.
    std::uint16_t number(std::size_t place) const { return numbers_[place]; }

    /// The place of the link with that number, or with the kernel's own.
    std::optional<std::size_t> placeOfNumber(std::uint32_t number) const;
    std::optional<std::size_t> placeOfIndex(std::uint32_t index) const;

  private:
    struct Entry {
        std::uint32_t key = 0;
        std::size_t place = 0;
    };

    static std::optional<std::size_t> find(const std::vector<Entry>& sorted, std::uint32_t key);

    std::vector<std::uint16_t> numbers_;  // by place
    std::vector<Entry> byNumber_;
    std::vector<Entry> byIndex_;
};

}  // namespace vantor
