#pragma once

#include <optional>
#include <string_view>

namespace vantor {

/// The interface that leads to everywhere else. One thread at a time.
///
/// Linux: the default routes of the main table. macOS: the dynamic store.
class PrimaryInterface {
  public:
    virtual ~PrimaryInterface() = default;

    /// The name of the interface of IPv4's default route, or of IPv6's where IPv4 has none, until
    /// the next call; absent when neither has one. Any bytes, never empty.
    virtual std::optional<std::string_view> name() = 0;
};

}  // namespace vantor
