#pragma once

#include <nlohmann/json.hpp>

#include <memory>
#include <string>

#include "model/memory_stats.h"
#include "model/power_read_result.h"
#include "platform/machine.h"
#include "platform/simulated/fake_serial_queue.h"
#include "sampling/system_sampler.h"

namespace vantor {

/// A sampler on one machine that is asked everything it can say.
class MachineWitness {
  public:
    MachineWitness(std::shared_ptr<Machine> machine, bool includePointToPointInterfaces);

    /// What the eight providers say now, by name: the record, or null for "none this time"; a
    /// failed power reading is the text "failure".
    ///
    /// Nothing in it comes from the machine that the tests run on: the architecture is replaced by
    /// a placeholder, processes are in the order of their numbers, and their memory is in pages
    /// of 4096 bytes.
    nlohmann::json ask();

  private:
    FakeSerialQueueFactory queues_;
    std::shared_ptr<SystemSampler> sampler_;
    bool includePointToPointInterfaces_;
};

/// The document of a recorded machine: what is said at the second pass, one second after the first.
/// "networkWithTunnels" is there when point-to-point interfaces make a difference.
std::string describeRecordedMachine(const std::string& name);

/// Sorted keys, two blanks a level, a line end at the end.
std::string written(const nlohmann::json& document);

}  // namespace vantor
