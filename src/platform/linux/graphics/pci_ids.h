#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace vantor {

/// Looks up one device in a pci.ids text (https://pci-ids.ucw.cz), which comes in pieces cut
/// anywhere: the file is more than a megabyte, of which two lines are wanted. Pure.
class PCIIDsSearch {
  public:
    /// Longer lines are none of the file's.
    static constexpr std::size_t maxLineLength = 1024;

    PCIIDsSearch(std::uint16_t vendor, std::uint16_t device) : vendor_(vendor), device_(device) {}

    void feed(std::string_view piece);

    /// Nothing that follows can matter.
    bool isOver() const { return isOver_; }

    /// Empty when not found.
    const std::string& vendorName() const { return vendorName_; }
    const std::string& deviceName() const { return deviceName_; }

  private:
    void take(std::string_view line);

    std::uint16_t vendor_;
    std::uint16_t device_;
    std::string vendorName_;
    std::string deviceName_;
    std::string begun_;  // the front of a line
    bool isSkipping_ = false;
    bool isInVendor_ = false;
    bool isOver_ = false;
};

}  // namespace vantor
