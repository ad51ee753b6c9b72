#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "platform/property_value.h"

namespace vantor {

/// The numbers of a dictionary with their lower-cased paths, in the order in which they were met.
/// Clearing keeps the storage of the pairs and of their texts.
class FlattenedStatistics {
  public:
    struct Pair {
        std::string_view path;  ///< valid until the next change
        double value;
    };

    static constexpr std::size_t capacity = 512;  ///< more are not taken

    std::size_t size() const { return places_.size(); }
    bool isFull() const { return places_.size() >= capacity; }
    Pair operator[](std::size_t index) const;

    void clear();
    /// Adds a number under `key`, or under "prefix.key" where there is a prefix, unless full. Only
    /// A to Z are lower-cased: no statistic is sought by other letters.
    void append(std::string_view prefix, std::string_view key, double value);

  private:
    struct Place {
        std::size_t begin;
        std::size_t length;
        double value;
    };

    std::string texts_;  ///< all paths, one behind the other
    std::vector<Place> places_;
};

/// Appends the numbers of the dictionary and of those inside it. A boolean is no number.
/// Dictionaries below depth 3 are not walked; the outermost has depth 0. `prefix` is the path of
/// the dictionary, which serves as working storage and is given back as it was.
void appendNumericValues(const PropertyDictionary& from, std::string& prefix, int depth,
                         FlattenedStatistics& result);

/// The extractors: the first pair of the first term that its path contains and its value suits.

/// A fraction 0 to 1, from percent; a value of 0 to 1 whose path has no "%" is a fraction already.
std::optional<double> percentValue(const FlattenedStatistics& in,
                                   std::span<const std::string_view> preferredKeys);

/// Degrees Celsius, -20 to 150.
std::optional<double> temperatureValue(const FlattenedStatistics& in);

/// Bytes. The unit is found anywhere in the path: every path with "mb" in it counts in mebibytes.
std::optional<std::uint64_t> byteValue(const FlattenedStatistics& in,
                                       std::span<const std::string_view> preferredTerms);

/// The same with the terms by which drivers are known to publish the figure.
std::optional<double> utilizationValue(const FlattenedStatistics& in);
std::optional<std::uint64_t> usedVRAMValue(const FlattenedStatistics& in);
std::optional<std::uint64_t> totalVRAMValue(const FlattenedStatistics& in);

}  // namespace vantor
