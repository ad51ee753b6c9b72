#include "platform/linux/network/netlink_messages.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

#include "support/netlink_bytes.h"

namespace vantor::netlink_messages_test {
namespace {

using Step = NetlinkMessages::Step;

std::pair<std::vector<int>, Step> walk(const Bytes& datagram) {
    NetlinkMessages messages(datagram);
    NetlinkMessage message;
    std::vector<int> types;
    for (;;) {
        const Step step = messages.next(message);
        if (step != Step::message) return {types, step};
        types.push_back(message.type);
    }
}
using Walk = std::pair<std::vector<int>, Step>;

TEST(NetlinkMessages, TakesTheHeaderApart) {
    const Bytes datagram = netlinkMessage(16, 77, bytesOf(std::string_view("abc")), 0x10);
    NetlinkMessages messages(datagram);
    NetlinkMessage message;
    ASSERT_EQ(messages.next(message), Step::message);
    EXPECT_EQ(message.type, 16);
    EXPECT_EQ(message.flags, NLM_F_MULTI | 0x10);
    EXPECT_EQ(message.sequence, 77u);
    EXPECT_EQ(message.payload.size(), 3u) << "without the padding";
    EXPECT_EQ(messages.next(message), Step::end);
}

TEST(NetlinkMessages, WalksThemAll) {
    EXPECT_EQ(walk({}), (Walk{{}, Step::end}));
    EXPECT_EQ(walk(netlinkMessage(16, 1, Bytes(5)) + netlinkMessage(17, 1, {}) +
                   netlinkMessage(3, 1, Bytes(4))),
              (Walk{{16, 17, 3}, Step::end}));
}

TEST(NetlinkMessages, TheLastOnesPaddingMayBeMissing) {
    Bytes datagram = netlinkMessage(16, 1, Bytes(5));
    datagram.resize(datagram.size() - 3);
    EXPECT_EQ(walk(datagram), (Walk{{16}, Step::end}));
}

TEST(NetlinkMessages, ACutHeaderOrPayloadIsMalformed) {
    const Bytes whole = netlinkMessage(16, 1, Bytes(8));
    for (std::size_t length = 1; length < whole.size(); ++length) {
        EXPECT_EQ(walk(Bytes(whole.begin(), whole.begin() + static_cast<std::ptrdiff_t>(length))),
                  (Walk{{}, Step::malformed}))
            << length;
    }
}

TEST(NetlinkMessages, ALengthShorterThanTheHeaderIsMalformed) {
    for (const std::uint32_t length : {0U, 15U, UINT32_MAX}) {
        Bytes datagram = netlinkMessage(16, 1, Bytes(8));
        std::memcpy(datagram.data(), &length, sizeof length);
        EXPECT_EQ(walk(datagram), (Walk{{}, Step::malformed}));
    }
}

}  // namespace
}  // namespace vantor::netlink_messages_test
