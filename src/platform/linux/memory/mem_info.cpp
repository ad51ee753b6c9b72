#include "platform/linux/memory/mem_info.h"

#include <array>
#include <charconv>
#include <limits>

namespace vantor {

namespace {

struct Key {
    std::string_view name;
    MemInfo::Amount MemInfo::*amount;
};

constexpr std::array memInfoKeys{
    Key{"MemFree", &MemInfo::free},
    Key{"MemAvailable", &MemInfo::available},
    Key{"Buffers", &MemInfo::buffers},
    Key{"Cached", &MemInfo::cached},
    Key{"Active(file)", &MemInfo::activeFile},
    Key{"Inactive(file)", &MemInfo::inactiveFile},
    Key{"Mlocked", &MemInfo::mlocked},
    Key{"SwapTotal", &MemInfo::swapTotal},
    Key{"Zswap", &MemInfo::zswap},
    Key{"Shmem", &MemInfo::shmem},
    Key{"SReclaimable", &MemInfo::sReclaimable},
    Key{"SUnreclaim", &MemInfo::sUnreclaim},
    Key{"KernelStack", &MemInfo::kernelStack},
    Key{"PageTables", &MemInfo::pageTables},
    Key{"Percpu", &MemInfo::percpu},
};

/// A bit that differs between most names; the text has three times as many lines as are wanted.
constexpr std::uint64_t bitOf(std::string_view name) {
    if (name.empty()) return 0;
    return std::uint64_t{1} << ((static_cast<unsigned char>(name.front()) * 3U + name.size()) % 64);
}

constexpr std::uint64_t bitsOfKeys = [] {
    std::uint64_t bits = 0;
    for (const Key& key : memInfoKeys)
        bits |= bitOf(key.name);
    return bits;
}();

// A number past this is damage: its bytes would not fit into 64 bits.
constexpr std::uint64_t largestAmount = std::numeric_limits<std::uint64_t>::max() / 1024;

MemInfo::Amount readAmount(std::string_view text) {
    const auto first = text.find_first_not_of(' ');
    if (first == std::string_view::npos) return std::nullopt;
    text.remove_prefix(first);
    std::uint64_t amount = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), amount);
    if (error != std::errc{} || amount > largestAmount) return std::nullopt;
    text.remove_prefix(static_cast<std::size_t>(end - text.data()));
    if (text != " kB") return std::nullopt;
    return amount;
}

}  // namespace

std::optional<MemInfo> MemInfo::parse(std::string_view text) {
    if (text.empty() || text.back() != '\n') return std::nullopt;
    MemInfo info;
    auto next = memInfoKeys.begin();  // the file has its lines in the order of the table
    while (!text.empty()) {
        const auto lineEnd = text.find('\n');
        const std::string_view line = text.substr(0, lineEnd);
        text.remove_prefix(lineEnd + 1);
        const auto colon = line.find(':');
        if (colon == std::string_view::npos) continue;
        const std::string_view name = line.substr(0, colon);
        if (name == "MemTotal") {
            info.total = readAmount(line.substr(colon + 1)).value_or(0);
            continue;
        }
        if ((bitsOfKeys & bitOf(name)) == 0) continue;
        for (std::size_t tried = 0; tried < memInfoKeys.size(); ++tried) {
            if (next == memInfoKeys.end()) next = memInfoKeys.begin();
            const Key& key = *next++;
            if (key.name != name) continue;
            info.*key.amount = readAmount(line.substr(colon + 1));
            break;
        }
    }
    if (info.total == 0) return std::nullopt;
    return info;
}

}  // namespace vantor
