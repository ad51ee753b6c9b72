#include "platform/linux/network/address_text.h"

#include <arpa/inet.h>
#include <gtest/gtest.h>

#include <array>
#include <random>
#include <string>

namespace vantor::address_text_test {
namespace {

using Bytes = std::array<std::uint8_t, 16>;

std::string ours(const Bytes& bytes) {
    AddressText room;
    const auto text = ipv6Text(bytes, room);
    EXPECT_EQ(room[text.size()], '\0');
    return std::string(text);
}

std::string theLibrarys(const Bytes& bytes) {
    std::array<char, INET6_ADDRSTRLEN> text{};
    return ::inet_ntop(AF_INET6, bytes.data(), text.data(), text.size());
}

class AddressTexts : public testing::TestWithParam<const char*> {};

TEST_P(AddressTexts, OfIPv6AreTheLibrarys) {
    Bytes bytes{};
    ASSERT_EQ(::inet_pton(AF_INET6, GetParam(), bytes.data()), 1);
    EXPECT_EQ(ours(bytes), GetParam());
    EXPECT_EQ(ours(bytes), theLibrarys(bytes));
}

INSTANTIATE_TEST_SUITE_P(IPv6, AddressTexts,
                         testing::Values("::", "::1", "1::", "fe80::1", "2001:db8::ff00:42:8329",
                                         "1:2:3:4:5:6:7:8", "1:0:3:4:5:6:7:8", "0:2:3:4:5:6:7:8",
                                         "1:2:3:4:5:6:7:0", "1::4:5:6:7:8",
                                         "1:2:3:4:5:6::", "::3:4:5:6:7:8", "1:0:0:4::8",
                                         "1::4:0:0:7:8", "ffff:ffff:ffff:ffff:ffff:ffff:ffff:ffff",
                                         "::ffff:192.0.2.128", "::192.0.2.1", "::1:2:3",
                                         "::ffff:0:0:1", "::fffe:102:304", "64:ff9b::c000:221"));

// Every pattern of zero groups, then any bytes with many zeros, then any at all.
TEST(AddressText, OfIPv6IsTheLibrarysForEveryPatternOfZeros) {
    for (unsigned pattern = 0; pattern < 256; ++pattern) {
        for (const unsigned fill : {0x1U, 0xFFFFU, 0x100U}) {
            Bytes bytes{};
            for (unsigned i = 0; i < 8; ++i) {
                if ((pattern >> i & 1) == 0) continue;
                bytes[2 * i] = static_cast<std::uint8_t>(fill >> 8);
                bytes[2 * i + 1] = static_cast<std::uint8_t>(fill);
            }
            EXPECT_EQ(ours(bytes), theLibrarys(bytes));
        }
    }
    std::mt19937 random(7);  // NOLINT: the same addresses every time
    for (const unsigned oneIn : {3U, 1U}) {
        for (int i = 0; i < 20'000; ++i) {
            Bytes bytes{};
            for (auto& byte : bytes)
                byte = random() % oneIn == 0 ? static_cast<std::uint8_t>(random()) : 0;
            ASSERT_EQ(ours(bytes), theLibrarys(bytes));
        }
    }
}

std::string text(std::array<std::uint8_t, 4> bytes) {
    AddressText room;
    const auto numbers = ipv4Text(bytes, room);
    EXPECT_EQ(room[numbers.size()], '\0');
    return std::string(numbers);
}

TEST(AddressText, OfIPv4IsFourNumbers) {
    EXPECT_EQ(text({0, 0, 0, 0}), "0.0.0.0");
    EXPECT_EQ(text({192, 0, 2, 10}), "192.0.2.10");
    EXPECT_EQ(text({255, 255, 255, 255}), "255.255.255.255");
}

TEST(AddressText, OfIPv4IsTheLibrarys) {
    std::mt19937 random(7);  // NOLINT: the same addresses every time
    for (int i = 0; i < 20'000; ++i) {
        std::array<std::uint8_t, 4> bytes{};
        for (auto& byte : bytes)
            byte = static_cast<std::uint8_t>(random());
        std::array<char, INET_ADDRSTRLEN> expected{};
        ASSERT_NE(::inet_ntop(AF_INET, bytes.data(), expected.data(), expected.size()), nullptr);
        ASSERT_EQ(text(bytes), expected.data());
    }
}

}  // namespace
}  // namespace vantor::address_text_test
