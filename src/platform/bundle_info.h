#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace vantor {

/// The facts a program carries about itself, by key ("CFBundleShortVersionString",
/// "CFBundleVersion"). macOS: the bundle's information dictionary; elsewhere: the build. Any
/// thread.
class BundleInfo {
  public:
    virtual ~BundleInfo() = default;

    /// Absent when the key is missing or its value is not a text.
    virtual std::optional<std::string> text(std::string_view key) const = 0;
};

}  // namespace vantor
