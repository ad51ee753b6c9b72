#pragma once

#include <memory>

#include "model/process_sample.h"
#include "platform/machine.h"

namespace vantor {

class ProcessReader {
  public:
    explicit ProcessReader(std::shared_ptr<Machine> machine) : machine_(std::move(machine)) {}

    ProcessSample read();
    void resetDeltas();

  private:
    std::shared_ptr<Machine> machine_;
};

}  // namespace vantor
