#pragma once

#include <memory>

#include "platform/machine.h"

namespace vantor::bench {

/// The machine that the program runs on, except that its processors have spent one more tick at
/// each reading. The kernel counts hundredths of a second: readings made in a row would mostly find
/// that nothing has passed, and turn back before the larger part of their work.
std::shared_ptr<Machine> makeTickingMachine();

}  // namespace vantor::bench
