#pragma once

#include <functional>
#include <map>
#include <optional>
#include <string>
#include <string_view>

#include "settings/defaults_store.h"

namespace vantor {

/// Preferences that last as long as the test.
class KeptDefaults : public DefaultsStore {
  public:
    std::optional<Value> value(std::string_view key) const override {
        const auto found = values.find(key);
        return found == values.end() ? std::nullopt : std::optional(found->second);
    }
    void setValue(std::string_view key, const Value& value) override {
        values.insert_or_assign(std::string(key), value);
    }

    std::map<std::string, Value, std::less<>> values;
};

}  // namespace vantor
