#include "sampling/system_sampler.h"

#include <utility>

namespace vantor {

const std::vector<std::string_view>& SystemSampler::queueLabels() {
    static const std::vector<std::string_view> labels = [] {
        std::vector<std::string_view> all;
        forEachProvider([&](auto provider) { all.push_back(provider.label); });
        return all;
    }();
    return labels;
}

std::shared_ptr<SystemSampler> SystemSampler::make(std::shared_ptr<Machine> machine,
                                                   SerialQueueFactory& queues) {
    struct Constructible : SystemSampler {
        Constructible(std::shared_ptr<Machine> m, SerialQueueFactory& q)
            : SystemSampler(std::move(m), q) {}
    };
    return std::make_shared<Constructible>(std::move(machine), queues);
}

SystemSampler::SystemSampler(std::shared_ptr<Machine> machine, SerialQueueFactory& queues)
    : machine_(std::move(machine)), slots_(makeSlots(AllProviders{}, machine_)) {
    // Not in the slots' constructors: a tuple does not construct its elements in order everywhere.
    forEachProvider([&]<class Provider>(Provider) {
        slot<Provider>().queue = queues.makeQueue(Provider::label);
        slot<Provider>().gate = std::make_shared<ProviderGate>(machine_);
    });
}

SystemSampler::~SystemSampler() {
    invalidate();
}

void SystemSampler::invalidate() {
    forEachProvider([this]<class Provider>(Provider) { slot<Provider>().gate->invalidate(); });
}

void SystemSampler::resetDeltaBaselines() {
    forEachProvider([this]<class Provider>(Provider) {
        if constexpr (HasDeltas<Provider>) {
            slot<Provider>().queue->submit([weak = weak_from_this()] {
                if (const auto sampler = weak.lock())
                    Provider::resetDeltas(sampler->slot<Provider>().reader);
            });
        }
    });
}

std::vector<std::shared_ptr<const ProviderGate>> SystemSampler::gates() const {
    std::vector<std::shared_ptr<const ProviderGate>> gates;
    forEachProvider(
        [&]<class Provider>(Provider) { gates.push_back(std::get<Slot<Provider>>(slots_).gate); });
    return gates;
}

}  // namespace vantor
