#pragma once

#include <memory>
#include <string>

#include "platform/machine.h"

/// What the build's operating system supplies; each folder of adapters defines these once.
namespace vantor {

/// The machine that the program runs on.
std::shared_ptr<Machine> makeNativeMachine();

/// Makes the calling thread a labelled background one of utility priority.
void assumeUtilityRole(const std::string& label);

}  // namespace vantor
