#include <algorithm>
#include <type_traits>
#include <utility>

#include "sampling/system_monitor.h"

/// The way out: which provider is asked with which interval, and how its result gets back to the
/// main thread.
namespace vantor {

namespace {

/// A record that is the reader's own is copied before it leaves the provider's queue.
template <class Record>
std::optional<Record> ownedResult(const Record* record) {
    return record ? std::optional<Record>(*record) : std::nullopt;
}
template <class Record>
std::remove_cvref_t<Record> ownedResult(Record&& record) {
    return std::forward<Record>(record);
}

}  // namespace

template <class Provider>
void SystemMonitor::request(bool force, std::uint64_t generation) {
    const double interval =
        std::max(fastInterval(settings_->refreshInterval()), Provider::minInterval);
    sampler().request<Provider>(
        interval, force,
        [weak = weak_from_this(), loop = mainLoop_,
         generation](SystemSampler::Result<Provider> result) {
            loop->post([weak, generation,
                        owned = ownedResult(
                            std::forward<SystemSampler::Result<Provider>>(result))]() mutable {
                if (const auto self = weak.lock())
                    self->template receive<Provider>(std::move(owned), generation);
            });
        },
        {.includePointToPointInterfaces = settings_->includePointToPointInterfaces()});
}

void SystemMonitor::requestStage(int stage, bool force, std::uint64_t generation) {
    forEachProvider([&]<class Provider>(Provider) {
        if (Provider::stage == stage) request<Provider>(force, generation);
    });
}

void SystemMonitor::requestFastProviders(bool force, std::uint64_t generation) {
    requestStage(0, force, generation);
}

void SystemMonitor::requestSlowProviders(bool force, std::uint64_t generation) {
    forEachProvider([&]<class Provider>(Provider) {
        if (Provider::stage != 0) request<Provider>(force, generation);
    });
}

}  // namespace vantor
