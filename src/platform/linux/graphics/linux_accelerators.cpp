#include "platform/linux/graphics/linux_accelerators.h"

#include <cstdint>
#include <limits>

namespace vantor {

namespace {

constexpr Accelerators::Object theIterator = 1;
constexpr Accelerators::Object firstService = 2;

PropertyDictionary statisticsOf(const GraphicsFigures& figures) {
    PropertyDictionary statistics;
    statistics.reserve(4);
    if (figures.utilization) {
        statistics.push_back({"Device Utilization %", *figures.utilization});
    }
    if (figures.temperature) statistics.push_back({"Temperature(C)", *figures.temperature});
    const auto addBytes = [&](const char* key, const std::optional<std::uint64_t>& bytes) {
        if (!bytes || *bytes > std::uint64_t{std::numeric_limits<std::int64_t>::max()}) return;
        statistics.push_back({key, static_cast<std::int64_t>(*bytes)});
    };
    addBytes("VRAM Used", figures.memoryUsed);
    addBytes("VRAM Total", figures.memoryTotal);
    return statistics;
}

}  // namespace

std::optional<Accelerators::Object> LinuxAccelerators::matchingServices() {
    next_ = 0;
    if (!cards_->update()) return std::nullopt;
    return theIterator;
}

Accelerators::Object LinuxAccelerators::iteratorNext(Object iterator) {
    if (iterator != theIterator || next_ >= cards_->cards().size()) return 0;
    return firstService + static_cast<Object>(next_++);
}

const GraphicsCard* LinuxAccelerators::find(Object service) const {
    const auto cards = cards_->cards();
    if (service < firstService || service - firstService >= cards.size()) return nullptr;
    return cards[service - firstService].get();
}

const PropertyValue* LinuxAccelerators::property(Object service, std::string_view key) {
    const GraphicsCard* const card = find(service);
    property_.reset();
    if (!card) return nullptr;
    if (key == "model") property_.emplace(card->name());
    if (key == "PerformanceStatistics") property_.emplace(statisticsOf(card->figures()));
    return property_ ? &*property_ : nullptr;
}

std::optional<std::uint64_t> LinuxAccelerators::registryEntryID(Object service) {
    const GraphicsCard* const card = find(service);
    if (!card) return std::nullopt;
    return card->place().registryID();
}

}  // namespace vantor
