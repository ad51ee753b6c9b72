#pragma once

#include <memory>

#include "platform/confinement.h"
#include "platform/machine.h"
#include "platform/unconfined.h"

namespace vantor {

/// Runs the program until the user ends it; gives its exit status. May end the process itself when
/// a probe hangs. A `confinement` that has begun must still allow what a display needs.
int runVantor(int argc, char** argv, const std::shared_ptr<Machine>& machine,
              const std::shared_ptr<Confinement>& confinement = std::make_shared<Unconfined>());

}  // namespace vantor
