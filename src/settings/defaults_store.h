#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <variant>

namespace vantor {

/// The platform's store of small per-user values. Main thread.
///
/// A store that cannot be read returns only what was set, and one that cannot be written never
/// blocks: losing a preference must not cost the program.
class DefaultsStore {
  public:
    using Value = std::variant<bool, std::int64_t, double, std::string>;

    virtual ~DefaultsStore() = default;

    virtual std::optional<Value> value(std::string_view key) const = 0;

    /// Returned from then on, and on its way to the disk when the call returns.
    virtual void setValue(std::string_view key, const Value& value) = 0;
};

}  // namespace vantor
