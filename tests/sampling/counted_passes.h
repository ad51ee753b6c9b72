#pragma once

#include <cstddef>

#include "sampling/counted_allocations.h"

namespace vantor {

constexpr int warmUp = 50;
constexpr int passes = 1000;

/// What a thousand passes allocate together, after some that may fill buffers and caches.
template <class Pass>
std::size_t allocationsOf(Pass pass) {
    for (int i = 0; i < warmUp; ++i)
        pass();
    const std::size_t before = countedAllocations();
    for (int i = 0; i < passes; ++i)
        pass();
    return countedAllocations() - before;
}

}  // namespace vantor
