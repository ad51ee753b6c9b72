#pragma once

#include <memory>

#include "platform/machine.h"

namespace vantor {

/// Runs the program until the user ends it; gives its exit status. May end the process itself when
/// a probe hangs.
int runVantor(int argc, char** argv, const std::shared_ptr<Machine>& machine);

}  // namespace vantor
