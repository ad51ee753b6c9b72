#include "platform/simulated/simulated_power_sources.h"

#include <algorithm>
#include <utility>

namespace vantor {

class SimulatedPowerSources::Snapshot : public PowerSources::Info {
  public:
    Snapshot(std::vector<Source> sources, bool listIsMissing, std::shared_ptr<int> outstanding)
        : sources_(std::move(sources)),
          listIsMissing_(listIsMissing),
          outstanding_(std::move(outstanding)) {
        ++*outstanding_;
    }
    Snapshot(const Snapshot&) = delete;
    Snapshot& operator=(const Snapshot&) = delete;
    ~Snapshot() override { --*outstanding_; }

    std::optional<std::size_t> count() const override {
        return listIsMissing_ ? std::nullopt : std::optional(sources_.size());
    }
    bool hasSource(std::size_t index) const override {
        return index < sources_.size() && !sources_[index].isMissing;
    }
    const PropertyDictionary* description(std::size_t index) const override {
        if (!hasSource(index) || !sources_[index].description) return nullptr;
        return &*sources_[index].description;
    }

  private:
    std::vector<Source> sources_;
    bool listIsMissing_;
    std::shared_ptr<int> outstanding_;
};

PropertyDictionary& SimulatedPowerSources::addBattery(int percent, int minutesLeft) {
    Source& source = sources.emplace_back();
    return source.description.emplace(PropertyDictionary{{"Type", "InternalBattery"},
                                                         {"Name", "InternalBattery-0"},
                                                         {"Power Source State", "Battery Power"},
                                                         {"Current Capacity", percent},
                                                         {"Max Capacity", 100},
                                                         {"Is Charging", false},
                                                         {"Time to Full Charge", -1},
                                                         {"Time to Empty", minutesLeft}});
}

std::unique_ptr<PowerSources::Info> SimulatedPowerSources::copyInfo() {
    if (onCopyInfo) onCopyInfo();
    if (infoFails) return nullptr;
    return std::make_unique<Snapshot>(sources, listIsMissing, infosOutstanding_);
}

void setProperty(PropertyDictionary& dictionary, const std::string& key, PropertyValue value) {
    removeProperty(dictionary, key);
    dictionary.push_back({key, std::move(value)});
}

void removeProperty(PropertyDictionary& dictionary, const std::string& key) {
    std::erase_if(dictionary, [&](const PropertyEntry& entry) { return entry.key == key; });
}

}  // namespace vantor
