#pragma once

#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "settings/application_appearance.h"
#include "settings/defaults_store.h"

namespace vantor {

/// A store in memory that remembers what it was asked and told.
class MemoryDefaults : public DefaultsStore {
  public:
    std::map<std::string, Value, std::less<>> values;
    mutable std::vector<std::string> reads;
    std::vector<std::pair<std::string, Value>> writes;

    std::optional<Value> value(std::string_view key) const override {
        reads.emplace_back(key);
        const auto found = values.find(key);
        return found == values.end() ? std::nullopt : std::optional(found->second);
    }

    void setValue(std::string_view key, const Value& value) override {
        writes.emplace_back(key, value);
        values.insert_or_assign(std::string(key), value);
    }
};

/// An application that remembers how it was told to look.
class RecordedAppearance : public ApplicationAppearance {
  public:
    std::vector<std::string> calls;

    void followSystem() override { calls.emplace_back("system"); }
    void forceDark() override { calls.emplace_back("dark"); }
    void forceLight() override { calls.emplace_back("light"); }
};

}  // namespace vantor
