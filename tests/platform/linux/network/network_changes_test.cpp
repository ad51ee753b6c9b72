#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <csignal>
#include <fstream>
#include <thread>

#include "platform/linux/linux_machine.h"
#include "probes/network_reader.h"
#include "support/network_namespace.h"

/// Links that come, go, change their names and start their counters again, in a namespace where
/// nothing else goes on: no rate may be shown that nobody sent at.
namespace vantor::network_changes_test {
namespace {

using namespace std::chrono_literals;

constexpr std::uint64_t wireBytes = DatagramSender::payload + DatagramSender::headers;
constexpr double noise = 20'000;  // bytes per second that a link may see by itself

class NetworkChanges : public testing::Test {
  protected:
    void SetUp() override {
        const std::string obstacle = enterNetworkNamespace();
        if (!obstacle.empty()) GTEST_SKIP() << obstacle;
        machine = std::make_shared<LinuxMachine>();
        reader.emplace(machine);
    }

    static void send(const char* address, std::uint64_t count) {
        EXPECT_EQ(DatagramSender(address).send(count), count);
    }

    /// A reading a little after the last one.
    const NetworkStats* read() {
        std::this_thread::sleep_for(60ms);
        return reader->read(true, machine->processInfo().systemUptime());
    }
    /// The row of that name, whether or not the first of the list could be measured: the absence of
    /// a record is no rate either.
    static const NetworkInterfaceStats* row(const NetworkStats* stats, const std::string& name) {
        if (!stats) return nullptr;
        const auto found = std::find_if(stats->interfaces.begin(), stats->interfaces.end(),
                                        [&](const auto& r) { return r.name == name; });
        return found == stats->interfaces.end() ? nullptr : &*found;
    }
    static double rateOf(const NetworkInterfaceStats* row) {
        return row ? row->uploadBytesPerSecond + row->downloadBytesPerSecond : 0;
    }

    std::shared_ptr<Machine> machine;
    std::optional<NetworkReader> reader;
};

TEST_F(NetworkChanges, ALinkThatComesHasNoRateAtFirst) {
    ASSERT_TRUE(makePair("quiet0", "quiet1", "10.1.0.1"));
    ASSERT_TRUE(ip("route add default via 10.1.0.99"));
    read();
    ASSERT_TRUE(makePair("a0", "a1", "10.2.0.1"));
    send("10.2.0.99", 2000);
    const NetworkStats* stats = read();
    ASSERT_NE(row(stats, "a0"), nullptr);
    EXPECT_GE(row(stats, "a0")->sentBytes, 2000 * wireBytes);
    EXPECT_EQ(rateOf(row(stats, "a0")), 0);
    EXPECT_EQ(rateOf(row(stats, "a1")), 0);
    send("10.2.0.99", 2000);
    EXPECT_GT(rateOf(row(read(), "a0")), noise) << "the next one is measured";
}

TEST_F(NetworkChanges, ALinkThatGoesIsGone) {
    ASSERT_TRUE(makePair("quiet0", "quiet1", "10.1.0.1"));
    ASSERT_TRUE(makePair("a0", "a1", "10.2.0.1"));
    ASSERT_TRUE(ip("route add default via 10.1.0.99"));
    read();
    ASSERT_NE(row(read(), "a0"), nullptr);
    ASSERT_TRUE(ip("link del a0"));
    const NetworkStats* stats = read();
    ASSERT_NE(stats, nullptr);
    EXPECT_EQ(row(stats, "a0"), nullptr);
    EXPECT_EQ(row(stats, "a1"), nullptr);
    EXPECT_LT(rateOf(row(stats, "quiet0")), noise);
}

TEST_F(NetworkChanges, ALinkMadeAgainUnderItsNameHasNoRateAtFirst) {
    ASSERT_TRUE(makePair("quiet0", "quiet1", "10.1.0.1"));
    ASSERT_TRUE(ip("route add default via 10.1.0.99"));
    // With fewer and with more bytes than the old one had.
    for (const std::uint64_t later : {10u, 4000u}) {
        ASSERT_TRUE(makePair("a0", "a1", "10.2.0.1"));
        send("10.2.0.99", 1000);
        read();
        ASSERT_NE(row(read(), "a0"), nullptr);
        ASSERT_TRUE(ip("link del a0"));
        ASSERT_TRUE(makePair("a0", "a1", "10.2.0.1"));
        send("10.2.0.99", later);
        const NetworkStats* stats = read();
        ASSERT_NE(row(stats, "a0"), nullptr);
        EXPECT_EQ(rateOf(row(stats, "a0")), 0) << later;
        EXPECT_EQ(rateOf(row(stats, "a1")), 0) << later;
        ASSERT_TRUE(ip("link del a0"));
    }
}

TEST_F(NetworkChanges, APrimaryLinkMadeAgainGivesNoRecordOnce) {
    const auto make = [] {
        return makePair("a0", "a1", "10.2.0.1") && ip("route add default via 10.2.0.99");
    };
    ASSERT_TRUE(make());
    read();
    ASSERT_NE(read(), nullptr);
    ASSERT_TRUE(ip("link del a0"));
    ASSERT_TRUE(make());
    send("10.2.0.99", 1000);
    EXPECT_EQ(read(), nullptr);
    const NetworkStats* stats = read();
    ASSERT_NE(stats, nullptr);
    EXPECT_EQ(stats->primaryInterfaceName, "a0");
    EXPECT_LT(stats->uploadBytesPerSecond, noise);
}

TEST_F(NetworkChanges, ARenamedLinkHasNoRateAtFirst) {
    ASSERT_TRUE(makePair("quiet0", "quiet1", "10.1.0.1"));
    ASSERT_TRUE(makePair("a0", "a1", "10.2.0.1"));
    ASSERT_TRUE(ip("route add default via 10.1.0.99"));
    send("10.2.0.99", 1000);
    read();
    ASSERT_TRUE(ip("link set a0 down") && ip("link set a0 name b0") && ip("link set b0 up") &&
                waitUntilRunning("b0"));
    const NetworkStats* stats = read();
    EXPECT_EQ(row(stats, "a0"), nullptr);
    ASSERT_NE(row(stats, "b0"), nullptr);
    EXPECT_EQ(rateOf(row(stats, "b0")), 0);
}

TEST_F(NetworkChanges, LinksThatExchangeTheirNamesHaveNoRateAtFirst) {
    ASSERT_TRUE(makePair("quiet0", "quiet1", "10.1.0.1"));
    ASSERT_TRUE(makePair("a0", "a1", "10.2.0.1"));
    ASSERT_TRUE(makePair("b0", "b1", "10.3.0.1"));
    ASSERT_TRUE(ip("route add default via 10.1.0.99"));
    send("10.3.0.99", 5000);
    read();
    read();
    ASSERT_TRUE(ip("link set a0 down") && ip("link set b0 down") && ip("link set a0 name t0") &&
                ip("link set b0 name a0") && ip("link set t0 name b0") && ip("link set a0 up") &&
                ip("link set b0 up") && waitUntilRunning("a0") && waitUntilRunning("b0"));
    const NetworkStats* stats = read();
    ASSERT_NE(row(stats, "a0"), nullptr);
    EXPECT_GE(row(stats, "a0")->sentBytes, 5000 * wireBytes);
    EXPECT_EQ(rateOf(row(stats, "a0")), 0);
    EXPECT_EQ(rateOf(row(stats, "b0")), 0);
}

TEST_F(NetworkChanges, ALinkWithANumberPast16BitsIsMeasured) {
    ASSERT_TRUE(makePair("quiet0", "quiet1", "10.1.0.1"));
    ASSERT_TRUE(ip("route add default via 10.1.0.99"));
    if (!ip("link add index 70000 name a0 type veth peer name a1")) {
        GTEST_SKIP() << "this ip command cannot number a link";
    }
    ASSERT_TRUE(ip("addr add 10.2.0.1/24 dev a0") && ip("link set a0 up") && ip("link set a1 up") &&
                waitUntilRunning("a0") &&
                ip("neigh replace 10.2.0.99 lladdr 02:00:00:00:00:99 dev a0"));
    read();
    send("10.2.0.99", 2000);
    const NetworkStats* stats = read();
    ASSERT_NE(row(stats, "a0"), nullptr);
    EXPECT_GT(row(stats, "a0")->uploadBytesPerSecond, noise);
    EXPECT_GE(row(stats, "a0")->sentBytes, 2000 * wireBytes);
}

TEST_F(NetworkChanges, AnAddressWithAPeerIsTheOneOfThisEnd) {
    ASSERT_TRUE(ip("link add a0 type veth peer name a1") &&
                ip("addr add 10.9.0.1 peer 10.9.0.2 dev a0") && ip("link set a0 up") &&
                ip("link set a1 up") && waitUntilRunning("a0"));
    read();
    const NetworkStats* stats = read();
    ASSERT_NE(row(stats, "a0"), nullptr);
    EXPECT_EQ(row(stats, "a0")->ipv4Address, "10.9.0.1");
}

TEST_F(NetworkChanges, TheDefaultRoutesLinkIsThePrimaryOneByItsMetric) {
    ASSERT_TRUE(makePair("a0", "a1", "10.1.0.1"));
    ASSERT_TRUE(makePair("b0", "b1", "10.2.0.1"));
    ASSERT_TRUE(ip("route add default via 10.1.0.99 metric 600"));
    ASSERT_TRUE(ip("route add default via 10.2.0.99 metric 100"));
    ASSERT_TRUE(ip("route add unreachable default metric 5"));
    read();
    const NetworkStats* stats = read();
    ASSERT_NE(stats, nullptr);
    EXPECT_EQ(stats->primaryInterfaceName, "b0");
}

bool enableIPv6(const std::string& name) {
    std::ofstream("/proc/sys/net/ipv6/conf/" + name + "/disable_ipv6") << 0;
    return ip("-6 link set " + name + " up");
}

// Policy routing, a tunnel or a VRF keeps default routes of its own.
TEST_F(NetworkChanges, ADefaultRouteOfAnotherTableMakesNoPrimaryLink) {
    ASSERT_TRUE(makePair("a0", "a1", "10.1.0.1"));
    ASSERT_TRUE(makePair("b0", "b1", "10.2.0.1"));
    if (!enableIPv6("a0") || !enableIPv6("b0") || !ip("-6 addr add fd01::1/64 dev a0 nodad") ||
        !ip("-6 addr add fd02::1/64 dev b0 nodad")) {
        GTEST_SKIP() << "there is no IPv6 here";
    }
    ASSERT_TRUE(ip("-6 route add default via fd01::99 dev a0 table 100 metric 1"));
    ASSERT_TRUE(ip("-6 route add default via fd02::99 dev b0 metric 1024"));
    read();
    const NetworkStats* stats = read();
    ASSERT_NE(stats, nullptr);
    EXPECT_EQ(stats->primaryInterfaceName, "b0");
    ASSERT_TRUE(ip("-6 route add default via fd01::99 dev a0 metric 512"));
    const auto primary = [&] {
        const auto name = machine->primaryInterface().name();
        return std::string(name.value_or("(none)"));
    };
    EXPECT_EQ(primary(), "a0") << "the lower metric of the same table";
    ASSERT_TRUE(ip("-6 route del default via fd01::99 dev a0 metric 512"));
    ASSERT_TRUE(ip("-6 route add unreachable default metric 3"));
    EXPECT_EQ(primary(), "b0") << "a refusal leads nowhere";
    ASSERT_TRUE(ip("-6 route del default via fd02::99 dev b0 metric 1024"));
    EXPECT_EQ(primary(), "(none)");
    ASSERT_TRUE(ip("-6 route add default nexthop via fd02::98 dev b0 nexthop via fd01::98 dev a0"));
    EXPECT_EQ(primary(), "b0") << "the first of several hops";
}

// While nothing changes the kernel is asked for counters alone.
TEST_F(NetworkChanges, WhatComesGoesAndIsAlteredIsInTheNextReading) {
    ASSERT_TRUE(makePair("quiet0", "quiet1", "10.1.0.1"));
    ASSERT_TRUE(ip("route add default via 10.1.0.99"));
    ASSERT_TRUE(makePair("a0", "a1", "10.2.0.1"));
    const auto steady = [&] {
        for (int i = 0; i < 3; ++i)
            read();
        return row(read(), "a0");
    };
    ASSERT_NE(steady(), nullptr);
    EXPECT_EQ(steady()->ipv4Address, "10.2.0.1");
    ASSERT_TRUE(ip("addr del 10.2.0.1/24 dev a0"));
    EXPECT_EQ(row(read(), "a0")->ipv4Address, std::nullopt);
    steady();
    ASSERT_TRUE(ip("addr add 10.2.0.7/24 dev a0"));
    EXPECT_EQ(row(read(), "a0")->ipv4Address, "10.2.0.7");
    steady();
    if (enableIPv6("a0") && steady() && ip("-6 addr add fd02::7/64 dev a0 nodad")) {
        EXPECT_EQ(row(read(), "a0")->ipv6Address, "fd02::7");
        steady();
    }
    ASSERT_TRUE(ip("link set a0 down"));
    EXPECT_EQ(row(read(), "a0"), nullptr);
    read();
    ASSERT_TRUE(ip("link set a0 up") && waitUntilRunning("a0"));
    EXPECT_NE(row(read(), "a0"), nullptr);
    steady();
    ASSERT_TRUE(ip("link set a1 down"));
    const auto isGone = [&] { return row(read(), "a0") == nullptr; };
    bool hasGone = false;
    // The loss of the carrier is handed on by the kernel itself, within a second or so.
    for (int i = 0; i < 50 && !hasGone; ++i)
        hasGone = isGone();
    EXPECT_TRUE(hasGone);
}

/// A process of its own that makes, exchanges and removes links as fast as it can.
class Churn {
  public:
    Churn() : process_(::fork()) {
        if (process_ != 0) return;
        for (;;) {
            ip("link add t0 type veth peer name t1");
            ip("link set a0 down");
            ip("link set b0 down");
            ip("link set a0 name x0");
            ip("link set b0 name a0");
            ip("link set x0 name b0");
            ip("link set a0 up");
            ip("link set b0 up");
            ip("link del t0");
        }
    }
    Churn(const Churn&) = delete;
    Churn& operator=(const Churn&) = delete;
    ~Churn() {
        ::kill(process_, SIGKILL);
        ::waitpid(process_, nullptr, 0);
    }

  private:
    pid_t process_;
};

TEST_F(NetworkChanges, NoRateEverShowsWhileLinksChangeAllTheTime) {
    ASSERT_TRUE(makePair("a0", "a1", "10.2.0.1"));
    ASSERT_TRUE(makePair("b0", "b1", "10.3.0.1"));
    send("10.3.0.99", 20'000);  // so that one is far ahead of the other
    int records = 0;
    const Churn churn;
    const auto end = std::chrono::steady_clock::now() + 2s;
    while (std::chrono::steady_clock::now() < end) {
        std::this_thread::sleep_for(2ms);
        const NetworkStats* const stats = reader->read(true, machine->processInfo().systemUptime());
        if (!stats) continue;
        ++records;
        for (const auto& each : stats->interfaces) {
            // 20,000 datagrams within milliseconds would be gigabytes per second.
            EXPECT_LT(rateOf(&each), 1e6) << each.name;
        }
    }
    EXPECT_GT(records, 10);
}

}  // namespace
}  // namespace vantor::network_changes_test
