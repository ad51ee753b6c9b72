#include "platform/linux/processor/cpu_identity.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <set>
#include <tuple>
#include <utility>

#include "platform/linux/files/kernel_file.h"
#include "platform/linux/files/trimmed.h"
#include "platform/linux/processor/cpu_list.h"

namespace vantor {

namespace {

std::optional<std::vector<std::uint32_t>> readCPUList(const LinuxRoots& roots, const char* name) {
    const auto text = readKernelFile(roots.sys / "devices/system/cpu" / name);
    auto list = text ? parseCPUList(*text) : std::nullopt;
    if (!list || list->empty()) return std::nullopt;
    return list;
}

std::optional<std::int32_t> countList(const LinuxRoots& roots, const char* name) {
    const auto list = readCPUList(roots, name);
    if (!list) return std::nullopt;
    return static_cast<std::int32_t>(list->size());
}

std::optional<std::int64_t> readInteger(const std::filesystem::path& path) {
    const auto text = readKernelText(path);
    if (!text) return std::nullopt;
    std::int64_t value = 0;
    const auto [end, error] = std::from_chars(text->data(), text->data() + text->size(), value);
    if (error != std::errc{} || end != text->data() + text->size()) return std::nullopt;
    return value;
}

std::optional<std::string> readDeviceTreeModel(const LinuxRoots& roots) {
    if (auto model = readKernelText(roots.proc / "device-tree/model")) return model;
    return readKernelText(roots.sys / "firmware/devicetree/base/model");
}

/// What firmware says whose makers did not fill it in.
constexpr std::array<std::string_view, 8> placeholders{
    "To Be Filled By O.E.M.", "System Product Name", "Default string", "Not Applicable",
    "Not Specified",          "Product Name",        "O.E.M.",         "None",
};

std::optional<std::string> readFirmwareName(const LinuxRoots& roots, const char* name) {
    auto text = readKernelText(roots.sys / "class/dmi/id" / name);
    if (!text || std::find(placeholders.begin(), placeholders.end(), *text) != placeholders.end())
        return std::nullopt;
    return text;
}

/// Some processors fill their name up with blanks, in the middle too.
std::string withSingleBlanks(std::string text) {
    const auto areBlanks = [](char a, char b) { return a == ' ' && b == ' '; };
    text.erase(std::unique(text.begin(), text.end(), areBlanks), text.end());
    return text;
}

std::filesystem::path processorFolder(const LinuxRoots& roots, std::uint32_t id) {
    return roots.sys / "devices/system/cpu" / ("cpu" + std::to_string(id));
}

/// A number of hertz in a file of the first processor online that counts in `unit`s of them.
std::optional<std::uint64_t> readFrequencyHz(const LinuxRoots& roots, const char* file,
                                             std::int64_t unit) {
    constexpr std::int64_t terahertz = 1'000'000'000'000;
    const auto online = readCPUList(roots, "online");
    const auto number =
        online ? readInteger(processorFolder(roots, online->front()) / file) : std::nullopt;
    if (!number || *number <= 0 || *number >= terahertz / unit) return std::nullopt;
    return static_cast<std::uint64_t>(*number * unit);
}

}  // namespace

std::optional<std::string> findInCPUInfo(std::string_view text, std::string_view key) {
    while (!text.empty()) {
        const auto lineEnd = text.find('\n');
        const std::string_view line = text.substr(0, lineEnd);
        text.remove_prefix(lineEnd == std::string_view::npos ? text.size() : lineEnd + 1);
        const auto colon = line.find(':');
        if (colon == std::string_view::npos || trimmed(line.substr(0, colon)) != key) continue;
        const auto value = trimmed(line.substr(colon + 1));
        if (!value.empty()) return std::string(value);
    }
    return std::nullopt;
}

std::optional<std::uint64_t> frequencyInName(std::string_view name) {
    const auto at = name.rfind('@');
    if (at == std::string_view::npos) return std::nullopt;
    const std::string_view text = trimmed(name.substr(at + 1));
    double number = 0;
    const auto [end, error] =
        std::from_chars(text.data(), text.data() + text.size(), number, std::chars_format::fixed);
    const auto unit = trimmed(text.substr(static_cast<std::size_t>(end - text.data())));
    const double scale = unit == "GHz" ? 1e9 : unit == "MHz" ? 1e6 : 0;
    const double hertz = number * scale;
    if (error != std::errc{} || !(hertz >= 1 && hertz < 1e15)) return std::nullopt;
    return static_cast<std::uint64_t>(std::llround(hertz));
}

std::optional<std::string> readProcessorName(const LinuxRoots& roots) {
    if (const auto text = readKernelFile(roots.proc / "cpuinfo")) {
        if (auto name = findInCPUInfo(*text, "model name"))
            return withSingleBlanks(std::move(*name));
    }
    return readDeviceTreeModel(roots);
}

std::optional<std::string> readHardwareModel(const LinuxRoots& roots) {
    if (auto name = readFirmwareName(roots, "product_name")) return name;
    if (auto name = readFirmwareName(roots, "board_name")) return name;
    return readDeviceTreeModel(roots);
}

std::optional<std::int32_t> countOnlineProcessors(const LinuxRoots& roots) {
    return countList(roots, "online");
}

std::optional<std::int32_t> countPresentProcessors(const LinuxRoots& roots) {
    return countList(roots, "present");
}

std::optional<std::int32_t> countPhysicalCores(const LinuxRoots& roots) {
    const auto online = readCPUList(roots, "online");
    if (!online) return std::nullopt;
    // A core's number is unique within its die only; kernels without dies have no such file, and
    // some ARM firmware gives no package (-1).
    std::set<std::tuple<std::int64_t, std::int64_t, std::int64_t>> cores;
    for (const std::uint32_t id : *online) {
        const auto topology = processorFolder(roots, id) / "topology";
        const auto core = readInteger(topology / "core_id");
        if (!core) return std::nullopt;
        cores.emplace(readInteger(topology / "physical_package_id").value_or(-1),
                      readInteger(topology / "die_id").value_or(-1), *core);
    }
    return static_cast<std::int32_t>(cores.size());
}

std::optional<std::uint64_t> readNominalFrequencyHz(const LinuxRoots& roots) {
    if (const auto hertz = readFrequencyHz(roots, "cpufreq/base_frequency", 1000)) return hertz;
    const auto name = readProcessorName(roots);
    if (const auto hertz = name ? frequencyInName(*name) : std::nullopt) return hertz;
    return readFrequencyHz(roots, "acpi_cppc/nominal_freq", 1'000'000);
}

}  // namespace vantor
