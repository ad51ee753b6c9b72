#include "platform/linux/network/link_source.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cerrno>
#include <string>
#include <vector>

#include "platform/linux/network/linux_network_interfaces.h"
#include "support/fake_proc_kernel.h"

namespace vantor::link_source_test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

Bytes link(std::uint32_t sequence, int index, std::string_view name, int flags = 0) {
    return netlinkMessage(RTM_NEWLINK, sequence,
                          linkHeader(index, 0x41) + linkName(name) +
                              attribute(IFLA_STATS64, linkCounters<std::uint64_t>(5, 6)),
                          flags);
}
Bytes address(std::uint32_t sequence, unsigned index, int last) {
    const Bytes bytes{std::byte{10}, std::byte{0}, std::byte{0}, static_cast<std::byte>(last)};
    return netlinkMessage(RTM_NEWADDR, sequence,
                          addressHeader(AF_INET, index) + attribute(IFA_LOCAL, bytes));
}

class LinkSourceTest : public testing::Test {
  protected:
    std::vector<std::string> names() {
        std::vector<std::string> result;
        for (const auto& each : links)
            result.push_back(each.name);
        return result;
    }
    static Bytes done(std::uint32_t sequence, int flags = 0) {
        return FakeProcKernel::done(sequence, 0, flags);
    }

    FakeProcKernel kernel;
    std::shared_ptr<LinkSource> source =
        makeLiveLinkSource([this] { return kernel.open(); }, [] { return FileDescriptor(); });
    std::vector<LinkSource::Link> links;
    std::vector<LinkSource::Address> addresses;
};

TEST_F(LinkSourceTest, AsksForTheLinksThenForTheAddresses) {
    kernel.sockets = {{link(1, 1, "lo") + link(1, 2, "eth0"), done(1), address(2, 2, 7), done(2)}};
    EXPECT_TRUE(source->links(links));
    EXPECT_THAT(names(), ElementsAre("lo", "eth0"));
    EXPECT_TRUE(source->addresses(addresses));
    ASSERT_EQ(addresses.size(), 1u);
    EXPECT_EQ(addresses[0].index, 2u);
    EXPECT_EQ(addresses[0].bytes[3], 7);
}

TEST_F(LinkSourceTest, MessagesOfAnotherKindAreNoLinks) {
    kernel.sockets = {{address(1, 2, 7) + link(1, 2, "eth0") +
                           netlinkMessage(RTM_DELLINK, 1, linkHeader(3, 0) + linkName("gone")),
                       done(1), link(2, 2, "eth0") + address(2, 2, 7), done(2)}};
    EXPECT_TRUE(source->links(links));
    EXPECT_THAT(names(), ElementsAre("eth0"));
    EXPECT_TRUE(source->addresses(addresses));
    EXPECT_EQ(addresses.size(), 1u);
}

TEST_F(LinkSourceTest, ALinkWithoutANameIsLeftOut) {
    kernel.sockets = {{link(1, 2, "") + link(1, 3, "eth0"), done(1)}};
    EXPECT_TRUE(source->links(links));
    EXPECT_THAT(names(), ElementsAre("eth0"));
}

TEST_F(LinkSourceTest, AnInterfaceRemovedDuringTheDumpIsNotInTheList) {
    kernel.sockets = {{link(1, 1, "lo") + link(1, 2, "veth1"), link(1, 3, "eth0", NLM_F_DUMP_INTR),
                       done(1, NLM_F_DUMP_INTR)},
                      {link(2, 1, "lo") + link(2, 3, "eth0"), done(2)}};
    EXPECT_TRUE(source->links(links));
    EXPECT_THAT(names(), ElementsAre("lo", "eth0"));
}

// The links, their counters and the addresses all of the second dump.
TEST_F(LinkSourceTest, AnInterfaceRemovedDuringTheDumpHasNoRecordAndNoAddress) {
    kernel.sockets = {
        {link(1, 1, "lo") + link(1, 2, "veth1") + link(1, 3, "eth0", NLM_F_DUMP_INTR), done(1)},
        {link(2, 1, "lo") + link(2, 3, "eth0"), done(2), address(3, 2, 1) + address(3, 3, 2),
         done(3)}};
    LinuxNetworkInterfaces interfaces(source);
    NetworkInterfaces::List list;
    ASSERT_TRUE(interfaces.read(list));
    ASSERT_EQ(list.size(), 2u);
    EXPECT_EQ(list[0].name, "lo");
    EXPECT_EQ(list[0].addresses.size(), 0u);
    EXPECT_EQ(list[1].name, "eth0");
    ASSERT_EQ(list[1].addresses.size(), 1u);
    EXPECT_EQ(list[1].addresses[0].text, "10.0.0.2");
}

TEST_F(LinkSourceTest, InterfacesThatAreRemovedDuringEveryDumpGiveNoList) {
    for (std::uint32_t number = 1; number <= 4; ++number)
        kernel.sockets.push_back(
            {link(number, static_cast<int>(number), "veth1"), done(number, NLM_F_DUMP_INTR)});
    LinuxNetworkInterfaces interfaces(source);
    NetworkInterfaces::List list;
    EXPECT_FALSE(interfaces.read(list)) << "nothing of the broken lists serves";
}

Bytes counters(std::uint32_t sequence, std::uint32_t index, std::uint64_t received) {
    return netlinkMessage(
        RTM_NEWSTATS, sequence,
        statisticsHeader(index) +
            attribute(IFLA_STATS_LINK_64, linkCounters<std::uint64_t>(received, received + 1)));
}

TEST_F(LinkSourceTest, CountersAreThoseOfTheLinksWithTheirNumbersInAnyOrder) {
    links = {{3, 0, 1, 1, true, "a"}, {9, 0, 1, 1, true, "b"}, {4, 0, 1, 1, true, "c"}};
    kernel.sockets = {{counters(1, 3, 30) + counters(1, 9, 90) + counters(1, 4, 40), done(1),
                       counters(2, 4, 41), counters(2, 3, 31) + counters(2, 9, 91), done(2)}};
    for (const std::uint64_t pass : {0u, 1u}) {
        ASSERT_TRUE(source->counters(links));
        EXPECT_THAT(names(), ElementsAre("a", "b", "c"));
        EXPECT_EQ(links[0].receivedBytes, 30 + pass);
        EXPECT_EQ(links[1].receivedBytes, 90 + pass);
        EXPECT_EQ(links[2].receivedBytes, 40 + pass);
        EXPECT_EQ(links[2].sentBytes, 41 + pass);
    }
}

TEST_F(LinkSourceTest, CountersOfOtherLinksOrOfTooFewAreNone) {
    links = {{3, 0, 1, 1, true, "a"}, {9, 0, 1, 1, true, "b"}};
    kernel.sockets = {{counters(1, 3, 30) + counters(1, 5, 50) + counters(1, 9, 90), done(1),
                       counters(2, 9, 90), done(2), done(3),
                       counters(4, 3, 30) + counters(4, 9, 90), done(4)}};
    EXPECT_FALSE(source->counters(links)) << "one has come";
    EXPECT_FALSE(source->counters(links)) << "one has gone";
    EXPECT_FALSE(source->counters(links)) << "all have gone";
    EXPECT_TRUE(source->counters(links));
}

// As kernels before 4.7 do.
TEST_F(LinkSourceTest, AKernelThatRefusesCountersIsNotAskedForEver) {
    links = {{3, 0, 1, 1, true, "a"}};
    const auto refusal = [](std::uint32_t sequence) {
        return netlinkMessage(NLMSG_ERROR, sequence, bytesOf(-EOPNOTSUPP));
    };
    kernel.sockets = {{refusal(1)}, {refusal(2)}, {refusal(3)}, {link(4, 3, "a"), done(4)}};
    for (int i = 0; i < 6; ++i)
        EXPECT_FALSE(source->counters(links));
    EXPECT_EQ(kernel.sockets.size(), 1u) << "three times";
    EXPECT_TRUE(source->links(links)) << "the lists are had as ever";
}

TEST_F(LinkSourceTest, AMalformedMessageFailsTheCounters) {
    links = {{3, 0, 1, 1, true, "a"}};
    kernel.sockets = {{netlinkMessage(RTM_NEWSTATS, 1, Bytes(4)), done(1)},
                      {netlinkMessage(RTM_NEWSTATS, 2, statisticsHeader(3)), done(2)},
                      {counters(3, 3, 30), done(3)}};
    EXPECT_FALSE(source->counters(links));
    EXPECT_FALSE(source->counters(links)) << "no counters in it";
    EXPECT_TRUE(source->counters(links));
}

TEST_F(LinkSourceTest, AMalformedMessageFailsTheList) {
    kernel.sockets = {{netlinkMessage(RTM_NEWLINK, 1, Bytes(4)), done(1)},
                      {netlinkMessage(RTM_NEWADDR, 2, Bytes(4)), done(2)}};
    EXPECT_FALSE(source->links(links));
    EXPECT_FALSE(source->addresses(addresses));
}

}  // namespace
}  // namespace vantor::link_source_test
