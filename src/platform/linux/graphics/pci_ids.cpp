#include "platform/linux/graphics/pci_ids.h"

#include <charconv>
#include <optional>

namespace vantor {

namespace {

struct IDEntry {
    std::uint16_t number = 0;
    std::string_view name;
};

/// "10de  NVIDIA Corporation".
std::optional<IDEntry> parseEntry(std::string_view line) {
    constexpr std::size_t digits = 4;
    if (line.size() < digits + 3 || line[digits] != ' ' || line[digits + 1] != ' ') {
        return std::nullopt;
    }
    IDEntry entry;
    const char* const end = line.data() + digits;
    const auto [rest, error] = std::from_chars(line.data(), end, entry.number, 16);
    if (error != std::errc{} || rest != end) return std::nullopt;
    entry.name = line.substr(digits);
    const auto first = entry.name.find_first_not_of(" \t\r");
    if (first == std::string_view::npos) return std::nullopt;
    const auto last = entry.name.find_last_not_of(" \t\r");
    entry.name = entry.name.substr(first, last - first + 1);
    return entry;
}

}  // namespace

void PCIIDsSearch::feed(std::string_view piece) {
    while (!piece.empty() && !isOver_) {
        const auto end = piece.find('\n');
        const std::string_view part = piece.substr(0, end);
        if (begun_.size() + part.size() > maxLineLength) {
            isSkipping_ = true;
            begun_.clear();
        }
        if (end == std::string_view::npos) {
            if (!isSkipping_) begun_ += part;
            return;
        }
        piece.remove_prefix(end + 1);
        if (!isSkipping_ && begun_.empty()) {
            take(part);
        } else if (!isSkipping_) {
            begun_ += part;
            take(begun_);
        }
        isSkipping_ = false;
        begun_.clear();
    }
}

void PCIIDsSearch::take(std::string_view line) {
    if (line.empty() || line.front() == '#') return;
    const bool isDevice = line.front() == '\t';
    if (isDevice && !isInVendor_) return;
    const auto entry = parseEntry(isDevice ? line.substr(1) : line);
    if (isDevice) {
        if (!entry || entry->number != device_) return;  // or a subsystem's, two tabs in
        deviceName_ = entry->name;
        isOver_ = true;
        return;
    }
    // Another vendor, or the classes behind the last one.
    isOver_ = isInVendor_;
    isInVendor_ = !isOver_ && entry && entry->number == vendor_;
    if (isInVendor_) vendorName_ = entry->name;
}

}  // namespace vantor
