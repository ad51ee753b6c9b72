#include "platform/linux/network/route_tables.h"

#include <gtest/gtest.h>

#include <string>

namespace vantor::route_tables_test {
namespace {

using Name = std::optional<std::string_view>;

const std::string header4 =
    "Iface\tDestination\tGateway \tFlags\tRefCnt\tUse\tMetric\tMask\t\tMTU\tWindow\tIRTT"
    "                                                       \n";

std::string route4(const std::string& name, const std::string& metric,
                   const std::string& flags = "0003", const std::string& destination = "00000000",
                   const std::string& mask = "00000000") {
    return name + "\t" + destination + "\t010200C0\t" + flags + "\t0\t0\t" + metric + "\t" + mask +
           "\t0\t0\t0          \n";
}

Name primary4(const std::string& text) {
    static std::string kept;  // the name lies within the text
    kept = text;
    return ipv4DefaultInterface(kept);
}

TEST(IPv4Routes, HaveTheDefaultRoutesInterface) {
    EXPECT_EQ(primary4(header4 + route4("docker0", "0", "0001", "000011AC", "0000FFFF") +
                       route4("eth0", "100")),
              "eth0");
}

TEST(IPv4Routes, TheLowestMetricWinsAndTheFirstOfEqualOnes) {
    EXPECT_EQ(
        primary4(header4 + route4("wlan0", "600") + route4("eth0", "100") + route4("eth1", "100")),
        "eth0");
}

TEST(IPv4Routes, MetricsPast31BitsArePrintedBelowZeroAndAreLargeAllTheSame) {
    EXPECT_EQ(primary4(route4("eth0", "-1") + route4("eth1", "2147483647")), "eth1");
    EXPECT_EQ(primary4(route4("eth0", "-1") + route4("eth1", "-2147483648")), "eth1");
    EXPECT_EQ(primary4(route4("eth0", "-1")), "eth0");
}

TEST(IPv4Routes, WithoutADefaultRouteThereIsNone) {
    EXPECT_EQ(primary4(""), std::nullopt);
    EXPECT_EQ(primary4(header4), std::nullopt);
    EXPECT_EQ(primary4(route4("eth0", "0", "0003", "0000000A")), std::nullopt);
    EXPECT_EQ(primary4(route4("tun0", "0", "0003", "00000000", "00000080")), std::nullopt)
        << "half of everything is not everything";
}

TEST(IPv4Routes, MustBeUpAndNoRefusal) {
    EXPECT_EQ(primary4(route4("eth0", "0", "0002")), std::nullopt);
    EXPECT_EQ(primary4(route4("eth0", "0", "0201")), std::nullopt);
    EXPECT_EQ(primary4(route4("*", "0", "0001")), std::nullopt);
    EXPECT_EQ(primary4(route4("eth0", "0", "0001")), "eth0") << "a gateway is not needed";
}

TEST(IPv4Routes, TheLoopbackCarriesNone) {
    EXPECT_EQ(primary4(route4("lo", "0") + route4("eth0", "100")), "eth0");
}

TEST(IPv4Routes, MalformedLinesArePassedOver) {
    for (const std::string line :
         {"eth9\n", "eth9\t00000000\t0\t0003\t0\t0\t0\n", "\n", "\t\t\t\n",
          "eth9\tzz\t0\t0003\t0\t0\t0\t00000000\n", "eth9\t0\t0\t0003\t0\t0\t0\t00000000\n",
          "eth9\t00000000\t0\t0003\t0\t0\tx\t00000000\n",
          "eth9\t00000000\t0\t0003\t0\t0\t99999999999999999999\t00000000\n",
          "eth9\t00000000\t0\t3g\t0\t0\t0\t00000000\n",
          "eth9\t00000000\t0\t0003\t0\t0\t0\t000000000\n",
          "a-name-that-is-too-long\t00000000\t0\t0003\t0\t0\t0\t00000000\n"}) {
        EXPECT_EQ(primary4(line + route4("eth0", "100")), "eth0") << line;
    }
}

TEST(IPv4Routes, ALineWithoutItsEndWasCut) {
    std::string text = route4("eth0", "100") + route4("eth1", "5");
    text.pop_back();
    EXPECT_EQ(primary4(text), "eth0");
}

TEST(IPv4Routes, MayBeMany) {
    std::string text = header4;
    for (int i = 0; i < 20000; ++i)
        text += route4("eth1", "0", "0001", "0000000A", "00FFFFFF");
    EXPECT_EQ(primary4(text + route4("eth0", "7")), "eth0");
}

const std::string zero(32, '0');

std::string route6(const std::string& name, const std::string& metric,
                   const std::string& flags = "00450003", const std::string& destination = zero,
                   const std::string& prefix = "00") {
    return destination + ' ' + prefix + ' ' + zero + " 00 fe800000000000000000000000000001 " +
           metric + " 00000001 00000000 " + flags +
           std::string(8 - std::min<std::size_t>(name.size(), 8), ' ') + ' ' + name + '\n';
}

Name primary6(const std::string& text) {
    static std::string kept;
    kept = text;
    return ipv6DefaultInterface(kept);
}

TEST(IPv6Routes, HaveTheDefaultRoutesInterface) {
    EXPECT_EQ(
        primary6(route6("eth1", "00000100", "00000001", "fe800000000000000000000000000000", "40") +
                 route6("eth0", "00000400") + route6("lo", "ffffffff", "00200200")),
        "eth0");
}

TEST(IPv6Routes, TheLowestMetricWinsAndTheFirstOfEqualOnes) {
    EXPECT_EQ(primary6(route6("wlan0", "00000258") + route6("eth0", "00000064") +
                       route6("eth1", "00000064")),
              "eth0");
    EXPECT_EQ(primary6(route6("eth0", "ffffffff") + route6("eth1", "7fffffff")), "eth1");
}

TEST(IPv6Routes, WithoutADefaultRouteThereIsNone) {
    EXPECT_EQ(primary6(""), std::nullopt);
    EXPECT_EQ(primary6(route6("eth0", "00000001", "00000003", zero, "01")), std::nullopt);
    EXPECT_EQ(primary6(route6("eth0", "00000001", "00000003", "2" + zero.substr(1), "00")),
              std::nullopt);
}

TEST(IPv6Routes, MustBeUpAndNoRefusal) {
    EXPECT_EQ(primary6(route6("eth0", "00000001", "00450002")), std::nullopt);
    EXPECT_EQ(primary6(route6("eth0", "00000001", "00450203")), std::nullopt);
}

TEST(IPv6Routes, TheLoopbackCarriesNone) {
    EXPECT_EQ(primary6(route6("lo", "00000001")), std::nullopt);
}

TEST(IPv6Routes, MalformedAndCutLinesArePassedOver) {
    const std::string good = route6("eth0", "00000400");
    for (const std::string& line :
         {std::string("\n"), zero + " 00\n", route6("eth9", "0000000x"),
          route6("eth9", "100000000"), route6("eth9", "00000001", "zz"),
          route6("eth9", "00000001", "00000003", "0"),
          route6("a-name-that-is-too-long", "00000001"), route6("", "00000001")}) {
        EXPECT_EQ(primary6(line + good), "eth0") << line;
    }
    std::string cut = good + route6("eth1", "00000001");
    cut.pop_back();
    EXPECT_EQ(primary6(cut), "eth0");
}

}  // namespace
}  // namespace vantor::route_tables_test
