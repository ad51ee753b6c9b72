#include "probes/gpu_statistics.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace vantor {

namespace {

using namespace std::string_view_literals;

constexpr int deepest = 3;

constexpr std::array utilizationTerms{"device utilization %"sv, "gpu activity(%)"sv,
                                      "gpu utilization"sv, "gpu core utilization"sv};
constexpr std::array temperatureTerms{"gpu temperature"sv, "temperature(c)"sv, "temperature c"sv,
                                      "temperature"sv};
constexpr std::array usedVRAMTerms{"vram used"sv, "vram,used"sv, "vram_used"sv};
constexpr std::array totalVRAMTerms{"vram total"sv, "vram,total"sv, "vram_total"sv};

bool hasTerm(std::string_view path, std::string_view term) {
    return path.find(term) != path.npos;
}

/// The first result that `check(path, value)` returns, term by term and pair by pair.
template <class Check>
auto firstPassing(const FlattenedStatistics& pairs, std::span<const std::string_view> terms,
                  Check check) -> decltype(check(std::string_view{}, 0.0)) {
    for (const std::string_view term : terms) {
        for (std::size_t i = 0; i < pairs.size(); ++i) {
            const auto [path, value] = pairs[i];
            if (!hasTerm(path, term)) continue;
            if (const auto answer = check(path, value)) return answer;
        }
    }
    return std::nullopt;
}

double bytesOfUnit(std::string_view path) {
    // With a blank: "gb" alone is inside too many words.
    if (hasTerm(path, "gib") || hasTerm(path, " gb")) return 1024.0 * 1024 * 1024;
    if (hasTerm(path, "mib") || hasTerm(path, "mb")) return 1024.0 * 1024;
    if (hasTerm(path, "kib") || hasTerm(path, "kb")) return 1024;
    return 1;
}

}  // namespace

FlattenedStatistics::Pair FlattenedStatistics::operator[](std::size_t index) const {
    const Place& place = places_[index];
    return {std::string_view(texts_).substr(place.begin, place.length), place.value};
}

void FlattenedStatistics::clear() {
    texts_.clear();
    places_.clear();
}

void FlattenedStatistics::append(std::string_view prefix, std::string_view key, double value) {
    if (isFull()) return;
    const std::size_t begin = texts_.size();
    if (!prefix.empty()) {
        texts_ += prefix;
        texts_ += '.';
    }
    texts_ += key;
    std::transform(texts_.begin() + static_cast<std::ptrdiff_t>(begin), texts_.end(),
                   texts_.begin() + static_cast<std::ptrdiff_t>(begin), [](char byte) {
                       return byte >= 'A' && byte <= 'Z' ? static_cast<char>(byte - 'A' + 'a')
                                                         : byte;
                   });
    places_.push_back({begin, texts_.size() - begin, value});
}

void appendNumericValues(const PropertyDictionary& from, std::string& prefix, int depth,
                         FlattenedStatistics& result) {
    if (depth > deepest) return;
    for (const PropertyEntry& entry : from) {
        if (result.isFull()) return;
        if (const auto number = entry.value.number()) {
            result.append(prefix, entry.key, *number);
        } else if (const PropertyDictionary* const nested = entry.value.dictionary()) {
            const std::size_t length = prefix.size();
            if (length > 0) prefix += '.';
            prefix += entry.key;
            appendNumericValues(*nested, prefix, depth + 1, result);
            prefix.resize(length);
        }
    }
}

std::optional<double> percentValue(const FlattenedStatistics& in,
                                   std::span<const std::string_view> preferredKeys) {
    return firstPassing(in, preferredKeys,
                        [](std::string_view path, double value) -> std::optional<double> {
                            const bool isFraction = value >= 0 && value <= 1;
                            if (isFraction && !hasTerm(path, "%")) value *= 100;
                            // Not fulfilled by what is no number.
                            if (!(value >= 0 && value <= 100)) return std::nullopt;
                            return value / 100;
                        });
}

std::optional<double> temperatureValue(const FlattenedStatistics& in) {
    return firstPassing(in, temperatureTerms,
                        [](std::string_view, double value) -> std::optional<double> {
                            if (!(value >= -20 && value <= 150)) return std::nullopt;
                            return value;
                        });
}

std::optional<std::uint64_t> byteValue(const FlattenedStatistics& in,
                                       std::span<const std::string_view> preferredTerms) {
    return firstPassing(in, preferredTerms,
                        [](std::string_view path, double value) -> std::optional<std::uint64_t> {
                            constexpr double bound = 18446744073709551616.0;  // 2 to the 64th
                            const double bytes = value * bytesOfUnit(path);
                            if (!(bytes >= 0 && bytes < bound)) return std::nullopt;
                            return static_cast<std::uint64_t>(bytes);
                        });
}

std::optional<double> utilizationValue(const FlattenedStatistics& in) {
    return percentValue(in, utilizationTerms);
}

std::optional<std::uint64_t> usedVRAMValue(const FlattenedStatistics& in) {
    return byteValue(in, usedVRAMTerms);
}

std::optional<std::uint64_t> totalVRAMValue(const FlattenedStatistics& in) {
    return byteValue(in, totalVRAMTerms);
}

}  // namespace vantor
