#include "platform/linux/network/route_source.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <net/if.h>

#include <array>
#include <cstdint>
#include <string>

#include "support/fake_proc_kernel.h"

namespace vantor::route_source_test {
namespace {

using Route = RouteSource::Route;

Bytes number(int type, std::uint32_t value) {
    return attribute(type, bytesOf(value));
}
Bytes hop(int index, unsigned flags = 0) {
    rtnexthop header{};
    header.rtnh_len = sizeof header;
    header.rtnh_flags = static_cast<std::uint8_t>(flags);
    header.rtnh_ifindex = index;
    return bytesOf(header);
}

TEST(RouteMessage, SaysItsTableMetricAndInterface) {
    Route route;
    ASSERT_TRUE(parseRoute(
        bytesOf(routeHeader(AF_INET6)) + number(RTA_PRIORITY, 1024) + number(RTA_OIF, 7), route));
    EXPECT_EQ(route, (Route{AF_INET6, RT_TABLE_MAIN, 1024, 7, true}));
}

TEST(RouteMessage, OfATablePastAByteSaysItInAnAttribute) {
    Route route;
    rtmsg header = routeHeader(AF_INET6);
    header.rtm_table = RT_TABLE_COMPAT;
    ASSERT_TRUE(parseRoute(bytesOf(header) + number(RTA_TABLE, 5000), route));
    EXPECT_EQ(route.table, 5000U);
}

TEST(RouteMessage, OfSeveralHopsTakesTheFirstThatIsAlive) {
    Route route;
    const auto index = [&](const Bytes& hops) {
        EXPECT_TRUE(
            parseRoute(bytesOf(routeHeader(AF_INET6)) + attribute(RTA_MULTIPATH, hops), route));
        return route.index;
    };
    EXPECT_EQ(index(hop(3) + hop(4)), 3U);
    EXPECT_EQ(index(hop(3, RTNH_F_DEAD) + hop(4)), 4U);
    EXPECT_EQ(index(hop(3, RTNH_F_DEAD)), 0U);
    EXPECT_EQ(index({}), 0U);
    Bytes cut = hop(3, RTNH_F_DEAD) + hop(4);
    cut.pop_back();
    EXPECT_EQ(index(cut), 0U);
    EXPECT_EQ(index(bytesOf(rtnexthop{})), 0U) << "one of no length";
}

TEST(RouteMessage, OfANetworkARefusalOrADeadOneIsNoDefault) {
    Route route;
    const auto isDefault = [&](const rtmsg& header) {
        EXPECT_TRUE(parseRoute(bytesOf(header), route));
        return route.isDefault;
    };
    rtmsg header = routeHeader(AF_INET6);
    EXPECT_TRUE(isDefault(header));
    header.rtm_dst_len = 1;
    EXPECT_FALSE(isDefault(header));
    for (const int type : {RTN_UNREACHABLE, RTN_BLACKHOLE, RTN_PROHIBIT, RTN_LOCAL}) {
        header = routeHeader(AF_INET6);
        header.rtm_type = static_cast<std::uint8_t>(type);
        EXPECT_FALSE(isDefault(header)) << type;
    }
    for (const unsigned flag : {unsigned{RTNH_F_DEAD}, unsigned{RTM_F_CLONED}}) {
        header = routeHeader(AF_INET6);
        header.rtm_flags = flag;
        EXPECT_FALSE(isDefault(header)) << flag;
    }
}

TEST(RouteMessage, CutIsMalformed) {
    Route route;
    Bytes message = bytesOf(routeHeader(AF_INET6)) + number(RTA_OIF, 1);
    message.pop_back();
    EXPECT_FALSE(parseRoute(message, route));
    EXPECT_FALSE(parseRoute(Bytes(sizeof(rtmsg) - 1), route));
    EXPECT_FALSE(parseRoute({}, route));
}

/// The machine that this runs on has a loopback and perhaps one more: all that can be named here.
class RouteSourceTest : public testing::Test {
  protected:
    void SetUp() override {
        for (unsigned index = 1; index < 64 && other == 0; ++index) {
            std::array<char, IF_NAMESIZE> found{};
            if (!::if_indextoname(index, found.data())) continue;
            if (std::string(found.data()) == "lo") continue;
            other = index;
            otherName = found.data();
        }
        if (other == 0) GTEST_SKIP() << "there is nothing but the loopback here";
    }
    Bytes route(std::uint32_t index, std::uint32_t metric = 1024, int table = RT_TABLE_MAIN,
                int family = AF_INET6) const {
        rtmsg header = routeHeader(family);
        header.rtm_table = static_cast<std::uint8_t>(table);
        return netlinkMessage(
            RTM_NEWROUTE, 1,
            bytesOf(header) + number(RTA_PRIORITY, metric) + number(RTA_OIF, index));
    }
    std::string answer(const Bytes& routes) {
        kernel.sockets = {{routes, FakeProcKernel::done(1)}};
        const auto source = makeLiveRouteSource([this] { return kernel.open(); });
        std::string name = "left over";
        return source->ipv6DefaultInterface(name) ? name : "(no answer)";
    }

    FakeProcKernel kernel;
    std::uint32_t other = 0;
    std::string otherName;
};

TEST_F(RouteSourceTest, AnswersTheInterfaceOfTheMainTablesDefault) {
    EXPECT_EQ(answer(route(other)), otherName);
}

TEST_F(RouteSourceTest, LeavesOutOtherTablesAndFamilies) {
    EXPECT_EQ(answer(route(other, 1, 100)), "");
    EXPECT_EQ(answer(route(other, 1, RT_TABLE_MAIN, AF_INET)), "")
        << "a kernel without IPv6 answers with all that it has";
}

TEST_F(RouteSourceTest, LeavesOutTheLoopbackAndWhatHasNoName) {
    const std::uint32_t loopback = ::if_nametoindex("lo");
    EXPECT_EQ(answer(route(loopback, 1) + route(0xFFFFFF, 2) + route(other, 3)), otherName);
    EXPECT_EQ(answer(route(loopback, 1)), "");
}

TEST_F(RouteSourceTest, AMessageThatIsMalformedIsNoAnswer) {
    EXPECT_EQ(answer(netlinkMessage(RTM_NEWROUTE, 1, Bytes(3))), "(no answer)");
    EXPECT_EQ(answer(FakeProcKernel::done(1, -95)), "(no answer)");
}

TEST_F(RouteSourceTest, TooLongAListIsLookedThroughInPart) {
    const auto answerOfThree = [&](const Bytes& first, const Bytes& rest) {
        kernel.sockets = {{first, rest}};
        std::string name;
        const auto source = makeLiveRouteSource([this] { return kernel.open(); }, 3);
        EXPECT_TRUE(source->ipv6DefaultInterface(name)) << "though the list has no end";
        return name;
    };
    const Bytes passedOver = route(other, 1, 100);
    EXPECT_EQ(answerOfThree(passedOver + passedOver, route(other) + passedOver), otherName);
    EXPECT_EQ(answerOfThree(passedOver + passedOver, passedOver + route(other)), "");
}

}  // namespace
}  // namespace vantor::route_source_test
