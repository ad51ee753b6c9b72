#pragma once

#include <cstddef>
#include <utility>

#include "sampling/system_sampler.h"

namespace vantor {

/// Asks the provider at that place of SystemSampler::queueLabels; `onAnswer` gets no result.
template <class OnAnswer>
void requestProvider(SystemSampler& sampler, std::size_t provider, double minimumInterval,
                     bool force, OnAnswer onAnswer) {
    const auto answer = [&] { return [f = std::move(onAnswer)](auto&&) mutable { f(); }; };
    switch (provider) {
        case 0:
            sampler.requestCPU(minimumInterval, force, answer());
            break;
        case 1:
            sampler.requestMemory(minimumInterval, force, answer());
            break;
        case 2:
            sampler.requestNetwork(true, minimumInterval, force, answer());
            break;
        case 3:
            sampler.requestSystemInfo(minimumInterval, force, answer());
            break;
        case 4:
            sampler.requestProcesses(minimumInterval, force, answer());
            break;
        case 5:
            sampler.requestGPUs(minimumInterval, force, answer());
            break;
        case 6:
            sampler.requestVolumes(minimumInterval, force, answer());
            break;
        default:
            sampler.requestPower(minimumInterval, force, answer());
            break;
    }
}

}  // namespace vantor
