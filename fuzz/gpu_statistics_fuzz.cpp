#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstring>
#include <string>
#include <utility>

#include "probes/gpu_statistics.h"

#include "require.h"

namespace {

using vantor::PropertyDictionary;
using vantor::PropertyValue;

/// The beginnings of keys that a byte stands for, so that terms and units are soon met with.
constexpr const char* words[] = {"",
                                 "Device Utilization %",
                                 "GPU Activity(%)",
                                 "GPU Utilization",
                                 "GPU Core Utilization",
                                 "GPU Temperature",
                                 "Temperature(C)",
                                 "Temperature C",
                                 "Temperature",
                                 "VRAM Used",
                                 "vram,used",
                                 "VRAM_USED",
                                 "VRAM Total",
                                 "vram,total",
                                 "vram_total",
                                 " GB",
                                 "GiB",
                                 "MB",
                                 "(KiB)",
                                 "%"};

constexpr std::size_t repetitions = 700;

/// Takes what it needs off the input; zeroes once that is used up.
class Input {
  public:
    Input(const std::uint8_t* data, std::size_t size) : rest_(data), left_(size) {}

    bool isUsedUp() const { return left_ == 0; }
    std::uint8_t byte() {
        if (left_ == 0) return 0;
        --left_;
        return *rest_++;
    }
    template <class Number>
    Number number() {
        std::uint8_t bytes[sizeof(Number)];
        for (std::uint8_t& each : bytes)
            each = byte();
        Number number;
        std::memcpy(&number, bytes, sizeof number);
        return number;
    }
    std::string text() {
        std::string text;
        for (int left = byte() % 4; left > 0; --left) {
            const std::size_t word = byte();
            text += word < std::size(words) ? words[word] : std::string(1, static_cast<char>(word));
        }
        return text;
    }

  private:
    const std::uint8_t* rest_;
    std::size_t left_;
};

PropertyDictionary dictionaryOf(Input& input, int depth);

PropertyValue valueOf(Input& input, int depth) {
    switch (input.byte() % 9) {
        case 0:
            return {input.byte() % 2 == 0};
        case 1:
            return {input.text()};
        case 2:
            return PropertyValue(PropertyValue::Data(input.byte() % 8));
        case 3:
            return PropertyValue(PropertyValue::Array{PropertyValue(input.byte())});
        case 4:
            return {input.number<std::int64_t>()};
        case 5:
            return {input.number<double>()};
        case 6:
            return {static_cast<double>(input.number<std::int16_t>()) / 128};
        case 7:
            return {static_cast<int>(input.byte())};
        default:
            return PropertyValue(depth < 8 ? dictionaryOf(input, depth + 1) : PropertyDictionary{});
    }
}

PropertyDictionary dictionaryOf(Input& input, int depth) {
    PropertyDictionary dictionary;
    for (int left = input.byte(); left > 0 && !input.isUsedUp(); --left) {
        std::string key = input.text();
        dictionary.push_back({std::move(key), valueOf(input, depth)});
        // A number may stand for many, for else the input would have to be long.
        const bool isRepeated = input.byte() == 0xFF && dictionary.back().value.number();
        if (isRepeated && dictionary.size() < repetitions) {
            const vantor::PropertyEntry repeated = dictionary.back();
            dictionary.resize(repetitions, repeated);
        }
    }
    return dictionary;
}

/// How many numbers there are down to depth 3.
std::size_t numbersOf(const PropertyDictionary& dictionary, int depth = 0) {
    std::size_t count = 0;
    for (const auto& [key, value] : dictionary) {
        const PropertyDictionary* const nested = value.dictionary();
        if (value.number()) ++count;
        if (nested && depth < 3) count += numbersOf(*nested, depth + 1);
    }
    return count;
}

/// Whether some pair that a term of the figure is in has that figure by that rule.
template <class Rule>
bool anyPair(const vantor::FlattenedStatistics& statistics, const char* word, Rule rule) {
    for (std::size_t i = 0; i < statistics.size(); ++i) {
        const auto [path, value] = statistics[i];
        if (path.find(word) != path.npos && rule(value)) return true;
    }
    return false;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace vantor;
    using fuzz::require;
    Input input(data, size);
    const PropertyDictionary dictionary = dictionaryOf(input, 0);
    std::string prefix = input.text();
    const std::string before = prefix;
    FlattenedStatistics statistics;
    statistics.append("left", "over", 1);
    statistics.clear();
    appendNumericValues(dictionary, prefix, 0, statistics);
    require(prefix == before);
    require(statistics.size() == std::min(numbersOf(dictionary), FlattenedStatistics::capacity));
    for (std::size_t i = 0; i < statistics.size(); ++i) {
        const std::string_view path = statistics[i].path;
        require(
            std::none_of(path.begin(), path.end(), [](char c) { return c >= 'A' && c <= 'Z'; }));
        require(path.size() >= before.size());
    }
    if (const auto fraction = utilizationValue(statistics)) {
        require(*fraction >= 0 && *fraction <= 1);
        require(anyPair(statistics, "", [&](double value) {
            return value / 100 == *fraction || value * 100 / 100 == *fraction;
        }));
    }
    if (const auto degrees = temperatureValue(statistics)) {
        require(*degrees >= -20 && *degrees <= 150);
        require(anyPair(statistics, "temperature", [&](double v) { return v == *degrees; }));
    }
    for (const auto& [figure, word] : {std::pair(usedVRAMValue(statistics), "used"),
                                       std::pair(totalVRAMValue(statistics), "total")}) {
        if (!figure) continue;
        require(anyPair(statistics, word, [bytes = *figure](double value) {
            // Not a byte more than the largest unit makes of it, and none less than the value.
            return std::isfinite(value) && value >= 0 &&
                   static_cast<double>(bytes) <= value * 1073741824 &&
                   static_cast<double>(bytes) >= std::floor(value);
        }));
    }
    return 0;
}
