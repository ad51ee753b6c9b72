#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "platform/simulated/simulated_machine.h"
#include "probes/network_reader.h"

namespace vantor {

/// A reader on a machine with "en0", which is the primary one, and nothing else.
class NetworkReaderTest : public testing::Test {
  protected:
    using Family = InterfaceCalls::Family;

    NetworkReaderTest() {
        add("en0").addresses = {{Family::ipv4, "192.168.1.2"}};
        setPrimary("en0");
    }

    SimulatedInterfaceCalls::Interface& add(const std::string& name) {
        auto& made = net.named(name);
        made.received = 1'000'000;
        made.sent = 500'000;
        return made;
    }
    SimulatedInterfaceCalls::Interface& at(const std::string& name) { return net.named(name); }
    void remove(const std::string& name) {
        std::erase_if(net.interfaces, [&](const auto& i) { return i.name == name; });
    }

    void setPrimary(const std::string& name, const char* key = "IPv4") {
        machine->dynamicStore().values.insert_or_assign(
            std::string("State:/Network/Global/") + key,
            PropertyValue(PropertyDictionary{{"PrimaryInterface", PropertyValue(name)}}));
    }
    void setNoPrimary() { machine->dynamicStore().values.clear(); }

    /// A reading `seconds` after the last one. Nothing of the platform's may be left with it.
    const NetworkStats* read(double seconds = 1) {
        uptime += seconds;
        const NetworkStats* const stats = reader.read(includePointToPoint, uptime);
        EXPECT_EQ(net.addressListsOutstanding, 0);
        return stats;
    }

    static const NetworkInterfaceStats* row(const NetworkStats* stats, const std::string& name) {
        if (!stats) return nullptr;
        for (const auto& each : stats->interfaces) {
            if (each.name == name) return &each;
        }
        return nullptr;
    }
    static std::vector<std::string> names(const NetworkStats* stats) {
        std::vector<std::string> names;
        if (stats) {
            for (const auto& each : stats->interfaces)
                names.push_back(each.name);
        }
        return names;
    }

    std::shared_ptr<SimulatedMachine> machine = std::make_shared<SimulatedMachine>();
    SimulatedInterfaceCalls& net = machine->interfaceCalls();
    NetworkReader reader{machine};
    bool includePointToPoint = false;
    double uptime = 1000;
};

}  // namespace vantor
