#include "platform/darwin/interface_dump.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <initializer_list>
#include <utility>
#include <vector>

namespace vantor::interface_dump_test {
namespace {

using Bytes = std::vector<std::byte>;
using Step = InterfaceDump::Step;

void put(Bytes& bytes, std::size_t at, std::uint64_t value, int count) {
    for (int i = 0; i < count; ++i)
        bytes[at + static_cast<std::size_t>(i)] = static_cast<std::byte>(value >> (8 * i));
}

/// A message written by hand, so that the layout is told twice.
Bytes message(std::uint16_t index, std::uint64_t received, std::uint64_t sent,
              std::size_t length = 160, int version = 5, int type = 18) {
    Bytes bytes(std::max<std::size_t>(length, 160), std::byte{0xEE});
    put(bytes, 0, length, 2);
    put(bytes, 2, static_cast<std::uint64_t>(version), 1);
    put(bytes, 3, static_cast<std::uint64_t>(type), 1);
    put(bytes, 12, index, 2);
    put(bytes, 96, received, 8);
    put(bytes, 104, sent, 8);
    bytes.resize(length);
    return bytes;
}

Bytes operator+(Bytes a, const Bytes& b) {
    a.insert(a.end(), b.begin(), b.end());
    return a;
}

Bytes header(std::uint16_t length, int version, int type) {
    Bytes bytes(4);
    put(bytes, 0, length, 2);
    put(bytes, 2, static_cast<std::uint64_t>(version), 1);
    put(bytes, 3, static_cast<std::uint64_t>(type), 1);
    return bytes;
}

/// The indices that the bytes hold, and how the walk ends.
std::pair<std::vector<int>, Step> walk(const Bytes& bytes) {
    InterfaceDump dump(bytes);
    InterfaceDump::Message message;
    std::vector<int> indices;
    for (;;) {
        const Step step = dump.next(message);
        if (step != Step::message) return {indices, step};
        indices.push_back(message.index);
    }
}

using Walk = std::pair<std::vector<int>, Step>;

TEST(InterfaceDump, GivesIndexAndCountersLittleEndian) {
    const Bytes bytes = message(0x0201, 0x1122334455667788, UINT64_MAX);
    InterfaceDump dump(bytes);
    InterfaceDump::Message found;
    ASSERT_EQ(dump.next(found), Step::message);
    EXPECT_EQ(found.index, 0x0201);
    EXPECT_EQ(found.received, 0x1122334455667788u);
    EXPECT_EQ(found.sent, UINT64_MAX);
    EXPECT_EQ(dump.next(found), Step::end);
    EXPECT_EQ(dump.next(found), Step::end);
}

TEST(InterfaceDump, OfNothingEndsAtOnce) {
    EXPECT_EQ(walk({}), (Walk{{}, Step::end}));
}

TEST(InterfaceDump, WalksMessagesOfAnyLength) {
    EXPECT_EQ(walk(message(1, 0, 0) + message(2, 0, 0, 180) + message(3, 0, 0, 65535)),
              (Walk{{1, 2, 3}, Step::end}));
}

TEST(InterfaceDump, SkipsAnUnknownVersionByItsLength) {
    EXPECT_EQ(walk(message(1, 0, 0, 160, 4) + message(2, 0, 0, 160, 6) + message(3, 0, 0)),
              (Walk{{3}, Step::end}));
    EXPECT_EQ(walk(header(4, 4, 18) + message(3, 0, 0)), (Walk{{3}, Step::end}));
}

TEST(InterfaceDump, SkipsAnUnknownTypeByItsLength) {
    EXPECT_EQ(walk(message(1, 0, 0, 160, 5, 17) + message(2, 0, 0, 161, 5, 0) + message(3, 0, 0)),
              (Walk{{3}, Step::end}));
    EXPECT_EQ(walk(header(4, 5, 12) + message(3, 0, 0)), (Walk{{3}, Step::end}));
}

TEST(InterfaceDump, FewerThanFourBytesAreMalformed) {
    for (std::size_t count : {1u, 2u, 3u}) {
        EXPECT_EQ(walk(message(1, 0, 0) + Bytes(count)), (Walk{{1}, Step::malformed}));
        EXPECT_EQ(walk(Bytes(count)), (Walk{{}, Step::malformed}));
    }
}

TEST(InterfaceDump, ALengthBelowFourIsMalformed) {
    for (const auto length : std::initializer_list<std::uint16_t>{0, 1, 3}) {
        EXPECT_EQ(walk(message(1, 0, 0) + header(length, 5, 1) + Bytes(200)),
                  (Walk{{1}, Step::malformed}));
    }
}

TEST(InterfaceDump, ALengthPastTheEndIsMalformed) {
    EXPECT_EQ(walk(header(5, 5, 1)), (Walk{{}, Step::malformed}));
    Bytes bytes = message(1, 0, 0);
    bytes.pop_back();
    EXPECT_EQ(walk(bytes), (Walk{{}, Step::malformed}));
}

TEST(InterfaceDump, AnInterfaceMessageShorterThan160BytesIsMalformed) {
    EXPECT_EQ(walk(message(1, 0, 0) + message(2, 0, 0, 159)), (Walk{{1}, Step::malformed}));
    EXPECT_EQ(walk(header(4, 5, 18)), (Walk{{}, Step::malformed}));
}

}  // namespace
}  // namespace vantor::interface_dump_test
