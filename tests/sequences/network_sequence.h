#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>

#include "platform/simulated/simulated_machine.h"
#include "probes/network_reader.h"

#include "sequences/chance.h"
#include "sequences/network_oracle.h"
#include "sequences/sequence.h"

namespace vantor {

/// Interfaces that come, go, swap names, use names and numbers again and start to count again;
/// clocks that step; lists that cannot be had.
class NetworkSequence : public Sequence {
  public:
    explicit NetworkSequence(std::uint64_t seed);

    std::optional<std::string> step() override;

  private:
    using Interface = SimulatedInterfaceCalls::Interface;

    Interface newInterface(std::string name);
    void addOrRemove();
    void exchange();
    void transfer();
    void changeInterface(Interface& interface);
    void changeAddresses(Interface& interface);
    void changePrimary();
    bool failAtTimes();
    void passTime();
    NetworkOracle::Reading truth(bool isAnswered) const;

    Chance chance_;
    std::shared_ptr<SimulatedMachine> machine_ = std::make_shared<SimulatedMachine>();
    SimulatedInterfaceCalls& net_ = machine_->interfaceCalls();
    NetworkReader reader_{machine_};
    NetworkOracle oracle_;
    std::optional<std::string> primary_;
    double uptime_ = 1000;
    bool includePointToPoint_ = false;
};

}  // namespace vantor
