#include "platform/darwin/smc_value.h"

#include <cmath>
#include <cstring>

namespace vantor {

namespace {

constexpr std::uint32_t fixedPoint = 0x73703738;             // "sp78"
constexpr std::uint32_t smcValueFloatingPoint = 0x666C7420;  // "flt "
constexpr double smcValueColdest = -20;
constexpr double smcValueHottest = 150;

std::optional<double> decode(std::uint32_t type, std::span<const std::byte> bytes) {
    if (type == fixedPoint && bytes.size() >= 2) {
        const int number = std::to_integer<int>(bytes[0]) << 8 | std::to_integer<int>(bytes[1]);
        return static_cast<std::int16_t>(number) / 256.0;
    }
    float value = 0;
    if (type == smcValueFloatingPoint && bytes.size() >= sizeof value) {
        std::memcpy(&value, bytes.data(), sizeof value);
        return value;
    }
    return std::nullopt;
}

}  // namespace

std::optional<double> smcTemperature(std::uint32_t type, std::span<const std::byte> bytes) {
    const auto value = decode(type, bytes);
    if (!value || !std::isfinite(*value) || *value <= smcValueColdest ||
        *value >= smcValueHottest) {
        return std::nullopt;
    }
    return value;
}

}  // namespace vantor
