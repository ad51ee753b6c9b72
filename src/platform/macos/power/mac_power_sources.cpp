#include "platform/macos/power/mac_power_sources.h"

#include <optional>
#include <utility>
#include <vector>

#include "platform/macos/frameworks/autorelease_pool.h"

namespace vantor {

namespace {

struct Source {
    bool isThere = false;
    std::optional<PropertyValue> description;
};

class CopiedInfo : public PowerSources::Info {
  public:
    explicit CopiedInfo(std::optional<std::vector<Source>> sources)
        : sources_(std::move(sources)) {}

    std::optional<std::size_t> count() const override {
        return sources_ ? std::optional(sources_->size()) : std::nullopt;
    }
    bool hasSource(std::size_t index) const override {
        return sources_ && index < sources_->size() && (*sources_)[index].isThere;
    }
    const PropertyDictionary* description(std::size_t index) const override {
        if (!hasSource(index)) return nullptr;
        const auto& description = (*sources_)[index].description;
        return description ? description->dictionary() : nullptr;
    }

  private:
    std::optional<std::vector<Source>> sources_;
};

}  // namespace

MacPowerSources::MacPowerSources(std::shared_ptr<const Frameworks> frameworks)
    : frameworks_(std::move(frameworks)),
      conversion_(frameworks_->coreFoundation),
      canAsk_(conversion_.isUsable() && frameworks_->ioKit.copyPowerSourcesInfo &&
              frameworks_->ioKit.copyPowerSourcesList &&
              frameworks_->ioKit.getPowerSourceDescription) {}

std::unique_ptr<PowerSources::Info> MacPowerSources::copyInfo() {
    if (!canAsk_) return nullptr;
    const IOKitTable& ioKit = frameworks_->ioKit;
    const AutoreleasePool pool(frameworks_->objectiveC);
    const RetainedReference info = conversion_.own(ioKit.copyPowerSourcesInfo());
    if (!info) return nullptr;
    const RetainedReference list = conversion_.own(ioKit.copyPowerSourcesList(info.get()));
    const auto count = conversion_.arrayCount(list.get());
    if (!count) return std::make_unique<CopiedInfo>(std::nullopt);
    std::vector<Source> sources(*count);
    for (std::size_t i = 0; i < *count; ++i) {
        const CFTypeRef source = conversion_.arrayEntry(list.get(), i);
        if (!source) continue;
        sources[i].isThere = true;
        sources[i].description =
            conversion_.value(ioKit.getPowerSourceDescription(info.get(), source));
    }
    return std::make_unique<CopiedInfo>(std::move(sources));
}

}  // namespace vantor
