#include "platform/darwin/chip_family.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <system_error>

#include "platform/sysctl.h"

namespace vantor {

namespace {

using Keys = std::span<const std::string_view>;

template <class... Texts>
constexpr auto keys(Texts... texts) {
    return std::array<std::string_view, sizeof...(texts)>{texts...};
}

constexpr auto m1CPU =
    keys("Tp09", "Tp0T", "Tp01", "Tp05", "Tp0D", "Tp0H", "Tp0L", "Tp0P", "Tp0X", "Tp0b");
constexpr auto m2CPU = keys("Tp1h", "Tp1t", "Tp1p", "Tp1l", "Tp01", "Tp05", "Tp09", "Tp0D", "Tp0X",
                            "Tp0b", "Tp0f", "Tp0j");
constexpr auto m3CPU = keys("Te05", "Te0L", "Te0P", "Te0S", "Tf04", "Tf09", "Tf0A", "Tf0B", "Tf0D",
                            "Tf0E", "Tf44", "Tf49", "Tf4A", "Tf4B", "Tf4D", "Tf4E");
constexpr auto m4CPU = keys("Te05", "Te0S", "Te09", "Te0H", "Tp01", "Tp05", "Tp09", "Tp0D", "Tp0V",
                            "Tp0Y", "Tp0b", "Tp0e");
constexpr auto m5CPU = keys("Tp00", "Tp04", "Tp08", "Tp0C", "Tp0G", "Tp0K", "Tp0O", "Tp0R", "Tp0U",
                            "Tp0X", "Tp0a", "Tp0d", "Tp0g", "Tp0j", "Tp0m", "Tp0p", "Tp0u", "Tp0y");

constexpr auto m1GPU = keys("Tg05", "Tg0D", "Tg0L", "Tg0T");
constexpr auto m2GPU = keys("Tg0f", "Tg0j");
constexpr auto m3GPU = keys("Tf14", "Tf18", "Tf19", "Tf1A", "Tf24", "Tf28", "Tf29", "Tf2A");
constexpr auto m4GPU =
    keys("Tg0G", "Tg0H", "Tg1U", "Tg1k", "Tg0K", "Tg0L", "Tg0d", "Tg0e", "Tg0j", "Tg0k");
constexpr auto m5GPU = keys("Tg0U", "Tg0X", "Tg0d", "Tg0g", "Tg0j", "Tg1Y", "Tg1c", "Tg1g");

char lower(char c) {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

}  // namespace

ChipPlatform detectPlatform(KernelValues& values) {
    const Sysctl sysctl(values);
    const std::string brand = sysctl.string("machdep.cpu.brand_string").value_or("");
    const bool isTranslated = sysctl.int32("sysctl.proc_translated") == 1;
    if (!isTranslated && sysctl.int32("hw.optional.arm64") != 1 && !brand.starts_with("Apple ")) {
        return {};
    }
    return {true, chipFamilyOf(brand)};
}

ChipFamily chipFamilyOf(std::string_view brand) {
    if (brand.find("Apple A18") != std::string_view::npos) return ChipFamily::a18;
    constexpr std::string_view series = "apple m";
    const auto found = std::search(brand.begin(), brand.end(), series.begin(), series.end(),
                                   [](char a, char b) { return lower(a) == b; });
    if (found == brand.end()) return ChipFamily::unknown;
    brand.remove_prefix(static_cast<std::size_t>(found - brand.begin()) + series.size());
    unsigned number = 0;
    const auto [rest, error] = std::from_chars(brand.data(), brand.data() + brand.size(), number);
    if (error != std::errc{}) return ChipFamily::unknown;
    switch (number) {
        case 1:
            return ChipFamily::m1;
        case 2:
            return ChipFamily::m2;
        case 3:
            return ChipFamily::m3;
        case 4:
            return ChipFamily::m4;
        case 5:
            return ChipFamily::m5;
        default:
            return ChipFamily::unknown;
    }
}

Keys cpuTemperatureKeys(ChipFamily family) {
    switch (family) {
        case ChipFamily::m1:
            return m1CPU;
        case ChipFamily::m2:
            return m2CPU;
        case ChipFamily::m3:
            return m3CPU;
        case ChipFamily::m4:
            return m4CPU;
        case ChipFamily::m5:
            return m5CPU;
        case ChipFamily::a18:
        case ChipFamily::unknown:
            break;
    }
    return {};
}

Keys gpuTemperatureKeys(ChipFamily family) {
    switch (family) {
        case ChipFamily::m1:
            return m1GPU;
        case ChipFamily::m2:
            return m2GPU;
        case ChipFamily::m3:
            return m3GPU;
        case ChipFamily::m4:
            return m4GPU;
        case ChipFamily::m5:
            return m5GPU;
        case ChipFamily::a18:
        case ChipFamily::unknown:
            break;
    }
    return {};
}

}  // namespace vantor
