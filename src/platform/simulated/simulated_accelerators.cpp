#include "platform/simulated/simulated_accelerators.h"

#include <utility>

namespace vantor {

namespace {

/// The entries that have a text for a key, at every depth.
PropertyDictionary converted(const SimulatedAccelerators::RawDictionary& raw) {
    PropertyDictionary dictionary;
    for (const auto& [key, value] : raw) {
        if (!key) continue;
        const auto* const nested = std::get_if<SimulatedAccelerators::RawDictionary>(&value);
        dictionary.push_back(
            {*key, nested ? PropertyValue(converted(*nested)) : std::get<PropertyValue>(value)});
    }
    return dictionary;
}

}  // namespace

std::optional<Accelerators::Object> SimulatedAccelerators::matchingServices() {
    ++lookups;
    if (onLookup) onLookup();
    if (lookupFails) return std::nullopt;
    return handOut(Iterator{services});
}

Accelerators::Object SimulatedAccelerators::iteratorNext(Object iterator) {
    const auto found = handedOut_.find(iterator);
    if (found == handedOut_.end()) return 0;
    auto* const walk = std::get_if<Iterator>(&found->second);
    if (!walk || walk->next == walk->services.size()) return 0;
    return handOut(walk->services[walk->next++]);
}

const PropertyValue* SimulatedAccelerators::property(Object service, std::string_view key) {
    answered_.reset();
    const Service* const asked = find(service);
    if (!asked) return nullptr;
    if (key == "model") {
        answered_ = asked->model;
    } else if (key == "PerformanceStatistics") {
        answered_ = asked->otherStatistics;
        if (asked->statistics) answered_.emplace(converted(*asked->statistics));
    }
    return answered_ ? &*answered_ : nullptr;
}

std::optional<std::uint64_t> SimulatedAccelerators::registryEntryID(Object service) {
    const Service* const asked = find(service);
    return asked ? asked->registryEntryID : std::nullopt;
}

void SimulatedAccelerators::release(Object object) {
    if (handedOut_.erase(object) == 0) ++strayReleases;
}

Accelerators::Object SimulatedAccelerators::handOut(std::variant<Iterator, Service> object) {
    handedOut_.emplace(++lastObject_, std::move(object));
    return lastObject_;
}

const SimulatedAccelerators::Service* SimulatedAccelerators::find(Object service) const {
    const auto found = handedOut_.find(service);
    return found == handedOut_.end() ? nullptr : std::get_if<Service>(&found->second);
}

}  // namespace vantor
