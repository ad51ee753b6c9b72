#include "platform/linux/network/netlink_dump.h"

#include <fcntl.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/socket.h>

#include <array>
#include <deque>
#include <ostream>
#include <vector>

#include "support/fake_proc_kernel.h"

namespace vantor::netlink_dump_test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class NetlinkDumpTest : public testing::Test, public NetlinkDump::Receiver {
  protected:
    void restart() override {
        ++restarts;
        taken.clear();
    }
    bool take(std::uint16_t type, std::span<const std::byte> payload) override {
        taken.push_back(payload.empty() ? 0 : std::to_integer<int>(payload.front()));
        return type == RTM_NEWLINK;
    }

    bool dump() {
        nlmsghdr header{};
        header.nlmsg_type = RTM_GETLINK;
        request = bytesOf(header) + Bytes(16);
        return client.dump(request, *this);
    }

    static Bytes item(std::uint32_t sequence, int value, int flags = 0) {
        return netlinkMessage(RTM_NEWLINK, sequence, Bytes(4, static_cast<std::byte>(value)),
                              flags);
    }
    static Bytes done(std::uint32_t sequence, int error = 0, int flags = 0) {
        return FakeProcKernel::done(sequence, error, flags);
    }

    FakeProcKernel kernel;
    std::deque<std::vector<Bytes>>& sockets = kernel.sockets;
    std::vector<int> taken;
    int restarts = 0;
    Bytes request;
    NetlinkDump client{[this] { return kernel.open(); }};
};

TEST_F(NetlinkDumpTest, TakesLargerDatagramsAfterAListOfMany) {
    const Bytes large = netlinkMessage(RTM_NEWLINK, 2, Bytes(20'000, std::byte{9}));
    sockets = {{item(1, 5), item(1, 6), item(1, 7), item(1, 8), done(1), large, done(2)}};
    EXPECT_TRUE(dump());
    EXPECT_THAT(taken, ElementsAre(5, 6, 7, 8));
    EXPECT_TRUE(dump());
    EXPECT_THAT(taken, ElementsAre(9));
    EXPECT_EQ(restarts, 2) << "it fits at once";
}

TEST_F(NetlinkDumpTest, HandsOverAListOfSeveralDatagrams) {
    sockets = {{item(1, 5) + item(1, 6), item(1, 7), done(1)}};
    EXPECT_TRUE(dump());
    EXPECT_THAT(taken, ElementsAre(5, 6, 7));
    EXPECT_EQ(restarts, 1);
}

TEST_F(NetlinkDumpTest, TheEndMayComeInTheLastDatagram) {
    sockets = {{item(1, 5) + done(1)}};
    EXPECT_TRUE(dump());
    EXPECT_THAT(taken, ElementsAre(5));
}

TEST_F(NetlinkDumpTest, FillsInTheRequestsLengthFlagsAndNumber) {
    sockets = {{done(1), done(2)}};
    EXPECT_TRUE(dump());
    EXPECT_TRUE(dump());
    for (std::uint32_t number : {1U, 2U}) {
        std::array<std::byte, 100> bytes{};
        ASSERT_EQ(::recv(kernel.own[0].get(), bytes.data(), bytes.size(), 0), 32);
        nlmsghdr sent{};
        std::memcpy(&sent, bytes.data(), sizeof sent);
        EXPECT_EQ(sent.nlmsg_len, 32u);
        EXPECT_EQ(sent.nlmsg_type, RTM_GETLINK);
        EXPECT_EQ(sent.nlmsg_flags, NLM_F_REQUEST | NLM_F_DUMP);
        EXPECT_EQ(sent.nlmsg_seq, number);
    }
}

TEST_F(NetlinkDumpTest, KeepsItsSocket) {
    sockets = {{item(1, 5), done(1), item(2, 6), done(2)}};
    EXPECT_TRUE(dump());
    EXPECT_TRUE(dump());
    EXPECT_THAT(taken, ElementsAre(6));
    EXPECT_EQ(kernel.own.size(), 1u);
}

TEST_F(NetlinkDumpTest, PassesOverAnswersToOtherQuestions) {
    sockets = {{item(9, 1), done(9), item(1, 5) + item(0, 2), done(1)}};
    EXPECT_TRUE(dump());
    EXPECT_THAT(taken, ElementsAre(5));
}

TEST_F(NetlinkDumpTest, SkipsMessagesThatSayNothing) {
    sockets = {{netlinkMessage(NLMSG_NOOP, 1, {}) + item(1, 5), done(1)}};
    EXPECT_TRUE(dump());
    EXPECT_THAT(taken, ElementsAre(5));
}

TEST_F(NetlinkDumpTest, AListThatChangedMeanwhileIsAskedForAgain) {
    sockets = {{item(1, 5, NLM_F_DUMP_INTR), done(1)},
               {item(2, 6), done(2, 0, NLM_F_DUMP_INTR)},
               {item(3, 7), done(3)}};
    EXPECT_TRUE(dump());
    EXPECT_THAT(taken, ElementsAre(7)) << "nothing of the earlier lists is left";
    EXPECT_EQ(restarts, 3);
}

TEST_F(NetlinkDumpTest, AListThatChangesEveryTimeIsGivenUpAfterFour) {
    for (std::uint32_t number = 1; number <= 5; ++number)
        sockets.push_back({item(number, 5), done(number, 0, NLM_F_DUMP_INTR)});
    EXPECT_FALSE(dump());
    EXPECT_EQ(sockets.size(), 1u);
}

TEST_F(NetlinkDumpTest, AnOverrunIsAskedForAgain) {
    sockets = {{item(1, 5), netlinkMessage(NLMSG_OVERRUN, 1, {})}, {item(2, 6), done(2)}};
    EXPECT_TRUE(dump());
    EXPECT_THAT(taken, ElementsAre(6));
}

TEST_F(NetlinkDumpTest, ADatagramLargerThanTheBufferIsAskedForAgainWithALargerOne) {
    const Bytes large = netlinkMessage(RTM_NEWLINK, 1, Bytes(60'000, std::byte{5}));
    const Bytes again = netlinkMessage(RTM_NEWLINK, 2, Bytes(60'000, std::byte{6}));
    sockets = {{large, done(1)}, {again, done(2)}};
    EXPECT_TRUE(dump());
    EXPECT_THAT(taken, ElementsAre(6));
}

struct Ending {
    const char* name;
    Bytes datagram;

    friend void PrintTo(const Ending& ending, std::ostream* out) { *out << ending.name; }
};
class FailedNetlinkDump : public NetlinkDumpTest, public testing::WithParamInterface<Ending> {};

TEST_P(FailedNetlinkDump, FailsAndTheNextOneHasAFreshSocket) {
    sockets = {{item(1, 5), GetParam().datagram, done(1)}, {item(2, 6), done(2)}};
    EXPECT_FALSE(dump());
    EXPECT_EQ(sockets.size(), 1u) << "it is not tried again";
    EXPECT_TRUE(dump());
    EXPECT_THAT(taken, ElementsAre(6));
}

Bytes cut(Bytes bytes, std::size_t by) {
    bytes.resize(bytes.size() - by);
    return bytes;
}

INSTANTIATE_TEST_SUITE_P(
    Endings, FailedNetlinkDump,
    testing::Values(Ending{"AnError", netlinkMessage(NLMSG_ERROR, 1, bytesOf(-EPERM))},
                    Ending{"AnEndWithAnError", netlinkMessage(NLMSG_DONE, 1, bytesOf(-ENODEV))},
                    Ending{"ACutHeader", cut(netlinkMessage(RTM_NEWLINK, 1, {}), 1)},
                    Ending{"ACutPayload", cut(netlinkMessage(RTM_NEWLINK, 1, Bytes(8)), 4)},
                    Ending{"APayloadThatIsNotUnderstood", netlinkMessage(RTM_NEWADDR, 1, {})}),
    [](const auto& row) { return row.param.name; });

TEST_F(NetlinkDumpTest, ASilentKernelIsNotWaitedForForEver) {
    sockets = {{item(1, 5)}, {done(2)}};
    EXPECT_FALSE(dump());
    EXPECT_TRUE(dump());
}

TEST_F(NetlinkDumpTest, ALateAnswerDoesNotReachTheNextQuestion) {
    sockets = {{item(1, 5)}, {item(2, 6), done(2)}};
    EXPECT_FALSE(dump());
    const Bytes late = done(1);
    EXPECT_LT(::send(kernel.own[0].get(), late.data(), late.size(), MSG_NOSIGNAL), 0)
        << "nobody is there any more";
    EXPECT_TRUE(dump());
    EXPECT_THAT(taken, ElementsAre(6));
}

TEST_F(NetlinkDumpTest, FailsWithoutASocketUntilThereIsOne) {
    EXPECT_FALSE(dump());
    sockets = {{done(1)}};
    EXPECT_TRUE(dump());
}

TEST_F(NetlinkDumpTest, ARequestWithoutAHeaderFails) {
    Bytes tooShort(15);
    sockets = {{done(1)}};
    EXPECT_FALSE(client.dump(tooShort, *this));
}

TEST(NetlinkSocket, OfTheKernelIsClosedInNewPrograms) {
    const FileDescriptor socket = NetlinkDump::openRouteSocket();
    ASSERT_TRUE(socket);
    EXPECT_NE(::fcntl(socket.get(), F_GETFD) & FD_CLOEXEC, 0);
}

}  // namespace
}  // namespace vantor::netlink_dump_test
