#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <variant>

namespace vantor {

/// The platform's store of small per-user values. Main thread.
///
/// A store that cannot be read answers nothing, and one that cannot be written drops what it is
/// given: losing a preference must not cost the program.
class DefaultsStore {
  public:
    using Value = std::variant<bool, std::int64_t, double, std::string>;

    virtual ~DefaultsStore() = default;

    virtual std::optional<Value> value(std::string_view key) const = 0;

    /// Is on disk, as far as that is possible, when the call returns.
    virtual void setValue(std::string_view key, const Value& value) = 0;
};

}  // namespace vantor
