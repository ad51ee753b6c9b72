#pragma once

#include <chrono>
#include <thread>

namespace vantor {

/// Looks until the condition holds; false when it does not for twenty seconds.
template <class Condition>
bool becomesTrue(Condition condition) {
    const auto deadline = std::chrono::steady_clock::now() + std::chrono::seconds(20);
    while (!condition()) {
        if (std::chrono::steady_clock::now() > deadline) return false;
        std::this_thread::yield();
    }
    return true;
}

}  // namespace vantor
