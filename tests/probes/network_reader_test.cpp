#include "probes/network_reader.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cerrno>
#include <limits>

#include "probes/network_reader_fixture.h"
#include "support/named_row.h"

namespace vantor::network_reader_test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::Optional;
using testing::StrEq;

TEST_F(NetworkReaderTest, TheFirstReadGivesNothingAndTheSecondARecord) {
    EXPECT_EQ(read(), nullptr);
    at("en0").received += 3000;
    at("en0").sent += 1000;
    const NetworkStats* stats = read(2);
    ASSERT_NE(stats, nullptr);
    EXPECT_EQ(stats->hostname, "simulated.local");
    EXPECT_THAT(stats->primaryInterfaceName, Optional(StrEq("en0")));
    EXPECT_THAT(stats->primaryIPv4Address, Optional(StrEq("192.168.1.2")));
    EXPECT_EQ(stats->primaryIPv6Address, std::nullopt);
    EXPECT_EQ(stats->downloadBytesPerSecond, 1500);
    EXPECT_EQ(stats->uploadBytesPerSecond, 500);
    NetworkInterfaceStats expected;
    expected.name = "en0";
    expected.ipv4Address = "192.168.1.2";
    expected.receivedBytes = 1'003'000;
    expected.sentBytes = 501'000;
    expected.downloadBytesPerSecond = 1500;
    expected.uploadBytesPerSecond = 500;
    EXPECT_THAT(stats->interfaces, ElementsAre(expected));
}

TEST_F(NetworkReaderTest, EqualCountersAreARateOfZeroAndStillMeasured) {
    read();
    const NetworkStats* stats = read();
    ASSERT_NE(stats, nullptr);
    EXPECT_EQ(stats->downloadBytesPerSecond, 0);
    EXPECT_EQ(stats->uploadBytesPerSecond, 0);
}

TEST_F(NetworkReaderTest, ReceivedBytesThatWentDownOnThePrimaryGiveNothingOnce) {
    read();
    at("en0").received = 10;
    at("en0").sent += 1;
    EXPECT_EQ(read(), nullptr);
    at("en0").received += 500;
    const NetworkStats* stats = read();
    ASSERT_NE(stats, nullptr) << "the lower value is the new baseline";
    EXPECT_EQ(stats->downloadBytesPerSecond, 500);
}

TEST_F(NetworkReaderTest, SentBytesThatWentDownOnThePrimaryGiveNothingOnce) {
    read();
    at("en0").sent = 10;
    EXPECT_EQ(read(), nullptr);
    at("en0").sent += 500;
    EXPECT_EQ(read()->uploadBytesPerSecond, 500);
}

TEST_F(NetworkReaderTest, ReceivedBytesThatWentDownStillShowWhatARowHasSent) {
    add("en1");
    read();
    at("en1").received = 0;
    at("en1").sent += 700;
    const NetworkStats* stats = read();
    ASSERT_NE(row(stats, "en1"), nullptr);
    EXPECT_EQ(row(stats, "en1")->downloadBytesPerSecond, 0);
    EXPECT_EQ(row(stats, "en1")->uploadBytesPerSecond, 700);
}

TEST_F(NetworkReaderTest, SentBytesThatWentDownStillShowWhatARowHasReceived) {
    add("en1");
    read();
    at("en1").sent = 0;
    at("en1").received += 700;
    const NetworkStats* stats = read();
    ASSERT_NE(row(stats, "en1"), nullptr);
    EXPECT_EQ(row(stats, "en1")->downloadBytesPerSecond, 700);
    EXPECT_EQ(row(stats, "en1")->uploadBytesPerSecond, 0);
}

TEST_F(NetworkReaderTest, CountersThatBothWentDownGiveARowNoRates) {
    add("en1");
    read();
    at("en1").received = 5;
    at("en1").sent = 5;
    const NetworkStats* stats = read();
    ASSERT_NE(row(stats, "en1"), nullptr);
    EXPECT_EQ(row(stats, "en1")->downloadBytesPerSecond, 0);
    EXPECT_EQ(row(stats, "en1")->uploadBytesPerSecond, 0);
    EXPECT_EQ(row(stats, "en1")->receivedBytes, 5u);
}

TEST_F(NetworkReaderTest, AnotherSourceOfTheCountersGivesZeroRatesOnce) {
    add("en1").linkData = {4'000'000, 2'000'000};
    read();
    ASSERT_NE(read(), nullptr);
    at("en1").hasMessage = false;
    const NetworkStats* stats = read();
    ASSERT_NE(row(stats, "en1"), nullptr);
    EXPECT_EQ(row(stats, "en1")->receivedBytes, 4'000'000u);
    EXPECT_EQ(row(stats, "en1")->downloadBytesPerSecond, 0);
    EXPECT_EQ(row(stats, "en1")->uploadBytesPerSecond, 0);
    at("en1").linkData = {4'000'900, 2'000'100};
    stats = read();
    EXPECT_EQ(row(stats, "en1")->downloadBytesPerSecond, 900);
    EXPECT_EQ(row(stats, "en1")->uploadBytesPerSecond, 100);
    at("en1").hasMessage = true;
    at("en1").received = 9'000'000;
    EXPECT_EQ(row(read(), "en1")->downloadBytesPerSecond, 0);
    at("en1").received += 60;
    EXPECT_EQ(row(read(), "en1")->downloadBytesPerSecond, 60);
}

TEST_F(NetworkReaderTest, AnotherSourceOnThePrimaryGivesNothingOnce) {
    add("en1");  // a list without any interface would be a failure
    at("en0").linkData = {4'000'000, 2'000'000};
    read();
    at("en0").hasMessage = false;
    EXPECT_EQ(read(), nullptr);
    EXPECT_NE(read(), nullptr);
}

TEST_F(NetworkReaderTest, The64BitCountersComeBeforeThe32BitOnes) {
    at("en0").linkData = {1, 2};
    read();
    EXPECT_EQ(read()->interfaces.front().receivedBytes, 1'000'000u);
}

TEST_F(NetworkReaderTest, WithoutAnyCountersTheyAreZero) {
    add("en1").hasMessage = false;
    read();
    const NetworkStats* stats = read();
    ASSERT_NE(row(stats, "en1"), nullptr);
    EXPECT_EQ(row(stats, "en1")->receivedBytes, 0u);
    EXPECT_EQ(row(stats, "en1")->sentBytes, 0u);
}

TEST_F(NetworkReaderTest, ASecondReadAtTheSameUptimeGivesNothing) {
    read();
    at("en0").received += 1000;
    EXPECT_EQ(read(0), nullptr);
    at("en0").received += 500;
    EXPECT_EQ(read(1)->downloadBytesPerSecond, 500) << "its counters are the new baseline";
}

TEST_F(NetworkReaderTest, AnUptimeThatWentBackGivesNothing) {
    read();
    at("en0").received += 1000;
    EXPECT_EQ(read(-1), nullptr);
    EXPECT_NE(read(1), nullptr);
}

TEST_F(NetworkReaderTest, RatesThatAreNoNumbersAreZero) {
    at("en0").received = 0;
    uptime = 0;
    read(0);
    at("en0").received = std::numeric_limits<std::uint64_t>::max();
    const NetworkStats* stats = read(std::numeric_limits<double>::denorm_min());
    ASSERT_NE(stats, nullptr);
    EXPECT_EQ(stats->downloadBytesPerSecond, 0);
}

TEST_F(NetworkReaderTest, TheLargestCountersHaveDifferences) {
    at("en0").received = std::numeric_limits<std::uint64_t>::max() - 10;
    read();
    at("en0").received += 10;
    EXPECT_EQ(read()->downloadBytesPerSecond, 10);
}

TEST_F(NetworkReaderTest, ANewInterfaceHasNoRatesAtFirst) {
    read();
    add("en1").received = 50'000'000'000;
    const NetworkStats* stats = read();
    ASSERT_NE(row(stats, "en1"), nullptr);
    EXPECT_EQ(row(stats, "en1")->downloadBytesPerSecond, 0);
    at("en1").received += 10;
    EXPECT_EQ(row(read(), "en1")->downloadBytesPerSecond, 10);
}

TEST_F(NetworkReaderTest, AnInterfaceThatLeftIsForgotten) {
    add("en1");
    read();
    remove("en1");
    EXPECT_THAT(names(read()), ElementsAre("en0"));
    add("en1").received += 1000;
    EXPECT_EQ(row(read(), "en1")->downloadBytesPerSecond, 0) << "it is a new one";
}

TEST_F(NetworkReaderTest, AnInterfaceThatWasDownForAWhileIsForgotten) {
    add("en1");
    read();
    at("en1").flags = InterfaceCalls::running;
    read();
    at("en1").flags |= InterfaceCalls::up;
    at("en1").received += 1000;
    EXPECT_EQ(row(read(), "en1")->downloadBytesPerSecond, 0);
}

// Both names were there before, so each would be compared with the other's past.
TEST_F(NetworkReaderTest, InterfacesThatExchangeNamesGiveNoRatesOnce) {
    setNoPrimary();
    add("en1").received = 7'000'000;
    add("en2");
    read();
    ASSERT_NE(read(), nullptr);
    std::swap(at("en1").index, at("en2").index);
    std::swap(at("en1").received, at("en2").received);
    const NetworkStats* stats = read();
    ASSERT_NE(stats, nullptr);
    EXPECT_EQ(row(stats, "en2")->receivedBytes, 7'000'000u);
    EXPECT_EQ(row(stats, "en1")->downloadBytesPerSecond, 0);
    EXPECT_EQ(row(stats, "en2")->downloadBytesPerSecond, 0);
    at("en2").received += 20;
    EXPECT_EQ(row(read(), "en2")->downloadBytesPerSecond, 20);
}

TEST_F(NetworkReaderTest, ResetMakesTheNextReadAFirstOne) {
    read();
    ASSERT_NE(read(), nullptr);
    reader.resetDeltas();
    at("en0").received += 1000;
    EXPECT_EQ(read(), nullptr);
    EXPECT_EQ(read()->downloadBytesPerSecond, 0);
}

struct Failure : NamedRow {
    void (*arrange)(SimulatedInterfaceCalls&);
};
class FailedNetworkRead : public NetworkReaderTest, public testing::WithParamInterface<Failure> {};

TEST_P(FailedNetworkRead, GivesNothingAndKeepsTheBaselines) {
    read();
    const auto before = net.interfaces;
    at("en0").received += 1000;
    GetParam().arrange(net);
    EXPECT_EQ(read(), nullptr);
    net.addressListFails = net.addressListIsEmpty = false;
    net.rawList.reset();
    net.interfaces = before;
    at("en0").received += 3000;
    const NetworkStats* stats = read();
    ASSERT_NE(stats, nullptr);
    EXPECT_EQ(stats->downloadBytesPerSecond, 1500) << "over both seconds";
}

INSTANTIATE_TEST_SUITE_P(
    Failures, FailedNetworkRead,
    testing::Values(
        Failure{{"OfTheSize"}, [](SimulatedInterfaceCalls& n) { n.sizeErrors = {EIO}; }},
        Failure{{"OfTheList"}, [](SimulatedInterfaceCalls& n) { n.listErrors = {EIO}; }},
        Failure{{"AMessageOfType18ShorterThan160Bytes"},
                [](SimulatedInterfaceCalls& n) {
                    n.rawList = std::vector<std::byte>(159);
                    (*n.rawList)[0] = std::byte{159};
                    (*n.rawList)[2] = std::byte{5};
                    (*n.rawList)[3] = std::byte{18};
                }},
        Failure{{"AnIndexThatLostItsNameMeanwhile"},
                [](SimulatedInterfaceCalls& n) { n.interfaces[0].hasName = false; }},
        Failure{{"OfTheAddresses"}, [](SimulatedInterfaceCalls& n) { n.addressListFails = true; }},
        Failure{{"NoAddressesAtAll"},
                [](SimulatedInterfaceCalls& n) { n.addressListIsEmpty = true; }}),
    rowName<Failure>);

TEST_F(NetworkReaderTest, OnABrokenMachineGivesNothing) {
    NetworkReader broken(SimulatedMachine::broken());
    for (int i = 0; i < 3; ++i)
        EXPECT_EQ(broken.read(true, i), nullptr);
}

TEST_F(NetworkReaderTest, OnALaptopShowsItsNetworkAndOnRequestItsTunnel) {
    const auto laptop = SimulatedMachine::laptop();
    NetworkReader itsReader(laptop);
    itsReader.read(false, 1);
    EXPECT_THAT(names(itsReader.read(false, 2)), ElementsAre("en0"));
    EXPECT_THAT(names(itsReader.read(true, 3)), ElementsAre("en0", "utun4"));
}

TEST_F(NetworkReaderTest, OnADesktopShowsAllItsInterfacesThePrimaryOneFirst) {
    NetworkReader itsReader(SimulatedMachine::desktop());
    itsReader.read(false, 1);
    const auto all = names(itsReader.read(false, 2));
    ASSERT_EQ(all.size(), 24u);
    EXPECT_EQ(all[0], "en1");
    EXPECT_EQ(all[1], "bridge100");
    EXPECT_EQ(all[23], "en0");
}

}  // namespace
}  // namespace vantor::network_reader_test
