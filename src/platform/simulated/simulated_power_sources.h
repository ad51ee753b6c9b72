#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "platform/power_sources.h"

namespace vantor {

/// Power sources by script. Set the members before the call that is to see them; nothing locks.
class SimulatedPowerSources : public PowerSources {
  public:
    struct Source {
        bool isMissing = false;  ///< its entry of the list cannot be fetched
        std::optional<PropertyDictionary> description;
    };

    std::vector<Source> sources;
    bool infoFails = false;
    bool listIsMissing = false;

    /// Runs at the start of copyInfo; may block for ever.
    std::function<void()> onCopyInfo;

    int infosOutstanding() const { return *infosOutstanding_; }

    /// Adds a battery that is being drained: percent of 100, and the minutes left.
    PropertyDictionary& addBattery(int percent, int minutesLeft);

    std::unique_ptr<Info> copyInfo() override;

  private:
    class Snapshot;
    std::shared_ptr<int> infosOutstanding_ = std::make_shared<int>(0);
};

/// Sets the value under `key`, adding it or replacing the one that is there.
void setProperty(PropertyDictionary& dictionary, const std::string& key, PropertyValue value);

/// Removes the value under `key`, if there is one.
void removeProperty(PropertyDictionary& dictionary, const std::string& key);

}  // namespace vantor
