#pragma once

#include "platform/confinement.h"

namespace vantor {

/// Where the kernel has nothing of the kind for a program to ask for, or where a build goes without
/// it.
class Unconfined : public Confinement {
  public:
    void confineEarly() override {}
    void confineForRunning(Listening) override {}
    ConfinementState state() const override { return {}; }
};

}  // namespace vantor
