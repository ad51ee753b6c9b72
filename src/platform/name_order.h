#pragma once

#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <vector>

namespace vantor {

/// The order in which people of a language expect names in a list: letters by their place in its
/// alphabet and without regard to case at first, numbers by their value ("disk2" before "disk10"),
/// composed and decomposed characters as one. One thread at a time.
///
/// macOS: CFStringCompareWithOptionsAndLocale. Linux: ICU's collator with numeric collation.
class NameOrder {
  public:
    virtual ~NameOrder() = default;

    /// The place of each of these names (UTF-8) among them; equal where the order tells no
    /// difference. Where the system has no such order, that of the bytes.
    virtual std::vector<std::uint32_t> ranks(std::span<const std::string> names) = 0;
};

}  // namespace vantor
