#pragma once

#include <cstddef>
#include <utility>

#include "sampling/system_sampler.h"

namespace vantor {

/// Asks the provider at that place of SystemSampler::queueLabels; `onAnswer` gets no result.
template <class OnAnswer>
void requestProvider(SystemSampler& sampler, std::size_t provider, double minimumInterval,
                     bool force, OnAnswer onAnswer) {
    std::size_t place = 0;
    forEachProvider([&]<class Provider>(Provider) {
        if (place++ != provider) return;
        sampler.request<Provider>(minimumInterval, force,
                                  [f = std::move(onAnswer)](auto&&) mutable { f(); });
    });
}

}  // namespace vantor
