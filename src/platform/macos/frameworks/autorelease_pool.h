#pragma once

#include "platform/macos/frameworks/objective_c_table.h"

namespace vantor {

/// While it lives, it takes what is autoreleased on its thread, and lets go of that at its end.
/// Without the runtime's functions it does nothing. Pools end in the opposite order.
///
/// Threads of our own have no pool otherwise, and the frameworks autorelease within their functions
/// too: so each run of calls has one.
class AutoreleasePool {
  public:
    explicit AutoreleasePool(const ObjectiveCTable& runtime) : runtime_(runtime) {
        if (runtime.autoreleasePoolPush && runtime.autoreleasePoolPop)
            pool_ = runtime.autoreleasePoolPush();
    }
    AutoreleasePool(const AutoreleasePool&) = delete;
    AutoreleasePool& operator=(const AutoreleasePool&) = delete;
    ~AutoreleasePool() {
        if (pool_) runtime_.autoreleasePoolPop(pool_);
    }

  private:
    const ObjectiveCTable& runtime_;
    void* pool_ = nullptr;
};

}  // namespace vantor
